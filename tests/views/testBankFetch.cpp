#include "base/cBankUser.h"
#include "base/cProgress.h"
#include "fints/HBCIBusiness.h"
#include "import/stage/cAccountMap.h"
#include "import/stage/cImportHiveCache.h"
#include "model/modSettingKey.h"
#include "support/bankMonth.h"
#include "support/cFakeHttps.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "support/testBook.h"
#include "testbank/cBankHousehold.h"
#include "views/bank/cBankFetch.h"
#include "views/ledger/cStatementLedger.h"
#include "views/statement/cFileReport.h"
#include "views/statement/cFileWish.h"
#include "views/statement/cLeftOutList.h"
#include "views/statement/cStatementDesk.h"
#include "views/statement/cStatementFiles.h"
#include "views/statement/cStatementWishes.h"

#include <QSignalSpy>

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
        QVERIFY(Access.SetProductId(u"PRODUKT"_s));
        QVERIFY(Accounts.Assign(u"1234567"_s, u"Girokonto"_s));
        QVERIFY(Accounts.Assign(u"DE02100200300001234567"_s, u"Girokonto"_s));
        QVERIFY(Accounts.Assign(u"777"_s, u"Sparkonto"_s));
        QVERIFY(Accounts.Assign(u"888"_s, u"Bargeld"_s));
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
        QVERIFY(Access.Save(state) && Access.Choose(state, accounts));
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

struct cRound : cHousehold
{
    // From now on only this order is allowed for the account.
    void Allow(const QString& order)
    {
        cBankState state = *Access.Find(u"12345678"_s, u"testuser"_s);
        state.Accounts.first().Orders = {order, u"HKSAL"_s};
        QVERIFY(Access.Save(state) && Access.Choose(state, state.Accounts));
        Bank.Profile.Accounts.first().Orders = order.toLatin1() + ":1+HKSAL:1";
        Bank.Journal.clear();
        Fetch.Load();
    }

    int ReadFile(const QString& name, const QByteArray& bytes)
    {
        return Desk.ImportFiles({WriteFile(name, bytes)}, {}).Files.constFirst().Staged;
    }

    // The new rows of a fetch that has to succeed; else -1.
    int Run()
    {
        cNoProgress progress;
        const bool isDone = Fetch.Run({}, progress);
        return isDone ? Fetch.Lines().constFirst().New : -1;
    }

    cStatementDesk Desk{Tools};
    cBankFetch Fetch{Tools, Desk.Files(), {Https, Customer, u"1.0.0"_s}};
};

} // namespace

class testBankFetch final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_scene.emplace(); }

    // The first time as far back as banks allow without a TAN, later from ten days before; a bank that says how long it
    // keeps bookings is not asked for more.
    void AsksForTheRightDays()
    {
        QCOMPARE(m_scene->Fetch.Accounts().value(0).Name, u"Giro, 0001234567"_s);
        QCOMPARE(m_scene->Fetch.Accounts().value(0).LastText, u"noch nie abgerufen"_s);
        QVERIFY(m_scene->Fetch.Run({}, m_scene->Progress));
        QCOMPARE(m_scene->Customer.Asked, (QStringList{u"Lindenbank/anna"_s, u"Tannenbank/anna"_s}));
        QCOMPARE(m_scene->Orders,
                 (QStringList{u"0001234567 2025-12-16 2026-03-15"_s, u"777 2025-12-16 2026-03-15"_s,
                              u"888 2025-12-16 2026-03-15"_s}));
        QCOMPARE(m_scene->Fetch.Accounts().value(0).LastText, u"zuletzt abgerufen am 15.03.2026"_s);
        m_scene->Orders.clear();
        m_scene->Clock.Day = QDate(2026, 3, 20);
        QVERIFY(m_scene->Fetch.Run({{0}, {}, QDate(2026, 5, 1)}, m_scene->Progress));
        QCOMPARE(m_scene->Orders, QStringList(u"0001234567 2026-03-05 2026-03-20"_s));
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
        m_scene->User.Answers.assign(answers.begin(), answers.end());
        QSignalSpy finished(&m_scene->Fetch, &cBankFetch::Finished);
        QCOMPARE(m_scene->Fetch.Run({{2}, QDate(2025, 1, 1), {}}, m_scene->Progress), !orders.isEmpty());
        QVERIFY(m_scene->User.Asked.value(0).contains(u"vor dem 16.12.2025 gebucht"));
        QVERIFY(m_scene->User.Asked.value(0).contains(u"dafür verlangt die Bank eine TAN"));
        QCOMPARE(m_scene->Orders, orders);
        QCOMPARE(finished.size(), 1);
        QCOMPARE(m_scene->Fetch.Lines().at(2).Notes,
                 answers == QList{eAnswer::No} ? QStringList(
                     u"Umsätze vom 01.01.2025 bis 15.12.2025 wurden nicht abgerufen: Sie wollten sie ohne "
                     "TAN nicht."_s)
                                               : QStringList());
    }

    // One bank refuses the login, one account breaks off: the rest is there, and only what came whole counts as
    // fetched.
    void FailuresLeaveTheOthers()
    {
        const cBankMonth month = cBankMonth::Example();
        m_scene->AnswerMt940(u"0001234567"_s, month);
        m_scene->Answers[u"777"_s].Failure = {eBankFault::EndedByBank, u"Die Bank hat das Gespräch beendet."_s,
                                              u"Wartungsarbeiten"_s};
        m_scene->Customer.NoPin = {u"Tannenbank"_s};
        QVERIFY(!m_scene->Fetch.Run({}, m_scene->Progress));
        QCOMPARE(m_scene->Text(0), u"7 gelesen, 7 neu, Schlusssaldo 1.612,61 €"_s);
        QCOMPARE(m_scene->Text(1), u"Die Bank hat das Gespräch beendet."_s);
        QCOMPARE(m_scene->Fetch.Lines().at(1).Failure.BankWords, u"Wartungsarbeiten"_s);
        QCOMPARE(m_scene->Text(2), u"Ohne PIN wurde nichts abgerufen."_s);
        QCOMPARE(m_scene->Fetch.Summary(), u"7 neue Umsätze. 2 Konten wurden nicht oder nicht ganz abgerufen."_s);
        m_scene->Fetch.Load();
        QVERIFY(m_scene->Fetch.Accounts().at(0).LastFetch.isValid());
        QVERIFY(!m_scene->Fetch.Accounts().at(1).LastFetch.isValid()
                && !m_scene->Fetch.Accounts().at(2).LastFetch.isValid());
    }

    // All of a run is one step; what the bank wants to hear again does not go with it.
    void IsOneStep()
    {
        QSignalSpy starts(&m_scene->Files, &cStatementFiles::ImportStarts);
        QSignalSpy staged(&m_scene->Files, &cStatementFiles::RowsStaged);
        m_scene->AnswerMt940(u"0001234567"_s, cBankMonth::Example());
        m_scene->AnswerMt940(u"777"_s, {u"777"_s, 0, cBankMonth::Example().Bookings.first(2)});
        QVERIFY(m_scene->Fetch.Run({}, m_scene->Progress));
        QCOMPARE(starts.size(), 1); // for the copy of the book
        QCOMPARE(staged.size(), 1);
        QCOMPARE(staged.constFirst().constFirst().value<QList<int>>().size(), 9);
        QCOMPARE(m_scene->Data.Journal().UndoName(), u"Umsätze abgerufen"_s);
        QVERIFY(m_scene->Data.Journal().Undo());
        QCOMPARE(m_scene->Data.GetImportEntries().size(), 0);
        m_scene->Fetch.Load();
        QVERIFY(!m_scene->Fetch.Accounts().at(0).LastFetch.isValid());
        QCOMPARE(m_scene->Access.Find(u"10020030"_s, u"anna"_s)->SystemId, QByteArray("SYS1"));
    }

    // Once for the account: its next statement is in the currency that it had before.
    void AsksAboutAnotherCurrency()
    {
        m_scene->AnswerMt940(u"0001234567"_s, cBankMonth::Example());
        m_scene->Answers[u"0001234567"_s].MT940.replace(u"EUR"_s, u"USD"_s);
        m_scene->User.Answers = {eAnswer::No, eAnswer::Yes, eAnswer::No}; // to the start balance
        QVERIFY(!m_scene->Fetch.Run({{0}, {}, {}}, m_scene->Progress));
        QVERIFY2(m_scene->Text(0).contains(u"in USD, das Buch in EUR"), qPrintable(m_scene->Text(0)));
        QCOMPARE(m_scene->Data.GetImportEntries().size(), 0);
        QVERIFY(m_scene->Fetch.Run({{0}, {}, {}}, m_scene->Progress));
        QCOMPARE(m_scene->Data.GetImportEntries().size(), 7);
        m_scene->User.Asked.clear();
        QVERIFY(m_scene->Fetch.Run({{0}, {}, {}}, m_scene->Progress));
        QCOMPARE(m_scene->User.Asked, QStringList());
    }

    // A row that is missing shows in the bank's balance, with its day.
    void NamesDifferenceAndBalance()
    {
        cBankMonth month = cBankMonth::Example();
        m_scene->AnswerMt940(u"0001234567"_s, month.Part(QDate(2026, 3, 1), QDate(2026, 3, 5)));
        QVERIFY(m_scene->Fetch.Run({{0}, {}, {}}, m_scene->Progress));
        QCOMPARE(m_scene->Fetch.Lines().at(0).Notes, QStringList());
        month.Bookings.removeAt(5);
        month.Opening -= 5990;
        m_scene->AnswerMt940(u"0001234567"_s, month.Part(QDate(2026, 3, 9), QDate(2026, 3, 31)));
        QVERIFY(m_scene->Fetch.Run({{0}, {}, {}}, m_scene->Progress));
        const cBankFetch::cLine line = m_scene->Fetch.Lines().at(0);
        QCOMPARE(line.Balance, std::optional(cBankMonth::Example().Closing()));
        QVERIFY(line.BalanceText.endsWith(u"am 12.03.2026"));
        QCOMPARE(line.Notes.size(), 1);
        QVERIFY2(line.Notes.constFirst().startsWith(u"Ab dem 06.03.2026 fehlen"), qPrintable(line.Notes.constFirst()));
    }

    // Two purchases that the bank tells in the same words: the balance proves both, and the next fetch knows them.
    void TakesRepetitions()
    {
        cBankMonth month = cBankMonth::Example();
        m_scene->AnswerMt940(u"0001234567"_s, month.Part(QDate(2026, 3, 1), QDate(2026, 3, 5)));
        QVERIFY(m_scene->Fetch.Run({{0}, {}, {}}, m_scene->Progress));
        month.Bookings.insert(5, month.Bookings.at(4));
        m_scene->AnswerMt940(u"0001234567"_s, month.Part(QDate(2026, 3, 9), QDate(2026, 3, 31)));
        QVERIFY(m_scene->Fetch.Run({{0}, {}, {}}, m_scene->Progress));
        const cBankFetch::cLine line = m_scene->Fetch.Lines().at(0);
        QCOMPARE(QList({line.New, line.Known}), QList({4, 0}));
        QCOMPARE(line.Notes, QStringList());
        QVERIFY(m_scene->Fetch.Run({{0}, {}, {}}, m_scene->Progress));
        const cBankFetch::cLine last = m_scene->Fetch.Lines().at(0);
        QCOMPARE(last.Notes, QStringList());
        QCOMPARE(QList({last.New, last.Known}), QList({0, 4}));
    }

    // What was held back stands in the list of the review, with its reason.
    void ListsWhatWasHeldBack()
    {
        const cBankMonth month = cBankMonth::Example();
        m_scene->AnswerMt940(u"0001234567"_s, month);
        QVERIFY(m_scene->Fetch.Run({{0}, {}, {}}, m_scene->Progress));
        QVERIFY(m_scene->Hive.Remove(m_scene->Hive.GetImportHive().OpenIds().constFirst()));
        m_scene->Answers[u"0001234567"_s].MT940.clear();
        m_scene->Answers[u"0001234567"_s].Camt = {month.Camt()};
        QVERIFY(m_scene->Fetch.Run({{0}, {}, {}}, m_scene->Progress));
        const cBankFetch::cLine line = m_scene->Fetch.Lines().at(0);
        QCOMPARE(QList({line.New, line.Known, line.LeftOut}), QList({0, 6, 1}));
        QCOMPARE(m_scene->Fetch.Summary(), u"Keine neuen Umsätze."_s);
        const QStringList leftOut = m_scene->Files.LeftOut().Texts();
        QCOMPARE(leftOut.size(), 7);
        QCOMPARE(leftOut.filter(u"·  schon vorhanden, nur anders geschrieben"_s).size(), 2);
        QCOMPARE(leftOut.filter(u"·  früher abgerufen und von Ihnen gelöscht"_s).size(), 1);
        m_scene->Files.LeftOut().Stage({6});
        QCOMPARE(m_scene->Hive.GetImportHive().Count(), 7);
        QVERIFY(!m_scene->Files.CanReadAgain());
    }

    // The number under which the bank tells its bookings belongs to the account that was asked for: nobody is asked.
    void AssignsNumbersUnasked()
    {
        cBankMonth month = cBankMonth::Example();
        month.Iban = u"20030040/888EUR"_s;
        m_scene->AnswerMt940(u"888"_s, month);
        QVERIFY(m_scene->Fetch.Run({{2}, {}, {}}, m_scene->Progress));
        QCOMPARE(m_scene->User.Asked.size(), 1); // about the start balance only
        QVERIFY(m_scene->User.Asked.constFirst().contains(u"auf dem Konto 'Bargeld'"));
        QCOMPARE(m_scene->Accounts.AccountOf(u"888EUR"_s), u"Bargeld"_s);
    }

    // Where nobody can be asked, what came into the book besides is told.
    void NewAccountIsCalledAsTheBankDoes()
    {
        cBankMonth month = cBankMonth::Example();
        month.Iban = u"10020030/888"_s;
        m_scene->AnswerMt940(u"888"_s, month);
        m_scene->Settings->Delete(modSettingKey::BankNumber.Of(u"888"_s));
        m_scene->Fetch.Load();
        m_scene->Files.SetWishes({.Start = cStatementWishes::eWish::Take, .Accounts = cStatementWishes::eWish::Take});
        QVERIFY(m_scene->Fetch.Run({{2}, {}, {}}, m_scene->Progress));
        const QStringList notes = m_scene->Fetch.Notes();
        QVERIFY2(notes.size() == 2 && notes.constFirst().endsWith(u"zum Konto 'Karte'.")
                     && notes.constLast().startsWith(u"Startguthaben von 'Karte': "),
                 qPrintable(notes.join(u'|')));
        QCOMPARE(m_scene->Fetch.Accounts().at(2).BookAccount, u"Karte"_s);
    }

    // The same days in both formats, twice, overlapping, and from files: no row twice.
    void BringsNoBookingTwice()
    {
        cRound house;
        const cBankMonth month = cBankMonth::Example();
        house.Tell(month.Part(QDate(2026, 3, 1), QDate(2026, 3, 9)));
        QCOMPARE(house.Run(), 5);
        QVERIFY2(house.Bank.Story().contains(u"HKKAZ5"), qPrintable(house.Bank.Story()));
        QCOMPARE(house.Run(), 0);
        house.Allow(u"HKCAZ"_s);
        QCOMPARE(house.Run(), 0);
        QVERIFY2(house.Bank.Story().contains(u"HKCAZ1"), qPrintable(house.Bank.Story()));
        house.Tell(month.Part(QDate(2026, 3, 4), QDate(2026, 3, 31)));
        QCOMPARE(house.Run(), 2);
        QCOMPARE(house.ReadFile(u"a.sta"_s, month.Mt940().toLatin1()), 0);
        QCOMPARE(house.ReadFile(u"a.xml"_s, month.Camt()), 0);
        QCOMPARE(house.Desk.Rows().size(), 7);
        QVERIFY(house.Bank.IsQuiet());
    }

    // A household that takes what is proposed ends the month with the balance of the bank.
    void MonthEndsWithTheBalanceOfTheBank()
    {
        cRound house;
        const cBankMonth month = cBankMonth::Example();
        QVERIFY(house.Data.SetStartGuthaben(u"Girokonto"_s, month.Opening, QDate(2026, 3, 1)));
        house.Tell(month.Part(QDate(2026, 3, 1), QDate(2026, 3, 8)));
        QCOMPARE(house.Run(), 4);
        QVERIFY(house.Desk.Book(house.Desk.OpenIds()).IsDone);
        house.Tell(month);
        QCOMPARE(house.Run(), 3);
        QCOMPARE(house.Fetch.Lines().constFirst().Notes, QStringList());
        QCOMPARE(house.Fetch.Lines().constFirst().Balance, std::optional(month.Closing()));
        QVERIFY(house.Desk.Book(house.Desk.OpenIds()).IsDone);
        cStatementLedger ledger(house.Data, *house.Settings);
        ledger.LoadNewest();
        const cBookComparison book = ledger.CompareWithBook();
        QCOMPARE(book.State, cBookComparison::eState::Agrees);
        QCOMPARE(book.Book, month.Closing());
    }

    // Two accounts under one number, which is all that the statements of both name.
    void SubAccountsStayApart()
    {
        cRound house;
        const cBankMonth month = cBankMonth::Example();
        cBankState state = house.Access.Banks().constFirst();
        state.Accounts = QList<cBankAccount>(2, state.Accounts.constFirst());
        house.Bank.Profile.Accounts = QList<cOfferedAccount>(2, house.Bank.Profile.Accounts.constFirst());
        for (const qsizetype i : {0, 1}) {
            const QByteArray sub = i == 0 ? "00" : "01";
            state.Accounts[i].SubNumber = QString::fromLatin1(sub);
            state.Accounts[i].Iban.clear();
            house.Bank.Profile.Accounts[i].Sub = sub;
            house.Bank.Profile.Accounts[i].Iban.clear();
            cBankMonth part = month.Part(QDate(2026, 3, i == 0 ? 1 : 9), QDate(2026, 3, i == 0 ? 8 : 31));
            part.Iban = u"12345678/1234567"_s;
            house.Bank.Profile.Accounts[i].Pages = {part.Mt940().toLatin1()};
        }
        QVERIFY(house.Access.Save(state) && house.Access.Choose(state, state.Accounts));
        QVERIFY(house.Access.Assign(state, state.Accounts[0], u"Girokonto"_s));
        QVERIFY(house.Access.Assign(state, state.Accounts[1], u"Sparkonto"_s));
        house.Fetch.Load();
        QCOMPARE(house.Run(), 4);
        QCOMPARE(house.Run(), 0);
        QHash<QString, int> rows;
        const cImportEntryList staged = house.Data.GetImportEntries();
        for (const cImportEntry& row : staged) {
            ++rows[row.ImportAccount];
        }
        QCOMPARE(rows, (QHash<QString, int>{{u"1234567/00"_s, 4}, {u"1234567/01"_s, 3}}));
        QCOMPARE(house.Access.BookAccountOf(state, state.Accounts[1]), u"Sparkonto"_s);
    }

    void NamesAnotherAddress()
    {
        cRound house;
        house.Bank.Profile.Parameters.append("HIKOM:4+280:12345678+1+3:https?://neu.example/fints::MIM:1");
        house.Bank.Profile.Bpd = "79";
        QCOMPARE(house.Run(), 0);
        const QStringList notes = house.Fetch.Lines().constFirst().Notes;
        QVERIFY2(notes.join(u'|').contains(u"https://neu.example/fints"), qPrintable(notes.join(u'|')));
    }

    // What the bank refuses is told in its own words, and the log that others may see tells of nobody.
    void TellsWhyNot()
    {
        cRound house;
        house.Tell(cBankMonth::Example());
        house.Bank.Profile.Accounts.first().Refusal = "9210::Konto gesperrt.";
        cNoProgress progress;
        QVERIFY(!house.Fetch.Run({}, progress));
        const cBankFetch::cLine line = house.Fetch.Lines().constFirst();
        QVERIFY(line.Failure.IsSet() && !line.Failure.Text.isEmpty());
        QVERIFY2(line.Failure.BankWords.contains(u"Konto gesperrt"), qPrintable(line.Failure.BankWords));
        house.Bank.Profile.Refusals["HKIDN"] = {.Nth = 0, .Global = "9942::PIN falsch."};
        QVERIFY(!house.Fetch.Run({}, progress));
        QCOMPARE(house.Fetch.Lines().constFirst().Failure.Fault, eBankFault::WrongPin);
        for (const QString& text : {house.Fetch.LogText(), house.Fetch.LogForOthers()}) {
            QVERIFY(!text.isEmpty() && !text.contains(u"12345'"));
        }
        QVERIFY(!house.Fetch.LogForOthers().contains(u"testuser") && !house.Fetch.LogForOthers().contains(u"1234567"));
    }

private:
    std::optional<cScene> m_scene;
};

TEST_CLASS(testBankFetch, QCoreApplication)
#include "testBankFetch.moc"
