#include "import/mt940/modMT940.h"
#include "import/mt940/modMT940Repair.h"
#include "import/read/modSepaPurpose.h"
#include "import/read/modStatementText.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

QString Fixture()
{
    return modStatementText::Decode(cTestFile::Bytes(QStringLiteral(TEST_DATA "/mt940/giro.sta")));
}

// A statement of one transaction.
QString With(const QString& transaction, const QString& details)
{
    return u":20:A\r\n:25:10020030/0001234567\r\n:60F:C260101EUR1,00\r\n:61:"_s + transaction + u"\r\n:86:" + details
        + u"\r\n:62F:C260131EUR0001234,5\r\n-\r\n";
}

cImportEntry Single(const QString& text)
{
    return modMT940::Read(text, u"4711"_s).Entries.value(0);
}

} // namespace

class testMT940 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ReadsTransactionLine_data()
    {
        const cTestRows<QString, QString, QString, QString, QString, qint64> row("line", "mark", "amount", "typeCode",
                                                                                 "reference", "value");
        row("entry date and mark", u"0902270227DR0,96NMSCNONREF"_s, u"DR"_s, u"0,96"_s, u"NMSC"_s, u"NONREF"_s, -96);
        row("no entry date", u"200219C65,00NMSC"_s, u"C"_s, u"65,00"_s, u"NMSC"_s, {}, 6500);
        row("cancelled debit counts as debit", u"2002010219RDR1027,25N068A//B"_s, u"RD"_s, u"1027,25"_s, u"N068"_s,
            u"A"_s, -102725);
        row("cancelled credit counts as credit", u"200201RC5,00N068"_s, u"RC"_s, u"5,00"_s, u"N068"_s, {}, 500);
        row("funds code", u"1710111011DF2402,00S   X"_s, u"D"_s, u"2402,00"_s, u"S   "_s, u"X"_s, -240200);
        row("whole amount", u"1105240524D1234,N192"_s, u"D"_s, u"1234,00"_s, u"N192"_s, {}, -123400);
        row("one decimal place", u"131017D620,3NSTON"_s, u"D"_s, u"620,30"_s, u"NSTO"_s, u"N"_s, -62030);
        row("blanks for the entry date", u"200101    D65,00NOVB"_s, u"D"_s, u"65,00"_s, u"NOVB"_s, {}, -6500);
        row("small letters", u"200219d7,50NMSC"_s, u"d"_s, u"7,50"_s, u"NMSC"_s, {}, -750);
    }

    void ReadsTransactionLine()
    {
        QFETCH(QString, line);
        const modMT940::cTransaction transaction =
            modMT940::Parse(With(line, u"x"_s)).Statements.value(0).Transactions.value(0);
        QTEST(transaction.Mark, "mark");
        QTEST(transaction.Amount, "amount");
        QTEST(transaction.TypeCode, "typeCode");
        QTEST(transaction.CustomerReference, "reference");
        QTEST(Single(With(line, u"x"_s)).ImportValue, "value");
    }

    void ReadsDetails()
    {
        const cImportEntry entry = Single(With(u"2601020103DR5,00N005NONREF"_s,
                                               u"106?00123KARTE?109250?20EREF+1?21REFERENZ NOTPROVIDED?22SVWZ+Br\r\not?"
                                               "30HOHEDE01?31DE02?32Bäckerei?33Krume?34011?60Rest?xyz"_s));
        QCOMPARE(entry.ImportAccount, u"1234567"_s);
        QCOMPARE(entry.ImportDate, QDate(2026, 1, 2));
        QCOMPARE(entry.ImportType, u"KARTE z"_s); // a piece without number counts as booking text
        QCOMPARE(entry.ImportPurpose, u"Brot"_s);
        QCOMPARE(entry.ImportBeneficiary, u"Bäckerei Krume"_s);
        QCOMPARE(entry.ImportBeneficiaryAccount, u"DE02"_s);
        QCOMPARE(entry.ImportBeneficiaryBLZ, u"HOHEDE01"_s);
        QCOMPARE(entry.ImportCurrency, u"EUR"_s);
    }

    void TakesPlainDetailsAsBookingText()
    {
        QString text = u":20:A\n:25:7\n:61:260101D1,00N\n:86:GIRO eins\n:61:260101D1,00N\n:86:BEA zwei\n"
                       ":61:260101D1,00N\n:86:KASSE drei\n-\n"_s;
        const cStatementRead read = modMT940::Read(text, {});
        QCOMPARE(read.Entries.size(), 3);
        QCOMPARE(read.Entries.last().ImportType, u"KASSE drei"_s);
        QVERIFY(read.Entries.last().ImportPurpose.isEmpty());
        QVERIFY(!read.ClosingBalance);
    }

    void RewritesSepaPurpose_data()
    {
        const cTestRows<QString, QString> row("purpose", "rewritten");
        row("purpose and originator", u"EREF+12 SVWZ+Miete ABWA+Frau Tann"_s, u"Miete  (Frau Tann)"_s);
        row("any case", u"eref+12svwz+Miete"_s, u"Miete"_s);
        row("three letters", u"BIC+HOHEDE01 IBAN+DE02 SVWZ+Brot"_s, u"Brot"_s);
        row("only references", u"EREF+12 MREF+9"_s, u"EREF+12 MREF+9"_s);
        row("keyword later", u"Rechnung SVWZ+Brot"_s, u"Rechnung SVWZ+Brot"_s);
        row("plus in the text", u"SVWZ+1+1 Kino+Pizza"_s, u"1+1 Kino+Pizza"_s);
        row("none", u" Brot "_s, u"Brot"_s);
    }

    void RewritesSepaPurpose()
    {
        QFETCH(QString, purpose);
        QTEST(modSepaPurpose::Rewrite(purpose), "rewritten");
    }

    void ReadsWholeFile()
    {
        const cStatementRead read = modMT940::Read(Fixture(), {});
        QCOMPARE(read.Entries.size(), 6);
        QVERIFY(read.Problems.isEmpty());
        QCOMPARE(read.ClosingBalance, std::optional<qint64>(520000));
        QCOMPARE(read.Entries.at(1).ImportBeneficiary, u"Hausverwaltung Tannert  und Sohn"_s);
        QCOMPARE(read.Entries.at(1).ImportPurpose, u"Miete Januar Lindenweg  4"_s);
        QCOMPARE(read.Entries.at(4).ImportAccount, u"7654321"_s);
        QCOMPARE(modMT940::Read(Fixture().remove(u'\r'), {}).Entries, read.Entries); // line feeds alone do as well
    }

    void TakesDefaults()
    {
        const cStatementRead read =
            modMT940::Read(u":61:991301D1,00N\n:61:D\n:62F:D26\n-\n-\n:61:260101D1,00N\n"_s, u"4711"_s);
        QCOMPARE(read.Entries.size(), 2);
        QCOMPARE(read.Entries.first().ImportAccount, u"4711"_s);
        QCOMPARE(read.Entries.first().ImportDate, QDate(1001, 1, 1));
        QCOMPARE(Each(read.Problems, &cReadProblem::Line), (QList<int>{1, 2, 3}));
        QVERIFY(!read.NeedsAccount);
        QVERIFY(modMT940::Read(u":25:1\n:61:260101D1,00N\n-\n:61:260101D1,00N\n"_s, {}).NeedsAccount);
    }

    void Balances_data()
    {
        // No cents: that is told.
        const cTestRows<QString, std::optional<qint64>> row("line", "cents");
        row("credit", u"C260131EUR000001,5"_s, 150);
        row("debit", u"D260131EUR12,34"_s, -1234);
        row("only cents", u"C260131EUR,5"_s, 50);
        row("zero", u"C260131EUR0,00"_s, 0);
        row("bare zero", u"C260131EUR0"_s, 0);
        row("without currency", u"C2601311234,50"_s, 123450);
        row("without date", u"DEUR1234,50"_s, -123450);
        row("nothing but the amount", u"C1234567,50"_s, 123456750);
        row("no amount", u"C260131EUR"_s, {});
        row("no currency and no amount", u"C260130"_s, {});
        row("letters", u"C260131EURviel"_s, {});
    }

    void Balances()
    {
        QFETCH(QString, line);
        const cStatementRead read = modMT940::Read(u":20:A\r\n:25:1\r\n:62F:"_s + line, {});
        QTEST(read.ClosingBalance, "cents");
        QCOMPARE(read.Problems.size(), read.ClosingBalance ? 0 : 1);
    }

    void ReadsSecondDetails_data()
    {
        const cTestRows<QString, QString, QString> row("first", "second", "purpose");
        row("keywords in both", u"SVWZ+Miete"_s, u"SVWZ+Januar"_s, u"Miete  Januar"_s);
        row("references first", u"EREF+1"_s, u"SVWZ+Miete"_s, u"Miete"_s);
        row("keywords in the second", u"Miete"_s, u"EREF+1?21SVWZ+Januar"_s, u"Miete Januar"_s);
        row("goes on", u"SVWZ+Miete"_s, u"Januar"_s, u"Miete Januar"_s);
        row("repeats", u"SVWZ+Miete"_s, u"SVWZ+Miete"_s, u"Miete"_s);
    }

    // The counterparty that the second line repeats stays one.
    void ReadsSecondDetails()
    {
        QFETCH(QString, first);
        QFETCH(QString, second);
        const auto details = [](const QString& purpose) {
            return QString(u"105?00LASTSCHRIFT?20"_s + purpose + u"?30HOHEDE01?31DE02?32Tannert"_s);
        };
        const cImportEntry entry =
            Single(With(u"260101D1,00N"_s, QString(details(first) + u"\r\n:86:"_s + details(second))));
        QTEST(entry.ImportPurpose, "purpose");
        QCOMPARE(entry.ImportBeneficiary, u"Tannert"_s);
        QCOMPARE(entry.ImportBeneficiaryAccount, u"DE02"_s);
        QCOMPARE(entry.ImportType, u"LASTSCHRIFT"_s);
    }

    // Details without a transaction end the reading, and since staging comes after reading, nothing of the text is
    // kept.
    void FailsOnDetailsBeforeTransaction()
    {
        const QString good = With(u"260101D1,00N"_s, u"x"_s);
        const cStatementRead read = modMT940::Read(good + u":20:B\r\n:86:zu früh\r\n"_s, {});
        QVERIFY(read.Entries.isEmpty());
        QVERIFY(!read.ClosingBalance);
        QCOMPARE(read.Problems.size(), 1);
        QCOMPARE(read.Problems.first().Line, 9);
        QVERIFY(read.HasStrayDetails && read.Refusal.contains(u":86:"));
        const cStatementRead rest = modMT940::Read(good + u":20:B\r\n:86:zu früh\r\n"_s, {}, eStrayDetails::PassOver);
        QCOMPARE(rest.Refusal, QString());
        QCOMPARE(rest.Entries, modMT940::Read(good, {}).Entries);
        QCOMPARE(rest.Problems.value(0).Line, 9); // told all the same
    }

    void EveryPrefixIsRead()
    {
        const QString text = Fixture();
        const cImportEntryList whole = modMT940::Read(text, {}).Entries;
        for (qsizetype size = 0; size <= text.size(); ++size) {
            const cImportEntryList entries = modMT940::Read(text.left(size), {}).Entries;
            QVERIFY(entries.size() <= whole.size());
            for (qsizetype i = 0; i + 1 < entries.size(); ++i) {
                QCOMPARE(entries.at(i).ImportValue, whole.at(i).ImportValue);
            }
        }
    }

    void Repairs_data()
    {
        const QString wide(61, u'x');
        const cTestRows<QString, QString> row("text", "repaired");
        row("envelope", u"{1:F01X}\r\n{2:O940}\r\n{4:\r\n:20:A\r\n-}\r\n"_s, u":20:A\r\n-\r\n"_s);
        row("envelope on one line",
            u"\x01{1:F01X}{2:O940}{4:\n:20:A\n-}\x03\x01{1:F01X}{4:\n:20:B\n-}{5:{MAC:0}}\x03\n"_s,
            u":20:A\n-\n:20:B\n-\n"_s);
        row("first tag behind the envelope", u"{1:X}{4::20:A\n:25:1\n"_s, u":20:A\n:25:1\n"_s);
        row("separator with control character", u":20:A\n-\x03\n"_s, u":20:A\n-\n"_s);
        row("no separator", u":20:A\r\n:62F:C\r\n:20:B\r\n"_s, u":20:A\r\n:62F:C\r\n-\r\n:20:B\r\n"_s);
        row("separator hidden by text", u":20:A\n-\nABNA\n940\n:20:B\n"_s, u":20:A\n-\nABNA\n940\n-\n:20:B\n"_s);
        row("at signs", u"@@:20:A@@:25:1@@:86:x@@y@@-"_s, u"\r\n:20:A\r\n:25:1\r\n:86:x\r\ny\r\n-"_s);
        row("details of the statement", u":20:A\n:61:x\n:86:y\n:62F:C\n:86:sum\nmore\n-\n"_s,
            u":20:A\n:61:x\n:86:y\n:62F:C\n\n\n-\n"_s);
        row("details behind the sums of the day", u":20:A\n:61:x\n:86:y\n:90D:1EUR5,\n:86:sum\n-\n"_s,
            u":20:A\n:61:x\n:86:y\n:90D:1EUR5,\n\n-\n"_s);
        row("wrapped line with colon", QString(u":86:" + wide + u"\n:KO:NR\n:62F:C\n"),
            QString(u":86:" + wide + u":KO:NR\n:62F:C\n"));
    }

    void Repairs()
    {
        QFETCH(QString, text);
        QTEST(modMT940Repair::Repair(text).Text, "repaired");
    }

    // Texts that look like a fault and are none.
    void LeavesAlone_data()
    {
        const QString wide(61, u'x');
        const QByteArray file = cTestFile::Bytes(QStringLiteral(TEST_DATA "/mt940/giro.sta"));
        const cTestRows<QString> row("text");
        row("whole file", QString::fromUtf8(file));
        row("line feeds only", u":20:A\n:62F:C\n-\n:20:B\n-\n"_s);
        row("brace in the details", u":86:{1:x\n{x}\n-x}\n"_s);
        row("blank lines before a statement", u":20:A\n-\n\n  \n:20:B\n"_s);
        row("related reference", u":20:A\n:21:20:\n"_s);
        row("at signs in a purpose", u":20:A\r\n:86:mail@@x@@:61: y\r\n:62F:C\r\n"_s);
        row("short line before an unknown tag", u":28C:1/1\n:NSF:x\n"_s);
        row("known tag after a wide line", QString(u":86:" + wide + u"\n:61:x\n"));
        row("details without any transaction", u":20:A\n:62F:C\n:86:sum\n-\n:20:B\n:61:x\n:86:y\n"_s);
        row("transaction behind an interim balance", u":20:A\n:61:x\n:62M:C\n:61:x\n:86:y\n"_s);
        row("nothing", {});
    }

    void LeavesAlone()
    {
        QFETCH(QString, text);
        const modMT940Repair::cRepaired repaired = modMT940Repair::Repair(text);
        QCOMPARE(repaired.Text, text);
        QVERIFY(repaired.Lines.isEmpty());
    }

    void KeepsLineNumbers()
    {
        const auto repaired =
            modMT940Repair::Repair(u"{1:\n:20:A\n:86:"_s + QString(61, u'x') + u"\n:KO:\n:20:B\n:25:");
        QCOMPARE(repaired.Lines, (QList<int>{2, 3, 5, 5, 6})); // the fourth is the separator that was put in
    }
};

TEST_CLASS(testMT940, QCoreApplication)
#include "testMT940.moc"
