#include "base/modAmount.h"

#include "base/modChar.h"

#include <cmath>
#include <limits>

namespace {

constexpr double mostCents = 9.0e15; // beyond it a double has no exact cents any more
constexpr QStringView passedOver = u" \u00A0\u00A4\t()'\"";

bool IsSign(QChar c)
{
    return c == u'+' || c == u'-';
}

// Digits with grouping points, then at most one comma with digits; a sign may stand in front.
bool IsGermanNumber(QStringView text)
{
    bool hasDigit = false;
    bool hasComma = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (modChar::IsDigit(c)) {
            hasDigit = true;
        } else if (c == u',') {
            if (hasComma) {
                return false;
            }
            hasComma = true;
        } else if (c == u'.' ? hasComma : !(i == 0 && IsSign(c))) {
            return false;
        }
    }
    return hasDigit;
}

// Whole cents of a plain "[-]digits[.,][digits]" text without rounding need, the form of nearly every stored amount.
std::optional<qint64> PlainCents(QStringView text)
{
    const bool isNegative = text.startsWith(u'-');
    if (isNegative) {
        text = text.mid(1);
    }
    if (text.isEmpty() || text.size() > 16) { // more digits need not fit into the value
        return std::nullopt;
    }
    qint64 value = 0;
    qsizetype decimals = -1;
    for (const QChar c : text) {
        if (modChar::IsDigit(c)) {
            value = value * 10 + (c.unicode() - u'0');
            decimals += decimals >= 0 ? 1 : 0;
        } else if ((c == u'.' || c == u',') && decimals < 0) {
            decimals = 0;
        } else {
            return std::nullopt;
        }
    }
    if (decimals > 2 || decimals == text.size() - 1) {
        return std::nullopt;
    }
    for (qsizetype i = decimals < 0 ? 0 : decimals; i < 2; ++i) {
        value *= 10;
    }
    return isNegative ? -value : value;
}

} // namespace

std::optional<double> modAmount::TryReadGerman(QStringView text)
{
    // Most amounts are plain. Below so many digits the quotient is the very number that the text stands for.
    constexpr qsizetype mostExactDigits = 13;
    if (text.size() <= mostExactDigits && !text.contains(u'.')) {
        const std::optional<qint64> cents = PlainCents(text);
        if (cents && *cents != 0) { // a zero may have a sign
            return ToEuros(*cents);
        }
    }
    QString kept;
    for (const QChar c : text) {
        if (!passedOver.contains(c)) {
            kept.append(c);
        }
    }
    const bool hasTrailingSign = !kept.isEmpty() && IsSign(kept.back());
    const bool isNegative = hasTrailingSign && kept.back() == u'-';
    if (hasTrailingSign) {
        kept.chop(1);
    }
    if (!IsGermanNumber(kept)) {
        return std::nullopt;
    }
    kept.remove(u'.').replace(u',', u'.');
    bool isNumber = false;
    const double value = kept.toDouble(&isNumber);
    if (!isNumber || std::abs(value) * 100.0 > mostCents) {
        return std::nullopt; // the nearest amount that can be told would be another one
    }
    return isNegative ? -value : value;
}

double modAmount::ReadGerman(QStringView text)
{
    return TryReadGerman(text).value_or(0.0);
}

qint64 modAmount::ToCents(double euros)
{
    if (std::isnan(euros)) {
        return 0;
    }
    // A text such as "1.005" is a little less than it says as a double; the nudge rounds it as it was written.
    const double cents = euros * 100.0;
    const double nudged = cents + std::copysign(std::abs(cents) * 4.0 * std::numeric_limits<double>::epsilon(), cents);
    return std::llround(std::fmin(std::fmax(nudged, -mostCents), mostCents));
}

qint64 modAmount::ToEvenCents(double euros)
{
    return std::isnan(euros) ? 0 : std::llrint(std::fmin(std::fmax(euros * 100.0, -mostCents), mostCents));
}

double modAmount::ToEuros(qint64 cents)
{
    return static_cast<double>(cents) / 100.0;
}

QString modAmount::CentsToText(qint64 cents)
{
    const quint64 size = cents < 0 ? 0U - static_cast<quint64>(cents) : static_cast<quint64>(cents);
    const auto digit = [](quint64 value) { return QChar(static_cast<char16_t>(u'0' + value % 10)); };
    const QString text = QString::number(size / 100) + u'.' + digit(size / 10) + digit(size);
    return cents < 0 ? u'-' + text : text;
}

std::optional<qint64> modAmount::CentsFromText(QStringView text)
{
    text = text.trimmed();
    if (const std::optional<qint64> plain = PlainCents(text)) {
        return plain;
    }
    bool isNumber = false;
    const double value = text.toString().replace(u',', u'.').toDouble(&isNumber);
    if (!isNumber || !std::isfinite(value)) {
        return std::nullopt;
    }
    return ToCents(value);
}
