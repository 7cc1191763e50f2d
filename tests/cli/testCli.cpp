#include "app/machine/cFileLock.h"
#include "app/machine/cQtRegistry.h"
#include "cCliRun.h"
#include "store/cDatabase.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"

#include <QDate>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

using cRun = cCliRun;

QStringList Column(const QJsonArray& array, const QString& name)
{
    return cRun::Column(array, name);
}

// A statement with many different transactions.
QByteArray LargeStatement(int count)
{
    QByteArray text = ":20:STARTUMS\r\n:25:99900010/4711000815\r\n:60F:C240101EUR0,00\r\n";
    for (int i = 0; i < count; ++i) {
        const QByteArray day = QDate(2024, 1, 1).addDays(i % 300).toString(u"yyMMdd"_s).toLatin1();
        text += ":61:" + day + "D" + QByteArray::number(1 + i % 90)
            + ",25N024NONREF\r\n:86:106?00KARTENZAHLUNG?20Beleg " + QByteArray::number(i) + "?32Laden "
            + QByteArray::number(i % 40) + "\r\n";
    }
    return text + ":62F:C241231EUR1,00\r\n-\r\n";
}

} // namespace

// The command line program itself, end to end.
class testCli final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void StatementBecomesBook();
    void ImportTwiceStagesNothing();
    void KeepDuplicatesStagesAgain();
    void EntriesAreFiltered_data();
    void EntriesAreFiltered();
    void CsvKeepsSeparatorsInsideFields();
    void ExportsTheSelection_data();
    void ExportsTheSelection();
    void ExportRefuses_data();
    void ExportRefuses();
    void DemoIsTheSameTwice();
    void CheckFindsSoundBook();
    void LostOutputIsNoSuccess_data();
    void LostOutputIsNoSuccess();
    void TerminalObeysNoText();
    void StrangeTriggersAreNamedAndDoNothing();
    void UsageErrors_data();
    void UsageErrors();
    void FaultyDatabases_data();
    void FaultyDatabases();
    void FaultyStatements_data();
    void FaultyStatements();
    void MissingTemplateIsADamagedInstallation();
    void MissingPartIsNamed_data();
    void MissingPartIsNamed();
    void LockedDatabaseIsReadButNotWritten();
    void DatabaseThatAnotherProgramWritesTo();
    void PasswordKeepsDataClosed();
    void ReadingChangesNothing();
    void KilledImportKeepsWhatItStaged();
    void FailuresAreTakenDown();
    void DebugInfoHoldsNoData();

private:
    // Runs with a profile of its own in the temporary folder.
    [[nodiscard]] cRun Run(const QStringList& arguments) const;
    void ImportBoth() const;
    [[nodiscard]] QString Path(const QString& name) const { return m_folder->filePath(name); }
    [[nodiscard]] QString Database() const { return Path(u"Veltrino Kontorelle/data.db"_s); }
    [[nodiscard]] QString WriteFile(const QString& name, const QByteArray& content) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    const QString m_giro = QStringLiteral(TEST_DATA "/cli/giro.sta");
    const QString m_spar = QStringLiteral(TEST_DATA "/cli/spar.sta");
};

void testCli::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

cRun testCli::Run(const QStringList& arguments) const
{
    return cRun::Start(QStringLiteral(CLI_PROGRAM), QStringList{u"--profile"_s, m_folder->path()} + arguments);
}

QString testCli::WriteFile(const QString& name, const QByteArray& content) const
{
    QFile file(Path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("cannot write test file");
    }
    return file.fileName();
}

void testCli::ImportBoth() const
{
    QCOMPARE(Run({u"import"_s, m_giro, u"--keep-start"_s}).Code, 0);
    QCOMPARE(Run({u"import"_s, m_spar, u"--book-account"_s, u"Sparkonto"_s, u"--keep-start"_s}).Code, 0);
}

void testCli::StatementBecomesBook()
{
    const cRun import = Run({u"import"_s, m_giro, u"--keep-start"_s, u"--json"_s});
    QVERIFY2(import.Code == 0, qPrintable(import.Text()));
    const QJsonObject result = import.Json().at(0).toObject();
    QVERIFY(result.value(u"format"_s).toString().contains("MT940"_L1));
    QCOMPARE(result.value(u"read"_s).toInt(), 7);
    QCOMPARE(result.value(u"staged"_s).toInt(), 6);
    QCOMPARE(result.value(u"zero"_s).toInt(), 1);
    QVERIFY2(import.Out.contains("\"closingBalance\": 3301.99"_L1), qPrintable(import.Text()));
    QCOMPARE(Run({u"import"_s, m_spar, u"--book-account"_s, u"Sparkonto"_s, u"--keep-start"_s}).Code, 0);
    QCOMPARE(Run({u"staged"_s, u"--open"_s, u"--json"_s}).Json().size(), 7);

    const QJsonArray proposals = Run({u"propose"_s, u"--json"_s}).Json();
    QCOMPARE(Column(proposals, u"EntryCategory"_s).mid(0, 4),
             QStringList({u"Wohnung; Miete"_s, u"Haushalt; Lebensmittel"_s, u"Einkommen; Lohn / Gehalt"_s,
                          u"Haushalt; Medikamente"_s}));
    QCOMPARE(Column(proposals, u"EntryInterval"_s).mid(0, 2), QStringList({u"Monatlich"_s, u"Einmalig"_s}));
    QCOMPARE(proposals.at(4).toObject().value(u"EntryAccountMove"_s).toString(), u"Sparkonto"_s);

    const cRun dry = Run({u"book"_s, u"--all"_s, u"--dry-run"_s});
    QVERIFY2(dry.Code == 0 && dry.Out.contains("Wohnung; Miete"_L1), qPrintable(dry.Text()));
    QCOMPARE(Run({u"staged"_s, u"--open"_s, u"--json"_s}).Json().size(), 7);

    // The one-off ones first: their balances do not depend on the day of the test.
    const QStringList ids = Column(proposals, u"ImportID"_s);
    const cRun some = Run({u"book"_s, u"--id"_s, ids.at(1), ids.at(3), ids.at(4), ids.at(5)});
    QVERIFY2(some.Code == 0, qPrintable(some.Text()));
    const cRun balances = Run({u"balances"_s, u"--json"_s});
    QCOMPARE(Column(balances.Json(), u"TemplateName"_s), QStringList({u"Girokonto"_s, u"Sparkonto"_s, u"Bargeld"_s}));
    QVERIFY2(balances.Out.contains("\"Balance\": -335.51"_L1) && balances.Out.contains("\"Balance\": 250.00"_L1),
             qPrintable(balances.Text()));

    QCOMPARE(Run({u"book"_s, u"--all"_s}).Code, 0);
    QCOMPARE(Run({u"staged"_s, u"--open"_s, u"--json"_s}).Json().size(), 0);
    const cRun entries = Run({u"entries"_s, u"--from"_s, u"2024-03-01"_s, u"--to"_s, u"31.03.2024"_s, u"--json"_s});
    QCOMPARE(Column(entries.Json(), u"EntryDate"_s),
             QStringList({u"2024-03-01"_s, u"2024-03-04"_s, u"2024-03-05"_s, u"2024-03-06"_s, u"2024-03-08"_s,
                          u"2024-03-11"_s}));
    QVERIFY2(entries.Out.contains("\"EntryValue\": 12.40"_L1), qPrintable(entries.Text()));
    const cRun april = Run({u"entries"_s, u"--from"_s, u"2024-04-01"_s, u"--to"_s, u"2024-04-30"_s, u"--json"_s});
    QCOMPARE(Column(april.Json(), u"EntryCategory"_s),
             QStringList({u"Wohnung; Miete"_s, u"Einkommen; Lohn / Gehalt"_s}));
}

void testCli::ImportTwiceStagesNothing()
{
    QCOMPARE(Run({u"import"_s, m_giro}).Code, 0);
    const QJsonObject again = Run({u"import"_s, m_giro, u"--json"_s}).Json().at(0).toObject();
    QCOMPARE(again.value(u"staged"_s).toInt(), 0);
    QCOMPARE(again.value(u"duplicates"_s).toInt(), 6);
    QCOMPARE(Run({u"staged"_s, u"--json"_s}).Json().size(), 6);
}

void testCli::KeepDuplicatesStagesAgain()
{
    QCOMPARE(Run({u"import"_s, m_giro, m_giro, u"--keep-duplicates"_s}).Code, 0);
    QCOMPARE(Run({u"staged"_s, u"--json"_s}).Json().size(), 12);
}

void testCli::EntriesAreFiltered_data()
{
    QTest::addColumn<QStringList>("filter");
    QTest::addColumn<QStringList>("days");

    QTest::addRow("kind") << QStringList{u"--kind"_s, u"Ausgabe"_s}
                          << QStringList{u"2024-03-04"_s, u"2024-03-06"_s, u"2024-03-11"_s};
    QTest::addRow("kind in the plural") << QStringList{u"--kind"_s, u"Umbuchungen"_s} << QStringList{u"2024-03-08"_s};
    QTest::addRow("category with its sub-categories") << QStringList{u"--category"_s, u"Haushalt"_s}
                                                      << QStringList{u"2024-03-04"_s, u"2024-03-06"_s, u"2024-03-11"_s};
    QTest::addRow("account, transfers into it too")
        << QStringList{u"--account"_s, u"Sparkonto"_s} << QStringList{u"2024-03-08"_s};
    QTest::addRow("words in any case and without umlauts")
        << QStringList{u"--filter"_s, u"KORNBLUME baecker"_s} << QStringList{u"2024-03-11"_s};
    QTest::addRow("amount with the sign that the list shows")
        << QStringList{u"--filter"_s, u"-64,21"_s} << QStringList{u"2024-03-04"_s};
}

void testCli::EntriesAreFiltered()
{
    QFETCH(const QStringList, filter);
    QFETCH(const QStringList, days);
    ImportBoth();
    const QStringList ids = Column(Run({u"propose"_s, u"--json"_s}).Json(), u"ImportID"_s);
    QCOMPARE(Run({u"book"_s, u"--id"_s, ids.at(1), ids.at(3), ids.at(4), ids.at(5)}).Code, 0);
    const cRun run = Run(QStringList{u"entries"_s, u"--period"_s, u"Alle Buchungen"_s, u"--json"_s} + filter);
    QVERIFY2(run.Code == 0, qPrintable(run.Text()));
    QCOMPARE(Column(run.Json(), u"EntryDate"_s), days);
}

void testCli::CsvKeepsSeparatorsInsideFields()
{
    ImportBoth();
    const QStringList ids = Column(Run({u"propose"_s, u"--json"_s}).Json(), u"ImportID"_s);
    QCOMPARE(Run({u"book"_s, u"--id"_s, ids.at(1)}).Code, 0);
    const QString csv = Run({u"entries"_s, u"--period"_s, u"Alle Buchungen"_s, u"--csv"_s}).Out;
    QVERIFY2(csv.contains("\"Haushalt; Lebensmittel\";64,21;"_L1), qPrintable(csv));
}

void testCli::ExportsTheSelection_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("start");

    QTest::addRow("by ending") << QStringList{} << QByteArray("!Type:Bank\nD04.03.2024\nT-64.21\n");
    QTest::addRow("by name") << QStringList{u"--format"_s, u"csv"_s}
                             << QByteArray("\xEF\xBB\xBF"
                                           "Datum;Buchungsart;");
    QTest::addRow("Excel") << QStringList{u"--format"_s, u"xlsx"_s} << QByteArray("PK");
    QTest::addRow("page") << QStringList{u"--format"_s, u"html"_s} << QByteArray("<!DOCTYPE html>");
    QTest::addRow("nothing selected") << QStringList{u"--filter"_s, u"Mondstaub"_s} << QByteArray("!Type:Bank\n");
}

void testCli::ExportsTheSelection()
{
    QFETCH(const QStringList, options);
    QFETCH(const QByteArray, start);
    ImportBoth();
    const QStringList ids = Column(Run({u"propose"_s, u"--json"_s}).Json(), u"ImportID"_s);
    QCOMPARE(Run({u"book"_s, u"--id"_s, ids.at(1), ids.at(4)}).Code, 0);
    const QString path = WriteFile(u"out.qif"_s, "old"); // is replaced
    const cRun run = Run(QStringList{u"export"_s, path, u"--period"_s, u"Alle Buchungen"_s, u"--account"_s,
                                     u"Girokonto"_s, u"--kind"_s, u"Ausgabe"_s}
                         + options);
    QVERIFY2(run.Code == 0, qPrintable(run.Text()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    QVERIFY2(content.startsWith(start), content.left(200).constData());
    const bool isEmpty = options.contains(u"Mondstaub"_s);
    QVERIFY2(run.Out.startsWith(isEmpty ? "0 Eintr"_L1 : "2 Eintr"_L1), qPrintable(run.Text()));
}

void testCli::ExportRefuses_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text");

    QTest::addRow("unknown ending") << u"out.pdf"_s << QStringList{} << 2 << u"csv, xlsx, html, qif"_s;
    QTest::addRow("unknown format") << u"out.csv"_s << QStringList{u"--format"_s, u"ods"_s} << 2 << u"'ods'"_s;
    QTest::addRow("the book itself") << u"Veltrino Kontorelle/data.db"_s << QStringList{u"--format"_s, u"csv"_s} << 2
                                     << u"Datenbank"_s;
    QTest::addRow("unknown period") << u"out.csv"_s << QStringList{u"--period"_s, u"Morgen"_s} << 2 << u"Morgen"_s;
    QTest::addRow("folder that is not there") << u"missing/out.csv"_s << QStringList{} << 1 << u"missing"_s;
}

void testCli::ExportRefuses()
{
    QFETCH(const QString, file);
    QFETCH(const QStringList, options);
    QFETCH(const int, code);
    QFETCH(const QString, text);
    QCOMPARE(Run({u"balances"_s}).Code, 0); // makes the book
    const cRun run = Run(QStringList{u"export"_s, Path(file)} + options);
    QVERIFY2(run.Code == code, qPrintable(run.Text()));
    QVERIFY2(run.Error.contains(text) && run.Out.isEmpty(), qPrintable(run.Text()));
    QCOMPARE(Run({u"check"_s}).Code, 0);
    QVERIFY(!QFile::exists(Path(u"out.csv"_s)));
}

void testCli::DemoIsTheSameTwice()
{
    const QString one = Path(u"one.db"_s);
    const QString two = Path(u"two.db"_s);
    QCOMPARE(Run({u"demo"_s, one}).Code, 0);
    QCOMPARE(Run({u"demo"_s, two}).Code, 0);
    const QString entries =
        Run({u"--database"_s, one, u"entries"_s, u"--period"_s, u"Letztes Jahr"_s, u"--json"_s}).Out;
    QVERIFY(QJsonDocument::fromJson(entries.toUtf8()).array().size() > 400);
    QCOMPARE(Run({u"--database"_s, two, u"entries"_s, u"--period"_s, u"Letztes Jahr"_s, u"--json"_s}).Out, entries);
    const cRun again = Run({u"demo"_s, one});
    QVERIFY2(again.Code == 1 && again.Error.contains("gibt es schon"_L1), qPrintable(again.Text()));
}

void testCli::CheckFindsSoundBook()
{
    QCOMPARE(Run({u"balances"_s}).Code, 0); // makes the book and leaves it as it came
    const cRun fresh = Run({u"check"_s});
    QVERIFY2(fresh.Code == 0 && fresh.Out.contains("setting"_L1), qPrintable(fresh.Text()));
    const cRun second = Run({u"check"_s});
    QVERIFY2(second.Code == 0 && !second.Out.contains("setting"_L1), qPrintable(second.Text()));
    QCOMPARE(Run({u"demo"_s, Path(u"demo.db"_s)}).Code, 0);
    QCOMPARE(Run({u"--database"_s, Path(u"demo.db"_s), u"check"_s}).Code, 0);
    QDirIterator copies(m_folder->path(), {u"*.db.*.backup"_s}, QDir::Files, QDirIterator::Subdirectories);
    QVERIFY(!copies.hasNext()); // of before an upgrade: neither book held anything then

    cTestFile::Run(Database(), "DROP TABLE import");
    const cRun third = Run({u"check"_s});
    QVERIFY2(third.Code == 1 && third.Out.contains("Es fehlt: Tabelle import"_L1) && third.Error.isEmpty()
                 && !third.Out.contains("unbeschädigt"_L1),
             qPrintable(third.Text()));
}

void testCli::LostOutputIsNoSuccess_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<bool>("isSaid");
    QTest::newRow("full disk") << u"\"$0\" \"$@\" > /dev/full"_s << true;
    QTest::newRow("closed") << u"\"$0\" \"$@\" >&-"_s << true;
    QTest::newRow("nobody reads on") << u"exec 3> >(:); wait $!; \"$0\" \"$@\" >&3"_s << false;
}

void testCli::LostOutputIsNoSuccess()
{
    QFETCH(const QString, script);
    QFETCH(const bool, isSaid);
    const cRun run = cRun::Start(u"bash"_s, {u"-c"_s, script, QStringLiteral(CLI_PROGRAM), u"hilfe"_s});
    QCOMPARE(run.Code, 1);
    QCOMPARE(run.Error.contains(u"Ausgabe ist unvollständig"_s), isSaid);
    QVERIFY2(isSaid || run.Error.isEmpty(), qPrintable(run.Error));
}

void testCli::TerminalObeysNoText()
{
    QVERIFY(Run({u"balances"_s}).Code == 0);
    cTestFile::Run(
        Database(),
        "INSERT INTO data (EntryDate, EntryDateEnd, EntryType, EntryInterval, EntryAccount, EntryAccountMove,"
        " EntryCategory, EntryValue, EntryDescription) VALUES ('2026-03-01', '2050-01-01', 'Ausgabe', "
        "'Einmalig', 'Girokonto', '', 'Auto', '1.00', char(0x1b) || ']0;x' || char(7, 0x9b) || '31m' || "
        "char(0x202e))");
    const QStringList options{u"--period"_s, u"Alle Buchungen"_s};
    const cRun piped = Run(QStringList{u"entries"_s} + options);
    QVERIFY2(piped.Out.contains(u"\u001b]0;x"_s), qPrintable(piped.Text()));
    const QString command =
        QStringLiteral(CLI_PROGRAM " --profile '%1' entries --period 'Alle Buchungen'").arg(m_folder->path());
    const cRun shown = cRun::Start(u"script"_s, {u"-qec"_s, command, u"/dev/null"_s});
    QVERIFY2(shown.Out.contains(u"\u241b]0;x\u2407\ufffd31m\ufffd"_s), qPrintable(shown.Text()));
}

// A book that somebody else has prepared.
void testCli::StrangeTriggersAreNamedAndDoNothing()
{
    QVERIFY(Run({u"balances"_s}).Code == 0);
    cTestFile::Run(
        Database(),
        "CREATE TRIGGER thief AFTER INSERT ON data BEGIN UPDATE data SET EntryAccount = 'Fremd'; END;"
        "CREATE VIEW endless AS WITH RECURSIVE c(x) AS (SELECT 1 UNION ALL SELECT x FROM c) SELECT x FROM c");
    const cRun run = Run({u"add"_s, u"--kind"_s, u"Ausgabe"_s, u"--amount"_s, u"1"_s, u"--account"_s, u"Girokonto"_s,
                          u"--category"_s, u"Haushalt; Lebensmittel"_s, u"--date"_s, u"2026-03-01"_s});
    QVERIFY2(run.Code == 0 && run.Error.contains(": endless, thief."_L1), qPrintable(run.Text()));
    cDatabase book;
    book.Open(Database(), eOpenMode::ReadOnly);
    QCOMPARE(cTestFile::Value(book, "SELECT EntryAccount FROM data"), u"Girokonto"_s);
}

void testCli::UsageErrors_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("text");

    QTest::addRow("no command") << QStringList{} << u"fehlt der Befehl"_s;
    QTest::addRow("unknown command") << QStringList{u"frobnicate"_s} << u"'frobnicate'"_s;
    QTest::addRow("unknown option") << QStringList{u"staged"_s, u"--fast"_s} << u"'--fast'"_s;
    QTest::addRow("option of another command") << QStringList{u"balances"_s, u"--all"_s} << u"'--all'"_s;
    QTest::addRow("import without file") << QStringList{u"import"_s} << u"DATEI"_s;
    QTest::addRow("value missing") << QStringList{u"entries"_s, u"--account"_s} << u"--account"_s;
    QTest::addRow("too many arguments") << QStringList{u"balances"_s, u"now"_s} << u"'now'"_s;
    QTest::addRow("book nothing") << QStringList{u"book"_s} << u"--all"_s;
    QTest::addRow("book all and one") << QStringList{u"book"_s, u"--all"_s, u"--id"_s, u"1"_s} << u"--id"_s;
    QTest::addRow("number that is none") << QStringList{u"book"_s, u"--id"_s, u"x"_s} << u"'x'"_s;
    QTest::addRow("unknown period") << QStringList{u"entries"_s, u"--period"_s, u"Morgen"_s} << u"Letzter Monat"_s;
    QTest::addRow("unknown kind") << QStringList{u"entries"_s, u"--kind"_s, u"Geschenk"_s} << u"Umbuchung"_s;
    QTest::addRow("date that is none") << QStringList{u"entries"_s, u"--from"_s, u"irgendwann"_s} << u"Datum"_s;
    QTest::addRow("period and date") << QStringList{u"entries"_s, u"--from"_s, u"2024-01-01"_s, u"--period"_s,
                                                    u"Letztes Jahr"_s}
                                     << u"--period"_s;
}

void testCli::UsageErrors()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, text);
    const cRun run = Run(arguments);
    QVERIFY2(run.Code == 2, qPrintable(run.Text()));
    QVERIFY2(run.Error.contains(text), qPrintable(run.Text()));
    QVERIFY2(run.Out.isEmpty(), qPrintable(run.Text()));
}

void testCli::FaultyDatabases_data()
{
    QTest::addColumn<QByteArray>("content"); // null: no such file
    QTest::addColumn<QString>("text");

    QTest::addRow("missing") << QByteArray() << u"wurde nicht gefunden"_s;
    QTest::addRow("not SQLite") << QByteArray("This is a letter to my bank.") << u"beschädigt"_s;
    QTest::addRow("empty") << QByteArray("") << u"beschädigt"_s;
}

void testCli::FaultyDatabases()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, text);
    const QString path = Path(u"book.db"_s);
    if (!content.isNull()) {
        (void)WriteFile(u"book.db"_s, content);
    }
    for (const QStringList& command :
         {QStringList{u"balances"_s}, QStringList{u"import"_s, m_giro}, QStringList{u"check"_s}}) {
        const cRun run = Run(QStringList{u"--database"_s, path} + command);
        QVERIFY2(run.Code == 1, qPrintable(run.Text()));
        QVERIFY2(run.Error.contains(text) && run.Error.contains(path), qPrintable(run.Text()));
        QVERIFY2(!run.Error.contains(u'?'), qPrintable(run.Text())); // nobody is there to answer
    }
    QCOMPARE(QFile::exists(path), !content.isNull());
    if (!content.isNull()) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), content);
    }
}

void testCli::FaultyStatements_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::addRow("empty") << QByteArray("");
    QTest::addRow("binary") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0", 20);
    QTest::addRow("a letter") << QByteArray("Sehr geehrte Damen und Herren,\nanbei nichts.\n");
}

void testCli::FaultyStatements()
{
    QFETCH(const QByteArray, content);
    const QString broken = WriteFile(u"broken.sta"_s, content);
    const cRun run = Run({u"import"_s, broken, Path(u"missing.sta"_s), m_giro, u"--json"_s});
    QVERIFY2(run.Code == 1, qPrintable(run.Text()));
    QCOMPARE(Column(run.Json(), u"staged"_s), QStringList({u"0"_s, u"0"_s, u"6"_s}));
    QVERIFY2(run.Error.contains(broken) && run.Error.contains("missing.sta"_L1), qPrintable(run.Text()));
}

void testCli::MissingTemplateIsADamagedInstallation()
{
    const QString program = Path(u"kontorelle-cli"_s);
    QVERIFY(QFile::copy(QStringLiteral(CLI_PROGRAM), program));
    const cRun run = cRun::Start(program, {u"--profile"_s, m_folder->path(), u"balances"_s});
    QVERIFY2(run.Code == 1 && run.Error.contains(u"Die Installation ist beschädigt."_s), qPrintable(run.Text()));
}

void testCli::MissingPartIsNamed_data()
{
    QTest::addColumn<QStringList>("command");
    QTest::addColumn<QString>("part");

    const QString xlsx = u"'kontorelle-xlsx.so'"_s;
    QTest::addRow("entries for Excel") << QStringList{u"export"_s, u"~.xlsx"_s} << xlsx;
    QTest::addRow("report for Excel") << QStringList{u"report"_s, u"summe"_s, u"--xlsx"_s, u"~.xlsx"_s} << xlsx;
    QTest::addRow("settlement for Excel") << QStringList{u"settlement"_s, u"--xlsx"_s, u"~.xlsx"_s} << xlsx;
    QTest::addRow("painting") << QStringList{u"report"_s, u"summe"_s, u"--pdf"_s, u"~.xlsx"_s} << u"'kontorelle'"_s;
    QTest::addRow("network") << QStringList{u"fetch"_s} << u"'kontorelle'"_s;
}

void testCli::MissingPartIsNamed()
{
    QFETCH(QStringList, command);
    QFETCH(const QString, part);
    QCOMPARE(Run({u"import"_s, m_giro}).Code, 0);
    const QString program = Path(u"kontorelle-cli"_s);
    QVERIFY(QFile::copy(QStringLiteral(CLI_PROGRAM), program));
    const cRun run = cRun::Start(
        program, QStringList{u"--profile"_s, m_folder->path()} + command.replaceInStrings(u"~"_s, Path(u"out"_s)));
    QVERIFY2(run.Code == 1 && run.Out.isEmpty() && run.Error.contains(part), qPrintable(run.Text()));
    QVERIFY(!QFile::exists(Path(u"out.xlsx"_s)));
}

void testCli::LockedDatabaseIsReadButNotWritten()
{
    QCOMPARE(Run({u"import"_s, m_giro}).Code, 0);
    cFileLock lock;
    QCOMPARE(lock.Take(Database()), eLockState::Held);
    const cRun write = Run({u"book"_s, u"--all"_s});
    QVERIFY2(write.Code == 1 && write.Error.contains(QCoreApplication::applicationName()), qPrintable(write.Text()));
    QCOMPARE(Run({u"staged"_s, u"--open"_s, u"--json"_s}).Json().size(), 6);
    lock.Release();
    QCOMPARE(Run({u"book"_s, u"--all"_s}).Code, 0);
}

void testCli::DatabaseThatAnotherProgramWritesTo()
{
    QCOMPARE(Run({u"import"_s, m_giro}).Code, 0);
    cDatabase other;
    other.Open(Database(), eOpenMode::ReadWrite);
    other.Execute("BEGIN IMMEDIATE");
    const cRun write = Run({u"book"_s, u"--all"_s});
    QVERIFY2(write.Code == 1 && write.Error.contains("Beenden Sie es"_L1), qPrintable(write.Text()));
    QVERIFY2(!write.Error.contains(u'?'), qPrintable(write.Text()));
    QCOMPARE(Run({u"staged"_s, u"--open"_s, u"--json"_s}).Json().size(), 6);
}

void testCli::PasswordKeepsDataClosed()
{
    QCOMPARE(Run({u"import"_s, m_giro}).Code, 0);
    cQtRegistry registry(m_folder->path());
    const QString key = u"SOFTWARE\\Veltrino Kontorelle"_s;
    QVERIFY(registry.Write(key, u"PasswortAktiv"_s, u"True"_s) && registry.Write(key, u"Passwort"_s, u"geheim"_s));
    for (const QByteArray& password : {QByteArray(), QByteArray("falsch")}) {
        if (!password.isEmpty()) {
            qputenv("KONTORELLE_PASSWORT", password);
        }
        for (const QStringList& command : {QStringList{u"staged"_s}, QStringList{u"book"_s, u"--all"_s}}) {
            const cRun run = Run(command);
            QVERIFY2(run.Code == 1 && run.Out.isEmpty() && run.Error.contains("Passwort"_L1), qPrintable(run.Text()));
        }
    }
    qputenv("KONTORELLE_PASSWORT", QByteArray("geheim"));
    const cRun run = Run({u"staged"_s, u"--open"_s, u"--json"_s});
    qunsetenv("KONTORELLE_PASSWORT");
    QCOMPARE(run.Json().size(), 6);
}

void testCli::ReadingChangesNothing()
{
    const QString path = Path(u"template-copy.db"_s);
    QVERIFY(QFile::copy(QStringLiteral(TEMPLATE), path));
    for (const QString& command : {u"staged"_s, u"propose"_s, u"entries"_s, u"balances"_s}) {
        const cRun run = Run({u"--database"_s, path, command});
        QVERIFY2(run.Code == 0, qPrintable(run.Text()));
    }
    QFile before(QStringLiteral(TEMPLATE));
    QFile after(path);
    QVERIFY(before.open(QIODevice::ReadOnly) && after.open(QIODevice::ReadOnly));
    QVERIFY(before.readAll() == after.readAll());
}

void testCli::KilledImportKeepsWhatItStaged()
{
    constexpr int count = 20000;
    const QString file = WriteFile(u"large.sta"_s, LargeStatement(count));
    QCOMPARE(Run({u"balances"_s}).Code, 0); // makes the book
    QProcess import;
    import.start(QStringLiteral(CLI_PROGRAM), {u"--profile"_s, m_folder->path(), u"import"_s, file});
    const QString journal = QString(Database() + u"-journal"); // is there while rows are written
    while (!QFile::exists(journal) && import.state() != QProcess::NotRunning) {
        import.waitForFinished(1);
    }
    QVERIFY2(import.state() == QProcess::Running, "the import was over before it could be killed");
    import.kill();
    QVERIFY(import.waitForFinished());

    const cRun check = Run({u"check"_s});
    QVERIFY2(check.Code == 0, qPrintable(check.Text()));
    const qsizetype kept = Run({u"staged"_s, u"--json"_s}).Json().size();
    QVERIFY(kept < count);
    const QJsonObject rest = Run({u"import"_s, file, u"--json"_s}).Json().at(0).toObject();
    QCOMPARE(rest.value(u"duplicates"_s).toInt(), static_cast<int>(kept));
    QCOMPARE(rest.value(u"staged"_s).toInt(), count - static_cast<int>(kept));
}

void testCli::FailuresAreTakenDown()
{
    const QDir folder(Path(u"state/Veltrino Kontorelle"_s));
    QCOMPARE(Run({u"balances"_s}).Code, 0);
    QCOMPARE(Run({u"gibtesnicht"_s}).Code, 2);
    QVERIFY(folder.entryList(QDir::Files).isEmpty());
    QCOMPARE(Run({u"balances"_s, u"--database"_s, u"/nirgends/Erika Mustermann.db"_s}).Code, 1);
    const QStringList files = folder.entryList(QDir::Files);
    QCOMPARE(files.size(), 1);
    QFile file(folder.filePath(files[0]));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString log = QString::fromUtf8(file.readAll());
    QVERIFY2(log.contains(u"\tbalances\tDie Datenbank '…' wurde nicht gefunden."_s), qPrintable(log));
    QVERIFY2(!log.contains(u"Erika"_s) && !log.contains(u"nirgends"_s), qPrintable(log));
}

void testCli::DebugInfoHoldsNoData()
{
    const cRun run = Run({u"--debug-info"_s});
    QCOMPARE(run.Code, 0);
    QVERIFY2(run.Out.contains(u"SQLite 3."_s) && run.Out.contains(u"data.db (gibt es nicht)"_s), qPrintable(run.Out));
    QVERIFY(!run.Out.contains(QDir::homePath() + u'/'));
    QVERIFY(!QFile::exists(Database())); // it looks and makes nothing
}

TEST_CLASS(testCli, QCoreApplication)
#include "testCli.moc"
