#pragma once

#include "base/cClock.h"

// The clock of the machine.
class cSystemClock final : public cClock
{
public:
    [[nodiscard]] QDate Today() const override;
    [[nodiscard]] QDateTime Now() const override;
};
