#pragma once

#include "model/cImportEntry.h"

#include <QString>

// A short number that stands for a staged row in the settings.
namespace modRowDigest {

// Books of earlier versions hold numbers in which the counterparty's bank code counts.
enum class eBank { Open, Counts };

// Of day, amount, counterparty and purpose, whatever their blanks; the own account and the counterparty's bank are left
// out, because a bank may change the form in which it names them. `number` tells rows apart that are equal: 1 for the
// first of them.
[[nodiscard]] quint64 Value(const cImportEntry& row, int number = 1, eBank bank = eBank::Open);

// The same as 16 hexadecimal digits: far more than a few thousand rows need.
[[nodiscard]] QString Of(const cImportEntry& row, int number = 1, eBank bank = eBank::Open);

} // namespace modRowDigest
