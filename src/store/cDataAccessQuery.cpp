#include "store/cDataAccess.h"
#include "store/modEntryScan.h"

#include <utility>

using namespace modEntryScan;

namespace {

void ReadSingle(cDatabase& database, const cEntryQuery& query, cEntryItemList& entries)
{
    const cCondition where = ConditionOf(query, eRepetition::Once);
    cEntryReader reader;
    cRows rows(database, SelectBy(where), where.Values);
    while (rows.Next()) {
        entries.append(reader.Read(rows));
    }
}

} // namespace

cEntryItemList cDataAccess::GetEntries(const cEntryQuery& query)
{
    cEntryItemList entries;
    const bool isRead = Read("GetEntries", [&] {
        cEntryReader reader;
        cEntryItemList series;
        const bool isClear = ReadAtOnce(
            m_database, query, {}, cEntryReader::Columns,
            [&](const auto& values) { entries.append(reader.Read(values)); }, series);
        if (isClear) {
            SortByDate(entries);
        } else {
            entries.clear();
            ReadSingle(m_database, query, entries);
        }
        cSeriesExpander expander(m_database);
        for (const cEntryItem& entry : std::as_const(series)) {
            expander.Expand(entry, query, entries);
        }
    });
    return isRead ? entries : cEntryItemList{};
}
