#include "store/cWindowRows.h"

#include "model/modWord.h"
#include "store/cDatabase.h"
#include "store/modEntryScan.h"

#include <string>
#include <utility>

using namespace modEntryScan;

cWindowRows cWindowRows::Read(cDatabase& database, const modPeriod::cRange& range)
{
    cWindowRows window;
    cDayRange days(range.Start, range.End);
    const std::string start = modWord::Startguthaben.toStdString();
    cEntryReader reader;
    cRows rows(database,
               cEntryReader::Select + std::string(" WHERE CASE WHEN EntryInterval = 'Einmalig' THEN Taken(")
                   + cAccountSums::Columns + ") ELSE EntryInterval <> 'Einmalig' END",
               {}, [&](const auto& values) {
                   const eDay day = days.Place(values[0]);
                   window.IsClear = window.IsClear && day != eDay::Unclear;
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
    return window;
}
