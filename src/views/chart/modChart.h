#pragma once

#include "model/cEntryItem.h"
#include "model/cLimits.h"
#include "model/cTemplateItem.h"
#include "views/chart/cChartMaker.h"
#include "views/list/cBalanceDays.h"
#include "views/look/cCategoryLooks.h"
#include "views/report/cReportWish.h"

#include <functional>

// The makers of chart data: records in, chart out. cChartMaker fetches the records.
namespace modChart {

// What is counted in one period.
struct cPeriod
{
    modPeriod::cRange Range;
    cEntryItemList Entries;
};

struct cInput
{
    const cChartWish& Wish;
    cPeriod First;
    std::optional<cPeriod> Second;
    QDate Today;
    std::function<QString(qint64)> Money;
};

// Numbers in the palette for what has the same colour everywhere.
enum eColour { Sum = 0, Income = 2, Expense = 3, Balance = 7, Rest = 11 };

// By main category, or by the categories of the wish's group. The figures are those of the reports.
[[nodiscard]] cChartData Pie(const cInput& input);

// Income, expense and balance of each month, or of each year when there are very many months.
[[nodiscard]] cChartData Months(const cInput& input);

// Categories on top of each other, by month or year.
[[nodiscard]] cChartData MonthsByCategory(const cInput& input);

// What the months allow, without what is carried over, and what was spent on the categories with a limit.
[[nodiscard]] cChartData Budget(const cInput& input, const cLimits& limits);
// The tags with the largest sums, beside each other and not as parts of a whole: an entry may have several.
[[nodiscard]] cChartData Tags(const cInput& input);

// Balances with the forecast; of both days the same accounts. `second` may be empty.
struct cBalanceInput
{
    const cChartWish& Wish;
    const cBalanceDays& Days;
    std::optional<cBalanceDays> Second;
    std::optional<qint64> Limit; // of the wish's account
    QDate Today;
    std::function<QString(qint64)> Money;
};
[[nodiscard]] cChartData Balances(const cBalanceInput& input);

// Where the money came from and where it went, with what is left or was taken from savings, so that both sides are
// equal.
[[nodiscard]] cChartData Flow(const cInput& input);

// What was spent on each day of a year: that of today where the period has it, else the one in which it ends. Days
// outside of the period have no value.
[[nodiscard]] cChartData Calendar(const cInput& input);

// What was spent of each category with a limit, beside the limit, by month.
[[nodiscard]] cChartData Limits(const cInput& input, const cLimits& limits);

// Balances as shares of their sum.
[[nodiscard]] cChartData NetWorth(const cBalanceInput& input);

// Gives the series that stand for main categories the colours that the user chose for those. Series that would look
// like them get other numbers of the palette.
void UseLooks(cChartData& data, const cCategoryLooks& looks);

// The wish for figures that count what the chart counts.
[[nodiscard]] cReportWish ReportWish(const cChartWish& wish, const modPeriod::cRange& range, QDate today);

// Whether income or expenses are asked for; none for charts of both.
[[nodiscard]] std::optional<eReportKind> KindOf(eChartKind kind);

// A period in words: "2026", "März 2026", "1. Quartal 2026", "01.02.2026–15.05.2026".
[[nodiscard]] QString RangeText(const modPeriod::cRange& range);

// "Mär 26"
[[nodiscard]] QString ShortMonthText(QDate month);

// "März"; of months from 1 on.
[[nodiscard]] QString MonthName(int month);

// "alle Konten" or "Konto 'Girokonto'".
[[nodiscard]] QString AccountText(const QString& account);

// The name of a chart by its short name on the command line, and the other way round.
[[nodiscard]] std::optional<eChartKind> KindByName(const QString& name);
[[nodiscard]] QStringList KindNames();

} // namespace modChart
