#pragma once

class QWidget;

// A light area with round corners on which things stand that belong together.
namespace modCard {

inline constexpr int Margin = 14; // between its edge and what stands on it

// Called from within the widget's paint event.
void Paint(QWidget& widget);

} // namespace modCard
