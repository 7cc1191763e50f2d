#pragma once

#include "model/cEntryItem.h"
#include "model/cEntryItemFixMod.h"

#include <QDate>
#include <QList>

#include <optional>

// Questions about one recurring entry as it stands in the book, not expanded.
namespace modSeries {

// True when first day, last day or interval differ.
[[nodiscard]] bool HasOtherPeriod(const cEntryItem& a, const cEntryItem& b);

// The occurrence whose period holds the day, uncorrected; empty when there is none.
[[nodiscard]] std::optional<cEntryItem> OccurrenceAt(const cEntryItem& series, QDate day);

// The first `count` days of the series from `from` on; fewer when it ends before.
[[nodiscard]] QList<QDate> Next(const cEntryItem& series, QDate from, int count);

// The last day of the series; invalid when it has none at all.
[[nodiscard]] QDate Last(const cEntryItem& series);

// True for a series without end. A daily one that began long ago has one all the same: its last occurrence that the
// expansion counts.
[[nodiscard]] bool IsEndless(const cEntryItem& series);

// Number of occurrences up to the end of the series; 0 when it has no end.
[[nodiscard]] int Count(const cEntryItem& series);

// The end with which the series has so many occurrences; invalid when there cannot be so many.
[[nodiscard]] QDate EndAfter(cEntryItem series, int count);

// True when the correction's period is the period of one of the occurrences.
[[nodiscard]] bool HasPeriod(const cEntryItem& series, const cEntryItemFixMod& fixMod);

// An empty correction for the period of an occurrence.
[[nodiscard]] cEntryItemFixMod CorrectionFor(const cEntryItem& occurrence);

// The comments of a correction that follows the bank, and whether one is among them. Such a correction may be replaced
// by what the bank says next; one with another comment, also a longer one, was made by the user, who is asked before.
[[nodiscard]] QString BankComment();
[[nodiscard]] QString LateComment();   // the bank has not booked the occurrence yet
[[nodiscard]] QString MissedComment(); // and never will
[[nodiscard]] bool IsFromBank(const QString& comment);
[[nodiscard]] bool IsBooked(const QString& comment);      // the bank has booked the occurrence
[[nodiscard]] bool IsLate(const QString& comment);        // not yet
[[nodiscard]] bool IsMoved(const cEntryItem& occurrence); // by the user to another day

} // namespace modSeries
