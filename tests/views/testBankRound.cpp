#include "base/cProgress.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"
#include "testbank/cBankHousehold.h"
#include "views/bank/cBankFetch.h"
#include "views/ledger/cStatementLedger.h"
#include "views/statement/cFileReport.h"
#include "views/statement/cFileWish.h"
#include "views/statement/cStatementDesk.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// The household with the program that fetches.
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
        cTestFile::Write(m_files.Path(name), bytes);
        return Desk.ImportFile(m_files.Path(name), {}).Staged;
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

private:
    cTestFile m_files;
};

} // namespace

class testBankRound : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
};

TEST_CLASS(testBankRound, QCoreApplication)
#include "testBankRound.moc"
