#pragma once

#include <QColor>
#include <QPalette>

// Colours that carry a meaning, chosen to read well on the palette's own background. The meaning always stands in the
// text too (a sign, a word), so nothing hangs on the colour alone.
class QWidget;

namespace modTone {

using fnTone = QColor (*)(const QPalette& palette);

[[nodiscard]] bool IsDark(const QPalette& palette);
[[nodiscard]] QColor Income(const QPalette& palette);
[[nodiscard]] QColor Expense(const QPalette& palette);

// What wants to be looked at before it becomes a problem.
[[nodiscard]] QColor Warning(const QPalette& palette);

// Text that stays in the background: hints, empty states.
[[nodiscard]] QColor Quiet(const QPalette& palette);

// Gives the widget this tone instead of its usual colour, and again whenever light and dark change; without a tone the
// widget has its usual colours again.
void Use(QWidget& widget, fnTone tone, QPalette::ColorRole role = QPalette::WindowText);

} // namespace modTone
