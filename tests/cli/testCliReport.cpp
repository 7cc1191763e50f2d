#include "cCliRun.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// With single blanks.
QString Plain(const cCliRun& run)
{
    return QString(run.Out).replace(u'\u00A0', u' ').simplified();
}

} // namespace

// Reports, charts and the forecast from the command line: the program itself on a small book.
class testCliReport final : public QObject, cCliBooks
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (const QString& entry :
             {u"--amount|300|--category|Wohnung; Strom|--date|2026-02-01|--interval|Einmalig"_s,
              u"--amount|20|--category|Auto; Benzin|--date|2026-02-03|--account|Bargeld"_s,
              u"--amount|1000|--category|Einkommen; Freiberuflich|--kind|Einnahme|--date|2026-02-05"_s,
              u"--amount|5|--category|Auto; Benzin|--date|2099-01-01|--account|Bargeld"_s}) {
            Do(u"add|"_s + entry);
        }
        Do(u"accounts|start|Girokonto|50|--date|2026-01-01"_s);
    }

    void AsTable()
    {
        const cCliRun run = Do(u"report|Summe|aller|Werte|--period|Alle Buchungen|--by-amount|--no-future"_s);
        QVERIFY2(Plain(run).contains(u"Ausgaben 320,00 € 2 Wohnung 300,00 € 1 Strom 300,00 € 1 Auto 20,00 €"_s),
                 qPrintable(run.Out));
    }

    // Nothing that the window has chosen to hide is missing, unless it is asked for.
    void AsJson()
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

    void Tags()
    {
        const cCliBooks books;
        for (const QString& text : {u"Hotel #urlaub #kinder"_s, u"Eis #Urlaub"_s, u"Brot"_s}) {
            const QString line =
                u"add|--amount|10|--category|Haushalt|--account|Bargeld|--date|2026-02-01|--text|"_s + text;
            books.Do(line);
        }
        const QString line = u"tags|--period|Alle Buchungen|--json"_s;
        const cCliRun run = books.Do(line);
        QCOMPARE(run.Column(u"Tag"_s), QStringList({u"#urlaub"_s, u"#kinder"_s, u""_s}));
        QCOMPARE(run.Column(u"Expense"_s), QStringList({u"20"_s, u"10"_s, u"10"_s}));
        QCOMPARE(books.Do(line + u"|--filter|#kinder"_s).Column(u"Tag"_s).size(), 2);
    }

    void Files()
    {
        const cCliRun run =
            Do(u"report|summe|--html|~/b.html|--csv|~/b.csv|--pdf|~/b.pdf|--from|2026-02-01|--to|2026-02-28"_s);
        QCOMPARE(run.Out.count(u'\n'), 3); // a line for each file; the figures have gone into them
        QCOMPARE(run.Out.count(u"' geschrieben."_s), 3);
        QVERIFY(cTestFile::Bytes(Path(u"b.pdf"_s)).startsWith("%PDF-"));
        QVERIFY(cTestFile::Bytes(Path(u"b.html"_s))
                    .contains("SHOWENTRIES://Ausgaben|01.02.2026|28.02.2026|Alle Konten|Auto; Benzin"));
        QVERIFY(cTestFile::Bytes(Path(u"b.csv"_s)).contains("Ausgaben;Wohnung;Strom;300,00;1"));
    }

    // A month of its own, a year in one month, and what is left of both.
    void Budget()
    {
        Do(u"categories|change|Auto; Benzin|--limit|30"_s);
        Do(u"budget|set|Benzin|2026-01|15"_s);
        Do(u"budget|carry|Benzin|2026"_s);
        QVERIFY(Plain(Do(u"budget|2026-02"_s)).contains(u"Auto; Benzin 30,00 € 15,00 € 20,00 € 25,00 €"_s));
        Do(u"budget|set|Wohnung; Strom|2026|600|--only|2026-02"_s);
        QVERIFY(Plain(Do(u"budget|2026"_s)).contains(u"Wohnung; Strom 0,00 € 600,00 €"_s));
        const QJsonObject report = Json(u"report|budget|--from|2026-02-01|--to|2026-02-28"_s);
        QCOMPARE(report.value(u"Expense"_s).toObject().value(u"Left"_s).toDouble(), 325.0);
        Do(u"budget|copy|2027"_s);
        QVERIFY(Plain(Do(u"budget|2027-02"_s)).contains(u"Wohnung; Strom 300,00 €"_s));
        Do(u"budget|set|Wohnung; Strom|2026|ohne"_s);
        QVERIFY(!Plain(Do(u"budget|2026"_s)).contains(u"Strom"_s));
    }

    // More came back than was spent: a share below zero says nothing.
    void RefundsUseUpNothing()
    {
        Do(u"categories|add|Haushalt; Toaster|--limit|100"_s);
        Do(u"add|--amount|50|--kind|Einnahme|--category|Haushalt; Toaster|--date|2025-02-06"_s);
        const cCliRun run = Run(u"report|limit|--from|2025-02-01|--to|2025-02-28"_s);
        QVERIFY2(Plain(run).contains(u"Toaster -50,00 € 100,00 € 0 1"_s), qPrintable(run.Out));
    }

    // Who paid is said at the entry, and who owes whom follows from the shares in its account.
    void Settlement()
    {
        const cCliBooks books;
        const auto run = [&](const QString& line) { return books.Do(line); };
        run(u"people|add|Anna"_s);
        run(u"people|add|Bén"_s);
        QVERIFY(run(u"people|shares|girokonto|anna=60"_s).Out.contains(u"Anna 60 %, Bén 40 %"_s));
        const QString add =
            u"add|--category|Haushalt|--kind|Ausgabe|--account|Girokonto|--date|2026-02-01|--json|--amount|"_s;
        const QString id = run(add + u"100|--payer|anna"_s).Column(u"ID"_s).value(0);
        run(add + u"7"_s);
        const QString days = u"|--from|2026-01-01|--to|2026-12-31"_s;
        QCOMPARE(run(u"entries|--payer|Anna|--json"_s + days).Column(u"ID"_s), QStringList{id});
        QCOMPARE(run(u"search|--payer|ohne|--json"_s).Column(u"EntryValue"_s), QStringList{u"7"_s});
        const QJsonObject figures = run(u"settlement|--json|--csv|~/a.csv|--xlsx|~/a.xlsx"_s + days).Object();
        const QJsonArray payments = figures.value(u"Payments"_s).toArray();
        QCOMPARE(cCliRun::Column(payments, u"From"_s), QStringList{u"Bén"_s});
        QCOMPARE(cCliRun::Column(payments, u"Amount"_s), QStringList{u"40"_s});
        QCOMPARE(figures.value(u"Entries"_s).toArray().size(), 1);
        QVERIFY(QFile::exists(books.Path(u"a.csv"_s)) && QFile::exists(books.Path(u"a.xlsx"_s)));
        QVERIFY(Plain(run(u"settlement"_s + days)).contains(u"Bén Anna 40,00 €"_s));
        QVERIFY(books.Run(u"people|delete|Bén"_s).Error.contains(u"Girokonto: Anna"_s));
        run(u"change|%1|--payer|ohne"_s.arg(id));
        QVERIFY(run(u"settlement"_s + days).Out.contains(u"bei keinem Eintrag"_s));
        run(u"people|rename|Bén|Cem"_s);
        run(u"people|delete|Anna|--yes"_s);
        const QJsonObject people = run(u"people|--json"_s).Object();
        QCOMPARE(cCliRun::Column(people.value(u"People"_s).toArray(), u"Name"_s), QStringList{u"Cem"_s});
    }

    void ChartFiles()
    {
        Do(u"chart|ausgaben|--from|2026-02-01|--to|2026-02-28|--png|~/a.png|--svg|~/a.svg|--csv|~/a.csv"_s);
        QVERIFY(cTestFile::Bytes(Path(u"a.png"_s)).startsWith("\x89PNG"));
        QVERIFY(cTestFile::Bytes(Path(u"a.svg"_s)).contains("<svg"));
        QVERIFY(cTestFile::Bytes(Path(u"a.csv"_s))
                    .endsWith("Kategorie;Februar 2026;Anteil %\r\nWohnung;300,00;93,75\r\nAuto;20,00;6,25\r\n"));
    }

    void Forecasts()
    {
        const cCliBooks books;
        for (const QString& line :
             {u"add|--amount|320|--category|Wohnung; Strom|--date|2026-02-01|--interval|Einmalig"_s,
              u"accounts|start|Girokonto|50|--date|2026-01-01"_s,
              u"add|--amount|100|--category|Wohnung; Miete|--text|Miete|--interval|Einmalig|--date|+5"_s,
              u"accounts|limit|girokonto|-300"_s}) {
            books.Do(line);
        }
        const QJsonObject json = books.Do(u"forecast|--months|1|--account|girokonto|--json"_s).Object();
        const QJsonObject account = json.value(u"Accounts"_s).toArray().first().toObject();
        QCOMPARE(account.value(u"Balance"_s).toDouble(), -270.0);
        QCOMPARE(account.value(u"Lowest"_s).toDouble(), -370.0);
        QCOMPARE(account.value(u"Days"_s).toArray().at(5).toDouble(), -370.0);
        const QJsonObject warning = json.value(u"Warnings"_s).toArray().first().toObject();
        QCOMPARE(warning.value(u"EntryDescription"_s).toString(), u"Miete"_s);
        QCOMPARE(warning.value(u"Date"_s).toString(), account.value(u"LowestDate"_s).toString());
        QVERIFY(books.Run(u"forecast"_s).Out.contains(u"unter sein Limit"_s));
        books.Do(u"accounts|limit|Girokonto|ohne"_s);
        QVERIFY(!books.Run(u"forecast"_s).Out.contains(u"Limit"_s));
    }

    void Refused_data()
    {
        const cTestRows<QString, int, QString> row("line", "code", "said");
        row("no such report", u"report|mittel"_s, 2, u"durchschnitt, summe, limit"_s);
        row("no month", u"budget|set|Auto; Benzin|März|5"_s, 2, u"2026-03"_s);
        row("limit below zero", u"budget|set|Auto; Benzin|2026-03|-5"_s, 2, u"unter null"_s);
        row("no expense", u"budget|set|Einkommen; Freiberuflich|2026-03|5"_s, 1, u"kein Budget"_s);
        row("no people", u"add|--amount|5|--category|Benzin|--payer|Anna"_s, 1, u"people add"_s);
        row("no person", u"people|rename||Anna"_s, 1, u"people add"_s);
        row("shares of no account", u"people|shares||ohne"_s, 2, u"Gemeinsames"_s);
        row("no share", u"people|shares|Girokonto|ohne=5"_s, 1, u"people add"_s);
        row("no such account", u"report|summe|--account|Nirgends"_s, 1, u"Nirgends"_s);
        row("period and days", u"report|summe|--period|Letzter Monat|--from|2026-01-01"_s, 2, u"--period"_s);
        row("the book itself", u"report|summe|--html|~/Veltrino Kontorelle/data.db"_s, 2, u"Datenbank selbst"_s);
        row("no such folder", u"report|summe|--html|~/nirgends/b.html"_s, 1, u"nirgends"_s);
        row("no such chart", u"chart|torte|--csv|~/x.csv"_s, 2, {});
        row("no file", u"chart|ausgaben"_s, 2, {});
        row("wrong ending", u"chart|ausgaben|--png|~/x.jpg"_s, 2, {});
        row("a chart over the book", u"chart|ausgaben|--csv|~/Veltrino Kontorelle/data.db"_s, 2, {});
        row("no such period of a chart", u"chart|ausgaben|--csv|~/x.csv|--compare|Vorvorjahr"_s, 2, {});
        row("one period only", u"chart|kalender|--csv|~/x.csv|--compare|Vorjahr"_s, 2, {});
        row("backwards", u"chart|ausgaben|--csv|~/x.csv|--from|2026-02-28|--to|2026-02-01"_s, 2, {});
        row("nothing in it", u"chart|ausgaben|--csv|~/x.csv|--from|1990-01-01|--to|1990-01-31"_s, 1, {});
        row("cannot be written", u"chart|ausgaben|--csv|~/fehlt/x.csv|--period|Alle Buchungen"_s, 1, {});
        row("too far ahead", u"forecast|--months|13"_s, 2, {});
    }

    void Refused()
    {
        QFETCH(const QString, line);
        const cCliRun run = Run(line);
        QTEST(run.Code, "code");
        QFETCH(QString, said);
        QVERIFY2(run.Error.contains(said), qPrintable(run.Text()));
        QVERIFY(!QFile::exists(Path(u"x.csv"_s)));
    }

private:
    [[nodiscard]] QJsonObject Json(const QString& line) const { return Do(line + u"|--json"_s).Object(); }
};

TEST_CLASS(testCliReport, QCoreApplication)
#include "testCliReport.moc"
