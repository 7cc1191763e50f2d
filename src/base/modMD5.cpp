#include "base/modMD5.h"

#include <QCryptographicHash>

QString modMD5::Hex(const QString& text)
{
    return QString::fromLatin1(QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Md5).toHex());
}
