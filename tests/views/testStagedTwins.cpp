#include "import/plan/modStagedTwins.h"
#include "import/stage/modStatementFormat.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "views/ledger/cImportRuns.h"

#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {

using modStagedTwins::cFile;
using fnChange = std::function<void(cImportEntry&)>;

// What a bank writes in one format.
cImportEntry First()
{
    cImportEntry row;
    row.ID = 1;
    row.ImportAccount = u"DE12999000104711000815"_s;
    row.ImportDate = QDate(2026, 3, 2);
    row.ImportBeneficiary = u"Stadtwerke Talheim"_s;
    row.ImportBeneficiaryAccount = u"DE02120300000000202051"_s;
    row.ImportPurpose = u"Abschlag März"_s;
    row.ImportValue = -8450;
    return row;
}

cFile FileOf(int id)
{
    return id < 5 ? cFile{1, u'm'} : id < 20 ? cFile{2, u'c'} : id < 40 ? cFile{3, u'm'} : cFile{};
}

} // namespace

class testStagedTwins final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Finds_data()
    {
        // Change: into the words of another file; Found: 0 not, 1 by the account, 2 by the name
        const cTestRows<int, fnChange> row("Found", "Change");
        row("other words", 1, [](auto& each) { each.ImportBeneficiary = u"SWT"_s; });
        row("number instead of IBAN", 1, [](auto& each) { each.ImportBeneficiaryAccount = u"202051"_s; });
        row("another number of the same own account", 1, [](auto& each) { each.ImportAccount = u"4711000815"_s; });
        row("another own account", 0, [](auto& each) { each.ImportAccount = u"99"_s; });
        row("another counterparty", 0, [](auto& each) { each.ImportBeneficiaryAccount = u"202052"_s; });
        row("another day", 0, [](auto& each) { each.ImportDate = each.ImportDate.addDays(1); });
        row("the same on another day", 1, [](auto& each) {
            each.ImportDate = each.ImportDate.addDays(4);
            each.ImportPurpose = u"ABSCHLAG MAERZ Kd. 17"_s;
        });
        row("no account, the same on another day", 2, [](auto& each) {
            each.ImportDate = each.ImportDate.addDays(-1);
            each.ImportBeneficiaryAccount.clear();
            each.ImportPurpose = First().ImportPurpose;
        });
        row("too many days away", 0, [](auto& each) {
            each.ImportDate = each.ImportDate.addDays(5);
            each.ImportPurpose = First().ImportPurpose;
        });
        row("the same on another day in the same format", 0, [](auto& each) {
            each.ID = 30;
            each.ImportDate = each.ImportDate.addDays(2);
            each.ImportPurpose = First().ImportPurpose;
        });
        row("the same on another day in a file that is forgotten", 1, [](auto& each) {
            each.ID = 40;
            each.ImportDate = each.ImportDate.addDays(2);
            each.ImportPurpose = First().ImportPurpose;
        });
        row("another amount", 0, [](auto& each) { each.ImportValue = -8451; });
        row("the other way round", 0, [](auto& each) { each.ImportValue = 8450; });
        row("no account, a name that is cut off", 2, [](auto& each) {
            each.ImportBeneficiaryAccount.clear();
            each.ImportBeneficiary = u"STADTWERKE TAL"_s;
        });
        row("no account, another name", 0, [](auto& each) {
            each.ImportBeneficiaryAccount.clear();
            each.ImportBeneficiary = u"Bäckerei Kornblume"_s;
        });
        row("no account, no name but in the purpose", 2, [](auto& each) {
            each.ImportBeneficiaryAccount.clear();
            each.ImportBeneficiary.clear();
            each.ImportPurpose = u"Stadtwerke Talheim Abschlag"_s;
        });
        row("no account, no name, the same purpose", 2, [](auto& each) {
            each.ImportBeneficiaryAccount.clear();
            each.ImportBeneficiary.clear();
            each.ImportPurpose = First().ImportPurpose;
        });
        row("of the same file", 0, [](auto& each) { each.ID = 3; });
        row("taken twice on purpose", 0, [](auto& each) { each.ImportPurpose = First().ImportPurpose; });
    }

    void Finds()
    {
        QFETCH(fnChange, Change);
        QFETCH(int, Found);
        cImportEntry other = First();
        other.ID = 10;
        other.ImportPurpose = u"ABSCHLAG 03/26"_s;
        Change(other);
        const auto twins = modStagedTwins::Find(
            {First(), other},
            {.AccountOf = [](const QString& number) { return number.endsWith(u"4711000815") ? u"Giro"_s : QString(); },
             .FileOf = FileOf});
        const auto twin = twins.constFind(1);
        QCOMPARE(twin == twins.constEnd() ? 0 : twin->Same == modStagedTwins::eSame::Counterparty ? 1 : 2, Found);
        QCOMPARE(twins.contains(other.ID), Found != 0);
    }

    // Two payments that are alike, of which the first file has only the one.
    void EachBookingHasOneTwin_data()
    {
        // Days: from the booking to its twin; Twin: of the booking, when it is told of another day
        const cTestRows<int, int> row("Days", "Twin");
        row("the same day", 0, 0);
        row("another day", 1, 10);
    }

    void EachBookingHasOneTwin()
    {
        QFETCH(const int, Days);
        cImportEntry same = First();
        same.ID = 10;
        same.ImportDate = same.ImportDate.addDays(Days);
        cImportEntry next = same;
        next.ID = 11;
        next.ImportDate = next.ImportDate.addDays(2);
        const auto twins = modStagedTwins::Find(
            {First(), same, next}, {.AccountOf = [](const QString& number) { return number; }, .FileOf = FileOf});
        QTEST(twins.value(1).RowId, "Twin");
        QCOMPARE(twins.value(1).Days, Days);
        QVERIFY(!twins.contains(next.ID));
    }

    void OfSeveralTwinsTheFirstCounts_data()
    {
        QTest::addColumn<bool>("isBooked");
        QTest::newRow("open") << false;
        QTest::newRow("booked") << true;
    }

    // One format names the value day, two others that of the booking.
    void OfSeveralTwinsTheFirstCounts()
    {
        QFETCH(const bool, isBooked);
        cImportEntry value = First();
        value.ID = isBooked ? 30 : 1;
        value.ImportAssigned = isBooked;
        cImportEntry table = First();
        table.ID = 10;
        table.ImportDate = table.ImportDate.addDays(2);
        cImportEntry archive = table;
        archive.ID = 50;
        archive.ImportBeneficiary = u"SWT"_s;
        const auto twins = modStagedTwins::Find({value, table, archive},
                                                {.AccountOf = [](const QString& number) { return number; },
                                                 .FileOf =
                                                     [](int id) {
                                                         return id == 50 ? cFile{4, u'z'} : FileOf(id);
                                                     }});
        QCOMPARE(twins.value(table.ID).RowId, value.ID);
        QCOMPARE(twins.value(archive.ID).RowId, value.ID);
    }

    void EachOfTwoEqualRowsHasItsTwin_data()
    {
        const cTestRows<QString> row("name"); // in the format that has both on one day
        row("other words", u"SWT"_s);
        row("the same words, so that only the second was staged", First().ImportBeneficiary);
    }

    // Two equal purchases of a day: one format says so, the other names their value days.
    void EachOfTwoEqualRowsHasItsTwin()
    {
        cImportEntry other = First();
        other.ID = 10;
        QFETCH(QString, name);
        other.ImportBeneficiary = name;
        cImportEntry second = other;
        second.ID = 11;
        cImportEntry later = First();
        later.ID = 2;
        later.ImportDate = later.ImportDate.addDays(2);
        cImportEntryList rows{First(), later, other, second};
        rows.removeIf([](const cImportEntry& row) { return row.ID == 10 && row.isEqual(First()); });
        const auto twins =
            modStagedTwins::Find(rows, {.AccountOf = [](const QString& number) { return number; }, .FileOf = FileOf});
        QCOMPARE(twins.value(later.ID).RowId, second.ID);
    }

    void ABookedRowIsNotMarkedButNamed()
    {
        cImportEntry open = First();
        cImportEntry booked = First();
        booked.ID = 9;
        booked.ImportAssigned = true;
        booked.ImportPurpose = u"x"_s;
        cImportEntry third = First();
        third.ID = 5;
        third.ImportPurpose = u"y"_s;
        const auto twins = modStagedTwins::Find(
            {open, third, booked},
            {.AccountOf = [](const QString& number) { return number; }, .FileOf = [](int) { return cFile(); }});
        QCOMPARE(twins.size(), 2);
        QCOMPARE(twins.value(1).RowId, 9); // rather than the other open one
    }

    void RemembersWhatCameTogether()
    {
        using cRange = cImportRuns::cRange;
        cTestBook book;
        cImportRuns runs(*book.Settings);
        QVERIFY(runs.Latest().IsEmpty());
        runs.NoteImport({1, 2, 3});
        runs.NoteFile({4, 5}, eStatementFormat::Camt);
        runs.NoteFile({}, eStatementFormat::Camt);
        runs.NoteFile({6}, eStatementFormat::Mt940);
        runs.NoteImport({4, 5, 6});
        QCOMPARE(cImportRuns(*book.Settings).ImportOf(5), (cRange{4, 6}));
        QCOMPARE(runs.Files(), (QList<cRange>{{1, 3}, {4, 5, u'c'}, {6, 6, u'm'}}));
        QVERIFY(runs.ImportOf(7).IsEmpty());
        runs.NoteImport({}); // nothing new came
        QCOMPARE(runs.Latest(), (cRange{4, 6}));
        for (int id = 7; id < 107; ++id) { // a year of weekly files of two accounts
            runs.NoteFile({id}, eStatementFormat::Mt940);
            runs.NoteImport({id});
        }
        QCOMPARE(runs.ImportOf(5), (cRange{4, 6}));
        runs.NoteImport({4}); // after the last imports were undone
        QCOMPARE(runs.Files(), (QList<cRange>{{1, 3}, {4, 4}}));
    }
};

TEST_CLASS(testStagedTwins, QCoreApplication)
#include "testStagedTwins.moc"
