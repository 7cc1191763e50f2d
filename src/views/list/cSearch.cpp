#include "views/list/cSearch.h"

#include "base/cClock.h"
#include "core/cBookTools.h"
#include "model/cTemplateItem.h"
#include "model/modPeople.h"
#include "model/modRecurrence.h"
#include "model/modSeries.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "views/list/cEntryFilter.h"

#include <algorithm>
#include <iterator>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

bool IsOfAmount(qint64 cents, const cSearchQuery& query)
{
    return cents >= query.Least.value_or(cents) && cents <= query.Most.value_or(cents);
}

bool IsCorrected(const cEntryItem& entry)
{
    return entry.IsCorrected || modSeries::IsMoved(entry);
}

} // namespace

bool cSearchQuery::IsEmpty() const
{
    cSearchQuery other = *this;
    other.Text = other.Text.trimmed();
    return other == cSearchQuery{};
}

cSearch::cSearch(const cBookTools& tools) : m_tools(tools)
{
}

cEntryItemList cSearch::Find(const cSearchQuery& query)
{
    return cEntryFilter::Search(Narrow(Load(query), query), query.Text, query.Account, m_tools.Format);
}

cEntryItemList cSearch::Load(const cSearchQuery& query)
{
    cEntryQuery days;
    days.Start = query.Days.Start;
    days.End = query.Days.End;
    days.Account = query.Account;
    days.Type = modWord::QueryType(query.Type);
    cEntryItemList entries = m_tools.Data.GetEntries(days);
    if (!days.End.isValid()) {
        DropFuture(entries);
    }
    return entries;
}

void cSearch::DropFuture(cEntryItemList& entries) const
{
    const QDate today = m_tools.Clock.Today();
    int series = 0; // whose occurrences follow each other
    entries.removeIf([&](const cEntryItem& entry) {
        if (!modRecurrence::IsRecurring(entry.EntryInterval)) {
            return false;
        }
        const bool isFirst = entry.ID != std::exchange(series, entry.ID);
        return entry.EntryDate > today && !isFirst && !IsCorrected(entry);
    });
}

cEntryItemList cSearch::Narrow(const cEntryItemList& loaded, const cSearchQuery& query)
{
    const bool isWide =
        query.Category.isEmpty() && query.Payer.isEmpty() && !query.Least && !query.Most && !query.IsCorrected;
    if (isWide && !query.IsFromBank) {
        return loaded;
    }
    if (query.IsFromBank) {
        ReadBankEntries();
    }
    cEntryItemList entries;
    std::copy_if(loaded.begin(), loaded.end(), std::back_inserter(entries), [&](const cEntryItem& entry) {
        return IsOfAmount(entry.EntryValue, query) && (!query.IsCorrected || IsCorrected(entry))
            && (query.Category.isEmpty() || modTemplate::IsWithin(entry.EntryCategory, query.Category))
            && modPeople::IsPaidBy(entry, query.Payer) && (!query.IsFromBank || m_bankEntries.contains(entry.ID));
    });
    return entries;
}

void cSearch::ReadBankEntries()
{
    const quint64 version = m_tools.Data.ImportVersion();
    if (m_bankVersion == version) {
        return;
    }
    m_bankVersion = version;
    m_bankEntries.clear();
    const cImportEntryList rows = m_tools.Data.GetImportEntries();
    for (const cImportEntry& row : rows) {
        if (row.ImportAssigned) {
            m_bankEntries.insert(row.ImportAssignedEntry);
        }
    }
}
