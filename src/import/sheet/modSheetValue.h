#pragma once

#include "import/sheet/cSheetBuilder.h"

#include <QString>
#include <QStringView>

enum class eSheetFormat { Number, Decimals, Day, Time };
// From which day a workbook counts.
enum class eSheetEpoch { Year1900, Year1904 };

// Numbers of a workbook as the texts that a German statement would have in their place.
namespace modSheetValue {

// What a number with this format code ("dd.mm.yyyy", "#,##0.00 [$€-407]") stands for.
[[nodiscard]] eSheetFormat FormatOf(QStringView code);
// The same for the formats that every workbook knows by their number.
[[nodiscard]] eSheetFormat FormatOf(int builtIn);

// "1234,50", without thousands separators. All digits that a workbook keeps (15) are there; at least two decimals when
// there are any or when the format shows some.
[[nodiscard]] cSheetCell Number(double value, eSheetFormat format);

// A day as dd.MM.yyyy, a time as HH:mm:ss. A number that is no day becomes a number.
[[nodiscard]] cSheetCell Value(double value, eSheetFormat format, eSheetEpoch epoch);

// "2026-01-31T10:00:00" as a day; all other texts stay as they are.
[[nodiscard]] cSheetCell IsoDay(const QString& text);

[[nodiscard]] cSheetCell Boolean(bool isTrue);

} // namespace modSheetValue
