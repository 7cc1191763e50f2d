#pragma once

#include "views/chart/cChartTableModel.h"

#include <QTableView>

// The figures of a chart as a list: for those who want to read them, and for screen readers.
class cChartTable final : public QTableView
{
    Q_OBJECT

public:
    explicit cChartTable(QWidget* parent = nullptr);

    void SetData(const cChartData& chart);
    [[nodiscard]] const cChartTableModel& Figures() const { return m_model; }

Q_SIGNALS:
    void PartClicked(int series, int index); // double click or Enter on a value

private:
    void FitColumns();

    cChartTableModel m_model;
};
