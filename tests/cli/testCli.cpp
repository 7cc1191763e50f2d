#include "app/machine/cFileLock.h"
#include "app/machine/cQtRegistry.h"
#include "cCliRun.h"
#include "support/cTestClass.h"

#include <QDate>
#include <QDir>
#include <QDirIterator>

using namespace Qt::Literals::StringLiterals;

namespace {

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
class testCli final : public QObject, cCliBooks
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Renew(); }
    void StatementBecomesBook()
    {
        const cCliRun import = Do(u"import|%1|--keep-start|--json"_s.arg(m_giro));
        const QJsonObject result = import.Json().at(0).toObject();
        QVERIFY(result.value(u"format"_s).toString().contains("MT940"_L1));
        QCOMPARE(result.value(u"read"_s).toInt(), 7);
        QCOMPARE(result.value(u"staged"_s).toInt(), 6);
        QCOMPARE(result.value(u"zero"_s).toInt(), 1);
        QVERIFY2(import.Out.contains("\"closingBalance\": 3301.99"_L1), qPrintable(import.Text()));
        Do(u"import|%1|--book-account|Sparkonto|--keep-start"_s.arg(m_spar));
        QCOMPARE(Run(u"staged|--open|--json"_s).Json().size(), 7);

        const cCliRun proposals = Do(u"propose|--json"_s);
        QCOMPARE(proposals.Column(u"EntryCategory"_s).mid(0, 4),
                 QStringList({u"Wohnung; Miete"_s, u"Haushalt; Lebensmittel"_s, u"Einkommen; Lohn / Gehalt"_s,
                              u"Haushalt; Medikamente"_s}));
        QCOMPARE(proposals.Column(u"EntryInterval"_s).mid(0, 2), QStringList({u"Monatlich"_s, u"Einmalig"_s}));
        QCOMPARE(proposals.Json().at(4).toObject().value(u"EntryAccountMove"_s).toString(), u"Sparkonto"_s);

        Says(u"book|--all|--dry-run"_s, {u"Wohnung; Miete"_s});
        QCOMPARE(Run(u"staged|--open|--json"_s).Json().size(), 7);

        // The one-off ones first: their balances do not depend on the day of the test.
        const QStringList ids = proposals.Column(u"ImportID"_s);
        const cCliRun some = Do(u"book|--id|%1|%2|%3|%4"_s.arg(ids.at(1), ids.at(3), ids.at(4), ids.at(5)));
        const cCliRun balances = Run(u"balances|--json"_s);
        QCOMPARE(balances.Column(u"TemplateName"_s), QStringList({u"Girokonto"_s, u"Sparkonto"_s, u"Bargeld"_s}));
        QVERIFY2(balances.Out.contains("\"Balance\": -335.51"_L1) && balances.Out.contains("\"Balance\": 250.00"_L1),
                 qPrintable(balances.Text()));

        Do(u"book|--all"_s);
        QCOMPARE(Run(u"staged|--open|--json"_s).Json().size(), 0);
        const cCliRun entries = Run(u"entries|--from|2024-03-01|--to|31.03.2024|--json"_s);
        QCOMPARE(entries.Column(u"EntryDate"_s),
                 QStringList({u"2024-03-01"_s, u"2024-03-04"_s, u"2024-03-05"_s, u"2024-03-06"_s, u"2024-03-08"_s,
                              u"2024-03-11"_s}));
        QVERIFY2(entries.Out.contains("\"EntryValue\": 12.40"_L1), qPrintable(entries.Text()));
        const cCliRun april = Run(u"entries|--from|2024-04-01|--to|2024-04-30|--json"_s);
        QCOMPARE(april.Column(u"EntryCategory"_s), QStringList({u"Wohnung; Miete"_s, u"Einkommen; Lohn / Gehalt"_s}));
    }

    void ImportTwiceStagesNothing()
    {
        Do(u"import|"_s + m_giro);
        const QJsonObject again = Do(u"import|%1|--json"_s.arg(m_giro)).Json().at(0).toObject();
        QCOMPARE(again.value(u"staged"_s).toInt(), 0);
        QCOMPARE(again.value(u"duplicates"_s).toInt(), 6);
        Do(u"import|%1|--keep-duplicates"_s.arg(m_giro));
        QCOMPARE(Do(u"staged|--json"_s).Json().size(), 12);
    }

    void EntriesAreFiltered_data()
    {
        const cTestRows<QString, QStringList> row("filter", "days");
        row("kind", u"|--kind|Ausgabe"_s, {u"2024-03-04"_s, u"2024-03-06"_s, u"2024-03-11"_s});
        row("kind in the plural", u"|--kind|Umbuchungen"_s, {u"2024-03-08"_s});
        row("category with its sub-categories", u"|--category|Haushalt"_s,
            {u"2024-03-04"_s, u"2024-03-06"_s, u"2024-03-11"_s});
        row("account, transfers into it too", u"|--account|Sparkonto"_s, {u"2024-03-08"_s});
        row("words in any case and without umlauts", u"|--filter|KORNBLUME baecker"_s, {u"2024-03-11"_s});
    }

    void EntriesAreFiltered()
    {
        QFETCH(const QString, filter);
        ImportBoth();
        const QStringList ids = Rows();
        Do(u"book|--id|%1|%2|%3|%4"_s.arg(ids.at(1), ids.at(3), ids.at(4), ids.at(5)));
        const cCliRun run = Do(u"entries|--period|Alle Buchungen|--json"_s + filter);
        QTEST(run.Column(u"EntryDate"_s), "days");
    }

    void CsvKeepsSeparatorsInsideFields()
    {
        ImportBoth();
        const QStringList ids = Rows();
        Do(u"book|--id|%1"_s.arg(ids.at(1)));
        const QString csv = Run(u"entries|--period|Alle Buchungen|--csv"_s).Out;
        QVERIFY2(csv.contains("\"Haushalt; Lebensmittel\";64,21;"_L1), qPrintable(csv));
    }

    void ExportsTheSelection_data()
    {
        const cTestRows<QString, QByteArray> row("options", "start");
        row("by ending", {}, "!Type:Bank\nD04.03.2024\nT-64.21\n");
        row("by name", u"|--format|csv"_s,
            "\xEF\xBB\xBF"
            "Datum;Buchungsart;");
        row("Excel", u"|--format|xlsx"_s, "PK");
        row("page", u"|--format|html"_s, "<!DOCTYPE html>");
        row("nothing selected", u"|--filter|Mondstaub"_s, "!Type:Bank\n");
    }

    void ExportsTheSelection()
    {
        QFETCH(const QString, options);
        QFETCH(const QByteArray, start);
        ImportBoth();
        const QStringList ids = Rows();
        Do(u"book|--id|%1|%2"_s.arg(ids.at(1), ids.at(4)));
        const QString path = Write(u"out.qif"_s, "old"); // is replaced
        const cCliRun run =
            Do(u"export|%1|--period|Alle Buchungen|--account|Girokonto|--kind|Ausgabe"_s.arg(path) + options);
        const QByteArray content = cTestFile::Bytes(path);
        QVERIFY2(content.startsWith(start), content.left(200).constData());
        const bool isEmpty = options.contains(u"Mondstaub"_s);
        QVERIFY2(run.Out.startsWith(isEmpty ? "0 Eintr"_L1 : "2 Eintr"_L1), qPrintable(run.Text()));
    }

    void ExportRefuses_data()
    {
        const cTestRows<QString, QString, int, QString> row("file", "options", "code", "text");
        row("unknown ending", u"out.pdf"_s, {}, 2, u"csv, xlsx, html, qif"_s);
        row("unknown format", u"out.csv"_s, u"|--format|ods"_s, 2, u"'ods'"_s);
        row("the book itself", u"Veltrino Kontorelle/data.db"_s, u"|--format|csv"_s, 2, u"Datenbank"_s);
        row("unknown period", u"out.csv"_s, u"|--period|Morgen"_s, 2, u"Morgen"_s);
        row("folder that is not there", u"missing/out.csv"_s, {}, 1, u"missing"_s);
    }

    void ExportRefuses()
    {
        QFETCH(const QString, file);
        QFETCH(const QString, options);
        QFETCH(const int, code);
        QFETCH(const QString, text);
        Do(u"balances"_s); // makes the book
        const cCliRun run = Run(u"export|"_s + Path(file) + options);
        QVERIFY2(run.Code == code, qPrintable(run.Text()));
        QVERIFY2(run.Error.contains(text) && run.Out.isEmpty(), qPrintable(run.Text()));
        Do(u"check"_s);
        QVERIFY(!QFile::exists(Path(u"out.csv"_s)));
    }

    void DemoIsTheSameTwice()
    {
        Do(u"demo|~/one.db"_s);
        Do(u"demo|~/two.db"_s);
        const QString line = u"--database|~/%1.db|entries|--period|Letztes Jahr|--json"_s;
        const cCliRun entries = Do(line.arg(u"one"_s));
        QVERIFY(entries.Json().size() > 400);
        QCOMPARE(Do(line.arg(u"two"_s)).Out, entries.Out);
        Refuses(u"demo|~/one.db"_s, {u"gibt es schon"_s});
    }

    void CheckFindsSoundBook()
    {
        Do(u"balances"_s); // makes the book and leaves it as it came
        Says(u"check"_s, {u"setting"_s});
        const cCliRun second = Do(u"check"_s);
        QVERIFY2(!second.Out.contains("setting"_L1), qPrintable(second.Text()));
        Do(u"demo|~/demo.db"_s);
        Do(u"--database|~/demo.db|check"_s);
        QDirIterator copies(Path({}), {u"*.db.*.backup"_s}, QDir::Files, QDirIterator::Subdirectories);
        QVERIFY(!copies.hasNext()); // of before an upgrade: neither book held anything then

        cTestFile::Run(Book(), "DROP TABLE import");
        for (const QString& command : {u"check"_s, u"balances"_s, u"backup|~/out.backup"_s}) {
            Refuses(command, {u"ist unvollständig. Es fehlt: Tabelle import."_s});
        }
    }

    void LostOutputIsNoSuccess_data()
    {
        const cTestRows<QString, bool> row("script", "isSaid");
        row("full disk", u"\"$0\" \"$@\" > /dev/full"_s, true);
        row("closed", u"\"$0\" \"$@\" >&-"_s, true);
        row("nobody reads on", u"exec 3> >(:); wait $!; \"$0\" \"$@\" >&3"_s, false);
    }

    void LostOutputIsNoSuccess()
    {
        QFETCH(const QString, script);
        QFETCH(const bool, isSaid);
        const cCliRun run = cCliRun::Start(u"bash"_s, {u"-c"_s, script, QStringLiteral(CLI_PROGRAM), u"hilfe"_s});
        QCOMPARE(run.Code, 1);
        QCOMPARE(run.Error.contains(u"Ausgabe ist unvollständig"_s), isSaid);
        QVERIFY2(isSaid || run.Error.isEmpty(), qPrintable(run.Error));
    }

    void TerminalObeysNoText()
    {
        Do(u"balances"_s);
        cTestFile::Run(
            Book(),
            "INSERT INTO data (EntryDate, EntryDateEnd, EntryType, EntryInterval, EntryAccount, EntryAccountMove,"
            " EntryCategory, EntryValue, EntryDescription) VALUES ('2026-03-01', '2050-01-01', 'Ausgabe', "
            "'Einmalig', 'Girokonto', '', 'Auto', '1.00', char(0x1b) || ']0;x' || char(7, 0x9b) || '31m' || "
            "char(0x202e))");
        Says(u"entries|--period|Alle Buchungen"_s, {u"\u001b]0;x"_s});
        const QString command =
            QStringLiteral(CLI_PROGRAM " --profile '%1' entries --period 'Alle Buchungen'").arg(Path({}));
        const cCliRun shown = cCliRun::Start(u"script"_s, {u"-qec"_s, command, u"/dev/null"_s});
        QVERIFY2(shown.Out.contains(u"\u241b]0;x\u2407\ufffd31m\ufffd"_s), qPrintable(shown.Text()));
    }

    // A book that somebody else has prepared.
    void StrangeTriggersAreNamedAndDoNothing()
    {
        Do(u"balances"_s);
        cTestFile::Run(
            Book(),
            "CREATE TRIGGER thief AFTER INSERT ON data BEGIN UPDATE data SET EntryAccount = 'Fremd'; END;"
            "CREATE VIEW endless AS WITH RECURSIVE c(x) AS (SELECT 1 UNION ALL SELECT x FROM c) SELECT x FROM c");
        const cCliRun run =
            Do(u"add|--kind|Ausgabe|--amount|1|--account|Girokonto|--category|Haushalt; Lebensmittel|--date|"
               "2026-03-01"_s);
        QVERIFY2(run.Error.contains(": endless, thief."_L1), qPrintable(run.Text()));
        QCOMPARE(Value("SELECT EntryAccount FROM data"), u"Girokonto"_s);
    }

    void UsageErrors_data()
    {
        const cTestRows<QString, QString> row("arguments", "text");
        row("no command", {}, u"fehlt der Befehl"_s);
        row("unknown command", u"frobnicate"_s, u"'frobnicate'"_s);
        row("unknown option", u"staged|--fast"_s, u"'--fast'"_s);
        row("option of another command", u"balances|--all"_s, u"'--all'"_s);
        row("import without file", u"import"_s, u"DATEI"_s);
        row("value missing", u"entries|--account"_s, u"--account"_s);
        row("too many arguments", u"balances|now"_s, u"'now'"_s);
        row("book nothing", u"book"_s, u"--all"_s);
        row("book all and one", u"book|--all|--id|1"_s, u"--id"_s);
        row("number that is none", u"book|--id|x"_s, u"'x'"_s);
        row("unknown period", u"entries|--period|Morgen"_s, u"Letzter Monat"_s);
        row("unknown kind", u"entries|--kind|Geschenk"_s, u"Umbuchung"_s);
        row("date that is none", u"entries|--from|irgendwann"_s, u"Datum"_s);
        row("period and date", u"entries|--from|2024-01-01|--period|Letztes Jahr"_s, u"--period"_s);
    }

    void UsageErrors()
    {
        QFETCH(const QString, arguments);
        QFETCH(const QString, text);
        const cCliRun run = Run(arguments);
        QVERIFY2(run.Code == 2, qPrintable(run.Text()));
        QVERIFY2(run.Error.contains(text), qPrintable(run.Text()));
        QVERIFY2(run.Out.isEmpty(), qPrintable(run.Text()));
    }

    void MissingDatabaseIsNotMade()
    {
        for (const QString& command : QStringList{u"balances"_s, u"import|"_s + m_giro, u"check"_s}) {
            const cCliRun run = Run(u"--database|~/book.db|"_s + command);
            QVERIFY2(run.Code == 1 && run.Error.contains(u"wurde nicht gefunden"_s), qPrintable(run.Text()));
            QVERIFY2(run.Error.contains(Path(u"book.db"_s)) && !run.Error.contains(u'?'), qPrintable(run.Text()));
            QVERIFY(!QFile::exists(Path(u"book.db"_s)));
        }
    }

    void FaultyStatements()
    {
        const QString broken = Write(u"broken.sta"_s, "Sehr geehrte Damen und Herren,\nanbei nichts.\n");
        const cCliRun run = Run(u"import|%1|%2|%3|--json"_s.arg(broken, Path(u"missing.sta"_s), m_giro));
        QVERIFY2(run.Code == 1, qPrintable(run.Text()));
        QCOMPARE(run.Column(u"staged"_s), QStringList({u"0"_s, u"0"_s, u"6"_s}));
        QVERIFY2(run.Error.contains(broken) && run.Error.contains("missing.sta"_L1), qPrintable(run.Text()));
    }

    void MissingTemplateIsADamagedInstallation()
    {
        const QString program = Path(u"kontorelle-cli"_s);
        QVERIFY(QFile::copy(QStringLiteral(CLI_PROGRAM), program));
        const cCliRun run = cCliRun::Start(program, {u"--profile"_s, Path({}), u"balances"_s});
        QVERIFY2(run.Code == 1 && run.Error.contains(u"Die Installation ist beschädigt."_s), qPrintable(run.Text()));
    }

    void MissingPartIsNamed_data()
    {
        const cTestRows<QString, QString> row("command", "part");
        const QString xlsx = u"'kontorelle-xlsx.so'"_s;
        row("entries for Excel", u"export|~.xlsx"_s, xlsx);
        row("report for Excel", u"report|summe|--xlsx|~.xlsx"_s, xlsx);
        row("settlement for Excel", u"settlement|--xlsx|~.xlsx"_s, xlsx);
        row("painting", u"report|summe|--pdf|~.xlsx"_s, u"'kontorelle'"_s);
        row("network", u"fetch"_s, u"'kontorelle'"_s);
    }

    void MissingPartIsNamed()
    {
        QFETCH(QString, command);
        QFETCH(const QString, part);
        Do(u"import|"_s + m_giro);
        const QString program = Path(u"kontorelle-cli"_s);
        QVERIFY(QFile::copy(QStringLiteral(CLI_PROGRAM), program));
        const cCliRun run = cCliRun::Start(
            program, QStringList{u"--profile"_s, Path({})} + command.replace(u'~', Path(u"out"_s)).split(u'|'));
        QVERIFY2(run.Code == 1 && run.Out.isEmpty() && run.Error.contains(part), qPrintable(run.Text()));
        QVERIFY(!QFile::exists(Path(u"out.xlsx"_s)));
    }

    void LockedDatabaseIsReadButNotWritten()
    {
        Do(u"import|"_s + m_giro);
        cFileLock lock;
        QCOMPARE(lock.Take(Book()), eLockState::Held);
        Refuses(u"book|--all"_s, {QCoreApplication::applicationName()});
        QCOMPARE(Run(u"staged|--open|--json"_s).Json().size(), 6);
        lock.Release();
        Do(u"book|--all"_s);
    }

    void DatabaseThatAnotherProgramWritesTo()
    {
        Do(u"import|"_s + m_giro);
        cDatabase other;
        other.Open(Book(), eOpenMode::ReadWrite);
        other.Execute("BEGIN IMMEDIATE");
        const cCliRun write = Run(u"book|--all"_s);
        QVERIFY2(write.Code == 1 && write.Error.contains("Beenden Sie es"_L1), qPrintable(write.Text()));
        QVERIFY2(!write.Error.contains(u'?'), qPrintable(write.Text()));
        QCOMPARE(Run(u"staged|--open|--json"_s).Json().size(), 6);
    }

    void PasswordKeepsDataClosed()
    {
        Do(u"import|"_s + m_giro);
        cQtRegistry registry(Path({}));
        const QString key = u"SOFTWARE\\Veltrino Kontorelle"_s;
        QVERIFY(registry.Write(key, u"PasswortAktiv"_s, u"True"_s) && registry.Write(key, u"Passwort"_s, u"geheim"_s));
        for (const QByteArray& password : {QByteArray(), QByteArray("falsch")}) {
            if (!password.isEmpty()) {
                qputenv("KONTORELLE_PASSWORT", password);
            }
            for (const QString& command : {u"staged"_s, u"book|--all"_s}) {
                const cCliRun run = Run(command);
                QVERIFY2(run.Code == 1 && run.Out.isEmpty() && run.Error.contains("Passwort"_L1),
                         qPrintable(run.Text()));
            }
        }
        qputenv("KONTORELLE_PASSWORT", QByteArray("geheim"));
        const cCliRun run = Run(u"staged|--open|--json"_s);
        qunsetenv("KONTORELLE_PASSWORT");
        QCOMPARE(run.Json().size(), 6);
    }

    void KilledImportKeepsWhatItStaged()
    {
        constexpr int count = 20000;
        const QString file = Write(u"large.sta"_s, LargeStatement(count));
        Do(u"balances"_s); // makes the book
        QProcess import;
        import.start(QStringLiteral(CLI_PROGRAM), {u"--profile"_s, Path({}), u"import"_s, file});
        const QString journal = QString(Book() + u"-journal"); // is there while rows are written
        while (!QFile::exists(journal) && import.state() != QProcess::NotRunning) {
            import.waitForFinished(1);
        }
        QVERIFY2(import.state() == QProcess::Running, "the import was over before it could be killed");
        import.kill();
        QVERIFY(import.waitForFinished());

        const cCliRun check = Do(u"check"_s);
        const qsizetype kept = Run(u"staged|--json"_s).Json().size();
        QVERIFY(kept < count);
        const QJsonObject rest = Run(u"import|%1|--json"_s.arg(file)).Json().at(0).toObject();
        QCOMPARE(rest.value(u"duplicates"_s).toInt(), static_cast<int>(kept));
        QCOMPARE(rest.value(u"staged"_s).toInt(), count - static_cast<int>(kept));
    }

    void FailuresAreTakenDown()
    {
        const QDir folder(Path(u"state/Veltrino Kontorelle"_s));
        Do(u"balances"_s);
        QCOMPARE(Run(u"gibtesnicht"_s).Code, 2);
        QVERIFY(folder.entryList(QDir::Files).isEmpty());
        QCOMPARE(Run(u"balances|--database|/nirgends/Erika Mustermann.db"_s).Code, 1);
        const QStringList files = folder.entryList(QDir::Files);
        QCOMPARE(files.size(), 1);
        const QString log = QString::fromUtf8(cTestFile::Bytes(folder.filePath(files[0])));
        QVERIFY2(log.contains(u"\tbalances\tDie Datenbank '…' wurde nicht gefunden."_s), qPrintable(log));
        QVERIFY2(!log.contains(u"Erika"_s) && !log.contains(u"nirgends"_s), qPrintable(log));
    }

    void DebugInfoHoldsNoData()
    {
        const cCliRun run = Run(u"--debug-info"_s);
        QCOMPARE(run.Code, 0);
        QVERIFY2(run.Out.contains(u"SQLite 3."_s) && run.Out.contains(u"data.db (gibt es nicht)"_s),
                 qPrintable(run.Out));
        QVERIFY(!run.Out.contains(QDir::homePath() + u'/'));
        QVERIFY(Do(u"--version"_s).Out.startsWith(u"kontorelle-cli "_s));
        QVERIFY(!QFile::exists(Book())); // they look and make nothing
    }

private:
    void ImportBoth() const
    {
        Do(u"import|%1|--keep-start"_s.arg(m_giro));
        Do(u"import|%1|--book-account|Sparkonto|--keep-start"_s.arg(m_spar));
    }

    // The numbers of the rows that can be booked.
    [[nodiscard]] QStringList Rows() const { return Do(u"propose|--json"_s).Column(u"ImportID"_s); }

    const QString m_giro = QStringLiteral(TEST_DATA "/cli/giro.sta");
    const QString m_spar = QStringLiteral(TEST_DATA "/cli/spar.sta");
};

TEST_CLASS(testCli, QCoreApplication)
#include "testCli.moc"
