#include "views/entry/cSplitGroup.h"

#include "base/modSum.h"
#include "model/modSplit.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "views/entry/modSplitParts.h"

#include <algorithm>
#include <cstdlib>

namespace {

const QString& Opposite(const QString& type)
{
    return type == modWord::Einnahme ? modWord::Ausgabe : modWord::Einnahme;
}

} // namespace

cEntryItemList cSplitGroup::Parts(const cEntryItem& entry) const
{
    const int group = modSplit::Group(entry);
    return group == 0 ? cEntryItemList{} : m_data.GetEntriesOfSplit(group);
}

bool cSplitGroup::Mark(const cEntryItemList& entries) const
{
    const int group = entries.size() > 1 ? entries.first().ID : 0;
    return std::all_of(entries.begin(), entries.end(), [&](cEntryItem entry) {
        const QString before = entry.EntryFlags;
        modSplit::SetGroup(entry, group);
        return entry.EntryFlags == before || m_data.ChangeEntry(entry);
    });
}

void cSplitGroup::Show(const cEntryItemList& parts, cEntryFields& fields)
{
    const qint64 net = modSplit::Net(parts);
    fields.Face = eEntryFace::Split;
    fields.Type = net == 0 ? parts.first().EntryType : net > 0 ? modWord::Einnahme : modWord::Ausgabe;
    fields.Amount = modSum::ToText(std::abs(net), fields.Decimal);
    fields.Parts.clear();
    for (const cEntryItem& part : parts) {
        const qint64 cents = part.EntryType == fields.Type ? part.EntryValue : -part.EntryValue;
        fields.Parts.append({.ID = part.ID,
                             .Category = part.EntryCategory,
                             .Description = part.EntryDescription,
                             .Amount = modSplitParts::AmountText(cents, fields.Decimal)});
    }
}

cEntryItemList cSplitGroup::Build(const cEntryItem& whole, const cEntryFields& fields)
{
    cEntryItemList entries;
    for (const cSplitPart& row : fields.Parts) {
        if (modSplitParts::IsBlank(row, fields.Decimal)) {
            continue;
        }
        const qint64 cents = modSum::Evaluate(row.Amount, fields.Decimal).value_or(0);
        cEntryItem entry = whole;
        entry.ID = row.ID;
        entry.EntryCategory = row.Category;
        entry.EntryDescription = row.Description;
        entry.EntryType = cents < 0 ? Opposite(whole.EntryType) : whole.EntryType;
        entry.EntryValue = std::abs(cents);
        entries.append(entry);
    }
    return entries;
}
