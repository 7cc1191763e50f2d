#include "import/read/cBookedOrder.h"

#include <QMap>

#include <iterator>
#include <numeric>

bool cBookedOrder::IsGap(std::size_t before) const
{
    return before + 1 < m_steps.size() && m_steps[before].IsBalance && m_steps[before + 1].IsBalance
        && m_steps[before].Cents != m_steps[before + 1].Cents;
}

// For each balance: the transactions behind it with its day or an earlier one.
std::vector<qint64> cBookedOrder::Early() const
{
    std::vector<qint64> early(m_steps.size(), 0);
    QMap<QDate, qint64> behind;
    for (std::size_t i = m_steps.size(); i-- > 0;) {
        const cStep& step = m_steps[i];
        if (IsGap(i)) {
            behind.clear();
        }
        if (step.IsBalance) {
            early[i] = std::accumulate(behind.cbegin(), std::as_const(behind).upperBound(step.Day), qint64{0});
        } else {
            behind[step.Day] += step.Cents;
        }
    }
    return early;
}

QList<cAccountBalance> cBookedOrder::Balances(const QString& account) const
{
    QList<cAccountBalance> balances;
    const std::vector<qint64> early = Early();
    QMap<QDate, qint64> before;
    for (std::size_t i = 0; i < m_steps.size(); ++i) {
        const cStep& step = m_steps[i];
        if (!step.IsBalance) {
            before[step.Day] += step.Cents;
            continue;
        }
        const auto late = std::as_const(before).upperBound(step.Day);
        balances.append({account, step.Cents, step.Day, std::accumulate(late, before.cend(), qint64{0})});
        if (early[i] != 0) {
            balances.append({account, step.Cents, step.Day, -early[i]});
        }
        if (IsGap(i)) {
            before.clear();
        }
    }
    return balances;
}
