#include "views/entry/cContracts.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "base/modDate.h"
#include "core/cBookTools.h"
#include "model/cEntryQuery.h"
#include "model/modContract.h"
#include "store/cDataAccess.h"

#include <algorithm>

// Every series that goes on has an occurrence within a year; one that was changed from a later day on begins then.
cEntryItemList cContracts::Ahead(int days) const
{
    const QDate today = m_tools.Clock.Today();
    cEntryQuery query;
    query.Start = today;
    query.End = today.addYears(2);
    query.Kind = eBookingKind::Fix;
    return modContract::Ahead(m_tools.Data.GetEntries(query), today, days);
}

cEntryItemList cContracts::Ahead(int days, const cEntryWindow& window) const
{
    const bool hasAny = std::any_of(window.Series.begin(), window.Series.end(),
                                    [](const cEntryItem& series) { return modContract::CancelBy(series).isValid(); });
    return hasAny ? Ahead(days) : cEntryItemList();
}

QStringList cContracts::Lines() const
{
    QStringList lines;
    const cEntryItemList contracts = Ahead(modContract::NoticeDays);
    for (const cEntryItem& contract : contracts) {
        lines.append(Text(contract));
    }
    return lines;
}

QString cContracts::Text(const cEntryItem& contract)
{
    return cText::Tr("'{0}' ist noch bis zum {1} kündbar.",
                     {contract.Name(), modDate::ToText(modContract::CancelBy(contract))});
}
