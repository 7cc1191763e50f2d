#include "base/modSum.h"

#include "base/modAmount.h"

#include <QList>

#include <algorithm>
#include <cmath>

namespace {

bool IsDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool IsAllDigits(QStringView text)
{
    return std::all_of(text.begin(), text.end(), IsDigit);
}

// "1" or "12" or "123", then groups of exactly three digits.
bool IsGrouped(const QList<QStringView>& groups)
{
    if (groups.first().isEmpty() || groups.first().size() > 3) {
        return false;
    }
    return std::all_of(groups.begin() + 1, groups.end(), [](QStringView group) { return group.size() == 3; });
}

// The position of the decimal sign, the size of the text when there is none, or -1 when the signs make no number.
qsizetype DecimalPlace(QStringView number)
{
    const qsizetype points = number.count(u'.');
    const qsizetype commas = number.count(u',');
    const QChar last = number.lastIndexOf(u'.') > number.lastIndexOf(u',') ? u'.' : u',';
    const QChar other = last == u'.' ? u',' : u'.';
    const qsizetype place = number.lastIndexOf(last);
    if (points + commas == 0) {
        return number.size();
    }
    if (points > 0 && commas > 0) {
        return number.count(last) == 1 && IsGrouped(number.left(place).split(other)) ? place : -1;
    }
    const QList<QStringView> groups = number.split(last);
    if (points + commas > 1) {
        return IsGrouped(groups) ? number.size() : -1;
    }
    // Nobody writes "0.125" for one hundred and twenty-five, nor types an amount to three decimals behind a point.
    const bool isGroup = last == u'.' && IsGrouped(groups) && !number.startsWith(u'0');
    return isGroup ? number.size() : place;
}

std::optional<double> ReadNumber(QStringView number)
{
    const qsizetype place = DecimalPlace(number);
    if (place < 0) {
        return std::nullopt;
    }
    const QString whole = number.left(place).toString().remove(u'.').remove(u',');
    const QStringView decimals = number.mid(std::min(place + 1, number.size()));
    if ((whole.isEmpty() && decimals.isEmpty()) || !IsAllDigits(whole) || !IsAllDigits(decimals)) {
        return std::nullopt;
    }
    bool isNumber = false;
    const double value = QString(whole + u'.' + decimals).toDouble(&isNumber);
    return isNumber ? std::optional(value) : std::nullopt;
}

// Reads a calculation from left to right. Once something is wrong, it stays wrong.
class cSumReader
{
public:
    explicit cSumReader(QStringView text) : m_text(text) {}

    std::optional<double> Read()
    {
        const double value = ReadSum();
        const bool isWhole = m_isRight && m_at == m_text.size() && std::isfinite(value);
        return isWhole ? std::optional(value) : std::nullopt;
    }

private:
    bool Take(QChar c)
    {
        const bool isThere = m_at < m_text.size() && m_text[m_at] == c;
        m_at += isThere ? 1 : 0;
        return isThere;
    }

    double ReadSum()
    {
        double value = ReadProduct();
        while (m_isRight) {
            if (Take(u'+')) {
                value += ReadProduct();
            } else if (Take(u'-')) {
                value -= ReadProduct();
            } else {
                break;
            }
        }
        return value;
    }

    double ReadProduct()
    {
        double value = ReadFactor();
        while (m_isRight) {
            if (Take(u'*')) {
                value *= ReadFactor();
            } else if (Take(u'/')) {
                value /= ReadFactor();
            } else {
                break;
            }
        }
        return value;
    }

    double ReadFactor()
    {
        if (Take(u'-')) {
            return -ReadValue();
        }
        (void)Take(u'+');
        return ReadValue();
    }

    double ReadValue()
    {
        if (Take(u'(')) {
            ++m_depth;
            m_isRight = m_isRight && m_depth < deepest;
            const double value = m_isRight ? ReadSum() : 0.0;
            m_isRight = Take(u')') && m_isRight;
            --m_depth;
            return value;
        }
        const qsizetype start = m_at;
        while (m_at < m_text.size() && (IsDigit(m_text[m_at]) || m_text[m_at] == u'.' || m_text[m_at] == u',')) {
            ++m_at;
        }
        const std::optional<double> value = ReadNumber(m_text.mid(start, m_at - start));
        m_isRight = m_isRight && value;
        return value.value_or(0.0);
    }

    static constexpr int deepest = 50; // parentheses within parentheses

    QStringView m_text;
    qsizetype m_at = 0;
    int m_depth = 0;
    bool m_isRight = true;
};

// Without what is passed over, and with one sign per operation.
QString Simplified(const QString& text)
{
    constexpr QStringView passedOver = u" \u00A0\u202F\u2009\u00A4€\t'\"";
    QString kept;
    for (const QChar c : text) {
        if (c == u'\u2212' || c == u'\u2013') {
            kept.append(u'-');
        } else if (c == u'×') {
            kept.append(u'*');
        } else if (c == u'÷' || c == u':') {
            kept.append(u'/');
        } else if (!passedOver.contains(c)) {
            kept.append(c);
        }
    }
    return kept;
}

// "12,50-" as bank statements have it becomes "-12,50"; only a single number carries its sign behind.
QString WithSignInFront(const QString& text)
{
    const bool hasSign = text.endsWith(u'-') || text.endsWith(u'+');
    const QString number = text.chopped(hasSign ? 1 : 0);
    const bool isPlain =
        std::all_of(number.begin(), number.end(), [](QChar c) { return IsDigit(c) || c == u'.' || c == u','; });
    return hasSign && isPlain ? text.back() + number : text;
}

} // namespace

std::optional<qint64> modSum::Evaluate(const QString& text)
{
    constexpr double limit = 1.0e13; // euros; beyond it cents are no longer exact
    const QString sum = WithSignInFront(Simplified(text));
    const std::optional<double> value = cSumReader(sum).Read();
    if (!value || std::abs(*value) > limit) {
        return std::nullopt;
    }
    return modAmount::ToCents(*value);
}

QString modSum::ToText(qint64 cents)
{
    return modAmount::CentsToText(cents).replace(u'.', u',');
}
