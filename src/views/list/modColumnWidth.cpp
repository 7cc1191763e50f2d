#include "views/list/modColumnWidth.h"

#include <algorithm>
#include <numeric>

namespace {

// Takes what is lacking from the widths, by their share of what they have above `bounds`; what is lacking still.
int Shrink(QList<int>& widths, const QList<int>& bounds, int lacking)
{
    int above = 0;
    for (qsizetype i = 0; i < widths.size(); ++i) {
        above += widths.at(i) - bounds.at(i);
    }
    const int more = std::max(0, lacking - above);
    int loss = lacking - more;
    for (qsizetype i = 0; i < widths.size() && loss > 0; ++i) {
        const int own = widths.at(i) - bounds.at(i);
        const int share = static_cast<int>((qint64{loss} * own + above - 1) / above); // the rest is shared anew
        widths[i] -= share;
        loss -= share;
        above -= own;
    }
    return more;
}

} // namespace

QList<int> modColumnWidth::Share(const QList<cColumn>& columns, int rest, int room)
{
    QList<int> widths;
    QList<int> whole; // no text is cut
    QList<int> needed;
    QList<int> titled;
    QList<int> enough;
    QList<int> least;
    for (const cColumn& column : columns) {
        least.append(column.Least);
        needed.append(std::max(column.Most > 0 ? std::min(column.Wanted, column.Most) : column.Wanted, column.Least));
        enough.append(std::clamp(column.Enough, column.Least, needed.constLast()));
        titled.append(std::clamp(column.Title, enough.constLast(), needed.constLast()));
        whole.append(std::max(column.Most, needed.constLast()));
        widths.append(std::max(column.Wanted, whole.constLast()));
    }
    int lacking = std::accumulate(widths.begin(), widths.end(), 0) - room;
    if (lacking < 0 && rest >= 0) {
        widths[rest] -= lacking;
    }
    for (const QList<int>& bounds : {whole, needed, titled, enough, least}) {
        lacking = lacking > 0 ? Shrink(widths, bounds, lacking) : 0;
    }
    return widths;
}
