#include "windows/report/modReportPdf.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>

QByteArray modReportPdf::Bytes(cPrintable& content)
{
    constexpr qreal margin = 15; // millimetres
    constexpr int resolution = 600;
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    QPdfWriter writer(&file);
    writer.setTitle(content.Title());
    writer.setCreator(QStringLiteral("Kontorelle"));
    writer.setResolution(resolution);
    writer.setPageLayout(
        {QPageSize(QPageSize::A4), QPageLayout::Portrait, {margin, margin, margin, margin}, QPageLayout::Millimeter});
    QPainter painter;
    if (!painter.begin(&writer)) {
        return {};
    }
    const QRectF area(QPointF(), writer.pageLayout().paintRectPixels(resolution).size());
    const int count = content.LayOut(writer, area);
    for (int page = 0; page < count; ++page) {
        if (page > 0 && !writer.newPage()) {
            return {};
        }
        content.PaintPage(painter, page);
    }
    return painter.end() ? file.data() : QByteArray();
}
