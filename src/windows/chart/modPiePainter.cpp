#include "windows/chart/modPiePainter.h"

#include "base/cText.h"
#include "windows/chart/modChartColour.h"
#include "windows/look/modTone.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr double fullCircle = 360.0;
constexpr double top = 90.0; // where the first slice begins
constexpr double hole = 0.6; // inner radius, as part of the outer one

QRectF Square(QPointF centre, double radius)
{
    return {centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius};
}

// A piece of a ring; angles in degrees, clockwise from the top.
QPainterPath Slice(const cChartLayout::cCircle& circle, double from, double span)
{
    QPainterPath path;
    const QRectF outer = Square(circle.Centre, circle.Outer);
    const QRectF inner = Square(circle.Centre, circle.Inner);
    if (span >= fullCircle - 1e-6) {
        path.addEllipse(outer);
        path.addEllipse(inner);
        return path; // what lies in both is left out
    }
    path.arcMoveTo(outer, top - from);
    path.arcTo(outer, top - from, -span);
    path.arcTo(inner, top - from - span, span);
    path.closeSubpath();
    return path;
}

void LayOutSlices(const cChartScene& scene, cChartLayout& layout, const cChartLayout::cCircle& circle)
{
    const qint64 total = scene.Data.Total(circle.Index);
    double from = 0;
    for (int series = 0; series < scene.SeriesCount() && total > 0; ++series) {
        const qint64 cents = scene.Data.Series[series].At(circle.Index).value_or(0);
        if (cents <= 0 || scene.Data.IsHidden(series)) {
            continue; // a negative amount is no part of a whole; the legend shows it
        }
        const double span = fullCircle * static_cast<double>(cents) / static_cast<double>(total);
        const double middle = (from + span / 2) * std::numbers::pi / (fullCircle / 2);
        const double radius = (circle.Outer + circle.Inner) / 2;
        const QPointF centre = circle.Centre + QPointF(std::sin(middle), -std::cos(middle)) * radius;
        layout.Hits.push_back({{series, circle.Index}, Square(centre, 1), Slice(circle, from, span)});
        from += span;
    }
}

// The share, where the slice has room for it.
void PaintShare(QPainter& painter, const cChartScene& scene, const cChartLayout::cHit& hit,
                const cChartLayout::cCircle& circle, const QColor& colour)
{
    const double total = static_cast<double>(scene.Data.Total(hit.Part.Index));
    const double share = static_cast<double>(scene.Data.Series[hit.Part.Series].At(hit.Part.Index).value_or(0)) / total;
    const double arc = share * 2 * std::numbers::pi * (circle.Outer + circle.Inner) / 2;
    const QString text = cText::Tr("{0} %", {QString::number(qRound(share * 100))});
    const QSizeF size(scene.Metrics.horizontalAdvance(text), scene.Em());
    if (size.width() < circle.Outer - circle.Inner && arc > size.width() * 1.25) {
        QRectF box(QPointF(), size * 1.2);
        box.moveCenter(hit.Box.center());
        painter.setPen(modChartColour::TextOn(colour));
        painter.drawText(box, Qt::AlignCenter, text);
    }
}

// Below the sum: from and to in two lines where one is too narrow, and nothing where those are too.
void PaintPeriod(QPainter& painter, const cChartScene& scene, const cChartLayout::cCircle& circle)
{
    const double room = circle.Inner * 1.7;
    QString label = scene.Data.Labels.value(circle.Index);
    if (scene.Metrics.horizontalAdvance(label) > room) {
        label.replace(QChar(0x2013), QStringLiteral("\u2013\n"));
    }
    const QSizeF needed = scene.Metrics.size(0, label);
    const double scale = std::min(1.0, room / std::max(1.0, needed.width()));
    const double gap = scene.Em() * 0.25;
    if (scale < 0.75 || gap + needed.height() * scale > circle.Inner * 0.9) {
        return;
    }
    painter.setFont(ScaledFont(scene.Style.Font, scale));
    painter.setPen(modTone::Quiet(scene.Style.Palette));
    const QRectF box = Square(circle.Centre, circle.Inner).adjusted(0, circle.Inner + gap, 0, 0);
    painter.drawText(box, Qt::AlignHCenter | Qt::AlignTop, label);
}

void PaintMiddle(QPainter& painter, const cChartScene& scene, const cChartLayout::cCircle& circle)
{
    const QString sum = scene.Data.MoneyText(scene.Data.Total(circle.Index));
    QFont font = scene.Style.Font;
    font.setBold(true);
    const double room = circle.Inner * 1.7;
    const double needed = QFontMetricsF(font).horizontalAdvance(sum);
    constexpr double least = 0.6; // of the font's size
    if (scene.Em() * 3 > circle.Inner * 2 || room < needed * least) {
        return; // too small for words
    }
    painter.setFont(ScaledFont(font, std::clamp(room / std::max(1.0, needed), least, 1.35)));
    painter.setPen(scene.Text());
    const QRectF box = Square(circle.Centre, circle.Inner);
    painter.drawText(box.adjusted(0, 0, 0, -scene.Em() * 0.7), Qt::AlignCenter, sum);
    PaintPeriod(painter, scene, circle);
}

void PaintSlice(QPainter& painter, const cChartScene& scene, const cChartLayout::cHit& hit,
                const cChartLayout::cCircle& circle)
{
    QColor colour = modChartColour::Series(scene.Data.Series[hit.Part.Series], scene.Style.Palette);
    if (scene.State.Hovered && scene.State.Hovered != hit.Part) {
        colour = modChartColour::Mixed(colour, scene.Style.Palette.color(QPalette::Base), 0.35);
    }
    painter.setBrush(colour);
    painter.setPen(QPen(scene.Style.Palette.color(QPalette::Base), 2));
    painter.drawPath(hit.Path);
    PaintShare(painter, scene, hit, circle, colour);
}

} // namespace

void modPiePainter::LayOut(const cChartScene& scene, cChartLayout& layout)
{
    const int count = scene.LabelCount();
    const bool isWide = layout.Plot.width() >= layout.Plot.height();
    const double width = layout.Plot.width() / (isWide ? count : 1);
    const double height = layout.Plot.height() / (isWide ? 1 : count);
    const double radius = std::max(1.0, std::min(width, height) / 2 - scene.Em() * 0.5);
    for (int index = 0; index < count; ++index) {
        const QPointF centre(layout.Plot.left() + width * (isWide ? index + 0.5 : 0.5),
                             layout.Plot.top() + height * (isWide ? 0.5 : index + 0.5));
        layout.Circles.push_back({index, centre, radius, radius * hole, {}});
        LayOutSlices(scene, layout, layout.Circles.back());
    }
}

void modPiePainter::Paint(QPainter& painter, const cChartScene& scene, const cChartLayout& layout)
{
    painter.setFont(scene.Style.Font);
    for (const cChartLayout::cHit& hit : layout.Hits) {
        PaintSlice(painter, scene, hit, layout.Circles[static_cast<std::size_t>(hit.Part.Index)]);
    }
    for (const cChartLayout::cCircle& circle : layout.Circles) {
        PaintMiddle(painter, scene, circle);
    }
    if (scene.State.Current) {
        scene.PaintFocus(painter, layout);
    }
}
