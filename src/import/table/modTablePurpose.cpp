#include "import/table/modTablePurpose.h"

#include "import/read/cColumnMap.h"
#include "import/read/modSepaPurpose.h"

#include <algorithm>

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
