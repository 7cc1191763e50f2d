#pragma once

#include "import/read/cTableLayout.h"

#include <QStringList>

class cTable;

// Known layouts of banks, by their headers.
namespace modTableProfile {

// Puts the columns and rules of the known layout with this header into `layout`. Columns count by their names: they may
// stand in another order and be written in other capitals, and of those that are not needed some may be missing or two
// others may have come. False, and nothing changed, when there is none.
bool Apply(const QStringList& header, cTableLayout& layout);

// The same for a table without header: the kinds of the columns must be those of a known layout ("day", "text",
// "amount", "side" for an amount that may be empty, "empty", "iban", "code" for a currency) in nearly all rows.
bool ApplyShape(const cTable& table, cTableLayout& layout);

// False when the columns of the layout do not hold days and amounts: another bank's file with the same names.
[[nodiscard]] bool Fits(const cTable& table, const cTableLayout& layout);

// The same for a layout that the user names.
bool ApplyNamed(const QString& name, const QStringList& header, cTableLayout& layout);

[[nodiscard]] QStringList Names();

} // namespace modTableProfile
