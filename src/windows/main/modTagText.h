#pragma once

#include <QString>

class QFont;
class QPainter;
class QPalette;
class QPoint;
class QRect;

// A line of text with its tags as small labels. The text stays as it is written, so what is copied, read out or
// exported is what is seen.
namespace modTagText {

// Whether there is anything to be drawn otherwise than as plain text.
[[nodiscard]] bool HasTags(const QString& text);

enum class eLook { Usual, Selected };

// Draws the line into the rectangle, cut off where it is too narrow.
void Paint(QPainter& painter, const QRect& rect, const QString& text, const QPalette& palette, eLook look);

// The tag whose label lies at the point when the line is drawn into the rectangle; empty where none does.
[[nodiscard]] QString TagAt(const QPoint& point, const QRect& rect, const QString& text, const QFont& font);

} // namespace modTagText
