#include "base/modDate.h"

#include <atomic>

namespace {

std::atomic<cDayForm> formInUse{cDayForm()}; // large files are read aside, and their faults name days

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

void modDate::UseForm(cDayForm form)
{
    formInUse = form;
}

cDayForm modDate::Form()
{
    return formInUse;
}

QString modDate::ToText(QDate date)
{
    return ToText(date, Form());
}

QString modDate::ToText(QDate date, cDayForm form)
{
    if (!date.isValid() || date.year() < 0 || date.year() > 9999) {
        return {};
    }
    const bool isYearFirst = form.Order == cDayForm::eOrder::YearFirst;
    const bool isDayFirst = form.Order == cDayForm::eOrder::DayFirst;
    QString text(10, QChar(form.Separator));
    QChar* to = text.data();
    QChar* rest = isYearFirst ? to + 5 : to;
    WriteDigits(isYearFirst ? to : to + 6, date.year(), 4);
    WriteDigits(rest, isDayFirst ? date.day() : date.month(), 2);
    WriteDigits(rest + 3, isDayFirst ? date.month() : date.day(), 2);
    return text;
}

QString modDate::ToShortText(QDate date)
{
    const cDayForm form = Form();
    const QString text = ToText(date, form);
    if (form.Order == cDayForm::eOrder::YearFirst) {
        return text.mid(5);
    }
    return text.left(form.Separator == u'.' ? 6 : 5); // a point belongs to the number before it
}

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
