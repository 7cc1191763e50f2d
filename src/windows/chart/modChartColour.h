#pragma once

#include "views/chart/cChartData.h"
#include "views/look/modCategoryColor.h"

#include <QColor>
#include <QPalette>

// The colours of charts, from the palette of modCategoryColor.
namespace modChartColour {

inline constexpr int Count = modCategoryColor::Count; // numbers beyond begin again, shifted in lightness

[[nodiscard]] QColor Series(int number, const QPalette& palette);
[[nodiscard]] QColor Series(const cChartSeries& series, const QPalette& palette); // its own, if it has one

// The same paler, for what only stands beside.
[[nodiscard]] QColor Pale(const QColor& colour, const QPalette& palette);

// Text that reads well on a colour.
[[nodiscard]] QColor TextOn(const QColor& colour);

[[nodiscard]] QColor Grid(const QPalette& palette);
[[nodiscard]] QColor Future(const QPalette& palette); // behind what is not booked yet

// One colour through another: 0 is `from`, 1 is `to`.
[[nodiscard]] QColor Mixed(const QColor& from, const QColor& to, double share);

} // namespace modChartColour
