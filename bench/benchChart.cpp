#include "bench/cBenchBook.h"
#include "core/cAmountFormat.h"
#include "core/cConfiguration.h"
#include "store/cDataAccess.h"
#include "views/chart/cChartMaker.h"
#include "views/chart/cForecast.h"
#include "windows/chart/modChartPainter.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

// Charts of a large book beside the query that they are made of, and the painting of ten years, which has 16 ms.

namespace {

struct cMaker
{
    cFakeRegistry Registry;
    cConfiguration Configuration{Registry};
    cAmountFormat Format{Configuration};
    cChartMaker Maker{cBenchBook::Large().Book().Data(), Format, cBenchBook::Today};
};

void QueryOfAll(benchmark::State& state)
{
    cDataAccess& data = cBenchBook::Large().Book().Data();
    cEntryQuery query;
    query.End = cBenchBook::Today;
    for (auto _ : state) {
        benchmark::DoNotOptimize(data.GetEntries(query));
    }
}
BENCHMARK(QueryOfAll)->Unit(benchmark::kMillisecond);

void DataOfAll(benchmark::State& state, eChartKind kind)
{
    cMaker maker;
    const cChartWish wish{.Kind = kind, .ShowsFuture = false, .ForecastMonths = 0};
    for (auto _ : state) {
        benchmark::DoNotOptimize(maker.Maker.Make(wish));
    }
}
BENCHMARK_CAPTURE(DataOfAll, Pie, eChartKind::ExpensePie)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(DataOfAll, Months, eChartKind::Months)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(DataOfAll, Categories, eChartKind::ExpenseMonths)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(DataOfAll, Balances, eChartKind::Balances)->Unit(benchmark::kMillisecond);

void LimitWarnings(benchmark::State& state)
{
    cDataAccess& data = cBenchBook::Large().Book().Data();
    cTemplateItem account = data.FindAccount(u"Girokonto"_s).value_or(cTemplateItem{});
    account.TemplateDefaultValue = u"0.00"_s;
    (void)data.ChangeTemplate(account);
    for (auto _ : state) {
        benchmark::DoNotOptimize(cForecast(data, cBenchBook::Today).Warnings());
    }
}
BENCHMARK(LimitWarnings)->Unit(benchmark::kMillisecond);

// 120 months of 20 categories, more than a chart of the book ever has.
cChartData TenYears(eChart kind)
{
    cChartData chart;
    chart.Kind = kind;
    chart.Title = u"Zehn Jahre"_s;
    for (int month = 0; month < 120; ++month) {
        chart.Labels.append(QDate(2016, 1, 1).addMonths(month).toString(u"MM.yyyy"_s));
    }
    for (int series = 0; series < 20; ++series) {
        cChartSeries values{.Name = u"Kategorie %1"_s.arg(series), .Cents = {}, .Colour = series};
        for (int month = 0; month < 120; ++month) {
            values.Cents.append((20 - series) * 3000 + (month * 7919 + series * 104729) % 9000 - 3000);
        }
        chart.Series.append(values);
    }
    return chart;
}

void PaintTenYears(benchmark::State& state, eChart kind)
{
    const cChartData chart = TenYears(kind);
    QImage image(1280, 640, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        QPainter painter(&image);
        painter.fillRect(image.rect(), Qt::white);
        modChartPainter::Paint(painter, chart, modChartPainter::PaperStyle(), image.rect());
    }
}
BENCHMARK_CAPTURE(PaintTenYears, Stacked, eChart::StackedColumns)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PaintTenYears, Columns, eChart::Columns)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PaintTenYears, Line, eChart::Line)->Unit(benchmark::kMillisecond);

// Every day of ten years on the book's own accounts.
void PaintBalances(benchmark::State& state)
{
    cMaker maker;
    const modPeriod::cRange years{cBenchBook::Today.addYears(-10), cBenchBook::Today};
    const cChartData chart = maker.Maker.Make({.Kind = eChartKind::Balances, .Range = years, .ForecastMonths = 12});
    QImage image(1280, 640, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        QPainter painter(&image);
        painter.fillRect(image.rect(), Qt::white);
        modChartPainter::Paint(painter, chart, modChartPainter::PaperStyle(), image.rect());
    }
}
BENCHMARK(PaintBalances)->Unit(benchmark::kMillisecond);

} // namespace
