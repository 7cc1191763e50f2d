#pragma once

#include "base/cUser.h"
#include "views/list/cEntryListModel.h"
#include "views/list/cEntrySelection.h"
#include "views/main/cAccountListModel.h"
#include "views/main/cViewDetour.h"
#include "views/main/cViewState.h"
#include "views/main/cWindowMemory.h"
#include "views/main/modAppearance.h"
#include "views/main/modCommand.h"
#include "views/main/modSavedView.h"
#include "views/sheet/cCellEdit.h"
#include "views/sheet/cEntryDuplicate.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <optional>

class cConfiguration;
class cDataAccess;
class cJournal;
class cNavigator;
class cSettingKey;
class cShell;
struct cBookTools;

// The main window without its widgets: what the user looks at, the lists that show it, and every command.
class cMainModel final : public QObject
{
    Q_OBJECT

public:
    // What the model works with; all of it outlives the model.
    struct cParts
    {
        cConfiguration& Configuration;
        cShell& Shell;
        cNavigator& Navigator;
        QString DatabasePath;
    };

    enum class eSwitch { On, Off };

    cMainModel(const cBookTools& tools, const cParts& parts, QObject* parent = nullptr);
    ~cMainModel() override;

    // Reads the view state from the settings and shows it. `isNewVersion`: another version of the program opened this
    // database last, or none yet, so the view starts afresh.
    void RestoreView(bool isNewVersion);
    void SaveView();
    void ResetView();   // without a question; Execute asks before it
    void RefreshView(); // loads the entries, adds up and shows them, writes the view state

    // The selectors. Each stores and refreshes; an unknown word is not taken.
    void ChoosePeriod(const QString& name);
    // Only while the free period is chosen. A day beyond the other one takes that along.
    void ChooseFreeRange(const modPeriod::cRange& range);
    void ChooseAccount(const QString& account); // empty: all accounts
    void ChooseType(const QString& type);
    void ChoosePayer(const QString& payer); // a choice of modPeople
    void ChooseGrouping(const QString& grouping);
    void TypeFilter(const QString& text);   // filters what is loaded, once typing pauses for an event loop turn
    void FilterByTag(const QString& tag);   // for this tag alone; takes such a filter away again
    [[nodiscard]] QStringList Tags() const; // of what is loaded, as they are written
    // Asks whether entries after today are to be shown, when the period holds nothing else. The caller refreshes.
    void OfferFuture(const QString& period);
    void ToggleView(const cSettingKey& key); // one of the five View... switches

    // Shows selected entries in place of the view, grouped by main category. None of it is stored; GoBack shows the
    // view as it was before the first selection.
    void ShowEntries(const cEntrySelection& selection);
    void GoBack();
    [[nodiscard]] bool IsSelection() const { return m_detour.IsOn(); }
    [[nodiscard]] QString SelectionText() const { return m_detour.Title(); } // empty without selection
    [[nodiscard]] QStringList ViewLines() const; // what the list shows, in words, for print and export

    // Before the view is restored, when something else is in sight: the list is read by ReadList or when it is asked
    // for.
    void PutOffList() { m_isPutOff = true; }
    [[nodiscard]] bool IsPutOff() const { return m_isPutOff; }
    // The page in front tells how things stand today, whatever the period of the list is: so do the balances beside it.
    void ShowToday(bool isShown);
    void PageRead(); // by what is in sight: balances that wait for it are shown
    // True when the list has been read now, because it was put off.
    bool ReadList();

    // One handler for menus, tool bar and keys. False for an unknown number.
    bool Execute(int command);
    [[nodiscard]] bool IsEnabled(int command) const;
    [[nodiscard]] bool IsChecked(const cSettingKey& key) const;
    [[nodiscard]] bool IsChecked(const modCommand::cCommand& command) const; // false for what has no check
    // The caption with its mnemonic; Undo and Redo name the step that they work on.
    [[nodiscard]] QString MenuText(int command) const;

    // The selected occurrences, given by the list.
    void SetSelection(const QList<cEntryListModel::cKey>& selection);
    [[nodiscard]] const QList<cEntryListModel::cKey>& Selection() const { return m_selection; }

    // Copies these entries to today or to the next month, and says what came of it (RowsMade, Told).
    void Duplicate(const QList<cEntryListModel::cKey>& keys, cEntryDuplicate::eDay day);

    // After these entries were changed at once: says so, and where they have gone. `stored`: the same ones as they are
    // called now.
    void ManyChanged(const QList<cEntryListModel::cKey>& keys, const QList<cEntryListModel::cKey>& stored);

    // What is typed into cells of a list, and what follows once it was stored.
    [[nodiscard]] cCellEdit& Cells() { return m_cells; }
    void CellWritten();

    // Keeps what the list shows under a name, and opens the kept views; the one that is to be shown. An account in them
    // follows when it is renamed.
    void KeepView(const QString& columns);
    [[nodiscard]] std::optional<cSavedView> ManageViews();
    // Shows a view that was kept under a name; what the book does not have any more becomes the first position of its
    // selector.
    void ShowView(const cViewState& view);

    // The category that lines dropped here are given; empty where nothing can be dropped.
    [[nodiscard]] QString DropCategory(const QModelIndex& line);

    // Deletes the entries of these occurrences after the questions that go with it.
    void Delete(const QList<cEntryListModel::cKey>& keys);

    // After entries or accounts changed elsewhere.
    void AccessChanged(); // the book can only be read from now on
    void BookChanged();
    void AccountRenamed(const QString& oldName, const QString& newName);
    // After another database was opened behind the same objects: shows it in its own view state.
    void BookSwitched(const QString& path, bool isNewVersion);
    // After staged rows came, went or were booked: their numbers stand beside the accounts.
    void StagedRowsChanged();

    // Starts the system's calculator, or says that there is none.
    void StartCalculator();

    // Renames an account with all its questions.
    void RenameAccount(const QString& oldName);

    [[nodiscard]] const cViewState& View() const { return m_view; }
    [[nodiscard]] modPeriod::cRange ShownRange() const; // the days that the date fields show
    [[nodiscard]] QDate Today() const;
    [[nodiscard]] bool IsFreePeriod() const;
    [[nodiscard]] QStringList Accounts() const; // "Alle Konten" first
    [[nodiscard]] QStringList People() const;   // none: nobody is asked who paid
    // Reads the list first where that was put off.
    [[nodiscard]] cEntryListModel& Entries();
    [[nodiscard]] cAccountListModel& AccountList() { return m_accounts; }

    // Texts beside the list.
    [[nodiscard]] cSumTexts SumTexts() const;
    [[nodiscard]] QString Hint() const;       // a quiet line above the list; empty for none
    [[nodiscard]] QString EmptyTitle() const; // why the list shows nothing
    [[nodiscard]] QString EmptyHint() const;  // what to do when the list shows nothing
    [[nodiscard]] QString DatabaseText() const;
    [[nodiscard]] QString WindowTitle() const; // the book's name first
    [[nodiscard]] QString BalancesTitle() const;
    [[nodiscard]] bool IsReadOnly() const;

    [[nodiscard]] cWindowMemory& Memory() { return m_memory; }

Q_SIGNALS:
    void ViewChanged();    // selectors, switches, hint
    void EntriesChanged(); // list and sums were rebuilt
    void BookRefreshed();  // the book itself may have changed, not only the view
    void LayoutReset();    // column layouts and window size were set back
    void SelectionChanged();
    void AppearanceChanged();
    void RowsMade(const QList<cEntryListModel::cKey>& keys); // new entries that want to be selected
    void Told(const QString& text);                          // a quiet word on what was done
    void StagedRowsReleased();                               // bank transactions may wait again, or be gone

private:
    void SwitchReminders();
    void ChooseAppearance(eAppearance appearance);
    [[nodiscard]] bool IsUnread() const; // the list is empty because it could not be read
    void LoadEntries();
    void ShowFilter();
    void TakeAccount();                           // one that the book has
    [[nodiscard]] cViewState BalanceView() const; // what the balances in the panel go by
    void RefreshAccounts();
    void AskResetView();
    void SkipPeriod();
    void StepThrough(bool (cJournal::*step)(), const QString& told);
    [[nodiscard]] QString StepName(int command) const;
    [[nodiscard]] const cEntryListModel::cKey& First() const { return m_selection.constFirst(); }
    void SetSwitch(const cSettingKey& key, eSwitch state);
    [[nodiscard]] std::optional<qint64> StartBalance(const cEntryQuery& query) const;

    const cBookTools& m_tools;
    cParts m_parts;
    cViewState m_view;
    cViewDetour m_detour;
    cEntryListModel m_entries;
    cAccountListModel m_accounts;
    cCellEdit m_cells;
    cWindowMemory m_memory;
    cTemplateItemList m_accountItems;
    bool m_showsToday = false;
    QDate m_balancesOf; // day of the balances up to today in the panel; invalid when they have to be added up anew
    QList<cEntryListModel::cKey> m_selection;
    bool m_isPutOff = false;         // nobody has looked at the list yet, so it was not read
    bool m_isSeriesSelected = false; // the one selected line belongs to a series
    QTimer tmrRefreshList;
    QTimer tmrRefreshAccounts;
    QTimer tmrSaveView;
};
