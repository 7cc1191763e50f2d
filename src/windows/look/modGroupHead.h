#pragma once

#include <QRect>

class QModelIndex;
class QPainter;
class QStyleOptionViewItem;
class QTreeView;

// The line at the head of a group in a list: an arrow, the name over all columns up to the sum, and the sum.
namespace modGroupHead {

// Paints the line instead of the view's own row. The text of the first column is the name.
void Paint(const QTreeView& view, QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& head,
           int sumColumn);

// Where the arrow stands in the line.
[[nodiscard]] QRect ArrowIn(const QRect& line);

} // namespace modGroupHead
