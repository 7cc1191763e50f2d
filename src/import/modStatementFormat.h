#pragma once

#include "import/cStatementRead.h"

#include <QString>

enum class eStatementFormat { Spreadsheet, Pdf, Unknown, Mt940, Ofx, Qif, Csv };

// The format of a statement file, by the end of its name and by its content.
[[nodiscard]] eStatementFormat DetectStatementFormat(const QString& fileName, const QString& text);

namespace modStatementFormat {

// Turns a statement text into records; `account` stands for statements that do not name their own.
using cReader = cStatementRead (*)(const QString& text, const QString& account);

// The name under which the user sees a format.
[[nodiscard]] QString Name(eStatementFormat format);

// Null when the program cannot read the format.
[[nodiscard]] cReader Reader(eStatementFormat format);

// Why a format without reader is refused.
[[nodiscard]] QString Refusal(eStatementFormat format);

} // namespace modStatementFormat
