#pragma once

#include "model/cTemplateItem.h"

#include <QString>

class cDataAccess;
class cSettings;
class cUser;

// Changes to accounts and categories that touch entries, with the questions that go with them.
class cTemplateFlow
{
public:
    cTemplateFlow(cDataAccess& data, cSettings& settings, cUser& user)
        : m_data(data),
          m_settings(settings),
          m_user(user)
    {
    }

    // Asks for a new name and renames. The name that the account has afterwards.
    QString AskRenameAccount(const QString& oldName);

    // Renames an account. Where entries refer to it, asks whether they go along. False when nothing was changed.
    bool RenameAccount(const QString& oldName, const QString& newName);

    // Gives a category other names and moves its entries along. False when nothing was changed.
    bool RenameCategory(const cTemplateItem& category, const QString& newMain, const QString& newSub);

private:
    void MoveEntries(const QString& oldName, const QString& newName);
    void MoveBankAccounts(const QString& oldName, const QString& newName);

    cDataAccess& m_data;
    cSettings& m_settings;
    cUser& m_user;
};
