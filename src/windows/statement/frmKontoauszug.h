#pragma once

#include <QDate>
#include <QDialog>

#include <vector>

class cReconcilePanel;
class cStatementListModel;
class cDayEdit;
class cSumBar;
class cSummaryText;
class QComboBox;
class QFrame;
class QHBoxLayout;
class QLayout;
class QLineEdit;
class QPushButton;
class QTreeView;

// The statement of a bank account: its rows with their balances, and what these are worth beside those of the bank.
class frmKontoauszug final : public QDialog
{
    Q_OBJECT

public:
    // `statement` outlives the window.
    explicit frmKontoauszug(cStatementListModel& statement, QWidget* parent = nullptr);

Q_SIGNALS:
    void EntryRequested(int entryId, QDate day);
    void PrintRequested();
    void PreviewRequested();
    void ExportRequested();
    // To cure a difference between bank and book; who does it calls cStatementListModel::Reload.
    void BookRequested(int rowId);
    void DeleteRequested(int entryId, QDate day);
    void ReconcileChanged(); // done by the window itself
    // The PDF statements of the account shown; who changes them calls cStatementListModel::Reload.
    void PapersRequested();
    void PapersDropped(const QStringList& paths);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void Build();
    QLayout* BuildFields();
    QHBoxLayout* BuildFinding();
    QLayout* BuildButtons();
    void Offer(); // the accounts and the periods
    void Connect();
    void ChoosePeriod();
    void ShowDays();
    void ShowRows(); // all around the list
    void GoToNewest();
    void ShowFinding();
    void ShowButtons();
    void OpenEntry();
    void Copy();
    [[nodiscard]] std::vector<int> SelectedRows() const; // all when none is selected

    cStatementListModel& m_statement;
    QComboBox* m_account;
    QComboBox* m_period;
    cDayEdit* m_start;
    cDayEdit* m_end;
    QLineEdit* m_filter;
    QFrame* m_mark; // beside the findings, in their colour
    cSummaryText* m_finding;
    QTreeView* m_tree;
    cReconcilePanel* m_differences;
    cSumBar* m_sums;
    QPushButton* m_entry;
    QPushButton* m_papers;
    QPushButton* m_copy;
    QPushButton* m_print;
    QPushButton* m_preview;
    QPushButton* m_export;
};
