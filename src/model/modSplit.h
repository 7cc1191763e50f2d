#pragma once

#include "model/cEntryItem.h"

// One purchase as several entries: its parts are ordinary entries that carry the same group mark in their flags.
namespace modSplit {

// The group that an entry belongs to, which is the ID of its first part; 0 when it is no part.
[[nodiscard]] int Group(const cEntryItem& entry);

// Sets or, with 0, removes the group mark.
void SetGroup(cEntryItem& entry, int group);

// True when the parts can be shown as one entry: same days, account and interval, and no transfer among them.
[[nodiscard]] bool IsWhole(const cEntryItemList& parts);

// What the parts come to together in cents, income counting up and expense down.
[[nodiscard]] qint64 Net(const cEntryItemList& parts);

} // namespace modSplit
