#include "windows/widget/cPickList.h"

#include "windows/look/modTone.h"
#include "windows/widget/modPopup.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QStandardItemModel>
#include <QStyledItemDelegate>

namespace {

constexpr int mostRows = 12;
constexpr int noteRole = Qt::UserRole;
constexpr int offerRole = Qt::UserRole + 1;
constexpr int lineRole = Qt::UserRole + 2;
constexpr int cursorRole = Qt::UserRole + 3;
constexpr int gap = 12; // between text and note

// Draws the note at the right end of the line.
class cPickDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QSize size = QStyledItemDelegate::sizeHint(option, index);
        const QString note = index.data(noteRole).toString();
        const int more = note.isEmpty() ? 0 : option.fontMetrics.horizontalAdvance(note) + gap;
        return {size.width() + more, option.fontMetrics.height() + option.fontMetrics.height() / 3};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::paint(painter, option, index);
        const bool isSelected = option.state.testFlag(QStyle::State_Selected);
        painter->setPen(isSelected ? option.palette.color(QPalette::HighlightedText) : modTone::Quiet(option.palette));
        painter->drawText(option.rect.adjusted(0, 0, -gap / 2, 0), Qt::AlignRight | Qt::AlignVCenter,
                          index.data(noteRole).toString());
    }
};

// What the field holds once the proposal is taken.
QString LineWith(const cPickRow& row)
{
    return row.Cursor < 0 ? row.Text : row.Line;
}

} // namespace

cPickList::cPickList(QLineEdit& edit, QWidget& field, eChosen chosen, fnRows rows)
    : QListView(&field),
      m_edit(edit),
      m_field(field),
      m_chosen(chosen),
      m_rows(std::move(rows)),
      m_items(new QStandardItemModel(this))
{
    setWindowFlags(Qt::ToolTip); // a popup would take the keys
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    setModel(m_items);
    setItemDelegate(new cPickDelegate(this));
    setUniformItemSizes(false);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_field.installEventFilter(this);
    connect(&m_edit, &QLineEdit::textEdited, this, &cPickList::Open);
    connect(this, &QListView::clicked, this, &cPickList::Take);
}

void cPickList::Open(const QString& typed)
{
    const QList<cPickRow> rows = m_rows(typed);
    // A single proposal that says what stands there already is no help.
    const bool isUseful = rows.size() > 1 || (rows.size() == 1 && LineWith(rows.first()) != m_edit.text());
    if (!isUseful || !m_field.hasFocus()) {
        hide();
        return;
    }
    Fill(rows);
    Place();
    show();
}

void cPickList::Fill(const QList<cPickRow>& rows)
{
    m_items->clear();
    for (const cPickRow& row : rows) {
        auto* item = new QStandardItem(row.Text);
        item->setData(row.Note, noteRole);
        item->setData(row.IsOffer, offerRole);
        item->setData(row.Line, lineRole);
        item->setData(row.Cursor, cursorRole);
        m_items->appendRow(item);
    }
    const bool isTyped = m_chosen == eChosen::FirstRow && !m_edit.text().trimmed().isEmpty();
    const bool isFirst = rows.first().IsMeant || (isTyped && !rows.first().IsOffer);
    setCurrentIndex(isFirst ? m_items->index(0, 0) : QModelIndex());
    scrollToTop();
}

void cPickList::Place()
{
    const int shown = qMin(mostRows, m_items->rowCount());
    const int rowHeight = sizeHintForRow(0);
    const int scrollBar = m_items->rowCount() > shown ? 2 * gap : 0;
    const int wanted = sizeHintForColumn(0) + 2 * frameWidth() + scrollBar + gap;
    resize(qMax(m_field.width(), wanted), shown * rowHeight + 2 * frameWidth());
    move(modPopup::Below(m_field, size()));
}

void cPickList::Take(const QModelIndex& index)
{
    const QString text = index.data().toString();
    hide();
    if (index.data(offerRole).toBool()) {
        Q_EMIT Offered();
        return;
    }
    if (const int cursor = index.data(cursorRole).toInt(); cursor >= 0) {
        m_edit.setText(index.data(lineRole).toString());
        m_edit.setModified(true);
        m_edit.setCursorPosition(cursor);
        return;
    }
    m_edit.setText(text);
    m_edit.setModified(true);
    Q_EMIT Picked(text);
}

void cPickList::Step(int rows)
{
    const int current = currentIndex().row(); // -1 without
    const int last = m_items->rowCount() - 1;
    setCurrentIndex(m_items->index(qBound(0, current + rows, last), 0));
}

// The keys while the list is open.
bool cPickList::HandleOpenKey(const QKeyEvent& key)
{
    switch (key.key()) {
    case Qt::Key_Up: Step(-1); return true;
    case Qt::Key_Down: Step(1); return true;
    case Qt::Key_PageUp: Step(-mostRows); return true;
    case Qt::Key_PageDown: Step(mostRows); return true;
    case Qt::Key_Escape: hide(); return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
        if (currentIndex().isValid()) {
            Take(currentIndex());
            return key.key() != Qt::Key_Tab; // Tab goes on to the next field as well
        }
        hide();
        return false;
    default: return false;
    }
}

bool cPickList::HandleKey(const QKeyEvent& key)
{
    if (IsOpen()) {
        return HandleOpenKey(key);
    }
    const bool opens = key.key() == Qt::Key_Down || (key.key() == Qt::Key_F4 && key.modifiers() == Qt::NoModifier);
    if (opens) {
        Open({});
    }
    return opens;
}

// A click elsewhere and another window close the list; with its own window it moves.
void cPickList::HandleOutside(const QObject& watched, const QEvent& event)
{
    const auto* widget = qobject_cast<const QWidget*>(&watched);
    const bool isWindow = &watched == m_field.window();
    const bool isField = &watched == &m_field;
    switch (event.type()) {
    case QEvent::MouseButtonPress:
        if (widget != nullptr && widget->window() != this) {
            hide();
        }
        break;
    case QEvent::FocusOut:
    case QEvent::Hide:
    case QEvent::WindowDeactivate:
        if (isField || isWindow) {
            hide();
        }
        break;
    case QEvent::Move:
    case QEvent::Resize:
        if (isField || isWindow) {
            Place();
        }
        break;
    default: break;
    }
}

bool cPickList::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_field && event->type() == QEvent::KeyPress) {
        return HandleKey(static_cast<const QKeyEvent&>(*event));
    }
    // An open list claims Escape before the window and its buttons see it.
    if (watched == &m_field && event->type() == QEvent::ShortcutOverride && IsOpen()
        && static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    if (IsOpen()) {
        HandleOutside(*watched, *event);
    }
    return false;
}

// While it is open the list sees events before the filters of others, such as the delegate of a table.
void cPickList::showEvent(QShowEvent* event)
{
    qApp->installEventFilter(this);
    QListView::showEvent(event);
}

void cPickList::hideEvent(QHideEvent* event)
{
    qApp->removeEventFilter(this);
    QListView::hideEvent(event);
}
