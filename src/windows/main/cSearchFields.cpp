#include "windows/main/cSearchFields.h"

#include "base/cText.h"
#include "model/modWord.h"
#include "windows/people/modPayerChoice.h"
#include "windows/widget/cAmountEdit.h"
#include "windows/widget/cDayEdit.h"
#include "windows/widget/cFieldGrid.h"
#include "windows/widget/modBadField.h"
#include "windows/widget/modDayRange.h"
#include "windows/widget/modProposal.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QSignalBlocker>

#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int leastLetters = 12; // in sight of a name that is chosen

constexpr std::array<std::pair<cSearchModel::eAmountRule, const char*>, 4> amountRules{{
    {cSearchModel::eAmountRule::Exactly, QT_TRANSLATE_NOOP("cText", "genau")},
    {cSearchModel::eAmountRule::AtLeast, QT_TRANSLATE_NOOP("cText", "mindestens")},
    {cSearchModel::eAmountRule::AtMost, QT_TRANSLATE_NOOP("cText", "höchstens")},
    {cSearchModel::eAmountRule::Between, QT_TRANSLATE_NOOP("cText", "zwischen")},
}};

// Offers the words after one for no choice; what was chosen stays so if it is still there.
void Fill(QComboBox& combo, const QString& all, const QStringList& shown, const QStringList& stored)
{
    const QSignalBlocker blocker(combo);
    const QString chosen = combo.currentData().toString();
    combo.clear();
    combo.addItem(all, QString());
    for (qsizetype i = 0; i < stored.size(); ++i) {
        combo.addItem(shown.at(i), stored.at(i));
    }
    combo.setCurrentIndex(qMax(0, combo.findData(chosen)));
}

void Fill(QComboBox& combo, const QString& all, const QStringList& words)
{
    Fill(combo, all, words, words);
}

QStringList ShownPeriods(const QStringList& stored)
{
    QStringList shown;
    for (const QString& period : stored) {
        shown.append(modWord::Periods().ToShown(period));
    }
    return shown;
}

void MarkAmount(cAmountEdit& edit, const cSearchModel& model)
{
    if (!model.IsAmount(edit.text())) {
        modBadField::Mark(edit);
    }
}

} // namespace

cSearchFields::cSearchFields(const cSearchModel& model, QWidget* parent)
    : QWidget(parent),
      m_model(model),
      m_text(new QLineEdit(this)),
      m_amountRule(new QComboBox(this)),
      m_amount(new cAmountEdit([this] { return m_model.Decimal(); }, this)),
      m_amountToLabel(new QLabel(cText::Tr("un&d:"), this)),
      m_amountTo(new cAmountEdit([this] { return m_model.Decimal(); }, this)),
      m_period(new QComboBox(this)),
      m_start(new cDayEdit(model.Today(), this)),
      m_end(new cDayEdit(model.Today(), this)),
      m_account(new QComboBox(this)),
      m_type(new QComboBox(this)),
      m_category(new QComboBox(this)),
      m_payerLabel(new QLabel(cText::Tr("Bezahlt v&on:"), this)),
      m_payer(new QComboBox(this)),
      m_isCorrected(new QCheckBox(cText::Tr("Nur ko&rrigierte, verschobene"), this)),
      m_isFromBank(new QCheckBox(cText::Tr("Nur &mit Bankumsatz"), this))
{
    Build();
    Offer();
    Connect();
    ShowFields();
}

void cSearchFields::Build()
{
    m_text->setPlaceholderText(cText::Tr("Wörter, Teile von Wörtern, Betrag oder Datum"));
    m_text->setClearButtonEnabled(true);
    modProposal::AddTags(*m_text, [this] { return m_model.Tags(); });
    m_category->setEditable(true);
    m_category->setInsertPolicy(QComboBox::NoInsert);
    m_category->completer()->setFilterMode(Qt::MatchContains);
    m_category->completer()->setCompletionMode(QCompleter::PopupCompletion);
    m_start->setAccessibleName(cText::Tr("Erster Tag des Zeitraums"));
    m_end->setAccessibleName(cText::Tr("Letzter Tag des Zeitraums"));
    for (const auto& [combo, all] :
         {std::pair{m_category, cText::Tr("Alle Kategorien")}, std::pair{m_account, cText::Tr("Alle Konten")}}) {
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon); // long names must not widen it
        combo->setMinimumContentsLength(qMax(leastLetters, static_cast<int>(all.size())));
    }
    for (QComboBox* combo : {m_category, m_account, m_type, m_payer}) {
        combo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }
    constexpr int mostColumns = 2;
    auto* grid = new cFieldGrid(mostColumns, this);
    grid->AddField(cText::Tr("&Suchtext:"), m_text);
    grid->AddField(cText::Tr("Ka&tegorie:"), m_category);
    grid->AddField(cText::Tr("&Zeitraum:"), m_period);
    grid->AddField(cText::Tr("&von:"), modDayRange::Make(*m_start, *m_end, this));
    grid->AddField(cText::Tr("&Betrag:"), BuildAmount());
    grid->AddField(cText::Tr("&Konto:"), m_account);
    grid->AddField(cText::Tr("Buchungs&art:"), m_type);
    grid->AddField(m_payerLabel, m_payer);
    m_payerLabel->setBuddy(m_payer);
    grid->AddField(QString(), BuildMarks());
    const std::array<QWidget*, 13> order{m_text,       m_category,    m_period,    m_start,   m_end,
                                         m_amountRule, m_amount,      m_amountTo,  m_account, m_type,
                                         m_payer,      m_isCorrected, m_isFromBank};
    for (std::size_t i = 1; i < order.size(); ++i) {
        setTabOrder(order.at(i - 1), order.at(i));
    }
}

QWidget* cSearchFields::BuildAmount()
{
    for (const auto& [rule, word] : amountRules) {
        m_amountRule->addItem(cText::Tr(word), static_cast<int>(rule));
    }
    m_amount->setAccessibleName(cText::Tr("Gesuchter Betrag"));
    m_amountTo->setAccessibleName(cText::Tr("Größter gesuchter Betrag"));
    m_amountToLabel->setBuddy(m_amountTo);
    m_amount->setMinimumWidth(fontMetrics().averageCharWidth() * 14);
    m_amountTo->setMinimumWidth(m_amount->minimumWidth());
    auto* amounts = new QWidget(this);
    auto* row = new QHBoxLayout(amounts);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_amountRule);
    row->addWidget(m_amount, 1);
    row->addWidget(m_amountToLabel);
    row->addWidget(m_amountTo, 1);
    amounts->setFocusProxy(m_amountRule);
    amounts->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return amounts;
}

QWidget* cSearchFields::BuildMarks()
{
    auto* marks = new QWidget(this);
    auto* row = new QHBoxLayout(marks);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_isCorrected);
    row->addWidget(m_isFromBank);
    row->addStretch();
    return marks;
}

void cSearchFields::Connect()
{
    connect(m_text, &QLineEdit::textChanged, this, &cSearchFields::Typed);
    for (cAmountEdit* edit : {m_amount, m_amountTo}) {
        connect(edit, &QLineEdit::textChanged, this, &cSearchFields::Typed);
        connect(edit, &QLineEdit::editingFinished, this, [this, edit] { MarkAmount(*edit, m_model); });
    }
    for (cDayEdit* edit : {m_start, m_end}) {
        connect(edit, &QLineEdit::textEdited, this, &cSearchFields::Typed);
    }
    for (QComboBox* combo : {m_period, m_amountRule, m_account, m_type, m_category, m_payer}) {
        connect(combo, &QComboBox::currentIndexChanged, this, [this] {
            ShowFields();
            Q_EMIT Chosen();
        });
    }
    // What is typed and means no category leaves the choice as it was.
    connect(m_category->lineEdit(), &QLineEdit::editingFinished, this,
            [this] { m_category->setEditText(m_category->itemText(m_category->currentIndex())); });
    connect(m_isCorrected, &QCheckBox::toggled, this, &cSearchFields::Chosen);
    connect(m_isFromBank, &QCheckBox::toggled, this, &cSearchFields::Chosen);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down}) {
        connect(new QShortcut(key, m_text, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated, this,
                &cSearchFields::Left);
    }
}

void cSearchFields::Offer()
{
    const QStringList periods = m_model.Periods();
    const QStringList types = modWord::EntryTypes().Stored();
    Fill(*m_period, cText::Tr("Beliebig"), ShownPeriods(periods), periods);
    Fill(*m_account, cText::Tr("Alle Konten"), m_model.Accounts());
    Fill(*m_type, cText::Tr("Alle Buchungsarten"), modWord::EntryTypes().Shown(), types);
    Fill(*m_category, cText::Tr("Alle Kategorien"), m_model.Categories());
    modPayerChoice::Offer(*m_payer, *m_payerLabel, m_model.People());
}

cSearchModel::cFields cSearchFields::Read() const
{
    cSearchModel::cFields fields;
    fields.Text = m_text->text();
    fields.AmountRule = static_cast<cSearchModel::eAmountRule>(m_amountRule->currentData().toInt());
    fields.Amount = m_amount->text();
    fields.AmountTo = m_amountTo->isVisibleTo(this) ? m_amountTo->text() : QString();
    fields.Period = m_period->currentData().toString();
    fields.Free = {m_start->Day(), m_end->Day()};
    fields.Account = m_account->currentData().toString();
    fields.Type = m_type->currentData().toString();
    fields.Category = m_category->currentData().toString();
    fields.Payer = m_payer->currentData().toString();
    fields.IsCorrected = m_isCorrected->isChecked();
    fields.IsFromBank = m_isFromBank->isChecked();
    return fields;
}

void cSearchFields::ShowFields()
{
    const cSearchModel::cFields fields = Read();
    const bool isBetween = fields.AmountRule == cSearchModel::eAmountRule::Between;
    m_amountToLabel->setVisible(isBetween);
    m_amountTo->setVisible(isBetween);
    const bool isFree = cSearchModel::IsFreePeriod(fields);
    const modPeriod::cRange days = m_model.Days(fields);
    m_start->SetDay(days.Start);
    m_end->SetDay(days.End);
    m_start->setEnabled(isFree);
    m_end->setEnabled(isFree);
}

void cSearchFields::Clear()
{
    for (QLineEdit* edit : {m_text, static_cast<QLineEdit*>(m_amount), static_cast<QLineEdit*>(m_amountTo)}) {
        const QSignalBlocker blocker(edit);
        edit->clear();
        modBadField::Clear(*edit);
    }
    for (QComboBox* combo : {m_period, m_amountRule, m_account, m_type, m_category, m_payer}) {
        const QSignalBlocker blocker(combo);
        combo->setCurrentIndex(0);
    }
    for (QCheckBox* mark : {m_isCorrected, m_isFromBank}) {
        const QSignalBlocker blocker(mark);
        mark->setChecked(false);
    }
    ShowFields();
    Q_EMIT Chosen();
    StartTyping();
}

void cSearchFields::ShowText(const QString& text)
{
    m_text->setText(text);
    Q_EMIT Chosen();
}

void cSearchFields::StartTyping()
{
    m_text->setFocus();
    m_text->selectAll();
}
