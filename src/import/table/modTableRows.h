#pragma once

#include "import/read/cStatementRead.h"
#include "import/read/cTableLayout.h"

#include <QList>

#include <optional>

class cTable;

// Rows of a table as transactions.
namespace modTableRows {

// A row as it would be read, with its place in the table and the balance beside it.
struct cProbed
{
    int Row = 0;
    cImportEntry Entry;
    std::optional<qint64> Balance; // cents
};

// The transactions among the first `rows` rows of data.
[[nodiscard]] QList<cProbed> Probe(const cTable& table, const cTableLayout& layout, int rows);

// All rows from the first one of data on. `account` stands for rows that do not name the owner's account; `above` is
// the balance that stands above them, for a table that names none itself.
[[nodiscard]] cStatementRead Read(const cTable& table, const cTableLayout& layout, const QString& account,
                                  const std::optional<cAccountBalance>& above = {});

} // namespace modTableRows
