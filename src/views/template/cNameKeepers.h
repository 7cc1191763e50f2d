#pragma once

#include <QString>

class cDataAccess;
class cSettings;

// What keeps names of accounts and paths of categories in the settings: the bank's numbers, the user's own rules, what
// was chosen for open rows, the accounts last shown, the views under a name. It follows when a name changes. All
// functions are false when the database refuses.
class cNameKeepers
{
public:
    cNameKeepers(cDataAccess& data, cSettings& settings) : m_data(data), m_settings(settings) {}

    // Follows from now on every name that loses characters because its definition is saved. Both are those of the
    // program's open book and live as long as it.
    static void Watch(cDataAccess& data, cSettings& settings);

    [[nodiscard]] bool RenameAccount(const QString& oldName, const QString& newName);
    // The account is gone, and its entries are in another one: rules and views follow them.
    [[nodiscard]] bool JoinAccount(const QString& oldName, const QString& newName);
    [[nodiscard]] bool RenameCategory(const QString& oldPath, const QString& newPath);
    // The category is gone, and its entries are in another one: rules and choices for open rows follow them.
    [[nodiscard]] bool JoinCategory(const QString& oldPath, const QString& newPath);

private:
    [[nodiscard]] bool MoveShares(const QString& oldName, const QString& newName); // who has what part in the account

    cDataAccess& m_data;
    cSettings& m_settings;
};
