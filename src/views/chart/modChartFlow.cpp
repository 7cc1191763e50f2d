#include "base/cText.h"
#include "views/chart/modChart.h"
#include "views/report/modReport.h"

#include <algorithm>

namespace {

constexpr qsizetype mostParts = 12;  // of one side; more names have no room beside each other
constexpr qint64 smallestPart = 100; // one part in so many of the whole; thinner bands cannot be seen

// A side of the flow is a label of the chart.
enum eSide { In, Out };

struct cPart
{
    QString Name;
    cReportNode Node;
    qint64 Cents = 0;
};

QList<cPart> PartsOf(const cReportSection& section)
{
    QList<cPart> parts;
    for (const cReportGroup& group : section.Groups) {
        if (group.Amount.Sum > 0) {
            parts.append({group.Label, {section.Kind, group.Name, std::nullopt}, group.Amount.Sum});
        }
    }
    std::stable_sort(parts.begin(), parts.end(), [](const cPart& a, const cPart& b) { return a.Cents > b.Cents; });
    return parts;
}

// How many of the parts, largest first, are shown on their own. One alone is never gathered: the rest would be no
// wider.
qsizetype CountShown(const QList<cPart>& parts, qint64 whole)
{
    const auto isSmall = [whole](const cPart& part) { return part.Cents * smallestPart < whole; };
    const auto small = std::find_if(parts.begin(), parts.end(), isSmall);
    const qsizetype shown = std::min<qsizetype>(small - parts.begin(), mostParts);
    return parts.size() - shown < 2 ? parts.size() : shown;
}

void Add(cChartData& data, const QString& name, qint64 cents, eSide side, int colour, const cChartTarget& target)
{
    cChartSeries series;
    series.Name = name;
    series.Colour = colour;
    series.Cents = QList<std::optional<qint64>>(2);
    series.Cents[side] = cents;
    series.Targets = QList<cChartTarget>(2);
    series.Targets[side] = target;
    data.Series.append(series);
}

// The bands of a side from above to below in the order of the parts, so that none crosses another.
void AddSide(cChartData& data, const modChart::cInput& input, const QList<cPart>& parts, eSide side, qint64 whole)
{
    const qsizetype shown = CountShown(parts, whole);
    for (qsizetype i = 0; i < shown; ++i) {
        const cPart& part = parts.at(i);
        const int colour = side == In ? static_cast<int>(modChart::Income) : static_cast<int>(i);
        Add(data, part.Name, part.Cents, side, colour,
            {cChartTarget::eKind::Entries, part.Node, input.Wish.Account, input.First.Range});
    }
    qint64 rest = 0;
    for (const cPart& part : parts.sliced(shown)) {
        rest += part.Cents;
    }
    if (rest > 0) {
        Add(data, cText::Tr("Übriges"), rest, side, modChart::Rest, {});
    }
}

} // namespace

cChartData modChart::Flow(const cInput& input)
{
    cChartData data;
    data.Kind = eChart::Flow;
    data.Title = cText::Tr("Geldfluss");
    data.Note = cText::Tr("{0}, {1}", {RangeText(input.First.Range), AccountText(input.Wish.Account)});
    data.LabelTitle = cText::Tr("Kategorie");
    data.Labels = {cText::Tr("Herein"), cText::Tr("Hinaus")};
    data.Middle = input.Wish.Account.isEmpty() ? cText::Tr("Insgesamt") : input.Wish.Account;
    data.Money = input.Money;
    const cReportWish wish = ReportWish(input.Wish, input.First.Range, input.Today);
    const cReportFigures figures = modReport::Figures(input.First.Entries, {}, wish);
    const qint64 income = figures.Income.Amount.Sum;
    const qint64 expense = figures.Expense.Amount.Sum;
    const qint64 whole = std::max(income, expense);
    AddSide(data, input, PartsOf(figures.Income), In, whole);
    if (expense > income) {
        Add(data, cText::Tr("Aus Erspartem"), expense - income, In, Balance, {});
    }
    AddSide(data, input, PartsOf(figures.Expense), Out, whole);
    if (income > expense) {
        Add(data, cText::Tr("Bleibt übrig"), income - expense, Out, Balance, {});
    }
    return data;
}
