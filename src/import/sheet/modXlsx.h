#pragma once

#include "import/sheet/cSheet.h"

#include <QByteArray>

// Workbooks of Office Open XML: a zip archive of XML files.
namespace modXlsx {

// True for a zip archive that holds such a workbook.
[[nodiscard]] bool IsXlsx(const QByteArray& zip);

// The sheets in the workbook's order. Formulas give the value that was stored with them.
[[nodiscard]] cSpreadsheet Read(const QByteArray& zip);

} // namespace modXlsx
