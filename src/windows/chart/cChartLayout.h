#pragma once

#include "views/chart/cChartData.h"
#include "windows/chart/cChartAxis.h"

#include <QList>
#include <QPainterPath>
#include <QPointF>
#include <QRectF>

#include <optional>
#include <vector>

// A part that can be pointed at: a value of a series.
struct cChartPart
{
    int Series = 0;
    int Index = 0;

    bool operator==(const cChartPart&) const = default;
};

// Where everything of a chart stands within its area, worked out once for painting and for pointing at parts.
struct cChartLayout
{
    // The area that answers to the pointer: the path, or the box where there is none.
    struct cHit
    {
        cChartPart Part;
        QRectF Box;
        QPainterPath Path{};
    };
    struct cLegendItem
    {
        int Series = 0;
        QRectF Area;
    };
    struct cMore
    {
        int Count = 0;
        QRectF Area{};
    };
    struct cCircle
    {
        int Index = 0;
        QPointF Centre;
        double Outer = 0;
        double Inner = 0;
        QRectF Label; // empty when there is only one circle
    };

    // A small chart of its own within the picture.
    struct cPanel
    {
        int Series = 0; // the first one of those in it
        QRectF Title;
        QRectF Plot;
        cChartAxis Axis;
    };
    // A part of a flow at its end of the picture.
    struct cNode
    {
        cChartPart Part;
        QRectF Bar;
        QRectF Label; // empty where there is no room
    };
    // A month of a calendar.
    struct cMonth
    {
        int Month = 1;
        QRectF Title;
    };

    QRectF Area;
    QRectF Title;
    QRectF Note;
    QRectF Plot; // what is left for the picture itself
    cChartAxis Axis;
    std::vector<cLegendItem> Legend;
    cMore More;                               // what the legend has no room for
    std::vector<cHit> Hits;                   // later ones lie on top
    std::vector<std::vector<QPointF>> Points; // by series and label; NaN for a gap, empty for a hidden series
    std::vector<cCircle> Circles;
    std::vector<cPanel> Panels;
    std::vector<cNode> Nodes;
    std::vector<cMonth> Months;
    QRectF Middle;    // what a flow goes through
    double Cell = 0;  // side of a day in a calendar
    double Reach = 0; // how far from a point of a line the pointer still means it

    [[nodiscard]] std::optional<cChartPart> PartAt(QPointF position) const;
    [[nodiscard]] int LegendAt(QPointF position) const; // item, -1 for none
    // Where a tooltip or a focus mark of a part belongs; empty for a part that is not shown.
    [[nodiscard]] std::optional<QPointF> AnchorOf(const cChartPart& part) const;

private:
    [[nodiscard]] std::optional<cChartPart> PointAt(QPointF position) const;
};
