#pragma once

#include "model/cAccountSum.h"
#include "model/cEntryItem.h"

#include <QHash>
#include <QList>
#include <QString>

// What an entry does to money.
namespace modBalance {

// Signed cents of an entry. Without account: income counts up, expense down, a transfer not at all, because the money
// stays with the household. With an account: what the entry adds to this account; a transfer counts in both its
// accounts, and an entry of other accounts is 0.
[[nodiscard]] qint64 Effect(const QString& type, const QString& account, const QString& target, qint64 cents,
                            const QString& forAccount);
[[nodiscard]] qint64 Effect(const cEntryItem& entry, const QString& forAccount);

// Signed cents by account; what has no account stands under the empty name. All of them together are what the household
// has.
[[nodiscard]] QHash<QString, qint64> ByAccount(const QList<cAccountSum>& sums);

} // namespace modBalance
