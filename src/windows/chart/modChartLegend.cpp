#include "windows/chart/modChartLegend.h"

#include "base/cText.h"
#include "windows/chart/modChartColour.h"
#include "windows/look/modTone.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int mostInRows = 6;       // more series stand in a list beside the chart
constexpr double swatchWidth = 1.5; // em, with the gap behind it
constexpr double leastName = 8;     // em, with the swatch; a name cut shorter says nothing

// The series that the legend names. A stack laid beside has the colours of the first one and needs no names of its own.
QList<int> Items(const cChartScene& scene)
{
    QList<int> items;
    const bool namesItsParts =
        scene.Data.Kind == eChart::Flow || scene.Data.Kind == eChart::Calendar || scene.Data.Kind == eChart::Limits;
    for (int series = 0; series < scene.SeriesCount() && !namesItsParts; ++series) {
        if (scene.Data.Kind != eChart::StackedColumns || !scene.Data.Series[series].IsComparison) {
            items.append(series);
        }
    }
    return items;
}

// Two pies share a list; what is which stands above the figures.
bool HasHeader(const cChartScene& scene)
{
    return scene.Data.Kind == eChart::Pie && scene.LabelCount() > 1;
}

// The figures of a pie's slice, as they stand behind its name.
QStringList Figures(const cChartScene& scene, int series)
{
    QStringList figures;
    for (int index = 0; scene.Data.Kind == eChart::Pie && index < scene.LabelCount(); ++index) {
        figures.append(scene.Data.MoneyText(scene.Data.Series[series].At(index).value_or(0)));
    }
    if (figures.size() == 1) {
        figures.append(scene.Data.ShareText(series, 0));
    }
    return figures;
}

// The widths of the columns of figures, each with the gap before it. What stands above the first one has the room above
// the names too.
QList<double> FigureWidths(const cChartScene& scene)
{
    QList<double> widths;
    for (int index = 0; HasHeader(scene) && index < scene.LabelCount(); ++index) {
        const QString above = index > 0 ? scene.Data.Labels[index] : QString();
        widths.append(scene.Metrics.horizontalAdvance(above) + scene.Em() * 1.2);
    }
    for (int series = 0; series < scene.SeriesCount(); ++series) {
        const QStringList figures = Figures(scene, series);
        widths.resize(figures.size());
        for (qsizetype i = 0; i < figures.size(); ++i) {
            widths[i] = std::max(widths[i], scene.Metrics.horizontalAdvance(figures[i]) + scene.Em() * 1.2);
        }
    }
    return widths;
}

double Sum(const QList<double>& widths)
{
    double sum = 0;
    for (const double width : widths) {
        sum += width;
    }
    return sum;
}

double ItemWidth(const cChartScene& scene, int series)
{
    return scene.Em() * (swatchWidth + 0.6) + scene.Metrics.horizontalAdvance(scene.Data.Series[series].Name);
}

double ListWidth(const cChartScene& scene, double room)
{
    double widest = 0;
    const QList<int> items = Items(scene);
    for (const int series : items) {
        widest = std::max(widest, ItemWidth(scene, series));
    }
    const double figures = Sum(FigureWidths(scene));
    if (scene.Data.Kind != eChart::Pie) {
        return std::min(widest, room * 0.3);
    }
    const double least = std::min(figures + std::min(widest, scene.Em() * leastName), room * 0.75);
    return std::min(widest + figures, std::max(room * 0.58, least));
}

// Items below each other within the area, in its middle. The last line counts those that have no room: the table has
// them.
void LayOutList(const cChartScene& scene, cChartLayout& layout, const QRectF& area)
{
    const double most = scene.Em() * 1.65;
    const QList<int> items = Items(scene);
    const int header = HasHeader(scene) ? 1 : 0;
    const int count = static_cast<int>(items.size());
    const double height = std::clamp(area.height() / std::max(1, count + header), scene.Em(), most);
    const int room = std::max(1, static_cast<int>((area.height() + 1) / height) - header);
    const int shown = room < count ? room - 1 : count;
    const double used = height * (std::min(room, count) + header);
    const bool isPie = scene.Data.Kind == eChart::Pie;
    const double first = area.top() + (isPie ? std::max(0.0, (area.height() - used) / 2) : 0.0) + height * header;
    const auto line = [&](int row) { return QRectF(area.left(), first + height * row, area.width(), height); };
    for (int row = 0; row < shown; ++row) {
        layout.Legend.push_back({items[row], line(row)});
    }
    if (shown < count) {
        layout.More = {count - shown, line(shown)};
    }
}

// Where the pies and their list may stand.
struct cPiePlaces
{
    QRectF Pies;
    QRectF List;
};

cPiePlaces Beside(const cChartScene& scene, const QRectF& area)
{
    const double gap = scene.Em() * 1.5;
    const double list = ListWidth(scene, area.width());
    const double pies = std::min(area.width() - list - gap, area.height() * scene.LabelCount());
    const double left = area.left() + (area.width() - list - gap - pies) / 2;
    return {QRectF(left, area.top(), pies, area.height()), QRectF(left + pies + gap, area.top(), list, area.height())};
}

cPiePlaces Below(const cChartScene& scene, const QRectF& area)
{
    const double wanted = scene.Em() * 1.5 * (scene.SeriesCount() + (HasHeader(scene) ? 1 : 0));
    const double height = std::min(wanted, area.height() * 0.5);
    const double width = std::min(area.width(), std::max(ListWidth(scene, area.width() / 0.58), area.width() * 0.6));
    return {area.adjusted(0, 0, 0, -height - scene.Em()),
            QRectF(area.center().x() - width / 2, area.bottom() - height, width, height)};
}

// Of each pie, beside or below each other.
double Diameter(const cChartScene& scene, const QRectF& pies)
{
    const int count = scene.LabelCount();
    return std::max(std::min(pies.width() / count, pies.height()), std::min(pies.width(), pies.height() / count));
}

void LayOutPie(const cChartScene& scene, cChartLayout& layout)
{
    const cPiePlaces beside = Beside(scene, layout.Plot);
    const cPiePlaces below = Below(scene, layout.Plot);
    const bool isBeside = Diameter(scene, beside.Pies) >= Diameter(scene, below.Pies);
    const cPiePlaces& places = isBeside ? beside : below;
    layout.Plot = places.Pies;
    LayOutList(scene, layout, places.List);
}

void LayOutRows(const cChartScene& scene, cChartLayout& layout)
{
    const double height = scene.Em() * 1.5;
    double x = layout.Plot.left();
    double y = layout.Plot.top() - scene.Em() * 0.2;
    const QList<int> items = Items(scene);
    for (const int series : items) {
        const double width = std::min(ItemWidth(scene, series), layout.Plot.width());
        if (x > layout.Plot.left() && x + width > layout.Plot.right()) {
            x = layout.Plot.left();
            y += height;
        }
        layout.Legend.push_back({series, QRectF(x, y, width, height)});
        x += width + scene.Em() * 0.6;
    }
    layout.Plot.setTop(y + height + scene.Em() * 0.3);
}

// A column's swatch is a square, a line's a piece of line.
void PaintSwatch(QPainter& painter, const cChartScene& scene, const QRectF& item, int series)
{
    const double size = scene.Em() * 0.8;
    const QRectF box(item.left() + scene.Em() * 0.3, item.center().y() - size / 2, size, size);
    const bool isHidden = scene.Data.IsHidden(series);
    const QColor colour = isHidden ? modChartColour::Grid(scene.Style.Palette) : scene.Colour(series);
    if (scene.IsLine(series)) {
        painter.setPen(QPen(colour, 2.5));
        painter.drawLine(QPointF(box.left(), box.center().y()), QPointF(box.right(), box.center().y()));
        return;
    }
    painter.setPen(isHidden ? QPen(modTone::Quiet(scene.Style.Palette), 1) : QPen(Qt::NoPen));
    painter.setBrush(isHidden ? QBrush(Qt::NoBrush) : QBrush(colour));
    painter.drawRoundedRect(box, size / 5, size / 5);
}

// Figures right-aligned in their columns.
void PaintFigures(QPainter& painter, const cChartScene& scene, const QRectF& row, const QStringList& figures,
                  const QList<double>& widths, const QColor& first)
{
    painter.setFont(scene.Style.Font);
    double right = row.right();
    for (qsizetype i = figures.size() - 1; i >= 0; --i) {
        painter.setPen(i == 0 ? first : modTone::Quiet(scene.Style.Palette));
        const double left = i == 0 ? row.left() : right - widths[i];
        painter.drawText(QRectF(left, row.top(), right - left, row.height()), Qt::AlignRight | Qt::AlignVCenter,
                         scene.Metrics.elidedText(figures[i], Qt::ElideRight, right - left));
        right -= widths[i];
    }
}

void PaintItem(QPainter& painter, const cChartScene& scene, const cChartLayout::cLegendItem& item,
               const QList<double>& widths)
{
    const int series = item.Series;
    PaintSwatch(painter, scene, item.Area, series);
    const QColor text = scene.Data.IsHidden(series) ? modTone::Quiet(scene.Style.Palette) : scene.Text();
    QFont font = scene.Style.Font;
    font.setStrikeOut(scene.Data.IsHidden(series));
    painter.setFont(font);
    painter.setPen(text);
    const QRectF name = item.Area.adjusted(scene.Em() * swatchWidth, 0, -Sum(widths), 0);
    painter.drawText(name, Qt::AlignLeft | Qt::AlignVCenter,
                     scene.Metrics.elidedText(scene.Data.Series[series].Name, Qt::ElideRight, name.width()));
    PaintFigures(painter, scene, item.Area, Figures(scene, series), widths, text);
}

} // namespace

void modChartLegend::LayOut(const cChartScene& scene, cChartLayout& layout)
{
    if (scene.Data.Kind == eChart::Pie) {
        LayOutPie(scene, layout);
    } else if (Items(scene).size() > mostInRows && layout.Plot.width() > scene.Em() * 30) {
        const double width = ListWidth(scene, layout.Plot.width());
        const QRectF area(layout.Plot.right() - width, layout.Plot.top(), width, layout.Plot.height());
        layout.Plot.setRight(area.left() - scene.Em() * 0.5);
        LayOutList(scene, layout, area);
    } else if (Items(scene).size() > 1) {
        LayOutRows(scene, layout);
    }
}

void modChartLegend::Paint(QPainter& painter, const cChartScene& scene, const cChartLayout& layout)
{
    const QList<double> widths = FigureWidths(scene);
    if (HasHeader(scene) && !layout.Legend.empty()) {
        const QRectF first = layout.Legend.front().Area;
        PaintFigures(painter, scene, first.translated(0, -first.height()), scene.Data.Labels, widths,
                     modTone::Quiet(scene.Style.Palette));
    }
    if (layout.More.Count > 0) {
        painter.setFont(scene.Style.Font);
        painter.setPen(modTone::Quiet(scene.Style.Palette));
        painter.drawText(layout.More.Area.adjusted(scene.Em() * swatchWidth, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                         cText::Tr("und {0} weitere", {QString::number(layout.More.Count)}));
    }
    for (std::size_t i = 0; i < layout.Legend.size(); ++i) {
        const cChartLayout::cLegendItem& item = layout.Legend[i];
        const bool isFocused = scene.State.Legend == static_cast<int>(i);
        const bool isPointed = scene.State.Hovered && scene.State.Hovered->Series == item.Series;
        if (isFocused || isPointed) {
            painter.setPen(isFocused ? QPen(scene.Style.Palette.color(QPalette::Highlight), 2) : QPen(Qt::NoPen));
            painter.setBrush(modChartColour::Future(scene.Style.Palette));
            painter.drawRoundedRect(item.Area.adjusted(-2, 0, 4, 0), scene.Em() * 0.25, scene.Em() * 0.25);
        }
        PaintItem(painter, scene, item, widths);
    }
}
