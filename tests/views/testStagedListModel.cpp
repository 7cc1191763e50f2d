#include "base/modAmount.h"
#include "core/cAmountFormat.h"
#include "core/cConfiguration.h"
#include "support/cTestClass.h"
#include "support/fakes.h"
#include "views/statement/cStagedListModel.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using modStagedGroup::eGrouping;

// Knows nothing, and remembers what it was asked for.
class cSource final : public cStagedSource
{
public:
    [[nodiscard]] cStagedInfo Info(const cImportEntry& row) override
    {
        Asked.append(row.ID);
        return {};
    }

    [[nodiscard]] eStagedGroup Group(const cImportEntry& row) override
    {
        return row.ImportAssigned ? eStagedGroup::Booked
            : row.ImportValue > 0 ? eStagedGroup::InBook
                                  : eStagedGroup::Look;
    }

    QList<int> Asked;
};

cImportEntry Row(int id, QDate day, const QString& name, double euros, bool isBooked)
{
    cImportEntry row;
    row.ID = id;
    row.ImportAccount = u"4711"_s;
    row.ImportDate = day;
    row.ImportBeneficiary = name;
    row.ImportPurpose = u"Zweck %1"_s.arg(id);
    row.ImportValue = modAmount::ToCents(euros);
    row.ImportAssigned = isBooked;
    return row;
}

class cScene
{
public:
    cScene()
    {
        Model.SetRows({Row(1, QDate(2026, 1, 5), u"Rewe"_s, -10, true),
                       Row(2, QDate(2026, 3, 2), u"Aral"_s, -50, false),
                       Row(3, QDate(2026, 3, 2), u"REWE"_s, -20.5, false), Row(4, QDate(2026, 3, 9), {}, 100, false),
                       Row(5, QDate(2026, 6, 2), u"Rewe "_s, -5, false)});
    }

    // Heads with their sums, and IDs of the rows.
    [[nodiscard]] QStringList Lines() const
    {
        QStringList lines;
        for (int top = 0; top < Model.rowCount(); ++top) {
            const QModelIndex head = Model.index(top, 0);
            lines.append(Line(head));
            for (int row = 0; row < Model.rowCount(head); ++row) {
                lines.append(Line(Model.index(row, 0, head)));
            }
        }
        return lines;
    }

    [[nodiscard]] QString Line(const QModelIndex& line) const
    {
        const QString sum = line.siblingAtColumn(cStagedListModel::Amount).data().toString().chopped(2);
        return Model.IsHead(line) ? line.data().toString() + u": " + sum : QString::number(Model.IdAt(line));
    }

    QItemSelection Lines(const QModelIndexList& lines)
    {
        QItemSelection selection;
        for (const QModelIndex& line : lines) {
            selection.append(QItemSelectionRange(line));
        }
        return selection;
    }

    cFakeRegistry Registry;
    cConfiguration Configuration{Registry};
    cAmountFormat Format{Configuration};
    cSource Source;
    cStagedListModel Model{Source, Format};
};

} // namespace

class testStagedListModel final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Groups_data()
    {
        const cTestRows<int, int, Qt::SortOrder, QString, QStringList> row("grouping", "column", "order", "filter",
                                                                           "lines");
        row("none, by amount", int(eGrouping::None), cStagedListModel::Amount, Qt::DescendingOrder, {},
            {u"4"_s, u"5"_s, u"1"_s, u"3"_s, u"2"_s});
        row("one shop in three spellings, a row without a name", int(eGrouping::Counterparty), cStagedListModel::Date,
            Qt::AscendingOrder, {},
            {u"Ohne Namen  (1 offen): 100,00"_s, u"4"_s, u"Aral  (1 offen): -50,00"_s, u"2"_s,
             u"Rewe  (3, davon 2 offen): -35,50"_s, u"1"_s, u"3"_s, u"5"_s});
        row("names downwards", int(eGrouping::Counterparty), cStagedListModel::Counterparty, Qt::DescendingOrder,
            u"e"_s,
            {u"Rewe  (3, davon 2 offen): -35,50"_s, u"5"_s, u"3"_s, u"1"_s, u"Aral  (1 offen): -50,00"_s, u"2"_s,
             u"Ohne Namen  (1 offen): 100,00"_s, u"4"_s});
        row("what is to be done keeps its order", int(eGrouping::Plan), cStagedListModel::Date, Qt::DescendingOrder, {},
            {u"schon im Buch  (1): 100,00"_s, u"4"_s, u"bitte ansehen  (3): -75,50"_s, u"5"_s, u"2"_s, u"3"_s,
             u"gebucht  (1): -10,00"_s, u"1"_s});
        row("newest day first, filtered", int(eGrouping::Day), cStagedListModel::Date, Qt::DescendingOrder, u"rewe"_s,
            {u"Dienstag, 02.06.2026  (1 offen): -5,00"_s, u"5"_s, u"Montag, 02.03.2026  (1 offen): -20,50"_s, u"3"_s,
             u"Montag, 05.01.2026  (1 gebucht): -10,00"_s, u"1"_s});
    }

    void Groups()
    {
        QFETCH(int, grouping);
        QFETCH(int, column);
        QFETCH(Qt::SortOrder, order);
        QFETCH(QString, filter);
        cScene scene;
        scene.Model.SetFilter(filter);
        scene.Model.SetGrouping(static_cast<eGrouping>(grouping));
        scene.Model.sort(column, order);
        QTEST(scene.Lines(), "lines");
    }

    void AHeadStandsForItsRows()
    {
        cScene scene;
        scene.Model.SetGrouping(eGrouping::Counterparty);
        const QModelIndex rewe = scene.Model.HeadNamed(u"Rewe"_s);
        QCOMPARE(scene.Model.IdsIn(scene.Lines({rewe})), (QList<int>{1, 3, 5}));
        // Also when some of its rows are selected besides, and rows of others.
        const QModelIndex aral = scene.Model.index(0, 0, scene.Model.HeadNamed(u"Aral"_s));
        QCOMPARE(scene.Model.IdsIn(scene.Lines({scene.Model.index(1, 0, rewe), rewe, aral})), (QList<int>{2, 1, 3, 5}));
        // Neighbours are one range, because thousands of ranges take a view seconds.
        const QItemSelection found = scene.Model.SelectionOf({5, 2, 3});
        QCOMPARE(found.size(), 2);
        QCOMPARE(scene.Model.IdsIn(found), (QList<int>{2, 3, 5}));
        QVERIFY(!scene.Model.flags(rewe.siblingAtColumn(cStagedListModel::Category)).testFlag(Qt::ItemIsEditable));
    }

    void LeavesOut()
    {
        cScene scene;
        scene.Model.SetShown({.OpenOnly = true, .HidesOld = true});
        QCOMPARE(scene.Lines(), (QStringList{u"2"_s, u"3"_s, u"4"_s, u"5"_s})); // three months to the day are not old
        scene.Model.SetRows({Row(1, QDate(2026, 1, 5), {}, -1, true), Row(2, QDate(2026, 3, 1), {}, -1, false),
                             Row(3, QDate(2026, 3, 2), {}, -1, false), Row(4, QDate(2026, 6, 2), {}, -1, false)});
        QCOMPARE(scene.Lines(), (QStringList{u"3"_s, u"4"_s}));
        QCOMPARE(scene.Model.Counts().Old, 1); // the booked one is not there for another reason
        QCOMPARE(scene.Model.Counts().Open, 3);
        scene.Model.SetShown({.FirstId = 2, .LastId = 3});
        QCOMPARE(scene.Lines(), (QStringList{u"2"_s, u"3"_s}));
        QCOMPARE(scene.Model.Counts().Total, 2);
    }

    // A proposal costs far more than all the rest of a row.
    void AsksOnlyForWhatIsSeen()
    {
        cScene scene;
        scene.Model.SetGrouping(eGrouping::Day);
        scene.Model.SetFilter(u"e"_s);
        scene.Model.sort(cStagedListModel::Amount, Qt::AscendingOrder);
        QCOMPARE(scene.Source.Asked, QList<int>());
        const QModelIndex row = scene.Model.IndexOf(3);
        (void)row.siblingAtColumn(cStagedListModel::Category).data();
        (void)row.siblingAtColumn(cStagedListModel::Reason).data();
        QCOMPARE(scene.Source.Asked, QList<int>{3});
    }
};

TEST_CLASS(testStagedListModel, QCoreApplication)
#include "testStagedListModel.moc"
