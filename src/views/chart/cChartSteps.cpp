#include "views/chart/cChartSteps.h"

#include "base/modDayNames.h"
#include "views/chart/modChart.h"

#include <algorithm>

namespace {

constexpr int mostMonths = 240; // of more than these, years are shown
constexpr int monthsPerYear = 12;

} // namespace

cChartSteps::cChartSteps(const modPeriod::cRange& range) : m_range(range)
{
    const int months = MonthsTo(range.End) + 1;
    m_isYears = months > mostMonths;
    m_count = m_isYears ? range.End.year() - range.Start.year() + 1 : months;
}

int cChartSteps::MonthsTo(QDate day) const
{
    return (day.year() - m_range.Start.year()) * monthsPerYear + day.month() - m_range.Start.month();
}

int cChartSteps::IndexOf(QDate day) const
{
    if (day < m_range.Start || day > m_range.End) {
        return -1;
    }
    return m_isYears ? day.year() - m_range.Start.year() : MonthsTo(day);
}

modPeriod::cRange cChartSteps::RangeAt(int index) const
{
    const QDate start = m_range.Start;
    const QDate first =
        m_isYears ? QDate(start.year() + index, 1, 1) : QDate(start.year(), start.month(), 1).addMonths(index);
    const QDate last = first.addMonths(m_isYears ? monthsPerYear : 1).addDays(-1);
    return {std::max(first, start), std::min(last, m_range.End)};
}

int cChartSteps::MonthsAt(int index) const
{
    const modPeriod::cRange range = RangeAt(index);
    return MonthsTo(range.End) - MonthsTo(range.Start) + 1;
}

QString cChartSteps::Label(int index) const
{
    const QDate day = RangeAt(index).Start;
    return m_isYears ? QString::number(day.year()) : modDayNames::MonthText(day);
}

QString cChartSteps::ShortLabel(int index) const
{
    const QDate day = RangeAt(index).Start;
    return m_isYears ? QString::number(day.year()) : modChart::ShortMonthText(day);
}
