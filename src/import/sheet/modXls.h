#pragma once

#include "import/sheet/cSheet.h"

#include <QByteArray>

// Workbooks of the binary format (BIFF5 and BIFF8), with or without the container around them. Nothing in a file is
// trusted: whatever does not hang together is refused.
namespace modXls {

// True when the bytes begin like a container, whatever is in it, or like a sheet without one.
[[nodiscard]] bool IsXls(const QByteArray& bytes);

// True for a container with a workbook in it.
[[nodiscard]] bool HoldsWorkbook(const QByteArray& bytes);

[[nodiscard]] cSpreadsheet Read(const QByteArray& bytes);

} // namespace modXls
