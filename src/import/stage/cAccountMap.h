#pragma once

#include "model/cEntryItem.h"
#include "model/cImportEntry.h"
#include "model/cTemplateItem.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>

class cDataAccess;
class cSettings;
class cUser;

// Which account of the book a bank's account number belongs to. Kept in the settings "KTO:" + number.
class cAccountMap
{
public:
    cAccountMap(cDataAccess& data, cSettings& settings);

    // Name of the account; empty when the number was never assigned or its account is gone. Never asks.
    [[nodiscard]] QString AccountOf(const QString& number) const;
    // Of the bank at which a staged account has this number; empty when no statement has named it.
    [[nodiscard]] QString BankCodeOf(const QString& number) const;

    // All numbers with the accounts they belong to.
    [[nodiscard]] QList<std::pair<QString, QString>> Mapping() const;

    // The own account that a counterparty's details mean: the number itself, or IBAN and account number of the same
    // account. Empty when it is somebody else's.
    [[nodiscard]] QString OwnAccountOf(const QString& number, const QString& bankCode) const;

    // How many bank transactions wait, by account. Those whose number has no account, or one that is gone, stand under
    // the empty name.
    [[nodiscard]] QHash<QString, int> OpenByAccount() const;

    // Where the mapping is kept, with what else the user decided about bank transactions.
    [[nodiscard]] cSettings& Settings() const { return m_settings; }

    // The account to propose for a new number: one already known under its other form, one named like it, else the
    // first one of the group of the first that has no number yet. Empty when there is none.
    [[nodiscard]] QString Proposal(const QString& number) const;

    // Remembers the account for the number; an account that does not exist yet is added to the book, at the end
    // of the group with most accounts. False when the database refuses or the name is empty.
    [[nodiscard]] bool Assign(const QString& number, const QString& account);

    // The account of the number, asked from the user when it is new. Empty when the user gives up.
    [[nodiscard]] QString Ask(const QString& number, cUser& user);

    // The numbers of the list that no account is known for.
    [[nodiscard]] QStringList Unknown(const QStringList& numbers) const;

    // The account of the row's own number, and that of its counterparty when it is an own account too.
    [[nodiscard]] std::optional<cTemplateItem> getAssignedAccount(const cImportEntry& row) const;
    [[nodiscard]] std::optional<cTemplateItem> getAssignedAccountTo(const cImportEntry& row) const;
    // The entry that the row is assigned to.
    [[nodiscard]] std::optional<cEntryItem> getAssignedEntry(const cImportEntry& row) const;

private:
    [[nodiscard]] QString FreeAccount() const;
    [[nodiscard]] bool Exists(const QString& account) const;
    [[nodiscard]] QString Known(const QString& typed) const;

    cDataAccess& m_data;
    cSettings& m_settings;
};
