#pragma once

#include "windows/print/cPrintable.h"

#include <QByteArray>

// Pages as a PDF file, A4 upright.
namespace modReportPdf {

// The whole file; no bytes when it cannot be painted.
[[nodiscard]] QByteArray Bytes(cPrintable& content);

} // namespace modReportPdf
