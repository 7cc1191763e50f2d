#pragma once

#include "model/cImportEntry.h"

#include <QString>

// What a bank account pays for purchases that stand on an account of their own: that of a credit card or of PayPal. The
// rows of both sides are told by their words, because neither names the number of the other account.
namespace modSettlement {

// Whether the row may be either side of one, by its words alone.
[[nodiscard]] bool IsSide(const cImportEntry& row);

// Whether one of the rows is the bank's side, and the other one that of the card or of PayPal. `account` and
// `otherAccount` are theirs in the book. Amounts and days are not looked at.
[[nodiscard]] bool IsPair(const cImportEntry& row, const QString& account, const cImportEntry& other,
                          const QString& otherAccount);

} // namespace modSettlement
