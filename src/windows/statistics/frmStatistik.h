#pragma once

#include "views/chart/cChartData.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QSplitter;
class QTabWidget;
class cChartPane;
class cPeriodPicker;
class cReportPane;
class cReportTree;
class cStatisticsChart;
class cStatisticsModel;

// The page of the main window for reports and charts.
class frmStatistik final : public QWidget
{
    Q_OBJECT

public:
    explicit frmStatistik(cStatisticsModel& model, QWidget* parent = nullptr);

    [[nodiscard]] QList<cChartData> ShownCharts() const; // without the series that are switched off

Q_SIGNALS:
    void PrintRequested();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QWidget* BuildReportPage();
    QWidget* BuildChartPage();
    QWidget* BuildSelectors();
    void BuildSaveMenu();
    void Connect();
    void AddChart(cStatisticsChart& chart, const QString& name, QSplitter& split);
    void ShowSelectors();
    void ShowReport();
    void SaveChart(cChartPane& pane);

    cStatisticsModel& m_model;
    QTabWidget* m_pages;
    QComboBox* m_account;
    QComboBox* m_type;
    cPeriodPicker* m_period;
    QCheckBox* m_byAmount;
    QCheckBox* m_gross;
    QPushButton* m_save;
    QPushButton* m_print;
    QLabel* m_hint; // what the user can do about an empty report
    cReportTree* m_tree;
    cReportPane* m_report;
    QList<cChartPane*> m_charts;
};
