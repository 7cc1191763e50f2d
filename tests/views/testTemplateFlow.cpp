#include "model/modSettingKey.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "views/list/cListLayout.h"
#include "views/template/cTemplateFlow.h"

using namespace Qt::Literals::StringLiterals;

class testTemplateFlow final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void RenamesAnAccount_data()
    {
        const cTestRows<QString, int, QString, QString, QString> row("name", "answer", "account", "entry", "message");
        const QString old = u"Bargeld"_s;
        row("yes moves the entries", u" Kasse "_s, int(eAnswer::Yes), u"Kasse"_s, u"Kasse"_s, {});
        row("no leaves them", u"Kasse"_s, int(eAnswer::No), u"Kasse"_s, old, {});
        row("cancel changes nothing", u"Kasse"_s, int(eAnswer::Cancel), old, old, {});
        row("empty", u"  "_s, int(eAnswer::Yes), old, old, u"Der Kontoname darf nicht leer sein!"_s);
        row("empty once cleaned", u"<>"_s, int(eAnswer::Yes), old, old, u"Der Kontoname darf nicht leer sein!"_s);
        row("taken in another letter case", u"sparkonto"_s, int(eAnswer::Yes), old, old,
            u"Dieser Kontoname existiert bereits!"_s);
        row("stands for all", u"alle  konten"_s, int(eAnswer::Yes), old, old, u"Dieser Kontoname existiert bereits!"_s);
        row("its own name in another letter case", u"BARGELD"_s, int(eAnswer::Yes), u"BARGELD"_s, u"BARGELD"_s, {});
        row("taken", u"Sparkonto"_s, int(eAnswer::Yes), old, old, u"Dieser Kontoname existiert bereits!"_s);
    }

    void RenamesAnAccount()
    {
        QFETCH(QString, name);
        QFETCH(int, answer);
        QFETCH(QString, account);
        QFETCH(QString, entry);
        QFETCH(QString, message);
        cTestBook book;
        const cEntryItem out = book.Add([](cEntryItem& e) { e.EntryAccount = u"Bargeld"_s; });
        const cEntryItem in = book.Move(u"Girokonto"_s, u"Bargeld"_s);
        const cEntryItem lower = book.Add([](cEntryItem& e) { e.EntryAccount = u"bargeld"_s; }); // another account
        book.User.Usual = static_cast<eAnswer>(answer);
        cTemplateFlow(book.Tools).RenameAccount(u"Bargeld"_s, name);

        QVERIFY(book.Data.FindAccount(account));
        QCOMPARE(book.Data.LoadEntry(out.ID)->EntryAccount, entry);
        QCOMPARE(book.Data.LoadEntry(in.ID)->EntryAccountMove, entry);
        QCOMPARE(book.Data.LoadEntry(lower.ID)->EntryAccount, u"bargeld"_s);
        QCOMPARE(book.User.Shown, message.isEmpty() ? QStringList() : QStringList(message));
    }

    // An account that transfers only lead to has entries as well, and one in lower case is no other than itself.
    void MovesTransfersThatLeadToTheAccount()
    {
        cTestBook book;
        cTemplateItem item;
        item.TemplateType = modWord::Konto;
        item.TemplateName = u"börse"_s;
        QVERIFY(book.Data.AddNewTemplate(item));
        const cEntryItem in = book.Move(u"Girokonto"_s, u"börse"_s);
        const cEntryItem other = book.Add([](cEntryItem& e) { e.EntryAccount = u"Börse"_s; });
        book.User.Answers = {eAnswer::Yes};
        QVERIFY(cTemplateFlow(book.Tools).RenameAccount(u"börse"_s, u"Kasse"_s));
        QCOMPARE(book.User.Asked.size(), 1);
        QCOMPARE(book.Data.LoadEntry(in.ID)->EntryAccountMove, u"Kasse"_s);
        QCOMPARE(book.Data.LoadEntry(other.ID)->EntryAccount, u"Börse"_s);
        QVERIFY(book.Data.Journal().Undo());
        QCOMPARE(book.Data.LoadEntry(in.ID)->EntryAccountMove, u"börse"_s);
    }

    void BankAccountFollowsTheName()
    {
        cTestBook book;
        book.Settings->Set(modSettingKey::BankNumber.Of(u"4711"_s), u"Bargeld"_s);
        book.Settings->Set(modSettingKey::MainAccount, u"Bargeld"_s);
        QVERIFY(cTemplateFlow(book.Tools).RenameAccount(u"Bargeld"_s, u"Kasse"_s));
        QVERIFY(book.User.Asked.isEmpty()); // no entry refers to the account
        QCOMPARE(book.Settings->Get(modSettingKey::BankNumber.Of(u"4711"_s)), u"Kasse"_s);
        QCOMPARE(book.Settings->Get(modSettingKey::MainAccount), u"Kasse"_s);
        QCOMPARE(book.Data.Journal().UndoName(), u"Konto 'Bargeld' umbenannt"_s);
        QVERIFY(book.Data.Journal().Undo());
        QCOMPARE(book.Settings->Get(modSettingKey::BankNumber.Of(u"4711"_s)), u"Bargeld"_s);
    }

    void MainCategoryTakesItsPathsAlong()
    {
        cTestBook book;
        const cEntryItem entry = book.Add([](cEntryItem&) {});
        const cEntryItem own = book.Add([](cEntryItem& e) { e.EntryCategory = u"Haushalt"_s; });
        const cEntryItem other = book.Add([](cEntryItem& e) { e.EntryCategory = u"Haushaltsgeld; Mai"_s; });
        cTemplateFlow flow(book.Tools);
        QVERIFY(flow.RenameMain(u"Haushalt"_s, u"Haus"_s));
        QCOMPARE(book.Data.LoadEntry(entry.ID)->EntryCategory, u"Haus; Lebensmittel"_s);
        QCOMPARE(book.Data.LoadEntry(own.ID)->EntryCategory, u"Haus"_s);
        QCOMPARE(book.Data.LoadEntry(other.ID)->EntryCategory, u"Haushaltsgeld; Mai"_s);
        QVERIFY(book.Data.FindTemplate(u"Haus"_s, u"Lebensmittel"_s));
        QVERIFY(book.Data.Journal().Undo());
        QVERIFY(book.Data.FindTemplate(u"Haushalt"_s, u"Lebensmittel"_s));
        QCOMPARE(book.Data.LoadEntry(entry.ID)->EntryCategory, u"Haushalt; Lebensmittel"_s);
    }

    void ReadsOnlyWholeLayouts_data()
    {
        const cTestRows<QString, bool> row("text", "isRead");
        row("whole", u"1,80,1|0,0,0|sort,1,1"_s, true);
        row("without sorting", u"0,80,1|1,90,1"_s, true);
        row("empty", {}, false);
        row("a column that came later is hidden", u"0,80,1"_s, true);
        row("a column is missing", u"1,80,1"_s, false);
        row("a column twice", u"0,80,1|0,80,1"_s, false);
        row("an unknown column", u"0,80,1|7,80,1"_s, false);
        row("everything hidden", u"0,80,0|1,80,0"_s, false);
        row("no numbers", u"a,b,c|1,80,1"_s, false);
    }

    void ReadsOnlyWholeLayouts()
    {
        QFETCH(QString, text);
        QFETCH(bool, isRead);
        const std::optional<cListLayout> layout = cListLayout::FromText(text, 2);
        QCOMPARE(layout.has_value(), isRead);
        if (isRead) {
            QCOMPARE(cListLayout::FromText(layout->ToText(), 2), layout);
        }
    }
};

TEST_CLASS(testTemplateFlow, QCoreApplication)
#include "testTemplateFlow.moc"
