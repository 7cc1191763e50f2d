#pragma once

#include "import/sheet/cSheet.h"

#include <QString>

// Workbooks as a single XML file, as spreadsheet programs wrote them in 2003.
namespace modSheetXml {

// Looks at the head of the text only.
[[nodiscard]] bool IsSheetXml(QStringView text);

[[nodiscard]] cSpreadsheet Read(const QString& text);

} // namespace modSheetXml
