#include "windows/book/frmLaender.h"

#include "base/cText.h"
#include "windows/look/modWrapped.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

frmLaender::frmLaender(cNationalSettings& settings, QWidget* parent)
    : QDialog(parent),
      m_settings(settings),
      m_form(new QFormLayout(this))
{
    setWindowTitle(cText::Tr("Ländereinstellungen"));
    const cNationalSettings::cFields fields = m_settings.Current();
    m_language = AddChoice(cText::Tr("&Sprache:"), cNationalSettings::Languages(), fields.Language);
    m_format = AddChoice(cText::Tr("&Zahlen und Datum:"), cNationalSettings::Formats(), fields.Format);
    m_currency = AddChoice(cText::Tr("&Währung:"), cNationalSettings::Currencies(), fields.Currency);
    AddHint(cText::Tr("Eine Währung bringt ihre eigene Schreibweise der Beträge mit. Beträge werden nicht umgerechnet. "
                      "Was Sie eintippen, wird so gelesen, wie es hier steht."));
    m_amount = AddSample(cText::Tr("Betrag:"), "amount");
    m_negative = AddSample(cText::Tr("Negativer Betrag:"), "negative");
    m_date = AddSample(cText::Tr("Datum:"), "date");

    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(cText::Tr("Speichern"), QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(cText::Tr("Abbrechen"), QDialogButtonBox::RejectRole);
    m_form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &frmLaender::Save);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    ShowPreview();
}

QComboBox* frmLaender::AddChoice(const QString& label, const QList<cNationalSettings::cOption>& options,
                                 const QString& stored)
{
    auto* combo = new QComboBox(this);
    for (const cNationalSettings::cOption& option : options) {
        combo->addItem(option.Shown, option.Stored);
    }
    if (combo->findData(stored) < 0) {
        combo->addItem(stored, stored); // chosen elsewhere: saving must not change it
    }
    combo->setCurrentIndex(combo->findData(stored));
    m_form->addRow(label, combo);
    connect(combo, &QComboBox::currentIndexChanged, this, &frmLaender::ShowPreview);
    return combo;
}

QLabel* frmLaender::AddSample(const QString& label, const char* name)
{
    auto* sample = new QLabel(this);
    sample->setObjectName(QString::fromLatin1(name));
    sample->setTextFormat(Qt::PlainText);
    m_form->addRow(label, sample);
    return sample;
}

void frmLaender::AddHint(const QString& text)
{
    constexpr int columns = 48;
    m_form->addRow(QString(), modWrapped::Make(text, columns, this));
}

void frmLaender::ShowPreview()
{
    if (m_date == nullptr) {
        return; // still building
    }
    const cNationalSettings::cPreview preview = m_settings.Preview(Read());
    m_amount->setText(preview.Amount);
    m_negative->setText(preview.Negative);
    m_date->setText(preview.Date);
}

cNationalSettings::cFields frmLaender::Read() const
{
    return {m_language->currentData().toString(), m_format->currentData().toString(),
            m_currency->currentData().toString()};
}

void frmLaender::Save()
{
    if (m_settings.Save(Read())) {
        accept();
    }
}
