#pragma once

#include "windows/chart/cChartScene.h"

// A small chart for each limit: what was spent as columns, the limit as a line through them.
namespace modLimitPainter {

void LayOut(const cChartScene& scene, cChartLayout& layout);
void Paint(QPainter& painter, const cChartScene& scene, const cChartLayout& layout);

} // namespace modLimitPainter
