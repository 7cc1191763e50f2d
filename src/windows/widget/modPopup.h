#pragma once

#include <QPoint>
#include <QSize>

class QWidget;

// Where the small windows of a field stand on the screen.
namespace modPopup {

// The place for a popup of this size directly below the field, or above it where the screen ends before.
[[nodiscard]] QPoint Below(const QWidget& field, QSize size);

} // namespace modPopup
