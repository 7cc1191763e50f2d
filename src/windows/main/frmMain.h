#pragma once

#include "views/list/cEntryListModel.h"

#include <QHash>
#include <QMainWindow>
#include <QStringList>

class cAccountPanel;
class cBackBar;
class cEntryTree;
class cMainModel;
class cSumBar;
class cViewBar;
class QAction;
class QLabel;
class QSplitter;
class QTabWidget;
class QToolButton;

// The main window: menus, tool bar and keys from the command table, accounts at the left, the entry list with its
// selectors and sums, and pages for bank statements and for statistics.
class frmMain final : public QMainWindow
{
    Q_OBJECT

public:
    enum class ePage { Entries, Statements, Statistics };

    explicit frmMain(cMainModel& model, QWidget* parent = nullptr);

    // Place and columns as they were; called once before the window is shown.
    void RestoreLayout();

    // Once the view was restored: brings the page to the front that was there last, scrolls the list to the current day
    // and gives it the focus where it is in front.
    void ShowToday();

    [[nodiscard]] QWidget& StatementsPage() { return *m_statements; } // with an empty layout, for whoever fills it
    [[nodiscard]] QWidget& StatisticsPage() { return *m_statistics; }
    [[nodiscard]] ePage Page() const;              // the one in front
    [[nodiscard]] QList<int> EntryColumns() const; // of the entry list, in the order on screen
    void SaveLayout();                             // place and columns; also done on closing

    void ShowEntry(const cEntryListModel::cKey& key); // selects it, where the list has it
    void ShowPage(ePage page);                        // brings it to the front
    void ShowColumnMenu();
    void ShowFailureMark(bool isShown); // in the status bar: the way to the error log after a failure
    void Raise();                       // in front of other windows, also out of the task bar

Q_SIGNALS:
    void FilesDropped(const QStringList& paths);
    void Closing();                      // place and columns have been saved
    void PageShown(frmMain::ePage page); // it came to the front

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void BuildCommands();
    void BuildPages();
    void BuildStatusBar();
    QWidget* BuildEntryPage();
    void Connect();
    void ShowView();
    void ShowEntries();
    void ShowCommands();
    void ResetLayout();
    void TakeUsualSize();
    void ShareWidth();
    void GoBack();

    cMainModel& m_model;
    QHash<int, QAction*> m_actions; // by command number
    QSplitter* m_splitter;
    QTabWidget* m_tabs;
    QWidget* m_statements;
    QWidget* m_statistics;
    cAccountPanel* m_accounts;
    cBackBar* m_backBar;
    cViewBar* m_viewBar;
    QLabel* m_hint;
    cEntryTree* m_tree;
    cSumBar* m_sums;
    QLabel* m_database;
    QToolButton* m_failureMark;
    bool m_isSplitByHand = false;
};
