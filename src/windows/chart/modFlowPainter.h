#pragma once

#include "windows/chart/cChartScene.h"

// Bands from the parts of one side through one bar to those of the other, as wide as their amounts.
namespace modFlowPainter {

void LayOut(const cChartScene& scene, cChartLayout& layout);
void Paint(QPainter& painter, const cChartScene& scene, const cChartLayout& layout);

} // namespace modFlowPainter
