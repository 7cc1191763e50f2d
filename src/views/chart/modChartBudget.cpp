#include "base/cText.h"
#include "views/chart/modChartFrame.h"

#include <algorithm>

namespace {

// The limits of one category, step by step.
using cOwn = QList<std::optional<cLimit>>;

QHash<QString, cOwn> LimitsByStep(const cChartWish& wish, const cLimits& limits, const cChartSteps& steps)
{
    QHash<QString, cOwn> found;
    const QStringList paths = limits.Paths();
    for (const QString& path : paths) {
        if (wish.Group && modTemplate::MainOf(path) != *wish.Group) {
            continue;
        }
        cOwn own;
        for (int step = 0; step < steps.Count(); ++step) {
            own.append(limits.Of(path, steps.RangeAt(step).Start, steps.MonthsAt(step)));
        }
        found.insert(path, own);
    }
    return found;
}

void Add(cChartData& data, const QString& name, const QList<qint64>& cents, int colour, cChartSeries::eShape shape)
{
    cChartSeries series;
    series.Name = name;
    series.Cents = modChart::Values(cents, static_cast<int>(data.Labels.size()));
    series.Colour = colour;
    series.Shape = shape;
    series.IsDashed = true;
    data.Series.append(series);
}

} // namespace

cChartData modChart::Budget(const cInput& input, const cLimits& limits)
{
    const modPeriod::cRange range = Closed(input.First);
    const QString title = cText::Tr("Budget und Ausgaben je Monat");
    if (!IsUsable(range)) {
        return Nothing(input, title);
    }
    const cChartSteps steps(range);
    const QHash<QString, cOwn> limited = LimitsByStep(input.Wish, limits, steps);
    QList<qint64> planned(steps.Count());
    QList<qint64> spent(steps.Count());
    bool isLimited = false;
    for (const cOwn& own : limited) {
        for (int step = 0; step < steps.Count(); ++step) {
            planned[step] += own.at(step).value_or(cLimit()).Own;
            isLimited = isLimited || own.at(step);
        }
    }
    if (!isLimited) {
        return Nothing(input, title);
    }
    const cSpent spentByPath = modBudget::Spent(input.First.Entries);
    for (auto path = spentByPath.begin(); path != spentByPath.end(); ++path) {
        const cOwn own = limited.value(path.key());
        for (auto month = path->begin(); month != path->end(); ++month) {
            const int step = steps.IndexOf(std::max(month.key(), range.Start));
            if (step >= 0 && own.value(step)) {
                spent[step] += *month;
            }
        }
    }
    cChartData data = Frame(input, steps);
    data.Title = steps.IsYears() ? cText::Tr("Budget und Ausgaben je Jahr") : title;
    Add(data, cText::Tr("Ausgaben"), spent, Expense, cChartSeries::eShape::Natural);
    Add(data, cText::Tr("Budget"), planned, Balance, cChartSeries::eShape::Line);
    return data;
}
