#pragma once

#include <QDate>
#include <QDialog>

class cBankFetch;
class cDayEdit;
class cFetchTree;
class QComboBox;
class QFormLayout;
class QLabel;
class QProgressBar;
class QPushButton;
class QWidget;

// Fetches the transactions of the bank accounts and shows what came of each.
class frmAbruf final : public QDialog
{
    Q_OBJECT

public:
    // `fetch` outlives the window.
    explicit frmAbruf(cBankFetch& fetch, QWidget* parent = nullptr);

    void SetFrom(QDate day); // fetches from this day to today
    void Start();            // what the button does
    void reject() override;

Q_SIGNALS:
    void LogRequested();
    void BanksRequested(); // there is none yet

private:
    void BuildRange(class QFormLayout& form);
    [[nodiscard]] QWidget* BuildButtons();
    void Connect();
    void ShowRange();
    void ShowStep(const QString& text);
    void ShowDetails();
    void ShowRunning(bool isRunning);

    cBankFetch& m_fetch;
    cFetchTree* m_accounts;
    QComboBox* m_range;
    QWidget* m_days = nullptr;
    cDayEdit* m_from;
    cDayEdit* m_to;
    QLabel* m_details;
    QLabel* m_step;
    QProgressBar* m_busy;
    QPushButton* m_start = nullptr;
    QPushButton* m_review = nullptr;
    QPushButton* m_log = nullptr;
    QPushButton* m_close = nullptr;
    bool m_isRunning = false;
};
