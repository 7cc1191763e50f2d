#include "windows/main/cCategoryDrop.h"

#include "views/sheet/modRowDrag.h"

#include <QDropEvent>
#include <QMimeData>
#include <QRubberBand>
#include <QTreeView>

cCategoryDrop::cCategoryDrop(QTreeView& tree, const cEntryListModel& entries)
    : QObject(&tree),
      m_tree(tree),
      m_entries(entries),
      m_frame(new QRubberBand(QRubberBand::Rectangle, tree.viewport()))
{
    m_tree.setAcceptDrops(true);
    m_tree.viewport()->setAcceptDrops(true);
    m_tree.viewport()->installEventFilter(this);
}

bool cCategoryDrop::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::DragLeave) {
        m_frame->hide();
    }
    const bool isEnter = event->type() == QEvent::DragEnter;
    const bool isDrop = event->type() == QEvent::Drop;
    if (!isEnter && !isDrop && event->type() != QEvent::DragMove) {
        return QObject::eventFilter(watched, event);
    }
    auto& drop = *static_cast<QDropEvent*>(event); // the two others are derived from it
    if (!drop.mimeData()->hasFormat(modRowDrag::Format)) {
        return QObject::eventFilter(watched, event);
    }
    const QString category = CategoryUnder(drop);
    Frame(drop);
    drop.setDropAction(Qt::CopyAction);
    drop.setAccepted(isEnter || !category.isEmpty()); // without the first there would be no others
    if (isDrop) {
        m_frame->hide();
    }
    if (isDrop && !category.isEmpty()) {
        const QList<cEntryListModel::cKey> rows = modRowDrag::FromBytes(drop.mimeData()->data(modRowDrag::Format));
        // The mouse is let go first: what follows may ask.
        QMetaObject::invokeMethod(
            this, [this, rows, category] { Q_EMIT RowsDropped(rows, category); }, Qt::QueuedConnection);
    }
    return true;
}

QString cCategoryDrop::CategoryUnder(const QDropEvent& event) const
{
    return m_entries.GroupCategory(m_tree.indexAt(event.position().toPoint()));
}

// The head of the group, also while the mouse is over one of its lines.
void cCategoryDrop::Frame(const QDropEvent& event)
{
    const QModelIndex line = m_tree.indexAt(event.position().toPoint());
    const QRect head = m_tree.visualRect(line.parent().isValid() ? line.parent() : line);
    const QRect shown = head.isValid() ? head : m_tree.visualRect(line);
    m_frame->setGeometry(0, shown.top(), m_tree.viewport()->width(), shown.height());
    m_frame->setVisible(!CategoryUnder(event).isEmpty());
}
