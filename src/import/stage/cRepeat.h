#pragma once

#include "model/cImportEntry.h"

#include <QList>

// A row that a source has more often than the book. StageImportEntry takes the first of equal ones only.
struct cRepeat
{
    cImportEntry Entry;
    int Number = 2;          // it would be the so manieth of its kind in the book
    bool IsTold = false;     // the bank has marks for so many of its kind
    bool WasLeftOut = false; // the user, or a command, left it out before
};

using cRepeatList = QList<cRepeat>;
