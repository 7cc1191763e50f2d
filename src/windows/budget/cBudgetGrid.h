#pragma once

#include <QFrame>

class QGridLayout;
class cBudgetModel;
class cBudgetTable;

// The lines of the budget and below them their sum, which stays in sight while they are scrolled.
class cBudgetGrid final : public QFrame
{
    Q_OBJECT

public:
    // `model` outlives the grid.
    explicit cBudgetGrid(cBudgetModel& model, QWidget* parent = nullptr);

    [[nodiscard]] cBudgetTable& Lines() { return *m_lines; }
    void FitColumns();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void FollowColumns();
    void Align();
    void FitSum();

    cBudgetTable* m_lines;
    QFrame* m_rule;
    cBudgetTable* m_sum;
    QGridLayout* m_layout;
};
