#pragma once

#include "windows/chart/cChartScene.h"

#include <QByteArray>
#include <QImage>
#include <QSize>

// One routine for screen, picture, SVG and paper: paints in logical units of the painter.
namespace modChartPainter {

[[nodiscard]] cChartLayout LayOut(const cChartData& data, const cChartState& state, const cChartStyle& style,
                                  const QRectF& area);
void Paint(QPainter& painter, const cChartData& data, const cChartState& state, const cChartStyle& style,
           const cChartLayout& layout);

// Layout and painting in one, with nothing marked.
void Paint(QPainter& painter, const cChartData& data, const cChartStyle& style, const QRectF& area);

// How a chart looks on white paper, whatever the desktop looks like.
[[nodiscard]] cChartStyle PaperStyle();

// The chart as a picture, on white. `size` in logical pixels, of which each is `scale` pixels wide.
[[nodiscard]] QImage Image(const cChartData& data, const QSize& size, double scale = 2.0);
[[nodiscard]] QByteArray Png(const cChartData& data, const QSize& size, double scale = 2.0);
[[nodiscard]] QByteArray Svg(const cChartData& data, const QSize& size);

} // namespace modChartPainter
