#pragma once

class cTable;
struct cTableLayout;

// Fees in a column of their own.
namespace modTableFee {

// The balances of the rows decide whether the fee is part of the amount or comes on top; then the column is set or
// cleared. Where they tell nothing, the column of a known layout stays, and any other is noted as left out.
void Decide(const cTable& table, cTableLayout& layout);

} // namespace modTableFee
