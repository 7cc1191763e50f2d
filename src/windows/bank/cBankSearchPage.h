#pragma once

#include "model/bank/cBankInfo.h"
#include "windows/bank/cBankPage.h"

class cBankSetup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;

// The bank by name, code, BIC or IBAN; its address below "Erweitert".
class cBankSearchPage final : public cBankPage
{
    Q_OBJECT

public:
    explicit cBankSearchPage(cBankSetup& setup, QWidget* parent = nullptr);

    void Enter() override;
    void Leave() override;
    [[nodiscard]] QWidget* First() override;

private:
    [[nodiscard]] QWidget* BuildMore();
    void Search();
    void Choose();
    void ShowHint(const QString& text);

    cBankSetup& m_setup;
    QLineEdit* m_text;
    QListWidget* m_list;
    QLabel* m_hint;
    QCheckBox* m_more;
    QLineEdit* m_url;
    QComboBox* m_version;
    cBankInfoList m_banks; // as listed
};
