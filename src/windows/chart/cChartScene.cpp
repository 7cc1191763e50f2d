#include "windows/chart/cChartScene.h"

#include "base/cText.h"
#include "windows/chart/modChartColour.h"
#include "windows/look/modTone.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double ringWidth = 2.0;
constexpr double limitWidth = 1.5;

} // namespace

QFont ScaledFont(QFont font, double factor)
{
    if (font.pixelSize() > 0) {
        font.setPixelSize(qMax(1, qRound(font.pixelSize() * factor)));
    } else {
        font.setPointSizeF(font.pointSizeF() * factor);
    }
    return font;
}

QColor cChartScene::Colour(int series) const
{
    const cChartSeries& each = Data.Series[series];
    const QColor colour = modChartColour::Series(each, Style.Palette);
    return each.IsComparison ? modChartColour::Pale(colour, Style.Palette) : colour;
}

bool cChartScene::IsAhead(int series, int index) const
{
    return Data.Today >= 0 && index > Data.Today && Data.Series[series].IsDashed && !Data.Series[series].IsComparison;
}

bool cChartScene::IsLine(int series) const
{
    return Data.Kind == eChart::Line || Data.Series[series].Shape == cChartSeries::eShape::Line;
}

double cChartScene::XOf(const cChartLayout& layout, int index) const
{
    const double width = layout.Plot.width();
    if (Data.Kind == eChart::Line || Data.Kind == eChart::Areas) {
        return layout.Plot.left() + (LabelCount() > 1 ? width * index / (LabelCount() - 1) : width / 2);
    }
    return layout.Plot.left() + width * (index + 0.5) / std::max(1, LabelCount());
}

void cChartScene::LayOutAxes(cChartLayout& layout, qint64 smallest, qint64 largest) const
{
    constexpr int mostSteps = 7;
    layout.Plot.adjust(0, Em() * 0.5, -Em() * 0.8, -Em() * 1.7);
    const int steps = std::clamp(static_cast<int>(layout.Plot.height() / (Em() * 2.4)), 1, mostSteps);
    layout.Axis = cChartAxis(smallest, largest, steps);
    double width = 0;
    const QList<qint64> ticks = layout.Axis.Ticks();
    for (const qint64 tick : ticks) {
        width = std::max(width, Metrics.horizontalAdvance(Data.AxisText(tick)));
    }
    layout.Plot.setLeft(layout.Plot.left() + width + Em() * 0.6);
}

void cChartScene::LayOutLines(cChartLayout& layout) const
{
    layout.Points.resize(static_cast<std::size_t>(SeriesCount()));
    for (int series = 0; series < SeriesCount(); ++series) {
        if (!IsLine(series) || Data.IsHidden(series)) {
            continue;
        }
        std::vector<QPointF>& points = layout.Points[static_cast<std::size_t>(series)];
        points.reserve(static_cast<std::size_t>(LabelCount()));
        for (int index = 0; index < LabelCount(); ++index) {
            const std::optional<qint64> cents = Data.Series[series].At(index);
            const double y = cents ? layout.Axis.Y(*cents, layout.Plot) : std::numeric_limits<double>::quiet_NaN();
            points.emplace_back(XOf(layout, index), y);
        }
    }
}

void cChartScene::PaintAxes(QPainter& painter, const cChartLayout& layout) const
{
    PaintAhead(painter, layout);
    const QList<qint64> ticks = layout.Axis.Ticks();
    const QColor grid = modChartColour::Grid(Style.Palette);
    const QColor quiet = modTone::Quiet(Style.Palette);
    painter.setFont(Style.Font);
    for (const qint64 tick : ticks) {
        const double y = std::round(layout.Axis.Y(tick, layout.Plot)) + 0.5;
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setPen(QPen(tick == 0 ? modChartColour::Mixed(grid, Text(), 0.45) : grid, 1));
        painter.drawLine(QPointF(layout.Plot.left(), y), QPointF(layout.Plot.right(), y));
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.setPen(quiet);
        painter.drawText(
            QRectF(layout.Area.left(), y - Em(), layout.Plot.left() - layout.Area.left() - Em() * 0.5, Em() * 2),
            Qt::AlignRight | Qt::AlignVCenter, Data.AxisText(tick));
    }
    PaintLabels(painter, layout);
    PaintLimit(painter, layout);
}

void cChartScene::PaintLabels(QPainter& painter, const cChartLayout& layout) const
{
    QList<int> ticks = Data.Ticks;
    for (int index = 0; Data.Ticks.isEmpty() && index < LabelCount(); ++index) {
        ticks.append(index);
    }
    double width = 0;
    for (const int tick : std::as_const(ticks)) {
        width = std::max(width, Metrics.horizontalAdvance(Data.ShortLabel(tick)));
    }
    if (ticks.isEmpty()) {
        return;
    }
    const double between = layout.Plot.width() / std::max(1, LabelCount());
    const double room = XOf(layout, ticks.last()) - XOf(layout, ticks.first()) + between;
    const int step = cChartAxis::LabelStep(static_cast<int>(ticks.size()), width + Em() * 0.9, room);
    painter.setPen(modTone::Quiet(Style.Palette));
    double free = layout.Area.left();
    for (qsizetype i = 0; i < ticks.size(); i += step) {
        QRectF box(0, layout.Plot.bottom() + Em() * 0.4, Metrics.horizontalAdvance(Data.ShortLabel(ticks[i])) + 2,
                   Em());
        box.moveLeft(XOf(layout, ticks[i]) - box.width() / 2);
        if (box.left() >= free && box.right() <= layout.Area.right() + Em() * 0.5) {
            painter.drawText(box, Qt::AlignCenter, Data.ShortLabel(ticks[i]));
            free = box.right() + Em() * 0.3;
        }
    }
}

// A quiet background where the bookings have not happened yet.
void cChartScene::PaintAhead(QPainter& painter, const cChartLayout& layout) const
{
    if (Data.Today < 0 || Data.Today >= LabelCount() - 1) {
        return;
    }
    const double half = Data.Kind == eChart::Line || Data.Kind == eChart::Areas
        ? 0.0
        : layout.Plot.width() / std::max(1, LabelCount()) / 2;
    const double x = XOf(layout, Data.Today) + half;
    const QRectF ahead(QPointF(x, layout.Plot.top()), layout.Plot.bottomRight());
    painter.fillRect(ahead, modChartColour::Future(Style.Palette));
    const QString text = cText::Tr("Vorschau");
    painter.setPen(modTone::Quiet(Style.Palette));
    painter.setFont(Style.Font);
    if (Metrics.horizontalAdvance(text) + Em() < ahead.width()) {
        painter.drawText(ahead.adjusted(Em() * 0.4, Em() * 0.1, 0, 0), Qt::AlignLeft | Qt::AlignTop, text);
    }
}

void cChartScene::PaintLimit(QPainter& painter, const cChartLayout& layout) const
{
    if (!Data.Limit) {
        return;
    }
    const double y = layout.Axis.Y(*Data.Limit, layout.Plot);
    const QColor colour = modTone::Expense(Style.Palette);
    painter.setPen(QPen(colour, limitWidth, Qt::DashLine));
    painter.drawLine(QPointF(layout.Plot.left(), y), QPointF(layout.Plot.right(), y));
    painter.setPen(colour);
    painter.drawText(QRectF(layout.Plot.left() + Em() * 0.3, y - Em() * 1.1, layout.Plot.width(), Em()),
                     Qt::AlignLeft | Qt::AlignVCenter, Data.LimitText);
}

void cChartScene::PaintFocus(QPainter& painter, const cChartLayout& layout) const
{
    for (const std::optional<cChartPart>& part : {State.Hovered, State.Current}) {
        const std::optional<QPointF> anchor = part ? layout.AnchorOf(*part) : std::nullopt;
        if (!anchor) {
            continue;
        }
        const QColor ring = part == State.Current ? Style.Palette.color(QPalette::Highlight) : Text();
        painter.setPen(QPen(ring, ringWidth));
        const auto hit = std::find_if(layout.Hits.begin(), layout.Hits.end(),
                                      [&](const cChartLayout::cHit& each) { return each.Part == *part; });
        if (IsLine(part->Series) || Data.Kind == eChart::Areas || hit == layout.Hits.end()) {
            painter.setBrush(Colour(part->Series));
            painter.drawEllipse(*anchor, Em() * 0.3, Em() * 0.3);
            continue;
        }
        painter.setBrush(Qt::NoBrush);
        if (hit->Path.isEmpty()) {
            painter.drawRect(hit->Box);
        } else {
            painter.drawPath(hit->Path);
        }
    }
}
