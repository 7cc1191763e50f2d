#include "base/cBankUser.h"
#include "base/cProgress.h"
#include "fints/HBCIBusiness.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cImportHiveCache.h"
#include "support/bankMonth.h"
#include "support/cFakeHttps.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "support/testBook.h"
#include "views/bank/cBankFetch.h"
#include "views/statement/cStatementFiles.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

// A customer who knows the PIN of every bank but those named.
class cFakeBankUser final : public cBankUser
{
public:
    std::optional<cSecret> AskPin(const cPinQuestion& question) override
    {
        Asked.append(question.Bank + u'/' + question.UserId);
        return NoPin.contains(question.Bank) ? std::nullopt : std::optional(cSecret(u"12345"));
    }
    std::optional<cSecret> AskTan(const cTanQuestion& /*question*/) override { return std::nullopt; }
    eApproval WaitForApproval(const cApproval& /*approval*/) override { return eApproval::Cancel; }
    void EndApproval() override {}
    void ShowStep(const QString& /*text*/) override {}
    [[nodiscard]] bool IsCancelled() const override { return false; }

    QStringList Asked;
    QStringList NoPin;
};

cBankAccount Account(const QString& number, const QString& product)
{
    cBankAccount account;
    account.Number = number;
    account.BankCode = u"10020030"_s;
    account.ProductName = product;
    account.Orders = {u"HKKAZ"_s, u"HKSAL"_s};
    return account;
}

// A book with two logins: a bank with two accounts, and another one with a third. What the banks say is set by number.
struct cScene : cTestBook
{
    cScene()
    {
        Clock.Day = QDate(2026, 3, 15);
        Login(u"Lindenbank"_s, u"10020030"_s, {Account(u"0001234567"_s, u"Giro"_s), Account(u"777"_s, u"Sparen"_s)});
        Login(u"Tannenbank"_s, u"20030040"_s, {Account(u"888"_s, u"Karte"_s)});
        if (!Access.SetProductId(u"PRODUKT"_s)) {
            qFatal("identifier not kept");
        }
        Assign(u"1234567"_s, u"Girokonto"_s);
        Assign(u"DE02100200300001234567"_s, u"Girokonto"_s);
        Assign(u"777"_s, u"Sparkonto"_s);
        Assign(u"888"_s, u"Bargeld"_s);
        Fetch.Load();
        Fetch.SetDialog([this](cBankState& state, const cSecret& /*pin*/, const QList<cFetchOrder>& orders,
                               QList<cFetchedAccount>& fetched) {
            state.SystemId = "SYS1";
            for (const cFetchOrder& order : orders) {
                Orders.append(u"%1 %2 %3"_s.arg(order.Account.Number, order.From.toString(Qt::ISODate),
                                                order.To.toString(Qt::ISODate)));
                cFetchedAccount answer = Answers.value(order.Account.Number);
                answer.Account = order.Account;
                fetched.append(answer);
            }
            return Failures.value(state.BankName);
        });
    }

    void Login(const QString& name, const QString& code, const QList<cBankAccount>& accounts)
    {
        cBankState state;
        state.BankName = name;
        state.BankCode = code;
        state.UserId = u"anna"_s;
        state.Accounts = accounts;
        if (!Access.Save(state) || !Access.Choose(state, accounts)) {
            qFatal("login not kept");
        }
    }

    void Assign(const QString& number, const QString& account)
    {
        if (!Accounts.Assign(number, account)) {
            qFatal("number not assigned");
        }
    }

    void AnswerMt940(const QString& number, const cBankMonth& month)
    {
        Answers[number].MT940 = month.Mt940();
        Answers[number].Balance = month.Closing();
        Answers[number].BalanceDay = month.Bookings.last().Day;
    }

    [[nodiscard]] QString Text(qsizetype place) const
    {
        QString text = Fetch.Lines().at(place).Text;
        return text.replace(u'\u00A0', u' ');
    }

    cFakeHttps Https;
    cFakeBankUser Customer;
    cImportHiveCache Hive{Data};
    cAccountMap Accounts{Data, *Settings};
    cStatementFiles Files{Tools, Hive, Accounts};
    cBankAccess Access{Tools};
    cNoProgress Progress;
    QHash<QString, cFetchedAccount> Answers;
    QHash<QString, cBankFailure> Failures; // of whole dialogs
    QStringList Orders;
    cBankFetch Fetch{Tools, Files, {Https, Customer, u"1.0.0"_s}};
};

} // namespace

class testBankFetch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The first time as far back as banks allow without a TAN, later from ten days before; a bank that says how long it
    // keeps bookings is not asked for more.
    void AsksForTheRightDays()
    {
        cScene scene;
        QCOMPARE(scene.Fetch.Accounts().value(0).Name, u"Giro, 0001234567"_s);
        QCOMPARE(scene.Fetch.Accounts().value(0).LastText, u"noch nie abgerufen"_s);
        QVERIFY(scene.Fetch.Run({}, scene.Progress));
        QCOMPARE(scene.Customer.Asked, (QStringList{u"Lindenbank/anna"_s, u"Tannenbank/anna"_s}));
        QCOMPARE(scene.Orders,
                 (QStringList{u"0001234567 2025-12-16 2026-03-15"_s, u"777 2025-12-16 2026-03-15"_s,
                              u"888 2025-12-16 2026-03-15"_s}));
        QCOMPARE(scene.Fetch.Accounts().value(0).LastText, u"zuletzt abgerufen am 15.03.2026"_s);
        scene.Orders.clear();
        scene.Clock.Day = QDate(2026, 3, 20);
        QVERIFY(scene.Fetch.Run({{0}, {}, QDate(2026, 5, 1)}, scene.Progress));
        QCOMPARE(scene.Orders, QStringList(u"0001234567 2026-03-05 2026-03-20"_s));
    }

    void AsksAboutOldDays_data()
    {
        const cTestRows<QList<eAnswer>, QStringList> row("answers", "orders");
        row("yes", QList{eAnswer::Yes}, {u"888 2025-01-01 2026-03-15"_s});
        row("no", QList{eAnswer::No}, {u"888 2025-12-16 2026-03-15"_s});
        row("cancel", {}, {});
    }

    void AsksAboutOldDays()
    {
        QFETCH(QList<eAnswer>, answers);
        QFETCH(QStringList, orders);
        cScene scene;
        scene.User.Answers.assign(answers.begin(), answers.end());
        QSignalSpy finished(&scene.Fetch, &cBankFetch::Finished);
        QCOMPARE(scene.Fetch.Run({{2}, QDate(2025, 1, 1), {}}, scene.Progress), !orders.isEmpty());
        QVERIFY(scene.User.Asked.value(0).contains(u"vor dem 16.12.2025 gebucht"));
        QVERIFY(scene.User.Asked.value(0).contains(u"dafür verlangt die Bank eine TAN"));
        QCOMPARE(scene.Orders, orders);
        QCOMPARE(finished.size(), 1);
        QCOMPARE(scene.Fetch.Lines().at(2).Notes,
                 answers == QList{eAnswer::No} ? QStringList(
                     u"Umsätze vom 01.01.2025 bis 15.12.2025 wurden nicht abgerufen: Sie wollten sie ohne "
                     "TAN nicht."_s)
                                               : QStringList());
    }

    // One bank refuses the login, one account breaks off: the rest is there, and only what came whole counts as
    // fetched.
    void FailuresLeaveTheOthers()
    {
        cScene scene;
        const cBankMonth month = cBankMonth::Example();
        scene.AnswerMt940(u"0001234567"_s, month);
        scene.Answers[u"777"_s].Failure = {eBankFault::EndedByBank, u"Die Bank hat das Gespräch beendet."_s,
                                           u"Wartungsarbeiten"_s};
        scene.Customer.NoPin = {u"Tannenbank"_s};
        QVERIFY(!scene.Fetch.Run({}, scene.Progress));
        QCOMPARE(scene.Text(0), u"7 gelesen, 7 neu, Schlusssaldo 1.612,61 €"_s);
        QCOMPARE(scene.Text(1), u"Die Bank hat das Gespräch beendet."_s);
        QCOMPARE(scene.Fetch.Lines().at(1).Failure.BankWords, u"Wartungsarbeiten"_s);
        QCOMPARE(scene.Text(2), u"Ohne PIN wurde nichts abgerufen."_s);
        QCOMPARE(scene.Fetch.Summary(), u"7 neue Umsätze. 2 Konten wurden nicht oder nicht ganz abgerufen."_s);
        scene.Fetch.Load();
        QVERIFY(scene.Fetch.Accounts().at(0).LastFetch.isValid());
        QVERIFY(!scene.Fetch.Accounts().at(1).LastFetch.isValid() && !scene.Fetch.Accounts().at(2).LastFetch.isValid());
    }

    // All of a run is one step; what the bank wants to hear again does not go with it.
    void IsOneStep()
    {
        cScene scene;
        QSignalSpy starts(&scene.Files, &cStatementFiles::ImportStarts);
        QSignalSpy staged(&scene.Files, &cStatementFiles::RowsStaged);
        scene.AnswerMt940(u"0001234567"_s, cBankMonth::Example());
        scene.AnswerMt940(u"777"_s, {u"777"_s, 0, cBankMonth::Example().Bookings.first(2)});
        QVERIFY(scene.Fetch.Run({}, scene.Progress));
        QCOMPARE(starts.size(), 1); // for the copy of the book
        QCOMPARE(staged.size(), 1);
        QCOMPARE(staged.constFirst().constFirst().value<QList<int>>().size(), 9);
        QCOMPARE(scene.Data.Journal().UndoName(), u"Umsätze abgerufen"_s);
        QVERIFY(scene.Data.Journal().Undo());
        QCOMPARE(scene.Data.GetImportEntries().size(), 0);
        scene.Fetch.Load();
        QVERIFY(!scene.Fetch.Accounts().at(0).LastFetch.isValid());
        QCOMPARE(scene.Access.Find(u"10020030"_s, u"anna"_s)->SystemId, QByteArray("SYS1"));
    }

    // Once for the account: its next statement is in the currency that it had before.
    void AsksAboutAnotherCurrency()
    {
        cScene scene;
        scene.AnswerMt940(u"0001234567"_s, cBankMonth::Example());
        scene.Answers[u"0001234567"_s].MT940.replace(u"EUR"_s, u"USD"_s);
        scene.User.Answers = {eAnswer::No, eAnswer::Yes};
        QVERIFY(!scene.Fetch.Run({{0}, {}, {}}, scene.Progress));
        QVERIFY2(scene.Text(0).contains(u"in USD, das Buch in EUR"), qPrintable(scene.Text(0)));
        QCOMPARE(scene.Data.GetImportEntries().size(), 0);
        QVERIFY(scene.Fetch.Run({{0}, {}, {}}, scene.Progress));
        QCOMPARE(scene.Data.GetImportEntries().size(), 7);
        scene.User.Asked.clear();
        QVERIFY(scene.Fetch.Run({{0}, {}, {}}, scene.Progress));
        QCOMPARE(scene.User.Asked, QStringList());
    }

    // A row that is missing shows in the bank's balance, with its day.
    void NamesDifferenceAndBalance()
    {
        cScene scene;
        cBankMonth month = cBankMonth::Example();
        scene.AnswerMt940(u"0001234567"_s, month.Part(QDate(2026, 3, 1), QDate(2026, 3, 5)));
        QVERIFY(scene.Fetch.Run({{0}, {}, {}}, scene.Progress));
        QCOMPARE(scene.Fetch.Lines().at(0).Notes, QStringList());
        month.Bookings.removeAt(5);
        month.Opening -= 5990;
        scene.AnswerMt940(u"0001234567"_s, month.Part(QDate(2026, 3, 9), QDate(2026, 3, 31)));
        QVERIFY(scene.Fetch.Run({{0}, {}, {}}, scene.Progress));
        const cBankFetch::cLine line = scene.Fetch.Lines().at(0);
        QCOMPARE(line.Balance, std::optional(cBankMonth::Example().Closing()));
        QVERIFY(line.BalanceText.endsWith(u"am 12.03.2026"));
        QCOMPARE(line.Notes.size(), 1);
        QVERIFY2(line.Notes.constFirst().startsWith(u"Ab dem 06.03.2026 fehlen"), qPrintable(line.Notes.constFirst()));
    }

    // Two purchases that the bank tells in the same words: the balance proves both, and the next fetch knows them.
    void TakesRepetitions()
    {
        cScene scene;
        cBankMonth month = cBankMonth::Example();
        scene.AnswerMt940(u"0001234567"_s, month.Part(QDate(2026, 3, 1), QDate(2026, 3, 5)));
        QVERIFY(scene.Fetch.Run({{0}, {}, {}}, scene.Progress));
        month.Bookings.insert(5, month.Bookings.at(4));
        scene.AnswerMt940(u"0001234567"_s, month.Part(QDate(2026, 3, 9), QDate(2026, 3, 31)));
        QVERIFY(scene.Fetch.Run({{0}, {}, {}}, scene.Progress));
        const cBankFetch::cLine line = scene.Fetch.Lines().at(0);
        QCOMPARE(QList({line.New, line.Known}), QList({4, 0}));
        QCOMPARE(line.Notes, QStringList());
        QVERIFY(scene.Fetch.Run({{0}, {}, {}}, scene.Progress));
        const cBankFetch::cLine last = scene.Fetch.Lines().at(0);
        QCOMPARE(last.Notes, QStringList());
        QCOMPARE(QList({last.New, last.Known}), QList({0, 4}));
    }

    // What was held back stands in the list of the review, with its reason.
    void ListsWhatWasHeldBack()
    {
        cScene scene;
        const cBankMonth month = cBankMonth::Example();
        scene.AnswerMt940(u"0001234567"_s, month);
        QVERIFY(scene.Fetch.Run({{0}, {}, {}}, scene.Progress));
        QVERIFY(scene.Hive.Remove(scene.Hive.GetImportHive().OpenIds().constFirst()));
        scene.Answers[u"0001234567"_s].MT940.clear();
        scene.Answers[u"0001234567"_s].Camt = {month.Camt()};
        QVERIFY(scene.Fetch.Run({{0}, {}, {}}, scene.Progress));
        const cBankFetch::cLine line = scene.Fetch.Lines().at(0);
        QCOMPARE(QList({line.New, line.Known, line.LeftOut}), QList({0, 6, 1}));
        QCOMPARE(scene.Fetch.Summary(), u"Keine neuen Umsätze."_s);
        const QStringList leftOut = scene.Files.LeftOut();
        QCOMPARE(leftOut.size(), 7);
        QCOMPARE(leftOut.filter(u"·  schon vorhanden, nur anders geschrieben"_s).size(), 2);
        QCOMPARE(leftOut.filter(u"·  früher abgerufen und von Ihnen gelöscht"_s).size(), 1);
        scene.Files.StageLeftOut({6});
        QCOMPARE(scene.Hive.GetImportHive().Count(), 7);
        QVERIFY(!scene.Files.CanReadAgain());
    }

    // The number under which the bank tells its bookings belongs to the account that was asked for: nobody is asked.
    void AssignsNumbersUnasked()
    {
        cScene scene;
        cBankMonth month = cBankMonth::Example();
        month.Iban = u"20030040/888EUR"_s;
        scene.AnswerMt940(u"888"_s, month);
        QVERIFY(scene.Fetch.Run({{2}, {}, {}}, scene.Progress));
        QCOMPARE(scene.User.Asked.size(), 1); // about the start balance only
        QVERIFY(scene.User.Asked.constFirst().contains(u"auf dem Konto 'Bargeld'"));
        QCOMPARE(scene.Accounts.AccountOf(u"888EUR"_s), u"Bargeld"_s);
    }
};

TEST_CLASS(testBankFetch, QCoreApplication)
#include "testBankFetch.moc"
