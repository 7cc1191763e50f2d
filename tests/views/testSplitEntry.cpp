#include "cEditorBook.h"
#include "model/modSplit.h"
#include "support/cTestClass.h"
#include "views/entry/modSplitParts.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// A purchase of 50 euros: food, a book and a returned deposit.
cEntryFields Purchase()
{
    cEntryFields fields;
    fields.Face = eEntryFace::Split;
    fields.Amount = u"40+10"_s;
    fields.Type = modWord::Ausgabe;
    fields.Account = u"Girokonto"_s;
    fields.Date = QDate(2026, 3, 10);
    fields.Parts = {{0, u"Haushalt; Lebensmittel"_s, u"Einkauf"_s, u"2*20"_s},
                    {0, u"Freizeit; Bücher"_s, u"Krimi"_s, u"13"_s},
                    {0, {}, {}, {}},
                    {0, u"Haushalt; Pfand"_s, u"Leergut"_s, u"-3"_s}};
    return fields;
}

// "Ausgabe 4000 Einkauf" and so on, by ID.
QStringList Rows(cTestBook& book)
{
    QStringList rows;
    for (int id = 1; id < 20; ++id) {
        if (const std::optional<cEntryItem> entry = book.Data.LoadEntry(id)) {
            rows.append(QStringLiteral("%1 %2 %3 [%4]")
                            .arg(entry->EntryType, QString::number(entry->EntryValue), entry->EntryDescription,
                                 entry->EntryFlags));
        }
    }
    return rows;
}

const QStringList storedPurchase{u"Ausgabe 4000 Einkauf [split=1]"_s, u"Ausgabe 1300 Krimi [split=1]"_s,
                                 u"Einnahme 300 Leergut [split=1]"_s};

} // namespace

class testSplitEntry final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void StoresPartsAsOrdinaryEntries()
    {
        cEditorBook book;
        QCOMPARE(book.Editor.Save(Purchase()), cEntryEditor::eSaved::Saved);
        QCOMPARE(Rows(book), storedPurchase);
        QCOMPARE(book.Editor.LastSaved(), QStringList({u"10.03.2026  Einkauf  -50,00\u00A0€"_s}));
        QCOMPARE(book.Data.Journal().UndoName(), u"Eintrag 'Einkauf' angelegt"_s);
        QVERIFY(book.Data.Journal().Undo());
        QCOMPARE(book.Data.CountEntries(), 0);
        QVERIFY(book.Data.Journal().Redo());
        QCOMPARE(Rows(book), storedPurchase);
    }

    void AnyPartOpensTheGroup()
    {
        cEditorBook book;
        QCOMPARE(book.Editor.Save(Purchase()), cEntryEditor::eSaved::Saved);
        (void)book.Add([](cEntryItem& entry) { entry.EntryFlags = u"split=11"_s; }); // another group
        for (int id = 1; id <= 3; ++id) {
            const cEntryFields fields = book.Editor.Load(id).value();
            QCOMPARE(fields.Face, eEntryFace::Split);
            QCOMPARE(fields.Amount, u"50,00"_s);
            QCOMPARE(fields.Type, modWord::Ausgabe);
            QCOMPARE(fields.Parts.size(), 3);
            QCOMPARE(fields.Parts.at(2), (cSplitPart{3, u"Haushalt; Pfand"_s, u"Leergut"_s, u"-3,00"_s}));
            QCOMPARE(modSplitParts::Rest(fields), 0);
        }
    }

    void ChecksParts_data()
    {
        const cTestRows<int, QString, QString, int, QString> row("row", "category", "amount", "saved", "message");
        const int refused = int(cEntryEditor::eSaved::Refused);
        row("amount before category", 1, {}, u"13x"_s, int(cEntryEditor::eSaved::BadPart), u""_s);
        row("category", 3, {}, u"-3"_s, refused, u"Bitte erst eine Kategorie wählen!"_s);
        row("rest", -1, u"Haushalt; Pfand"_s, u"-1,50"_s, refused,
            u"Die Teile ergeben nicht den ganzen Betrag. Es bleibt ein Rest von -1,50\u00A0€."_s);
    }

    void ChecksParts()
    {
        QFETCH(int, row);
        QFETCH(QString, category);
        QFETCH(QString, amount);
        cEditorBook book;
        cEntryFields fields = Purchase();
        cSplitPart& part = row < 0 ? fields.Parts.last() : fields.Parts[row];
        part.Category = category;
        part.Amount = amount;
        QTEST(int(book.Editor.Save(fields)), "saved");
        QCOMPARE(book.Editor.FailedPart(), row);
        QTEST(book.User.Shown.value(0), "message");
        QCOMPARE(book.Data.CountEntries(), 0);
    }

    void RestFillsARow()
    {
        cEntryFields fields = Purchase();
        fields.Parts[1].Amount = u"5"_s;
        QVERIFY(modSplitParts::FillRest(2, fields));
        QCOMPARE(fields.Parts.at(2).Amount, u"8,00"_s);
        QCOMPARE(modSplitParts::Rest(fields), 0);
        fields.Amount = u"45"_s;
        QVERIFY(modSplitParts::FillRest(1, fields)); // goes on top of what is there
        QCOMPARE(fields.Parts.at(1).Amount, u"0,00"_s);
        fields.Parts[1].Amount = u"?"_s;
        QVERIFY(!modSplitParts::FillRest(2, fields));
        QCOMPARE(modSplitParts::RestText(fields), u"Ein Betrag ist keine Zahl."_s);
    }

    void RemovedAndAddedParts()
    {
        cEditorBook book;
        QCOMPARE(book.Editor.Save(Purchase()), cEntryEditor::eSaved::Saved);
        cEntryFields fields = book.Editor.Load(2).value();
        fields.Parts.removeFirst(); // its ID was the group's name
        fields.Parts.append({0, u"Haushalt; Lebensmittel"_s, u"Käse"_s, u"40"_s});
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Saved);
        QCOMPARE(Rows(book),
                 QStringList({u"Ausgabe 1300 Krimi [split=2]"_s, u"Einnahme 300 Leergut [split=2]"_s,
                              u"Ausgabe 4000 Käse [split=2]"_s}));
        QVERIFY(book.Data.Journal().Undo());
        QCOMPARE(Rows(book), storedPurchase);
    }

    // The bank's row pays the whole purchase, whichever of its parts it hangs at.
    void KeepsTheBankRowOfPartsThatGo_data()
    {
        // paid: the part that it hangs at; isJoined: the parts become one entry
        const cTestRows<int, bool, QString, int> row("paid", "isJoined", "interval", "entry");
        row("first part", 1, false, modWord::Einmalig, 2);
        row("parts become one", 3, true, modWord::Einmalig, 1);
        row("from a day on", 1, false, u"Monatlich"_s, 4);
    }

    void KeepsTheBankRowOfPartsThatGo()
    {
        QFETCH(const bool, isJoined);
        QFETCH(const QString, interval);
        cEditorBook book;
        cEntryFields fields = Purchase();
        fields.Interval = interval;
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Saved);
        QFETCH(const int, paid);
        const int row = book.Stage(u"1"_s, QDate(2026, 6, 11), -5000, {}, paid).ID;
        fields = book.Editor.LoadFrom(2, QDate(2026, 6, 10)).value();
        if (isJoined) {
            book.User.Answers = {eAnswer::Yes};
            QVERIFY(book.Editor.UseNormal(fields));
        } else {
            fields.Parts.removeFirst();
            fields.Amount = u"10"_s;
            book.User.Usual = eAnswer::Yes; // where the month that is paid becomes another
        }
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Saved);
        const cImportEntry stored = book.Data.GetImportEntries().constFirst();
        QVERIFY(stored.ID == row && stored.ImportAssigned);
        QTEST(stored.ImportAssignedEntry, "entry");
    }

    void LastPartIsAnOrdinaryEntryAgain()
    {
        cEditorBook book;
        QCOMPARE(book.Editor.Save(Purchase()), cEntryEditor::eSaved::Saved);
        cEntryFields fields = book.Editor.Load(1).value();
        fields.Parts = fields.Parts.mid(1, 1);
        fields.Amount = u"13"_s;
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Saved);
        QCOMPARE(Rows(book), QStringList({u"Ausgabe 1300 Krimi []"_s}));
        QCOMPARE(book.Editor.Load(2)->Face, eEntryFace::Normal);
    }

    void PlainEntryKeepsItsRow()
    {
        cEditorBook book;
        const cEntryItem entry = book.Add([](cEntryItem& item) { item.EntryFlags = u"farbe=rot"_s; });
        cEntryFields fields = book.Editor.Load(entry.ID).value();
        book.Editor.UseSplit(fields);
        QCOMPARE(fields.Parts.size(), 1);
        fields.Parts[0].Amount = u"4"_s;
        fields.Parts.append({0, u"Haushalt; Pfand"_s, u"neu"_s, {}});
        QVERIFY(modSplitParts::FillRest(1, fields));
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Saved);
        QCOMPARE(Rows(book), QStringList({u"Ausgabe 400  [farbe=rot;split=1]"_s, u"Ausgabe 600 neu [split=1]"_s}));
    }

    void JoiningPartsAsks()
    {
        cEditorBook book;
        QCOMPARE(book.Editor.Save(Purchase()), cEntryEditor::eSaved::Saved);
        cEntryFields fields = book.Editor.Load(3).value();
        book.User.Answers = {eAnswer::No, eAnswer::Yes};
        QVERIFY(!book.Editor.UseNormal(fields));
        QCOMPARE(fields.Face, eEntryFace::Split);
        QVERIFY(book.Editor.UseNormal(fields));
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Saved);
        QCOMPARE(Rows(book), QStringList({u"Ausgabe 5000 Einkauf []"_s}));
    }

    void PartsThatWentApartOpenAlone()
    {
        cEditorBook book;
        QCOMPARE(book.Editor.Save(Purchase()), cEntryEditor::eSaved::Saved);
        cEntryItem part = book.Data.LoadEntry(2).value();
        part.EntryAccount = u"Bargeld"_s;
        QVERIFY(book.Data.ChangeEntry(part));
        cEntryFields fields = book.Editor.Load(1).value();
        QCOMPARE(fields.Face, eEntryFace::Normal);
        fields.Amount = u"41"_s;
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Saved);
        QCOMPARE(Rows(book).value(0), u"Ausgabe 4100 Einkauf [split=1]"_s);
        QCOMPARE(Rows(book).mid(1), storedPurchase.mid(1));
    }

    void SeriesOfPartsIsChangedFromADayOn()
    {
        cEditorBook book;
        cEntryFields fields = Purchase();
        fields.Interval = u"Monatlich"_s;
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Saved);
        fields = book.Editor.LoadFrom(2, QDate(2026, 6, 10)).value();
        fields.Parts.removeLast(); // no deposit any more
        fields.Amount = u"53"_s;
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Saved);
        QCOMPARE(Rows(book),
                 storedPurchase
                     + QStringList({u"Ausgabe 4000 Einkauf [split=4]"_s, u"Ausgabe 1300 Krimi [split=4]"_s}));
        for (int id = 1; id <= 3; ++id) {
            QCOMPARE(book.Data.LoadEntry(id)->EntryDateEnd, QDate(2026, 6, 9));
        }
        QCOMPARE(book.Data.LoadEntry(4)->EntryDate, QDate(2026, 6, 10));
        QCOMPARE(book.Data.LoadEntry(5)->EntryDateEnd, modRecurrence::OpenEnd);
    }

    void PaidMonthsOfASeriesStay_data() const
    {
        // in cents: a new part; more for the second one; that one goes, or turns round with twice of it
        const cTestRows<bool, int, int, int, qsizetype> row("isMoved", "added", "changed", "taken", "asked");
        row("a new part", false, 800, 0, 0, 0);
        row("a new part where the month was moved", true, 800, 0, 0, 0);
        row("a part becomes dearer where the month was moved", true, 0, 200, 0, 0);
        row("a part goes, and the user says no", false, 0, 0, 1300, 1);
        row("a part turns round, and the user says no", false, 0, 0, 2600, 1);
    }

    // Whichever part the bank's row hangs at.
    void PaidMonthsOfASeriesStay()
    {
        QFETCH(const bool, isMoved);
        QFETCH(const int, added);
        QFETCH(const int, changed);
        QFETCH(const int, taken);
        cEditorBook book;
        cEntryFields fields = Purchase();
        fields.Interval = u"Monatlich"_s;
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Saved);
        const QDate paid(2026, 4, isMoved ? 3 : 10);
        for (const auto& [id, cents] : {std::pair(1, 4000), std::pair(2, 1300), std::pair(3, 300)}) {
            QVERIFY(!isMoved
                    || book.Data.AddNewEntryMod(
                        {0, id, modWord::Betrag, QDate(2026, 4, 1), QDate(2026, 4, 30), cents, {}, paid}));
        }
        book.Stage(u"1"_s, paid, -5000, {}, 1);
        fields = book.Editor.Load(2).value();
        fields.Amount = QString::number((5000 + added + changed - taken) / 100);
        fields.Parts[1].Amount = QString::number((1300 + changed - taken) / 100);
        if (added > 0) {
            fields.Parts.append({0, u"Haushalt; Lebensmittel"_s, u"Käse"_s, QString::number(added / 100)});
        } else if (taken == 1300) {
            fields.Parts.remove(1);
        }
        (void)book.Editor.Save(fields);
        QTEST(book.User.Asked.size(), "asked");
        for (const int month : {4, 5}) {
            cEntryQuery query;
            query.Start = QDate(2026, month, 1);
            query.End = query.Start.addDays(29);
            QCOMPARE(modSplit::Net(book.Data.GetEntries(query)), month == 4 ? -5000 : -5000 - added - changed);
        }
    }

    // The parts that kept their amount for it stand beside others that did not have to.
    void PaidMonthsStayWhenDividedAnew()
    {
        cEditorBook book;
        cEntryFields fields = Purchase();
        fields.Interval = u"Monatlich"_s;
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Saved);
        book.Stage(u"1"_s, QDate(2026, 4, 10), -5000, {}, 1);
        for (const auto& [first, second] : {std::pair(u"40"_s, u"15"_s), {u"38"_s, u"17"_s}}) {
            fields = book.Editor.Load(2).value();
            fields.Amount = u"52"_s;
            fields.Parts[0].Amount = first;
            fields.Parts[1].Amount = second;
            QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Saved);
        }
        for (const int month : {4, 5}) {
            cEntryQuery query;
            query.Start = QDate(2026, month, 1);
            query.End = query.Start.addDays(29);
            QCOMPARE(modSplit::Net(book.Data.GetEntries(query)), month == 4 ? -5000 : -5200);
        }
    }

    void CorrectedEntriesAndTransfersStayWhole()
    {
        cEditorBook book;
        const cEntryItem series = book.Add([](cEntryItem& entry) { entry.EntryInterval = u"Monatlich"_s; });
        book.Correct(series.ID, QDate(2026, 4, 1), {}, 0);
        cEntryFields fields = book.Editor.Load(series.ID).value();
        book.Editor.UseSplit(fields);
        QCOMPARE(fields.Face, eEntryFace::Normal);
        fields = book.Editor.Start({});
        fields.Type = modWord::Umbuchung;
        book.Editor.UseSplit(fields);
        QCOMPARE(fields.Face, eEntryFace::Normal);
        QCOMPARE(book.User.Shown.size(), 2);
    }

    void FailureLeavesNothingHalfStored()
    {
        cEditorBook book;
        QCOMPARE(book.Editor.Save(Purchase()), cEntryEditor::eSaved::Saved);
        book.Database.ExecuteScript("CREATE TRIGGER full BEFORE INSERT ON data WHEN NEW.EntryDescription = 'Käse' "
                                    "BEGIN SELECT RAISE(ABORT, 'full'); END");
        cEntryFields fields = book.Editor.Load(1).value();
        fields.Parts[0].Amount = u"39"_s;
        fields.Parts.append({0, u"Haushalt; Lebensmittel"_s, u"Käse"_s, u"1"_s});
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Refused);
        QCOMPARE(Rows(book), storedPurchase);
        QCOMPARE(book.User.Shown.size(), 1);
        book.Database.ExecuteScript("DROP TRIGGER full");
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Saved); // the editor still knows what it edits
        QCOMPARE(Rows(book).size(), 4);
    }
};

TEST_CLASS(testSplitEntry, QCoreApplication)
#include "testSplitEntry.moc"
