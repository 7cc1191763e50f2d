#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "views/list/cListLayout.h"
#include "views/list/modColumnWidth.h"

using namespace Qt::Literals::StringLiterals;

// Columns of a list in the width and in the type size that there is.
class testColumnWidth final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ShareTheRoom_data()
    {
        const cTestRows<int, int, QList<int>> row("Rest", "Room", "Widths");
        row("what is left goes to cut texts, then to one", 1, 500, {90, 330, 80});
        row("no more than there is", 1, 365, {85, 200, 80});
        row("or to none", -1, 500, {90, 200, 80});
        row("the long text gives way first", 1, 250, {80, 97, 73});
        row("then the amount keeps what it needs", 1, 160, {52, 38, 70});
        row("below that the list scrolls", 1, 100, {30, 20, 70});
    }

    void ShareTheRoom()
    {
        QFETCH(int, Rest);
        QFETCH(int, Room);
        const QList<modColumnWidth::cColumn> columns{{80, 80, 30, 90}, {200, 60, 20}, {80, 60, 70}};
        QTEST(modColumnWidth::Share(columns, Rest, Room), "Widths");
    }

    void StoredWidthsFollowTheTypeSize()
    {
        const std::optional<cListLayout> stored = cListLayout::FromText(u"0,60,1|1,0,1|sort,0,0|letter,6"_s, 2);
        QVERIFY(stored);
        const cListLayout larger = stored->ForLetter(8);
        QCOMPARE(larger.ToText(), u"0,80,1|1,0,1|sort,0,0|letter,8"_s);
        const std::optional<cListLayout> old = cListLayout::FromText(u"0,60,1|1,0,1|sort,0,0"_s, 2);
        QVERIFY(old);
        QCOMPARE(old->ForLetter(8).Columns.front().Width, 60); // nobody knows what it was measured in

        // A column that came with a later version does not cost the user the layout.
        const std::optional<cListLayout> grown = cListLayout::FromText(u"1,60,1|0,0,0|sort,0,0"_s, 4, {3});
        QVERIFY(grown);
        QCOMPARE(grown->ToText(), u"1,60,1|0,0,0|2,0,1|3,0,0|sort,0,0"_s);
        QVERIFY(!cListLayout::FromText(u"1,60,1|2,0,1|sort,0,0"_s, 3));
    }
};

TEST_CLASS(testColumnWidth, QCoreApplication)
#include "testColumnWidth.moc"
