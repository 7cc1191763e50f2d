#include "model/modContract.h"

#include "model/modFlags.h"
#include "model/modRecurrence.h"
#include "model/modSplit.h"

#include <QSet>

#include <algorithm>

namespace {

const QString mark = QStringLiteral("kuendbar");

} // namespace

QDate modContract::CancelBy(const cEntryItem& entry)
{
    return QDate::fromString(modFlags::Get(entry.EntryFlags, mark), Qt::ISODate);
}

void modContract::SetCancelBy(cEntryItem& entry, QDate day)
{
    entry.EntryFlags = modFlags::Set(entry.EntryFlags, mark, day.isValid() ? day.toString(Qt::ISODate) : QString());
}

cEntryItemList modContract::Ahead(const cEntryItemList& entries, QDate today, int days)
{
    cEntryItemList ahead;
    QSet<int> known; // entries, and below zero groups
    for (const cEntryItem& entry : entries) {
        const QDate day = CancelBy(entry);
        const bool isNear = day.isValid() && day >= today && day < today.addDays(days);
        if (!isNear || !modRecurrence::IsRecurring(entry.EntryInterval)
            || modRecurrence::EffectiveEnd(entry.EntryDateEnd) < day) {
            continue;
        }
        const int group = modSplit::Group(entry);
        const int key = group > 0 ? -group : entry.ID;
        if (!known.contains(key)) {
            known.insert(key);
            ahead.append(entry);
        }
    }
    std::stable_sort(ahead.begin(), ahead.end(),
                     [](const cEntryItem& a, const cEntryItem& b) { return CancelBy(a) < CancelBy(b); });
    return ahead;
}
