#pragma once

class QScreen;

// Lengths on the glass of a screen.
namespace modScreenSize {

// The screen's own measure; the usual one of the desktop for a screen that does not know its size, as a projector.
[[nodiscard]] double DotsPerMillimetre(const QScreen& screen);

} // namespace modScreenSize
