#include "windows/widget/cWrapLayout.h"

cWrapLayout::cWrapLayout(QWidget* parent) : QLayout(parent)
{
    setContentsMargins(0, 0, 0, 0);
}

cWrapLayout::~cWrapLayout()
{
    while (!m_items.isEmpty()) {
        delete m_items.takeLast(); // a layout among them takes itself out as it goes
    }
}

void cWrapLayout::InsertFirst(QWidget* widget)
{
    addChildWidget(widget);
    m_items.prepend(new QWidgetItem(widget));
    invalidate();
}

void cWrapLayout::addItem(QLayoutItem* item)
{
    m_items.append(item);
}

int cWrapLayout::count() const
{
    return static_cast<int>(m_items.size());
}

QLayoutItem* cWrapLayout::itemAt(int index) const
{
    return m_items.value(index);
}

QLayoutItem* cWrapLayout::takeAt(int index)
{
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

Qt::Orientations cWrapLayout::expandingDirections() const
{
    return Qt::Horizontal;
}

bool cWrapLayout::hasHeightForWidth() const
{
    return true;
}

int cWrapLayout::heightForWidth(int width) const
{
    const QMargins margins = contentsMargins();
    const QRect place(0, 0, width - margins.left() - margins.right(), 0);
    return Arrange(place, eArrange::Measure) + margins.top() + margins.bottom();
}

QSize cWrapLayout::sizeHint() const
{
    return WantedSize().grownBy(contentsMargins());
}

QSize cWrapLayout::minimumSize() const
{
    return LeastSize().grownBy(contentsMargins());
}

void cWrapLayout::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    (void)Arrange(rect.marginsRemoved(contentsMargins()), eArrange::Place);
}

QList<QLayoutItem*> cWrapLayout::Shown() const
{
    QList<QLayoutItem*> shown;
    for (QLayoutItem* item : m_items) {
        if (!item->isEmpty() || item->spacerItem() != nullptr) {
            shown.append(item);
        }
    }
    return shown;
}
