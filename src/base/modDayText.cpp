#include "base/modDayText.h"

#include "base/cText.h"
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
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
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

// "3", "0305", "030526", "03052026"
QDate ReadDigits(QStringView text, QDate today)
{
    if (text.size() <= 2) {
        return QDate(today.year(), today.month(), text.toInt());
    }
    if (text.size() != 4 && text.size() != 6 && text.size() != 8) {
        return {};
    }
    const int year = text.size() == 4 ? today.year() : ReadYear(text.mid(4));
    return QDate(year, text.mid(2, 2).toInt(), text.left(2).toInt());
}

// "3.", "3.5", "3.5.", "3.5.26", "3.5.2026"
QDate ReadPoints(QStringView text, QDate today)
{
    QList<QStringView> parts = text.split(u'.');
    if (parts.last().isEmpty()) {
        parts.removeLast();
    }
    const bool isDigits = !parts.isEmpty() && parts.size() <= 3 && std::all_of(parts.begin(), parts.end(), IsDigits);
    if (!isDigits || parts.first().size() > 2) {
        return {};
    }
    if (parts.size() == 1) {
        return QDate(today.year(), today.month(), parts[0].toInt());
    }
    if (parts[1].size() > 2 || (parts.size() == 3 && parts[2].size() != 2 && parts[2].size() != 4)) {
        return {};
    }
    return QDate(parts.size() == 3 ? ReadYear(parts[2]) : today.year(), parts[1].toInt(), parts[0].toInt());
}

} // namespace

QDate modDayText::Read(const QString& text, QDate today)
{
    QString typed = text.simplified().remove(u' ');
    if (typed.isEmpty()) {
        return {};
    }
    if (const QDate iso = typed.size() == 10 ? modDate::FromIso(typed) : QDate(); iso.isValid()) {
        return iso;
    }
    if (typed.startsWith(u'+') || typed.startsWith(u'-')) {
        return ReadDistance(typed, today);
    }
    typed.replace(u',', u'.');
    if (IsDigits(typed)) {
        return ReadDigits(typed, today);
    }
    return typed[0].isDigit() ? ReadPoints(typed, today) : ReadWord(typed, today);
}
