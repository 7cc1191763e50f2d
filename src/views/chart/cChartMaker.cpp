#include "views/chart/cChartMaker.h"

#include "core/cAmountFormat.h"
#include "core/cSettings.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "views/budget/modLimits.h"
#include "views/chart/cForecast.h"
#include "views/chart/modChart.h"
#include "views/chart/modForecast.h"
#include "views/common/modUnread.h"
#include "views/report/modReport.h"

#include <algorithm>

namespace {

// Without the future a range ends today at the latest. One that begins before any entry can, begins with the first.
modPeriod::cRange Cut(modPeriod::cRange range, const cChartWish& wish, QDate today)
{
    if (!modReport::HasStart(range)) {
        range.Start = {};
    }
    if (!wish.ShowsFuture && (!range.End.isValid() || range.End > today)) {
        range.End = today;
    }
    return range;
}

modChart::cPeriod Fetch(cDataAccess& data, const modPeriod::cRange& range, const QString& account)
{
    cEntryQuery query;
    query.Start = range.Start;
    query.End = range.End;
    query.Account = account;
    return {range, data.GetEntries(query)};
}

std::optional<qint64> LimitOf(cDataAccess& data, const QString& account)
{
    const std::optional<cTemplateItem> item = account.isEmpty() ? std::nullopt : data.FindAccount(account);
    return item ? modForecast::Limit(*item) : std::nullopt;
}

cChartData Unread()
{
    cChartData chart;
    chart.IsUnread = true;
    return chart;
}

} // namespace

cChartData cChartMaker::Make(const cChartWish& wish)
{
    cChartData data = HasForecast(wish.Kind) ? MakeBalances(wish) : MakeFromEntries(wish);
    data.Decimal = m_format.Decimal();
    modChart::UseLooks(data, cCategoryLooks::Read(m_data));
    return data;
}

cChartData cChartMaker::MakeLimits(const modChart::cInput& input)
{
    const cSettings settings(m_data);
    const cLimits limits = modLimits::Read(m_data, settings, m_data.GetTemplates(), {});
    if (!m_data.IsWhole()) {
        return Unread();
    }
    return input.Wish.Kind == eChartKind::Budget ? modChart::Budget(input, limits) : modChart::Limits(input, limits);
}

cChartData cChartMaker::MakeFromEntries(const cChartWish& wish)
{
    const auto money = [&format = m_format](qint64 cents) { return format.Cents(cents); };
    modChart::cInput input{wish, Fetch(m_data, Cut(wish.Range, wish, m_today), wish.Account), {}, m_today, money};
    if (wish.Second && CanCompare(wish.Kind)) {
        input.Second = Fetch(m_data, Cut(*wish.Second, wish, m_today), wish.Account);
    }
    if (modUnread::IsMissing(m_data, input.First.Entries.size())
        || (input.Second && modUnread::IsMissing(m_data, input.Second->Entries.size()))) {
        return Unread();
    }
    switch (wish.Kind) {
    case eChartKind::ExpensePie:
    case eChartKind::IncomePie: return modChart::Pie(input);
    case eChartKind::ExpenseMonths:
    case eChartKind::IncomeMonths: return modChart::MonthsByCategory(input);
    case eChartKind::Flow: return modChart::Flow(input);
    case eChartKind::Calendar: return modChart::Calendar(input);
    case eChartKind::Budget:
    case eChartKind::Limits: return MakeLimits(input);
    case eChartKind::Tags: return modChart::Tags(input);
    case eChartKind::Months:
    case eChartKind::Balances:
    case eChartKind::NetWorth: break;
    }
    return modChart::Months(input);
}

cChartData cChartMaker::MakeBalances(const cChartWish& wish)
{
    cForecast forecast(m_data, m_today);
    const auto average = wish.ShowsAverage ? cForecast::eAverage::With : cForecast::eAverage::Without;
    // The forecast is wanted on its own, whatever the period and the switch for future entries say.
    const QDate ahead = m_today.addMonths(std::clamp(wish.ForecastMonths, 0, cForecast::MostMonths));
    modPeriod::cRange range = Cut(wish.Range, wish, m_today);
    range.End = range.End.isValid() && wish.Range.End.isValid() ? range.End : m_today;
    range.End = wish.ForecastMonths > 0 ? std::max(range.End, ahead) : range.End;
    const cBalanceDays days = forecast.Days(range, average);
    modChart::cBalanceInput input{wish,    days,
                                  {},      LimitOf(m_data, wish.Account),
                                  m_today, [&format = m_format](qint64 cents) { return format.Cents(cents); }};
    if (wish.Second && wish.Second->Start.isValid() && wish.Second->End.isValid()) {
        input.Second = forecast.Days(Cut(*wish.Second, wish, m_today), cForecast::eAverage::Without);
    }
    if (wish.Kind == eChartKind::NetWorth) {
        return m_data.IsWhole() ? modChart::NetWorth(input) : Unread();
    }
    return m_data.IsWhole() ? modChart::Balances(input) : Unread(); // made of balances, entries, accounts
}
