#include "base/cText.h"
#include "views/chart/modChart.h"
#include "views/report/modReport.h"

#include <algorithm>

namespace {

constexpr qsizetype mostSlices = 10;  // more cannot be told apart by their colours
constexpr qint64 smallestSlice = 100; // one part in so many; thinner slices cannot be seen

// A slice in both periods.
struct cSlice
{
    QString Name;
    cReportNode Node;
    qint64 First = 0;
    qint64 Second = 0;

    [[nodiscard]] qint64 Both() const { return First + Second; }
};

using cSliceList = QList<cSlice>;

void Add(cSliceList& slices, const QString& name, const cReportNode& node, qint64 cents, qint64 cSlice::*period)
{
    auto found = std::find_if(slices.begin(), slices.end(), [&](const cSlice& slice) { return slice.Node == node; });
    if (found == slices.end()) {
        found = slices.insert(slices.end(), cSlice{name, node});
    }
    (*found).*period += cents;
}

void Collect(cSliceList& slices, const cReportSection& section, const std::optional<QString>& only,
             qint64 cSlice::*period)
{
    for (const cReportGroup& group : section.Groups) {
        if (!only) {
            Add(slices, group.Label, {section.Kind, group.Name, std::nullopt}, group.Amount.Sum, period);
        } else if (group.Name == *only) {
            for (const cReportCategory& category : group.Categories) {
                const QString name = category.Name.isEmpty() ? category.Label : category.Name;
                Add(slices, name, {section.Kind, group.Name, category.Name}, category.Amount.Sum, period);
            }
        }
    }
}

cReportSection SectionOf(const modChart::cInput& input, const modChart::cPeriod& period, eReportKind kind)
{
    const cReportWish wish = modChart::ReportWish(input.Wish, period.Range, input.Today);
    return modReport::Figures(period.Entries, {}, wish).Section(kind);
}

// How many of the slices, largest first, get a place of their own. One alone is never gathered: the rest would be no
// wider than it.
qsizetype CountShown(const cSliceList& slices)
{
    qint64 total = 0;
    for (const cSlice& slice : slices) {
        total += slice.Both();
    }
    const auto isSmall = [total](const cSlice& slice) { return slice.Both() * smallestSlice < total; };
    const auto small = std::find_if(slices.begin(), slices.end(), isSmall);
    const qsizetype shown = std::min<qsizetype>(small - slices.begin(), mostSlices);
    return slices.size() - shown < 2 ? slices.size() : shown;
}

QString RestName(const cSliceList& shown)
{
    const QString rest = cText::Tr("Sonstiges");
    const bool isTaken =
        std::any_of(shown.begin(), shown.end(), [&](const cSlice& slice) { return slice.Name == rest; });
    return isTaken ? cText::Tr("Weitere") : rest;
}

cChartSeries SeriesOf(const modChart::cInput& input, const cSlice& slice, cChartTarget::eKind kind)
{
    cChartSeries series;
    series.Name = slice.Name;
    series.Cents = {slice.First};
    series.Targets = {{kind, slice.Node, input.Wish.Account, input.First.Range}};
    if (input.Second) {
        series.Cents.append(slice.Second);
        series.Targets.append({kind, slice.Node, input.Wish.Account, input.Second->Range});
    }
    return series;
}

void AddSeries(cChartData& data, const modChart::cInput& input, const cSliceList& slices)
{
    const qsizetype shown = CountShown(slices);
    const auto kind = input.Wish.Group ? cChartTarget::eKind::Entries : cChartTarget::eKind::Deeper;
    for (const cSlice& slice : slices.first(shown)) {
        data.Series.append(SeriesOf(input, slice, kind));
        data.Series.last().Colour = static_cast<int>(data.Series.size()) - 1;
    }
    if (shown == slices.size()) {
        return;
    }
    cSlice rest{RestName(slices.first(shown)), {}};
    for (const cSlice& slice : slices.sliced(shown)) {
        rest.First += slice.First;
        rest.Second += slice.Second;
    }
    data.Series.append(SeriesOf(input, rest, cChartTarget::eKind::None));
    data.Series.last().Colour = modChart::Rest;
}

QString Title(const cChartWish& wish, eReportKind kind)
{
    const bool isIncome = kind == eReportKind::Income;
    if (wish.Group) {
        return isIncome ? cText::Tr("Einnahmen: {0}", {*wish.Group}) : cText::Tr("Ausgaben: {0}", {*wish.Group});
    }
    return isIncome ? cText::Tr("Einnahmen nach Kategorien") : cText::Tr("Ausgaben nach Kategorien");
}

} // namespace

cChartData modChart::Pie(const cInput& input)
{
    const eReportKind kind = KindOf(input.Wish.Kind).value_or(eReportKind::Expense);
    cSliceList slices;
    Collect(slices, SectionOf(input, input.First, kind), input.Wish.Group, &cSlice::First);
    if (input.Second) {
        Collect(slices, SectionOf(input, *input.Second, kind), input.Wish.Group, &cSlice::Second);
    }
    slices.removeIf([](const cSlice& slice) { return slice.First == 0 && slice.Second == 0; });
    std::stable_sort(slices.begin(), slices.end(),
                     [](const cSlice& a, const cSlice& b) { return a.Both() > b.Both(); });
    cChartData data;
    data.Kind = eChart::Pie;
    data.Title = Title(input.Wish, kind);
    data.Note = AccountText(input.Wish.Account);
    data.BackText = input.Wish.Group ? cText::Tr("Alle Kategorien") : QString();
    data.LabelTitle = cText::Tr("Kategorie");
    data.Labels = {RangeText(input.First.Range)};
    if (input.Second) {
        data.Labels.append(RangeText(input.Second->Range));
    }
    data.Money = input.Money;
    AddSeries(data, input, slices);
    return data;
}
