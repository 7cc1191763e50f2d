#include "windows/main/cViewBar.h"

#include "base/cText.h"
#include "model/modWord.h"
#include "views/main/cMainModel.h"

#include <QComboBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QSignalBlocker>

namespace {

// A day that no book holds stands for an open side of the period; the field then shows its special text.
const QDate openDay(1000, 1, 1);

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

QDateEdit* MakeDay(QWidget* parent, const QString& name)
{
    auto* edit = new QDateEdit(parent);
    edit->setDisplayFormat(QStringLiteral("dd.MM.yyyy"));
    edit->setCalendarPopup(true);
    edit->setKeyboardTracking(false);
    edit->setMinimumDate(openDay);
    edit->setSpecialValueText(cText::Tr("offen"));
    edit->setAccessibleName(name);
    return edit;
}

void Add(QGridLayout& grid, int row, int column, const QString& text, QWidget* field)
{
    auto* label = new QLabel(text, field->parentWidget());
    label->setBuddy(field);
    grid.addWidget(label, row, column);
    grid.addWidget(field, row, column + 1);
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
      m_start(MakeDay(this, cText::Tr("Erster Tag des Zeitraums"))),
      m_end(MakeDay(this, cText::Tr("Letzter Tag des Zeitraums"))),
      m_account(new QComboBox(this)),
      m_type(MakeCombo(this, modWord::ViewTypes())),
      m_grouping(MakeCombo(this, modWord::Groupings())),
      m_filter(new QLineEdit(this))
{
    Build();
    Connect();
    for (auto* day : {m_start, m_end}) {
        ShowDay(*day, m_model.Today()); // until the view is restored
    }
}

void cViewBar::Build()
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(8);
    Add(*grid, 0, 0, cText::Tr("&Zeitraum:"), m_period);
    Add(*grid, 0, 2, cText::Tr("&von:"), m_start);
    Add(*grid, 0, 4, cText::Tr("b&is:"), m_end);
    Add(*grid, 1, 0, cText::Tr("&Konto:"), m_account);
    Add(*grid, 1, 2, cText::Tr("B&uchungsart:"), m_type);
    Add(*grid, 1, 4, cText::Tr("&Gruppierung:"), m_grouping);
    auto* label = new QLabel(cText::Tr("&Filter:"), this);
    label->setBuddy(m_filter);
    grid->addWidget(label, 0, 6);
    grid->addWidget(m_filter, 1, 6);
    m_filter->setClearButtonEnabled(true);
    m_filter->setPlaceholderText(cText::Tr("Text, Kategorie oder Betrag"));
    connect(new QShortcut(Qt::Key_Escape, m_filter, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated,
            m_filter, &QLineEdit::clear);
    m_filter->setMinimumWidth(fontMetrics().averageCharWidth() * 14); // leaves room for the balances on a small screen
    m_account->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_account->setMinimumContentsLength(14);
    grid->setColumnStretch(6, 1);
    const QList<QWidget*> order{m_period, m_start, m_end, m_account, m_type, m_grouping, m_filter};
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
    connect(m_filter, &QLineEdit::textChanged, &m_model, &cMainModel::TypeFilter);
    const auto chooseRange = [this] { m_model.ChooseFreeRange({m_start->date(), m_end->date()}); };
    connect(m_start, &QDateEdit::dateChanged, this, chooseRange);
    connect(m_end, &QDateEdit::dateChanged, this, chooseRange);
}

void cViewBar::ShowDay(QDateEdit& edit, QDate day)
{
    const QSignalBlocker blocker(edit);
    edit.setDate(day.isValid() && day > openDay ? day : openDay);
    edit.setReadOnly(!m_model.IsFreePeriod());
    edit.setCalendarPopup(m_model.IsFreePeriod());
    edit.setButtonSymbols(m_model.IsFreePeriod() ? QDateEdit::UpDownArrows : QDateEdit::NoButtons);
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
    ShowDay(*m_start, range.Start);
    ShowDay(*m_end, range.End);
    if (m_filter->text() != view.Filter) {
        m_filter->setText(view.Filter); // unblocked: its clear button listens too
    }
}
