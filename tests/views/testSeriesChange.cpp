#include "cEditorBook.h"
#include "model/modSettingKey.h"
#include "support/cTestClass.h"
#include "views/entry/cEntryDelete.h"
#include "views/entry/cSeriesChange.h"
#include "views/entry/modCorrections.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString lossQuestion = u"Der Zeitraum für diesen Eintrag wurde modifiziert.\nDie manuellen Korrekturen gehen "
                             "dadurch verloren.\nSoll der Eintrag trotzdem gespeichert werden?"_s;

// A book with a rent of 10 euros on the 10th of each month since March 2026.
struct cRentBook : cEditorBook
{
    const int Rent = Spend(QDate(2026, 3, 10), 1000, u"Miete"_s, u"Monatlich"_s).ID;
    cSeriesChange Change{Tools};
};

// "2026-04-01 12.50 text" of each correction, by period.
QStringList Corrections(cTestBook& book, int id)
{
    QStringList texts = Each(book.Data.GetEntryMods(id), [](const cEntryItemFixMod& fixMod) {
        return u"%1 %2 %3"_s.arg(fixMod.EntryStartDate.toString(Qt::ISODate), QString::number(fixMod.EntryValue),
                                 fixMod.EntryComment);
    });
    texts.sort();
    return texts;
}

} // namespace

class testSeriesChange final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AsksWhatToEdit_data()
    {
        using enum cSeriesChange::eEdit;
        const cTestRows<QString, QDate, int, qsizetype, int> row("interval", "day", "choice", "options", "edit");
        const QString monthly = u"Monatlich"_s;
        const QDate may(2026, 5, 10);
        row("this period", monthly, may, 0, 3, int(Period));
        row("from here", monthly, may, 1, 3, int(FromHere));
        row("whole", monthly, may, 2, 3, int(Entry));
        row("given up", monthly, may, -1, 3, int(Nothing));
        row("first occurrence", monthly, QDate(2026, 3, 10), 1, 2, int(Entry));
        row("no occurrence", monthly, QDate(2026, 5, 11), 0, 0, int(Entry));
        row("one-off", modWord::Einmalig, QDate(2026, 3, 10), 0, 0, int(Entry));
    }

    void AsksWhatToEdit()
    {
        QFETCH(QString, interval);
        QFETCH(QDate, day);
        QFETCH(int, choice);
        QFETCH(qsizetype, options);
        cTestBook book;
        const int id = book.Add([&](cEntryItem& entry) { entry.EntryInterval = interval; }).ID;
        book.User.Decisions.assign(options > 0 ? 1 : 0, choice);
        QTEST(int(cSeriesChange(book.Tools).AskWhatToEdit(id, day)), "edit");
        QCOMPARE(book.User.LastDecision.Options.size(), options);
    }

    void NamesWhatWasMovedBefore()
    {
        cRentBook book;
        QVERIFY(book.Change.CorrectPeriod(book.Rent, QDate(2026, 8, 10), 1000, {}, QDate(2026, 6, 5)));
        const QString named =
            u"gehört auch, was auf einen Tag davor verschoben ist: 05.06.2026 (geplant am 10.08.2026)."_s;
        (void)book.Change.AskWhatToEdit(book.Rent, QDate(2026, 7, 10));
        QVERIFY(book.User.LastDecision.Text.endsWith(named));
        QVERIFY(!cEntryDelete(book.Tools).Delete({{book.Rent, QDate(2026, 7, 10)}}));
        QVERIFY(book.User.LastDecision.Text.contains(named));
        book.User.Answers = {eAnswer::No, eAnswer::No};
        for (const QDate day : {QDate(2026, 7, 10), QDate(2026, 5, 10)}) {
            QVERIFY(!cEntryDelete(book.Tools).Delete({book.Rent, day}, eSeriesPart::FromHere));
            QCOMPARE(book.User.Asked.constLast().endsWith(named), day.month() == 7);
        }
    }

    void CorrectsOnePeriod()
    {
        cRentBook book;
        QVERIFY(book.Change.CorrectPeriod(book.Rent, QDate(2026, 5, 10), 1250, u"Nachzahlung"_s));
        QVERIFY(
            book.Change.CorrectPeriod(book.Rent, QDate(2026, 5, 31), -1300, u"neu"_s)); // same period, any day of it
        QVERIFY(!book.Change.CorrectPeriod(book.Rent, QDate(2026, 2, 10), 1, {}));      // before the series
        QCOMPARE(Corrections(book, book.Rent), QStringList({u"2026-05-01 1300 neu"_s}));
        QCOMPARE(book.Data.GetEntryMods(book.Rent).first().EntryEndDate, QDate(2026, 5, 31));
        QCOMPARE(book.Data.Journal().UndoName(), u"Betrag von 'Miete' korrigiert"_s);
        QVERIFY(book.Data.Journal().Undo());
        QCOMPARE(Corrections(book, book.Rent), QStringList({u"2026-05-01 1250 Nachzahlung"_s}));
    }

    void SkipsAndTakesBack()
    {
        cRentBook book;
        QVERIFY(!book.Change.RemoveCorrection(book.Rent, QDate(2026, 4, 10)));
        QVERIFY(book.Change.SkipPeriod(book.Rent, QDate(2026, 4, 10)));
        QCOMPARE(Corrections(book, book.Rent), QStringList({u"2026-04-01 0 Ausgelassen"_s}));
        QVERIFY(book.Change.RemoveCorrection(book.Rent, QDate(2026, 4, 10)));
        QVERIFY(Corrections(book, book.Rent).isEmpty());
        QVERIFY(book.Change.CorrectPeriod(book.Rent, QDate(2026, 4, 10), 1000, {}, QDate(2026, 5, 2)));
        QVERIFY(book.Change.SkipPeriod(book.Rent, QDate(2026, 4, 10)));
        QCOMPARE(book.Data.GetEntryMods(book.Rent).first().EntryDay, QDate(2026, 5, 2)); // leaves no other month empty
        QCOMPARE(book.Change.DayText(book.Rent, QDate(2026, 4, 10)), u"02.05.2026 (geplant am 10.04.2026)"_s);
    }

    void PeriodForm()
    {
        cRentBook book;
        cSeriesChange::cPeriodFields fields = book.Change.StartPeriod(book.Rent, QDate(2026, 4, 10)).value();
        QCOMPARE(fields.Title, u"'Miete' vom 01.04.2026 bis 30.04.2026"_s);
        QCOMPARE(fields.Amount, u"10,00"_s);
        QVERIFY(!fields.IsCorrected);
        fields.Amount = u"zwölf"_s;
        QCOMPARE(book.Change.SavePeriod(fields), cSeriesChange::eSaved::BadAmount);
        fields.Amount = u"10+2,5"_s;
        QCOMPARE(book.Change.SavePeriod(fields), cSeriesChange::eSaved::Saved);
        fields = book.Change.StartPeriod(book.Rent, QDate(2026, 4, 10)).value();
        QCOMPARE(fields.Amount, u"12,50"_s);
        QVERIFY(fields.IsCorrected);
        QVERIFY(book.Settings->Set(modSettingKey::LanguageFormat, u"en-GB"_s));
        book.Format.CultureChanged();
        cSeriesChange british(book.Tools);
        fields = british.StartPeriod(book.Rent, QDate(2026, 4, 10)).value();
        QCOMPARE(fields.Amount, u"12.50"_s);
        fields.Amount = u"1,234"_s;
        QCOMPARE(british.SavePeriod(fields), cSeriesChange::eSaved::Saved);
        QCOMPARE(book.Data.GetEntryMods(book.Rent).first().EntryValue, 123400);
    }

    void PeriodFormMoves_data()
    {
        // day: as typed; comment: an own amount or day is not what the bank said
        const cTestRows<QString, QString, int, QDate, QString> row("day", "amount", "saved", "moved", "comment");
        const int done = int(cSeriesChange::eSaved::Saved);
        const QString bank = u"Laut Kontoauszug"_s;
        row("as it was", u"14.04.2026"_s, u"10,00"_s, done, QDate(2026, 4, 14), bank);
        row("another day", u"2.5."_s, u"10"_s, done, QDate(2026, 5, 2), {});
        row("planned day", u"10.4."_s, u"10"_s, done, {}, {});
        row("no day", u" "_s, u"10"_s, done, {}, {});
        row("another amount", u"14.4."_s, u"11"_s, done, QDate(2026, 4, 14), {});
        row("unreadable", u"bald"_s, u"10"_s, int(cSeriesChange::eSaved::BadDay), QDate(2026, 4, 14), bank);
    }

    void PeriodFormMoves()
    {
        QFETCH(const QString, day);
        QFETCH(const QString, amount);
        cRentBook book;
        QVERIFY(book.Data.AddNewEntryMod({0, book.Rent, modWord::Betrag, QDate(2026, 4, 1), QDate(2026, 4, 30), 1000,
                                          u"Laut Kontoauszug"_s, QDate(2026, 4, 14)}));
        cSeriesChange::cPeriodFields fields =
            book.Change.StartPeriod(book.Rent, QDate(2026, 4, 10), book.Clock.Day).value();
        QCOMPARE(fields.DayText, u"14.04.2026"_s);
        fields.DayText = day;
        fields.Amount = amount;
        QTEST(int(book.Change.SavePeriod(fields)), "saved");
        const cEntryItemFixMod stored = book.Data.GetEntryMods(book.Rent).first();
        QTEST(stored.EntryDay, "moved");
        QTEST(stored.EntryComment, "comment");
    }

    // It only begins like what the program writes.
    void ACommentLikeTheBanksIsTheUsers()
    {
        const QString typed = u"Laut Kontoauszug 4/2026 nachgezahlt"_s;
        cRentBook book;
        QVERIFY(book.Data.AddNewEntryMod({0, book.Rent, modWord::Betrag, QDate(2026, 4, 1), QDate(2026, 4, 30), 1000,
                                          u"Laut Kontoauszug"_s, QDate(2026, 4, 14)}));
        QVERIFY(book.Change.CorrectPeriod(book.Rent, QDate(2026, 4, 10), 1100, typed));
        QCOMPARE(Corrections(book, book.Rent), QStringList({u"2026-04-01 1100 "_s + typed}));
        cEntryFields fields = book.Editor.Load(book.Rent).value();
        QCOMPARE(modCorrections::Change(0, u"12"_s, typed, fields), modCorrections::eSet::Done);
        QCOMPARE(fields.Corrections.constFirst().EntryComment, typed);
        fields.End = QDate(2027, 12, 31);
        fields.HasEnd = true;
        (void)book.Editor.Save(fields);
        QCOMPARE(book.User.Asked, QStringList({lossQuestion}));
    }

    void PageOfCorrections()
    {
        using enum modCorrections::eSet;
        cEntryFields fields;
        fields.Interval = u"Wöchentlich"_s;
        fields.Date = QDate(2026, 3, 2);
        const QDate today(2026, 3, 15);
        QCOMPARE(modCorrections::Set(u"30.3."_s, u"-5"_s, u"spät"_s, today, fields), Done);
        QCOMPARE(modCorrections::Set(u"heute"_s, u"4+4"_s, u"früh"_s, today, fields), Done);
        QCOMPARE(modCorrections::Set(u"10.3."_s, u"7"_s, u"früher"_s, today, fields), Done); // same week
        QCOMPARE(modCorrections::Set(u"1.3."_s, u"7"_s, {}, today, fields), NoOccurrence);
        QCOMPARE(modCorrections::Set(u"bald"_s, u"7"_s, {}, today, fields), BadDate);
        QCOMPARE(modCorrections::Set(u"10.3."_s, u"viel"_s, {}, today, fields), BadAmount);
        const QList<modCorrections::cLine> lines = modCorrections::Lines(fields);
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines.first().Label, u"Manuelle Korrektur vom 09.03.2026"_s);
        QCOMPARE(lines.first().Period, u"09.03.2026 – 15.03.2026"_s);
        QCOMPARE(lines.first().Amount, u"7,00"_s);
        QCOMPARE(lines.last().Amount, u"5,00"_s);
    }

    void PageIsStoredWithTheEntry()
    {
        cRentBook book;
        QVERIFY(book.Change.CorrectPeriod(book.Rent, QDate(2026, 3, 10), 1, u"weg"_s));
        QVERIFY(book.Change.CorrectPeriod(book.Rent, QDate(2026, 4, 10), 2, u"bleibt"_s));
        QVERIFY(book.Change.CorrectPeriod(book.Rent, QDate(2026, 5, 10), 3, u"anders"_s));
        cEntryFields fields = book.Editor.Load(book.Rent).value();
        QVERIFY(book.Editor.ShowsCorrections(fields));
        QCOMPARE(modCorrections::Change(2, u"30"_s, u"geändert"_s, fields), modCorrections::eSet::Done);
        modCorrections::Remove(0, fields);
        QCOMPARE(modCorrections::Set(u"1.6."_s, u"4"_s, u"neu"_s, book.Clock.Day, fields), modCorrections::eSet::Done);
        QCOMPARE(Corrections(book, book.Rent).size(), 3); // nothing is stored before the entry is
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Saved);
        QCOMPARE(Corrections(book, book.Rent),
                 QStringList({u"2026-04-01 2 bleibt"_s, u"2026-05-01 3000 geändert"_s, u"2026-06-01 400 neu"_s}));
        QVERIFY(book.User.Asked.isEmpty());
        QVERIFY(book.Data.Journal().Undo());
        QCOMPARE(Corrections(book, book.Rent),
                 QStringList({u"2026-03-01 1 weg"_s, u"2026-04-01 2 bleibt"_s, u"2026-05-01 3 anders"_s}));
    }

    void FromHereSplitsTheSeries()
    {
        cRentBook book;
        QVERIFY(book.Change.CorrectPeriod(book.Rent, QDate(2026, 4, 10), 1, u"früher"_s));
        QVERIFY(book.Change.CorrectPeriod(book.Rent, QDate(2026, 5, 10), 2, u"dieser"_s));
        QVERIFY(book.Change.CorrectPeriod(book.Rent, QDate(2026, 8, 10), 3, u"später"_s));
        cEntryFields fields = book.Editor.LoadFrom(book.Rent, QDate(2026, 5, 10)).value();
        QCOMPARE(fields.Date, QDate(2026, 5, 10));
        QCOMPARE(fields.Corrections.size(), 2);
        fields.Amount = u"11"_s;
        fields.DateText = u"20.5."_s; // another day of the month: the periods are the same
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Saved);
        QVERIFY(book.User.Asked.isEmpty());

        const cEntryItem old = book.Data.LoadEntry(book.Rent).value();
        QCOMPARE(old.EntryDateEnd, QDate(2026, 5, 9));
        QCOMPARE(old.EntryValue, 1000);
        QCOMPARE(Corrections(book, book.Rent), QStringList({u"2026-04-01 1 früher"_s}));
        const cEntryItem next = book.Data.LoadEntry(book.Editor.SavedId()).value();
        QVERIFY(next.ID != book.Rent);
        QCOMPARE(next.EntryDate, QDate(2026, 5, 20));
        QCOMPARE(next.EntryValue, 1100);
        QCOMPARE(Corrections(book, next.ID), QStringList({u"2026-05-01 2 dieser"_s, u"2026-08-01 3 später"_s}));

        QVERIFY(book.Data.Journal().Undo());
        QCOMPARE(book.Data.CountEntries(), 1);
        QCOMPARE(Corrections(book, book.Rent).size(), 3);
        QCOMPARE(book.Data.LoadEntry(book.Rent)->EntryDateEnd, modRecurrence::OpenEnd);
    }

    void MovedOnesFollowTheAmount_data()
    {
        const cTestRows<QDate, QStringList> row("from", "stored");
        const QString corrected = u"2026-06-01 900 kleiner"_s;
        const QString paid = u"2026-07-01 1000 "_s;
        const QString onItsDay = u"2026-09-01 1000 Laut Kontoauszug"_s;
        const QString notAsPaid = u"2026-11-01 1000 "_s; // nothing the bank has said
        row("whole series", {}, {u"2026-04-01 2000 "_s, u"2026-05-01 2000 "_s, corrected, paid, onItsDay, notAsPaid});
        row("from the moved one on", QDate(2026, 5, 10), {u"2026-05-01 2000 "_s, corrected, paid, onItsDay, notAsPaid});
    }

    void MovedOnesFollowTheAmount()
    {
        QFETCH(const QDate, from);
        cRentBook book;
        QVERIFY(book.Change.CorrectPeriod(book.Rent, QDate(2026, 4, 10), 1000, {}, QDate(2026, 4, 12)));
        QVERIFY(book.Change.CorrectPeriod(book.Rent, QDate(2026, 5, 10), 1000, {}, QDate(2026, 6, 2)));
        QVERIFY(book.Change.CorrectPeriod(book.Rent, QDate(2026, 6, 10), 900, u"kleiner"_s, QDate(2026, 6, 12)));
        QVERIFY(book.Change.CorrectPeriod(book.Rent, QDate(2026, 7, 10), 1000, {}, QDate(2026, 8, 2)));
        book.Stage({}, QDate(2026, 8, 2), 1000, {}, book.Rent);
        book.Stage({}, QDate(2026, 9, 10), 1000, {}, book.Rent);
        book.Stage({}, QDate(2026, 10, 10), -2000, {}, book.Rent); // what the series should have been
        book.Stage({}, QDate(2026, 11, 10), -1500, {}, book.Rent);
        const QStringList before = Corrections(book, book.Rent);
        cEntryFields fields =
            (from.isValid() ? book.Editor.LoadFrom(book.Rent, from) : book.Editor.Load(book.Rent)).value();
        fields.Amount = u"20"_s;
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Saved);
        QTEST(Corrections(book, book.Editor.SavedId()), "stored");
        QVERIFY(book.Data.Journal().UndoName().endsWith(u"behält seinen Betrag (3 Mal)"));
        QVERIFY(book.Data.Journal().Undo());
        QCOMPARE(Corrections(book, book.Rent), before);
    }

    // It pays the same account as before, so nothing is lost; an income would.
    void PaidOnesOfAnotherKind_data()
    {
        const cTestRows<QString, QString, QStringList, int> row("type", "amount", "stored", "asked");
        row("transfer", modWord::Umbuchung, u"15"_s, {u"2026-04-01 1000 Laut Kontoauszug"_s}, 0);
        row("income", modWord::Einnahme, u"10"_s, {}, 1);
    }

    void PaidOnesOfAnotherKind()
    {
        QFETCH(const QString, type);
        QFETCH(const QString, amount);
        cRentBook book;
        book.Stage({}, QDate(2026, 4, 10), -1000, {}, book.Rent);
        cEntryFields fields = book.Editor.Load(book.Rent).value();
        fields.Type = type;
        fields.Target = u"Sparkonto"_s;
        fields.Amount = amount;
        (void)book.Editor.Save(fields);
        QTEST(Corrections(book, book.Rent), "stored");
        QTEST(static_cast<int>(book.User.Asked.size()), "asked");
    }

    // By hand, and booked by the bank as it stands there.
    void WhatWasPaidStaysWithAnotherEnd()
    {
        cRentBook book;
        QVERIFY(book.Change.CorrectPeriod(book.Rent, QDate(2026, 5, 10), 1200, {}));
        QVERIFY(book.Change.CorrectPeriod(book.Rent, QDate(2026, 6, 10), 900, {}));
        book.Stage({}, QDate(2026, 5, 10), 1200, {}, book.Rent);
        cEntryFields fields = book.Editor.Load(book.Rent).value();
        fields.Amount = u"11"_s;
        fields.HasEnd = true;
        fields.End = QDate(2027, 12, 31);
        book.User.Answers = {eAnswer::Yes};
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Saved);
        QCOMPARE(Corrections(book, book.Rent), QStringList({u"2026-05-01 1200 "_s}));
        QVERIFY(book.Data.Journal().UndoName().endsWith(u"behält seinen Betrag (1 Mal)"));
    }

    void FromHereAsksForLostCorrections_data()
    {
        const cTestRows<int, QStringList, int> row("answer", "old", "entries");
        const QString early = u"2026-04-01 1 früher"_s;
        row("no saves nothing", int(eAnswer::No), {early, u"2026-08-01 3 später"_s}, 1);
        row("yes keeps the earlier ones", int(eAnswer::Yes), {early}, 2);
    }

    void FromHereAsksForLostCorrections()
    {
        QFETCH(int, answer);
        QFETCH(int, entries);
        cRentBook book;
        QVERIFY(book.Change.CorrectPeriod(book.Rent, QDate(2026, 4, 10), 1, u"früher"_s));
        QVERIFY(book.Change.CorrectPeriod(book.Rent, QDate(2026, 8, 10), 3, u"später"_s));
        cEntryFields fields = book.Editor.LoadFrom(book.Rent, QDate(2026, 5, 10)).value();
        fields.Interval = u"Alle 3 Monate"_s;
        book.User.Answers = {static_cast<eAnswer>(answer)};
        (void)book.Editor.Save(fields);
        QCOMPARE(book.User.Asked, QStringList({lossQuestion}));
        QTEST(Corrections(book, book.Rent), "old");
        QCOMPARE(book.Data.CountEntries(), entries);
        QVERIFY(entries == 1 || Corrections(book, book.Editor.SavedId()).isEmpty());
    }

    void FromHereTakesBankRowsAlong()
    {
        cRentBook book;
        for (const QDate day : {QDate(2026, 4, 11), QDate(2026, 5, 8)}) {
            book.Stage({}, day, 0, {}, book.Rent);
        }
        QCOMPARE(book.Editor.Save(book.Editor.LoadFrom(book.Rent, QDate(2026, 5, 10)).value()),
                 cEntryEditor::eSaved::Saved);
        const cImportEntryList rows = book.Data.GetImportEntries();
        QCOMPARE(rows.at(0).ImportAssignedEntry, book.Rent);
        QCOMPARE(rows.at(1).ImportAssignedEntry, book.Editor.SavedId());
    }
};

TEST_CLASS(testSeriesChange, QCoreApplication)
#include "testSeriesChange.moc"
