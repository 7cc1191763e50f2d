#include "views/overview/modOverview.h"

#include "model/cTemplateItem.h"
#include "model/modBudget.h"
#include "model/modRecurrence.h"
#include "model/modSeries.h"
#include "model/modWord.h"

#include <QMap>

#include <algorithm>
#include <cstdlib>
#include <iterator>

namespace {

constexpr qint64 leastChange = 1000; // cents
constexpr int leastShare = 5;        // of the usual, its fifth
constexpr int leastMonths = 2;

// How many months before the one of today the day lies.
int MonthsAgo(QDate day, QDate today)
{
    return (today.year() - day.year()) * 12 + today.month() - day.month();
}

// Whether the day lies as early in its month as today in this one.
bool IsSoFar(QDate day, QDate today)
{
    return day.day() <= today.day();
}

qint64 Mean(qint64 sum, int count)
{
    if (count == 0) {
        return 0;
    }
    const qint64 half = count / 2;
    return (sum < 0 ? sum - half : sum + half) / count;
}

// From the month of the first entry to the last one.
int CountMonths(const cEntryItemList& entries, QDate today)
{
    int months = 0;
    for (const cEntryItem& entry : entries) {
        months = modBudget::Counts(entry) ? std::max(months, MonthsAgo(entry.EntryDate, today)) : months;
    }
    return std::min(months, modOverview::MostMonths);
}

void Add(modOverview::cSums& sums, const cEntryItem& entry)
{
    (entry.EntryType == modWord::Einnahme ? sums.Income : sums.Expense) += entry.EntryValue;
}

// What was brought forward to today has been booked, as what was entered for today has; what was put off until today is
// still to come.
bool IsToCome(const cEntryItem& entry, QDate today)
{
    return entry.EntryDate > today
        || (entry.EntryDate == today && modRecurrence::IsRecurring(entry.EntryInterval) && entry.Planned() <= today
            && !modSeries::IsBooked(entry.CorrectionComment));
}

} // namespace

QDate modOverview::FirstDay(QDate today)
{
    return QDate(today.year(), today.month(), 1).addMonths(-MostMonths);
}

modOverview::cMonth modOverview::Month(const cEntryItemList& entries, QDate today)
{
    cMonth month;
    month.Months = CountMonths(entries, today);
    cSums all;
    for (const cEntryItem& entry : entries) {
        const int ago = MonthsAgo(entry.EntryDate, today);
        if (!modBudget::Counts(entry) || !IsSoFar(entry.EntryDate, today) || ago < 0 || ago > MostMonths) {
            continue;
        }
        if (ago == 0) {
            Add(month.Now, entry);
        } else {
            Add(all, entry);
        }
        if (ago == 1) {
            Add(month.Before, entry);
        }
    }
    month.Usual = {Mean(all.Income, month.Months), Mean(all.Expense, month.Months)};
    return month;
}

QList<modOverview::cChange> modOverview::Changes(const cEntryItemList& entries, QDate today, int most)
{
    const int months = CountMonths(entries, today);
    if (months < leastMonths) {
        return {};
    }
    QMap<QString, cChange> groups;
    for (const cEntryItem& entry : entries) {
        const int ago = MonthsAgo(entry.EntryDate, today);
        if (!modBudget::Counts(entry) || !IsSoFar(entry.EntryDate, today) || ago < 0 || ago > MostMonths) {
            continue;
        }
        cChange& group = groups[modTemplate::MainOf(entry.EntryCategory)];
        (ago == 0 ? group.Now : group.Usual) += modBudget::SpentCents(entry);
    }
    QList<cChange> changes;
    for (auto group = groups.begin(); group != groups.end(); ++group) {
        const cChange change{group.key(), group->Now, Mean(group->Usual, months)};
        const bool isSpending = change.Now > 0 || change.Usual > 0; // a salary is told by the sums of the month
        const qint64 size = std::abs(change.More());
        if (isSpending && size >= leastChange && size * leastShare >= std::abs(change.Usual)) {
            changes.append(change);
        }
    }
    std::stable_sort(changes.begin(), changes.end(),
                     [](const cChange& a, const cChange& b) { return std::abs(a.More()) > std::abs(b.More()); });
    return changes.mid(0, most);
}

cEntryItemList modOverview::Due(const cEntryItemList& entries, QDate today, int days)
{
    cEntryItemList due;
    std::copy_if(entries.begin(), entries.end(), std::back_inserter(due), [&](const cEntryItem& entry) {
        return IsToCome(entry, today) && entry.EntryDate < today.addDays(days) && entry.EntryValue != 0
            && entry.EntryCategory != modWord::Startguthaben;
    });
    std::stable_sort(due.begin(), due.end(),
                     [](const cEntryItem& a, const cEntryItem& b) { return a.EntryDate < b.EntryDate; });
    return due;
}

qint64 modOverview::LeftPerDay(qint64 left, QDate today)
{
    return left <= 0 ? 0 : left / (today.daysInMonth() - today.day() + 1);
}
