#include "windows/main/frmMehrere.h"

#include "base/cText.h"
#include "model/modWord.h"
#include "windows/look/modWrapped.h"
#include "windows/widget/cCategoryBox.h"
#include "windows/widget/modBadField.h"
#include "windows/widget/modPlace.h"
#include "windows/widget/modProposal.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr int letters = 48; // in a line

QStringList Shown(const QStringList& types)
{
    QStringList shown;
    for (const QString& type : types) {
        shown.append(modWord::EntryTypes().ToShown(type));
    }
    return shown;
}

} // namespace

frmMehrere::frmMehrere(cManyChange& change, QWidget* parent)
    : QDialog(parent),
      m_change(change),
      m_form(new QFormLayout),
      cboKategorie(new cCategoryBox(change.Suggestions(), this)),
      cboKonto(MakeChoice(change.Accounts(), change.Accounts())),
      txtBeschreibung(new QLineEdit(this)),
      cboBuchungsart(MakeChoice(modWord::EntryTypes().Stored(), Shown(modWord::EntryTypes().Stored()))),
      cboNachKonto(MakeChoice(change.Accounts(), change.Accounts()))
{
    setWindowTitle(cText::Tr("Mehrere Einträge ändern"));
    cboKategorie->lineEdit()->setPlaceholderText(cText::Tr("unverändert"));
    txtBeschreibung->setPlaceholderText(cText::Tr("unverändert"));
    (void)modProposal::AddDescriptions(*txtBeschreibung, m_change.Suggestions());
    Build();
    connect(cboBuchungsart, &QComboBox::currentIndexChanged, this, &frmMehrere::ShowTarget);
    ShowTarget();
    cboKategorie->setFocus();
}

QComboBox* frmMehrere::MakeChoice(const QStringList& stored, const QStringList& shown)
{
    auto* box = new QComboBox(this);
    box->addItem(cText::Tr("unverändert"), QString());
    for (qsizetype i = 0; i < stored.size(); ++i) {
        box->addItem(shown.at(i), stored.at(i));
    }
    return box;
}

void frmMehrere::Build()
{
    m_form->addRow(cText::Tr("&Kategorie:"), cboKategorie);
    m_form->addRow(cText::Tr("K&onto:"), cboKonto);
    m_form->addRow(cText::Tr("B&eschreibung:"), txtBeschreibung);
    m_form->addRow(cText::Tr("Buchungs&art:"), cboBuchungsart);
    m_form->addRow(cText::Tr("&Nach Konto:"), cboNachKonto);
    m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    cboKategorie->setMinimumWidth(fontMetrics().averageCharWidth() * (letters - 14));
    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(cText::Tr("Än&dern"), QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(cText::Tr("Abbrechen"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &frmMehrere::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(modWrapped::Make(m_change.Summary(), letters, this));
    layout->addLayout(m_form);
    layout->addStretch();
    layout->addStrut(modPlace::WidthOfTitle(*this));
    layout->addWidget(buttons);
}

void frmMehrere::ShowTarget()
{
    const bool isShown = m_change.ShowsTarget(cboBuchungsart->currentData().toString());
    m_form->setRowVisible(cboNachKonto, isShown);
    if (!isShown) {
        cboNachKonto->setCurrentIndex(0);
    }
}

cManyFields frmMehrere::Read() const
{
    return {.Category = cboKategorie->Path(),
            .Account = cboKonto->currentData().toString(),
            .Description = txtBeschreibung->text().trimmed(),
            .Type = cboBuchungsart->currentData().toString(),
            .Target = cboNachKonto->currentData().toString()};
}

void frmMehrere::reject()
{
    const bool isTyped = Read() != cManyFields() || !cboKategorie->UnknownText().isEmpty();
    const eAnswer answer = isTyped ? m_change.AskToSave() : eAnswer::No;
    if (answer == eAnswer::Yes) {
        accept();
    } else if (answer == eAnswer::No) {
        QDialog::reject();
    }
}

void frmMehrere::accept()
{
    if (!cboKategorie->UnknownText().isEmpty() && !cboKategorie->AskNew()) {
        modBadField::Mark(*cboKategorie->lineEdit());
        cboKategorie->setFocus();
        return;
    }
    const cManyChange::eSaved saved = m_change.Save(Read());
    if (saved == cManyChange::eSaved::Saved) {
        QDialog::accept();
    } else if (saved == cManyChange::eSaved::BadTarget) {
        modBadField::Mark(*cboNachKonto);
        cboNachKonto->setFocus();
    }
}
