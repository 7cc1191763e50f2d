#include "import/sheet/modSheetValue.h"

#include <QDate>
#include <QTime>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double lastDay = 2958465; // 31.12.9999
constexpr int significantDigits = 15;
constexpr int secondsPerDay = 86400;

// Where a piece that is no code of its own ends: "quoted", [in brackets], \x, _x and *x. `at` itself when none begins.
qsizetype LiteralEnd(QStringView code, qsizetype at)
{
    const QChar c = code[at];
    if (c == u'"' || c == u'[') {
        const qsizetype end = code.indexOf(c == u'"' ? u'"' : u']', at + 1);
        return end < 0 ? code.size() : end + 1;
    }
    return c == u'\\' || c == u'_' || c == u'*' ? at + 2 : at;
}

// The codes of the first section alone, in lower case.
QString BareCode(QStringView code)
{
    QString bare;
    for (qsizetype at = 0; at < code.size() && code[at] != u';';) {
        const qsizetype end = LiteralEnd(code, at);
        if (end > at) {
            at = end;
            continue;
        }
        bare.append(code[at].toLower());
        ++at;
    }
    return bare;
}

bool HasAny(const QString& text, QStringView letters)
{
    return std::any_of(text.begin(), text.end(), [&](QChar c) { return letters.contains(c); });
}

QString DayText(double value, eSheetEpoch epoch)
{
    if (!(value >= 1 && value <= lastDay)) {
        return {};
    }
    const auto days = static_cast<qint64>(std::floor(value));
    if (epoch == eSheetEpoch::Year1904) {
        return QDate(1904, 1, 1).addDays(days).toString(u"dd.MM.yyyy");
    }
    // Spreadsheets believe in the 29th of February 1900.
    return QDate(1899, 12, days < 60 ? 31 : 30).addDays(days).toString(u"dd.MM.yyyy");
}

QString TimeText(double value)
{
    const auto seconds = static_cast<int>(std::lround((value - std::floor(value)) * secondsPerDay));
    return QTime(0, 0).addSecs(seconds % secondsPerDay).toString(u"HH:mm:ss");
}

} // namespace

eSheetFormat modSheetValue::FormatOf(QStringView code)
{
    const QString bare = BareCode(code);
    if (bare == u"general" || bare == u"standard") {
        return eSheetFormat::Number;
    }
    const bool hasDigits = HasAny(bare, u"0#?") && !bare.contains(u"s.0") && !bare.contains(u"s,0");
    if (hasDigits) {
        return bare.contains(u".0") || bare.contains(u".?") || bare.contains(u".#") ? eSheetFormat::Decimals
                                                                                    : eSheetFormat::Number;
    }
    if (HasAny(bare, u"ydj")) { // j: the year in workbooks whose writer did not translate the German code
        return eSheetFormat::Day;
    }
    // An elapsed time stands in brackets.
    if (HasAny(bare, u"hs") || code.contains(u"[h", Qt::CaseInsensitive)) {
        return eSheetFormat::Time;
    }
    return bare.contains(u'm') ? eSheetFormat::Day : eSheetFormat::Number;
}

eSheetFormat modSheetValue::FormatOf(int builtIn)
{
    constexpr std::array decimals = {2, 4, 7, 8, 10, 39, 40, 43, 44};
    constexpr std::array times = {18, 19, 20, 21, 32, 33, 45, 46, 47, 55, 56};
    if (std::find(decimals.begin(), decimals.end(), builtIn) != decimals.end()) {
        return eSheetFormat::Decimals;
    }
    if (std::find(times.begin(), times.end(), builtIn) != times.end()) {
        return eSheetFormat::Time;
    }
    const bool isDay =
        (builtIn >= 14 && builtIn <= 22) || (builtIn >= 27 && builtIn <= 36) || (builtIn >= 50 && builtIn <= 58);
    return isDay ? eSheetFormat::Day : eSheetFormat::Number;
}

cSheetCell modSheetValue::Number(double value, eSheetFormat format)
{
    if (!std::isfinite(value)) {
        return {};
    }
    // Digits beyond the fifteenth are the noise of binary fractions: 12.300000000000001 was entered as 12.3.
    const double size = std::abs(value);
    const int before = size < 1 ? 1 : static_cast<int>(std::floor(std::log10(size))) + 1;
    QString text = QString::number(value, 'f', std::clamp(significantDigits - before, 0, significantDigits - 1));
    qsizetype point = text.indexOf(u'.');
    while (point >= 0 && text.endsWith(u'0')) {
        text.chop(1);
    }
    if (text.endsWith(u'.')) {
        text.chop(1);
        point = -1;
    }
    if (point < 0 && format == eSheetFormat::Decimals) {
        text += u".00"_s;
    } else if (point >= 0 && text.size() - point == 2) {
        text += u'0';
    }
    return {text.replace(u'.', u','), eSheetCell::Number};
}

cSheetCell modSheetValue::Value(double value, eSheetFormat format, eSheetEpoch epoch)
{
    if (format == eSheetFormat::Time && value >= 0 && value < 1) {
        return {TimeText(value), eSheetCell::Text};
    }
    const QString day = format == eSheetFormat::Day ? DayText(value, epoch) : QString();
    return day.isEmpty() ? Number(value, format) : cSheetCell{day, eSheetCell::Day};
}

cSheetCell modSheetValue::IsoDay(const QString& text)
{
    const QDate day = QDate::fromString(text.trimmed().left(10), u"yyyy-MM-dd");
    return day.isValid() ? cSheetCell{day.toString(u"dd.MM.yyyy"), eSheetCell::Day}
                         : cSheetCell{text, eSheetCell::Text};
}

cSheetCell modSheetValue::Boolean(bool isTrue)
{
    return {isTrue ? u"WAHR"_s : u"FALSCH"_s, eSheetCell::Text};
}
