#pragma once

#include "windows/chart/cChartScene.h"

// The days of a year in their months, each shaded by its amount.
namespace modCalendarPainter {

void LayOut(const cChartScene& scene, cChartLayout& layout);
void Paint(QPainter& painter, const cChartScene& scene, const cChartLayout& layout);

} // namespace modCalendarPainter
