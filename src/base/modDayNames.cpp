#include "base/modDayNames.h"

QLocale modDayNames::Language()
{
    const QLocale chosen;
    return chosen.language() == QLocale::C ? QLocale(QLocale::German) : chosen;
}
