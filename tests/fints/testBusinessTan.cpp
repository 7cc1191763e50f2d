#include "fints/cBankScene.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

namespace {

cBankProfile WithMethod(const cOfferedMethod& method, const cAskedTan& tan)
{
    cBankProfile profile;
    profile.Methods = {method};
    profile.AskedTans["HKKAZ"] = tan;
    return profile;
}

} // namespace

// TANs and approvals of one fetch.
class testBusinessTan final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AsksForApproval_data()
    {
        const cTestRows<cBankProfile, QString> row("profile", "story");
        row("at once", WithMethod(cBankScene::App("0:0:0:J:J"), cBankScene::Approval(0)),
            u"wait 0 | status 111 | done"_s);
        row("after the waits of the bank", WithMethod(cBankScene::App("3:10:4:J:J"), cBankScene::Approval(2)),
            u"wait 10 | status | wait 4 | status | wait 4 | status 111 | done"_s);
        cAskedTan received = cBankScene::Approval(0);
        received.Code = "0030::Auftrag empfangen.";
        row("with the code of a TAN", WithMethod(cBankScene::App("0:0:0:J:J"), received),
            u"wait 0 | status 111 | done"_s);
    }

    void AsksForApproval()
    {
        QFETCH(cBankProfile, profile);
        QFETCH(QString, story);
        cBankScene scene(profile);
        QVERIFY(scene.SetUp());
        QVERIFY(scene.Business.FetchAll(scene.Orders().first(1)));
        QCOMPARE(scene.Bank.Story(), u"init 946 78/3 HKIDN | HKKAZ5 | "_s + story + u" | HKSAL5 111 | end");
        QCOMPARE(scene.User.LastApproval.Challenge, u"Bitte freigeben"_s);
        QCOMPARE(scene.User.LastApproval.Medium, u"Handy"_s);
        QVERIFY(!scene.Business.Fetched().constFirst().MT940.isEmpty());
    }

    void EndsWithoutApproval_data()
    {
        const cTestRows<cBankProfile, int, eBankFault, QString> row("profile", "cancelsWait", "fault", "story");
        row("as often as the bank allows", WithMethod(cBankScene::App("2:5:2:J:J"), cBankScene::Approval(-1)), 0,
            eBankFault::ApprovalMissing, u"wait 5 | status | wait 2 | status | done | end"_s);
        row("rejected", WithMethod(cBankScene::App("0:0:0:J:J"), cBankScene::Approval(1, "9941::Abgelehnt.")), 0,
            eBankFault::ApprovalRejected, u"wait 0 | status | wait 0 | status | done | end"_s);
        row("something else is wrong",
            WithMethod(cBankScene::App("0:0:0:J:J"), cBankScene::Approval(0, "9210::Konto gesperrt.")), 0,
            eBankFault::Other, u"wait 0 | status | done | end"_s);
        row("cancelled", WithMethod(cBankScene::App("0:0:1:J:J"), cBankScene::Approval(-1)), 2, eBankFault::Cancelled,
            u"wait 0 | status | wait 1 | done | end"_s);
    }

    void EndsWithoutApproval()
    {
        QFETCH(cBankProfile, profile);
        QFETCH(int, cancelsWait);
        QFETCH(QString, story);
        cBankScene scene(profile);
        QVERIFY(scene.SetUp());
        scene.User.CancelsWait = cancelsWait;
        QVERIFY(!scene.Business.FetchAll(scene.Orders().first(1)));
        QTEST(scene.Fault(), "fault");
        QCOMPARE(scene.Bank.Story(), u"init 946 78/3 HKIDN | HKKAZ5 | "_s + story);
        QVERIFY(scene.Bank.IsQuiet());
    }

    void AsksForATan_data()
    {
        const cTestRows<cOfferedMethod, cAskedTan, bool, eTanDisplay> row("method", "tan", "isAsked", "display");
        const cOfferedMethod sms{.Function = "912"};
        row("typed", sms, cAskedTan{}, true, eTanDisplay::Text);
        row("picture", cOfferedMethod{.Function = "913", .Technical = "MS1.0.0", .Name = "photoTAN"},
            cAskedTan{.HhdUc = QByteArray("\0\11image/png\0\21\211PNG\r\n\032\n+'@5@IEND", 30)}, true,
            eTanDisplay::Picture);
        row("flicker code", cOfferedMethod{.Function = "914", .Technical = "HHD1.4OPT", .Name = "chipTAN"},
            cAskedTan{.HhdUc = "0248A0120452019980812345678"}, true, eTanDisplay::Flicker);
        row("beside a fault in one segment", sms, cAskedTan{.Code = "9010::Teilweise fehlerhaft."}, true,
            eTanDisplay::Text);
        row("no challenge", sms, cAskedTan{.Challenge = "nochallenge"}, false, eTanDisplay::Text);
        row("not required", sms, cAskedTan{.Code = "3076::Nicht erforderlich."}, false, eTanDisplay::Text);
    }

    void AsksForATan()
    {
        QFETCH(cOfferedMethod, method);
        QFETCH(cAskedTan, tan);
        cBankScene scene(WithMethod(method, tan));
        QVERIFY(scene.SetUp());
        QVERIFY(scene.Business.FetchAll(scene.Orders().first(1)));
        QTEST(scene.Bank.Story().contains(u"TAN? | TAN 111"), "isAsked");
        QTEST(scene.User.LastTan.Display, "display");
    }

    void GivesUpWithTheUser()
    {
        cBankScene scene(WithMethod({.Function = "912"}, {}));
        QVERIFY(scene.SetUp());
        scene.User.Tan.reset();
        QVERIFY(!scene.Business.FetchAll(scene.Orders()));
        QCOMPARE(scene.Bank.Story(), u"init 912 78/3 HKIDN | HKKAZ5 | TAN? | end"_s);
        QCOMPARE(scene.Business.Fetched().at(1).Failure.Fault, eBankFault::Cancelled);
    }

    void NamesAnAnswerThatIsNone()
    {
        cBankScene scene(WithMethod({.Function = "912"}, {}));
        QVERIFY(scene.SetUp());
        scene.Https.Accident = {.Step = "HKTAN2", .How = eSpoil::Html};
        QVERIFY(!scene.Business.FetchAll(scene.Orders()));
        QVERIFY(scene.Business.Failure().Text.startsWith(u"Fehler: Ungültige Antwort nach TAN-Eingabe! Die Antwort"));
        QCOMPARE(scene.Bank.Story(), u"init 912 78/3 HKIDN | HKKAZ5 | TAN? | TAN 111 | end"_s);
    }

    void KeepsSecretsOutOfTheLog()
    {
        cBankScene scene(WithMethod({.Function = "912"}, {}));
        scene.Pin = cSecret(u"pi:n+wort");
        scene.Bank.Profile.Pin = "pi:n+wort";
        QVERIFY(scene.SetUp());
        QVERIFY(scene.Business.FetchAll(scene.Orders()));
        for (const QString& secret : {u"pi:n"_s, u"n+wort"_s, u"pi?:n"_s, u"777666"_s, u"PRODUKTID0123"_s}) {
            QVERIFY2(!scene.Log.Text().contains(secret), qPrintable(secret));
        }
        QVERIFY(scene.Log.Text().contains(u"HKKAZ"));
    }
};

TEST_CLASS(testBusinessTan, QCoreApplication)
#include "testBusinessTan.moc"
