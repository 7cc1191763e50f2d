#pragma once

#include "views/list/cEntryListModel.h"
#include "views/main/modCommand.h"

#include <QHash>
#include <QMainWindow>
#include <QString>
#include <QStringList>

class cAccountPanel;
class cBackBar;
class cDayJump;
class cEntryTree;
class cMainModel;
class cReminderBar;
class cSumBar;
class cViewBar;
class QAction;
class QLabel;
class QMenu;
class QSplitter;
class QTabWidget;
class QToolButton;

// The main window: menus, tool bar and keys from the command table, accounts at the left, the entry list with its
// selectors and sums, and pages for bank statements and for statistics.
class frmMain final : public QMainWindow
{
    Q_OBJECT

public:
    enum class ePage { Entries, Statements, Statistics, Overview }; // the numbers are stored

    explicit frmMain(cMainModel& model, QWidget* parent = nullptr);

    // Place and columns as they were; called once before the window is shown.
    void RestoreLayout();

    // Once the view was restored: brings the overview to the front, or the page that was there last where the user
    // wants that, scrolls the list to the current day and gives it the focus where it is in front.
    void ShowToday();
    // Brings the page to the front with which ShowToday begins, and reads nothing for it yet.
    void TakeStartPage();

    [[nodiscard]] QWidget& StatementsPage() { return *m_statements; } // with an empty layout, for whoever fills it
    [[nodiscard]] QWidget& StatisticsPage() { return *m_statistics; }
    [[nodiscard]] QWidget& OverviewPage() { return *m_overview; }
    [[nodiscard]] ePage Page() const;              // the one in front
    [[nodiscard]] QList<int> EntryColumns() const; // of the entry list, in the order on screen
    void SaveLayout();                             // place and columns; also done on closing

    void ShowEntry(const cEntryListModel::cKey& key); // selects it, where the list has it
    void CopyRows();                                  // the selected entries, to the clipboard
    void AskDay();                                    // opens the field for a day to which the list jumps
    [[nodiscard]] QString ColumnText() const;         // columns and sorting of the entry list
    void SetColumnText(const QString& text);
    [[nodiscard]] QMenu& MenuOf(modCommand::eId command) const; // the menu that holds it
    void ShowPage(ePage page);                                  // brings it to the front
    void ShowColumnMenu();
    void ShowFailureMark(bool isShown);     // in the status bar: the way to the error log after a failure
    void ShowReminder(const QString& text); // in the status bar; empty for none
    void AddToView(QMenu* menu);            // at the end of the menu "Ansicht"
    void Raise();                           // in front of other windows, also out of the task bar

Q_SIGNALS:
    void FilesDropped(const QStringList& paths);
    void ReminderClicked();
    void ReceiptsDropped(int entryId, const QStringList& paths); // on an entry of the list
    void Closing();                                              // place and columns have been saved
    void PageShown(frmMain::ePage page);                         // it came to the front
    // Onto an account, out of a list that shows them by the account `shown`; empty for all accounts.
    void RowsDropped(const QList<cEntryListModel::cKey>& rows, const QString& account, const QString& shown);
    void RowsRegrouped(const QList<cEntryListModel::cKey>& rows, const QString& category); // onto another group

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void BuildCommands();
    QMenu& MenuOf(const modCommand::cCommand& command, QHash<QString, QMenu*>& menus);
    void BuildPages();
    void BuildStatusBar();
    QWidget* BuildEntryPage();
    void Connect();
    [[nodiscard]] QWidget* WidgetOf(ePage page) const; // the entries for a number that no page has
    [[nodiscard]] QWidget* StartPage() const;
    void PageChanged();
    void ReadList();
    void ShowView();
    void ShowEntries();
    void ShowCommands();
    void ResetLayout();
    void Tell(const QString& text); // in the status bar, for a while
    void TakeUsualSize();
    void ShareWidth();
    void GoBack();

    cMainModel& m_model;
    QHash<int, QAction*> m_actions; // by command number
    QSplitter* m_splitter;
    QTabWidget* m_tabs;
    QWidget* m_entries = nullptr;
    QWidget* m_overview;
    QWidget* m_statements;
    QWidget* m_statistics;
    cAccountPanel* m_accounts;
    cBackBar* m_backBar;
    cViewBar* m_viewBar;
    QLabel* m_hint;
    cEntryTree* m_tree;
    cSumBar* m_sums;
    QLabel* m_database;
    QMenu* m_view = nullptr; // "Ansicht"
    cReminderBar* m_reminder;
    QString m_reminderText;
    QToolButton* m_failureMark;
    cDayJump* m_dayJump;
    bool m_isSplitByHand = false;
};
