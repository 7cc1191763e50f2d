#include "import/read/cBookedOrder.h"

#include <QMap>

#include <numeric>
#include <utility>

namespace {

using cMoved = cBankBalance::cMoved;
using cDays = QMap<QDate, cMoved>;

cMoved Sum(cDays::const_iterator begin, cDays::const_iterator end)
{
    return std::accumulate(begin, end, cMoved(), [](const cMoved& sum, const cMoved& day) {
        return cMoved{sum.Cents + day.Cents, sum.Count + day.Count};
    });
}

void Add(cDays& days, QDate day, qint64 cents)
{
    cMoved& rows = days[day];
    rows.Cents += cents;
    ++rows.Count;
}

} // namespace

bool cBookedOrder::IsGap(std::size_t before) const
{
    return before + 1 < m_steps.size() && m_steps[before].IsBalance && m_steps[before + 1].IsBalance
        && m_steps[before].Cents != m_steps[before + 1].Cents;
}

// For each balance: the transactions behind it with its day or an earlier one.
std::vector<cMoved> cBookedOrder::Early() const
{
    std::vector<cMoved> early(m_steps.size());
    cDays behind;
    for (std::size_t i = m_steps.size(); i-- > 0;) {
        const cStep& step = m_steps[i];
        if (IsGap(i)) {
            behind.clear();
        }
        if (step.IsBalance) {
            early[i] = Sum(behind.cbegin(), std::as_const(behind).upperBound(step.Day));
        } else {
            Add(behind, step.Day, step.Cents);
        }
    }
    return early;
}

QList<cAccountBalance> cBookedOrder::Balances(const QString& account) const
{
    QList<cAccountBalance> balances;
    const std::vector<cMoved> early = Early();
    cDays before;
    for (std::size_t i = 0; i < m_steps.size(); ++i) {
        const cStep& step = m_steps[i];
        if (!step.IsBalance) {
            Add(before, step.Day, step.Cents);
            continue;
        }
        const cMoved late = Sum(std::as_const(before).upperBound(step.Day), before.cend());
        balances.append({account, step.Cents, step.Day, late, early[i]});
        if (IsGap(i)) {
            before.clear();
        }
    }
    return balances;
}
