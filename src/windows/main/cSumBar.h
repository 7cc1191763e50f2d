#pragma once

#include <QWidget>

class cFlowLayout;
class cMainModel;
class QLabel;

// The sums of the shown entries: count, start balances where there are any, income, expense, total.
class cSumBar final : public QWidget
{
    Q_OBJECT

public:
    struct cTexts
    {
        QString Count;
        QString Income;
        QString Expense;
        QString Total;
        QString Start{}; // start balances; empty: not shown
    };

    explicit cSumBar(QWidget* parent = nullptr);

    void ShowSums(const cTexts& texts);
    void ShowSums(const cMainModel& model);

private:
    struct cSum
    {
        QLabel* Name = nullptr;
        QLabel* Value = nullptr;
    };
    cSum AddSum(const QString& title);
    static void Show(const cSum& sum, const QString& text);

    cFlowLayout* m_layout;
    QLabel* m_count;
    cSum m_start;
    cSum m_income;
    cSum m_expense;
    cSum m_total;
};
