#pragma once

#include "model/cTemplateItem.h"

#include <QString>
#include <QStringList>

struct cImportEntry;

// Money that goes from the bank to the purse, or back.
namespace modCash {

// True for money drawn at a machine or a counter, and for money paid in. A fee for it is neither, nor is a payment with
// the card.
[[nodiscard]] bool IsCash(const cImportEntry& row);

// False when a look at the purpose cannot make cash of the row: machines give notes only, so the amount is round.
[[nodiscard]] bool CanBeCash(const cImportEntry& row);

// The visible accounts for cash: named like a purse or a cash box, else in a group that is named so. `numbered` are
// accounts that have a number at a bank, which cash has not.
[[nodiscard]] QStringList Accounts(const cTemplateItemList& accounts, const QStringList& numbered);

} // namespace modCash
