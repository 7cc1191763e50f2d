#pragma once

#include "model/cEntryItem.h"
#include "model/cImportEntry.h"
#include "model/cTemplateItem.h"

#include <QHash>
#include <QList>
#include <QSet>
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

    // The account to propose for a new number: one already known under its other form, one named like it, else the one
    // that name, kind, balance and entries speak for. Empty when there is none.
    [[nodiscard]] QString Proposal(const QString& number) const;
    // The account to propose for the rows of a file that names none.
    [[nodiscard]] QString ProposalFor(const cImportEntryList& rows) const;
    // The same, else a name for a new account, with what the bank calls it where that is known.
    [[nodiscard]] QString NameFor(const QString& number, const QString& product) const;

    // All accounts of the book that somebody may choose for a number, those that are open first.
    [[nodiscard]] QStringList Choices() const;
    // The number under which the rows of a file without one are staged, for what the user typed or chose: the number
    // itself, or that of the account of this name. An account without a number lends its name.
    [[nodiscard]] QString NumberMeant(const QString& typed) const;
    // Whether the book has an account of this name, be it in another letter case.
    [[nodiscard]] bool Has(const QString& name) const { return Exists(Known(name.trimmed())); }
    // An account whose name was given in the place of a number is the account of this "number". The numbers that got
    // theirs.
    QStringList AssignNames(const QStringList& numbers);

    // Remembers the account for the number; an account that does not exist yet is added to the book, at the end
    // of the group with most accounts. False when the database refuses or no account can be called so.
    [[nodiscard]] bool Assign(const QString& number, const QString& account);

    // The account of the number, asked from the user when it is new. Empty when the user gives up. `product` as above.
    [[nodiscard]] QString Ask(const QString& number, cUser& user, const QString& product = {});

    // The numbers of the list that no account is known for.
    [[nodiscard]] QStringList Unknown(const QStringList& numbers) const;

    // The account of the row's own number, and that of its counterparty when it is an own account too.
    [[nodiscard]] std::optional<cTemplateItem> getAssignedAccount(const cImportEntry& row) const;
    [[nodiscard]] std::optional<cTemplateItem> getAssignedAccountTo(const cImportEntry& row) const;
    // The entry that the row is assigned to.
    [[nodiscard]] std::optional<cEntryItem> getAssignedEntry(const cImportEntry& row) const;

private:
    [[nodiscard]] QSet<QString> WithNumber() const; // the accounts that have one
    [[nodiscard]] bool Exists(const QString& account) const;
    [[nodiscard]] QString Known(const QString& typed) const;

    cDataAccess& m_data;
    cSettings& m_settings;
};
