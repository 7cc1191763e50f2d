#pragma once

#include "import/read/cReadOptions.h"
#include "import/read/cStatementRead.h"
#include "import/read/cStatementSource.h"

// Zip archives with statement files of any format, as some banks send them.
namespace modStatementArchive {

// True for a zip archive that is no workbook.
[[nodiscard]] bool IsArchive(const cStatementSource& source);

// The transactions of all files in the order of their names. Files that are no statements (a PDF beside them) become
// problems; one that is damaged spoils it all, because nobody would notice the gap. An account that the caller names
// holds for every file that names none.
[[nodiscard]] cStatementRead Read(const cStatementSource& source, const cReadOptions& options);

} // namespace modStatementArchive
