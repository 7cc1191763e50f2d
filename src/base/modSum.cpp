#include "base/modSum.h"

#include "base/cText.h"
#include "base/modAmount.h"
#include "base/modChar.h"

#include <QList>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

// "1" or "12" or "123", then groups of exactly three digits.
bool IsGrouped(const QList<QStringView>& groups)
{
    if (groups.first().isEmpty() || groups.first().size() > 3) {
        return false;
    }
    return std::all_of(groups.begin() + 1, groups.end(), [](QStringView group) { return group.size() == 3; });
}

// A single sign that could group: before exactly three digits, and no more than three in front of it. Nobody writes
// "0.125" for one hundred and twenty-five.
bool MayGroup(QStringView number, QChar sign)
{
    return number.count(sign) == 1 && !number.startsWith(u'0') && IsGrouped(number.split(sign));
}

// The position of the decimal sign, the size of the text when there is none, or -1 when the signs make no number.
qsizetype DecimalPlace(QStringView number, eDecimal decimal)
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
    if (points + commas > 1) {
        return IsGrouped(number.split(last)) ? number.size() : -1;
    }
    return last != modSum::Sign(decimal) && MayGroup(number, last) ? number.size() : place;
}

std::optional<double> ReadNumber(QStringView number, eDecimal decimal)
{
    const qsizetype place = DecimalPlace(number, decimal);
    if (place < 0) {
        return std::nullopt;
    }
    const QString whole = number.left(place).toString().remove(u'.').remove(u',');
    const QStringView decimals = number.mid(std::min(place + 1, number.size()));
    if ((whole.isEmpty() && decimals.isEmpty()) || !modChar::AreDigits(whole) || !modChar::AreDigits(decimals)) {
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
    cSumReader(QStringView text, eDecimal decimal) : m_text(text), m_decimal(decimal) {}

    std::optional<double> Read()
    {
        const double value = ReadSum();
        const bool isWhole = m_isRight && m_at == m_text.size() && std::isfinite(value);
        return isWhole ? std::optional(value) : std::nullopt;
    }

    // One of the numbers that were read may have been meant otherwise.
    [[nodiscard]] bool HasDoubt() const { return m_hasDoubt; }

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
        const bool hadDoubt = m_hasDoubt;
        double value = ReadFactor();
        if (m_at < m_text.size() && (m_text[m_at] == u'*' || m_text[m_at] == u'/')) {
            m_hasDoubt = hadDoubt;
        }
        while (m_isRight) {
            if (Take(u'*')) {
                value *= ReadFactor();
            } else if (Take(u'/')) {
                value /= ReadFactor();
            } else {
                break;
            }
            m_hasDoubt = hadDoubt;
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
        while (m_at < m_text.size()
               && (modChar::IsDigit(m_text[m_at]) || m_text[m_at] == u'.' || m_text[m_at] == u',')) {
            ++m_at;
        }
        const QStringView number = m_text.mid(start, m_at - start);
        const std::optional<double> value = ReadNumber(number, m_decimal);
        m_hasDoubt = m_hasDoubt || MayGroup(number, modSum::Sign(m_decimal));
        m_isRight = m_isRight && value;
        return value.value_or(0.0);
    }

    static constexpr int deepest = 50; // parentheses within parentheses

    QStringView m_text;
    eDecimal m_decimal;
    qsizetype m_at = 0;
    int m_depth = 0;
    bool m_isRight = true;
    bool m_hasDoubt = false;
};

bool IsPassedOver(QChar c)
{
    constexpr QStringView quotes = u"'\u2019\"";
    return c.isSpace() || c.category() == QChar::Symbol_Currency || c.category() == QChar::Other_Format
        || quotes.contains(c);
}

// Without what is passed over, and with one sign per operation.
QString Simplified(const QString& text)
{
    QString kept;
    for (const QChar c : text) {
        if (c == u'\u2212' || c == u'\u2013') {
            kept.append(u'-');
        } else if (c == u'×') {
            kept.append(u'*');
        } else if (c == u'÷' || c == u':') {
            kept.append(u'/');
        } else if (!IsPassedOver(c)) {
            kept.append(c);
        }
    }
    return kept;
}

// Without the letters that stand for a currency before or behind an amount. Only known ones: "3k" is no three.
QString WithoutCurrency(QString text)
{
    static const std::array<QString, 18> words{QStringLiteral("Euro"), QStringLiteral("EUR"), QStringLiteral("CHF"),
                                               QStringLiteral("SFr."), QStringLiteral("Fr."), QStringLiteral("GBP"),
                                               QStringLiteral("USD"),  QStringLiteral("DKK"), QStringLiteral("kr."),
                                               QStringLiteral("kr"),   QStringLiteral("PLN"), QStringLiteral("zł"),
                                               QStringLiteral("CZK"),  QStringLiteral("Kč"),  QStringLiteral("HUF"),
                                               QStringLiteral("Ft"),   QStringLiteral("IDR"), QStringLiteral("Rp")};
    const qsizetype start = text.startsWith(u'-') || text.startsWith(u'+') ? 1 : 0;
    for (const QString& word : words) {
        if (text.endsWith(word, Qt::CaseInsensitive)) {
            return text.chopped(word.size());
        }
        if (QStringView(text).mid(start).startsWith(word, Qt::CaseInsensitive)) {
            return text.remove(start, word.size());
        }
    }
    return text;
}

// "($5.00)", "(5,00 zł)": some cultures write an amount below zero in brackets. Without a currency it is a calculation.
QString WithMinusForBrackets(const QString& text)
{
    const QString amount = text.trimmed();
    if (!amount.startsWith(u'(') || !amount.endsWith(u')')) {
        return amount;
    }
    const QString inner = Simplified(amount.sliced(1).chopped(1));
    const QString number = WithoutCurrency(inner);
    const bool hasSign =
        std::any_of(amount.begin(), amount.end(), [](QChar c) { return c.category() == QChar::Symbol_Currency; });
    const bool isPlain = std::all_of(number.begin(), number.end(),
                                     [](QChar c) { return modChar::IsDigit(c) || c == u'.' || c == u','; });
    return (hasSign || number != inner) && isPlain ? u'-' + number : amount;
}

// "12,50-" as bank statements have it becomes "-12,50"; only a single number carries its sign behind.
QString WithSignInFront(const QString& text)
{
    const bool hasSign = text.endsWith(u'-') || text.endsWith(u'+');
    const QString number = text.chopped(hasSign ? 1 : 0);
    const bool isPlain = std::all_of(number.begin(), number.end(),
                                     [](QChar c) { return modChar::IsDigit(c) || c == u'.' || c == u','; });
    return hasSign && isPlain ? text.back() + number : text;
}

struct cSum
{
    std::optional<qint64> Cents;
    bool IsDoubtful = false;
};

cSum Read(const QString& text, eDecimal decimal)
{
    constexpr double limit = 1.0e13; // euros; beyond it cents are no longer exact
    const QString sum = WithSignInFront(WithoutCurrency(Simplified(WithMinusForBrackets(text))));
    cSumReader reader(sum, decimal);
    const std::optional<double> value = reader.Read();
    if (!value || std::abs(*value) > limit) {
        return {};
    }
    return {modAmount::ToCents(*value), reader.HasDoubt()};
}

} // namespace

QChar modSum::Sign(eDecimal decimal)
{
    return decimal == eDecimal::Comma ? u',' : u'.';
}

std::optional<qint64> modSum::Evaluate(const QString& text, eDecimal decimal)
{
    const cSum sum = Read(text, decimal);
    return sum.IsDoubtful ? std::nullopt : sum.Cents;
}

bool modSum::IsDoubtful(const QString& text, eDecimal decimal)
{
    return Read(text, decimal).IsDoubtful;
}

QString modSum::Fault(const QString& text, eDecimal decimal)
{
    const eDecimal other = decimal == eDecimal::Comma ? eDecimal::Point : eDecimal::Comma;
    const cSum sum = Read(text, decimal);
    const cSum grouped = Read(text, other);
    if (sum.IsDoubtful && grouped.Cents) {
        return cText::Tr("'{0}' ist nicht eindeutig. Bitte schreiben Sie {1} oder {2}.",
                         {text.trimmed(), ToText(*grouped.Cents, decimal), ToText(*sum.Cents, decimal)});
    }
    return cText::Tr("'{0}' ist kein Betrag.", {text.trimmed()});
}

QString modSum::ToText(qint64 cents, eDecimal decimal)
{
    return modAmount::CentsToText(cents).replace(u'.', Sign(decimal));
}
