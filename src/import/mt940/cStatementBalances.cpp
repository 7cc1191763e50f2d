#include "import/mt940/cStatementBalances.h"

#include <numeric>

// Where the transactions do not lead from the one balance to the other, they are not those of the statement, or not all
// of them: several statements may stand there without a line between them.
void cStatementBalances::Add(const std::optional<cAccountBalance>& opening, const QList<cAccountBalance>& closings,
                             const cImportEntryList& entries, qsizetype first)
{
    const auto begin = entries.begin() + first;
    const qint64 end = std::accumulate(begin, entries.end(), opening ? opening->Cents : 0,
                                       [](qint64 sum, const cImportEntry& row) { return sum + row.ImportValue; });
    const bool isWhole =
        opening && (closings.isEmpty() || (closings.size() == 1 && closings.constFirst().Cents == end));
    if (!isWhole) {
        m_loose += opening ? QList{*opening} + closings : closings;
        return;
    }
    cBookedOrder& order = m_orders[opening->Account];
    order.AddBalance(opening->Date, opening->Cents);
    for (auto row = begin; row != entries.end(); ++row) {
        order.AddRow(row->ImportDate, row->ImportValue);
    }
    for (const cAccountBalance& closing : closings) {
        order.AddBalance(closing.Date, closing.Cents);
    }
}

QList<cAccountBalance> cStatementBalances::All() const
{
    QList<cAccountBalance> all = m_loose;
    for (auto order = m_orders.constKeyValueBegin(); order != m_orders.constKeyValueEnd(); ++order) {
        all += order->second.Balances(order->first);
    }
    return all;
}
