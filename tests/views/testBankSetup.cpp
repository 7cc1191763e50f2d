#include "fints/cBankLog.h"
#include "model/modSettingKey.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "support/testBook.h"
#include "testbank/cTestBank.h"
#include "testbank/cTestBankUser.h"
#include "testbank/cTestHttps.h"
#include "views/bank/cBankDirectory.h"
#include "views/bank/cBankListModel.h"
#include "views/bank/cBankSetup.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

using ePage = cBankSetup::ePage;

const QString product = u"PRODUKTID0123456789012345"_s;

// A book, a bank, and a customer who sets up the login with it.
struct cScene
{
    explicit cScene(const cBankProfile& profile = {}) : Bank(profile)
    {
        Bank.Profile.Pin = "geheim58371";
        User.Pin = u"geheim58371"_s;
        if (Bank.Profile.Accounts.isEmpty()) {
            Bank.Profile.Accounts.append({.Number = "111", .Iban = "DE11", .Product = "Giro Komfort"});
            Bank.Profile.Accounts.append({.Number = "222", .Iban = "DE22", .Product = "Tagesgeld"});
        }
    }

    // As somebody types it, up to the question for the PIN.
    void Type()
    {
        Setup.ChooseCode(u"1234 5678"_s);
        Setup.SetUrl(Https.Url);
        QVERIFY(Setup.Next());
        Setup.SetUserId(u" testuser "_s);
        Setup.SetProductId(product);
    }

    cTestBook Book;
    cTestBank Bank;
    cTestHttps Https{Bank};
    cTestBankUser User{Bank};
    cBankDirectory Directory{Book.Shell};
    cBankSetup Setup{{Book.Tools, Directory, Https, User, u"1.0.7"_s}};
};

QStringList BookAccounts(cBankSetup& setup)
{
    QStringList names;
    for (const cBankAccountChoice::cLine& line : setup.Accounts().Lines()) {
        names.append(line.IsChosen ? line.BookAccount : u"-"_s);
    }
    return names;
}

} // namespace

// From the name of a bank to its accounts in the book.
class testBankSetup final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void SetsUp()
    {
        cScene scene;
        cBankSetup& setup = scene.Setup;
        scene.Type();
        QVERIFY2(setup.Next(), qPrintable(setup.Problem() + setup.BankWords()));
        QCOMPARE(setup.Page(), ePage::Accounts); // there is one procedure only
        QVERIFY(scene.Book.Data.GetOnlineAccounts().isEmpty());
        QCOMPARE(BookAccounts(setup), QStringList({u"Girokonto"_s, u"Tagesgeld"_s}));
        QCOMPARE(setup.Accounts().Note(0), QString());
        QCOMPARE(setup.Accounts().Note(1), u"wird neu angelegt"_s);
        setup.Accounts().Choose(0, false);
        setup.Accounts().SetBookAccount(1, u" Notgroschen "_s);
        QVERIFY(setup.Next());
        QCOMPARE(setup.Page(), ePage::Done);

        QVERIFY(scene.Book.Data.FindAccount(u"Notgroschen"_s));
        QCOMPARE(scene.Book.Settings->Get(modSettingKey::BankNumber.Of(u"DE22"_s)), u"Notgroschen"_s);
        QCOMPARE(scene.Book.Settings->Get(modSettingKey::BankProduct), product);
        const cBankListModel list(scene.Book.Tools);
        QCOMPARE(list.rowCount(), 1);
        QCOMPARE(list.index(0, cBankListModel::Login).data().toString(), u"testuser"_s);
        QCOMPARE(list.index(0, cBankListModel::BookAccount).data().toString(), u"Notgroschen"_s);
        QCOMPARE(list.index(0, cBankListModel::LastFetch).data().toString(), u"noch nie"_s);
        const std::optional<cBankState> state = cBankAccess(scene.Book.Tools).Find(u"12345678"_s, u"testuser"_s);
        QCOMPARE(state, setup.State());
        QVERIFY(state->SystemId != "0" && state->BpdVersion != u"0");
        QCOMPARE(scene.Bank.Journal.count(u"PIN?"_s), 1);
        QVERIFY(scene.Bank.IsQuiet());
        cScene another;
        QVERIFY(cBankAccess(another.Book.Tools).Save(*state));
        another.Setup.ChooseCode(u"12345678"_s);
        QCOMPARE(another.Setup.State().Url, state->Url); // typed once for all logins of a bank
        // The account is a step of the book, the login is none.
        QVERIFY(scene.Book.Data.Journal().Undo());
        QVERIFY(!scene.Book.Data.FindAccount(u"Notgroschen"_s));
        QCOMPARE(cBankAccess(scene.Book.Tools).Find(u"12345678"_s, u"testuser"_s), state);
        const auto settings = scene.Book.Data.GetSettings();
        for (const auto& [name, value] : settings) {
            QVERIFY2(!value.contains(*scene.User.Pin), qPrintable(name));
        }
        QVERIFY(!setup.Log().Text().contains(*scene.User.Pin));
    }

    void ChangesALogin()
    {
        cScene scene;
        scene.Type();
        QVERIFY(scene.Setup.Next());
        scene.Setup.Accounts().Choose(1, false);
        QVERIFY(scene.Setup.Next());

        cBankSetup again({scene.Book.Tools, scene.Directory, scene.Https, scene.User, u"1.0.7"_s});
        again.Load(*cBankAccess(scene.Book.Tools).Find(u"12345678"_s, u"testuser"_s));
        QVERIFY(!again.CanGoBack());
        QVERIFY2(again.Next(), qPrintable(again.Problem()));
        QCOMPARE(BookAccounts(again), QStringList({u"Girokonto"_s, u"-"_s}));
        again.Accounts().Choose(1, true);
        again.Accounts().Choose(0, false);
        QVERIFY(again.Next());
        QCOMPARE(cBankListModel(scene.Book.Tools).Lines().constFirst().Account.Number, u"222"_s);

        cBankListModel list(scene.Book.Tools);
        QVERIFY(!list.Remove(0)); // the question is answered with no
        scene.Book.User.Answers = {eAnswer::Yes};
        QVERIFY(list.Remove(0));
        QCOMPARE(list.rowCount(), 0);
    }

    void ASecondLoginSpeaksTheProtocolOfTheFirst()
    {
        cScene scene;
        QVERIFY(scene.Book.Settings->Set(modSettingKey::OnlineBank.Of(u"12345678"_s), u"220"_s));
        scene.Type();
        QCOMPARE(scene.Setup.State().HbciVersion, u"220"_s);
    }

    void AsksForWhatIsMissing_data()
    {
        const cTestRows<QString, QString, QString, QString, QString> row("Code", "Url", "UserId", "Product", "Problem");
        const QString code = u"12345678"_s;
        const QString url = u"https://bank.example/fints"_s;
        row("no bank", {}, url, u"ich"_s, product, u"Suchen Sie Ihre Bank"_s);
        row("no address", code, {}, u"ich"_s, product, u"Für diese Bank ist keine Adresse"_s);
        for (const QString& wrong : {u"http://bank.example/fints"_s, u"bank.example"_s, u"https://"_s}) {
            QTest::addRow("address %s", qPrintable(wrong))
                << code << wrong << u"ich"_s << product << u"Die Adresse der Bank muss mit https:// beginnen"_s;
        }
        row("no login", code, url, u" "_s, product, u"Geben Sie den Anmeldenamen ein"_s);
        row("no registration", code, url, u"ich"_s, u" "_s, u"Tragen Sie die Produktregistrierung ein"_s);
    }

    void AsksForWhatIsMissing()
    {
        QFETCH(QString, Code);
        QFETCH(QString, Url);
        QFETCH(QString, UserId);
        QFETCH(QString, Product);
        QFETCH(QString, Problem);
        cScene scene;
        scene.Setup.ChooseCode(Code);
        scene.Setup.SetUrl(Url);
        scene.Setup.SetUserId(UserId);
        scene.Setup.SetProductId(Product);
        QVERIFY(!(scene.Setup.Next() && scene.Setup.Next()));
        QVERIFY2(scene.Setup.Problem().startsWith(Problem), qPrintable(scene.Setup.Problem()));
        QCOMPARE(scene.Https.Posts, 0);
        QCOMPARE(scene.Bank.Journal, QStringList()); // nobody was asked for a PIN
    }

    void PinIsAskedForAgain()
    {
        cScene scene;
        scene.Bank.Profile.Refusals["HKIDN"] = {
            .Nth = 1, .Global = "9050::Fehler.", .Local = "9942::PIN falsch.", .Extra = {}};
        scene.Type();
        QVERIFY(!scene.Setup.Next());
        QCOMPARE(scene.Setup.Page(), ePage::Login);
        QVERIFY2(scene.Setup.Problem().startsWith(u"Sie haben die falsche PIN eingegeben."),
                 qPrintable(scene.Setup.Problem()));
        QVERIFY(scene.Setup.BankWords().contains(u"PIN falsch."));
        QVERIFY(cBankListModel(scene.Book.Tools).Lines().isEmpty());
        scene.User.Pin.reset(); // nothing is sent
        const int posts = scene.Https.Posts;
        QVERIFY(!scene.Setup.Next());
        QCOMPARE(scene.Setup.Failure().Fault, eBankFault::Cancelled);
        QCOMPARE(scene.Https.Posts, posts);
        QCOMPARE(scene.Bank.Journal.count(u"PIN?"_s), 2);
    }

    void MediumIsChosenBeforeAccounts()
    {
        cScene scene;
        scene.Bank.Profile.Methods = {{.Function = "912", .MediumRequired = "2"}};
        scene.Bank.Profile.Media = {"Han?:dy", "Tablet"};
        scene.Type();
        QVERIFY(!scene.Setup.Next());
        QCOMPARE(scene.Setup.Page(), ePage::Method);
        QVERIFY(scene.Setup.AsksMedium());
        QVERIFY2(scene.Setup.Problem().endsWith(u"Wählen Sie es aus."), qPrintable(scene.Setup.Problem()));
        QCOMPARE(scene.Setup.State().Media, QStringList({u"Han:dy"_s, u"Tablet"_s}));
        scene.Setup.ChooseMedium(0);
        QVERIFY2(scene.Setup.Next(), qPrintable(scene.Setup.Problem()));
        QVERIFY(scene.Setup.Next());
        QCOMPARE(cBankAccess(scene.Book.Tools).Banks().constFirst().Medium, u"Han:dy"_s);
    }

    void AccountsFindTheirPlaceInTheBook()
    {
        cScene scene;
        scene.Bank.Profile.Accounts = {{.Number = "0815", .Iban = "DE81", .Product = "Giro"},
                                       {.Number = "0816", .Iban = "DE82", .Product = "Giro"},
                                       {.Number = "0817", .Iban = "DE83", .Product = "Anlage"}};
        // The number is known from a file, in another form.
        QVERIFY(scene.Book.Settings->Set(modSettingKey::BankNumber.Of(u"817"_s), u"Girokonto"_s));
        scene.Type();
        QVERIFY2(scene.Setup.Next(), qPrintable(scene.Setup.Problem()));
        QCOMPARE(BookAccounts(scene.Setup), QStringList({u"Giro"_s, u"Giro 0816"_s, u"Girokonto"_s}));
        scene.Setup.Accounts().SetBookAccount(1, u" "_s);
        QVERIFY(!scene.Setup.Next());
        QVERIFY2(scene.Setup.Problem().contains(u"DE82"), qPrintable(scene.Setup.Problem()));
        for (qsizetype line = 0; line < 3; ++line) {
            scene.Setup.Accounts().Choose(line, false);
        }
        QVERIFY(!scene.Setup.Next());
        QVERIFY2(scene.Setup.Problem().startsWith(u"Wählen Sie mindestens ein Konto aus"),
                 qPrintable(scene.Setup.Problem()));
    }

    void AccountsThatCannotBeFetchedSayWhy()
    {
        cScene scene;
        scene.Bank.Profile.Accounts.last().Orders = "HKSAL:1";
        scene.Type();
        QVERIFY2(scene.Setup.Next(), qPrintable(scene.Setup.Problem()));
        QCOMPARE(BookAccounts(scene.Setup), QStringList({u"Girokonto"_s, u"-"_s}));
        scene.Setup.Accounts().Choose(1, true); // stays as it is
        QCOMPARE(scene.Setup.Accounts().Chosen().size(), 1);
        QCOMPARE(scene.Setup.Accounts().Lines().at(1).Reason,
                 u"Für dieses Konto gibt die Bank keine Umsätze heraus."_s);

        cScene without;
        without.Bank.Profile.Parameters.clear();
        without.Type();
        QVERIFY2(without.Setup.Next(), qPrintable(without.Setup.Problem()));
        QVERIFY(!without.Setup.Next());
        QVERIFY2(without.Setup.Problem().contains(u"DE22: Diese Bank gibt auf diesem Weg keine Umsätze heraus."),
                 qPrintable(without.Setup.Problem()));
    }

    void Cancels()
    {
        cScene scene;
        QObject::connect(&scene.Setup, &cBankSetup::StepShown, &scene.Setup, [&] { scene.Setup.Cancel(); });
        scene.Type();
        QVERIFY(!scene.Setup.Next());
        QCOMPARE(scene.Setup.Failure().Fault, eBankFault::Cancelled);
        QVERIFY(scene.Bank.IsQuiet());
        scene.Setup.disconnect();
        QVERIFY2(scene.Setup.Next(), qPrintable(scene.Setup.Problem()));
    }

    void AnotherAddressIsShownAndNotUsed()
    {
        cScene scene;
        scene.Bank.Profile.Parameters.append(
            "HIKOM:4+280:12345678+1+2:alt.example::MIM:1+3:https?://neu.example/fints::MIM:1");
        scene.Type();
        QVERIFY2(scene.Setup.Next(), qPrintable(scene.Setup.Problem()));
        const QString begin = u"Die Bank nennt eine andere Adresse: https://neu.example/fints."_s;
        QVERIFY2(scene.Setup.AddressNote().startsWith(begin), qPrintable(scene.Setup.AddressNote()));
        QVERIFY(scene.Setup.Next());
        const cBankAccess access(scene.Book.Tools);
        QCOMPARE(access.Banks().constFirst().Url, scene.Https.Url);

        scene.Setup.Load(access.Banks().constFirst());
        scene.Setup.SetUrl(u"neu.example/fints"_s);
        QVERIFY(!scene.Setup.Next());
        QCOMPARE(scene.Setup.Problem(), u"Die Adresse der Bank muss mit https:// beginnen."_s);
        scene.Https.Url = u"https://neu.example/fints"_s;
        scene.Setup.SetUrl(scene.Https.Url);
        QVERIFY2(scene.Setup.Next(), qPrintable(scene.Setup.Problem()));
        QCOMPARE(scene.Setup.AddressNote(), QString());
    }
};

TEST_CLASS(testBankSetup, QCoreApplication)
#include "testBankSetup.moc"
