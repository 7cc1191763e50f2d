#include "base/cText.h"
#include "views/chart/modChart.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr qsizetype mostAccounts = 10; // more cannot be told apart by their colours

qint64 Weight(const cChartSeries& series)
{
    qint64 most = 0;
    for (const std::optional<qint64>& cents : series.Cents) {
        most = std::max<qint64>(most, std::abs(cents.value_or(0)));
    }
    return most;
}

// What is too many for its own colour becomes one surface, which has no entries of its own to show.
void Gather(QList<cChartSeries>& accounts)
{
    std::stable_sort(accounts.begin(), accounts.end(),
                     [](const cChartSeries& a, const cChartSeries& b) { return Weight(a) > Weight(b); });
    if (accounts.size() <= mostAccounts + 1) {
        return;
    }
    cChartSeries rest = accounts.at(mostAccounts);
    rest.Name = cText::Tr("Übrige Konten");
    rest.Targets.clear();
    for (const cChartSeries& account : accounts.sliced(mostAccounts + 1)) {
        for (qsizetype i = 0; i < rest.Cents.size(); ++i) {
            rest.Cents[i] = rest.Cents[i].value_or(0) + account.At(static_cast<int>(i)).value_or(0);
        }
    }
    accounts.resize(mostAccounts);
    accounts.append(rest);
}

} // namespace

cChartData modChart::NetWorth(const cBalanceInput& input)
{
    cBalanceInput all = input;
    all.Second.reset();
    cChartData data = Balances(all);
    data.Title = cText::Tr("Vermögen nach Konten");
    if (data.Series.isEmpty()) {
        return data;
    }
    data.Kind = eChart::Areas;
    data.Limit.reset();
    data.Marks.clear();
    const bool hasSum = input.Wish.Account.isEmpty() && data.Series.size() > 1;
    cChartSeries sum = hasSum ? data.Series.takeFirst() : cChartSeries();
    Gather(data.Series);
    for (qsizetype i = 0; i < data.Series.size(); ++i) {
        data.Series[i].Colour = static_cast<int>(i < Balance ? i : i + 1); // that one is the sum's
    }
    if (hasSum) {
        sum.Name = cText::Tr("Summe");
        sum.Colour = Balance;
        sum.Shape = cChartSeries::eShape::Line;
        data.Series.append(sum);
    }
    return data;
}
