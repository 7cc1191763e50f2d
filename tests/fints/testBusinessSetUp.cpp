#include "fints/cBankScene.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

namespace {

cBankProfile Profile(void (*change)(cBankProfile&))
{
    cBankProfile profile;
    change(profile);
    return profile;
}

cBankProfile Refusing(const QByteArray& step, int nth, const QByteArray& words,
                      const QByteArray& global = "9050::Fehler.")
{
    cBankProfile profile;
    profile.Refusals[step] = {.Nth = nth, .Global = global, .Local = words};
    return profile;
}

QString Methods(const cBankState& state)
{
    return Each(state.Methods, &TanVerfahrenItem::SecurityFunction).join(u' ');
}

const QString syncEnd = u"sync 999 0/0 | end | "_s;

} // namespace

// What a bank wants on the way from a login to its accounts, message by message.
class testBusinessSetUp final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FindsAccounts_data()
    {
        const cTestRows<QString, cBankProfile> row("story", "profile");
        row("after the strong authentication only", syncEnd + u"init 912 78/0 HKIDN | HKTAB4 | end", cBankProfile());
        row("at once", syncEnd + u"init 912 78/3 HKIDN | HKTAB4 | end",
            Profile([](cBankProfile& bank) { bank.TellsAccountsAtOnce = true; }));
        row("behind a TAN", syncEnd + u"init 912 78/0 HKIDN | TAN? | TAN | HKTAB4 | end",
            Profile([](cBankProfile& bank) { bank.AskedTans["HKIDN"] = {}; }));
        row("behind an approval",
            syncEnd
                + u"init 946 78/0 HKIDN | wait 3 | status | wait 2 | status | wait 2 | status | done | HKTAB4 | end",
            Profile([](cBankProfile& bank) {
                bank.Methods = {cBankScene::App("5:3:2:J:J")};
                bank.AskedTans["HKIDN"] = cBankScene::Approval(2);
            }));
        row("medium has to be named",
            syncEnd + u"init 912 78/0 HKTAB | HKTAB4 | end | init 912 78/3 HKIDN | HKTAB4 | end",
            Profile([](cBankProfile& bank) {
                bank.Methods = {{.Function = "912", .MediumRequired = "2"}};
                bank.Media = {"mT?:0170"};
            }));
        row("media in version 5", syncEnd + u"init 912 78/0 HKIDN | HKTAB5 | end",
            Profile([](cBankProfile& bank) { bank.Parameters = {"HITABS:5+1+1+0"}; }));
        row("media not told", syncEnd + u"init 912 78/0 HKIDN | end",
            Profile([](cBankProfile& bank) { bank.Parameters = {"HITABS:2+1+1+0"}; }));
        row("media refused", syncEnd + u"init 912 78/0 HKIDN | HKTAB4 | end",
            Refusing("HKTAB", 1, "9210::Keine Medien."));
        row("PIN alone", syncEnd + u"init 999 78/3 | end", Profile([](cBankProfile& bank) {
                bank.Methods = {};
                bank.OldMethods = "HITANS:1+1+1+0+J:N:0:0:900:2:ITAN:iTAN:6:1:TAN:99:1:J:J";
                bank.Functions = "900";
                bank.Parameters = {"HIKAZS:5+1+1+90:N:N"};
                bank.TellsAccountsAtOnce = true;
            }));
        row("answers with a signature", syncEnd + u"init 912 78/0 HKIDN | HKTAB4 | end",
            Profile([](cBankProfile& bank) { bank.IsSigned = true; }));
        row("user parameters are old and come", syncEnd + u"init 912 78/0 HKIDN | HKTAB4 | end",
            Profile([](cBankProfile& bank) { bank.InitWords = "3050::UPD nicht mehr aktuell. Neue folgen."; }));
        row("ended, but the procedures had been told", u"sync 999 0/0 | sync 912 78/0 HKIDN | end"_s,
            Profile([](cBankProfile& bank) {
                bank.Refusals["HKSYN"] = {
                    .Nth = 1,
                    .Global = "9800::Ende.",
                    .Local = "3920::Verfahren:912",
                    .Extra = "HIBPA:3+78+280:12345678+Testbank+3+1+300'HITANS:6+1+1+1+N:N:0:912:2:sms::"
                             ":SMS:6:1:TAN:999:N:1:N:0:0:N:N:00:0:N:1"};
            }));
        row("procedure of process 1", syncEnd + u"init 912 78/0 HKIDN | TAN? | TAN | HKTAB4 | end",
            Profile([](cBankProfile& bank) {
                bank.Methods = {{.Function = "912", .Process = "1"}};
                bank.AskedTans["HKIDN"] = {};
            }));
        row("user parameters are old and do not come",
            syncEnd + u"init 912 78/3 HKIDN | HKTAB4 | end | sync 999 78/3 | end", Profile([](cBankProfile& bank) {
                bank.TellsAccountsAtOnce = true;
                bank.InitWords = "3050::UPD nicht mehr aktuell.";
            }));
    }

    void FindsAccounts()
    {
        QFETCH(cBankProfile, profile);
        cBankScene scene(profile);
        QVERIFY2(scene.Business.Discover(), qPrintable(scene.Business.ErrorText()));
        QVERIFY2(scene.Business.Refresh(), qPrintable(scene.Business.ErrorText()));
        QTEST(scene.Bank.Story(), "story");
        QVERIFY(scene.Bank.IsQuiet());
        QCOMPARE(scene.State.Accounts.size(), 2);
        QCOMPARE(scene.State.Accounts.constFirst().Iban, u"DE11"_s);
        QCOMPARE(scene.State.SystemId, scene.Bank.Profile.Systems.constLast());
        QCOMPARE(scene.State.BankName, u"Testbank"_s);
    }

    void SaysWhatIsWrong_data()
    {
        // text: with which ErrorText begins
        const cTestRows<cBankProfile, eBankFault, QString, QString> row("profile", "fault", "text", "story");
        const QString pin = u"Sie haben die falsche PIN eingegeben. Häufige Fehleingaben können zur Sperrung von Ihrem "
                            "Account führen."_s;
        const QString sync = u"sync 999 0/0"_s;
        for (const QByteArray code : {"9942", "9931", "9340", "9910", "9930", "9933"}) {
            row(code.constData(), Refusing("HKIDN", 1, code + "::Nein."), eBankFault::WrongPin, pin, sync);
        }
        row("wrong PIN by words", Refusing("HKIDN", 1, u"9210::Die PIN ist ungültig."_s.toLatin1()),
            eBankFault::WrongPin, pin, sync);
        row("wrong PIN after the first dialog", Refusing("HKIDN", 2, "9942::PIN falsch."), eBankFault::WrongPin, pin,
            syncEnd + u"init 912 78/0 HKIDN");
        row("locked", Refusing("HKIDN", 1, "3938::Zugang gesperrt.", "9800::Ende."), eBankFault::Locked, u"9800"_s,
            sync);
        row("locked, with a challenge", Profile([](cBankProfile& bank) {
                bank.AskedTans["HKIDN"] = {};
                bank.Refusals["HKIDN"] = {.Nth = 2,
                                          .Global = "0020::Gut.",
                                          .Local = "3931::Sperre liegt vor.",
                                          .Extra = "HITAN:6+4++12+TAN bitte"};
            }),
            eBankFault::Locked, u"3931"_s, syncEnd + u"init 912 78/0 HKIDN");
        for (const QByteArray code : {"3078", "3079", "9078", "9952", "9160", "9400"}) {
            row(code.constData(), Refusing("HKIDN", 1, code + "::Produkt."), eBankFault::Registration, u"9050"_s,
                u"sync 999 0/0 | end"_s);
        }
        row("login", Refusing("HKIDN", 1, "9010::Benutzerkennung unbekannt."), eBankFault::LoginRefused,
            u"9050 Fehler.\r\n9010 Benutzerkennung"_s, u"sync 999 0/0 | end"_s);
        row("neither accounts nor procedures", Profile([](cBankProfile& bank) {
                bank.IsListed = false;
                bank.InitWords = "3918::Bitte zuerst die neuen Bedingungen annehmen.";
            }),
            eBankFault::NoAccounts, u"Die Kontodaten konnten nicht abgerufen werden."_s, u"sync 999 0/0 | end"_s);
        row("login, beside warnings only", Profile([](cBankProfile& bank) {
                bank.IsListed = false;
                bank.InitWords = "3910::Anmeldung fehlgeschlagen.";
            }),
            eBankFault::LoginRefused, u"3060"_s, u"sync 999 0/0 | end"_s);
        row("accounts without statements only",
            Profile([](cBankProfile& bank) { bank.Accounts = {{.Number = "111", .Product = "Depot"}}; }),
            eBankFault::NoAccounts, u"Die Kontodaten konnten nicht abgerufen werden."_s,
            syncEnd + u"init 912 78/0 HKIDN | HKTAB4 | end");
        row("old procedures only", Profile([](cBankProfile& bank) { bank.Methods.first().Version = 5; }),
            eBankFault::NoMethod, u"Kein unterstütztes TAN-Verfahren gefunden.\r\n3060"_s, u"sync 999 0/0 | end"_s);
        row("procedures of others", Profile([](cBankProfile& bank) { bank.Functions = "944"; }), eBankFault::NoMethod,
            u"Kein unterstütztes TAN-Verfahren gefunden.\r\n3060"_s, u"sync 999 0/0 | end"_s);
        row("ended in the synchronisation", Refusing("HKSYN", 1, {}, "9800::Ende."), eBankFault::EndedByBank,
            u"9800 Ende."_s, sync);
        row("ended in the initialisation", Refusing("HKIDN", 2, {}, "9800::Ende."), eBankFault::EndedByBank,
            u"Die Kontodaten konnten nicht ermittelt werden.\n"_s, syncEnd + u"init 912 78/0 HKIDN");
        row("ended in the list of media", Refusing("HKTAB", 1, {}, "9800::Ende."), eBankFault::EndedByBank,
            u"Die Kontodaten konnten nicht ermittelt werden.\n"_s, syncEnd + u"init 912 78/0 HKIDN | HKTAB4");
    }

    void SaysWhatIsWrong()
    {
        QFETCH(cBankProfile, profile);
        QFETCH(eBankFault, fault);
        QFETCH(QString, text);
        cBankScene scene(profile);
        QVERIFY(!(scene.Business.Discover() && scene.Business.Refresh()));
        QCOMPARE(scene.Fault(), fault);
        QCOMPARE(scene.Business.ErrorText().left(text.size()), text);
        QVERIFY(!scene.Business.Failure().Text.isEmpty());
        QVERIFY(!scene.Business.Failure().Text.contains(u"9"));
        QVERIFY(!scene.Business.Failure().BankWords.isEmpty());
        QTEST(scene.Bank.Story(), "story");
        QVERIFY(scene.Bank.IsQuiet());
        if (fault == eBankFault::WrongPin || fault == eBankFault::Locked) {
            QVERIFY(!scene.Business.Discover()); // the bank would complain of the PIN
            QCOMPARE(scene.Fault(), fault);
        }
    }

    void RemembersWhatCameBeforeAFailure()
    {
        cBankScene scene(Refusing("HKIDN", 2, "9210::Heute nicht."));
        QVERIFY(scene.Business.Discover());
        QVERIFY(!scene.Business.Refresh());
        QCOMPARE(scene.Business.Failure().BankWords, u"Fehler.\nHeute nicht."_s);
        QVERIFY(scene.Business.Failure().Text.startsWith(u"Die Kontodaten konnten nicht ermittelt werden.\nDie Bank"));
        QCOMPARE(scene.State.SystemId, QByteArray("SYS?+2"));
        QCOMPARE(scene.State.BpdVersion, u"78"_s);
        QVERIFY(!scene.State.Parameters.isEmpty());

        QVERIFY(scene.Business.Refresh()); // and then fails when its accounts are known
        scene.Bank.Profile.Refusals["HKIDN"].Nth = 5;
        QVERIFY(scene.Business.Discover());
        QVERIFY(!scene.Business.Refresh());
        QVERIFY(scene.Business.Failure().Text.startsWith(u"Legen Sie dieses Bankkonto neu an"));
    }

    void OffersApprovalFirst()
    {
        cBankScene scene(Profile([](cBankProfile& bank) {
            bank.Methods = {{.Function = "912"}, {.Function = "913", .Version = 7}, cBankScene::App({})};
            bank.Functions = "912:946:913:999";
        }));
        QVERIFY(scene.Business.Discover());
        QCOMPARE(Methods(scene.State), u"946 913 912"_s);
        QVERIFY(!scene.State.Method);
        QVERIFY(!scene.Business.Refresh());
        QCOMPARE(scene.Business.ErrorText(), u"Es wurden keine unterstützen TAN-Verfahren gefunden."_s);
    }

    void SendsNothingWithoutRegistration()
    {
        cBankScene scene;
        HBCIBusiness business({.Https = scene.Https,
                               .User = scene.User,
                               .Clock = scene.Clock,
                               .Log = scene.Log,
                               .ProductId = u" "_s,
                               .ProductVersion = u"1.00"_s},
                              scene.State, scene.Pin);
        QVERIFY(!business.Discover());
        QCOMPARE(business.Failure().Fault, eBankFault::NoProduct);
        QCOMPARE(scene.Https.Posts, 0);
    }
};

TEST_CLASS(testBusinessSetUp, QCoreApplication)
#include "testBusinessSetUp.moc"
