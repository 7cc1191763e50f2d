#include "base/cText.h"
#include "base/modDate.h"
#include "views/chart/modChartFrame.h"

#include <algorithm>

namespace {

constexpr int shades = 5;

// The first number of 1, 2, 5, 10, 20, ... euros that is not below the amount.
qint64 RoundUp(qint64 cents)
{
    constexpr qint64 euro = 100;
    for (qint64 power = euro;; power *= 10) {
        for (const qint64 factor : {1, 2, 5}) {
            if (factor * power >= cents) {
                return factor * power;
            }
        }
    }
}

// Borders between the shades: each has about as many days as the others, so that the rent leaves some for the rest.
QList<qint64> LevelsOf(QList<qint64> spent)
{
    QList<qint64> levels;
    std::sort(spent.begin(), spent.end());
    for (int shade = 1; shade < shades && !spent.isEmpty(); ++shade) {
        const qint64 level = RoundUp(spent.at((spent.size() - 1) * shade / shades));
        if ((levels.isEmpty() || level > levels.last()) && level < spent.last()) {
            levels.append(level);
        }
    }
    return levels;
}

// The year of today where the period has it, else the one in which the period ends: series go on for very long.
int YearOf(const modPeriod::cRange& range, QDate today)
{
    const bool hasToday = range.Start <= today && range.End >= today;
    return hasToday || !range.End.isValid() ? today.year() : range.End.year();
}

void AddDays(cChartData& data, int year)
{
    for (QDate day(year, 1, 1); day.year() == year; day = day.addDays(1)) {
        data.Days.append(day);
        data.Labels.append(modDate::ToText(day));
    }
}

} // namespace

cChartData modChart::Calendar(const cInput& input)
{
    const modPeriod::cRange range = Closed(input.First);
    const int year = YearOf(range, input.Today);
    cChartData data;
    data.Kind = eChart::Calendar;
    data.Title = cText::Tr("Ausgaben je Tag {0}", {QString::number(year)});
    data.Note = AccountText(input.Wish.Account);
    data.LabelTitle = cText::Tr("Tag");
    data.Money = input.Money;
    if (!IsUsable(range)) {
        return data;
    }
    AddDays(data, year);
    cChartSeries series;
    series.Name = cText::Tr("Ausgaben");
    series.Cents = QList<std::optional<qint64>>(data.Days.size());
    series.Targets = QList<cChartTarget>(data.Days.size());
    series.Colour = Expense;
    series.IsDashed = true;
    const int first = static_cast<int>(std::max<qint64>(0, data.Days.first().daysTo(range.Start)));
    const int last = static_cast<int>(std::min(data.Days.first().daysTo(range.End), data.Days.size() - 1));
    std::fill(series.Cents.begin() + first, series.Cents.begin() + last + 1, qint64(0));
    const cReportWish wish = ReportWish(input.Wish, input.First.Range, input.Today);
    cNodes nodes(wish);
    const cReportNode expenses{eReportKind::Expense};
    for (const cEntryItem& entry : input.First.Entries) {
        const std::optional<cReportNode>& node = nodes.Of(entry);
        if (!node || node->Kind != eReportKind::Expense || entry.EntryDate.year() != year) {
            continue;
        }
        const int day = entry.EntryDate.dayOfYear() - 1;
        series.Cents[day] = series.Cents[day].value_or(0) + entry.EntryValue;
        series.Targets[day] = {
            cChartTarget::eKind::Entries, expenses, input.Wish.Account, {entry.EntryDate, entry.EntryDate}};
    }
    QList<qint64> spent;
    for (const std::optional<qint64>& cents : std::as_const(series.Cents)) {
        if (cents.value_or(0) > 0) {
            spent.append(*cents);
        }
    }
    data.Levels = LevelsOf(spent);
    data.Today = input.Today.year() == year ? input.Today.dayOfYear() - 1 : -1;
    data.Series.append(series);
    return data;
}
