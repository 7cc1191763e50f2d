#pragma once

#include "model/cEntryItem.h"

#include <QDate>
#include <QList>
#include <QString>

// The figures of the overview that no list or report has: pure rules over entries. Transfers and start balances are
// neither income nor expense here, as in all sums of the program.
namespace modOverview {

constexpr int MostMonths = 12; // how far back the average looks
constexpr int DueDays = 14;    // how far ahead is shown what is due

// The first day of which entries are needed.
[[nodiscard]] QDate FirstDay(QDate today);

// Cents, none below zero.
struct cSums
{
    qint64 Income = 0;
    qint64 Expense = 0;

    bool operator==(const cSums&) const = default;
};

// What came in and went out from the first of a month up to the day of today, in a shorter month up to its last one.
struct cMonth
{
    cSums Now;
    cSums Before;   // last month
    cSums Usual;    // average of the months before, halves away from zero
    int Months = 0; // that the average is made of: from the one of the first entry on, at most twelve
};
[[nodiscard]] cMonth Month(const cEntryItemList& entries, QDate today);

// What was spent on a main category by now, beside the average of the months before up to the same day; what came back
// counts against it.
struct cChange
{
    QString Group;
    qint64 Now = 0;
    qint64 Usual = 0;

    [[nodiscard]] qint64 More() const { return Now - Usual; }
    bool operator==(const cChange&) const = default;
};
// The largest ones first, at most so many; none below ten euros or below a fifth of what is usual, and none before
// there are two months to compare with.
[[nodiscard]] QList<cChange> Changes(const cEntryItemList& entries, QDate today, int most);

// What is to come within so many days, today included, by day: occurrences of series, and what was entered for a later
// day. What was left out (0) is not due, nor is an occurrence that was brought forward to today or that the bank has
// booked.
[[nodiscard]] cEntryItemList Due(const cEntryItemList& entries, QDate today, int days);

// What may be spent on each day that the month has left, today included; 0 when nothing is left.
[[nodiscard]] qint64 LeftPerDay(qint64 left, QDate today);

} // namespace modOverview
