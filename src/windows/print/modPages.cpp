#include "windows/print/modPages.h"

#include "windows/print/cPrintable.h"

#include <QBuffer>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>

bool modPages::Paint(QPagedPaintDevice& device, cPrintable& content)
{
    QPainter painter;
    if (!painter.begin(&device)) {
        return false;
    }
    const QRectF area(QPointF(), device.pageLayout().paintRectPixels(device.logicalDpiX()).size());
    const int count = content.LayOut(device, area);
    for (int page = 0; page < count; ++page) {
        if (page > 0 && !device.newPage()) {
            return false;
        }
        content.PaintPage(painter, page);
    }
    return painter.end();
}

QByteArray modPages::Pdf(cPrintable& content, const QPageLayout& layout)
{
    constexpr int resolution = 600;
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    QPdfWriter writer(&file);
    writer.setTitle(content.Title());
    writer.setCreator(QStringLiteral("Kontorelle"));
    writer.setResolution(resolution);
    writer.setPageLayout(layout);
    return Paint(writer, content) ? file.data() : QByteArray();
}
