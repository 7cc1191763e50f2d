#include "import/propose/cOwnRules.h"
#include "import/propose/cProposer.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cImportHiveCache.h"
#include "import/stage/cStaging.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "support/testBook.h"
#include "views/entry/cEntryWriter.h"
#include "views/statement/cLesson.h"

using namespace Qt::Literals::StringLiterals;

namespace {

struct cScene : cTestBook
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
        return cProposer(Data, Hive, Accounts).ProposeBest(row).Entry.EntryCategory;
    }

    cImportHiveCache Hive{Data};
    cAccountMap Accounts{Data, *Settings};
    cLesson Lesson{Tools, Hive};
};

} // namespace

class testLesson : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FindsRowsOfTheSamePayee()
    {
        cScene scene;
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
        cScene scene;
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
        cScene scene;
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
        cScene scene;
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

TEST_CLASS(testLesson, QCoreApplication)
#include "testLesson.moc"
