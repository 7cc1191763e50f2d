#include "core/cAmountFormat.h"
#include "support/testBook.h"
#include "views/entry/cEntryDelete.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString thisPart = u"Nur diesen Teil löschen"_s;
const QString theseParts = u"Nur die ausgewählten löschen"_s;
const QString allParts = u"Alle Teile löschen"_s;

// Three parts (1 to 3), then an ordinary entry.
void Fill(cTestBook& book)
{
    for (int i = 0; i < 3; ++i) {
        (void)book.Add([](cEntryItem& entry) {
            entry.EntryDescription = u"Teil"_s;
            entry.EntryFlags = u"split=1"_s;
        });
    }
    (void)book.Add([](cEntryItem& entry) { entry.EntryDescription = u"anderes"_s; });
}

} // namespace

class testEntryDelete final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AsksForPartsOnce_data();
    void AsksForPartsOnce();
    void QuestionNamesWhatGoes();
    void DeletingIsOneStep();
};

void testEntryDelete::AsksForPartsOnce_data()
{
    QTest::addColumn<QList<int>>("ids");
    QTest::addColumn<int>("choice");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("left"); // flags by ID
    const QString other = u"4 "_s;
    QTest::newRow("given up") << QList<int>{2} << -1 << QStringList{thisPart, allParts}
                              << QStringList{u"1 split=1"_s, u"2 split=1"_s, u"3 split=1"_s, other};
    QTest::newRow("this part") << QList<int>{2} << 0 << QStringList{thisPart, allParts}
                               << QStringList{u"1 split=1"_s, u"3 split=1"_s, other};
    QTest::newRow("the part that names the group")
        << QList<int>{1} << 0 << QStringList{thisPart, allParts} << QStringList{u"2 split=2"_s, u"3 split=2"_s, other};
    QTest::newRow("all parts") << QList<int>{3} << 1 << QStringList{thisPart, allParts} << QStringList{other};
    QTest::newRow("all but one, which is ordinary then")
        << QList<int>{1, 3} << 0 << QStringList{theseParts, allParts} << QStringList{u"2 "_s, other};
    QTest::newRow("the whole group is selected") << QList<int>{1, 2, 3} << 0 << QStringList{} << QStringList{other};
    QTest::newRow("none is a part") << QList<int>{4, 99} << 0 << QStringList{}
                                    << QStringList{u"1 split=1"_s, u"2 split=1"_s, u"3 split=1"_s};
}

void testEntryDelete::AsksForPartsOnce()
{
    QFETCH(QList<int>, ids);
    QFETCH(int, choice);
    QFETCH(QStringList, options);
    cTestBook book;
    Fill(book);
    const cAmountFormat format(book.Configuration);
    cEntryDelete flow(book.Data, book.User, format);
    book.User.Decisions = {choice};
    book.User.Answers = {eAnswer::Yes};
    QCOMPARE(flow.Delete(ids), choice >= 0);
    QCOMPARE(book.User.Asked.size(), 1);
    QCOMPARE(book.User.LastDecision.Options, options);
    QStringList left;
    for (int id = 1; id <= 4; ++id) {
        if (const std::optional<cEntryItem> entry = book.Data.LoadEntry(id)) {
            left.append(QString::number(id) + u' ' + entry->EntryFlags);
        }
    }
    QTEST(left, "left");
}

void testEntryDelete::QuestionNamesWhatGoes()
{
    cTestBook book;
    Fill(book);
    const int series = book.Add([](cEntryItem& entry) {
                               entry.EntryInterval = u"Monatlich"_s;
                               entry.EntryDescription = u"Miete"_s;
                           })
                           .ID;
    const cAmountFormat format(book.Configuration);
    cEntryDelete flow(book.Data, book.User, format);
    QVERIFY(!flow.Delete(QList<int>{3}));
    QVERIFY(!flow.Delete({{series, QDate(2026, 3, 10)}, {series, QDate(2026, 4, 10)}}));
    QCOMPARE(book.User.Asked.at(0),
             u"Möchten Sie den Eintrag 'Teil' vom 10.03.2026 über 10,00\u00A0€ löschen?\n\n"
             "Er gehört zu einem aufgeteilten Eintrag. Weitere Teile: 2"_s);
    QCOMPARE(book.User.Asked.at(1),
             u"Möchten Sie den Eintrag 'Miete' vom 10.03.2026 über 10,00\u00A0€ löschen?\n\nDamit verschwinden alle "
             "Vorkommen dieser Serien, vergangene wie zukünftige, mit ihren Korrekturen:\n"
             "'Miete' (Monatlich seit 10.03.2026)"_s);
    QVERIFY(!flow.Delete(QList<int>{99})); // gone already: nothing to ask
    QCOMPARE(book.User.Asked.size(), 2);
}

void testEntryDelete::DeletingIsOneStep()
{
    cTestBook book;
    Fill(book);
    const cAmountFormat format(book.Configuration);
    cEntryDelete flow(book.Data, book.User, format);
    book.User.Decisions = {0};
    QVERIFY(flow.Delete(QList<int>{1, 4}));
    QCOMPARE(book.Data.UndoName(), u"2 Einträge gelöscht"_s);
    QVERIFY(book.Data.Undo());
    QCOMPARE(book.Data.CountEntries(), 4);
    QCOMPARE(book.Data.LoadEntry(3)->EntryFlags, u"split=1"_s);
}

QTEST_GUILESS_MAIN(testEntryDelete)
#include "testEntryDelete.moc"
