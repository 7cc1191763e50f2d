#pragma once

class QWidget;

namespace modDayRange {

// The fields for the first and the last day of a period side by side, for one label; they take no more room than a day
// needs.
[[nodiscard]] QWidget* Make(QWidget& first, QWidget& last, QWidget* parent);

} // namespace modDayRange
