#include "views/chart/cChartData.h"

#include "base/cText.h"
#include "views/common/modUnread.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

bool cChartData::IsEmpty() const
{
    return std::none_of(Series.begin(), Series.end(), [](const cChartSeries& series) {
        return std::any_of(series.Cents.begin(), series.Cents.end(),
                           [](const std::optional<qint64>& cents) { return cents.has_value(); });
    });
}

int cChartData::LevelOf(qint64 cents) const
{
    const auto level = std::lower_bound(Levels.begin(), Levels.end(), cents);
    return cents <= 0 ? 0 : static_cast<int>(level - Levels.begin()) + 1;
}

QString cChartData::EmptyText() const
{
    if (!IsUnread && Kind == eChart::Limits) {
        return cText::Tr("Keine Kategorie hat ein Limit.");
    }
    return IsUnread ? modUnread::Title() : cText::Tr("Keine Daten");
}

void cChartData::HideAsIn(const cChartData& earlier)
{
    if (Kind != earlier.Kind || Title != earlier.Title) {
        return;
    }
    for (cChartSeries& series : Series) {
        series.IsHidden = std::any_of(earlier.Series.begin(), earlier.Series.end(), [&](const cChartSeries& old) {
            return old.IsHidden && old.Name == series.Name && old.IsComparison == series.IsComparison;
        });
    }
}

cChartData cChartData::Shown() const
{
    cChartData shown = *this;
    QList<int> places; // where each series stands without the hidden ones before it
    shown.Series.clear();
    for (const cChartSeries& series : Series) {
        places.append(static_cast<int>(shown.Series.size()));
        if (!series.IsHidden) {
            shown.Series.append(series);
        }
    }
    shown.Marks.removeIf([this](const cChartMark& mark) { return IsHidden(mark.Series); });
    for (cChartMark& mark : shown.Marks) {
        mark.Series = places.value(mark.Series);
    }
    return shown;
}

QString cChartData::MoneyText(qint64 cents) const
{
    return Money ? Money(cents) : modSum::ToText(cents);
}

QString cChartData::AxisText(qint64 cents) const
{
    static const QRegularExpression zeroDecimals(u"[.,]00(?!\\d)"_s);
    return MoneyText(cents).remove(zeroDecimals);
}

QString cChartData::ShortLabel(int index) const
{
    return ShortLabels.isEmpty() ? Labels.value(index) : ShortLabels.value(index);
}

qint64 cChartData::Total(int index) const
{
    qint64 total = 0;
    for (const cChartSeries& series : Series) {
        total += series.IsHidden ? 0 : std::max<qint64>(0, series.At(index).value_or(0));
    }
    return total;
}

QString cChartData::ShareText(int series, int index) const
{
    const qint64 total = Total(index);
    const qint64 cents = Series.value(series).At(index).value_or(0);
    if (total <= 0 || cents < 0 || IsHidden(series)) {
        return {};
    }
    return PercentText(100.0 * static_cast<double>(cents) / static_cast<double>(total));
}

QString cChartData::PercentText(double percent) const
{
    const qint64 tenths = std::llround(percent * 10.0);
    const bool isWhole = std::abs(tenths) >= 100 || tenths % 10 == 0;
    return cText::Tr("{0} %", {QString::number(percent, 'f', isWhole ? 0 : 1).replace(u'.', modSum::Sign(Decimal))});
}

QString cChartData::LabelOf(int series, int index) const
{
    return Series.value(series).OwnLabels.value(index, Labels.value(index));
}

QString cChartData::PartText(int series, int index) const
{
    const std::optional<qint64> cents = Series.value(series).At(index);
    const QString name = Series.value(series).Name;
    const QString where =
        Labels.size() > 1 || Kind != eChart::Pie ? cText::Tr("{0}, {1}", {name, LabelOf(series, index)}) : name;
    if (!cents) {
        return cText::Tr("{0}: keine Angabe", {where});
    }
    const QString share = Kind == eChart::Pie || Kind == eChart::Flow ? ShareText(series, index) : QString();
    return share.isEmpty() ? cText::Tr("{0}: {1}", {where, MoneyText(*cents)})
                           : cText::Tr("{0}: {1} ({2})", {where, MoneyText(*cents), share});
}
