#pragma once

#include "import/table/cTable.h"

#include <QChar>
#include <QString>
#include <QStringView>

// Character-separated text as rows of cells.
namespace modTableText {

// The line with the header decides once for the file: ";" when it contains one, else ",", else the tab character.
[[nodiscard]] QChar SeparatorOf(QStringView headerLine);

// All rows. Lines above `firstLine` (counted from 0) stand for themselves; from there on a quoted field may hold
// separators and line breaks. A field is quoted only when it starts with the quote.
[[nodiscard]] cTable Split(const QString& text, QChar separator, int firstLine);

} // namespace modTableText
