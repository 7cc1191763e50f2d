#include "app/machine/cQtRegistry.h"
#include "app/machine/cQtShell.h"
#include "cCliRun.h"
#include "core/cBook.h"
#include "runInside.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "support/testBook.h"
#include "testbank/cTestBank.h"
#include "testbank/cTestHttps.h"
#include "views/bank/cBankListModel.h"
#include "views/book/cBookAccess.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

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
        QStringList texts;
        for (const cBankListModel::cLine& line : model.Lines()) {
            texts.append(u"%1 in %2 by %3 %4"_s.arg(line.Account.Number, line.BookAccount,
                                                    line.Bank.Method->SecurityFunction, line.Bank.Medium));
        }
        return texts;
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
};

TEST_CLASS(testCliBanks, QCoreApplication)
#include "testCliBanks.moc"
