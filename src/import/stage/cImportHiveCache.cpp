#include "import/stage/cImportHiveCache.h"

#include "store/cDataAccess.h"

#include <algorithm>

cImportHiveCache::cImportHiveCache(cDataAccess& data) : m_data(data)
{
}

const cImportHive& cImportHiveCache::GetImportHive(eKeepCache keepCache)
{
    if (!m_isLoaded || !IsGoodEnough(keepCache)) {
        // The version is taken before the rows: a write that slips in between is noticed by the next access.
        m_version = m_data.ImportVersion();
        m_hive.setImportEntryList(m_data.GetImportEntries());
        m_isLoaded = true;
    }
    return m_hive;
}

bool cImportHiveCache::IsGoodEnough(eKeepCache keepCache)
{
    switch (keepCache) {
    case eKeepCache::Yes: return true;
    case eKeepCache::FromOthers: return m_data.KnownImportVersion() == m_version;
    case eKeepCache::No: break;
    }
    return m_data.ImportVersion() == m_version;
}

template <typename tWrite, typename tApply>
bool cImportHiveCache::Write(const tWrite& write, const tApply& apply)
{
    if (!write()) {
        return false;
    }
    // One step further means that nothing else was written through this connection since the rows were read. What
    // others have written lets the version of the next access run ahead, which then reads the rows.
    if (m_isLoaded && m_data.KnownImportVersion() == m_version + 1) {
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

int cImportHiveCache::Remove(const QList<int>& ids)
{
    // Each row that leaves the hive moves all behind it. Of many rows the rest is sooner read again by the next access.
    constexpr qsizetype fewRows = 200;
    const auto isGone = [&](int id) { return ids.size() <= fewRows ? Remove(id) : m_data.DeleteImport(id); };
    return static_cast<int>(std::find_if_not(ids.begin(), ids.end(), isGone) - ids.begin());
}
