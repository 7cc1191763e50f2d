#include "views/budget/cBudgetEdit.h"

#include "base/cText.h"
#include "base/modAmount.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "model/modRecurrence.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/budget/modLimits.h"

#include <algorithm>

using modBudget::MonthOf;
using modBudget::MonthsOfYear;

cBudgetEdit::cBudgetEdit(const cBookTools& tools, int year) : m_tools(tools), m_year(year)
{
    const cTemplateItemList items = modTemplate::InOrder(m_tools.Data.GetTemplates());
    for (const cTemplateItem& item : items) {
        const QString path = modTemplate::Path(item);
        const int known = RowOf(path);
        if (!modBudget::IsLimitable(item)) {
            continue;
        }
        if (known < 0) {
            const cBudget budget = modLimits::BudgetOf(m_tools.Settings, path);
            m_rows.append({item, path, budget, item, budget});
        } else if (modTemplate::LimitCents(m_rows.at(known).Item, 1) == 0) { // as cLimits chooses between them
            m_rows[known].Item = item;
            m_rows[known].StoredItem = item;
        }
    }
    Read();
}

void cBudgetEdit::ShowYear(int year)
{
    m_year = year;
    Read();
}

void cBudgetEdit::Read()
{
    Reckon();
    const QDate from = m_limits.CarriesFrom();
    cEntryQuery query;
    query.Start = MonthOf(m_year - 1, 1);
    query.Start = from.isValid() ? std::min(from, query.Start) : query.Start;
    query.End = QDate(m_year, MonthsOfYear, 31);
    m_spent = modBudget::Spent(m_tools.Data.GetEntries(query));
    m_isRead = m_tools.Data.IsWhole();
    Reckon();
}

void cBudgetEdit::Reckon()
{
    m_limits = {};
    for (const cRow& row : std::as_const(m_rows)) {
        m_limits.Add(row.Item, row.Budget);
    }
    m_limits.SetSpent(m_spent);
}

bool cBudgetEdit::IsShown(int row) const
{
    const cRow& one = m_rows.at(row);
    return modTemplate::IsVisible(one.Item) || modTemplate::LimitCents(one.Item, MonthsOfYear) > 0
        || !one.Budget.Months.isEmpty() || m_spent.contains(modBudget::KeyOf(one.Path));
}

int cBudgetEdit::RowOf(const QString& path) const
{
    const auto found = std::find_if(m_rows.begin(), m_rows.end(), [&](const cRow& row) { return row.Path == path; });
    return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

std::optional<qint64> cBudgetEdit::Own(int row, int month) const
{
    const QMap<QDate, qint64>& months = m_rows.at(row).Budget.Months;
    const auto own = months.constFind(MonthOf(m_year, month));
    return own == months.constEnd() ? std::nullopt : std::optional(*own);
}

qint64 cBudgetEdit::Limit(int row, int month) const
{
    return modBudget::OwnCents(m_rows.at(row).Item, m_rows.at(row).Budget, MonthOf(m_year, month), 1);
}

qint64 cBudgetEdit::YearLimit(int row) const
{
    return modBudget::OwnCents(m_rows.at(row).Item, m_rows.at(row).Budget, MonthOf(m_year, 1), MonthsOfYear);
}

QDate cBudgetEdit::CarriesFrom(int row) const
{
    return m_limits.CarriesFrom(modBudget::KeyOf(m_rows.at(row).Path));
}

std::optional<cLimit> cBudgetEdit::Available(int row, int month) const
{
    return m_limits.Of(modBudget::KeyOf(m_rows.at(row).Path), MonthOf(m_year, month), 1);
}

qint64 cBudgetEdit::Spent(int row, int month) const
{
    return SpentIn(row, m_year, month);
}

qint64 cBudgetEdit::SpentIn(int row, int year, int month) const
{
    return m_spent.value(modBudget::KeyOf(m_rows.at(row).Path)).value(MonthOf(year, month));
}

void cBudgetEdit::SetMonth(int row, int month, std::optional<qint64> cents)
{
    QMap<QDate, qint64>& months = m_rows[row].Budget.Months;
    if (cents) {
        months.insert(MonthOf(m_year, month), *cents);
    } else {
        months.remove(MonthOf(m_year, month));
    }
    Reckon();
}

void cBudgetEdit::SpreadYear(int row, std::optional<qint64> cents)
{
    const QList<qint64> parts = modBudget::Spread(cents.value_or(0));
    for (int month = 1; month <= MonthsOfYear; ++month) {
        SetMonth(row, month, cents ? std::optional(parts.at(month - 1)) : std::nullopt);
    }
}

void cBudgetEdit::KeepYearIn(int row, int month)
{
    const qint64 cents = YearLimit(row);
    for (int other = 1; other <= MonthsOfYear; ++other) {
        SetMonth(row, other, other == month ? cents : 0);
    }
}

void cBudgetEdit::SetCarriesOver(int row, bool isOn)
{
    m_rows[row].Budget.CarriesFrom = isOn ? MonthOf(m_year, 1) : QDate();
    Reckon();
}

bool cBudgetEdit::CanSetPlain(int row) const
{
    return !modRecurrence::IsRecurring(m_rows.at(row).Item.EntryInterval);
}

void cBudgetEdit::SetPlain(int row, std::optional<qint64> cents)
{
    if (CanSetPlain(row) && cents.value_or(0) != modTemplate::DefaultValueCents(m_rows.at(row).Item)) {
        m_rows[row].Item.TemplateDefaultValue = cents.value_or(0) == 0 ? QString() : modAmount::CentsToText(*cents);
        Reckon();
    }
}

int cBudgetEdit::TakeLastYear()
{
    int count = 0;
    for (int row = 0; row < m_rows.size(); ++row) {
        QList<qint64> spent;
        for (int month = 1; month <= MonthsOfYear; ++month) {
            spent.append(std::max<qint64>(0, SpentIn(row, m_year - 1, month)));
        }
        if (std::all_of(spent.begin(), spent.end(), [](qint64 cents) { return cents == 0; })) {
            continue;
        }
        ++count;
        for (int month = 1; month <= MonthsOfYear; ++month) {
            SetMonth(row, month, spent.at(month - 1));
        }
    }
    return count;
}

bool cBudgetEdit::IsChanged() const
{
    return std::any_of(m_rows.begin(), m_rows.end(),
                       [](const cRow& row) { return row.Item != row.StoredItem || row.Budget != row.StoredBudget; });
}

QString cBudgetEdit::StepName() const
{
    QStringList paths;
    for (const cRow& row : m_rows) {
        if (row.Item != row.StoredItem || row.Budget != row.StoredBudget) {
            paths.append(row.Path);
        }
    }
    return paths.size() == 1 ? cText::Tr("Budget von '{0}' geändert", paths)
                             : cText::Tr("Budget von {0} Kategorien geändert", {QString::number(paths.size())});
}

bool cBudgetEdit::Write(cRow& row)
{
    return (row.Item == row.StoredItem || m_tools.Data.ChangeTemplate(row.Item))
        && (row.Budget == row.StoredBudget || modLimits::Store(m_tools.Settings, row.Path, row.Budget));
}

bool cBudgetEdit::Save()
{
    if (!IsChanged()) {
        return true;
    }
    cUndoStep step(m_tools.Data, StepName());
    if (!step.DoneIf(std::all_of(m_rows.begin(), m_rows.end(), [this](cRow& row) { return Write(row); }))) {
        return false;
    }
    for (cRow& row : m_rows) {
        row.StoredItem = row.Item;
        row.StoredBudget = row.Budget;
    }
    return true;
}
