#include "windows/frmBuchung.h"

#include "base/cText.h"
#include "model/modWord.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

// Light red behind an amount that is no number; the text on it is dark in every theme.
const QColor badAmount(245, 160, 160);

void AddWords(QComboBox& combo, const cVocabulary& words)
{
    const QStringList stored = words.Stored();
    for (const QString& word : stored) {
        combo.addItem(words.ToShown(word), word);
    }
}

// Chooses a stored text; one that is not offered (an account that was deleted, say) is offered as well, so that saving
// does not change it.
void Choose(QComboBox& combo, const QString& stored)
{
    if (!stored.isEmpty() && combo.findData(stored) < 0) {
        combo.addItem(stored, stored);
    }
    combo.setCurrentIndex(combo.findData(stored));
}

QDateEdit* MakeDay(QWidget* parent)
{
    auto* edit = new QDateEdit(parent);
    edit->setCalendarPopup(true);
    edit->setDisplayFormat(QStringLiteral("dd.MM.yyyy"));
    return edit;
}

} // namespace

frmBuchung::frmBuchung(cEntryEditor& editor, const cEntryEditor::cFields& fields, QWidget* parent)
    : QDialog(parent),
      m_editor(editor),
      m_fields(fields),
      txtBetrag(new QLineEdit(this)),
      txtBeschreibung(new QLineEdit(this)),
      cboKategorie(new QComboBox(this)),
      cboBuchungsart(new QComboBox(this)),
      cboKonto(new QComboBox(this)),
      cboNachKonto(new QComboBox(this)),
      lblNachKonto(new QLabel(cText::Tr("&Nach Konto:"), this)),
      EntryDate(MakeDay(this)),
      EntryDateCheck(new QCheckBox(cText::Tr("&endet am"), this)),
      EntryDateEnd(MakeDay(this)),
      cboInterval(new QComboBox(this)),
      chkCloseDialog(new QCheckBox(cText::Tr("Nach dem Speichern &schließen"), this))
{
    setWindowTitle(m_editor.IsNew() ? cText::Tr("Neuer Eintrag") : cText::Tr("Eintrag bearbeiten"));
    Build();
    Offer();
    ShowFields();
    Connect();
    txtBetrag->selectAll();
    txtBetrag->setFocus();
}

void frmBuchung::Build()
{
    auto* form = new QFormLayout(this);
    form->addRow(cText::Tr("&Betrag (€):"), txtBetrag);
    form->addRow(cText::Tr("&Kategorie:"), cboKategorie);
    form->addRow(cText::Tr("Buchungs&art:"), cboBuchungsart);
    form->addRow(cText::Tr("K&onto:"), cboKonto);
    lblNachKonto->setBuddy(cboNachKonto);
    form->addRow(lblNachKonto, cboNachKonto);
    form->addRow(cText::Tr("&Datum:"), EntryDate);
    form->addRow(cText::Tr("&Intervall:"), cboInterval);
    form->addRow(EntryDateCheck, EntryDateEnd);
    form->addRow(cText::Tr("Besch&reibung:"), txtBeschreibung);
    chkCloseDialog->setChecked(true);
    chkCloseDialog->setVisible(m_editor.IsNew());
    form->addRow(QString(), chkCloseDialog);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel, this);
    form->addRow(buttons);
    buttons->button(QDialogButtonBox::Save)->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &frmBuchung::Save);
    connect(buttons, &QDialogButtonBox::rejected, this, &frmBuchung::reject);
    txtBetrag->setAlignment(Qt::AlignRight);
    txtBeschreibung->setMinimumWidth(fontMetrics().averageCharWidth() * 44);
    EntryDateEnd->setAccessibleName(cText::Tr("Letzter Tag der Serie"));
    cboKategorie->setEditable(true);
    cboKategorie->setInsertPolicy(QComboBox::NoInsert);
    cboKategorie->completer()->setFilterMode(Qt::MatchContains);
    cboKategorie->completer()->setCompletionMode(QCompleter::PopupCompletion);
}

void frmBuchung::Offer()
{
    const QStringList categories = m_editor.Categories();
    for (const QString& path : categories) {
        cboKategorie->addItem(path, path);
    }
    const QStringList accounts = m_editor.Accounts();
    for (const QString& account : accounts) {
        cboKonto->addItem(account, account);
        cboNachKonto->addItem(account, account);
    }
    AddWords(*cboBuchungsart, modWord::EntryTypes());
    AddWords(*cboInterval, modWord::Intervals());
}

void frmBuchung::ShowFields()
{
    txtBetrag->setText(m_fields.Amount);
    txtBeschreibung->setText(m_fields.Description);
    Choose(*cboKategorie, m_fields.Category);
    Choose(*cboBuchungsart, m_fields.Type);
    Choose(*cboKonto, m_fields.Account);
    Choose(*cboNachKonto, m_fields.Target);
    Choose(*cboInterval, m_fields.Interval);
    EntryDate->setDate(m_fields.Date);
    EntryDateCheck->setChecked(m_fields.HasEnd);
    EntryDateEnd->setDate(m_fields.HasEnd ? m_fields.End : m_fields.Date.addYears(1));
    EntryDateEnd->setEnabled(m_fields.HasEnd);
    ShowTransfer();
}

void frmBuchung::Connect()
{
    connect(txtBetrag, &QLineEdit::textEdited, this, [this] {
        m_fields.IsAmountTyped = true;
        txtBetrag->setPalette(palette());
    });
    connect(cboKategorie, &QComboBox::activated, this, &frmBuchung::ChooseCategory);
    connect(cboKategorie->lineEdit(), &QLineEdit::editingFinished, this, &frmBuchung::ChooseCategory);
    connect(cboBuchungsart, &QComboBox::currentIndexChanged, this, &frmBuchung::ShowTransfer);
    connect(EntryDateCheck, &QCheckBox::toggled, EntryDateEnd, &QWidget::setEnabled);
}

void frmBuchung::ShowTransfer()
{
    const bool isTransfer = cboBuchungsart->currentData().toString() == modWord::Umbuchung;
    lblNachKonto->setVisible(isTransfer);
    cboNachKonto->setVisible(isTransfer);
}

cEntryEditor::cFields frmBuchung::Read() const
{
    cEntryEditor::cFields fields = m_fields;
    const int category = cboKategorie->findText(cboKategorie->currentText());
    fields.Amount = txtBetrag->text();
    fields.Description = txtBeschreibung->text();
    fields.Category = category < 0 ? QString() : cboKategorie->itemData(category).toString();
    fields.Type = cboBuchungsart->currentData().toString();
    fields.Account = cboKonto->currentData().toString();
    fields.Target = cboNachKonto->currentData().toString();
    fields.Date = EntryDate->date();
    fields.HasEnd = EntryDateCheck->isChecked();
    fields.End = EntryDateEnd->date();
    fields.Interval = cboInterval->currentData().toString();
    return fields;
}

void frmBuchung::ChooseCategory()
{
    const cEntryEditor::cFields read = Read();
    if (read.Category != m_fields.Category) {
        m_fields = read;
        m_editor.ChooseCategory(read.Category, m_fields);
        ShowFields();
    }
}

void frmBuchung::Save()
{
    const cEntryEditor::eSaved saved = m_editor.Save(Read());
    if (saved == cEntryEditor::eSaved::BadAmount) {
        QPalette colors = txtBetrag->palette();
        colors.setColor(QPalette::Base, badAmount);
        colors.setColor(QPalette::Text, Qt::black);
        txtBetrag->setPalette(colors);
        txtBetrag->setFocus();
        return;
    }
    if (saved == cEntryEditor::eSaved::Refused) {
        return;
    }
    Q_EMIT EntrySaved();
    if (chkCloseDialog->isChecked() || !m_editor.IsNew()) {
        accept();
        return;
    }
    m_fields = Read();
    m_fields.Description.clear();
    m_fields.Category.clear();
    m_fields.IsAmountTyped = false;
    ShowFields();
    txtBetrag->selectAll();
    txtBetrag->setFocus();
}
