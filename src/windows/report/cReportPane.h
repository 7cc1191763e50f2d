#pragma once

#include <QWidget>

class cReportView;
class QLabel;
class QLineEdit;
class QToolButton;

// A report with the bar to search in it, which stays hidden until it is asked for.
class cReportPane final : public QWidget
{
    Q_OBJECT

public:
    explicit cReportPane(QWidget* parent = nullptr);

    [[nodiscard]] cReportView& View() { return *m_view; }
    void ShowFind(); // with what is selected
    void HideFind();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override; // keys of the search field

private:
    void BuildBar();
    void ShowCount();
    [[nodiscard]] QToolButton* AddButton(const QString& text, const QString& name);

    cReportView* m_view;
    QWidget* m_bar;
    QLineEdit* m_text;
    QLabel* m_count;
};
