#pragma once

#include "model/cEntryItem.h"
#include "model/cTemplateItem.h"
#include "views/list/cBalanceDays.h"

#include <QDate>
#include <QHash>
#include <QStringList>

#include <optional>

// Balances day by day, made of records alone.
namespace modForecast {

struct cInput
{
    QDate First;
    QDate Last;
    QStringList Accounts;           // in the order of the result
    QHash<QString, qint64> Opening; // balances before the first day
    cEntryItemList Entries;         // occurrences from the first to the last day, in any order
};

// The balances of every account named and of the names that only opening balances and entries have; the sum is theirs.
[[nodiscard]] cBalanceDays Days(const cInput& input);

// What is spent once on average: effects of one-off expenses and transfers on each account over a number of days.
struct cAverage
{
    QHash<QString, qint64> Cents; // by account, signed
    int Days = 1;
};

// Of the one-off entries up to today, which begin at `from`. Start balances do not count.
[[nodiscard]] cAverage Average(const cEntryItemList& entries, QDate from, QDate today);

// Adds the average to every day after today.
void AddAverage(cBalanceDays& days, const cAverage& average, QDate today);

// The amount below which an account should not fall; empty when it has none.
[[nodiscard]] std::optional<qint64> Limit(const cTemplateItem& account);

// The first day from `today` on on which the account ends below the limit, with the entry of that day that takes it
// there: what comes in on a day counts before what goes out. Empty when the limit holds.
[[nodiscard]] std::optional<cLimitWarning> Below(const cBalanceDays& days, const QString& account, qint64 limit,
                                                 const cEntryItemList& entries, QDate today);

} // namespace modForecast
