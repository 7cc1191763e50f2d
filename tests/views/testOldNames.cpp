#include "cTemplateScene.h"
#include "model/modSettingKey.h"
#include "support/cTestClass.h"
#include "views/template/cNameKeepers.h"

#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;

namespace {

// A book from before names were cleaned: a main category with a sub-category that has characters of its own, one that
// only entries know, and an account.
class cOldBook : public cTemplateScene
{
public:
    cOldBook()
    {
        Book.Database.ExecuteScript(
            "UPDATE template SET TemplateCategory = 'Haus & Hof' WHERE TemplateCategory = 'Haushalt';"
            "UPDATE template SET TemplateName = 'Obst & Gemüse' WHERE TemplateName = 'Lebensmittel';"
            "UPDATE template SET TemplateName = 'Oma''s Konto' WHERE TemplateName = 'Girokonto';");
        Food = Book.Add([](cEntryItem& entry) { entry.EntryCategory = u"Haus & Hof; Obst & Gemüse"_s; }).ID;
        Lost = Book.Add([](cEntryItem& entry) { entry.EntryCategory = u"Haus & Hof; Altes"_s; }).ID;
        Drinks = Book.Add([](cEntryItem& entry) {
                         entry.EntryCategory = u"Haus & Hof; Getränke"_s;
                         entry.EntryAccount = u"Oma's Konto"_s;
                     })
                     .ID;
        Transfer = Book.Move(u"Bargeld"_s, u"Oma's Konto"_s).ID;
        Book.Settings->Set(modSettingKey::BankNumber.Of(u"1"_s), u"Oma's Konto"_s);
        Book.Settings->Set(modSettingKey::CategoryColor.Of(u"Haus & Hof"_s), u"#102030"_s);
        cNameKeepers::Watch(Book.Data, *Book.Settings);
        Manager.Refresh();
    }

    QString Path(int id) { return Book.Data.LoadEntry(id)->EntryCategory; }

    int Food = 0;
    int Lost = 0;
    int Drinks = 0;
    int Transfer = 0;
};

} // namespace

class testOldNames final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void CleansNamesOfOlderBooks_data()
    {
        // main: of all its categories afterwards
        const cTestRows<int, QString, QString> row("action", "main", "account");
        const QString main = u"Haus & Hof"_s;
        const QString account = u"Oma's Konto"_s;
        row("a limit", 0, u"Haus  Hof"_s, account);
        row("the order", 1, u"Haus  Hof"_s, account);
        row("a renamed main category", 2, u"Daheim"_s, account);
        row("a hidden main category", 3, u"Haus  Hof"_s, account);
        row("another one goes there", 4, u"Haus  Hof"_s, account);
        row("another main category goes there", 5, u"Haus  Hof"_s, account);
        row("it goes elsewhere", 6, u"Freizeit"_s, account);
        row("a limit of the account", 7, main, u"Omas Konto"_s);
        row("the order of accounts", 8, main, u"Omas Konto"_s);
    }

    void CleansNamesOfOlderBooks()
    {
        QFETCH(int, action);
        QFETCH(QString, main);
        QFETCH(QString, account);
        cOldBook scene;
        cTemplateManager& manager = scene.Manager;
        QSignalSpy renamed(&manager, &cTemplateManager::AccountRenamed);
        scene.Book.User.Usual = eAnswer::Yes;
        const auto limit = [](cTemplateFields& fields) { fields.Amount = fields.Limit = u"500"_s; };
        const QString old = u"Haus & Hof"_s;
        switch (action) {
        case 0: QVERIFY(scene.Save(scene.Category(old + u"; Obst & Gemüse"), limit)); break;
        case 1: QVERIFY(manager.Move(scene.Category(old), cTemplateManager::eDirection::Down)); break;
        case 2: QVERIFY(manager.RenameCategory(old, u"Daheim"_s)); break;
        case 3:
            QVERIFY(scene.Save(scene.Category(old), [](cTemplateFields& fields) { fields.IsVisible = false; }));
            break;
        case 4: QVERIFY(manager.RenameCategory(u"Freizeit; Hobby"_s, old + u"; Hobby")); break;
        case 5: QVERIFY(manager.MergeCategory(u"Freizeit"_s, old)); break;
        case 6: QVERIFY(manager.MergeCategory(old, u"Freizeit"_s)); break;
        case 7:
            QVERIFY(
                scene.Save(scene.Account(u"Oma's Konto"_s), [](cTemplateFields& fields) { fields.Limit = u"5"_s; }));
            break;
        default: QVERIFY(manager.Move(scene.Account(u"Oma's Konto"_s), cTemplateManager::eDirection::Down));
        }
        const bool isClean = main != old;
        QCOMPARE(scene.Path(scene.Food), QString(main + (isClean ? u"; Obst  Gemüse" : u"; Obst & Gemüse")));
        QCOMPARE(scene.Path(scene.Lost), QString(main + u"; Altes"));
        QCOMPARE(scene.Path(scene.Drinks), QString(main + u"; Getränke"));
        QVERIFY(scene.Has(scene.Path(scene.Food)));
        QVERIFY(scene.Has(scene.Path(scene.Drinks)));
        QCOMPARE(scene.Manager.Mains().contains(old), !isClean);
        QCOMPARE(scene.Book.Data.LoadEntry(scene.Drinks)->EntryAccount, account);
        QCOMPARE(scene.Book.Data.LoadEntry(scene.Transfer)->EntryAccountMove, account);
        QCOMPARE(scene.Book.Settings->Get(modSettingKey::BankNumber.Of(u"1"_s)), account);
        QCOMPARE(scene.Book.Settings->Get(modSettingKey::CategoryColor.Of(main)), u"#102030"_s);
        QVERIFY(scene.Book.Data.FindAccount(account));
        QCOMPARE(renamed.size(), account == u"Omas Konto" ? 1 : 0);
        QCOMPARE(scene.Book.User.Shown.size(), 1); // one line, whatever went along
        QVERIFY2(scene.Book.User.Shown.constFirst().contains(u" heißt jetzt '"),
                 qPrintable(scene.Book.User.Shown.first()));
        QVERIFY(scene.Book.Data.Journal().Undo());
        QCOMPARE(scene.Path(scene.Food), u"Haus & Hof; Obst & Gemüse"_s);
        QCOMPARE(scene.Book.Data.LoadEntry(scene.Transfer)->EntryAccountMove, u"Oma's Konto"_s);
    }

    void KeepsApartWhatCleaningMakesEqual()
    {
        cOldBook scene;
        QVERIFY(!scene.Manager.AddAccount(u"Omas Konto"_s, {}).isEmpty());
        const int other = scene.Book.Add([](cEntryItem& entry) { entry.EntryAccount = u"Omas Konto"_s; }).ID;
        QVERIFY(scene.Save(scene.Account(u"Oma's Konto"_s), [](cTemplateFields& fields) { fields.Limit = u"5"_s; }));
        QCOMPARE(
            scene.Book.User.Shown.constLast(),
            u"'Oma's Konto' heißt jetzt 'Omas Konto 2', denn Namen dürfen die Zeichen & ' < > \" ; nicht enthalten. "
            "2 Buchungen gingen mit."_s);
        QCOMPARE(scene.Book.Data.LoadEntry(scene.Drinks)->EntryAccount, u"Omas Konto 2"_s);
        QCOMPARE(scene.Book.Data.LoadEntry(other)->EntryAccount, u"Omas Konto"_s);
        QVERIFY(scene.Save(scene.Account(u"Omas Konto 2"_s), [](cTemplateFields& fields) { fields.Limit = u"6"_s; }));
        QVERIFY(scene.Book.Data.FindAccount(u"Omas Konto 2"_s));
        // A name that was fine stays, and with it the entries, though an older book may have two that are alike.
        scene.Book.Database.ExecuteScript("UPDATE template SET TemplateName = 'omas konto 2', TemplateCategory = 'A & "
                                          "B' WHERE TemplateName = 'Bargeld'");
        scene.Manager.Refresh();
        QVERIFY(scene.Save(scene.Account(u"omas konto 2"_s), [](cTemplateFields& fields) { fields.Limit = u"7"_s; }));
        QCOMPARE(scene.Book.Data.FindAccount(u"omas konto 2"_s).value_or(cTemplateItem()).TemplateCategory, u"A  B"_s);
    }
};

TEST_CLASS(testOldNames, QCoreApplication)
#include "testOldNames.moc"
