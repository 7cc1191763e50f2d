#pragma once

#include "views/bank/cBankSetup.h"

#include <QDate>
#include <QDialog>
#include <QList>

class cBankPage;
class QLabel;
class QLayout;
class QPushButton;
class QStackedWidget;

// Leads through the set-up of a bank login, page by page. Accepted once the login is stored.
class frmBankAssistent final : public QDialog
{
    Q_OBJECT

public:
    // `setup` outlives the window.
    frmBankAssistent(cBankSetup& setup, QDate today, QWidget* parent = nullptr);

    // While a bank is being asked this ends the dialog with it; else it closes the window, after a question where
    // something was typed.
    void reject() override;

Q_SIGNALS:
    void LogRequested();

private:
    [[nodiscard]] QLayout* BuildButtons();
    void Next();
    void Back();
    void ShowPage();
    void ShowProblem();
    void SetBusy(bool isBusy);
    [[nodiscard]] cBankPage& Page() const;

    cBankSetup& m_setup;
    QStackedWidget* m_pages;
    QList<cBankPage*> m_order; // as ePage counts them
    QLabel* m_step;
    QLabel* m_problem;
    QLabel* m_words;
    QLabel* m_address;  // that the bank names another one
    QPushButton* m_log; // only where there is something to look into
    QPushButton* m_back;
    QPushButton* m_next;
    QPushButton* m_cancel;
};
