#include "store/cDataAccess.h"
#include "store/cDatabase.h"
#include "store/modAccountColumns.h"

namespace {

// The column names, each followed by `behind`, joined by ", ".
std::string Columns(const char* behind)
{
    std::string text;
    for (const char* name : modAccountColumns::Names) {
        text.append(text.empty() ? "" : ", ").append(name).append(behind);
    }
    return text;
}

std::string Placeholders()
{
    std::string text = "?";
    for (int i = 1; i < cOnlineAccount::ColumnCount; ++i) {
        text += ", ?";
    }
    return text;
}

cBoundList AccountValues(const cOnlineAccount& account)
{
    return {account.Values.begin(), account.Values.end()};
}

// Newest first.
QList<cOnlineAccount> ReadAccounts(cDatabase& database, const char* which = "", const cBoundList& values = {})
{
    QList<cOnlineAccount> accounts;
    cRows rows(database, "SELECT ID, " + Columns("") + " FROM account" + which + " ORDER BY ID DESC", values);
    while (rows.Next()) {
        cOnlineAccount& account = accounts.emplace_back();
        account.ID = static_cast<int>(rows.Integer(0));
        int column = 0;
        for (QString& value : account.Values) {
            value = rows.Text(++column);
        }
    }
    return accounts;
}

std::optional<cOnlineAccount> First(const QList<cOnlineAccount>& accounts)
{
    return accounts.isEmpty() ? std::nullopt : std::optional(accounts.first());
}

} // namespace

QList<cOnlineAccount> cDataAccess::GetOnlineAccounts()
{
    QList<cOnlineAccount> accounts;
    Read("GetOnlineAccounts", [&] { accounts = ReadAccounts(m_database); });
    return accounts;
}

bool cDataAccess::GetNewOnlineAccount(cOnlineAccount& account)
{
    return Write("GetNewOnlineAccount", [&] {
        m_database.Execute("INSERT INTO account (" + Columns("") + ") VALUES (" + Placeholders() + ")",
                           AccountValues(account));
        account = ReadAccounts(m_database).value(0, account);
    });
}

bool cDataAccess::ChangeOnlineAccount(const cOnlineAccount& account)
{
    return Write("ChangeOnlineAccount", [&] {
        cBoundList values = AccountValues(account);
        values.emplace_back(account.ID);
        m_database.Execute("UPDATE account SET " + Columns("=?") + " WHERE ID = ?", values);
    });
}

bool cDataAccess::DeleteOnlineAccount(int id)
{
    return Write("DeleteOnlineAccount", [&] { m_database.Execute("DELETE FROM account WHERE ID = ?", {id}); });
}

std::optional<cOnlineAccount> cDataAccess::FindOnlineAccount(int id)
{
    std::optional<cOnlineAccount> account;
    Read("FindOnlineAccount", [&] { account = First(ReadAccounts(m_database, " WHERE ID = ?", {id})); });
    return account;
}

std::optional<cOnlineAccount> cDataAccess::FindOnlineAccount(const QString& number, const QString& bankCode)
{
    std::optional<cOnlineAccount> account;
    Read("FindOnlineAccount", [&] {
        account = First(ReadAccounts(m_database, " WHERE AccountNumber = ? AND AccountBLZ = ?", {number, bankCode}));
    });
    return account;
}
