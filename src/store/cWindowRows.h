#pragma once

#include "model/cEntryItem.h"
#include "model/modPeriod.h"
#include "store/cAccountSums.h"

class cDatabase;

// What some days of the book are made of before the series are expanded, from one pass through table `data`.
struct cWindowRows
{
    // Throws cDatabaseError.
    [[nodiscard]] static cWindowRows Read(cDatabase& database, const modPeriod::cRange& range);

    cEntryItemList Single;    // one-off entries of the days
    cEntryItemList Series;    // all of them
    cAccountSums Before;      // one-off entries of earlier days
    cAccountSums StartBefore; // start balances of earlier days, which are not among the others
    bool IsClear = true;      // false when one of the days is no plain day, and then the rest is worth nothing
};
