#include "import/stage/cBankBalances.h"

#include "core/cSettings.h"
#include "import/read/cStatementRead.h"
#include "model/modSettingKey.h"

#include <QMap>
#include <QStringList>

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

QDate NewestDay(const cImportEntryList& entries, const QString& account)
{
    QDate newest;
    for (const cImportEntry& entry : entries) {
        if (entry.ImportAccount == account && (!newest.isValid() || newest < entry.ImportDate)) {
            newest = entry.ImportDate;
        }
    }
    return newest;
}

// One without a day gets that of the account's newest transaction.
QMap<QString, cBankBalanceList> ByAccount(const QList<cAccountBalance>& balances, const cImportEntryList& entries)
{
    QMap<QString, cBankBalanceList> byAccount;
    for (const cAccountBalance& balance : balances) {
        const QDate day = balance.Date.isValid() ? balance.Date : NewestDay(entries, balance.Account);
        if (day.isValid() && !balance.Account.isEmpty()) {
            byAccount[balance.Account].append({day, balance.Cents, balance.Late, balance.Early});
        }
    }
    return byAccount;
}

// Statements with the same balance know the transactions before it, or behind it, from it on: the more of them one
// knows, the further it reaches. What earlier versions kept is not counted and adds up until a statement that counts
// is read.
void Take(cBankBalance::cMoved& known, const cBankBalance::cMoved& more)
{
    if (more.Count > known.Count) {
        known = more;
    } else if (known.Count == 0) {
        known.Cents += more.Cents;
    }
}

// By day, each balance of a day once: one statement ends with it and the next begins with it, each knows its own
// transactions only, and the same file may well be read again.
cBankBalanceList Joined(cBankBalanceList known, const cBankBalanceList& more)
{
    known += more;
    std::stable_sort(known.begin(), known.end(),
                     [](const cBankBalance& a, const cBankBalance& b) { return a.Day < b.Day; });
    cBankBalanceList joined;
    for (const cBankBalance& balance : std::as_const(known)) {
        const auto same = std::find_if(joined.rbegin(), joined.rend(), [&](const cBankBalance& other) {
            return other.Day < balance.Day || other.Cents == balance.Cents;
        });
        if (same == joined.rend() || same->Day < balance.Day) {
            joined.append(balance);
        } else {
            Take(same->Late, balance.Late);
            Take(same->Early, balance.Early);
        }
    }
    return joined;
}

} // namespace

cBankBalanceList cBankBalances::Of(const QString& account) const
{
    return Of(m_settings, account);
}

cBankBalanceList cBankBalances::Of(const cSettings& settings, const QString& account)
{
    cBankBalanceList balances;
    const QStringList texts = settings.Get(modSettingKey::BankBalances.Of(account)).split(u';', Qt::SkipEmptyParts);
    for (const QString& text : texts) {
        if (const std::optional<cBankBalance> balance = cBankBalance::FromText(text)) {
            balances.append(*balance);
        }
    }
    return Joined({}, balances);
}

cBankBalanceList cBankBalances::With(const QString& account, const QList<cAccountBalance>& balances,
                                     const cImportEntryList& entries) const
{
    return Joined(Of(account), ByAccount(balances, entries).value(account));
}

bool cBankBalances::Add(const QList<cAccountBalance>& balances, const cImportEntryList& entries)
{
    const QMap<QString, cBankBalanceList> byAccount = ByAccount(balances, entries);
    bool isDone = true;
    for (auto account = byAccount.constKeyValueBegin(); account != byAccount.constKeyValueEnd(); ++account) {
        isDone = Add(account->first, account->second) && isDone;
    }
    return isDone;
}

bool cBankBalances::AddEarly(const QList<cEarlyRow>& rows)
{
    QMap<QString, QList<cEarlyRow>> byAccount;
    for (const cEarlyRow& row : rows) {
        byAccount[row.Account].append(row);
    }
    bool isDone = true;
    for (auto account = byAccount.constKeyValueBegin(); account != byAccount.constKeyValueEnd(); ++account) {
        cBankBalanceList known = Of(account->first);
        for (cBankBalance& balance : known) {
            balance = {balance.Day, balance.Cents};
            for (const cEarlyRow& row : account->second) {
                if (row.Day <= balance.Day && balance.Day < row.Booked) {
                    balance.Early.Cents += row.Cents;
                    ++balance.Early.Count;
                }
            }
        }
        known.removeIf([](const cBankBalance& balance) { return balance.Early.Count == 0; });
        isDone = Add(account->first, known) && isDone;
    }
    return isDone;
}

bool cBankBalances::Add(const QString& account, const cBankBalanceList& balances)
{
    const cBankBalanceList before = Of(account);
    const cBankBalanceList known = Joined(before, balances);
    if (known == before) {
        return true;
    }
    QStringList texts;
    std::transform(known.begin(), known.end(), std::back_inserter(texts),
                   [](const auto& each) { return each.ToText(); });
    return m_settings.Set(modSettingKey::BankBalances.Of(account), texts.join(u';'));
}

QString cBankBalances::BankCodeOf(const QString& number) const
{
    return m_settings.Get(modSettingKey::BankCode.Of(number));
}

bool cBankBalances::KeepBankCode(const QString& number, const QString& bankCode)
{
    return !BankCodeOf(number).isEmpty() || m_settings.Set(modSettingKey::BankCode.Of(number), bankCode);
}
