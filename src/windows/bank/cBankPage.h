#pragma once

#include <QWidget>

// A page of the assistant for bank logins.
class cBankPage : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    // Shows what is known by now, and takes over what was typed.
    virtual void Enter() = 0;
    virtual void Leave() = 0;
    // Where typing begins; null when nothing has to be typed.
    [[nodiscard]] virtual QWidget* First() = 0;
};
