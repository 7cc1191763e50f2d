#include "windows/chart/modColumnPainter.h"

#include "windows/chart/modChartColour.h"
#include "windows/chart/modChartStroke.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double groupShare = 0.74; // what the columns of a label take of its room

struct cSpan
{
    qint64 Smallest = 0; // columns stand on zero, so it is always seen
    qint64 Largest = 0;

    void Take(qint64 cents)
    {
        Smallest = std::min(Smallest, cents);
        Largest = std::max(Largest, cents);
    }
};

bool IsColumn(const cChartScene& scene, int series)
{
    return !scene.IsLine(series) && !scene.Data.IsHidden(series);
}

// A period laid beside has stacks of its own.
enum class eStack { Own, Beside };

bool IsIn(const cChartScene& scene, int series, eStack stack)
{
    return IsColumn(scene, series) && scene.Data.Series[series].IsComparison == (stack == eStack::Beside);
}

bool HasBeside(const cChartScene& scene)
{
    return std::any_of(scene.Data.Series.begin(), scene.Data.Series.end(),
                       [](const cChartSeries& series) { return series.IsComparison; });
}

// Heights of one stack.
void TakeStack(const cChartScene& scene, int index, eStack stack, cSpan& span)
{
    qint64 up = 0;
    qint64 down = 0;
    for (int series = 0; series < scene.SeriesCount(); ++series) {
        const qint64 cents = scene.Data.Series[series].At(index).value_or(0);
        if (IsIn(scene, series, stack)) {
            (cents > 0 ? up : down) += cents;
        }
    }
    span.Take(up);
    span.Take(down);
}

cSpan SpanOf(const cChartScene& scene)
{
    cSpan span;
    for (int index = 0; index < scene.LabelCount(); ++index) {
        if (scene.Data.Kind == eChart::StackedColumns) {
            TakeStack(scene, index, eStack::Own, span);
            TakeStack(scene, index, eStack::Beside, span);
        }
        for (int series = 0; series < scene.SeriesCount(); ++series) {
            const bool isAlone = scene.Data.Kind != eChart::StackedColumns || scene.IsLine(series);
            if (isAlone && !scene.Data.IsHidden(series)) {
                span.Take(scene.Data.Series[series].At(index).value_or(0));
            }
        }
    }
    return span;
}

QRectF Column(const cChartLayout& layout, double left, double width, qint64 from, qint64 to)
{
    const double y1 = layout.Axis.Y(from, layout.Plot);
    const double y2 = layout.Axis.Y(to, layout.Plot);
    return QRectF(QPointF(left, std::min(y1, y2)), QPointF(left + width, std::max(y1, y2)));
}

void LayOutBeside(const cChartScene& scene, cChartLayout& layout, int index, double slot)
{
    QList<int> columns;
    for (int series = 0; series < scene.SeriesCount(); ++series) {
        if (IsColumn(scene, series)) {
            columns.append(series);
        }
    }
    const double widest = scene.Em() * 2.6;
    const double width = std::min(widest, slot * groupShare / std::max(1.0, static_cast<double>(columns.size())));
    double left = scene.XOf(layout, index) - width * static_cast<double>(columns.size()) / 2;
    for (const int series : std::as_const(columns)) {
        if (const std::optional<qint64> cents = scene.Data.Series[series].At(index)) {
            layout.Hits.push_back({{series, index}, Column(layout, left, width, 0, *cents)});
        }
        left += width;
    }
}

void PileUp(const cChartScene& scene, cChartLayout& layout, int index, eStack stack, const QRectF& column)
{
    qint64 up = 0;
    qint64 down = 0;
    for (int series = 0; series < scene.SeriesCount(); ++series) {
        const qint64 cents = scene.Data.Series[series].At(index).value_or(0);
        if (!IsIn(scene, series, stack) || cents == 0) {
            continue;
        }
        qint64& end = cents > 0 ? up : down;
        layout.Hits.push_back({{series, index}, Column(layout, column.left(), column.width(), end, end + cents)});
        end += cents;
    }
}

void LayOutStacks(const cChartScene& scene, cChartLayout& layout, int index, double slot, bool hasBeside)
{
    const int count = hasBeside ? 2 : 1;
    const double width = std::min(scene.Em() * 4, slot * groupShare) / count;
    const double left = scene.XOf(layout, index) - width * count / 2;
    PileUp(scene, layout, index, eStack::Own, QRectF(left, 0, width, 1));
    if (hasBeside) {
        PileUp(scene, layout, index, eStack::Beside, QRectF(left + width, 0, width, 1));
    }
}

// Round at the end that is not on zero.
QPainterPath Rounded(const QRectF& box, bool isDown)
{
    const double radius = std::min({box.width() / 3, box.height(), 3.5});
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addRoundedRect(box, radius, radius);
    const double flat = std::min(radius, box.height());
    path.addRect(QRectF(box.left(), isDown ? box.top() : box.bottom() - flat, box.width(), flat));
    return path.simplified();
}

void PaintColumn(QPainter& painter, const cChartScene& scene, const cChartLayout::cHit& hit)
{
    constexpr double roundFrom = 5; // pixels; narrower columns have no corners to see
    QColor colour = scene.Colour(hit.Part.Series);
    if (scene.State.Hovered == hit.Part) {
        colour = modChartColour::Mixed(colour, scene.Text(), 0.18);
    }
    const bool isAhead = scene.IsAhead(hit.Part.Series, hit.Part.Index);
    const QColor fill = isAhead ? modChartColour::Pale(colour, scene.Style.Palette) : colour;
    const bool isStacked = scene.Data.Kind == eChart::StackedColumns;
    if (hit.Box.width() < roundFrom) {
        painter.fillRect(hit.Box, fill);
        return;
    }
    const double gap = isStacked ? 0.0 : std::min(1.0, hit.Box.width() * 0.08);
    const QRectF box = hit.Box.adjusted(gap, 0, -gap, 0);
    if (isStacked) {
        painter.fillRect(box.adjusted(0, std::min(1.0, box.height() / 4), 0, 0), fill);
        return;
    }
    const bool isDown = scene.Data.Series[hit.Part.Series].At(hit.Part.Index).value_or(0) < 0;
    painter.setPen(isAhead ? QPen(colour, 1, Qt::DashLine) : QPen(Qt::NoPen));
    painter.setBrush(fill);
    painter.drawPath(Rounded(box, isDown));
}

void PaintDots(QPainter& painter, const cChartScene& scene, const cChartLayout& layout, int series)
{
    const std::vector<QPointF>& points = layout.Points[static_cast<std::size_t>(series)];
    const double slot = layout.Plot.width() / std::max(1, scene.LabelCount());
    if (slot < scene.Em()) {
        return; // they would touch each other
    }
    painter.setPen(QPen(scene.Style.Palette.color(QPalette::Base), 1.5));
    for (const QPointF& point : points) {
        if (!std::isnan(point.y())) {
            painter.setBrush(scene.Colour(series));
            painter.drawEllipse(point, scene.Em() * 0.22, scene.Em() * 0.22);
        }
    }
}

} // namespace

void modColumnPainter::LayOut(const cChartScene& scene, cChartLayout& layout)
{
    const cSpan span = SpanOf(scene);
    scene.LayOutAxes(layout, span.Smallest, span.Largest);
    const double slot = layout.Plot.width() / std::max(1, scene.LabelCount());
    layout.Reach = std::min(scene.Em() * 0.5, slot / 2);
    const bool hasBeside = HasBeside(scene);
    for (int index = 0; index < scene.LabelCount(); ++index) {
        if (scene.Data.Kind == eChart::StackedColumns) {
            LayOutStacks(scene, layout, index, slot, hasBeside);
        } else {
            LayOutBeside(scene, layout, index, slot);
        }
    }
    scene.LayOutLines(layout);
}

void modColumnPainter::Paint(QPainter& painter, const cChartScene& scene, const cChartLayout& layout)
{
    scene.PaintAxes(painter, layout);
    for (const cChartLayout::cHit& hit : layout.Hits) {
        PaintColumn(painter, scene, hit);
    }
    for (int series = 0; series < scene.SeriesCount(); ++series) {
        if (scene.IsLine(series) && !scene.Data.IsHidden(series)) {
            modChartStroke::Paint(painter, scene, layout, series);
            PaintDots(painter, scene, layout, series);
        }
    }
    scene.PaintFocus(painter, layout);
}
