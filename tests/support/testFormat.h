#pragma once

#include "core/cAmountFormat.h"
#include "core/cConfiguration.h"
#include "support/fakes.h"

// The format of amounts of a program without any settings: German.
struct cTestFormat
{
    cFakeRegistry Registry;
    cConfiguration Configuration{Registry};
    cAmountFormat Format{Configuration};
};
