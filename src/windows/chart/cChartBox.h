#pragma once

#include "views/chart/cChartData.h"

#include <QWidget>

class QLayout;
class QPushButton;
class QStackedWidget;
class QToolButton;
class cChartTable;
class cChartView;

// A chart with the table of the same figures behind it, and the buttons that switch, copy and save. This is what a page
// puts on its surface.
class cChartBox final : public QWidget
{
    Q_OBJECT

public:
    explicit cChartBox(QWidget* parent = nullptr);

    void SetData(const cChartData& chart);
    // What is shown at the moment: without the series that the legend has switched off. For saving and printing.
    [[nodiscard]] cChartData ShownData() const;
    [[nodiscard]] cChartView& View() { return *m_view; }
    void ShowTable(bool isTable);

Q_SIGNALS:
    void PartClicked(int series, int index); // counted as in the data that was set
    void BackRequested();
    void SaveRequested(); // hand ShownData to cChartSave

private:
    [[nodiscard]] QLayout* BuildBar();
    void ShowFigures();
    void ClickFigure(int series, int index);
    void CopyPicture();
    void CopyFigures() const;
    [[nodiscard]] QToolButton* AddButton(const QString& text, const QString& hint);

    QPushButton* m_back;
    QStackedWidget* m_pages;
    cChartView* m_view;
    cChartTable* m_table;
    QToolButton* m_switch = nullptr;
};
