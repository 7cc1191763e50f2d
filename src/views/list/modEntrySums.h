#pragma once

#include "model/cEntryItem.h"

#include <QString>

#include <optional>

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

namespace modEntrySums {

// Counts an entry in. `effect` is what it does to the money that the list is about, see modBalance::Effect.
void Add(cEntrySums& sums, const cEntryItem& entry, qint64 effect);

// With an account, transfers count as its income or expense.
[[nodiscard]] cEntrySums Of(const cEntryItemList& entries, const QString& account);

} // namespace modEntrySums
