#include "cEditorBook.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "support/testBook.h"
#include "views/entry/cEntryDelete.h"
#include "views/entry/cEntrySuggestions.h"

using namespace Qt::Literals::StringLiterals;

namespace {

void AddCategory(cTestBook& book, const QString& path, const QString& type = {}, const QString& interval = {},
                 const QString& remark = {})
{
    book.AddCategory(path, [&](cTemplateItem& item) {
        item.TemplateComment = remark;
        item.EntryType = type;
        item.EntryInterval = interval;
    });
}

void RemoveCategories(cTestBook& book)
{
    const cTemplateItemList shipped = book.Data.GetTemplates();
    for (const cTemplateItem& item : shipped) {
        QVERIFY(modTemplate::IsAccount(item) || book.Data.DeleteTemplate(item.ID));
    }
}

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

// Two monthly series (1 and 2) from 10 March on, and a plain entry (3).
void FillSeries(cTestBook& book)
{
    for (const QString& name : {u"Miete"_s, u"Strom"_s}) {
        book.Spend(QDate(2026, 3, 10), 1000, name, u"Monatlich"_s);
    }
    (void)book.Add([](cEntryItem&) {});
}

QStringList Occurrences(cTestBook& book)
{
    QStringList texts;
    cEntryQuery query;
    query.End = QDate(2026, 5, 31);
    query.Kind = eBookingKind::Fix;
    const cEntryItemList entries = book.Data.GetEntries(query);
    for (const cEntryItem& entry : entries) {
        texts.append(QString::number(entry.ID) + u' ' + entry.EntryDate.toString(u"dd.MM."_s) + u' '
                     + QString::number(entry.EntryValue));
    }
    return texts;
}

} // namespace

// How categories are found and made and what they bring into the editor, and how entries go.
class testEntryFlows final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void MistakenCategoryLeavesNothingBehind()
    {
        cEditorBook book;
        AddCategory(book, u"Einkommen; Lohn"_s, modWord::Einnahme, u"Monatlich"_s);
        AddCategory(book, u"Haushalt; Milch"_s, modWord::Ausgabe, modWord::Einmalig);
        AddCategory(book, u"Haushalt; Offen"_s, {}, {});
        AddCategory(book, u"Haushalt; Alle"_s, modWord::AlleBuchungsarten); // a filter word that old files carry
        cEntryEditor::cFields fields = book.Editor.Start(u"Girokonto"_s);
        const auto choose = [&](const QString& path) {
            book.Editor.ChooseCategory(path, fields);
            return QStringList{fields.Type, fields.Interval};
        };
        QCOMPARE(choose(u"Einkommen; Lohn"_s), QStringList({modWord::Einnahme, u"Monatlich"_s}));
        QCOMPARE(choose(u"Haushalt; Milch"_s), QStringList({modWord::Ausgabe, modWord::Einmalig}));
        QCOMPARE(choose(u"Haushalt; Offen"_s), QStringList({QString(), QString()}));
        QCOMPARE(choose(u"Haushalt; Alle"_s), QStringList({QString(), QString()}));
        QCOMPARE(choose(u"Einkommen; Lohn"_s), QStringList({modWord::Einnahme, u"Monatlich"_s}));
        QCOMPARE(choose({}), QStringList({QString(), QString()})); // the field was emptied
        fields.Interval = u"Jährlich"_s;                           // chosen by hand
        QCOMPARE(choose(u"Einkommen; Lohn"_s), QStringList({modWord::Einnahme, u"Jährlich"_s}));

        const cEntryItem stored = book.Add([](cEntryItem& entry) { entry.EntryInterval = u"Monatlich"_s; });
        fields = book.Editor.Load(stored.ID).value();
        QCOMPARE(choose(u"Einkommen; Lohn"_s), QStringList({modWord::Ausgabe, u"Monatlich"_s}));
    }

    // Child benefit entered after a transfer is no transfer.
    void CarriedKindIsOpen()
    {
        cEditorBook book;
        AddCategory(book, u"Einkommen; Kindergeld"_s, modWord::Einnahme, u"Monatlich"_s);
        AddCategory(book, u"Haushalt; Offen"_s, {}, {});
        cEntryEditor::cFields saved = book.Editor.Start(u"Girokonto"_s);
        saved.Type = modWord::Umbuchung;
        saved.Target = u"Sparkonto"_s;
        saved.Interval = u"Jährlich"_s;
        saved.HasEnd = true;
        cEntryEditor::cFields next = book.Editor.Next(saved);
        QCOMPARE(next.Type, modWord::Umbuchung);
        book.Editor.ChooseCategory(u"Einkommen; Kindergeld"_s, next);
        QCOMPARE(next.Type, modWord::Einnahme);
        QCOMPARE(next.Interval, u"Monatlich"_s);
        QVERIFY(!next.HasEnd);
        book.Editor.ChooseCategory(u"Haushalt; Offen"_s, next); // the other one was a mistake
        QCOMPARE(next.Type, modWord::Umbuchung);
        QVERIFY(next.Interval.isEmpty());
    }

    void FindsCategories()
    {
        cTestBook book;
        RemoveCategories(book);
        const QStringList paths{u"Auto; Bußgeld"_s, u"Bücher"_s, u"Haus; Strom"_s, u"Haus; Müllabfuhr"_s,
                                u"Reise; Büro"_s};
        for (const QString& path : paths) {
            AddCategory(book, path);
        }
        (void)book.Add([](cEntryItem& entry) { entry.EntryCategory = u"Haus; Müllabfuhr"_s; });
        (void)book.Add([](cEntryItem& entry) { entry.EntryCategory = u"Gelöscht"_s; });
        cEntrySuggestions suggestions(book.Data, book.User);
        QCOMPARE(suggestions.Categories(u"hau"_s), QStringList({u"Haus; Müllabfuhr"_s, u"Haus; Strom"_s}));
        QCOMPARE(suggestions.Categories(u"BUE"_s), QStringList({u"Bücher"_s, u"Reise; Büro"_s}));
        QCOMPARE(suggestions.Categories(u"mull haus"_s), QStringList({u"Haus; Müllabfuhr"_s}));
        QCOMPARE(suggestions.Categories(u"uss"_s), QStringList({u"Auto; Bußgeld"_s}));
        QCOMPARE(suggestions.Categories({}).value(0), u"Haus; Müllabfuhr"_s);
        QCOMPARE(suggestions.CategoryMeant(u"haus; strom"_s), u"Haus; Strom"_s);
        QCOMPARE(suggestions.CategoryMeant(u"strom"_s), u"Haus; Strom"_s);
        QCOMPARE(suggestions.CategoryMeant(u"Gelöscht"_s), QString());
    }

    void OrdersCategories_data()
    {
        const cTestRows<QString, QString, QString> row("typed", "type", "paths");
        row("the name itself, its beginning, another word, inside a word, remark", u"miete"_s, modWord::Einnahme,
            u"Wohnung; Miete|Einkommen; Mieteinnahmen|Urlaub; Auto Miete|Büro; Kaltmiete|Auto; Leihwagen"_s);
        row("recent before kind", u"gesch"_s, modWord::Einnahme, u"Büro; Geschirr|Einkommen; Geschenke"_s);
        row("kind among equals", u"zin"_s, modWord::Ausgabe, u"Wohnung; Zinsen|Einkommen; Zinsen"_s);
        row("only a remark", u"sixt"_s, {}, u"Auto; Leihwagen"_s);
    }

    void OrdersCategories()
    {
        QFETCH(QString, typed);
        QFETCH(QString, type);
        QFETCH(QString, paths);
        cTestBook book;
        RemoveCategories(book);
        AddCategory(book, u"Einkommen; Mieteinnahmen"_s, modWord::Einnahme);
        AddCategory(book, u"Einkommen; Geschenke"_s, modWord::Einnahme);
        AddCategory(book, u"Einkommen; Zinsen"_s, modWord::Einnahme);
        AddCategory(book, u"Auto; Leihwagen"_s, modWord::Ausgabe, {}, u"Miete eines Wagens, Sixt"_s);
        AddCategory(book, u"Büro; Kaltmiete"_s, modWord::Ausgabe);
        AddCategory(book, u"Büro; Geschirr"_s, modWord::Ausgabe);
        AddCategory(book, u"Urlaub; Auto Miete"_s, modWord::Ausgabe);
        AddCategory(book, u"Wohnung; Miete"_s, modWord::Ausgabe);
        AddCategory(book, u"Wohnung; Zinsen"_s, modWord::Ausgabe);
        (void)book.Add([](cEntryItem& entry) { entry.EntryCategory = u"Büro; Geschirr"_s; });
        cEntrySuggestions suggestions(book.Data, book.User);
        QCOMPARE(suggestions.Categories(typed, type).join(u'|'), paths);
        QCOMPARE(suggestions.CategoryMeant(typed, type), paths.section(u'|', 0, 0));
    }

    void MakesACategoryThatIsMissing()
    {
        cEditorBook book;
        cEntryEditor::cFields fields = book.Editor.Start(u"Girokonto"_s);
        fields.Amount = u"12,50"_s;
        fields.IsAmountTyped = true;
        fields.CategoryText = u"Garten;  Pflanzen"_s;
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Refused); // the kind becomes that of the category
        QVERIFY(book.User.Asked.isEmpty());
        book.User.Shown.clear();
        fields.Type = modWord::Ausgabe;
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Refused); // an empty queue answers Cancel
        QCOMPARE(book.User.Asked,
                 QStringList(u"Die Kategorie 'Garten; Pflanzen' gibt es noch nicht.\nSoll sie angelegt werden?"_s));
        QVERIFY(book.User.Shown.isEmpty());
        QVERIFY(cEntryEditor::IsTyped(book.Editor.Start(u"Girokonto"_s), fields)); // the text is worth a question
        book.User.Answers = {eAnswer::Yes};
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Saved);
        QCOMPARE(book.Data.LoadEntry(book.Editor.SavedId())->EntryCategory, u"Garten; Pflanzen"_s);
        QVERIFY(cEntrySuggestions::VisibleCategories(book.Data).contains(u"Garten; Pflanzen"_s));

        fields.Face = eEntryFace::Split;
        fields.Parts = {{.Amount = u"10"_s, .CategoryText = u"garten;pflanzen"_s},
                        {.Amount = u"2,5"_s, .CategoryText = u"Samen"_s}};
        book.User.Asked.clear();
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Refused);
        QCOMPARE(book.Editor.FailedPart(), 1); // the first one is there now
        QCOMPARE(book.User.Asked.size(), 1);
    }

    void TheFirstEntryGivesItsKindToANewCategory()
    {
        cEditorBook book;
        book.User.Answers = {eAnswer::Yes};
        const QString path = book.Editor.Suggestions().OfferNew(u"Pony"_s, {});
        for (const QString& type : {modWord::Einnahme, modWord::Ausgabe}) {
            cEntryEditor::cFields fields = book.Editor.Start(u"Girokonto"_s);
            fields.Amount = u"12,50"_s;
            book.Editor.ChooseCategory(path, fields);
            fields.Type = type;
            QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Saved);
            book.Editor.ChooseCategory(path, fields = book.Editor.Start(u"Girokonto"_s));
            QCOMPARE(fields.Type, modWord::Einnahme);
        }
    }

    void AsksForPartsOnce_data()
    {
        // left: flags by ID
        const cTestRows<QList<int>, int, QStringList, QStringList> row("ids", "choice", "options", "left");
        const QString other = u"4 "_s;
        row("given up", {2}, -1, {thisPart, allParts}, {u"1 split=1"_s, u"2 split=1"_s, u"3 split=1"_s, other});
        row("this part", {2}, 0, {thisPart, allParts}, {u"1 split=1"_s, u"3 split=1"_s, other});
        row("the part that names the group", {1}, 0, {thisPart, allParts}, {u"2 split=2"_s, u"3 split=2"_s, other});
        row("all parts", {3}, 1, {thisPart, allParts}, {other});
        row("all but one, which is ordinary then", {1, 3}, 0, {theseParts, allParts}, {u"2 "_s, other});
        row("the whole group is selected", {1, 2, 3}, 0, {}, {other});
        row("none is a part", {4, 99}, 0, {}, {u"1 split=1"_s, u"2 split=1"_s, u"3 split=1"_s});
    }

    void AsksForPartsOnce()
    {
        QFETCH(QList<int>, ids);
        QFETCH(int, choice);
        QFETCH(QStringList, options);
        cTestBook book;
        Fill(book);
        cEntryDelete flow(book.Tools);
        book.User.Decisions.assign(options.isEmpty() ? 0 : 1, choice);
        book.User.Usual = eAnswer::Yes;
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

    void QuestionNamesWhatGoes()
    {
        cTestBook book;
        Fill(book);
        const int series = book.Spend(QDate(2026, 3, 10), 1000, u"Miete"_s, u"Monatlich"_s).ID;
        cEntryDelete flow(book.Tools);
        QVERIFY(!flow.Delete(QList<int>{3}));
        QVERIFY(!flow.Delete(QList<int>{series}));
        QCOMPARE(book.User.Asked.at(0),
                 u"Möchten Sie den Eintrag 'Teil' vom 10.03.2026 über 10,00\u00A0€ löschen?\n\n"
                 "Er gehört zu einem aufgeteilten Eintrag. Weitere Teile: 2"_s);
        QCOMPARE(
            book.User.Asked.at(1),
            u"Möchten Sie den Eintrag 'Miete' vom 10.03.2026 über 10,00\u00A0€ löschen?\n\nDamit verschwinden alle "
            "Vorkommen dieser Serien, vergangene wie zukünftige, mit ihren Korrekturen:\n"
            "'Miete' (Monatlich seit 10.03.2026)"_s);
        QVERIFY(!flow.Delete(QList<int>{99})); // gone already: nothing to ask
        QCOMPARE(book.User.Asked.size(), 2);
    }

    void DeletingIsOneStep()
    {
        cTestBook book;
        Fill(book);
        cEntryDelete flow(book.Tools);
        book.User.Decisions = {0};
        QVERIFY(flow.Delete(QList<int>{1, 4}));
        QCOMPARE(book.Data.Journal().UndoName(), u"2 Einträge gelöscht"_s);
        QVERIFY(book.Data.Journal().Undo());
        QCOMPARE(book.Data.CountEntries(), 4);
        QCOMPARE(book.Data.LoadEntry(3)->EntryFlags, u"split=1"_s);
    }

    void SelectionWithSeriesAsksHowMuch_data()
    {
        using cKeys = QList<cEntryListModel::cKey>;
        const cTestRows<cKeys, QString, QStringList> row("keys", "question", "options");
        const QDate march(2026, 3, 10);
        const QDate april(2026, 4, 10);
        row("an occurrence", {{1, april}},
            u"'Miete' vom 10.04.2026 gehört zu einer Serie (Monatlich seit "
            u"10.03.2026).\nWas möchten Sie löschen?\n\n"
            "Nur dieses Mal: Der Betrag wird null, alles andere bleibt.\n"
            "Ab hier: Was davor liegt, bleibt.\n"
            "Ganze Serie: Auch alles Vergangene verschwindet, mit allen Korrekturen."_s,
            {u"Nur dieses Mal"_s, u"Ab hier"_s, u"Ganze Serie"_s});
        row("the first one, from which the series would be whole", {{1, march}},
            u"'Miete' vom 10.03.2026 gehört zu einer Serie (Monatlich seit 10.03.2026).\nWas möchten Sie "
            u"löschen?\n\n"
            "Nur dieses Mal: Der Betrag wird null, alles andere bleibt.\n"
            "Ganze Serie: Auch alles Vergangene verschwindet, mit allen Korrekturen."_s,
            {u"Nur dieses Mal"_s, u"Ganze Serie"_s});
        row("several of two series, and a plain entry", {{1, march}, {2, april}, {3, march}, {1, april}, {1, april}},
            u"Ausgewählt sind 3 Vorkommen von 2 Serien:\n'Miete' (Monatlich seit 10.03.2026)\n'Strom' (Monatlich "
            u"seit "
            u"10.03.2026)\n"
            "Außerdem werden gelöscht: 1 Eintrag\nWas möchten Sie löschen?\n\n"
            "Nur diese Male: Der Betrag wird null, alles andere bleibt.\n"
            "Ab hier: Was davor liegt, bleibt.\n"
            "Ganze Serien: Auch alles Vergangene verschwindet, mit allen Korrekturen."_s,
            {u"Nur diese Male"_s, u"Ab hier"_s, u"Ganze Serien"_s});
    }

    void SelectionWithSeriesAsksHowMuch()
    {
        QFETCH(QList<cEntryListModel::cKey>, keys);
        cTestBook book;
        FillSeries(book);
        QVERIFY(!cEntryDelete(book.Tools).Delete(keys));
        QTEST(book.User.LastDecision.Text, "question");
        QTEST(book.User.LastDecision.Options, "options");
        QCOMPARE(book.Data.Journal().UndoName(), QString()); // given up: nothing was written
    }

    void PartOfASeriesGoes_data()
    {
        // left: days and amounts until June, of series 1 and 2
        const cTestRows<int, QString, QStringList> row("choice", "step", "left");
        row("only these", 0, u"3 Einträge gelöscht"_s,
            {u"1 10.03. 1000"_s, u"1 10.04. 0"_s, u"1 10.05. 1000"_s, u"2 10.03. 0"_s, u"2 10.04. 1000"_s,
             u"2 10.05. 1000"_s});
        row("from here, which is all of the second", 1, u"3 Einträge gelöscht"_s, {u"1 10.03. 1000"_s});
        row("whole", 2, u"3 Einträge gelöscht"_s, {});
    }

    void PartOfASeriesGoes()
    {
        QFETCH(int, choice);
        cTestBook book;
        FillSeries(book);
        const QStringList before = Occurrences(book);
        book.User.Decisions = {choice};
        QVERIFY(cEntryDelete(book.Tools)
                    .Delete({{1, QDate(2026, 4, 10)}, {2, QDate(2026, 3, 10)}, {3, QDate(2026, 3, 10)}}));
        QTEST(Occurrences(book), "left");
        QTEST(book.Data.Journal().UndoName(), "step");
        if (choice == 0) {
            QCOMPARE(book.Data.GetEntryMods(1).constFirst().EntryComment, u"Ausgelassen"_s);
        }
        QVERIFY(book.Data.Journal().Undo());
        QCOMPARE(Occurrences(book), before);
        QCOMPARE(book.Data.CountEntries(), 3);
    }

    void EndedSeriesGivesBankRowsBack()
    {
        cTestBook book;
        FillSeries(book);
        for (const int month : {3, 4}) {
            book.Stage({}, QDate(2026, month, 9), -100000, {}, 1);
        }
        book.User.Answers = {eAnswer::Yes};
        QVERIFY(cEntryDelete(book.Tools).Delete({1, QDate(2026, 4, 10)}, eSeriesPart::FromHere));
        QCOMPARE(book.User.Asked.constFirst(),
                 u"Möchten Sie die Serie 'Miete' ab dem 10.04.2026 löschen?\nDie Vorkommen davor bleiben."_s);
        const cImportEntryList rows = book.Data.GetImportEntries();
        QVERIFY(rows.at(0).ImportAssigned);
        QVERIFY(!rows.at(1).ImportAssigned);
    }
};

TEST_CLASS(testEntryFlows, QCoreApplication)
#include "testEntryFlows.moc"
