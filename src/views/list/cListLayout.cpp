#include "views/list/cListLayout.h"

#include <QStringList>

#include <algorithm>
#include <set>

using namespace Qt::Literals::StringLiterals;

namespace {

std::optional<cListLayout::cColumn> ReadColumn(const QString& part)
{
    const QStringList numbers = part.split(u',');
    bool isColumn = false;
    bool isWidth = false;
    if (numbers.size() != 3) {
        return std::nullopt;
    }
    const cListLayout::cColumn column{numbers.at(0).toInt(&isColumn), numbers.at(1).toInt(&isWidth),
                                      numbers.at(2) == u"1"};
    return isColumn && isWidth && column.Width >= 0 ? std::optional(column) : std::nullopt;
}

bool IsComplete(const cListLayout& layout, int columnCount)
{
    std::set<int> seen;
    bool isAnyShown = false;
    for (const cListLayout::cColumn& column : layout.Columns) {
        seen.insert(column.Column);
        isAnyShown = isAnyShown || column.IsShown;
    }
    const bool isWhole = static_cast<int>(seen.size()) == columnCount && seen.size() == layout.Columns.size();
    return isWhole && isAnyShown && *seen.begin() == 0 && *seen.rbegin() == columnCount - 1;
}

} // namespace

QString cListLayout::ToText() const
{
    QStringList parts;
    for (const cColumn& column : Columns) {
        parts.append(u"%1,%2,%3"_s.arg(column.Column).arg(column.Width).arg(column.IsShown ? 1 : 0));
    }
    parts.append(u"sort,%1,%2"_s.arg(SortColumn).arg(IsDescending ? 1 : 0));
    if (Letter > 0) {
        parts.append(u"letter,%1"_s.arg(Letter));
    }
    return parts.join(u'|');
}

cListLayout cListLayout::ForLetter(int letter) const
{
    cListLayout layout = *this;
    layout.Letter = letter;
    for (cColumn& column : layout.Columns) {
        column.Width = Letter > 0 ? column.Width * letter / Letter : column.Width;
    }
    return layout;
}

std::optional<cListLayout> cListLayout::FromText(const QString& text, int columnCount, const QList<int>& hidden)
{
    cListLayout layout;
    const QStringList parts = text.split(u'|', Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        if (part.startsWith(u"sort,")) {
            layout.SortColumn = std::clamp(part.section(u',', 1, 1).toInt(), 0, columnCount - 1);
            layout.IsDescending = part.section(u',', 2, 2) == u"1";
            continue;
        }
        if (part.startsWith(u"letter,")) {
            layout.Letter = std::max(0, part.section(u',', 1, 1).toInt());
            continue;
        }
        const std::optional<cColumn> column = ReadColumn(part);
        if (!column) {
            return std::nullopt;
        }
        layout.Columns.push_back(*column);
    }
    // Columns that came with a newer program follow at the end.
    for (int column = static_cast<int>(layout.Columns.size()); column < columnCount && column > 0; ++column) {
        layout.Columns.push_back({column, 0, !hidden.contains(column)});
    }
    return IsComplete(layout, columnCount) ? std::optional(layout) : std::nullopt;
}
