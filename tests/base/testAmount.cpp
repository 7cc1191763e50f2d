#include "base/modAmount.h"
#include "support/cTestClass.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class testAmount final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void German_data() const
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isNumber");
        QTest::addColumn<double>("value");
        QTest::newRow("plain") << u"12,50"_s << true << 12.5;
        QTest::newRow("grouped") << u"1.234.567,89"_s << true << 1234567.89;
        QTest::newRow("grouped without decimals") << u"1.234"_s << true << 1234.0;
        QTest::newRow("sign in front") << u"-12,50"_s << true << -12.5;
        QTest::newRow("sign behind") << u"1.234,56-"_s << true << -1234.56;
        QTest::newRow("plus behind") << u"7,00+"_s << true << 7.0;
        QTest::newRow("brackets are no sign") << u"(12,00)"_s << true << 12.0;
        QTest::newRow("no-break space and quotes") << u"\"1 234,00\u00A0'"_s << true << 1234.0;
        QTest::newRow("comma last, as in statements") << u"100,"_s << true << 100.0;
        QTest::newRow("comma first") << u",5"_s << true << 0.5;
        QTest::newRow("empty") << QString() << false << 0.0;
        QTest::newRow("sign alone") << u"-"_s << false << 0.0;
        QTest::newRow("two commas") << u"1,2,3"_s << false << 0.0;
        QTest::newRow("point behind the comma") << u"1,234.50"_s << false << 0.0;
        QTest::newRow("sign in the middle") << u"1-2"_s << false << 0.0;
        QTest::newRow("letters") << u"12,50 EUR"_s << false << 0.0;
        QTest::newRow("what a computer reads as a number") << u"1e5"_s << false << 0.0;
    }

    void German() const
    {
        QFETCH(const QString, text);
        QFETCH(const bool, isNumber);
        QFETCH(const double, value);
        QCOMPARE(modAmount::TryReadGerman(text).has_value(), isNumber);
        QCOMPARE(modAmount::ReadGerman(text), value);
    }

    void Cents_data() const
    {
        QTest::addColumn<double>("euros");
        QTest::addColumn<qint64>("cents");
        QTest::addColumn<qint64>("evenCents");
        QTest::newRow("half away from zero") << 0.125 << qint64{13} << qint64{12};
        QTest::newRow("half below zero") << -0.125 << qint64{-13} << qint64{-12};
        QTest::newRow("a half that has no exact double") << 1.005 << qint64{101} << qint64{100};
        QTest::newRow("large half") << 4503599627.375 << qint64{450359962738} << qint64{450359962738};
        QTest::newRow("below the half") << 1.0049 << qint64{100} << qint64{100};
        QTest::newRow("not a number") << std::nan("") << qint64{0} << qint64{0};
        const qint64 most = 9'000'000'000'000'000;
        QTest::newRow("beyond the range") << 1e300 << most << most;
    }

    void Cents() const
    {
        QFETCH(const double, euros);
        QFETCH(const qint64, cents);
        QCOMPARE(modAmount::ToCents(euros), cents);
        QTEST(modAmount::ToEvenCents(euros), "evenCents");
    }

    void StoredText_data() const
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isNumber");
        QTest::addColumn<qint64>("cents");
        QTest::newRow("as written") << u"12.50"_s << true << qint64{1250};
        QTest::newRow("negative below one euro") << u"-0.05"_s << true << qint64{-5};
        QTest::newRow("older file: comma") << u"12,5"_s << true << qint64{1250};
        QTest::newRow("older file: whole euros") << u"12"_s << true << qint64{1200};
        QTest::newRow("older file: many decimals") << u"9.994999"_s << true << qint64{999};
        QTest::newRow("older file: exponent") << u"1.5E+2"_s << true << qint64{15000};
        QTest::newRow("blanks around") << u" 3.00 "_s << true << qint64{300};
        QTest::newRow("nothing behind the point") << u"3."_s << true << qint64{300};
        QTest::newRow("point alone") << u"."_s << false << qint64{0};
        QTest::newRow("empty") << QString() << false << qint64{0};
        QTest::newRow("word") << u"viel"_s << false << qint64{0};
        QTest::newRow("infinite") << u"inf"_s << false << qint64{0};
        QTest::newRow("more digits than fit") << u"30055555555555555555"_s << true << qint64{9'000'000'000'000'000};
    }

    void StoredText() const
    {
        QFETCH(const QString, text);
        QFETCH(const bool, isNumber);
        QFETCH(const qint64, cents);
        const std::optional<qint64> read = modAmount::CentsFromText(text);
        QCOMPARE(read.has_value(), isNumber);
        QCOMPARE(read.value_or(0), cents);
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
