#pragma once

#include "import/read/cTableLayout.h"
#include "import/table/cTable.h"

#include <optional>

// Tables that lost something on their way: opened and saved by a spreadsheet, or with a field too few or too many.
namespace modTableMend {

struct cMended
{
    cTable Table;
    QList<cReadProblem> Notes; // what was done
};

// The table with what can be put right for certain put right: ";" in the place of the decimal comma, rows whose columns
// have moved, texts that go on in a row of their own, numbers of accounts that became "1,23E+21" or have a digit too
// many. Empty when nothing is broken.
[[nodiscard]] std::optional<cMended> Mend(const cTable& table, const cTableLayout& layout);

// A text in which every line as a whole is quoted, without these quotes; empty for all others.
[[nodiscard]] QString WithoutLineQuotes(const QString& text);

} // namespace modTableMend
