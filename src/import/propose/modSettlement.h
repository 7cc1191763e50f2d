#pragma once

#include "model/cImportEntry.h"

#include <QString>

// What a bank account pays for purchases that stand on an account of their own: that of a credit card or of PayPal. The
// rows of both sides are told by their words, because neither names the number of the other account.
namespace modSettlement {

// What a row may be by its words alone. The row has to outlive it.
struct cSides
{
    explicit cSides(const cImportEntry& row);

    [[nodiscard]] bool IsAny() const { return IsCardBill || IsPaymentToCard || IsPaidToPayPal || IsPayPalSide; }

    const cImportEntry& Row;
    bool IsCardBill = false;
    bool IsPaymentToCard = false;
    bool IsPaidToPayPal = false;
    bool IsPayPalSide = false;
};

// Whether one of the rows is the bank's side, and the other one that of the card or of PayPal. `account` and
// `otherAccount` are theirs in the book. Amounts and days are not looked at.
[[nodiscard]] bool IsPair(const cSides& row, const QString& account, const cSides& other, const QString& otherAccount);

} // namespace modSettlement
