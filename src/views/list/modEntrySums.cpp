#include "views/list/modEntrySums.h"

#include "core/cAmountFormat.h"
#include "model/modBalance.h"
#include "model/modWord.h"
#include "views/common/modUnread.h"

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

cSumTexts modEntrySums::Texts(const cEntrySums& sums, const QString& count, const cAmountFormat& format, bool isUnread)
{
    const auto text = [&](qint64 cents) { return isUnread ? modUnread::Sum() : format.Cents(cents); };
    return {count, text(sums.Income), text(-sums.Expense), text(sums.Total()),
            sums.Start ? format.Cents(*sums.Start) : QString()};
}
