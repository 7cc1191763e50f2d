#pragma once

#include "model/cImportEntry.h"

#include <QString>

// A short number that stands for a staged row in the settings.
namespace modRowDigest {

// Of day, amount, counterparty and purpose, whatever their blanks; the account is left out, because a bank may change
// the form in which it names it. `number` tells rows apart that are equal: 1 for the first of them.
[[nodiscard]] quint64 Value(const cImportEntry& row, int number = 1);

// The same as 16 hexadecimal digits: far more than a few thousand rows need.
[[nodiscard]] QString Of(const cImportEntry& row, int number = 1);

} // namespace modRowDigest
