#include "faults/cPowerVfs.h"
#include "model/modSettingKey.h"
#include "store/cUndoStep.h"
#include "support/bookDump.h"
#include "support/cTestClass.h"
#include "support/testBook.h"

#include <sqlite3.h>

#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {

// A power cut is played after every call of SQLite; more often with more of these, as tests/faults/run does.
int CutsPerCall()
{
    return qMax(1, qEnvironmentVariableIntValue("POWER_CUTS"));
}

cPowerDisk::cFiles FilesOf(const QString& book)
{
    QFile file(book);
    return file.open(QIODevice::ReadOnly) ? cPowerDisk::cFiles{{book, file.readAll()}} : cPowerDisk::cFiles{};
}

// What a power cut has left, in a folder of its own.
class cLeft
{
public:
    cLeft(const cPowerDisk::cFiles& files, const QString& book)
    {
        for (auto content = files.begin(); content != files.end(); ++content) {
            QFile file(m_folder.filePath(QFileInfo(content.key()).fileName()));
            if (!file.open(QIODevice::WriteOnly) || file.write(*content) != content->size()) {
                qFatal("cannot write");
            }
        }
        m_book = m_folder.filePath(QFileInfo(book).fileName());
    }

    // What stands in the book; empty when it cannot be read or is damaged.
    [[nodiscard]] QStringList Read() const
    {
        cDatabase database;
        if (modSchema::OpenValid(database, m_book, eOpenMode::ReadWrite) != eDatabaseFault::None) {
            return {};
        }
        try {
            return database.IntegrityCheck().isEmpty() ? Dump(database) : QStringList();
        } catch (const cDatabaseError&) {
            return {};
        }
    }

private:
    QTemporaryDir m_folder;
    QString m_book;
};

cImportEntry Row(int number)
{
    cImportEntry row;
    row.ImportAccount = u"DE02100100100006820101"_s;
    row.ImportDate = QDate(2026, 3, number);
    row.ImportPurpose = QString(300, u'x');
    row.ImportValue = -number;
    return row;
}

using fnStep = std::function<bool(cTestBook&)>;

// Steps of a household, from one small write to many rows.
QList<fnStep> Steps()
{
    const auto add = [](cTestBook& book, int count) {
        cUndoStep step(book.Data, u"angelegt"_s);
        for (int i = 0; i < count; ++i) {
            (void)book.Add([&](cEntryItem& entry) { entry.EntryDescription = QString(200, QChar(u'a' + i % 20)); });
        }
        return step.Done();
    };
    const auto assign = [](cTestBook& book) {
        cImportEntry row = book.Data.GetImportEntries().constFirst();
        cUndoStep step(book.Data, u"gebucht"_s);
        row.ImportAssigned = true;
        row.ImportAssignedEntry = book.Add([](cEntryItem&) {}).ID;
        return step.DoneIf(book.Data.ChangeImportEntry(row));
    };
    return {
        [=](cTestBook& scene) { return add(scene, 1); },
        assign,
        [](cTestBook& scene) { return scene.Settings->Set(modSettingKey::MainFilter, u"x"_s); },
        [=](cTestBook& scene) { return add(scene, 300); },
        [](cTestBook& scene) { return scene.Data.Journal().Undo(); },
        [](cTestBook& scene) {
            cUndoStep step(scene.Data, u"umbenannt"_s);
            return step.DoneIf(scene.Data.MoveEntriesToAccount(u"Konto"_s, u"Girokonto"_s)
                               && scene.Settings->Set(modSettingKey::BankNumber.Of(u"1"_s), u"Konto"_s));
        },
        [](cTestBook& scene) { return scene.Data.DeleteAllImports(); },
    };
}

} // namespace

class testPowerCut : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { modPowerVfs::Install(); }
    void StepsAreThereOrNot()
    {
        cTestBook book;
        for (int i = 1; i <= 20; ++i) {
            cImportEntry row = Row(i);
            QVERIFY(book.Data.AddNewImportEntry(row));
        }
        cPowerDisk disk(FilesOf(book.Path()));
        modPowerVfs::Start();
        QList<QStringList> states{Dump(book.Database)};
        QList<std::size_t> ends; // of the steps among the calls
        for (const fnStep& step : Steps()) {
            QVERIFY(step(book));
            states.append(Dump(book.Database));
            ends.append(modPowerVfs::Calls().size());
        }
        const std::vector<cDiskCall> calls = modPowerVfs::Calls();
        QVERIFY(calls.size() > 100);

        QRandomGenerator random(1);
        qsizetype done = 0;
        for (std::size_t i = 0; i < calls.size(); ++i) {
            disk.Take(calls[i]);
            while (done < ends.size() && ends.at(done) <= i + 1) {
                ++done;
            }
            for (int cut = 0; cut < CutsPerCall(); ++cut) {
                const QStringList left = cLeft(disk.Cut(random), book.Path()).Read();
                const bool isWhole =
                    left == states.at(done) || (done + 1 < states.size() && left == states.at(done + 1));
                QVERIFY2(isWhole, qPrintable(u"cut after call %1 of step %2"_s.arg(i + 1).arg(done + 1)));
            }
        }
    }

    // What is said to be copied is not taken back by a journal that comes back.
    void CopyIsThere()
    {
        cTestBook book;
        const QTemporaryDir folder;
        const QString copy = folder.filePath(u"copy.db"_s);
        modPowerVfs::Start();
        book.Database.BackupTo(copy);
        cPowerDisk disk({});
        const std::vector<cDiskCall> calls = modPowerVfs::Calls();
        for (const cDiskCall& call : calls) {
            disk.Take(call);
        }
        QRandomGenerator random(1);
        const QStringList whole = Dump(book.Database);
        for (int cut = 0; cut < 10; ++cut) {
            QCOMPARE(cLeft(disk.Cut(random), copy).Read(), whole);
        }
    }

    // The same writes without the layer of the program have to lose something, or the disk would be too good.
    void TheDiskForgets()
    {
        const cTestBook book;
        cPowerDisk disk(FilesOf(book.Path()));
        modPowerVfs::Start();
        sqlite3* connection = nullptr;
        QCOMPARE(sqlite3_open_v2(book.Path().toUtf8().constData(), &connection, SQLITE_OPEN_READWRITE, "power"),
                 SQLITE_OK);
        const char* writes = "PRAGMA synchronous=OFF; PRAGMA cache_size=5; BEGIN; "
                             "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 500) "
                             "INSERT INTO data (EntryDescription) SELECT hex(zeroblob(100)) FROM n; COMMIT;";
        QCOMPARE(sqlite3_exec(connection, writes, nullptr, nullptr, nullptr), SQLITE_OK);
        sqlite3_close(connection);
        QRandomGenerator random(1);
        int unreadable = 0;
        const std::vector<cDiskCall> calls = modPowerVfs::Calls(); // reading goes through the layer as well
        for (const cDiskCall& call : calls) {
            disk.Take(call);
            unreadable += cLeft(disk.Cut(random), book.Path()).Read().isEmpty() ? 1 : 0;
        }
        QVERIFY(unreadable > 0);
    }
};

TEST_CLASS(testPowerCut, QCoreApplication)
#include "testPowerCut.moc"
