#include "import/cImportHiveCache.h"

#include "store/cDataAccess.h"

cImportHiveCache::cImportHiveCache(cDataAccess& data) : m_data(data)
{
}

const cImportHive& cImportHiveCache::GetImportHive(eKeepCache keepCache)
{
    const bool isGoodEnough = m_isLoaded && (keepCache == eKeepCache::Yes || m_data.ImportVersion() == m_version);
    if (!isGoodEnough) {
        // The version is taken before the rows: a write that slips in between is noticed by the next access.
        m_version = m_data.ImportVersion();
        m_hive.setImportEntryList(m_data.GetImportEntries());
        m_isLoaded = true;
    }
    return m_hive;
}

template <typename tWrite, typename tApply>
bool cImportHiveCache::Write(const tWrite& write, const tApply& apply)
{
    if (!write()) {
        return false;
    }
    // One step further means that nobody else has written since the rows were read; otherwise the next access reads
    // them.
    if (m_isLoaded && m_data.ImportVersion() == m_version + 1) {
        apply();
        ++m_version;
    }
    return true;
}

bool cImportHiveCache::Add(cImportEntry& entry)
{
    return Write([&] { return m_data.AddNewImportEntry(entry); }, [&] { m_hive.Add(entry); });
}

bool cImportHiveCache::Change(const cImportEntry& entry)
{
    return Write([&] { return m_data.ChangeImportEntry(entry); }, [&] { m_hive.Change(entry); });
}

bool cImportHiveCache::Remove(int id)
{
    return Write([&] { return m_data.DeleteImport(id); }, [&] { m_hive.Remove(id); });
}

bool cImportHiveCache::RemoveAll()
{
    return Write([&] { return m_data.DeleteAllImports(); }, [&] { m_hive.Clear(); });
}
