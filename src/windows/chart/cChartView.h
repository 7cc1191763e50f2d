#pragma once

#include "views/chart/cChartData.h"
#include "windows/chart/cChartScene.h"

#include <QWidget>

#include <memory>

// Shows a chart. Parts answer to mouse and keys: arrow keys move between them, Enter is a click, Backspace goes one
// level up, Tab reaches the legend, where Space switches a series. What is under the pointer or has the focus is said
// in words.
class cChartView final : public QWidget
{
    Q_OBJECT

public:
    explicit cChartView(QWidget* parent = nullptr);
    ~cChartView() override;

    void SetData(const cChartData& chart);
    [[nodiscard]] const cChartData& Data() const { return m_data; }
    // The data without the series that the legend has switched off: what picture, table and files show.
    [[nodiscard]] cChartData ShownData() const;
    // The series of the data that stands at a place of the shown data; -1 for none.
    [[nodiscard]] int SeriesAt(int shown) const;

    // The part under a point of the widget.
    [[nodiscard]] std::optional<cChartPart> PartAt(QPointF position) const;
    [[nodiscard]] std::optional<cChartPart> CurrentPart() const { return m_state.Current; }
    [[nodiscard]] const cChartLayout& Layout() const; // of the present size

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void PartClicked(int series, int index); // what it means stands in the series' targets
    void BackRequested();                    // one level up
    void SeriesSwitched();                   // ShownData has changed

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void Hover(const std::optional<cChartPart>& part, QPoint position);
    void SetCurrent(const std::optional<cChartPart>& part);
    void SetLegend(int item);
    void MovePart(int seriesStep, int indexStep);
    void MoveAcross();
    void PressInLegend(int key);
    bool PressOnPart(int key);
    void Switch(int series);
    void Click(const cChartPart& part);
    void Say(const QString& text);
    void Invalidate();
    [[nodiscard]] bool Exists(const cChartPart& part) const;
    [[nodiscard]] std::optional<cChartPart> FirstPart() const;
    [[nodiscard]] cChartStyle Style() const;

    cChartData m_data;
    cChartState m_state;
    mutable std::unique_ptr<cChartLayout> m_layout; // null when it has to be made anew
};
