#include "windows/chart/modLinePainter.h"

#include "windows/chart/modChartColour.h"
#include "windows/chart/modChartStroke.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// Smallest and largest amount of what is shown. Zero is part of it unless all amounts lie far above: then the ups and
// downs could not be seen.
std::pair<qint64, qint64> SpanOf(const cChartScene& scene)
{
    qint64 smallest = scene.Data.Limit.value_or(std::numeric_limits<qint64>::max());
    qint64 largest = scene.Data.Limit.value_or(std::numeric_limits<qint64>::min());
    for (int series = 0; series < scene.SeriesCount(); ++series) {
        for (int index = 0; index < scene.LabelCount() && !scene.Data.IsHidden(series); ++index) {
            if (const std::optional<qint64> cents = scene.Data.Series[series].At(index)) {
                smallest = std::min(smallest, *cents);
                largest = std::max(largest, *cents);
            }
        }
    }
    if (smallest > largest) {
        return {0, 0}; // everything is switched off
    }
    const bool isFarAbove = smallest > 0 && largest - smallest < smallest / 3;
    return isFarAbove ? std::pair(smallest, largest)
                      : std::pair(std::min<qint64>(0, smallest), std::max<qint64>(0, largest));
}

// A soft surface below the first line gives the eye a hold.
void PaintSurface(QPainter& painter, const cChartScene& scene, const cChartLayout& layout)
{
    const std::vector<QPointF>& points = layout.Points.front();
    const bool hasGap = std::any_of(points.begin(), points.end(), [](QPointF point) { return std::isnan(point.y()); });
    if (points.size() < 2 || hasGap) {
        return;
    }
    const qint64 base = std::clamp<qint64>(0, layout.Axis.Min(), layout.Axis.Max());
    const double zero = layout.Axis.Y(base, layout.Plot);
    QPolygonF surface;
    for (const QPointF point : points) {
        if (surface.isEmpty() || point.x() - surface.last().x() >= 0.5 || point == points.back()) {
            surface.append(point);
        }
    }
    surface.append(QPointF(surface.last().x(), zero));
    surface.append(QPointF(surface.first().x(), zero));
    QColor strong = scene.Colour(0);
    QColor weak = strong;
    strong.setAlphaF(0.20F);
    weak.setAlphaF(0.02F);
    QLinearGradient gradient(layout.Plot.topLeft(), QPointF(layout.Plot.left(), zero));
    gradient.setColorAt(0, strong);
    gradient.setColorAt(1, weak);
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    painter.drawPolygon(surface);
}

// The box of a mark's text: above or below its point, within the plot.
QRectF MarkBox(const cChartScene& scene, const cChartLayout& layout, QPointF point, const QString& text)
{
    QRectF box(0, 0, scene.Metrics.horizontalAdvance(text) + scene.Em(), scene.Em() * 1.5);
    const bool hasRoomBelow = point.y() + scene.Em() * 2.6 < layout.Plot.bottom();
    const double y = hasRoomBelow ? point.y() + scene.Em() * 1.5 : point.y() - scene.Em() * 1.5;
    box.moveCenter(QPointF(point.x(), y));
    box.moveLeft(std::clamp(box.left(), layout.Plot.left() + 2,
                            std::max(layout.Plot.left() + 2, layout.Area.right() - box.width() - 2)));
    return box;
}

void PaintMark(QPainter& painter, const cChartScene& scene, const cChartLayout& layout, const cChartMark& mark)
{
    const std::optional<QPointF> point = layout.AnchorOf({mark.Series, mark.Index});
    if (!point) {
        return;
    }
    const QColor colour = scene.Colour(mark.Series);
    const QRectF box = MarkBox(scene, layout, *point, mark.Text);
    painter.setPen(QPen(colour, 1));
    painter.drawLine(*point, QPointF(std::clamp(point->x(), box.left(), box.right()), box.center().y()));
    QColor base = scene.Style.Palette.color(QPalette::Base);
    base.setAlphaF(0.94F);
    painter.setBrush(base);
    painter.drawRoundedRect(box, scene.Em() * 0.3, scene.Em() * 0.3);
    painter.setPen(scene.Text());
    painter.setFont(scene.Style.Font);
    painter.drawText(box, Qt::AlignCenter, mark.Text);
    painter.setPen(QPen(scene.Style.Palette.color(QPalette::Base), 2));
    painter.setBrush(colour);
    painter.drawEllipse(*point, scene.Em() * 0.32, scene.Em() * 0.32);
}

} // namespace

void modLinePainter::LayOut(const cChartScene& scene, cChartLayout& layout)
{
    const auto [smallest, largest] = SpanOf(scene);
    scene.LayOutAxes(layout, smallest, largest);
    layout.Reach = scene.Em() * 1.2;
    scene.LayOutLines(layout);
}

void modLinePainter::Paint(QPainter& painter, const cChartScene& scene, const cChartLayout& layout)
{
    PaintSurface(painter, scene, layout);
    scene.PaintAxes(painter, layout);
    for (int series = scene.SeriesCount() - 1; series >= 0; --series) { // the first one, the sum, on top
        if (!scene.Data.IsHidden(series)) {
            modChartStroke::Paint(painter, scene, layout, series);
        }
    }
    for (const cChartMark& mark : scene.Data.Marks) {
        PaintMark(painter, scene, layout, mark);
    }
    scene.PaintFocus(painter, layout);
}
