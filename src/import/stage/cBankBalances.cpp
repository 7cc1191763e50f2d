#include "import/stage/cBankBalances.h"

#include "base/modDate.h"
#include "core/cSettings.h"
#include "import/read/cStatementRead.h"
#include "model/modSettingKey.h"

#include <QMap>
#include <QStringList>

#include <algorithm>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

// The setting of an account: "2026-05-31=21270;2026-06-30=-500=-1999", with what is late of the second.
std::optional<cBankBalance> FromText(const QString& text)
{
    const QStringList parts = text.split(u'=');
    bool isNumber = false;
    bool isLate = true;
    const qint64 cents = parts.value(1).toLongLong(&isNumber);
    const qint64 late = parts.size() > 2 ? parts.at(2).toLongLong(&isLate) : 0;
    const QDate day = modDate::FromIso(parts.value(0));
    return parts.size() <= 3 && isNumber && isLate && day.isValid() ? std::optional(cBankBalance{day, cents, late})
                                                                    : std::nullopt;
}

QString ToText(const cBankBalance& balance)
{
    const QString text = modDate::ToIso(balance.Day) + u'=' + QString::number(balance.Cents);
    return balance.Late == 0 ? text : text + u'=' + QString::number(balance.Late);
}

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
            byAccount[balance.Account].append({day, balance.Cents, balance.Late});
        }
    }
    return byAccount;
}

void SortByDay(cBankBalanceList& balances)
{
    std::stable_sort(balances.begin(), balances.end(),
                     [](const cBankBalance& a, const cBankBalance& b) { return a.Day < b.Day; });
}

// A year of daily balances is a few hundred items, and the same file may well be read again.
cBankBalanceList Joined(cBankBalanceList known, const cBankBalanceList& more)
{
    for (const cBankBalance& balance : more) {
        if (!known.contains(balance)) {
            known.append(balance);
        }
    }
    SortByDay(known);
    return known;
}

cBankBalanceList Stored(const cSettings& settings, const QString& account)
{
    cBankBalanceList balances;
    const QStringList texts = settings.Get(modSettingKey::BankBalances.Of(account)).split(u';', Qt::SkipEmptyParts);
    for (const QString& text : texts) {
        if (const std::optional<cBankBalance> balance = FromText(text)) {
            balances.append(*balance);
        }
    }
    SortByDay(balances);
    return balances;
}

// One statement ends with a balance and the next begins with it; each knows its own transactions only.
cBankBalanceList Merged(const cBankBalanceList& parts)
{
    cBankBalanceList merged;
    for (const cBankBalance& part : parts) {
        const auto same = std::find_if(merged.rbegin(), merged.rend(), [&](const cBankBalance& known) {
            return known.Day < part.Day || known.Cents == part.Cents;
        });
        if (same != merged.rend() && same->Day == part.Day) {
            same->Late += part.Late;
        } else {
            merged.append(part);
        }
    }
    return merged;
}

} // namespace

cBankBalanceList cBankBalances::Of(const QString& account) const
{
    return Of(m_settings, account);
}

cBankBalanceList cBankBalances::Of(const cSettings& settings, const QString& account)
{
    return Merged(Stored(settings, account));
}

cBankBalanceList cBankBalances::With(const QString& account, const QList<cAccountBalance>& balances,
                                     const cImportEntryList& entries) const
{
    return Merged(Joined(Stored(m_settings, account), ByAccount(balances, entries).value(account)));
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

bool cBankBalances::Add(const QString& account, const cBankBalanceList& balances)
{
    const cBankBalanceList before = Stored(m_settings, account);
    const cBankBalanceList known = Joined(before, balances);
    if (known.size() == before.size()) {
        return true;
    }
    QStringList texts;
    std::transform(known.begin(), known.end(), std::back_inserter(texts), ToText);
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
