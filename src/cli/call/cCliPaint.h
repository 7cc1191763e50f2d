#pragma once

#include <QByteArray>
#include <QDate>
#include <QString>

struct cChartData;

// Paints what the command line program writes as pages and pictures. Painting needs fonts and with them the toolkit,
// which this folder does without; the program brings an implementation.
class cCliPaint
{
public:
    cCliPaint() = default;
    cCliPaint(const cCliPaint&) = delete;
    cCliPaint& operator=(const cCliPaint&) = delete;
    virtual ~cCliPaint() = default;

    // Both give a whole file, or no bytes when it cannot be painted.
    enum class ePicture { Png, Svg };
    [[nodiscard]] virtual QByteArray PaintReport(const QString& html, QDate today) = 0; // a PDF, without links
    [[nodiscard]] virtual QByteArray PaintChart(const cChartData& chart, ePicture picture) = 0;
};
