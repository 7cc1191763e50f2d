#include "cCliRun.h"
#include "support/cTestClass.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

// Reports from the command line: the program itself on a small book.
class testCliReport final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void AsTable();
    void AsJson();
    void Tags();
    void Files();
    void Budget();
    void RefundsUseUpNothing();
    void Settlement();
    void Refused_data();
    void Refused();

private:
    [[nodiscard]] cCliRun Run(const QString& line) const;
    [[nodiscard]] QJsonObject Json(const QString& line) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

cCliRun testCliReport::Run(const QString& line) const
{
    return cCliRun::Line(m_folder->path(), line);
}

QJsonObject testCliReport::Json(const QString& line) const
{
    return QJsonDocument::fromJson(Run(line + u"|--json"_s).Out.toUtf8()).object();
}

void testCliReport::initTestCase()
{
    m_folder = std::make_unique<QTemporaryDir>();
    for (const QString& entry :
         {u"--amount|300|--category|Wohnung; Strom|--date|2026-02-01|--interval|Einmalig"_s,
          u"--amount|20|--category|Auto; Benzin|--date|2026-02-03|--account|Bargeld"_s,
          u"--amount|1000|--category|Einkommen; Freiberuflich|--kind|Einnahme|--date|2026-02-05"_s,
          u"--amount|5|--category|Auto; Benzin|--date|2099-01-01|--account|Bargeld"_s}) {
        QCOMPARE(Run(u"add|"_s + entry).Code, 0);
    }
    QCOMPARE(Run(u"accounts|start|Girokonto|50|--date|2026-01-01"_s).Code, 0);
}

void testCliReport::AsTable()
{
    const cCliRun run = Run(u"report|Summe|aller|Werte|--period|Alle Buchungen|--by-amount|--no-future"_s);
    QCOMPARE(run.Code, 0);
    const QString text = QString(run.Out).replace(u'\u00A0', u' ').simplified();
    QVERIFY2(text.contains(u"Ausgaben 320,00 € 2 Wohnung 300,00 € 1 Strom 300,00 € 1 Auto 20,00 €"_s),
             qPrintable(run.Out));
}

// Nothing that the window has chosen to hide is missing, unless it is asked for.
void testCliReport::AsJson()
{
    const QString line = u"report|summe|--period|Alle Buchungen"_s;
    QCOMPARE(Json(line).value(u"Difference"_s).toDouble(), 725.0);
    QCOMPARE(Json(line + u"|--no-start|--no-future"_s).value(u"Difference"_s).toDouble(), 680.0);
    const QJsonObject cash = Json(line + u"|--account|bargeld"_s).value(u"Expense"_s).toObject();
    QCOMPARE(cash.value(u"Amount"_s).toDouble(), 25.0);
    QCOMPARE(cash.value(u"Entries"_s).toInt(), 2);
    const QJsonObject february = Json(u"report|DURCHSCHNITT|--from|2026-02-01|--to|28.2.2026"_s);
    QCOMPARE(february.value(u"Income"_s).toObject().value(u"Amount"_s).toDouble(), 1123.46); // 1000 / 27 * 364 / 12
}

void testCliReport::Tags()
{
    const QString folder = m_folder->path() + u"/schlagwort"_s;
    for (const QString& text : {u"Hotel #urlaub #kinder"_s, u"Eis #Urlaub"_s, u"Brot"_s}) {
        const QString line =
            u"add|--amount|10|--category|Haushalt|--account|Bargeld|--date|2026-02-01|--text|"_s + text;
        (void)cCliRun::GoodLine(folder, line);
    }
    const QString line = u"tags|--period|Alle Buchungen|--json"_s;
    const cCliRun run = cCliRun::GoodLine(folder, line);
    QCOMPARE(run.Column(u"Tag"_s), QStringList({u"#urlaub"_s, u"#kinder"_s, u""_s}));
    QCOMPARE(run.Column(u"Expense"_s), QStringList({u"20"_s, u"10"_s, u"10"_s}));
    QCOMPARE(cCliRun::GoodLine(folder, line + u"|--filter|#kinder"_s).Column(u"Tag"_s).size(), 2);
}

void testCliReport::Files()
{
    const QString page = m_folder->filePath(u"b.html"_s);
    const QString pdf = m_folder->filePath(u"b.pdf"_s);
    const QString table = m_folder->filePath(u"b.csv"_s);
    const cCliRun run =
        Run(u"report|summe|--html|%1|--csv|%2|--pdf|%3|--from|2026-02-01|--to|2026-02-28"_s.arg(page, table, pdf));
    QCOMPARE(run.Code, 0);
    QCOMPARE(run.Out.count(u'\n'), 3); // a line for each file; the figures have gone into them
    QCOMPARE(run.Out.count(u"' geschrieben."_s), 3);
    QFile painted(pdf);
    QVERIFY(painted.open(QIODevice::ReadOnly));
    QVERIFY(painted.read(5) == "%PDF-");
    QFile html(page);
    QVERIFY(html.open(QIODevice::ReadOnly));
    QVERIFY(html.readAll().contains("SHOWENTRIES://Ausgaben|01.02.2026|28.02.2026|Alle Konten|Auto; Benzin"));
    QFile csv(table);
    QVERIFY(csv.open(QIODevice::ReadOnly));
    QVERIFY(csv.readAll().contains("Ausgaben;Wohnung;Strom;300,00;1"));
}

// More came back than was spent: a share below zero says nothing.
void testCliReport::RefundsUseUpNothing()
{
    QCOMPARE(Run(u"categories|add|Haushalt; Toaster|--limit|100"_s).Code, 0);
    QCOMPARE(Run(u"add|--amount|50|--kind|Einnahme|--category|Haushalt; Toaster|--date|2025-02-06"_s).Code, 0);
    const cCliRun run = Run(u"report|limit|--from|2025-02-01|--to|2025-02-28"_s);
    const QString text = QString(run.Out).replace(u'\u00A0', u' ').simplified();
    QVERIFY2(text.contains(u"Toaster -50,00 € 100,00 € 0 1"_s), qPrintable(run.Out));
}

// A month of its own, a year in one month, and what is left of both.
void testCliReport::Budget()
{
    QCOMPARE(Run(u"categories|change|Auto; Benzin|--limit|30"_s).Code, 0);
    QCOMPARE(Run(u"budget|set|Benzin|2026-01|15"_s).Code, 0);
    QCOMPARE(Run(u"budget|carry|Benzin|2026"_s).Code, 0);
    const auto plain = [](const cCliRun& run) { return QString(run.Out).replace(u'\u00A0', u' ').simplified(); };
    QVERIFY(plain(Run(u"budget|2026-02"_s)).contains(u"Auto; Benzin 30,00 € 15,00 € 20,00 € 25,00 €"_s));
    QCOMPARE(Run(u"budget|set|Wohnung; Strom|2026|600|--only|2026-02"_s).Code, 0);
    QVERIFY(plain(Run(u"budget|2026"_s)).contains(u"Wohnung; Strom 0,00 € 600,00 €"_s));
    const QJsonObject report = Json(u"report|budget|--from|2026-02-01|--to|2026-02-28"_s);
    QCOMPARE(report.value(u"Expense"_s).toObject().value(u"Left"_s).toDouble(), 325.0);
    QCOMPARE(Run(u"budget|copy|2027"_s).Code, 0);
    QVERIFY(plain(Run(u"budget|2027-02"_s)).contains(u"Wohnung; Strom 300,00 €"_s));
    QCOMPARE(Run(u"budget|set|Wohnung; Strom|2026|ohne"_s).Code, 0);
    QVERIFY(!plain(Run(u"budget|2026"_s)).contains(u"Strom"_s));
}

// Who paid is said at the entry, and who owes whom follows from the shares in its account.
void testCliReport::Settlement()
{
    const QString folder = m_folder->path() + u"/haushalt"_s;
    const auto run = [&](const QString& line) { return cCliRun::GoodLine(folder, line); };
    (void)run(u"people|add|Anna"_s);
    (void)run(u"people|add|Bén"_s);
    QVERIFY(run(u"people|shares|girokonto|anna=60"_s).Out.contains(u"Anna 60 %, Bén 40 %"_s));
    const QString add =
        u"add|--category|Haushalt|--kind|Ausgabe|--account|Girokonto|--date|2026-02-01|--json|--amount|"_s;
    const QString id = run(add + u"100|--payer|anna"_s).Column(u"ID"_s).value(0);
    (void)run(add + u"7"_s);
    const QString days = u"|--from|2026-01-01|--to|2026-12-31"_s;
    QCOMPARE(run(u"entries|--payer|Anna|--json"_s + days).Column(u"ID"_s), QStringList{id});
    QCOMPARE(run(u"search|--payer|ohne|--json"_s).Column(u"EntryValue"_s), QStringList{u"7"_s});
    const QString table = folder + u"/a.csv"_s;
    const QString workbook = folder + u"/a.xlsx"_s;
    const QJsonObject figures =
        QJsonDocument::fromJson(run(u"settlement|--json|--csv|%1|--xlsx|%2"_s.arg(table, workbook) + days).Out.toUtf8())
            .object();
    const QJsonArray payments = figures.value(u"Payments"_s).toArray();
    QCOMPARE(cCliRun::Column(payments, u"From"_s), QStringList{u"Bén"_s});
    QCOMPARE(cCliRun::Column(payments, u"Amount"_s), QStringList{u"40"_s});
    QCOMPARE(figures.value(u"Entries"_s).toArray().size(), 1);
    QVERIFY(QFile::exists(table) && QFile::exists(workbook));
    const QString text = run(u"settlement"_s + days).Out.replace(u'\u00A0', u' ').simplified();
    QVERIFY2(text.contains(u"Bén Anna 40,00 €"_s), qPrintable(text));
    QVERIFY(cCliRun::Line(folder, u"people|delete|Bén"_s).Error.contains(u"Girokonto: Anna"_s));
    (void)run(u"change|%1|--payer|ohne"_s.arg(id));
    QVERIFY(run(u"settlement"_s + days).Out.contains(u"bei keinem Eintrag"_s));
    (void)run(u"people|rename|Bén|Cem"_s);
    (void)run(u"people|delete|Anna|--yes"_s);
    const QJsonObject people = QJsonDocument::fromJson(run(u"people|--json"_s).Out.toUtf8()).object();
    QCOMPARE(cCliRun::Column(people.value(u"People"_s).toArray(), u"Name"_s), QStringList{u"Cem"_s});
}

void testCliReport::Refused_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("said");
    QTest::newRow("no such report") << u"report|mittel"_s << 2 << u"durchschnitt, summe, limit"_s;
    QTest::newRow("no month") << u"budget|set|Auto; Benzin|März|5"_s << 2 << u"2026-03"_s;
    QTest::newRow("limit below zero") << u"budget|set|Auto; Benzin|2026-03|-5"_s << 2 << u"unter null"_s;
    QTest::newRow("no expense") << u"budget|set|Einkommen; Freiberuflich|2026-03|5"_s << 1 << u"kein Budget"_s;
    QTest::newRow("no people") << u"add|--amount|5|--category|Benzin|--payer|Anna"_s << 1 << u"people add"_s;
    QTest::newRow("no person") << u"people|rename||Anna"_s << 1 << u"people add"_s;
    QTest::newRow("shares of no account") << u"people|shares||ohne"_s << 2 << u"Gemeinsames"_s;
    QTest::newRow("no share") << u"people|shares|Girokonto|ohne=5"_s << 1 << u"people add"_s;
    QTest::newRow("no such account") << u"report|summe|--account|Nirgends"_s << 1 << u"Nirgends"_s;
    QTest::newRow("period and days") << u"report|summe|--period|Letzter Monat|--from|2026-01-01"_s << 2
                                     << u"--period"_s;
    QTest::newRow("the book itself") << u"report|summe|--html|%1/Veltrino Kontorelle/data.db"_s << 2
                                     << u"Datenbank selbst"_s;
    QTest::newRow("no such folder") << u"report|summe|--html|%1/nirgends/b.html"_s << 1 << u"nirgends"_s;
}

void testCliReport::Refused()
{
    QFETCH(QString, line);
    const cCliRun run = Run(line.replace(u"%1"_s, m_folder->path()));
    QTEST(run.Code, "code");
    QFETCH(QString, said);
    QVERIFY2(run.Error.contains(said), qPrintable(run.Text()));
}

TEST_CLASS(testCliReport, QCoreApplication)
#include "testCliReport.moc"
