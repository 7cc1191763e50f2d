#pragma once

#include "base/modSum.h"
#include "model/modPeriod.h"
#include "views/report/cReportFigures.h"

#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

enum class eChart {
    Pie,            // one circle for each label, one slice for each series
    Columns,        // the series beside each other at each label
    StackedColumns, // the series on top of each other at each label
    Line,           // every series a line through the labels
    Areas,          // the series on top of each other as surfaces, what is below zero downwards
    Flow,           // from the series of the first label through one place to those of the second one
    Calendar,       // one series; the labels are the days of a year, shaded by their amounts
    Limits          // pairs of series, each in a place of its own: an amount as columns, and its limit as a line
};

// What a click on a part of a chart means.
struct cChartTarget
{
    enum class eKind {
        None,    // nothing to show
        Entries, // the entries of node, account and range
        Deeper   // the chart of the categories below the node's group
    };

    eKind Kind = eKind::None;
    std::optional<cReportNode> Node{}; // as in the reports; none: income and expense alike
    QString Account{};                 // empty for all
    modPeriod::cRange Range{};

    bool operator==(const cChartTarget&) const = default;
};

struct cChartSeries
{
    enum class eShape { Natural, Line }; // Line: drawn as a line over the columns of the others

    QString Name;
    QList<std::optional<qint64>> Cents{}; // one for each label; without a value there is a gap
    QList<cChartTarget> Targets{};        // one for each label, or none at all
    int Colour = 0;                       // number in the palette
    QString OwnColour{};                  // "#rrggbb" that the user gave a main category; goes before the number
    eShape Shape = eShape::Natural;
    bool IsDashed = false;     // what lies behind `Today` is not booked yet and looks like it
    bool IsComparison = false; // of the period laid beside; drawn paler
    QStringList OwnLabels{};   // where the chart's labels are not its own: those of a period laid beside
    bool IsHidden = false;     // switched off in the legend: still named there, and nothing else

    [[nodiscard]] std::optional<qint64> At(int index) const { return Cents.value(index); }
    [[nodiscard]] cChartTarget TargetAt(int index) const { return Targets.value(index); }
};

// A point that is named in the picture, the lowest of a forecast for example.
struct cChartMark
{
    int Series = 0;
    int Index = 0;
    QString Text;
};

// Everything that a chart shows. Picture, table, tooltips and files are made of this and nothing else.
struct cChartData
{
    eChart Kind = eChart::Columns;
    QString Title;
    QString Note;            // a quiet line below the title; empty for none
    QString BackText;        // what leads one level up again; empty where there is none
    QString LabelTitle;      // what the labels are, as the table's headline: "Monat"
    QStringList Labels;      // in full, for tooltips and table
    QList<QDate> Days;       // the labels, where they are days
    QStringList ShortLabels; // for the axis; empty when they are the same
    QList<int> Ticks;        // labels that the axis may show; empty for all
    QList<cChartSeries> Series;
    QList<cChartMark> Marks;
    QList<qint64> Levels;        // Calendar: the largest amounts of all shades but the last one
    QString Middle;              // Flow: what everything goes through
    std::optional<qint64> Limit; // a level line, the limit of an account
    QString LimitText;
    int Today = -1;                             // the label behind which the future begins; -1 where there is none
    std::function<QString(qint64 cents)> Money; // amounts as the book shows them
    eDecimal Decimal = eDecimal::Comma;         // of percentages, likewise

    bool IsUnread = false; // there are no figures because the book could not be read

    // Calendar: the shade of an amount from 1 on; 0 where nothing was spent.
    [[nodiscard]] int LevelOf(qint64 cents) const;
    // True when there is nothing to draw; the chart then shows EmptyText.
    [[nodiscard]] bool IsEmpty() const;
    [[nodiscard]] QString EmptyText() const;
    // An amount, also without `Money`.
    [[nodiscard]] QString MoneyText(qint64 cents) const;
    // The same without decimals where they are zero, as an axis shows it.
    [[nodiscard]] QString AxisText(qint64 cents) const;
    [[nodiscard]] QString ShortLabel(int index) const;
    [[nodiscard]] QString LabelOf(int series, int index) const; // with its own one
    [[nodiscard]] bool IsHidden(int series) const { return Series.value(series).IsHidden; }
    // Hides the series that the same chart of earlier figures had hidden.
    void HideAsIn(const cChartData& earlier);
    // The chart without its hidden series.
    [[nodiscard]] cChartData Shown() const;
    // Sum of the positive values of one label over the series that are shown: what the parts of a pie or of a flow are
    // parts of.
    [[nodiscard]] qint64 Total(int index) const;
    // "54 %", and below ten per cent "5,4 %": a decimal only where it tells something.
    [[nodiscard]] QString PercentText(double percent) const;
    // What part of the total of its label a value is, as such a text; empty where that means nothing.
    [[nodiscard]] QString ShareText(int series, int index) const;
    // A part in words: "Wohnen, 2026: 7.200,00 € (31,2 %)".
    [[nodiscard]] QString PartText(int series, int index) const;
};
