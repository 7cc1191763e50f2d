#pragma once

#include "model/cCategorySum.h"
#include "model/cEntryItem.h"
#include "model/cLimits.h"
#include "views/report/cReportFigures.h"

#include <QList>
#include <QString>

#include <optional>

// The figures of the reports: pure rules over entries and categories.
namespace modReport {

// The figures for a wish. `entries` are the occurrences of its period and account, or `sums` are those of all of them;
// what does not count is passed over.
[[nodiscard]] cReportFigures Figures(const cEntryItemList& entries, const cLimits& limits, const cReportWish& wish);
[[nodiscard]] cReportFigures Figures(const QList<cCategorySum>& sums, const cLimits& limits, const cReportWish& wish);

// What the wish's period is reckoned with. An open side is shown as 1 January 1001 or 31 December 9999 and counted from
// or to the month of the first or last entry that counts; without one, as it is shown.
[[nodiscard]] cReportBasis Basis(const cReportWish& wish, const QList<cCategorySum>& sums);

// Whether a period begins anywhere: a day before any household's first entry, as "Buchungen bis heute" has it, stands
// for an open start.
[[nodiscard]] bool HasStart(const modPeriod::cRange& range);

// The entries that the line of a node counts, in the order given. Of the limit report only categories with a limit
// count, so it needs the limits; the others do without.
[[nodiscard]] cEntryItemList EntriesOf(const cEntryItemList& entries, const cReportWish& wish, const cReportNode& node,
                                       const cLimits& limits = {});

// The node of an entry; none when it does not count: transfers, and start balances where they are not wanted.
[[nodiscard]] std::optional<cReportNode> NodeOf(const cEntryItem& entry, const cReportWish& wish);

// A sum as average of a month, in whole cents, halves away from zero.
[[nodiscard]] qint64 PerMonth(qint64 cents, const cReportBasis& basis);

// How much of its limit was spent, in whole per cent; 0 where more came back than was spent, none without limit.
[[nodiscard]] std::optional<qint64> LimitPercent(const cReportAmount& amount);

// Whether a report is about limits: it has expenses only, and only categories with a limit.
[[nodiscard]] bool HasLimits(eReport type);
// What is left of a limit; below zero what was spent too much.
[[nodiscard]] qint64 Left(const cReportAmount& amount);

// The stored name of a report, "Durchschnittswerte" and so on.
[[nodiscard]] QString Name(eReport type);
// The same for the user.
[[nodiscard]] QString ShownName(eReport type);
// The report of a stored or shown name or of a short one ("durchschnitt", "summe", "limit", "budget"), in any letter
// case.
[[nodiscard]] std::optional<eReport> TypeByName(const QString& name);

// In a report by tag, the group of entries without one; no tag is called so.
inline const QString NoTag = QStringLiteral("#");

// What has to be known of the sums of a report; empty where they are what everybody expects.
[[nodiscard]] QString Note(eReport type);

// "Einnahmen" or "Ausgaben" for the user.
[[nodiscard]] QString ShownKind(eReportKind kind);
// What the amounts of a report are, as the title of their column.
[[nodiscard]] QString AmountTitle(eReport type);
// What its groups are, in the same way.
[[nodiscard]] QString GroupTitle(eReport type);

} // namespace modReport
