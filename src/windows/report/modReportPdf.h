#pragma once

#include "windows/print/cPrintable.h"

#include <QString>

// Pages as a PDF file, A4 upright.
namespace modReportPdf {

// False when the file cannot be written.
[[nodiscard]] bool Write(cPrintable& content, const QString& path);

} // namespace modReportPdf
