#pragma once

#include "model/cEntryItem.h"

#include <QList>
#include <QString>

// What keeps an entry out of sight or makes the sums wrong.
enum class eEntryFault {
    Day,      // none, or one that cannot be read: no period holds it
    Kind,     // none, or an unknown one: it counts as an expense, and no view of expenses holds it
    Interval, // none, or an unknown one: it counts once, or a last day hides it
    End,      // a series that ends before it begins
    Length,   // a series of so many occurrences that not all of those up to today are made
    Amount,   // none, or one that cannot be read: it counts as 0
    Account,  // none: no balance counts it
    Target    // a transfer without one: the money leaves an account and comes to none
};

// An entry with faults, and what stands in the file where they are.
struct cFaultyEntry
{
    cEntryItem Entry;
    QString DayText;
    QString AmountText;
    QList<eEntryFault> Faults;
};
