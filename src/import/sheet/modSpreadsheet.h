#pragma once

#include "import/read/cStatementRead.h"
#include "import/sheet/cSheet.h"
#include "import/table/modTable.h"

#include <QStringList>

struct cReadOptions;
struct cStatementSource;

// Statements as spreadsheets. The content decides, not the name: many banks call an HTML page or a character-separated
// text ".xls".
namespace modSpreadsheet {

// True when the content is a workbook, whatever its name. Web pages and texts are not: they need the name.
[[nodiscard]] bool IsWorkbook(const cStatementSource& source);

// All sheets. A character-separated text is no sheet: there are none then, and no refusal.
[[nodiscard]] cSpreadsheet Load(const cStatementSource& source);

// The rows as they would be read: of the sheet that the user chose, else of the one with the most transactions. A table
// without rows when the file cannot be read.
[[nodiscard]] modTable::cOpened Open(const cStatementSource& source, const cReadOptions& options);

// The same for sheets that were loaded before; there must be one.
[[nodiscard]] modTable::cOpened Open(const cSpreadsheet& book, const cReadOptions& options);

// The entries in the list of formats: of workbooks, and of any text, which may be a web page.
[[nodiscard]] cStatementRead Read(const cStatementSource& source, const cReadOptions& options);
[[nodiscard]] cStatementRead ReadText(const cStatementSource& source, const cReadOptions& options);

} // namespace modSpreadsheet
