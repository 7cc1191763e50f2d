#include "app/cQtPaint.h"

#include "views/chart/cChartData.h"
#include "views/list/modFileWrite.h"
#include "windows/chart/modChartPainter.h"
#include "windows/report/cReportPrinter.h"
#include "windows/report/modReportPdf.h"

#include <QApplication>

bool cQtPaint::PaintReport(const QString& html, const QString& path)
{
    cReportPrinter pages(html, QApplication::font().family(), QStringLiteral("Kontorelle"));
    return modReportPdf::Write(pages, path);
}

bool cQtPaint::PaintChart(const cChartData& chart, const QString& path)
{
    constexpr QSize size(1000, 600);
    const bool isSvg = path.endsWith(QLatin1StringView(".svg"), Qt::CaseInsensitive);
    const QByteArray picture = isSvg ? modChartPainter::Svg(chart, size) : modChartPainter::Png(chart, size);
    return !picture.isEmpty() && modFileWrite::Replace(path, picture).isEmpty();
}
