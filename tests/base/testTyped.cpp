#include "base/modAmount.h"
#include "base/modDate.h"
#include "base/modDayText.h"
#include "base/modSum.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 nothing = -999'999; // no number

} // namespace

// What people type into the fields for amounts and days.
class testTyped final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Sums_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<qint64>("cents");
        const auto row = [](const char* text, qint64 cents) {
            QTest::newRow(text) << QString::fromUtf8(text) << cents;
        };
        row("12,50+3,99*2-1", 1948);
        row("(10+5)*2/3", 1000);
        row("2*-3", -600);
        row("5--3", 800);
        row("10-3-2", 500);
        row("100/2/5", 1000);
        row("10/3", 333);
        row("0,01/2", 1);
        row("-0,01/2", -1);
        row("1.005", 100500);
        row("1,789*40", 7156); // a price of a litre
        row("12.50", 1250);
        row("1.5", 150);
        row("0.125", 13);
        row("1234.567", 123457);
        row("1.234.567,8", 123456780);
        row("1,234.50", 123450);
        row("1,234,567", 123456700);
        row("3 × 4,20 €", 1260);
        row(".5", 50);
        row("12,50−", -1250);
        row("(5)", 500); // a calculation
        row("(5,00 €)", -500);
        row("-1.234,50 kr.", -123450);
        row("12 Euro", 1200);
        for (const char* wrong :
             {"",        "€",        "zwölf",     "12+*3", "(1+2", "1+2)", "5/0",  "0/0", "1.2.3",
              "12.34,5", "1,2,3",    "1,23.45,6", "--5",   "3k",   "EUR",  "5+3-", "1e5", "99999999999999",
              "1,005",   "5+12,345", "-1,234"}) { // a thousandth of a euro, or a grouped thousand?
            row(wrong, nothing);
        }
    }

    void Sums()
    {
        QFETCH(QString, text);
        QTEST(modSum::Evaluate(text).value_or(nothing), "cents");
    }

    void SumsWithPoint_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<qint64>("cents");
        const auto row = [](const char* text, qint64 cents) {
            QTest::newRow(text) << QString::fromUtf8(text) << cents;
        };
        row("1,234", 123400);
        row("1,234.5", 123450);
        row("1'234.50", 123450);
        row("1’234.50", 123450);
        row("£1,234.50", 123450);
        row("12+3.50", 1550);
        row("12,50", 1250); // no group has two digits
        row("0.125", 13);
        row("1.234", nothing);
    }

    void SumsWithPoint()
    {
        QFETCH(QString, text);
        QTEST(modSum::Evaluate(text, eDecimal::Point).value_or(nothing), "cents");
    }

    void SaysWhatIsWrong()
    {
        QCOMPARE(modSum::Fault(u"1.234"_s, eDecimal::Point),
                 u"'1.234' ist nicht eindeutig. Bitte schreiben Sie 1234.00 oder 1.23."_s);
        QCOMPARE(modSum::Fault(u" zwölf"_s, eDecimal::Comma), u"'zwölf' ist kein Betrag."_s);
    }

    void PlainAmountsAsTheReader_data()
    {
        const cTestRows<QString> row("text");
        for (const char* text : {"0", "12", "12,5", "12,50", "-12,50", "12,50-", "+12,50", "12,50+", "1.234,50",
                                 "1.234", "1.234.567", ",50", "5,", " 1 234,50 ", "0,285", "(12,50)"}) {
            row(text, QString::fromUtf8(text));
        }
    }

    void PlainAmountsAsTheReader()
    {
        QFETCH(QString, text);
        QCOMPARE(modSum::Evaluate(text), modAmount::CentsFromGerman(text, modAmount::eHalf::AwayFromZero));
    }

    void Days_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QDate>("day");
        const auto row = [](const char* text, QDate day) { QTest::newRow(text) << QString::fromUtf8(text) << day; };
        row("3", QDate(2026, 3, 3));
        row("31.", QDate(2026, 3, 31)); // still to come, and all the same in this month
        row("3.5", QDate(2026, 5, 3));
        row(" 3. 5. ", QDate(2026, 5, 3));
        row("3,5", QDate(2026, 5, 3));
        row("3.5.26", QDate(2026, 5, 3));
        row("03.05.1999", QDate(1999, 5, 3));
        row("0305", QDate(2026, 5, 3));
        row("030527", QDate(2027, 5, 3));
        row("03052027", QDate(2027, 5, 3));
        row("2026-05-03", QDate(2026, 5, 3));
        row("+7", QDate(2026, 3, 22));
        row("-15", QDate(2026, 2, 28));
        row("Heute", QDate(2026, 3, 15));
        row("gestern", QDate(2026, 3, 14));
        row("vorgestern", QDate(2026, 3, 13));
        row("morgen", QDate(2026, 3, 16));
        row("ÜBERMORGEN", QDate(2026, 3, 17));
        row("uebermorgen", QDate(2026, 3, 17));
        for (const char* wrong : {"", "0", "32", "30.2.", "3.13.", "3.5.6", "3..5", "305", ".", "+", "+x", "+99999",
                                  "bald", "3.5.26.1", "12345678901"}) {
            row(wrong, QDate());
        }
    }

    void Days()
    {
        QFETCH(QString, text);
        QTEST(modDayText::Read(text, QDate(2026, 3, 15)), "day");
    }

    void DaysOfOtherForms_data()
    {
        using enum cDayForm::eOrder;
        QTest::addColumn<cDayForm>("form");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QDate>("day");
        const auto row = [](cDayForm form, const char* text, QDate day) {
            QTest::addRow("%d %c %s", static_cast<int>(form.Order), form.Separator, text)
                << form << QString::fromUtf8(text) << day;
        };
        const cDayForm british{DayFirst, u'/'};
        row(british, "03/04/2026", QDate(2026, 4, 3));
        row(british, "3/4", QDate(2026, 4, 3));
        row(british, "3.4.26", QDate(2026, 4, 3));
        row(british, "0304", QDate(2026, 4, 3));
        row(british, "4/13/2026", QDate());
        const cDayForm american{MonthFirst, u'/'};
        row(american, "03/04/2026", QDate(2026, 3, 4));
        row(american, "3/4", QDate(2026, 3, 4));
        row(american, "0304", QDate(2026, 3, 4));
        row(american, "030427", QDate(2027, 3, 4));
        row(american, "7", QDate(2026, 3, 7));
        row(american, "2026-04-03", QDate(2026, 4, 3));
        row(american, "3.4.2026", QDate()); // the third of April for whoever writes points
        row(american, "13/4/2026", QDate());
        const cDayForm swedish{YearFirst, u'-'};
        row(swedish, "04-03", QDate(2026, 4, 3));
        row(swedish, "26-4-3", QDate(2026, 4, 3));
        row(swedish, "20270403", QDate(2027, 4, 3));
        row(swedish, "270403", QDate(2027, 4, 3));
        row({YearFirst, u'.'}, "2027.4.3.", QDate(2027, 4, 3));
        row({}, "3/4/2026", QDate()); // either
    }

    void DaysOfOtherForms()
    {
        QFETCH(cDayForm, form);
        QFETCH(QString, text);
        modDate::UseForm(form);
        const QDate day = modDayText::Read(text, QDate(2026, 3, 15));
        modDate::UseForm({});
        QTEST(day, "day");
    }

    void ShownDaysAreReadBack()
    {
        using enum cDayForm::eOrder;
        const QDate today(2026, 3, 15);
        for (const cDayForm::eOrder order : {DayFirst, MonthFirst, YearFirst}) {
            for (const char16_t separator : {u'.', u'/', u'-'}) {
                modDate::UseForm({order, separator});
                for (QDate day(2026, 1, 1); day.year() == 2026; day = day.addDays(1)) {
                    const QString text = modDate::ToText(day);
                    const QString brief = modDate::ToShortText(day);
                    const bool isBoth = modDayText::Read(text, today) == day && modDayText::Read(brief, today) == day;
                    modDate::UseForm(isBoth ? modDate::Form() : cDayForm());
                    QVERIFY2(isBoth, qPrintable(text + u' ' + brief));
                }
            }
        }
        modDate::UseForm({});
    }
};

TEST_CLASS(testTyped, QCoreApplication)
#include "testTyped.moc"
