#include "base/modAmount.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

class testAmount final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void German_data() const
    {
        const cTestRows<QString, bool, qint64> row("text", "isNumber", "cents");
        row("plain", u"12,50"_s, true, 1250);
        row("grouped", u"1.234.567,89"_s, true, 123456789);
        row("grouped without decimals", u"1.234"_s, true, 123400);
        row("sign in front", u"-12,50"_s, true, -1250);
        row("sign behind", u"1.234,56-"_s, true, -123456);
        row("plus behind", u"7,00+"_s, true, 700);
        row("brackets are no sign", u"(12,00)"_s, true, 1200);
        row("no-break space and quotes", u"\"1 234,00\u00A0'"_s, true, 123400);
        row("comma last, as in statements", u"100,"_s, true, 10000);
        row("comma first", u",5"_s, true, 50);
        row("half to the even cent", u"0,125"_s, true, 12);
        row("half below zero", u"-0,125"_s, true, -12);
        row("half to the even cent above", u"1,015"_s, true, 102); // a little less as a double
        row("more than half", u"0,12500000000000000001"_s, true, 13);
        row("less than half", u"12,3449"_s, true, 1234);
        row("empty", {}, false, 0);
        row("sign alone", u"-"_s, false, 0);
        row("two commas", u"1,2,3"_s, false, 0);
        row("point behind the comma", u"1,234.50"_s, false, 0);
        row("sign in the middle", u"1-2"_s, false, 0);
        row("letters", u"12,50 EUR"_s, false, 0);
        row("more digits than can be told", u"-99999999999999999999999,99"_s, false, 0);
        row("what a computer reads as a number", u"1e5"_s, false, 0);
    }

    void German() const
    {
        QFETCH(const QString, text);
        const std::optional<qint64> cents = modAmount::CentsFromGerman(text);
        QTEST(cents.has_value(), "isNumber");
        QTEST(cents.value_or(0), "cents");
    }

    void Cents_data() const
    {
        const cTestRows<double, qint64> row("euros", "cents");
        row("half away from zero", 0.125, 13);
        row("half below zero", -0.125, -13);
        row("a half that has no exact double", 1.005, 101);
        row("large half", 4503599627.375, 450359962738);
        row("below the half", 1.0049, 100);
        row("not a number", std::nan(""), 0);
        row("beyond the range", 1e300, 9'000'000'000'000'000);
    }

    void Cents() const
    {
        QFETCH(const double, euros);
        QTEST(modAmount::ToCents(euros), "cents");
    }

    void StoredText_data() const
    {
        const cTestRows<QString, bool, qint64> row("text", "isNumber", "cents");
        row("as written", u"12.50"_s, true, 1250);
        row("negative below one euro", u"-0.05"_s, true, -5);
        row("older file: comma", u"12,5"_s, true, 1250);
        row("older file: whole euros", u"12"_s, true, 1200);
        row("older file: many decimals", u"9.994999"_s, true, 999);
        row("older file: half away from zero", u"-0.125"_s, true, -13);
        row("older file: exponent", u"1.5E+2"_s, true, 15000);
        row("blanks around", u" 3.00 "_s, true, 300);
        row("nothing behind the point", u"3."_s, true, 300);
        row("point alone", u"."_s, false, 0);
        row("empty", {}, false, 0);
        row("word", u"viel"_s, false, 0);
        row("infinite", u"inf"_s, false, 0);
        row("more digits than fit", u"30055555555555555555"_s, true, 9'000'000'000'000'000);
    }

    void StoredText() const
    {
        QFETCH(const QString, text);
        const std::optional<qint64> read = modAmount::CentsFromText(text);
        QTEST(read.has_value(), "isNumber");
        QTEST(read.value_or(0), "cents");
    }

    void WrittenTextReadsBack() const
    {
        for (const qint64 cents : {qint64{0}, qint64{5}, qint64{-5}, qint64{-1250}, qint64{123456789012}}) {
            QCOMPARE(modAmount::CentsFromText(modAmount::CentsToText(cents)), std::optional(cents));
        }
        QCOMPARE(modAmount::CentsToText(-5), u"-0.05"_s);
        QCOMPARE(modAmount::CentsToText(123450), u"1234.50"_s);
    }
};

TEST_CLASS(testAmount, QCoreApplication)
#include "testAmount.moc"
