#pragma once

#include <QString>

class QLabel;
class QWidget;

namespace modWrapped {

// A paragraph of `columns` letters in width that keeps the height of all its lines: a window that is opened on a small
// screen would otherwise take it from the text.
[[nodiscard]] QLabel* Make(const QString& text, int columns, QWidget* parent);

} // namespace modWrapped
