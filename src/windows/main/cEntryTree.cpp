#include "windows/main/cEntryTree.h"

#include "base/cText.h"
#include "views/list/cListLayout.h"
#include "views/sheet/cCellEdit.h"
#include "views/sheet/modRowDrag.h"
#include "windows/look/modGroupHead.h"
#include "windows/main/cCategoryDrop.h"
#include "windows/main/cCellEditing.h"
#include "windows/widget/cColumnFit.h"
#include "windows/widget/modClipboard.h"
#include "windows/widget/modEmptyText.h"

#include <QHeaderView>
#include <QMenu>
#include <QMouseEvent>

#include <algorithm>
#include <array>

namespace {

using eKind = cColumnFit::eKind;

constexpr int wordLetters = 11; // what is shown in a narrow window can be read there

const std::vector<cColumnFit::cColumn> columns{{14, eKind::Day},
                                               {19, eKind::Text, wordLetters, 2},
                                               {27, eKind::Text, wordLetters},
                                               {23, eKind::Text, wordLetters, 1},
                                               {30, eKind::Text, wordLetters},
                                               {18, eKind::Text, wordLetters, 3},
                                               {16, eKind::Amount},
                                               {16, eKind::Amount},
                                               {11, eKind::Text, 6, 4},
                                               {24},
                                               {18}};

// Tags stand in the description already, and most books have one payer.
const QList<int> hiddenAtFirst{cEntryListModel::Tags, cEntryListModel::Payer};

} // namespace

cEntryTree::cEntryTree(cEntryListModel& model, cCellEdit& cells, QWidget* parent)
    : QTreeView(parent),
      m_model(model),
      m_cells(cells)
{
    // Before the base class hears of it and forgets which line stands where.
    connect(&m_model, &QAbstractItemModel::modelAboutToBeReset, this, &cEntryTree::KeepSelection);
    setModel(&m_model);
    connect(new cCellEditing(*this, model, cells), &cCellEditing::Written, this, &cEntryTree::CellWritten);
    setRootIsDecorated(false); // heads of groups draw their own arrow, so that the dates stay in line
    setIndentation(0);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setSelectionMode(ExtendedSelection);
    setSortingEnabled(true);
    setAllColumnsShowFocus(true);
    setExpandsOnDoubleClick(false);
    setAccessibleName(cText::Tr("Liste der Einträge"));
    header()->setSectionsMovable(true);
    header()->setFirstSectionMovable(true);
    header()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header(), &QWidget::customContextMenuRequested, this,
            [this](const QPoint& at) { OpenColumnMenu(header()->mapToGlobal(at)); });
    connect(this, &QTreeView::clicked, this, [this](const QModelIndex& index) {
        if (m_model.EntryAt(index) == nullptr) {
            setExpanded(index.siblingAtColumn(0), !isExpanded(index.siblingAtColumn(0)));
        }
    });
    m_fit = new cColumnFit(*this, columns, cEntryListModel::Description);
    connect(&m_model, &QAbstractItemModel::modelReset, this, &cEntryTree::RestoreSelection);
    connect(this, &QTreeView::collapsed, this, &cEntryTree::KeepGroup);
    connect(this, &QTreeView::expanded, this, &cEntryTree::KeepGroup);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &cEntryTree::ReportSelection);
    SetDefaultLayout();
}

void cEntryTree::SetDefaultLayout()
{
    m_fit->SetLayout(std::nullopt);
    for (int column = 0; column < cEntryListModel::ColumnCount; ++column) {
        m_isShown.at(static_cast<std::size_t>(column)) = !hiddenAtFirst.contains(column);
    }
    ShowColumns();
    sortByColumn(cEntryListModel::Date, Qt::AscendingOrder);
}

void cEntryTree::ShowColumns()
{
    for (int column = 0; column < cEntryListModel::ColumnCount; ++column) {
        const bool hasContent = column != cEntryListModel::Balance || m_model.HasBalances();
        m_fit->SetShown(column, m_isShown.at(static_cast<std::size_t>(column)) && hasContent);
    }
    m_fit->Fit();
}

void cEntryTree::ShowColumn(int column, bool isShown)
{
    m_isShown.at(static_cast<std::size_t>(column)) = isShown;
    ShowColumns();
}

QString cEntryTree::LayoutText() const
{
    cListLayout layout = m_fit->Layout();
    for (cListLayout::cColumn& column : layout.Columns) {
        column.IsShown = m_isShown.at(static_cast<std::size_t>(column.Column)); // the balance may just have nothing
    }
    return layout.ToText();
}

void cEntryTree::SetLayoutText(const QString& text)
{
    SetDefaultLayout();
    const std::optional<cListLayout> layout = cListLayout::FromText(text, cEntryListModel::ColumnCount, hiddenAtFirst);
    if (!layout) {
        return;
    }
    m_fit->SetLayout(layout);
    for (const cListLayout::cColumn& column : layout->Columns) {
        m_isShown.at(static_cast<std::size_t>(column.Column)) = column.IsShown;
    }
    ShowColumns();
    sortByColumn(layout->SortColumn, layout->IsDescending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void cEntryTree::ShowColumnMenu()
{
    OpenColumnMenu(header()->mapToGlobal(header()->rect().bottomLeft()));
}

void cEntryTree::OpenColumnMenu(const QPoint& globalPosition)
{
    QMenu menu(this);
    for (int column = 0; column < cEntryListModel::ColumnCount; ++column) {
        QAction* action = menu.addAction(m_model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
        action->setCheckable(true);
        action->setChecked(m_isShown.at(static_cast<std::size_t>(column)));
        action->setEnabled(!action->isChecked() || std::count(m_isShown.begin(), m_isShown.end(), true) > 1);
        connect(action, &QAction::toggled, this, [this, column](bool isShown) { ShowColumn(column, isShown); });
    }
    menu.addSeparator();
    connect(menu.addAction(cText::Tr("Spalten auf den Anfang zurückstellen")), &QAction::triggered, this,
            &cEntryTree::SetDefaultLayout);
    menu.exec(globalPosition);
}

QList<int> cEntryTree::ShownColumns() const
{
    return m_fit->Shown();
}

void cEntryTree::Copy() const
{
    modClipboard::CopyLines(*this, ShownColumns(), cEntryListModel::GroupRole);
}

// From a line that is selected already the mouse drags, from any other it selects as it goes. What can only be read
// stays where it is.
void cEntryTree::mousePressEvent(QMouseEvent* event)
{
    setDragEnabled(!m_cells.IsReadOnly() && selectionModel()->isSelected(indexAt(event->pos())));
    QTreeView::mousePressEvent(event);
}

void cEntryTree::startDrag(Qt::DropActions /*actions*/)
{
    const QList<cEntryListModel::cKey> keys = SelectedKeys();
    if (!keys.isEmpty()) {
        cCategoryDrop::Drag(*this, modRowDrag::Format, modRowDrag::ToBytes(keys, m_model.ShownAccount()));
    }
}

void cEntryTree::SetEmptyText(const QString& title, const QString& hint)
{
    m_emptyTitle = title;
    m_emptyHint = hint;
    viewport()->update();
}

void cEntryTree::ScrollTo(QDate day)
{
    const QModelIndex row = m_model.IndexNear(day);
    if (row.isValid()) {
        selectionModel()->setCurrentIndex(row, QItemSelectionModel::NoUpdate); // the keys start there
        scrollTo(row, PositionAtCenter);
    } else if (!m_model.IsGrouped()) {
        scrollToBottom();
    }
}

void cEntryTree::KeepSelection()
{
    m_isRebuilding = true;
    m_current = m_model.KeyAt(currentIndex());
    m_next = m_model.KeyAt(FirstUnselected(currentIndex()));
    m_isCurrentInSight = viewport()->rect().intersects(visualRect(currentIndex()));
    m_selected = SelectedKeys();
    QModelIndex top = indexAt(QPoint());
    m_isBelowNothing = !top.parent().isValid();
    while (top.isValid() && m_model.EntryAt(top) == nullptr) {
        top = indexBelow(top); // the head of a group is not found again
    }
    m_top = m_model.KeyAt(top);
}

void cEntryTree::Select(const QList<cEntryListModel::cKey>& keys)
{
    const QModelIndexList rows = m_model.IndexesOf(keys);
    QItemSelection selection;
    for (const QModelIndex& row : rows) {
        selection.select(row, row.siblingAtColumn(cEntryListModel::ColumnCount - 1));
    }
    if (!rows.isEmpty()) {
        // Not the view's own: that looks at the keys held down, and Ctrl+Enter would add to the selection.
        selectionModel()->setCurrentIndex(rows.constFirst(), QItemSelectionModel::NoUpdate);
        selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
        scrollTo(rows.constFirst());
    }
}

void cEntryTree::GoTo(const QModelIndex& row)
{
    expand(row.parent());
    selectionModel()->setCurrentIndex(row, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(row, PositionAtCenter);
    setFocus();
}

QList<cEntryListModel::cKey> cEntryTree::SelectedKeys() const
{
    QList<cEntryListModel::cKey> keys;
    const QModelIndexList rows = selectionModel()->selectedRows();
    for (const QModelIndex& row : rows) {
        if (m_model.EntryAt(row) != nullptr) {
            keys.append(m_model.KeyAt(row));
        }
    }
    return keys;
}

// The line itself, or the first one below it that is not selected: it is there still when the selected ones are
// deleted.
QModelIndex cEntryTree::FirstUnselected(const QModelIndex& line) const
{
    QModelIndex below = line;
    while (below.isValid() && selectionModel()->isSelected(below)) {
        below = indexBelow(below);
    }
    return below;
}

// The keys go on from where they were; where the line on top is gone, another account was chosen perhaps, from its day
// on. Without a current line the view would take the first one when it next gets the
// focus, and jump to it.
void cEntryTree::RestoreCurrent()
{
    QModelIndex top = m_model.IndexesOf({m_top}).value(0);
    top = top.isValid() || !m_top.Day.isValid() ? top : m_model.IndexNear(m_top.Day);
    QModelIndex current = m_model.IndexesOf({m_current}).value(0);
    current = current.isValid() ? current : m_model.IndexesOf({m_next}).value(0);
    current = current.isValid() ? current : top;
    selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    if (top.isValid()) {
        const bool isFirst = top.row() == 0 && top.parent().isValid();
        scrollTo(isFirst && m_isBelowNothing ? top.parent() : top, PositionAtTop);
    }
    if (m_isCurrentInSight && current.isValid()) {
        scrollTo(current);
    }
}

void cEntryTree::RestoreSelection()
{
    OpenGroups();
    ShowColumns();
    QItemSelection selection;
    const QModelIndexList rows = m_model.IndexesOf(m_selected);
    for (const QModelIndex& row : rows) {
        selection.select(row, row.siblingAtColumn(cEntryListModel::ColumnCount - 1));
    }
    RestoreCurrent();
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    m_isRebuilding = false;
    ReportSelection();
}

// One by one before the view is laid out anew, which then happens only once; expandToDepth() moves all groups that
// follow for each that it opens.
void cEntryTree::OpenGroups()
{
    if (!m_model.IsGrouped()) {
        return;
    }
    if (m_groups.Grouping != m_model.Grouping()) {
        m_groups = {m_model.Grouping(), {}};
    }
    for (int row = 0; row < m_model.rowCount(); ++row) {
        const QModelIndex group = m_model.index(row, 0);
        setExpanded(group, !m_groups.Closed.contains(group.data(cEntryListModel::NameRole).toString()));
    }
}

void cEntryTree::KeepGroup(const QModelIndex& group)
{
    const QString name = group.data(cEntryListModel::NameRole).toString();
    m_groups.Closed.removeAll(name);
    if (!isExpanded(group)) {
        m_groups.Closed.append(name);
    }
}

void cEntryTree::SetGroupText(const QString& text)
{
    m_groups = cGroupLayout::FromText(text);
    OpenGroups();
}

void cEntryTree::ReportSelection()
{
    if (!m_isRebuilding) {
        Q_EMIT SelectionKeysChanged(SelectedKeys());
    }
}

void cEntryTree::drawRow(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (m_model.EntryAt(index) != nullptr) {
        QTreeView::drawRow(painter, option, index);
        return;
    }
    modGroupHead::Paint(*this, *painter, option, index, cEntryListModel::Amount);
}

void cEntryTree::paintEvent(QPaintEvent* event)
{
    QTreeView::paintEvent(event);
    if (m_model.rowCount() == 0) {
        modEmptyText::Paint(*viewport(), m_emptyTitle, m_emptyHint);
    }
}
