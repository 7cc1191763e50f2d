#pragma once

// Opens the windows that a command asks for.
class cNavigator
{
public:
    cNavigator() = default;
    cNavigator(const cNavigator&) = delete;
    cNavigator& operator=(const cNavigator&) = delete;
    virtual ~cNavigator() = default;

    // The editor for an entry; 0 opens it for a new one.
    virtual void OpenEntryEditor(int entryId) = 0;

    // Lets the user choose statement files and shows what came of them.
    virtual void OpenImport() = 0;

    // Lets the user choose the columns of the entry list.
    virtual void OpenColumnChooser() = 0;

    virtual void EndProgram() = 0;
};
