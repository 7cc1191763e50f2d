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
enum eWrite : int { Add, Change, Delete };

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

bool Write(cDataAccess& data, eWrite what, int number)
{
    cEntryItem entry = Entry(number);
    entry.ID = number + 1; // of a new book
    entry.EntryValue += 1;
    switch (what) {
    case Add: return data.AddNewEntry(entry);
    case Change: return data.ChangeEntry(entry);
    case Delete: return data.DeleteEntry(entry.ID);
    }
    return false;
}

void WriteAll(cDataAccess& data, eWrite what)
{
    cUndoStep step(data, u"Schritt"_s);
    bool isWritten = true;
    for (int i = 0; i < Rows && isWritten; ++i) {
        isWritten = Write(data, what, i);
    }
    if (!step.DoneIf(isWritten)) {
        qFatal("the rows were not written");
    }
}

void WriteInOneStep(benchmark::State& state)
{
    const auto what = static_cast<eWrite>(state.range(1));
    for (auto _ : state) {
        state.PauseTiming();
        cBenchBook book(0);
        cDataAccess& data = book.Book().Data();
        if (state.range(0) == Without) {
            book.Book().Database().WatchRows({});
        }
        if (what != Add) {
            WriteAll(data, Add);
        }
        state.ResumeTiming();
        WriteAll(data, what);
    }
}
BENCHMARK(WriteInOneStep)
    ->ArgNames({"journal", "write"})
    ->ArgsProduct({{Without, With}, {Add, Change, Delete}})
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);

} // namespace
