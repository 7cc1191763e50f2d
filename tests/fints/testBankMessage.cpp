#include "base/cSecret.h"
#include "fints/HBCIFactory.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// A message of one customer on one day, with what differs.
struct cCase
{
    QString Function = u"999"_s;
    QByteArray SystemId = "0";
    QByteArray DialogId = "0";
    int Number = 1;
    QString Tan{};
};

QByteArray TextOf(const cCase& that, const QList<HBCISegment>& business)
{
    const cSecret pin(u"12345");
    const cSecret tan(that.Tan);
    cEnvelope envelope;
    envelope.DialogId = that.DialogId;
    envelope.MessageNumber = that.Number;
    envelope.BankCode = u"12345678"_s;
    envelope.UserId = u"testuser"_s;
    envelope.SystemId = that.SystemId;
    envelope.SecurityFunction = that.Function;
    envelope.Now = QDateTime(QDate(2026, 3, 1), QTime(12, 34, 56));
    envelope.Pin = &pin;
    envelope.Tan = &tan;
    return HBCIFactory::Message(envelope, business).Text();
}

HBCISegment Preparation(const QString& hbci, const QString& bpd, const QString& upd)
{
    return HBCIFactory::Preparation(hbci, bpd, upd, u"PRODUKTID0123456789012345"_s, u"1.00"_s);
}

cBankAccount Account()
{
    cBankAccount account;
    account.Number = u"1234567890"_s;
    account.BankCode = u"12345678"_s;
    account.Iban = u"DE02123456781234567890"_s;
    account.Bic = u"TESTDEFFXXX"_s;
    return account;
}

QByteArray StatementText()
{
    return TextOf(
        {.Function = u"922"_s, .SystemId = "SYSID1", .DialogId = "DIALOG2", .Number = 2},
        {HBCIFactory::Statement(5, Account(), QDate(2026, 2, 1), QDate(2026, 2, 28), {}, HBCIFactory::eNational::With),
         HBCIFactory::Tan(6, {.Process = "4", .Segment = "HKKAZ", .Medium = u"Handy"_s})});
}

constexpr auto reference = "4567-11-30-17.17.09.654321";

} // namespace

class testBankMessage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A bank counts: the size in the head, the length of the container.
    void HasTheRightSize_data()
    {
        const cTestRows<QByteArray, int, int> row("text", "size", "length");
        const cCase second{.Function = u"922"_s, .SystemId = "SYSID1", .DialogId = "DIALOG2", .Number = 3};
        cCase withTan = second;
        withTan.Tan = u"777666"_s;
        row("synchronisation",
            TextOf({},
                   {HBCIFactory::Identification(u"12345678"_s, u"testuser"_s, "0"),
                    Preparation(u"300"_s, u"0"_s, u"0"_s), HBCIFactory::Synchronisation(u"300"_s)}),
            370, 209);
        row("end", TextOf({.SystemId = "SYSID1", .DialogId = "DIALOG1", .Number = 2}, {HBCIFactory::End("DIALOG1")}),
            309, 137);
        row("start",
            TextOf({.Function = u"922"_s, .SystemId = "SYSID1"},
                   {HBCIFactory::Identification(u"12345678"_s, u"testuser"_s, "SYSID1"),
                    Preparation(u"300"_s, u"78"_s, u"3"_s), HBCIFactory::Tan(6, {.Process = "4", .Segment = "HKIDN"})}),
            392, 226);
        row("statement", StatementText(), 378, 206);
        row("TAN", TextOf(withTan, {HBCIFactory::Tan(6, {.Process = "2", .Reference = reference})}), 342, 170);
        row("approval", TextOf(second, {HBCIFactory::Tan(7, {.Process = "S", .Reference = reference})}), 335, 163);
    }
    void HasTheRightSize()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, size);
        QFETCH(int, length);
        QCOMPARE(text.size(), size);
        QCOMPARE(text.first(24), "HNHBK:1:3+000000000" + QByteArray::number(size) + "+3");
        const QByteArray container = "+@" + QByteArray::number(length) + "@HNSHK:2:4+";
        QVERIFY2(text.contains(container), text.constData());
    }

    void IsWrittenAsABankReadsIt()
    {
        const QByteArray expected = "HNHBK:1:3+000000000378+300+DIALOG2+2'"
                                    "HNVSK:998:3+PIN:2+998+1+1::SYSID1+1:20260301:123456+2:2:13:@8@"
            + QByteArray(8, '\0')
            + ":5:1+280:12345678:testuser:V:0:0+0'"
              "HNVSD:999:1+@206@HNSHK:2:4+PIN:2+922+1+1+1+1::SYSID1+1+1:20260301:123456+1:999:1+6:10:16"
              "+280:12345678:testuser:S:0:0'"
              "HKKAZ:3:5+1234567890::280:12345678+N+20260201+20260228'"
              "HKTAN:4:6+4+HKKAZ+++++++++Handy'"
              "HNSHA:5:2+1++12345''"
              "HNHBS:6:1+2'";
        QCOMPARE(StatementText(), expected);
    }

    // Typed texts are escaped, what came from the bank is sent as it came.
    void EscapesOnce()
    {
        const QByteArray text = HBCIFactory::Identification(u"12345678"_s, u"a+b"_s, "xH2et?+UL/").toString();
        QCOMPARE(text, QByteArray("HKIDN:0:2+280:12345678+a?+b+xH2et?+UL/+1"));
        const HBCISegment tan = HBCIFactory::Tan(6, {.Process = "4", .Segment = "HKIDN", .Medium = u"mT:1"_s});
        QCOMPARE(tan.Element(11), QByteArray("mT?:1"));
    }

    void NamesTheAccountByVersion_data()
    {
        using HBCIFactory::eNational;
        QTest::addColumn<HBCISegment>("segment");
        QTest::addColumn<QByteArray>("text");
        const QDate from(2026, 2, 1);
        const QDate to(2026, 2, 28);
        const auto row = [](const char* name, const HBCISegment& segment, const char* text) {
            QTest::newRow(name) << segment << QByteArray(text);
        };
        cBankAccount sub = Account();
        sub.SubNumber = u"EUR"_s;
        row("statement 6", HBCIFactory::Statement(6, sub, from, to, "9978?:9789", eNational::Without),
            "HKKAZ:0:6+1234567890:EUR:280:12345678+N+20260201+20260228++9978?:9789");
        row("statement 7", HBCIFactory::Statement(7, Account(), from, to, {}, eNational::With),
            "HKKAZ:0:7+DE02123456781234567890:TESTDEFFXXX:1234567890::280:12345678+N+20260201+20260228");
        row("camt without the number",
            HBCIFactory::CamtStatement(Account(), "urn?:x?:camt.052.001.02", from, to, "4711", eNational::Without),
            "HKCAZ:0:1+DE02123456781234567890:TESTDEFFXXX+urn?:x?:camt.052.001.02+N+20260201+20260228++4711");
        row("balance 5", HBCIFactory::Balance(5, Account(), eNational::With), "HKSAL:0:5+1234567890::280:12345678+N");
        row("order of a hash", HBCIFactory::Tan(6, {.Process = "1", .Segment = "HKKAZ", .OrderHash = "ab+"}),
            "HKTAN:0:6+1+HKKAZ++@3@ab+++N");
        row("media", HBCIFactory::Media(5), "HKTAB:0:5+0+A");
        row("accounts", HBCIFactory::SepaAccounts(), "HKSPA:0:1");
    }
    void NamesTheAccountByVersion()
    {
        QFETCH(HBCISegment, segment);
        QTEST(segment.toString(), "text");
    }

    void IsDescribedForTheLog()
    {
        QCOMPARE(HBCISegment().DebugDescription(), u"Empty Segment.toString()"_s);
        QCOMPARE(HBCISegment::Read("HIXYZ:3:1+a").DebugDescription(), u"Unknown Segment.toString() => HIXYZ"_s);
        QCOMPARE(HBCIFactory::Identification(u"12345678"_s, u"x"_s, "0").DebugDescription(),
                 u"Identification: Institute=280:12345678 CustomerID=x CustomerSysID=0 CustomerState=1"_s);
        QCOMPARE(HBCISegment::Read("HIRMS:3:2:4+0020::a+3040::b:4711").DebugDescription(),
                 u"ResponseSegment: 0020::a; 3040::b:4711"_s);
        QCOMPARE(HBCISegment::Read("HIKAZ:3:5:4+@3@abc").DebugDescription(),
                 u"AccountTransactionsResponse: Booked=abc NotBooked="_s);
        QCOMPARE(HBCISegment::Read("HITANS:9:1:4+1+1+0+J:N").DebugDescription(),
                 u"TanParameters: MostOrders=1 Parameters=J:N"_s);
        QCOMPARE(HBCISegment::Read("HNSHA:3:2+1++12345").DebugDescription(), u"SignatureEnd: Control=1"_s);
    }
};

TEST_CLASS(testBankMessage, QCoreApplication)
#include "testBankMessage.moc"
