#include "fints/cBankLog.h"
#include "model/modSettingKey.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"
#include "support/cTestRows.h"
#include "support/fakes.h"
#include "support/testBook.h"
#include "testbank/cTestBank.h"
#include "testbank/cTestBankUser.h"
#include "testbank/cTestHttps.h"
#include "views/bank/cBankDirectory.h"
#include "views/bank/cBankListModel.h"
#include "views/bank/cBankSetup.h"

#include <QRegularExpression>
#include <QSet>

using namespace Qt::Literals::StringLiterals;
using ePage = cBankSetup::ePage;

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

constexpr const char* invented = "# a comment\n"
                                 "10000001\tAAAADE11XXX\tBank in Köln -alt-\tKöln\thttps://alt.example/\n"
                                 "10000002\tBBBBDE22XXX\tBank in Aachen\tAachen\t\n"
                                 "10000003\tCCCCDE33XXX\tBank in Köln\tKöln\thttps://koeln.example/\n"
                                 "10000004\tDDDDDE44XXX\tVolksbank Groß-Gerau\tGroß-Gerau\thttps://gg.example/\n"
                                 "10000005\tDDDDDE44GIE\tVolksbank\tGießen\thttps://vb.example/\n"
                                 "10000006\tDDDDDE44FUL\tVolksbank\tFulda\thttps://vb.example/\n"
                                 "37040044\tEEEEDE55XXX\tSteinbank\tBankenheim\t\n";

QString Codes(const cBankInfoList& banks)
{
    QStringList codes;
    for (const cBankInfo& bank : banks) {
        codes.append(bank.Code.right(2));
    }
    return codes.join(u' ');
}

// The directory of a program that this file was installed with.
struct cInstalled
{
    explicit cInstalled(const QByteArray& text) { cTestFile::Write(Shell.InstalledFile(u"banken.tsv"_s), text); }

    cFakeShell Shell;
    cBankDirectory Directory{Shell};
};

QByteArray Shipped()
{
    return cTestFile::Bytes(QStringLiteral(BANKS));
}

} // namespace

// From the name of a bank to its accounts in the book.
class testBankSetup final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_scene.emplace(); }

    void SetsUp()
    {
        cBankSetup& setup = m_scene->Setup;
        m_scene->Type();
        QVERIFY2(setup.Next(), qPrintable(setup.Problem() + setup.BankWords()));
        QCOMPARE(setup.Page(), ePage::Accounts); // there is one procedure only
        QVERIFY(m_scene->Book.Data.GetOnlineAccounts().isEmpty());
        QCOMPARE(BookAccounts(setup), QStringList({u"Girokonto"_s, u"Tagesgeld"_s}));
        QCOMPARE(setup.Accounts().Note(0), QString());
        QCOMPARE(setup.Accounts().Note(1), u"wird neu angelegt"_s);
        setup.Accounts().Choose(0, false);
        setup.Accounts().SetBookAccount(1, u" Notgroschen "_s);
        QVERIFY(setup.Next());
        QCOMPARE(setup.Page(), ePage::Done);

        QVERIFY(m_scene->Book.Data.FindAccount(u"Notgroschen"_s));
        for (const QString& number : {u"222"_s, u"DE22"_s}) {
            QCOMPARE(m_scene->Book.Settings->Get(modSettingKey::BankNumber.Of(number)), u"Notgroschen"_s);
        }
        QCOMPARE(m_scene->Book.Settings->Get(modSettingKey::BankProduct), product);
        const cBankListModel list(m_scene->Book.Tools);
        QCOMPARE(list.rowCount(), 1);
        QCOMPARE(list.index(0, cBankListModel::Login).data().toString(), u"testuser"_s);
        QCOMPARE(list.index(0, cBankListModel::BookAccount).data().toString(), u"Notgroschen"_s);
        QCOMPARE(list.index(0, cBankListModel::LastFetch).data().toString(), u"noch nie"_s);
        const std::optional<cBankState> state = cBankAccess(m_scene->Book.Tools).Find(u"12345678"_s, u"testuser"_s);
        QCOMPARE(state, setup.State());
        QVERIFY(state->SystemId != "0" && state->BpdVersion != u"0");
        QCOMPARE(m_scene->Bank.Journal.count(u"PIN?"_s), 1);
        QVERIFY(m_scene->Bank.IsQuiet());
        cScene another;
        QVERIFY(cBankAccess(another.Book.Tools).Save(*state));
        another.Setup.ChooseCode(u"12345678"_s);
        QCOMPARE(another.Setup.State().Url, state->Url); // typed once for all logins of a bank
        // The account is a step of the book, the login is none.
        QVERIFY(m_scene->Book.Data.Journal().Undo());
        QVERIFY(!m_scene->Book.Data.FindAccount(u"Notgroschen"_s));
        QCOMPARE(cBankAccess(m_scene->Book.Tools).Find(u"12345678"_s, u"testuser"_s), state);
        const auto settings = m_scene->Book.Data.GetSettings();
        for (const auto& [name, value] : settings) {
            QVERIFY2(!value.contains(*m_scene->User.Pin), qPrintable(name));
        }
        QVERIFY(!setup.Log().Text().contains(*m_scene->User.Pin));
    }

    void ChangesALogin()
    {
        m_scene->Type();
        QVERIFY(m_scene->Setup.Next());
        m_scene->Setup.Accounts().Choose(1, false);
        QVERIFY(m_scene->Setup.Next());

        cBankSetup again({m_scene->Book.Tools, m_scene->Directory, m_scene->Https, m_scene->User, u"1.0.7"_s});
        again.Load(*cBankAccess(m_scene->Book.Tools).Find(u"12345678"_s, u"testuser"_s));
        QVERIFY(!again.CanGoBack());
        const std::optional<QString> pin = std::exchange(m_scene->User.Pin, std::nullopt);
        again.SetProductId(u"4711"_s); // typed in the wrong place
        QVERIFY(!again.Next());
        QVERIFY(!again.MayClose());
        QCOMPARE(m_scene->Book.Settings->Get(modSettingKey::BankProduct), product);
        again.SetProductId(product);
        m_scene->User.Pin = pin;
        QVERIFY2(again.Next(), qPrintable(again.Problem()));
        QCOMPARE(BookAccounts(again), QStringList({u"Girokonto"_s, u"-"_s}));
        QVERIFY(again.MayClose()); // what the bank has told is no loss
        again.Accounts().Choose(1, true);
        QVERIFY(!again.MayClose());
        again.Accounts().Choose(0, false);
        QVERIFY(again.Next());
        QCOMPARE(cBankListModel(m_scene->Book.Tools).Lines().constFirst().Account.Number, u"222"_s);

        cBankListModel list(m_scene->Book.Tools);
        QVERIFY(!list.Remove(0)); // the question is answered with no
        m_scene->Book.User.Answers = {eAnswer::Yes};
        QVERIFY(list.Remove(0));
        QCOMPARE(list.rowCount(), 0);
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
        m_scene->Setup.ChooseCode(Code);
        m_scene->Setup.SetUrl(Url);
        m_scene->Setup.SetUserId(UserId);
        m_scene->Setup.SetProductId(Product);
        QVERIFY(!(m_scene->Setup.Next() && m_scene->Setup.Next()));
        QVERIFY2(m_scene->Setup.Problem().startsWith(Problem), qPrintable(m_scene->Setup.Problem()));
        QCOMPARE(m_scene->Https.Posts, 0);
        QCOMPARE(m_scene->Bank.Journal, QStringList()); // nobody was asked for a PIN
    }

    void PinIsAskedForAgain()
    {
        m_scene->Bank.Profile.Refusals["HKIDN"] = {
            .Nth = 1, .Global = "9050::Fehler.", .Local = "9942::PIN falsch.", .Extra = {}};
        m_scene->Type();
        QVERIFY(!m_scene->Setup.Next());
        QCOMPARE(m_scene->Setup.Page(), ePage::Login);
        QVERIFY(m_scene->Setup.Problem().startsWith(u"Sie haben die falsche PIN eingegeben."));
        QVERIFY(m_scene->Setup.BankWords().contains(u"PIN falsch."));
        QVERIFY(cBankListModel(m_scene->Book.Tools).Lines().isEmpty());
        m_scene->User.Pin.reset(); // nothing is sent
        const int posts = m_scene->Https.Posts;
        QVERIFY(!m_scene->Setup.Next());
        QCOMPARE(m_scene->Setup.Failure().Fault, eBankFault::Cancelled);
        QCOMPARE(m_scene->Https.Posts, posts);
        QCOMPARE(m_scene->Bank.Journal.count(u"PIN?"_s), 2);
    }

    void MediumIsChosenBeforeAccounts()
    {
        m_scene->Bank.Profile.Methods = {{.Function = "912", .MediumRequired = "2"}};
        m_scene->Bank.Profile.Media = {"Han?:dy", "Tablet"};
        m_scene->Type();
        QVERIFY(!m_scene->Setup.Next());
        QCOMPARE(m_scene->Setup.Page(), ePage::Method);
        QVERIFY(m_scene->Setup.AsksMedium());
        QVERIFY2(m_scene->Setup.Problem().endsWith(u"Wählen Sie es aus."), qPrintable(m_scene->Setup.Problem()));
        QCOMPARE(m_scene->Setup.State().Media, QStringList({u"Han:dy"_s, u"Tablet"_s}));
        m_scene->Setup.ChooseMedium(0);
        QVERIFY2(m_scene->Setup.Next(), qPrintable(m_scene->Setup.Problem()));
        QVERIFY(m_scene->Setup.Next());
        QCOMPARE(cBankAccess(m_scene->Book.Tools).Banks().constFirst().Medium, u"Han:dy"_s);
    }

    void AccountsFindTheirPlaceInTheBook()
    {
        m_scene->Bank.Profile.Accounts = {{.Number = "0815", .Iban = "DE81", .Product = "Giro"},
                                          {.Number = "0816", .Iban = "DE82", .Product = "Giro"},
                                          {.Number = "0817", .Iban = "DE83", .Product = "Anlage"}};
        // The number is known from a file, in another form.
        QVERIFY(m_scene->Book.Settings->Set(modSettingKey::BankNumber.Of(u"817"_s), u"Girokonto"_s));
        m_scene->Type();
        QVERIFY2(m_scene->Setup.Next(), qPrintable(m_scene->Setup.Problem()));
        QCOMPARE(BookAccounts(m_scene->Setup), QStringList({u"Giro"_s, u"Giro 0816"_s, u"Girokonto"_s}));
        m_scene->Setup.Accounts().SetBookAccount(1, u" "_s);
        QVERIFY(!m_scene->Setup.Next());
        QVERIFY2(m_scene->Setup.Problem().contains(u"DE82"), qPrintable(m_scene->Setup.Problem()));
        for (qsizetype line = 0; line < 3; ++line) {
            m_scene->Setup.Accounts().Choose(line, false);
        }
        QVERIFY(!m_scene->Setup.Next());
        QVERIFY(m_scene->Setup.Problem().startsWith(u"Wählen Sie mindestens ein Konto aus"));
    }

    void AccountsThatCannotBeFetchedSayWhy()
    {
        m_scene->Bank.Profile.Accounts.last().Orders = "HKSAL:1";
        m_scene->Type();
        QVERIFY2(m_scene->Setup.Next(), qPrintable(m_scene->Setup.Problem()));
        QCOMPARE(BookAccounts(m_scene->Setup), QStringList({u"Girokonto"_s, u"-"_s}));
        m_scene->Setup.Accounts().Choose(1, true); // stays as it is
        QCOMPARE(m_scene->Setup.Accounts().Chosen().size(), 1);
        QCOMPARE(m_scene->Setup.Accounts().Lines().at(1).Reason,
                 u"Für dieses Konto gibt die Bank keine Umsätze heraus."_s);

        cScene without;
        without.Bank.Profile.Parameters.clear();
        without.Type();
        QVERIFY2(without.Setup.Next(), qPrintable(without.Setup.Problem()));
        QVERIFY(!without.Setup.Next());
        QVERIFY(without.Setup.Problem().contains(u"DE22: Diese Bank gibt auf diesem Weg keine Umsätze heraus."));
    }

    void Cancels()
    {
        QObject::connect(&m_scene->Setup, &cBankSetup::StepShown, &m_scene->Setup, [&] { m_scene->Setup.Cancel(); });
        m_scene->Type();
        QVERIFY(!m_scene->Setup.Next());
        QCOMPARE(m_scene->Setup.Failure().Fault, eBankFault::Cancelled);
        QVERIFY(m_scene->Bank.IsQuiet());
        m_scene->Setup.disconnect();
        QVERIFY2(m_scene->Setup.Next(), qPrintable(m_scene->Setup.Problem()));
    }

    void AnotherAddressIsShownAndNotUsed()
    {
        m_scene->Bank.Profile.Parameters.append(
            "HIKOM:4+280:12345678+1+2:alt.example::MIM:1+3:https?://neu.example/fints::MIM:1");
        m_scene->Type();
        QVERIFY2(m_scene->Setup.Next(), qPrintable(m_scene->Setup.Problem()));
        const QString begin = u"Die Bank nennt eine andere Adresse: https://neu.example/fints."_s;
        QVERIFY2(m_scene->Setup.AddressNote().startsWith(begin), qPrintable(m_scene->Setup.AddressNote()));
        QVERIFY(m_scene->Setup.Next());
        const cBankAccess access(m_scene->Book.Tools);
        QCOMPARE(access.Banks().constFirst().Url, m_scene->Https.Url);

        m_scene->Setup.Load(access.Banks().constFirst());
        m_scene->Setup.SetUrl(u"neu.example/fints"_s);
        QVERIFY(!m_scene->Setup.Next());
        QCOMPARE(m_scene->Setup.Problem(), u"Die Adresse der Bank muss mit https:// beginnen."_s);
        m_scene->Https.Url = u"https://neu.example/fints"_s;
        m_scene->Setup.SetUrl(m_scene->Https.Url);
        QVERIFY2(m_scene->Setup.Next(), qPrintable(m_scene->Setup.Problem()));
        QCOMPARE(m_scene->Setup.AddressNote(), QString());
    }

    void BestComesFirst_data()
    {
        // codes: the last two digits
        const cTestRows<QString, QString> row("text", "codes");
        // The name begins so before a word does before it is held; within that addresses, what lives, names.
        row("name, word, within", u"bank"_s, u"03 01 02 44 06 05 04"_s);
        row("umlaut left out", u"BANK KOLN"_s, u"03 01"_s);
        row("umlaut spelled", u"koeln bank"_s, u"03 01"_s);
        row("sharp s", u"gross gerau"_s, u"04"_s);
        row("place only", u"gießen"_s, u"05"_s);
        row("code", u"100 000 02"_s, u"02"_s);
        row("labelled code", u"BLZ: 10000002"_s, u"02"_s);
        row("begin of code", u"370"_s, u"44"_s);
        row("word and begin of code", u"volksbank 1000"_s, u"06 05 04"_s);
        row("BIC", u"dddd de 44 xxx"_s, u"04"_s);
        row("BIC of the head office", u"DDDDDE44"_s, u"04 06 05"_s);
        row("BIC of a branch long gone", u"BBBBDE22123"_s, u"02"_s);
        row("IBAN", u"IBAN: de89 3704 0044 0532 0130 00"_s, u"44"_s);
        row("IBAN half typed", u"DE89 3704 00"_s, u"44"_s);
        row("IBAN typed as far as the code", u"DE89 3704 0044 05"_s, u"44"_s);
    }

    void BestComesFirst()
    {
        QFETCH(QString, text);
        QFETCH(QString, codes);
        const cInstalled scene(invented);
        const cBankMatches answer = scene.Directory.Search(text, 10);
        QCOMPARE(Codes(answer.Banks), codes);
        QCOMPARE(answer.Problem, QString());
        const cBankMatches shorter = scene.Directory.Search(text, 1);
        QCOMPARE(Codes(shorter.Banks), codes.left(2));
        QCOMPARE(shorter.Found, answer.Banks.size());
    }

    void SaysWhatIsWrong_data()
    {
        // words: of the problem
        const cTestRows<QString, QString> row("text", "words");
        row("nothing typed", u"  "_s, u"Bitte geben Sie Name"_s);
        row("only marks", u"-"_s, u"Keine Bank gefunden"_s);
        row("no such bank", u"bank atlantis"_s, u"Keine Bank gefunden"_s);
        row("no such code", u"99999999"_s, u"99999999 steht nicht im Verzeichnis"_s);
        row("two digits swapped", u"DE98370400440532013000"_s, u"Tippfehler"_s);
        row("a digit wrong", u"DE89370400440532013001"_s, u"Tippfehler"_s);
        row("a digit too many", u"DE893704004405320130000"_s, u"20 Ziffern"_s);
        row("a letter", u"DE8937040044O532013000"_s, u"20 Ziffern"_s);
        row("right, of no bank here", u"DE12500105170648489890"_s, u"50010517 steht nicht"_s);
        row("foreign", u"AT61 1904 3002 3457 3201"_s, u"keine deutsche IBAN"_s);
        row("only begun", u"DE8"_s, u"tippen Sie weiter"_s);
    }

    void SaysWhatIsWrong()
    {
        QFETCH(QString, text);
        QFETCH(QString, words);
        const cBankMatches answer = cInstalled(invented).Directory.Search(text, 10);
        QVERIFY(answer.Banks.isEmpty());
        QVERIFY2(answer.Problem.contains(words), qPrintable(answer.Problem));
    }

    void MissingFileIsSaid()
    {
        const cFakeShell shell;
        const QStringList texts{u"Bank"_s, u"10000002"_s, u"DE89370400440532013000"_s};
        for (const QString& text : texts) {
            QVERIFY(cBankDirectory(shell).Search(text, 10).Problem.contains(u"banken.tsv"));
        }
    }

    void TellsBanksOfOneNameApart()
    {
        const cInstalled scene(invented);
        const auto title = [&](const QString& code) {
            return scene.Directory.Title(scene.Directory.Find(code).value_or(cBankInfo()));
        };
        QCOMPARE(title(u"10000005"_s), u"Volksbank, Gießen"_s);
        QCOMPARE(title(u"10000004"_s), u"Volksbank Groß-Gerau"_s);
    }

    void ShippedFileIsWhole()
    {
        static const QRegularExpression form(
            u"^[0-9]{8}\t([A-Z]{6}[A-Z0-9]{5})?\t[^\t]+\t[^\t]*\t(https://[^\t/]+\\S*)?$"_s);
        QStringList lines = QString::fromUtf8(Shipped()).split(u'\n');
        QVERIFY(lines.takeLast().isEmpty());
        lines.removeIf([](const QString& line) { return line.startsWith(u'#'); });
        QVERIFY(lines.size() > 3000);
        QSet<QString> codes;
        for (const QString& line : lines) {
            QVERIFY2(form.match(line).hasMatch(), qPrintable(line));
            QVERIFY2(!codes.contains(line.left(8)), qPrintable(line));
            codes.insert(line.left(8));
        }
    }

    void ShippedFileKnowsBanksByTheirUsualNames_data()
    {
        const cTestRows<QString, QString, QString> row("text", "code", "url");
        row("DKB", u"DKB"_s, u"12030000"_s, u"https://fints.dkb.de/fints"_s);
        row("ING", u"ing"_s, u"50010517"_s, u"https://fints.ing.de/fints/"_s);
        row("comdirect", u"comdirect"_s, u"20041111"_s, u"https://fints.comdirect.de/fints"_s);
        row("Commerzbank in Berlin", u"10040000"_s, u"10040000"_s, u"https://fints.commerzbank.de/fints"_s);
        row("seat of many branches", u"commerzbank köln"_s, u"37040044"_s, u"https://fints.commerzbank.de/fints"_s);
        row("GLS", u"gls bank"_s, u"43060967"_s, u"https://fints1.atruvia.de/cgi-bin/hbciservlet"_s);
        row("Sparda", u"33060592"_s, u"33060592"_s, u"https://fints2.atruvia.de/cgi-bin/hbciservlet"_s);
        row("no longer this bank's", u"50010700"_s, u"50010700"_s, u""_s);
    }

    void ShippedFileKnowsBanksByTheirUsualNames()
    {
        QFETCH(QString, text);
        const cBankMatches answer = cInstalled(Shipped()).Directory.Search(text, 1);
        QTEST(answer.Banks.value(0).Code, "code");
        QTEST(answer.Banks.value(0).Url, "url");
    }

private:
    std::optional<cScene> m_scene;
};

TEST_CLASS(testBankSetup, QCoreApplication)
#include "testBankSetup.moc"
