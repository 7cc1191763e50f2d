#include "bench/cBenchBook.h"
#include "core/cAmountFormat.h"
#include "core/cConfiguration.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "views/cEntryListModel.h"

#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

// The entry list over 100,000 entries: built, sorted, grouped, filtered.

namespace {

struct cScene
{
    cScene()
    {
        cEntryQuery query;
        query.End = cBenchBook::Today;
        Content.Entries = cBenchBook::Large().Book().Data().GetEntries(query);
        Content.Today = cBenchBook::Today;
    }

    cFakeRegistry Registry;
    cConfiguration Configuration{Registry};
    cAmountFormat Format{Configuration};
    cEntryListModel List{Format};
    cEntryListModel::cContent Content;
};

void Build(benchmark::State& state)
{
    cScene scene;
    for (auto _ : state) {
        scene.List.SetContent(scene.Content, {}, modWord::KeineGruppierung);
    }
    state.counters["rows"] = static_cast<double>(scene.List.rowCount());
}
BENCHMARK(Build)->Unit(benchmark::kMillisecond);

void Sort(benchmark::State& state)
{
    cScene scene;
    scene.List.SetContent(scene.Content, {}, modWord::KeineGruppierung);
    const auto column = static_cast<int>(state.range(0));
    bool isUp = false;
    for (auto _ : state) {
        scene.List.sort(column, isUp ? Qt::AscendingOrder : Qt::DescendingOrder);
        isUp = !isUp;
    }
    state.SetLabel(scene.List.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString().toStdString());
}
BENCHMARK(Sort)->DenseRange(0, cEntryListModel::Amount)->Unit(benchmark::kMillisecond);

void Group(benchmark::State& state)
{
    cScene scene;
    scene.List.SetContent(scene.Content, {}, modWord::KeineGruppierung);
    const QString grouping = modWord::Groupings().Stored().at(state.range(0));
    for (auto _ : state) {
        scene.List.SetGrouping(grouping);
    }
    state.SetLabel(grouping.toStdString());
}
BENCHMARK(Group)->DenseRange(1, 7)->Unit(benchmark::kMillisecond);

void Filter(benchmark::State& state)
{
    cScene scene;
    scene.List.SetContent(scene.Content, {}, modWord::KeineGruppierung);
    for (auto _ : state) {
        scene.List.SetFilter(u"rewe"_s);
    }
}
BENCHMARK(Filter)->Unit(benchmark::kMillisecond);

} // namespace
