#include "base/cSecret.h"
#include "fints/cBankLog.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray Wrapped(const QByteArray& inner)
{
    return "HNHBK:1:3+000000000400+300+DIALOG+2'HNVSK:998:3+PIN:2+998+1+1::SYS1+1:20260301:123456+2:2:13:@8@"
        + QByteArray(8, '\0') + ":5:1+280:76543210:eva.login:V:0:0+0'HNVSD:999:1+@" + QByteArray::number(inner.size())
        + "@" + inner + "'HNHBS:6:1+2'";
}

} // namespace

class testBankLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A PIN with characters that are escaped, a TAN that begins with a part of the PIN, and the identifier.
    void MasksSecretsInEveryForm()
    {
        const cSecret pin(u"a?1ä+");
        const cSecret tan(u"1ä+77");
        cBankLog log;
        log.AddRequest("HKVVB:4:3+0+0+0+PROD?+UKT+1.00'HNSHA:5:2+1++a??1\xe4?+:1\xe4?+77'", {&pin, &tan},
                       u"PROD+UKT"_s);
        log.AddAnswer("HIRMG:2:2+9942::a?1\xe4+77 ist falsch'", {&pin, nullptr, &tan}, u"PROD+UKT"_s);
        QCOMPARE(log.Text(),
                 u"--------------------\r\nNachricht an Bank\r\n"
                 "HKVVB:4:3+0+0+0+XXXXXXXXX+1.00'\r\nHNSHA:5:2+1++PPPPPPP:PPPPPP'\r\n\r\n"
                 "--------------------\r\nAntwort von Bank\r\n"
                 "HIRMG:2:2+9942::PPPPPPP ist falsch'\r\n\r\n"_s);
        QVERIFY(!log.TextForOthers({}).contains(u"77"));

        const cSecret inside(u"1ä");
        log.AddRequest("HKVVB:4:3+0+0+0+PROD1\xe4+1.00'", {&inside}, u"PROD1ä"_s);
        QVERIFY2(log.Text().contains(u"+XXXXXX+1.00'"), qPrintable(log.Text()));
    }

    void PutsEachSegmentOnALine()
    {
        cBankLog log;
        log.AddRequest(Wrapped("HKEND:3:1+x'"), {}, {});
        const QString text = log.Text();
        QVERIFY(text.contains(u"+2:2:13:@8@........:5:1+"));
        QVERIFY(text.contains(u"@HKEND:3:1+x'\r\n'\r\nHNHBS"));
        QVERIFY(!text.contains(QChar(0)));
    }

    // The PIN is a part of account number, day and bank code, all of which a reader may know.
    void OthersLearnNothingOfThePin()
    {
        const cSecret pin(u"76543");
        const cSecret otherPin(u"98989");
        const QByteArray request =
            Wrapped("HKKAZ:3:5+1765432890::280:76543210+N+20260201+20260228'HNSHA:5:2+1++76543'");
        const QByteArray answer = Wrapped("HIRMS:3:2:3+9010::Konto 1765432890 gesperrt'");
        const auto shown = [&](const cSecret& secret) {
            cBankLog log;
            log.AddRequest(request, {&secret}, {});
            log.AddAnswer(answer, {&secret}, {});
            return log.TextForOthers({});
        };
        QCOMPARE(shown(pin), shown(otherPin));
        QVERIFY2(!shown(pin).contains(u"76543"), qPrintable(shown(pin)));
        QVERIFY(!shown(pin).contains(u"PPP"));
    }

    void OthersSeeNobody_data()
    {
        QTest::addColumn<QByteArray>("inner");
        QTest::addColumn<QString>("shown");
        const auto row = [](const char* name, const QByteArray& inner, const char16_t* shown) {
            QTest::newRow(name) << inner << QString::fromUtf16(shown);
        };
        row("login", "HKIDN:3:2+280:76543210+eva.login+SYS1+1'", u"HKIDN:3:2+***+***+***+1'");
        row("signature", "HNSHA:5:2+1++hallo:123'", u"HNSHA:5:2+1++***'");
        row("statement", "HKKAZ:3:5+4711::280:76543210+N+20260201+20260228++p?:1'",
            u"HKKAZ:3:5+***+N+20260201+20260228++***'");
        row("account", "HIUPD:5:6:4+4711::280:76543210+DE02+eva.login+1+EUR+Eva Test++Giro 17+K:1+HKKAZ:1+HKSAL:1'",
            u"HIUPD:5:6:4+***+***+***+1+EUR+***++Giro 17+***+HKKAZ:1+HKSAL:1'");
        row("words", "HIRMS:3:2:3+3076:3,1:Guten Tag Eva Test?: Konto DE02 1203 0000 0000 2020 51, 0171 / 2345678'",
            u"HIRMS:3:2:3+3076:3,1:Guten Tag Eva Test?: Konto ***, ***'");
        row("bookings", "HIKAZ:4:5:3+@13@:86:Miete'Eva'", u"HIKAZ:4:5:3+@13@***'");
        row("camt", "HICAZ:4:1:3+DE02:BIC+urn?:camt+@2@<>:@1@''", u"HICAZ:4:1:3+***+urn?:camt+@2@***:@1@***'");
        row("challenge", "HITAN:5:6:4+4++ref1+TAN f\xfcr 12345,67+@3@abc++Handy Eva'",
            u"HITAN:5:6:4+4++***+TAN für ***+@3@***++***'");
        row("parameters", "HIPINS:6:1:3+1+1+0+5:38:6:Anmeldename::HKKAZ:J'",
            u"HIPINS:6:1:3+1+1+0+5:38:6:Anmeldename::HKKAZ:J'");
        row("unknown", "HIXYZ:6:1:3+Eva++17'", u"HIXYZ:6:1:3+***++***'");
    }
    void OthersSeeNobody()
    {
        QFETCH(QByteArray, inner);
        cBankLog log;
        log.AddAnswer(Wrapped(inner), {}, {});
        const QStringList lines = log.TextForOthers({}).split(u"\r\n"_s);
        QTEST(lines.value(5), "shown");
        QVERIFY(!log.TextForOthers({}).contains(u"eva.login"));
    }

    // Names that stand in a place of their own, or in the book, are not to be read in the words of the bank either,
    // and not in messages before.
    void OthersSeeNobodyInWords()
    {
        cBankLog log;
        log.AddAnswer(Wrapped("HIRMG:3:2+0020::Hallo EVA MUSTER, hier Otto K?+Co und Frida.'"), {}, {});
        log.AddRemark(u"Kein Weg zu Muster, 1234567"_s);
        log.AddAnswer(Wrapped("HIUPD:5:5:4+4711::280:76543210+c+1+EUR+Eva Muster++Giro'"), {}, {});
        const QString text = log.TextForOthers({u"Otto K+Co"_s, u"Frida"_s});
        QVERIFY2(text.contains(u"HIRMG:3:2+0020::Hallo ***, hier *** und ***.'"), qPrintable(text));
        QVERIFY2(text.contains(u"Kein Weg zu ***, ***"), qPrintable(text));
    }

    void AVeryLongMessageIsShortened()
    {
        const cSecret pin(u"geheim");
        QByteArray answer = "HNHBK:1:3+1+300+0+1'HIKAZ:4:5:3+@3000000@" + QByteArray(3000000, 'x') + "'HNHBS:3:1+1'";
        answer.replace(499'997, 6, "geheim");
        cBankLog log;
        log.AddAnswer(answer, {&pin}, {});
        QVERIFY(log.Text().size() < 1'001'000);
        QVERIFY(log.Text().contains(u"xPPP\r\n[2000054 Zeichen ausgelassen]\r\n"));
        QVERIFY(log.Text().endsWith(u"xxx'\r\nHNHBS:3:1+1'\r\n\r\n"));
        QVERIFY(log.TextForOthers({}).contains(u"HIKAZ:4:5:3+@3000000@***'"));
    }

    void WhatIsNoMessageIsTakenAsWords()
    {
        cBankLog log;
        log.AddAnswer("<html>Konto 12345678 von Eva</html>", {}, {});
        QVERIFY(log.TextForOthers({}).contains(u"<html>Konto *** von Eva</html>"));
    }
};

TEST_CLASS(testBankLog, QCoreApplication)
#include "testBankLog.moc"
