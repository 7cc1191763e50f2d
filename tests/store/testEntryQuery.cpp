#include "model/modWord.h"
#include "store/cWindowAhead.h"
#include "support/cOpenedFile.h"
#include "support/cTestClass.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

// One-off entries 1 to 8, series 11 to 16
constexpr const char* household =
    "INSERT INTO data (ID, EntryDate, EntryDateEnd, EntryType, EntryInterval, EntryAccount, EntryAccountMove,"
    " EntryCategory, EntryValue) VALUES"
    " (1, '2024-01-31', '2050-01-01', 'Ausgabe', 'Einmalig', 'Giro', '', 'Haus; Strom', '10.00'),"
    " (2, '2024-02-01', '2050-01-01', 'Einnahme', 'Einmalig', 'Giro', '', 'Haus', '20.00'),"
    " (3, '2024-02-29 10:00:00', '2050-01-01', 'Umbuchung', 'Einmalig', 'Giro', 'Spar', 'Haus; Allgemein', '30.00'),"
    " (4, '2024-03-01', '2050-01-01', 'Ausgabe', 'Einmalig', 'Spar', '', 'Haushalt; Essen', '40.00'),"
    " (5, '2024-02-10', '2050-01-01', 'Ausgabe', 'Einmalig', 'O''''Hara', '', 'Kid''''s; Spiel', '50.00'),"
    " (6, 'irgendwann', '', 'Ausgabe', 'Einmalig', 'Giro', '', 'Haus; Gas', 'viel'),"
    " (7, '2024-02-05', '2050-01-01', 'Einnahme', 'Einmalig', 'Spar', '', 'Allgemein; Startguthaben', '70.00'),"
    " (8, '2024-02-05', '2050-01-01', 'Einnahme', 'Einmalig', 'giro', '', 'Haus; Strom', '80.00'),"
    " (11, '2024-01-15', '2024-02-20', 'Ausgabe', 'Monatlich', 'Giro', '', 'Haus; Miete', '1.00'),"
    " (12, '2023-01-01', '2023-12-31', 'Ausgabe', 'Monatlich', 'Giro', '', 'Haus; Miete', '2.00'),"
    " (13, '2024-02-28', '1899-12-30', 'Umbuchung', 'Wöchentlich', 'Spar', 'Giro', 'Haus', '3.00'),"
    " (14, '2024-02-10', '2050-01-01', 'Ausgabe', 'Alle 5 Tage', 'Giro', '', 'Haus', '4.00'),"
    " (15, '2024-01-10', '2050-01-01', 'Ausgabe', 'Alle 5 Tage', 'Giro', '', 'Haus', '5.00'),"
    " (16, '2024-03-02', '2050-01-01', 'Einnahme', 'Monatlich', 'Spar', '', 'Allgemein; Startguthaben', '6.00');";

struct cHousehold : cOpenedFile
{
    cHousehold() : cOpenedFile(household)
    {
        Database.ExecuteScript("INSERT INTO datamod (EntryRelation, EntryStartDate, EntryValue, EntryComment) VALUES"
                               " (11, '2024-02-01', '0.00', 'frei'), (12, '2024-02-01', '9.00', 'fremd')");
    }
};

QString Ids(const cEntryItemList& entries)
{
    return Each(entries, [](const cEntryItem& entry) { return QString::number(entry.ID); }).join(u' ');
}

cEntryQuery February(const QString& type = {}, const QString& account = {}, const QString& category = {})
{
    return {QDate(2024, 2, 1), QDate(2024, 2, 29), type, account, category, eBookingKind::All};
}

QString Text(const QString& type, const QString& account, const QString& move, qint64 cents)
{
    return QStringList{type, account, move, QString::number(cents)}.join(u'|');
}

using cAdded = QMap<QString, qint64>; // cents by kind, account and target

cAdded Added(const cEntryItemList& entries)
{
    cAdded added;
    for (const cEntryItem& entry : entries) {
        added[Text(entry.EntryType, entry.EntryAccount, entry.EntryAccountMove, 0)] += entry.EntryValue;
    }
    return added;
}

cAdded Added(const QList<cAccountSum>& sums)
{
    cAdded added;
    for (const cAccountSum& sum : sums) {
        added[Text(sum.EntryType, sum.EntryAccount, sum.EntryAccountMove, 0)] += sum.Cents;
    }
    return added;
}

cEntryQuery UpTo(QDate end)
{
    cEntryQuery query;
    query.End = end;
    return query;
}

} // namespace

class testEntryQuery final : public QObject
{
    Q_OBJECT

    // Every query is asked for its entries and for its sums.
    static void AddQueries()
    {
        QTest::addColumn<cEntryQuery>("query");
        QTest::addColumn<QString>("ids");
        const auto add = [](const char* name, const cEntryQuery& query, const char* ids) {
            QTest::newRow(name) << query << QString::fromUtf8(ids);
        };
        add("period includes its ends", February(), "2 7 8 5 3 11 14 13");
        add("rows out of date order", {QDate(2024, 1, 1), QDate(2024, 2, 10), {}, {}, {}, eBookingKind::Single},
            "1 2 7 8 5");
        add("everything of one-off", {{}, {}, {}, {}, {}, eBookingKind::Single}, "6 1 2 7 8 5 3 4");
        add("open start", {{}, QDate(2024, 1, 31), {}, {}, {}, eBookingKind::All},
            "1 12 12 12 12 12 12 12 12 12 12 12 12 15 11");
        add("open end", {QDate(2024, 3, 1), {}, {}, {}, u"Haushalt"_s, eBookingKind::All}, "4");
        add("series only", {QDate(2024, 2, 1), QDate(2024, 2, 29), {}, {}, {}, eBookingKind::Fix}, "11 14 13");
        add("series that ended before", {QDate(2024, 2, 21), QDate(2024, 2, 27), {}, {}, {}, eBookingKind::Fix}, "");
        add("income", February(u"Einnahmen"_s), "2 7 8");
        add("expenses", February(u"Ausgaben"_s), "5 11 14");
        add("transfers", February(u"Umbuchungen"_s), "3 13");
        add("income of an account", February(u"Einnahmen"_s, u"Giro"_s), "2 13");
        add("expenses of an account", February(u"Ausgaben"_s, u"Giro"_s), "3 11 14");
        add("transfers of an account", February(u"Umbuchungen"_s, u"Spar"_s), "3 13");
        add("all of an account", February(u"Alle Buchungen"_s, u"Spar"_s), "7 3 13");
        add("account with apostrophe", February({}, u"O'Hara"_s), "5");
        add("category with apostrophe", February({}, {}, u"Kid's"_s), "5");
        add("category and what begins like it", {{}, {}, {}, {}, u"Haus"_s, eBookingKind::Single}, "6 1 2 8 3 4");
        add("main category alone", {{}, {}, {}, {}, u"Haus; Allgemein"_s, eBookingKind::Single}, "2");
        add("sub-category", {{}, {}, {}, {}, u"Haus; Strom"_s, eBookingKind::Single}, "1 8");
        add("injection", February({}, u"x' OR '1'='1"_s), "");
    }

private Q_SLOTS:
    void Entries_data() const { AddQueries(); }

    void Entries() const
    {
        QFETCH(const cEntryQuery, query);
        QFETCH(const QString, ids);
        cHousehold book;
        QCOMPARE(Ids(book.Data.GetEntries(query)), ids);
        QCOMPARE(book.User.Shown, QStringList());
        // Without the days that only the database reads the rows are read while it scans them.
        book.Database.ExecuteScript("DELETE FROM data WHERE ID IN (3, 6)");
        QStringList plain = ids.split(u' ', Qt::SkipEmptyParts);
        plain.removeIf([](const QString& id) { return id == u"3" || id == u"6"; });
        QCOMPARE(Ids(book.Data.GetEntries(query)), plain.join(u' '));
    }

    void Sums_data() const { AddQueries(); }

    // The short way over four columns adds up to what the entries themselves give.
    void Sums() const
    {
        QFETCH(const cEntryQuery, query);
        cHousehold book;
        for (const bool withStartBalance : {true, false}) {
            cEntryItemList entries = book.Data.GetEntries(query);
            entries.removeIf([&](const cEntryItem& entry) {
                return !withStartBalance && entry.EntryCategory == modWord::Startguthaben;
            });
            QCOMPARE(Added(book.Data.GetSums(query, withStartBalance)), Added(entries));
        }
    }

    void Window_data() const
    {
        const cTestRows<QString> row("change");
        row("days that only the database reads", u"UPDATE data SET ID = ID"_s);
        row("plain days", u"DELETE FROM data WHERE ID IN (3, 6)"_s);
        row("a day beyond its month", u"UPDATE data SET EntryDate = '2024-02-30' WHERE ID IN (3, 6)"_s);
        row("no interval", u"UPDATE data SET EntryInterval = NULL WHERE ID IN (3, 6)"_s);
        row("no day, no known interval",
            u"UPDATE data SET EntryInterval = 'nie', EntryDate = 'bald' WHERE ID IN (3, 6)"_s);
        row("moved into the window",
            u"INSERT INTO datamod (EntryRelation, EntryModType, EntryStartDate, EntryValue) "
            "SELECT 11, 'Betrag; Tag 2024-02-03', '2024-01-01', '8.00'; DELETE FROM data WHERE ID IN (3, 6)"_s);
    }

    // One pass gives what the queries for it give, and what is kept of it goes with the next write.
    void Window() const
    {
        QFETCH(const QString, change);
        cHousehold book;
        book.Database.ExecuteScript(change.toStdString());
        const modPeriod::cRange days{QDate(2024, 2, 1), QDate(2024, 3, 5)};
        const QDate middle(2024, 2, 15);
        cEntryQuery within = UpTo(days.End);
        within.Start = days.Start;
        const cAdded before = Added(book.Data.GetSums(UpTo(days.Start.addDays(-1)), true));
        const cAdded upToMiddle = Added(book.Data.GetSums(UpTo(middle), true));
        const cAdded withoutStart = Added(book.Data.GetSums(UpTo(middle), false));
        for (const bool isAhead : {true, false}) {
            if (isAhead) {
                book.Data.ReadAhead(days);
            }
            const cEntryWindow window = book.Data.GetWindow(days, middle);
            QCOMPARE(Ids(window.Entries), Ids(book.Data.GetEntries(within)));
            QCOMPARE(Added(window.Before), before);
        }
        QCOMPARE(Added(book.Data.GetSums(UpTo(middle), true)), upToMiddle);
        QCOMPARE(Added(book.Data.GetSums(UpTo(middle), false)), withoutStart);
        QVERIFY(book.Data.DeleteEntry(2));
        QCOMPARE(Added(book.Data.GetSums(UpTo(middle), true)), Added(book.Data.GetEntries(UpTo(middle))));
    }

    void WindowAhead_data() const
    {
        const cTestRows<QString, int, qint64, bool> row("file", "later", "written", "taken");
        row("nothing has changed", u""_s, 0, 0, true);
        row("other days", u""_s, 1, 0, false);
        row("written since", u""_s, 0, 1, false);
        row("no such file", u".gone"_s, 0, 0, false);
    }

    // What was read beside other work is taken when it is what is asked for and still true.
    void WindowAhead() const
    {
        QFETCH(const QString, file);
        QFETCH(const int, later);
        QFETCH(const qint64, written);
        const cHousehold book;
        const modPeriod::cRange days{QDate(2024, 2, 1), QDate(2024, 3, 5)};
        cWindowAhead ahead(book.Database.Path() + file, days, {1, 0, 1});
        const auto rows = ahead.Take({days.Start, days.End.addDays(later)}, {1, written, 1});
        QTEST(rows.has_value(), "taken");
    }

    void OccurrencesAreCorrected() const
    {
        cHousehold book;
        const cEntryItemList series = book.Data.GetEntries({{}, {}, {}, {}, u"Haus; Miete"_s, eBookingKind::Fix});
        const auto corrected =
            std::find_if(series.begin(), series.end(), [](const cEntryItem& entry) { return entry.IsCorrected; });
        QVERIFY(corrected != series.end());
        QCOMPARE(Text(u"11"_s, corrected->EntryCategory, corrected->CorrectionComment, corrected->EntryValue),
                 u"11|Haus; Miete|frei|0"_s);
        QCOMPARE(corrected->EntryDate, QDate(2024, 2, 15));
        QCOMPARE(std::count_if(series.begin(), series.end(), [](const cEntryItem& entry) { return entry.IsCorrected; }),
                 1);
    }

    // What a correction moves is found, and summed, in the period that it moved to: also when the series itself ended
    // before that period or begins behind it.
    void OccurrencesMove() const
    {
        cHousehold book;
        const auto move = [&](int series, QDate start, QDate day) {
            QVERIFY(book.Data.AddNewEntryMod({0, series, modWord::Betrag, start, {}, 700, {}, day}));
            const cEntryItemFixMod stored = book.Data.GetEntryMods(series).constLast();
            QCOMPARE(stored.EntryDay, day);
            QCOMPARE(stored.EntryModType, modWord::Betrag);
        };
        move(11, QDate(2024, 1, 1), QDate(2024, 2, 2));
        move(12, QDate(2023, 12, 1), QDate(2024, 2, 3));
        move(13, QDate(2024, 2, 28), QDate(2024, 3, 1));
        move(16, QDate(2024, 3, 1), QDate(2024, 2, 28));
        cRows kinds(book.Database, "SELECT EntryModType FROM datamod WHERE EntryRelation = 16");
        QVERIFY(kinds.Next());
        QCOMPARE(kinds.Text(0), u"Betrag; Tag 2024-02-28"_s);
        const cEntryQuery query{QDate(2024, 2, 1), QDate(2024, 2, 29), {}, {}, {}, eBookingKind::Fix};
        QCOMPARE(Ids(book.Data.GetEntries(query)), u"12 11 11 14 16"_s);
        qint64 sum = 0;
        for (const cAccountSum& each : book.Data.GetSums(query, true)) {
            sum += each.Cents;
        }
        QCOMPARE(sum, 700 + 700 + 0 + 400 + 700);
    }

    void OtherLookups() const
    {
        cHousehold book;
        QCOMPARE(Ids(book.Data.GetEntriesByTarget(u"Giro"_s, u"Spar"_s, u"Umbuchung"_s)), u"3"_s);
        QCOMPARE(book.Data.CountEntriesOfCategory(u"Haus; Miete"_s), 2);
        QVERIFY(book.Data.ChangeEntryCategory(u"Kid's; Neu"_s, u"Kid's; Spiel"_s));
        QCOMPARE(book.Data.LoadEntry(5)->EntryCategory, u"Kid's; Neu"_s);
    }
};

TEST_CLASS(testEntryQuery, QCoreApplication)
#include "testEntryQuery.moc"
