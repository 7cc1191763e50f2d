#include "windows/chart/modFlowPainter.h"

#include "windows/chart/modChartColour.h"
#include "windows/look/modTone.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double barWidth = 0.7;   // em
constexpr double labelShare = 0.3; // of the width, at each end
constexpr double leastBand = 1.0;  // pixels

enum eSide { In, Out };

QList<int> PartsOf(const cChartScene& scene, int side)
{
    QList<int> parts;
    for (int series = 0; series < scene.SeriesCount(); ++series) {
        if (scene.Data.Series[series].At(side).value_or(0) > 0) {
            parts.append(series);
        }
    }
    return parts;
}

// The width of the labels of both sides: what the longest needs, and no more than its share.
double LabelWidth(const cChartScene& scene, double room)
{
    double widest = 0;
    for (int series = 0; series < scene.SeriesCount(); ++series) {
        const cChartSeries& each = scene.Data.Series[series];
        const qint64 cents = each.At(In).value_or(each.At(Out).value_or(0));
        const QString text = each.Name + u"   " + scene.Data.MoneyText(cents);
        widest = std::max(widest, scene.Metrics.horizontalAdvance(text) + scene.Em() * 0.6);
    }
    return std::min(widest, room * labelShare);
}

// From a bar on one side to its place at the bar in the middle.
QPainterPath Band(const QRectF& from, const QRectF& to)
{
    const double middle = (from.right() + to.left()) / 2;
    QPainterPath path(from.topRight());
    path.cubicTo(QPointF(middle, from.top()), QPointF(middle, to.top()), to.topLeft());
    path.lineTo(to.bottomLeft());
    path.cubicTo(QPointF(middle, to.bottom()), QPointF(middle, from.bottom()), from.bottomRight());
    path.closeSubpath();
    return path;
}

void LayOutSide(const cChartScene& scene, cChartLayout& layout, int side, double labels)
{
    const QList<int> parts = PartsOf(scene, side);
    const double total = std::max<double>(1, static_cast<double>(scene.Data.Total(side)));
    const auto gaps = static_cast<double>(std::max<qsizetype>(1, parts.size() - 1));
    // The parts of a side stand apart, as far as the bar in the middle is lower than the picture.
    const double gap = parts.size() < 2 ? 0 : (layout.Plot.height() - layout.Middle.height()) / gaps;
    double y = parts.size() < 2 ? layout.Middle.top() : layout.Plot.top();
    double middle = layout.Middle.top();
    const double width = scene.Em() * barWidth;
    const double x = side == In ? layout.Plot.left() + labels : layout.Plot.right() - labels - width;
    for (const int series : parts) {
        const auto cents = static_cast<double>(scene.Data.Series[series].At(side).value_or(0));
        const double height = std::max(leastBand, layout.Middle.height() * cents / total);
        const QRectF bar(x, y, width, height);
        const QRectF at(layout.Middle.left(), middle, layout.Middle.width(), height);
        QPainterPath path = side == In ? Band(bar, at) : Band(at, bar);
        path.addRect(bar);
        const double label = side == In ? layout.Plot.left() : bar.right();
        layout.Nodes.push_back(
            {{series, side}, bar, QRectF(label, bar.center().y() - scene.Em() * 0.55, labels, scene.Em() * 1.1)});
        layout.Hits.push_back({{series, side}, bar, path});
        y += height + gap;
        middle += height;
    }
}

// Labels that would lie on each other give way upwards and downwards; what has no room then has none.
void SpreadLabels(const cChartScene& scene, cChartLayout& layout, int side)
{
    std::vector<cChartLayout::cNode*> nodes;
    for (cChartLayout::cNode& node : layout.Nodes) {
        if (node.Part.Index == side) {
            nodes.push_back(&node);
        }
    }
    const auto room = static_cast<std::size_t>(layout.Plot.height() / (scene.Em() * 1.1));
    std::vector<cChartLayout::cNode*> named = nodes;
    std::stable_sort(named.begin(), named.end(),
                     [](const auto* a, const auto* b) { return a->Bar.height() > b->Bar.height(); });
    for (std::size_t i = room; i < named.size(); ++i) {
        named[i]->Label = QRectF();
    }
    std::erase_if(nodes, [](const auto* node) { return node->Label.isNull(); });
    double free = layout.Plot.top();
    for (auto* node : nodes) {
        node->Label.moveTop(std::max(node->Label.top(), free));
        free = node->Label.bottom();
    }
    free = layout.Plot.bottom();
    std::for_each(nodes.rbegin(), nodes.rend(), [&](auto* node) {
        node->Label.moveBottom(std::min(node->Label.bottom(), free));
        free = node->Label.top();
    });
}

// The name and, where there is room, the amount behind it.
void PaintLabel(QPainter& painter, const cChartScene& scene, const cChartLayout::cNode& node)
{
    const cChartSeries& series = scene.Data.Series[node.Part.Series];
    const QRectF box = node.Label.adjusted(scene.Em() * 0.3, 0, -scene.Em() * 0.3, 0);
    const QString amount = scene.Data.MoneyText(series.At(node.Part.Index).value_or(0));
    const double needed = scene.Metrics.horizontalAdvance(amount) + scene.Em() * 0.5;
    const double nameWidth = scene.Metrics.horizontalAdvance(series.Name);
    const bool hasAmount = std::min(nameWidth, scene.Em() * 5) + needed <= box.width();
    const double room = box.width() - (hasAmount ? needed : 0);
    const QString name = scene.Metrics.elidedText(series.Name, Qt::ElideRight, room);
    const double shown = scene.Metrics.horizontalAdvance(name);
    const bool isLeft = node.Part.Index == In;
    const double start = isLeft ? box.right() - shown - (hasAmount ? needed : 0) : box.left();
    painter.setPen(scene.Text());
    painter.drawText(QRectF(start, box.top(), shown + 1, box.height()), Qt::AlignLeft | Qt::AlignVCenter, name);
    if (hasAmount) {
        painter.setPen(modTone::Quiet(scene.Style.Palette));
        painter.drawText(QRectF(start + shown, box.top(), needed, box.height()), Qt::AlignRight | Qt::AlignVCenter,
                         amount);
    }
}

void PaintBand(QPainter& painter, const cChartScene& scene, const cChartLayout::cHit& hit, const QRectF& bar)
{
    const QColor colour = scene.Colour(hit.Part.Series);
    const bool isOther = scene.State.Hovered && scene.State.Hovered != hit.Part;
    const QColor base = scene.Style.Palette.color(QPalette::Base);
    painter.setPen(Qt::NoPen);
    painter.setBrush(modChartColour::Mixed(colour, base, isOther ? 0.75 : 0.5));
    painter.drawPath(hit.Path);
    painter.setBrush(colour);
    painter.drawRect(bar);
}

} // namespace

void modFlowPainter::LayOut(const cChartScene& scene, cChartLayout& layout)
{
    layout.Plot.adjust(0, scene.Em() * 1.3, 0, -scene.Em() * 0.4); // above: what the bar in the middle is
    const double labels = LabelWidth(scene, layout.Plot.width());
    const double share = 0.78; // the rest is for the gaps between the parts
    const double height = std::max(1.0, layout.Plot.height() * share);
    const double width = scene.Em() * barWidth;
    layout.Middle = QRectF(layout.Plot.center().x() - width / 2, layout.Plot.center().y() - height / 2, width, height);
    for (const int side : {In, Out}) {
        LayOutSide(scene, layout, side, labels);
        SpreadLabels(scene, layout, side);
    }
}

void modFlowPainter::Paint(QPainter& painter, const cChartScene& scene, const cChartLayout& layout)
{
    for (std::size_t i = 0; i < layout.Hits.size(); ++i) {
        PaintBand(painter, scene, layout.Hits[i], layout.Nodes[i].Bar);
    }
    painter.setBrush(modTone::Quiet(scene.Style.Palette));
    painter.drawRect(layout.Middle);
    painter.setFont(scene.Style.Font);
    for (const cChartLayout::cNode& node : layout.Nodes) {
        if (!node.Label.isNull()) {
            PaintLabel(painter, scene, node);
        }
    }
    const QString text = scene.Data.Middle + u"  " + scene.Data.MoneyText(scene.Data.Total(In));
    const double width = layout.Plot.width() - 2 * scene.Em();
    QRectF box(0, layout.Plot.top() - scene.Em() * 1.3, width, scene.Em() * 1.2);
    box.moveLeft(layout.Middle.center().x() - width / 2);
    painter.setPen(scene.Text());
    painter.drawText(box, Qt::AlignCenter, scene.Metrics.elidedText(text, Qt::ElideRight, width));
    scene.PaintFocus(painter, layout);
}
