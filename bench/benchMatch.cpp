#include "base/cProgress.h"
#include "base/modSimilar.h"
#include "bench/cBenchBook.h"
#include "core/cSettings.h"
#include "import/match/cMatcher.h"
#include "import/plan/cImportPlan.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cImportHiveCache.h"
#include "import/stage/cStatementImport.h"
#include "model/modBalance.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"

#include <QRandomGenerator>
#include <QStringList>

#include <benchmark/benchmark.h>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

// How alike texts are, and staged rows beside the entries of a large book.

namespace {

constexpr int Pairs = 10000;
constexpr int Rows = 10000;

// Purposes of 120 characters. `kinds` is how many there are: few of them differ in their numbers only.
QStringList Purposes(int kinds)
{
    static const QStringList words{u"SVWZ+Rechnung"_s, u"Kundennummer"_s, u"Abschlag"_s,    u"Miete"_s,
                                   u"Wohnung"_s,       u"Lastschrift"_s,  u"vom"_s,         u"Beitrag"_s,
                                   u"Mitglied"_s,      u"EREF+"_s,        u"MREF+"_s,       u"CRED+DE98ZZZ"_s,
                                   u"Kartenzahlung"_s, u"sagt Danke"_s,   u"Überweisung"_s, u"Gebühr"_s,
                                   u"März"_s,          u"Vertrag Nr."_s,  u"Talstraße"_s,   u"Gutschrift"_s};
    QRandomGenerator random(1);
    QStringList purposes;
    for (int i = 0; i <= Pairs; ++i) {
        QRandomGenerator kind(static_cast<quint32>(i % kinds));
        QString text;
        while (text.size() < 120) {
            text += words.at(kind.bounded(words.size())) + u' ';
            text += kind.bounded(3) == 0 ? QString::number(random.bounded(100000)) + u' ' : QString();
        }
        purposes.append(text.left(120));
    }
    return purposes;
}

void CompareTexts(benchmark::State& state)
{
    const QStringList purposes = Purposes(static_cast<int>(state.range(0)));
    double sum = 0.0;
    for (auto _ : state) {
        for (int i = 0; i < Pairs; ++i) {
            sum += modSimilar::Similarity(purposes.at(i), purposes.at(i + 1));
        }
    }
    state.counters["mean"] = sum / static_cast<double>(Pairs * state.iterations());
}
BENCHMARK(CompareTexts)->Arg(1)->Arg(10000)->Unit(benchmark::kMillisecond);

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

// Rows as the bank would send them for entries all over the book, some days later and in the bank's own words; every
// fourth one has an amount that nobody entered.
QList<int> StageRows(cDataAccess& data, cImportHiveCache& hive, const QString& account)
{
    cEntryQuery query;
    query.Account = account;
    query.End = cBenchBook::Today;
    query.Kind = eBookingKind::Single;
    const cEntryItemList entries = data.GetEntries(query);
    const qsizetype step = qMax<qsizetype>(1, entries.size() / Rows);
    QList<int> ids;
    for (int i = 0; i < Rows; ++i) {
        const cEntryItem& entry = entries.at((i * step) % entries.size());
        cImportEntry row;
        row.ImportAccount = u"4711"_s;
        row.ImportDate = entry.EntryDate.addDays(i % 4);
        const qint64 cents = modBalance::Effect(entry, account);
        row.ImportValue = i % 4 == 3 ? cents * 4 / 3 : cents;
        row.ImportBeneficiary = entry.EntryDescription.left(20) + u" GmbH Talheim"_s;
        row.ImportPurpose = u"SVWZ+Kartenzahlung Terminal %1 sagt Danke %2"_s.arg(i % 97).arg(i);
        if (cStaging(hive).StageImportEntry(row, eDuplicateTest::Skip) != eStaged::Staged) {
            qFatal("not staged");
        }
        ids.append(row.ID);
    }
    return ids;
}

// A book of 100,000 entries with rows that wait.
struct cStaged
{
    cBenchBook Book{100000};
    cDataAccess& Data = Book.Book().Data();
    cAccountMap Accounts{Data, Book.Book().Settings()};
    cImportHiveCache Hive{Data};
    QList<int> Ids;

    cStaged()
    {
        const QString account = MainAccount(Data);
        if (!Accounts.Assign(u"4711"_s, account)) {
            qFatal("no account");
        }
        Ids = StageRows(Data, Hive, account);
    }
};

cStaged& Staged()
{
    static cStaged staged;
    return staged;
}

void Match(benchmark::State& state, eMatchRun run)
{
    cStaged& staged = Staged();
    for (auto _ : state) {
        cUndoStep step(staged.Data, u"bench"_s);
        cNoProgress progress;
        const cMatchResult result =
            cMatcher(staged.Data, staged.Hive, staged.Accounts).MatchAll(staged.Ids, progress, run);
        state.PauseTiming();
        state.counters["assigned"] = static_cast<double>(result.Assigned.size());
        state.counters["proposed"] = static_cast<double>(result.Proposed.size());
        step.Revert();
        state.ResumeTiming();
    }
}
BENCHMARK_CAPTURE(Match, Try, eMatchRun::Try)->Iterations(3)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Match, Write, eMatchRun::Write)->Iterations(3)->Unit(benchmark::kMillisecond);

// What is to become of rows, everything weighed: a month, and a pile that has waited for years.
void Plan(benchmark::State& state)
{
    cStaged& staged = Staged();
    for (auto _ : state) {
        cNoProgress progress;
        cImportPlan plan({staged.Data, staged.Hive, staged.Accounts, [](int) { return modStagedTwins::cFile{1}; }});
        const QHash<int, cRowPlan> plans = plan.Make(plan.From(0, state.range(0)), progress);
        state.counters["match"] = static_cast<double>(
            std::count_if(plans.begin(), plans.end(), [](const cRowPlan& each) { return each.Match.has_value(); }));
    }
}
BENCHMARK(Plan)->Arg(1)->Arg(500)->Arg(10000)->Iterations(3)->Unit(benchmark::kMillisecond);

// What a window asks for when the user steps through the rows.
void CandidatesOfOneRow(benchmark::State& state)
{
    cStaged& staged = Staged();
    qsizetype i = 0;
    for (auto _ : state) {
        cMatcher matcher(staged.Data, staged.Hive, staged.Accounts);
        benchmark::DoNotOptimize(matcher.Candidates(staged.Ids.at(i)));
        i = (i + 101) % staged.Ids.size();
    }
}
BENCHMARK(CandidatesOfOneRow)->Unit(benchmark::kMillisecond);

} // namespace
