#include "base/cText.h"
#include "model/cLimits.h"
#include "model/cTemplateItem.h"
#include "views/chart/modChartFrame.h"
#include "views/report/modReport.h"

#include <QHash>

#include <algorithm>
#include <optional>
#include <utility>

namespace {

// A category over all steps.
struct cRow
{
    QString Name;
    cReportNode Node;
    QList<qint64> Spent;
    QList<std::optional<qint64>> Limit; // none in a step without one
};

// The categories that the report on the whole period names, with what belongs to each step. What is carried over is
// left out: it would count once for every month that it goes through.
QList<cRow> Rows(const modChart::cInput& input, const cLimits& limits, const modPeriod::cRange& range,
                 const cChartSteps& steps)
{
    const cReportWish wish = modChart::ReportWish(input.Wish, range, input.Today);
    const cReportFigures figures = modReport::Figures(input.First.Entries, limits, wish);
    const cSpent spent = modBudget::Spent(input.First.Entries);
    QList<cRow> rows;
    for (const cReportGroup& group : figures.Expense.Groups) {
        for (const cReportCategory& category : group.Categories) {
            const cReportNode node{eReportKind::Expense, group.Name, category.Name};
            cRow row{category.Name.isEmpty() ? group.Label : category.Name, node, QList<qint64>(steps.Count()),
                     QList<std::optional<qint64>>(steps.Count())};
            const QString path = modBudget::KeyOf(modTemplate::Join(group.Name, category.Name));
            const QMap<QDate, qint64> months = spent.value(path);
            for (auto month = months.begin(); month != months.end(); ++month) {
                if (const int step = steps.IndexOf(std::max(month.key(), range.Start)); step >= 0) {
                    row.Spent[step] += *month;
                }
            }
            for (int step = 0; step < steps.Count(); ++step) {
                if (const auto limit = limits.Of(path, steps.RangeAt(step).Start, steps.MonthsAt(step))) {
                    row.Limit[step] = limit->Own;
                }
            }
            rows.append(row);
        }
    }
    return rows;
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
    QList<cRow> rows = Rows(input, limits, range, steps);
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
        limit.Cents = row.Limit;
        limit.Colour = Expense;
        limit.Shape = cChartSeries::eShape::Line;
        data.Series += {spent, limit};
    }
    return data;
}
