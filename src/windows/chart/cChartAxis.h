#pragma once

#include <QList>
#include <QRectF>
#include <QtGlobal>

// A value axis with steps that are easy to read: 1, 2 or 5 and zeros.
class cChartAxis
{
public:
    cChartAxis() = default;

    // Holds both amounts (cents) in at most about `steps` steps.
    cChartAxis(qint64 smallest, qint64 largest, int steps);

    [[nodiscard]] qint64 Min() const { return m_min; }
    [[nodiscard]] qint64 Max() const { return m_max; }
    [[nodiscard]] QList<qint64> Ticks() const;

    // The height of an amount within the plot.
    [[nodiscard]] double Y(qint64 cents, const QRectF& plot) const;

    // Every how many of `count` labels is shown when each needs `width` of `room` for all.
    [[nodiscard]] static int LabelStep(int count, double width, double room);

private:
    qint64 m_min = 0;
    qint64 m_max = 1;
    qint64 m_step = 1;
};
