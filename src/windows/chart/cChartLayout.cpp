#include "windows/chart/cChartLayout.h"

#include <algorithm>
#include <cmath>

std::optional<cChartPart> cChartLayout::PartAt(QPointF position) const
{
    if (const std::optional<cChartPart> point = PointAt(position)) {
        return point; // lines lie over columns
    }
    const auto hit = std::find_if(Hits.rbegin(), Hits.rend(), [position](const cHit& each) {
        return each.Path.isEmpty() ? each.Box.contains(position) : each.Path.contains(position);
    });
    return hit == Hits.rend() ? std::nullopt : std::optional(hit->Part);
}

// The nearest point of a line within reach.
std::optional<cChartPart> cChartLayout::PointAt(QPointF position) const
{
    std::optional<cChartPart> nearest;
    double best = Reach * Reach;
    for (std::size_t series = 0; series < Points.size(); ++series) {
        const std::vector<QPointF>& points = Points[series];
        // Points stand from left to right, gaps too.
        auto point = std::lower_bound(points.begin(), points.end(), position.x() - Reach,
                                      [](QPointF each, double x) { return each.x() < x; });
        for (; point != points.end() && point->x() <= position.x() + Reach; ++point) {
            const QPointF distance = *point - position;
            const double squared = QPointF::dotProduct(distance, distance); // NaN, never smaller, for a gap
            if (squared < best) {
                best = squared;
                nearest = {static_cast<int>(series), static_cast<int>(point - points.begin())};
            }
        }
    }
    return nearest;
}

int cChartLayout::LegendAt(QPointF position) const
{
    const auto item = std::find_if(Legend.begin(), Legend.end(),
                                   [position](const cLegendItem& each) { return each.Area.contains(position); });
    return item == Legend.end() ? -1 : static_cast<int>(item - Legend.begin());
}

std::optional<QPointF> cChartLayout::AnchorOf(const cChartPart& part) const
{
    const auto series = static_cast<std::size_t>(part.Series);
    const auto index = static_cast<std::size_t>(part.Index);
    if (series < Points.size() && index < Points[series].size() && !std::isnan(Points[series][index].y())) {
        return Points[series][index];
    }
    const auto hit = std::find_if(Hits.begin(), Hits.end(), [&](const cHit& each) { return each.Part == part; });
    return hit == Hits.end() ? std::nullopt : std::optional(hit->Box.center());
}
