#include "base/modAmount.h"
#include "cImportBook.h"
#include "import/propose/cBooking.h"
#include "import/propose/cProposer.h"
#include "import/stage/cStatementImport.h"
#include "model/modRecurrence.h"
#include "model/modWord.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

struct cBank : cImportBook
{
    cBank() { IsReady = Accounts.Assign(u"111"_s, u"Girokonto"_s) && Accounts.Assign(u"222"_s, u"Sparkonto"_s); }

    int Stage(QDate date, double value, const QString& name, const QString& account = {}, const QString& own = u"111"_s)
    {
        cImportEntry row;
        row.ImportAccount = own;
        row.ImportDate = date;
        row.ImportValue = modAmount::ToCents(value);
        row.ImportBeneficiary = name;
        row.ImportBeneficiaryAccount = account;
        row.ImportPurpose = u"zu  Nr. 1"_s;
        return cStaging(Hive).StageImportEntry(row, eDuplicateTest::Skip) == eStaged::Staged ? row.ID : 0;
    }

    cProposal Propose(int row) { return Booking.Propose({row}).value(row); }

    cBookingResult BookAll(const QList<int>& rows)
    {
        cNoProgress progress;
        return Booking.Book(rows, Booking.Propose(rows), progress);
    }

    int EntryOf(int row)
    {
        return Hive.GetImportHive().GetImportEntryByID(row).value_or(cImportEntry()).ImportAssignedEntry;
    }

    // Books a row under a category of the user's own.
    void BookAs(int row, const QString& category, const QString& interval = modWord::Einmalig)
    {
        cEntryItem entry = Propose(row).Entry;
        entry.EntryCategory = category;
        entry.EntryInterval = interval;
        QCOMPARE(cImportBook::BookAs(Booking, row, entry).Rows, 1);
    }

    cBooking Booking{Data, Hive, Accounts};
    bool IsReady = false;
};

const QDate day(2026, 1, 10);

} // namespace

class testBooking : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ProposesByRule()
    {
        cBank bank;
        QVERIFY(bank.IsReady);
        const cProposal proposal = bank.Propose(bank.Stage(day, -23.1, u"REWE  Markt"_s));
        QCOMPARE(proposal.Entry.EntryDate, day);
        QCOMPARE(proposal.Entry.EntryDateEnd, modRecurrence::OpenEnd);
        QCOMPARE(proposal.Entry.EntryValue, 2310);
        QCOMPARE(proposal.Entry.EntryType, modWord::Ausgabe);
        QCOMPARE(proposal.Entry.EntryAccount, u"Girokonto"_s);
        QCOMPARE(proposal.Entry.EntryCategory, u"Haushalt; Lebensmittel"_s);
        QCOMPARE(proposal.Entry.EntryInterval, modWord::Einmalig);
        QCOMPARE(proposal.Entry.EntryDescription, u"REWE Markt - zu Nr. 1"_s);
        QCOMPARE(proposal.Reason, u"Regel: rewe"_s);
    }

    void ProposesDefault()
    {
        cBank bank;
        const int id = bank.Stage(day, 5, {});
        QCOMPARE(bank.Propose(id).Entry.EntryCategory, u"Allgemein"_s);
        QCOMPARE(bank.Propose(id).Entry.EntryType, modWord::Einnahme);
        QCOMPARE(bank.Propose(id).Entry.EntryDescription, u"zu Nr. 1"_s);
        QVERIFY(bank.Propose(id).Reason.isEmpty());
        const cImportEntry row = *bank.Hive.GetImportHive().GetImportEntryByID(id);
        cProposer proposer(bank.Data, bank.Hive, bank.Accounts);
        QVERIFY(proposer.Propose(row, eRestriction::Restricted).Entry.EntryCategory.isEmpty());
    }

    void LearnsFromTheUser()
    {
        cBank bank;
        bank.BookAs(bank.Stage(day, -1, u"REWE"_s, u"DE01"_s), u"A"_s);
        const int alike = bank.Stage(day.addDays(9), -2, u"Rewe Sued"_s, u"DE 01"_s);
        QCOMPARE(bank.Propose(alike).Entry.EntryCategory, u"A"_s);
        QCOMPARE(bank.Propose(alike).Reason, u"gelernt aus 1 Buchung an Rewe Sued"_s);
        // A tie goes to the newest, whatever order the rows were booked in.
        bank.BookAs(bank.Stage(day.addDays(-1), -1, u"REWE"_s, u"DE01"_s), u"B"_s, u"Jährlich"_s);
        QCOMPARE(bank.Propose(alike).Entry.EntryCategory, u"A"_s);
        bank.BookAs(bank.Stage(day.addDays(-300), -1, u"REWE"_s, u"DE01"_s), u"B"_s);
        QCOMPARE(bank.Propose(alike).Entry.EntryCategory, u"B"_s);
        QCOMPARE(bank.Propose(alike).Entry.EntryInterval, u"Jährlich"_s);
        QCOMPARE(bank.Propose(alike).Reason, u"gelernt aus 2 Buchungen an Rewe Sued"_s);
        // The name counts where the account is unknown.
        QCOMPARE(bank.Propose(bank.Stage(day, -3, u"rewe"_s)).Entry.EntryCategory, u"B"_s);
        QCOMPARE(bank.Propose(bank.Stage(day, -3, u"rewe west"_s)).Reason, u"Regel: rewe"_s);
        QCOMPARE(bank.Propose(bank.Stage(day, 3, u"REWE"_s)).Reason, u"gelernt aus 2 Buchungen von REWE"_s);
    }

    void TransferTakesBothRows()
    {
        cBank bank;
        const int out = bank.Stage(day, -200, u"Ich"_s, u"222"_s);
        const int other = bank.Stage(day.addDays(6), 200, u"Ich"_s, u"111"_s, u"222"_s); // too late
        const int stranger = bank.Stage(day, 200, u"Du"_s, u"999"_s, u"222"_s);
        const int in = bank.Stage(day.addDays(5), 200, u"Ich"_s, u"DE44100200300000000111"_s, u"222"_s);
        const cProposal proposal = bank.Propose(out);
        QCOMPARE(proposal.Entry.EntryType, modWord::Umbuchung);
        QCOMPARE(proposal.Entry.EntryAccount, u"Girokonto"_s);
        QCOMPARE(proposal.Entry.EntryAccountMove, u"Sparkonto"_s);
        QCOMPARE(proposal.PartnerRow, in);
        QCOMPARE(bank.Propose(in).Entry.EntryAccount, u"Girokonto"_s);
        const cBookingResult result = bank.BookAll({out, in});
        QCOMPARE(QList<int>({result.Entries, result.Rows, result.Skipped}), QList<int>({1, 2, 1}));
        QCOMPARE(bank.EntryOf(out), bank.EntryOf(in));
        QCOMPARE(bank.EntryOf(other), -1);
        QCOMPARE(bank.EntryOf(stranger), -1);
    }

    // The other account's statement comes a week later: its row belongs to the transfer that is already in the book.
    void TransferFindsItsSecondRowLater()
    {
        cBank bank;
        const int out = bank.Stage(day, -200, u"Ich"_s, u"222"_s);
        QCOMPARE(bank.BookAll({out}).Entries, 1);
        const int in = bank.Stage(day.addDays(1), 200, u"Ich"_s, u"111"_s, u"222"_s);
        const int again = bank.Stage(day.addDays(1), 200, u"Ich"_s, u"111"_s, u"222"_s);
        QCOMPARE(bank.BookAll({in}).Joined, 1);
        QCOMPARE(bank.EntryOf(in), bank.EntryOf(out));
        QCOMPARE(bank.Propose(again).ExistingEntry, 0);
        QCOMPARE(bank.Data.CountEntries(), 1);
    }

    // The rent of the next month is an occurrence of the first month's entry, not a second series beside it.
    void SeriesTakesItsPayments()
    {
        cBank bank;
        QList<int> rows;
        for (int month = 0; month < 3; ++month) {
            rows.append(
                bank.Stage(day.addMonths(month).addDays(month), month == 2 ? -660 : -650, u"Miete Tann"_s, u"DE05"_s));
        }
        const cBookingResult result = bank.BookAll(rows);
        QCOMPARE(QList<int>({result.Entries, result.Rows, result.Joined}), QList<int>({1, 3, 2}));
        cEntryQuery query;
        query.Start = QDate(2026, 1, 1);
        query.End = QDate(2026, 3, 31);
        const cEntryItemList entries = bank.Data.GetEntries(query);
        QCOMPARE(entries.size(), 3);
        QCOMPARE(entries.last().EntryValue, 66000);
        QVERIFY(entries.last().IsCorrected && !entries.first().IsCorrected);
        // A second payment within the month is no occurrence.
        const int extra = bank.Stage(day.addDays(2), -650, u"Miete Tann"_s, u"DE05"_s);
        QCOMPARE(bank.Propose(extra).ExistingEntry, 0);
        const int next = bank.Stage(day.addMonths(3), -650, u"Miete Tann"_s, u"DE05"_s);
        QCOMPARE(bank.Propose(next).ExistingEntry, bank.EntryOf(rows.first()));
    }

    void KeywordsAloneMakeNoSeries_data()
    {
        QTest::addColumn<QList<int>>("same"); // days after the row on which the payee is paid again
        QTest::addColumn<QList<int>>("others");
        QTest::addColumn<QString>("interval");
        QTest::newRow("the only row") << QList<int>{} << QList<int>{} << u"Monatlich"_s;
        QTest::newRow("a month later again") << QList<int>{33} << QList<int>{90} << u"Monatlich"_s;
        QTest::newRow("a month before") << QList<int>{-31} << QList<int>{90} << u"Monatlich"_s;
        QTest::newRow("never again") << QList<int>{} << QList<int>{20, 60} << u"Einmalig"_s;
        QTest::newRow("not to be known yet") << QList<int>{} << QList<int>{20, 40} << u"Monatlich"_s;
        QTest::newRow("every week or so") << QList<int>{8, 30} << QList<int>{} << u"Einmalig"_s;
    }

    void KeywordsAloneMakeNoSeries()
    {
        QFETCH(const QList<int>, same);
        QFETCH(const QList<int>, others);
        cBank bank;
        const int row = bank.Stage(day, -650, u"Miete Tann"_s, u"DE05"_s);
        for (const int days : same) {
            (void)bank.Stage(day.addDays(days), -640, u"Miete Tann"_s, u"DE05"_s);
        }
        for (const int days : others) {
            (void)bank.Stage(day.addDays(days), -5, u"REWE"_s);
        }
        QTEST(bank.Propose(row).Entry.EntryInterval, "interval");
    }

    // Statements come in pieces, and behind the first one the series was ended.
    void EndedSeriesGoesOn()
    {
        cBank bank;
        const int first = bank.Stage(day, -650, u"Miete Tann"_s, u"DE05"_s);
        QCOMPARE(bank.BookAll({first}).Entries, 1);
        cEntryItem series = *bank.Data.LoadEntry(bank.EntryOf(first));
        series.EntryDateEnd = day;
        QVERIFY(bank.Data.ChangeEntry(series));
        const int next = bank.Stage(day.addMonths(2), -660, u"Miete Tann"_s, u"DE05"_s);
        QCOMPARE(bank.BookAll({next}).Joined, 1);
        QCOMPARE(bank.Data.LoadEntry(series.ID)->EntryDateEnd, modRecurrence::OpenEnd);
        QVERIFY(bank.Data.ChangeEntry(series));
        const int years = bank.Stage(day.addMonths(30), -650, u"Miete Tann"_s, u"DE05"_s);
        QCOMPARE(bank.BookAll({years}).Entries, 1);
    }

    void UnknownNumberIsNotBooked()
    {
        cBank bank;
        const cBookingResult result = bank.BookAll({bank.Stage(day, -1, u"X"_s, {}, u"333"_s)});
        QCOMPARE(result.UnknownAccounts, QStringList(u"333"_s));
        QCOMPARE(bank.Data.CountEntries(), 0);
    }

    void FailedAssignmentTakesAllBack()
    {
        cBank bank;
        const QList<int> rows{bank.Stage(day, -1, u"X"_s), bank.Stage(day, -2, u"X"_s), bank.Stage(day, -3, u"X"_s)};
        bank.WriteBehind(
            "CREATE TRIGGER full BEFORE UPDATE ON import WHEN NEW.ImportAssigned <> 0 AND NEW.ImportValue = -2 "
            "BEGIN SELECT RAISE(ABORT, 'voll'); END");
        const cBookingResult result = bank.BookAll(rows);
        QCOMPARE(QList<int>({result.Entries, result.Rows, result.Failed}), QList<int>({0, 0, 3}));
        QCOMPARE(bank.User.Shown.size(), 1);
        QCOMPARE(bank.Data.CountEntries(), 0);
        QCOMPARE(bank.Hive.GetImportHive().GetImportEntriesByAssignedID(-1).size(), 3);
    }

    void DeletedEntryReleasesItsRows()
    {
        cBank bank;
        const QList<int> rows{bank.Stage(day, -1, u"X"_s), bank.Stage(day, -2, u"X"_s), bank.Stage(day, -3, u"X"_s)};
        bank.BookAs(rows.first(), u"A"_s);
        const int entry = bank.EntryOf(rows.first());
        QVERIFY(bank.Booking.Assign(rows.at(1), entry) && bank.Booking.Assign(rows.at(2), entry));
        QCOMPARE(bank.Hive.GetImportHive().GetImportEntriesByAssignedID(entry).size(), 3);
        QVERIFY(bank.Booking.Unassign(rows.at(2)));
        QCOMPARE(bank.Accounts.getAssignedEntry(*bank.Hive.GetImportHive().GetImportEntryByID(rows.at(1)))->ID, entry);
        QVERIFY(bank.Data.DeleteEntry(entry));
        QCOMPARE(bank.Hive.GetImportHive().GetImportEntriesByAssignedID(-1).size(), 3);
        QVERIFY(!bank.Booking.Assign(rows.at(1), entry));
    }
};

QTEST_GUILESS_MAIN(testBooking)
#include "testBooking.moc"
