#include "cCliRun.h"
#include "core/cBook.h"
#include "runInside.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "testbank/cBankHousehold.h"
#include "testbank/cTestHttps.h"
#include "views/bank/cBankListModel.h"
#include "views/book/cBookAccess.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// The program with a bank instead of the network.
struct cScene
{
    explicit cScene()
    {
        Bank.Profile.Methods = {{.Function = "912"}, {.Function = "913", .Name = "SMS", .MediumRequired = "2"}};
        Bank.Profile.Media = {"Handy", "Tablet"};
        Bank.Profile.Accounts = {{.Number = "111", .Iban = "DE11", .Product = "Giro Komfort"},
                                 {.Number = "222", .Iban = "DE22", .Product = "Tagesgeld"}};
    }

    // `line` has "|" between its arguments.
    int Run(const QString& line)
    {
        QStringList arguments{u"--profile"_s, Folder.path()};
        arguments += line.split(u'|');
        if (line.startsWith(u"banks|add") || line.startsWith(u"banks|methods")) {
            arguments << u"--pin-fd"_s << u"PIN"_s;
        }
        return RunInside({Folder.path(), Clock, Https, Bank.Profile.Pin + '\n'}, arguments);
    }

    // What the book has: "222 in Notgroschen by 913 Tablet"
    QStringList Logins()
    {
        cFakeUser user;
        cBook book(user);
        if (!book.OpenForReading(cBookAccess::PathFor({}, Registry, Shell))) {
            return {u"no book"_s};
        }
        cConfiguration configuration(Registry);
        const cAmountFormat format(configuration);
        const cBookTools tools{book.Data(), book.Settings(), format, user, Clock};
        const cBankListModel model(tools);
        return Each(model.Lines(), [](const cBankListModel::cLine& line) {
            return u"%1 in %2 by %3 %4"_s.arg(line.Account.Number, line.BookAccount, line.Bank.Method->SecurityFunction,
                                              line.Bank.Medium);
        });
    }

    QTemporaryDir Folder;
    cQtShell Shell{Folder.path()};
    cQtRegistry Registry{Folder.path()};
    cFakeClock Clock;
    cTestBank Bank{cBankProfile()};
    cTestHttps Https{Bank};
};

const QString login = u"|--blz|12345678|--login|testuser"_s;
const QString talk = login + u"|--url|https://bank.example/fints|--product|PRODUKTID0123456789012345"_s;

int Run(cHousehold& house, const QStringList& arguments, const QByteArray& pin = "12345\n")
{
    const QTemporaryDir profile;
    const QStringList whole{u"fetch"_s, u"--database"_s, house.Path(), u"--pin-fd"_s, u"PIN"_s};
    return RunInside({profile.path(), house.Clock, house.Https, pin}, whole + arguments);
}

} // namespace

// Banks and logins from the command line.
class testCliBanks final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void SetsUpChangesAndRemoves()
    {
        cScene scene;
        QCOMPARE(scene.Run(u"banks|add"_s + login + u"|--url|https://bank.example/fints"_s), 1); // not registered
        QCOMPARE(scene.Https.Posts, 0);
        QCOMPARE(scene.Run(u"banks|methods"_s + talk), 0);
        QCOMPARE(scene.Run(u"banks|add"_s + talk), 1);                      // which procedure?
        QCOMPARE(scene.Run(u"banks|add"_s + talk + u"|--method|SMS"_s), 1); // which medium?
        QCOMPARE(scene.Logins(), QStringList());
        QCOMPARE(
            scene.Run(u"banks|add"_s + talk + u"|--method|sms|--medium|Tablet|--account|DE22=Notgroschen|--json"_s), 0);
        QCOMPARE(scene.Logins(), QStringList(u"222 in Notgroschen by 913 Tablet"_s));
        // What the book knows by now need not be said again.
        QCOMPARE(scene.Run(u"banks|add"_s + login + u"|--method|912|--account|111=Girokonto|--account|222"_s), 0);
        QCOMPARE(scene.Logins(), QStringList({u"222 in Notgroschen by 912 "_s, u"111 in Girokonto by 912 "_s}));
        QCOMPARE(scene.Run(u"banks|add"_s + login + u"|--account|333=Girokonto"_s), 1); // there is no such account
        QCOMPARE(scene.Run(u"banks|--json"_s), 0);
        QCOMPARE(scene.Run(u"banks|remove"_s + login), 1); // nobody said yes
        QCOMPARE(scene.Run(u"banks|remove|--blz|12345678|--login|other|--yes"_s), 1);
        QCOMPARE(scene.Logins().size(), 2);
        QCOMPARE(scene.Run(u"banks|remove"_s + login + u"|--yes"_s), 0);
        QCOMPARE(scene.Logins(), QStringList());
        QVERIFY(scene.Bank.IsQuiet());
    }

    void FindsABankWithoutABook()
    {
        const cCliBooks books;
        const cCliRun found = books.Do(u"bank-search|DE89|3704|0044|0532|0130|00|--json"_s);
        QCOMPARE(found.Column(u"Code"_s), QStringList(u"37040044"_s));
        QCOMPARE(found.Column(u"Url"_s), QStringList(u"https://fints.commerzbank.de/fints"_s));
        QVERIFY(books.Do(u"bank-search|bundesbank"_s).Out.contains(u"keine Adresse bekannt"));
        QVERIFY(books.Do(u"bank-search|sparkasse"_s).Out.contains(u"passen auch"));
        const cCliRun wrong = books.Run(u"bank-search|DE89370400440532013001|--json"_s);
        QCOMPARE(wrong.Code, 1);
        QVERIFY(wrong.Error.contains(u"Prüfziffern"));
        QCOMPARE(wrong.Json().size(), 0);
        // Neither a book nor a folder for one; only the failure was taken down.
        QCOMPARE(QDir(books.Path({})).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList(u"state"_s));
    }

    void RefusesACallThatSaysTooLittle_data()
    {
        const cTestRows<QString> row("Line");
        row("no login", u"banks|add|--blz|12345678"_s);
        row("no bank", u"banks|methods|--login|testuser"_s);
        row("bank is no code", u"banks|add|--blz|sparkasse|--login|testuser"_s);
        row("protocol", u"banks|add|--hbci|2.1"_s + login);
    }

    void RefusesACallThatSaysTooLittle()
    {
        QFETCH(QString, Line);
        cScene scene;
        QCOMPARE(scene.Run(Line), 2);
    }

    void FetchesAndTellsByItsCode_data()
    {
        const cTestRows<QStringList, QByteArray, int, qsizetype> row("arguments", "pin", "code", "rows");
        row("all", {}, "12345\n", 0, 7);
        row("chosen",
            {u"--account"_s, u"DE02 1002 0030 0001 2345 67"_s, u"--blz"_s, u"12345678"_s, u"--from"_s, u"01.03.2026"_s,
             u"--json"_s},
            "12345\n", 0, 7);
        row("old days", {u"--from"_s, u"01.11.2025"_s}, "12345\n", 0, 7);
        row("another account", {u"--account"_s, u"4711"_s}, {}, 1, 0);
        row("no PIN", {}, {}, 1, 0);
        row("empty period", {u"--from"_s, u"03.03.2026"_s, u"--to"_s, u"02.03.2026"_s}, "12345\n", 1, 0);
        row("no day", {u"--from"_s, u"irgendwann"_s}, {}, 2, 0);
        row("no number of a file", {u"--tan-fd"_s, u"x"_s}, "12345\n", 2, 0);
        row("file that is not open", {u"--tan-fd"_s, u"4711"_s}, "12345\n", 2, 0);
    }

    void FetchesAndTellsByItsCode()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, pin);
        cHousehold house;
        house.Tell(cBankMonth::Example());
        QTEST(Run(house, arguments, pin), "code");
        QTEST(house.Data.GetImportEntries().size(), "rows");
    }

    // The log is written of what failed as well, and tells of nobody.
    void WritesTheLog()
    {
        cHousehold house;
        house.Tell(cBankMonth::Example());
        house.Bank.Profile.Accounts.first().Refusal = "9210::Konto gesperrt.";
        const QTemporaryDir folder;
        QCOMPARE(Run(house, {u"--log"_s, folder.filePath(u"log.txt"_s)}), 1);
        const QByteArray text = cTestFile::Bytes(folder.filePath(u"log.txt"_s));
        QVERIFY(text.contains("HNHBK") && text.contains("9210"));
        QVERIFY(!text.contains("testuser") && !text.contains("1234567") && !text.contains("12345'"));
    }
};

TEST_CLASS(testCliBanks, QCoreApplication)
#include "testCliBanks.moc"
