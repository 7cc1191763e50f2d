#include "base/modDate.h"
#include "model/modRecurrence.h"
#include "model/modSeries.h"
#include "model/modSplit.h"
#include "model/modWord.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

namespace {

cEntryItem Series(const QString& interval, QDate start, QDate end = modRecurrence::OpenEnd)
{
    cEntryItem entry;
    entry.ID = 7;
    entry.EntryDate = start;
    entry.EntryDateEnd = end;
    entry.EntryInterval = interval;
    entry.EntryValue = 1000;
    return entry;
}

cEntryItemList Expanded(const cEntryItem& entry, const modPeriod::cRange& period,
                        const cEntryItemFixModList& fixMods = {})
{
    cEntryItemList occurrences;
    modRecurrence::Expand(entry, period, fixMods, occurrences);
    return occurrences;
}

QString Days(const cEntryItemList& occurrences)
{
    return Each(Each(occurrences, &cEntryItem::EntryDate), modDate::ToIso).join(u' ');
}

} // namespace

class testRecurrence final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Occurrences_data() const
    {
        const cTestRows<QString, QDate, QDate, QDate, QDate, QString> row("interval", "start", "end", "from", "to",
                                                                          "days");
        const QDate open = modRecurrence::OpenEnd;
        row("weekly", u"Wöchentlich"_s, QDate(2024, 1, 1), open, QDate(2024, 1, 10), QDate(2024, 1, 20),
            u"2024-01-15"_s);
        row("both ends of the period count", u"Wöchentlich"_s, QDate(2024, 1, 1), open, QDate(2024, 1, 8),
            QDate(2024, 1, 15), u"2024-01-08 2024-01-15"_s);
        row("end of month drifts", u"Monatlich"_s, QDate(2024, 1, 31), open, QDate(2024, 2, 1), QDate(2024, 4, 30),
            u"2024-02-29 2024-03-29 2024-04-29"_s);
        row("leap day drifts", u"Jährlich"_s, QDate(2024, 2, 29), open, QDate(2024, 1, 1), QDate(2028, 12, 31),
            u"2024-02-29 2025-02-28 2026-02-28 2027-02-28 2028-02-28"_s);
        row("four weeks are not a month", u"Alle 4 Wochen"_s, QDate(2024, 1, 1), open, QDate(2024, 1, 1),
            QDate(2024, 2, 29), u"2024-01-01 2024-01-29 2024-02-26"_s);
        row("own end before the period's", u"Alle 2 Monate"_s, QDate(2024, 1, 15), QDate(2024, 5, 15),
            QDate(2024, 1, 1), QDate(2024, 12, 31), u"2024-01-15 2024-03-15 2024-05-15"_s);
        row("open period, closed series", u"Alle 6 Monate"_s, QDate(2024, 1, 15), QDate(2024, 7, 14), {}, {},
            u"2024-01-15"_s);
        row("starts behind the period", u"Täglich"_s, QDate(2025, 1, 1), open, QDate(2024, 1, 1), QDate(2024, 12, 31),
            {});
        row("unknown interval happens once", u"Alle 5 Tage"_s, QDate(2024, 1, 1), open, QDate(2024, 1, 1),
            QDate(2024, 12, 31), u"2024-01-01"_s);
    }

    void Occurrences() const
    {
        QFETCH(const QString, interval);
        QFETCH(const QDate, start);
        QFETCH(const QDate, end);
        QFETCH(const QDate, from);
        QFETCH(const QDate, to);
        QTEST(Days(Expanded(Series(interval, start, end), {from, to})), "days");
    }

    void OldEndsAreOpen() const
    {
        const cEntryItemList occurrences = Expanded(Series(u"Jährlich"_s, QDate(2020, 1, 1), QDate(1899, 12, 30)), {});
        QCOMPARE(occurrences.size(), 31);
        QCOMPARE(occurrences.last().EntryDate, QDate(2050, 1, 1));
        QCOMPARE(modRecurrence::EffectiveEnd(QDate(1939, 12, 31)), modRecurrence::OpenEnd);
        QCOMPARE(modRecurrence::EffectiveEnd(QDate(1940, 1, 1)), QDate(1940, 1, 1));
        QCOMPARE(modRecurrence::OpenEnd, QDate(2050, 1, 1));
    }

    // The limit counts from the start of the series, also what lies before the period: a very old daily series runs
    // dry.
    void TenThousandSteps() const
    {
        const cEntryItem daily = Series(u"Täglich"_s, QDate(2000, 1, 1));
        const cEntryItemList all = Expanded(daily, {});
        QCOMPARE(all.size(), 10'001);
        QCOMPARE(all.last().EntryDate, QDate(2000, 1, 1).addDays(10'000));
        QCOMPARE(Expanded(daily, {QDate(2028, 1, 1), QDate(2028, 12, 31)}).size(), 0);
    }

    void Periods_data() const
    {
        const cTestRows<QString, QDate, QDate> row("interval", "start", "end");
        const QDate day(2024, 2, 14);
        row("once", u"Einmalig"_s, day, day);
        row("day", u"Täglich"_s, day, day);
        row("week", u"Wöchentlich"_s, day, QDate(2024, 2, 20));
        row("month", u"Monatlich"_s, QDate(2024, 2, 1), QDate(2024, 2, 29));
        row("quarter", u"Alle 3 Monate"_s, day, QDate(2024, 5, 13));
        row("year", u"Jährlich"_s, QDate(2024, 1, 1), QDate(2024, 12, 31));
    }

    void Periods() const
    {
        QFETCH(const QString, interval);
        QFETCH(const QDate, start);
        QFETCH(const QDate, end);
        const modPeriod::cRange expected{start, end};
        QVERIFY(modRecurrence::OccurrencePeriod(QDate(2024, 2, 14), interval) == expected);
    }

    void Corrections() const
    {
        // The month's first day, not the occurrence's.
        const cEntryItemFixMod february{0, 0, {}, QDate(2024, 2, 1), {}, 0, u"Nachlass"_s};
        const cEntryItemFixMod beside{0, 0, {}, QDate(2024, 3, 15), {}, 99, {}};
        const cEntryItemList found = Expanded(Series(u"Monatlich"_s, QDate(2024, 1, 15)),
                                              {QDate(2024, 1, 1), QDate(2024, 3, 31)}, {february, beside});
        QCOMPARE(Days(found), u"2024-01-15 2024-02-15 2024-03-15"_s);
        QCOMPARE(found[1].EntryValue, 0); // corrected to nothing, and still there
        QVERIFY(found[1].IsCorrected);
        QCOMPARE(found[1].CorrectionComment, u"Nachlass"_s);
        QCOMPARE(found[2].EntryValue, 1000);
        QVERIFY(!found[2].IsCorrected);
        QCOMPARE(modRecurrence::CorrectionLabel(february), u"Manuelle Korrektur vom 01.02.2024"_s);
    }

    void Moved_data() const
    {
        // key: of the correction
        // days: in February and March 2024; the series ends on 15 March
        const cTestRows<QString, QDate, QDate, QDate, QString> row("interval", "start", "key", "day", "days");
        const QDate start(2023, 12, 31);
        row("within the period", u"Monatlich"_s, start, QDate(2024, 2, 1), QDate(2024, 2, 27), u"2024-02-27"_s);
        row("into it from before", u"Monatlich"_s, start, QDate(2024, 1, 1), QDate(2024, 2, 2),
            u"2024-02-02 2024-02-29"_s);
        row("out of it", u"Monatlich"_s, start, QDate(2024, 2, 1), QDate(2024, 1, 30), {});
        row("of a year", u"Jährlich"_s, QDate(2022, 3, 14), QDate(2024, 1, 1), QDate(2024, 2, 1), u"2024-02-01"_s);
        row("behind the end of the series", u"Wöchentlich"_s, QDate(2024, 3, 7), QDate(2024, 3, 14), QDate(2024, 3, 28),
            u"2024-03-07 2024-03-28"_s);
        row("days are in order, whatever moves", u"Wöchentlich"_s, QDate(2024, 3, 1), QDate(2024, 3, 1),
            QDate(2024, 3, 9), u"2024-03-08 2024-03-09 2024-03-15"_s);
    }

    // The key stays that of the planned day, and the days after it drift as if nothing had moved.
    void Moved() const
    {
        QFETCH(const QString, interval);
        QFETCH(const QDate, start);
        QFETCH(const QDate, key);
        QFETCH(const QDate, day);
        const cEntryItemFixMod fixMod{0, 0, {}, key, {}, 1000, {}, day};
        const cEntryItem series = Series(interval, start, QDate(2024, 3, 15));
        const cEntryItemList found = Expanded(series, {QDate(2024, 2, 1), QDate(2024, 3, 31)}, {fixMod});
        QTEST(Days(found), "days");
        for (const cEntryItem& occurrence : found) {
            const bool isMoved = occurrence.EntryDate == day;
            QCOMPARE(occurrence.PlannedDate.isValid(), isMoved);
            QVERIFY(!occurrence.IsCorrected);
            QCOMPARE(modSeries::CorrectionFor(occurrence).EntryStartDate == key, isMoved);
        }
    }

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

TEST_CLASS(testRecurrence, QCoreApplication)
#include "testRecurrence.moc"
