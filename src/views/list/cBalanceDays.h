#pragma once

#include "model/cEntryItem.h"

#include <QDate>
#include <QList>
#include <QString>

// The balance of one account at the end of each of a row of days, in cents.
struct cBalanceLine
{
    QString Account; // empty for the sum of all
    QList<qint64> Cents;
};

// Balances day by day.
struct cBalanceDays
{
    QDate First; // the day of the first value
    QList<cBalanceLine> Accounts;
    cBalanceLine Sum;

    [[nodiscard]] int Count() const { return static_cast<int>(Sum.Cents.size()); }
    [[nodiscard]] QDate Day(int index) const { return First.addDays(index); }
    [[nodiscard]] int IndexOf(QDate day) const { return static_cast<int>(First.daysTo(day)); }

    // The first day with the smallest value from index `from` on; -1 when there is none.
    [[nodiscard]] static int Lowest(const cBalanceLine& line, int from);
};

// An account that falls below its own limit.
struct cLimitWarning
{
    QString Account;
    qint64 Limit = 0;
    QDate Day;        // the first day that ends below the limit
    qint64 Cents = 0; // the balance at the end of that day
    cEntryItem Entry; // the entry that does it; ID 0 when the account lies below its limit already
};
