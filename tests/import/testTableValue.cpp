#include "import/cell/modTableValue.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class testTableValue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Dates_data()
    {
        const cTestRows<QString, QDate> row("cell", "date");
        row("German", u"03.02.2025"_s, QDate(2025, 2, 3));
        row("short", u"3.2.25"_s, QDate(2025, 2, 3));
        row("two-digit years are of this century", u"01.01.99"_s, QDate(2099, 1, 1));
        row("other signs", u"03-02/2025"_s, QDate(2025, 2, 3));
        row("year first", u"2025-02-03"_s, QDate(2025, 2, 3));
        row("digits alone", u"20250203"_s, QDate(2025, 2, 3));
        row("with time", u"03.02.2025 14:30:59"_s, QDate(2025, 2, 3));
        row("with time and zone", u"2025-02-03T14:30:00+01:00"_s, QDate(2025, 2, 3));
        row("with letters", u"Mo. 03.02.2025"_s, QDate(2025, 2, 3));
        row("month as a word", u"30 Jun 2023"_s, QDate(2023, 6, 30));
        row("German month", u"3. März 2024"_s, QDate(2024, 3, 3));
        row("shortened, with point and time", u"05. Okt. 24, 14:30"_s, QDate(2024, 10, 5));
        row("month before day", u"September 5, 2024"_s, QDate(2024, 9, 5));
        row("strokes and capitals", u"07-MAI-2024"_s, QDate(2024, 5, 7));
        row("weekday in front", u"Do., 1. Februar 2024"_s, QDate(2024, 2, 1));
        row("no month", u"3 Stk 2024"_s, {});
        row("month without such a day", u"31. April 2024"_s, {});
        row("no such day", u"30.02.2025"_s, {});
        row("a number", u"12"_s, {});
        row("many digits", u"999999999999999999999.1.1"_s, {});
        row("empty", {}, {});
    }

    void Dates()
    {
        QFETCH(QString, cell);
        QTEST(modTableValue::ReadDate(cell), "date");
    }

    void OtherOrders()
    {
        QCOMPARE(modTableValue::ReadDate(u"02/03/2025", eDateOrder::MonthDayYear), QDate(2025, 2, 3));
        QCOMPARE(modTableValue::ReadDate(u"25-02-03", eDateOrder::YearMonthDay), QDate(2025, 2, 3));
        QCOMPARE(modTableValue::ReadDate(u"2025-02-03", eDateOrder::MonthDayYear), QDate(2025, 2, 3));
    }

    void Amounts_data()
    {
        QTest::addColumn<QString>("cell");
        QTest::addColumn<QString>("number"); // empty: no number
        const auto row = [](const char* cell, const char* number) {
            QTest::newRow(cell) << QString::fromUtf8(cell) << QString::fromUtf8(number);
        };
        row("1.234,56-", "-1234.56");
        row("(12,00)", "12");
        row("-10,80 €", "-10.8");
        row("EUR 1.234,50", "1234.5");
        row("+$1,327.49", "1327.49");
        row("-$76.00", "-76");
        row("56.78", "56.78");
        row("1.450", "1450");
        row("1'095.00", "1095");
        row("\u22125,00", "-5");
        row("12,50 S", "-12.5");
        row("12,50 H", "12.5");
        row("siehe Anlage 3", "");
        row("", "");
        row("1,2,3 4-5", "");
    }

    void Amounts()
    {
        QFETCH(QString, cell);
        const std::optional<double> amount = modTableValue::ReadAmount(cell, eNumberFormat::Detect);
        QTEST(amount ? QString::number(*amount, 'g', 12) : QString(), "number");
    }

    void FormatOfAColumn_data()
    {
        const cTestRows<QStringList, eNumberFormat> row("cells", "format");
        row("a point with two digits and never a comma", {u"10.50"_s, u"-4.0"_s, u"1"_s}, eNumberFormat::English);
        row("one comma makes points group", {u"10.50"_s, u"1,00"_s}, eNumberFormat::German);
        row("thousands alone", {u"1.450"_s, u"29.000"_s}, eNumberFormat::German);
        row("thousands beside decimals", {u"29.000"_s, u"3.5"_s}, eNumberFormat::English);
        row("both signs", {u"1,234.50"_s, u"5.00"_s}, eNumberFormat::English);
        row("several groups", {u"1.234.567"_s}, eNumberFormat::German);
        row("nothing", {}, eNumberFormat::German);
    }

    void FormatOfAColumn()
    {
        QFETCH(QStringList, cells);
        modTableValue::cNumberVote vote;
        for (const QString& cell : cells) {
            vote.Add(cell);
        }
        QTEST(vote.Decide(), "format");
        QCOMPARE(vote.IsDoubtful(), cells.value(0) == u"1.450");
    }

    void LooksLike()
    {
        QVERIFY(modTableValue::IsDate(u"2025-03-01 15:12:22"));
        QVERIFY(!modTableValue::IsDate(u"Kontostand vom 31.01.2025"));
        QVERIFY(!modTableValue::IsDate(u"12345678"));
        QVERIFY(modTableValue::IsDate(u"3. Mrz 2024"));
        QVERIFY(!modTableValue::IsDate(u"Miete Mai 2024"));
        QVERIFY(modTableValue::IsAmount(u"-48,00"));
        QVERIFY(!modTableValue::IsAmount(u"31.01.2025"));
        QVERIFY(!modTableValue::IsAmount(u"00012345864"));
        QVERIFY(modTableValue::IsIban(u"DE02 1203 0000 0000 2020 51"));
        QVERIFY(!modTableValue::IsIban(u"Deutsche Bahn Fernverkehr"));
        QCOMPARE(modTableValue::IndicatorSign(u"Soll"), -1);
        QCOMPARE(modTableValue::IndicatorSign(u"h"), 1);
        QCOMPARE(modTableValue::IndicatorSign(u"x"), 0);
    }
};

TEST_CLASS(testTableValue, QCoreApplication)
#include "testTableValue.moc"
