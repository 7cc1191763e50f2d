#include "views/ledger/cStatementLedger.h"

#include "import/stage/cAccountMap.h"
#include "import/stage/cBankBalances.h"
#include "import/stage/cLeftOutRows.h"
#include "model/modBalance.h"
#include "store/cDataAccess.h"
#include "views/common/modUnread.h"
#include "views/ledger/modRowTwins.h"

#include <QMap>

#include <algorithm>
#include <utility>

namespace {

// By how much the book lies above the bank, from day to day.
class cGap
{
public:
    explicit cGap(QDate first) : m_first(first) {}

    // The book gets or loses so much on that day, or the bank where it is negated.
    void Add(QDate day, qint64 cents) { m_changes[qMax(day, m_first)] += cents; }

    // Since when there has been a gap that never closed again; invalid for none.
    [[nodiscard]] cBookComparison Since(qint64 before) const
    {
        cBookComparison found;
        found.HasAgreed = before == 0;
        found.From = before == 0 ? QDate() : m_first;
        qint64 gap = before;
        for (auto change = m_changes.constBegin(); change != m_changes.constEnd(); ++change) {
            const bool wasClosed = gap == 0;
            gap += *change;
            found.HasAgreed = found.HasAgreed || gap == 0;
            if (gap == 0) {
                found.From = {};
            } else if (wasClosed) {
                found.From = change.key();
            }
        }
        return found;
    }

private:
    QDate m_first;
    QMap<QDate, qint64> m_changes;
};

} // namespace

QStringList cStatementLedger::Numbers() const
{
    return m_data.GetImportAccounts();
}

QString cStatementLedger::AccountOf(const QString& number) const
{
    return cAccountMap(m_data, m_settings).AccountOf(number);
}

void cStatementLedger::Load(const QString& number)
{
    Take(m_data.GetImportEntries(), number);
}

void cStatementLedger::LoadOnce(const QString& number)
{
    cImportEntryList rows = m_data.GetImportEntries();
    const QHash<int, cRowTwin> twins = modRowTwins::Of(rows, cAccountMap(m_data, m_settings), m_settings);
    rows.removeIf([&](const cImportEntry& row) {
        const auto twin = twins.constFind(row.ID);
        return twin != twins.constEnd() && (twin->RowId < row.ID || !twins.contains(twin->RowId));
    });
    Take(std::move(rows), number);
}

void cStatementLedger::LoadNewest()
{
    const cImportEntryList rows = m_data.GetImportEntries();
    Take(rows, rows.isEmpty() ? QString() : rows.last().ImportAccount);
}

void cStatementLedger::Take(cImportEntryList rows, const QString& number)
{
    m_number = number;
    m_rows = std::move(rows);
    m_ids.clear();
    std::transform(m_rows.begin(), m_rows.end(), std::back_inserter(m_ids), [](const auto& row) { return row.ID; });
    m_rows.removeIf([&](const cImportEntry& row) { return row.ImportAccount != number; });
    std::stable_sort(m_rows.begin(), m_rows.end(),
                     [](const auto& a, const auto& b) { return a.ImportDate < b.ImportDate; });
    m_amounts.clear();
    for (const cImportEntry& row : std::as_const(m_rows)) {
        m_amounts.push_back({row.ImportDate, row.ImportValue});
    }
    m_check = modBalanceCheck::Check(m_amounts, cBankBalances(m_settings).Of(number));
    m_balances = {m_check.Opening};
    for (const modBalanceCheck::cRow& row : m_amounts) {
        m_balances.push_back(m_balances.back() + row.Cents);
    }
}

qint64 cStatementLedger::BankOn(QDate day) const
{
    const auto behind = std::upper_bound(m_rows.begin(), m_rows.end(), day,
                                         [](QDate other, const cImportEntry& row) { return other < row.ImportDate; });
    return BalanceAfter(behind - m_rows.begin()) - m_check.ErrorOn(day);
}

std::optional<qint64> cStatementLedger::NamedOn(QDate day) const
{
    const modBalanceCheck::cPoint& newest = m_check.Points.last();
    return newest.Day == day && newest.Moved != 0 ? std::optional(newest.Bank) : std::nullopt;
}

// The rows of a file get consecutive numbers, so that a number between them that is gone was deleted.
int cStatementLedger::DeletedIn(const modBalanceCheck::cFault& fault) const
{
    if (fault.Count == 0) {
        return 0;
    }
    const auto begin = m_rows.begin() + static_cast<qsizetype>(fault.First);
    const auto [least, most] =
        std::minmax_element(begin, begin + static_cast<qsizetype>(fault.Count),
                            [](const cImportEntry& a, const cImportEntry& b) { return a.ID < b.ID; });
    const auto first = std::lower_bound(m_ids.begin(), m_ids.end(), least->ID);
    const auto last = std::upper_bound(m_ids.begin(), m_ids.end(), most->ID);
    return most->ID - least->ID + 1 - static_cast<int>(last - first);
}

bool cStatementLedger::IsShared()
{
    const QString account = AccountOf(m_number);
    const QStringList numbers = Numbers();
    return std::any_of(numbers.begin(), numbers.end(),
                       [&](const QString& other) { return other != m_number && AccountOf(other) == account; });
}

std::optional<cBookComparison::eState> cStatementLedger::Hindrance(const QString& account)
{
    using eState = cBookComparison::eState;
    if (account.isEmpty()) {
        return eState::NotMapped;
    }
    if (!m_check.IsAnchored) {
        return eState::NoBalance;
    }
    return IsShared() ? std::optional(eState::Shared) : std::nullopt;
}

bool cStatementLedger::IsStartLate(const QString& account) const
{
    const std::optional<cEntryItem> start = m_data.GetStartGuthaben(account);
    return start && !m_amounts.empty() && start->EntryDate > m_amounts.front().Day;
}

cBookComparison cStatementLedger::CompareWithBook(QDate until)
{
    using eState = cBookComparison::eState;
    cBookComparison result;
    const QString account = AccountOf(m_number);
    if (const std::optional<eState> hindrance = Hindrance(account)) {
        result.State = *hindrance;
        return result;
    }
    const QDate day = until.isValid() ? until : m_check.Points.last().Day;
    const QDate first = qMin(m_amounts.empty() ? day : m_amounts.front().Day, m_check.Points.first().Day.addDays(1));
    const QDate before = first.addDays(-1);
    qint64 book = 0;
    cGap gap(first);
    qint64 start = m_check.ErrorOn(before) - m_check.Opening;
    const cEntryItemList entries = m_data.GetEntries({{}, day, {}, account, {}, eBookingKind::All});
    if (modUnread::IsMissing(m_data, entries.size())) {
        result.State = eState::Unread;
        return result;
    }
    for (const cEntryItem& entry : entries) {
        const qint64 cents = modBalance::Effect(entry, account);
        book += cents;
        if (entry.EntryDate <= before) {
            start += cents;
        } else {
            gap.Add(entry.EntryDate, cents);
        }
    }
    for (const modBalanceCheck::cRow& row : m_amounts) {
        if (row.Day <= day) {
            gap.Add(row.Day, -row.Cents);
        }
    }
    for (const modBalanceCheck::cFault& fault : m_check.Faults) {
        gap.Add(fault.From, fault.From <= day ? -fault.Missing : 0);
    }
    result = gap.Since(start);
    result.State = result.From.isValid() ? eState::Differs : eState::Agrees;
    result.Day = day;
    result.Book = book;
    result.Bank = BankOn(day);
    result.Named = NamedOn(day);
    result.IsStartLate = IsStartLate(account);
    result.AreRowsMissing = !m_check.Faults.isEmpty() || !cLeftOutRows(m_settings).Of(m_number).isEmpty();
    return result;
}
