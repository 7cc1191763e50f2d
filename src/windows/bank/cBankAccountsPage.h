#pragma once

#include "windows/bank/cBankPage.h"

#include <QDate>
#include <QList>

class cBankSetup;
class cDayEdit;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;

// The accounts of the login: which of them are fetched, into which accounts of the book, and from which day on.
class cBankAccountsPage final : public cBankPage
{
    Q_OBJECT

public:
    cBankAccountsPage(cBankSetup& setup, QDate today, QWidget* parent = nullptr);

    void Enter() override;
    void Leave() override;
    [[nodiscard]] QWidget* First() override;

private:
    struct cRow
    {
        QCheckBox* IsChosen;
        QComboBox* Account;
        QLabel* Note;
    };

    void AddRow(int line);
    void ShowRow(int line);

    cBankSetup& m_setup;
    QWidget* m_list; // made anew with the rows
    QGridLayout* m_grid = nullptr;
    QList<cRow> m_rows;
    cDayEdit* m_first;
    QLabel* m_note;
};
