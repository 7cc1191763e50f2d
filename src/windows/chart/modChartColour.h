#pragma once

#include <QColor>
#include <QPalette>

// The colours of charts. They follow the idea that Masataka Okabe and Keiichi Ito published in 2002 ("Color Universal
// Design"): few hues, which differ in lightness as well, so that they stay apart for people who cannot tell red from
// green or blue from yellow. The numbers are our own, one row for light and one for dark backgrounds.
namespace modChartColour {

inline constexpr int Count = 12; // numbers beyond begin again, shifted in lightness

[[nodiscard]] QColor Series(int number, const QPalette& palette);

// The same paler, for what only stands beside.
[[nodiscard]] QColor Pale(const QColor& colour, const QPalette& palette);

// Text that reads well on a colour.
[[nodiscard]] QColor TextOn(const QColor& colour);

[[nodiscard]] QColor Grid(const QPalette& palette);
[[nodiscard]] QColor Future(const QPalette& palette); // behind what is not booked yet

// One colour through another: 0 is `from`, 1 is `to`.
[[nodiscard]] QColor Mixed(const QColor& from, const QColor& to, double share);

} // namespace modChartColour
