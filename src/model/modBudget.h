#pragma once

#include "model/cEntryItem.h"
#include "model/cTemplateItem.h"

#include <QDate>
#include <QHash>
#include <QList>
#include <QMap>
#include <QString>

// What the budget of a category says beyond its plain monthly limit. Months are named by their first day.
struct cBudget
{
    QDate CarriesFrom{};          // from this month on what is left goes to the next one; invalid: never
    QMap<QDate, qint64> Months{}; // cents of the months that have a limit of their own, also zero

    bool operator==(const cBudget&) const = default;
};

// What was spent less what came back, in cents, by category path and month.
using cSpent = QHash<QString, QMap<QDate, qint64>>;

// The budget as rules: its text in the settings, the limits of months, what counts as spent.
namespace modBudget {

inline constexpr int MonthsOfYear = 12;

// The stored text: "uebertrag=2026-01;2026=120.00,,80.00" carries over from January 2026 on and has limits of their own
// for January and March 2026. What cannot be read counts as not there.
[[nodiscard]] cBudget Read(const QString& text);
// The text for a budget; of the one stored so far, parts of unknown meaning stay.
[[nodiscard]] QString ToText(const cBudget& budget, const QString& stored);

// Whether a budget can be made for the item: a category, and not one of income.
[[nodiscard]] bool IsLimitable(const cTemplateItem& item);

// The plain limit of so many months from `first` on, in cents. The twelve months of a year come to exactly what
// modTemplate::LimitCents gives for a year, so that one may be a cent more than another.
[[nodiscard]] qint64 PlainCents(const cTemplateItem& item, QDate first, int months);

// The limit of so many months without what is carried over.
[[nodiscard]] qint64 OwnCents(const cTemplateItem& item, const cBudget& budget, QDate first, int months);

// Twelve parts, as equal as whole cents can be, that come to `cents`.
[[nodiscard]] QList<qint64> Spread(qint64 cents);

// Whether an entry counts against limits: transfers and start balances do not.
[[nodiscard]] bool Counts(const QString& type, const QString& category);
[[nodiscard]] bool Counts(const cEntryItem& entry);
// What an entry adds to what was spent, in cents: income takes from it.
[[nodiscard]] qint64 SpentCents(const cEntryItem& entry);
[[nodiscard]] cSpent Spent(const cEntryItemList& entries);

// The path under which entries and limits of a category meet: none has a word of its own.
[[nodiscard]] QString KeyOf(const QString& path);

[[nodiscard]] inline QDate MonthOf(QDate day)
{
    return {day.year(), day.month(), 1};
}
// The first days of the months of a year.
[[nodiscard]] inline QDate MonthOf(int year, int month)
{
    return {year, month, 1};
}

} // namespace modBudget
