#pragma once

#include "windows/chart/cChartScene.h"

// Surfaces on top of each other, from zero upwards and what is below zero downwards, with the sum as a line.
namespace modAreaPainter {

void LayOut(const cChartScene& scene, cChartLayout& layout);
void Paint(QPainter& painter, const cChartScene& scene, const cChartLayout& layout);

} // namespace modAreaPainter
