#pragma once

#include "views/chart/cChartSteps.h"
#include "views/chart/modChart.h"

#include <QHash>

#include <utility>

// What the charts over time have in common.
namespace modChart {

// The range of a period with its open sides closed by the first and the last entry.
[[nodiscard]] modPeriod::cRange Closed(const cPeriod& period);

[[nodiscard]] bool IsUsable(const modPeriod::cRange& range);

// A chart with its labels and without series.
[[nodiscard]] cChartData Frame(const cInput& input, const cChartSteps& steps);

// A title and nothing below it.
[[nodiscard]] cChartData Nothing(const cInput& input, const QString& title);

// The labels of a period laid beside.
[[nodiscard]] QStringList OwnLabels(const cChartSteps& steps, int count);

// As many values as there are labels; gaps where there are fewer.
[[nodiscard]] QList<std::optional<qint64>> Values(const QList<qint64>& cents, int count);

// The entries behind each step.
[[nodiscard]] QList<cChartTarget> Targets(const cChartSteps& steps, const std::optional<cReportNode>& node,
                                          const QString& account, int count);

// The nodes of entries. There are many entries and few categories, so each is looked up once.
class cNodes
{
public:
    explicit cNodes(const cReportWish& wish) : m_wish(wish) {}

    [[nodiscard]] const std::optional<cReportNode>& Of(const cEntryItem& entry);

private:
    const cReportWish& m_wish;
    QHash<std::pair<QString, QString>, std::optional<cReportNode>> m_nodes;
};

} // namespace modChart
