#include "views/statistics/cStatisticsChart.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "model/modSettingKey.h"
#include "model/modWord.h"
#include "views/common/modSetting.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kindCount = 12;
constexpr int mostForecast = 12; // months

} // namespace

cStatisticsChart::cStatisticsChart(const cBookTools& tools, const QString& pane, eChartKind kind, QObject* parent)
    : QObject(parent),
      m_tools(tools),
      m_pane(pane),
      m_kind(kind)
{
}

QStringList cStatisticsChart::Kinds()
{
    return {cText::Tr("Ausgaben nach Kategorien"),
            cText::Tr("Einnahmen nach Kategorien"),
            cText::Tr("Einnahmen und Ausgaben je Monat"),
            cText::Tr("Ausgaben je Monat nach Kategorien"),
            cText::Tr("Einnahmen je Monat nach Kategorien"),
            cText::Tr("Verlauf der Kontostände"),
            cText::Tr("Budget und Ausgaben je Monat"),
            cText::Tr("Geldfluss"),
            cText::Tr("Jahreskalender der Ausgaben"),
            cText::Tr("Vermögen nach Konten"),
            cText::Tr("Limits je Monat"),
            cText::Tr("Schlagwörter")};
}

void cStatisticsChart::Restore()
{
    const cSettings& settings = m_tools.Settings;
    m_period.Restore(settings, m_pane, m_tools.Clock.Today());
    bool isNumber = false;
    const int kind = settings.Get(modSettingKey::PaneChart.Of(m_pane)).toInt(&isNumber);
    if (isNumber && kind >= 0 && kind < kindCount) {
        m_kind = static_cast<eChartKind>(kind);
    }
    m_second = settings.Get(modSettingKey::PaneCompare.Of(m_pane));
    m_compare = m_second == u"Vorjahr"          ? eCompare::YearBefore
        : modWord::Periods().Contains(m_second) ? eCompare::Period
                                                : eCompare::Nothing;
    const cSettingKey forecast = modSettingKey::PaneForecast.Of(m_pane);
    const int months = settings.Get(forecast).toInt(&isNumber);
    m_forecastMonths = isNumber ? std::clamp(months, 0, mostForecast) : forecast.Default().toInt();
    m_showsAverage = settings.GetBool(modSettingKey::PaneAverage.Of(m_pane));
    m_group.reset();
    Invalidate();
}

void cStatisticsChart::Save()
{
    cSettings& settings = m_tools.Settings;
    m_period.Save(settings, m_pane);
    const auto keep = [&](const cSettingFamily& key, const QString& value) {
        modSetting::Keep(settings, key.Of(m_pane), value);
    };
    keep(modSettingKey::PaneChart, QString::number(static_cast<int>(m_kind)));
    keep(modSettingKey::PaneCompare, m_compare == eCompare::YearBefore ? u"Vorjahr"_s : m_second);
    keep(modSettingKey::PaneForecast, QString::number(m_forecastMonths));
    keep(modSettingKey::PaneAverage, cSettings::FromBool(m_showsAverage));
}

void cStatisticsChart::SetAccount(const QString& account)
{
    if (account != m_account) {
        m_account = account;
        Invalidate();
    }
}

void cStatisticsChart::SetShown(bool isShown)
{
    m_isShown = isShown;
    if (isShown && m_isStale) {
        Refresh();
    }
}

void cStatisticsChart::Invalidate()
{
    m_isStale = true;
    if (m_isShown) {
        Refresh();
    }
}

void cStatisticsChart::Refresh()
{
    cChartMaker maker(m_tools.Data, m_tools.Format, m_tools.Clock.Today());
    m_data = maker.Make(Wish());
    m_isStale = false;
    Q_EMIT Changed();
}

cChartWish cStatisticsChart::Wish() const
{
    cChartWish wish;
    wish.Kind = m_kind;
    wish.Range = Range();
    if (!CanCompare()) {
        wish.Second = std::nullopt;
    } else if (m_compare == eCompare::YearBefore) {
        wish.Second = cChartWish::YearBefore(wish.Range);
    } else if (m_compare == eCompare::Period) {
        wish.Second = modPeriod::Range(m_second, m_tools.Clock.Today(), m_period.Free());
    }
    wish.Account = m_account;
    wish.Group = m_group;
    wish.ShowsFuture = m_tools.Settings.GetBool(modSettingKey::ViewFuture);
    wish.ShowsAverage = m_showsAverage;
    wish.ForecastMonths = HasForecast() ? m_forecastMonths : 0;
    return wish;
}

modPeriod::cRange cStatisticsChart::Range() const
{
    return m_period.Range(m_tools.Clock.Today());
}

void cStatisticsChart::ChooseKind(eChartKind kind)
{
    m_kind = kind;
    m_group.reset();
    Save();
    Invalidate();
}

void cStatisticsChart::ChoosePeriod(const QString& name)
{
    m_period.Choose(name, m_tools.Clock.Today());
    Save();
    Invalidate();
    Q_EMIT PeriodChosen(name);
}

void cStatisticsChart::ChooseFirstMonth(int month)
{
    m_period.ChooseFirst(month);
    Save();
    Invalidate();
}

void cStatisticsChart::ChooseLastMonth(int month)
{
    m_period.ChooseLast(month);
    Save();
    Invalidate();
}

void cStatisticsChart::ChooseYear(int year)
{
    m_period.Year = year;
    Save();
    Invalidate();
}

void cStatisticsChart::ChooseCompare(eCompare compare, const QString& period)
{
    m_compare = compare;
    m_second = period;
    Save();
    Invalidate();
}

void cStatisticsChart::ChooseForecast(int months)
{
    m_forecastMonths = std::clamp(months, 0, mostForecast);
    Save();
    Invalidate();
}

void cStatisticsChart::ShowAverage(bool isShown)
{
    m_showsAverage = isShown;
    Save();
    Invalidate();
}

void cStatisticsChart::GoUp()
{
    m_group.reset();
    Invalidate();
}

std::optional<cChartTarget> cStatisticsChart::Click(int series, int index)
{
    const cChartTarget target = m_data.Series.value(series).TargetAt(index);
    if (target.Kind == cChartTarget::eKind::Deeper && target.Node) {
        m_group = target.Node->Group;
        Invalidate();
    }
    return target.Kind == cChartTarget::eKind::Entries ? std::optional(target) : std::nullopt;
}
