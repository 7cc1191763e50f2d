#pragma once

#include "model/cEntryItem.h"
#include "model/cEntryItemFixMod.h"
#include "model/cImportEntry.h"

#include <QDate>
#include <QString>

#include <optional>

// Which occurrence of a series a bank transaction belongs to. A staged row is assigned to the series as a whole, so its
// day alone tells: it pays the occurrence that is nearest, the earlier one of two. An occurrence that was moved is near
// to both its days: a row may have moved it, or it was put off before the row came.
namespace modOccurrence {

// How many days a transaction may lie away from its occurrence: half the distance of two occurrences, and 15 at most.
[[nodiscard]] int Reach(const QString& interval);

// From the occurrence to the day: from the day on which it lies or the planned one, whichever is nearer.
[[nodiscard]] int Days(const cEntryItem& occurrence, QDate day);

// The occurrence that a transaction of that day pays, with its correction; empty when none is within reach.
[[nodiscard]] std::optional<cEntryItem> Nearest(const cEntryItem& series, QDate day,
                                                const cEntryItemFixModList& fixMods);

// The day of the row that pays an entry. The day of a transfer is that of the debit, so a credit leaves it.
[[nodiscard]] QDate DayBy(const cEntryItem& entry, const cImportEntry& row);

// What brings the occurrence in line with the row that pays it: its amount and its day, the latter also written out
// when it is the planned one. Empty when both agree. Of a part of a split entry (Day) only the day is corrected,
// because the bank knows the whole alone. A comment of the user stays with a correction that only adds to it.
enum class eCorrect { AmountAndDay, Day };
[[nodiscard]] std::optional<cEntryItemFixMod> CorrectionTo(const cEntryItem& occurrence, const cImportEntry& row,
                                                           eCorrect what = eCorrect::AmountAndDay);

// What the occurrence comes to: that of the series where it was left out because no statement had told of it yet.
[[nodiscard]] qint64 Usual(const cEntryItem& series, const cEntryItem& occurrence);

// True when that would take back an amount or a day that the user gave this occurrence.
[[nodiscard]] bool ReplacesOwn(const cEntryItem& occurrence, const cEntryItemFixMod& fixMod);

} // namespace modOccurrence
