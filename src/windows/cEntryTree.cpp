#include "windows/cEntryTree.h"

#include "base/cText.h"
#include "views/cListLayout.h"
#include "windows/cEntryDelegate.h"
#include "windows/modEmptyText.h"

#include <QHeaderView>
#include <QMenu>

#include <array>

namespace {

// Widths in average characters of the font, so that they fit at every font size and scale.
constexpr std::array<int, cEntryListModel::ColumnCount> defaultWidths{13, 14, 28, 24, 34, 19, 16, 16};

} // namespace

cEntryTree::cEntryTree(cEntryListModel& model, QWidget* parent) : QTreeView(parent), m_model(model)
{
    setModel(&m_model);
    setItemDelegate(new cEntryDelegate(this));
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
    connect(&m_model, &QAbstractItemModel::modelAboutToBeReset, this, &cEntryTree::KeepSelection);
    connect(&m_model, &QAbstractItemModel::modelReset, this, &cEntryTree::RestoreSelection);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &cEntryTree::ReportSelection);
    SetDefaultLayout();
}

void cEntryTree::SetDefaultLayout()
{
    const int character = fontMetrics().averageCharWidth();
    for (int column = 0; column < cEntryListModel::ColumnCount; ++column) {
        header()->moveSection(header()->visualIndex(column), column);
        header()->setSectionHidden(column, false);
        header()->resizeSection(column, defaultWidths.at(static_cast<std::size_t>(column)) * character);
    }
    sortByColumn(cEntryListModel::Date, Qt::AscendingOrder);
}

QString cEntryTree::LayoutText() const
{
    cListLayout layout;
    for (int visual = 0; visual < header()->count(); ++visual) {
        const int column = header()->logicalIndex(visual);
        const bool isHidden = header()->isSectionHidden(column);
        layout.Columns.push_back({column, isHidden ? 0 : header()->sectionSize(column), !isHidden});
    }
    layout.SortColumn = header()->sortIndicatorSection();
    layout.IsDescending = header()->sortIndicatorOrder() == Qt::DescendingOrder;
    return layout.ToText();
}

void cEntryTree::SetLayoutText(const QString& text)
{
    SetDefaultLayout();
    const std::optional<cListLayout> layout = cListLayout::FromText(text, cEntryListModel::ColumnCount);
    if (!layout) {
        return;
    }
    int visual = 0;
    for (const cListLayout::cColumn& column : layout->Columns) {
        header()->moveSection(header()->visualIndex(column.Column), visual++);
        if (column.Width > 0) {
            header()->resizeSection(column.Column, column.Width);
        }
        header()->setSectionHidden(column.Column, !column.IsShown);
    }
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
        action->setChecked(!header()->isSectionHidden(column));
        const bool isLast = action->isChecked() && header()->hiddenSectionCount() == cEntryListModel::ColumnCount - 1;
        action->setEnabled(!isLast);
        connect(action, &QAction::toggled, this,
                [this, column](bool isShown) { header()->setSectionHidden(column, !isShown); });
    }
    menu.addSeparator();
    connect(menu.addAction(cText::Tr("Spalten auf den Anfang zurückstellen")), &QAction::triggered, this,
            &cEntryTree::SetDefaultLayout);
    menu.exec(globalPosition);
}

void cEntryTree::SetEmptyHint(const QString& hint)
{
    m_emptyHint = hint;
    viewport()->update();
}

void cEntryTree::ScrollTo(QDate day)
{
    const QModelIndex row = m_model.IndexNear(day);
    if (row.isValid()) {
        scrollTo(row, PositionAtCenter);
    } else if (!m_model.IsGrouped()) {
        scrollToBottom();
    }
}

void cEntryTree::KeepSelection()
{
    m_isRebuilding = true;
    m_current = m_model.KeyAt(currentIndex());
    m_selected = SelectedKeys();
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

void cEntryTree::RestoreSelection()
{
    expandToDepth(0);
    QItemSelection selection;
    const QModelIndexList rows = m_model.IndexesOf(m_selected);
    for (const QModelIndex& row : rows) {
        selection.select(row, row.siblingAtColumn(cEntryListModel::ColumnCount - 1));
    }
    const QModelIndexList current = m_model.IndexesOf({m_current});
    if (!current.isEmpty()) {
        selectionModel()->setCurrentIndex(current.constFirst(), QItemSelectionModel::NoUpdate);
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    m_isRebuilding = false;
    ReportSelection();
}

void cEntryTree::ReportSelection()
{
    if (!m_isRebuilding) {
        Q_EMIT SelectionKeysChanged(SelectedKeys());
    }
}

void cEntryTree::paintEvent(QPaintEvent* event)
{
    QTreeView::paintEvent(event);
    if (m_model.rowCount() == 0) {
        modEmptyText::Paint(*viewport(), cText::Tr("Keine Daten"), m_emptyHint);
    }
}
