#pragma once

#include <QList>
#include <QRect>

class QScreen;
class QWidget;

// Where a window may stand.
namespace modPlace {

// The place itself when enough of its upper edge to take hold of lies on one of the screens, there as large as it fits
// when it reaches beyond them and is larger; else the same size, as far as it fits, in the middle of the first screen.
// `screens` are the areas that are free for windows.
[[nodiscard]] QRect Visible(const QRect& place, const QList<QRect>& screens);

// The areas for windows of all screens, the one of `first` in front.
[[nodiscard]] QList<QRect> FreeAreas(const QScreen& first);

// The size of a new window: as wanted, but with its frame no larger than the screen. `screen` is the area that is free
// for windows.
[[nodiscard]] QSize Fitting(const QSize& wanted, const QRect& screen);

// The least width at which a narrow window's title can be read between the buttons of its frame.
[[nodiscard]] int WidthOfTitle(const QWidget& window);

// Where a window of this size leaves as much as it can of `other` to be seen: at the edge of the screen that is farther
// from it, as high as it stands now. `place` and `other` are frames of windows.
[[nodiscard]] QPoint Beside(const QRect& place, const QRect& other, const QRect& screen);

} // namespace modPlace
