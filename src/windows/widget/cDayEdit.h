#pragma once

#include <QDate>
#include <QLineEdit>

// A field for a day: typed in any form that the program understands ("3", "3.5.", "+7", "gestern"), stepped with the
// arrow keys, or picked in a calendar (Alt+Down or F4). Once left, it shows the day as all texts do; a text that is no
// day stays as it is, in the colours of a field that cannot be understood.
class cDayEdit final : public QLineEdit
{
    Q_OBJECT

public:
    // Distances such as "+7" count from `today`.
    explicit cDayEdit(QDate today, QWidget* parent = nullptr);

    void SetDay(QDate day);

    // The day that the text means; invalid when it is empty or means none.
    [[nodiscard]] QDate Day() const;
    [[nodiscard]] bool IsReadable() const; // a day, or no text at all
    // The day that was set or told last: other than Day() it is not lost to a text that is still being typed.
    [[nodiscard]] QDate Chosen() const { return m_chosen; }

    // A field that only shows a day has no calendar and no hints.
    void SetReadOnly(bool isReadOnly);

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    // Chosen() has changed: another day was stepped to, picked, confirmed with Enter, or left; or the field was
    // emptied.
    void DayChosen();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void Show(QDate day);
    void Pick(QDate day);
    void OpenCalendar();
    void TellChosen();

    QDate m_today;
    QDate m_chosen;
    QDate m_shownDay; // what m_shownText means, also when another form of days was chosen since
    QString m_shownText;
    QAction* m_calendar;
};
