#pragma once

#include "model/bank/cBankState.h"

#include <QDate>
#include <QList>
#include <QString>

#include <optional>
#include <utility>

class cSettingKey;
struct cBookTools;
struct cOnlineAccount;

// The bank logins of a book. A login is known by bank code and user ID, so that two people can have theirs at one bank.
// Table `account` has a row for each account that is fetched; what else a dialog needs lies in the settings "HBCIVBLZ"
// with the bank code. PIN and TAN are nowhere.
class cBankAccess
{
public:
    explicit cBankAccess(const cBookTools& tools) : m_tools(tools) {}

    // By bank code and user ID.
    [[nodiscard]] QList<cBankState> Banks() const;
    // A version is other than "0" only when the contents that came with it are there too: a bank that hears its present
    // version does not send them again.
    [[nodiscard]] std::optional<cBankState> Find(const QString& bankCode, const QString& userId) const;
    // Of the protocol, "300" or "220": one for all logins of a bank code.
    [[nodiscard]] QString HbciVersion(const QString& bankCode) const;

    // What the bank told, kept at once. Called outside of every undo step and no part of one: going back by a step must
    // not bring back a system ID that the bank has replaced. The steps before stay. False when the database refuses.
    [[nodiscard]] bool Save(const cBankState& state);
    // The same for a login that is given up. The accounts of the book keep the numbers they have at the bank.
    [[nodiscard]] bool Remove(const QString& bankCode, const QString& userId);

    // The accounts that are fetched, in the order in which they were chosen. Those that are not chosen any more forget
    // their last fetch. Choose belongs to no step either, and comes after Save.
    [[nodiscard]] QList<cBankAccount> Chosen(const cBankState& state) const;
    [[nodiscard]] bool Choose(const cBankState& state, const QList<cBankAccount>& accounts);

    // The number that tells an account from the others of its login: "77", or "77/01" where they share the 77.
    [[nodiscard]] static QString NumberOf(const cBankState& state, const cBankAccount& account);
    [[nodiscard]] static bool IsNumberShared(const cBankState& state, const cBankAccount& account);

    // The account of the book that one of the bank belongs to, by its number or IBAN; empty when none is known.
    [[nodiscard]] QString BookAccountOf(const cBankState& state, const cBankAccount& account) const;
    // Remembers it for number and IBAN; a name that is new adds an account to the book. Within the caller's undo step.
    [[nodiscard]] bool Assign(const cBankState& state, const cBankAccount& account, const QString& name);

    // Up to which day the account was fetched; invalid: never. SetLastFetch is called within the undo step that brings
    // the rows, so that with the rows the day is taken back as well: else the next fetch would begin behind them.
    [[nodiscard]] QDate LastFetch(const cBankState& state, const cBankAccount& account) const;
    [[nodiscard]] bool SetLastFetch(const cBankState& state, const cBankAccount& account, QDate day);

    // The registration identifier of the program, without which no bank answers; empty when nobody has set one.
    [[nodiscard]] QString ProductId() const;
    [[nodiscard]] bool SetProductId(const QString& id);

private:
    using cPair = std::pair<cOnlineAccount, cBankAccount>;

    [[nodiscard]] QList<cOnlineAccount> Rows(const QString& bankCode, const QString& userId) const; // oldest first
    [[nodiscard]] QList<cPair> Pairs(const cBankState& state) const;
    [[nodiscard]] bool DeleteAll(const QList<cSettingKey>& keys);
    // Writes what is not there yet.
    [[nodiscard]] bool Keep(const cSettingKey& key, const QString& value);

    const cBookTools& m_tools;
};
