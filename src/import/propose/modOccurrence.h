#pragma once

#include "model/cEntryItem.h"
#include "model/cEntryItemFixMod.h"

#include <QDate>
#include <QString>

#include <optional>

// Which occurrence of a series a bank transaction belongs to. A staged row is assigned to the series as a whole, so its
// day alone tells: it pays the occurrence that is nearest, the earlier one of two.
namespace modOccurrence {

// How many days a transaction may lie away from its occurrence: half the distance of two occurrences, and 15 at most.
[[nodiscard]] int Reach(const QString& interval);

// The occurrence that a transaction of that day pays, with its correction; empty when none is within reach.
[[nodiscard]] std::optional<cEntryItem> Nearest(const cEntryItem& series, QDate day,
                                                const cEntryItemFixModList& fixMods);

} // namespace modOccurrence
