#pragma once

#include "windows/chart/cChartScene.h"

// Columns beside each other or on top of each other, with lines over them for the series that are lines.
namespace modColumnPainter {

void LayOut(const cChartScene& scene, cChartLayout& layout);
void Paint(QPainter& painter, const cChartScene& scene, const cChartLayout& layout);

} // namespace modColumnPainter
