#pragma once

#include "import/read/cStatementRead.h"
#include "import/read/cTableLayout.h"

#include <memory>

class cTable;
class cTableMemory;
struct cReadOptions;
struct cStatementSource;

// Statements in rows and columns: character-separated files, and whatever other readers turn into a table.
namespace modTable {

// The layout of a character-separated text and its rows, as they would be read.
struct cOpened
{
    cTableLayout Layout;
    std::shared_ptr<const cTable> Table; // all rows, those above the header included
    QString Sheet = {};                  // its name, in a file with sheets
};

[[nodiscard]] cOpened Open(const cStatementSource& source, const cReadOptions& options);

// Keeps columns and rules of a table that was read with the choice for the next file with the same header. False when
// it has none, or the settings cannot be written.
bool Remember(const cStatementSource& source, const cTableChoice& choice, const cTableLayout& layout,
              cTableMemory& memory);

// Finds header and columns of a table that is there already (a spreadsheet's rows).
[[nodiscard]] cTableLayout Detect(const cTable& table, const cReadOptions& options);

// The rows of a table through a layout.
[[nodiscard]] cStatementRead ReadRows(const cTable& table, const cTableLayout& layout, const cReadOptions& options);

// Reads a character-separated text: the entry in the list of formats.
[[nodiscard]] cStatementRead Read(const cStatementSource& source, const cReadOptions& options);

} // namespace modTable
