#include "core/cBackup.h"
#include "core/cBackupPlan.h"
#include "core/cBook.h"
#include "core/cConfiguration.h"
#include "core/cSettings.h"
#include "model/modSettingKey.h"
#include "store/cTableWalk.h"
#include "store/cUndoStep.h"
#include "store/modBookFile.h"
#include "store/modSchema.h"
#include "support/cFakeMachine.h"
#include "support/cTestClass.h"

#include <filesystem>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr const char* twoEntries = "INSERT INTO data (EntryDate, EntryAccount) VALUES ('2026-01-31', 'Giro');"
                                   "INSERT INTO data (EntryDate, EntryAccount) VALUES ('2025-12-01', 'Giro');";

constexpr const char* manyRows =
    "INSERT INTO import (ImportDate, ImportPurpose) WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
    "WHERE i < 2000) SELECT '2026-01-01', 'Umsatz mit etwas Text' FROM n";

bool IsPrivate(const QString& path)
{
    constexpr QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    return !QFile::permissions(path).testAnyFlags(others);
}

QStringList FilesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files, QDir::Name);
}

// An open book with two entries and what works on it.
struct cMachine : cFakeMachine
{
    cMachine()
    {
        if (!Book.Open(File.Make(twoEntries))) {
            qFatal("cannot open the book");
        }
        Configuration.SetDatabase(&Book.Settings());
    }

    [[nodiscard]] QString Copies() const { return File.Folder() + u"/Sicherungen"_s; }

    void Write() { Book.Database().Execute("INSERT INTO data (EntryDate) VALUES ('2026-02-01')"); }

    cConfiguration Configuration{Registry};
    cBook Book{User};
    cBackup Backup{Book.Database(), Shell};
    cBackupPlan Plan{{Shell, User, Clock}, Book, Configuration};
};

// A book with a page of its bank transactions overwritten: it opens, and only a look at all of it shows the damage.
QString MakeHalfDamaged(const cTestFile& file)
{
    const QString path = file.Make(manyRows, u"half.db"_s);
    QByteArray bytes = cTestFile::Bytes(path);
    constexpr int page = 4096;
    bytes.replace(bytes.size() / 2 / page * page, page, QByteArray(page, 'x'));
    cTestFile::Write(path, bytes);
    return path;
}

// A file with its journal as a program leaves them that is killed in the middle of a large write.
QString MakeKilled(const cMachine& machine)
{
    const QString running = machine.File.Make(manyRows, u"running.db"_s);
    cDatabase database;
    database.Open(running, eOpenMode::ReadWrite);
    database.ExecuteScript("PRAGMA cache_size=5; BEGIN; UPDATE import SET ImportPurpose = 'halb'");
    const QString killed = machine.Path(u"killed.db"_s);
    for (const QString& companion : {QString(), u"-journal"_s}) {
        if (!QFile::copy(running + companion, killed + companion)) {
            qFatal("nothing was written yet");
        }
    }
    return killed;
}

} // namespace

class testBackup final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void CopyHoldsTheBook() const
    {
        cMachine machine;
        const QString target = machine.Path(u"neu/Kontorelle.backup"_s); // the folder is not there yet
        QCOMPARE(machine.Backup.Make(target), QString());
        QVERIFY(IsPrivate(target));
        const modBookFile::cContent content = modBookFile::Look(target);
        QVERIFY(modBookFile::IsSound(content));
        QCOMPARE(content.Entries, 2);
        QCOMPARE(content.LastEntry, QDate(2026, 1, 31));
        QVERIFY(modBookFile::Describe(content).startsWith(u"2 Einträge, der letzte vom 31.01.2026, Datei vom "_s));

        cTestFile::Write(target, "an older copy");
        machine.Book.Database().Execute("PRAGMA journal_mode=WAL"); // set by another program
        QCOMPARE(machine.Backup.Make(target), QString());
        QCOMPARE(modBookFile::Look(target).Entries, 2);
        QCOMPARE(FilesIn(machine.Path(u"neu"_s)), QStringList(u"Kontorelle.backup"_s));
    }

    void BadCopyReplacesNothing() const
    {
        cTestFile file;
        cFakeShell shell;
        cDatabase damaged;
        QCOMPARE(modSchema::OpenValid(damaged, MakeHalfDamaged(file), eOpenMode::ReadWrite), eDatabaseFault::None);
        const QString target = file.Path(u"good.backup"_s);
        cTestFile::Write(target, "good");
        QVERIFY(cBackup(damaged, shell).Make(target).startsWith(u"Die Kopie ist beschädigt"_s));
        QCOMPARE(cTestFile::Bytes(target), QByteArray("good"));
        QCOMPARE(FilesIn(file.Folder()), QStringList({u"good.backup"_s, u"half.db"_s}));
    }

    void DamageIsFound() const
    {
        cMachine machine;
        cDatabase& database = machine.Book.Database();
        int told = 0;
        database.WatchDamage([&told] { ++told; });
        for (const bool isDamaged : {false, true}) {
            const QString path = isDamaged ? MakeHalfDamaged(machine.File) : machine.Book.Path();
            QVERIFY(machine.Book.Open(path));
            cTableWalk walk(database);
            int steps = 0;
            for (; walk.Step(0) && steps < 100; ++steps) {}
            QVERIFY(steps < 100);
            QCOMPARE(database.IsDamaged(), isDamaged);
            QCOMPARE(told, isDamaged ? 1 : 0);
            QVERIFY(!walk.Step(0));
        }
        machine.Plan.CopyIfChanged();
        QVERIFY(!QFileInfo::exists(machine.Copies()));
    }

    void BookIsNotItsOwnCopy() const
    {
        cMachine machine;
        QVERIFY(QFile::link(machine.Path(u"data.db"_s), machine.Path(u"link.backup"_s)));
        QVERIFY(!machine.Backup.Make(machine.Path(u"link.backup"_s)).isEmpty());
        QVERIFY(!machine.Backup.Make(machine.Path(u"sub/../data.db"_s)).isEmpty());
        QCOMPARE(modBookFile::Look(machine.Path(u"data.db"_s)).Entries, 2);
    }

    void RestoredFileKeepsTheFormerOne() const
    {
        cMachine machine;
        const QString path = machine.Book.Path();
        const QString backup = machine.File.Make({}, u"empty.backup"_s);
        const cBackup::cRestored restored = machine.Backup.Restore(path, backup, QDate(2026, 3, 15));
        QCOMPARE(restored.Problem, QString());
        QCOMPARE(restored.Kept, path + u".2026-03-15.ersetzt"_s);
        QCOMPARE(modBookFile::Look(path).Entries, 0);
        QCOMPARE(modBookFile::Look(restored.Kept).Entries, 2);
        QVERIFY(IsPrivate(path));
        QVERIFY(machine.Backup.PutBack(path, restored.Kept));
        QCOMPARE(modBookFile::Look(path).Entries, 2);
        QCOMPARE(FilesIn(machine.File.Folder()), QStringList({u"data.db"_s, u"empty.backup"_s}));
    }

    // A program killed while it wrote leaves a journal. It belongs to the replaced file and to no other.
    void RestoreAfterAKill() const
    {
        cMachine machine;
        const QString path = MakeKilled(machine);
        const QString backup = machine.File.Make({}, u"empty.backup"_s);
        cDatabase closed;
        const cBackup::cRestored restored = cBackup(closed, machine.Shell).Restore(path, backup, QDate(2026, 3, 15));
        QCOMPARE(restored.Problem, QString());
        for (const QString& file : {path, restored.Kept}) {
            QVERIFY(modBookFile::IsSound(modBookFile::Look(file)));
            QVERIFY(!QFileInfo::exists(file + u"-journal"_s));
        }
        cDatabase kept;
        kept.Open(restored.Kept, eOpenMode::ReadOnly);
        QCOMPARE(cTestFile::Value(kept, "SELECT COUNT(*) FROM import WHERE ImportPurpose = 'halb'"), u"0"_s);
        QCOMPARE(modBookFile::Look(path).Entries, 0);
    }

    void FailedReplacementLeavesAllAsItWas() const
    {
        cMachine machine;
        const QString path = machine.File.Make(twoEntries, u"other.db"_s);
        cTestFile::Write(path + u"-shm"_s, "rest");
        const QStringList before = FilesIn(machine.File.Folder());
        QVERIFY(!modBookFile::PutInPlace(machine.Shell, machine.Path(u"missing.neu"_s), path, QDate(2026, 3, 15),
                                         u"ersetzt"_s));
        QCOMPARE(FilesIn(machine.File.Folder()), before);
        QCOMPARE(modBookFile::Look(path).Entries, 2);
    }

    void LinkStaysALink() const
    {
        cMachine machine;
        const QString link = machine.Path(u"link.db"_s);
        QVERIFY(QFile::link(machine.Book.Path(), link));
        const QString backup = machine.File.Make({}, u"empty.backup"_s);
        QCOMPARE(machine.Backup.Restore(link, backup, QDate(2026, 3, 15)).Problem, QString());
        QVERIFY(QFileInfo(link).isSymLink());
        QCOMPARE(modBookFile::Look(machine.Path(u"data.db"_s)).Entries, 0);
    }

    void BadBackupLeavesTheBookOpen() const
    {
        cMachine machine;
        const QString bad = machine.Path(u"bad.backup"_s);
        cTestFile::Write(bad, "no database at all");
        for (const QString& backup : {bad, MakeHalfDamaged(machine.File), machine.Path(u"missing.backup"_s)}) {
            QVERIFY(!machine.Backup.Restore(machine.Book.Path(), backup, QDate(2026, 3, 15)).Problem.isEmpty());
            QVERIFY(machine.Book.IsOpen());
        }
        QCOMPARE(FilesIn(machine.File.Folder()), QStringList({u"bad.backup"_s, u"data.db"_s, u"half.db"_s}));
    }

    void Surplus_data() const
    {
        const cTestRows<QStringList, int, QStringList> row("days", "count", "surplus");
        const QStringList week{u"2026-03-01"_s, u"2026-03-02"_s, u"2026-03-03"_s, u"2026-03-04"_s};
        row("fewer than the count", week, 4, {});
        row("the oldest go", week, 2, {u"2026-03-02"_s, u"2026-03-01"_s});
        row("the last of a month stays",
            {u"2025-03-07"_s, u"2026-01-30"_s, u"2026-01-31"_s, u"2026-02-01"_s, u"2026-03-01"_s}, 1,
            {u"2026-01-30"_s});
    }

    void Surplus() const
    {
        QFETCH(const QStringList, days);
        QFETCH(const int, count);
        const QList<QDate> list = Each(days, [](const QString& day) { return QDate::fromString(day, Qt::ISODate); });
        QTEST(Each(cBackupPlan::Surplus(list, count), [](QDate day) { return day.toString(Qt::ISODate); }), "surplus");
    }

    void OneCopyADay() const
    {
        cMachine machine;
        machine.Plan.RunIfDue();
        const QStringList first(u"data-auto-2026-03-15.backup"_s);
        QCOMPARE(FilesIn(machine.Copies()), first);
        QCOMPARE(machine.Plan.Copies().size(), 1);
        QVERIFY(QFile::remove(machine.Plan.Copies().constFirst().Path));
        machine.Plan.RunIfDue();
        QCOMPARE(FilesIn(machine.Copies()), QStringList());
        machine.Clock.Day = QDate(2026, 3, 16);
        machine.Plan.RunIfDue();
        QCOMPARE(FilesIn(machine.Copies()), QStringList(u"data-auto-2026-03-16.backup"_s));
        QCOMPARE(machine.User.Shown, QStringList());
    }

    // Of a day on which much is done the first copy and the newest ones stay, of a day gone by the last one.
    void FurtherCopiesOfADay() const
    {
        cMachine machine;
        machine.Plan.RunIfDue();
        machine.Plan.CopyIfChanged();
        QVERIFY(machine.Book.Settings().Set(modSettingKey::WindowState, u"2"_s));
        machine.Plan.CopyIfChanged();
        QCOMPARE(FilesIn(machine.Copies()), QStringList(u"data-auto-2026-03-15.backup"_s));
        cUndoStep step(machine.Book.Data(), u"PDF-Auszug"_s); // what can be undone belongs to the book
        QVERIFY(machine.Book.Settings().Set(modSettingKey::StatementPapers.Of(u"4711"_s), u"a.pdf"_s));
        QVERIFY(step.Done());
        for (int i = 0; i < 5; ++i) {
            machine.Plan.CopyIfChanged();
            machine.Write();
        }
        machine.Plan.CopyIfChanged();
        QCOMPARE(FilesIn(machine.Copies()),
                 QStringList({u"data-auto-2026-03-15-4.backup"_s, u"data-auto-2026-03-15-5.backup"_s,
                              u"data-auto-2026-03-15-6.backup"_s, u"data-auto-2026-03-15-7.backup"_s,
                              u"data-auto-2026-03-15.backup"_s}));
        QCOMPARE(modBookFile::Look(machine.Plan.Copies().constFirst().Path).Entries, 7);
        machine.Clock.Day = QDate(2026, 3, 16);
        machine.Write();
        machine.Plan.RunIfDue();
        QCOMPARE(FilesIn(machine.Copies()),
                 QStringList({u"data-auto-2026-03-15-7.backup"_s, u"data-auto-2026-03-16.backup"_s}));
        QCOMPARE(machine.User.Shown, QStringList());
    }

    // What was written by another program since the newest copy is told by the times of the files.
    void UnchangedBookOfAnotherDay() const
    {
        cMachine machine;
        machine.Plan.RunIfDue();
        QVERIFY(machine.Book.Settings().Set(modSettingKey::WindowState, u"2"_s));
        machine.Plan.CopyIfChanged(); // at closing
        for (const bool isChanged : {false, true}) {
            machine.Clock.Day = machine.Clock.Day.addDays(1);
            if (isChanged) {
                QFile file(machine.Book.Path());
                QVERIFY(file.open(QIODevice::ReadWrite));
                QVERIFY(file.setFileTime(QFileInfo(file).lastModified().addSecs(5), QFile::FileModificationTime));
            }
            QVERIFY(machine.Book.Open(machine.Book.Path()));
            cBackupPlan plan({machine.Shell, machine.User, machine.Clock}, machine.Book, machine.Configuration);
            plan.BookOpened();
            QVERIFY(machine.Book.Settings().Set(modSettingKey::WindowState, u"1"_s));
            plan.RunIfDue();
            QCOMPARE(plan.Copies().size(), isChanged ? 2 : 1);
        }
    }

    void OpenStepIsNotCopied() const
    {
        cMachine machine;
        cUndoStep step(machine.Book.Data(), u"Schritt"_s);
        machine.Write();
        machine.Plan.CopyIfChanged();
        QCOMPARE(machine.Plan.CopyInUse(), 1min);
        QVERIFY(machine.Plan.Copies().isEmpty());
        QVERIFY(step.Done());
        QCOMPARE(machine.Plan.CopyInUse(), 4h);
        QCOMPARE(machine.Plan.Copies().size(), 1);
        QCOMPARE(machine.Plan.CopyInUse(), 4h);
        QCOMPARE(machine.Plan.Copies().size(), 1); // nothing has changed since
    }

    // What a killed program left half made goes when the book is opened; whole files and those of others stay.
    void HalfMadeFilesGo() const
    {
        cMachine machine;
        const QString book = machine.Book.Path();
        QVERIFY(QDir().mkpath(machine.Copies()));
        for (const QString& name :
             {u"data.db.neu"_s, u"data.db.neu-journal"_s, u"data.db.2026-03-02.ersetzt.neu"_s,
              u"data.db.2026-03-02.ersetzt"_s, u"data.db.neues"_s, u"Sicherungen/data-auto-2026-03-14-2.backup.neu"_s,
              u"Sicherungen/data-auto-2026-03-14-2.backup.neu-journal"_s,
              u"Sicherungen/data-auto-2026-03-13.backup.neu-shm"_s, u"Sicherungen/data-auto-2026-03-14.backup"_s,
              u"Sicherungen/andere-auto-2026-03-14.backup.neu"_s}) {
            cTestFile::Write(machine.Path(name), "half");
        }
        QVERIFY(QFile::copy(book, machine.Path(u"data.db.neu2"_s)));
        std::filesystem::create_hard_link(book.toStdString(),
                                          machine.Path(u"data.db.2026-03-01.ersetzt"_s).toStdString());
        machine.Plan.BookOpened();
        QCOMPARE(FilesIn(machine.File.Folder()),
                 QStringList({u"data.db"_s, u"data.db.2026-03-02.ersetzt"_s, u"data.db.neu2"_s, u"data.db.neues"_s}));
        QCOMPARE(FilesIn(machine.Copies()),
                 QStringList({u"andere-auto-2026-03-14.backup.neu"_s, u"data-auto-2026-03-14.backup"_s}));
    }

    void OnlyOwnCopiesGo() const
    {
        cMachine machine;
        const QStringList foreign{u"Kontorelle-2026-01-01.backup"_s,    u"andere-auto-2026-01-01.backup"_s,
                                  u"data-auto-2026-01-01.backup.neu"_s, u"data-auto-2026-01-1.backup"_s,
                                  u"data-auto-2026-01-01-1.backup"_s,   u"data-auto-2026-01-01-02.backup"_s,
                                  u"my data-auto-2026-01-01.backup"_s};
        const QStringList own{u"data-auto-2026-01-01.backup"_s, u"data-auto-2026-01-02.backup"_s,
                              u"data-auto-2026-01-02-3.backup"_s};
        QVERIFY(QDir().mkpath(machine.Copies()));
        for (const QString& name : foreign + own) {
            cTestFile::Write(machine.Copies() + u'/' + name, "copy");
        }
        QVERIFY(machine.Plan.Save(1, {}));
        machine.Plan.RunIfDue();
        QStringList left = foreign + QStringList({own[2], u"data-auto-2026-03-15.backup"_s});
        left.sort();
        QStringList found = FilesIn(machine.Copies());
        found.sort();
        QCOMPARE(found, left);
    }

    // Two books of one name may share a folder that the user chose.
    void SharedFolder() const
    {
        cMachine one;
        cMachine two;
        const QString shared = one.Path(u"shared"_s);
        for (cMachine* machine : {&one, &two}) {
            QVERIFY(machine->Plan.Save(10, shared));
            machine->Plan.RunIfDue();
            QCOMPARE(machine->Plan.Copies().size(), 1);
        }
        QCOMPARE(FilesIn(shared).size(), 2);
    }

    void FailureIsToldOnceADay() const
    {
        cMachine machine;
        cTestFile::Write(machine.Copies(), "a file where the folder should be");
        machine.Plan.RunIfDue();
        machine.Plan.CopyIfChanged();
        QCOMPARE(machine.User.Shown.size(), 1);
        QVERIFY(machine.User.Shown[0].startsWith(u"Die automatische Datensicherung konnte nicht erstellt werden:"_s));
        QVERIFY(QFile::remove(machine.Copies()));
        machine.Plan.RunIfDue(); // a later try of the same day may work
        QCOMPARE(machine.Plan.Copies().size(), 1);
    }

    // They are copied as soon as they are wished, and what keeps them back does not count as a failed backup.
    void ReceiptsComeAlong() const
    {
        cMachine machine;
        const QString folder = machine.Copies() + u"/data-auto-Belege"_s;
        QVERIFY(QDir().mkpath(machine.Path(u"Belege"_s)));
        cTestFile::Write(machine.Path(u"Belege/a.pdf"_s), "eins");
        machine.Plan.RunIfDue();
        QVERIFY(!QFileInfo::exists(folder));
        QVERIFY(machine.Book.Settings().Set(modSettingKey::ReceiptsInBackup, modSettingKey::On));
        cTestFile::Write(folder, "a file where the folder should be");
        machine.Plan.CopyIfChanged();
        machine.Plan.CopyIfChanged();
        QCOMPARE(machine.User.Shown.size(), 1);
        QVERIFY(machine.User.Shown[0].startsWith(u"Der Ordner '"_s));
        QVERIFY(machine.Book.Settings().Get(modSettingKey::BackupFailed).isEmpty());
        QVERIFY(QFile::remove(folder));
        machine.Plan.CopyIfChanged();
        QCOMPARE(FilesIn(folder), QStringList(u"a.pdf"_s));
        QCOMPARE(machine.Plan.Copies().size(), 1);
    }

    void NothingToCopy_data() const
    {
        const cTestRows<QString, QString> row("count", "sql");
        row("switched off", u"0"_s, {});
        row("no entries", u"10"_s, u"DELETE FROM data"_s);
    }

    void NothingToCopy() const
    {
        QFETCH(const QString, count);
        QFETCH(const QString, sql);
        cMachine machine;
        QVERIFY(machine.Book.Settings().Set(modSettingKey::BackupCount, count));
        machine.Book.Database().ExecuteScript(sql.toStdString());
        machine.Plan.RunIfDue();
        QVERIFY(!QFileInfo::exists(machine.Copies()));
    }
};

TEST_CLASS(testBackup, QCoreApplication)
#include "testBackup.moc"
