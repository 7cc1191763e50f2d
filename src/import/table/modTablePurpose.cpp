#include "import/table/modTablePurpose.h"

#include "import/read/cColumnMap.h"

#include <algorithm>

namespace {

constexpr qsizetype leastStem = 3; // letters that such columns have in common

// A name without the number at its end.
QString Stem(const QString& name)
{
    qsizetype size = name.size();
    while (size > 0 && name.at(size - 1).isDigit()) {
        --size;
    }
    return name.left(size).trimmed();
}

} // namespace

QList<int> modTablePurpose::Columns(const cColumnMap& map)
{
    QList<int> columns;
    for (const int column : map.Purpose) {
        if (column >= 0) {
            columns.append(column);
        }
    }
    const QString stem = Stem(map.Names.value(map.Purpose[0]));
    if (map.Purpose[0] < 0 || stem.size() < leastStem) {
        return columns;
    }
    for (int column = 0; column < map.Names.size(); ++column) {
        const QString& name = map.Names.at(column);
        if (name.size() > stem.size() && !columns.contains(column) && Stem(name) == stem) {
            columns.append(column);
            std::sort(columns.begin(), columns.end());
        }
    }
    return columns;
}
