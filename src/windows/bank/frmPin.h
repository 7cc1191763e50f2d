#pragma once

#include "base/cBankUser.h"

#include <QDialog>

#include <utility>

class QLineEdit;

// Asks for the PIN of a bank.
class frmPin final : public QDialog
{
    Q_OBJECT

public:
    explicit frmPin(const cPinQuestion& question, QWidget* parent = nullptr);

    // What was typed, once the window was accepted; can be taken once.
    [[nodiscard]] cSecret TakePin() { return std::move(m_pin); }

    void done(int result) override;

private:
    QLineEdit* m_field;
    cSecret m_pin;
};
