#include "windows/entry/frmKorrektur.h"

#include "base/cText.h"
#include "windows/widget/cAmountEdit.h"
#include "windows/widget/cDayEdit.h"
#include "windows/widget/modBadField.h"
#include "windows/widget/modPlace.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

namespace {

frmKorrektur::eTaken Taken(cSeriesChange::eSaved saved)
{
    switch (saved) {
    case cSeriesChange::eSaved::Saved: return frmKorrektur::eTaken::Done;
    case cSeriesChange::eSaved::BadAmount: return frmKorrektur::eTaken::BadAmount;
    case cSeriesChange::eSaved::BadDay: return frmKorrektur::eTaken::BadDay;
    case cSeriesChange::eSaved::Refused: break;
    }
    return frmKorrektur::eTaken::Refused;
}

frmKorrektur::cParts PartsFor(cSeriesChange& change, const cSeriesChange::cPeriodFields& fields)
{
    frmKorrektur::cParts parts;
    parts.Text = fields.Title;
    parts.Values = {.Day = fields.DayText, .Amount = fields.Amount, .Comment = fields.Comment};
    parts.Today = fields.Today;
    parts.IsAmountFirst = !fields.IsDayFirst;
    parts.Decimal = fields.Decimal;
    parts.AskToSave = [&change] { return change.AskToSave(); };
    parts.Take = [&change, fields](const frmKorrektur::cValues& values) {
        cSeriesChange::cPeriodFields typed = fields;
        typed.DayText = values.Day;
        typed.Amount = values.Amount;
        typed.Comment = values.Comment;
        return Taken(change.SavePeriod(typed));
    };
    if (fields.IsCorrected) {
        parts.Remove = [&change, fields] { return change.RemoveCorrection(fields.EntryId, fields.Day); };
    }
    return parts;
}

} // namespace

frmKorrektur::frmKorrektur(const cParts& parts, QWidget* parent)
    : QDialog(parent),
      m_parts(parts),
      m_day(new cDayEdit(parts.Today, this)),
      txtBetrag(new cAmountEdit([this] { return m_parts.Decimal; }, this)),
      txtKommentar(new QLineEdit(this)),
      m_message(new QLabel(this))
{
    setWindowTitle(cText::Tr("Diesen Zeitraum korrigieren"));
    m_day->setObjectName(QStringLiteral("txtTag"));
    txtBetrag->setObjectName(QStringLiteral("txtBetrag"));
    txtKommentar->setObjectName(QStringLiteral("txtKommentar"));
    m_message->setObjectName(QStringLiteral("message"));
    Build();
    m_day->setText(parts.Values.Day);
    txtBetrag->setText(parts.Values.Amount);
    txtKommentar->setText(parts.Values.Comment);
    m_shown = Read();
    txtBetrag->selectAll();
    m_day->selectAll();
    const bool isDayFirst = parts.Today.isValid() && !parts.IsAmountFirst;
    (isDayFirst ? static_cast<QWidget*>(m_day) : txtBetrag)->setFocus();
}

frmKorrektur::frmKorrektur(cSeriesChange& change, const cSeriesChange::cPeriodFields& fields, QWidget* parent)
    : frmKorrektur(PartsFor(change, fields), parent)
{
}

void frmKorrektur::Build()
{
    auto* layout = new QVBoxLayout(this);
    auto* text = new QLabel(m_parts.Text, this);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    layout->addWidget(text);
    auto* form = new QFormLayout;
    form->addRow(cText::Tr("&Datum:"), m_day);
    form->addRow(cText::Tr("&Betrag:"), txtBetrag);
    form->addRow(cText::Tr("&Kommentar:"), txtKommentar);
    form->setRowVisible(m_day, m_parts.Today.isValid());
    layout->addLayout(form);
    m_message->setWordWrap(true);
    m_message->hide();
    layout->addWidget(m_message);
    layout->addStrut(modPlace::WidthOfTitle(*this));
    BuildButtons(*layout);
}

void frmKorrektur::BuildButtons(QLayout& layout)
{
    auto* buttons = new QDialogButtonBox(this);
    QPushButton* save = buttons->addButton(cText::Tr("&Speichern"), QDialogButtonBox::AcceptRole);
    buttons->addButton(cText::Tr("Abbrechen"), QDialogButtonBox::RejectRole);
    save->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &frmKorrektur::Save);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    if (m_parts.Remove) {
        QPushButton* remove = buttons->addButton(cText::Tr("Korrektur &entfernen"), QDialogButtonBox::ResetRole);
        remove->setAutoDefault(false);
        connect(remove, &QPushButton::clicked, this, &frmKorrektur::Remove);
    }
    layout.addWidget(buttons);
}

frmKorrektur::cValues frmKorrektur::Read() const
{
    return {m_day->text(), txtBetrag->text(), txtKommentar->text()};
}

void frmKorrektur::reject()
{
    const eAnswer answer = Read() == m_shown ? eAnswer::No : m_parts.AskToSave();
    if (answer == eAnswer::Yes) {
        Save();
    } else if (answer == eAnswer::No) {
        QDialog::reject();
    }
}

void frmKorrektur::Save()
{
    const eTaken taken = m_parts.Take(Read());
    if (taken == eTaken::Done) {
        Q_EMIT CorrectionSaved();
        accept();
        return;
    }
    ShowFailure(taken);
}

void frmKorrektur::ShowFailure(eTaken taken)
{
    const bool isDay = taken == eTaken::BadDay || taken == eTaken::NoOccurrence;
    m_message->setText(taken == eTaken::NoOccurrence
                           ? cText::Tr("Im Zeitraum um diesen Tag gibt es keine Buchung der Serie.")
                           : taken == eTaken::BadAmount ? txtBetrag->Fault()
                                                        : QString());
    m_message->setVisible(!m_message->text().isEmpty());
    if (isDay || taken == eTaken::BadAmount) {
        QLineEdit& field = isDay ? static_cast<QLineEdit&>(*m_day) : *txtBetrag;
        modBadField::Mark(field);
        field.setFocus();
        field.selectAll();
    }
}

void frmKorrektur::Remove()
{
    if (m_parts.Remove()) {
        Q_EMIT CorrectionSaved();
        accept();
    }
}
