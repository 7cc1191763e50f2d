#pragma once

#include "model/cImportEntry.h"

#include <QString>

// A short text that stands for a staged row in the settings.
namespace modRowDigest {

// Of day, amount, counterparty and purpose, whatever their blanks; the account is left out, because a bank may change
// the form in which it names it. `number` tells rows apart that are equal: 1 for the first of them.
[[nodiscard]] QString Of(const cImportEntry& row, int number = 1);

} // namespace modRowDigest
