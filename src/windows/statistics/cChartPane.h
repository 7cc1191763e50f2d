#pragma once

#include <QWidget>

class QCheckBox;
class QComboBox;
class cChartBox;
class cPeriodPicker;
class cStatisticsChart;

// A chart with what is chosen for it: which one, its period, what is laid beside it, and how far it looks ahead.
class cChartPane final : public QWidget
{
    Q_OBJECT

public:
    // `name` tells the two panes apart for who cannot see where they stand.
    cChartPane(cStatisticsChart& model, const QString& name, QWidget* parent = nullptr);

    [[nodiscard]] cChartBox& Box() { return *m_box; }

Q_SIGNALS:
    void PartClicked(int series, int index);
    void SaveRequested();

private:
    void Build();
    void Connect();
    void ShowChart();
    void Compare(int index);

    cStatisticsChart& m_model;
    QComboBox* m_kind;
    QComboBox* m_compare;
    cPeriodPicker* m_period;
    QComboBox* m_forecast;
    QCheckBox* m_average;
    cChartBox* m_box;
};
