#include "bench/cBenchBook.h"
#include "store/cDataAccess.h"
#include "store/cDatabase.h"
#include "store/cUndoStep.h"

#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

// What undo costs: the same writes in one step with the journal and without it.

namespace {

constexpr int Rows = 20000;

enum eJournal : int { Without, With };

cEntryItem Entry(int number)
{
    cEntryItem entry;
    entry.EntryDate = QDate(2024, 1, 1).addDays(number % 700);
    entry.EntryDateEnd = QDate(2050, 1, 1);
    entry.EntryType = u"Ausgabe"_s;
    entry.EntryInterval = u"Einmalig"_s;
    entry.EntryAccount = u"Girokonto"_s;
    entry.EntryCategory = u"Haushalt; Lebensmittel"_s;
    entry.EntryDescription = u"Einkauf %1"_s.arg(number);
    entry.EntryValue = 100 + number;
    return entry;
}

// Adds, changes and deletes the rows.
void WriteInOneStep(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        cBenchBook book(0);
        cDataAccess& data = book.Book().Data();
        if (state.range(0) == Without) {
            book.Book().Database().WatchRows({});
        }
        state.ResumeTiming();
        cUndoStep step(data, u"Schritt"_s);
        bool isWritten = true;
        for (int i = 0; i < Rows; ++i) {
            cEntryItem entry = Entry(i);
            isWritten = isWritten && data.AddNewEntry(entry);
            entry.EntryValue += 1;
            isWritten = isWritten && data.ChangeEntry(entry) && (i % 2 == 0 || data.DeleteEntry(entry.ID));
        }
        if (!step.DoneIf(isWritten)) {
            qFatal("the rows were not written");
        }
    }
}
BENCHMARK(WriteInOneStep)->ArgName("journal")->Arg(Without)->Arg(With)->Repetitions(5)->Unit(benchmark::kMillisecond);

} // namespace
