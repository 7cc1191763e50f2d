#pragma once

#include "base/cProgress.h"
#include "import/propose/cBooking.h"
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

    // Books a row as the user wants it.
    [[nodiscard]] static cBookingResult BookAs(cBooking& booking, int row, const cEntryItem& entry)
    {
        cNoProgress progress;
        cProposal proposal;
        proposal.Entry = entry;
        return booking.Book({row}, {{row, proposal}}, progress);
    }

    cImportHiveCache Hive{Data};
    cAccountMap Accounts{Data, *Settings};
};
