#pragma once

#include <Qt>

class QPainter;
class QRect;
class QStyleOption;

// The shapes that the flat look is made of. All colours are mixed from the option's palette, so they follow light, dark
// and the desktop's own colours.
namespace modFlat {

// A place to type in: the fill of texts, a soft edge, and the accent around it while it has the focus.
void Field(QPainter& painter, const QStyleOption& option);
// The edge alone, around what is filled already.
void FieldEdge(QPainter& painter, const QStyleOption& option);
// What is pressed. The default button of a dialog is filled with the accent.
void Button(QPainter& painter, const QStyleOption& option, bool isDefault);
// A list to choose from while it is closed: filled as a button, with the edge of a field.
void Choice(QPainter& painter, const QStyleOption& option);
// A button that shows its ground only under the pointer or while it is down.
void ToolButton(QPainter& painter, const QStyleOption& option);
// A shade of the text over what is there.
void Shade(QPainter& painter, const QStyleOption& option, const QRect& place, double share);
// The mark of what the keys go to, where it is shown.
void Focus(QPainter& painter, const QStyleOption& option);
// The edge of lists.
void Frame(QPainter& painter, const QStyleOption& option);
// The edge of controls that belong together, below their title.
void GroupFrame(QPainter& painter, const QStyleOption& option);

void CheckBox(QPainter& painter, const QStyleOption& option);
void RadioButton(QPainter& painter, const QStyleOption& option);
// An open arrow in the middle of the place, as large as the text's letters.
void Arrow(QPainter& painter, const QStyleOption& option, const QRect& place, Qt::ArrowType direction);

// Titles of a list: a line below, and a short one where a column can be widened.
void HeaderGround(QPainter& painter, const QStyleOption& option, bool isHorizontal);
void Tab(QPainter& painter, const QStyleOption& option);
// A line of the edge's colour along the bottom of the option's place.
void BottomLine(QPainter& painter, const QStyleOption& option);
// The same in the middle of it: between two parts of a menu.
void MiddleLine(QPainter& painter, const QStyleOption& option);

// A rounded bar without an edge: of scroll bars and of progress.
void Groove(QPainter& painter, const QStyleOption& option, const QRect& place, double share);
void Filled(QPainter& painter, const QStyleOption& option, const QRect& place);

} // namespace modFlat
