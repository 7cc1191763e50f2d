#include "windows/receipt/modReceiptMime.h"

#include "windows/widget/modDrop.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

bool modReceiptMime::HasReceipts(const QMimeData& data)
{
    return data.hasImage() || !modDrop::Files(data).isEmpty();
}

// A file before its picture: file managers put both there, and the picture may only be its symbol.
QList<cReceiptSource> modReceiptMime::Receipts(const QMimeData& data)
{
    QList<cReceiptSource> sources;
    const QStringList files = modDrop::Files(data);
    for (const QString& file : files) {
        sources.append({file});
    }
    if (sources.isEmpty() && data.hasImage()) {
        cReceiptSource picture;
        QBuffer buffer(&picture.Bytes);
        const auto image = data.imageData().value<QImage>();
        if (buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "PNG")) {
            sources.append(picture);
        }
    }
    return sources;
}

QList<cReceiptSource> modReceiptMime::Clipboard()
{
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data == nullptr ? QList<cReceiptSource>() : Receipts(*data);
}
