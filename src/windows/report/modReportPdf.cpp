#include "windows/report/modReportPdf.h"

#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

bool modReportPdf::Write(cPrintable& content, const QString& path)
{
    constexpr qreal margin = 15; // millimetres
    constexpr int resolution = 600;
    QSaveFile file(path); // what stands there stays until the new file is whole
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    QPdfWriter writer(&file);
    writer.setTitle(content.Title());
    writer.setCreator(QStringLiteral("Kontorelle"));
    writer.setResolution(resolution);
    writer.setPageLayout(
        {QPageSize(QPageSize::A4), QPageLayout::Portrait, {margin, margin, margin, margin}, QPageLayout::Millimeter});
    QPainter painter;
    if (!painter.begin(&writer)) {
        return false;
    }
    const QRectF area(QPointF(), writer.pageLayout().paintRectPixels(resolution).size());
    const int count = content.LayOut(writer, area);
    for (int page = 0; page < count; ++page) {
        if (page > 0 && !writer.newPage()) {
            return false;
        }
        content.PaintPage(painter, page);
    }
    return painter.end() && file.commit();
}
