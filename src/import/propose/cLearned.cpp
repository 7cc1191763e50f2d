#include "import/propose/cLearned.h"

#include "import/read/modCounterparty.h"
#include "import/stage/cImportHiveCache.h"
#include "store/cDataAccess.h"

#include <tuple>

namespace {

constexpr int fewEntries = 500; // up to here single entries are read when they are asked for

} // namespace

cLearned::cLearned(cDataAccess& data, cImportHiveCache& hive) : m_data(data)
{
    Build(hive);
    if (m_entryIds.size() > fewEntries) {
        LoadAll();
    }
}

void cLearned::Build(cImportHiveCache& hive)
{
    const cImportEntryList rows = hive.GetImportHive().getImportEntryList();
    for (const cImportEntry& row : rows) {
        if (!row.ImportAssigned || row.ImportAssignedEntry < 0) {
            continue;
        }
        m_entryIds.insert(row.ImportAssignedEntry);
        if (const QString key = modCounterparty::AccountKey(row); !key.isEmpty()) {
            m_byAccount[key].append({row.ID, row.ImportAssignedEntry});
        }
        if (const QString key = modCounterparty::NameKey(row); !key.isEmpty()) {
            m_byName[key].append({row.ID, row.ImportAssignedEntry});
        }
    }
}

void cLearned::LoadAll()
{
    const QStringList accounts = m_data.GetEntryAccounts();
    for (const QString& account : accounts) {
        const cEntryItemList entries = m_data.GetEntriesOfAccount(account);
        for (const cEntryItem& entry : entries) {
            if (m_entryIds.contains(entry.ID)) {
                m_entries.insert(entry.ID, {entry.EntryDate, entry.EntryCategory, entry.EntryInterval});
            }
        }
    }
}

const cLearned::cEntry& cLearned::Entry(int id)
{
    auto found = m_entries.find(id);
    if (found == m_entries.end()) {
        const cEntryItem entry = m_data.LoadEntry(id).value_or(cEntryItem());
        found = m_entries.insert(id, {entry.EntryDate, entry.EntryCategory, entry.EntryInterval});
    }
    return *found;
}

std::optional<cLearned::cChoice> cLearned::Find(const cImportEntry& row)
{
    if (const auto choice = Choose(m_byAccount.value(modCounterparty::AccountKey(row)), row.ID)) {
        return choice;
    }
    return Choose(m_byName.value(modCounterparty::NameKey(row)), row.ID);
}

std::optional<cLearned::cChoice> cLearned::Choose(const QList<cBooked>& rows, int exceptRow)
{
    struct cTally
    {
        QSet<int> Entries;
        QDate Newest;
        int NewestRow = 0;
        QString Interval;
    };
    QHash<QString, cTally> tallies;
    for (const cBooked& booked : rows) {
        const cEntry& entry = Entry(booked.EntryId);
        if (booked.RowId == exceptRow || entry.Category.isEmpty()) {
            continue;
        }
        cTally& tally = tallies[entry.Category];
        tally.Entries.insert(booked.EntryId);
        if (std::tie(entry.Date, booked.RowId) > std::tie(tally.Newest, tally.NewestRow)) {
            tally.Newest = entry.Date;
            tally.NewestRow = booked.RowId;
            tally.Interval = entry.Interval;
        }
    }
    std::optional<cChoice> best;
    std::tuple<qsizetype, QDate, int> bestRank;
    for (auto tally = tallies.cbegin(); tally != tallies.cend(); ++tally) {
        const std::tuple rank(tally->Entries.size(), tally->Newest, tally->NewestRow);
        if (!best || rank > bestRank) {
            best = cChoice{tally.key(), tally->Interval, static_cast<int>(tally->Entries.size())};
            bestRank = rank;
        }
    }
    return best;
}
