#pragma once

#include "model/cImportEntry.h"

// What the contents of a table leave open: whether its amounts are to be read as they stand or the other way round. One
// booking in both readings, by which a person knows the right one.
struct cTableDoubt
{
    cImportEntry AsWritten;
    cImportEntry Negated;
};
