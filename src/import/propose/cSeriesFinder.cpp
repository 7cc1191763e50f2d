#include "import/propose/cSeriesFinder.h"

#include "import/propose/modOccurrence.h"
#include "import/read/modCounterparty.h"
#include "import/stage/cImportHiveCache.h"
#include "model/modRecurrence.h"
#include "store/cDataAccess.h"

#include <algorithm>

namespace {

bool IsLike(const cEntryItem& series, const cEntryItem& entry)
{
    return series.EntryInterval == entry.EntryInterval && series.EntryType == entry.EntryType
        && series.EntryAccount == entry.EntryAccount && series.EntryAccountMove == entry.EntryAccountMove
        && series.EntryCategory == entry.EntryCategory;
}

} // namespace

cSeriesFinder::cSeriesFinder(cDataAccess& data, cImportHiveCache& hive) : m_data(data), m_hive(hive)
{
}

void cSeriesFinder::Build()
{
    const cImportEntryList rows = m_hive.GetImportHive(eKeepCache::Yes).getImportEntryList();
    for (const cImportEntry& row : rows) {
        if (const QString key = modCounterparty::Key(row);
            row.ImportAssigned && !key.isEmpty() && !m_entries.contains(key, row.ImportAssignedEntry)) {
            m_entries.insert(key, row.ImportAssignedEntry);
        }
    }
    m_isBuilt = true;
}

void cSeriesFinder::Learn(const cImportEntry& row, const cEntryItem& series)
{
    if (const QString key = modCounterparty::Key(row); m_isBuilt && !key.isEmpty()) {
        m_entries.insert(key, series.ID);
        m_loaded.insert(series.ID, series);
    }
}

std::optional<cSeriesMatch> cSeriesFinder::Find(const cImportEntry& row, const cEntryItem& entry)
{
    if (!modRecurrence::IsRecurring(entry.EntryInterval) || entry.EntryAccount.isEmpty()) {
        return std::nullopt;
    }
    if (!m_isBuilt) {
        Build();
    }
    QList<int> ids = m_entries.values(modCounterparty::Key(row));
    std::sort(ids.begin(), ids.end());
    for (const int id : std::as_const(ids)) {
        if (!m_loaded.contains(id)) {
            m_loaded.insert(id, m_data.LoadEntry(id));
        }
        const std::optional<cEntryItem> series = m_loaded.value(id);
        if (!series || !IsLike(*series, entry)) {
            continue;
        }
        if (std::optional<cSeriesMatch> match = Match(*series, row)) {
            return match;
        }
    }
    return std::nullopt;
}

std::optional<cSeriesMatch> cSeriesFinder::Match(const cEntryItem& series, const cImportEntry& row)
{
    const cEntryItemFixModList fixMods = m_data.GetEntryMods(series.ID);
    const std::optional<cEntryItem> occurrence = modOccurrence::Nearest(series, row.ImportDate, fixMods);
    if (!occurrence || IsTaken(series, *occurrence, fixMods, row)) {
        return std::nullopt;
    }
    return cSeriesMatch{series, *occurrence};
}

bool cSeriesFinder::IsTaken(const cEntryItem& series, const cEntryItem& occurrence, const cEntryItemFixModList& fixMods,
                            const cImportEntry& wanted)
{
    const int reach = modOccurrence::Reach(series.EntryInterval);
    const QDate from = std::min(occurrence.EntryDate, occurrence.Planned()).addDays(-reach);
    const QDate to = std::max(occurrence.EntryDate, occurrence.Planned()).addDays(reach);
    const cImportEntryList rows = m_hive.GetImportHive(eKeepCache::Yes).GetImportEntryByArea(series.ID, from, to);
    return std::any_of(rows.begin(), rows.end(), [&](const cImportEntry& row) {
        const std::optional<cEntryItem> paid = modOccurrence::Nearest(series, row.ImportDate, fixMods);
        // A transfer has a row in each of its accounts.
        const bool isSameSide = (row.ImportValue < 0) == (wanted.ImportValue < 0);
        return row.ID != wanted.ID && isSameSide && paid && paid->Planned() == occurrence.Planned();
    });
}
