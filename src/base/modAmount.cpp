#include "base/modAmount.h"

#include "base/modChar.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double mostCents = 9.0e15; // beyond it a double has no exact cents any more
constexpr QStringView passedOver = u" \u00A0\u00A4\t()'\"";

bool IsSign(QChar c)
{
    return c == u'+' || c == u'-';
}

// A decimal number, digit by digit.
class cDecimal
{
public:
    void Add(QChar digit)
    {
        const int value = digit.unicode() - u'0';
        if (m_decimals < 2) {
            m_cents = m_cents > most ? m_cents : m_cents * 10 + value;
        } else if (m_decimals == 2) {
            m_isUp = value >= 5;
            m_isHalf = value == 5;
        } else {
            m_isHalf = m_isHalf && value == 0;
        }
        m_hasDigit = true;
        m_decimals += m_decimals < 0 ? 0 : 1;
    }

    void StartDecimals() { m_decimals = 0; }
    [[nodiscard]] bool HasDecimals() const { return m_decimals >= 0; }

    [[nodiscard]] std::optional<qint64> Cents(bool isNegative, modAmount::eHalf half) const
    {
        qint64 cents = m_cents;
        for (int decimals = std::max(m_decimals, 0); decimals < 2; ++decimals) {
            cents *= 10;
        }
        const bool staysEven = m_isHalf && half == modAmount::eHalf::ToEven && cents % 2 == 0;
        cents += m_isUp && !staysEven ? 1 : 0;
        return !m_hasDigit || cents > most ? std::nullopt : std::optional(isNegative ? -cents : cents);
    }

private:
    static constexpr auto most = static_cast<qint64>(mostCents);

    qint64 m_cents = 0; // or euros, while there are no decimals
    int m_decimals = -1;
    bool m_hasDigit = false;
    bool m_isUp = false; // what stands behind the cents is half a cent at least
    bool m_isHalf = false;
};

// Cents of a plain "[-]digits[.,][digits]" text, the form of nearly every stored amount.
std::optional<qint64> PlainCents(QStringView text)
{
    const bool isNegative = text.startsWith(u'-');
    cDecimal number;
    for (const QChar c : text.mid(isNegative ? 1 : 0)) {
        if (modChar::IsDigit(c)) {
            number.Add(c);
        } else if ((c == u'.' || c == u',') && !number.HasDecimals()) {
            number.StartDecimals();
        } else {
            return std::nullopt;
        }
    }
    return number.Cents(isNegative, modAmount::eHalf::AwayFromZero);
}

} // namespace

std::optional<qint64> modAmount::CentsFromGerman(QStringView text, eHalf half)
{
    cDecimal number;
    bool isNegative = false;
    bool isFirst = true;
    bool isEnded = false; // by a sign behind it
    for (const QChar c : text) {
        if (passedOver.contains(c)) {
            continue;
        }
        if (isEnded) {
            return std::nullopt;
        }
        if (modChar::IsDigit(c)) {
            number.Add(c);
        } else if (IsSign(c)) {
            isNegative = isNegative != (c == u'-');
            isEnded = !isFirst;
        } else if ((c != u',' && c != u'.') || number.HasDecimals()) {
            return std::nullopt;
        } else if (c == u',') {
            number.StartDecimals();
        }
        isFirst = false;
    }
    return number.Cents(isNegative, half);
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
