#pragma once

#include "views/chart/cChartData.h"
#include "views/chart/cChartMaker.h"
#include "views/report/cStatisticsPeriod.h"

#include <QObject>
#include <QString>
#include <QStringList>

struct cBookTools;

// One of the two smaller panes of the statistics: a chart with its own period. Makes the chart only when somebody
// looks.
class cStatisticsChart final : public QObject
{
    Q_OBJECT

public:
    // What can be laid beside the period.
    enum class eCompare { Nothing, YearBefore, Period };

    // `pane`: part of the keys of its settings. `kind`: the chart as long as no other was chosen.
    cStatisticsChart(const cBookTools& tools, const QString& pane, eChartKind kind, QObject* parent = nullptr);

    void Restore();
    void SetAccount(const QString& account); // empty: all accounts
    void SetShown(bool isShown);             // somebody looks at it, or no longer
    void Invalidate();                       // the book or the switches of the view have changed

    // The selectors. Each stores and makes the chart anew.
    void ChooseKind(eChartKind kind);
    void ChoosePeriod(const QString& name);
    void ChooseFirstMonth(int month);
    void ChooseLastMonth(int month);
    void ChooseYear(int year);
    void ChooseCompare(eCompare compare, const QString& period = {}); // the period only for eCompare::Period
    void ChooseForecast(int months);
    void ShowAverage(bool isShown);
    void GoUp(); // from sub-categories back to all

    // What a click on a part means. Goes down to sub-categories by itself; entries are for the caller to show.
    [[nodiscard]] std::optional<cChartTarget> Click(int series, int index);

    [[nodiscard]] const cChartData& Data() const { return m_data; }
    [[nodiscard]] cChartWish Wish() const;
    [[nodiscard]] const cStatisticsPeriod& Period() const { return m_period; }
    [[nodiscard]] eChartKind Kind() const { return m_kind; }
    [[nodiscard]] eCompare Compare() const { return m_compare; }
    [[nodiscard]] const QString& SecondPeriod() const { return m_second; }
    [[nodiscard]] int ForecastMonths() const { return m_forecastMonths; }
    [[nodiscard]] bool ShowsAverage() const { return m_showsAverage; }
    [[nodiscard]] bool HasForecast() const { return cChartMaker::HasForecast(m_kind); }
    [[nodiscard]] bool CanCompare() const { return cChartMaker::CanCompare(m_kind); }
    [[nodiscard]] modPeriod::cRange Range() const;

    // The charts as the selector offers them, in the order of eChartKind.
    [[nodiscard]] static QStringList Kinds();

Q_SIGNALS:
    void Changed(); // selectors or chart
    void PeriodChosen(const QString& name);

private:
    void Refresh();
    void Save();

    const cBookTools& m_tools;
    QString m_pane;
    eChartKind m_kind;
    cStatisticsPeriod m_period;
    eCompare m_compare = eCompare::Nothing;
    QString m_second; // stored word of the period laid beside
    int m_forecastMonths = 3;
    bool m_showsAverage = false;
    QString m_account;
    std::optional<QString> m_group; // whose sub-categories are shown
    cChartData m_data;
    bool m_isShown = false;
    bool m_isStale = true;
};
