#pragma once

#include "model/cEntryItem.h"
#include "model/cTemplateItem.h"

#include <QDate>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class cDataAccess;
class cSettings;

// An account as lists of accounts show it.
struct cAccountLine
{
    cTemplateItem Item{};  // without ID when only entries know the account
    qint64 Cents = 0;      // its balance
    int Open = 0;          // bank transactions that wait to be booked
    QStringList Numbers{}; // the bank's numbers, and the two below: only what Load reads
    std::optional<cEntryItem> Start{};
    int Entries = 0;
};

// The accounts of a book with what they hold.
namespace modAccountLines {

struct cLines
{
    QList<cAccountLine> Accounts;
    qint64 Cents = 0; // of all
    int Open = 0;     // also those whose bank number has no account
};

// An account's name as it is shown; entries without account have their line too.
[[nodiscard]] QString ShownName(const QString& account);

// The accounts in the user's order with `balances` in cents and `open` rows by name (see modBalance::ByAccount and
// cAccountMap::OpenByAccount). Names that no definition has, left from a renamed account, say, follow in a group of
// their own, so that no money is missing.
[[nodiscard]] cLines Of(const cTemplateItemList& accounts, const QHash<QString, qint64>& balances,
                        const QHash<QString, int>& open);

// The same from the book with the balances at the end of a day, and all that a line can hold.
[[nodiscard]] cLines Load(cDataAccess& data, cSettings& settings, QDate day);

} // namespace modAccountLines
