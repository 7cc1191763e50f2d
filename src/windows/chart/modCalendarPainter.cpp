#include "windows/chart/modCalendarPainter.h"

#include "base/cText.h"
#include "views/chart/modChart.h"
#include "windows/chart/modChartColour.h"
#include "windows/look/modTone.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int months = 12;
constexpr int weekDays = 7;
constexpr int weeks = 6;         // that a month can touch
constexpr double monthGap = 0.9; // cells
constexpr double todayWidth = 2.0;

// How wide a day can be when so many months stand beside each other.
double CellFor(const cChartScene& scene, const QRectF& plot, int columns)
{
    const int rows = months / columns;
    const double wide = plot.width() / (columns * (weekDays + monthGap) - monthGap);
    const double high = (plot.height() / rows - scene.Em() * 1.3) / (weeks + monthGap / 2);
    return std::max(1.0, std::min(wide, high));
}

QColor Shade(const cChartScene& scene, int level)
{
    const QColor base = scene.Style.Palette.color(QPalette::Base);
    if (level == 0) {
        return modChartColour::Mixed(base, scene.Text(), 0.07);
    }
    const double last = static_cast<double>(scene.Data.Levels.size()) + 1;
    const double share = last < 2 ? 1.0 : 0.22 + 0.78 * (level - 1) / (last - 1);
    return modChartColour::Mixed(base, scene.Colour(0), share);
}

void LayOutMonth(const cChartScene& scene, cChartLayout& layout, int month, QPointF corner)
{
    const double cell = layout.Cell;
    layout.Months.push_back({month, QRectF(corner, QSizeF(cell * weekDays, scene.Em() * 1.2))});
    const QPointF days = corner + QPointF(0, scene.Em() * 1.3);
    const QList<QDate>& all = scene.Data.Days;
    const int before = QDate(all.first().year(), month, 1).dayOfWeek() - 1;
    for (int index = 0; index < all.size(); ++index) {
        if (all.at(index).month() == month && scene.Data.Series[0].At(index)) {
            const int place = before + all.at(index).day() - 1;
            const int week = place / weekDays;
            const QPointF at = days + QPointF(place % weekDays, week) * cell;
            layout.Hits.push_back({{0, index}, QRectF(at, QSizeF(cell, cell))});
        }
    }
}

void PaintDay(QPainter& painter, const cChartScene& scene, const cChartLayout::cHit& hit)
{
    const qint64 cents = scene.Data.Series[0].At(hit.Part.Index).value_or(0);
    const double gap = hit.Box.width() > 8 ? 1.0 : 0.5;
    QRectF box = hit.Box.adjusted(gap, gap, -gap, -gap);
    painter.setPen(Qt::NoPen);
    if (scene.IsAhead(0, hit.Part.Index) && cents > 0) { // planned: a smaller spot on an empty day
        painter.fillRect(box, Shade(scene, 0));
        const double inset = box.width() * 0.22;
        box.adjust(inset, inset, -inset, -inset);
    }
    painter.fillRect(box, Shade(scene, scene.Data.LevelOf(cents)));
    if (hit.Part.Index == scene.Data.Today) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(scene.Text(), todayWidth));
        painter.drawRect(hit.Box.adjusted(gap, gap, -gap, -gap));
    }
}

// What the shades mean; where that has no room, only in which direction they go.
void PaintKey(QPainter& painter, const cChartScene& scene, const QRectF& area)
{
    QStringList texts{cText::Tr("keine")};
    for (const qint64 level : scene.Data.Levels) {
        texts.append(cText::Tr("bis zu {0}", {scene.Data.AxisText(level)}));
    }
    texts.append(texts.size() > 1 ? cText::Tr("mehr") : cText::Tr("Ausgaben"));
    const double box = scene.Em() * 0.8;
    double needed = 0;
    for (const QString& text : std::as_const(texts)) {
        needed += box + scene.Em() * 1.2 + scene.Metrics.horizontalAdvance(text);
    }
    const bool hasRoom = needed <= area.width();
    double x = area.left();
    painter.setFont(scene.Style.Font);
    for (int level = 0; level < texts.size(); ++level) {
        painter.fillRect(QRectF(x, area.center().y() - box / 2, box, box), Shade(scene, level));
        x += box + scene.Em() * 0.3;
        if (hasRoom || level == texts.size() - 1) {
            painter.setPen(modTone::Quiet(scene.Style.Palette));
            painter.drawText(QRectF(x, area.top(), area.width(), area.height()), Qt::AlignLeft | Qt::AlignVCenter,
                             texts.at(level));
            x += scene.Metrics.horizontalAdvance(texts.at(level)) + scene.Em() * 0.9;
        }
    }
}

} // namespace

void modCalendarPainter::LayOut(const cChartScene& scene, cChartLayout& layout)
{
    const QRectF plot = layout.Plot.adjusted(0, 0, 0, -scene.Em() * 2); // below: the key
    int columns = 1;
    for (const int each : {2, 3, 4, 6, months}) {
        columns = CellFor(scene, plot, each) > CellFor(scene, plot, columns) ? each : columns;
    }
    layout.Cell = CellFor(scene, plot, columns);
    const double wide = layout.Cell * (weekDays + monthGap);
    const double high = plot.height() / (static_cast<double>(months) / columns);
    const double left = plot.left() + std::max(0.0, (plot.width() - wide * columns + layout.Cell * monthGap) / 2);
    for (int month = 1; month <= months; ++month) {
        const int place = month - 1;
        const int row = place / columns;
        LayOutMonth(scene, layout, month, QPointF(left + place % columns * wide, plot.top() + row * high));
    }
}

void modCalendarPainter::Paint(QPainter& painter, const cChartScene& scene, const cChartLayout& layout)
{
    painter.setFont(scene.Style.Font);
    painter.setPen(modTone::Quiet(scene.Style.Palette));
    for (const cChartLayout::cMonth& month : layout.Months) {
        const QString name = modChart::MonthName(month.Month);
        painter.drawText(month.Title, Qt::AlignLeft | Qt::AlignVCenter,
                         scene.Metrics.horizontalAdvance(name) <= month.Title.width() ? name : name.left(3));
    }
    for (const cChartLayout::cHit& hit : layout.Hits) {
        PaintDay(painter, scene, hit);
    }
    const double left = layout.Months.front().Title.left();
    PaintKey(painter, scene, QRectF(QPointF(left, layout.Plot.bottom() - scene.Em() * 1.4), layout.Plot.bottomRight()));
    scene.PaintFocus(painter, layout);
}
