#pragma once

#include "windows/chart/cChartLayout.h"

#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QPalette>

#include <optional>

class QPainter;

// What a chart looks like, whatever it is painted on.
struct cChartStyle
{
    QPalette Palette;
    QFont Font;
};

// What is marked at the moment.
struct cChartState
{
    std::optional<cChartPart> Current{};
    std::optional<cChartPart> Hovered{};
    int Legend = -1; // legend item with the focus, -1 for none
};

// The same font larger or smaller, whether its size stands in points or in pixels.
[[nodiscard]] QFont ScaledFont(QFont font, double factor);

// All that the painters of one chart look at.
struct cChartScene
{
    const cChartData& Data;
    const cChartState& State;
    const cChartStyle& Style;
    QFontMetricsF Metrics;

    cChartScene(const cChartData& data, const cChartState& state, const cChartStyle& style)
        : Data(data),
          State(state),
          Style(style),
          Metrics(style.Font)
    {
    }

    [[nodiscard]] double Em() const { return Metrics.height(); }
    [[nodiscard]] int SeriesCount() const { return static_cast<int>(Data.Series.size()); }
    [[nodiscard]] int LabelCount() const { return static_cast<int>(Data.Labels.size()); }
    [[nodiscard]] QColor Colour(int series) const; // paler for a comparison
    [[nodiscard]] QColor Text() const { return Style.Palette.color(QPalette::Text); }
    // True for what is not booked yet.
    [[nodiscard]] bool IsAhead(int series, int index) const;
    // True for a series that is drawn as a line.
    [[nodiscard]] bool IsLine(int series) const;

    // Plot, axis and labels of every chart with axes: works out the axis for the amounts, and paints grid, labels, the
    // time ahead and the limit.
    void LayOutAxes(cChartLayout& layout, qint64 smallest, qint64 largest) const;
    void LayOutLines(cChartLayout& layout) const; // the points of every line; needs the axis
    void PaintAxes(QPainter& painter, const cChartLayout& layout) const;
    [[nodiscard]] double XOf(const cChartLayout& layout, int index) const;

    void PaintFocus(QPainter& painter, const cChartLayout& layout) const;

private:
    void PaintLabels(QPainter& painter, const cChartLayout& layout) const;
    void PaintAhead(QPainter& painter, const cChartLayout& layout) const;
    void PaintLimit(QPainter& painter, const cChartLayout& layout) const;
};
