#include "cEditorBook.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "views/book/cBookCheck.h"

using namespace Qt::Literals::StringLiterals;

class testBookCheck final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FindsWhatIsNotSeen_data()
    {
        // change: of a monthly series from 2026-03-10 on; seen: lines of March 2026
        const cTestRows<QString, QString, int> row("change", "fault", "seen");
        row("as it should be", u"EntryDescription = ''"_s, {}, 1);
        row("no day", u"EntryDate = NULL"_s, u"kein Tag"_s, 0);
        row("no day of the calendar", u"EntryDate = '2026-02-31'"_s, u"Tag '2026-02-31' nicht lesbar"_s, 0);
        row("no day for SQLite", u"EntryDate = '2026-03-10 früh', EntryInterval = 'Einmalig'"_s,
            u"Tag '2026-03-10 früh' nicht lesbar"_s, 0);
        row("no interval", u"EntryInterval = NULL"_s, u"kein Intervall"_s, 0);
        row("unknown interval", u"EntryInterval = 'Oft'"_s, {}, 1);
        row("unknown interval and an early end", u"EntryInterval = 'Oft', EntryDateEnd = '2026-01-01'"_s,
            u"Intervall 'Oft' unbekannt"_s, 0);
        row("early end of a series", u"EntryDateEnd = '2026-03-09'"_s, u"endet am 09.03.2026, vor dem ersten Tag"_s, 0);
        const QString daily = u"EntryInterval = 'Täglich', EntryDate = '%1'"_s;
        row("more days than are made", daily.arg(u"1998-10-27"_s),
            u"zählt nur bis zum 14.03.2026, es sind zu viele Vorkommen; \"Ab hier\" an diesem Tag setzt sie fort"_s,
            14);
        row("as many as are made up to today", daily.arg(u"1998-10-28"_s), {}, 15);
        row("early end of an old series, which has none", u"EntryDateEnd = '1899-12-30'"_s, {}, 1);
        row("end of a one-off entry, which has none", u"EntryInterval = 'Einmalig', EntryDateEnd = '2026-03-09'"_s, {},
            1);
        row("unreadable amount", u"EntryValue = 'viel'"_s, u"Betrag 'viel' nicht lesbar"_s, 1);
        row("no account", u"EntryAccount = NULL"_s, u"kein Konto"_s, 1);
        row("transfer to nowhere", u"EntryType = 'Umbuchung'"_s, u"kein Zielkonto"_s, 1);
        row("two faults", u"EntryDate = '', EntryValue = ''"_s, u"kein Tag; kein Betrag"_s, 0);
    }

    void FindsWhatIsNotSeen()
    {
        QFETCH(QString, change);
        QFETCH(QString, fault);
        cTestBook book;
        const int id = book.Add([](cEntryItem& entry) { entry.EntryInterval = u"Monatlich"_s; }).ID;
        book.Database.Execute("UPDATE data SET " + change.toStdString());
        cEntryQuery march;
        march.Start = QDate(2026, 3, 1);
        march.End = QDate(2026, 3, 31);
        QTEST(static_cast<int>(book.Data.GetEntries(march).size()), "seen");
        const cBookCheck check(book.Data, book.Format, book.Clock.Today());
        QCOMPARE(check.IsSound(), fault.isEmpty());
        QCOMPARE(check.index(0, cBookCheck::Fault).data().toString(), fault);
        QCOMPARE(check.EntryAt(0), fault.isEmpty() ? 0 : id);
        QCOMPARE(check.FileText(), u"Die Datei ist unbeschädigt."_s);
    }

    void UnreadableDayStaysUntilItIsNamed()
    {
        cEditorBook book;
        const int id = book.Add([](cEntryItem&) {}).ID;
        book.Database.Execute("UPDATE data SET EntryDate = '31.02.2026'");
        cBookCheck check(book.Data, book.Format, book.Clock.Today());
        cEntryFields fields = *book.Editor.Load(id);
        fields.Description = u"Wochenmarkt"_s;
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Saved);
        check.Reload();
        QCOMPARE(check.index(0, cBookCheck::Fault).data().toString(), u"Tag '31.02.2026' nicht lesbar"_s);
        QCOMPARE(check.index(0, cBookCheck::Text).data().toString(), u"Wochenmarkt"_s);

        fields = *book.Editor.Load(id);
        fields.DateText = u"irgendwann"_s;
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::BadDate);
        fields.DateText = u"28.2."_s;
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Saved);
        check.Reload();
        QCOMPARE(check.EntriesText(), u"Alle Einträge sind zu sehen und zählen mit."_s);
        QCOMPARE(book.Data.LoadEntry(id)->EntryDate, QDate(2026, 2, 28));

        // A day that only SQLite cannot read is mended by any change.
        book.Database.Execute("UPDATE data SET EntryDate = '2026-02-28 abends'");
        QCOMPARE(book.Editor.Save(*book.Editor.Load(id)), cEntryEditor::eSaved::Saved);
        check.Reload();
        QVERIFY(check.IsSound());
    }

    void UnreadableDayOfAStartBalanceStays()
    {
        cEditorBook book;
        QVERIFY(book.Data.SetStartGuthaben(u"Girokonto"_s, 10000, QDate(2026, 1, 1)));
        book.Database.Execute("UPDATE data SET EntryDate = 'Neujahr'");
        cEntryFields fields = book.Editor.StartBalance(u"Girokonto"_s);
        fields.Amount = u"200"_s;
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Saved);
        const QList<cFaultyEntry> faulty =
            book.Data.GetFaultyEntries(book.Clock.Today()).value_or(QList<cFaultyEntry>());
        QCOMPARE(faulty.size(), 1);
        QCOMPARE(faulty.first().DayText, u"Neujahr"_s);
        QCOMPARE(faulty.first().Entry.EntryValue, 20000);
    }

    void SaysWhatTheFileLacks()
    {
        cTestBook book;
        book.Database.Execute("DROP TABLE template");
        book.Database.Execute("ALTER TABLE import DROP COLUMN ImportCurrency");
        book.Database.Execute("ALTER TABLE data DROP COLUMN EntryDescription");
        const cBookCheck check(book.Data, book.Format, book.Clock.Today());
        QVERIFY(!check.IsSound());
        QCOMPARE(check.FileText(),
                 u"Die Datei ist unvollständig. Bitte spielen Sie eine Datensicherung zurück. Es fehlt: Spalte "
                 "data.EntryDescription, Tabelle template, Spalte import.ImportCurrency"_s);
        QCOMPARE(check.EntriesText(), u"Die Einträge konnten nicht gelesen werden."_s);
    }
};

TEST_CLASS(testBookCheck, QCoreApplication)
#include "testBookCheck.moc"
