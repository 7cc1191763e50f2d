#pragma once

#include "model/cReceiptSource.h"

#include <QList>

class QMimeData;

// What was dropped or pasted, as receipts: files, else a picture.
namespace modReceiptMime {

[[nodiscard]] bool HasReceipts(const QMimeData& data);
[[nodiscard]] QList<cReceiptSource> Receipts(const QMimeData& data);
[[nodiscard]] QList<cReceiptSource> Clipboard();

} // namespace modReceiptMime
