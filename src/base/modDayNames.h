#pragma once

#include <QLocale>

// The names of days and months.
namespace modDayNames {

// The program's language; German where nobody has chosen one, as in tests and on the command line.
[[nodiscard]] QLocale Language();

} // namespace modDayNames
