#include "bench/cBenchBook.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "views/common/modBookNames.h"
#include "views/entry/cEntryEditor.h"

#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

// What the entry editor asks of a large book, without its window.

namespace {

struct cScene
{
    cDataAccess& Data = cBenchBook::Large().Book().Data();
    cEntryEditor Editor{cBenchBook::Large().Tools()};
};

// All that the window needs until it stands, and the first look into the proposals.
void OpenEditor(benchmark::State& state)
{
    (void)cBenchBook::Large();
    for (auto _ : state) {
        cScene scene;
        benchmark::DoNotOptimize(scene.Editor.Start(u"Girokonto"_s));
        benchmark::DoNotOptimize(scene.Editor.Accounts());
        benchmark::DoNotOptimize(scene.Editor.Suggestions().Descriptions());
        benchmark::DoNotOptimize(scene.Editor.Suggestions().Categories({}));
    }
}
BENCHMARK(OpenEditor)->Unit(benchmark::kMillisecond);

void LoadPartOfSplit(benchmark::State& state)
{
    cScene scene;
    cEntryFields fields = scene.Editor.Start(u"Girokonto"_s);
    fields.Face = eEntryFace::Split;
    fields.Amount = u"3"_s;
    fields.Type = modWord::Ausgabe;
    const QString category = modBookNames::Categories(scene.Data).value(0);
    fields.Parts = {{0, category, u"a"_s, u"1"_s}, {0, category, u"b"_s, u"2"_s}};
    if (scene.Editor.Save(fields) != eEntrySaved::Saved) {
        state.SkipWithError("not saved");
    }
    const int id = scene.Editor.SavedId();
    for (auto _ : state) {
        benchmark::DoNotOptimize(scene.Editor.Load(id));
    }
    while (scene.Data.Journal().UndoName() != QString() && scene.Data.Journal().Undo()) {}
}
BENCHMARK(LoadPartOfSplit)->Unit(benchmark::kMillisecond);

// One key in the category box and in the description.
void TypeInEditor(benchmark::State& state)
{
    cScene scene;
    (void)scene.Editor.Suggestions().Descriptions();
    for (auto _ : state) {
        benchmark::DoNotOptimize(scene.Editor.Suggestions().Categories(u"le"_s));
        benchmark::DoNotOptimize(scene.Editor.Suggestions().Descriptions(u"zzz"_s));
    }
}
BENCHMARK(TypeInEditor)->Unit(benchmark::kMillisecond);

// One of many entries saved with the editor kept open.
void SaveInOpenEditor(benchmark::State& state)
{
    cScene scene;
    cEntryFields fields = scene.Editor.Start(u"Girokonto"_s);
    fields.Amount = u"12,50"_s;
    fields.Type = modWord::Ausgabe;
    for (auto _ : state) {
        fields.Category = modBookNames::Categories(scene.Data).value(0);
        fields.Description = u"Einkauf"_s;
        benchmark::DoNotOptimize(scene.Editor.Save(fields));
        fields = scene.Editor.Next(fields);
        fields.Amount = u"12,50"_s;
    }
    while (scene.Data.Journal().UndoName() != QString() && scene.Data.Journal().Undo()) {}
}
BENCHMARK(SaveInOpenEditor)->Unit(benchmark::kMillisecond)->Iterations(150);

} // namespace
