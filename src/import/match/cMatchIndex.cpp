#include "import/match/cMatchIndex.h"

#include "import/propose/modOccurrence.h"
#include "import/stage/cImportHive.h"
#include "model/modBalance.h"
#include "model/modRecurrence.h"
#include "model/modSplit.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"

#include <QMap>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace {

constexpr int margin = 31; // so that at both ends of the range the nearest occurrence of a series is known

} // namespace

cMatchIndex::cMatchIndex(cDataAccess& data, const cImportHive& hive, const QString& account,
                         const modPeriod::cRange& range, const cIsHere& isHere)
    : m_account(account),
      m_range{range.Start.addDays(-modMatchScore::FarthestDays), range.End.addDays(modMatchScore::FarthestDays)}
{
    Load(data);
    Sort();
    NoteTakers(hive, isHere);
    m_texts.resize(m_items.size());
}

bool cMatchIndex::Covers(QDate day) const
{
    return m_range.Start <= day.addDays(-modMatchScore::FarthestDays)
        && day.addDays(modMatchScore::FarthestDays) <= m_range.End;
}

void cMatchIndex::Load(cDataAccess& data)
{
    cEntryQuery query;
    query.Start = m_range.Start.addDays(-margin);
    query.End = m_range.End.addDays(margin);
    query.Account = m_account;
    const cEntryItemList entries = data.GetEntries(query);
    m_items.reserve(static_cast<size_t>(entries.size()));
    QMap<std::pair<int, QDate>, cEntryItemList> splits; // by group and planned day
    for (const cEntryItem& entry : entries) {
        if (entry.EntryCategory == modWord::Startguthaben) {
            continue; // no bank ever carried it out
        }
        if (const int group = modSplit::Group(entry); group > 0) {
            splits[{group, entry.Planned()}].append(entry);
        } else {
            Add(entry, modBalance::Effect(entry, m_account));
        }
    }
    for (const cEntryItemList& parts : std::as_const(splits)) {
        AddSplit(parts);
    }
}

void cMatchIndex::Add(const cEntryItem& occurrence, qint64 cents)
{
    const bool isSeries = modRecurrence::IsRecurring(occurrence.EntryInterval);
    NoteDays(occurrence.ID, occurrence);
    m_items.push_back({occurrence, cents, isSeries, false, {}});
}

// An occurrence that was moved is found by both its days; see modOccurrence.
void cMatchIndex::NoteDays(int id, const cEntryItem& occurrence)
{
    std::vector<cPlace>& places = m_byEntry[id];
    places.push_back({occurrence.EntryDate.toJulianDay(), occurrence.PlannedDate.isValid(), m_items.size()});
    if (occurrence.PlannedDate.isValid()) {
        places.push_back({occurrence.PlannedDate.toJulianDay(), false, m_items.size()});
    }
}

void cMatchIndex::AddSplit(const cEntryItemList& parts)
{
    if (!modSplit::IsWhole(parts)) {
        for (const cEntryItem& part : parts) {
            Add(part, modBalance::Effect(part, m_account));
        }
        return;
    }
    // The bank knows only the whole. Whichever part a row was assigned to, the whole is taken.
    for (qsizetype i = 1; i < parts.size(); ++i) {
        NoteDays(parts.at(i).ID, parts.at(i));
    }
    Add(parts.first(), modSplit::Net(parts));
    m_items.back().IsSplit = parts.size() > 1;
}

void cMatchIndex::Sort()
{
    m_places.reserve(m_items.size());
    for (size_t number = 0; number < m_items.size(); ++number) {
        const cEntryItem& entry = m_items[number].Entry;
        m_places.push_back({entry.EntryDate.toJulianDay(), entry.PlannedDate.isValid(), number});
        if (entry.PlannedDate.isValid()) {
            m_places.push_back({entry.PlannedDate.toJulianDay(), false, number});
        }
    }
    std::sort(m_places.begin(), m_places.end());
    for (std::vector<cPlace>& places : m_byEntry) {
        std::sort(places.begin(), places.end());
    }
}

void cMatchIndex::NoteTakers(const cImportHive& hive, const cIsHere& isHere)
{
    for (auto entry = m_byEntry.cbegin(); entry != m_byEntry.cend(); ++entry) {
        const cImportEntryList rows = hive.GetImportEntriesByAssignedID(entry.key());
        for (const cImportEntry& row : rows) {
            const cItem& first = m_items[entry->front().Number];
            // A transfer has a row in each of its accounts.
            if (!row.ImportAssigned || (first.Entry.IsTransfer() && !isHere(row))) {
                continue;
            }
            if (const std::optional<size_t> number = Nearest(*entry, row.ImportDate)) {
                m_items[*number].Takers.append(row.ID);
            }
        }
    }
}

std::optional<size_t> cMatchIndex::Nearest(const std::vector<cPlace>& occurrences, QDate day) const
{
    const qint64 wanted = day.toJulianDay();
    const auto next = std::lower_bound(occurrences.begin(), occurrences.end(), wanted, IsBefore);
    const auto distance = [&](auto place) { return std::abs(place->Day - wanted); };
    auto nearest = next;
    if (next != occurrences.begin() && (next == occurrences.end() || distance(std::prev(next)) <= distance(next))) {
        nearest = std::lower_bound(occurrences.begin(), next, std::prev(next)->Day, IsBefore);
    }
    const cItem& item = m_items[nearest->Number];
    const bool isNear = !item.IsSeries || distance(nearest) <= modOccurrence::Reach(item.Entry.EntryInterval);
    return isNear ? std::optional(nearest->Number) : std::nullopt;
}

std::vector<size_t> cMatchIndex::Around(QDate day, qint64 cents) const
{
    const qint64 first = day.toJulianDay() - modMatchScore::FarthestDays;
    const qint64 last = day.toJulianDay() + modMatchScore::FarthestDays;
    std::vector<size_t> numbers;
    auto place = std::lower_bound(m_places.begin(), m_places.end(), first, IsBefore);
    for (; place != m_places.end() && place->Day <= last; ++place) {
        const cItem& item = m_items[place->Number];
        const bool isSameDirection = (item.Cents < 0) == (cents < 0) && item.Cents != 0 && cents != 0;
        if (isSameDirection && (!item.IsSeries || Nearest(*m_byEntry.constFind(item.Entry.ID), day) == place->Number)) {
            numbers.push_back(place->Number);
        }
    }
    // One that was moved may have been found by both its days.
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    return numbers;
}

const cMatchText& cMatchIndex::Text(size_t number)
{
    std::optional<cMatchText>& text = m_texts[number];
    if (!text) {
        const cEntryItem& entry = m_items[number].Entry;
        text.emplace(entry.EntryDescription, entry.EntryCategory);
    }
    return *text;
}

bool cMatchIndex::IsTaken(size_t number, int rowId) const
{
    const QList<int>& takers = m_items[number].Takers;
    return std::any_of(takers.begin(), takers.end(), [&](int taker) { return taker != rowId; });
}
