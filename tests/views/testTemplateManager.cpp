#include "cTemplateScene.h"
#include "model/modSettingKey.h"
#include "support/cTestClass.h"
#include "views/look/cCategoryLooks.h"

#include <QSignalSpy>
#include <QVariantList>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString food = u"Haushalt; Lebensmittel"_s;
const QString drinks = u"Haushalt; Getränke"_s;

QStringList SubsOf(cTemplateScene& scene, const QString& main)
{
    QStringList names;
    for (const cTemplateBranch& branch : scene.Manager.Categories().Branches()) {
        for (const cTemplateNode& child : branch.Children) {
            if (branch.Node.Path == main) {
                names.append(child.Cells.constFirst());
            }
        }
    }
    return names;
}

} // namespace

class testTemplateManager final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ListsWhatTheBookHolds()
    {
        cTemplateScene scene;
        QVERIFY(scene.Book.Data.SetStartGuthaben(u"Girokonto"_s, -5000, QDate(2026, 1, 1)));
        scene.Book.Settings->Set(modSettingKey::BankNumber.Of(u"4711"_s), u"Girokonto"_s);
        QVERIFY(scene.Save(scene.Category(food), [](cTemplateFields& fields) { fields.Amount = u"400,50"_s; }));
        QCOMPARE(scene.Category(food).Cells,
                 (QStringList{u"Lebensmittel"_s, u"Ausgabe"_s, u"Einmalig"_s, scene.Book.Format.Cents(40050), u"3"_s}));
        QCOMPARE(scene.Category(u"Haushalt"_s).Entries, 3);
        QCOMPARE(scene.Category(u"Haushalt"_s).OwnEntries, 0);
        QCOMPARE(scene.Account(u"Girokonto"_s).Cells,
                 (QStringList{u"Girokonto"_s, u"4711"_s, scene.Book.Format.Cents(-5000), u"4"_s}));
        QVERIFY(scene.Save(scene.Account(u"Bargeld"_s), [](cTemplateFields& fields) { fields.IsVisible = false; }));
        QCOMPARE(scene.Account(u"Bargeld"_s).Cells.constFirst(), u"Bargeld (geschlossen)"_s);
    }

    void DeletesACategory_data()
    {
        const cTestRows<int, QString, bool, QString> row("way", "target", "isDeleted", "category");
        row("entries go along", 0, drinks, true, drinks);
        row("entries stay", 1, {}, true, food);
        row("given up", -1, {}, false, food);
        row("no target chosen", 0, {}, false, food);
    }

    void DeletesACategory()
    {
        QFETCH(int, way);
        QFETCH(QString, target);
        QFETCH(bool, isDeleted);
        cTemplateScene scene;
        scene.Book.User.Decisions = {way};
        if (!target.isEmpty()) {
            scene.Book.User.Choices = {target};
        }
        QCOMPARE(scene.Manager.Delete(scene.Category(food)), isDeleted);
        QCOMPARE(scene.Has(food), !isDeleted);
        QTEST(scene.CategoryOf(2), "category");
        QVERIFY(scene.Book.User.Asked.constFirst().startsWith(
            u"Die Kategorie 'Haushalt; Lebensmittel' wird von 3 Buchungen"));
        QCOMPARE(scene.Book.User.LastDecision.Options,
                 (QStringList{u"Buchungen verschieben und löschen"_s, u"Nur die Kategorie löschen"_s}));
        QVERIFY(!scene.Book.User.LastChoice.Items.contains(food));
        QVERIFY(!scene.Book.User.LastChoice.Items.contains(modWord::Startguthaben));
        QCOMPARE(scene.Book.Data.Journal().UndoName(),
                 isDeleted ? u"Kategorie 'Haushalt; Lebensmittel' gelöscht"_s : QString());
        QVERIFY(!isDeleted || scene.Book.Data.Journal().Undo());
        scene.Manager.Refresh();
        QVERIFY(scene.Has(food));
        QCOMPARE(scene.CategoryOf(2), food);
    }

    void DeletesAMainCategoryWithItsEntries()
    {
        cTemplateScene scene;
        const int old = scene.Book.Add([](cEntryItem& entry) { entry.EntryCategory = u"Haushalt; Altes"_s; }).ID;
        scene.Book.User.Decisions = {0};
        scene.Book.User.Choices = {u"Freizeit; Hobby"_s};
        QVERIFY(scene.Manager.DeleteCategory(u"Haushalt"_s));
        QVERIFY(scene.Book.User.Asked.constFirst().contains(u"mit 6 Unterkategorien wird von 4 Buchungen"));
        QVERIFY(!scene.Manager.Mains().contains(u"Haushalt"_s));
        QCOMPARE(scene.CategoryOf(0), u"Freizeit; Hobby"_s);
        QCOMPARE(scene.Book.Data.LoadEntry(old)->EntryCategory, u"Freizeit; Hobby"_s);
    }

    void KeepsTheCategoryOfStartBalances_data()
    {
        const cTestRows<int> row("action");
        row("delete", 0);
        row("delete its main category", 1);
        row("rename", 2);
        row("rename its main category", 3);
        row("merge into another", 4);
        row("merge another into it", 5);
        row("merge its main category", 6);
        row("move to another main category", 7);
    }

    void KeepsTheCategoryOfStartBalances()
    {
        QFETCH(int, action);
        cTemplateScene scene;
        cTemplateManager& manager = scene.Manager;
        const QString start = modWord::Startguthaben;
        switch (action) {
        case 0: QVERIFY(!manager.DeleteCategory(start)); break;
        case 1: QVERIFY(!manager.DeleteCategory(u"Allgemein"_s)); break;
        case 2: QVERIFY(!manager.RenameCategory(start, u"Allgemein; Anfang"_s)); break;
        case 3: QVERIFY(!manager.RenameCategory(u"Allgemein"_s, u"Rest"_s)); break;
        case 4: QVERIFY(!manager.MergeCategory(start, food)); break;
        case 5: QVERIFY(!manager.MergeCategory(food, start)); break;
        case 6: QVERIFY(!manager.MergeCategory(u"Allgemein"_s, u"Haushalt"_s)); break;
        default:
            QVERIFY(!scene.Save(scene.Category(start), [](cTemplateFields& fields) { fields.Group = u"Haushalt"_s; }));
            break;
        }
        QVERIFY(scene.Has(start));
        QCOMPARE(scene.Book.User.Shown.size(), 1);
        QVERIFY(scene.Book.User.Shown.constFirst().contains(u"erkennt das Programm die Startguthaben"));
        QVERIFY(scene.Book.Data.Journal().UndoName().isEmpty());
    }

    void MergesIntoACategoryThatStaysAsItIs()
    {
        cTemplateScene scene;
        QVERIFY(scene.Save(scene.Category(drinks), [](cTemplateFields& fields) { fields.Amount = u"80"_s; }));
        const std::optional<cTemplateItem> target = scene.Book.Data.FindTemplate(scene.Category(drinks).Id);
        scene.Book.User.Choices = {drinks, drinks};
        QVERIFY(!scene.Manager.AskMerge(scene.Category(food))); // the question is not answered with yes
        scene.Book.User.Answers = {eAnswer::Yes};
        QVERIFY(scene.Manager.AskMerge(scene.Category(food)));
        QVERIFY(scene.Book.User.Asked.constLast().startsWith(u"3 Buchungen von 'Haushalt; Lebensmittel' nach"));
        QVERIFY(!scene.Has(food));
        QCOMPARE(scene.CategoryOf(1), drinks);
        QCOMPARE(scene.Book.Data.FindTemplate(target->ID), target);
    }

    void MergesMainCategories()
    {
        cTemplateScene scene;
        QCOMPARE(scene.Manager.AddCategory(u"Alltag"_s, u"Lebensmittel"_s), u"Alltag; Lebensmittel"_s);
        scene.Book.User.Answers = {eAnswer::Yes};
        QVERIFY(scene.Manager.MergeCategory(u"Haushalt"_s, u"Alltag"_s));
        QVERIFY(!scene.Manager.Mains().contains(u"Haushalt"_s));
        QCOMPARE(scene.CategoryOf(0), u"Alltag; Lebensmittel"_s);
        QCOMPARE(SubsOf(scene, u"Alltag"_s).count(u"Lebensmittel"_s), 1);
        QVERIFY(scene.Has(u"Alltag; Getränke"_s));
        QVERIFY(scene.Has(u"Alltag"_s) && scene.Category(u"Alltag"_s).Id > 0); // what was bookable stays bookable
        QVERIFY(scene.Book.Data.Journal().Undo());
        QCOMPARE(scene.CategoryOf(0), food);
    }

    void LooksGoWithTheirMainCategory_data()
    {
        // to: merged into it where it exists; empty: deleted; look: of that one
        const cTestRows<QString, QString, QString, QString> row("from", "to", "shown", "look");
        row("renamed", u"Urlaub"_s, u"Reisen"_s, u"Reisen"_s, u"#112233 reise"_s);
        row("renamed in letter case", u"Urlaub"_s, u"URLAUB"_s, u"URLAUB"_s, u"#112233 reise"_s);
        row("its only sub-category moves", u"Urlaub; See"_s, u"Ferien; See"_s, u"Ferien"_s, u"#112233 reise"_s);
        row("one of several moves", u"Freizeit; Kino"_s, u"Kultur; Kino"_s, u"Kultur"_s, u" "_s);
        row("a sub-category is renamed", u"Urlaub; See"_s, u"Urlaub; Meer"_s, u"Urlaub"_s, u"#112233 reise"_s);
        row("merged into one without", u"Urlaub"_s, u"Haushalt"_s, u"Haushalt"_s, u"#112233 reise"_s);
        row("merged into one with its own", u"Urlaub"_s, u"Freizeit"_s, u"Freizeit"_s, u"#445566 "_s);
        row("deleted", u"Urlaub"_s, {}, u"Urlaub"_s, u" "_s);
    }

    void LooksGoWithTheirMainCategory()
    {
        QFETCH(QString, from);
        QFETCH(QString, to);
        cTemplateScene scene;
        QVERIFY(!scene.Manager.AddCategory(u"Urlaub"_s, u"See"_s).isEmpty());
        QVERIFY(!scene.Manager.AddCategory(u"Freizeit"_s, u"Kino"_s).isEmpty());
        const auto look = [&](const QString& main) {
            const cCategoryLook found = cCategoryLooks::Read(scene.Book.Data).Of(main);
            return QString(found.Color + u' ' + found.Icon);
        };
        QVERIFY(!scene.Category(u"Urlaub"_s).Look.isValid()); // lists have no room for what no category has
        QVERIFY(
            scene.Save(scene.Category(u"Freizeit"_s), [](cTemplateFields& each) { each.Look.Color = u"#445566"_s; }));
        QVERIFY(scene.Save(scene.Category(u"Urlaub"_s), [](cTemplateFields& each) {
            each.Look = {u"#112233"_s, u"reise"_s};
        }));
        QCOMPARE(look(u"Urlaub; See"_s), u"#112233 reise"_s);
        scene.Book.User.Usual = eAnswer::Yes;
        const bool isMerge = scene.Manager.Mains().contains(to);
        QVERIFY(to.isEmpty()  ? scene.Manager.DeleteCategory(from)
                    : isMerge ? scene.Manager.MergeCategory(from, to)
                              : scene.Manager.RenameCategory(from, to));
        QFETCH(QString, shown);
        QTEST(look(shown), "look");
        QVERIFY(scene.Book.Data.Journal().Undo());
        QCOMPARE(look(u"Urlaub"_s), u"#112233 reise"_s);
        QCOMPARE(look(u"Freizeit"_s), u"#445566 "_s);
    }

    void TakesBackWhatFailsHalfway()
    {
        cTemplateScene scene;
        scene.Book.Settings->Set(modSettingKey::BankNumber.Of(u"4711"_s), u"Girokonto"_s);
        scene.Book.Database.Execute(
            "CREATE TRIGGER t BEFORE DELETE ON template BEGIN SELECT RAISE(ABORT, 'voll'); END");
        scene.Book.User.Choices = {u"Bargeld"_s};
        scene.Book.User.Answers = {eAnswer::Yes};
        QVERIFY(!scene.Manager.AskMerge(scene.Account(u"Girokonto"_s)));
        QCOMPARE(scene.Book.User.Shown, QStringList(u"ERROR: DeleteTemplate\nvoll"_s));
        QCOMPARE(scene.Book.Settings->Get(modSettingKey::BankNumber.Of(u"4711"_s)), u"Girokonto"_s);
        QCOMPARE(scene.Book.Data.LoadEntry(scene.Ids.at(0))->EntryAccount, u"Girokonto"_s);
    }

    void ChangesACategoryInOneStep()
    {
        cTemplateScene scene;
        const QSignalSpy changes(&scene.Manager, &cTemplateManager::BookChanged);
        const std::optional<QString> path = scene.Save(scene.Category(food), [](cTemplateFields& fields) {
            fields.Group = u"Alltag"_s;
            fields.Name = u" Essen & \"Trinken\" "_s;
            fields.Interval = u"Wöchentlich"_s;
            fields.Amount = u"100+50,5"_s;
            fields.Vat = u"5,5 %"_s;
            fields.Comment = u"Wocheneinkauf"_s;
        });
        QCOMPARE(path, u"Alltag; Essen  Trinken"_s);
        QCOMPARE(changes.size(), 1);
        QCOMPARE(scene.CategoryOf(0), *path);
        const std::optional<cTemplateItem> item = scene.Book.Data.FindTemplate(scene.Category(*path).Id);
        QCOMPARE(item->TemplateDefaultValue, u"150.50"_s);
        QCOMPARE(item->EntryInterval, u"Wöchentlich"_s);
        QCOMPARE(item->TemplateVAT, u"5.5"_s);
        QVERIFY(scene.Book.Data.Journal().Undo());
        QVERIFY(scene.Book.Data.Journal().UndoName().isEmpty());
        scene.Manager.Refresh();
        QCOMPARE(scene.Manager.Load(scene.Category(food))->Amount, QString());
        QCOMPARE(scene.CategoryOf(0), food);
    }

    // Of a later version of the program.
    void KeepsAnIconThatIsNotKnown()
    {
        cTemplateScene scene;
        const cSettingKey icon = modSettingKey::CategoryIcon.Of(u"Haushalt"_s);
        scene.Book.Settings->Set(icon, u"rakete"_s);
        QVERIFY(
            scene.Save(scene.Category(u"Haushalt"_s), [](cTemplateFields& each) { each.Look.Color = u"#445566"_s; }));
        QCOMPARE(scene.Book.Settings->Get(icon), u"rakete"_s);
    }

    // What an older book holds is left alone until somebody gives a rate.
    void KeepsVatThatIsNoRate()
    {
        cTemplateScene scene;
        scene.Book.Database.ExecuteScript("UPDATE template SET TemplateVAT = 'voll'");
        const auto stored = [&scene] { return scene.Book.Data.FindTemplate(scene.Category(food).Id)->TemplateVAT; };
        QVERIFY(scene.Save(scene.Category(food), [](cTemplateFields& fields) { fields.Comment = u"x"_s; }));
        QCOMPARE(stored(), u"voll"_s);
        QVERIFY(!scene.Save(scene.Category(food), [](cTemplateFields& fields) { fields.Vat = u"-7"_s; }));
        QCOMPARE(scene.Book.User.Shown.constLast(),
                 u"'-7' ist kein Steuersatz. Bitte geben Sie Prozente ein, zum Beispiel 19 oder 7."_s);
        QVERIFY(scene.Save(scene.Category(food), [](cTemplateFields& fields) { fields.Vat.clear(); }));
        QCOMPARE(stored(), QString());
    }

    void RefusesFields_data()
    {
        const cTestRows<QString, QString, QString, QString> row("path", "name", "amount", "message");
        row("taken", food, u"getränke"_s, u""_s, u"Die Kategorie 'Haushalt; getränke' existiert bereits!"_s);
        row("without name", food, u" ; "_s, u""_s, u"Der Name der Kategorie darf nicht leer sein!"_s);
        row("no amount", food, u"Essen"_s, u"viel"_s, u"'viel' ist kein Betrag."_s);
        row("main taken", u"Haushalt"_s, u"Auto"_s, u""_s, u"Die Hauptkategorie 'Auto' existiert bereits!"_s);
        row("main without name", u"Haushalt"_s, u""_s, u""_s, u"Der Name der Kategorie darf nicht leer sein!"_s);
        row("account taken", u"Bargeld"_s, u"Sparkonto"_s, u"10"_s, u"Dieser Kontoname existiert bereits!"_s);
    }

    void RefusesFields()
    {
        QFETCH(QString, path);
        QFETCH(QString, name);
        QFETCH(QString, amount);
        QFETCH(QString, message);
        cTemplateScene scene;
        const bool isAccount = scene.Manager.Accounts().IndexOf(path).isValid();
        const cTemplateItemList before = scene.Book.Data.GetTemplates();
        QVERIFY(!scene.Save(isAccount ? scene.Account(path) : scene.Category(path), [&](cTemplateFields& fields) {
            fields.Name = name;
            fields.Amount = amount;
            fields.Comment = u"neu"_s;
        }));
        QCOMPARE(scene.Book.User.Shown, QStringList(message));
        QCOMPARE(scene.Book.Data.GetTemplates(), before);
        QVERIFY(!scene.Book.Data.GetStartGuthaben(path));
    }

    void MainCategoryIsBookableOrNot()
    {
        cTemplateScene scene;
        const auto setBookable = [&](const QString& main, bool isBookable) {
            return scene.Save(scene.Category(main), [&](cTemplateFields& fields) { fields.IsBookable = isBookable; });
        };
        QVERIFY(setBookable(u"Auto"_s, true));
        QVERIFY(scene.Category(u"Auto"_s).Id > 0);
        QVERIFY(setBookable(u"Auto"_s, false));
        QCOMPARE(scene.Category(u"Auto"_s).Id, 0);
        QCOMPARE(scene.Manager.AddCategory(u"Boot"_s, {}), u"Boot"_s);
        QVERIFY(!setBookable(u"Boot"_s, false)); // nothing would be left of it
        QVERIFY(scene.Save(scene.Category(u"Auto"_s), [](cTemplateFields& fields) { fields.IsVisible = false; }));
        QVERIFY(!modTemplate::IsVisible(*scene.Book.Data.FindTemplate(u"Auto"_s, u"Benzin"_s)));
        QVERIFY(scene.Category(u"Auto"_s).IsQuiet);
    }

    void AddsWhereTheSelectionIs()
    {
        cTemplateScene scene;
        scene.Book.User.Choices = {u"Backwaren"_s, u"Boot"_s, u"Tagesgeld"_s, u"Lebensmittel"_s};
        const cTemplateNode category = scene.Category(food);
        const cTemplateNode account = scene.Account(u"Girokonto"_s);
        QCOMPARE(scene.Manager.AskAdd(&category), u"Haushalt; Backwaren"_s);
        QCOMPARE(SubsOf(scene, u"Haushalt"_s).constLast(), u"Backwaren"_s);
        QCOMPARE(scene.Manager.AskAdd(nullptr), u"Boot"_s);
        QCOMPARE(scene.Manager.Mains().constLast(), u"Boot"_s);
        QCOMPARE(scene.Manager.AskAdd(&account), u"Tagesgeld"_s);
        QCOMPARE(scene.Book.Data.FindAccount(u"Tagesgeld"_s)->TemplateCategory, u"Bankkonten"_s);
        QVERIFY(scene.Manager.AskAdd(&category).isEmpty());
        QCOMPARE(scene.Book.User.Shown, QStringList(u"Die Kategorie 'Haushalt; Lebensmittel' existiert bereits!"_s));
        QCOMPARE(scene.Book.Data.Journal().UndoName(), u"Konto 'Tagesgeld' angelegt"_s);
    }

    void ListsPathsThatNoCategoryHas()
    {
        cTemplateScene scene;
        const QStringList paths{u"Haushalt; Altes"_s, u"Haushalt"_s, u"Früher; Pacht & Miete"_s, u"Keine Angabe"_s,
                                QString()};
        for (const QString& path : paths) {
            scene.Book.Add([&](cEntryItem& entry) { entry.EntryCategory = path; });
        }
        scene.Book.Add([&](cEntryItem& entry) { entry.EntryAccount = u"Altes Konto"_s; });
        scene.Manager.Refresh();
        QVERIFY(scene.Category(u"Haushalt; Altes"_s).IsUnknown());
        QCOMPARE(scene.Category(u"Haushalt; Altes"_s).Cells.at(1), u"nicht angelegt"_s);
        QCOMPARE(scene.Category(u"Haushalt"_s).OwnEntries, 1);
        QVERIFY(scene.Category(u"Keine Angabe"_s).IsUnknown());
        QVERIFY(scene.Account(u"Altes Konto"_s).IsUnknown());

        scene.Book.User.Choices = {food, u"Bargeld"_s};
        scene.Book.User.Answers = {eAnswer::Yes, eAnswer::Yes};
        QVERIFY(scene.Manager.AskMerge(scene.Category(QString())));
        QCOMPARE(scene.Category(food).Entries, 5);
        QVERIFY(scene.Manager.AskMerge(scene.Account(u"Altes Konto"_s)));
        QCOMPARE(scene.Account(u"Bargeld"_s).Entries, 1);
        const cTemplateNode unknown = scene.Category(u"Früher; Pacht & Miete"_s);
        QCOMPARE(scene.Manager.AskAdd(&unknown), u"Früher; Pacht  Miete"_s);
        QCOMPARE(scene.Category(u"Früher; Pacht  Miete"_s).Entries, 1); // the entries follow the cleaned name
        QVERIFY(scene.Has(u"Früher; Pacht  Miete"_s));
        QVERIFY(scene.Manager.RenameCategory(u"Haushalt"_s, u"Haus"_s)); // what is not defined goes along
        QCOMPARE(scene.Category(u"Haus; Altes"_s).Entries, 1);
        QVERIFY(!scene.Manager.Categories().IndexOf(u"Haushalt; Altes"_s).isValid());
    }

    void WritesStartBalances()
    {
        cTemplateScene scene;
        const auto save = [&](const QString& amount, QDate date) {
            return scene.Save(scene.Account(u"Bargeld"_s), [&](cTemplateFields& fields) {
                fields.Amount = amount;
                fields.Date = date;
            });
        };
        QCOMPARE(scene.Manager.Load(scene.Account(u"Bargeld"_s))->Date, scene.Book.Clock.Today());
        QVERIFY(save(u"-12,50"_s, QDate(2026, 1, 1)));
        const std::optional<cEntryItem> start = scene.Book.Data.GetStartGuthaben(u"Bargeld"_s);
        QCOMPARE(start->EntryType, modWord::Ausgabe);
        QCOMPARE(start->EntryValue, 1250);
        QVERIFY(save(u"20"_s, QDate(2026, 2, 1)));
        QCOMPARE(scene.Book.Data.GetStartGuthaben(u"Bargeld"_s)->ID, start->ID);
        QCOMPARE(scene.Book.Data.GetStartGuthaben(u"Bargeld"_s)->EntryDate, QDate(2026, 2, 1));
        QVERIFY(save({}, QDate(2026, 2, 1)));
        QVERIFY(!scene.Book.Data.GetStartGuthaben(u"Bargeld"_s));
    }

    // Zero and an overdraft are limits too; only an empty field is none.
    void WritesAccountLimits()
    {
        cTemplateScene scene;
        const auto save = [&](const QString& text) {
            return scene.Save(scene.Account(u"Bargeld"_s), [&](cTemplateFields& fields) { fields.Limit = text; });
        };
        for (const auto& [typed, stored] : {std::pair{u"0"_s, u"0.00"_s}, std::pair{u"-500"_s, u"-500.00"_s},
                                            std::pair{u"50+50"_s, u"100.00"_s}, std::pair{QString(), QString()}}) {
            QVERIFY(save(typed));
            QCOMPARE(scene.Book.Data.FindAccount(u"Bargeld"_s)->TemplateDefaultValue, stored);
        }
        QVERIFY(save(u"7"_s));
        QVERIFY(!save(u"viel"_s));
        QCOMPARE(scene.Manager.Load(scene.Account(u"Bargeld"_s))->Limit, u"7,00"_s);
        QVERIFY(scene.Book.Settings->Set(modSettingKey::LanguageFormat, u"en-GB"_s));
        scene.Book.Format.CultureChanged();
        QVERIFY(save(u"1,234"_s));
        QCOMPARE(scene.Book.Data.FindAccount(u"Bargeld"_s)->TemplateDefaultValue, u"1234.00"_s);
        QCOMPARE(scene.Manager.Load(scene.Account(u"Bargeld"_s))->Limit, u"1234.00"_s);
        QVERIFY(!save(u"1.234"_s));
        QCOMPARE(scene.Book.User.Shown.last(),
                 u"'1.234' ist nicht eindeutig. Bitte schreiben Sie 1234.00 oder 1.23."_s);
    }

    void AssignsBankNumbers()
    {
        cTemplateScene scene;
        cSettings& settings = *scene.Book.Settings;
        settings.Set(modSettingKey::BankNumber.Of(u"1"_s), u"Bargeld"_s);
        settings.Set(modSettingKey::BankNumber.Of(u"2"_s), u"Sparkonto"_s);
        const auto save = [&](const QString& numbers) {
            return scene.Save(scene.Account(u"Bargeld"_s), [&](cTemplateFields& fields) { fields.Numbers = numbers; });
        };
        scene.Book.User.Answers = {eAnswer::No, eAnswer::Yes};
        QVERIFY(!save(u"DE12 3456\n2"_s)); // the other account keeps its number
        QCOMPARE(settings.Get(modSettingKey::BankNumber.Of(u"2"_s)), u"Sparkonto"_s);
        QVERIFY(save(u"DE12 3456, 2"_s));
        QCOMPARE(scene.Manager.Load(scene.Account(u"Bargeld"_s))->Numbers, u"2\nDE123456"_s);
        QVERIFY(settings.Get(modSettingKey::BankNumber.Of(u"1"_s)).isEmpty());
        QVERIFY(scene.Book.Data.Journal().Undo());
        QCOMPARE(settings.Get(modSettingKey::BankNumber.Of(u"1"_s)), u"Bargeld"_s);
        QCOMPARE(settings.Get(modSettingKey::BankNumber.Of(u"2"_s)), u"Sparkonto"_s);
    }

    void DeletesAnAccount()
    {
        cTemplateScene scene;
        QSignalSpy renamed(&scene.Manager, &cTemplateManager::AccountRenamed);
        scene.Book.Settings->Set(modSettingKey::BankNumber.Of(u"1"_s), u"Girokonto"_s);
        scene.Book.User.Decisions = {1};
        QVERIFY(scene.Manager.DeleteAccount(u"Girokonto"_s));
        QVERIFY(
            scene.Book.User.Asked.constFirst().startsWith(u"Das Konto 'Girokonto' wird von 3 Buchungen verwendet."));
        QCOMPARE(scene.Book.User.LastDecision.Default, -1); // Enter destroys nothing
        QVERIFY(scene.Book.Settings->Get(modSettingKey::BankNumber.Of(u"1"_s)).isEmpty());
        QCOMPARE(renamed.takeFirst(), (QVariantList{u"Girokonto"_s, QString()}));
        QCOMPARE(scene.Account(u"Girokonto"_s).Kind, eTemplateNode::UnknownAccount);
        scene.Book.User.Answers = {eAnswer::Yes};
        QVERIFY(scene.Manager.DeleteAccount(u"Sparkonto"_s));
        QVERIFY(!scene.Manager.DeleteAccount(u"Bargeld"_s));
        QVERIFY(scene.Book.User.Shown.constLast().startsWith(u"Das letzte Konto"));
        QVERIFY(!scene.Save(scene.Account(u"Bargeld"_s), [](cTemplateFields& fields) { fields.IsVisible = false; }));
        QVERIFY(scene.Book.User.Shown.constLast().startsWith(u"Das letzte offene Konto"));
    }

    void MergesAccounts()
    {
        cTemplateScene scene;
        QSignalSpy renamed(&scene.Manager, &cTemplateManager::AccountRenamed);
        QVERIFY(scene.Book.Data.SetStartGuthaben(u"Girokonto"_s, -1000, QDate(2026, 2, 1)));
        QVERIFY(scene.Book.Data.SetStartGuthaben(u"Bargeld"_s, 2500, QDate(2026, 1, 1)));
        scene.Book.Settings->Set(modSettingKey::BankNumber.Of(u"1"_s), u"Girokonto"_s);
        scene.Book.Settings->Set(modSettingKey::SavedViews, u"Mein%20Giro||||Girokonto|||||"_s);
        const int transfer = scene.Book.Move(u"Sparkonto"_s, u"Girokonto"_s).ID;
        scene.Book.User.Choices = {u"Bargeld"_s};
        scene.Book.User.Answers = {eAnswer::Yes};
        QVERIFY(scene.Manager.AskMerge(scene.Account(u"Girokonto"_s)));
        QVERIFY(scene.Book.User.Asked.constLast().startsWith(u"5 Buchungen von 'Girokonto' nach 'Bargeld'"));
        QCOMPARE(scene.Book.Data.GetStartGuthaben(u"Bargeld"_s)->EntryValue, 1500);
        QCOMPARE(scene.Book.Data.GetStartGuthaben(u"Bargeld"_s)->EntryDate, QDate(2026, 1, 1));
        QCOMPARE(scene.Book.Data.CountEntriesOfCategory(modWord::Startguthaben), 1);
        QCOMPARE(scene.Book.Data.LoadEntry(transfer)->EntryAccountMove, u"Bargeld"_s);
        QCOMPARE(scene.Book.Settings->Get(modSettingKey::BankNumber.Of(u"1"_s)), u"Bargeld"_s);
        QCOMPARE(scene.Book.Settings->Get(modSettingKey::SavedViews), u"Mein%20Giro||||Bargeld|||||"_s);
        QCOMPARE(renamed.takeFirst(), (QVariantList{u"Girokonto"_s, u"Bargeld"_s}));
    }

    void MovesInTheOrder()
    {
        using eDirection = cTemplateManager::eDirection;
        cTemplateScene scene;
        const QStringList subs = SubsOf(scene, u"Haushalt"_s);
        QVERIFY(
            !scene.Manager.Move(scene.Category(food), eDirection::Up)); // the first one; above it is the main category
        QVERIFY(scene.Manager.Move(scene.Category(food), eDirection::Down));
        QStringList moved = subs;
        moved.swapItemsAt(0, 1);
        QCOMPARE(SubsOf(scene, u"Haushalt"_s), moved);
        QCOMPARE(scene.Book.Data.Journal().UndoName(), u"Reihenfolge geändert"_s);
        QVERIFY(scene.Manager.Move(scene.Category(u"Haushalt"_s), eDirection::Up));
        QCOMPARE(scene.Manager.Mains().indexOf(u"Haushalt"_s), scene.Manager.Mains().indexOf(u"Wohnung"_s) - 1);
        QCOMPARE(SubsOf(scene, u"Haushalt"_s), moved);
        QVERIFY(scene.Manager.Move(scene.Group(u"Bargeld"_s), eDirection::Up));
        QCOMPARE(scene.Manager.Groups().constFirst(), u"Bargeld"_s);

        // A book whose positions say nothing is in the order of the names until somebody changes it.
        scene.Book.Database.Execute("UPDATE template SET TemplatePriority = ''");
        scene.Manager.Refresh();
        const QStringList sorted = SubsOf(scene, u"Haushalt"_s);
        QCOMPARE(sorted.constFirst(), u"Anschaffungen"_s);
        QVERIFY(scene.Manager.Move(scene.Category(u"Haushalt; Anschaffungen"_s), eDirection::Down));
        QCOMPARE(SubsOf(scene, u"Haushalt"_s).at(1), u"Anschaffungen"_s);
    }

    void GroupsOfAccountsAreRenamed()
    {
        cTemplateScene scene;
        scene.Book.User.Choices = {u"Banken"_s};
        QCOMPARE(scene.Manager.AskRenameGroup(scene.Group(u"Bankkonten"_s)), u"Banken"_s);
        QCOMPARE(scene.Manager.Groups(), (QStringList{u"Banken"_s, u"Bargeld"_s}));
    }

    void KeepsTheLayout()
    {
        cTemplateScene scene;
        const cTreeLayout categories{u"0,80,1|1,40,1"_s, {u"Haus, Hof!"_s, u"Auto#2"_s}};
        const cTreeLayout accounts{u"0,90,1"_s, {QString::fromUtf8("Über")}};
        scene.Manager.SaveLayout(categories, accounts);
        QCOMPARE(scene.Manager.CategoryLayout(), categories);
        QCOMPARE(scene.Manager.AccountLayout(), accounts);
        scene.Book.Settings->Set(modSettingKey::CategoryList, u"Unsinn"_s);
        QVERIFY(scene.Manager.AccountLayout().Open.isEmpty());
    }
};

TEST_CLASS(testTemplateManager, QCoreApplication)
#include "testTemplateManager.moc"
