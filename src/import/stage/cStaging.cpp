#include "import/stage/cStaging.h"

#include "import/stage/cImportHiveCache.h"
#include "model/cImportEntry.h"

cStaging::cStaging(cImportHiveCache& hive, eStagingRun run) : m_hive(hive)
{
    if (run == eStagingRun::Try) {
        m_trial = hive.GetImportHive();
    }
}

eStaged cStaging::StageImportEntry(cImportEntry& entry, eDuplicateTest test)
{
    if (entry.ImportValue == 0) {
        return eStaged::Zero;
    }
    entry.Validate();
    if (test == eDuplicateTest::Test && Hive(eKeepCache::FromOthers).IsImportItemAvail(entry)) {
        return eStaged::Duplicate;
    }
    return Add(entry) ? eStaged::Staged : eStaged::Failed;
}

eKnown cStaging::Find(const cImportEntry& entry)
{
    return Hive(eKeepCache::FromOthers).Find(entry, m_newest);
}

cImportEntryList cStaging::AllButBlanks(const cImportEntry& entry)
{
    return Hive(eKeepCache::FromOthers).AllButBlanks(entry);
}

cImportEntryList cStaging::Rows()
{
    return Hive(eKeepCache::FromOthers).getImportEntryList();
}

void cStaging::StartSource(qsizetype rows)
{
    if (m_trial) {
        m_trial->Reserve(rows);
    }
    m_newest = Hive(eKeepCache::No).NextId() - 1;
}

QStringList cStaging::Accounts()
{
    return cImportHive::AccountsOf(Hive(eKeepCache::No).getImportEntryList());
}

const cImportHive& cStaging::Hive(eKeepCache keepCache)
{
    return m_trial ? *m_trial : m_hive.GetImportHive(keepCache);
}

bool cStaging::Add(cImportEntry& entry)
{
    if (!m_trial) {
        return m_hive.Add(entry);
    }
    cImportEntry row = entry;
    row.ID = m_trial->NextId();
    m_trial->Add(row);
    return true;
}
