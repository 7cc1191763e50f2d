#include "cImportBook.h"
#include "import/stage/cFetchedStatement.h"
#include "import/stage/cFetchMemory.h"
#include "import/stage/cLeftOutRows.h"
#include "model/modSettingKey.h"
#include "store/cUndoStep.h"
#include "support/bankMonth.h"
#include "support/cTestClass.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString account = u"0001234567"_s;

// A book with an import that fetches and reads files of one account.
struct cFetchBook : cReadingBook
{
    cImportResult Fetch(const QString& mt940, const QList<QByteArray>& camt = {}, bool isComplete = true)
    {
        cFetchMemory memory(*Settings, account);
        cNoProgress progress;
        return Import.ImportFetched({.Name = u"Giro"_s,
                                     .Account = u"1234567"_s,
                                     .Iban = cBankMonth().Iban,
                                     .Mt940 = mt940,
                                     .Camt = camt,
                                     .IsComplete = isComplete,
                                     .LastDay = QDate(2026, 3, 15),
                                     .Memory = &memory},
                                    {}, progress);
    }

    cImportResult ReadFile(const QString& name, const QByteArray& bytes)
    {
        cNoProgress progress;
        return Import.ImportSource(modStatementFormat::Source(name, bytes), {}, progress);
    }

    int Count() { return Hive.GetImportHive().Count(); }
};

// As banks tell it that name the accounts of others only by their IBAN.
QByteArray WithoutBanks(const cBankMonth& month)
{
    return QString::fromUtf8(month.Camt()).remove(QRegularExpression(u"<RltdAgts>.*?</RltdAgts>"_s)).toUtf8();
}

} // namespace

class testFetchedStatement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The same days in both formats, by both ways, in any order: no row twice, and those that were broken elsewhere are
    // listed as such.
    void TellsNoBookingTwice_data()
    {
        const cTestRows<QStringList> row("ways");
        row("fetched twice", {u"M"_s, u"M"_s, u"C"_s, u"C"_s});
        row("camt first", {u"C"_s, u"M"_s, u"m"_s, u"c"_s});
        row("files first", {u"m"_s, u"c"_s, u"C"_s, u"M"_s});
        row("login of another bank code", {u"O"_s, u"c"_s, u"C"_s, u"O"_s});
        row("login of another bank code, camt file first", {u"c"_s, u"O"_s, u"O"_s, u"C"_s});
        row("camt file first", {u"c"_s, u"M"_s, u"C"_s, u"m"_s});
        row("camt without banks first", {u"b"_s, u"M"_s});
        row("camt without banks last", {u"M"_s, u"b"_s});
    }

    void TellsNoBookingTwice()
    {
        QFETCH(QStringList, ways);
        cFetchBook book;
        const cBankMonth month = cBankMonth::Example();
        bool isFirst = true;
        qsizetype alike = 0;
        for (const QString& way : ways) {
            const cImportResult result = way == u"M" ? book.Fetch(month.Mt940())
                : way == u"O" ? book.Fetch(month.Mt940().replace(u":25:"_s + month.Iban, u":25:12345678/1234567"_s))
                : way == u"C" ? book.Fetch({}, {month.Camt()})
                : way == u"b" ? book.Fetch({}, {WithoutBanks(month)})
                : way == u"m" ? book.ReadFile(u"a.sta"_s, month.Mt940().toLatin1())
                              : book.ReadFile(u"a.xml"_s, month.Camt());
            QCOMPARE(result.Read, 7);
            QCOMPARE(result.Staged, isFirst ? 7 : 0);
            QCOMPARE(result.Duplicates.size() + result.Alike.size(), isFirst ? 0 : 7);
            QCOMPARE(result.ClosingBalance, std::optional(month.Closing()));
            alike += result.Alike.size();
            isFirst = false;
        }
        QCOMPARE(book.Count(), 7);
        // Two purposes in each reading of the format that did not come first; without banks no row is the same.
        QCOMPARE(alike, ways.contains(u"b"_s) ? 7 : 4);
    }

    // What one answer tells apart is two bookings; what it tells in the same words is as well, when its balances say
    // so.
    void KeepsApartWhatOneAnswerTellsApart()
    {
        cFetchBook book;
        cBankMonth month = cBankMonth::Example();
        month.Bookings = {month.Bookings.at(4), month.Bookings.at(4), month.Bookings.at(4)};
        month.Bookings[1].Purpose = u"Dan ke"_s;
        const cImportResult first = book.Fetch(month.Mt940());
        QCOMPARE(first.Staged, 3);
        QCOMPARE(first.Proven, 1);
        QCOMPARE(book.Fetch(month.Mt940()).Duplicates.size(), 3);
    }

    // A file without opening balance has a row twice, and leaves one out; the bank proves it in its other format. It is
    // told like the first one, and the start balance that it stood in the way of is due.
    void ProvesWhatAFileLeftOut()
    {
        cFetchBook book;
        cBankMonth month = cBankMonth::Example();
        month.Bookings = {month.Bookings.at(3), month.Bookings.at(3)};
        const QString file = QString::fromUtf8(WithoutBanks(month)).remove(QRegularExpression(u"<Bal>.*?</Bal>"_s));
        const cImportResult read = book.ReadFile(u"a.xml"_s, file.toUtf8());
        QCOMPARE(read.Repeats.size(), 1);
        QVERIFY(book.Balances.Add({{month.Iban, month.Closing(), QDate(2026, 3, 5)}}, {}));
        QVERIFY(cLeftOutRows(*book.Settings).Note(read.Repeats));
        const cImportResult fetched = book.Fetch(month.Mt940());
        QCOMPARE(fetched.Proven, 1);
        QCOMPARE(fetched.FirstBalances, QStringList(month.Iban));
        const cImportEntryList rows = book.Hive.GetImportHive().getImportEntryList();
        QCOMPARE(rows.size(), 2);
        QVERIFY(rows.at(0).isEqual(rows.at(1)));
    }

    // A deleted row is held back by the fetch, for as long as fetches overlap; a file brings it again.
    void RemembersDeletedRows()
    {
        cFetchBook book;
        const cBankMonth month = cBankMonth::Example();
        QCOMPARE(book.Fetch(month.Mt940()).Staged, 7);
        const int id = book.Hive.GetImportHive().getImportEntryList().at(3).ID;
        QVERIFY(book.Hive.Remove(id));
        for (int time = 0; time < 2; ++time) {
            const cImportResult again = book.Fetch({}, {WithoutBanks(month)});
            QCOMPARE(again.Staged, 0);
            QCOMPARE(again.Deleted.size(), 1);
            QCOMPARE(again.Deleted.constFirst().ImportValue, -8400);
        }
        QCOMPARE(book.ReadFile(u"a.sta"_s, month.Mt940().toLatin1()).Staged, 1);
        QCOMPARE(book.Fetch(month.Mt940()).Deleted.size(), 0);
    }

    // Earlier versions noted a row with the bank of its counterparty.
    void KnowsWhatEarlierVersionsNoted()
    {
        cFetchBook book;
        QVERIFY(book.Settings->Set(modSettingKey::Fetched.Of(account), u"2026-03-05=f97946816f0c7daa"_s));
        QCOMPARE(book.Fetch(cBankMonth::Example().Mt940()).Deleted.size(), 1);
    }

    // Rows of a fetch that was taken back were not deleted.
    void ForgetsWithTheStep()
    {
        cFetchBook book;
        {
            const cUndoStep step(book.Data, u"abgerufen"_s);
            QCOMPARE(book.Fetch(cBankMonth::Example().Mt940()).Staged, 7);
        }
        QVERIFY(book.Data.Journal().Undo());
        book.Settings->Reload();
        QCOMPARE(book.Fetch(cBankMonth::Example().Mt940()).Staged, 7);
    }

    // Of an answer that broke off only whole statements are taken: the rest of a cut purpose would come as another row.
    void TakesWholeStatementsOfABrokenAnswer()
    {
        cFetchBook book;
        const cBankMonth month = cBankMonth::Example();
        const QString first = month.Part(QDate(2026, 3, 1), QDate(2026, 3, 4)).Mt940();
        const QString second = month.Part(QDate(2026, 3, 5), QDate(2026, 3, 31)).Mt940();
        const cImportResult result = book.Fetch(first + second.left(second.indexOf(u"Kundennummer") + 3), {}, false);
        QCOMPARE(result.Staged, 3);
        QCOMPARE(book.Fetch(first.left(40), {}, false).Read, 0);
        QCOMPARE(book.Fetch(month.Mt940()).Staged, 4);
    }

    void RefusesWhatCannotBeRead()
    {
        cFetchBook book;
        const QByteArray camt = cBankMonth::Example().Camt();
        QVERIFY(book.Fetch({}, {camt, camt.left(camt.size() / 2)}).IsRefused);
        QVERIFY(book.Fetch(u":20:A\r\n:86:ohne Umsatz\r\n"_s).IsRefused);
        QCOMPARE(book.Count(), 0);
        QVERIFY(!book.Fetch({}).IsRefused); // no bookings
    }

    // The bank's balance goes to the account as its bookings name it, and the number asked for finds that form again.
    void KeepsBalances()
    {
        cFetchBook book;
        cNoProgress progress;
        const cBankMonth month = cBankMonth::Example();
        (void)book.Fetch({}, {month.Camt()});
        const cImportResult later = book.Import.ImportFetched(
            {.Name = {}, .Account = u"1234567"_s, .Balance = 150000, .BalanceDay = QDate(2026, 3, 15)}, {}, progress);
        QCOMPARE(later.Number, month.Iban);
        QCOMPARE(book.Balances.Of(month.Iban).last(), (cBankBalance{QDate(2026, 3, 15), 150000}));
    }
};

TEST_CLASS(testFetchedStatement, QCoreApplication)
#include "testFetchedStatement.moc"
