#include "model/modSplit.h"

#include "model/modBalance.h"
#include "model/modFlags.h"
#include "model/modRecurrence.h"

#include <algorithm>

namespace {

const QString mark = QStringLiteral("split");

}

int modSplit::Group(const cEntryItem& entry)
{
    return std::max(0, modFlags::Get(entry.EntryFlags, mark).toInt());
}

void modSplit::SetGroup(cEntryItem& entry, int group)
{
    entry.EntryFlags = modFlags::Set(entry.EntryFlags, mark, group > 0 ? QString::number(group) : QString());
}

bool modSplit::IsWhole(const cEntryItemList& parts)
{
    return std::all_of(parts.begin(), parts.end(), [&](const cEntryItem& part) {
        const cEntryItem& first = parts.first();
        return part.EntryDate == first.EntryDate && part.EntryInterval == first.EntryInterval
            && modRecurrence::EffectiveEnd(part.EntryDateEnd) == modRecurrence::EffectiveEnd(first.EntryDateEnd)
            && part.EntryAccount == first.EntryAccount && !part.IsTransfer();
    });
}

qint64 modSplit::Net(const cEntryItemList& parts)
{
    qint64 net = 0;
    for (const cEntryItem& part : parts) {
        net += modBalance::Effect(part, {});
    }
    return net;
}
