#pragma once

#include "windows/bank/cBankPage.h"

class cBankSetup;
class QLabel;
class QLineEdit;

// The login at the bank, and the registration of the program without which no bank answers.
class cBankLoginPage final : public cBankPage
{
    Q_OBJECT

public:
    explicit cBankLoginPage(cBankSetup& setup, QWidget* parent = nullptr);

    void Enter() override;
    void Leave() override;
    [[nodiscard]] QWidget* First() override;

private:
    cBankSetup& m_setup;
    QLabel* m_bank;
    QLabel* m_userLabel;
    QLineEdit* m_user;
    QLabel* m_fixedUser; // of a login that is set up already
    QLineEdit* m_url;    // of a login that is set up already
    QLineEdit* m_product;
};
