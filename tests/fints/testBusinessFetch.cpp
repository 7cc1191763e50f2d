#include "fints/cBankScene.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using fnChange = void (*)(cBankProfile&);

cBankProfile Profile(fnChange change)
{
    cBankProfile profile;
    profile.Accounts = {{.Number = "111", .Iban = "DE11", .Pages = {cBankScene::Statement("1,11")}}};
    change(profile);
    return profile;
}

const QString init = u"init 912 78/3 HKIDN | "_s;

} // namespace

// Bookings of accounts, message by message.
class testBusinessFetch final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Fetches_data()
    {
        // story: behind the beginning of the dialog
        const cTestRows<QString, fnChange> row("story", "change");
        row("version 5", u"HKKAZ5 111 | HKSAL5 111 | end"_s, [](cBankProfile&) {});
        row("highest version without 5", u"HKKAZ7 111 | HKSAL7 111 | end"_s, [](cBankProfile& bank) {
            bank.Parameters = {"HIKAZS:6+1+1+0+90:N:N", "HIKAZS:7+1+1+0+90:N:N", "HISALS:7+1+1+0"};
        });
        row("version 6", u"HKKAZ6 111 | end"_s,
            [](cBankProfile& bank) { bank.Parameters = {"HIKAZS:6+1+1+0+90:N:N"}; });
        row("older version", u"HKKAZ5 111 | end"_s,
            [](cBankProfile& bank) { bank.Parameters = {"HIKAZS:4+1+1+90:N:N"}; });
        row("camt beside an older version", u"HKCAZ1 111 | end"_s, [](cBankProfile& bank) {
            bank.Parameters = {"HIKAZS:4+1+1+90:N:N", "HICAZS:1+1+1+0+90:N:N:urn?:iso?:camt.052.001.08"};
            bank.Accounts = {{.Number = "111", .Iban = "DE11", .Orders = "HKKAZ:1+HKCAZ:1"}};
        });
        row("IBAN has to be asked for", u"HKSPA1 | HKKAZ7 111 | end"_s, [](cBankProfile& bank) {
            bank.Parameters = {"HIKAZS:7+1+1+0+90:N:N", "HISPAS:1+1+1+0+J:N:N"};
            bank.Accounts.first().Iban.clear();
        });
        row("balance not allowed", u"HKKAZ5 111 | end"_s,
            [](cBankProfile& bank) { bank.Accounts.first().Orders = "HKKAZ:1"; });
        row("three pages", u"HKKAZ5 111 | HKKAZ5 111 page 2 | HKKAZ5 111 page 3 | HKSAL5 111 | end"_s,
            [](cBankProfile& bank) {
                bank.Accounts.first().Pages = {"\r\n:20:A\r\n-", "\r\n:20:B\r\n-", "\r\n:20:C\r\n-"};
            });
        row("a TAN for every page", u"HKKAZ5 | TAN? | TAN 111 | HKKAZ5 | TAN? | TAN 111 page 2 | HKSAL5 111 | end"_s,
            [](cBankProfile& bank) {
                bank.Accounts.first().Pages = {"\r\n:20:A\r\n-", "\r\n:20:B\r\n-"};
                bank.AskedTans["HKKAZ"] = {.Times = -1};
            });
        row("no bookings", u"HKKAZ5 111 | HKSAL5 111 | end"_s,
            [](cBankProfile& bank) { bank.Accounts.first().Pages.clear(); });
        row("nothing booked", u"HKKAZ5 111 | HKSAL5 111 | end"_s, [](cBankProfile& bank) {
            bank.Accounts.first().Pages = {""};
            bank.Accounts.first().Pending = {"\r\n:20:P\r\n-"};
        });
    }

    void Fetches()
    {
        QFETCH(fnChange, change);
        QFETCH(QString, story);
        const cBankProfile profile = Profile(change);
        cBankScene scene(profile);
        QVERIFY(scene.SetUp());
        scene.State.Bic = u"TESTDEFFXXX"_s;
        QVERIFY2(scene.Business.FetchAll(scene.Orders()), qPrintable(scene.Business.ErrorText()));
        QCOMPARE(scene.Bank.Story(), init + story);
        QVERIFY(scene.Bank.IsQuiet());
        const cFetchedAccount& fetched = scene.Business.Fetched().constFirst();
        QCOMPARE(fetched.MT940, QString::fromLatin1(profile.Accounts.constFirst().Pages.join()));
        QCOMPARE(fetched.Balance.has_value(), story.contains(u"HKSAL"));
        QCOMPARE(fetched.Balance.value_or(123456), 123456);
    }

    // Wherever the bank cuts, in whichever of the two character sets.
    void JoinsPagesByteByByte()
    {
        const QString purpose = u"Gr\u00f6\u00dfe'+:@?"_s;
        const QString expected = QString::fromUtf8(cBankScene::Statement("1,11", purpose.toUtf8()));
        for (const QByteArray& bytes : {purpose.toUtf8(), purpose.toLatin1()}) {
            const QByteArray whole = cBankScene::Statement("1,11", bytes);
            for (qsizetype cut = 1; cut < whole.size(); cut += 7) {
                cBankProfile profile;
                profile.Accounts = {{.Number = "111", .Pages = {whole.left(cut), whole.mid(cut)}}};
                cBankScene scene(profile);
                QVERIFY(scene.SetUp());
                QVERIFY(scene.Business.getAccountTransactions(scene.Orders().constFirst()));
                QCOMPARE(scene.Business.Fetched().constFirst().MT940, expected);
            }
        }
    }

    void OneAccountLeavesTheOthers_data()
    {
        const cTestRows<cBankProfile, QString, eBankFault, eBankFault> row("profile", "story", "first", "second");
        const auto with = [](fnChange change) {
            cBankProfile profile = Profile([](cBankProfile&) {});
            profile.Parameters.removeIf([](const QByteArray& parameter) { return parameter.startsWith("HISALS"); });
            profile.Accounts.append({.Number = "222", .Iban = "DE22", .Pages = {cBankScene::Statement("2,22")}});
            change(profile);
            return profile;
        };
        row("refused", with([](cBankProfile& bank) { bank.Accounts.first().Refusal = "9210::Nicht heute."; }),
            init + u"HKKAZ5 111 | HKKAZ5 222 | end", eBankFault::Other, eBankFault::None);
        row("no statements", with([](cBankProfile& bank) { bank.Accounts.first().Orders = "HKWPD:1"; }),
            init + u"HKKAZ5 222 | end", eBankFault::NoStatements, eBankFault::None);
        row("wrong TAN", with([](cBankProfile& bank) { bank.AskedTans["HKKAZ"] = {.Refusal = "9941::TAN ung."}; }),
            init + u"HKKAZ5 | TAN? | TAN | HKKAZ5 222 | end", eBankFault::TanWrong, eBankFault::None);
        row("wrong signature by the TAN",
            with([](cBankProfile& bank) { bank.AskedTans["HKKAZ"] = {.Refusal = "9340::Signatur der TAN."}; }),
            init + u"HKKAZ5 | TAN? | TAN | HKKAZ5 222 | end", eBankFault::TanWrong, eBankFault::None);
        row("ended by the bank", with([](cBankProfile& bank) { bank.Refusals["HKKAZ"] = {.Global = "9800::Ende."}; }),
            init + u"HKKAZ5", eBankFault::EndedByBank, eBankFault::EndedByBank);
        row("camt, because the account has nothing else", with([](cBankProfile& bank) {
                bank.Parameters.append(
                    "HICAZS:1+1+1+0+90:N:N:urn?:iso?:std?:iso?:20022?:tech?:xsd?:camt.052.001.02:urn?:"
                    "iso?:std?:iso?:20022?:"
                    "tech?:xsd?:camt.052.001.08");
                bank.Accounts.first().Orders = "HKCAZ:1";
                bank.Accounts.first().Camt = {"<Document>1</Document>", "<Document>2</Document>"};
            }),
            init + u"HKCAZ1 111 | HKCAZ1 111 page 2 | HKKAZ5 222 | end", eBankFault::None, eBankFault::None);
    }

    void OneAccountLeavesTheOthers()
    {
        QFETCH(cBankProfile, profile);
        QFETCH(eBankFault, first);
        QFETCH(eBankFault, second);
        cBankScene scene(profile);
        QVERIFY(scene.SetUp());
        scene.State.Bic = u"TESTDEFFXXX"_s;
        QCOMPARE(scene.Business.FetchAll(scene.Orders()), first == eBankFault::None);
        QCOMPARE(scene.Fault(), first);
        QTEST(scene.Bank.Story(), "story");
        QVERIFY(scene.Bank.IsQuiet());
        const QList<cFetchedAccount>& fetched = scene.Business.Fetched();
        QCOMPARE(fetched.size(), 2);
        QCOMPARE(fetched.at(0).Failure.Fault, first);
        QCOMPARE(fetched.at(1).Failure.Fault, second);
        QCOMPARE(fetched.at(0).Camt, profile.Accounts.constFirst().Camt);
        QCOMPARE(fetched.at(1).MT940.isEmpty(), second != eBankFault::None);
    }

    // A booking whose end is on the page that never came would stand in the book with half its amount.
    void KeepsWholeStatementsOnly()
    {
        const QByteArray first = cBankScene::Statement("1,11", "a-b") + "\r\n";
        const QByteArray second = cBankScene::Statement("2222,22");
        cBankProfile profile;
        profile.Accounts = {{.Number = "111", .Pages = {first + second.left(75), second.mid(75)}}};
        profile.Refusals["HKKAZ"] = {.Nth = 2, .Global = "9800::Ende."};
        cBankScene scene(profile);
        QVERIFY(scene.SetUp());
        QVERIFY(!scene.Business.FetchAll(scene.Orders()));
        QCOMPARE(scene.Business.Fetched().constFirst().MT940, QString::fromLatin1(first).trimmed().prepend(u"\r\n"_s));
    }

    void ReplacesAForgottenSystemIdOnce()
    {
        cBankScene scene;
        QVERIFY(scene.SetUp());
        scene.Bank.Profile.Systems = {"SYS?+1"};
        QVERIFY(scene.Business.FetchAll(scene.Orders().first(1)));
        QCOMPARE(scene.Bank.Story(), init + u"end | sync 912 78/3 HKIDN | HKKAZ5 111 | HKSAL5 111 | end");
        QCOMPARE(scene.State.SystemId, QByteArray("SYS?+2"));
        scene.Bank.Journal.clear();
        scene.Bank.Profile.Systems.clear();
        scene.Bank.Profile.Refusals["HKSYN"] = {.Nth = 0, .Local = "9391::Kundensystem-ID unbekannt."};
        QVERIFY(!scene.Business.FetchAll(scene.Orders().first(1)));
        QCOMPARE(scene.Bank.Story(), init + u"end | sync 912 78/3 HKIDN | end");
    }

    void SpeaksTheOldProtocol()
    {
        cBankScene scene;
        scene.State.HbciVersion = u"220"_s;
        QVERIFY(scene.SetUp());
        QVERIFY(scene.Business.FetchAll(scene.Orders()));
        QVERIFY(scene.Bank.LastText.contains("+220+"));
    }

    // A login whose parameters were lost: without their contents no version of them is claimed.
    void KnowsNothingAndAsksForAll()
    {
        cBankScene scene;
        QVERIFY(scene.SetUp());
        const QList<cFetchOrder> orders = scene.Orders().first(1);
        scene.State.Parameters.clear();
        scene.State.Accounts.clear();
        QVERIFY(scene.Business.FetchAll(orders));
        QCOMPARE(scene.Bank.Story(), u"init 912 0/0 HKIDN | HKKAZ5 111 | HKSAL5 111 | end"_s);
    }

    // The bank may tell in the same dialog that it sends other documents from now on.
    void AsksForWhatTheAccountAllowsNow()
    {
        cBankScene scene;
        QVERIFY(scene.SetUp());
        QList<cFetchOrder> orders = scene.Orders().first(1);
        orders.first().Account.Orders = {u"HKWPD"_s};
        QVERIFY(scene.Business.FetchAll(orders));
        QCOMPARE(scene.Bank.Story(), init + u"HKKAZ5 111 | HKSAL5 111 | end"_s);
    }

    // The question for the second account comes right behind a TAN that was wrong, and looks like the first one.
    void NamesTheAccountOfATan()
    {
        cBankScene scene;
        QVERIFY(scene.SetUp());
        scene.Bank.Profile.AskedTans["HKKAZ"] = {.Times = -1, .Refusal = "9941::TAN falsch."};
        QVERIFY(!scene.Business.FetchAll(scene.Orders().first(1)));
        QCOMPARE(scene.User.LastTan.Purpose, u"Umsätze von Girokonto 111"_s);
        QVERIFY(!scene.Business.FetchAll(scene.Orders()));
        QCOMPARE(scene.User.LastTan.Purpose,
                 u"Die TAN für Girokonto 111 war falsch. Diese ist für die Umsätze von Tagesgeld 222."_s);
    }
};

TEST_CLASS(testBusinessFetch, QCoreApplication)
#include "testBusinessFetch.moc"
