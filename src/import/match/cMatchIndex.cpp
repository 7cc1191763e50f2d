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
    QMap<std::pair<int, QDate>, cEntryItemList> splits; // by group and day
    for (const cEntryItem& entry : entries) {
        if (entry.EntryCategory == modWord::Startguthaben) {
            continue; // no bank ever carried it out
        }
        if (const int group = modSplit::Group(entry); group > 0) {
            splits[{group, entry.EntryDate}].append(entry);
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
    m_byEntry[occurrence.ID].push_back(m_items.size());
    m_items.push_back({occurrence, cents, isSeries, false, {}});
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
        m_byEntry[parts.at(i).ID].push_back(m_items.size());
    }
    Add(parts.first(), modSplit::Net(parts));
    m_items.back().IsSplit = parts.size() > 1;
}

void cMatchIndex::Sort()
{
    m_places.reserve(m_items.size());
    for (size_t number = 0; number < m_items.size(); ++number) {
        m_places.push_back({m_items[number].Entry.EntryDate.toJulianDay(), number});
    }
    std::sort(m_places.begin(), m_places.end(),
              [](const cPlace& a, const cPlace& b) { return std::pair(a.Day, a.Number) < std::pair(b.Day, b.Number); });
    for (std::vector<size_t>& numbers : m_byEntry) {
        std::sort(numbers.begin(), numbers.end(), [this](size_t a, size_t b) {
            return std::pair(m_items[a].Entry.EntryDate, a) < std::pair(m_items[b].Entry.EntryDate, b);
        });
    }
}

void cMatchIndex::NoteTakers(const cImportHive& hive, const cIsHere& isHere)
{
    for (auto entry = m_byEntry.cbegin(); entry != m_byEntry.cend(); ++entry) {
        const cImportEntryList rows = hive.GetImportEntriesByAssignedID(entry.key());
        for (const cImportEntry& row : rows) {
            const cItem& first = m_items[entry->front()];
            // A transfer has a row in each of its accounts.
            if (!row.ImportAssigned || (first.Entry.EntryType == modWord::Umbuchung && !isHere(row))) {
                continue;
            }
            if (const std::optional<size_t> number = Nearest(*entry, row.ImportDate)) {
                m_items[*number].Takers.append(row.ID);
            }
        }
    }
}

std::optional<size_t> cMatchIndex::Nearest(const std::vector<size_t>& occurrences, QDate day) const
{
    const auto distance = [&](size_t number) { return std::abs(m_items[number].Entry.EntryDate.daysTo(day)); };
    const auto next = std::lower_bound(occurrences.begin(), occurrences.end(), day, [this](size_t number, QDate date) {
        return m_items[number].Entry.EntryDate < date;
    });
    auto nearest = next;
    if (next != occurrences.begin() && (next == occurrences.end() || distance(*std::prev(next)) <= distance(*next))) {
        nearest = std::prev(next);
    }
    const cItem& item = m_items[*nearest];
    const bool isNear = !item.IsSeries || distance(*nearest) <= modOccurrence::Reach(item.Entry.EntryInterval);
    return isNear ? std::optional(*nearest) : std::nullopt;
}

std::vector<size_t> cMatchIndex::Around(QDate day, qint64 cents) const
{
    const qint64 first = day.toJulianDay() - modMatchScore::FarthestDays;
    const qint64 last = day.toJulianDay() + modMatchScore::FarthestDays;
    std::vector<size_t> numbers;
    auto place = std::lower_bound(m_places.begin(), m_places.end(), first,
                                  [](const cPlace& at, qint64 wanted) { return at.Day < wanted; });
    for (; place != m_places.end() && place->Day <= last; ++place) {
        const cItem& item = m_items[place->Number];
        const bool isSameDirection = (item.Cents < 0) == (cents < 0) && item.Cents != 0 && cents != 0;
        if (isSameDirection && (!item.IsSeries || Nearest(*m_byEntry.constFind(item.Entry.ID), day) == place->Number)) {
            numbers.push_back(place->Number);
        }
    }
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
