#pragma once

#include "model/cEntryItem.h"
#include "model/cEntryItemFixMod.h"
#include "model/modPeriod.h"

#include <QDate>
#include <QString>

// Recurring entries as occurrences.
namespace modRecurrence {

// The day that marks a series without end.
inline constexpr QDate OpenEnd = QDate::fromJulianDay(2469808); // 2050-01-01

// True for a word of the interval table other than "Einmalig".
[[nodiscard]] bool IsRecurring(const QString& interval);

// How often the interval comes round in a year, 12 for "Monatlich"; 0 for one that does not recur.
[[nodiscard]] int TimesAYear(const QString& interval);

// The day one step after `date`. Months and years keep the day of the month, or take the last day of a shorter month.
// The same day for an interval without step.
[[nodiscard]] QDate Next(QDate date, const QString& interval);

// The end of a series with the open end resolved: days before 1940 (and invalid ones) stand for the open end.
[[nodiscard]] QDate EffectiveEnd(QDate end);

// The period that an occurrence covers, under which its correction is stored.
[[nodiscard]] modPeriod::cRange OccurrencePeriod(QDate occurrence, const QString& interval);

// The last day on which a series has an occurrence because it has no more of them than are made, though it would go on;
// invalid when it ends by itself.
[[nodiscard]] QDate CutOffAt(const cEntryItem& entry);

// The occurrences of an entry within `period`, in date order; an open side of the period is unbounded. An entry without
// recurring interval is its own single occurrence. `fixMods` are the corrections of this entry: the one whose start is
// the start of an occurrence's period replaces its amount and, where it names one, its day; an occurrence that moves
// into the period from outside belongs to it, and one that moves out does not. Each step goes from the previous
// occurrence, so a series that starts on the 31st moves to the 28th after February and stays there; stored corrections
// refer to those drifted days.
void Expand(const cEntryItem& entry, const modPeriod::cRange& period, const cEntryItemFixModList& fixMods,
            cEntryItemList& occurrences);

// "Manuelle Korrektur vom {0}" with the correction's start.
[[nodiscard]] QString CorrectionLabel(const cEntryItemFixMod& fixMod);

} // namespace modRecurrence
