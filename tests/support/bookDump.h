#pragma once

#include "store/cDatabase.h"

#include <QString>
#include <QStringList>

// Everything that stands in the book, value by value with its type.
inline QStringList Dump(cDatabase& database)
{
    QStringList lines;
    for (const QString& table : {QStringLiteral("data"), QStringLiteral("datamod"), QStringLiteral("template"),
                                 QStringLiteral("import"), QStringLiteral("setting")}) {
        QStringList columns;
        cRows names(database, "SELECT name FROM pragma_table_info(?)", {table});
        while (names.Next()) {
            columns.append(QStringLiteral("typeof(%1)||':'||hex(%1)").arg(names.Text(0)));
        }
        const QString query =
            QStringLiteral("SELECT %1 FROM %2 ORDER BY ID").arg(columns.join(QStringLiteral("||'|'||")), table);
        cRows rows(database, query.toStdString());
        while (rows.Next()) {
            lines.append(table + u'|' + rows.Text(0));
        }
    }
    return lines;
}
