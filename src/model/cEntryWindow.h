#pragma once

#include "model/cAccountSum.h"
#include "model/cEntryItem.h"
#include "model/modPeriod.h"

#include <QList>

// Some days of the book with what was before them, read at once.
struct cEntryWindow
{
    modPeriod::cRange Days;
    cEntryItemList Entries;    // of these days, as cDataAccess::GetEntries gives them
    cEntryItemList Series;     // every entry with an interval, not expanded
    QList<cAccountSum> Before; // of all earlier days
};
