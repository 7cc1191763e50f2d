#pragma once

#include "model/cEntryItem.h"
#include "model/modPeriod.h"

#include <QString>

#include <functional>

// Entries behind a figure of the statistics, as the entry list shows them until the user goes back.
struct cEntrySelection
{
    QString Title;   // what they are, in words
    QString Type;    // a word of modWord::ViewTypes
    QString Account; // empty: all accounts
    modPeriod::cRange Range;
    std::function<cEntryItemList(const cEntryItemList& entries)> Pick{}; // those among the view's entries; none: all
    bool WithFuture = false; // also where the view hides what is still to come: a forecast counts it
};
