#include "windows/modPlace.h"

#include <algorithm>

namespace {

// What has to be in sight to drag a window with the mouse: pixels of its upper edge.
constexpr int gripWidth = 100;
constexpr int gripHeight = 20;

} // namespace

QRect modPlace::Visible(const QRect& place, const QList<QRect>& screens)
{
    const QRect edge(place.left(), place.top(), place.width(), gripHeight);
    const bool isInReach = std::any_of(screens.begin(), screens.end(), [&](const QRect& screen) {
        const QRect seen = screen.intersected(edge);
        return seen.width() >= std::min(gripWidth, place.width()) && seen.height() == gripHeight;
    });
    if (isInReach || screens.isEmpty()) {
        return place;
    }
    QRect moved(QPoint(), place.size().boundedTo(screens.constFirst().size()));
    moved.moveCenter(screens.constFirst().center());
    return moved;
}
