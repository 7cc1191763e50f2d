#pragma once

#include "windows/chart/cChartScene.h"

// Lines through the labels, with named points.
namespace modLinePainter {

void LayOut(const cChartScene& scene, cChartLayout& layout);
void Paint(QPainter& painter, const cChartScene& scene, const cChartLayout& layout);

} // namespace modLinePainter
