#include "import/stage/cImportHive.h"

#include <algorithm>
#include <iterator>

namespace {

// Position of the element whose key is `key`, or -1. The first and the last element tell the direction of the list.
template <typename tList, typename tKey>
qsizetype Bisect(const tList& list, int key, const tKey& keyOf)
{
    if (list.isEmpty()) {
        return -1;
    }
    const bool isAscending = keyOf(list.first()) <= keyOf(list.last());
    qsizetype low = 0;
    qsizetype high = list.size() - 1;
    while (low <= high) {
        const qsizetype middle = (low + high) / 2;
        const int found = keyOf(list.at(middle));
        if (found == key) {
            return middle;
        }
        if ((found < key) == isAscending) {
            low = middle + 1;
        } else {
            high = middle - 1;
        }
    }
    return -1;
}

int IdOf(const cImportEntry& entry)
{
    return entry.ID;
}

// The place that keeps a list sorted upwards.
template <typename tList, typename tKey>
qsizetype PlaceFor(const tList& list, int key, const tKey& keyOf)
{
    if (list.isEmpty() || keyOf(list.last()) < key) {
        return list.size();
    }
    const auto place = std::lower_bound(list.begin(), list.end(), key,
                                        [&](const auto& element, int value) { return keyOf(element) < value; });
    return place - list.begin();
}

} // namespace

void cImportHive::setImportEntryList(cImportEntryList entries)
{
    m_entries = std::move(entries);
    m_groups.clear();
    m_isIndexed = false;
    m_index.clear();
    BuildGroups();
}

// Entries are assigned in any order: sorted once, no group has to make room among the others.
void cImportHive::BuildGroups()
{
    QList<std::pair<int, int>> assigned; // entry ID and row ID
    assigned.reserve(m_entries.size());
    for (const cImportEntry& entry : std::as_const(m_entries)) {
        assigned.append({entry.ImportAssignedEntry, entry.ID});
    }
    std::ranges::stable_sort(assigned, {}, &std::pair<int, int>::first);
    for (const auto& [entryId, rowId] : std::as_const(assigned)) {
        if (m_groups.isEmpty() || m_groups.last().EntryId != entryId) {
            m_groups.append(cGroup{entryId, {}});
        }
        m_groups.last().RowIds.append(rowId);
    }
}

QStringList cImportHive::AccountsOf(const cImportEntryList& entries)
{
    QStringList accounts;
    for (const cImportEntry& entry : entries) {
        // Rows of one account stand together: the list is rarely searched.
        if (accounts.isEmpty() || (accounts.last() != entry.ImportAccount && !accounts.contains(entry.ImportAccount))) {
            accounts.append(entry.ImportAccount);
        }
    }
    return accounts;
}

int cImportHive::NextId() const
{
    return m_entries.isEmpty() ? 1 : qMax(m_entries.first().ID, m_entries.last().ID) + 1;
}

qsizetype cImportHive::FindRow(int id) const
{
    return Bisect(m_entries, id, IdOf);
}

qsizetype cImportHive::FindGroup(int entryId) const
{
    return Bisect(m_groups, entryId, [](const cGroup& group) { return group.EntryId; });
}

bool cImportHive::IsImportEntryAvail(int entryId) const
{
    return FindGroup(entryId) >= 0;
}

int cImportHive::GetImportEntryCountByNumber(const QString& account) const
{
    return static_cast<int>(std::count_if(m_entries.begin(), m_entries.end(),
                                          [&](const cImportEntry& entry) { return entry.ImportAccount == account; }));
}

qint64 cImportHive::GetImportEntrySumByNumber(const QString& account) const
{
    qint64 sum = 0;
    for (const cImportEntry& entry : m_entries) {
        sum += entry.ImportAccount == account ? entry.ImportValue : 0;
    }
    return sum;
}

bool cImportHive::IsImportItemAvail(const cImportEntry& entry) const
{
    BuildIndex();
    const auto [first, last] = m_index.equal_range(HashOf(entry));
    return std::any_of(first, last, [&](int rowId) { return m_entries.at(FindRow(rowId)).isEqual(entry); });
}

eKnown cImportHive::Find(const cImportEntry& entry, int newestId) const
{
    BuildIndex();
    const auto [first, last] = m_index.equal_range(HashOf(entry));
    eKnown known = eKnown::No;
    for (auto place = first; place != last; ++place) {
        const cImportEntry& row = m_entries.at(FindRow(*place));
        if (row.isEqual(entry)) {
            return eKnown::Equal;
        }
        if (row.ID <= newestId && row.isEqualButBlanks(entry)) {
            known = eKnown::ButBlanks;
        }
    }
    return known;
}

cImportEntryList cImportHive::AllButBlanks(const cImportEntry& entry) const
{
    BuildIndex();
    const auto [first, last] = m_index.equal_range(HashOf(entry));
    cImportEntryList rows;
    std::transform(first, last, std::back_inserter(rows), [&](int rowId) { return m_entries.at(FindRow(rowId)); });
    rows.removeIf([&](const cImportEntry& row) { return !row.isEqualButBlanks(entry); });
    return rows;
}

std::optional<cImportEntry> cImportHive::GetImportEntryByID(int id) const
{
    const qsizetype row = FindRow(id);
    return row < 0 ? std::nullopt : std::optional(m_entries.at(row));
}

std::optional<cImportEntry> cImportHive::GetImportEntryByAssignedID(int entryId) const
{
    const qsizetype group = FindGroup(entryId);
    return group < 0 ? std::nullopt : GetImportEntryByID(m_groups.at(group).RowIds.first());
}

cImportEntryList cImportHive::GetImportEntriesByAssignedID(int entryId) const
{
    cImportEntryList entries;
    const qsizetype group = FindGroup(entryId);
    if (group < 0) {
        return entries;
    }
    entries.reserve(m_groups.at(group).RowIds.size());
    for (const int rowId : m_groups.at(group).RowIds) {
        entries.append(m_entries.at(FindRow(rowId)));
    }
    return entries;
}

QList<int> cImportHive::OpenIds() const
{
    QList<int> ids;
    for (const cImportEntry& row : m_entries) {
        if (!row.ImportAssigned) {
            ids.append(row.ID);
        }
    }
    return ids;
}

cImportEntryList cImportHive::GetImportEntryByArea(int entryId, QDate from, QDate to) const
{
    cImportEntryList entries = GetImportEntriesByAssignedID(entryId);
    entries.removeIf([&](const cImportEntry& entry) { return entry.ImportDate < from || entry.ImportDate > to; });
    return entries;
}

void cImportHive::Reserve(qsizetype rows)
{
    m_entries.reserve(m_entries.size() + rows);
}

void cImportHive::Add(const cImportEntry& entry)
{
    m_entries.insert(PlaceFor(m_entries, entry.ID, IdOf), entry);
    AddToGroup(entry.ImportAssignedEntry, entry.ID);
    if (m_isIndexed) {
        AddToIndex(entry);
    }
}

void cImportHive::Change(const cImportEntry& entry)
{
    const qsizetype row = FindRow(entry.ID);
    if (row < 0) {
        return;
    }
    const cImportEntry before = m_entries.at(row);
    m_entries[row] = entry;
    if (before.ImportAssignedEntry != entry.ImportAssignedEntry) {
        RemoveFromGroup(before.ImportAssignedEntry, entry.ID);
        AddToGroup(entry.ImportAssignedEntry, entry.ID);
    }
    if (m_isIndexed) {
        RemoveFromIndex(before);
        AddToIndex(entry);
    }
}

void cImportHive::Remove(int id)
{
    const qsizetype row = FindRow(id);
    if (row < 0) {
        return;
    }
    const cImportEntry before = m_entries.takeAt(row);
    RemoveFromGroup(before.ImportAssignedEntry, id);
    if (m_isIndexed) {
        RemoveFromIndex(before);
    }
}

void cImportHive::AddToGroup(int entryId, int rowId)
{
    const qsizetype found = FindGroup(entryId);
    if (found < 0) {
        const qsizetype place = PlaceFor(m_groups, entryId, [](const cGroup& group) { return group.EntryId; });
        m_groups.insert(place, {entryId, {rowId}});
        return;
    }
    QList<int>& rows = m_groups[found].RowIds;
    const bool isDescending = m_entries.size() > 1 && m_entries.first().ID > m_entries.last().ID;
    rows.insert(isDescending ? rows.size() : PlaceFor(rows, rowId, [](int id) { return id; }), rowId);
}

void cImportHive::RemoveFromGroup(int entryId, int rowId)
{
    const qsizetype found = FindGroup(entryId);
    if (found < 0) {
        return;
    }
    QList<int>& rows = m_groups[found].RowIds;
    if (const qsizetype place = Bisect(rows, rowId, [](int id) { return id; }); place >= 0) {
        rows.removeAt(place);
    }
    if (rows.isEmpty()) {
        m_groups.removeAt(found);
    }
}

size_t cImportHive::HashOf(const cImportEntry& entry) const
{
    if (!entry.isEqual(m_asked)) {
        m_asked = entry;
        m_askedHash = entry.EqualHash();
    }
    return m_askedHash;
}

void cImportHive::AddToIndex(const cImportEntry& entry) const
{
    m_index.insert(HashOf(entry), entry.ID);
}

void cImportHive::RemoveFromIndex(const cImportEntry& entry) const
{
    m_index.remove(entry.EqualHash(), entry.ID);
}

void cImportHive::BuildIndex() const
{
    if (m_isIndexed) {
        return;
    }
    m_index.clear();
    m_index.reserve(m_entries.size());
    for (const cImportEntry& entry : m_entries) {
        AddToIndex(entry);
    }
    m_isIndexed = true;
}
