#include "import/stage/modStatementFormat.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class testStatementFormat : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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

TEST_CLASS(testStatementFormat, QCoreApplication)
#include "testStatementFormat.moc"
