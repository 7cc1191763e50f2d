#include "bench/cBenchBook.h"
#include "core/cSettings.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "views/report/cReportSource.h"
#include "views/report/modReport.h"
#include "views/report/modReportHtml.h"

#include <benchmark/benchmark.h>

// Reports over 100,000 entries beside the queries for their sums and for the entries.

namespace {

struct cReportBench
{
    cReportBench() { Wish.Type = eReport::Sum; }

    cBook& Book = cBenchBook::Large().Book();
    cReportSource Source{cBenchBook::Large().Tools()};
    cReportWish Wish;
};

// The floor
void ReportQuery(benchmark::State& state)
{
    cReportBench bench;
    for (auto _ : state) {
        benchmark::DoNotOptimize(bench.Book.Data().GetCategorySums({}));
    }
}
BENCHMARK(ReportQuery)->Unit(benchmark::kMillisecond);

void ReportEntries(benchmark::State& state)
{
    cReportBench bench;
    for (auto _ : state) {
        benchmark::DoNotOptimize(bench.Book.Data().GetEntries({}));
    }
}
BENCHMARK(ReportEntries)->Unit(benchmark::kMillisecond);

// Query, figures and HTML
void ReportFromTheBook(benchmark::State& state)
{
    cReportBench bench;
    for (auto _ : state) {
        bench.Source.Forget();
        benchmark::DoNotOptimize(bench.Source.Html(bench.Wish));
    }
}
BENCHMARK(ReportFromTheBook)->Unit(benchmark::kMillisecond);

// Another report over the same entries
void ReportOfAnotherType(benchmark::State& state)
{
    cReportBench bench;
    (void)bench.Source.Html(bench.Wish);
    for (auto _ : state) {
        bench.Wish.Type = bench.Wish.Type == eReport::Sum ? eReport::Limit : eReport::Sum;
        benchmark::DoNotOptimize(bench.Source.Html(bench.Wish));
    }
}
BENCHMARK(ReportOfAnotherType)->Unit(benchmark::kMillisecond);

void ReportHtmlAlone(benchmark::State& state)
{
    cReportBench bench;
    const cReportFigures figures = bench.Source.Figures(bench.Wish);
    for (auto _ : state) {
        benchmark::DoNotOptimize(modReportHtml::Html(figures, bench.Wish, cBenchBook::Large().Tools().Format));
    }
}
BENCHMARK(ReportHtmlAlone)->Unit(benchmark::kMillisecond);

void ReportEntriesOfALine(benchmark::State& state)
{
    cReportBench bench;
    const cReportNode node{eReportKind::Expense, QStringLiteral("Haushalt"), QStringLiteral("Lebensmittel")};
    const cEntryItemList entries = bench.Book.Data().GetEntries({});
    qsizetype count = 0;
    for (auto _ : state) {
        count = modReport::EntriesOf(entries, bench.Wish, node).size();
    }
    state.counters["entries"] = static_cast<double>(count);
}
BENCHMARK(ReportEntriesOfALine)->Unit(benchmark::kMillisecond);

} // namespace
