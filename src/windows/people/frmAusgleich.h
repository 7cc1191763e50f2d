#pragma once

#include <QDialog>

class cPeriodPicker;
class cReportPane;
class cSettlementModel;
class QLabel;
class QLayout;

// Who owes whom, as a report for a period.
class frmAusgleich final : public QDialog
{
    Q_OBJECT

public:
    // `model` outlives the window.
    explicit frmAusgleich(cSettlementModel& model, QWidget* parent = nullptr);

    void Refresh(); // after the people have changed

Q_SIGNALS:
    void PrintRequested();
    void PeopleRequested();

private:
    [[nodiscard]] QLayout* BuildPeriod();
    [[nodiscard]] QLayout* BuildButtons();
    void ShowReport();

    cSettlementModel& m_model;
    cPeriodPicker* m_period;
    QLabel* m_hint;
    cReportPane* m_report;
};
