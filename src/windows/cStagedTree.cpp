#include "windows/cStagedTree.h"

#include "base/cText.h"
#include "views/cListLayout.h"
#include "views/cStagedListModel.h"
#include "windows/modEmptyText.h"

#include <QHeaderView>
#include <QKeyEvent>

#include <array>

namespace {

// Widths in average characters of the font, so that they fit at every font size and scale.
constexpr std::array<int, cStagedListModel::ColumnCount> defaultWidths{10, 13, 26, 24, 14, 14, 26, 13, 22};
constexpr int leastPurpose = 16;

bool IsEnter(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

cStagedTree::cStagedTree(cStagedListModel& model, QWidget* parent) : QTreeView(parent), m_model(model)
{
    setModel(&m_model);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(false); // the cell with the focus is the one that F2 edits
    setSelectionMode(ExtendedSelection);
    setSelectionBehavior(SelectRows);
    setEditTriggers(DoubleClicked | EditKeyPressed);
    setSortingEnabled(true);
    setAccessibleName(cText::Tr("Liste der Bankumsätze"));
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(true);
    header()->setFirstSectionMovable(true);
    connect(header(), &QHeaderView::sectionResized, this, [this](int column) {
        if (column != cStagedListModel::Purpose) {
            FitPurpose();
        }
    });
    connect(&m_model, &QAbstractItemModel::modelAboutToBeReset, this, &cStagedTree::KeepSelection);
    connect(&m_model, &QAbstractItemModel::modelReset, this, &cStagedTree::RestoreSelection);
    SetLayoutText({});
}

QList<int> cStagedTree::SelectedIds() const
{
    QList<int> ids;
    const QModelIndexList rows = selectionModel()->selectedRows();
    for (const QModelIndex& row : rows) {
        ids.append(m_model.IdAt(row));
    }
    return ids;
}

void cStagedTree::SetEmptyText(const QString& title, const QString& hint)
{
    m_emptyTitle = title;
    m_emptyHint = hint;
    viewport()->update();
}

QString cStagedTree::LayoutText() const
{
    cListLayout layout;
    for (int visual = 0; visual < header()->count(); ++visual) {
        const int column = header()->logicalIndex(visual);
        const bool isFitted = column == cStagedListModel::Purpose;
        layout.Columns.push_back({column, isFitted ? 0 : header()->sectionSize(column), true});
    }
    layout.SortColumn = header()->sortIndicatorSection();
    layout.IsDescending = header()->sortIndicatorOrder() == Qt::DescendingOrder;
    return layout.ToText();
}

void cStagedTree::SetLayoutText(const QString& text)
{
    const int character = fontMetrics().averageCharWidth();
    const cListLayout layout = cListLayout::FromText(text, cStagedListModel::ColumnCount).value_or(cListLayout());
    m_isFitting = true;
    for (int column = 0; column < cStagedListModel::ColumnCount; ++column) {
        header()->moveSection(header()->visualIndex(column), column);
        header()->resizeSection(column, defaultWidths.at(static_cast<std::size_t>(column)) * character);
    }
    int visual = 0;
    for (const cListLayout::cColumn& column : layout.Columns) {
        header()->moveSection(header()->visualIndex(column.Column), visual++);
        if (column.Width > 0) {
            header()->resizeSection(column.Column, column.Width);
        }
    }
    m_isFitting = false;
    FitPurpose();
    const bool isStored = !layout.Columns.empty();
    sortByColumn(isStored ? layout.SortColumn : int{cStagedListModel::Date},
                 layout.IsDescending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void cStagedTree::FitPurpose()
{
    if (m_isFitting) {
        return;
    }
    const int others = header()->length() - header()->sectionSize(cStagedListModel::Purpose);
    const int least = leastPurpose * fontMetrics().averageCharWidth();
    m_isFitting = true;
    header()->resizeSection(cStagedListModel::Purpose, qMax(least, viewport()->width() - others));
    m_isFitting = false;
}

void cStagedTree::KeepSelection()
{
    m_selected = SelectedIds();
    m_current = m_model.IdAt(currentIndex());
    m_currentRow = currentIndex().row();
}

void cStagedTree::RestoreSelection()
{
    const QModelIndexList rows = m_model.IndexesOf(m_selected);
    const bool isGone = rows.isEmpty() && m_selected.size() == 1 && m_currentRow >= 0;
    if (isGone && m_model.rowCount() > 0) {
        // A single row that was booked or deleted hands the selection on, so that Enter works down the list.
        setCurrentIndex(m_model.index(qMin(m_currentRow, m_model.rowCount() - 1), 0));
        return;
    }
    const QModelIndexList current = m_model.IndexesOf({m_current});
    if (!current.isEmpty()) {
        selectionModel()->setCurrentIndex(current.constFirst(), QItemSelectionModel::NoUpdate);
    }
    Select(rows);
}

void cStagedTree::Select(const QModelIndexList& rows)
{
    QItemSelection selection;
    for (const QModelIndex& row : rows) {
        selection.select(row, row.siblingAtColumn(cStagedListModel::ColumnCount - 1));
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

void cStagedTree::SelectIds(const QList<int>& ids)
{
    const QModelIndexList rows = m_model.IndexesOf(ids);
    if (!rows.isEmpty()) {
        selectionModel()->setCurrentIndex(rows.constFirst(), QItemSelectionModel::NoUpdate);
        Select(rows);
        scrollTo(rows.constFirst());
    }
    setFocus();
}

// The keys of the list go before those of the main window, where Del means entries of the book.
bool cStagedTree::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (key.key() == Qt::Key_Delete || IsEnter(key)) {
            event->accept();
            return true;
        }
    }
    return QTreeView::event(event);
}

void cStagedTree::keyPressEvent(QKeyEvent* event)
{
    if (IsEnter(*event)) {
        Q_EMIT BookRequested();
    } else if (event->key() == Qt::Key_Delete) {
        Q_EMIT DeleteRequested();
    } else {
        QTreeView::keyPressEvent(event);
    }
}

void cStagedTree::paintEvent(QPaintEvent* event)
{
    QTreeView::paintEvent(event);
    if (m_model.rowCount() == 0) {
        modEmptyText::Paint(*viewport(), m_emptyTitle, m_emptyHint);
    }
}

void cStagedTree::resizeEvent(QResizeEvent* event)
{
    QTreeView::resizeEvent(event);
    FitPurpose();
}
