#pragma once

#include <QList>
#include <QRect>

// Where a window may stand.
namespace modPlace {

// The place itself when enough of its upper edge to take hold of lies on one of the screens; else the same size, as far
// as it fits, in the middle of the first screen. `screens` are the areas that are free for windows.
[[nodiscard]] QRect Visible(const QRect& place, const QList<QRect>& screens);

} // namespace modPlace
