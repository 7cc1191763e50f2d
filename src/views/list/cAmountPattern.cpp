#include "views/list/cAmountPattern.h"

#include "base/modFold.h"
#include "core/cAmountFormat.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 example = 123456789; // all digits differ, so that each is found again in the text

// Amounts of every length around the places where groups begin, which have to come out the same.
constexpr std::array<qint64, 11> probes{0,      7,       -30,      100,          -4005,   99999,
                                        100000, -123456, 10000000, 987654321098, -example};

} // namespace

cAmountPattern::cAmountPattern(const cAmountFormat& format) : m_format(format), m_isLearnt(Learn())
{
}

QString cAmountPattern::Asked(qint64 cents) const
{
    return modFold::Fold(m_format.Cents(cents)).Plain;
}

bool cAmountPattern::Learn()
{
    const QString positive = Asked(example);
    const QString negative = Asked(-example);
    const qsizetype first = positive.indexOf(u'1');
    const qsizetype second = positive.indexOf(u"234");
    const qsizetype third = positive.indexOf(u"567");
    const qsizetype last = positive.indexOf(u"89");
    if (first < 0 || second < first || third < second || last < third) {
        return false;
    }
    m_group = positive.mid(first + 1, second - first - 1);
    m_decimal = positive.mid(third + 3, last - third - 3);
    const QString digits = positive.mid(first, last + 2 - first);
    const qsizetype at = negative.indexOf(digits);
    m_positive = {positive.left(first), positive.mid(last + 2)};
    m_negative = {negative.left(at), negative.mid(at + digits.size())};
    return at >= 0 && std::all_of(probes.begin(), probes.end(), [this](qint64 cents) {
               QString text;
               WriteLearnt(cents, text);
               return text == Asked(cents);
           });
}

void cAmountPattern::WriteLearnt(qint64 cents, QString& text) const
{
    const cFrame& frame = cents < 0 ? m_negative : m_positive;
    quint64 rest = cents < 0 ? 0U - static_cast<quint64>(cents) : static_cast<quint64>(cents);
    std::array<QChar, 20> digits; // from the last to the first
    std::size_t count = 0;
    while (rest > 0 || count < 3) {
        digits.at(count++) = QChar(static_cast<char16_t>(u'0' + rest % 10));
        rest /= 10;
    }
    text.truncate(0);
    text.append(frame.Front);
    while (count > 0) {
        text.append(digits.at(--count));
        if (count == 2) {
            text.append(m_decimal);
        } else if (count > 2 && count % 3 == 2) {
            text.append(m_group);
        }
    }
    text.append(frame.Back);
}

void cAmountPattern::Write(qint64 cents, QString& text) const
{
    if (m_isLearnt) {
        WriteLearnt(cents, text);
    } else {
        text = Asked(cents);
    }
}

bool cAmountPattern::MayHold(const QString& word) const
{
    const QString known =
        u"0123456789"_s + m_group + m_decimal + m_positive.Front + m_positive.Back + m_negative.Front + m_negative.Back;
    return !m_isLearnt || std::all_of(word.begin(), word.end(), [&](QChar c) { return known.contains(c); });
}
