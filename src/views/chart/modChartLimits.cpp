#include "base/cText.h"
#include "model/cLimits.h"
#include "model/cTemplateItem.h"
#include "views/chart/modChartFrame.h"
#include "views/report/modReport.h"

#include <algorithm>
#include <iterator>

namespace {

// A category over all steps.
struct cRow
{
    QString Name;
    cReportNode Node;
    QList<qint64> Spent;
    QList<qint64> Limit;
};

// The limits of a part of the period and what was spent of them.
cReportFigures LimitsOf(const modChart::cInput& input, const cEntryItemList& entries, const cLimits& limits,
                        const modPeriod::cRange& range)
{
    const cReportWish wish = modChart::ReportWish(input.Wish, range, input.Today);
    return modReport::Figures(entries, limits, wish);
}

QList<cEntryItemList> ByStep(const cEntryItemList& entries, const cChartSteps& steps)
{
    QList<cEntryItemList> parts(steps.Count());
    for (const cEntryItem& entry : entries) {
        const int step = steps.IndexOf(entry.EntryDate);
        if (step >= 0) {
            parts[step].append(entry);
        }
    }
    return parts;
}

void Take(QList<cRow>& rows, const cReportFigures& figures, int step, int steps)
{
    for (const cReportGroup& group : figures.Expense.Groups) {
        for (const cReportCategory& category : group.Categories) {
            if (category.Amount.Limit <= 0) {
                continue;
            }
            const cReportNode node{eReportKind::Expense, group.Name, category.Name};
            auto row = std::find_if(rows.begin(), rows.end(), [&](const cRow& each) { return each.Node == node; });
            if (row == rows.end()) {
                row = rows.insert(rows.end(),
                                  {category.Name.isEmpty() ? group.Label : category.Name, node, QList<qint64>(steps),
                                   QList<qint64>(steps)});
            }
            row->Spent[step] = category.Amount.Cents;
            row->Limit[step] = category.Amount.Limit;
        }
    }
}

// Two categories of the same name are told apart by their groups.
void NameRows(QList<cRow>& rows)
{
    QHash<QString, int> uses;
    for (const cRow& row : std::as_const(rows)) {
        ++uses[row.Name];
    }
    for (cRow& row : rows) {
        row.Name =
            uses.value(row.Name) > 1 ? modTemplate::Join(row.Node.Group.value_or(QString()), row.Name) : row.Name;
    }
}

} // namespace

cChartData modChart::Limits(const cInput& input, const cLimits& limits)
{
    const modPeriod::cRange range = Closed(input.First);
    if (!IsUsable(range)) {
        cChartData nothing = Nothing(input, cText::Tr("Limits je Monat"));
        nothing.Kind = eChart::Limits;
        return nothing;
    }
    const cChartSteps steps(range);
    const QList<cEntryItemList> entries = ByStep(input.First.Entries, steps);
    QList<cRow> rows;
    for (int step = 0; step < steps.Count(); ++step) {
        Take(rows, LimitsOf(input, entries.at(step), limits, steps.RangeAt(step)), step, steps.Count());
    }
    NameRows(rows);
    cChartData data = Frame(input, steps);
    data.Kind = eChart::Limits;
    data.Note = cText::Tr("{0}; Säulen: ausgegeben, Linie: Limit", {AccountText(input.Wish.Account)});
    data.Title = steps.IsYears() ? cText::Tr("Limits je Jahr") : cText::Tr("Limits je Monat");
    for (const cRow& row : std::as_const(rows)) {
        cChartSeries spent;
        spent.Name = row.Name;
        spent.Cents = Values(row.Spent, steps.Count());
        spent.Targets = Targets(steps, row.Node, input.Wish.Account, steps.Count());
        spent.Colour = Sum;
        spent.IsDashed = true;
        cChartSeries limit;
        limit.Name = cText::Tr("Limit {0}", {row.Name});
        limit.Cents = Values(row.Limit, steps.Count());
        limit.Colour = Expense;
        limit.Shape = cChartSeries::eShape::Line;
        data.Series += {spent, limit};
    }
    return data;
}
