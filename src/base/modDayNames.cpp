#include "base/modDayNames.h"

using namespace Qt::Literals::StringLiterals;

QLocale modDayNames::Language()
{
    const QLocale chosen;
    return chosen.language() == QLocale::C ? QLocale(QLocale::German) : chosen;
}

QString modDayNames::MonthText(QDate month)
{
    return Language().toString(month, u"MMMM yyyy"_s);
}
