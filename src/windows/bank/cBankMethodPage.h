#pragma once

#include "windows/bank/cBankPage.h"

class cBankSetup;
class QComboBox;
class QLabel;

// TAN procedure and TAN medium.
class cBankMethodPage final : public cBankPage
{
    Q_OBJECT

public:
    explicit cBankMethodPage(cBankSetup& setup, QWidget* parent = nullptr);

    void Enter() override;
    void Leave() override;
    [[nodiscard]] QWidget* First() override;

private:
    void ShowMedia();

    cBankSetup& m_setup;
    QComboBox* m_method;
    QLabel* m_mediumLabel;
    QComboBox* m_medium;
};
