#include "views/list/modEntrySums.h"

#include "model/modBalance.h"
#include "model/modWord.h"

void modEntrySums::Add(cEntrySums& sums, const cEntryItem& entry, qint64 effect)
{
    ++sums.Count;
    if (entry.EntryCategory == modWord::Startguthaben) {
        sums.Start = sums.Start.value_or(0) + effect;
    } else {
        (effect < 0 ? sums.Expense : sums.Income) += effect < 0 ? -effect : effect;
    }
}

cEntrySums modEntrySums::Of(const cEntryItemList& entries, const QString& account)
{
    cEntrySums sums;
    for (const cEntryItem& entry : entries) {
        Add(sums, entry, modBalance::Effect(entry, account));
    }
    return sums;
}
