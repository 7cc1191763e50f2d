#pragma once

#include "model/modPeriod.h"

#include <QWidget>

class cDayEdit;
class cMainModel;
class QComboBox;
class QLabel;
class QLineEdit;

// The selectors above the list: period with its two days, account, kind of entry, grouping, in a book
// with people the one who paid, and the text filter.
class cViewBar final : public QWidget
{
    Q_OBJECT

public:
    explicit cViewBar(cMainModel& model, QWidget* parent = nullptr);

    // Sets every selector to what the model shows, without telling the model about it.
    void ShowView();

private:
    void Build();
    void Connect();
    cDayEdit* MakeDay(const QString& name);
    void ShowDay(cDayEdit& edit, QDate day);

    cMainModel& m_model;
    QComboBox* m_period;
    cDayEdit* m_start;
    cDayEdit* m_end;
    QComboBox* m_account;
    QComboBox* m_type;
    QComboBox* m_grouping;
    QLabel* m_payerLabel;
    QComboBox* m_payer;
    QLineEdit* m_filter;
};
