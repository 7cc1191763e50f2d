#include "bench/cBenchBook.h"
#include "bench/cReviewPage.h"
#include "core/cSettings.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"

#include <QStringList>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <memory>

using namespace Qt::Literals::StringLiterals;

// The page of bank statements over 100,000 rows beside bare reading of these.

namespace {

constexpr int Rows = 100000;

cImportEntry Row(int i)
{
    static const QStringList names{u"REWE Markt"_s,         u"Linden-Apotheke"_s, u"Bäckerei Kornblume"_s,
                                   u"Stadtwerke Talheim"_s, u"Jana Berger"_s,     u"Trattoria Sole"_s,
                                   u"Turnverein Talheim"_s, u"ARAL Tankstelle"_s, u"Modehaus Nadel"_s,
                                   u"Kino am Markt"_s};
    cImportEntry row;
    row.ImportAccount = u"4711000815"_s;
    row.ImportDate = QDate(2024, 1, 1).addDays(i % 700);
    row.ImportType = u"KARTENZAHLUNG"_s;
    row.ImportPurpose =
        u"Beleg %1 sagt Danke, Terminal 4711 in Talheim, Kartenzahlung %2"_s.arg(i).arg(i * 7919 % 100003);
    row.ImportBeneficiary = u"%1 %2"_s.arg(names.at(i % names.size())).arg(i % 500);
    row.ImportBeneficiaryAccount = u"DE129990001048200%1"_s.arg(i % 500, 5, 10, QChar(u'0'));
    row.ImportBeneficiaryBLZ = u"DEMODE77XXX"_s;
    row.ImportValue = -100 - i % 9000;
    row.ImportCurrency = u"EUR"_s;
    return row;
}

struct cScene
{
    cScene()
    {
        const cUndoStep step(File.Book().Data(), u"bench"_s);
        for (int i = 0; i < Rows; ++i) {
            cImportEntry row = Row(i);
            if (!File.Book().Data().AddNewImportEntry(row)) {
                qFatal("no row to measure");
            }
        }
        File.Book().Settings().Set(modSettingKey::BankNumber.Of(u"4711000815"_s), u"Girokonto"_s);
    }

    cBenchBook File{12000};
};

cScene& Scene()
{
    static cScene scene;
    return scene;
}

// A month of a household that has kept its book for long: the page shows every row in its group.
struct cMonth
{
    cMonth()
    {
        const cUndoStep step(File.Book().Data(), u"bench"_s);
        for (int i = 0; i < 500; ++i) {
            cImportEntry row = Row(i);
            row.ImportDate = cBenchBook::Today.addDays(-(i % 30));
            if (!File.Book().Data().AddNewImportEntry(row)) {
                qFatal("no row to measure");
            }
        }
        File.Book().Settings().Set(modSettingKey::BankNumber.Of(u"4711000815"_s), u"Girokonto"_s);
    }

    cBenchBook File{100000};
};

void BareReadOfStaged(benchmark::State& state)
{
    sqlite3* connection = nullptr;
    sqlite3_open(Scene().File.Path().toUtf8().constData(), &connection);
    for (auto _ : state) {
        sqlite3_stmt* statement = nullptr;
        sqlite3_prepare_v2(connection, "SELECT * FROM import ORDER BY ID", -1, &statement, nullptr);
        qsizetype bytes = 0;
        while (sqlite3_step(statement) == SQLITE_ROW) {
            for (int column = 0; column < sqlite3_column_count(statement); ++column) {
                bytes +=
                    QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, column))).size();
            }
        }
        benchmark::DoNotOptimize(bytes);
        sqlite3_finalize(statement);
    }
    sqlite3_close(connection);
}
BENCHMARK(BareReadOfStaged)->Unit(benchmark::kMillisecond);

void RecordsOfStaged(benchmark::State& state)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(Scene().File.Book().Data().GetImportEntries());
    }
}
BENCHMARK(RecordsOfStaged)->Unit(benchmark::kMillisecond);

void OpenReview(benchmark::State& state)
{
    (void)Scene();
    for (auto _ : state) {
        auto page = std::make_unique<cReviewPage>(Scene().File.Tools());
        state.PauseTiming();
        page.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(OpenReview)->Unit(benchmark::kMillisecond);

void OpenMonth(benchmark::State& state)
{
    static cMonth month;
    for (auto _ : state) {
        auto page = std::make_unique<cReviewPage>(month.File.Tools());
        state.PauseTiming();
        page.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(OpenMonth)->Unit(benchmark::kMillisecond);

// The second time, as after every booking: the rows are known.
void RefreshReview(benchmark::State& state)
{
    cReviewPage page(Scene().File.Tools());
    for (auto _ : state) {
        page.Review.Refresh();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(RefreshReview)->Unit(benchmark::kMillisecond);

void FilterReview(benchmark::State& state, const char16_t* before, const char16_t* text)
{
    cReviewPage page(Scene().File.Tools());
    for (auto _ : state) {
        state.PauseTiming();
        page.Review.View().SetFilter(QString::fromUtf16(before));
        QCoreApplication::processEvents();
        state.ResumeTiming();
        page.Review.View().SetFilter(QString::fromUtf16(text));
        QCoreApplication::processEvents();
    }
}
BENCHMARK_CAPTURE(FilterReview, first key, u"", u"r")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FilterReview, second key, u"r", u"re")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FilterReview, last key, u"rew", u"rewe")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FilterReview, amount, u"12", u"12,")->Unit(benchmark::kMillisecond);

void GroupReview(benchmark::State& state, int grouping)
{
    cReviewPage page(Scene().File.Tools());
    for (auto _ : state) {
        state.PauseTiming();
        page.Review.View().SetGrouping(0);
        QCoreApplication::processEvents();
        state.ResumeTiming();
        page.Review.View().SetGrouping(grouping);
        QCoreApplication::processEvents();
    }
    page.Review.View().SetGrouping(0);
}
BENCHMARK_CAPTURE(GroupReview, counterparty, 1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(GroupReview, day, 2)->Unit(benchmark::kMillisecond);

} // namespace
