#pragma once

#include <QString>

struct cChartData;

// Paints what the command line program writes as pages or pictures. Painting needs fonts and with them the toolkit,
// which this folder does without; the program brings an implementation.
class cCliPaint
{
public:
    cCliPaint() = default;
    cCliPaint(const cCliPaint&) = delete;
    cCliPaint& operator=(const cCliPaint&) = delete;
    virtual ~cCliPaint() = default;

    // Writes a report as PDF. `html` is a report without links. False when the file cannot be written.
    [[nodiscard]] virtual bool PaintReport(const QString& html, const QString& path) = 0;

    // Writes a chart as a picture: SVG where the path ends so, else PNG. False when the file cannot be written.
    [[nodiscard]] virtual bool PaintChart(const cChartData& chart, const QString& path) = 0;
};
