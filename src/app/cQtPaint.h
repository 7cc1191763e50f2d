#pragma once

#include "cli/cCliPaint.h"

// Paints with the toolkit. Needs a QApplication.
class cQtPaint final : public cCliPaint
{
public:
    [[nodiscard]] bool PaintReport(const QString& html, const QString& path) override;
    [[nodiscard]] bool PaintChart(const cChartData& chart, const QString& path) override;
};
