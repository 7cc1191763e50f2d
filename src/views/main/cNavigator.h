#pragma once

#include "views/main/modCommand.h"

#include <QDate>
#include <QString>

// Opens the windows that a command asks for.
class cNavigator
{
public:
    cNavigator() = default;
    cNavigator(const cNavigator&) = delete;
    cNavigator& operator=(const cNavigator&) = delete;
    virtual ~cNavigator() = default;

    // The editor for a new entry.
    virtual void OpenNewEntry() = 0;
    // The editor for the entry of this occurrence; asks first what is meant when it belongs to a series.
    virtual void OpenEntry(int entryId, QDate day) = 0;
    // The form for amount and day of one occurrence of a series, of which the user wants to type one first.
    enum class eCorrected { Amount, Day };
    virtual void OpenCorrection(int entryId, QDate day, eCorrected first) = 0;
    // Category and account management, with one of them selected: a category path, an account, or empty.
    virtual void OpenTemplates(const QString& path) = 0;

    // The window or dialog behind any other command.
    virtual void Open(modCommand::eId command) = 0;

    virtual void EndProgram() = 0;
};
