#pragma once

#include "import/read/cTableChoice.h"

#include <QString>
#include <QStringView>

// The number in a cell of a table, without what may stand around it.
namespace modTableNumber {

// The number as the shared reader of amounts understands it: digits, a decimal comma, "-" in front. Signs before and
// behind, currencies, quotes and grouping are understood; where one point or comma could be either, the format decides.
// Empty for everything else that has digits in it: "12/34", "5 Stk", an account number.
[[nodiscard]] QString German(QStringView cell, eNumberFormat format);

// -1 or +1 for a word behind the number that says which way the money went ("12,50 S", "12.50 CR"); 0 without one.
[[nodiscard]] int TrailingSign(QStringView cell);

} // namespace modTableNumber
