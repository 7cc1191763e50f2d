#include "base/cText.h"
#include "views/chart/modChartFrame.h"
#include "views/report/modReport.h"

#include <algorithm>

namespace {

constexpr qsizetype mostSeries = 11; // more cannot be told apart by their colours

// A category over all steps.
struct cRow
{
    QString Name;
    cReportNode Node;
    QList<qint64> Cents;
    QList<qint64> Beside; // of the second period; empty without it
    qint64 Total = 0;
};

// Where an entry counts in a chart of one kind; none when it does not.
std::optional<cReportNode> RowOf(const cReportNode& node, eReportKind kind, const std::optional<QString>& group)
{
    if (node.Kind != kind || (group && node.Group != group)) {
        return std::nullopt;
    }
    return group ? node : cReportNode{kind, node.Group, std::nullopt};
}

// Names as in the reports, whose figures hold them.
QString NameOf(const cReportFigures& figures, const cReportNode& node)
{
    for (const cReportGroup& group : figures.Section(node.Kind).Groups) {
        if (group.Name != node.Group) {
            continue;
        }
        for (const cReportCategory& category : group.Categories) {
            if (category.Name == node.Category) {
                return category.Name.isEmpty() ? category.Label : category.Name;
            }
        }
        return group.Label;
    }
    return {};
}

// One of the two periods, and where its sums go.
struct cSource
{
    const modChart::cPeriod& Period;
    const cChartSteps& Steps;
    QList<qint64> cRow::*Values;
};

// Adds up the rows of a period; new ones come at the end.
void AddRows(QList<cRow>& rows, const modChart::cInput& input, eReportKind kind, const cSource& source,
             const cRow& empty)
{
    const cReportWish wish = modChart::ReportWish(input.Wish, source.Period.Range, input.Today);
    modChart::cNodes nodes(wish);
    cEntryItemList samples; // one entry for each new row is enough to learn its name
    const qsizetype known = rows.size();
    for (const cEntryItem& entry : source.Period.Entries) {
        const std::optional<cReportNode>& node = nodes.Of(entry);
        const std::optional<cReportNode> place = node ? RowOf(*node, kind, input.Wish.Group) : std::nullopt;
        const int step = place ? source.Steps.IndexOf(entry.EntryDate) : -1;
        if (step < 0 || step >= (empty.*source.Values).size()) {
            continue;
        }
        auto row = std::find_if(rows.begin(), rows.end(), [&](const cRow& each) { return each.Node == *place; });
        if (row == rows.end()) {
            row = rows.insert(rows.end(), empty);
            row->Node = *place;
            samples.append(entry);
        }
        ((*row).*source.Values)[step] += entry.EntryValue;
        row->Total += entry.EntryValue;
    }
    const cReportFigures figures = modReport::Figures(samples, {}, wish);
    for (qsizetype i = known; i < rows.size(); ++i) {
        rows[i].Name = NameOf(figures, rows[i].Node);
    }
}

void Add(QList<qint64>& sums, const QList<qint64>& more)
{
    for (qsizetype i = 0; i < sums.size(); ++i) {
        sums[i] += more[i];
    }
}

// Largest first. What is too many for its own colour becomes one row.
void Gather(QList<cRow>& rows, const cRow& empty)
{
    std::stable_sort(rows.begin(), rows.end(), [](const cRow& a, const cRow& b) { return a.Total > b.Total; });
    if (rows.size() <= mostSeries + 1) {
        return;
    }
    const auto isRest = [](const cRow& row) { return row.Name == cText::Tr("Sonstiges"); };
    const bool isTaken = std::any_of(rows.begin(), rows.begin() + mostSeries, isRest);
    cRow rest = empty;
    rest.Name = isTaken ? cText::Tr("Weitere") : cText::Tr("Sonstiges");
    for (const cRow& row : rows.sliced(mostSeries)) {
        Add(rest.Cents, row.Cents);
        Add(rest.Beside, row.Beside);
    }
    rows.resize(mostSeries);
    rows.append(rest);
}

// What was gathered has no node; a click on it could not say which of its entries are meant.
cChartSeries SeriesOf(const cRow& row, const cSource& source, const QString& account, int colour)
{
    const auto count = static_cast<int>((row.*source.Values).size());
    cChartSeries series;
    series.Name = row.Name;
    series.Cents = modChart::Values(row.*source.Values, count);
    series.Targets = row.Node.Group ? modChart::Targets(source.Steps, row.Node, account, count) : QList<cChartTarget>();
    series.Colour = row.Node.Group ? colour : static_cast<int>(modChart::Rest);
    series.IsDashed = true;
    return series;
}

void AddSeries(cChartData& data, const QList<cRow>& rows, const cSource& source, const QString& account)
{
    for (qsizetype i = 0; i < rows.size(); ++i) {
        data.Series.append(SeriesOf(rows[i], source, account, static_cast<int>(i)));
    }
}

// The second period on columns of its own.
void AddBeside(cChartData& data, const QList<cRow>& rows, const cSource& source, const QString& account)
{
    const QString period = modChart::RangeText(source.Period.Range);
    const qsizetype first = data.Series.size();
    const QStringList labels = modChart::OwnLabels(source.Steps, static_cast<int>(data.Labels.size()));
    AddSeries(data, rows, source, account);
    for (qsizetype i = first; i < data.Series.size(); ++i) {
        data.Series[i].Name = cText::Tr("{0} ({1})", {data.Series[i].Name, period});
        data.Series[i].IsComparison = true;
        data.Series[i].OwnLabels = labels;
    }
    data.Note = cText::Tr("{0}, blasser daneben: {1}", {data.Note, period});
}

enum class eStep { Month, Year };

QString CategoryTitle(const cChartWish& wish, eReportKind kind, eStep step)
{
    const QString what = kind == eReportKind::Income ? cText::Tr("Einnahmen") : cText::Tr("Ausgaben");
    const QString of = wish.Group ? cText::Tr("{0}: {1}", {what, *wish.Group}) : what;
    return step == eStep::Year ? cText::Tr("{0} je Jahr nach Kategorien", {of})
                               : cText::Tr("{0} je Monat nach Kategorien", {of});
}

} // namespace

cChartData modChart::MonthsByCategory(const cInput& input)
{
    const modPeriod::cRange range = Closed(input.First);
    const modPeriod::cRange second = input.Second ? Closed(*input.Second) : modPeriod::cRange{};
    const eReportKind kind = KindOf(input.Wish.Kind).value_or(eReportKind::Expense);
    if (!IsUsable(range)) {
        return Nothing(input, CategoryTitle(input.Wish, kind, eStep::Month));
    }
    const cChartSteps steps(range);
    const cChartSteps besideSteps(IsUsable(second) ? second : range);
    const cRow empty{{}, {}, QList<qint64>(steps.Count()), QList<qint64>(IsUsable(second) ? steps.Count() : 0)};
    const cSource first{input.First, steps, &cRow::Cents};
    const cSource beside{IsUsable(second) ? *input.Second : input.First, besideSteps, &cRow::Beside};
    QList<cRow> rows;
    AddRows(rows, input, kind, first, empty);
    if (IsUsable(second)) {
        AddRows(rows, input, kind, beside, empty);
    }
    Gather(rows, empty);
    cChartData data = Frame(input, steps);
    data.Kind = eChart::StackedColumns;
    data.Title = CategoryTitle(input.Wish, kind, steps.IsYears() ? eStep::Year : eStep::Month);
    data.BackText = input.Wish.Group ? cText::Tr("Alle Kategorien") : QString();
    AddSeries(data, rows, first, input.Wish.Account);
    if (IsUsable(second)) {
        AddBeside(data, rows, beside, input.Wish.Account);
    }
    return data;
}
