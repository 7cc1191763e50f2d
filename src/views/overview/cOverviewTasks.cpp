#include "views/overview/cOverviewTasks.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cBankBalances.h"
#include "model/modBalance.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"
#include "views/bank/cBankAccess.h"

#include <algorithm>
#include <numeric>

namespace {

using eKind = cOverviewTask::eKind;

// Some banks name the balance of the morning and others that of the evening.
bool HasBalance(cDataAccess& data, const QString& account, const cBankBalance& balance)
{
    cEntryQuery query;
    query.Account = account;
    for (const int before : {0, 1}) {
        query.End = balance.Day.addDays(-before);
        if (modBalance::ByAccount(data.GetSums(query, true)).value(account) == balance.Valued()) {
            return true;
        }
    }
    return false;
}

} // namespace

QList<cOverviewTask> cOverviewTasks::Quick() const
{
    QList<cOverviewTask> tasks;
    const QHash<QString, int> open = cAccountMap(m_tools.Data, m_tools.Settings).OpenByAccount();
    const int rows = std::accumulate(open.begin(), open.end(), 0);
    if (rows > 0) {
        tasks.append({eKind::OpenRows,
                      rows == 1 ? cText::Tr("Ein Umsatz der Bank wartet auf seine Buchung.")
                                : cText::Tr("{0} Umsätze der Bank warten auf ihre Buchung.", {QString::number(rows)})});
    }
    AddAccounts(tasks);
    AddFetch(tasks);
    AddBackup(tasks);
    return tasks;
}

// Only where nothing waits and the account has one number: else book and bank have to differ.
void cOverviewTasks::AddAccounts(QList<cOverviewTask>& tasks) const
{
    const cAccountMap accounts(m_tools.Data, m_tools.Settings);
    const QHash<QString, int> open = accounts.OpenByAccount();
    QHash<QString, int> numbers;
    QHash<QString, cBankBalance> newest;
    const QStringList staged = m_tools.Data.GetImportAccounts();
    for (const QString& number : staged) {
        ++numbers[accounts.AccountOf(number)];
    }
    const auto mapping = accounts.Mapping();
    for (const auto& [number, account] : mapping) {
        const cBankBalanceList balances = cBankBalances::Of(m_tools.Settings, number);
        if (balances.isEmpty() || account.isEmpty()) {
            continue;
        }
        if (!newest.contains(account) || newest.value(account).Day < balances.last().Day) {
            newest.insert(account, balances.last());
        }
    }
    QStringList names = newest.keys();
    names.sort();
    const QDate today = m_tools.Clock.Today();
    for (const QString& account : std::as_const(names)) {
        const cBankBalance& balance = newest[account];
        const QString day = modDate::ToText(balance.Day);
        if (open.value(account) == 0 && numbers.value(account) <= 1 && !HasBalance(m_tools.Data, account, balance)) {
            tasks.append({eKind::Difference,
                          cText::Tr("{0}: Die Bank nennt am {1} den Stand {2}, das Buch hat einen anderen.",
                                    {account, day, m_tools.Format.Cents(balance.Cents)})});
        }
        if (balance.Day.daysTo(today) > OldStatementDays) {
            tasks.append(
                {eKind::OldStatement, cText::Tr("{0}: Der letzte Kontoauszug reicht bis {1}.", {account, day})});
        }
    }
}

void cOverviewTasks::AddFetch(QList<cOverviewTask>& tasks) const
{
    const cBankAccess access(m_tools);
    QDate newest;
    const QList<cBankState> banks = access.Banks();
    for (const cBankState& bank : banks) {
        const QList<cBankAccount> chosen = access.Chosen(bank);
        for (const cBankAccount& account : chosen) {
            newest = std::max(newest, access.LastFetch(bank, account));
        }
    }
    if (newest.isValid() && newest.daysTo(m_tools.Clock.Today()) > OldFetchDays) {
        tasks.append(
            {eKind::OldFetch, cText::Tr("Die Umsätze wurden zuletzt am {0} abgerufen.", {modDate::ToText(newest)})});
    }
}

void cOverviewTasks::AddBackup(QList<cOverviewTask>& tasks) const
{
    const QString count = m_tools.Settings.Get(modSettingKey::BackupCount);
    if (!count.isEmpty() && count.toInt() == 0) {
        tasks.append({eKind::NoBackup, cText::Tr("Von diesem Buch werden keine Sicherungen angelegt.")});
        return;
    }
    const QDate last = modDate::FromIso(m_tools.Settings.Get(modSettingKey::BackupLast));
    if (last.isValid() && last.daysTo(m_tools.Clock.Today()) > OldBackupDays) {
        tasks.append({eKind::OldBackup, cText::Tr("Die letzte Datensicherung ist vom {0}.", {modDate::ToText(last)})});
    }
}

QList<cOverviewTask> cOverviewTasks::Of(const cOutlook::cSeries& series)
{
    const auto [late, ended] = series;
    QList<cOverviewTask> tasks;
    if (late > 0) {
        tasks.append({eKind::LateSeries,
                      late == 1
                          ? cText::Tr("Eine fällige Zahlung fehlt auf dem Kontoauszug.")
                          : cText::Tr("{0} fällige Zahlungen fehlen auf den Kontoauszügen.", {QString::number(late)})});
    }
    if (ended > 0) {
        tasks.append({eKind::EndedSeries,
                      ended == 1
                          ? cText::Tr("Eine Serie wird von der Bank nicht mehr gebucht.")
                          : cText::Tr("{0} Serien werden von der Bank nicht mehr gebucht.", {QString::number(ended)})});
    }
    return tasks;
}
