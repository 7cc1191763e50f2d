#pragma once

#include "model/modPeriod.h"

#include <QDate>
#include <QString>

// The reports, in the order of the selector; the numbers are stored.
enum class eReport { Average, Sum, Limit, Budget, Tag };

enum class eReportOrder { ByName, ByAmount };

// On for display; off for print, where a report carries no link data.
enum class eReportLinks { On, Off };

// Spending against the limits: less what came back on the same category, or all that was paid.
enum class eReportSpending { Net, Gross };

// What a report is asked for.
struct cReportWish
{
    eReport Type = eReport::Average;
    QString Account;         // empty: all accounts
    QString Period;          // stored name of the period
    modPeriod::cRange Range; // its days; an invalid day leaves that side open
    bool ShowsFuture = true; // entries after today count
    bool ShowsStart = true;  // start balances count in the sums
    eReportSpending Spending = eReportSpending::Net;
    eReportOrder Order = eReportOrder::ByName;
    eReportLinks Links = eReportLinks::On;
    QDate Today;
};
