#include "views/overview/cOverviewBook.h"

#include "base/cClock.h"
#include "core/cBookTools.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "views/budget/modLimits.h"
#include "views/chart/cForecast.h"
#include "views/report/modReport.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr int mostChanges = 3;

cEntryItemList Within(const cEntryItemList& entries, const modPeriod::cRange& range)
{
    cEntryItemList within;
    std::copy_if(entries.begin(), entries.end(), std::back_inserter(within), [&](const cEntryItem& entry) {
        return entry.EntryDate >= range.Start && entry.EntryDate <= range.End;
    });
    return within;
}

cReportFigures LimitsOf(const cEntryItemList& entries, const cTemplateItemList& templates, const cBookTools& tools)
{
    cReportWish wish;
    wish.Type = eReport::Limit;
    wish.Today = tools.Clock.Today();
    wish.Range = modPeriod::Month(wish.Today, 0);
    return modReport::Figures(Within(entries, wish.Range),
                              modLimits::Read(tools.Data, tools.Settings, templates, wish.Range.Start), wish);
}

} // namespace

modPeriod::cRange cOverviewBook::DaysOn(QDate today)
{
    const QDate ahead = today.addDays(std::max({AheadDays, cForecast::WarningDays, modOverview::DueDays}));
    return {modOverview::FirstDay(today), std::max(modPeriod::Month(today, 0).End, ahead)};
}

cOverviewBook cOverviewBook::Read(const cBookTools& tools, cOutlook& outlook)
{
    cOverviewBook book;
    book.Today = tools.Clock.Today();
    // One pass through the table for everything on the page.
    const cEntryWindow window = outlook.Look(DaysOn(book.Today));
    const cEntryItemList& entries = window.Entries;
    book.Ahead = outlook.Day();
    book.Balances = cForecast(tools.Data, book.Today).Days({book.Today, book.Today.addDays(AheadDays)}, window);
    book.Templates = tools.Data.GetTemplates();
    book.HasEntries = std::any_of(entries.begin(), entries.end(),
                                  [](const cEntryItem& entry) { return entry.EntryCategory != modWord::Startguthaben; })
        || tools.Data.CountEntries() > tools.Data.CountEntriesOfCategory(modWord::Startguthaben);
    book.Month = modOverview::Month(entries, book.Today);
    book.Changes = modOverview::Changes(entries, book.Today, mostChanges);
    book.Limits = LimitsOf(entries, book.Templates, tools);
    book.Looks = cCategoryLooks::Read(tools.Data);
    book.IsUnread = !tools.Data.IsWhole();
    return book;
}
