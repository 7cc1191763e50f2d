#include "windows/widget/modClipboard.h"

#include "views/sheet/modRowCopy.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMimeData>
#include <QTreeView>

int modClipboard::CopyLines(const QTreeView& list, const QList<int>& columns, int groupRole)
{
    QModelIndexList lines = list.selectionModel()->selectedRows();
    lines.removeIf([groupRole](const QModelIndex& line) { return line.data(groupRole).toBool(); });
    if (lines.isEmpty()) {
        return 0;
    }
    const cCopiedRows copied = modRowCopy::Copy(*list.model(), lines, columns);
    auto* data = new QMimeData; // the clipboard takes it
    data->setText(copied.Text);
    data->setHtml(copied.Html);
    QGuiApplication::clipboard()->setMimeData(data);
    return static_cast<int>(lines.size());
}

QList<int> modClipboard::ShownColumns(const QTreeView& list)
{
    QList<int> columns;
    const QHeaderView& header = *list.header();
    for (int visual = 0; visual < header.count(); ++visual) {
        const int column = header.logicalIndex(visual);
        if (!header.isSectionHidden(column)) {
            columns.append(column);
        }
    }
    return columns;
}
