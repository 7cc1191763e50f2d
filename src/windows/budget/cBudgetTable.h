#pragma once

#include "windows/widget/cTypedCells.h"

#include <QTableView>

class QSortFilterProxyModel;
class cBudgetModel;

// The lines of the budget: cells are left with arrows and Tab, typed into at once, emptied with Del, and copied and
// pasted as a table.
class cBudgetTable final : public cTypedCells<QTableView>
{
    Q_OBJECT

public:
    enum class ePart { Categories, Sum };

    // `model` outlives the table.
    cBudgetTable(cBudgetModel& model, ePart part, QWidget* parent = nullptr);

    // The cell of the model that has the focus.
    [[nodiscard]] QModelIndex Current() const;
    void Begin(); // makes the first category current
    // Pixels that the column's texts and its headline need.
    [[nodiscard]] int ContentWidth(int column) const;
    void SetHeadWidth(int width); // of the names of the lines

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    bool focusNextPrevChild(bool next) override;

private:
    [[nodiscard]] QModelIndexList Chosen() const;
    void MoveDown();

    cBudgetModel& m_model;
    ePart m_part;
    QSortFilterProxyModel* m_lines;
};
