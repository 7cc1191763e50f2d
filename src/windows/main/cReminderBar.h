#pragma once

#include <QToolButton>

// One line of the status bar that can be clicked. What has no room is cut; the tooltip has all of it.
class cReminderBar final : public QToolButton
{
    Q_OBJECT

public:
    explicit cReminderBar(QWidget* parent = nullptr);

    void ShowText(const QString& text); // empty: nothing to be seen

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void Cut();
    [[nodiscard]] int Frame() const; // what the button needs beside its text

    QString m_text;
};
