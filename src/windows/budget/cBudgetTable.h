#pragma once

#include <QTableView>

class QIdentityProxyModel;
class cBudgetModel;

// The grid of the budget: cells are left with arrows and Tab, typed into at once, emptied with Del, and copied and
// pasted as a table.
class cBudgetTable final : public QTableView
{
    Q_OBJECT

public:
    // `model` outlives the table.
    explicit cBudgetTable(cBudgetModel& model, QWidget* parent = nullptr);

    // The cell of the model that has the focus.
    [[nodiscard]] QModelIndex Current() const;
    void ShowColumn(int column); // brings it into sight, in the line that is current
    void FitColumns();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    bool focusNextPrevChild(bool next) override;

private:
    [[nodiscard]] QModelIndexList Chosen() const;
    void MoveDown();

    cBudgetModel& m_model;
    QIdentityProxyModel* m_look;
};
