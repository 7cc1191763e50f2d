#pragma once

#include <QDialog>

class QComboBox;
class QLabel;
class QLayout;
class QSpinBox;
class cBudgetGrid;
class cBudgetModel;

// The budget of a year in one grid.
class frmBudget final : public QDialog
{
    Q_OBJECT

public:
    // `budget` outlives the window.
    explicit frmBudget(cBudgetModel& budget, QWidget* parent = nullptr);

    void accept() override; // stores
    void reject() override; // asks about what was not stored

private:
    [[nodiscard]] QLayout* BuildSelectors();
    [[nodiscard]] QLayout* BuildActions();
    [[nodiscard]] QLayout* BuildButtons();
    [[nodiscard]] QLabel* BuildNote();
    void ShowYear(int year);
    void ShowMonths();

    cBudgetModel& m_budget;
    QSpinBox* m_year;
    QComboBox* m_month;
    cBudgetGrid* m_grid;
};
