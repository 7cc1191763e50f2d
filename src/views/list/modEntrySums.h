#pragma once

#include "model/cEntryItem.h"

#include <QString>

#include <optional>

class cAmountFormat;

// What entries come to, in cents.
struct cEntrySums
{
    qint64 Income = 0;
    qint64 Expense = 0; // not negative
    qsizetype Count = 0;
    // Start balances: money that was there before, and so neither income nor expense. Empty where there is none.
    std::optional<qint64> Start{};

    [[nodiscard]] qint64 Total() const { return Start.value_or(0) + Income - Expense; }
    bool operator==(const cEntrySums&) const = default;
};

// The sums as the user reads them.
struct cSumTexts
{
    QString Count;
    QString Income;
    QString Expense;
    QString Total;
    QString Start; // start balances, which are no income; empty where there are none
};

namespace modEntrySums {

// Counts an entry in. `effect` is what it does to the money that the list is about, see modBalance::Effect.
void Add(cEntrySums& sums, const cEntryItem& entry, qint64 effect);

// With an account, transfers count as its income or expense.
[[nodiscard]] cEntrySums Of(const cEntryItemList& entries, const QString& account);

// `isUnread`: nothing is known of the sums.
[[nodiscard]] cSumTexts Texts(const cEntrySums& sums, const QString& count, const cAmountFormat& format, bool isUnread);

} // namespace modEntrySums
