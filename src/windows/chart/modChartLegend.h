#pragma once

#include "windows/chart/cChartScene.h"

// The legend: beside a pie with the figures, above other charts in rows, beside them when there are many series.
namespace modChartLegend {

// Takes its place from the plot.
void LayOut(const cChartScene& scene, cChartLayout& layout);
void Paint(QPainter& painter, const cChartScene& scene, const cChartLayout& layout);

} // namespace modChartLegend
