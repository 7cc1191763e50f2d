#include "windows/main/cCellEditing.h"

#include "views/sheet/cCellEdit.h"
#include "windows/main/cCellDelegate.h"
#include "windows/main/cEntryTree.h"
#include "windows/widget/modClipboard.h"

#include <QShortcut>

cCellEditing::cCellEditing(cEntryTree& tree, cEntryListModel& model, cCellEdit& cells)
    : QObject(&tree),
      m_tree(tree),
      m_model(model),
      m_cells(cells),
      m_delegate(new cCellDelegate(cells, this))
{
    m_tree.setItemDelegate(m_delegate);
    connect(m_delegate, &cEntryDelegate::TagClicked, &m_tree, &cEntryTree::TagClicked);
    m_tree.setEditTriggers(QAbstractItemView::NoEditTriggers); // a double click opens the entry
    auto* key = new QShortcut(Qt::Key_F2, &m_tree, nullptr, nullptr, Qt::WidgetShortcut);
    connect(key, &QShortcut::activated, this, [this] { Edit(m_tree.currentIndex()); });
    // Once the view is done with the field: storing may ask, and it rebuilds the list.
    connect(m_delegate, &QAbstractItemDelegate::closeEditor, this, &cCellEditing::Finish, Qt::QueuedConnection);
}

QList<int> cCellEditing::Columns() const
{
    QList<int> columns = modClipboard::ShownColumns(m_tree); // a column without room has no field
    columns.removeIf([](int column) { return !cCellEdit::IsEditable(column); });
    return columns;
}

void cCellEditing::Edit(const QModelIndex& cell)
{
    const QList<int> columns = Columns();
    if (m_model.EntryAt(cell) == nullptr || columns.isEmpty() || m_cells.IsReadOnly()) {
        return;
    }
    const cEntryListModel::cKey key = m_model.KeyAt(cell);
    int column = columns.contains(cell.column()) ? cell.column() : columns.first();
    if (!m_cells.Takes(key, column) && columns.contains(cEntryListModel::Amount)) {
        column = cEntryListModel::Amount;
    }
    if (const std::optional<QString> text = m_cells.Start(key, column)) {
        Open(cell.siblingAtColumn(column), *text, false);
    }
}

void cCellEditing::Open(const QModelIndex& cell, const QString& text, bool isTyped)
{
    m_delegate->Begin(text, isTyped);
    m_tree.selectionModel()->setCurrentIndex(cell, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    m_tree.scrollTo(cell);
    m_tree.edit(cell);
}

void cCellEditing::Finish()
{
    const std::optional<cCellDelegate::cTyped> typed = m_delegate->TakeTyped();
    if (!typed || !typed->Cell.isValid()) {
        return;
    }
    const cEntryListModel::cKey key = m_model.KeyAt(typed->Cell);
    const int column = typed->Cell.column();
    const int step = typed->Step.value_or(0);
    const cEntryListModel::cKey next = m_model.KeyAt(LineBeside(typed->Cell, step));
    const cCellEdit::eSaved saved = m_cells.Save(key, column, typed->Text);
    if (saved == cCellEdit::eSaved::Refused) {
        const QModelIndex line = m_model.IndexesOf({key}).value(0);
        if (line.isValid()) {
            Open(line.siblingAtColumn(column), typed->Text, true);
        }
        return;
    }
    if (saved == cCellEdit::eSaved::Saved) {
        Q_EMIT Written();
    }
    if (typed->Step) {
        GoOn(m_cells.SavedKey(), column, step, next);
    }
}

QModelIndex cCellEditing::LineBeside(const QModelIndex& line, int step) const
{
    QModelIndex beside = step == 0 ? QModelIndex() : line;
    do {
        beside = step > 0 ? m_tree.indexBelow(beside) : m_tree.indexAbove(beside);
    } while (beside.isValid() && m_model.EntryAt(beside) == nullptr);
    return beside;
}

// Behind the last cell of a line comes the first one of the line that stood below it while the field was open: what was
// typed may have moved the line itself, or a filter has taken it away.
void cCellEditing::GoOn(const cEntryListModel::cKey& key, int column, int step, const cEntryListModel::cKey& next)
{
    const QModelIndex line = m_model.IndexesOf({key}).value(0);
    const QList<int> columns = Columns();
    const qsizetype at = columns.indexOf(column) + step;
    const bool isInLine = at >= 0 && at < columns.size() && m_cells.Takes(key, columns.at(at));
    if (step != 0 && isInLine && line.isValid()) {
        Edit(line.siblingAtColumn(columns.at(at)));
        return;
    }
    QModelIndex beside = m_model.IndexesOf({next}).value(0);
    if (!beside.isValid() && line.isValid()) {
        beside = LineBeside(line, step);
    }
    if (step != 0 && beside.isValid()) {
        Edit(beside.siblingAtColumn(step > 0 ? columns.first() : columns.last()));
        return;
    }
    if (line.isValid()) {
        m_tree.selectionModel()->setCurrentIndex(line.siblingAtColumn(column),
                                                 QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        m_tree.scrollTo(line);
    }
    m_tree.setFocus();
}
