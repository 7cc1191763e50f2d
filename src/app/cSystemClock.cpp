#include "app/cSystemClock.h"

QDate cSystemClock::Today() const
{
    return QDate::currentDate();
}
