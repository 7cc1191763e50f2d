#include "views/chart/modChartTable.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "views/export/modCsv.h"

#include <QLocale>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double wholeShare = 10000; // hundredths of a per cent

std::optional<qint64> Share(const std::optional<qint64>& cents, qint64 total)
{
    if (!cents || *cents < 0 || total <= 0) {
        return std::nullopt;
    }
    return std::llround(static_cast<double>(*cents) * wholeShare / static_cast<double>(total));
}

cChartFigures FiguresOfPie(const cChartData& data)
{
    cChartFigures figures;
    figures.NameTitle = data.LabelTitle;
    for (const QString& label : data.Labels) {
        figures.Columns.append({label});
        figures.Columns.append({cText::Tr("Anteil"), true});
    }
    cChartFigures::cRow sum{cText::Tr("Summe"), {}, true};
    for (int index = 0; index < data.Labels.size(); ++index) {
        qint64 total = 0;
        for (const cChartSeries& series : data.Series) {
            total += series.At(index).value_or(0);
        }
        sum.Values.append(total);
        sum.Values.append(total > 0 ? std::optional(static_cast<qint64>(wholeShare)) : std::nullopt);
    }
    for (int series = 0; series < data.Series.size(); ++series) {
        cChartFigures::cRow row{data.Series[series].Name, {}, false, series};
        for (int index = 0; index < data.Labels.size(); ++index) {
            const std::optional<qint64> cents = data.Series[series].At(index);
            row.Values.append(cents);
            row.Values.append(Share(cents, data.Total(index)));
        }
        figures.Rows.append(row);
    }
    figures.Rows.append(sum);
    return figures;
}

void AddSum(cChartFigures& figures)
{
    cChartFigures::cRow sum{cText::Tr("Summe"), QList<std::optional<qint64>>(figures.Columns.size(), qint64(0)), true};
    for (const cChartFigures::cRow& row : std::as_const(figures.Rows)) {
        for (qsizetype i = 0; i < row.Values.size(); ++i) {
            sum.Values[i] = sum.Values[i].value_or(0) + row.Values[i].value_or(0);
        }
    }
    figures.Rows.append(sum);
}

// Shares have two decimals as well, so that the same form serves for them.
QStringList Numbers(const cChartFigures::cRow& row)
{
    QStringList numbers;
    for (const std::optional<qint64>& value : row.Values) {
        numbers.append(value ? modCsv::Money(*value) : QString());
    }
    return numbers;
}

QStringList Titles(const cChartFigures& figures)
{
    QStringList titles{figures.NameTitle};
    for (const cChartFigures::cColumn& column : figures.Columns) {
        titles.append(column.IsShare ? cText::Tr("{0} %", {column.Title}) : column.Title);
    }
    return titles;
}

} // namespace

cChartFigures modChartTable::Figures(const cChartData& data)
{
    if (data.Kind == eChart::Pie || data.Kind == eChart::Flow) {
        return FiguresOfPie(data);
    }
    cChartFigures figures;
    figures.NameTitle = data.LabelTitle;
    for (const cChartSeries& series : data.Series) {
        figures.Columns.append({series.Name});
    }
    for (int index = 0; index < data.Labels.size(); ++index) {
        cChartFigures::cRow row{data.Labels[index], {}};
        for (const cChartSeries& series : data.Series) {
            row.Values.append(series.At(index));
        }
        figures.Rows.append(row);
    }
    const bool isBalance = data.Kind == eChart::Line || data.Kind == eChart::Areas;
    if (!isBalance && !figures.Rows.isEmpty()) { // balances of several days make no sum
        AddSum(figures);
    }
    return figures;
}

QString modChartTable::Text(const cChartData& data, const cChartFigures::cColumn& column, std::optional<qint64> value)
{
    if (!value) {
        return {};
    }
    constexpr double hundredths = 100;
    return column.IsShare ? data.PercentText(static_cast<double>(*value) / hundredths) : data.MoneyText(*value);
}

QByteArray modChartTable::Csv(const cChartData& data)
{
    const cChartFigures figures = Figures(data);
    QStringList titles = Titles(figures);
    for (QString& title : titles) {
        title = modCsv::Text(title);
    }
    QByteArray bytes = modCsv::Mark + modCsv::Line(titles);
    for (qsizetype i = 0; i < figures.Rows.size(); ++i) {
        const cChartFigures::cRow& row = figures.Rows.at(i);
        if (!row.IsSum) {
            const QString name = i < data.Days.size() ? modDate::ToGerman(data.Days.at(i)) : modCsv::Text(row.Name);
            bytes += modCsv::Line(QStringList{name} + Numbers(row));
        }
    }
    return bytes;
}

QString modChartTable::TabText(const cChartData& data)
{
    const cChartFigures figures = Figures(data);
    QStringList lines{Titles(figures).join(u'\t')};
    for (const cChartFigures::cRow& row : figures.Rows) {
        lines.append((QStringList{row.Name} + Numbers(row)).join(u'\t'));
    }
    return lines.join(u'\n') + u'\n';
}

QString modChartTable::ToldText(const cChartData& data)
{
    QStringList lines{data.Title, data.Note, data.LimitText};
    for (const cChartMark& mark : data.Marks) {
        lines.append(mark.Text);
    }
    const cChartFigures figures = Figures(data);
    for (qsizetype i = 0; i < figures.Rows.size(); ++i) {
        if (data.Today >= 0 && i == data.Today + 1) {
            lines.append(cText::Tr("Vorschau"));
        }
        QStringList values;
        for (qsizetype column = 0; column < figures.Columns.size(); ++column) {
            const QString value = Text(data, figures.Columns.at(column), figures.Rows.at(i).Values.value(column));
            values += value.isEmpty() ? QStringList() : QStringList(figures.Columns.at(column).Title + u' ' + value);
        }
        lines.append(cText::Tr("{0}: {1}", {figures.Rows.at(i).Name, values.join(u", "_s)}));
    }
    lines.removeAll(QString());
    return lines.join(u'\n');
}
