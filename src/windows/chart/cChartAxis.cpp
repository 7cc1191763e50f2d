#include "windows/chart/cChartAxis.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

// The smallest of 1, 2, 5, 10, 20, 50, ... that is not below the amount.
qint64 NiceStep(double cents)
{
    const double power = std::pow(10.0, std::floor(std::log10(std::max(cents, 1.0))));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= cents * (1 - 1e-9)) {
            return std::llround(factor * power);
        }
    }
    return std::llround(10.0 * power);
}

qint64 FloorTo(qint64 cents, qint64 step)
{
    const qint64 rest = cents % step;
    return rest == 0 ? cents : cents < 0 ? cents - rest - step : cents - rest;
}

} // namespace

cChartAxis::cChartAxis(qint64 smallest, qint64 largest, int steps)
{
    // As numbers with a point: the whole range of amounts would not fit in between.
    const double span = std::max(1.0, static_cast<double>(largest) - static_cast<double>(smallest));
    m_step = NiceStep(span / std::max(1, steps));
    m_min = FloorTo(smallest, m_step);
    m_max = FloorTo(largest, m_step);
    m_max += m_max < largest || m_max == m_min ? m_step : 0;
}

QList<qint64> cChartAxis::Ticks() const
{
    QList<qint64> ticks;
    for (qint64 cents = m_min; cents <= m_max; cents += m_step) {
        ticks.append(cents);
    }
    return ticks;
}

double cChartAxis::Y(qint64 cents, const QRectF& plot) const
{
    const double share = static_cast<double>(cents - m_min) / static_cast<double>(m_max - m_min);
    return plot.bottom() - share * plot.height();
}

int cChartAxis::LabelStep(int count, double width, double room)
{
    constexpr std::array<int, 9> steps{1, 2, 3, 4, 6, 12, 24, 60, 120}; // what months can be divided by
    const double needed = count * width / std::max(1.0, room);
    const auto* const step = std::find_if(steps.begin(), steps.end(), [needed](int each) { return each >= needed; });
    return step == steps.end() ? static_cast<int>(std::ceil(needed)) : *step;
}
