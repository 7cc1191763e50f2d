#pragma once

#include "model/modPeriod.h"

#include <QWidget>

class cFlowLayout;
class QComboBox;
class QLabel;
class QSpinBox;
struct cStatisticsPeriod;

// A period by its name; for the free one two months and a year can be chosen, for all others they show its days.
class cPeriodPicker final : public QWidget
{
    Q_OBJECT

public:
    explicit cPeriodPicker(QWidget* parent = nullptr);

    // Sets everything without telling anybody. `range`: the days of the period.
    void ShowPeriod(const cStatisticsPeriod& period, const modPeriod::cRange& range);

Q_SIGNALS:
    void PeriodChosen(const QString& name); // stored word
    void FirstMonthChosen(int month);       // from 1
    void LastMonthChosen(int month);
    void YearChosen(int year);

private:
    [[nodiscard]] QComboBox* MakeMonths(const QString& name);
    void Add(const QString& text, QWidget* field);

    cFlowLayout* m_layout;
    QComboBox* m_name;
    QComboBox* m_first;
    QComboBox* m_last;
    QSpinBox* m_year;
};
