#pragma once

#include "import/read/cColumnMap.h"
#include "import/read/modStatementText.h"

#include <QChar>
#include <QString>
#include <QStringView>

#include <optional>

// "1.234,50", "1,234.50"
enum class eNumberFormat { Detect, German, English };
enum class eDateOrder { DayMonthYear, MonthDayYear, YearMonthDay };
// Card statements count what was spent as positive.
enum class eSignRule { AsWritten, Negated };

// In the place of a known layout's name: none is to be used, not even a detected one.
inline constexpr QStringView noProfile = u"-";

// What the user chose about a table; everything left empty is detected.
struct cTableChoice
{
    eCharset Charset = eCharset::Detect;
    std::optional<QChar> Separator;
    std::optional<int> HeaderLine; // counted from 1; 0: the table has no header
    std::optional<cColumnMap> Map;
    std::optional<eNumberFormat> Number;
    std::optional<eDateOrder> Date;
    std::optional<eSignRule> Sign;
    QString Profile; // name of a known layout to be taken instead of the detected one
    QString Account; // own account number; goes before what the file says
    QString Sheet;   // of a spreadsheet with several; empty: the one with the most transactions
};
