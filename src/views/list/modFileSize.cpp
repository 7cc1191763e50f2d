#include "views/list/modFileSize.h"

#include "base/modSum.h"
#include "core/cAmountFormat.h"

#include <QLocale>

QString modFileSize::Text(qint64 bytes, const cAmountFormat& format)
{
    const QString size = QLocale::c().formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat);
    return QString(size).replace(u'.', modSum::Sign(format.Decimal()));
}
