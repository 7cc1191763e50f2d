#pragma once

#include "model/cEntryItem.h"
#include "model/cEntryItemFixMod.h"

#include <QDate>
#include <QString>

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>

class cRows;

// From the bytes of a row to the fields of a record, and back.
namespace modRow {

// Texts of entries and staged rows are stored with every apostrophe doubled, although values are bound: existing files
// hold them like that and have to read back the same.
[[nodiscard]] QString Doubled(const QString& text);
[[nodiscard]] QString Undoubled(QString text);

// The doubled text of a row.
[[nodiscard]] QString ReadDoubled(std::string_view bytes);

// "yyyy-mm-dd" with or without a time behind it; invalid for anything else.
[[nodiscard]] QDate ReadDate(std::string_view bytes);

// Whole cents of an amount text, without its sign; empty when it is no number.
[[nodiscard]] std::optional<qint64> ReadCents(std::string_view bytes);

} // namespace modRow

enum class eQuotes { Plain, Doubled };

// Texts of a query that come again and again: equal ones share one string.
class cWordCache
{
public:
    explicit cWordCache(eQuotes quotes) : m_quotes(quotes) {}

    [[nodiscard]] QString Get(std::string_view bytes);

private:
    struct cHash : std::hash<std::string_view>
    {
        using is_transparent = void; // NOLINT(readability-identifier-naming): the name the standard library looks for
    };

    eQuotes m_quotes;
    std::unordered_map<std::string, QString, cHash, std::equal_to<>> m_texts;
    std::string m_lastBytes; // rows often have the text of the one before
    QString m_last;
};

// The same for days.
class cDayCache
{
public:
    [[nodiscard]] QDate Get(std::string_view bytes);

private:
    std::string m_lastBytes;
    QDate m_last;
};

// Reads rows of table `data`; one reader per query.
class cEntryReader
{
public:
    // The day first, because scans look at it before anything else.
    static constexpr const char* Columns = "EntryDate, ID, EntryDateEnd, EntryType, EntryInterval, EntryAccount, "
                                           "EntryAccountMove, EntryCategory, EntryValue, EntryDescription, EntryFlags";
    inline static const std::string Select = std::string("SELECT ") + Columns + " FROM data";

    [[nodiscard]] cEntryItem Read(const cRows& row);
    [[nodiscard]] cEntryItem Read(std::span<const std::string_view> row); // of Taken with these columns

private:
    template <typename tRow>
    [[nodiscard]] cEntryItem ReadFrom(const tRow& row);

    cDayCache m_days;
    cDayCache m_ends;
    cWordCache m_types{eQuotes::Plain};
    cWordCache m_intervals{eQuotes::Plain};
    cWordCache m_accounts{eQuotes::Doubled};
    cWordCache m_moves{eQuotes::Doubled};
    cWordCache m_categories{eQuotes::Doubled};
};

// Reads rows of table `datamod`.
namespace modFixModRow {

inline constexpr const char* Select =
    "SELECT ID, EntryRelation, EntryModType, EntryStartDate, EntryEndDate, EntryValue, EntryComment FROM datamod";

[[nodiscard]] cEntryItemFixMod Read(const cRows& row);

// EntryModType as it is stored: "Betrag", or "Betrag; Tag 2026-03-04" for one that moves its occurrence. A program that
// does not know of days reads the amount all the same.
[[nodiscard]] QString Kind(const cEntryItemFixMod& fixMod);

// SQL: the series that have an occurrence on another day than planned.
inline constexpr const char* MovedSeries = "SELECT EntryRelation FROM datamod WHERE EntryModType LIKE '%; Tag %'";

} // namespace modFixModRow
