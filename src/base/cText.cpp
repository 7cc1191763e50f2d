#include "base/cText.h"

QString cText::Fill(const QString& text, const QStringList& values)
{
    QString result;
    qsizetype from = 0;
    while (true) {
        const qsizetype open = text.indexOf(u'{', from);
        const qsizetype close = open < 0 ? -1 : text.indexOf(u'}', open);
        if (close < 0) {
            break;
        }
        bool isNumber = false;
        const int number = QStringView(text).mid(open + 1, close - open - 1).toInt(&isNumber);
        const bool isKnown = isNumber && number >= 0 && number < values.size();
        const qsizetype end = isKnown ? close + 1 : open + 1;
        result += QStringView(text).mid(from, (isKnown ? open : end) - from);
        if (isKnown) {
            result += values.at(number);
        }
        from = end;
    }
    return result + QStringView(text).mid(from);
}
