#include "windows/main/cViewBar.h"

#include "base/cText.h"
#include "model/modWord.h"
#include "views/main/cMainModel.h"
#include "windows/people/modPayerChoice.h"
#include "windows/widget/cDayEdit.h"
#include "windows/widget/cFieldGrid.h"
#include "windows/widget/modDayRange.h"
#include "windows/widget/modEmptyField.h"
#include "windows/widget/modProposal.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QSignalBlocker>

namespace {

constexpr int mostColumns = 3;   // of fields with their labels
constexpr int leastLetters = 10; // of a choice in a narrow window

QComboBox* MakeCombo(QWidget* parent, const cVocabulary& words)
{
    auto* combo = new QComboBox(parent);
    const QStringList stored = words.Stored();
    const QStringList shown = words.Shown();
    for (qsizetype i = 0; i < stored.size(); ++i) {
        combo->addItem(shown.at(i), stored.at(i));
    }
    return combo;
}

void Choose(QComboBox& combo, const QString& stored)
{
    const QSignalBlocker blocker(combo);
    combo.setCurrentIndex(combo.findData(stored));
}

} // namespace

cViewBar::cViewBar(cMainModel& model, QWidget* parent)
    : QWidget(parent),
      m_model(model),
      m_period(MakeCombo(this, modWord::Periods())),
      m_start(MakeDay(cText::Tr("Erster Tag des Zeitraums"))),
      m_end(MakeDay(cText::Tr("Letzter Tag des Zeitraums"))),
      m_account(new QComboBox(this)),
      m_type(MakeCombo(this, modWord::ViewTypes())),
      m_grouping(MakeCombo(this, modWord::Groupings())),
      m_payerLabel(new QLabel(cText::Tr("Bezahl&t von:"), this)),
      m_payer(new QComboBox(this)),
      m_filter(new QLineEdit(this))
{
    Build();
    Connect();
    for (auto* day : {m_start, m_end}) {
        ShowDay(*day, m_model.Today()); // until the view is restored
    }
}

cDayEdit* cViewBar::MakeDay(const QString& name)
{
    auto* edit = new cDayEdit(m_model.Today(), this);
    edit->setPlaceholderText(cText::Tr("offen"));
    edit->setAccessibleName(name);
    edit->setMinimumWidth(edit->sizeHint().width());
    return edit;
}

void cViewBar::Build()
{
    auto* grid = new cFieldGrid(mostColumns, this);
    grid->AddField(cText::Tr("&Zeitraum:"), m_period);
    grid->AddField(cText::Tr("&von:"), modDayRange::Make(*m_start, *m_end, this));
    grid->AddField(cText::Tr("B&uchungsart:"), m_type);
    grid->AddField(cText::Tr("&Konto:"), m_account);
    grid->AddField(cText::Tr("&Gruppierung:"), m_grouping);
    grid->AddField(m_payerLabel, m_payer);
    grid->AddField(cText::Tr("&Filter:"), m_filter);
    m_payerLabel->setBuddy(m_payer);
    m_filter->setClearButtonEnabled(true);
    m_filter->setToolTip(cText::Tr("Auch ein Schlagwort, etwa #urlaub"));
    modProposal::AddTags(*m_filter, [this] { return m_model.Tags(); });
    m_filter->setPlaceholderText(cText::Tr("Text, Kategorie oder Betrag"));
    modEmptyField::Tell(*m_filter);
    connect(new QShortcut(Qt::Key_Escape, m_filter, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated,
            m_filter, &QLineEdit::clear);
    for (QComboBox* box : {m_period, m_type, m_account, m_grouping, m_payer}) {
        box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        box->setMinimumContentsLength(leastLetters);
    }
    m_type->setMinimumContentsLength(13);   // all of its words
    m_account->setMinimumContentsLength(9); // both side by side in 800 pixels at 12 points
    const QList<QWidget*> order{m_period, m_start, m_end, m_type, m_account, m_grouping, m_payer, m_filter};
    for (qsizetype i = 1; i < order.size(); ++i) {
        setTabOrder(order.at(i - 1), order.at(i));
    }
}

void cViewBar::Connect()
{
    connect(m_period, &QComboBox::activated, this,
            [this] { m_model.ChoosePeriod(m_period->currentData().toString()); });
    connect(m_account, &QComboBox::activated, this,
            [this] { m_model.ChooseAccount(m_account->currentData().toString()); });
    connect(m_type, &QComboBox::activated, this, [this] { m_model.ChooseType(m_type->currentData().toString()); });
    connect(m_grouping, &QComboBox::activated, this,
            [this] { m_model.ChooseGrouping(m_grouping->currentData().toString()); });
    connect(m_payer, &QComboBox::activated, this, [this] { m_model.ChoosePayer(m_payer->currentData().toString()); });
    connect(m_filter, &QLineEdit::textChanged, &m_model, &cMainModel::TypeFilter);
    const auto chooseRange = [this] { m_model.ChooseFreeRange({m_start->Chosen(), m_end->Chosen()}); };
    connect(m_start, &cDayEdit::DayChosen, this, chooseRange);
    connect(m_end, &cDayEdit::DayChosen, this, chooseRange);
}

void cViewBar::ShowDay(cDayEdit& edit, QDate day)
{
    edit.SetDay(day);
    edit.SetReadOnly(!m_model.IsFreePeriod());
    if (edit.isReadOnly()) {
        edit.setToolTip(cText::Tr("Andere Tage wählen Sie mit dem Zeitraum \"Freier Zeitraum\"."));
    }
}

void cViewBar::ShowView()
{
    const cViewState& view = m_model.View();
    const modPeriod::cRange range = m_model.ShownRange();
    const QStringList accounts = m_model.Accounts();
    QSignalBlocker blocker(m_account);
    m_account->clear();
    for (const QString& account : accounts) {
        m_account->addItem(account == modWord::AlleKonten ? cText::Tr("Alle Konten") : account, account);
    }
    blocker.unblock();
    Choose(*m_period, view.Period);
    Choose(*m_account, view.Account);
    Choose(*m_type, view.Type);
    Choose(*m_grouping, view.Grouping);
    modPayerChoice::Offer(*m_payer, *m_payerLabel, m_model.People());
    Choose(*m_payer, view.Payer);
    ShowDay(*m_start, range.Start);
    ShowDay(*m_end, range.End);
    if (m_filter->text() != view.Filter) {
        m_filter->setText(view.Filter); // unblocked: its clear button listens too
    }
}
