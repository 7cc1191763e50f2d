#include "import/mt940/modMT940Repair.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"
#include "support/cTestRows.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class testMT940Repair : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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

TEST_CLASS(testMT940Repair, QCoreApplication)
#include "testMT940Repair.moc"
