#pragma once

#include <QList>
#include <QModelIndexList>
#include <QString>

class QAbstractItemModel;

// Lines of a list as a table for other programs.
struct cCopiedRows
{
    QString Text; // header and lines, cells separated by tabs
    QString Html; // the same as a table
};

namespace modRowCopy {

// The shown texts of these columns, the lines in the order of the list however they were selected. `rows` holds one
// cell of each line.
[[nodiscard]] cCopiedRows Copy(const QAbstractItemModel& model, QModelIndexList rows, const QList<int>& columns);

} // namespace modRowCopy
