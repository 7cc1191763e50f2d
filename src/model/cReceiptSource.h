#pragma once

#include <QByteArray>
#include <QString>

// Where a new receipt comes from: a file, or a picture out of the clipboard.
struct cReceiptSource
{
    QString Path;       // of the file; empty for a picture
    QByteArray Bytes{}; // of the picture, as PNG

    bool operator==(const cReceiptSource&) const = default;
};
