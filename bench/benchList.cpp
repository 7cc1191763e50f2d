#include "bench/cBenchBook.h"
#include "core/cAmountFormat.h"
#include "core/cConfiguration.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "views/list/cEntryListModel.h"

#include <benchmark/benchmark.h>

#include <vector>

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

// The first letter after the list was loaded, when its texts are folded.
void FilterFirstKey(benchmark::State& state)
{
    cScene scene;
    for (auto _ : state) {
        state.PauseTiming();
        scene.List.SetContent(scene.Content, {}, modWord::KeineGruppierung);
        state.ResumeTiming();
        scene.List.SetFilter(u"e"_s);
    }
    state.counters["found"] = static_cast<double>(scene.List.Sums().Count);
}
BENCHMARK(FilterFirstKey)->Unit(benchmark::kMillisecond);

// One key, from the text before it to the text with it.
void FilterKey(benchmark::State& state)
{
    struct cKey
    {
        const char16_t* Before;
        const char16_t* After;
        const char16_t* Grouping;
    };
    static const std::vector<cKey> keys{
        {u"", u"e", u"Keine Gruppierung"},         {u"e", u"", u"Keine Gruppierung"},
        {u"", u"rewe", u"Keine Gruppierung"},      {u"rew", u"rewe", u"Keine Gruppierung"},
        {u"", u"lebensmittel", u"Nach Monat"},     {u"", u"giro ausgabe ü", u"Keine Gruppierung"},
        {u"", u"1", u"Keine Gruppierung"},         {u"", u"12,5", u"Keine Gruppierung"},
        {u"", u"05.2024 rewe", u"Nach Kategorie"}, {u"", u"-", u"Keine Gruppierung"},
    };
    cScene scene;
    const cKey& key = keys.at(static_cast<std::size_t>(state.range(0)));
    scene.List.SetContent(scene.Content, u"x"_s, QString::fromUtf16(key.Grouping));
    for (auto _ : state) {
        state.PauseTiming();
        scene.List.SetFilter(QString::fromUtf16(key.Before));
        state.ResumeTiming();
        scene.List.SetFilter(QString::fromUtf16(key.After));
    }
    state.counters["found"] = static_cast<double>(scene.List.Sums().Count);
    const QString label = u"'%1' to '%2', %3"_s.arg(QString::fromUtf16(key.Before), QString::fromUtf16(key.After),
                                                    QString::fromUtf16(key.Grouping));
    state.SetLabel(label.toStdString());
}
BENCHMARK(FilterKey)->DenseRange(0, 9)->Unit(benchmark::kMillisecond);

} // namespace
