#pragma once

#include "import/read/cReadOptions.h"
#include "import/read/cStatementRead.h"
#include "import/read/cStatementSource.h"

#include <QString>

enum class eStatementFormat { Spreadsheet, Pdf, Unknown, Mt940, Camt, Archive, Ofx, Qif, Csv };

// The format of a statement file, by the end of its name and by its content.
[[nodiscard]] eStatementFormat DetectStatementFormat(const QString& fileName, const QString& text);

namespace modStatementFormat {

// Turns a statement file into records. Nothing is thrown: what cannot be read becomes a problem or a refusal.
using cReader = cStatementRead (*)(const cStatementSource& source, const cReadOptions& options);

// The bytes with their text, where they are text.
[[nodiscard]] cStatementSource Source(const QString& fileName, const QByteArray& bytes,
                                      eCharset charset = eCharset::Detect);

// The format by name, text and bytes.
[[nodiscard]] eStatementFormat Detect(const cStatementSource& source);

// The name under which the user sees a format.
[[nodiscard]] QString Name(eStatementFormat format);

// True for rows and columns, which can be read with a layout that the user chooses.
[[nodiscard]] bool IsTable(eStatementFormat format);

// Null when the program cannot read the format.
[[nodiscard]] cReader Reader(eStatementFormat format);

// Why a format without reader is refused.
[[nodiscard]] QString Refusal(eStatementFormat format);

// What whoever has such a file can do; a sentence in a line of its own.
[[nodiscard]] QString WayOut(eStatementFormat format);

} // namespace modStatementFormat
