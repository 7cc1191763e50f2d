#include "base/modMD5.h"

#include <QCryptographicHash>

QString modMD5::Hex(const QString& text)
{
    return HexOfBytes(text.toUtf8());
}

QString modMD5::HexOfBytes(const QByteArray& bytes)
{
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Md5).toHex());
}
