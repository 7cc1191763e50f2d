#include "import/cStaging.h"

#include "import/cImportHiveCache.h"
#include "model/cImportEntry.h"

eStaged cStaging::StageImportEntry(cImportEntry& entry, eDuplicateTest test)
{
    const bool isZero = !(entry.ImportValue < 0.0) && !(entry.ImportValue > 0.0);
    if (isZero) {
        return eStaged::Zero;
    }
    entry.Validate();
    if (test == eDuplicateTest::Test && m_hive.GetImportHive().IsImportItemAvail(entry)) {
        return eStaged::Duplicate;
    }
    return m_hive.Add(entry) ? eStaged::Staged : eStaged::Failed;
}
