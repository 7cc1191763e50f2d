#pragma once

#include "views/chart/cChartData.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

// The figures of a chart as a table: the same ones, no more and no less. A pie has its categories as rows, every other
// chart its labels.
struct cChartFigures
{
    struct cColumn
    {
        QString Title;
        bool IsShare = false; // hundredths of a per cent in place of cents
    };
    struct cRow
    {
        QString Name;
        QList<std::optional<qint64>> Values;
        bool IsSum = false;
        int Series = -1; // the part that the row stands for; -1 for more than one
    };

    QString NameTitle;
    QList<cColumn> Columns;
    QList<cRow> Rows;
};

namespace modChartTable {

[[nodiscard]] cChartFigures Figures(const cChartData& data);

// A cell as the user reads it.
[[nodiscard]] QString Text(const cChartData& data, const cChartFigures::cColumn& column, std::optional<qint64> value);

// The figures for a table program: separated by semicolons, decimal commas, without sums that would be added up again.
[[nodiscard]] QByteArray Csv(const cChartData& data);

// The same separated by tabs, for the clipboard.
[[nodiscard]] QString TabText(const cChartData& data);

// All that the chart shows but its axes, for screen readers: a line for each row, without the values that are missing.
[[nodiscard]] QString ToldText(const cChartData& data);

} // namespace modChartTable
