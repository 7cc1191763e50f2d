#include "cCliRun.h"
#include "support/cTestClass.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

// No bank's layout, and no line names the account.
constexpr const char* table = "Tag;Was;Preis;Wert;Stand\n"
                              "03.02.2026;Br\xE4zeln;2,00;-4,20;gebucht\n"
                              "04.02.2026;Miete;3,00;-660,00;gebucht\n"
                              "05.02.2026;Kiosk;4,00;-1,00;geplant\n";

} // namespace

// Statements of all formats from the command line, end to end: the program itself on a new book each time.
class testCliImport final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_table = m_folder->filePath(u"a.csv"_s);
        QFile file(m_table);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(table);
    }

    void DryRunWritesNothing()
    {
        Do({u"balances"_s}); // makes the book
        QFile book(m_folder->filePath(u"Veltrino Kontorelle/data.db"_s));
        QVERIFY(book.open(QIODevice::ReadOnly));
        const QByteArray before = book.readAll();
        const QJsonObject tried =
            Do({u"import"_s, m_giro, m_giro, u"--dry-run"_s, u"--json"_s}).Json().at(0).toObject();
        QVERIFY(book.seek(0));
        QCOMPARE(book.readAll(), before);
        QCOMPARE(tried.value(u"staged"_s).toInt(), 6);
        Do({u"import"_s, m_giro});
        const cCliRun staged = Do({u"staged"_s, u"--json"_s});
        QCOMPARE(cCliRun::Column(tried.value(u"rows"_s).toArray(), u"ImportPurpose"_s),
                 staged.Column(u"ImportPurpose"_s));
        const cCliRun again = Do({u"import"_s, m_giro, u"--dry-run"_s});
        QVERIFY2(again.Out.contains("0 neu, 6 schon vorhanden"_L1), qPrintable(again.Text()));
    }

    void AccountOfALayoutIsRemembered()
    {
        const cCliRun asked = Run({u"import"_s, m_table});
        QVERIFY2(asked.Code == 1 && asked.Error.contains("Kontonummer"_L1), qPrintable(asked.Text()));
        Do({u"import"_s, m_table, u"--account"_s, u"4711"_s, u"--dry-run"_s});
        QCOMPARE(Run({u"import"_s, m_table}).Code, 1);
        Do({u"import"_s, m_table, u"--account"_s, u"4711"_s});
        const QJsonObject known = Do({u"import"_s, m_table, u"--json"_s}).Json().at(0).toObject();
        QCOMPARE(known.value(u"duplicates"_s).toInt(), 3);
    }

    void ColumnsAndCharsetAreChosen()
    {
        const QStringList line{u"import"_s,    m_table,    u"--account"_s,
                               u"1"_s,         u"--map"_s, u"datum=0, betrag=2,zweck=1"_s,
                               u"--charset"_s, u"CP850"_s};
        Do(line);
        const cCliRun staged = Do({u"staged"_s, u"--json"_s});
        QCOMPARE(staged.Column(u"ImportValue"_s), QStringList({u"2"_s, u"3"_s, u"4"_s}));
        QCOMPARE(staged.Column(u"ImportPurpose"_s).value(0), u"Brõzeln"_s);
    }

    // Both readings are shown, the option decides, and the next file of the kind needs none.
    void AmountsWithoutSignAreNotGuessed()
    {
        QFile file(m_table);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("Tag;Text;Betrag\n03.02.2026;Miete;500,00\n") > 0);
        file.close();
        const cCliRun refused = Run({u"import"_s, m_table, u"--account"_s, u"1"_s});
        QVERIFY2(refused.Code == 1 && refused.Error.contains("Miete"_L1) && refused.Error.contains("-500,00"_L1)
                     && refused.Error.contains("--sign umgekehrt"_L1),
                 qPrintable(refused.Text()));
        Do({u"import"_s, m_table, u"--account"_s, u"1"_s, u"--sign"_s, u"umgekehrt"_s});
        QCOMPARE(Do({u"staged"_s, u"--json"_s}).Column(u"ImportValue"_s), QStringList(u"-500"_s));
        const cCliRun again = Do({u"import"_s, m_table, u"--json"_s});
        QCOMPARE(again.Json().at(0).toObject().value(u"duplicates"_s).toInt(), 1);
    }

    void ColumnsAreRemembered()
    {
        Do({u"import"_s, m_table, u"--account"_s, u"1"_s, u"--map"_s, u"datum=0,betrag=2,zweck=1"_s, u"--remember"_s});
        const cCliRun again = Do({u"import"_s, m_table, u"--json"_s});
        QCOMPARE(again.Json().at(0).toObject().value(u"duplicates"_s).toInt(), 3);
        const cCliRun found = Do({u"detect"_s, m_table, u"--json"_s});
        QVERIFY2(found.Out.contains(u"\"origin\": \"memory\""_s), qPrintable(found.Text()));
        QFile file(m_table);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("Tag;W\x84hrung;Wert\n03.02.2026;\x8E;-4,20\n") > 0);
        file.close();
        Do({u"import"_s, m_table, u"--account"_s, u"1"_s, u"--charset"_s, u"cp850"_s, u"--map"_s,
            u"datum=0,zweck=1,betrag=2"_s, u"--remember"_s});
        const cCliRun cp850 = Do({u"import"_s, m_table, u"--account"_s, u"1"_s, u"--json"_s});
        QCOMPARE(cp850.Json().at(0).toObject().value(u"duplicates"_s).toInt(), 1);
    }

    void StrayDetailsAreSkippedOnRequest()
    {
        QFile file(m_folder->filePath(u"a.sta"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(":20:A\n:25:1\n:60F:C260101EUR0,00\n:86:Vorwort\n:61:260101D1,00NTRF\n:86:x\n-\n");
        file.close();
        const cCliRun refused = Run({u"import"_s, file.fileName()});
        QVERIFY2(refused.Code == 1 && refused.Error.contains("--skip-stray-details"_L1), qPrintable(refused.Text()));
        const cCliRun read = Do({u"import"_s, file.fileName(), u"--skip-stray-details"_s});
        QVERIFY2(read.Out.contains("1 gelesen, 1 neu"_L1), qPrintable(read.Text()));
    }

    void OtherCurrencyIsTakenOnRequest()
    {
        QFile file(m_folder->filePath(u"a.sta"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(":20:A\n:25:1\n:60F:C260101USD0,00\n:61:260101D1,00NTRF\n:86:x\n-\n");
        file.close();
        const cCliRun refused = Run({u"import"_s, file.fileName()});
        QVERIFY2(refused.Code == 1 && refused.Error.contains("--take-currency"_L1), qPrintable(refused.Text()));
        Do({u"import"_s, file.fileName(), u"--take-currency"_s});
        Do({u"import"_s, file.fileName()});
    }

    void SkippedRowsAndLayoutAreTold()
    {
        const cCliRun run = Do({u"import"_s, m_table, u"--json"_s, u"--account"_s, u"1"_s, u"--map"_s,
                                u"datum=0,zweck=1,betrag=3,status=4"_s});
        const QJsonArray skipped = run.Json().at(0).toObject().value(u"skipped"_s).toArray();
        QCOMPARE(cCliRun::Column(skipped, u"kind"_s), QStringList(u"pending"_s));
        QCOMPARE(cCliRun::Column(skipped, u"line"_s), QStringList(u"4"_s));
        const cCliRun known = Do({u"import"_s, Csv(u"dkb.csv"_s), u"--json"_s});
        QCOMPARE(known.Column(u"layout"_s), QStringList(u"DKB"_s));
    }

    void Detects_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("finding"); // members of the object, in their order

        QTest::newRow("known layout")
            << Csv(u"dkb.csv"_s)
            << uR"("profile": "DKB", "headerLine": 5, "separator": ",", "charset": "utf-8", "origin": "profile",)"_s;
        QTest::newRow("account above the header")
            << Csv(u"ing.csv"_s) << uR"("accounts": ["DE02500105170137075030"], "needsAccount": false,)"_s;
        QTest::newRow("Windows-1252") << Csv(u"sparkasse-karte.csv"_s) << uR"("charset": "windows-1252")"_s;
        QTest::newRow("guessed columns") << Csv(u"ohne-kopf.csv"_s) << uR"("headerLine": 0,)"_s;
        QTest::newRow("no table")
            << m_giro << uR"("firstDay": "2024-03-01", "lastDay": "2024-03-12", "rows": 7, "skipped": 0,)"_s;
        QTest::newRow("camt") << QStringLiteral(TEST_DATA "/camt/giro.xml")
                              << uR"("profile": "", "headerLine": null, "separator": "",)"_s;
        QTest::newRow("packed") << QStringLiteral(TEST_DATA "/camt/auszuege.zip") << uR"("charset": "",)"_s;
    }

    void Detects()
    {
        QFETCH(const QString, file);
        QFETCH(const QString, finding);
        const cCliRun run = Do({u"detect"_s, file, u"--json"_s});
        QVERIFY2(QJsonDocument::fromJson(run.Out.toUtf8()).isObject(), qPrintable(run.Text()));
        QVERIFY2(run.Out.contains(finding), qPrintable(run.Text()));
    }

    // What "detect" finds can be handed back to "import", as it is or changed.
    void DetectedColumnsAreTaken()
    {
        const auto option = [this](const QStringList& more) {
            const cCliRun run = Do(QStringList{u"detect"_s, m_table, u"--json"_s} + more);
            return QJsonDocument::fromJson(run.Out.toUtf8()).object().value(u"mapOption"_s).toString();
        };
        const QString found = option({});
        QVERIFY2(found.contains(u"datum=0"_s), qPrintable(found));
        QCOMPARE(option({u"--map"_s, found}), found);
    }

    void Refused_data()
    {
        QTest::addColumn<QStringList>("line");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("text");

        const QStringList import{u"import"_s, u"a.csv"_s};
        QTest::newRow("charset") << import + QStringList{u"--charset"_s, u"ebcdic"_s} << 2 << u"windows-1252, cp850"_s;
        QTest::newRow("profile") << import + QStringList{u"--profile-name"_s, u"Mondbank"_s} << 2 << u"\"comdirect\""_s;
        QTest::newRow("column") << import + QStringList{u"--map"_s, u"datum=0,preis=2"_s} << 2 << u"'preis=2'"_s;
        QTest::newRow("column without number") << import + QStringList{u"--map"_s, u"datum"_s} << 2 << u"'datum'"_s;
        QTest::newRow("no amount") << import + QStringList{u"--map"_s, u"datum=0"_s} << 2 << u"\"betrag\""_s;
        QTest::newRow("columns of no table")
            << QStringList{u"import"_s, m_giro, u"--map"_s, u"datum=0,betrag=2"_s} << 1 << u"nur bei Tabellen"_s;
        QTest::newRow("nothing to detect")
            << QStringList{u"detect"_s, u"missing.csv"_s} << 1 << u"kann nicht geöffnet werden"_s;
    }

    void Refused()
    {
        QFETCH(const QStringList, line);
        QFETCH(const int, code);
        QFETCH(const QString, text);
        const cCliRun run = Run(line);
        QVERIFY2(run.Code == code && run.Error.contains(text) && run.Out.isEmpty(), qPrintable(run.Text()));
    }

    void LayoutsAreShared()
    {
        QVERIFY(Do({u"layouts"_s}).Out.contains("comdirect\n"_L1));
        const QString shared = m_folder->filePath(u"aufbau.txt"_s);
        Do({u"layouts"_s, u"export"_s, m_table, shared, u"--map"_s, u"datum=0,betrag=2,zweck=1"_s});
        Do({u"layouts"_s, u"import"_s, shared});
        const cCliRun found = Do({u"detect"_s, m_table});
        QVERIFY2(found.Out.contains("datum=0,betrag=2,zweck=1"_L1), qPrintable(found.Text()));
        const cCliRun bad = Run({u"layouts"_s, u"import"_s, m_table});
        QVERIFY2(bad.Code == 1 && bad.Error.contains("kein Aufbau"_L1), qPrintable(bad.Text()));
        QCOMPARE(Run({u"layouts"_s, u"export"_s, m_giro, shared}).Code, 1);
    }

private:
    [[nodiscard]] static QString Csv(const QString& name) { return QStringLiteral(TEST_DATA "/csv/") + name; }

    [[nodiscard]] cCliRun Run(const QStringList& arguments) const
    {
        return cCliRun::Start(QStringLiteral(CLI_PROGRAM), QStringList{u"--profile"_s, m_folder->path()} + arguments);
    }

    // Runs what has to succeed.
    cCliRun Do(const QStringList& arguments)
    {
        const cCliRun run = Run(arguments);
        if (run.Code != 0) {
            qFatal("%s: %s", qPrintable(arguments.join(u' ')), qPrintable(run.Text()));
        }
        return run;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_table;
    const QString m_giro = QStringLiteral(TEST_DATA "/cli/giro.sta");
};

TEST_CLASS(testCliImport, QCoreApplication)
#include "testCliImport.moc"
