#include "app/machine/cQtPaint.h"

#include "views/chart/cChartData.h"
#include "windows/chart/modChartPainter.h"
#include "windows/print/modPages.h"
#include "windows/report/cReportPrinter.h"

#include <QApplication>

QByteArray cQtPaint::PaintReport(const QString& html, QDate today)
{
    cReportPrinter pages(html, QApplication::font().family(), today);
    return modPages::Pdf(pages);
}

QByteArray cQtPaint::PaintChart(const cChartData& chart, ePicture picture)
{
    constexpr QSize size(1000, 600);
    return picture == ePicture::Svg ? modChartPainter::Svg(chart, size) : modChartPainter::Png(chart, size);
}
