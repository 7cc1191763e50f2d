#pragma once

#include <QList>
#include <QString>

#include <array>
#include <optional>

// The palette of charts and categories. It follows the idea that Masataka Okabe and Keiichi Ito published in 2002
// ("Color Universal Design"): few hues, which differ in lightness as well, so that they stay apart for people who
// cannot tell red from green or blue from yellow. The numbers are our own, one row for light and one for dark
// backgrounds, as 0xrrggbb.
namespace modCategoryColor {

inline constexpr int Count = 12;
extern const std::array<quint32, Count> Light;
extern const std::array<quint32, Count> Dark;

// What is offered for a main category: as it is stored, "#rrggbb" of the light row, and its name for the user. What the
// charts use for balances and for the rest is left out.
struct cOffer
{
    int Number = 0; // in the palette
    QString Stored;
    QString Name;
};
[[nodiscard]] QList<cOffer> Offers();

// The stored form of a colour as typed: "#rrggbb", or the name of an offered one. Nothing when it is none.
[[nodiscard]] std::optional<QString> Read(const QString& text);

// The colour in words: its name, or "#rrggbb" for one of the user's own.
[[nodiscard]] QString NameOf(const QString& stored);

// A stored colour as it is seen: one of the palette in the row of the background, another one moved as far as it has to
// be to stand out.
[[nodiscard]] quint32 Shown(const QString& stored, bool isDark);

// The number in the palette of what looks like the colour; nothing when there is none.
[[nodiscard]] std::optional<int> NumberLike(const QString& stored);

} // namespace modCategoryColor
