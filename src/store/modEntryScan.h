#pragma once

#include "model/cEntryItem.h"
#include "model/cEntryItemFixMod.h"
#include "model/cEntryQuery.h"
#include "store/cDatabase.h"
#include "store/modRow.h"

#include <QDate>
#include <QHash>

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

// What all queries for entries of a period share: conditions, days, series, order.
namespace modEntryScan {

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

// Who compares the days of one-off entries with the period.
enum class eDays { ByStatement, ByReader };

[[nodiscard]] cCondition ConditionOf(const cEntryQuery& query, eRepetition repetition, eDays days = eDays::ByStatement);

// The rows that fulfil a condition, by day.
[[nodiscard]] std::string SelectBy(const cCondition& where);

enum class eDay { Before, Inside, After, Unclear };

// Where stored days lie. SQLite's date() would take most of the time of a scan, and for a plain day it says nothing
// new. Unclear: the text is something else, and only SQLite knows what.
class cDayRange
{
public:
    cDayRange(QDate first, QDate last);

    [[nodiscard]] eDay Place(std::string_view bytes)
    {
        if (bytes != m_before) { // rows often have the day of the one before
            m_before = bytes;
            m_placeBefore = PlaceOf(bytes);
        }
        return m_placeBefore;
    }

private:
    [[nodiscard]] eDay PlaceOf(std::string_view bytes) const;

    std::string m_first; // empty: open
    std::string m_last;
    std::string m_before;
    eDay m_placeBefore = eDay::Unclear; // as an empty text is
};

// In place and stable, so that entries of one day stay in the order of the rows.
void SortByDate(cEntryItemList& entries);

// Makes occurrences of series, with the corrections of the book.
class cSeriesExpander
{
public:
    explicit cSeriesExpander(cDatabase& database) : m_database(database) {}

    void Expand(const cEntryItem& entry, const cEntryQuery& query, cEntryItemList& entries);

private:
    cDatabase& m_database;
    std::optional<QHash<int, cEntryItemFixModList>> m_fixMods;
};

using fnTake = std::function<void(std::span<const std::string_view>)>;

// Hands the one-off entries of a query that fulfil `condition` as well to `take`, with the columns that are named, of
// which the first is the day; gives all series of the query by day. False when one of the days is unclear, and then
// only the series are whole.
[[nodiscard]] bool ReadAtOnce(cDatabase& database, const cEntryQuery& query, const cCondition& condition,
                              const std::string& columns, const fnTake& take, cEntryItemList& series);

} // namespace modEntryScan
