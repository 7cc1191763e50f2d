#pragma once

#include <QDate>
#include <QDateTime>

// Calendar and clock of the machine. Rules take the day as an argument; only the outermost callers ask here.
class cClock
{
public:
    cClock() = default;
    cClock(const cClock&) = delete;
    cClock& operator=(const cClock&) = delete;
    virtual ~cClock() = default;

    // The current day in local time.
    [[nodiscard]] virtual QDate Today() const = 0;
    // The current moment in local time.
    [[nodiscard]] virtual QDateTime Now() const = 0;
};
