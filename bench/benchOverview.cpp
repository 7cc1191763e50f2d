#include "bench/cBenchBook.h"
#include "store/cDataAccess.h"
#include "support/cFakeNavigator.h"
#include "views/main/cMainModel.h"
#include "views/overview/cOverviewModel.h"

#include <benchmark/benchmark.h>

// The overview of a book of 100,000 entries beside the query of all of them.

namespace {

struct cScene
{
    cFakeShell Shell;
    cFakeNavigator Navigator;
    cMainModel Main{cBenchBook::Large().Tools(),
                    {cBenchBook::Large().Configuration(), Shell, Navigator, cBenchBook::Large().Path()}};
    cOutlook Outlook{cBenchBook::Large().Tools()};
    cOverviewModel Overview{cBenchBook::Large().Tools(), {Navigator, Main, Outlook}};
};

void Overview(benchmark::State& state)
{
    cScene scene;
    for (auto _ : state) {
        scene.Overview.Read();
    }
    state.counters["cards"] = static_cast<double>(scene.Overview.Cards().size());
}
BENCHMARK(Overview)->Unit(benchmark::kMillisecond);

void QueryOfAllEntries(benchmark::State& state)
{
    cEntryQuery query;
    query.End = cBenchBook::Today;
    for (auto _ : state) {
        benchmark::DoNotOptimize(cBenchBook::Large().Book().Data().GetEntries(query));
    }
}
BENCHMARK(QueryOfAllEntries)->Unit(benchmark::kMillisecond);

} // namespace
