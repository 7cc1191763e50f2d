#pragma once

#include "views/look/cCategoryLooks.h"

#include <QColor>
#include <QIcon>

class QModelIndex;
class QPalette;
class QStyleOptionViewItem;

// Colours and pictures of categories as they are drawn. What they say stands in the category's name, too.
namespace modLook {

// A stored colour as it is seen on the palette's background.
[[nodiscard]] QColor Colour(const QString& stored, const QPalette& palette);

// The picture in its colour, a dot for a colour alone, and nothing, of the same size, for neither. It follows light and
// dark.
[[nodiscard]] QIcon Icon(const cCategoryLook& look);

// Puts the look that the model gives for the cell before its text.
void Decorate(QStyleOptionViewItem& option, const QModelIndex& index);

} // namespace modLook
