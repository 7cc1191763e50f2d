#pragma once

#include "import/stage/cAccountMap.h"
#include "import/stage/cImportHiveCache.h"
#include "support/testBook.h"

#include <string>

// A new book with the tools of the import over it.
struct cImportBook : cTestBook
{
    // What another program would do to the file.
    void WriteBehind(const std::string& sql) const
    {
        cDatabase other;
        other.Open(Path(), eOpenMode::ReadWrite);
        other.Execute(sql);
    }

    cImportHiveCache Hive{Data};
    cAccountMap Accounts{Data, *Settings};
};
