#include "app/machine/cQtRegistry.h"
#include "cCliRun.h"
#include "core/cConfiguration.h"
#include "support/cTestClass.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace {

// Makes of a book of today one that an older program left: no tables of its own, codes for words, no EntryFlags, and
// entries that do not say their account.
constexpr const char* ageing =
    "DROP TABLE account; DROP TABLE setting; DROP TABLE datamod;"
    "DROP INDEX dataID; DROP INDEX templateID; DROP INDEX importID; DROP INDEX importAssignedID;"
    "ALTER TABLE data DROP COLUMN EntryFlags;"
    "UPDATE data SET EntryAccount = '' WHERE ID % 5 = 0 AND EntryType <> 'Umbuchung';"
    "UPDATE template SET EntryType = '2' WHERE EntryType = 'Ausgabe';"
    "UPDATE template SET EntryInterval = '6' WHERE EntryInterval = 'Monatlich'";

} // namespace

// Which book the command line opens, and how it sees one that is not of today.
class testCliBook final : public QObject, cCliBooks
{
    Q_OBJECT

private Q_SLOTS:
    void OldBookIsReadAsItWillBe() const
    {
        const QString path = Path(u"old.db"_s);
        Do(u"demo|"_s + path);
        cTestFile::Run(path, ageing);
        const QByteArray file = cTestFile::Bytes(path);
        const auto read = [&] {
            QStringList outputs;
            for (const QString& line :
                 {u"balances|--json"_s, u"accounts|--json"_s, u"categories|--json"_s, u"forecast|--json"_s,
                  u"entries|--json|--period|Alle Buchungen|--account|Girokonto"_s, u"search|--json|miete"_s,
                  u"report|summe|--json"_s, u"report|limit|--json"_s, u"chart|ausgaben|--csv|~/chart.csv"_s,
                  u"export|~/out.csv|--account|Girokonto"_s, u"staged|--json"_s, u"propose|--json"_s,
                  u"match|--dry-run|--json"_s, u"book|--all|--dry-run"_s, u"statement|--json|--account|4711000815"_s}) {
                outputs.append(Do(u"--database|%1|%2"_s.arg(path, line)).Text());
            }
            for (const QString& name : {u"chart.csv"_s, u"out.csv"_s}) {
                outputs.append(QString::fromUtf8(cTestFile::Bytes(Path(name))));
            }
            return outputs;
        };
        const QStringList before = read();
        QVERIFY(cTestFile::Bytes(path) == file);
        Do(u"--database|%1|check"_s.arg(path)); // upgrades
        const QStringList after = read();
        for (qsizetype i = 0; i < before.size(); ++i) {
            QVERIFY2(before.at(i) == after.at(i),
                     qPrintable(before.at(i).left(500) + u"\n---\n"_s + after.at(i).left(500)));
        }
    }

    void ConfiguredBookIsGone() const
    {
        const cCliBooks profile;
        const QString gone = profile.Path(u"stick/haushalt.db"_s);
        QVERIFY(cQtRegistry(profile.Path({})).Write(cConfiguration::RegistryKey, u"Database"_s, gone));
        for (const QString& line : {u"balances"_s, u"check"_s, u"accounts|add|Depot"_s}) {
            const cCliRun run = profile.Run(line);
            QVERIFY2(run.Code == 1 && run.Out.isEmpty() && run.Error.contains(gone), qPrintable(run.Text()));
        }
        QVERIFY(!QFile::exists(profile.Book()));
    }

    void OneCopyForEachVersion() const
    {
        const cCliBooks books;
        const QString path = books.Path(u"book.db"_s);
        cTestFile::Run(path, cTestFile::Tables);
        for (const QString& name : {u"Depot"_s, u"Tagesgeld"_s}) {
            books.Do(u"--database|%1|accounts|add|%2"_s.arg(path, name));
            QCOMPARE(QDir(books.Path({})).entryList({u"*.backup"_s}).size(), 1);
        }
        // The window has to see that it has not been here yet.
        cDatabase database;
        database.Open(path, eOpenMode::ReadOnly);
        QCOMPARE(cTestFile::Value(database, "SELECT COUNT(*) FROM setting WHERE SettingName = 'LastVersion'"), u"0"_s);
    }

    void FaultyFiles_data() const
    {
        QTest::addColumn<QString>("line");
        for (const QString& line :
             {u"check"_s, u"balances"_s, u"backup"_s, u"password"_s, u"import|a.sta"_s, u"restore|~/good.db|--yes"_s}) {
            QTest::addRow("%s", qPrintable(line)) << line;
        }
    }

    // None of them may touch the file, and only "restore" gets anywhere: it puts a good one in the place of the bad
    // one.
    void FaultyFiles() const
    {
        QFETCH(const QString, line);
        const cCliBooks books;
        cTestFile::Run(books.Path(u"good.db"_s), cTestFile::Tables);
        const QString path = books.Path(u"book.db"_s);
        const bool isRestored = line.startsWith("restore"_L1);
        const auto check = [&](const char* kind) {
            const QByteArray before = cTestFile::Bytes(path);
            const cCliRun run = books.Run(u"--database|%1|%2"_s.arg(path, line));
            QVERIFY2(run.Code == (isRestored ? 0 : 1), qPrintable(QString::fromLatin1(kind) + run.Text()));
            QVERIFY2(isRestored || (run.Out.isEmpty() && run.Error.contains(u"beschädigt"_s)), qPrintable(run.Text()));
            QVERIFY2(!run.Error.contains(u'?') && (isRestored || run.Error.contains(path)), qPrintable(run.Text()));
            QCOMPARE(cTestFile::Bytes(path) == before, !isRestored);
            QVERIFY(QFile::remove(path));
        };
        cTestFile::Write(path, QByteArray());
        check("empty");
        cTestFile::Write(path, QByteArray("Dies ist ein Brief.\n").repeated(200));
        check("letter");
        cTestFile::Run(path, "CREATE TABLE bookmarks (ID INTEGER)");
        check("somebody else's");
        cTestFile::Write(path, QByteArray("SQLite format 3\0", 16) + QByteArray(4000, 'x'));
        check("rubbish");
    }

    void CommandsSayWhatTheyDid_data() const
    {
        const cTestRows<QString, QString> row("line", "text");
        row("limit", u"accounts|limit|girokonto|100"_s, u"Kontolimit von 'Girokonto' ist nun 100,00"_s);
        row("no limit", u"accounts|limit|girokonto|ohne"_s, u"Kontolimit von 'Girokonto' entfernt"_s);
        row("help of the help", u"hilfe|hilfe"_s, u"Befehle:"_s);
        row("no password to remove", u"password|--remove"_s, u": ohne Passwort"_s);
    }

    void CommandsSayWhatTheyDid() const
    {
        QFETCH(const QString, line);
        QFETCH(const QString, text);
        const cCliRun run = Do(line);
        QVERIFY2(run.Out.contains(text) && run.Error.isEmpty(), qPrintable(run.Text()));
    }
};

TEST_CLASS(testCliBook, QCoreApplication)
#include "testCliBook.moc"
