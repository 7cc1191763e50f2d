#include "base/modDate.h"

namespace {

// The digits of `text` as a number, or -1 when there is anything else.
int ReadDigits(QStringView text)
{
    if (text.isEmpty() || text.size() > 4) {
        return -1;
    }
    int value = 0;
    for (const QChar c : text) {
        if (c < u'0' || c > u'9') {
            return -1;
        }
        value = value * 10 + (c.unicode() - u'0');
    }
    return value;
}

void WriteDigits(QChar* to, int value, int count)
{
    for (int i = count - 1; i >= 0; --i) {
        to[i] = QChar(u'0' + value % 10);
        value /= 10;
    }
}

} // namespace

QString modDate::ToIso(QDate date)
{
    if (!date.isValid() || date.year() < 0 || date.year() > 9999) {
        return {};
    }
    QString text(10, u'-');
    QChar* to = text.data();
    WriteDigits(to, date.year(), 4);
    WriteDigits(to + 5, date.month(), 2);
    WriteDigits(to + 8, date.day(), 2);
    return text;
}

QDate modDate::FromIso(QStringView text)
{
    const bool hasTail = text.size() > 10;
    const bool isShaped = text.size() >= 10 && text[4] == u'-' && text[7] == u'-';
    if (!isShaped || (hasTail && text[10] != u' ' && text[10] != u'T')) {
        return {};
    }
    return QDate(ReadDigits(text.left(4)), ReadDigits(text.mid(5, 2)), ReadDigits(text.mid(8, 2)));
}

QString modDate::ToGerman(QDate date)
{
    if (!date.isValid() || date.year() < 0 || date.year() > 9999) {
        return {};
    }
    QString text(10, u'.');
    QChar* to = text.data();
    WriteDigits(to, date.day(), 2);
    WriteDigits(to + 3, date.month(), 2);
    WriteDigits(to + 6, date.year(), 4);
    return text;
}

QDate modDate::FromGerman(QStringView text)
{
    const QList<QStringView> parts = text.trimmed().split(u'.');
    if (parts.size() != 3) {
        return {};
    }
    int year = ReadDigits(parts[2]);
    if (parts[2].size() == 2 && year >= 0) {
        year += 2000;
    }
    return QDate(year, ReadDigits(parts[1]), ReadDigits(parts[0]));
}
