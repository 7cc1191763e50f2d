#pragma once

#include "import/read/cReadOptions.h"
#include "import/read/cStatementRead.h"
#include "import/read/cStatementSource.h"

#include <QString>

// Quicken Interchange Format: lines with a letter and a value, a "^" behind each record.
namespace modQif {

// True when a header line of the format stands among the first lines, in small or capital letters.
[[nodiscard]] bool IsQif(const QString& text);

// The transactions of bank accounts, cards and cash; lists of categories, securities and the like are passed over. The
// order of day and month is that of the file: a part above 12 tells, points mean day first, and where nothing tells
// month comes first, as the format has it.
[[nodiscard]] cStatementRead Read(const cStatementSource& source, const cReadOptions& options);

} // namespace modQif
