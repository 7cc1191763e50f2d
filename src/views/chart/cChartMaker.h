#pragma once

#include "views/chart/cChartData.h"

#include <QDate>
#include <QString>

#include <optional>

class cAmountFormat;
class cDataAccess;

namespace modChart {
struct cInput;
}

// The charts that can be asked for.
enum class eChartKind {
    ExpensePie,    // expenses by main category; with a group its sub-categories
    IncomePie,     // income by main category
    Months,        // income, expense and balance of each month
    ExpenseMonths, // expenses of each month by main category, on top of each other
    IncomeMonths,
    Balances, // balances day by day, with the forecast
    Budget,   // what categories with a limit may spend in each month, and have spent
    Flow,     // where the money of a period came from and went to
    Calendar, // what was spent on each day of a year
    NetWorth, // the same balances as shares of their sum
    Limits,   // what was spent of the limits, month by month
    Tags      // expense and income of each tag
};

struct cChartWish
{
    eChartKind Kind = eChartKind::ExpensePie;
    modPeriod::cRange Range{};                 // an open side ends where the entries do
    std::optional<modPeriod::cRange> Second{}; // laid beside; see YearBefore
    QString Account{};                         // empty: all
    std::optional<QString> Group{};            // the categories below this group; none: the groups themselves
    bool ShowsFuture = true;                   // entries after today count
    bool ShowsAverage = false;                 // the forecast also takes off what is spent once on average
    int ForecastMonths = 0;                    // Balances: months after today, up to 12; 0 for none

    // The same days one year earlier; an open side stays open. The last day of a month stays the last one.
    [[nodiscard]] static modPeriod::cRange YearBefore(const modPeriod::cRange& range);
};

// Makes the data of every chart from the book. Nothing is kept between two charts.
class cChartMaker
{
public:
    cChartMaker(cDataAccess& data, const cAmountFormat& format, QDate today)
        : m_data(data),
          m_format(format),
          m_today(today)
    {
    }

    // Whether a second period can be laid beside a chart.
    [[nodiscard]] static bool CanCompare(eChartKind kind)
    {
        return kind <= eChartKind::Balances || kind == eChartKind::Tags;
    }
    // Whether a chart can look ahead.
    [[nodiscard]] static bool HasForecast(eChartKind kind)
    {
        return kind == eChartKind::Balances || kind == eChartKind::NetWorth;
    }

    // Without figures when the book could not be read: those of a part would be wrong.
    [[nodiscard]] cChartData Make(const cChartWish& wish);

private:
    [[nodiscard]] cChartData MakeFromEntries(const cChartWish& wish);
    [[nodiscard]] cChartData MakeLimits(const modChart::cInput& input); // both charts about them
    [[nodiscard]] cChartData MakeBalances(const cChartWish& wish);

    cDataAccess& m_data;
    const cAmountFormat& m_format;
    QDate m_today;
};
