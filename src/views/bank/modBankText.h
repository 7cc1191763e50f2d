#pragma once

#include "model/bank/cBankAccount.h"
#include "model/bank/cBankState.h"
#include "model/bank/TanVerfahrenItem.h"

#include <QString>
#include <QStringList>

// What people read about a bank login.
namespace modBankText {

// "Übungsbank", else the bank code.
[[nodiscard]] QString Bank(const cBankState& state);

// "SecureApp (Freigabe in der App)"
[[nodiscard]] QString Method(const TanVerfahrenItem& method);

// "DE02 1002 0030 0001 2345 67", else the number.
[[nodiscard]] QString Number(const cBankAccount& account);
// "Privatgiro", else what the bank tells of it.
[[nodiscard]] QString Product(const cBankAccount& account);

// Why the account cannot be fetched; empty when it can. What the bank offers and what it allows for the account decide
// together, and a bank that lists no orders for an account forbids none.
[[nodiscard]] QString NotFetched(const cBankState& state, const cBankAccount& account);

// What the registration identifier is and where to get one.
[[nodiscard]] QString ProductHint();

// The version of the program as banks want it, with two digits behind the point: "3.4.1" gives "3.04".
[[nodiscard]] QString ProductVersion(const QString& version);

// Where the bank names another address than the one in use: that it does, and that nothing goes there by itself. Empty
// without one.
[[nodiscard]] QString OtherAddress(const QString& address);

// Login, numbers and owners of a login's accounts: what others must not read in a log. Without empty ones.
[[nodiscard]] QStringList People(const cBankState& state);

} // namespace modBankText
