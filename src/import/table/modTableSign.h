#pragma once

#include "import/read/cTableLayout.h"

class cTable;

// Which way the amounts of a table count.
namespace modTableSign {

// Weighs what the names of the columns propose against what the file says of itself: its balances, the signs that are
// written, the words of its rows. What contradicts without exception wins: another amount column, the sides exchanged,
// the sign turned round. What stays open becomes the layout's doubt; a sign that nothing proves is marked as usual.
void Settle(const cTable& table, cTableLayout& layout);

} // namespace modTableSign
