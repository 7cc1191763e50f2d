#pragma once

#include "import/sheet/cSheet.h"

#include <QStringView>

// Tables in HTML, which some banks hand out as spreadsheets.
namespace modHtmlTable {

// True when the text begins like HTML and has a table.
[[nodiscard]] bool IsHtml(QStringView text);

// Every table of the text is a sheet without name; a table inside of another one is one of its own.
[[nodiscard]] cSpreadsheet Read(QStringView text);

} // namespace modHtmlTable
