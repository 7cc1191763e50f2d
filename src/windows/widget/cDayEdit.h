#pragma once

#include <QDate>
#include <QLineEdit>

// A field for a day: typed in any form that the program understands ("3", "3.5.", "+7", "gestern"), stepped with the
// arrow keys, or picked in a calendar (Alt+Down or F4). Once left, it shows the day as dd.MM.yyyy; a text that is no
// day stays as it is.
class cDayEdit final : public QLineEdit
{
    Q_OBJECT

public:
    // Distances such as "+7" count from `today`.
    explicit cDayEdit(QDate today, QWidget* parent = nullptr);

    void SetDay(QDate day);

    // The day that the text means; invalid when it is empty or means none.
    [[nodiscard]] QDate Day() const;

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    // By typing, stepping or picking.
    void DayEdited();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void Pick(QDate day);
    void OpenCalendar();

    QDate m_today;
};
