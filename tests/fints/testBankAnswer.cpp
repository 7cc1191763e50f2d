#include "fints/cBankAnswer.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// An answer with these segments in the container.
QByteArray Wrapped(const QByteArray& inner)
{
    const QByteArray rest = "HNVSK:998:3+PIN:1+998+1+2::0+1+2:2:13:@8@" + QByteArray(8, '\0')
        + ":6:1+280:12345678:testuser:V:0:0+0'HNVSD:999:1+@" + QByteArray::number(inner.size()) + "@" + inner
        + "'HNHBS:9:1+1'";
    return "HNHBK:1:3+000000000999+300+DIALOG?+1+1+DIALOG?+1:1'" + rest;
}

cBankAnswer Read(const QByteArray& inner)
{
    const std::optional<cBankAnswer> answer = cBankAnswer::Read(Wrapped(inner));
    if (!answer) {
        qFatal("no answer");
    }
    return *answer;
}

QStringList Numbers(const QList<cBankAccount>& accounts)
{
    return Each(accounts, &cBankAccount::Number);
}

} // namespace

class testBankAnswer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ReadsWhatBanksMakeOfTheEnvelope_data()
    {
        const cTestRows<QByteArray, bool> row("bytes", "isRead");
        const QByteArray head = "HNHBK:1:3+000000000100+300+0+1+0:1'";
        const QByteArray refusal = "HIRMG:2:2:+9800::Dialog beendet.'";
        const QByteArray signature = "HNSHK:2:4+PIN:1+999+1+1+1+2::0+1+1+1:999:1+6:10:19+280:12345678:x:S:0:0'";
        row("wrapped", Wrapped(refusal), true);
        row("signed", Wrapped(signature + refusal + "HNSHA:3:2+1'"), true);
        row("unwrapped", head + refusal + "HNHBS:3:1+1'", true);
        row("line break at the end", head + refusal + "HNHBS:3:1+1'\r\n", true);
        row("without an end", head + refusal, false);
        row("cut in the container", Wrapped(refusal).chopped(20), false);
        row("no dialog", "HNHBK:1:3'" + refusal + "HNHBS:3:1+1'", false);
        row("page of a proxy", "<html>9800</html>", false);
        row("only separators", head + QByteArray(2'000'000, '+') + "'HNHBS:3:1+1'", false);
        row("nothing", {}, false);
    }
    void ReadsWhatBanksMakeOfTheEnvelope()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, isRead);
        const std::optional<cBankAnswer> answer = cBankAnswer::Read(bytes);
        QCOMPARE(answer.has_value(), isRead);
        if (isRead) {
            QVERIFY(answer->IsAborted());
        }
    }

    void EchoesTextsOfTheBank()
    {
        const cBankAnswer answer = Read("HISYN:3:4:5+xH2et?+UL/'HIRMS:4:2:3+3040::Weiter?: ja:9978-12.?:9789'");
        QCOMPARE(answer.DialogId(), QByteArray("DIALOG?+1"));
        QCOMPARE(answer.SystemId().value(), QByteArray("xH2et?+UL/"));
        QCOMPARE(answer.Continuation(), QByteArray("9978-12.?:9789"));
        QCOMPARE(answer.Messages()[0].Text, u"Weiter: ja"_s);
        QCOMPARE(answer.Messages()[0].Reference, 3);
    }

    void KeepsReturnMessages()
    {
        const cBankAnswer quiet = Read("HIRMG:2:2+0020::Gut.'HIRMS:3:2:3+3060::Warnungen.'");
        QCOMPARE(quiet.CollectedText(), u"3060 Warnungen."_s);
        QVERIFY(quiet.BankWords().isEmpty());
        QVERIFY(quiet.Continuation().isEmpty());
        QVERIFY(!quiet.AllowedFunctions());
        QVERIFY(!Read("HIRMG:2:2+3060::Warnungen.'").HasMoreThanWarnings());
        const cBankAnswer bad = Read("HIRMG:2:2+9050::Fehler.'HIRMS:3:2:3+9010:4,1:Was ?'das?' "
                                     "soll??+3920::Verfahren:900:912'HIRMS:4:2:4+9050::Fehler.'");
        QCOMPARE(bad.CollectedText(), u"9050 Fehler.\r\n9010 Was 'das' soll?\r\n3920 Verfahren\r\n9050 Fehler."_s);
        QCOMPARE(bad.BankWords(), u"Fehler.\nWas 'das' soll?\nVerfahren"_s);
        QVERIFY(bad.HasMoreThanWarnings());
        QCOMPARE(bad.AllowedFunctions().value(), QStringList({u"900"_s, u"912"_s}));
        QCOMPARE(bad.Messages()[1].Element, u"4,1"_s);
    }

    void SeesARefusedPinByItsWords()
    {
        const auto isWrong = [](const QByteArray& entry) { return Read("HIRMG:2:2+" + entry + "'").IsWrongPin(); };
        QVERIFY(isWrong("9210::Pin ist ung\xfcltig."));
        QVERIFY(isWrong("9210::PIN ung\xc3\xbcltig."));
        QVERIFY(isWrong("9210::Falsche PIN"));
        QVERIFY(!isWrong("0901::PIN g\xfcltig."));
        QVERIFY(!isWrong("9941::TAN falsch."));
    }

    void ReadsAccountsOfAllVersions_data()
    {
        const cTestRows<QByteArray, QString> row("segment", "iban");
        row("4", "HIUPD:5:4:4+47:EUR:280:12345678+cust+EUR+Eva+Otto+Giro+K?:1+HKKAZ:1+HKSAL:1'", {});
        row("5", "HIUPD:5:5:4+47:EUR:280:12345678+cust+1+EUR+Eva+Otto+Giro+K?:1+HKKAZ:1+HKSAL:1'", {});
        row("6",
            "HIUPD:5:6:4+47:EUR:280:12345678+DE02+cust+1+EUR+Eva+Otto+Giro+K?:1+HKKAZ:1+HKSAL:1" + QByteArray(998, '+')
                + "{\"time\"?:\"2026\"}'",
            u"DE02"_s);
    }
    void ReadsAccountsOfAllVersions()
    {
        QFETCH(QByteArray, segment);
        const QList<cBankAccount> accounts = Read(segment).Accounts();
        QCOMPARE(accounts.size(), 1);
        cBankAccount expected;
        expected.Number = u"47"_s;
        expected.SubNumber = u"EUR"_s;
        expected.BankCode = u"12345678"_s;
        expected.CustomerId = u"cust"_s;
        expected.Owner1 = u"Eva"_s;
        expected.Owner2 = u"Otto"_s;
        expected.ProductName = u"Giro"_s;
        expected.Limit = u"K:1"_s;
        expected.Orders = {u"HKKAZ"_s, u"HKSAL"_s};
        QFETCH(QString, iban);
        expected.Iban = iban;
        QCOMPARE(accounts[0], expected);
    }

    void OffersAccountsWithStatementsOnly()
    {
        const auto account = [](const char* number, const char* name, const char* product) -> QByteArray {
            return "HIUPD:5:6:4+" + QByteArray(number) + "::280:12345678++cust+1++" + name + "++" + product + "'";
        };
        const cBankAnswer answer = Read(account("1", "Eva", "Depot") + account("2", "Eva", "Visa Card Gold")
                                        + account("3", "Eva Visarius", "Giro") + account("4", "CFD-Konto", "")
                                        + account("5", "Eva", "Depotkonto") + account("6", "Visa Eva", "")
                                        + account("", "Eva", "Giro") + account("8", "Eva", ""));
        QCOMPARE(Numbers(answer.Accounts()), QStringList({u"3"_s, u"5"_s, u"8"_s}));
        QCOMPARE(answer.Accounts()[0].Currency, u"EUR"_s);
    }

    void ReadsParametersVersionsAndNames()
    {
        const cBankAnswer answer = Read("HIUPA:4:4:4+user+83+0'HITANS:3:6:4+1+1+0+N:N:0:900:2'HIBPA:5:3:3+78+280:"
                                        "12345678+Bank?+Sohn+1+1+300'HIRMS:9:2:3+0020::x'");
        QCOMPARE(answer.UpdVersion(), u"83"_s);
        QCOMPARE(answer.BpdVersion(), u"78"_s);
        QCOMPARE(answer.BankName(), u"Bank+Sohn"_s);
        const QList<QByteArray> expected{"HITANS:3:6:4+1+1+0+N:N:0:900:2",
                                         "HIBPA:5:3:3+78+280:12345678+Bank?+Sohn+1+1+300"};
        QCOMPARE(answer.Parameters(), expected);
        QVERIFY(Read("HIRMG:2:2+0020::x'").BpdVersion().isEmpty());
    }

    void ReadsAChallenge()
    {
        // The hash has an end of a segment and an element in it.
        const cTanChallenge tan =
            Read("HITAN:5:7:4+4+@4@a'+b+ref?:1+TAN f\xfcr ?'2?' eingeben+@5@+12:'+20260301:123456+mT?:1'")
                .Tan()
                .value();
        QCOMPARE(tan.Process, QByteArray("4"));
        QCOMPARE(tan.Reference, QByteArray("ref?:1"));
        QCOMPARE(tan.Challenge, u"TAN für '2' eingeben"_s);
        QCOMPARE(tan.HhdUc, QByteArray("+12:'"));
        QCOMPARE(tan.ValidUntil, QDateTime(QDate(2026, 3, 1), QTime(12, 34, 56)));
        QCOMPARE(tan.Medium, u"mT:1"_s);
        const cTanChallenge none = Read("HITAN:5:6:4+4'").Tan().value();
        QCOMPARE(none.Reference, QByteArray("noref"));
        QCOMPARE(none.Challenge, u"nochallenge"_s);
        QVERIFY(!Read("HIRMG:2:2+0020::x'").Tan());
    }

    void ReadsActiveMedia()
    {
        const cBankAnswer answer =
            Read("HITAB:5:4:3+0+A:1:::::::::::eins::::::::+A:2:::::::::::zwei+M:3:::::::::::drei'"
                 "HITAB:6:5:3+0+A:1::::::::::::vier'");
        QCOMPARE(answer.Media(), QStringList({u"eins"_s, u"drei"_s, u"vier"_s}));
    }

    // Pages are cut anywhere, and a second block in the segment is what is not booked yet.
    void JoinsBookings()
    {
        const cBankAnswer answer = Read("HIKAZ:4:5:3+@6@:20:a'+@3@x+y'HIKAZ:5:5:3+@0@'HIKAZ:6:5:3+@4@+b\r\n'");
        QCOMPARE(answer.BookedMT940(), QByteArray(":20:a'+b\r\n"));
        const cBankAnswer camt = Read("HICAZ:4:1:3+DE02:BIC+urn?:x+@5@<a:'>:@3@+?'+@2@zz'");
        QCOMPARE(camt.BookedCamt(), QList<QByteArray>({"<a:'>", "+?'"}));
        QVERIFY(camt.BookedMT940().isEmpty());
    }

    void ReadsABalance_data()
    {
        const cTestRows<QByteArray, qint64> row("element", "cents");
        row("credit", "C:123,45:EUR:20260301", 12345);
        row("debit with a time", "D:1234567,8:EUR:20260301:120000", -123456780);
        row("whole", "C:5,:EUR:20260301", 500);
        row("nothing", "C:0,:EUR:20260301", 0);
    }
    void ReadsABalance()
    {
        QFETCH(QByteArray, element);
        const auto balance = Read("HISAL:7:5:3+47::280:12345678+Giro+EUR+" + element + "+C:0,:EUR:20260301'").Balance();
        QVERIFY(balance.has_value());
        QTEST(balance->Cents, "cents");
        QCOMPARE(balance->Day, QDate(2026, 3, 1));
        QCOMPARE(balance->Currency, u"EUR"_s);
    }

    void ReadsAccountsWithIban()
    {
        const QList<cBankAccount> accounts =
            Read("HISPA:5:1:3+J:DE02:BICX:47::280:12345678+N:::48:EUR:280:12345678'").SepaAccounts();
        QCOMPARE(Numbers(accounts), QStringList({u"47"_s, u"48"_s}));
        QCOMPARE(accounts[0].Iban, u"DE02"_s);
        QCOMPARE(accounts[0].Bic, u"BICX"_s);
        QCOMPARE(accounts[1].SubNumber, u"EUR"_s);
        QCOMPARE(accounts[1].BankCode, u"12345678"_s);
    }
};

TEST_CLASS(testBankAnswer, QCoreApplication)
#include "testBankAnswer.moc"
