#include "cCliRun.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

// Charts and the forecast from the command line, where there is no display.
class testCliChart final : public QObject, cCliBooks
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (const QString& line :
             {u"add|--amount|300|--category|Wohnung; Strom|--date|2026-02-01|--interval|Einmalig"_s,
              u"add|--amount|20|--category|Auto; Benzin|--date|2026-02-03|--interval|Einmalig"_s,
              u"accounts|start|Girokonto|50|--date|2026-01-01"_s,
              u"add|--amount|100|--category|Wohnung; Miete|--text|Miete|--interval|Einmalig|--date|+5"_s,
              u"accounts|limit|girokonto|-300"_s}) {
            Do(line);
        }
    }

    void WritesFiles()
    {
        Do(u"chart|ausgaben|--from|2026-02-01|--to|2026-02-28|--png|~/a.png|--svg|~/a.svg|--csv|~/a.csv"_s);
        QVERIFY(cTestFile::Bytes(Path(u"a.png"_s)).startsWith("\x89PNG"));
        QVERIFY(cTestFile::Bytes(Path(u"a.svg"_s)).contains("<svg"));
        QVERIFY(cTestFile::Bytes(Path(u"a.csv"_s))
                    .endsWith("Kategorie;Februar 2026;Anteil %\r\nWohnung;300,00;93,75\r\nAuto;20,00;6,25\r\n"));
    }

    void Forecasts()
    {
        const QJsonObject json = Do(u"forecast|--months|1|--account|girokonto|--json"_s).Object();
        const QJsonObject account = json.value(u"Accounts"_s).toArray().first().toObject();
        QCOMPARE(account.value(u"Balance"_s).toDouble(), -270.0);
        QCOMPARE(account.value(u"Lowest"_s).toDouble(), -370.0);
        QCOMPARE(account.value(u"Days"_s).toArray().at(5).toDouble(), -370.0);
        const QJsonObject warning = json.value(u"Warnings"_s).toArray().first().toObject();
        QCOMPARE(warning.value(u"EntryDescription"_s).toString(), u"Miete"_s);
        QCOMPARE(warning.value(u"Date"_s).toString(), account.value(u"LowestDate"_s).toString());
        QVERIFY(Run(u"forecast"_s).Out.contains(u"unter sein Limit"_s));
        Do(u"accounts|limit|Girokonto|ohne"_s);
        QVERIFY(!Run(u"forecast"_s).Out.contains(u"Limit"_s));
    }

    void Refuses_data()
    {
        const cTestRows<QString, int> row("line", "code");
        row("no such chart", u"chart|torte|--csv|~/x.csv"_s, 2);
        row("no file", u"chart|ausgaben"_s, 2);
        row("wrong ending", u"chart|ausgaben|--png|~/x.jpg"_s, 2);
        row("the book itself", u"chart|ausgaben|--csv|~/Veltrino Kontorelle/data.db"_s, 2);
        row("no such period", u"chart|ausgaben|--csv|~/x.csv|--compare|Vorvorjahr"_s, 2);
        row("one period only", u"chart|kalender|--csv|~/x.csv|--compare|Vorjahr"_s, 2);
        row("backwards", u"chart|ausgaben|--csv|~/x.csv|--from|2026-02-28|--to|2026-02-01"_s, 2);
        row("nothing in it", u"chart|ausgaben|--csv|~/x.csv|--from|1990-01-01|--to|1990-01-31"_s, 1);
        row("cannot be written", u"chart|ausgaben|--csv|~/fehlt/x.csv|--period|Alle Buchungen"_s, 1);
        row("too far ahead", u"forecast|--months|13"_s, 2);
    }

    void Refuses()
    {
        QFETCH(QString, line);
        QTEST(Run(line).Code, "code");
        QVERIFY(!QFile::exists(Path(u"x.csv"_s)));
    }
};

TEST_CLASS(testCliChart, QCoreApplication)
#include "testCliChart.moc"
