#pragma once

#include "support/testBook.h"
#include "views/entry/cEntryEditor.h"

// A new book and the editor of its entries.
struct cEditorBook : cTestBook
{
    cEntryEditor Editor{Tools};
};
