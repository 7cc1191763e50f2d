#include "model/modBalanceCheck.h"

#include <algorithm>

using namespace modBalanceCheck;

namespace {

// Transactions that the bank enters on one day and values on another move a balance for about a week at most.
constexpr int passingDays = 7;

class cWalk
{
public:
    cWalk(const std::vector<cRow>& rows, const cBankBalanceList& balances) : m_rows(rows), m_balances(balances)
    {
        m_sums.reserve(rows.size() + 1);
        m_sums.push_back(0);
        for (const cRow& row : rows) {
            m_sums.push_back(m_sums.back() + row.Cents);
        }
    }

    [[nodiscard]] cResult Run()
    {
        if (m_balances.isEmpty()) {
            return {};
        }
        m_result.IsAnchored = true;
        const cBankBalance& newest = m_balances.last();
        m_result.Opening = newest.Valued() - m_sums[Behind(newest.Day)];
        m_newer = newest.Day;
        for (qsizetype i = m_balances.size() - 1; i >= 0; --i) {
            m_result.Points.prepend(Judge(i));
        }
        return std::move(m_result);
    }

private:
    // How many transactions there are before the day, and up to its end.
    [[nodiscard]] std::size_t Before(QDate day) const
    {
        const auto at = std::lower_bound(m_rows.begin(), m_rows.end(), day,
                                         [](const cRow& row, QDate other) { return row.Day < other; });
        return static_cast<std::size_t>(at - m_rows.begin());
    }
    [[nodiscard]] std::size_t Behind(QDate day) const { return Before(day.addDays(1)); }

    // Whether the balance is that of a moment of its day, once what is already known to be missing is set right. What
    // its statement tells of another day may be there as a second format has it, with the day of the balance.
    [[nodiscard]] bool Fits(const cBankBalance& balance) const
    {
        const auto first = m_sums.begin() + static_cast<std::ptrdiff_t>(Before(balance.Day));
        const auto last = m_sums.begin() + static_cast<std::ptrdiff_t>(Behind(balance.Day)) + 1;
        const qint64 shift = m_error - m_result.Opening;
        return std::find(first, last, balance.Valued() + shift) != last
            || (balance.Moved() != 0 && std::find(first, last, balance.Cents + shift) != last);
    }

    // An older balance fits again within a few days, or the next one beyond, when the newer one is as near.
    [[nodiscard]] bool IsPassing(qsizetype index) const
    {
        const QDate day = m_balances.at(index).Day;
        bool isNear = true;
        for (qsizetype i = index - 1; i >= 0 && isNear; --i) {
            isNear = m_balances.at(i).Day.daysTo(day) <= passingDays;
            if ((isNear || day.daysTo(m_newer) <= passingDays) && Fits(m_balances.at(i))) {
                return true;
            }
        }
        return false;
    }

    [[nodiscard]] cPoint Judge(qsizetype index)
    {
        const cBankBalance& balance = m_balances.at(index);
        const qint64 evening = m_result.Opening + m_sums[Behind(balance.Day)];
        cPoint point{balance.Day, balance.Cents, evening + balance.Moved(), eVerdict::Differs, balance.Moved()};
        const bool fits = Fits(balance);
        if (!fits && IsPassing(index)) {
            point.Verdict = eVerdict::Passing;
            return point;
        }
        if (!fits) {
            AddFault(balance, evening - balance.Valued());
        }
        m_newer = balance.Day;
        point.Own = balance.Cents + m_error;
        point.Verdict = m_error == 0 ? eVerdict::Agrees : eVerdict::Differs;
        return point;
    }

    // The transactions between this balance and the next newer one do not lead from one to the other.
    void AddFault(const cBankBalance& balance, qint64 error)
    {
        const QDate from = qMin(balance.Day.addDays(1), m_newer);
        const std::size_t first = Before(from);
        m_result.Faults.prepend({from, m_newer, error - m_error, first, Behind(m_newer) - first});
        m_error = error;
    }

    const std::vector<cRow>& m_rows;
    const cBankBalanceList& m_balances;
    std::vector<qint64> m_sums; // of the first n transactions
    cResult m_result;
    qint64 m_error = 0; // how far our balance lies above that of the bank
    QDate m_newer;
};

} // namespace

qint64 cResult::ErrorOn(QDate day) const
{
    qint64 error = 0;
    for (const cFault& fault : Faults) {
        error += day < fault.From ? fault.Missing : 0;
    }
    return error;
}

cResult modBalanceCheck::Check(const std::vector<cRow>& rows, const cBankBalanceList& balances)
{
    return cWalk(rows, balances).Run();
}
