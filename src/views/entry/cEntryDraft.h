#pragma once

#include "views/entry/cEntryFields.h"

#include <QDate>
#include <QDateTime>

// What was typed into the entry editor and not saved when the program had to end.
struct cEntryDraft
{
    QDateTime Kept;  // when; no two drafts of a book share it
    int EntryId = 0; // of the entry that was being changed; 0: a new one
    QDate From;      // a series was being changed from this occurrence on; invalid for the whole
    cEntryFields Fields;
};
