#include "bench/cBenchBook.h"
#include "core/cSettings.h"
#include "model/modPeriod.h"
#include "store/cDataAccess.h"
#include "support/cFakeNavigator.h"
#include "views/main/cMainModel.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

// One refresh of the main model beside the queries it makes.

namespace {

struct cScene
{
    cFakeShell Shell;
    cFakeNavigator Navigator;
    cMainModel Model{cBenchBook::Large().Tools(),
                     {cBenchBook::Large().Configuration(), Shell, Navigator, cBenchBook::Large().Path()}};
};

cEntryQuery MonthQuery()
{
    const modPeriod::cRange month = modPeriod::Month(cBenchBook::Today, 0);
    cEntryQuery query;
    query.Start = month.Start;
    query.End = month.End;
    return query;
}

void RefreshOfMonth(benchmark::State& state)
{
    cScene scene;
    scene.Model.RestoreView(false);
    scene.Model.ChoosePeriod(u"Aktueller Monat"_s);
    QCoreApplication::processEvents();
    for (auto _ : state) {
        scene.Model.RefreshView();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(RefreshOfMonth)->Unit(benchmark::kMillisecond);

void QueriesOfMonth(benchmark::State& state)
{
    cDataAccess& data = cBenchBook::Large().Book().Data();
    for (auto _ : state) {
        benchmark::DoNotOptimize(data.GetEntries(MonthQuery()));
    }
}
BENCHMARK(QueriesOfMonth)->Unit(benchmark::kMillisecond);

// After a change of entries the balances are added up anew.
void RefreshAfterBooking(benchmark::State& state)
{
    cScene scene;
    scene.Model.RestoreView(false);
    scene.Model.ChoosePeriod(u"Aktueller Monat"_s);
    for (auto _ : state) {
        scene.Model.BookChanged();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(RefreshAfterBooking)->Unit(benchmark::kMillisecond);

void QueriesAfterBooking(benchmark::State& state)
{
    cDataAccess& data = cBenchBook::Large().Book().Data();
    cEntryQuery toToday;
    toToday.End = cBenchBook::Today;
    for (auto _ : state) {
        benchmark::DoNotOptimize(data.GetEntries(MonthQuery()));
        benchmark::DoNotOptimize(data.GetSums(toToday, true));
        benchmark::DoNotOptimize(data.GetAccounts());
        benchmark::DoNotOptimize(data.CountOpenImports());
    }
}
BENCHMARK(QueriesAfterBooking)->Unit(benchmark::kMillisecond);

} // namespace
