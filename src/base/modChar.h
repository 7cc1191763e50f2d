#pragma once

#include <QChar>
#include <QStringView>

#include <algorithm>

// Characters of ASCII, where Qt's own questions let those of all languages pass.
namespace modChar {

[[nodiscard]] constexpr bool IsDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

[[nodiscard]] constexpr bool IsCapital(QChar c)
{
    return c >= u'A' && c <= u'Z';
}

[[nodiscard]] constexpr bool IsAscii(QChar c)
{
    return c.unicode() < 0x80;
}

// An empty text has none that differs.
[[nodiscard]] inline bool AreDigits(QStringView text)
{
    return std::all_of(text.begin(), text.end(), IsDigit);
}

[[nodiscard]] inline bool HasDigit(QStringView text)
{
    return std::any_of(text.begin(), text.end(), IsDigit);
}

[[nodiscard]] inline bool AreCapitals(QStringView text)
{
    return std::all_of(text.begin(), text.end(), IsCapital);
}

[[nodiscard]] inline bool AreAscii(QStringView text)
{
    return std::all_of(text.begin(), text.end(), IsAscii);
}

// "EUR"
[[nodiscard]] inline bool IsCurrencyCode(QStringView text)
{
    return text.size() == 3 && AreCapitals(text);
}

} // namespace modChar
