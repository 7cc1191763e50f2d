#include "windows/main/cCategoryDrop.h"

#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QRubberBand>
#include <QScrollBar>
#include <QTreeView>

#include <utility>

namespace {

constexpr int scrollPause = 60; // milliseconds for a line

} // namespace

cCategoryDrop::cCategoryDrop(QTreeView& tree, QString format, fnCategory categoryOf)
    : QObject(&tree),
      m_tree(tree),
      m_format(std::move(format)),
      m_categoryOf(std::move(categoryOf)),
      m_frame(new QRubberBand(QRubberBand::Rectangle, tree.viewport()))
{
    m_tree.setAcceptDrops(true);
    m_tree.viewport()->setAcceptDrops(true);
    m_tree.viewport()->installEventFilter(this);
    m_scrolling.setInterval(scrollPause);
    connect(&m_scrolling, &QTimer::timeout, this, [this] {
        m_frame->hide(); // it belongs to the line that moves away
        m_tree.verticalScrollBar()->triggerAction(m_step < 0 ? QScrollBar::SliderSingleStepSub
                                                             : QScrollBar::SliderSingleStepAdd);
    });
}

void cCategoryDrop::Drag(QTreeView& tree, const QString& format, const QByteArray& lines)
{
    auto* data = new QMimeData;
    data->setData(format, lines);
    auto* drag = new QDrag(&tree); // it goes by itself, and the lines with it
    drag->setMimeData(data);
    drag->exec(Qt::CopyAction);
}

bool cCategoryDrop::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::DragLeave) {
        Stop();
    }
    const bool isEnter = event->type() == QEvent::DragEnter;
    const bool isDrop = event->type() == QEvent::Drop;
    if (!isEnter && !isDrop && event->type() != QEvent::DragMove) {
        return QObject::eventFilter(watched, event);
    }
    auto& drop = *static_cast<QDropEvent*>(event); // the two others are derived from it
    if (!drop.mimeData()->hasFormat(m_format)) {
        return QObject::eventFilter(watched, event);
    }
    const QString category = CategoryUnder(drop);
    Frame(drop);
    drop.setDropAction(Qt::CopyAction);
    drop.setAccepted(isEnter || !category.isEmpty()); // without the first there would be no others
    if (isDrop || category.isEmpty()) {
        Stop();
    } else {
        ScrollNear(drop.position().toPoint().y());
    }
    if (isDrop && !category.isEmpty()) {
        // The mouse is let go first: what follows may ask.
        QMetaObject::invokeMethod(
            this, [this, lines = drop.mimeData()->data(m_format), category] { Q_EMIT Dropped(lines, category); },
            Qt::QueuedConnection);
    }
    return true;
}

void cCategoryDrop::ScrollNear(int y)
{
    const int edge = m_tree.fontMetrics().height() * 2;
    m_step = y < edge ? -1 : y > m_tree.viewport()->height() - edge ? 1 : 0;
    if (m_step == 0) {
        m_scrolling.stop();
    } else if (!m_scrolling.isActive()) {
        m_scrolling.start();
    }
}

void cCategoryDrop::Stop()
{
    m_frame->hide();
    m_scrolling.stop();
}

QString cCategoryDrop::CategoryUnder(const QDropEvent& event) const
{
    return m_categoryOf(m_tree.indexAt(event.position().toPoint()));
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
