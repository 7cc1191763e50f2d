#include "base/modDate.h"
#include "model/modRecurrence.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "store/cDatabase.h"
#include "store/modRow.h"

#include <algorithm>
#include <string>
#include <unordered_map>

using namespace Qt::Literals::StringLiterals;

namespace {

enum class eRepetition { Once, Recurring };

// A WHERE clause that grows condition by condition, with the values for it.
struct cCondition
{
    std::string Sql;
    cBoundList Values;

    void Add(const std::string& sql, const cBoundList& values = {})
    {
        Sql += sql;
        Values.insert(Values.end(), values.begin(), values.end());
    }
};

// A series that lies outside the period may have an occurrence that moved into it.
const std::string OrMoved = std::string(" OR ID IN (") + modFixModRow::MovedSeries + "))";

// Who compares the days of one-off entries with the period.
enum class eDays { ByStatement, ByReader };

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

cCondition ConditionOf(const cEntryQuery& query, eRepetition repetition, eDays days = eDays::ByStatement)
{
    cCondition where{" WHERE ", {}};
    where.Add(repetition == eRepetition::Once ? "EntryInterval = 'Einmalig'" : "EntryInterval <> 'Einmalig'");
    if (days == eDays::ByStatement) {
        AddPeriod(where, query, repetition);
    }
    AddType(where, query.Type, query.Account);
    AddCategory(where, query.Category);
    return where;
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
        || (query.End.isValid() && entry.EntryDate > query.End);
    return isOutside && !modRecurrence::IsRecurring(entry.EntryInterval);
}

// Stable, so that entries of one day stay in the order of the rows.
void SortByDate(cEntryItemList& entries)
{
    const auto isEarlier = [](const cEntryItem& a, const cEntryItem& b) { return a.EntryDate < b.EntryDate; };
    if (std::is_sorted(entries.cbegin(), entries.cend(), isEarlier)) {
        return;
    }
    std::vector<std::pair<qint64, qsizetype>> order; // day and position
    order.reserve(static_cast<size_t>(entries.size()));
    for (const cEntryItem& entry : std::as_const(entries)) {
        order.emplace_back(entry.EntryDate.toJulianDay(), static_cast<qsizetype>(order.size()));
    }
    std::sort(order.begin(), order.end());
    cEntryItemList sorted;
    sorted.reserve(entries.size());
    for (const auto& [day, position] : order) {
        sorted.append(std::move(entries[position]));
    }
    entries = std::move(sorted);
}

enum class eDay { Inside, Outside, Unclear };

// Where a stored day lies. SQLite's date() would take most of the time of a scan, and for a plain day it says nothing
// new. Unclear: the text is something else, and only SQLite knows what.
eDay Place(std::string_view bytes, const cEntryQuery& query)
{
    constexpr size_t plainDay = 10; // "yyyy-mm-dd"
    const QDate day = bytes.size() == plainDay ? modRow::ReadDate(bytes) : QDate();
    if (!day.isValid()) {
        return eDay::Unclear;
    }
    const bool isBefore = query.Start.isValid() && day < query.Start;
    const bool isAfter = query.End.isValid() && day > query.End;
    return isBefore || isAfter ? eDay::Outside : eDay::Inside;
}

// Rows that are certain to lie outside the period do not even leave SQLite: of a month in a large book these are nearly
// all. The text of a plain day can be compared as it is. Newer versions of SQLite count days that a month does not have
// ("2026-02-31") on into the next one, so the period begins some days earlier here; the reader looks closely at what
// is left.
void AddNearness(cCondition& where, const cEntryQuery& query)
{
    constexpr int overflow = 3;
    if (query.Start.isValid() || query.End.isValid()) {
        const QString first = modDate::ToIso(query.Start.addDays(-overflow)); // empty without one, which is before all
        const QString last = modDate::ToIso(query.End);
        where.Add(" AND (EntryDate BETWEEN ? AND ? OR EntryDate NOT LIKE '____-__-__')",
                  {first, last.isEmpty() ? u"9999-99"_s : last});
    }
}

// Reads rows as they lie in the table. False when one of the days is unclear.
bool ReadUnordered(cDatabase& database, const cEntryQuery& query, cEntryItemList& entries)
{
    cCondition where = ConditionOf(query, eRepetition::Once, eDays::ByReader);
    AddNearness(where, query);
    cEntryReader reader;
    cRows rows(database, cEntryReader::Select + where.Sql, where.Values);
    while (rows.Next()) {
        const eDay day = Place(rows.Bytes(1), query);
        if (day == eDay::Unclear) {
            return false;
        }
        if (day == eDay::Inside) {
            entries.append(reader.Read(rows));
        }
    }
    return true;
}

void ReadSingle(cDatabase& database, const cEntryQuery& query, cEntryItemList& entries)
{
    // SQLite carries all columns through its sorter, which takes longer than to read them. So the days are sorted here.
    if (ReadUnordered(database, query, entries)) {
        SortByDate(entries);
        return;
    }
    entries.clear();
    const cCondition where = ConditionOf(query, eRepetition::Once);
    cEntryReader reader;
    cRows rows(database, cEntryReader::Select + where.Sql + " ORDER BY date(EntryDate) ASC", where.Values);
    while (rows.Next()) {
        entries.append(reader.Read(rows));
    }
}

// Adds the occurrences of each series to `entries` and calls `seriesDone` after each. Who only sums them up empties the
// list there: those of a daily series without end are thousands.
template <typename tDone>
void ReadRecurring(cDatabase& database, const cEntryQuery& query, cEntryItemList& entries, tDone seriesDone)
{
    const cCondition where = ConditionOf(query, eRepetition::Recurring);
    const modPeriod::cRange period{query.Start, query.End};
    std::optional<QHash<int, cEntryItemFixModList>> fixMods;
    cEntryReader reader;
    cRows rows(database, cEntryReader::Select + where.Sql + " ORDER BY date(EntryDate) ASC", where.Values);
    while (rows.Next()) {
        const cEntryItem entry = reader.Read(rows);
        if (IsOutsidePeriod(entry, query)) {
            continue;
        }
        if (!fixMods) {
            fixMods = ReadFixMods(database);
        }
        modRecurrence::Expand(entry, period, fixMods->value(entry.ID), entries);
        seriesDone();
    }
}

// Sums by the stored bytes of kind, account and target. Neighbours mostly share them, so the sum found last is tried
// before the hash.
class cSums
{
public:
    void Add(std::string_view type, std::string_view account, std::string_view move, qint64 cents)
    {
        if (m_last >= m_sums.size() || !m_sums[m_last].Is(type, account, move)) {
            m_last = Find(type, account, move);
        }
        m_sums[m_last].Cents += cents;
    }

    [[nodiscard]] QList<cAccountSum> Take() const
    {
        QList<cAccountSum> sums;
        for (const cSum& sum : m_sums) {
            sums.append({QString::fromStdString(sum.Type), modRow::ReadDoubled(sum.Account),
                         modRow::ReadDoubled(sum.Move), sum.Cents});
        }
        return sums;
    }

private:
    struct cSum
    {
        std::string Type;
        std::string Account;
        std::string Move;
        qint64 Cents = 0;

        [[nodiscard]] bool Is(std::string_view type, std::string_view account, std::string_view move) const
        {
            return Account == account && Type == type && Move == move;
        }
    };

    size_t Find(std::string_view type, std::string_view account, std::string_view move)
    {
        constexpr char between = '\0';
        m_key.assign(type).append(1, between).append(account).append(1, between).append(move);
        const auto [place, isNew] = m_places.try_emplace(m_key, m_sums.size());
        if (isNew) {
            m_sums.push_back({std::string(type), std::string(account), std::string(move)});
        }
        return place->second;
    }

    std::vector<cSum> m_sums;
    std::unordered_map<std::string, size_t> m_places;
    std::string m_key; // kept for its memory
    size_t m_last = 0;
};

// False when one of the days is unclear; only possible while the reader looks at them.
bool SumSingle(cDatabase& database, const cEntryQuery& query, bool withStartBalance, eDays days, cSums& sums)
{
    cCondition where = ConditionOf(query, eRepetition::Once, days);
    if (!withStartBalance) {
        where.Add(" AND IFNULL(EntryCategory, '') <> ?", {modWord::Startguthaben});
    }
    cRows rows(database,
               "SELECT EntryDate, EntryType, EntryAccount, EntryAccountMove, EntryValue FROM data" + where.Sql,
               where.Values);
    while (rows.Next()) {
        const eDay day = days == eDays::ByStatement ? eDay::Inside : Place(rows.Bytes(0), query);
        if (day == eDay::Unclear) {
            return false;
        }
        if (day == eDay::Inside) {
            sums.Add(rows.Bytes(1), rows.Bytes(2), rows.Bytes(3), modRow::ReadCents(rows.Bytes(4)).value_or(0));
        }
    }
    return true;
}

void SumRecurring(cDatabase& database, const cEntryQuery& query, bool withStartBalance, cSums& sums)
{
    cEntryItemList occurrences;
    ReadRecurring(database, query, occurrences, [&] {
        // All of them share everything but day and amount.
        qint64 cents = 0;
        for (const cEntryItem& item : std::as_const(occurrences)) {
            cents += item.EntryValue;
        }
        if (!occurrences.isEmpty()
            && (withStartBalance || occurrences.first().EntryCategory != modWord::Startguthaben)) {
            const cEntryItem& item = occurrences.first();
            sums.Add(item.EntryType.toStdString(), modRow::Doubled(item.EntryAccount).toStdString(),
                     modRow::Doubled(item.EntryAccountMove).toStdString(), cents);
        }
        occurrences.clear();
    });
}

} // namespace

cEntryItemList cDataAccess::GetEntries(const cEntryQuery& query)
{
    cEntryItemList entries;
    const bool isRead = Read("GetEntries", [&] {
        if (query.Kind != eBookingKind::Fix) {
            ReadSingle(m_database, query, entries);
        }
        if (query.Kind != eBookingKind::Single) {
            ReadRecurring(m_database, query, entries, [] {});
        }
    });
    return isRead ? entries : cEntryItemList{};
}

QList<cAccountSum> cDataAccess::GetSums(const cEntryQuery& query, bool withStartBalance)
{
    cSums sums;
    const bool isRead = Read("GetSums", [&] {
        if (query.Kind != eBookingKind::Fix && !SumSingle(m_database, query, withStartBalance, eDays::ByReader, sums)) {
            sums = {};
            (void)SumSingle(m_database, query, withStartBalance, eDays::ByStatement, sums);
        }
        if (query.Kind != eBookingKind::Single) {
            SumRecurring(m_database, query, withStartBalance, sums);
        }
    });
    return isRead ? sums.Take() : QList<cAccountSum>{};
}
