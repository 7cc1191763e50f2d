#include "windows/chart/modChartStroke.h"

#include <QLineF>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace {

constexpr double lineWidth = 2.0;
constexpr double dashGap = 0.85; // as part of a dash

// Points that share a column of pixels: only the highest and the lowest one can be seen. Ten years of days would take
// long to stroke otherwise and look the same.
class cColumnOfPixels
{
public:
    void Add(QPointF point, QPolygonF& run)
    {
        if (m_count == 0 || std::floor(point.x()) != std::floor(m_highest.x())) {
            Flush(run);
            m_highest = point;
            m_lowest = point;
        } else if (point.y() < m_highest.y()) {
            m_highest = point;
        } else if (point.y() >= m_lowest.y()) {
            m_lowest = point;
        }
        ++m_count;
    }

    void Flush(QPolygonF& run)
    {
        if (m_count == 0) {
            return;
        }
        const bool isFalling = m_highest.x() <= m_lowest.x();
        run.append(isFalling ? m_highest : m_lowest);
        if (m_highest != m_lowest) {
            run.append(isFalling ? m_lowest : m_highest);
        }
        m_count = 0;
    }

private:
    QPointF m_highest;
    QPointF m_lowest;
    int m_count = 0;
};

// The points of a line from one index to another as runs without gaps.
QList<QPolygonF> Runs(const std::vector<QPointF>& points, std::size_t from, std::size_t to)
{
    QList<QPolygonF> runs(1);
    cColumnOfPixels column;
    for (std::size_t i = from; i <= to && i < points.size(); ++i) {
        if (!std::isnan(points[i].y())) {
            column.Add(points[i], runs.last());
            continue;
        }
        column.Flush(runs.last());
        if (!runs.last().isEmpty()) {
            runs.append(QPolygonF());
        }
    }
    column.Flush(runs.last());
    return runs;
}

// Piece by piece: as one outline, a long line takes many times as long.
QList<QLineF> Pieces(const QPolygonF& run)
{
    QList<QLineF> pieces;
    for (qsizetype i = 1; i < run.size(); ++i) {
        pieces.append({run[i - 1], run[i]});
    }
    return pieces;
}

// The same in dashes, which go on over the corners.
QList<QLineF> Dashes(const QPolygonF& run, double dash)
{
    QList<QLineF> pieces;
    const double gap = dash * dashGap;
    double at = 0; // within dash and gap
    for (qsizetype i = 1; i < run.size(); ++i) {
        const QLineF line(run[i - 1], run[i]);
        const double length = line.length();
        for (double done = 0; done < length;) {
            const bool isDash = at < dash;
            const double step = std::min(length - done, (isDash ? dash : dash + gap) - at);
            if (isDash) {
                pieces.append({line.pointAt(done / length), line.pointAt((done + step) / length)});
            }
            done += std::max(step, 1e-3);
            at = at + step >= dash + gap - 1e-6 ? 0 : at + step;
        }
    }
    return pieces;
}

void PaintRuns(QPainter& painter, const QList<QPolygonF>& runs, double dot, double dash)
{
    for (const QPolygonF& run : runs) {
        painter.drawLines(dash > 0 ? Dashes(run, dash) : Pieces(run));
        if (run.size() == 1) {
            painter.setBrush(painter.pen().color());
            painter.drawEllipse(run.first(), dot, dot); // a line of one point could not be seen
            painter.setBrush(Qt::NoBrush);
        }
    }
}

} // namespace

void modChartStroke::Paint(QPainter& painter, const cChartScene& scene, const cChartLayout& layout, int series)
{
    const std::vector<QPointF>& points = layout.Points[static_cast<std::size_t>(series)];
    if (points.empty()) {
        return;
    }
    const std::size_t last = points.size() - 1;
    const bool hasAhead = scene.IsAhead(series, static_cast<int>(last));
    const std::size_t border = hasAhead ? static_cast<std::size_t>(scene.Data.Today) : last;
    const double width = scene.Data.Series[series].IsComparison ? lineWidth * 0.75 : lineWidth;
    painter.setBrush(Qt::NoBrush);
    // Square ends fill the corners between the pieces of a line.
    painter.setPen(QPen(scene.Colour(series), width, Qt::SolidLine, Qt::SquareCap));
    PaintRuns(painter, Runs(points, 0, border), width, 0);
    if (hasAhead) {
        PaintRuns(painter, Runs(points, border, last), width, scene.Em() * 0.35);
    }
}
