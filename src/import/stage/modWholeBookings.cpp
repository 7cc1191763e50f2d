#include "import/stage/modWholeBookings.h"

#include "import/read/cStatementRead.h"
#include "import/stage/cStaging.h"

#include <algorithm>

void modWholeBookings::UseIn(cStatementRead& read, cStaging& staging)
{
    std::for_each(read.Wholes.rbegin(), read.Wholes.rend(), [&](const cWholeBooking& whole) {
        cImportEntry row = whole.Row;
        row.ImportAccount = read.Entries.at(whole.First).ImportAccount; // which may have got another form since
        row.Validate();
        if (staging.Find(row) == eKnown::No) {
            return;
        }
        read.Entries[whole.First] = row;
        read.Entries.remove(whole.First + 1, whole.Count - 1);
        for (qsizetype& part : read.Parts) {
            part -= part > whole.First ? whole.Count - 1 : 0;
        }
        QHash<qsizetype, QString> ids;
        for (auto id = read.Ids.constBegin(); id != read.Ids.constEnd(); ++id) {
            ids.insert(id.key() - (id.key() > whole.First ? whole.Count - 1 : 0), *id);
        }
        read.Ids = ids;
    });
}
