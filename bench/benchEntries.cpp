#include "bench/cBenchBook.h"
#include "model/modPeriod.h"
#include "store/cDataAccess.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

// GetEntries on 100,000 entries beside a bare walk over the same rows.

namespace {

// Steps through all rows and asks for the bytes of every column, as any reader of the rows has to.
qint64 Walk(const QString& path, const char* sql)
{
    sqlite3* connection = nullptr;
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_open(path.toUtf8().constData(), &connection) != SQLITE_OK
        || sqlite3_prepare_v2(connection, sql, -1, &statement, nullptr) != SQLITE_OK) {
        qFatal("the bare scan failed");
    }
    qint64 bytes = 0;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        for (int column = 0; column < sqlite3_column_count(statement); ++column) {
            benchmark::DoNotOptimize(sqlite3_column_text(statement, column));
            bytes += sqlite3_column_bytes(statement, column);
        }
    }
    sqlite3_finalize(statement);
    sqlite3_close(connection);
    return bytes;
}

void BareScan(benchmark::State& state)
{
    const QString path = cBenchBook::Large().Path();
    for (auto _ : state) {
        benchmark::DoNotOptimize(Walk(path, "SELECT * FROM data"));
    }
}
BENCHMARK(BareScan)->Unit(benchmark::kMillisecond);

void SameRowsInDateOrder(benchmark::State& state)
{
    const QString path = cBenchBook::Large().Path();
    for (auto _ : state) {
        benchmark::DoNotOptimize(Walk(path, "SELECT * FROM data ORDER BY date(EntryDate) ASC"));
    }
}
BENCHMARK(SameRowsInDateOrder)->Unit(benchmark::kMillisecond);

void GetEntriesAll(benchmark::State& state)
{
    cDataAccess& data = cBenchBook::Large().Book().Data();
    qsizetype count = 0;
    for (auto _ : state) {
        count = data.GetEntries({}).size();
    }
    state.counters["entries"] = static_cast<double>(count);
}
BENCHMARK(GetEntriesAll)->Unit(benchmark::kMillisecond);

void GetEntriesUpToToday(benchmark::State& state)
{
    cDataAccess& data = cBenchBook::Large().Book().Data();
    cEntryQuery query;
    query.End = cBenchBook::Today;
    for (auto _ : state) {
        benchmark::DoNotOptimize(data.GetEntries(query));
    }
}
BENCHMARK(GetEntriesUpToToday)->Unit(benchmark::kMillisecond);

void GetEntriesMonth(benchmark::State& state)
{
    cDataAccess& data = cBenchBook::Large().Book().Data();
    const modPeriod::cRange month = modPeriod::Month(cBenchBook::Today, 0);
    cEntryQuery query;
    query.Start = month.Start;
    query.End = month.End;
    for (auto _ : state) {
        benchmark::DoNotOptimize(data.GetEntries(query));
    }
}
BENCHMARK(GetEntriesMonth)->Unit(benchmark::kMillisecond);

} // namespace
