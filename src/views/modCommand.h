#pragma once

#include <QString>
#include <QStringList>

#include <span>

// The commands of the main window. Menus, tool bar and keys are built from this table, and all of them dispatch by
// number.
namespace modCommand {

enum eId : int {
    NewEntry = 100,
    EditEntry = 101,
    DeleteEntry = 102,
    ImportStatement = 103,
    Quit = 107,
    ChooseColumns = 108,
    ResetView = 110,
    Calculator = 204,
    ViewSingle = 401,
    ViewFix = 402,
    ViewFuture = 403,
    ViewStart = 404,
    ViewAccountValues = 405,
};

struct cCommand
{
    eId Id;
    const char* Menu;     // German title of the menu, in the order of the table
    const char* Caption;  // German, for menu and tool bar
    const char* Mnemonic; // the caption's letter that opens it from the keyboard
    const char* Keys;     // portable key sequences joined by "|"
    const char* Icon;     // name of the picture; empty for none
    const char* Setting;  // key of the view switch that a check command turns; empty for plain commands
    bool IsInToolBar;
    bool Writes;      // not offered on a book that can only be read
    const char* Hint; // one sentence for status bar and tool tip
};

[[nodiscard]] std::span<const cCommand> All();

// Null for a number that no command has.
[[nodiscard]] const cCommand* Find(int id);

// The caption in the user's language with "&" before its mnemonic.
[[nodiscard]] QString MenuText(const cCommand& command);

[[nodiscard]] QStringList Keys(const cCommand& command);

} // namespace modCommand
