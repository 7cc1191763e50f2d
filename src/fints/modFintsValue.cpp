#include "fints/modFintsValue.h"

QByteArray modFintsValue::Escaped(QStringView text)
{
    QByteArray wire;
    wire.reserve(2 * text.size()); // a growing copy would leave parts of a secret behind
    for (const QChar character : text) {
        const char byte = character.unicode() < 256 ? character.toLatin1() : '?';
        if (QByteArrayView("?'+:@").contains(byte)) {
            wire.append('?');
        }
        wire.append(byte);
    }
    return wire;
}

QString modFintsValue::Unescaped(QByteArrayView wire)
{
    QString text;
    text.reserve(wire.size());
    for (qsizetype at = 0; at < wire.size(); ++at) {
        if (wire[at] == '?' && at + 1 < wire.size()) {
            ++at;
        }
        text.append(QLatin1Char(wire[at]));
    }
    return text;
}

QByteArray modFintsValue::CHBCIDate(QDate day)
{
    return day.isValid() ? day.toString(QStringLiteral("yyyyMMdd")).toLatin1() : QByteArray();
}

QByteArray modFintsValue::SecurityMoment(const QDateTime& moment)
{
    return "1:" + CHBCIDate(moment.date()) + ":" + moment.time().toString(QStringLiteral("HHmmss")).toLatin1();
}

QByteArray modFintsValue::Binary(const QByteArray& data)
{
    return "@" + QByteArray::number(data.size()) + "@" + data;
}
