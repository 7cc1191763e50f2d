#include "import/cell/modTableNumber.h"

#include "base/modChar.h"

#include <QList>

#include <algorithm>
#include <array>

namespace {

constexpr qsizetype groupSize = 3;
// An account number or a reference; no household moves so much.
constexpr qsizetype mostPlainDigits = 8;
constexpr QStringView passedOver = u" \t\u00A0\u202F\u2009\u00A4()'\"=";
constexpr QStringView dashes = u"-\u2212\u2013\u2014";
constexpr QStringView groupers = u" '\u00A0\u202F\u2009\u2019\u00B4`";
constexpr std::array<QStringView, 6> outWords = {u"S", u"Soll", u"DR", u"DB", u"Debit", u"D"};
constexpr std::array<QStringView, 6> inWords = {u"H", u"Haben", u"CR", u"Credit", u"C", u"K"};
constexpr std::array<QStringView, 10> currencyWords = {u"Euro",    u"Fr", u"SFr", u"kr", u"z\u0142",
                                                       u"K\u010D", u"Ft", u"Rs",  u"Lt", u"US"};

bool IsOneOf(QStringView word, const auto& words)
{
    return std::any_of(words.begin(), words.end(),
                       [&](QStringView known) { return word.compare(known, Qt::CaseInsensitive) == 0; });
}

// Three capitals are a currency, in whatever country.
bool IsBesideNumbers(QStringView word)
{
    return modChar::IsCurrencyCode(word) || IsOneOf(word, currencyWords) || IsOneOf(word, outWords)
        || IsOneOf(word, inWords);
}

// What stands before or behind the digits.
class cAround
{
public:
    // False when there is something that does not belong to an amount.
    bool Take(QStringView text)
    {
        for (qsizetype at = 0; at < text.size();) {
            const QChar c = text[at];
            if (c.isLetter()) {
                const auto* const end =
                    std::find_if_not(text.begin() + at, text.end(), [](QChar letter) { return letter.isLetter(); });
                const qsizetype size = end - text.begin() - at;
                if (!IsBesideNumbers(text.mid(at, size))) {
                    return false;
                }
                at += size;
                at += at < text.size() && text[at] == u'.' ? 1 : 0; // "Fr."
                continue;
            }
            const bool isMinus = dashes.contains(c);
            if (isMinus || c == u'+') {
                ++Signs;
                IsNegative = isMinus;
            } else if (!passedOver.contains(c) && c.category() != QChar::Symbol_Currency) {
                return false;
            }
            ++at;
        }
        return Signs <= 1;
    }

    int Signs = 0;
    bool IsNegative = false;
};

// "12,-" and "12.--" are twelve, not minus twelve.
QStringView WithoutEmptyDecimals(QStringView suffix)
{
    if (suffix.isEmpty() || (suffix.front() != u',' && suffix.front() != u'.')) {
        return suffix;
    }
    const auto* const end =
        std::find_if_not(suffix.begin() + 1, suffix.end(), [](QChar c) { return dashes.contains(c); });
    return suffix.mid(end - suffix.begin());
}

// True when all pieces but the first have three digits, and the first has at most so many.
bool IsGrouped(const QList<QStringView>& pieces)
{
    return !pieces.first().isEmpty() && pieces.first().size() <= groupSize
        && std::all_of(pieces.begin() + 1, pieces.end(), [](QStringView piece) { return piece.size() == groupSize; });
}

// Digits with grouping, without decimals; empty when it is no number.
QString WholeOf(QStringView text)
{
    const auto* const grouper = std::find_if_not(text.begin(), text.end(), modChar::IsDigit);
    if (grouper == text.end()) {
        return text.toString();
    }
    const QList<QStringView> pieces = text.split(*grouper);
    const bool isPlain =
        std::all_of(pieces.begin(), pieces.end(), [](QStringView piece) { return modChar::AreDigits(piece); });
    return isPlain && IsGrouped(pieces) ? text.toString().remove(*grouper) : QString();
}

// True when the only point or comma of the text is its decimal sign.
bool IsDecimal(QStringView text, qsizetype at, eNumberFormat format)
{
    const bool couldGroup = text.size() - at - 1 == groupSize && at > 0 && at <= groupSize && text.front() != u'0';
    return !couldGroup || (text[at] == u',') == (format == eNumberFormat::German);
}

// The place of the decimal sign; the length of the text when it has none.
qsizetype DecimalPlace(QStringView text, eNumberFormat format)
{
    const qsizetype point = text.lastIndexOf(u'.');
    const qsizetype comma = text.lastIndexOf(u',');
    const qsizetype last = qMax(point, comma);
    if (last < 0) {
        return text.size();
    }
    const bool isOnly = text.count(text[last]) == 1;
    const bool hasBoth = point >= 0 && comma >= 0;
    const bool hasGroups = std::any_of(text.begin(), text.begin() + last, [](QChar c) { return groupers.contains(c); });
    const bool isDecimal = isOnly && (hasBoth || hasGroups || IsDecimal(text, last, format));
    return isDecimal ? last : text.size();
}

// The digits of a number with its grouping and decimal signs as "1234,5"; empty when it is none.
QString Digits(QStringView text, eNumberFormat format)
{
    const qsizetype place = DecimalPlace(text, format);
    const QStringView decimals = text.mid(qMin(place + 1, text.size()));
    const QString whole = place == 0 ? QStringLiteral("0") : WholeOf(text.left(place));
    if (whole.isEmpty() || !modChar::AreDigits(decimals)) {
        return {};
    }
    const bool isNumberOfSomething =
        place == text.size() && (whole.size() > mostPlainDigits || (whole.size() > 1 && whole.front() == u'0'));
    if (isNumberOfSomething && whole.size() == text.size()) {
        return {};
    }
    return decimals.isEmpty() ? whole : whole + u',' + decimals;
}

eNumberFormat FormatOf(QStringView text)
{
    const bool isPointLast = text.lastIndexOf(u'.') > text.lastIndexOf(u',');
    return isPointLast && text.contains(u',') ? eNumberFormat::English : eNumberFormat::German;
}

} // namespace

QString modTableNumber::German(QStringView cell, eNumberFormat format)
{
    const auto* const first = std::find_if(cell.begin(), cell.end(), modChar::IsDigit);
    if (first == cell.end()) {
        return {};
    }
    qsizetype start = first - cell.begin();
    if (start > 0 && (cell[start - 1] == u',' || cell[start - 1] == u'.')) {
        --start; // ",50"
    }
    qsizetype end = cell.size();
    while (!modChar::IsDigit(cell[end - 1])) {
        --end;
    }
    cAround around;
    if (!around.Take(cell.left(start)) || !around.Take(WithoutEmptyDecimals(cell.mid(end)))) {
        return {};
    }
    const QStringView text = cell.mid(start, end - start);
    const QString digits = Digits(text, format == eNumberFormat::Detect ? FormatOf(text) : format);
    return around.IsNegative && !digits.isEmpty() ? u'-' + digits : digits;
}

int modTableNumber::TrailingSign(QStringView cell)
{
    qsizetype start = cell.size();
    while (start > 0 && cell[start - 1].isLetter()) {
        --start;
    }
    const QStringView word = cell.mid(start);
    const bool isBehind = start > 0 && !word.isEmpty();
    return !isBehind ? 0 : (IsOneOf(word, outWords) ? -1 : (IsOneOf(word, inWords) ? 1 : 0));
}
