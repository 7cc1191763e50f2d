#pragma once

#include "model/cEntryItem.h"

#include <QDate>

// A series can stand for a contract, which its flags then tell until when it can be cancelled.
namespace modContract {

constexpr int NoticeDays = 30; // how long before that day it is brought to mind

// The last day on which the contract can be cancelled; invalid for none.
[[nodiscard]] QDate CancelBy(const cEntryItem& entry);

// An invalid day takes the mark away.
void SetCancelBy(cEntryItem& entry, QDate day);

// The contracts that can be cancelled for so many days at most, today included, by that day: of each its first
// occurrence in `entries`, of a split one its first part. What ends by itself before has nothing to be cancelled.
[[nodiscard]] cEntryItemList Ahead(const cEntryItemList& entries, QDate today, int days);

} // namespace modContract
