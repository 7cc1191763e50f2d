#pragma once

#include "model/cImportEntry.h"
#include "model/cRowPlan.h"
#include "views/ledger/cImportRuns.h"

#include <QHash>
#include <QList>

#include <functional>

class cAccountMap;
class cSettings;
namespace modStagedTwins {
struct cFile;
} // namespace modStagedTwins

// Which staged rows may be there twice, by what is remembered of the files that they came with.
namespace modRowTwins {

[[nodiscard]] std::function<modStagedTwins::cFile(int)> FileOf(const QList<cImportRuns::cRange>& files);
[[nodiscard]] QHash<int, cRowTwin> Of(const cImportEntryList& rows, const cAccountMap& accounts, cSettings& settings);

} // namespace modRowTwins
