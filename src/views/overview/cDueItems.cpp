#include "views/overview/cDueItems.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "core/cBookTools.h"
#include "model/cEntryQuery.h"
#include "model/modRecurrence.h"
#include "model/modSplit.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/entry/cReconciledDays.h"
#include "views/entry/cSeriesChange.h"
#include "views/overview/modOverview.h"

cEntryItemList cDueItems::Within(int days) const
{
    const QDate today = m_tools.Clock.Today();
    cEntryQuery query;
    query.Start = today;
    query.End = today.addDays(days - 1);
    return modOverview::Due(m_tools.Data.GetEntries(query), today, days);
}

bool cDueItems::IsSeries(const cEntryItem& item)
{
    return modRecurrence::IsRecurring(item.EntryInterval);
}

bool cDueItems::CanBookToday(const cEntryItem& item)
{
    return modSplit::Group(item) == 0;
}

bool cDueItems::BookToday(const cEntryItem& item)
{
    const QDate today = m_tools.Clock.Today();
    if (IsSeries(item)) {
        cSeriesChange series(m_tools);
        return series.CorrectPeriod(item.ID, item.Planned(), item.EntryValue, item.CorrectionComment, today);
    }
    std::optional<cEntryItem> entry = m_tools.Data.LoadEntry(item.ID);
    if (!entry) {
        return false;
    }
    entry->EntryDate = today;
    cReconciledGuard guard(m_tools);
    cUndoStep step(m_tools.Data, cText::Tr("Eintrag '{0}' geändert", {entry->Name()}));
    const bool isWritten = m_tools.Data.ChangeEntry(*entry);
    return step.DoneIf(isWritten && guard.Allows());
}

bool cDueItems::LeaveOut(const cEntryItem& item)
{
    return cSeriesChange(m_tools).SkipPeriod(item.ID, item.Planned());
}
