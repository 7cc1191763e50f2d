#include "bench/cBenchBook.h"
#include "store/cDataAccess.h"
#include "store/cDatabase.h"
#include "store/cUndoStep.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

using namespace Qt::Literals::StringLiterals;

// What undo costs: the same writes in one step with the journal and without it, and an import of 100,000 rows that is
// taken back and done again beside the bare statements.

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

constexpr int Imported = 100000;

cImportEntry Row(int number)
{
    cImportEntry row;
    row.ImportAccount = u"4711000815"_s;
    row.ImportDate = QDate(2024, 1, 1).addDays(number % 700);
    row.ImportType = u"KARTENZAHLUNG"_s;
    row.ImportPurpose = u"Beleg %1 sagt Danke, Terminal 4711 in Talheim"_s.arg(number);
    row.ImportBeneficiary = u"Laden %1"_s.arg(number % 500);
    row.ImportBeneficiaryAccount = u"DE129990001048200%1"_s.arg(number % 500, 5, 10, QChar(u'0'));
    row.ImportBeneficiaryBLZ = u"DEMODE77XXX"_s;
    row.ImportValue = -100 - number % 9000;
    row.ImportCurrency = u"EUR"_s;
    return row;
}

// A book that has just got an import of many rows.
struct cImported
{
    cImported()
    {
        cUndoStep step(Data, u"Kontoauszug eingelesen"_s, cJournal::eWrites::InPortions);
        for (int i = 0; i < Imported; ++i) {
            cImportEntry row = Row(i);
            if (!Data.AddNewImportEntry(row)) {
                qFatal("no row to measure");
            }
        }
    }

    cBenchBook Book{0};
    cDataAccess& Data = Book.Book().Data();
};

void TakeBackImport(benchmark::State& state)
{
    cImported imported;
    for (auto _ : state) {
        const bool isBack = imported.Data.Journal().Undo();
        state.PauseTiming();
        if (!isBack || !imported.Data.GetImportEntries().isEmpty() || !imported.Data.Journal().Redo()) {
            qFatal("not taken back");
        }
        state.ResumeTiming();
    }
}
BENCHMARK(TakeBackImport)->Iterations(5)->Unit(benchmark::kMillisecond);

void DoImportAgain(benchmark::State& state)
{
    cImported imported;
    for (auto _ : state) {
        state.PauseTiming();
        const bool isBack = imported.Data.Journal().Undo();
        state.ResumeTiming();
        if (!isBack || !imported.Data.Journal().Redo()) {
            qFatal("not done again");
        }
        state.PauseTiming();
        state.counters["rows"] = static_cast<double>(imported.Data.GetImportEntries().size());
        state.ResumeTiming();
    }
}
BENCHMARK(DoImportAgain)->Iterations(5)->Unit(benchmark::kMillisecond);

// The rows are copied aside, taken out and put in again, each direction one transaction.
void BareStatements(benchmark::State& state, const char* timed, const char* other)
{
    const cImported imported;
    sqlite3* connection = nullptr;
    sqlite3_open(imported.Book.Path().toUtf8().constData(), &connection);
    const auto run = [&](const char* sql) {
        if (sqlite3_exec(connection, sql, nullptr, nullptr, nullptr) != SQLITE_OK) {
            qFatal("%s", sqlite3_errmsg(connection));
        }
    };
    run("PRAGMA synchronous=OFF");
    run("PRAGMA temp_store=MEMORY");
    run("CREATE TEMP TABLE aside AS SELECT * FROM import");
    const bool isInsert = timed[0] == 'I';
    for (auto _ : state) {
        state.PauseTiming();
        if (isInsert) {
            run(other);
        }
        state.ResumeTiming();
        run(timed);
        state.PauseTiming();
        if (!isInsert) {
            run(other);
        }
        state.ResumeTiming();
    }
    sqlite3_close(connection);
}
constexpr const char* takeOut = "DELETE FROM import WHERE rowid IN (SELECT ID FROM aside)";
constexpr const char* putIn = "INSERT INTO import SELECT * FROM aside";
BENCHMARK_CAPTURE(BareStatements, take out, takeOut, putIn)->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BareStatements, put in, putIn, takeOut)->Iterations(5)->Unit(benchmark::kMillisecond);

} // namespace
