#pragma once

#include <QFrame>
#include <QSet>

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
    void FitColumns(); // to what stands in them; those that somebody has drawn keep their width

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class eFit { Exact, Grow };

    void FollowColumns();
    void Fit(eFit fit);
    void ColumnResized(int column, int width);
    void Align();
    void FitSum();

    cBudgetTable* m_lines;
    QFrame* m_rule;
    cBudgetTable* m_sum;
    QGridLayout* m_layout;
    QSet<int> m_drawn; // columns that have a width of somebody's choice
    bool m_isFitting = false;
};
