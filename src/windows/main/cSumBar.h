#pragma once

#include <QWidget>

class cFlowLayout;
class QLabel;
struct cSumTexts;

// The sums of the shown entries: count, start balances where there are any, income, expense, total.
class cSumBar final : public QWidget
{
    Q_OBJECT

public:
    explicit cSumBar(QWidget* parent = nullptr);

    void ShowSums(const cSumTexts& texts);

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
