#include "import/table/cRowBalances.h"

#include "import/read/cBookedOrder.h"

#include <algorithm>
#include <utility>

void cRowBalances::AddRow(const cImportEntry& entry, QDate booked, std::optional<qint64> balance)
{
    if (balance) {
        m_points.push_back({entry.ImportDate, *balance, entry.ImportValue});
    }
    if (booked.isValid() && booked < entry.ImportDate) {
        m_late.push_back({booked, entry.ImportDate, entry.ImportValue});
    }
    if (booked.isValid() && booked > entry.ImportDate) {
        m_early.append({entry.ImportAccount, entry.ImportDate, booked, entry.ImportValue});
    }
}

// Banks list the newest row first or last; the balances themselves say which it is, else the days.
bool cRowBalances::IsNewestFirst() const
{
    int newestFirst = 0;
    for (std::size_t i = 1; i < m_points.size(); ++i) {
        const qint64 step = m_points[i].Balance - m_points[i - 1].Balance;
        newestFirst += (step == -m_points[i - 1].Value ? 1 : 0) - (step == m_points[i].Value ? 1 : 0);
    }
    return newestFirst == 0 ? m_points.front().Date >= m_points.back().Date : newestFirst > 0;
}

cBankBalance::cMoved cRowBalances::LateOn(QDate day) const
{
    cBankBalance::cMoved late;
    for (const cLate& row : m_late) {
        if (row.Booked <= day && day < row.Day) {
            late.Cents += row.Cents;
            ++late.Count;
        }
    }
    return late;
}

void cRowBalances::KeepIn(cStatementRead& read, const QString& account, const std::optional<cAccountBalance>& above)
{
    if (m_points.empty()) {
        const std::optional<cAccountBalance>& told = m_closing ? m_closing : above;
        if (!told || told->Date.isValid()) { // one without a day holds every row of the file
            read.EarlyRows = m_early;
        }
    } else if (IsNewestFirst()) {
        std::reverse(m_points.begin(), m_points.end());
    }
    if (!m_closing && !m_points.empty()) {
        const auto newest = std::max_element(m_points.begin(), m_points.end(),
                                             [](const cPoint& a, const cPoint& b) { return a.Date < b.Date; });
        SetClosing(m_points.back().Balance, newest->Date);
    }
    m_closing = m_closing ? m_closing : above;
    if (!m_closing) {
        return;
    }
    read.ClosingBalance = m_closing->Cents;
    const QString own = read.Entries.isEmpty() ? account : read.Entries.first().ImportAccount;
    const bool isOneAccount = std::all_of(read.Entries.begin(), read.Entries.end(),
                                          [&](const auto& entry) { return entry.ImportAccount == own; });
    if (isOneAccount) {
        KeepDays(read, own);
        read.Balances.append({own, m_closing->Cents, m_closing->Date, LateOn(m_closing->Date)});
    }
}

// The balances that the file begins with and that each day but the last ends with; only when every row leads from one
// balance to the next, else the column means something else. A row with an earlier day than the one before it belongs
// to no end of its own day.
void cRowBalances::KeepDays(cStatementRead& read, const QString& account) const
{
    const auto isBroken = [](const cPoint& before, const cPoint& after) {
        return after.Balance - before.Balance != after.Value;
    };
    if (m_points.empty() || std::adjacent_find(m_points.begin(), m_points.end(), isBroken) != m_points.end()) {
        return;
    }
    cBookedOrder order;
    QDate day = m_points.front().Date;
    qint64 balance = m_points.front().Balance - m_points.front().Value;
    order.AddBalance(day.addDays(-1), balance);
    for (const cPoint& point : m_points) {
        if (point.Date > day) {
            order.AddBalance(std::exchange(day, point.Date), balance);
        }
        order.AddRow(point.Date, point.Value);
        balance = point.Balance;
    }
    read.Balances += order.Balances(account);
}
