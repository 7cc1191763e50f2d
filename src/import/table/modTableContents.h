#pragma once

#include "import/read/cTableLayout.h"

class cTable;

// Columns told by what stands in them, where the words of the header say nothing or mislead.
namespace modTableContents {

// Completes and corrects the columns of a layout that no bank's profile gave.
void Complete(const cTable& table, cTableLayout& layout);

// Takes the currency from the name of the amount ("Betrag (EUR)") where no column holds it.
void CompleteCurrency(cTableLayout& layout);

} // namespace modTableContents
