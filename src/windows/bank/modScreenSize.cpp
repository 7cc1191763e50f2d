#include "windows/bank/modScreenSize.h"

#include <QScreen>

double modScreenSize::DotsPerMillimetre(const QScreen& screen)
{
    constexpr double millimetresInInch = 25.4;
    constexpr double least = 40; // dots in an inch; what is beyond is a mistake of the screen
    constexpr double most = 400;
    const double physical = screen.physicalDotsPerInchX();
    return (physical < least || physical > most ? screen.logicalDotsPerInchX() : physical) / millimetresInInch;
}
