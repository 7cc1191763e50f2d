#include "import/stage/cImportHive.h"
#include "support/cTestClass.h"

#include <QRandomGenerator>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

cImportEntry Row(int id, const QString& account, qint64 value, int entryId = -1)
{
    cImportEntry row;
    row.ID = id;
    row.ImportAccount = account;
    row.ImportDate = QDate(2026, 1, 1).addDays(id % 3);
    row.ImportValue = value;
    row.ImportAssigned = entryId > -1;
    row.ImportAssignedEntry = entryId;
    return row;
}

cImportEntryList Rows()
{
    return {Row(1, u"A"_s, -150, 7), Row(2, u"A"_s, 200), Row(4, u"B"_s, 300, 5), Row(5, u"A"_s, 400, 7),
            Row(9, u"a"_s, 500)};
}

QList<int> Ids(const cImportEntryList& rows)
{
    return Each(rows, &cImportEntry::ID);
}

} // namespace

class testImportHive : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void LooksUp_data()
    {
        const cTestRows<bool> row("isDescending");
        row("ascending", false);
        row("descending", true);
    }

    void LooksUp()
    {
        QFETCH(bool, isDescending);
        cImportEntryList rows = Rows();
        if (isDescending) {
            std::reverse(rows.begin(), rows.end());
        }
        cImportHive hive;
        hive.setImportEntryList(rows);
        for (int id = 0; id <= 10; ++id) {
            QCOMPARE(hive.GetImportEntryByID(id).has_value(), Ids(rows).contains(id));
        }
        QCOMPARE(hive.GetImportEntryByAssignedID(7)->ID, isDescending ? 5 : 1);
        QCOMPARE(Ids(hive.GetImportEntriesByAssignedID(-1)), isDescending ? (QList<int>{9, 2}) : (QList<int>{2, 9}));
        QVERIFY(hive.IsImportEntryAvail(5) && !hive.IsImportEntryAvail(6));
        QCOMPARE(hive.GetImportEntryCountByNumber(u"A"_s), 3);
        QCOMPARE(hive.GetImportEntrySumByNumber(u"A"_s), 450);
    }

    void AreaIncludesBothEnds()
    {
        cImportHive hive;
        hive.setImportEntryList(Rows()); // rows 1 and 5 of entry 7 on the 2nd and 3rd
        QCOMPARE(Ids(hive.GetImportEntryByArea(7, QDate(2026, 1, 2), QDate(2026, 1, 3))), (QList<int>{1, 5}));
        QCOMPARE(Ids(hive.GetImportEntryByArea(7, QDate(2026, 1, 3), QDate(2026, 1, 9))), (QList<int>{5}));
    }

    // Random writes: afterwards every lookup answers as a hive that was loaded afresh, and the duplicate test as a
    // scan.
    void StaysInStep()
    {
        QRandomGenerator random(20260315);
        cImportEntryList rows = Rows();
        cImportHive hive;
        hive.setImportEntryList(rows);
        for (int step = 0; step < 600; ++step) {
            cImportEntry row = Row(random.bounded(1, 40), random.bounded(2) == 0 ? u"A"_s : u"B"_s, random.bounded(3),
                                   random.bounded(-1, 6));
            for (QString* text : {&row.ImportType, &row.ImportCurrency, &row.ImportBeneficiary, &row.ImportPurpose}) {
                *text = random.bounded(8) == 0 ? u"x"_s : QString();
            }
            const auto place = std::lower_bound(rows.begin(), rows.end(), row.ID,
                                                [](const cImportEntry& left, int id) { return left.ID < id; });
            const bool isThere = place != rows.end() && place->ID == row.ID;
            QCOMPARE(hive.IsImportItemAvail(row), std::any_of(rows.begin(), rows.end(), [&](const cImportEntry& known) {
                         return known.isEqual(row);
                     }));
            if (!isThere) {
                rows.insert(place, row);
                hive.Add(row);
            } else if (random.bounded(2) == 0) {
                *place = row;
                hive.Change(row);
            } else {
                rows.erase(place);
                hive.Remove(row.ID);
            }
            cImportHive fresh;
            fresh.setImportEntryList(rows);
            QCOMPARE(Ids(hive.getImportEntryList()), Ids(rows));
            for (int entryId = -1; entryId < 6; ++entryId) {
                QCOMPARE(Ids(hive.GetImportEntriesByAssignedID(entryId)),
                         Ids(fresh.GetImportEntriesByAssignedID(entryId)));
            }
        }
    }
};

TEST_CLASS(testImportHive, QCoreApplication)
#include "testImportHive.moc"
