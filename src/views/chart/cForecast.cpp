#include "views/chart/cForecast.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "model/modBalance.h"
#include "store/cDataAccess.h"
#include "views/chart/modForecast.h"

#include <algorithm>

namespace {

QDate FirstDay(const cEntryItemList& entries, QDate latest)
{
    QDate first = latest;
    for (const cEntryItem& entry : entries) {
        first = std::min(first, entry.EntryDate);
    }
    return first;
}

// Only what lies within the days.
modForecast::cInput InputOf(const modPeriod::cRange& range, const cEntryWindow& window)
{
    QList<cAccountSum> before = window.Before;
    modForecast::cInput input;
    input.First = range.Start;
    input.Last = range.End;
    for (const cEntryItem& entry : window.Entries) {
        if (entry.EntryDate < range.Start) {
            before.append({entry.EntryType, entry.EntryAccount, entry.EntryAccountMove, entry.EntryValue});
        } else if (entry.EntryDate <= range.End) {
            input.Entries.append(entry);
        }
    }
    input.Opening = modBalance::ByAccount(before);
    return input;
}

} // namespace

QHash<QString, qint64> cForecast::BalancesBefore(QDate day)
{
    cEntryQuery query;
    query.End = day.addDays(-1);
    return modBalance::ByAccount(m_data.GetSums(query, true));
}

cBalanceDays cForecast::Days(const modPeriod::cRange& range, eAverage average)
{
    modForecast::cInput input;
    input.First = range.Start;
    input.Last = std::min(range.End, m_today.addMonths(MostMonths));
    if (input.First.isValid() && input.Last < input.First) {
        return {};
    }
    cEntryQuery query;
    query.Start = input.First;
    query.End = input.Last;
    input.Accounts = modTemplate::AccountNames(m_data.GetAccounts());
    input.Entries = m_data.GetEntries(query);
    if (input.First.isValid()) {
        input.Opening = BalancesBefore(input.First);
    } else {
        input.First = FirstDay(input.Entries, std::min(m_today, input.Last));
    }
    cBalanceDays days = modForecast::Days(input);
    if (average == eAverage::With && input.Last > m_today) {
        AddAverage(days);
    }
    return days;
}

void cForecast::AddAverage(cBalanceDays& days)
{
    cEntryQuery spending;
    spending.Start = m_today.addYears(-1).addDays(1);
    spending.End = m_today;
    spending.Kind = eBookingKind::Single;
    const cEntryItemList entries = m_data.GetEntries(spending);
    modForecast::AddAverage(days, modForecast::Average(entries, spending.Start, m_today), m_today);
}

cBalanceDays cForecast::Ahead(int months, eAverage average)
{
    return Days({m_today, m_today.addMonths(months)}, average);
}

cBalanceDays cForecast::Days(const modPeriod::cRange& range, const cEntryWindow& window)
{
    modForecast::cInput input = InputOf(range, window);
    input.Accounts = modTemplate::AccountNames(m_data.GetAccounts());
    return modForecast::Days(input);
}

cTemplateItemList cForecast::LimitedAccounts()
{
    cTemplateItemList accounts = modTemplate::InOrder(m_data.GetAccounts());
    accounts.removeIf(
        [](const cTemplateItem& account) { return !modTemplate::IsVisible(account) || !modForecast::Limit(account); });
    return accounts;
}

QList<cLimitWarning> cForecast::Warnings()
{
    const cTemplateItemList accounts = LimitedAccounts();
    return accounts.isEmpty()
        ? QList<cLimitWarning>()
        : WarningsOf(accounts, m_data.GetWindow({m_today, m_today.addDays(WarningDays)}, m_today));
}

QList<cLimitWarning> cForecast::Warnings(const cEntryWindow& window)
{
    return WarningsOf(LimitedAccounts(), window);
}

QList<cLimitWarning> cForecast::WarningsOf(const cTemplateItemList& accounts, const cEntryWindow& window)
{
    if (accounts.isEmpty()) {
        return {};
    }
    modForecast::cInput input = InputOf({m_today, m_today.addDays(WarningDays)}, window);
    input.Accounts = modTemplate::AccountNames(accounts);
    const cBalanceDays days = modForecast::Days(input);
    QList<cLimitWarning> warnings;
    for (const cTemplateItem& account : accounts) {
        const auto warning =
            modForecast::Below(days, account.TemplateName, *modForecast::Limit(account), input.Entries, m_today);
        if (warning) {
            warnings.append(*warning);
        }
    }
    return warnings;
}

QString cForecast::Text(const cLimitWarning& warning, const cAmountFormat& format)
{
    const QString limit = format.Cents(warning.Limit);
    const QString balance = format.Cents(warning.Cents);
    if (warning.Entry.ID == 0) {
        return cText::Tr("Das Konto '{0}' liegt mit {1} unter seinem Limit von {2}.",
                         {warning.Account, balance, limit});
    }
    const QString what = warning.Entry.Name();
    const QString amount = format.Cents(modBalance::Effect(warning.Entry, warning.Account));
    return cText::Tr("Am {0} fällt das Konto '{1}' mit '{2}' ({3}) auf {4} und damit unter sein Limit von {5}.",
                     {modDate::ToText(warning.Day), warning.Account, what, amount, balance, limit});
}
