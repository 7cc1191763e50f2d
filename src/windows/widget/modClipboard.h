#pragma once

#include <QList>

class QTreeView;

// Lines of a list for other programs, by way of the clipboard.
namespace modClipboard {

// Copies the selected lines with these columns, as text and as a table. Lines that stand for a group are left out.
// The number of lines; with none, the clipboard stays as it is.
int CopyLines(const QTreeView& list, const QList<int>& columns, int groupRole);

// The columns that the list shows, in the order on screen.
[[nodiscard]] QList<int> ShownColumns(const QTreeView& list);

} // namespace modClipboard
