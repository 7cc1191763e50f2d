#pragma once

#include "cli/call/cCliPaint.h"

#include <QDate>

// Paints with the toolkit. Needs a QApplication.
class cQtPaint final : public cCliPaint
{
public:
    [[nodiscard]] QByteArray PaintReport(const QString& html, QDate today) override;
    [[nodiscard]] QByteArray PaintChart(const cChartData& chart, ePicture picture) override;
};
