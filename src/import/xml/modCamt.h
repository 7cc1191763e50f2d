#pragma once

#include "import/read/cReadOptions.h"
#include "import/read/cStatementRead.h"
#include "import/read/cStatementSource.h"

// Account reports, statements and advices of ISO 20022: camt.052, camt.053 and camt.054 in every version.
namespace modCamt {

// True for such a file.
[[nodiscard]] bool IsCamt(const cStatementSource& source);

// The booked transactions of all statements; those that are only announced become skipped rows. The amount has the sign
// that the bank gives it, also where money comes back.
[[nodiscard]] cStatementRead Read(const cStatementSource& source, const cReadOptions& options);

} // namespace modCamt
