#include "views/chart/modForecast.h"

#include "base/modAmount.h"
#include "model/modBalance.h"
#include "model/modWord.h"

#include <algorithm>

namespace {

// The change of each account on each day.
class cChanges
{
public:
    explicit cChanges(const modForecast::cInput& input)
        : m_input(input),
          m_days(input.First.daysTo(input.Last) + 1),
          m_accounts(input.Accounts)
    {
        for (auto opening = input.Opening.begin(); opening != input.Opening.end(); ++opening) {
            if (*opening != 0) {
                (void)LineOf(opening.key());
            }
        }
        for (const cEntryItem& entry : input.Entries) {
            Add(entry);
        }
        std::sort(m_accounts.begin() + input.Accounts.size(), m_accounts.end()); // a hash has no order of its own
    }

    [[nodiscard]] const QStringList& Accounts() const { return m_accounts; }

    // The changes added up to balances.
    [[nodiscard]] QList<qint64> Balances(const QString& account) const
    {
        QList<qint64> cents = m_changes.value(account, QList<qint64>(m_days));
        qint64 balance = m_input.Opening.value(account);
        for (qint64& day : cents) {
            balance += day;
            day = balance;
        }
        return cents;
    }

private:
    QList<qint64>& LineOf(const QString& account)
    {
        auto line = m_changes.find(account);
        if (line == m_changes.end()) {
            line = m_changes.insert(account, QList<qint64>(m_days));
            if (!m_accounts.contains(account)) {
                m_accounts.append(account);
            }
        }
        return *line;
    }

    void Add(const cEntryItem& entry)
    {
        const qint64 day = m_input.First.daysTo(entry.EntryDate);
        if (day < 0 || day >= m_days) {
            return;
        }
        LineOf(entry.EntryAccount)[day] += modBalance::Effect(entry, entry.EntryAccount);
        if (entry.IsTransfer() && entry.EntryAccountMove != entry.EntryAccount) {
            LineOf(entry.EntryAccountMove)[day] += modBalance::Effect(entry, entry.EntryAccountMove);
        }
    }

    const modForecast::cInput& m_input;
    qint64 m_days;
    QStringList m_accounts;
    QHash<QString, QList<qint64>> m_changes;
};

void AddUp(cBalanceDays& days)
{
    for (const cBalanceLine& line : std::as_const(days.Accounts)) {
        for (qsizetype day = 0; day < line.Cents.size(); ++day) {
            days.Sum.Cents[day] += line.Cents[day];
        }
    }
}

// Of the entries of the day those that touch the account, incoming ones first.
QList<std::pair<qint64, const cEntryItem*>> EffectsOn(const cEntryItemList& entries, const QString& account, QDate day)
{
    QList<std::pair<qint64, const cEntryItem*>> effects;
    for (const cEntryItem& entry : entries) {
        const qint64 effect = entry.EntryDate == day ? modBalance::Effect(entry, account) : 0;
        if (effect != 0) {
            effects.append({effect, &entry});
        }
    }
    std::stable_partition(effects.begin(), effects.end(), [](const auto& each) { return each.first > 0; });
    return effects;
}

// The entry that takes a balance from the end of the day before below the limit.
cEntryItem Culprit(const cEntryItemList& entries, const cLimitWarning& warning, qint64 dayBefore)
{
    qint64 balance = dayBefore;
    const auto effects = EffectsOn(entries, warning.Account, warning.Day);
    for (const auto& [effect, entry] : effects) {
        balance += effect;
        if (balance < warning.Limit) {
            return *entry;
        }
    }
    return {};
}

} // namespace

int cBalanceDays::Lowest(const cBalanceLine& line, int from)
{
    if (from < 0 || from >= line.Cents.size()) {
        return -1;
    }
    return static_cast<int>(std::min_element(line.Cents.begin() + from, line.Cents.end()) - line.Cents.begin());
}

cBalanceDays modForecast::Days(const cInput& input)
{
    cBalanceDays days;
    days.First = input.First;
    if (!input.First.isValid() || input.Last < input.First) {
        return days;
    }
    days.Sum.Cents = QList<qint64>(input.First.daysTo(input.Last) + 1);
    const cChanges changes(input);
    for (const QString& account : changes.Accounts()) {
        days.Accounts.append({account, changes.Balances(account)});
    }
    AddUp(days);
    return days;
}

modForecast::cAverage modForecast::Average(const cEntryItemList& entries, QDate from, QDate today)
{
    constexpr qint64 fewestDays = 30; // a new book knows too little for one purchase to be a habit
    cAverage average;
    QDate first = today;
    for (const cEntryItem& entry : entries) {
        const bool isSpending = entry.EntryType == modWord::Ausgabe || entry.IsTransfer();
        if (!isSpending || entry.EntryInterval != modWord::Einmalig || entry.EntryCategory == modWord::Startguthaben
            || entry.EntryDate > today || entry.EntryDate < from) {
            continue;
        }
        first = std::min(first, entry.EntryDate);
        average.Cents[entry.EntryAccount] += modBalance::Effect(entry, entry.EntryAccount);
        if (entry.IsTransfer() && entry.EntryAccountMove != entry.EntryAccount) {
            average.Cents[entry.EntryAccountMove] += modBalance::Effect(entry, entry.EntryAccountMove);
        }
    }
    average.Days = static_cast<int>(std::max(fewestDays, first.daysTo(today) + 1));
    return average;
}

void modForecast::AddAverage(cBalanceDays& days, const cAverage& average, QDate today)
{
    const int behind = std::max(0, days.IndexOf(today) + 1);
    for (cBalanceLine& line : days.Accounts) {
        const qint64 cents = average.Cents.value(line.Account);
        for (int day = behind; day < days.Count(); ++day) {
            // From the whole each time, so that nothing is lost to rounding on the way.
            const qint64 added = cents * today.daysTo(days.Day(day)) / average.Days;
            line.Cents[day] += added;
            days.Sum.Cents[day] += added;
        }
    }
}

std::optional<qint64> modForecast::Limit(const cTemplateItem& account)
{
    return modAmount::CentsFromText(account.TemplateDefaultValue);
}

std::optional<cLimitWarning> modForecast::Below(const cBalanceDays& days, const QString& account, qint64 limit,
                                                const cEntryItemList& entries, QDate today)
{
    const auto line = std::find_if(days.Accounts.begin(), days.Accounts.end(),
                                   [&](const cBalanceLine& each) { return each.Account == account; });
    const int first = days.IndexOf(today);
    if (line == days.Accounts.end() || first < 0) {
        return std::nullopt;
    }
    for (int day = first; day < days.Count(); ++day) {
        if (line->Cents[day] < limit) {
            cLimitWarning warning{account, limit, days.Day(day), line->Cents[day], {}};
            if (day > first) {
                warning.Entry = Culprit(entries, warning, line->Cents[day - 1]);
            }
            return warning;
        }
    }
    return std::nullopt;
}
