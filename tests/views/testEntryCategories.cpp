#include "cEditorBook.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"

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

} // namespace

// How categories are found and made, and what they bring into the editor.
class testEntryCategories final : public QObject
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
        QVERIFY(book.Editor.Categories().contains(u"Garten; Pflanzen"_s));

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
};

TEST_CLASS(testEntryCategories, QCoreApplication)
#include "testEntryCategories.moc"
