#include "base/cText.h"
#include "model/modWord.h"
#include "views/chart/modChartFrame.h"

namespace {

struct cKindSums
{
    QList<qint64> Income;
    QList<qint64> Expense;
};

cKindSums SumKinds(const modChart::cInput& input, const modChart::cPeriod& period, const cChartSteps& steps)
{
    cKindSums sums{QList<qint64>(steps.Count()), QList<qint64>(steps.Count())};
    const cReportWish wish = modChart::ReportWish(input.Wish, period.Range, input.Today);
    modChart::cNodes nodes(wish);
    for (const cEntryItem& entry : period.Entries) {
        const std::optional<cReportNode>& node = nodes.Of(entry);
        const int step = node ? steps.IndexOf(entry.EntryDate) : -1;
        if (step >= 0) {
            (node->Kind == eReportKind::Income ? sums.Income : sums.Expense)[step] += entry.EntryValue;
        }
    }
    return sums;
}

enum class eBeside { No, Yes };

void AddKinds(cChartData& data, const modChart::cInput& input, const modChart::cPeriod& period,
              const cChartSteps& steps, eBeside beside)
{
    const cKindSums sums = SumKinds(input, period, steps);
    const int count = static_cast<int>(data.Labels.size());
    const auto add = [&](const QString& name, const QList<qint64>& cents, int colour,
                         const std::optional<cReportNode>& node) {
        cChartSeries series;
        series.Name = beside == eBeside::Yes ? cText::Tr("{0} ({1})", {name, modChart::RangeText(period.Range)}) : name;
        series.Cents = modChart::Values(cents, count);
        series.Targets = modChart::Targets(steps, node, input.Wish.Account, count);
        series.Colour = colour;
        series.IsDashed = true;
        series.IsComparison = beside == eBeside::Yes;
        series.OwnLabels = series.IsComparison ? modChart::OwnLabels(steps, count) : QStringList();
        data.Series.append(series);
    };
    QList<qint64> balance = sums.Income;
    for (qsizetype i = 0; i < balance.size(); ++i) {
        balance[i] -= sums.Expense[i];
    }
    add(cText::Tr("Einnahmen"), sums.Income, modChart::Income, cReportNode{eReportKind::Income});
    add(cText::Tr("Ausgaben"), sums.Expense, modChart::Expense, cReportNode{eReportKind::Expense});
    add(cText::Tr("Überschuss"), balance, modChart::Balance, std::nullopt);
    data.Series.last().Shape = cChartSeries::eShape::Line;
}

} // namespace

cChartData modChart::Months(const cInput& input)
{
    const modPeriod::cRange range = Closed(input.First);
    const bool isEmpty = input.First.Entries.isEmpty() && (!input.Second || input.Second->Entries.isEmpty());
    if (isEmpty || !IsUsable(range)) {
        return Nothing(input, cText::Tr("Einnahmen und Ausgaben je Monat"));
    }
    const cChartSteps steps(range);
    cChartData data = Frame(input, steps);
    data.Title =
        steps.IsYears() ? cText::Tr("Einnahmen und Ausgaben je Jahr") : cText::Tr("Einnahmen und Ausgaben je Monat");
    AddKinds(data, input, input.First, steps, eBeside::No);
    const modPeriod::cRange second = input.Second ? Closed(*input.Second) : modPeriod::cRange{};
    if (IsUsable(second)) {
        AddKinds(data, input, *input.Second, cChartSteps(second), eBeside::Yes);
    }
    return data;
}
