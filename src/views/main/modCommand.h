#pragma once

#include <QString>
#include <QStringList>

#include <span>

class cSettingKey;

// The commands of the main window. Menus, tool bar and keys are built from this table, and all of them dispatch by
// number.
namespace modCommand {

enum eId : int {
    NewEntry = 100,
    EditEntry = 101,
    DeleteEntry = 102,
    ImportStatement = 103,
    Export = 104,
    Print = 105,
    PrintPreview = 106,
    Quit = 107,
    ChooseColumns = 108,
    Password = 109,
    ResetView = 110,
    MakeBackup = 111,
    RestoreBackup = 112,
    SwitchDatabase = 114,
    EditTemplates = 115,
    NewDatabase = 117,
    Undo = 118,
    Redo = 119,
    CorrectPeriod = 120,
    SkipPeriod = 121,
    BackupSettings = 122,
    Rules = 123,
    AccountStatement = 124,
    CheckBook = 125,
    BankLogins = 126,
    FetchTransactions = 127,
    CheckSeries = 128,
    Homepage = 200,
    About = 202,
    Questions = 203,
    Calculator = 204,
    CheckUpdates = 205,
    Search = 301,
    StartBalance = 304,
    National = 305,
    ViewSingle = 401,
    ViewFix = 402,
    ViewFuture = 403,
    ViewStart = 404,
    ViewAccountValues = 405,
    Manual = 510,
    AppearanceSystem = 511,
    AppearanceLight = 512,
    AppearanceDark = 513,
    ErrorLog = 514,
    Feedback = 515,
    Budget = 520,
    AddReceipt = 521,
    ShowReceipts = 522,
    CopyRows = 523,
    DuplicateToday = 524,
    DuplicateNextMonth = 525,
    ChangeMany = 526,
    SaveView = 527,
    SavedViews = 528,
    GoToDay = 529,
    People = 530,
    Settlement = 531,
    Reminders = 532,
};

enum eTrait : int {
    Plain = 0,
    InToolBar = 1,
    StartsGroup = 2,      // a line above it in the menu
    Writes = 4,           // not offered on a book that can only be read
    NeedsEntry = 8,       // works on the selected entries
    NeedsOccurrence = 16, // works on one selected occurrence of a series
    OneOf = 32            // of all in its submenu, one is checked
};

struct cCommand
{
    eId Id{};
    const char* Menu =
        nullptr; // German title of the menu, in the order of the table; without "&" its first letter opens it
    const char* Caption = nullptr;        // German, with "&" before the letter that opens it from the keyboard
    const char* Keys = nullptr;           // portable key sequences joined by "|"
    const char* Icon = nullptr;           // name of the picture; empty for none
    const cSettingKey* Setting = nullptr; // of the view switch that a check command turns; null for plain commands
    int Traits = 0;                       // of eTrait
    const char* Hint = nullptr;           // one sentence for status bar and tool tip
    const char* Submenu = nullptr;        // German title of the menu within the menu; null for none
};

[[nodiscard]] constexpr bool Has(const cCommand& command, eTrait trait)
{
    return (command.Traits & trait) != 0;
}

[[nodiscard]] std::span<const cCommand> All();

// Null for a number that no command has.
[[nodiscard]] const cCommand* Find(int id);

// The caption in the user's language, with "&" before its mnemonic and without.
[[nodiscard]] QString MenuText(const cCommand& command);
[[nodiscard]] QString PlainText(const cCommand& command);

[[nodiscard]] QStringList Keys(const cCommand& command);

} // namespace modCommand
