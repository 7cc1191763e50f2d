#pragma once

#include "windows/chart/cChartScene.h"

// Rings with a slice for each series, one ring for each label; the whole sum stands in the middle.
namespace modPiePainter {

void LayOut(const cChartScene& scene, cChartLayout& layout);
void Paint(QPainter& painter, const cChartScene& scene, const cChartLayout& layout);

} // namespace modPiePainter
