#include "import/mt940/modMT940.h"
#include "import/stage/modStatementArchive.h"
#include "import/stage/modStatementFormat.h"
#include "import/xml/modCamt.h"
#include "import/xml/modCamtText.h"
#include "import/xml/modXmlPieces.h"
#include "import/zip/modZip.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray Fixture(const QString& name)
{
    return cTestFile::Bytes(QStringLiteral(TEST_DATA "/camt/") + name);
}

cStatementRead ReadBytes(const QByteArray& bytes, const QString& account = {})
{
    cReadOptions options;
    options.Account = account;
    const cStatementSource source = modStatementFormat::Source(u"a.xml"_s, bytes);
    return modStatementArchive::IsArchive(source) ? modStatementArchive::Read(source, options)
                                                  : modCamt::Read(source, options);
}

// A camt.052 report, in the old form of the elements, around the given entries.
QByteArray With(const QByteArray& entries)
{
    return "<Document><BkToCstmrAcctRpt><Rpt><Acct><Id><Othr><Id>7</Id></Othr></Id></Acct>" + entries
        + "</Rpt></BkToCstmrAcctRpt></Document>";
}

QByteArray Entry(const QByteArray& amount, const QByteArray& mark, const QByteArray& rest)
{
    return "<Ntry><Amt Ccy=\"EUR\">" + amount + "</Amt><CdtDbtInd>" + mark
        + "</CdtDbtInd><Sts>BOOK</Sts><BookgDt><Dt>2026-01-02</Dt></BookgDt>" + rest + "</Ntry>";
}

QByteArray Detail(const QByteArray& inner)
{
    return "<TxDtls>" + inner + "</TxDtls>";
}

const QByteArray bothSides =
    "<RltdPties><Dbtr><Nm>Zahler</Nm></Dbtr><DbtrAcct><Id><IBAN>DE1</IBAN></Id></DbtrAcct>"
    "<Cdtr><Nm>Empf\xC3\xA4nger</Nm></Cdtr><CdtrAcct><Id><IBAN>DE2</IBAN></Id></CdtrAcct></RltdPties>"
    "<RltdAgts><DbtrAgt><FinInstnId><BIC>ZAHLDEFF</BIC></FinInstnId></DbtrAgt>"
    "<CdtrAgt><FinInstnId><ClrSysMmbId><MmbId>20030040</MmbId></ClrSysMmbId></FinInstnId></CdtrAgt></RltdAgts>";

} // namespace

class testCamt : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The same month as the bank hands it out in both formats: whoever reads both gets no booking twice.
    void EqualsMt940()
    {
        const cStatementRead camt = ReadBytes(Fixture(u"giro.xml"_s));
        const cStatementRead swift = modMT940::Read(QString::fromUtf8(Fixture(u"giro.sta"_s)), {});
        QCOMPARE(camt.Entries.size(), 3);
        QCOMPARE(swift.Entries.size(), 3);
        for (qsizetype i = 0; i < 3; ++i) {
            QVERIFY(camt.Entries.at(i).isEqualButBlanks(swift.Entries.at(i)));
            QCOMPARE(camt.Entries.at(i).ImportType, swift.Entries.at(i).ImportType);
        }
        QCOMPARE(camt.ClosingBalance, std::optional<qint64>(-1234));
        QCOMPARE(camt.Balances.last(), (cAccountBalance{u"DE02100200300001234567"_s, -1234, QDate(2026, 1, 31)}));
        QVERIFY(camt.Problems.isEmpty());
        QCOMPARE(camt.Skipped.size(), 1);
        QCOMPARE(camt.Skipped.first().Kind, eSkipped::Pending);
        QCOMPARE(camt.Skipped.first().Entry.ImportPurpose, u"Kiosk"_s);
        QCOMPARE(camt.Skipped.first().Reason.Line, 46);
    }

    // In the character set that the bytes have, whatever the first line says; or already decoded by somebody else.
    void ReadsAnyCharacterSet()
    {
        const QString text = QString::fromUtf8(Fixture(u"giro.xml"_s));
        const cImportEntryList entries = ReadBytes(Fixture(u"giro.xml"_s)).Entries;
        QCOMPARE(ReadBytes(text.toLatin1()).Entries, entries);
        QCOMPARE(ReadBytes("\xEF\xBB\xBF" + text.toUtf8()).Entries, entries);
        QCOMPARE(modCamt::Read({u"a.xml"_s, {}, text}, {}).Entries, entries);
    }

    void PrefixesDoNotCount()
    {
        QByteArray prefixed = Fixture(u"giro.xml"_s);
        prefixed.replace("</", "</n:").replace("<", "<n:").replace("<n:/n:", "</n:").replace("<n:?", "<?");
        prefixed.replace("xmlns=", "xmlns:n=");
        QVERIFY(prefixed.contains("<n:Ntry>"));
        QCOMPARE(ReadBytes(prefixed).Entries, ReadBytes(Fixture(u"giro.xml"_s)).Entries);
    }

    void ReadsDays_data()
    {
        const cTestRows<QByteArray, QDate> row("day", "read");
        const QDate day(2026, 9, 1);
        row("day", "<Dt>2026-09-01</Dt>", day);
        row("zone", "<Dt>2026-09-01+02:00</Dt>", day);
        row("western zone", "<Dt>2026-09-01-05:00</Dt>", day);
        row("Greenwich", "<Dt>2026-09-01Z</Dt>", day);
        row("time and zone", "<DtTm>2026-09-01T23:30:00.000+02:00</DtTm>", day);
        row("time beside an empty day", "<Dt/><DtTm>2026-09-01T08:00:00Z</DtTm>", day);
        row("no day of the calendar", "<Dt>2026-02-30</Dt>", {});
        row("something behind it", "<Dt>2026-09-015</Dt>", {});
    }

    // A row without a day is told and not staged: on what day should it be?
    void ReadsDays()
    {
        QFETCH(const QByteArray, day);
        QFETCH(const QDate, read);
        const QByteArray entry = Entry("5.00", "DBIT", {}).replace("<Dt>2026-01-02</Dt>", day);
        const QByteArray balance =
            "<Bal><Tp><CdOrPrtry><Cd>CLBD</Cd></CdOrPrtry></Tp><Amt>1.00</Amt><Dt>" + day + "</Dt></Bal>";
        const cStatementRead statement = ReadBytes(With(balance + entry));
        QCOMPARE(statement.Balances.value(0).Date, read);
        if (read.isValid()) {
            QCOMPARE(statement.Entries.value(0).ImportDate, read);
        } else {
            QCOMPARE(statement.Entries.size(), 0);
            QCOMPARE(statement.Skipped.value(0).Kind, eSkipped::Unreadable);
        }
    }

    void TakesCounterpartyBySide_data()
    {
        const cTestRows<QByteArray, QByteArray, QByteArray, QString, QString, qint64> row("amount", "mark", "before",
                                                                                          "name", "bank", "value");
        const QString creditor = u"Empfänger DE2"_s;
        const QString debtor = u"Zahler DE1"_s;
        row("out", "5.00", "DBIT", {}, creditor, u"20030040"_s, -500);
        row("in", "5.00", "CRDT", {}, debtor, u"ZAHLDEFF"_s, 500);
        row("money comes back", "5.00", "CRDT", "<RvslInd>true</RvslInd>", creditor, u"20030040"_s, 500);
        row("five decimals", "8.85000", "CRDT", {}, debtor, u"ZAHLDEFF"_s, 885);
    }

    void TakesCounterpartyBySide()
    {
        QFETCH(QByteArray, amount);
        QFETCH(QByteArray, mark);
        QFETCH(QByteArray, before);
        const QByteArray entry = Entry(amount, mark, before + "<NtryDtls>" + Detail(bothSides) + "</NtryDtls>");
        const cImportEntry read = ReadBytes(With(entry)).Entries.value(0);
        QTEST(QString(read.ImportBeneficiary + u' ' + read.ImportBeneficiaryAccount), "name");
        QTEST(read.ImportBeneficiaryBLZ, "bank");
        QTEST(read.ImportValue, "value");
        QCOMPARE(read.ImportAccount, u"7"_s);
    }

    void NeverTakesOwnAccountAsCounterparty()
    {
        const QByteArray entry = Entry("5.00", "CRDT", "<NtryDtls>" + Detail(bothSides) + "</NtryDtls>");
        const cStatementRead read = ReadBytes(With(entry).replace("<Id>7</Id>", "<Id>DE1</Id>"));
        QCOMPARE(read.Entries.value(0).ImportBeneficiaryAccount, u"DE2"_s);
    }

    void SplitsBatch_data()
    {
        const cTestRows<QByteArray, QList<qint64>, int> row("details", "values", "problems");
        const QByteArray three = R"(<Amt Ccy="EUR">3.00</Amt>)";
        const QByteArray two = R"(<AmtDtls><TxAmt><Amt Ccy="EUR">2.00</Amt></TxAmt></AmtDtls>)";
        const QByteArray back = R"(<Amt Ccy="EUR">1.00</Amt><CdtDbtInd>CRDT</CdtDbtInd>)";
        row("sum agrees", QByteArray(Detail(three) + Detail(two)), {-300, -200}, 0);
        row("sum of both signs", QByteArray(Detail(three) + Detail(three) + Detail(back)), {-300, -300, 100}, 0);
        row("sum differs", QByteArray(Detail(three) + Detail(three)), {-500}, 1);
        row("an amount is missing", QByteArray(Detail(three) + Detail({})), {-500}, 1);
        row("another currency", QByteArray(Detail(three) + Detail(two)).replace("EUR", "USD"), {-500}, 1);
        row("single detail says otherwise", Detail(three), {-500}, 0);
    }

    void SplitsBatch()
    {
        QFETCH(QByteArray, details);
        QFETCH(int, problems);
        const cStatementRead read = ReadBytes(With(Entry("5.00", "DBIT", "<NtryDtls>" + details + "</NtryDtls>")));
        QTEST(Each(read.Entries, &cImportEntry::ImportValue), "values");
        QCOMPARE(read.Problems.size(), problems);
    }

    void WholeBatchKeepsTexts()
    {
        const QByteArray details =
            Detail("<RmtInf><Ustrd>Lohn Tann</Ustrd></RmtInf>") + Detail("<AddtlTxInf>Lohn Linde</AddtlTxInf>");
        const cStatementRead read = ReadBytes(With(Entry("5.00", "DBIT", "<NtryDtls>" + details + "</NtryDtls>")));
        QCOMPARE(read.Entries.value(0).ImportPurpose, u"Lohn Tann Lohn Linde"_s);
    }

    void WritesPurposeAsMt940_data()
    {
        const cTestRows<QStringList, QString, QString> row("lines", "endToEnd", "purpose");
        row("references are left out", {u"Miete"_s}, u"E1"_s, u"Miete"_s);
        row("references only when there is nothing else", {}, u"E1"_s, u"EREF+E1"_s);
        row("lines that are subfields already", {u"EREF+E1"_s, u"SVWZ+Rechnung vom 12.03.202"_s, u"6"_s}, u"E1"_s,
            u"Rechnung vom 12.03.202 6"_s);
        row("keywords inside of the text", {u"EREF+E1 SVWZ+Miete fuer den Monat Januar 2026"_s}, u"E1"_s,
            u"Miete fuer den Monat Januar 2026"_s);
        row("a long text stays whole", {QString(400, u'x')}, {}, QString(400, u'x'));
        row("nothing", {}, {}, {});
    }

    void WritesPurposeAsMt940()
    {
        QFETCH(QStringList, lines);
        QFETCH(QString, endToEnd);
        modCamtText::cPurpose purpose;
        purpose.Lines = lines;
        purpose.EndToEnd = endToEnd;
        QTEST(modCamtText::Purpose(purpose), "purpose");
    }

    void ReadsArchive()
    {
        const QByteArray zip = Fixture(u"auszuege.zip"_s);
        QCOMPARE(modStatementFormat::Detect(modStatementFormat::Source(u"a.zip"_s, zip)), eStatementFormat::Archive);
        const cStatementRead read = ReadBytes(zip);
        QCOMPARE(read.Refusal, QString());
        QCOMPARE(read.Entries, ReadBytes(Fixture(u"giro.xml"_s)).Entries);
        QCOMPARE(read.ClosingBalance, std::optional<qint64>(-2000)); // of the later file, which stands first
    }

    void LimitsUnpackedSize()
    {
        const QByteArray zip = Fixture(u"auszuege.zip"_s);
        const QString name = modZip::Names(zip).value(1);
        const qsizetype size = Fixture(u"giro.xml"_s).size();
        QCOMPARE(name, u"2026-01/januar.xml"_s);
        QVERIFY(modZip::Read(zip, name, size));
        QVERIFY(!modZip::Read(zip, name, size - 1));
        QVERIFY(!modZip::Read(zip, u"februar"_s));
        QByteArray lying = zip; // says in its directory that the file is smaller than what comes out
        lying[zip.lastIndexOf(name.toLatin1()) - 46 + 24] = 1;
        QVERIFY(!modZip::Read(lying, name));
    }

    void RefusesDamagedArchives()
    {
        const QByteArray zip = Fixture(u"auszuege.zip"_s);
        for (qsizetype size = 0; size < zip.size() - 8; ++size) { // the last bytes carry nothing that is needed
            QVERIFY(modZip::Names(zip.left(size)).isEmpty());
        }
        int refused = 0;
        for (qsizetype i = 60; i < 500; ++i) {
            QByteArray damaged = zip;
            damaged[i] = static_cast<char>(damaged[i] ^ 0x55);
            const cStatementRead read = ReadBytes(damaged);
            QVERIFY(read.Refusal.isEmpty() || read.Entries.isEmpty());
            refused += read.Refusal.isEmpty() ? 0 : 1;
        }
        QVERIFY(refused > 400);
    }

    void RefusesWhatIsNoStatement_data()
    {
        const cTestRows<QByteArray> row("xml");
        row("another message", "<Document><CstmrCdtTrfInitn/></Document>");
        row("no XML", "BkToCstmrStmt");
        row("entry in pieces", With("<Ntry><Amt></Ntry>"));
        row("entry without end", With("<Ntry><Amt>1</Amt>"));
    }

    void RefusesWhatIsNoStatement()
    {
        QFETCH(QByteArray, xml);
        const cStatementRead read = ReadBytes(xml);
        QVERIFY(!read.Refusal.isEmpty());
        QVERIFY(read.Entries.isEmpty() && !read.ClosingBalance);
    }

    void EveryPrefixIsRefused()
    {
        const QByteArray xml = Fixture(u"giro.xml"_s).trimmed();
        for (qsizetype size = 1; size < xml.size(); ++size) {
            const cStatementRead read = ReadBytes(xml.left(size));
            QVERIFY2(!read.Refusal.isEmpty() && read.Entries.isEmpty(), xml.left(size).right(20).constData());
        }
    }

    // Entities that point to files or grow without end stay the letters that they are.
    void ResolvesNoEntities()
    {
        const QByteArray entry =
            Entry("5.00", "DBIT", "<NtryDtls>" + Detail("<RmtInf><Ustrd>a&x;b</Ustrd></RmtInf>") + "</NtryDtls>");
        const cStatementRead read =
            ReadBytes("<!DOCTYPE Document [<!ENTITY x SYSTEM \"file:///etc/hostname\">]>" + With(entry));
        QCOMPARE(read.Entries.value(0).ImportPurpose, u"a&x;b"_s);
    }

    // A file may hold elements that look like the reader's own marks.
    void ForeignMarksAreRefused()
    {
        QVERIFY(!ReadBytes(With("<x piece=\"7\"/>")).Refusal.isEmpty());
        QVERIFY(
            !ReadBytes(With(Entry("5.00", "DBIT", {}) + "<x piece=\"0\" count=\"4294967295\"/>")).Refusal.isEmpty());
        const modXmlPieces::cPieces pieces =
            modXmlPieces::Cut("<a><b c='>'>1<b/><b>2</b></b> <b>3</b><!--<b>--><b>4</b>\n</a>", "b");
        QCOMPARE(pieces.Skeleton,
                 QByteArray("<a><x piece=\"0\" count=\"2\"/><!--<b>--><x piece=\"2\" count=\"1\"/>\n</a>"));
        QCOMPARE(pieces.Pieces.size(), std::size_t{3});
    }
};

TEST_CLASS(testCamt, QCoreApplication)
#include "testCamt.moc"
