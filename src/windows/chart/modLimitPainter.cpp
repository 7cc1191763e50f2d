#include "windows/chart/modLimitPainter.h"

#include "base/cText.h"
#include "windows/chart/modChartColour.h"
#include "windows/look/modTone.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace {

constexpr double aspect = 1.9;      // of a panel that is good to look at
constexpr double columnShare = 0.7; // of the room of a label
constexpr double lineWidth = 2.0;

// Spent and limit are one pair after the other; a step without a limit has no value there.
int CountPanels(const cChartScene& scene)
{
    return scene.SeriesCount() / 2;
}

int CountColumns(int panels, const QRectF& plot)
{
    const double wanted = std::sqrt(panels * plot.width() / std::max(1.0, plot.height()) / aspect);
    const int columns = std::clamp(qRound(wanted), 1, std::max(1, panels));
    const int rows = (panels + columns - 1) / columns;
    return (panels + rows - 1) / rows; // as few as these rows need
}

double Middle(const cChartScene& scene, const QRectF& plot, int index)
{
    return plot.left() + plot.width() * (index + 0.5) / std::max(1, scene.LabelCount());
}

void LayOutPanel(const cChartScene& scene, cChartLayout& layout, int series, const QRectF& area)
{
    cChartLayout::cPanel panel;
    panel.Series = series;
    panel.Title = QRectF(area.left(), area.top(), area.width(), scene.Em() * 1.2);
    panel.Plot = area.adjusted(0, scene.Em() * 1.5, 0, -scene.Em() * 1.5);
    qint64 largest = 1;
    qint64 smallest = 0;
    for (const int each : {series, series + 1}) {
        for (int index = 0; index < scene.LabelCount(); ++index) {
            largest = std::max(largest, scene.Data.Series[each].At(index).value_or(0));
            smallest = std::min(smallest, scene.Data.Series[each].At(index).value_or(0));
        }
    }
    panel.Axis = cChartAxis(smallest, largest, 4);
    const double slot = panel.Plot.width() / std::max(1, scene.LabelCount());
    const double width = std::min(slot * columnShare, scene.Em() * 2.2);
    std::vector<QPointF>& limits = layout.Points[static_cast<std::size_t>(series) + 1];
    for (int index = 0; index < scene.LabelCount(); ++index) {
        const double x = Middle(scene, panel.Plot, index);
        const double zero = panel.Axis.Y(0, panel.Plot);
        const double y = panel.Axis.Y(scene.Data.Series[series].At(index).value_or(0), panel.Plot);
        layout.Hits.push_back({{series, index},
                               QRectF(QPointF(x - width / 2, std::min(y, zero)),
                                      QPointF(x + width / 2, std::max({y, zero, std::min(y, zero) + 1})))});
        const std::optional<qint64> limit = scene.Data.Series[series + 1].At(index);
        limits.emplace_back(x, limit ? panel.Axis.Y(*limit, panel.Plot) : std::numeric_limits<double>::quiet_NaN());
    }
    layout.Panels.push_back(panel);
}

int CountOver(const cChartScene& scene, int series)
{
    int over = 0;
    for (int index = 0; index < scene.LabelCount(); ++index) {
        const std::optional<qint64> limit = scene.Data.Series[series + 1].At(index);
        over += limit && scene.Data.Series[series].At(index).value_or(0) > *limit ? 1 : 0;
    }
    return over;
}

// In words where that leaves room for the name.
QString OverText(const cChartScene& scene, const cChartLayout::cPanel& panel, int over)
{
    const QStringList count{QString::number(over)};
    const QString words = cText::Tr("{0} × darüber", count);
    const double name = scene.Metrics.horizontalAdvance(scene.Data.Series[panel.Series].Name) * 1.2;
    const bool hasRoom = name + scene.Em() + scene.Metrics.horizontalAdvance(words) <= panel.Title.width();
    return over == 0 ? QString() : hasRoom ? words : cText::Tr("{0} ×", count);
}

// The name with the limit, and how often more was spent than was to be.
void PaintTitle(QPainter& painter, const cChartScene& scene, const cChartLayout::cPanel& panel)
{
    const int over = CountOver(scene, panel.Series);
    const QString text = OverText(scene, panel, over);
    painter.setFont(scene.Style.Font);
    painter.setPen(modTone::Expense(scene.Style.Palette));
    painter.drawText(panel.Title, Qt::AlignRight | Qt::AlignVCenter, text);
    QFont bold = scene.Style.Font;
    bold.setBold(true);
    const QFontMetricsF metrics(bold);
    const QRectF room =
        panel.Title.adjusted(0, 0, over > 0 ? -scene.Metrics.horizontalAdvance(text) - scene.Em() : 0.0, 0);
    const QString name = metrics.elidedText(scene.Data.Series[panel.Series].Name, Qt::ElideRight, room.width());
    painter.setFont(bold);
    painter.setPen(scene.Text());
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter, name);
    const int shown = scene.Data.Today >= 0 ? scene.Data.Today : scene.LabelCount() - 1;
    const std::optional<qint64> cents = scene.Data.Series[panel.Series + 1].At(shown);
    const QString limit = cents ? scene.Data.AxisText(*cents) : QString();
    const QRectF rest = room.adjusted(metrics.horizontalAdvance(name) + scene.Em() * 0.6, 0, 0, 0);
    if (scene.Metrics.horizontalAdvance(limit) <= rest.width()) {
        painter.setFont(scene.Style.Font);
        painter.setPen(modTone::Quiet(scene.Style.Palette));
        painter.drawText(rest, Qt::AlignLeft | Qt::AlignVCenter, limit);
    }
}

void PaintLabels(QPainter& painter, const cChartScene& scene, const cChartLayout::cPanel& panel)
{
    double width = 0;
    for (int index = 0; index < scene.LabelCount(); ++index) {
        width = std::max(width, scene.Metrics.horizontalAdvance(scene.Data.ShortLabel(index)));
    }
    const int step = cChartAxis::LabelStep(scene.LabelCount(), width + scene.Em() * 0.8, panel.Plot.width());
    painter.setFont(scene.Style.Font);
    painter.setPen(modTone::Quiet(scene.Style.Palette));
    for (int index = 0; index < scene.LabelCount(); index += step) {
        QRectF box(0, panel.Plot.bottom() + scene.Em() * 0.2, width + 2, scene.Em() * 1.1);
        box.moveLeft(std::clamp(Middle(scene, panel.Plot, index) - width / 2, panel.Plot.left(),
                                std::max(panel.Plot.left(), panel.Plot.right() - width)));
        painter.drawText(box, Qt::AlignCenter, scene.Data.ShortLabel(index));
    }
}

// What is above the limit is set off by another colour and by a gap, which can be told apart without colours.
void PaintColumn(QPainter& painter, const cChartScene& scene, const cChartLayout::cHit& hit,
                 std::optional<double> limit)
{
    if (scene.Data.Series[hit.Part.Series].At(hit.Part.Index).value_or(0) == 0) {
        return;
    }
    QColor colour = scene.Colour(hit.Part.Series);
    QColor over = scene.Colour(hit.Part.Series + 1);
    if (scene.IsAhead(hit.Part.Series, hit.Part.Index)) {
        colour = modChartColour::Pale(colour, scene.Style.Palette);
        over = modChartColour::Pale(over, scene.Style.Palette);
    }
    if (!limit || hit.Box.top() >= *limit) {
        painter.fillRect(hit.Box, colour);
        return;
    }
    painter.fillRect(QRectF(QPointF(hit.Box.left(), *limit), hit.Box.bottomRight()), colour);
    painter.fillRect(QRectF(hit.Box.topLeft(), QPointF(hit.Box.right(), *limit - lineWidth)), over);
}

void PaintPanel(QPainter& painter, const cChartScene& scene, const cChartLayout& layout,
                const cChartLayout::cPanel& panel)
{
    const auto limitAt = [&](int index) {
        const QPointF& point =
            layout.Points[static_cast<std::size_t>(panel.Series) + 1][static_cast<std::size_t>(index)];
        return std::isnan(point.y()) ? std::nullopt : std::optional(point);
    };
    const double zero = panel.Axis.Y(0, panel.Plot);
    painter.setPen(QPen(modChartColour::Mixed(modChartColour::Grid(scene.Style.Palette), scene.Text(), 0.45), 1));
    painter.drawLine(QPointF(panel.Plot.left(), zero), QPointF(panel.Plot.right(), zero));
    for (const cChartLayout::cHit& hit : layout.Hits) {
        if (hit.Part.Series == panel.Series) {
            const std::optional<QPointF> limit = limitAt(hit.Part.Index);
            PaintColumn(painter, scene, hit, limit ? std::optional(limit->y()) : std::nullopt);
        }
    }
    const double half = panel.Plot.width() / std::max(1, scene.LabelCount()) / 2;
    painter.setPen(QPen(scene.Text(), lineWidth));
    for (int index = 0; index < scene.LabelCount(); ++index) {
        if (const std::optional<QPointF> limit = limitAt(index)) {
            painter.drawLine(QPointF(limit->x() - half, limit->y()), QPointF(limit->x() + half, limit->y()));
        }
    }
    PaintTitle(painter, scene, panel);
    PaintLabels(painter, scene, panel);
}

} // namespace

void modLimitPainter::LayOut(const cChartScene& scene, cChartLayout& layout)
{
    const int panels = CountPanels(scene);
    const int columns = CountColumns(panels, layout.Plot);
    const int rows = (panels + columns - 1) / columns;
    const double gap = scene.Em() * 1.4;
    const double width = (layout.Plot.width() - gap * (columns - 1)) / columns;
    const double height = (layout.Plot.height() - scene.Em() * 0.4 * (rows - 1)) / rows;
    layout.Reach = scene.Em() * 0.3;
    layout.Points.resize(static_cast<std::size_t>(scene.SeriesCount()));
    for (int panel = 0; panel < panels; ++panel) {
        const int row = panel / columns;
        const double left = layout.Plot.left() + panel % columns * (width + gap);
        const double top = layout.Plot.top() + row * (height + scene.Em() * 0.4);
        LayOutPanel(scene, layout, panel * 2, QRectF(left, top, width, height));
    }
}

void modLimitPainter::Paint(QPainter& painter, const cChartScene& scene, const cChartLayout& layout)
{
    painter.setFont(scene.Style.Font);
    for (const cChartLayout::cPanel& panel : layout.Panels) {
        PaintPanel(painter, scene, layout, panel);
    }
    scene.PaintFocus(painter, layout);
}
