#include "windows/widget/modPlace.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QRegion>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <functional>
#include <numeric>

namespace {

// What has to be in sight to drag a window with the mouse: pixels of its upper edge.
constexpr int gripWidth = 100;
constexpr int gripHeight = 20;
// What the frame of a window takes at the most; it is known only after the window was shown.
constexpr int frameWidth = 16;
constexpr int frameHeight = 48;

constexpr int frameButtons = 7; // and their gaps, in lines of text

} // namespace

QList<QRect> modPlace::FreeAreas(const QScreen& first)
{
    QList<QRect> areas{first.availableGeometry()};
    const QList<QScreen*> screens = first.virtualSiblings();
    for (const QScreen* screen : screens) {
        areas.append(screen->availableGeometry());
    }
    return areas;
}

QSize modPlace::Fitting(const QSize& wanted, const QRect& screen)
{
    return wanted.boundedTo({screen.width() - frameWidth, screen.height() - frameHeight});
}

int modPlace::WidthOfTitle(const QWidget& window)
{
    const QString title = window.windowTitle() + QStringLiteral(" — ") + QGuiApplication::applicationDisplayName();
    QFont font = window.font();
    font.setBold(true); // as most frames write it
    return QFontMetrics(font).horizontalAdvance(title) + frameButtons * window.fontMetrics().height();
}

QRect modPlace::Visible(const QRect& place, const QList<QRect>& screens)
{
    const QRect edge(place.left(), place.top(), place.width(), gripHeight);
    const auto around = std::find_if(screens.begin(), screens.end(), [&](const QRect& screen) {
        const QRect seen = screen.intersected(edge);
        return seen.width() >= std::min(gripWidth, place.width()) && seen.height() == gripHeight;
    });
    const bool isInReach = around != screens.end();
    const QRegion hidden = std::accumulate(screens.begin(), screens.end(), QRegion(place), std::minus());
    if (screens.isEmpty() || hidden.isEmpty()
        || (isInReach && place.size() == place.size().boundedTo(around->size()))) {
        return place;
    }
    const QRect& screen = isInReach ? *around : screens.constFirst();
    const QRect room = screen.adjusted(frameWidth / 2, frameHeight - frameWidth / 2, -frameWidth / 2, -frameWidth / 2);
    QRect moved(place.topLeft(), place.size().boundedTo(room.size()));
    if (!isInReach) {
        moved.moveCenter(screen.center());
    }
    moved.moveTo(qBound(room.left(), moved.left(), room.right() + 1 - moved.width()),
                 qBound(room.top(), moved.top(), room.bottom() + 1 - moved.height()));
    return moved;
}

QPoint modPlace::Beside(const QRect& place, const QRect& other, const QRect& screen)
{
    const int left = other.left() - screen.left();
    const int right = screen.right() - other.right();
    const int x = right >= left ? std::min(other.right() + 1, screen.right() + 1 - place.width())
                                : std::max(other.left() - place.width(), screen.left());
    return {std::max(x, screen.left()), place.top()};
}
