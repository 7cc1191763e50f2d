#include "fints/modFintsSplit.h"

#include "fints/cShield.h"

#include <algorithm>
#include <limits>

namespace {

constexpr qsizetype none = -1;
constexpr qsizetype mostDigits = 15; // of a length; more are as good as endless

bool IsNumeric(QByteArrayView digits)
{
    return !digits.isEmpty() && std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// Too long a number is cut to one that reaches behind every text, so that no sum of positions can overflow.
qsizetype LengthFrom(QByteArrayView digits)
{
    constexpr qsizetype most = std::numeric_limits<qsizetype>::max() / 4;
    return digits.size() > mostDigits ? most : std::min<qsizetype>(digits.toLongLong(), most);
}

// The first "+@" of a range. Looking for the rarer of the two is fast in long data that has none.
qsizetype PrefixIn(QByteArrayView range)
{
    qsizetype at = range.indexOf('@');
    while (at == 0 || (at > 0 && range[at - 1] != '+')) {
        at = range.indexOf('@', at + 1);
    }
    return at == none ? none : at - 1;
}

// The end of the segment that begins at `start`. Behind binary data the search for more of it goes on, so that every
// character is looked at once.
qsizetype SegmentEnd(QByteArrayView text, qsizetype start)
{
    qsizetype end = text.indexOf('\'', start);
    for (qsizetype from = start;;) {
        const qsizetype candidate = end == none ? text.size() : end;
        const qsizetype at = PrefixIn(text.sliced(from, candidate - from));
        if (at == none) {
            return candidate;
        }
        const modFintsSplit::cBinary binary = modFintsSplit::BinaryAt(text.sliced(from + at + 1));
        if (binary.Prefix == 0) {
            return candidate;
        }
        from = from + at + 1 + binary.Prefix + binary.Length;
        if (from >= text.size()) {
            return text.size();
        }
        end = text.indexOf('\'', from);
    }
}

// The end lies one character early, on the last one of the data.
qsizetype ElementEnd(QByteArrayView text, qsizetype start)
{
    const modFintsSplit::cBinary binary = modFintsSplit::BinaryAt(text.sliced(start));
    if (binary.Prefix > 0) {
        return std::min(start + binary.Prefix + binary.Length - 1, text.size());
    }
    const qsizetype end = text.indexOf('+', start);
    return end == none ? text.size() : end;
}

qsizetype GroupEnd(QByteArrayView text, qsizetype start)
{
    qsizetype end = text.indexOf(':', start);
    while (end > 0 && text[end - 1] == '?') {
        end = text.indexOf(':', end + 1);
    }
    return end == none ? text.size() : end;
}

qsizetype TokenEnd(QByteArrayView text, qsizetype start, char separator)
{
    switch (separator) {
    case '\'': return SegmentEnd(text, start);
    case '+': return ElementEnd(text, start);
    default: return GroupEnd(text, start);
    }
}

} // namespace

QList<QByteArrayView> modFintsSplit::Split(QByteArrayView text, char separator)
{
    QList<QByteArrayView> tokens;
    for (qsizetype start = 0;;) {
        const qsizetype end = TokenEnd(text, start, separator);
        tokens.append(text.sliced(start, end - start));
        // A separator in the last place ends the text; no empty token follows it.
        if (end >= text.size() - 1) {
            return tokens;
        }
        start = end + 1;
    }
}

QList<QByteArrayView> modFintsSplit::Group(QByteArrayView element)
{
    const cBinary binary = BinaryAt(element);
    if (binary.Prefix > 0 && binary.Length >= element.size() - binary.Prefix) {
        return {element};
    }
    const cShield shield(element);
    QList<QByteArrayView> parts = Split(shield.Text(), ':');
    for (QByteArrayView& part : parts) {
        part = shield.Wire(part);
    }
    return parts;
}

modFintsSplit::cBinary modFintsSplit::BinaryAt(QByteArrayView text)
{
    if (!text.startsWith('@')) {
        return {};
    }
    const qsizetype end = text.indexOf('@', 1);
    if (end == none || !IsNumeric(text.sliced(1, end - 1))) {
        return {};
    }
    return {end + 1, LengthFrom(text.sliced(1, end - 1))};
}

QByteArrayView modFintsSplit::Data(QByteArrayView element)
{
    const cBinary binary = BinaryAt(element);
    if (binary.Prefix == 0) {
        return element;
    }
    return element.sliced(binary.Prefix, std::min(binary.Length, element.size() - binary.Prefix));
}
