#include "import/table/modTablePurpose.h"

#include "import/read/cColumnMap.h"
#include "import/read/modSepaPurpose.h"

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

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

bool IsPurpose(const cColumnMap& map, int column)
{
    return std::find(map.Purpose.begin(), map.Purpose.end(), column) != map.Purpose.end();
}

// Whether there is anything to clean: as good as never.
bool IsUnclean(QStringView text)
{
    QChar before;
    return std::any_of(text.begin(), text.end(), [&](QChar c) {
        const bool isDouble = c == u' ' && before == u' ';
        before = c;
        return isDouble || c == u';' || c == u'"' || c == u'<';
    });
}

void Collapse(QString& text, QChar c)
{
    const QString once(1, c);
    const QString twice(2, c);
    while (text.contains(twice)) {
        text.replace(twice, once);
    }
}

} // namespace

QList<int> modTablePurpose::Parts(const cColumnMap& map)
{
    QList<int> parts;
    const QString stem = Stem(map.Names.value(map.Purpose[0]));
    for (int column = 0; stem.size() >= leastStem && column < map.Names.size(); ++column) {
        const QString& name = map.Names.at(column);
        const bool isPart = Stem(name) == stem && (name.size() > stem.size() || IsPurpose(map, column));
        if (isPart && map.Uses(column) && !IsPurpose(map, column)) {
            return {};
        }
        if (isPart) {
            parts.append(column);
        }
    }
    return parts;
}

QList<int> modTablePurpose::Columns(const cColumnMap& map)
{
    QList<int> columns;
    std::copy_if(map.Purpose.begin(), map.Purpose.end(), std::back_inserter(columns),
                 [](int column) { return column >= 0; });
    const QList<int> parts = Parts(map);
    const bool isAll =
        std::all_of(map.Purpose.begin(), map.Purpose.end(), [&](int column) { return parts.contains(column); });
    return isAll && parts.size() > columns.size() ? parts : columns;
}

QString modTablePurpose::Clean(QString joined)
{
    if (!IsUnclean(joined)) {
        return modSepaPurpose::Rewrite(joined);
    }
    joined.replace(u';', u' ').replace(u'"', u' ');
    if (joined.contains(u'<')) {
        joined.replace(u"<BR>"_s, u"\n"_s);
        Collapse(joined, u'\n');
    }
    Collapse(joined, u' ');
    return modSepaPurpose::Rewrite(joined);
}
