#include "windows/print/modPages.h"

#include "base/cProgress.h"
#include "windows/print/cPrintable.h"

#include <QBuffer>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>

bool modPages::Paint(QPagedPaintDevice& device, cPrintable& content, cProgress& progress)
{
    QPainter painter;
    if (!painter.begin(&device)) {
        return false;
    }
    const QRectF area(QPointF(), device.pageLayout().paintRectPixels(device.logicalDpiX()).size());
    const int count = content.LayOut(device, area);
    progress.showProgressBar(count);
    for (int page = 0; page < count && !progress.IsCancelled(); ++page) {
        if (page > 0 && !device.newPage()) {
            return false;
        }
        content.PaintPage(painter, page);
        progress.addProgressValue(1);
    }
    const bool isWhole = !progress.IsCancelled();
    progress.hideProgressBar();
    return painter.end() && isWhole;
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
    cNoProgress progress;
    return Paint(writer, content, progress) ? file.data() : QByteArray();
}
