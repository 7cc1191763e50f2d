#include "import/read/modStatementFile.h"
#include "import/read/modStatementText.h"
#include "import/stage/modStatementFormat.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

class testStatementText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void DecodesEveryEncoding_data()
    {
        const cTestRows<QByteArray, QString> row("bytes", "text");
        row("UTF-8", "M\xC3\xBCller", u"Müller"_s);
        row("UTF-8 with mark", "\xEF\xBB\xBF:20:\xE2\x82\xAC", u":20:€"_s);
        row("UTF-16 little endian", QByteArray("\xFF\xFE:\0\xDC\0", 6), u":Ü"_s);
        row("UTF-16 big endian", QByteArray("\xFE\xFF\0:\0\xDC", 6), u":Ü"_s);
        row("Windows-1252", "M\xFCller 5 \x80 \x96 \x8E", u"Müller 5 € – Ž"_s);
        row("UTF-8 cut at the end", "Stra\xC3", u"StraÃ"_s);
        row("overlong sequence is not UTF-8", "\xC0\xAF", u"À¯"_s);
        row("mark before broken UTF-8", "\xEF\xBB\xBF\xFC", u"ü"_s);
        row("NULs vanish", QByteArray("a\0b", 3), u"ab"_s);
        row("nothing", {}, {});
    }

    void DecodesEveryEncoding()
    {
        QFETCH(QByteArray, bytes);
        QTEST(modStatementText::Decode(bytes), "text");
    }

    // A bank that wraps its lines by bytes tears letters apart; the file is no UTF-8 then, but its joined fields are.
    void RepairsFields_data()
    {
        const cTestRows<QString, QString> row("field", "text");
        row("torn letter", modStatementText::Decode("GEB\xC3\x9CHR \xFC").left(7), u"GEBÜHR"_s);
        row("right text stays", u"Müller & Söhne – 5 €"_s, u"Müller & Söhne – 5 €"_s);
        row("other scripts stay", u"Ã¼ 東京"_s, u"Ã¼ 東京"_s);
    }

    void RepairsFields()
    {
        QFETCH(QString, field);
        QTEST(modStatementText::DecodeField(field), "text");
    }

    // Readers hold a field several times over, so nobody else looks at one of 50 MB.
    void EndlessFieldsAreRefused_data()
    {
        // Line 0: it is read.
        const cTestRows<QByteArray, int> row("bytes", "line");
        const QByteArray endless(1'100'000, 'x');
        const QByteArray tags = QByteArray("<Ntry>1</Ntry>").repeated(200'000);
        row("cell", QByteArray("Tag;Betrag\n1;2\n\"" + endless + "\";3\n4;5\n"), 3);
        row("last line", QByteArray("Tag;Betrag\r\n" + endless), 2);
        row("many lines", QByteArray("1;2\n").repeated(600'000), 0);
        row("document of one line", QByteArray("\n<?xml?>" + tags), 0);
        row("text of a tag", QByteArray("<?xml?>\n" + tags + "<Ustrd>" + QByteArray(endless).replace("xx", "x\n")), 2);
        row("OFX of one line", QByteArray("OFXHEADER:100 <OFX>" + tags), 0);
        row("SWIFT of one line", QByteArray(":20:STARTUMS@@" + QByteArray(":61:2403@@").repeated(200'000)), 0);
        row("archive", QByteArray("PK\3\4" + endless), 0);
    }

    void EndlessFieldsAreRefused()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const int, line);
        const QString refusal = modStatementFile::Overlong(bytes);
        QCOMPARE(refusal.isEmpty(), line == 0);
        QVERIFY2(line == 0 || refusal.startsWith(u"In Zeile %1 "_s.arg(line)), qPrintable(refusal));
    }

    void EveryByteGivesText()
    {
        QByteArray all;
        for (int i = 0; i < 256; ++i) {
            all.append(static_cast<char>(i));
        }
        QCOMPARE(modStatementText::Decode(all).size(), 255);
        QVERIFY(modStatementText::IsBinary(all));
        QVERIFY(!modStatementText::IsBinary(QByteArray("\xFF\xFE:\0", 4)));
    }

    void Detects_data()
    {
        const QString mt940 = u":20:A\r\n:25:1\r\n:60F:C\r\n:62F:C\r\n"_s;
        const cTestRows<QString, QString, eStatementFormat> row("file", "text", "format");
        row("spreadsheet by name", u"a.xlsx"_s, mt940, eStatementFormat::Spreadsheet);
        row("PDF by name", u"A.Pdf"_s, mt940, eStatementFormat::Pdf);
        row("shortcut", u"a.lnk"_s, mt940, eStatementFormat::Unknown);
        row("MT940 by balances", u"statement.TXT"_s, mt940, eStatementFormat::Mt940);
        row("MT940 by intermediate balances", u"a"_s, u":60M:x:62M:"_s, eStatementFormat::Mt940);
        row("MT942 by tags", u"a.txt"_s, u":20:x:61:x:86:"_s, eStatementFormat::Mt940);
        row("no details, but named so", u"a.MT940"_s, u":20:x:61:x"_s, eStatementFormat::Mt940);
        row("no details", u"a.txt"_s, u":20:x:61:x"_s, eStatementFormat::Csv);
        row("MT940 without balances and details", u"a.sta"_s, u":20:x:61:x"_s, eStatementFormat::Mt940);
        row("named so, other content", u"a.mt940"_s, u"Datum;Betrag"_s, eStatementFormat::Csv);
        row("OFX", u"a.txt"_s, u"OFXHEADER:100 <BANKTRANLIST> </OFX>"_s, eStatementFormat::Ofx);
        row("OFX without list", u"a.ofx"_s, u"<OFX></OFX>"_s, eStatementFormat::Ofx);
        row("QIF", u"a.txt"_s, u"!Type:Bank\nD1/1/10"_s, eStatementFormat::Qif);
        row("QIF card", u"a.txt"_s, u"!TYPE:CCARD"_s, eStatementFormat::Qif);
        row("all else", u"a.dat"_s, {}, eStatementFormat::Csv);
    }

    void Detects()
    {
        QFETCH(QString, file);
        QFETCH(QString, text);
        QTEST(DetectStatementFormat(file, text), "format");
    }
};

TEST_CLASS(testStatementText, QCoreApplication)
#include "testStatementText.moc"
