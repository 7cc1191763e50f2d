#include "windows/help/cLogTree.h"

#include "base/cText.h"
#include "views/help/cErrorLogView.h"
#include "windows/widget/cRowDelegate.h"
#include "windows/widget/modEmptyText.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QShortcut>

namespace {

constexpr int operationLetters = 28;

} // namespace

cLogTree::cLogTree(cErrorLogView& log, QWidget* parent) : QTreeView(parent), m_log(log)
{
    setModel(&log);
    setItemDelegate(new cRowDelegate(this));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setAccessibleName(cText::Tr("Meldungen"));
    header()->setMinimumSectionSize(fontMetrics().averageCharWidth() * 10);
    header()->setSectionResizeMode(cErrorLogView::Time, QHeaderView::ResizeToContents);
    header()->setSectionResizeMode(cErrorLogView::Version, QHeaderView::ResizeToContents);
    header()->resizeSection(cErrorLogView::Operation, fontMetrics().averageCharWidth() * operationLetters);
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& index) { Q_EMIT CurrentRowChanged(index.isValid() ? index.row() : -1); });
    connect(new QShortcut(QKeySequence::Copy, this, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated, this,
            &cLogTree::CopyRequested);
}

QList<int> cLogTree::SelectedRows() const
{
    QList<int> rows;
    const QModelIndexList indexes = selectionModel()->selectedRows();
    for (const QModelIndex& index : indexes) {
        rows.append(index.row());
    }
    return rows;
}

void cLogTree::paintEvent(QPaintEvent* event)
{
    QTreeView::paintEvent(event);
    if (m_log.rowCount() == 0) {
        modEmptyText::Paint(*viewport(), m_log.EmptyTitle(), m_log.EmptyHint());
    }
}
