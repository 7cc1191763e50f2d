#pragma once

#include "import/table/cTableLayout.h"

class cTable;

// Columns told by what stands in them, where the words of the header say nothing or mislead.
namespace modTableContents {

// Completes and corrects the columns of a layout that no bank's profile gave.
void Complete(const cTable& table, cTableLayout& layout);

// An own account column that holds the number of the file's owner, a currency in the amount's name ("Betrag (EUR)"):
// what is right for every layout.
void CompleteCurrency(cTableLayout& layout);

} // namespace modTableContents
