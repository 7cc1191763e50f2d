#include "import/stage/modStatementFormat.h"
#include "import/xml/modOfx.h"
#include "import/xml/modOfxRepair.h"
#include "import/xml/modOfxText.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray Fixture()
{
    return cTestFile::Bytes(QStringLiteral(TEST_DATA "/ofx/giro.ofx"));
}

cStatementRead ReadBytes(const QByteArray& bytes, eMissingPurpose missing = eMissingPurpose::Empty,
                         eOfxPayee payee = eOfxPayee::Leave)
{
    cReadOptions options;
    options.OfxPayee = payee;
    options.MissingPurpose = missing;
    return modOfx::Read(modStatementFormat::Source(u"a.ofx"_s, bytes), options);
}

// A bank statement around the given transactions.
QByteArray With(const QByteArray& transactions, const QByteArray& header = "OFXHEADER:100\n")
{
    return header
        + "<OFX>\n<BANKMSGSRSV1>\n<STMTTRNRS>\n<STMTRS>\n<CURDEF>EUR\n<BANKACCTFROM>\n<ACCTID>7\n</BANKACCTFROM>\n"
          "<BANKTRANLIST>\n"
        + transactions + "</BANKTRANLIST>\n</STMTRS>\n</STMTTRNRS>\n</BANKMSGSRSV1>\n</OFX>\n";
}

} // namespace

class testOfx : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AddsEndTags_data()
    {
        const cTestRows<QByteArray, QByteArray> row("text", "xml");
        row("value without end tag", "<OFX>\n<A>1", "<OFX>\n<A>1</A>\n");
        row("value with end tag", "<OFX>\n<A>1</A>", "<OFX>\n<A>1</A>\n");
        row("blanks and returns", "<OFX>\r\n\t <A>1 \r\n</OFX>", "<OFX>\n<A>1</A>\n</OFX>\n");
        row("header is dropped", "DATA:X\n\n<OFX>\n", "<OFX>\n\n");
        row("no document", "<A>1\n", {});
    }

    void AddsEndTags()
    {
        QFETCH(QByteArray, text);
        QTEST(modOfxText::ToXml(text), "xml");
    }

    void RepairsText_data()
    {
        const cTestRows<QByteArray, QByteArray> row("text", "repaired");
        row("tags on one line", "<OFX><A>1<B>2</OFX>", "<OFX>\n<A>1</A>\n<B>2</B>\n</OFX>\n");
        row("empty leaf without end tag", "<OFX><A><B>2</OFX>", "<OFX>\n<A></A>\n<B>2</B>\n</OFX>\n");
        row("empty leaves in several elements", "<X><Y><A></Y><B></X>", "<X>\n<Y>\n<A></A>\n</Y>\n<B></B>\n</X>\n");
        row("single tag", "<X><A/></X>", "<X>\n<A></A>\n</X>\n");
        row("comments and declarations", "<!-- <X> --><?xml a?><X><A>1<!-- c -->2</X>", "<X>\n<A>12</A>\n</X>\n");
        row("ampersands", "<A>a & b &amp; &#228; &nbsp;", "<A>a &amp; b &amp; &#228; &amp;nbsp;</A>\n");
        row("less than", "<A>1 < 2 <3", "<A>1 &lt; 2 &lt;3</A>\n");
        row("character data", "<A><![CDATA[<b> & &amp;]]>", "<A>&lt;b> &amp; &amp;amp;</A>\n");
        row("value on two lines", "<A>one\r\ntwo\n", "<A>one  two</A>\n");
        row("end tag too many", "<X></B></X>", "<X>\n</X>\n");
        row("small letters", "<ofx><a>1</a></ofx>", "<OFX>\n<A>1</A>\n</OFX>\n");
    }

    void RepairsText()
    {
        QFETCH(QByteArray, text);
        QTEST(modOfxRepair::Repair(text), "repaired");
    }

    void ReadsAmounts_data()
    {
        const cTestRows<QString, QString> row("amount", "german");
        row("point", u"-23.10"_s, u"-23,10"_s);
        row("comma", u"-23,10"_s, u"-23,10"_s);
        row("grouped with points", u"1.234,50"_s, u"1234,50"_s);
        row("grouped with commas", u"1,234.50"_s, u"1234,50"_s);
        row("millions", u"1.234.567"_s, u"1234567"_s);
        row("whole", u"+5"_s, u"+5"_s);
    }

    void ReadsAmounts()
    {
        QFETCH(QString, amount);
        QTEST(modOfxText::ToGermanAmount(amount), "german");
    }

    void ReadsBankAndCard()
    {
        const cStatementRead read = ReadBytes(Fixture());
        QCOMPARE(read.Refusal, QString());
        QCOMPARE(read.Entries.size(), 4);
        const cImportEntry& first = read.Entries.first();
        QCOMPARE(first.ImportAccount, u"0001234567"_s);
        QCOMPARE(first.ImportDate, QDate(2026, 1, 2));
        QCOMPARE(first.ImportPurpose, u"Brot & Brötchen"_s);
        QCOMPARE(first.ImportCurrency, u"EUR"_s);
        QCOMPARE(first.ImportValue, -2310);
        QVERIFY(first.ImportType.isEmpty() && first.ImportBeneficiary.isEmpty());
        QVERIFY(first.ImportBeneficiaryAccount.isEmpty() && first.ImportBeneficiaryBLZ.isEmpty());
        QCOMPARE(read.Entries.at(1).ImportValue, 123450);
        QCOMPARE(read.Entries.at(2).ImportPurpose, u"Kino <3 & Popcorn"_s);
        QCOMPARE(read.Entries.at(3).ImportAccount, u"4711XXXX0815"_s);
        QCOMPARE(read.Entries.at(3).ImportCurrency, u"USD"_s);
        QCOMPARE(read.ClosingBalance, std::optional<qint64>(-999));
        QCOMPARE(read.Balances.first(), (cAccountBalance{u"0001234567"_s, 120640, QDate(2026, 1, 31)}));
        QVERIFY(read.Problems.isEmpty() && !read.NeedsAccount);
    }

    // Somebody else may have decoded the text already.
    void ReadsTextWithoutBytes()
    {
        const cStatementRead read = modOfx::Read({u"a.ofx"_s, {}, QString::fromUtf8(Fixture())}, {});
        QCOMPARE(read.Entries, ReadBytes(Fixture()).Entries);
    }

    void NameStandsInForMissingPurpose()
    {
        QVERIFY(ReadBytes(Fixture()).Entries.at(1).ImportPurpose.isEmpty());
        const cStatementRead read = ReadBytes(Fixture(), eMissingPurpose::Name);
        QCOMPARE(read.Entries.at(0).ImportPurpose, u"Brot & Brötchen"_s);
        QCOMPARE(read.Entries.at(1).ImportPurpose, u"Lohnbüro Tann"_s);
    }

    void TakesCounterparty_data()
    {
        // account: and bank
        const cTestRows<QByteArray, QString, QString> row("fields", "name", "account");
        row("name", "<NAME>Krume & Sohn<MEMO>Brot", u"Krume & Sohn"_s, u" "_s);
        row("name in the middle", "<NAME>REWE 12<MEMO>Karte REWE 12 Talheim", u"REWE 12"_s, u" "_s);
        row("the purpose once more", "<NAME>Krume<MEMO>krume", {}, u" "_s);
        row("the purpose cut off", "<NAME>Beitrag 2026  Turnv<MEMO>Beitrag 2026 Turnverein", {}, u" "_s);
        row("no purpose but the name", "<NAME>Krume", {}, u" "_s);
        row("the bank's word", "<NAME>SEPA-Lastschrift<MEMO>Strom", {}, u" "_s);
        row("a number", "<NAME>0815<MEMO>Strom", {}, u" "_s);
        row("payee with account",
            "<MEMO>Strom<PAYEE><NAME>Stadtwerke<CITY>Talheim</PAYEE><BANKACCTTO><BANKID>10020030<ACCTID>77"
            "</BANKACCTTO>",
            u"Stadtwerke"_s, u"77 10020030"_s);
    }

    void TakesCounterparty()
    {
        QFETCH(QByteArray, fields);
        const cStatementRead read = ReadBytes(With("<STMTTRN><DTPOSTED>20260102<TRNAMT>-1" + fields + "</STMTTRN>\n"),
                                              eMissingPurpose::Name, eOfxPayee::Take);
        const cImportEntry row = read.Entries.value(0);
        QTEST(row.ImportBeneficiary, "name");
        QTEST(QString(row.ImportBeneficiaryAccount + u' ' + row.ImportBeneficiaryBLZ), "account");
    }

    void HonoursCharacterSetOfHeader_data()
    {
        const cTestRows<QByteArray, QByteArray> row("charset", "umlaut");
        row("Windows", "1252", "\xFC");
        row("DOS", "850", "\x81");
        row("UTF-8 all the same", "1252", "\xC3\xBC");
    }

    void HonoursCharacterSetOfHeader()
    {
        QFETCH(QByteArray, charset);
        QFETCH(QByteArray, umlaut);
        const QByteArray bytes =
            With("<STMTTRN>\n<DTPOSTED>20260102\n<TRNAMT>1.00\n<MEMO>Lohnb" + umlaut + "ro\n</STMTTRN>\n",
                 "OFXHEADER:100\nCHARSET:" + charset + "\n\n");
        QCOMPARE(ReadBytes(bytes).Entries.value(0).ImportPurpose, u"Lohnbüro"_s);
    }

    // Every transaction in the text is read or told, wherever it stands.
    void LosesNoTransaction_data()
    {
        const cTestRows<QByteArray, int, int> row("text", "entries", "skipped");
        const QByteArray one = "<STMTTRN><DTPOSTED>20260102<TRNAMT>1</STMTTRN>";
        const QByteArray open = "<STMTTRN><DTPOSTED>20260102<TRNAMT>1";
        const QByteArray list = With(one + one);
        row("no list", QByteArray(list).replace("<BANKTRANLIST>", "").replace("</BANKTRANLIST>", ""), 2, 0);
        row("no end of the list", QByteArray(list).replace("</BANKTRANLIST>", ""), 2, 0);
        row("list ends too early", With(one + "</BANKTRANLIST>" + one), 2, 0);
        row("no ends of transactions", With(open + open), 2, 0);
        row("no ends at all, then the balance",
            With(open + open + "<LEDGERBAL><BALAMT>7</LEDGERBAL>").replace("</BANKTRANLIST>", ""), 2, 0);
        row("outside of the statement",
            QByteArray(list).replace("</BANKMSGSRSV1>", QByteArray(one + "</BANKMSGSRSV1>")), 2, 1);
        row("two documents", QByteArray(list + list), 4, 0);
        row("no amount", With(one + "<STMTTRN><DTPOSTED>20260102<TRNAMT>viel</STMTTRN>"), 1, 1);
        row("no day", With(one + "<STMTTRN><DTPOSTED>2026<TRNAMT>1</STMTTRN>"), 1, 1);
        row("not a word of it", With(one + "<STMTTRN>*</STMTTRN>"), 1, 1);
    }

    void LosesNoTransaction()
    {
        QFETCH(const QByteArray, text);
        const cStatementRead read = ReadBytes(text);
        QCOMPARE(read.Refusal, QString());
        QTEST(static_cast<int>(read.Entries.size()), "entries");
        QTEST(static_cast<int>(read.Skipped.size()), "skipped");
        QCOMPARE(read.ClosingBalance.has_value(), text.contains("BALAMT"));
    }

    void RefusesWithTheCount()
    {
        const cStatementRead read =
            ReadBytes("OFXHEADER:100\n<OFX><INVSTMT><STMTTRN><TRNAMT>1</STMTTRN></INVSTMT></OFX>");
        QVERIFY2(read.Refusal.endsWith(u"Betroffen: 1 Umsatz."), qPrintable(read.Refusal));
    }

    void AsksForMissingAccount()
    {
        const QByteArray bytes = With("<STMTTRN><DTPOSTED>20260102<TRNAMT>1</STMTTRN>").replace("<ACCTID>7\n", "");
        QVERIFY(ReadBytes(bytes).NeedsAccount);
    }

    // A file that was cut off is refused as a whole, wherever it ends.
    void EveryPrefixIsRefused()
    {
        const QByteArray bytes = Fixture();
        for (qsizetype size = bytes.indexOf("<OFX>"); size < bytes.size() - 8; ++size) {
            const cStatementRead read = ReadBytes(bytes.left(size));
            QVERIFY2(read.Entries.isEmpty() && !read.Refusal.isEmpty(), bytes.left(size).right(20).constData());
        }
    }

    // The bare conversion does not read what only the repair makes readable.
    void BareConversionRefusesSeveralTagsOnLine()
    {
        const QByteArray bytes = With("<STMTTRN><DTPOSTED>20260102<TRNAMT>1</STMTTRN>\n");
        QVERIFY(!modOfx::ReadXml(modOfxText::ToXml(bytes), {}).Refusal.isEmpty());
        const QByteArray lines = With("<STMTTRN>\n<DTPOSTED>20260102\n<TRNAMT>1\n</STMTTRN>\n");
        QCOMPARE(modOfx::ReadXml(modOfxText::ToXml(lines), {}).Entries.size(), 1);
    }
};

TEST_CLASS(testOfx, QCoreApplication)
#include "testOfx.moc"
