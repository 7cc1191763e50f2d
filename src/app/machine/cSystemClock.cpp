#include "app/machine/cSystemClock.h"

QDate cSystemClock::Today() const
{
    return QDate::currentDate();
}

QDateTime cSystemClock::Now() const
{
    return QDateTime::currentDateTime();
}
