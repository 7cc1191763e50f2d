#include "reportAgreement.h"

using namespace Qt::Literals::StringLiterals;
using namespace modReportAgreement;

// What the charts show of the random books.

cChartData testReportAgreement::Chart(eChartKind kind, int forecastMonths)
{
    return cChartMaker(m_book.Data, m_format.Format, m_wish.Today)
        .Make({.Kind = kind,
               .Range = m_wish.Range,
               .Account = m_wish.Account,
               .ShowsFuture = m_wish.ShowsFuture,
               .ForecastMonths = forecastMonths});
}

// However a chart divides the money of a period, it is the money of the report: in sum, and of each month that of a
// report on this month.
void testReportAgreement::CompareCharts()
{
    const auto total = [](const cChartData& chart, int label) {
        return std::accumulate(
            chart.Series.begin(), chart.Series.end(), qint64(0),
            [label](qint64 sum, const cChartSeries& series) { return sum + series.At(label).value_or(0); });
    };
    cReportWish wish = m_wish;
    wish.ShowsStart = false; // a chart never counts them
    const cReportFigures figures = m_source->Figures(wish);
    QCOMPARE(total(Chart(eChartKind::ExpensePie), 0), figures.Expense.Amount.Cents);
    QCOMPARE(total(Chart(eChartKind::IncomePie), 0), figures.Income.Amount.Cents);
    CompareFlow(figures);
    const cChartData months = Chart(eChartKind::Months);
    const cChartData expense = Chart(eChartKind::ExpenseMonths);
    const cChartData income = Chart(eChartKind::IncomeMonths);
    for (int month = 0; month < months.Labels.size(); ++month) {
        const QDate first = QDate(m_wish.Range.Start.year(), m_wish.Range.Start.month(), 1).addMonths(month);
        wish.Range = {qMax(first, m_wish.Range.Start), qMin(first.addMonths(1).addDays(-1), m_wish.Range.End)};
        const cReportFigures& ofMonth = m_source->Figures(wish);
        QCOMPARE(months.Series.at(0).At(month), ofMonth.Income.Amount.Cents);
        QCOMPARE(months.Series.at(1).At(month), ofMonth.Expense.Amount.Cents);
        QCOMPARE(months.Series.at(2).At(month), ofMonth.Difference());
        QCOMPARE(total(income, month), ofMonth.Income.Amount.Cents);
        QCOMPARE(total(expense, month), ofMonth.Expense.Amount.Cents);
    }
}

// The parts that have entries behind them are the report, and both sides of the flow are equal.
void testReportAgreement::CompareFlow(const cReportFigures& figures)
{
    const cChartData flow = Chart(eChartKind::Flow);
    qint64 difference = 0;
    for (const cChartSeries& series : flow.Series) {
        const bool isIncome = series.At(0).has_value();
        const cReportSection& section = isIncome ? figures.Income : figures.Expense;
        const cChartTarget target = series.TargetAt(isIncome ? 0 : 1);
        const auto group = std::find_if(section.Groups.begin(), section.Groups.end(), [&](const cReportGroup& each) {
            return target.Node && each.Name == target.Node->Group;
        });
        if (group != section.Groups.end()) {
            QCOMPARE(series.At(isIncome ? 0 : 1), group->Amount.Sum);
        } else if (series.Name != u"Übriges") {
            difference += series.At(1).value_or(0) - series.At(0).value_or(0);
        }
    }
    QCOMPARE(difference, figures.Income.Amount.Sum - figures.Expense.Amount.Sum);
    QCOMPARE(flow.Total(0), flow.Total(1));
}

// Each day of the calendar is what the bookings of that day come to, and so is the list behind it.
void testReportAgreement::CompareCalendar()
{
    cReportWish wish = m_wish;
    wish.Type = eReport::Sum;
    wish.ShowsStart = false;
    const cChartData chart = Chart(eChartKind::Calendar);
    for (int day = 0; day < chart.Days.size(); ++day) {
        qint64 plain = 0;
        for (const cPlainBooking& booking : m_bookings) {
            const bool isMeant = m_wish.Account.isEmpty() || booking.Account == m_wish.Account;
            const bool counts = booking.Type == modWord::Ausgabe && booking.Category != modWord::Startguthaben;
            plain += counts && isMeant && booking.Day == chart.Days.at(day) && IsInside(booking) ? booking.Cents : 0;
        }
        QCOMPARE(chart.Series.first().At(day).value_or(0), plain);
        const cChartTarget target = chart.Series.first().TargetAt(day);
        if (target.Node) {
            wish.Range = target.Range;
            QCOMPARE(m_source->Figures(wish).Expense.Amount.Cents, plain);
        }
    }
}

// What is spent of a limit in the months of a period, and the limits of these months, are those of the report on the
// whole period.
void testReportAgreement::CompareLimitMonths()
{
    cReportWish wish = m_wish;
    wish.Type = eReport::Limit;
    wish.Spending = eReportSpending::Net;
    const cChartData chart = Chart(eChartKind::Limits);
    const auto whole = [](const cChartSeries& series) {
        return std::accumulate(series.Cents.begin(), series.Cents.end(), qint64(0),
                               [](qint64 sum, std::optional<qint64> cents) { return sum + cents.value_or(0); });
    };
    qint64 spent = 0;
    qint64 limit = 0;
    for (qsizetype i = 0; i + 1 < chart.Series.size(); i += 2) {
        spent += whole(chart.Series.at(i));
        limit += whole(chart.Series.at(i + 1));
    }
    const cReportFigures figures = m_source->Figures(wish);
    QCOMPARE(spent, figures.Expense.Amount.Cents);
    if (m_wish.ShowsFuture) { // the chart ends today, the report's limits with the period
        QCOMPARE(limit, figures.Expense.Amount.Limit - figures.Expense.Amount.Carried);
    }
}

// Each day of the line of balances is where all bookings up to it lead, ahead as well as behind.
void testReportAgreement::CompareCourse()
{
    const cChartData chart = Chart(eChartKind::Balances, 3 * Random(2));
    for (int label = 0; label < chart.Labels.size(); ++label) {
        const QDate last = modDate::FromGerman(chart.Labels.at(label));
        qint64 plain = 0;
        for (const cPlainBooking& booking : m_bookings) {
            const auto counts = [&](const QString& account) {
                const bool isMeant = m_wish.Account.isEmpty() || account == m_wish.Account;
                return booking.Day <= last && !account.isEmpty() && isMeant;
            };
            plain += counts(booking.Account) ? booking.Effect() : 0;
            plain += counts(booking.Target) ? booking.Cents : 0;
        }
        QCOMPARE(chart.Series.first().At(label), plain);
    }
    const cChartData shares = Chart(eChartKind::NetWorth);
    for (int label = 0; label < shares.Labels.size() && shares.Series.size() > 1; ++label) {
        qint64 sum = 0;
        for (const cChartSeries& share : shares.Series) {
            sum += share.Shape == cChartSeries::eShape::Natural ? share.At(label).value_or(0) : 0;
        }
        QCOMPARE(sum, shares.Series.last().At(label));
        QCOMPARE(sum, chart.Series.first().At(label));
    }
}

// What the period does to the balances of all accounts is what the report says that is left.
void testReportAgreement::CompareBalances()
{
    m_wish.Account.clear();
    m_wish.ShowsStart = true;
    const QList<cAccountSum> sums = m_book.Data.GetSums(Query(), true);
    qint64 total = 0;
    for (const QString& account : accounts) {
        qint64 balance = 0;
        qint64 plain = 0;
        for (const cAccountSum& sum : sums) {
            balance += modBalance::Effect(sum.EntryType, sum.EntryAccount, sum.EntryAccountMove, sum.Cents, account);
        }
        for (const cPlainBooking& booking : m_bookings) {
            if (!IsInside(booking)) {
                continue;
            }
            plain += booking.Account == account ? booking.Effect() : 0;
            plain += booking.Target == account ? booking.Cents : 0;
        }
        QCOMPARE(balance, plain);
        total += balance;
    }
    QCOMPARE(m_source->Figures(m_wish).Difference(), total);
}
