#include "views/chart/modChart.h"
#include "views/look/modCategoryColor.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace {

// The main category that a series stands for; in the limits each series is one category, which has the colour of its
// main one. Nothing for all others: the categories within one main category could not be told apart.
std::optional<QString> MainOf(const cChartData& data, const cChartSeries& series)
{
    const auto target = std::find_if(series.Targets.begin(), series.Targets.end(),
                                     [](const cChartTarget& each) { return each.Node.has_value(); });
    const bool isOne = target != series.Targets.end() && target->Node->Group
        && (!target->Node->Category || data.Kind == eChart::Limits);
    return isOne ? target->Node->Group : std::nullopt;
}

// Where every category has a number of its own; on the left side of a flow all are one colour.
bool IsNumbered(const cChartData& data, const cChartSeries& series)
{
    return data.Kind == eChart::Pie || data.Kind == eChart::StackedColumns
        || (data.Kind == eChart::Flow && !series.At(0));
}

// The same number for a series and the one laid beside it, in the order in which they came.
void Renumber(const QList<cChartSeries*>& others, const QSet<int>& taken)
{
    QHash<int, int> numbers;
    int next = 0;
    for (cChartSeries* series : others) {
        if (!numbers.contains(series->Colour)) {
            while (next < modCategoryColor::Count && taken.contains(next)) {
                ++next;
            }
            numbers.insert(series->Colour, next < modCategoryColor::Count ? next++ : series->Colour);
        }
        series->Colour = numbers.value(series->Colour);
    }
}

} // namespace

void modChart::UseLooks(cChartData& data, const cCategoryLooks& looks)
{
    if (looks.IsEmpty()) {
        return;
    }
    QSet<int> taken{Balance, Rest};
    QList<cChartSeries*> others;
    for (cChartSeries& series : data.Series) {
        const std::optional<QString> main = MainOf(data, series);
        series.OwnColour = main ? looks.Of(*main).Color : QString();
        if (!series.OwnColour.isEmpty()) {
            taken.insert(modCategoryColor::NumberLike(series.OwnColour).value_or(Rest));
        } else if (main && IsNumbered(data, series)) {
            others.append(&series);
        }
    }
    // What goes beyond a limit has the colour of expenses, which must not be that of the column.
    for (qsizetype i = 1; i < data.Series.size() && data.Kind == eChart::Limits; ++i) {
        const QString& column = data.Series.at(i - 1).OwnColour;
        data.Series[i].Colour = modCategoryColor::NumberLike(column) == Expense ? Balance : data.Series.at(i).Colour;
    }
    if (taken.size() > 2) { // else nothing in the palette looks like them
        Renumber(others, taken);
    }
}
