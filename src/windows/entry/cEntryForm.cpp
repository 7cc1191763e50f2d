#include "windows/entry/cEntryForm.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "model/modWord.h"
#include "windows/entry/cSplitPage.h"
#include "windows/entry/cSplitTable.h"
#include "windows/look/modIcon.h"
#include "windows/look/modTone.h"
#include "windows/receipt/cReceiptField.h"
#include "windows/widget/cAmountEdit.h"
#include "windows/widget/cCategoryBox.h"
#include "windows/widget/cDayEdit.h"
#include "windows/widget/cPickList.h"
#include "windows/widget/modBadField.h"
#include "windows/widget/modChoice.h"
#include "windows/widget/modProposal.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int mostTimes = 9'999;

void ShowDay(cDayEdit& edit, QDate day, const QString& typed)
{
    edit.setText(typed.isEmpty() ? modDate::ToText(day) : typed);
}

} // namespace

cEntryForm::cEntryForm(cEntryEditor& editor, const cEntryFields& fields, QWidget* parent)
    : QWidget(parent),
      m_editor(editor),
      m_fields(fields),
      m_form(new QFormLayout),
      m_startText(new QLabel(this)),
      m_amountRow(new QWidget(this)),
      txtBetrag(new cAmountEdit([this] { return m_fields.Decimal; }, m_amountRow, cAmountEdit::eEmpty::IsZero)),
      m_vat(new QLabel(m_amountRow)),
      cboKategorie(new cCategoryBox(editor.Suggestions(), this)),
      txtBeschreibung(new QLineEdit(this)),
      EntryDate(new cDayEdit(editor.Today(), this)),
      cboKonto(modChoice::Make(this, cText::Tr("bitte wählen"))),
      cboBuchungsart(modChoice::Make(this, cText::Tr("bitte wählen"))),
      cboNachKonto(modChoice::Make(this, cText::Tr("bitte wählen"))),
      cboBezahltVon(new QComboBox(this)),
      cboInterval(modChoice::Make(this, modWord::Intervals().ToShown(modWord::Einmalig))),
      m_seriesRow(new QWidget(this)),
      EntryDateCheck(new QCheckBox(cText::Tr("endet a&m"), m_seriesRow)),
      EntryDateEnd(new cDayEdit(editor.Today(), m_seriesRow)),
      m_times(new QSpinBox(m_seriesRow)),
      m_cancelBy(new cDayEdit(editor.Today(), this)),
      m_preview(new QLabel(this)),
      m_receipts(new cReceiptField(this)),
      m_split(new cSplitPage(
          editor, [this] { return Read(); }, this))
{
    Build();
    OrderTabs();
    Offer();
    Connect();
    Show(fields);
}

void cEntryForm::AddRow(const QString& text, QWidget* field)
{
    auto* label = new QLabel(text, this);
    label->setBuddy(field->focusProxy() != nullptr ? field->focusProxy() : field);
    m_form->addRow(label, field);
}

// A field that is no wider than what it holds.
void cEntryForm::AddShortRow(const QString& text, QWidget* field)
{
    field->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    AddRow(text, field);
}

void cEntryForm::Build()
{
    BuildAmount();
    BuildSeries();
    m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_form->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    const bool isStart = m_fields.Face == eEntryFace::StartBalance;
    if (isStart) {
        AddRow(cText::Tr("K&onto:"), cboKonto); // it says which balance the rest is about
    }
    AddShortRow(u'&' + m_editor.AmountLabel(), m_amountRow);
    AddRow(cText::Tr("&Kategorie:"), cboKategorie);
    AddRow(cText::Tr("B&eschreibung:"), txtBeschreibung);
    AddShortRow(cText::Tr("&Datum:"), EntryDate);
    if (!isStart) {
        AddRow(cText::Tr("K&onto:"), cboKonto);
    }
    AddRow(cText::Tr("Buchungs&art:"), cboBuchungsart);
    AddRow(cText::Tr("&Nach Konto:"), cboNachKonto);
    AddRow(cText::Tr("Bezah&lt von:"), cboBezahltVon);
    AddRow(cText::Tr("&Intervall:"), cboInterval);
    m_form->addRow(QString(), m_seriesRow);
    m_form->addRow(QString(), m_preview);
    AddShortRow(cText::Tr("Kündba&r bis:"), m_cancelBy);
    AddRow(cText::Tr("Belege:"), m_receipts);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, layout->spacing(), 0, 0); // in line with the buttons below
    layout->addWidget(m_startText);
    layout->addLayout(m_form);
    layout->addWidget(m_split, 1);
    layout->addStretch(0);
    m_startText->setWordWrap(true);
    txtBeschreibung->setMinimumWidth(fontMetrics().averageCharWidth() * 40);
}

void cEntryForm::BuildAmount()
{
    auto* calculator = new QToolButton(m_amountRow);
    calculator->setIcon(modIcon::Get(u"rechner"_s));
    calculator->setToolTip(cText::Tr("Taschenrechner starten (Strg+R)"));
    calculator->setAccessibleName(cText::Tr("Taschenrechner"));
    calculator->setFocusPolicy(Qt::NoFocus); // the way from the amount to the category stays short
    calculator->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_R));
    connect(calculator, &QToolButton::clicked, this, &cEntryForm::CalculatorRequested);
    auto* row = new QHBoxLayout(m_amountRow);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(txtBetrag);
    row->addWidget(calculator);
    row->addWidget(m_vat);
    m_vat->setObjectName(u"lblMwSt"_s);
    txtBetrag->setMinimumWidth(fontMetrics().averageCharWidth() * 22);
    txtBetrag->setAccessibleName(m_editor.AmountLabel());
    txtBetrag->setToolTip(cText::Tr("Auch eine Rechnung, etwa 12,50+3,99*2"));
    m_amountRow->setFocusProxy(txtBetrag);
}

void cEntryForm::BuildSeries()
{
    auto* row = new QHBoxLayout(m_seriesRow);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(EntryDateCheck);
    row->addWidget(EntryDateEnd);
    row->addWidget(m_times);
    row->addStretch(1);
    m_times->setRange(0, mostTimes);
    m_times->setPrefix(cText::Tr("nach "));
    m_times->setSuffix(cText::Tr(" Mal"));
    m_times->setSpecialValueText(cText::Tr("nach … Mal"));
    m_times->setAccessibleName(cText::Tr("Zahl der Termine"));
    m_times->setToolTip(cText::Tr("Wie oft die Serie stattfindet, zum Beispiel die Zahl der Raten"));
    EntryDateEnd->setAccessibleName(cText::Tr("Letzter Tag der Serie"));
    m_cancelBy->setPlaceholderText(cText::Tr("kein Vertrag"));
    m_cancelBy->setToolTip(cText::Tr("Der letzte Tag, an dem Sie diesen Vertrag kündigen können; das Programm erinnert "
                                     "vorher daran"));
    m_preview->setObjectName(u"lblVorschau"_s);
    for (QLabel* label : {m_preview, m_vat}) {
        modTone::Use(*label, modTone::Quiet);
    }
}

void cEntryForm::OrderTabs()
{
    const QList<std::pair<QWidget*, QString>> named{{txtBetrag, u"txtBetrag"_s},
                                                    {cboKategorie, u"cboKategorie"_s},
                                                    {txtBeschreibung, u"txtBeschreibung"_s},
                                                    {EntryDate, u"EntryDate"_s},
                                                    {cboKonto, u"cboKonto"_s},
                                                    {cboBuchungsart, u"cboBuchungsart"_s},
                                                    {cboNachKonto, u"cboNachKonto"_s},
                                                    {cboBezahltVon, u"cboBezahltVon"_s},
                                                    {cboInterval, u"cboInterval"_s},
                                                    {EntryDateCheck, u"EntryDateCheck"_s},
                                                    {EntryDateEnd, u"EntryDateEnd"_s},
                                                    {m_times, u"txtTermine"_s},
                                                    {m_cancelBy, u"txtKuendbar"_s}};
    for (qsizetype i = 0; i < named.size(); ++i) {
        named.at(i).first->setObjectName(named.at(i).second);
        if (i > 0) {
            setTabOrder(named.at(i - 1).first, named.at(i).first);
        }
    }
    setTabOrder(m_cancelBy, m_receipts);
    setTabOrder(m_receipts, m_split);
    if (m_fields.Face == eEntryFace::StartBalance) {
        setTabOrder(cboKonto, txtBetrag);
        setTabOrder(txtBetrag, txtBeschreibung);
    }
}

void cEntryForm::Offer()
{
    const QStringList accounts = m_editor.Accounts();
    for (const QString& account : accounts) {
        cboKonto->addItem(account, account);
        cboNachKonto->addItem(account, account);
    }
    modChoice::AddWords(*cboBuchungsart, modWord::EntryTypes());
    modChoice::AddWords(*cboInterval, modWord::Intervals());
}

void cEntryForm::Connect()
{
    connect(m_receipts, &cReceiptField::ChooseRequested, this, [this] { AddReceipts(m_editor.ChooseReceipts()); });
    connect(m_receipts, &cReceiptField::Added, this, &cEntryForm::AddReceipts);
    connect(m_receipts, &cReceiptField::ClearRequested, this, [this] {
        m_fields.NewReceipts.clear();
        ShowReceipts();
    });
    connect(txtBetrag, &QLineEdit::textEdited, this, [this] { m_fields.IsAmountTyped = true; });
    connect(txtBetrag, &QLineEdit::textChanged, this, &cEntryForm::ShowAmount);
    connect(m_split, &cSplitPage::DefaultsTaken, this, &cEntryForm::TakeDefaults);
    connect(cboKategorie, &cCategoryBox::PathPicked, this, &cEntryForm::ChooseCategory);
    cPickList* descriptions = modProposal::AddDescriptions(*txtBeschreibung, m_editor.Suggestions());
    connect(descriptions, &cPickList::Picked, this, &cEntryForm::ChooseDescription);
    connect(cboKonto, &QComboBox::activated, this, &cEntryForm::ChooseAccount);
    connect(cboBuchungsart, &QComboBox::currentIndexChanged, this, &cEntryForm::ShowTarget);
    connect(cboBuchungsart, &QComboBox::activated, this, [this] { m_fields.BroughtType.clear(); });
    connect(cboInterval, &QComboBox::activated, this, [this] { m_fields.BroughtInterval.clear(); });
    connect(EntryDateCheck, &QCheckBox::toggled, EntryDateEnd, &QWidget::setEnabled);
    connect(EntryDateCheck, &QCheckBox::toggled, this, &cEntryForm::ShowSeries);
    connect(cboInterval, &QComboBox::currentIndexChanged, this, &cEntryForm::ShowSeries);
    connect(EntryDate, &QLineEdit::textChanged, this, &cEntryForm::ShowSeries);
    connect(EntryDateEnd, &QLineEdit::textChanged, this, &cEntryForm::ShowSeries);
    connect(m_times, &QSpinBox::valueChanged, this, &cEntryForm::EndAfter);
}

void cEntryForm::OfferPayers(const cEntryFields& fields)
{
    const QStringList payers = m_editor.Payers(fields);
    cboBezahltVon->clear();
    cboBezahltVon->addItem(cText::Tr("niemand Bestimmtem"), QString());
    for (const QString& payer : payers) {
        cboBezahltVon->addItem(payer, payer);
    }
    cboBezahltVon->setCurrentIndex(cboBezahltVon->findData(fields.Payer));
}

void cEntryForm::Show(const cEntryFields& fields)
{
    m_fields = fields;
    txtBetrag->setText(fields.Amount);
    cboKategorie->SetPath(fields.Category, fields.CategoryText);
    txtBeschreibung->setText(fields.Description);
    txtBeschreibung->setCursorPosition(0); // a long one is seen from its beginning
    ShowDay(*EntryDate, fields.Date, fields.DateText);
    EntryDate->setPlaceholderText(fields.IsDayKept ? cText::Tr("nicht lesbar") : QString());
    modChoice::Choose(*cboKonto, fields.Account);
    modChoice::Choose(*cboBuchungsart, fields.Type);
    modChoice::Choose(*cboNachKonto, fields.Target);
    OfferPayers(fields);
    modChoice::Choose(*cboInterval, fields.Interval);
    EntryDateCheck->setChecked(fields.HasEnd);
    EntryDateEnd->setEnabled(fields.HasEnd);
    ShowDay(*EntryDateEnd, fields.HasEnd ? fields.End : fields.Date.addYears(1), fields.EndText);
    ShowDay(*m_cancelBy, fields.CancelBy, fields.CancelByText);
    ShowFace();
    m_split->ShowParts(fields);
    Q_EMIT CorrectionsChanged();
}

cEntryFields cEntryForm::Read() const
{
    cEntryFields fields = m_fields;
    fields.Amount = txtBetrag->text();
    fields.Category = cboKategorie->Path();
    fields.CategoryText = cboKategorie->UnknownText();
    fields.Description = txtBeschreibung->text();
    fields.Date = EntryDate->Day();
    fields.DateText = EntryDate->text();
    fields.Account = cboKonto->currentData().toString();
    fields.Type = cboBuchungsart->currentData().toString();
    fields.Target = cboNachKonto->currentData().toString();
    fields.Payer = cboBezahltVon->currentData().toString();
    fields.Interval = cboInterval->currentData().toString();
    fields.HasEnd = EntryDateCheck->isChecked();
    fields.End = fields.HasEnd ? EntryDateEnd->Day() : QDate();
    fields.EndText = fields.HasEnd ? EntryDateEnd->text() : QString();
    fields.CancelBy = m_cancelBy->Day();
    fields.CancelByText = m_cancelBy->text();
    if (fields.Face == eEntryFace::Split) {
        fields.Parts = m_split->Table().Parts();
    }
    return fields;
}

void cEntryForm::Settle()
{
    m_split->Table().Commit();
    cboKategorie->Settle();
    txtBetrag->Evaluate();
}

void cEntryForm::SetCorrections(const cEntryItemFixModList& corrections)
{
    m_fields.Corrections = corrections;
    Q_EMIT CorrectionsChanged();
}

void cEntryForm::ShowFace()
{
    const eEntryFace face = m_fields.Face;
    m_startText->setVisible(face == eEntryFace::StartBalance);
    m_startText->setText(face == eEntryFace::StartBalance ? m_editor.StartBalanceText(m_fields.Account) : QString());
    m_form->setRowVisible(cboKategorie, face == eEntryFace::Normal);
    m_form->setRowVisible(txtBeschreibung, face == eEntryFace::Normal); // a start balance has one of its own
    m_form->setRowVisible(cboBuchungsart, face != eEntryFace::StartBalance);
    m_form->setRowVisible(cboInterval, face != eEntryFace::StartBalance);
    // A book of one person has nobody to choose from.
    m_form->setRowVisible(cboBezahltVon, face != eEntryFace::StartBalance && cboBezahltVon->count() > 1);
    m_split->setVisible(face == eEntryFace::Split);
    m_form->setRowVisible(m_receipts, face != eEntryFace::StartBalance);
    ShowTarget();
    ShowSeries();
    ShowReceipts();
}

void cEntryForm::ShowReceipts()
{
    m_receipts->ShowText(m_editor.ReceiptText(m_fields));
    m_receipts->SetNewCount(m_fields.NewReceipts.size());
}

void cEntryForm::AddReceipts(const QList<cReceiptSource>& sources)
{
    m_fields.NewReceipts.append(sources);
    ShowReceipts();
}

void cEntryForm::ShowTarget()
{
    const cEntryFields fields = Read();
    m_form->setRowVisible(cboNachKonto, cEntryEditor::ShowsTarget(fields));
    cboKategorie->SetType(cEntryEditor::ChosenType(fields));
    m_split->Table().SetType(cEntryEditor::ChosenType(fields));
    m_vat->setText(m_editor.VatText(fields));
}

// What is said of the amount: in one face its VAT, in the other what the parts leave of it.
void cEntryForm::ShowAmount()
{
    const cEntryFields fields = Read();
    m_vat->setText(m_editor.VatText(fields));
    m_split->ShowRest(fields);
}

void cEntryForm::ShowSeries()
{
    const cEntryFields fields = Read();
    const bool isSeries = cEntryEditor::ShowsSeries(fields);
    m_form->setRowVisible(m_seriesRow, isSeries);
    m_form->setRowVisible(m_preview, isSeries);
    m_form->setRowVisible(m_cancelBy, isSeries);
    const cEntryEditor::cPreview preview = m_editor.Preview(fields);
    m_preview->setText(isSeries ? preview.Text : QString());
    const QSignalBlocker quiet(m_times);
    m_times->setValue(fields.HasEnd && preview.Count <= mostTimes ? preview.Count : 0);
}

// The day tells, the number follows it: also back to what it was when there are not so many.
void cEntryForm::EndAfter(int count)
{
    const QDate end = count == 0 ? QDate() : m_editor.EndAfter(Read(), count);
    EntryDateCheck->setChecked(count > 0 && (end.isValid() || EntryDateCheck->isChecked()));
    if (end.isValid()) {
        EntryDateEnd->setText(modDate::ToText(end));
    }
    ShowSeries();
}

void cEntryForm::ChooseCategory(const QString& path)
{
    cEntryFields fields = Read();
    m_editor.ChooseCategory(path, fields);
    Show(fields);
}

// What a part brings for the whole; the other fields stay as they are being typed.
void cEntryForm::TakeDefaults(const cEntryFields& fields)
{
    m_fields.BroughtType = fields.BroughtType;
    m_fields.BroughtInterval = fields.BroughtInterval;
    modChoice::Choose(*cboBuchungsart, fields.Type);
    modChoice::Choose(*cboInterval, fields.Interval);
}

void cEntryForm::ChooseDescription(const QString& text)
{
    cEntryFields fields = Read();
    m_editor.ChooseDescription(text, fields);
    Show(fields);
}

void cEntryForm::ChooseAccount()
{
    cEntryFields fields = Read();
    m_editor.ChooseAccount(fields.Account, fields);
    Show(fields);
}

void cEntryForm::FocusFirst()
{
    txtBetrag->setFocus();
    txtBetrag->selectAll();
}

void cEntryForm::FocusNext()
{
    if (m_fields.Face == eEntryFace::Split) {
        m_split->Table().FocusOpen();
    } else {
        FocusFirst();
    }
}

void cEntryForm::FocusOpen()
{
    if (cboKategorie->isVisible() && cboKategorie->Path().isEmpty()) {
        cboKategorie->setFocus(); // whatever was typed there names no category
        cboKategorie->lineEdit()->selectAll();
        return;
    }
    const QList<QComboBox*> boxes{cboBuchungsart, cboKonto, cboNachKonto};
    for (QComboBox* box : boxes) {
        if (box->isVisible() && box->currentText().isEmpty()) {
            box->setFocus();
            return;
        }
    }
}

void cEntryForm::ShowFailure(cEntryEditor::eSaved saved)
{
    QLineEdit* field = nullptr;
    switch (saved) {
    case cEntryEditor::eSaved::BadAmount: field = txtBetrag; break;
    case cEntryEditor::eSaved::BadDate: field = EntryDate; break;
    case cEntryEditor::eSaved::BadEnd: field = EntryDateEnd; break;
    case cEntryEditor::eSaved::BadCancelBy: field = m_cancelBy; break;
    case cEntryEditor::eSaved::BadPart: m_split->ShowBadPart(); return;
    case cEntryEditor::eSaved::BadTarget:
        modBadField::Mark(*cboNachKonto);
        cboNachKonto->setFocus();
        return;
    case cEntryEditor::eSaved::Refused: FocusOpen(); return;
    case cEntryEditor::eSaved::Saved: return;
    }
    modBadField::Mark(*field, field == txtBetrag ? txtBetrag->Fault() : QString());
    field->setFocus();
    field->selectAll();
}
