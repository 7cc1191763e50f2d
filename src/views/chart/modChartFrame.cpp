#include "views/chart/modChartFrame.h"

#include "base/cText.h"
#include "views/report/modReport.h"

#include <algorithm>

modPeriod::cRange modChart::Closed(const cPeriod& period)
{
    modPeriod::cRange range = period.Range;
    for (const cEntryItem& entry : period.Entries) {
        if (!period.Range.Start.isValid() && (!range.Start.isValid() || entry.EntryDate < range.Start)) {
            range.Start = entry.EntryDate;
        }
        if (!period.Range.End.isValid() && (!range.End.isValid() || entry.EntryDate > range.End)) {
            range.End = entry.EntryDate;
        }
    }
    return range;
}

bool modChart::IsUsable(const modPeriod::cRange& range)
{
    return range.Start.isValid() && range.End.isValid() && range.Start <= range.End;
}

const std::optional<cReportNode>& modChart::cNodes::Of(const cEntryItem& entry)
{
    const std::pair<QString, QString> key(entry.EntryType, entry.EntryCategory);
    auto found = m_nodes.find(key);
    if (found == m_nodes.end()) {
        found = m_nodes.insert(key, modReport::NodeOf(entry, m_wish));
    }
    return *found;
}

cChartData modChart::Frame(const cInput& input, const cChartSteps& steps)
{
    cChartData data;
    data.Note = AccountText(input.Wish.Account);
    data.LabelTitle = steps.IsYears() ? cText::Tr("Jahr") : cText::Tr("Monat");
    for (int step = 0; step < steps.Count(); ++step) {
        data.Labels.append(steps.Label(step));
        data.ShortLabels.append(steps.ShortLabel(step));
    }
    const int today = steps.IndexOf(input.Today);
    data.Today = today >= 0 && today < steps.Count() - 1 ? today : -1;
    data.Money = input.Money;
    return data;
}

QStringList modChart::OwnLabels(const cChartSteps& steps, int count)
{
    QStringList labels;
    for (int step = 0; step < std::min(count, steps.Count()); ++step) {
        labels.append(steps.Label(step));
    }
    return labels;
}

QList<std::optional<qint64>> modChart::Values(const QList<qint64>& cents, int count)
{
    QList<std::optional<qint64>> values(count);
    for (int i = 0; i < std::min<int>(count, static_cast<int>(cents.size())); ++i) {
        values[i] = cents[i];
    }
    return values;
}

QList<cChartTarget> modChart::Targets(const cChartSteps& steps, const std::optional<cReportNode>& node,
                                      const QString& account, int count)
{
    QList<cChartTarget> targets;
    for (int i = 0; i < std::min(count, steps.Count()); ++i) {
        targets.append({cChartTarget::eKind::Entries, node, account, steps.RangeAt(i)});
    }
    return targets;
}

cChartData modChart::Nothing(const cInput& input, const QString& title)
{
    cChartData data;
    data.Title = title;
    data.Note = AccountText(input.Wish.Account);
    data.BackText = input.Wish.Group ? cText::Tr("Alle Kategorien") : QString();
    return data;
}
