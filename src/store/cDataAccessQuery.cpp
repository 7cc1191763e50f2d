#include "base/modDate.h"
#include "model/modRecurrence.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "store/cDatabase.h"
#include "store/modRow.h"

#include <algorithm>
#include <numeric>
#include <span>
#include <string>
#include <unordered_map>

using namespace Qt::Literals::StringLiterals;

namespace {

enum class eRepetition { Once, Recurring };

// A condition that grows part by part, with the values for it.
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
    cCondition where;
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

// Stable, so that entries of one day stay in the order of the rows. The days of all years with four digits have 22
// bits: to deal them out twice takes a tenth of the time of comparing them.
void SortByDate(cEntryItemList& entries)
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
    cEntryItemList sorted;
    sorted.reserve(entries.size());
    for (const auto& [day, position] : order) {
        sorted.append(std::move(entries[position]));
    }
    entries = std::move(sorted);
}

enum class eDay { Before, Inside, After, Unclear };

// Where stored days lie. SQLite's date() would take most of the time of a scan, and for a plain day it says nothing
// new. Unclear: the text is something else, and only SQLite knows what.
class cDayRange
{
public:
    cDayRange(QDate first, QDate last)
        : m_first(first.isValid() ? modDate::ToIso(first).toStdString() : std::string()),
          m_last(last.isValid() ? modDate::ToIso(last).toStdString() : std::string())
    {
    }

    [[nodiscard]] eDay Place(std::string_view bytes)
    {
        if (bytes != m_before) { // rows often have the day of the one before
            m_before = bytes;
            m_placeBefore = PlaceOf(bytes);
        }
        return m_placeBefore;
    }

private:
    // Plain days are in the order of their letters.
    [[nodiscard]] eDay PlaceOf(std::string_view bytes) const
    {
        if (!IsPlain(bytes)) {
            return eDay::Unclear;
        }
        if (!m_first.empty() && bytes < m_first) {
            return eDay::Before;
        }
        return !m_last.empty() && bytes > m_last ? eDay::After : eDay::Inside;
    }

    // A day "yyyy-mm-dd" of the calendar. The last days of a month are looked up, all others are in every month.
    static bool IsPlain(std::string_view bytes)
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
        const bool isEasy =
            bytes.substr(0, 4) > "0000" && month >= "01" && month <= "12" && day >= "01" && day <= always;
        return isEasy || modRow::ReadDate(bytes).isValid();
    }

    std::string m_first; // empty: open
    std::string m_last;
    std::string m_before;
    eDay m_placeBefore = eDay::Unclear; // as an empty text is
};

// The rows that fulfil a condition, by day.
std::string SelectBy(const cCondition& where)
{
    return cEntryReader::Select + " WHERE " + where.Sql + " ORDER BY date(EntryDate) ASC";
}

// The series, and the one-off entries that the reader takes, in one scan of the table. Only between WHEN and THEN does
// SQLite leave out the rest of an AND once a part is false, so that the reader is not asked about rows of no concern.
cCondition EitherOf(const cEntryQuery& query)
{
    cCondition where{"CASE", {}};
    if (query.Kind != eBookingKind::Single) {
        const cCondition series = ConditionOf(query, eRepetition::Recurring);
        where.Add(" WHEN " + series.Sql + " THEN 1", series.Values);
    }
    if (query.Kind != eBookingKind::Fix) {
        const cCondition once = ConditionOf(query, eRepetition::Once, eDays::ByReader);
        where.Add(" WHEN " + once.Sql + " THEN Taken(" + cEntryReader::Columns + ")", once.Values);
    }
    where.Add(" END");
    return where;
}

// Makes occurrences of series, with the corrections of the book.
class cSeriesExpander
{
public:
    explicit cSeriesExpander(cDatabase& database) : m_database(database) {}

    void Expand(const cEntryItem& entry, const cEntryQuery& query, cEntryItemList& entries)
    {
        if (IsOutsidePeriod(entry, query)) {
            return;
        }
        if (!m_fixMods) {
            m_fixMods = ReadFixMods(m_database);
        }
        modRecurrence::Expand(entry, {query.Start, query.End}, m_fixMods->value(entry.ID), entries);
    }

private:
    cDatabase& m_database;
    std::optional<QHash<int, cEntryItemFixModList>> m_fixMods;
};

// One-off entries by day, and behind them the occurrences of each series. False when one of the days is unclear.
// A one-off entry is read while the statement looks at its row and is passed over then: to be handed over, or to go
// through SQLite's sorter with all its columns, takes longer than to read it.
bool ReadAtOnce(cDatabase& database, const cEntryQuery& query, cEntryItemList& entries)
{
    const cCondition where = EitherOf(query);
    cDayRange days(query.Start, query.End);
    bool isClear = true;
    cEntryReader reader;
    cEntryItemList series;
    cRows rows(database, SelectBy(where), where.Values, [&](const auto& values) {
        const eDay day = days.Place(values[1]);
        isClear = isClear && day != eDay::Unclear;
        if (isClear && day == eDay::Inside) {
            entries.append(reader.Read(values));
        }
        return false;
    });
    while (rows.Next()) {
        series.append(reader.Read(rows));
    }
    SortByDate(entries);
    cSeriesExpander expander(database);
    for (const cEntryItem& entry : std::as_const(series)) {
        expander.Expand(entry, query, entries);
    }
    return isClear;
}

void ReadSingle(cDatabase& database, const cEntryQuery& query, cEntryItemList& entries)
{
    const cCondition where = ConditionOf(query, eRepetition::Once);
    cEntryReader reader;
    cRows rows(database, SelectBy(where), where.Values);
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
    cSeriesExpander expander(database);
    cEntryReader reader;
    cRows rows(database, SelectBy(where), where.Values);
    while (rows.Next()) {
        expander.Expand(reader.Read(rows), query, entries);
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

    void Add(const cEntryItem& entry, qint64 cents)
    {
        Add(entry.EntryType.toStdString(), modRow::Doubled(entry.EntryAccount).toStdString(),
            modRow::Doubled(entry.EntryAccountMove).toStdString(), cents);
    }

    // Occurrences of one series, which share everything but day and amount.
    void AddSeries(const cEntryItemList& occurrences)
    {
        qint64 cents = 0;
        for (const cEntryItem& item : occurrences) {
            cents += item.EntryValue;
        }
        if (!occurrences.isEmpty()) {
            Add(occurrences.first(), cents);
        }
    }

    void Add(std::span<const std::string_view> stored) // of takenSums
    {
        Add(stored[1], stored[2], stored[3], modRow::ReadCents(stored[4]).value_or(0));
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

const std::string takenSums = "Taken(EntryDate, EntryType, EntryAccount, EntryAccountMove, EntryValue, EntryCategory)";

// False when one of the days is unclear; only possible while the reader looks at them.
bool SumSingle(cDatabase& database, const cEntryQuery& query, bool withStartBalance, eDays days, cSums& sums)
{
    cCondition where = ConditionOf(query, eRepetition::Once, days);
    if (!withStartBalance) {
        where.Add(" AND IFNULL(EntryCategory, '') <> ?", {modWord::Startguthaben});
    }
    cDayRange range(query.Start, query.End);
    bool isClear = true;
    where.Add(" AND " + takenSums);
    cRows rows(database, "SELECT 1 FROM data WHERE " + where.Sql, where.Values, [&](const auto& values) {
        const eDay day = days == eDays::ByStatement ? eDay::Inside : range.Place(values[0]);
        isClear = isClear && day != eDay::Unclear;
        if (day == eDay::Inside) {
            sums.Add(values);
        }
        return false;
    });
    (void)rows.Next();
    return isClear;
}

void SumRecurring(cDatabase& database, const cEntryQuery& query, bool withStartBalance, cSums& sums)
{
    cEntryItemList occurrences;
    ReadRecurring(database, query, occurrences, [&] {
        if (!occurrences.isEmpty()
            && (withStartBalance || occurrences.first().EntryCategory != modWord::Startguthaben)) {
            sums.AddSeries(occurrences);
        }
        occurrences.clear();
    });
}

// What a window is made of: one-off entries of its days, all series, sums of the one-off entries before.
struct cWindowRows
{
    cEntryItemList Single;
    cEntryItemList Series;
    cSums Before;
    cSums StartBefore; // of start balances, which are not among the others
};

bool IsStart(const cEntryItem& entry)
{
    return entry.EntryCategory == modWord::Startguthaben;
}

// False when one of the days is unclear.
bool ReadWindowRows(cDatabase& database, const modPeriod::cRange& range, cWindowRows& window)
{
    cDayRange days(range.Start, range.End);
    const std::string start = modWord::Startguthaben.toStdString();
    bool isClear = true;
    cEntryReader reader;
    cRows rows(database,
               cEntryReader::Select + std::string(" WHERE CASE WHEN EntryInterval = 'Einmalig' THEN ") + takenSums
                   + " ELSE EntryInterval <> 'Einmalig' END",
               {}, [&](const auto& values) {
                   const eDay day = days.Place(values[0]);
                   isClear = isClear && day != eDay::Unclear;
                   if (day == eDay::Before) {
                       (values.back() == start ? window.StartBefore : window.Before).Add(values);
                   }
                   return day == eDay::Inside;
               });
    while (rows.Next()) {
        cEntryItem entry = reader.Read(rows);
        (entry.EntryInterval == modWord::Einmalig ? window.Single : window.Series).append(std::move(entry));
    }
    SortByDate(window.Single);
    SortByDate(window.Series);
    return isClear;
}

// The occurrences of the window's series: sums of those before it, entries of those within.
void ExpandInto(cDatabase& database, const cEntryQuery& before, const cEntryQuery& within, cWindowRows& window)
{
    cSeriesExpander expander(database);
    for (const cEntryItem& series : std::as_const(window.Series)) {
        if (!series.EntryDate.isValid()) {
            continue; // no statement finds a day that nobody can read
        }
        cEntryItemList earlier;
        expander.Expand(series, before, earlier);
        (IsStart(series) ? window.StartBefore : window.Before).AddSeries(earlier);
        expander.Expand(series, within, window.Single);
    }
}

} // namespace

cEntryItemList cDataAccess::GetEntries(const cEntryQuery& query)
{
    cEntryItemList entries;
    const bool isRead = Read("GetEntries", [&] {
        if (ReadAtOnce(m_database, query, entries)) {
            return;
        }
        entries.clear();
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
    if (const auto known = KnownSums(query, withStartBalance)) {
        return *known;
    }
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

cEntryWindow cDataAccess::GetWindow(const modPeriod::cRange& days, QDate balanceDay)
{
    cEntryWindow window{days, {}, {}, {}};
    cEntryQuery within;
    within.Start = days.Start;
    within.End = days.End;
    cEntryQuery before;
    before.End = days.Start.addDays(-1);
    bool isClear = false;
    // Under that name, so that the next list that can be read lifts the refusal of writes after a failure.
    const bool isRead = Read("GetEntries", [&] {
        const cDatabase::cChangeMark mark = m_database.ChangeMark(); // before, in case another program writes meanwhile
        cWindowRows rows;
        isClear = ReadWindowRows(m_database, days, rows);
        ExpandInto(m_database, before, within, rows);
        window.Entries = std::move(rows.Single);
        window.Series = std::move(rows.Series);
        window.Before = rows.Before.Take() + rows.StartBefore.Take();
        if (isClear && !m_database.IsGathering()) { // what is gathered may be taken back
            for (const cEntryItem& entry : std::as_const(window.Entries)) {
                if (entry.EntryDate <= balanceDay) {
                    (IsStart(entry) ? rows.StartBefore : rows.Before).Add(entry, entry.EntryValue);
                }
            }
            m_knownSums = {balanceDay, rows.Before.Take(), rows.StartBefore.Take(), mark};
        }
    });
    if (!isRead) {
        return {days, {}, {}, {}};
    }
    if (!isClear) {
        window.Entries = GetEntries(within);
        window.Before = GetSums(before, true);
    }
    return window;
}

// None when they would have to be read.
std::optional<QList<cAccountSum>> cDataAccess::KnownSums(const cEntryQuery& query, bool withStartBalance)
{
    const bool isOfAll = !query.Start.isValid() && query.Type.isEmpty() && query.Account.isEmpty()
        && query.Category.isEmpty() && query.Kind == eBookingKind::All;
    if (!m_knownSums || !isOfAll || query.End != m_knownSums->End || m_database.IsGathering()) {
        return std::nullopt;
    }
    const bool isLooked = Look("GetSums", [&] {
        if (m_database.ChangeMark() != m_knownSums->Mark) {
            m_knownSums.reset();
        }
    });
    if (!isLooked || !m_knownSums) {
        return std::nullopt;
    }
    return withStartBalance ? m_knownSums->Sums + m_knownSums->StartSums : m_knownSums->Sums;
}
