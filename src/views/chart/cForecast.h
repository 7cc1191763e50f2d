#pragma once

#include "model/cEntryWindow.h"
#include "model/cTemplateItem.h"
#include "model/modPeriod.h"
#include "views/list/cBalanceDays.h"

#include <QDate>
#include <QHash>
#include <QList>
#include <QString>

class cAmountFormat;
class cDataAccess;

// Balances of the book day by day, past and to come: what is booked ahead, recurring entries with their corrections
// and, on request, the average of what is spent once.
class cForecast
{
public:
    enum class eAverage { Without, With };

    static constexpr int MostMonths = 12; // how far it looks ahead
    static constexpr int WarningDays = 60;

    cForecast(cDataAccess& data, QDate today) : m_data(data), m_today(today) {}

    // Both days included; the last one is cut to twelve months from today. An open start is the day of the first entry,
    // or today.
    [[nodiscard]] cBalanceDays Days(const modPeriod::cRange& range, eAverage average);

    // The same without an average, of a window that holds the range.
    [[nodiscard]] cBalanceDays Days(const modPeriod::cRange& range, const cEntryWindow& window);

    // From today up to the end of a number of months.
    [[nodiscard]] cBalanceDays Ahead(int months, eAverage average);

    // The accounts that fall below their own limits within 60 days, in the order of the accounts. What is spent once on
    // average does not count: a warning names the entry that is the reason. Reads nothing when no account has a limit.
    [[nodiscard]] QList<cLimitWarning> Warnings();
    [[nodiscard]] QList<cLimitWarning> Warnings(const cEntryWindow& window); // that reaches from today that far ahead

    // A warning as a sentence.
    [[nodiscard]] static QString Text(const cLimitWarning& warning, const cAmountFormat& format);

private:
    [[nodiscard]] QHash<QString, qint64> BalancesBefore(QDate day);
    void AddAverage(cBalanceDays& days);
    [[nodiscard]] cTemplateItemList LimitedAccounts();
    [[nodiscard]] QList<cLimitWarning> WarningsOf(const cTemplateItemList& accounts, const cEntryWindow& window);

    cDataAccess& m_data;
    QDate m_today;
};
