#include "bench/cBenchBook.h"
#include "views/entry/cEntryEditor.h"
#include "windows/entry/frmBuchung.h"

#include <QApplication>

#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

// Windows on a large book, from the command to the painted window.

namespace {

void OpenEditorWindow(benchmark::State& state)
{
    for (auto _ : state) {
        cEntryEditor editor(cBenchBook::Large().Tools());
        frmBuchung form(editor, editor.Start(u"Girokonto"_s));
        form.show();
        QApplication::processEvents();
        form.grab();
    }
}
BENCHMARK(OpenEditorWindow)->Unit(benchmark::kMillisecond);

// Its floor: a dialog with nothing in it.
void OpenEmptyDialog(benchmark::State& state)
{
    for (auto _ : state) {
        QDialog dialog;
        dialog.show();
        QApplication::processEvents();
        dialog.grab();
    }
}
BENCHMARK(OpenEmptyDialog)->Unit(benchmark::kMillisecond);

} // namespace
