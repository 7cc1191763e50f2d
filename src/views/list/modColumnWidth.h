#pragma once

#include <QList>

// How the columns of a list share its width.
namespace modColumnWidth {

// The longest text of a column, which a model of many rows can answer for its header without a look at each.
inline constexpr int WidestRole = Qt::UserRole + 100;

struct cColumn
{
    int Wanted = 0; // pixels
    int Enough = 0; // for a word; columns of long texts give way down to this before the others do
    int Least = 0;  // what the column keeps in any case; for days and amounts all that they need
    int Most = 0;   // for its longest text, where there is room; 0: not known
    int Title = 0;  // what its title needs
};

// The width of each column; what `room` has left goes to the column `rest` (-1: to none). Where it has too little,
// columns give way by their share of what they have above their longest text, then of what that has above the width
// they want, then of what they have above enough and their title, then above enough, then above their least; below that
// the list has to scroll.
[[nodiscard]] QList<int> Share(const QList<cColumn>& columns, int rest, int room);

} // namespace modColumnWidth
