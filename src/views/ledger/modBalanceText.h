#pragma once

#include "model/modBalanceCheck.h"

#include <QString>
#include <QStringList>

#include <optional>

class cAmountFormat;
class cStatementLedger;
struct cBookComparison;

// What the comparison of bank transactions with balances found, in sentences for the user.
namespace modBalanceText {

// One difference: since when, how much, and what may be behind it.
[[nodiscard]] QString Fault(const cStatementLedger& ledger, const modBalanceCheck::cFault& fault,
                            const cAmountFormat& format);

// All about the balances of the bank, a sentence or two for each difference; the newest first.
[[nodiscard]] QStringList Bank(const cStatementLedger& ledger, const cAmountFormat& format);

// Where the statement names another balance than the days of its transactions lead to: begins with a blank, else empty.
[[nodiscard]] QString OnStatement(std::optional<qint64> named, const cAmountFormat& format);

// How the book's account stands beside it. Empty when there is nothing to say.
[[nodiscard]] QString Book(const cBookComparison& book, const QString& account, const cAmountFormat& format);

} // namespace modBalanceText
