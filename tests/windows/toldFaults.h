#pragma once

#include "cScreenReader.h"

#include <QStringList>

class QWidget;

// What a window shows and a screen reader does not get to know.
namespace modToldFaults {

// The texts that a widget paints itself, without what stands in its children.
[[nodiscard]] QStringList Painted(QWidget& widget);

[[nodiscard]] QStringList Of(const QWidget& window, const cToldWindow& told);

} // namespace modToldFaults
