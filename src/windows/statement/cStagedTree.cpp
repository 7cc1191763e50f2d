#include "windows/statement/cStagedTree.h"

#include "base/cText.h"
#include "views/list/cListLayout.h"
#include "views/statement/cStagedListModel.h"
#include "windows/look/modGroupHead.h"
#include "windows/main/cCategoryDrop.h"
#include "windows/widget/cCategoryBox.h"
#include "windows/widget/cColumnFit.h"
#include "windows/widget/modClipboard.h"
#include "windows/widget/modEmptyText.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QShortcut>

namespace {

using eKind = cColumnFit::eKind;

// What names a transaction and what becomes of it can be read in a narrow window too.
constexpr int nameLetters = 11;

const std::vector<cColumnFit::cColumn> columns{
    {9, eKind::Text, 9},     {14, eKind::Day},         {26, eKind::Text, nameLetters}, {26, eKind::Text, 8},
    {13, eKind::Amount},     {14, eKind::Text, 11, 1}, {25, eKind::Text, nameLetters}, {11, eKind::Text, 11, 2},
    {27, eKind::Text, 14, 3}};

bool IsEnter(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

// F2, and letters as they are typed: both edit the category, wherever in the row the focus is.
bool IsEditing(const QKeyEvent& event)
{
    const bool isLetter = !event.text().isEmpty() && event.text().at(0).isLetterOrNumber()
        && (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
    return isLetter || event.key() == Qt::Key_F2;
}

bool IsMenuKey(const QKeyEvent& event)
{
    return event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier;
}

} // namespace

cStagedTree::cStagedTree(cStagedListModel& model, QWidget* parent) : cTypedCells(parent), m_model(model)
{
    // Before the base class hears of it and forgets which line stands where.
    connect(&m_model, &QAbstractItemModel::modelAboutToBeReset, this, &cStagedTree::KeepSelection);
    setModel(&m_model);
    setRootIsDecorated(false); // heads of groups draw their own arrow
    setIndentation(0);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(false); // the cell with the focus is the one that F2 edits
    setSelectionMode(ExtendedSelection);
    setSelectionBehavior(SelectRows);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setSortingEnabled(true);
    setAccessibleName(cText::Tr("Liste der Bankumsätze"));
    header()->setSectionsMovable(true);
    header()->setFirstSectionMovable(true);
    m_fit = new cColumnFit(*this, columns, cStagedListModel::Purpose);
    connect(&m_model, &QAbstractItemModel::modelReset, this, &cStagedTree::RestoreSelection);
    connect(new QShortcut(QKeySequence::Copy, this, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated, this,
            [this] { modClipboard::CopyLines(*this, m_fit->Shown(), cStagedListModel::GroupRole); });
    ConnectGroups();
    SetLayoutText({});
}

void cStagedTree::ConnectGroups()
{
    const auto name = [](const QModelIndex& head) { return head.data(cStagedListModel::NameRole).toString(); };
    connect(this, &QTreeView::collapsed, this, [=, this](const QModelIndex& head) { m_closed.insert(name(head)); });
    connect(this, &QTreeView::expanded, this, [=, this](const QModelIndex& head) { m_closed.remove(name(head)); });
    OpenGroups();
}

void cStagedTree::ExpandGroups()
{
    m_closed.clear();
    expandToDepth(0);
}

void cStagedTree::CollapseGroups()
{
    for (int group = 0; group < m_model.rowCount(); ++group) {
        m_closed.insert(m_model.index(group, 0).data(cStagedListModel::NameRole).toString());
    }
    collapseAll();
}

QList<int> cStagedTree::SelectedIds() const
{
    return m_model.IdsIn(selectionModel()->selection());
}

void cStagedTree::SetEmptyText(const QString& title, const QString& hint)
{
    m_emptyTitle = title;
    m_emptyHint = hint;
    viewport()->update();
}

QString cStagedTree::LayoutText() const
{
    return m_fit->Layout().ToText();
}

void cStagedTree::SetLayoutText(const QString& text)
{
    const std::optional<cListLayout> layout = cListLayout::FromText(text, cStagedListModel::ColumnCount);
    m_fit->SetLayout(layout);
    sortByColumn(layout ? layout->SortColumn : int{cStagedListModel::Date},
                 layout && layout->IsDescending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

cStagedTree::cLine cStagedTree::LineAt(const QModelIndex& index) const
{
    return {m_model.IdAt(index), index.siblingAtColumn(0).data(cStagedListModel::NameRole).toString()};
}

QModelIndex cStagedTree::IndexOf(const cLine& line) const
{
    return line.Id != 0 ? m_model.IndexOf(line.Id) : m_model.HeadNamed(line.Head);
}

// The line of the same kind below those that are selected, else the one above: after a row comes a row, after a group
// the next group.
QModelIndex cStagedTree::Neighbour(const QModelIndex& index) const
{
    const bool isHead = m_model.IsHead(index);
    const auto isPassed = [&](const QModelIndex& line) {
        return line.isValid() && (m_model.IsHead(line) != isHead || selectionModel()->isSelected(line));
    };
    QModelIndex below = indexBelow(index);
    while (isPassed(below)) {
        below = indexBelow(below);
    }
    QModelIndex above = below.isValid() ? QModelIndex() : indexAbove(index);
    while (isPassed(above)) {
        above = indexAbove(above);
    }
    return below.isValid() ? below : above;
}

void cStagedTree::KeepSelection()
{
    m_kept = {};
    QItemSelection rows;
    const QItemSelection selection = selectionModel()->selection();
    for (const QItemSelectionRange& range : selection) {
        if (!m_model.IsHead(range.topLeft())) {
            rows.append(range);
            continue;
        }
        for (int head = range.top(); head <= range.bottom(); ++head) {
            m_kept.Heads.append(LineAt(m_model.index(head, 0)).Head);
        }
    }
    m_kept.Ids = m_model.IdsIn(rows);
    m_kept.Current = LineAt(currentIndex());
    m_kept.Column = qMax(0, currentIndex().column());
    if (m_kept.HasSelection()) {
        m_kept.Next = LineAt(Neighbour(currentIndex()));
    }
}

void cStagedTree::OpenGroups()
{
    for (int group = 0; group < m_model.rowCount(); ++group) {
        const QModelIndex head = m_model.index(group, 0);
        if (!m_model.IsHead(head)) {
            return;
        }
        if (!m_closed.contains(head.data(cStagedListModel::NameRole).toString())) {
            expand(head);
        }
    }
}

void cStagedTree::RestoreSelection()
{
    OpenGroups();
    QItemSelection selection = m_model.SelectionOf(m_kept.Ids);
    for (const QString& name : std::as_const(m_kept.Heads)) {
        const QModelIndex head = m_model.HeadNamed(name);
        if (head.isValid()) {
            selection.append(QItemSelectionRange(head, head.siblingAtColumn(cStagedListModel::ColumnCount - 1)));
        }
    }
    const QModelIndex current = IndexOf(m_kept.Current);
    const QModelIndex next = selection.isEmpty() ? IndexOf(m_kept.Next) : QModelIndex();
    m_isLost =
        selection.isEmpty() && !next.isValid() && (m_isLost || m_kept.HasSelection() || m_model.OpenIds().isEmpty());
    if (next.isValid()) {
        // Lines that were booked or deleted hand the selection on to one line, so that Enter works down the list.
        selectionModel()->setCurrentIndex(next.siblingAtColumn(m_kept.Column),
                                          QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        return;
    }
    if (current.isValid()) {
        selectionModel()->setCurrentIndex(current.siblingAtColumn(m_kept.Column), QItemSelectionModel::NoUpdate);
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (m_isLost && isAncestorOf(QApplication::focusWidget()) && !m_model.OpenIds().isEmpty()) {
        SelectIds({m_model.OpenIds().constFirst()});
        m_isLost = false;
    }
}

void cStagedTree::SelectIds(const QList<int>& ids)
{
    const QItemSelection selection = m_model.SelectionOf(ids);
    if (!selection.isEmpty()) {
        const QModelIndex first = selection.constFirst().topLeft();
        selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
        scrollTo(first);
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect); // nothing when a filter hides them
    setFocus();
}

void cStagedTree::OpenCategory(int id)
{
    const QModelIndex category = m_model.IndexOf(id).siblingAtColumn(cStagedListModel::Category);
    SelectIds({id});
    if (!category.isValid()) {
        return;
    }
    selectionModel()->setCurrentIndex(category, QItemSelectionModel::NoUpdate);
    scrollTo(category);
    edit(category);
    m_field = indexWidget(category);
    m_fieldId = id;
    Q_EMIT FieldChanged();
}

cCategoryBox* cStagedTree::CategoryField() const
{
    return state() == EditingState ? qobject_cast<cCategoryBox*>(indexWidget(currentIndex())) : nullptr;
}

bool cStagedTree::IsFieldEmpty() const
{
    const cCategoryBox* box = CategoryField();
    return box != nullptr && box->currentText().trimmed().isEmpty();
}

bool cStagedTree::LeaveField(bool isBooking)
{
    cCategoryBox* box = CategoryField();
    if (box != nullptr && !box->UnknownText().isEmpty()) {
        box->WantNew();
        if (!isBooking) {
            DropField(currentIndex());
        }
        return false;
    }
    if (state() == EditingState) {
        setFocus();
    }
    return true;
}

bool cStagedTree::DropField(const QModelIndex& cell)
{
    QWidget* field = indexWidget(cell);
    const bool isOwn = field != nullptr && field == m_field;
    if (field != nullptr) {
        closeEditor(field, QAbstractItemDelegate::NoHint);
    }
    return isOwn;
}

// A press in the list leaves the focus with an open field until it is known what was pressed.
bool cStagedTree::edit(const QModelIndex& cell, EditTrigger trigger, QEvent* event)
{
    const bool isEdited = cTypedCells::edit(cell, trigger, event);
    if (isEdited && state() == EditingState) {
        viewport()->setFocusProxy(indexWidget(cell));
    }
    return isEdited;
}

// An emptied field confirms nothing, and a text that names no category is asked about first.
void cStagedTree::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    const auto* box = editor == m_field ? qobject_cast<const cCategoryBox*>(editor) : nullptr;
    const bool isEnter = hint == QAbstractItemDelegate::SubmitModelCache;
    if (box != nullptr && isEnter && box->Path().isEmpty()) {
        return;
    }
    if (box != nullptr) {
        m_field = nullptr;
    }
    viewport()->setFocusProxy(this);
    QTreeView::closeEditor(editor, hint);
    if (isEnter) {
        setFocus(); // also where the field went when its row moved to another group
    }
    if (box != nullptr && isEnter) {
        Q_EMIT CategoryEntered(m_fieldId);
    }
    if (box != nullptr) {
        Q_EMIT FieldChanged();
    }
}

// The keys of the list go before those of the main window, where Del means entries of the book.
bool cStagedTree::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (key.key() == Qt::Key_Delete || (IsEnter(key) && key.modifiers() == Qt::NoModifier) || IsMenuKey(key)) {
            event->accept();
            return true;
        }
    }
    return QTreeView::event(event);
}

void cStagedTree::keyPressEvent(QKeyEvent* event)
{
    if (IsEnter(*event)) {
        if (state() != EditingState) { // else it comes from the open field, which has dealt with it
            Q_EMIT BookRequested();
        }
    } else if (event->key() == Qt::Key_Delete) {
        Q_EMIT DeleteRequested();
    } else if (IsMenuKey(*event)) {
        OpenMenuAtCurrent();
    } else {
        if (IsEditing(*event)) {
            GoToCategory();
        }
        QTreeView::keyPressEvent(event);
    }
}

void cStagedTree::GoToCategory()
{
    const QModelIndex cell = currentIndex();
    const QModelIndex category = cell.siblingAtColumn(cStagedListModel::Category);
    if (!cell.flags().testFlag(Qt::ItemIsEditable) && category.flags().testFlag(Qt::ItemIsEditable)) {
        selectionModel()->setCurrentIndex(category, QItemSelectionModel::NoUpdate);
    }
}

// The arrow of a group opens and closes it and leaves the selection alone. From a line that is selected already the
// mouse drags, from any other it selects as it goes.
void cStagedTree::mousePressEvent(QMouseEvent* event)
{
    const bool isSameRow = indexAt(event->pos()).siblingAtColumn(0) == currentIndex().siblingAtColumn(0);
    if (event->button() == Qt::RightButton && state() == EditingState && isSameRow) {
        return; // the menu is about what the open field holds
    }
    setFocus(Qt::MouseFocusReason);
    const QModelIndex head = indexAt(event->pos()).siblingAtColumn(0);
    const QRect line(0, visualRect(head).top(), viewport()->width(), visualRect(head).height());
    if (event->button() == Qt::LeftButton && m_model.IsHead(head)
        && modGroupHead::ArrowIn(line).contains(event->pos())) {
        setExpanded(head, !isExpanded(head));
        return;
    }
    setDragEnabled(selectionModel()->isSelected(indexAt(event->pos())));
    QTreeView::mousePressEvent(event);
}

// What is selected stays so until it is dropped, so the lines need not be named.
void cStagedTree::startDrag(Qt::DropActions /*actions*/)
{
    cCategoryDrop::Drag(*this, DragFormat, {});
}

void cStagedTree::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Keyboard) {
        OpenMenuAtCurrent();
    } else {
        Q_EMIT MenuRequested(event->globalPos());
    }
}

void cStagedTree::OpenMenuAtCurrent()
{
    const QRect cell = visualRect(currentIndex()).intersected(viewport()->rect());
    Q_EMIT MenuRequested(viewport()->mapToGlobal(cell.isEmpty() ? QPoint() : cell.bottomLeft()));
}

void cStagedTree::drawRow(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (m_model.IsHead(index)) {
        modGroupHead::Paint(*this, *painter, option, index, cStagedListModel::Amount);
    } else {
        QTreeView::drawRow(painter, option, index);
    }
}

void cStagedTree::paintEvent(QPaintEvent* event)
{
    QTreeView::paintEvent(event);
    if (m_model.rowCount() == 0) {
        modEmptyText::Paint(*viewport(), m_emptyTitle, m_emptyHint);
    }
}
