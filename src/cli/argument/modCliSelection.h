#pragma once

#include "cli/call/modCliCommands.h"
#include "model/cEntryItem.h"
#include "views/main/cViewState.h"

// The entries of a period, narrowed by account, kind, category and words: what a list in the window would show.
namespace modCliSelection {

struct cSelection
{
    int Code = modExit::Done; // anything else: the problem was shown, and nothing is selected
    cEntryItemList Entries;   // by day
    modPeriod::cRange Days;
    cViewState View; // the same choice in the words of the window
};

// The options that Read() understands.
[[nodiscard]] QList<cCliOption> Options();

[[nodiscard]] cSelection Read(const cCliContext& context);

} // namespace modCliSelection
