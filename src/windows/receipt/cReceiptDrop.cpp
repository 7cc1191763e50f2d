#include "windows/receipt/cReceiptDrop.h"

#include "views/list/cEntryListModel.h"
#include "views/receipt/cReceipts.h"
#include "windows/widget/modDrop.h"

#include <QDropEvent>
#include <QRubberBand>
#include <QTreeView>

#include <algorithm>

cReceiptDrop::cReceiptDrop(QTreeView& tree, cEntryListModel& entries)
    : QObject(&tree),
      m_tree(tree),
      m_entries(entries),
      m_frame(new QRubberBand(QRubberBand::Rectangle, tree.viewport()))
{
    m_tree.setAcceptDrops(true);
    m_tree.viewport()->setAcceptDrops(true);
    m_tree.viewport()->installEventFilter(this);
}

bool cReceiptDrop::eventFilter(QObject* watched, QEvent* event)
{
    const bool isMoving = event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove;
    if (event->type() == QEvent::DragLeave) {
        m_frame->hide();
    }
    if (!isMoving && event->type() != QEvent::Drop) {
        return QObject::eventFilter(watched, event);
    }
    auto& drop = *static_cast<QDropEvent*>(event);
    if (modDrop::Files(*drop.mimeData()).isEmpty()) {
        return QObject::eventFilter(watched, event);
    }
    if (isMoving) {
        Frame(drop);
    } else {
        m_frame->hide();
        Drop(drop);
    }
    drop.setDropAction(Qt::CopyAction);
    drop.accept();
    return true;
}

int cReceiptDrop::EntryUnder(const QDropEvent& event) const
{
    const QStringList files = modDrop::Files(*event.mimeData());
    const bool areReceipts = std::all_of(files.begin(), files.end(), &cReceipts::IsReceipt);
    const cEntryItem* entry = m_entries.EntryAt(m_tree.indexAt(event.position().toPoint()));
    return areReceipts && entry != nullptr ? entry->ID : 0;
}

void cReceiptDrop::Frame(const QDropEvent& event)
{
    const QRect cell = m_tree.visualRect(m_tree.indexAt(event.position().toPoint()));
    m_frame->setGeometry(0, cell.top(), m_tree.viewport()->width(), cell.height());
    m_frame->setVisible(EntryUnder(event) > 0);
}

void cReceiptDrop::Drop(const QDropEvent& event)
{
    const QStringList files = modDrop::Files(*event.mimeData());
    if (const int entry = EntryUnder(event); entry > 0) {
        Q_EMIT ReceiptsDropped(entry, files);
    } else {
        Q_EMIT OthersDropped(files);
    }
}
