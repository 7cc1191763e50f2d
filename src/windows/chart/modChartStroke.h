#pragma once

#include "windows/chart/cChartScene.h"

// Lines through many points, painted fast.
namespace modChartStroke {

// A series that is drawn as a line; dashed where it is not booked yet.
void Paint(QPainter& painter, const cChartScene& scene, const cChartLayout& layout, int series);

} // namespace modChartStroke
