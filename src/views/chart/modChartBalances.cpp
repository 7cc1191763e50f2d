#include "base/cText.h"
#include "base/modDate.h"
#include "views/chart/modChartFrame.h"

#include <algorithm>

namespace {

constexpr int mostDays = 62; // of more than these, the axis names months

// The days that the axis can name: each one, or the first of each month.
QList<int> TicksOf(const cBalanceDays& days)
{
    QList<int> ticks;
    for (int day = 0; day < days.Count(); ++day) {
        if (days.Count() <= mostDays || days.Day(day).day() == 1) {
            ticks.append(day);
        }
    }
    return ticks;
}

// Only of days that the axis can name: ten years have very many others.
QString ShortLabel(QDate day, int count)
{
    if (count <= mostDays) {
        return modDate::ToShortText(day);
    }
    return day.day() == 1 ? modChart::ShortMonthText(day) : QString();
}

bool HasMoney(const cBalanceLine& line)
{
    return std::any_of(line.Cents.begin(), line.Cents.end(), [](qint64 cents) { return cents != 0; });
}

// A click on a day shows what was booked on it.
QList<cChartTarget> Targets(const cBalanceDays& days, const QString& account)
{
    QList<cChartTarget> targets;
    targets.reserve(days.Count());
    for (int day = 0; day < days.Count(); ++day) {
        targets.append({cChartTarget::eKind::Entries, std::nullopt, account, {days.Day(day), days.Day(day)}});
    }
    return targets;
}

void AddLine(cChartData& data, const cBalanceDays& days, const cBalanceLine& line, int colour)
{
    cChartSeries series;
    series.Name = line.Account.isEmpty() ? cText::Tr("Alle Konten") : line.Account;
    series.Cents = modChart::Values(line.Cents, days.Count());
    series.Targets = Targets(days, line.Account);
    series.Colour = colour;
    series.IsDashed = true;
    data.Series.append(series);
}

// The lines that the wish asks for: one account, or the sum and then every account that ever had money.
QList<cBalanceLine> LinesOf(const cBalanceDays& days, const QString& account)
{
    QList<cBalanceLine> lines;
    if (account.isEmpty()) {
        lines.append(days.Sum);
    }
    for (const cBalanceLine& line : days.Accounts) {
        if (account.isEmpty() ? HasMoney(line) : line.Account == account) {
            lines.append(line);
        }
    }
    // With a single account the sum would say the same once more, and without any it says nothing.
    if (account.isEmpty() && lines.size() <= 2) {
        lines.removeFirst();
    }
    return lines;
}

void AddSecond(cChartData& data, const cBalanceDays& days, const QString& account)
{
    const QList<cBalanceLine> lines = LinesOf(days, account);
    if (lines.isEmpty()) {
        return;
    }
    cChartSeries series;
    const QString name = lines.first().Account.isEmpty() ? cText::Tr("Alle Konten") : lines.first().Account;
    const modPeriod::cRange range{days.First, days.Day(days.Count() - 1)};
    series.Name = cText::Tr("{0} ({1})", {name, modChart::RangeText(range)});
    series.Cents = modChart::Values(lines.first().Cents, static_cast<int>(data.Labels.size()));
    series.Targets = Targets(days, lines.first().Account);
    series.Colour = data.Series.isEmpty() ? 0 : data.Series.first().Colour;
    series.IsComparison = true;
    for (int day = 0; day < days.Count(); ++day) {
        series.OwnLabels.append(modDate::ToText(days.Day(day)));
    }
    data.Series.append(series);
}

// The lowest point of what is still to come.
void AddMark(cChartData& data, const cBalanceDays& days, const cBalanceLine& line)
{
    const int lowest = data.Today < 0 ? -1 : cBalanceDays::Lowest(line, data.Today);
    if (lowest > data.Today) {
        data.Marks.append({0, lowest,
                           cText::Tr("Tiefster Stand: {0} am {1}",
                                     {data.MoneyText(line.Cents[lowest]), modDate::ToText(days.Day(lowest))})});
    }
}

} // namespace

cChartData modChart::Balances(const cBalanceInput& input)
{
    cChartData data;
    data.Kind = eChart::Line;
    data.Title = cText::Tr("Verlauf der Kontostände");
    data.Note = AccountText(input.Wish.Account);
    data.LabelTitle = cText::Tr("Tag");
    data.Money = input.Money;
    const cBalanceDays& days = input.Days;
    const QList<cBalanceLine> lines = LinesOf(days, input.Wish.Account);
    if (days.Count() == 0 || lines.isEmpty()) {
        return data;
    }
    for (int day = 0; day < days.Count(); ++day) {
        const QDate date = days.Day(day);
        data.Days.append(date);
        data.Labels.append(modDate::ToText(date));
        data.ShortLabels.append(ShortLabel(date, days.Count()));
    }
    data.Ticks = TicksOf(days);
    const int today = days.IndexOf(input.Today);
    data.Today = today >= 0 && today < days.Count() - 1 ? today : -1;
    for (const cBalanceLine& line : lines) {
        AddLine(data, days, line, static_cast<int>(data.Series.size()));
    }
    if (input.Second && input.Second->Count() > 0) {
        AddSecond(data, *input.Second, input.Wish.Account);
    }
    AddMark(data, days, lines.first());
    data.Limit = input.Limit;
    data.LimitText = input.Limit ? cText::Tr("Limit {0}", {data.MoneyText(*input.Limit)}) : QString();
    return data;
}
