#pragma once

#include <QString>
#include <QStringList>

class cBankBalances;
class cStaging;
struct cStatementRead;

// The currency of what a statement lists. Amounts are taken as they are, so it should be the book's.
namespace modStatementCurrency {

struct cOthers
{
    QStringList Codes;
    qsizetype Rows = 0; // in one of them
};

// Other currencies than the book's. One in which the account already has rows does not count: the user has agreed to
// it.
[[nodiscard]] cOthers Others(const cStatementRead& read, const QString& book, cStaging& staging,
                             const cBankBalances* balances);

} // namespace modStatementCurrency
