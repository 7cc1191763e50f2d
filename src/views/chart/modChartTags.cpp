#include "base/cText.h"
#include "views/chart/modChart.h"
#include "views/report/modReport.h"
#include "views/report/modTagSums.h"

#include <algorithm>

namespace {

constexpr qsizetype mostTags = 12; // more cannot be read side by side

QList<cTagSum> SumsOf(const modChart::cInput& input, const modChart::cPeriod& period)
{
    return modTagSums::Of(
        modReport::Figures(period.Entries, {}, modChart::ReportWish(input.Wish, period.Range, input.Today)));
}

cTagSum Find(const QList<cTagSum>& sums, const QString& name)
{
    const auto found = std::find_if(sums.begin(), sums.end(), [&](const cTagSum& sum) { return sum.Name == name; });
    return found == sums.end() ? cTagSum{} : *found;
}

enum class eBeside { No, Yes };

// One side of a period, a value for each of `tags`.
cChartSeries Series(const modChart::cInput& input, const modChart::cPeriod& period, const QList<cTagSum>& tags,
                    eReportKind kind, eBeside beside)
{
    const bool isIncome = kind == eReportKind::Income;
    const QList<cTagSum> sums = SumsOf(input, period);
    const QString name = modReport::ShownKind(kind);
    cChartSeries series;
    series.IsComparison = beside == eBeside::Yes;
    series.Name = series.IsComparison ? cText::Tr("{0} ({1})", {name, modChart::RangeText(period.Range)}) : name;
    series.Colour = isIncome ? modChart::Income : modChart::Expense;
    for (const cTagSum& tag : tags) {
        const cTagSum sum = Find(sums, tag.Name);
        series.Cents.append(isIncome ? sum.Income : sum.Expense);
        series.Targets.append(
            {cChartTarget::eKind::Entries, cReportNode{kind, tag.Name}, input.Wish.Account, period.Range});
    }
    return series;
}

bool HasValue(const cChartSeries& series)
{
    return std::any_of(series.Cents.begin(), series.Cents.end(),
                       [](const auto& cents) { return cents.value_or(0) != 0; });
}

} // namespace

// What has no tag is mostly far more than all that has one, so it stands in the line below the title.
cChartData modChart::Tags(const cInput& input)
{
    cChartData data;
    data.Kind = eChart::Columns;
    data.Title = cText::Tr("Ausgaben und Einnahmen nach Schlagwörtern");
    data.LabelTitle = cText::Tr("Schlagwort");
    data.Money = input.Money;
    QList<cTagSum> tags = SumsOf(input, input.First);
    const cTagSum none = Find(tags, modReport::NoTag);
    data.Note = none.Expense == 0
        ? AccountText(input.Wish.Account)
        : cText::Tr("{0}; Ausgaben ohne Schlagwort: {1}", {AccountText(input.Wish.Account), input.Money(none.Expense)});
    tags.removeIf([](const cTagSum& tag) { return tag.Name == modReport::NoTag; });
    tags = tags.first(std::min(tags.size(), mostTags));
    for (const cTagSum& tag : tags) {
        data.Labels.append(tag.Label);
    }
    for (const eReportKind kind : {eReportKind::Expense, eReportKind::Income}) {
        QList<cChartSeries> series{Series(input, input.First, tags, kind, eBeside::No)};
        if (input.Second) {
            series.append(Series(input, *input.Second, tags, kind, eBeside::Yes));
        }
        if (std::any_of(series.begin(), series.end(), HasValue)) {
            data.Series.append(series);
        }
    }
    return data;
}
