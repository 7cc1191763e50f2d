#include "model/modWord.h"
#include "store/cAccountSums.h"
#include "store/cDataAccess.h"
#include "store/cWindowAhead.h"
#include "store/cWindowRows.h"
#include "store/modEntryScan.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

using namespace modEntryScan;

namespace {

// Sums by kind, category and tags.
class cCategorySums
{
public:
    static constexpr const char* Columns = "EntryDate, EntryType, EntryCategory, EntryDescription, EntryValue";

    void Add(std::span<const std::string_view> stored)
    {
        const std::string_view description =
            stored[3].find(tagMark) == std::string_view::npos ? std::string_view() : stored[3];
        m_sums.Of({stored[1], stored[2], description})
            .Add(m_days.Get(stored[0]), modRow::ReadCents(stored[4]).value_or(0));
    }

    // By their first days, so that of tags that are the same the one that was written first comes first.
    [[nodiscard]] QList<cCategorySum> Take() const
    {
        QList<cCategorySum> sums;
        for (const auto& [texts, found] : m_sums.Parts()) {
            cCategorySum sum = found;
            sum.EntryType = QString::fromStdString(texts[0]);
            sum.EntryCategory = modRow::ReadDoubled(texts[1]);
            sum.EntryDescription = modRow::ReadDoubled(texts[2]);
            sums.append(sum);
        }
        std::stable_sort(sums.begin(), sums.end(),
                         [](const cCategorySum& a, const cCategorySum& b) { return a.First < b.First; });
        return sums;
    }

private:
    static constexpr char tagMark = '#';

    cSumsByTexts<cCategorySum> m_sums;
    cDayCache m_days;
};

// Sums up the one-off entries of a query that fulfil `condition` as well, and hands the occurrences of each series to
// `addSeries`.
template <typename tSums, typename tAdd>
void SumUp(cDatabase& database, const cEntryQuery& query, const cCondition& condition, tSums& sums, tAdd addSeries)
{
    const auto add = [&](std::span<const std::string_view> values) { sums.Add(values); };
    cEntryItemList series;
    if (!ReadAtOnce(database, query, condition, tSums::Columns, add, series)) {
        sums = {};
        cCondition where{"SELECT 1 FROM data WHERE CASE WHEN ", {}};
        const cCondition once = ConditionOf(query, eRepetition::Once);
        where.Add(once.Sql, once.Values);
        where.Add(condition.Sql, condition.Values);
        where.Add(std::string(" THEN Taken(") + tSums::Columns + ") END");
        cRows rows(database, where.Sql, where.Values, [&](const auto& values) {
            add(values);
            return false;
        });
        (void)rows.Next();
    }
    cSeriesExpander expander(database);
    for (const cEntryItem& entry : std::as_const(series)) {
        cEntryItemList occurrences; // those of a daily series without end are thousands
        expander.Expand(entry, query, occurrences);
        if (!occurrences.isEmpty()) {
            addSeries(std::as_const(occurrences));
        }
    }
}

bool IsStart(const cEntryItem& entry)
{
    return entry.EntryCategory == modWord::Startguthaben;
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

QList<cAccountSum> cDataAccess::GetSums(const cEntryQuery& query, bool withStartBalance)
{
    cAccountSums sums;
    if (const auto known = KnownSums(query, withStartBalance)) {
        return *known;
    }
    const bool isRead = Read("GetSums", [&] {
        cCondition condition;
        if (!withStartBalance) {
            condition.Add(" AND IFNULL(EntryCategory, '') <> ?", {modWord::Startguthaben});
        }
        SumUp(m_database, query, condition, sums, [&](const cEntryItemList& occurrences) {
            if (withStartBalance || !IsStart(occurrences.first())) {
                sums.AddSeries(occurrences);
            }
        });
    });
    return isRead ? sums.Take() : QList<cAccountSum>{};
}

QList<cCategorySum> cDataAccess::GetCategorySums(const cEntryQuery& query)
{
    cCategorySums single;
    QList<cCategorySum> series;
    // Under that name for the same reason as a window.
    const bool isRead = Read("GetEntries", [&] {
        SumUp(m_database, query, {}, single, [&](const cEntryItemList& occurrences) {
            const cEntryItem& first = occurrences.first();
            cCategorySum sum{first.EntryType, first.EntryCategory, first.EntryDescription};
            for (const cEntryItem& item : occurrences) {
                sum.Add(item.EntryDate, item.EntryValue);
            }
            series.append(sum);
        });
    });
    return isRead ? single.Take() + series : QList<cCategorySum>{};
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
        cWindowRows rows = ReadWindow(days, mark);
        isClear = rows.IsClear;
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

void cDataAccess::ReadAhead(const modPeriod::cRange& days)
{
    if (IsReadOnly()) {
        return; // tables of the connection may stand in for those of the file
    }
    (void)Look("GetEntries",
               [&] { m_ahead = std::make_unique<cWindowAhead>(m_database.Path(), days, m_database.ChangeMark()); });
}

cWindowRows cDataAccess::ReadWindow(const modPeriod::cRange& days, const std::array<qint64, 3>& mark)
{
    std::optional<cWindowRows> rows;
    if (m_ahead && !m_database.IsGathering()) {
        rows = m_ahead->Take(days, mark);
    }
    m_ahead.reset();
    return rows ? std::move(*rows) : cWindowRows::Read(m_database, days);
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
