#pragma once

#include <QDate>
#include <QLocale>
#include <QString>

// The names of days and months.
namespace modDayNames {

// The program's language; German where nobody has chosen one, as in tests and on the command line.
[[nodiscard]] QLocale Language();

// "März 2026"
[[nodiscard]] QString MonthText(QDate month);

} // namespace modDayNames
