#include "base/cProgress.h"
#include "bench/cBenchBook.h"
#include "bench/cReviewPage.h"
#include "core/cSettings.h"
#include "import/plan/cImportPlan.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cImportHiveCache.h"
#include "import/stage/cStatementImport.h"
#include "model/modBalance.h"
#include "model/modSettingKey.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/statement/cStatementFiles.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <algorithm>
#include <memory>
#include <optional>

using namespace Qt::Literals::StringLiterals;

// What somebody does every month who has kept the book for long: a statement of 500 transactions is read, staged beside
// 50,000 rows that are booked, compared with 100,000 entries and shown with its proposals.

namespace {

constexpr int Booked = 50000;
constexpr int New = 500;
const QString Number = u"4711000815"_s;

// The account that most entries stand on.
QString MainAccount(cDataAccess& data)
{
    const QHash<QString, int> counts = data.CountEntriesByAccount();
    QString account;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count) {
        account = account.isEmpty() || *count > counts.value(account) ? count.key() : account;
    }
    return account;
}

QString NameOf(const cEntryItem& entry)
{
    return entry.EntryDescription.left(20) + u" GmbH Talheim"_s;
}

QString IbanOf(const QString& name)
{
    return u"DE1299900010482%1"_s.arg(qHash(name, 0) % 10000000, 7, 10, QChar(u'0'));
}

// The entry as the bank has seen it.
cImportEntry RowOf(const cEntryItem& entry, qint64 cents, int number)
{
    cImportEntry row;
    row.ImportAccount = Number;
    row.ImportDate = entry.EntryDate;
    row.ImportType = u"KARTENZAHLUNG"_s;
    row.ImportPurpose = u"EREF+%1 SVWZ+Kartenzahlung Terminal %2 sagt Danke"_s.arg(number).arg(number % 97);
    row.ImportBeneficiary = NameOf(entry);
    row.ImportBeneficiaryAccount = IbanOf(row.ImportBeneficiary);
    row.ImportBeneficiaryBLZ = u"DEMODE77XXX"_s;
    row.ImportValue = cents;
    row.ImportCurrency = u"EUR"_s;
    return row;
}

QString Line(const cImportEntry& row)
{
    const QString euros = QString::number(std::abs(row.ImportValue) / 100) + u','
        + QString::number(std::abs(row.ImportValue) % 100).rightJustified(2, u'0');
    return u":61:%1%2%3N024NONREF\r\n:86:106?00KARTENZAHLUNG?20%4?30%5?31%6?32%7\r\n"_s.arg(
        row.ImportDate.toString(u"yyMMdd"_s), row.ImportValue < 0 ? u"D"_s : u"C"_s, euros,
        QString(row.ImportPurpose).replace(u" SVWZ"_s, u"?21SVWZ"_s), row.ImportBeneficiaryBLZ,
        row.ImportBeneficiaryAccount, row.ImportBeneficiary);
}

// A book with its booked rows, and the statement of the month.
struct cHousehold
{
    cHousehold()
    {
        const QString account = MainAccount(Data);
        Book.Book().Settings().Set(modSettingKey::BankNumber.Of(Number), account);
        cEntryQuery query;
        query.Account = account;
        query.End = cBenchBook::Today;
        query.Kind = eBookingKind::Single;
        cEntryItemList entries = Data.GetEntries(query);
        entries.removeIf([](const cEntryItem& entry) { return entry.EntryCategory == modWord::Startguthaben; });
        if (entries.size() < Booked + New) {
            qFatal("%d entries are too few", static_cast<int>(entries.size()));
        }
        const cUndoStep step(Data, u"bench"_s);
        const qsizetype first = entries.size() - Booked - New;
        for (int i = 0; i < Booked; ++i) {
            cImportEntry row = RowOf(entries.at(first + i), modBalance::Effect(entries.at(first + i), account), i);
            row.ImportAssigned = true;
            row.ImportAssignedEntry = entries.at(first + i).ID;
            if (!Data.AddNewImportEntry(row)) {
                qFatal("no row to measure");
            }
        }
        QString text = u":20:STARTUMS\r\n:25:99900010/%1\r\n:60F:C260215EUR0,00\r\n"_s.arg(Number);
        for (int i = 0; i < New; ++i) {
            cEntryItem entry = entries.at(first + Booked + i);
            entry.EntryDate = cBenchBook::Today.addDays(i * 30 / New - 30);
            // Some are in the book already, most are not.
            const qint64 cents = modBalance::Effect(entries.at(first + Booked + i), account);
            text += Line(RowOf(entry, i % 4 == 0 ? cents : cents + i, Booked + i));
        }
        QFile file(Path());
        if (!file.open(QIODevice::WriteOnly) || file.write((text + u"-\r\n"_s).toUtf8()) < 0) {
            qFatal("no statement to measure");
        }
    }

    [[nodiscard]] QString Path() const { return Folder.filePath(u"month.sta"_s); }

    void TakeBack()
    {
        if (!Data.Journal().Undo()) {
            qFatal("not taken back");
        }
    }

    QTemporaryDir Folder;
    cBenchBook Book{100000};
    cDataAccess& Data = Book.Book().Data();
    cAccountMap Accounts{Data, Book.Book().Settings()};
};

cHousehold& Household()
{
    static cHousehold household;
    return household;
}

// What nobody who reads the rows once, looks for the entries of these days and adds 500 rows can do without.
void BareMonth(benchmark::State& state)
{
    sqlite3* connection = nullptr;
    sqlite3_open(Household().Book.Path().toUtf8().constData(), &connection);
    sqlite3_exec(connection, "PRAGMA synchronous=OFF", nullptr, nullptr, nullptr);
    const auto read = [&](const char* sql) {
        sqlite3_stmt* statement = nullptr;
        sqlite3_prepare_v2(connection, sql, -1, &statement, nullptr);
        qsizetype bytes = 0;
        while (sqlite3_step(statement) == SQLITE_ROW) {
            for (int column = 0; column < sqlite3_column_count(statement); ++column) {
                bytes +=
                    QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, column))).size();
            }
        }
        sqlite3_finalize(statement);
        benchmark::DoNotOptimize(bytes);
    };
    for (auto _ : state) {
        read("SELECT * FROM import ORDER BY ID");
        read("SELECT * FROM data WHERE EntryDate BETWEEN '2026-01-01' AND '2026-04-30'");
        sqlite3_exec(connection, "BEGIN", nullptr, nullptr, nullptr);
        read("INSERT INTO import (ImportAccount, ImportDate, ImportPurpose, ImportValue, ImportAssigned, "
             "ImportAssignedEntry) SELECT ImportAccount, ImportDate, ImportPurpose, ImportValue, 0, -1 FROM import "
             "LIMIT 500");
        state.PauseTiming();
        sqlite3_exec(connection, "ROLLBACK", nullptr, nullptr, nullptr);
        state.ResumeTiming();
    }
    sqlite3_close(connection);
}
BENCHMARK(BareMonth)->Unit(benchmark::kMillisecond);

void ReadMonth(benchmark::State& state)
{
    cHousehold& household = Household();
    for (auto _ : state) {
        cNoProgress progress;
        {
            const cUndoStep step(household.Data, u"bench"_s);
            cImportHiveCache hive(household.Data);
            const cImportResult result =
                cStatementImport(household.Data, hive).ImportFile(household.Path(), {}, progress);
            state.counters["staged"] = result.Staged;
        }
        state.PauseTiming();
        household.TakeBack();
        state.ResumeTiming();
    }
}
BENCHMARK(ReadMonth)->Unit(benchmark::kMillisecond);

void PlanMonth(benchmark::State& state)
{
    cHousehold& household = Household();
    cImportHiveCache hive(household.Data);
    cNoProgress progress;
    {
        const cUndoStep step(household.Data, u"bench"_s);
        (void)cStatementImport(household.Data, hive).ImportFile(household.Path(), {}, progress);
    }
    for (auto _ : state) {
        cImportPlan plan({household.Data, hive, household.Accounts, [](int) { return modStagedTwins::cFile{1}; }});
        const QHash<int, cRowPlan> plans = plan.Make(plan.From(0, New), progress);
        state.counters["rows"] = static_cast<double>(plans.size());
        state.counters["match"] = static_cast<double>(
            std::count_if(plans.begin(), plans.end(), [](const cRowPlan& each) { return each.Match.has_value(); }));
    }
    household.TakeBack();
}
BENCHMARK(PlanMonth)->Unit(benchmark::kMillisecond);

// The page of bank statements from nothing: `isOpen` says whether it is on screen when the file comes. Otherwise the
// file is what it is opened for, as when somebody drops one on the window.
void Month(benchmark::State& state, bool isOpen)
{
    cHousehold& household = Household();
    for (auto _ : state) {
        std::optional<cReviewPage> page;
        state.PauseTiming();
        if (isOpen) {
            page.emplace(household.Book.Tools());
        }
        state.ResumeTiming();
        if (!isOpen) {
            page.emplace(household.Book.Tools(), false);
        }
        cNoProgress progress;
        page->Review.Files().ImportFiles({household.Path()}, progress);
        QCoreApplication::processEvents();
        state.PauseTiming();
        state.counters["open"] = static_cast<double>(page->Review.Rows().Counts().Open);
        page.reset();
        household.TakeBack();
        state.ResumeTiming();
    }
}
BENCHMARK_CAPTURE(Month, page open before, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Month, page opened, false)->Unit(benchmark::kMillisecond);

// The page with the rows of the month that wait, as it is opened the next time.
void OpenWaitingMonth(benchmark::State& state)
{
    cHousehold& household = Household();
    {
        const cUndoStep step(household.Data, u"bench"_s);
        cImportHiveCache hive(household.Data);
        cNoProgress progress;
        (void)cStatementImport(household.Data, hive).ImportFile(household.Path(), {}, progress);
    }
    for (auto _ : state) {
        auto page = std::make_unique<cReviewPage>(household.Book.Tools());
        state.PauseTiming();
        page.reset();
        state.ResumeTiming();
    }
    household.TakeBack();
}
BENCHMARK(OpenWaitingMonth)->Unit(benchmark::kMillisecond);

// What is left for the page, or the review behind another page, after something was undone while a month waits.
void AfterUndo(benchmark::State& state, bool isShown)
{
    cHousehold& household = Household();
    {
        const cUndoStep step(household.Data, u"bench"_s);
        cImportHiveCache hive(household.Data);
        cNoProgress progress;
        (void)cStatementImport(household.Data, hive).ImportFile(household.Path(), {}, progress);
    }
    {
        cReviewPage page(household.Book.Tools());
        page.Page.setVisible(isShown);
        for (auto _ : state) {
            page.Review.StartAfresh();
            QCoreApplication::processEvents();
        }
    }
    household.TakeBack();
}
BENCHMARK_CAPTURE(AfterUndo, page in sight, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(AfterUndo, another page in sight, false)->Unit(benchmark::kMillisecond);

} // namespace
