#include "base/modDayText.h"

#include "base/cText.h"
#include "base/modChar.h"
#include "base/modDate.h"
#include "base/modFold.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace {

struct cDayWord
{
    const char* Word;
    int Days; // from today
};

constexpr std::array<cDayWord, 5> dayWords{{
    {QT_TRANSLATE_NOOP("cText", "heute"), 0},
    {QT_TRANSLATE_NOOP("cText", "gestern"), -1},
    {QT_TRANSLATE_NOOP("cText", "vorgestern"), -2},
    {QT_TRANSLATE_NOOP("cText", "morgen"), 1},
    {QT_TRANSLATE_NOOP("cText", "übermorgen"), 2},
}};

bool IsDigits(QStringView text)
{
    return !text.isEmpty() && modChar::AreDigits(text);
}

bool IsSameWord(const QString& a, const QString& b)
{
    const modFold::cFolded one = modFold::Fold(a);
    const modFold::cFolded other = modFold::Fold(b);
    return one.Plain == other.Plain || one.Spelled == other.Spelled || one.Plain == other.Spelled;
}

QDate ReadWord(const QString& text, QDate today)
{
    for (const cDayWord& word : dayWords) {
        if (IsSameWord(text, QString::fromUtf8(word.Word)) || IsSameWord(text, cText::Tr(word.Word))) {
            return today.addDays(word.Days);
        }
    }
    return {};
}

// "+7": days from today, at most ten years away.
QDate ReadDistance(QStringView text, QDate today)
{
    const bool isBack = text.startsWith(u'-');
    if ((!isBack && !text.startsWith(u'+')) || !IsDigits(text.mid(1)) || text.size() > 5) {
        return {};
    }
    const int days = text.mid(1).toInt();
    return days > 3660 ? QDate() : today.addDays(isBack ? -days : days);
}

int ReadYear(QStringView text)
{
    return text.size() == 2 ? 2000 + text.toInt() : text.toInt();
}

// The parts of a day as they were typed: a day, with a month, with a year. Anything else is none.
QDate Compose(QList<QStringView> parts, QDate today)
{
    const cDayForm::eOrder order = modDate::Form().Order;
    if (parts.size() == 1) {
        return parts[0].size() <= 2 ? QDate(today.year(), today.month(), parts[0].toInt()) : QDate();
    }
    if (parts.size() == 3 && order == cDayForm::eOrder::YearFirst) {
        parts.append(parts.takeFirst());
    }
    if (order != cDayForm::eOrder::DayFirst) {
        parts.swapItemsAt(0, 1);
    }
    const bool hasYear = parts.size() == 3;
    if (parts[0].size() > 2 || parts[1].size() > 2 || (hasYear && parts[2].size() != 2 && parts[2].size() != 4)) {
        return {};
    }
    return QDate(hasYear ? ReadYear(parts[2]) : today.year(), parts[1].toInt(), parts[0].toInt());
}

// "3", "0305", "030526", "03052026"
QDate ReadDigits(QStringView text, QDate today)
{
    if (text.size() <= 2) {
        return Compose({text}, today);
    }
    if (text.size() != 4 && text.size() != 6 && text.size() != 8) {
        return {};
    }
    if (text.size() == 4) {
        return Compose({text.left(2), text.mid(2)}, today);
    }
    const bool isYearFirst = modDate::Form().Order == cDayForm::eOrder::YearFirst;
    const qsizetype first = isYearFirst ? text.size() - 4 : 2;
    return Compose({text.left(first), text.mid(first, 2), text.mid(first + 2)}, today);
}

// "3.", "3.5", "3.5.", "3.5.26", "3.5.2026", with whatever separates.
QDate ReadParts(QStringView text, QChar separator, QDate today)
{
    QList<QStringView> parts = text.split(separator);
    if (parts.last().isEmpty()) {
        parts.removeLast();
    }
    const bool isDigits = !parts.isEmpty() && parts.size() <= 3 && std::all_of(parts.begin(), parts.end(), IsDigits);
    return isDigits ? Compose(parts, today) : QDate();
}

QDate ReadSeparated(QString text, QDate today)
{
    const cDayForm form = modDate::Form();
    if (text.contains(QChar(form.Separator))) {
        return ReadParts(text, form.Separator, today);
    }
    text.replace(u',', u'.');
    return form.Order == cDayForm::eOrder::DayFirst ? ReadParts(text, u'.', today) : QDate();
}

} // namespace

QDate modDayText::Read(const QString& text, QDate today)
{
    const QString typed = text.simplified().remove(u' ');
    if (typed.isEmpty()) {
        return {};
    }
    if (const QDate iso = typed.size() == 10 ? modDate::FromIso(typed) : QDate(); iso.isValid()) {
        return iso;
    }
    if (typed.startsWith(u'+') || typed.startsWith(u'-')) {
        return ReadDistance(typed, today);
    }
    if (IsDigits(typed)) {
        return ReadDigits(typed, today);
    }
    return typed[0].isDigit() ? ReadSeparated(typed, today) : ReadWord(typed, today);
}

QString modDayText::Fault(const QString& text, QDate today)
{
    return cText::Tr("'{0}' ist kein Datum. Bitte schreiben Sie es wie {1}.", {text.trimmed(), modDate::ToText(today)});
}
