#include "windows/chart/modAreaPainter.h"

#include "windows/chart/modChartColour.h"
#include "windows/chart/modChartStroke.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <limits>

namespace {

// The ends of a surface at one label, in cents.
struct cBand
{
    qint64 From = 0;
    qint64 To = 0;
};

// The bands of all series at one label; lines have none.
QList<cBand> BandsAt(const cChartScene& scene, int index)
{
    QList<cBand> bands(scene.SeriesCount());
    qint64 up = 0;
    qint64 down = 0;
    for (int series = 0; series < scene.SeriesCount(); ++series) {
        if (scene.IsLine(series) || scene.Data.IsHidden(series)) {
            continue;
        }
        const qint64 cents = scene.Data.Series[series].At(index).value_or(0);
        qint64& end = cents >= 0 ? up : down;
        bands[series] = {end, end + cents};
        end += cents;
    }
    return bands;
}

void Take(qint64 cents, qint64& smallest, qint64& largest)
{
    smallest = std::min(smallest, cents);
    largest = std::max(largest, cents);
}

void LayOutBands(const cChartScene& scene, cChartLayout& layout, const QList<QList<cBand>>& bands)
{
    const double half = layout.Plot.width() / std::max(1, scene.LabelCount() - 1) / 2;
    for (int series = 0; series < scene.SeriesCount(); ++series) {
        if (scene.IsLine(series) || scene.Data.IsHidden(series)) {
            continue;
        }
        std::vector<QPointF>& points = layout.Points[static_cast<std::size_t>(series)];
        points.reserve(static_cast<std::size_t>(scene.LabelCount()));
        for (int index = 0; index < scene.LabelCount(); ++index) {
            const cBand& band = bands.at(index).at(series);
            const double x = scene.XOf(layout, index);
            if (!scene.Data.Series[series].At(index)) {
                points.emplace_back(x, std::numeric_limits<double>::quiet_NaN());
                continue;
            }
            const QPointF from(x - half, layout.Axis.Y(band.From, layout.Plot));
            const QPointF to(x + half, layout.Axis.Y(band.To, layout.Plot));
            points.emplace_back(x, (from.y() + to.y()) / 2);
            layout.Hits.push_back({{series, index}, QRectF(from, to).normalized()});
        }
    }
}

// Along the upper edges of a surface and back along the lower ones: a piece for each stretch on one side of zero,
// because a debt lies below all that others have. What stands at the same pixel is drawn once.
QList<QPolygonF> Surfaces(const cChartScene& scene, const cChartLayout& layout, int series)
{
    QList<QPolygonF> surfaces;
    QPolygonF upper;
    QPolygonF lower;
    const auto close = [&] {
        std::reverse(lower.begin(), lower.end());
        surfaces.append(QPolygonF(upper + lower));
        upper.clear();
        lower.clear();
    };
    bool isUp = true;
    for (const cChartLayout::cHit& hit : layout.Hits) {
        if (hit.Part.Series != series) {
            continue;
        }
        if (const bool isNowUp = scene.Data.Series[series].At(hit.Part.Index).value_or(0) >= 0; isNowUp != isUp) {
            close();
            isUp = isNowUp;
        }
        const double x = hit.Box.center().x();
        const bool isLast = hit.Part.Index == scene.LabelCount() - 1;
        if (upper.isEmpty() || isLast || x - upper.last().x() >= 0.5) {
            upper.append(QPointF(x, hit.Box.top()));
            lower.append(QPointF(x, hit.Box.bottom()));
        }
    }
    close();
    return surfaces;
}

} // namespace

void modAreaPainter::LayOut(const cChartScene& scene, cChartLayout& layout)
{
    QList<QList<cBand>> bands;
    qint64 smallest = 0;
    qint64 largest = 0;
    for (int index = 0; index < scene.LabelCount(); ++index) {
        bands.append(BandsAt(scene, index));
        for (int series = 0; series < scene.SeriesCount(); ++series) {
            Take(bands.last().at(series).To, smallest, largest);
            if (scene.IsLine(series) && !scene.Data.IsHidden(series)) {
                Take(scene.Data.Series[series].At(index).value_or(0), smallest, largest);
            }
        }
    }
    scene.LayOutAxes(layout, smallest, largest);
    layout.Reach = scene.Em() * 0.6;
    scene.LayOutLines(layout);
    LayOutBands(scene, layout, bands);
}

void modAreaPainter::Paint(QPainter& painter, const cChartScene& scene, const cChartLayout& layout)
{
    scene.PaintAxes(painter, layout);
    for (int series = 0; series < scene.SeriesCount(); ++series) {
        if (scene.IsLine(series) || scene.Data.IsHidden(series)) {
            continue;
        }
        QColor colour = scene.Colour(series);
        const bool isOther = scene.State.Hovered && scene.State.Hovered->Series != series;
        colour.setAlphaF(isOther ? 0.45F : 0.8F);
        painter.setBrush(colour);
        painter.setPen(Qt::NoPen);
        const QList<QPolygonF> surfaces = Surfaces(scene, layout, series);
        for (const QPolygonF& surface : surfaces) {
            painter.drawPolygon(surface);
        }
    }
    for (int series = 0; series < scene.SeriesCount(); ++series) {
        if (scene.IsLine(series) && !scene.Data.IsHidden(series)) {
            modChartStroke::Paint(painter, scene, layout, series);
        }
    }
    scene.PaintFocus(painter, layout);
}
