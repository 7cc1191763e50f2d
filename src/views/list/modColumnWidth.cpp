#include "views/list/modColumnWidth.h"

#include <algorithm>

QList<int> modColumnWidth::Share(const QList<cColumn>& columns, int rest, int room)
{
    QList<int> widths;
    int total = 0;
    int give = 0; // what they have above their least
    for (const cColumn& column : columns) {
        widths.append(std::max(column.Wanted, column.Least));
        total += widths.constLast();
        give += widths.constLast() - column.Least;
    }
    if (total <= room) {
        if (rest >= 0) {
            widths[rest] += room - total;
        }
        return widths;
    }
    int lacking = std::min(total - room, give);
    for (qsizetype i = 0; i < widths.size() && give > 0; ++i) {
        const int above = widths.at(i) - columns.at(i).Least;
        const int loss = static_cast<int>((qint64{lacking} * above + give - 1) / give); // what is left is shared anew
        widths[i] -= loss;
        lacking -= loss;
        give -= above;
    }
    return widths;
}
