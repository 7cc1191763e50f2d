#include "base/cProgress.h"
#include "core/cAmountFormat.h"
#include "fints/cBankLog.h"
#include "fints/HBCIBusiness.h"
#include "support/bankMonth.h"
#include "support/testBook.h"
#include "testbank/cTestBank.h"
#include "testbank/cTestBankUser.h"
#include "testbank/cTestHttps.h"
#include "views/bank/cBankFetch.h"
#include "views/ledger/cStatementLedger.h"
#include "views/statement/cFileReport.h"
#include "views/statement/cFileWish.h"
#include "views/statement/cStatementDesk.h"
#include "views/statement/cStatementFiles.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString product = u"PRODUKTID0123456789012345"_s;

cBankProfile Profile()
{
    cBankProfile profile;
    profile.Parameters.append("HICAZS:1+1+1+0+90:N:N:urn?:iso?:std?:iso?:20022?:tech?:xsd?:camt.052.001.08");
    profile.Accounts.append(
        {.Number = "1234567", .Iban = "DE02100200300001234567", .Orders = "HKKAZ:1+HKCAZ:1+HKSAL:1"});
    return profile;
}

// A household with an account at the bank of the tests, set up as the assistant leaves it.
struct cHousehold : cTestBook
{
    cHousehold()
    {
        Clock.Day = QDate(2026, 3, 15);
        cBankState state;
        state.BankCode = u"12345678"_s;
        state.UserId = u"testuser"_s;
        state.Url = Https.Url;
        state.Bic = u"TESTDEFFXXX"_s;
        cBankLog log;
        const cSecret pin(u"12345");
        HBCIBusiness business({Https, Customer, Clock, log, product, u"1.00"_s}, state, pin);
        if (!business.Discover() || !business.Refresh()) {
            qFatal("%s", qPrintable(business.ErrorText()));
        }
        const bool isKept = Access.SetProductId(product) && Access.Save(state) && Access.Choose(state, state.Accounts)
            && Access.Assign(state, state.Accounts.constFirst(), u"Girokonto"_s);
        if (!isKept) {
            qFatal("login not kept");
        }
        Fetch.Load();
        Bank.Journal.clear();
    }

    // From now on only these orders are allowed for the account.
    void Allow(const QString& order)
    {
        cBankState state = *Access.Find(u"12345678"_s, u"testuser"_s);
        state.Accounts.first().Orders = {order, u"HKSAL"_s};
        if (!Access.Save(state) || !Access.Choose(state, state.Accounts)) {
            qFatal("login not kept");
        }
        Fetch.Load();
    }

    // What the bank has of the account, the text cut in the middle, where a page ends.
    void Tell(const cBankMonth& month)
    {
        cOfferedAccount& account = Bank.Profile.Accounts.first();
        const QByteArray text = month.Mt940().toLatin1();
        account.Pages = {text.left(text.size() / 2), text.mid(text.size() / 2)};
        account.Camt = {month.Camt()};
        const qint64 cents = month.Closing();
        account.Balance = (cents < 0 ? "D:" : "C:") + QByteArray::number(qAbs(cents) / 100) + ','
            + QByteArray::number(qAbs(cents) % 100).rightJustified(2, '0')
            + ":EUR:" + month.Bookings.last().Day.toString(u"yyyyMMdd").toLatin1();
    }

    int ReadFile(const QString& name, const QByteArray& bytes)
    {
        QFile file(m_files.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
            qFatal("file not written");
        }
        file.close();
        return Desk.ImportFile(file.fileName(), {}).Staged;
    }

    // The new rows of a fetch that has to succeed; else -1.
    int Run()
    {
        cNoProgress progress;
        const bool isDone = Fetch.Run({}, progress);
        return isDone ? Fetch.Lines().constFirst().New : -1;
    }

    cTestBank Bank{Profile()};
    cTestHttps Https{Bank};
    cTestBankUser Customer{Bank};
    cStatementDesk Desk{Tools};
    cBankAccess Access{Tools};
    cBankFetch Fetch{Tools, Desk.Files(), {Https, Customer, u"1.0.0"_s}};

private:
    QTemporaryDir m_files;
};

} // namespace

class testBankRound : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The same days in both formats, twice, overlapping, and from files: no row twice.
    void BringsNoBookingTwice()
    {
        cHousehold house;
        const cBankMonth month = cBankMonth::Example();
        house.Tell(month.Part(QDate(2026, 3, 1), QDate(2026, 3, 9)));
        QCOMPARE(house.Run(), 5);
        QVERIFY2(house.Bank.Story().contains(u"HKKAZ5"), qPrintable(house.Bank.Story()));
        QCOMPARE(house.Run(), 0);
        house.Allow(u"HKCAZ"_s);
        house.Bank.Profile.Accounts.first().Orders = "HKCAZ:1+HKSAL:1";
        house.Bank.Journal.clear();
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
        cHousehold house;
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

    // What the bank refuses is told in its own words, and the log that others may see tells of nobody.
    void TellsWhyNot()
    {
        cHousehold house;
        house.Tell(cBankMonth::Example());
        house.Bank.Profile.Accounts.first().Refusal = "9210::Konto gesperrt.";
        cNoProgress progress;
        QVERIFY(!house.Fetch.Run({}, progress));
        const cBankFetch::cLine& line = house.Fetch.Lines().constFirst();
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

QTEST_GUILESS_MAIN(testBankRound)
#include "testBankRound.moc"
