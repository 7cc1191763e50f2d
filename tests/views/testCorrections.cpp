#include "base/cProgress.h"
#include "base/modAmount.h"
#include "import/match/cMatcher.h"
#include "import/propose/cOwnRules.h"
#include "import/propose/cProposer.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cImportHiveCache.h"
#include "import/stage/cStaging.h"
#include "model/modSettingKey.h"
#include "store/cUndoStep.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "support/testBook.h"
#include "views/entry/cEntryWriter.h"
#include "views/statement/cCorrectionFlow.h"
#include "views/statement/cLesson.h"

using namespace Qt::Literals::StringLiterals;

namespace {

struct cScene : cTestBook
{
    cScene() { Settings->Set(modSettingKey::BankNumber.Of(u"111"_s), u"Girokonto"_s); }

    // Stages "2026-01-03 650", parted by "; ", as payments to `name`.
    void Stage(const QString& payments, const QString& name)
    {
        for (const QString& payment : payments.split(u"; "_s)) {
            cTestBook::Stage(u"111"_s, modDate::FromIso(payment.section(u' ', 0, 0)),
                             -modAmount::ToCents(payment.section(u' ', 1).toDouble()), name);
        }
    }

    // Assigns all that is certain and brings it in line.
    std::optional<cCorrectionFlow::cDone> Pay()
    {
        const cUndoStep step(Data, u"Bezahlt"_s);
        QHash<int, cImportEntry> rows;
        const cImportEntryList open = Data.GetImportEntries();
        for (const cImportEntry& row : open) {
            rows.insert(row.ID, row);
        }
        cNoProgress progress;
        const cMatchResult result = cMatcher(Data, Hive, Accounts).MatchAll(rows.keys(), progress, eMatchRun::Write);
        Unassigned = static_cast<int>(result.Left.size() + result.Proposed.size());
        return cCorrectionFlow(Tools).Apply(result.Assigned, rows);
    }

    // "01-03 650.00" of each entry up to May 2026
    QString Entries()
    {
        cEntryQuery query;
        query.End = QDate(2026, 5, 31);
        cEntryItemList entries = Data.GetEntries(query);
        std::stable_sort(entries.begin(), entries.end(),
                         [](const auto& a, const auto& b) { return a.EntryDate < b.EntryDate; });
        QStringList texts;
        for (const cEntryItem& entry : entries) {
            texts.append(entry.EntryDate.toString(u"MM-dd "_s) + QString::number(entry.EntryValue / 100));
        }
        return texts.join(u", "_s);
    }

    cImportHiveCache Hive{Data};
    cAccountMap Accounts{Data, *Settings};
    int Unassigned = 0;
};

struct cLessonScene : cTestBook
{
    cImportEntry Stage(int day, qint64 cents, const QString& name, const QString& purpose = {})
    {
        cImportEntry row;
        row.ImportAccount = u"111"_s;
        row.ImportDate = QDate(2026, 3, day);
        row.ImportValue = cents;
        row.ImportBeneficiary = name;
        row.ImportPurpose = purpose;
        return cStaging(Hive).StageImportEntry(row, eDuplicateTest::Skip) == eStaged::Staged ? row : cImportEntry();
    }

    QString CategoryOf(const cImportEntry& row)
    {
        return cProposer(Data, Hive, Accounts).Propose(row).Entry.EntryCategory;
    }

    cImportHiveCache Hive{Data};
    cAccountMap Accounts{Data, *Settings};
    cLesson Lesson{Tools, Hive};
};

} // namespace

// What the bank corrects in the book, and what is learnt where the user corrects a proposal.
class testCorrections final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Series_data() const
    {
        // statements: one after the other, parted by "|"; proposed: by the last question
        const cTestRows<QString, QList<int>, int, QString> row("statements", "decisions", "proposed", "entries");
        const int none = -2;
        row("another day is no question", u"2026-01-03 650; 2026-02-01 650; 2026-02-27 650"_s, {}, none,
            u"01-03 650, 02-01 650, 02-27 650, 04-01 650, 05-01 650"_s);
        row("this time only", u"2026-01-02 660"_s, {0}, 0, u"01-02 660, 02-01 650, 03-01 650, 04-01 650, 05-01 650"_s);
        row("left as it is, but for the day", u"2026-01-02 660"_s, {2}, 0,
            u"01-02 650, 02-01 650, 03-01 650, 04-01 650, 05-01 650"_s);
        row("twice in a row is a new price", u"2026-01-01 650; 2026-02-02 660; 2026-03-01 660"_s, {1}, 1,
            u"01-01 650, 02-02 660, 03-01 660, 04-01 660, 05-01 660"_s);
        row("the second time with another statement", u"2026-02-02 660|2026-03-02 660"_s, {0, 1}, 1,
            u"01-01 650, 02-02 660, 03-02 660, 04-01 660, 05-01 660"_s);
        row("a price that comes back", u"2026-01-01 660; 2026-02-01 660; 2026-03-01 650; 2026-04-01 650"_s, {1}, 1,
            u"01-01 660, 02-01 660, 03-01 650, 04-01 650, 05-01 650"_s);
        row("each as proposed", u"2026-01-01 655; 2026-02-01 660; 2026-03-01 660"_s, {3}, 3,
            u"01-01 655, 02-01 660, 03-01 660, 04-01 660, 05-01 660"_s);
        row("an older statement after a newer one", u"2026-03-01 650; 2026-04-02 650|2026-01-01 660; 2026-02-01 660"_s,
            {1}, 1, u"01-01 660, 02-01 660, 03-01 650, 04-02 650, 05-01 650"_s);
        row("what was paid in between", u"2026-02-02 650; 2026-03-02 650|2026-01-01 660; 2026-04-01 660"_s, {1}, 1,
            u"01-01 660, 02-02 650, 03-02 650, 04-01 660, 05-01 660"_s);
    }

    void Series() const
    {
        QFETCH(const QString, statements);
        QFETCH(const QList<int>, decisions);
        cScene scene;
        scene.Spend(QDate(2026, 1, 1), 65000, u"Miete Tann"_s, u"Monatlich"_s);
        scene.User.LastDecision.Default = -2;
        scene.User.Decisions.assign(decisions.begin(), decisions.end());
        for (const QString& statement : statements.split(u'|')) {
            scene.Stage(statement, u"Miete Tann"_s);
            QVERIFY(scene.Pay());
            QCOMPARE(scene.Unassigned, 0);
        }
        QTEST(scene.Entries(), "entries");
        QTEST(scene.User.LastDecision.Default, "proposed");
        QCOMPARE(scene.User.Asked.size(), decisions.size());
        // Each row still pays an occurrence of its own.
        const cImportEntryList rows = scene.Data.GetImportEntries();
        cNoProgress progress;
        for (const cImportEntry& row : rows) {
            const QList<cMatchCandidate> found =
                cMatcher(scene.Data, scene.Hive, scene.Accounts).Candidates(row.ID, eCandidates::All);
            QVERIFY(!found.isEmpty());
            QCOMPARE(found.first().Entry.ID, row.ImportAssignedEntry);
            QCOMPARE(found.first().Entry.EntryDate, row.ImportDate);
            QVERIFY(!found.first().IsTaken);
        }
    }

    void WhatTheUserCorrected_data() const
    {
        // cents: by hand
        const cTestRows<qint64, QDate, QList<int>, QString> row("cents", "day", "answers", "entry");
        const QDate none;
        row("kept", 64000, none, {int(eAnswer::No)}, u"01-01 640"_s);
        row("replaced", 64000, none, {int(eAnswer::Yes)}, u"01-02 650"_s);
        row("own day", 65000, QDate(2026, 1, 5), {int(eAnswer::No)}, u"01-05 650"_s);
        row("own amount that the bank confirms", 65000, none, {}, u"01-02 650"_s);
    }

    void WhatTheUserCorrected() const
    {
        QFETCH(const qint64, cents);
        QFETCH(const QDate, day);
        QFETCH(const QList<int>, answers);
        cScene scene;
        const int rent = scene.Spend(QDate(2026, 1, 1), 63000, u"Miete Tann"_s, u"Monatlich"_s).ID;
        QVERIFY(scene.Data.AddNewEntryMod(
            {0, rent, modWord::Betrag, QDate(2026, 1, 1), QDate(2026, 1, 31), cents, u"Minderung"_s, day}));
        scene.Stage(u"2026-01-02 650"_s, u"Miete Tann"_s);
        for (const int answer : answers) {
            scene.User.Answers.push_back(eAnswer(answer));
            scene.User.Decisions.assign(eAnswer(answer) == eAnswer::Yes ? 1 : 0, 0);
        }
        QVERIFY(scene.Pay());
        QTEST(scene.Entries().section(u", "_s, 0, 0), "entry");
        QCOMPARE(scene.User.Asked.isEmpty(), answers.isEmpty());
    }

    void EntriesThatHappenOnce() const
    {
        cScene scene;
        scene.Spend(QDate(2026, 3, 10), 2500, u"REWE"_s);
        scene.Stage(u"2026-03-12 25"_s, u"REWE"_s);
        const auto done = scene.Pay();
        QVERIFY(done);
        QCOMPARE(done->Lines(), QStringList(u"Ein Eintrag hat Tag und Betrag der Bank übernommen."_s));
        QCOMPARE(scene.Entries(), u"03-12 25"_s);
        QCOMPARE(scene.User.Asked, QStringList());
        QVERIFY(scene.Data.Journal().Undo());
        QCOMPARE(scene.Entries(), u"03-10 25"_s);
    }

    // The row of the account that gets the money was there first: the transfer moves to the day on which it left.
    void ATransferHasTheDayOfTheDebit() const
    {
        cScene scene;
        scene.Settings->Set(modSettingKey::BankNumber.Of(u"222"_s), u"Sparkonto"_s);
        cEntryItem transfer = scene.Move(u"Girokonto"_s, u"Sparkonto"_s, 20000, QDate(2026, 3, 10));
        transfer.EntryDescription = u"Rücklage"_s;
        QVERIFY(scene.Data.ChangeEntry(transfer));
        scene.cTestBook::Stage(u"222"_s, QDate(2026, 3, 12), 20000, u"Rücklage"_s);
        QVERIFY(scene.Pay());
        QCOMPARE(scene.Entries(), u"03-10 200"_s);
        scene.cTestBook::Stage(u"111"_s, QDate(2026, 3, 9), -20000, u"Rücklage"_s);
        QVERIFY(scene.Pay());
        QCOMPARE(scene.Entries(), u"03-09 200"_s);
        QCOMPARE(scene.Data.GetImportEntries().constFirst().ImportAssignedEntry, transfer.ID);
    }

    void PartsOfASplitSeriesMoveTogether() const
    {
        cScene scene;
        int group = 0;
        for (const qint64 cents : {60000, 5000}) {
            cEntryItem part = scene.Spend(QDate(2026, 1, 1), cents, u"Miete Tann"_s, u"Monatlich"_s);
            group = group == 0 ? part.ID : group;
            part.EntryFlags = u"split=%1"_s.arg(group);
            QVERIFY(scene.Data.ChangeEntry(part));
        }
        scene.Stage(u"2026-01-04 650"_s, u"Miete Tann"_s);
        QVERIFY(scene.Pay());
        QVERIFY(scene.Entries().startsWith(u"01-04 600, 01-04 50, 02-01"_s));
    }

    void FindsRowsOfTheSamePayee()
    {
        cLessonScene scene;
        const cImportEntry row = scene.Stage(3, -1000, u"KIOSK AM ECK 4711//Talheim/DE"_s);
        const cImportEntry older = scene.Stage(1, -2000, u"Kiosk am Eck"_s);
        const cImportEntry newer = scene.Stage(9, -500, u"VISA KIOSK AM ECK"_s, u"NR 4711"_s);
        cImportEntry booked = scene.Stage(5, -700, u"Kiosk am Eck"_s);
        booked.ImportAssigned = true;
        booked.ImportAssignedEntry = scene.Add([](cEntryItem&) {}).ID;
        QVERIFY(scene.Hive.Change(booked));
        (void)scene.Stage(4, 1000, u"Kiosk am Eck"_s); // money back
        (void)scene.Stage(4, -1000, u"Kiosk"_s);
        QCOMPARE(scene.Lesson.AlikeRows(row), QList<int>({newer.ID, older.ID}));
        QCOMPARE(scene.Lesson.AlikeRows(scene.Stage(4, -1000, {}, u"4711"_s)), QList<int>());
    }

    void RuleHoldsForThePayee_data()
    {
        const cTestRows<QString, QString, QString, QString> row("name", "purpose", "otherName", "otherPurpose");
        row("whole name", u"Kern und Partner"_s, u"1"_s, u"kern und partner"_s, u"2"_s);
        row("store number", u"HOFLADEN KERN 4711//Talheim/DE"_s, u"1"_s, u"HOFLADEN KERN 0815//Ulm/DE"_s, u"2"_s);
        row("PayPal", u"PayPal Europe"_s, u"1.PP Ihr Einkauf bei Hofladen Kern"_s, u"PayPal Europe"_s,
            u"2.PP Ihr Einkauf bei Hofladen Kern"_s);
        row("signs of patterns", u"SumUp *KERN [NORD] 4711"_s, u"1"_s, u"SumUp *KERN [NORD] 0815"_s, u"2"_s);
        row("short name", u"DM 4711//Ulm/DE"_s, u"1"_s, u"DM 4711//Ulm/DE"_s, u"2"_s);
    }

    void RuleHoldsForThePayee()
    {
        QFETCH(QString, name);
        QFETCH(QString, purpose);
        QFETCH(QString, otherName);
        QFETCH(QString, otherPurpose);
        cLessonScene scene;
        const cImportEntry row = scene.Stage(1, -1000, name, purpose);
        const cImportEntry other = scene.Stage(2, -2000, otherName, otherPurpose);
        const cImportEntry stranger = scene.Stage(2, -2000, u"PayPal Europe"_s, u"3.PP Ihr Einkauf bei Admiral"_s);
        QVERIFY(scene.Lesson.Teach(row, u"Freizeit; Hobby"_s));
        QCOMPARE(scene.CategoryOf(row), u"Freizeit; Hobby"_s);
        QCOMPARE(scene.CategoryOf(other), u"Freizeit; Hobby"_s);
        QVERIFY(scene.CategoryOf(stranger) != u"Freizeit; Hobby"_s);
    }

    // Who says "always" a second time means it instead of the first one, and not behind a rule that comes before it.
    void TeachesAnew()
    {
        cLessonScene scene;
        const cImportEntry row = scene.Stage(1, -1000, u"Kern"_s);
        cOwnRule wide;
        wide.Text = u"kern"_s;
        wide.Category = u"Haushalt"_s;
        QVERIFY(cOwnRules(*scene.Settings).Save({wide}));
        QVERIFY(scene.Lesson.Teach(row, u"Freizeit; Hobby"_s));
        QVERIFY(scene.Lesson.Teach(row, u"Freizeit; Sport"_s));
        QCOMPARE(scene.CategoryOf(row), u"Freizeit; Sport"_s);
        QCOMPARE(cOwnRules(*scene.Settings).Load().size(), 2);
    }

    // Corrected in the editor or the list, an old entry teaches at once.
    void CorrectionInTheBookTeaches()
    {
        cLessonScene scene;
        QList<cEntryItem> entries;
        for (int day = 1; day <= 2; ++day) {
            cImportEntry row = scene.Stage(day, -1000, u"Kern"_s);
            entries.append(scene.Add([](cEntryItem&) {}));
            row.ImportAssigned = true;
            row.ImportAssignedEntry = entries.last().ID;
            QVERIFY(scene.Hive.Change(row));
        }
        const cImportEntry open = scene.Stage(3, -1000, u"Kern"_s);
        QCOMPARE(scene.CategoryOf(open), u"Haushalt; Lebensmittel"_s);
        QList<cEntryWrite> rows{{entries.first(), {}}};
        rows.first().Entry.EntryCategory = u"Freizeit; Hobby"_s;
        QVERIFY(cEntryWriter(scene.Data, scene.User).Write(rows, {}, {}));
        QCOMPARE(scene.CategoryOf(open), u"Freizeit; Hobby"_s);
    }
};

TEST_CLASS(testCorrections, QCoreApplication)
#include "testCorrections.moc"
