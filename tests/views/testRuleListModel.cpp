#include "base/modAmount.h"
#include "import/propose/cOwnRules.h"
#include "model/modSettingKey.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "views/rule/cRuleEditor.h"
#include "views/rule/modRuleText.h"
#include "views/template/cTemplateManager.h"

#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;

namespace {

cOwnRule Rule(const QString& text, const QString& category = u"Haushalt; Lebensmittel"_s)
{
    cOwnRule rule;
    rule.Text = text;
    rule.Category = category;
    return rule;
}

struct cScene : cTestBook
{
    cImportEntry Stage(double value, const QString& name)
    {
        return cTestBook::Stage(u"1234567"_s, QDate(2026, 3, 3).addDays(++m_count), modAmount::ToCents(value), name);
    }

    void Keep(const QList<cOwnRule>& rules) { QVERIFY(cOwnRules(*Settings).Save(rules)); }

    // The stored texts in their order; those that are switched off in brackets.
    QStringList Texts()
    {
        return Each(cOwnRules(*Settings).Load(),
                    [](const cOwnRule& rule) { return rule.IsOn ? rule.Text : QString(u'(' + rule.Text + u')'); });
    }

private:
    int m_count = 0;
};

QStringList Counts(const cRuleListModel& list)
{
    QStringList counts;
    for (int place = 0; place < list.rowCount(); ++place) {
        counts.append(list.index(place, cRuleListModel::Count).data().toString());
    }
    return counts;
}

} // namespace

class testRuleListModel final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Problems_data() const
    {
        // problem: its beginning
        const cTestRows<cOwnRule, QString> row("rule", "problem");
        cOwnRule bare;
        bare.Category = u"Haushalt; Lebensmittel"_s;
        row("no condition", bare, u"Bitte geben Sie an, woran"_s);
        bare.Sign = eRuleSign::In;
        row("a sign is one", bare, {});
        row("nothing to set", Rule(u"rewe"_s, {}), u"Bitte geben Sie an, was"_s);
        row("mere separators", Rule(u" | "_s), u"Der Text ' | ' passt auf jeden"_s);
        row("an alternative of wildcards", Rule(u"rewe|*?"_s), u"Der Text 'rewe|*?' passt auf jeden"_s);
    }

    void Problems() const
    {
        QFETCH(const cOwnRule, rule);
        QFETCH(const QString, problem);
        cScene scene;
        cRuleEditor editor(scene.Tools);
        editor.SetDraft(rule);
        QCOMPARE(editor.Save(), problem.isEmpty());
        QCOMPARE(scene.User.Shown.size(), problem.isEmpty() ? 0 : 1);
        QVERIFY(scene.User.Shown.value(0).startsWith(problem));
        QCOMPARE(editor.List().rowCount(), problem.isEmpty() ? 1 : 0);
    }

    void OffersAMissingCategory() const
    {
        cScene scene;
        cRuleEditor editor(scene.Tools);
        cOwnRule rule = Rule(u"rewe"_s, u"Rohrpost"_s);
        rule.Sign = eRuleSign::In;
        editor.SetDraft(rule);
        QVERIFY(!editor.Save());
        QCOMPARE(editor.Draft().Category, u"Rohrpost"_s); // what was typed stays
        scene.User.Answers = {eAnswer::Yes};
        QVERIFY(editor.Save());
        QCOMPARE(scene.User.Asked.last(), u"Die Kategorie 'Rohrpost' gibt es noch nicht.\nSoll sie angelegt werden?"_s);
        const cTemplateItemList items = scene.Data.GetTemplates();
        QVERIFY(std::any_of(items.begin(), items.end(), [](const cTemplateItem& item) {
            return modTemplate::Path(item) == u"Rohrpost" && item.EntryType == modWord::Einnahme;
        }));
    }

    void AddsAndChanges() const
    {
        cScene scene;
        cRuleEditor editor(scene.Tools);
        const QSignalSpy changes(&editor.List(), &cRuleListModel::RulesChanged);
        QVERIFY(editor.IsNew() && !editor.IsChanged());
        editor.SetDraft(Rule(u"rewe"_s));
        QVERIFY(editor.IsChanged());
        QVERIFY(editor.Save());
        QVERIFY(!editor.IsNew() && !editor.IsChanged());
        editor.SetDraft(Rule(u"edeka"_s));
        QVERIFY(editor.Save());
        editor.StartNew();
        editor.SetDraft(Rule(u"aldi"_s));
        QVERIFY(editor.Save());
        QCOMPARE(editor.Place(), 1);
        QCOMPARE(scene.Texts(), QStringList({u"edeka"_s, u"aldi"_s}));
        QCOMPARE(changes.size(), 3);
        QCOMPARE(cRuleEditor(scene.Tools).Draft().Text, u"edeka"_s);
    }

    void Refused() const
    {
        cScene scene;
        scene.Keep({Rule(u"rewe"_s)});
        cRuleEditor editor(scene.Tools);
        scene.Database.Execute("CREATE TRIGGER stop BEFORE UPDATE ON setting BEGIN SELECT RAISE(ABORT, 'voll'); END");
        editor.SetDraft(Rule(u"edeka"_s));
        QVERIFY(!editor.Save());
        QCOMPARE(editor.List().index(0, cRuleListModel::Rule).data().toString(), u"Text enthält 'rewe'"_s);
        QVERIFY(editor.IsChanged()); // what was typed is still there
        QCOMPARE(scene.User.Shown.size(), 1);
    }

    void LeavingAsks() const
    {
        cScene scene;
        scene.Keep({Rule(u"a"_s), Rule(u"b"_s)});
        cRuleEditor editor(scene.Tools);
        QVERIFY(editor.Choose(1));
        QVERIFY(scene.User.Asked.isEmpty());
        editor.SetDraft(Rule(u"c"_s));
        scene.User.Answers = {eAnswer::Cancel, eAnswer::No};
        QVERIFY(!editor.Choose(0));
        QCOMPARE(editor.Draft().Text, u"c"_s);
        QVERIFY(editor.Choose(0));
        QCOMPARE(scene.Texts(), QStringList({u"a"_s, u"b"_s}));
        // What is stored on leaving may push the rule that was chosen; it is opened all the same.
        editor.StartFrom(scene.Stage(-1, u"a"_s), u"Haushalt; Lebensmittel"_s);
        scene.User.Answers = {eAnswer::Yes};
        QVERIFY(editor.Choose(1));
        QCOMPARE(scene.Texts(), QStringList({u""_s, u"a"_s, u"b"_s}));
        QCOMPARE(editor.Draft().Text, u"b"_s);
        editor.SetDraft(Rule({}, {}));
        scene.User.Answers = {eAnswer::Yes};
        QVERIFY(!editor.Leave()); // it cannot be stored like this
    }

    void OrderAndSwitch() const
    {
        cScene scene;
        scene.Stage(-1, u"REWE"_s);
        scene.Stage(-2, u"REWE Süd"_s);
        scene.Keep({Rule(u"rewe"_s), Rule(u"süd"_s), Rule(u"nord"_s)});
        cRuleEditor editor(scene.Tools);
        QCOMPARE(Counts(editor.List()), QStringList({u"2"_s, u"0"_s, u"0"_s}));
        QVERIFY(!editor.CanMove(cRuleEditor::eMove::Up));
        QVERIFY(editor.Choose(2));
        QVERIFY(!editor.CanMove(cRuleEditor::eMove::Down));
        QVERIFY(editor.Choose(1));
        QVERIFY(editor.Move(cRuleEditor::eMove::Up));
        QCOMPARE(editor.Place(), 0);
        QCOMPARE(Counts(editor.List()), QStringList({u"1"_s, u"1"_s, u"0"_s}));
        QVERIFY(editor.List().setData(editor.List().index(0, cRuleListModel::Rule), Qt::Unchecked, Qt::CheckStateRole));
        QVERIFY(!editor.IsChanged());
        QCOMPARE(Counts(editor.List()), QStringList({u"0"_s, u"2"_s, u"0"_s}));
        QVERIFY(editor.List().MoveTo(0, 2));
        QCOMPARE(scene.Texts(), QStringList({u"rewe"_s, u"nord"_s, u"(süd)"_s}));
    }

    void DeleteAsks() const
    {
        cScene scene;
        scene.Keep({Rule(u"a"_s), Rule(u"b"_s)});
        cRuleEditor editor(scene.Tools);
        scene.User.Answers = {eAnswer::No, eAnswer::Yes, eAnswer::Yes};
        QVERIFY(editor.Choose(1));
        QVERIFY(!editor.Delete());
        QVERIFY(scene.User.Asked.constFirst().contains(u"'b'"));
        QVERIFY(editor.Delete());
        QCOMPARE(editor.Draft().Text, u"a"_s);
        QVERIFY(editor.Delete());
        QVERIFY(editor.IsNew());
        QVERIFY(scene.Texts().isEmpty());
    }

    void EachChangeIsUndone() const
    {
        cScene scene;
        scene.Keep({Rule(u"a"_s), Rule(u"b"_s)});
        cRuleEditor editor(scene.Tools);
        QVERIFY(editor.Move(cRuleEditor::eMove::Down));
        scene.User.Answers = {eAnswer::Yes};
        QVERIFY(editor.List().Delete(0));
        QCOMPARE(scene.Data.Journal().UndoName(), u"Regel gelöscht"_s);
        QVERIFY(scene.Data.Journal().Undo());
        QVERIFY(scene.Data.Journal().Undo());
        QCOMPARE(scene.Texts(), QStringList({u"a"_s, u"b"_s}));
    }

    void Trial() const
    {
        cScene scene;
        QCOMPARE(cRuleEditor(scene.Tools).TrialText().section(u',', 0, 0), u"Es sind keine Umsätze eingelesen"_s);
        for (int i = 0; i < 7; ++i) {
            scene.Stage(-1.5, u"REWE %1"_s.arg(i));
        }
        scene.Stage(9, u"Tann"_s);
        scene.Keep({Rule(u"rewe 6"_s), Rule(u"tann"_s)});
        cRuleEditor editor(scene.Tools);
        editor.StartNew();
        QCOMPARE(editor.TrialText(), u"passt auf 0 von 8 Umsätzen"_s);
        QVERIFY(editor.Examples().isEmpty());
        editor.SetDraft(Rule(u"rewe"_s));
        QCOMPARE(editor.TrialText(), u"passt auf 7 von 8 Umsätzen; bei 1 davon gilt schon eine Regel weiter oben"_s);
        // The newest first, but before all those that the rule really gets.
        QCOMPARE(editor.Examples().size(), 5);
        QVERIFY(editor.Examples().constFirst().endsWith(u"REWE 5"));
    }

    void FromARow() const
    {
        cScene scene;
        const cImportEntry row = scene.Stage(-1, u"Korn"_s);
        scene.Keep({Rule(u"a"_s), Rule(u"korn"_s), Rule(u"c"_s)});
        cRuleEditor editor(scene.Tools);
        editor.StartFrom(row, u"Haushalt; Getränke"_s, u"Monatlich"_s);
        QCOMPARE(editor.Draft().Counterparty, u"Korn"_s);
        QCOMPARE(editor.Draft().Sign, eRuleSign::Out);
        QCOMPARE(editor.TrialText(), u"passt auf 1 von 1 Umsatz"_s);
        QVERIFY(editor.IsChanged());
        QVERIFY(editor.Save());
        // Before the one that had the transaction, else it would never come to it.
        QCOMPARE(Counts(editor.List()), QStringList({u"0"_s, u"1"_s, u"0"_s, u"0"_s}));
        QCOMPARE(editor.List().index(1, cRuleListModel::Result).data().toString(), u"Haushalt; Getränke, Monatlich"_s);
    }

    void UnreadableStays() const
    {
        cScene scene;
        scene.Settings->Set(modSettingKey::OwnRules, u"2;kind=later\n1;text=a;category=A\n"_s);
        cRuleEditor editor(scene.Tools);
        QVERIFY(!editor.CanEdit() && !editor.Save());
        QVERIFY(!editor.List().Switch(0, true));
        QVERIFY(!editor.List().flags(editor.List().index(0, cRuleListModel::Rule)).testFlag(Qt::ItemIsUserCheckable));
        QCOMPARE(editor.List().index(0, cRuleListModel::Rule).data().toString(), u"nicht lesbar: 2;kind=later"_s);
        QVERIFY(editor.Move(cRuleEditor::eMove::Down));
        QCOMPARE(scene.Settings->Get(modSettingKey::OwnRules), u"1;text=a;category=A\n2;kind=later"_s);
    }

    // Rules follow what they name, and come back with it.
    void RenamedCategoriesAndAccounts() const
    {
        cScene scene;
        cOwnRule rule = Rule(u"rewe"_s);
        rule.Account = u"Girokonto"_s;
        const cOwnRule other = Rule(u"x"_s, u"Haushaltshilfe"_s); // begins alike, and is another one
        scene.Keep({rule, other});
        cTemplateManager manager(scene.Tools);
        QVERIFY(manager.RenameCategory(u"Haushalt; Lebensmittel"_s, u"Haushalt; Essen"_s));
        QVERIFY(manager.RenameCategory(u"Haushalt"_s, u"Daheim"_s));
        QVERIFY(manager.RenameAccount(u"Girokonto"_s, u"Hauptkonto"_s));
        const cOwnRule renamed = cOwnRules(*scene.Settings).Load().value(0);
        QCOMPARE(renamed.Category, u"Daheim; Essen"_s);
        QCOMPARE(renamed.Account, u"Hauptkonto"_s);
        QCOMPARE(cOwnRules(*scene.Settings).Load().value(1), other);
        scene.User.Answers = {eAnswer::Yes};
        QVERIFY(manager.MergeCategory(u"Daheim; Essen"_s, u"Daheim; Getränke"_s));
        QCOMPARE(cOwnRules(*scene.Settings).Load().value(0).Category, u"Daheim; Getränke"_s);
        while (!scene.Data.Journal().UndoName().isEmpty()) {
            QVERIFY(scene.Data.Journal().Undo()); // true also when there is nothing left
        }
        QCOMPARE(cOwnRules(*scene.Settings).Load().value(0), rule);
    }

    void Words() const
    {
        cOwnRule rule = Rule(u"rewe| edeka"_s, {});
        rule.Counterparty = u"Markt"_s;
        rule.Sign = eRuleSign::Out;
        rule.Account = u"Girokonto"_s;
        rule.Interval = u"Monatlich"_s;
        rule.Description = u"Essen"_s;
        QCOMPARE(modRuleText::Conditions(rule),
                 u"Text enthält 'rewe' oder 'edeka', an Markt, Ausgabe, Konto Girokonto"_s);
        QCOMPARE(modRuleText::Result(rule), u"Monatlich, 'Essen'"_s);
    }
};

TEST_CLASS(testRuleListModel, QCoreApplication)
#include "testRuleListModel.moc"
