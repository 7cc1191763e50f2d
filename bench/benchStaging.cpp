#include "base/cProgress.h"
#include "bench/cBenchBook.h"
#include "core/cSettings.h"
#include "import/mt940/modMT940.h"
#include "import/stage/cImportHiveCache.h"
#include "import/stage/cStatementImport.h"
#include "store/cDataAccess.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

using namespace Qt::Literals::StringLiterals;

// Staging of MT940 transactions beside bare inserts, and proposals for many rows.

namespace {

constexpr int Rows = 10000;

// Transactions with the numbers from `first` on; all of them differ.
QString Statement(int first, int count)
{
    static const QStringList names{u"REWE Markt"_s,         u"Linden-Apotheke"_s, u"Bäckerei Kornblume"_s,
                                   u"Stadtwerke Talheim"_s, u"Jana Berger"_s,     u"Trattoria Sole"_s,
                                   u"Turnverein Talheim"_s, u"ARAL Tankstelle"_s, u"Modehaus Nadel"_s,
                                   u"Kino am Markt"_s};
    QString text = u":20:STARTUMS\r\n:25:99900010/4711000815\r\n:60F:C240101EUR0,00\r\n"_s;
    for (int i = first; i < first + count; ++i) {
        text += u":61:%1D%2,25N024NONREF\r\n:86:106?00KARTENZAHLUNG?20EREF+%3?21SVWZ+Beleg %3?30DEMODE77XXX"_s.arg(
                    QDate(2024, 1, 1).addDays(i % 700).toString(u"yyMMdd"_s), QString::number(1 + i % 90),
                    QString::number(i))
            + u"?31DE12999000104820000%1?32%2\r\n"_s.arg(QString::number(100 + i % 200), names.at(i % names.size()));
    }
    return text + u":62F:C251231EUR1,00\r\n-\r\n"_s;
}

void BareInserts(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        const cBenchBook book(0);
        sqlite3* connection = nullptr;
        sqlite3_stmt* statement = nullptr;
        sqlite3_open(book.Path().toUtf8().constData(), &connection);
        sqlite3_exec(connection, "PRAGMA synchronous=OFF", nullptr, nullptr, nullptr);
        state.ResumeTiming();
        sqlite3_prepare_v2(
            connection,
            "INSERT INTO import (ImportAccount, ImportDate, ImportType, ImportPurpose, ImportBeneficiary, "
            "ImportBeneficiaryAccount, ImportBeneficiaryBLZ, ImportValue, ImportCurrency, ImportAssigned, "
            "ImportAssignedEntry) VALUES ('4711000815', '2024-01-01', 'KARTENZAHLUNG', ?, 'REWE Markt', "
            "'DE12999000104820000000', 'DEMODE77XXX', -12.25, 'EUR', 0, -1)",
            -1, &statement, nullptr);
        for (int i = 0; i < Rows; ++i) {
            const QByteArray purpose = "Beleg " + QByteArray::number(i);
            sqlite3_bind_text(statement, 1, purpose.constData(), -1, nullptr);
            if (sqlite3_step(statement) != SQLITE_DONE) {
                qFatal("the bare insert failed");
            }
            sqlite3_reset(statement);
        }
        state.PauseTiming();
        sqlite3_finalize(statement);
        sqlite3_close(connection);
        state.ResumeTiming();
    }
}
BENCHMARK(BareInserts)->Iterations(3)->Unit(benchmark::kMillisecond);

void Stage(cBook& book, int first, int count)
{
    cImportHiveCache hive(book.Data());
    cNoProgress progress;
    const cImportResult result =
        cStatementImport(book.Data(), hive).ImportSource({u"bench.sta"_s, {}, Statement(first, count)}, {}, progress);
    if (result.Staged != count) {
        qFatal("staged %d of %d", result.Staged, count);
    }
}

// The same rows through the database layer, without reader and without the search for duplicates.
void InsertRows(benchmark::State& state)
{
    const cImportEntryList rows = modMT940::Read(Statement(0, Rows), {}).Entries;
    for (auto _ : state) {
        state.PauseTiming();
        cBenchBook book(0);
        cDataAccess& data = book.Book().Data();
        state.ResumeTiming();
        for (cImportEntry row : rows) {
            if (!data.AddNewImportEntry(row)) {
                qFatal("the insert failed");
            }
        }
    }
}
BENCHMARK(InsertRows)->Iterations(5)->Unit(benchmark::kMillisecond);

void StageIntoEmpty(benchmark::State& state)
{
    const QString text = Statement(0, Rows);
    for (auto _ : state) {
        state.PauseTiming();
        cBenchBook book(0);
        cImportHiveCache hive(book.Book().Data());
        cNoProgress progress;
        state.ResumeTiming();
        const cImportResult result =
            cStatementImport(book.Book().Data(), hive).ImportSource({u"bench.sta"_s, {}, text}, {}, progress);
        state.counters["staged"] = result.Staged;
    }
}
BENCHMARK(StageIntoEmpty)->Iterations(5)->Unit(benchmark::kMillisecond);

void StageOnTopOf90000(benchmark::State& state)
{
    const QString text = Statement(9 * Rows, Rows);
    for (auto _ : state) {
        state.PauseTiming();
        cBenchBook book(0);
        Stage(book.Book(), 0, 9 * Rows);
        cImportHiveCache hive(book.Book().Data());
        cNoProgress progress;
        state.ResumeTiming();
        const cImportResult result =
            cStatementImport(book.Book().Data(), hive).ImportSource({u"bench.sta"_s, {}, text}, {}, progress);
        state.counters["staged"] = result.Staged;
    }
}
BENCHMARK(StageOnTopOf90000)->Iterations(2)->Unit(benchmark::kMillisecond);

} // namespace
