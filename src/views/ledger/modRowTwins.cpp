#include "views/ledger/modRowTwins.h"

#include "import/plan/modStagedTwins.h"
#include "import/stage/cAccountMap.h"

std::function<modStagedTwins::cFile(int)> modRowTwins::FileOf(const QList<cImportRuns::cRange>& files)
{
    return [files](int id) {
        const cImportRuns::cRange file = cImportRuns::FileOf(files, id);
        return modStagedTwins::cFile{file.First, file.Kind};
    };
}

QHash<int, cRowTwin> modRowTwins::Of(const cImportEntryList& rows, const cAccountMap& accounts, cSettings& settings)
{
    return modStagedTwins::Find(rows,
                                {.AccountOf = [&](const QString& number) { return accounts.AccountOf(number); },
                                 .FileOf = FileOf(cImportRuns(settings).Files())});
}
