#include "base/cText.h"
#include "model/modWord.h"
#include "views/cChartSteps.h"
#include "views/modChart.h"
#include "views/modReport.h"

#include <QHash>

#include <algorithm>

namespace {

constexpr qsizetype mostSeries = 11;

// The range with its open sides closed by the first and the last entry.
modPeriod::cRange Closed(const modChart::cPeriod& period)
{
    modPeriod::cRange range = period.Range;
    for (const cEntryItem& entry : period.Entries) {
        if (!period.Range.Start.isValid() && (!range.Start.isValid() || entry.EntryDate < range.Start)) {
            range.Start = entry.EntryDate;
        }
        if (!period.Range.End.isValid() && (!range.End.isValid() || entry.EntryDate > range.End)) {
            range.End = entry.EntryDate;
        }
    }
    return range;
}

bool IsUsable(const modPeriod::cRange& range)
{
    return range.Start.isValid() && range.End.isValid() && range.Start <= range.End;
}

// The nodes of entries. There are many entries and few categories, so each is looked up once.
class cNodes
{
public:
    explicit cNodes(const cReportWish& wish) : m_wish(wish) {}

    [[nodiscard]] const std::optional<cReportNode>& Of(const cEntryItem& entry)
    {
        const std::pair<QString, QString> key(entry.EntryType, entry.EntryCategory);
        auto found = m_nodes.find(key);
        if (found == m_nodes.end()) {
            found = m_nodes.insert(key, modReport::NodeOf(entry, m_wish));
        }
        return *found;
    }

private:
    const cReportWish& m_wish;
    QHash<std::pair<QString, QString>, std::optional<cReportNode>> m_nodes;
};

struct cKindSums
{
    QList<qint64> Income;
    QList<qint64> Expense;
};

cKindSums SumKinds(const modChart::cInput& input, const modChart::cPeriod& period, const cChartSteps& steps)
{
    cKindSums sums{QList<qint64>(steps.Count()), QList<qint64>(steps.Count())};
    const cReportWish wish = modChart::ReportWish(input.Wish, period.Range, input.Today);
    cNodes nodes(wish);
    for (const cEntryItem& entry : period.Entries) {
        const std::optional<cReportNode>& node = nodes.Of(entry);
        const int step = node ? steps.IndexOf(entry.EntryDate) : -1;
        if (step >= 0) {
            (node->Kind == eReportKind::Income ? sums.Income : sums.Expense)[step] += entry.EntryValue;
        }
    }
    return sums;
}

cChartData Frame(const modChart::cInput& input, const cChartSteps& steps)
{
    cChartData data;
    data.Note = modChart::AccountText(input.Wish.Account);
    data.LabelTitle = steps.IsYears() ? cText::Tr("Jahr") : cText::Tr("Monat");
    for (int step = 0; step < steps.Count(); ++step) {
        data.Labels.append(steps.Label(step));
        data.ShortLabels.append(steps.ShortLabel(step));
    }
    const int today = steps.IndexOf(input.Today);
    data.Today = today >= 0 && today < steps.Count() - 1 ? today : -1;
    data.Money = input.Money;
    return data;
}

QList<std::optional<qint64>> Values(const QList<qint64>& cents, int count)
{
    QList<std::optional<qint64>> values(count);
    for (int i = 0; i < std::min<int>(count, static_cast<int>(cents.size())); ++i) {
        values[i] = cents[i];
    }
    return values;
}

QList<cChartTarget> Targets(const cChartSteps& steps, const std::optional<cReportNode>& node, const QString& account,
                            int count)
{
    QList<cChartTarget> targets;
    for (int i = 0; i < std::min(count, steps.Count()); ++i) {
        targets.append({cChartTarget::eKind::Entries, node, account, steps.RangeAt(i)});
    }
    return targets;
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
        series.Cents = Values(cents, count);
        series.Targets = Targets(steps, node, input.Wish.Account, count);
        series.Colour = colour;
        series.IsDashed = true;
        series.IsComparison = beside == eBeside::Yes;
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

// A category over all steps.
struct cRow
{
    QString Name;
    cReportNode Node;
    QList<qint64> Cents;
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

QList<cRow> SumRows(const modChart::cInput& input, const cChartSteps& steps, eReportKind kind)
{
    const cReportWish wish = modChart::ReportWish(input.Wish, input.First.Range, input.Today);
    cNodes nodes(wish);
    QList<cRow> rows;
    cEntryItemList samples; // one entry for each row is enough to learn its name
    for (const cEntryItem& entry : input.First.Entries) {
        const std::optional<cReportNode>& node = nodes.Of(entry);
        const std::optional<cReportNode> place = node ? RowOf(*node, kind, input.Wish.Group) : std::nullopt;
        const int step = place ? steps.IndexOf(entry.EntryDate) : -1;
        if (step < 0) {
            continue;
        }
        auto row = std::find_if(rows.begin(), rows.end(), [&](const cRow& each) { return each.Node == *place; });
        if (row == rows.end()) {
            row = rows.insert(rows.end(), cRow{{}, *place, QList<qint64>(steps.Count())});
            samples.append(entry);
        }
        row->Cents[step] += entry.EntryValue;
        row->Total += entry.EntryValue;
    }
    const cReportFigures figures = modReport::Figures(samples, {}, wish);
    for (cRow& row : rows) {
        row.Name = NameOf(figures, row.Node);
    }
    std::stable_sort(rows.begin(), rows.end(), [](const cRow& a, const cRow& b) { return a.Total > b.Total; });
    return rows;
}

// What is too many for its own colour becomes one row.
void Gather(QList<cRow>& rows)
{
    if (rows.size() <= mostSeries + 1) {
        return;
    }
    const auto isRest = [](const cRow& row) { return row.Name == cText::Tr("Sonstiges"); };
    const bool isTaken = std::any_of(rows.begin(), rows.begin() + mostSeries, isRest);
    cRow rest{isTaken ? cText::Tr("Weitere") : cText::Tr("Sonstiges"), {}, QList<qint64>(rows.first().Cents.size())};
    for (const cRow& row : rows.sliced(mostSeries)) {
        for (qsizetype i = 0; i < row.Cents.size(); ++i) {
            rest.Cents[i] += row.Cents[i];
        }
    }
    rows.resize(mostSeries);
    rows.append(rest);
}

// What was gathered has no node; a click on it could not say which of its entries are meant.
cChartSeries SeriesOf(const cRow& row, const cChartSteps& steps, const QString& account, int place)
{
    const bool isRest = !row.Node.Group;
    cChartSeries series;
    series.Name = row.Name;
    series.Cents = Values(row.Cents, steps.Count());
    series.Targets = isRest ? QList<cChartTarget>() : Targets(steps, row.Node, account, steps.Count());
    series.Colour = isRest ? static_cast<int>(modChart::Rest) : place;
    series.IsDashed = true;
    return series;
}

// A title and nothing below it.
cChartData Nothing(const modChart::cInput& input, const QString& title)
{
    cChartData data;
    data.Title = title;
    data.Note = modChart::AccountText(input.Wish.Account);
    data.BackText = input.Wish.Group ? cText::Tr("Alle Kategorien") : QString();
    return data;
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

cChartData modChart::MonthsByCategory(const cInput& input)
{
    const modPeriod::cRange range = Closed(input.First);
    const eReportKind kind = KindOf(input.Wish.Kind).value_or(eReportKind::Expense);
    if (!IsUsable(range)) {
        return Nothing(input, CategoryTitle(input.Wish, kind, eStep::Month));
    }
    const cChartSteps steps(range);
    cChartData data = Frame(input, steps);
    data.Kind = eChart::StackedColumns;
    data.Title = CategoryTitle(input.Wish, kind, steps.IsYears() ? eStep::Year : eStep::Month);
    data.BackText = input.Wish.Group ? cText::Tr("Alle Kategorien") : QString();
    QList<cRow> rows = SumRows(input, steps, kind);
    Gather(rows);
    for (const cRow& row : std::as_const(rows)) {
        const int place = static_cast<int>(data.Series.size());
        data.Series.append(SeriesOf(row, steps, input.Wish.Account, place));
    }
    return data;
}
