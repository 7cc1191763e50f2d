#include "model/modRecurrence.h"
#include "model/modSeries.h"
#include "model/modSplit.h"
#include "model/modWord.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

cEntryItem Series(const QString& interval, QDate start, QDate end = modRecurrence::OpenEnd)
{
    cEntryItem series;
    series.EntryInterval = interval;
    series.EntryDate = start;
    series.EntryDateEnd = end;
    return series;
}

} // namespace

class testSeries final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void OccurrenceOfADay_data()
    {
        const cTestRows<QString, QDate, QDate> row("interval", "day", "occurrence");
        row("month before its occurrence", u"Monatlich"_s, QDate(2026, 5, 1), QDate(2026, 5, 28));
        row("week from its occurrence", u"Wöchentlich"_s, QDate(2026, 2, 9), QDate(2026, 2, 7));
        row("year", u"Jährlich"_s, QDate(2028, 1, 1), QDate(2028, 1, 31));
        row("before the series", u"Wöchentlich"_s, QDate(2026, 1, 30), {});
        row("after its end", u"Monatlich"_s, QDate(2029, 1, 1), {});
        row("one-off", modWord::Einmalig, QDate(2026, 1, 31), {});
    }

    void OccurrenceOfADay()
    {
        QFETCH(QString, interval);
        QFETCH(QDate, day);
        const cEntryItem series = Series(interval, QDate(2026, 1, 31), QDate(2028, 12, 31));
        const std::optional<cEntryItem> found = modSeries::OccurrenceAt(series, day);
        QTEST(found ? found->EntryDate : QDate(), "occurrence");
    }

    void NextDays()
    {
        const cEntryItem series = Series(u"Monatlich"_s, QDate(2026, 1, 31), QDate(2026, 5, 30));
        QCOMPARE(modSeries::Next(series, QDate(2026, 2, 28), 3),
                 QList<QDate>({QDate(2026, 2, 28), QDate(2026, 3, 28), QDate(2026, 4, 28)}));
        QCOMPARE(modSeries::Next(series, QDate(2026, 5, 1), 3), QList<QDate>({QDate(2026, 5, 28)}));
        QVERIFY(modSeries::Next(Series(modWord::Einmalig, QDate(2026, 1, 31)), QDate(2026, 1, 1), 3).isEmpty());
        QCOMPARE(modSeries::Next(Series(u"Täglich"_s, QDate(1990, 1, 1)), QDate(2017, 5, 18), 3),
                 QList<QDate>({QDate(2017, 5, 18), QDate(2017, 5, 19)})); // no list shows more of it
    }

    void CountsToTheEnd()
    {
        QCOMPARE(modSeries::Count(Series(u"Monatlich"_s, QDate(2026, 1, 31), QDate(2026, 5, 30))), 5);
        QCOMPARE(modSeries::Count(Series(u"Monatlich"_s, QDate(2026, 1, 31), QDate(1899, 12, 30))), 0);
        QCOMPARE(modSeries::Count(Series(u"Täglich"_s, QDate(1990, 1, 1))), 10001);
    }

    void KeepsCorrectionsOnlyOfSamePeriods_data()
    {
        const cTestRows<QString, QString, QDate, bool> row("before", "interval", "start", "kept");
        const QDate same(2026, 1, 5);
        row("another day of the month", u"Monatlich"_s, u"Monatlich"_s, QDate(2026, 1, 20), true);
        row("another day of the week", u"Wöchentlich"_s, u"Wöchentlich"_s, QDate(2026, 1, 6), false);
        row("month becomes quarter", u"Monatlich"_s, u"Alle 3 Monate"_s, same, false);
        row("day becomes week", u"Täglich"_s, u"Wöchentlich"_s, same, false);
    }

    void KeepsCorrectionsOnlyOfSamePeriods()
    {
        QFETCH(QString, before);
        QFETCH(QString, interval);
        QFETCH(QDate, start);
        const cEntryItem old = Series(before, QDate(2026, 1, 5));
        const cEntryItemFixMod fixMod =
            modSeries::CorrectionFor(modSeries::OccurrenceAt(old, QDate(2026, 3, 9)).value());
        QTEST(modSeries::HasPeriod(Series(interval, start), fixMod), "kept");
    }

    void PartsThatMakeOneWhole()
    {
        cEntryItem part = Series(modWord::Einmalig, QDate(2026, 1, 31));
        part.EntryType = modWord::Ausgabe;
        part.EntryValue = 1500;
        cEntryItem other = part;
        other.EntryType = modWord::Einnahme;
        other.EntryValue = 500;
        other.EntryDateEnd = QDate(); // stored without end by another program
        QVERIFY(modSplit::IsWhole({part, other}));
        QCOMPARE(modSplit::Net({part, other}), -1000);
        other.EntryType = modWord::Umbuchung;
        QVERIFY(!modSplit::IsWhole({part, other}));
        other = part;
        other.EntryDate = other.EntryDate.addDays(1);
        QVERIFY(!modSplit::IsWhole({part, other}));
    }
};

TEST_CLASS(testSeries, QCoreApplication)
#include "testSeries.moc"
