#include "store/modEntryScan.h"

#include "base/modDate.h"
#include "model/modRecurrence.h"
#include "model/modWord.h"

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

using namespace Qt::Literals::StringLiterals;
using namespace modEntryScan;

namespace {

// A series that lies outside the period may have an occurrence that moved into it.
const std::string OrMoved = std::string(" OR ID IN (") + modFixModRow::MovedSeries + "))";

void AddPeriod(cCondition& where, const cEntryQuery& query, eRepetition repetition)
{
    if (query.Start.isValid() && repetition == eRepetition::Once) {
        where.Add(" AND date(EntryDate) >= ?", {modDate::ToIso(query.Start)});
    } else if (query.Start.isValid()) {
        // An end before 1940, or none at all, stands for a series without end: it ends after every start.
        where.Add(" AND (date(EntryDateEnd) >= ? OR date(EntryDateEnd) < '1940-01-01' OR date(EntryDateEnd) IS NULL"
                      + OrMoved,
                  {modDate::ToIso(query.Start)});
    }
    if (query.End.isValid() && repetition == eRepetition::Once) {
        where.Add(" AND date(EntryDate) <= ?", {modDate::ToIso(query.End)});
    } else if (query.End.isValid()) {
        where.Add(" AND (date(EntryDate) <= ?" + OrMoved, {modDate::ToIso(query.End)});
    }
}

// Transfers into an account count as its income, transfers out of it as its expense.
void AddType(cCondition& where, const QString& type, const QString& account)
{
    const bool hasAccount = !account.isEmpty();
    const QString stored = modRow::Doubled(account);
    if (type == modWord::Einnahmen && hasAccount) {
        where.Add(" AND ((EntryType = 'Einnahme' AND EntryAccount = ?)"
                  " OR (EntryType = 'Umbuchung' AND EntryAccountMove = ?))",
                  {stored, stored});
    } else if (type == modWord::Einnahmen) {
        where.Add(" AND EntryType = 'Einnahme'");
    } else if (type == modWord::Ausgaben && hasAccount) {
        where.Add(" AND (EntryType = 'Ausgabe' OR EntryType = 'Umbuchung') AND EntryAccount = ?", {stored});
    } else if (type == modWord::Ausgaben) {
        where.Add(" AND EntryType = 'Ausgabe'");
    } else if (type == modWord::Umbuchungen && hasAccount) {
        where.Add(" AND EntryType = 'Umbuchung' AND (EntryAccount = ? OR EntryAccountMove = ?)", {stored, stored});
    } else if (type == modWord::Umbuchungen) {
        where.Add(" AND EntryType = 'Umbuchung'");
    } else if (hasAccount) {
        where.Add(" AND (EntryAccount = ? OR (EntryType = 'Umbuchung' AND EntryAccountMove = ?))", {stored, stored});
    }
}

void AddCategory(cCondition& where, const QString& category)
{
    const QString general = u"; Allgemein"_s;
    if (category.isEmpty()) {
        return;
    }
    if (category.endsWith(general)) {
        // The main category itself, without its sub-categories
        where.Add(" AND EntryCategory LIKE ?", {modRow::Doubled(category.chopped(general.size()))});
    } else {
        where.Add(" AND EntryCategory LIKE ?", {QString(modRow::Doubled(category) + u'%')});
    }
}

// All corrections by the entry they belong to: one query is cheaper than one per series.
QHash<int, cEntryItemFixModList> ReadFixMods(cDatabase& database)
{
    QHash<int, cEntryItemFixModList> fixMods;
    cRows rows(database, modFixModRow::Select);
    while (rows.Next()) {
        const cEntryItemFixMod fixMod = modFixModRow::Read(rows);
        fixMods[fixMod.EntryRelation].append(fixMod);
    }
    return fixMods;
}

// A series with an unknown interval is a single occurrence; the query for series lets it pass also when it lies outside
// the period.
bool IsOutsidePeriod(const cEntryItem& entry, const cEntryQuery& query)
{
    const bool isOutside = (query.Start.isValid() && entry.EntryDate < query.Start)
        || (query.End.isValid() && entry.EntryDate > query.End)
        || (query.Start.isValid() && modRecurrence::EffectiveEnd(entry.EntryDateEnd) < query.Start);
    return isOutside && !modRecurrence::IsRecurring(entry.EntryInterval);
}

// A day and the position of its entry.
using cDayPlaces = std::vector<std::pair<quint32, qsizetype>>;

// By some bits of the day; equal ones stay as they are.
cDayPlaces Dealt(const cDayPlaces& places, int shift, int bits)
{
    const quint32 mask = (1U << bits) - 1;
    std::vector<size_t> next(size_t{mask} + 2); // where the next one of each value goes
    for (const auto& [day, position] : places) {
        ++next[((day >> shift) & mask) + 1];
    }
    std::partial_sum(next.begin(), next.end(), next.begin());
    cDayPlaces dealt(places.size());
    for (const auto& place : places) {
        dealt[next[(place.first >> shift) & mask]++] = place;
    }
    return dealt;
}

// A day "yyyy-mm-dd" of the calendar. The last days of a month are looked up, all others are in every month.
bool IsPlain(std::string_view bytes)
{
    constexpr std::string_view form = "0000-00-00";
    constexpr std::string_view always = "28";
    if (bytes.size() != form.size()) {
        return false;
    }
    for (size_t i = 0; i < form.size(); ++i) {
        const bool isDigit = bytes[i] >= '0' && bytes[i] <= '9';
        if (form[i] == '0' ? !isDigit : bytes[i] != form[i]) {
            return false;
        }
    }
    const std::string_view month = bytes.substr(5, 2);
    const std::string_view day = bytes.substr(8);
    const bool isEasy = bytes.substr(0, 4) > "0000" && month >= "01" && month <= "12" && day >= "01" && day <= always;
    return isEasy || modRow::ReadDate(bytes).isValid();
}

// The one-off entries that the reader takes, and the series, in one scan of the table. Only between WHEN and THEN does
// SQLite leave out the rest of an AND once a part is false, so that the reader is not asked about rows of no concern.
cCondition EitherOf(const cEntryQuery& query, const cCondition& condition, const std::string& columns)
{
    cCondition where{"CASE", {}};
    if (query.Kind != eBookingKind::Fix) {
        cCondition once = ConditionOf(query, eRepetition::Once, eDays::ByReader);
        once.Add(condition.Sql, condition.Values);
        where.Add(" WHEN " + once.Sql + " THEN Taken(" + columns + ")", once.Values);
    }
    if (query.Kind != eBookingKind::Single) {
        const cCondition series = ConditionOf(query, eRepetition::Recurring);
        where.Add(" WHEN " + series.Sql + " THEN 1", series.Values);
    }
    where.Add(" END");
    return where;
}

} // namespace

cCondition modEntryScan::ConditionOf(const cEntryQuery& query, eRepetition repetition, eDays days)
{
    cCondition where;
    where.Add(repetition == eRepetition::Once ? "EntryInterval = 'Einmalig'" : "EntryInterval <> 'Einmalig'");
    if (days == eDays::ByStatement) {
        AddPeriod(where, query, repetition);
    }
    AddType(where, query.Type, query.Account);
    AddCategory(where, query.Category);
    return where;
}

std::string modEntryScan::SelectBy(const cCondition& where)
{
    return cEntryReader::Select + " WHERE " + where.Sql + " ORDER BY date(EntryDate) ASC";
}

cDayRange::cDayRange(QDate first, QDate last)
    : m_first(first.isValid() ? modDate::ToIso(first).toStdString() : std::string()),
      m_last(last.isValid() ? modDate::ToIso(last).toStdString() : std::string())
{
}

// Plain days are in the order of their letters.
eDay cDayRange::PlaceOf(std::string_view bytes) const
{
    if (!IsPlain(bytes)) {
        return eDay::Unclear;
    }
    if (!m_first.empty() && bytes < m_first) {
        return eDay::Before;
    }
    return !m_last.empty() && bytes > m_last ? eDay::After : eDay::Inside;
}

// The days of all years with four digits have 22 bits: to deal them out twice takes a tenth of the time of comparing
// them. The entries then change places along the rings of those that take each other's: a second list of them would
// cost more than the order.
void modEntryScan::SortByDate(cEntryItemList& entries)
{
    const auto isEarlier = [](const cEntryItem& a, const cEntryItem& b) { return a.EntryDate < b.EntryDate; };
    if (std::is_sorted(entries.cbegin(), entries.cend(), isEarlier)) {
        return;
    }
    constexpr int bits = 11;
    static const qint64 firstDay = QDate(1, 1, 1).toJulianDay();
    cDayPlaces order;
    order.reserve(static_cast<size_t>(entries.size()));
    for (const cEntryItem& entry : std::as_const(entries)) {
        const qint64 day = entry.EntryDate.isValid() ? entry.EntryDate.toJulianDay() - firstDay + 1 : 0;
        order.emplace_back(static_cast<quint32>(day), static_cast<qsizetype>(order.size()));
    }
    order = Dealt(Dealt(order, 0, bits), bits, bits);
    cEntryItem* const items = entries.data();
    for (qsizetype start = 0; start < entries.size(); ++start) {
        qsizetype from = std::exchange(order[static_cast<size_t>(start)].second, start);
        if (from == start) {
            continue;
        }
        cEntryItem moved = std::move(items[start]);
        qsizetype to = start;
        while (from != start) {
            items[to] = std::move(items[from]);
            to = from;
            from = std::exchange(order[static_cast<size_t>(to)].second, to);
        }
        items[to] = std::move(moved);
    }
}

void cSeriesExpander::Expand(const cEntryItem& entry, const cEntryQuery& query, cEntryItemList& entries)
{
    if (IsOutsidePeriod(entry, query)) {
        return;
    }
    if (!m_fixMods) {
        m_fixMods = ReadFixMods(m_database);
    }
    modRecurrence::Expand(entry, {query.Start, query.End}, m_fixMods->value(entry.ID), entries);
}

// A one-off entry is read while the statement looks at its row and is passed over then: to be handed over, or to go
// through SQLite's sorter with all its columns, takes longer than to read it.
bool modEntryScan::ReadAtOnce(cDatabase& database, const cEntryQuery& query, const cCondition& condition,
                              const std::string& columns, const fnTake& take, cEntryItemList& series)
{
    const cCondition where = EitherOf(query, condition, columns);
    cDayRange days(query.Start, query.End);
    bool isClear = true;
    cRows rows(database, SelectBy(where), where.Values, [&](const auto& values) {
        const eDay day = days.Place(values[0]);
        isClear = isClear && day != eDay::Unclear;
        if (isClear && day == eDay::Inside) {
            take(values);
        }
        return false;
    });
    cEntryReader reader;
    while (rows.Next()) {
        series.append(reader.Read(rows));
    }
    return isClear;
}
