#include "views/common/modFileSize.h"

#include "base/cText.h"
#include "base/modSum.h"
#include "core/cAmountFormat.h"

#include <QLocale>

QString modFileSize::Text(qint64 bytes, const cAmountFormat& format)
{
    constexpr qint64 kilo = 1024;
    if (bytes < kilo) {
        return cText::Tr("{0} Byte", {QString::number(bytes)});
    }
    const QString size = QLocale::c().formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat);
    return QString(size).replace(u'.', modSum::Sign(format.Decimal()));
}
