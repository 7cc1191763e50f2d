#pragma once

#include <QWidget>

class cFlowLayout;
class cMainModel;
class QLabel;

// The sums of the shown entries: count, income, expense, total.
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
    };

    explicit cSumBar(QWidget* parent = nullptr);

    void ShowSums(const cTexts& texts);
    void ShowSums(const cMainModel& model);

private:
    QLabel* AddSum(const QString& title);

    cFlowLayout* m_layout;
    QLabel* m_count;
    QLabel* m_income;
    QLabel* m_expense;
    QLabel* m_total;
};
