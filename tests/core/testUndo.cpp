#include "model/modSettingKey.h"
#include "store/cUndoStep.h"
#include "support/bookDump.h"
#include "support/cTestClass.h"
#include "support/testBook.h"

using namespace Qt::Literals::StringLiterals;

namespace {

cEntryItemFixMod FixMod(int entryId, qint64 cents)
{
    return {0, entryId, modWord::Betrag, QDate(2026, 2, 1), QDate(2026, 2, 28), cents, {}};
}

using fnAction = bool (*)(cTestBook&, const cEntryItem&);

} // namespace

class testUndo final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void StepsGoBackAndForth_data()
    {
        const cTestRows<fnAction> row("Action");
        row("entry with correction and bank row deleted",
            [](cTestBook& book, const cEntryItem& entry) { return book.Data.DeleteEntry(entry.ID); });
        row("entry added and changed in the same step", [](cTestBook& book, const cEntryItem& entry) {
            cEntryItem copy = entry;
            return book.Data.AddNewEntry(copy) && book.Data.ChangeEntry(copy);
        });
        row("correction replaced",
            [](cTestBook& book, const cEntryItem& entry) { return book.Data.AddNewEntryMod(FixMod(entry.ID, 5)); });
        row("category renamed in entries", [](cTestBook& book, const cEntryItem& entry) {
            return book.Data.ChangeEntryCategory(u"Neu; Kid's"_s, entry.EntryCategory);
        });
        row("account moved",
            [](cTestBook& book, const cEntryItem&) { return book.Data.ChangeEntryAccount(u"Giro"_s, u"girokonto"_s); });
        row("template added, other deleted", [](cTestBook& book, const cEntryItem&) {
            cTemplateItem item = book.Data.GetTemplates().constFirst();
            const int id = item.ID;
            return book.Data.AddNewTemplate(item) && book.Data.DeleteTemplate(id);
        });
        row("all bank rows deleted", [](cTestBook& book, const cEntryItem&) { return book.Data.DeleteAllImports(); });
        row("setting under the same name in another row", [](cTestBook& book, const cEntryItem&) {
            return book.Settings->Delete(modSettingKey::BankNumber.Of(u"1"_s))
                && book.Settings->Set(modSettingKey::BankNumber.Of(u"2"_s), u"Bargeld"_s)
                && book.Settings->Set(modSettingKey::BankNumber.Of(u"1"_s), u"Sparkonto"_s);
        });
    }

    void StepsGoBackAndForth()
    {
        QFETCH(fnAction, Action);
        cTestBook book;
        QVERIFY(book.Settings->Set(modSettingKey::BankNumber.Of(u"1"_s), u"Girokonto"_s));
        const cEntryItem entry = book.Add([](cEntryItem& item) {
            item.EntryCategory = u"Haushalt; Kid's"_s;
            item.EntryInterval = u"Monatlich"_s;
        });
        QVERIFY(book.Data.AddNewEntryMod(FixMod(entry.ID, 4711)));
        book.Stage(u"1"_s, entry.EntryDate, -1000, {}, entry.ID);
        // Older files hold what this program would write in another form.
        book.Database.Execute(
            "UPDATE data SET EntryDate='2026-03-10 00:00:00', EntryValue=10, EntryFlags=NULL, "
            "EntryAccount='girokonto', EntryAccountMove=CAST(x'ff41' AS TEXT), EntryDescription=x'00ff'");

        const QStringList before = Dump(book.Database);
        {
            const cUndoStep step(book.Data, u"etwas getan"_s);
            QVERIFY(Action(book, entry));
        }
        const QStringList after = Dump(book.Database);
        QVERIFY(after != before);
        const quint64 version = book.Data.ImportVersion();
        QCOMPARE(book.Data.Journal().UndoName(), u"etwas getan"_s);
        QVERIFY(book.Data.Journal().Undo());
        QCOMPARE(Dump(book.Database), before);
        QCOMPARE(book.Data.Journal().UndoName(), QString());
        QCOMPARE(book.Data.Journal().RedoName(), u"etwas getan"_s);
        QVERIFY(book.Data.Journal().Redo());
        QCOMPARE(Dump(book.Database), after);
        QVERIFY(book.Data.Journal().Undo());
        QCOMPARE(Dump(book.Database), before);
        // Whoever keeps the bank rows in memory has to see that they changed.
        const bool touchesImports = after.filter(u"import|"_s) != before.filter(u"import|"_s);
        QVERIFY(!touchesImports || book.Data.ImportVersion() != version);
        QCOMPARE(book.User.Shown, QStringList());
    }

    void TableWithoutPrimaryKey()
    {
        cTestBook book;
        cEntryItem changed = book.Add([](cEntryItem&) {});
        const cEntryItem deleted = book.Add([](cEntryItem&) {});
        book.Database.ExecuteScript(
            "CREATE TABLE old AS SELECT * FROM data; DROP TABLE data; ALTER TABLE old RENAME TO data");

        const QStringList before = Dump(book.Database);
        {
            const cUndoStep step(book.Data, u"etwas getan"_s);
            changed.EntryValue = 1;
            QVERIFY(book.Data.ChangeEntry(changed) && book.Data.DeleteEntry(deleted.ID));
        }
        const QStringList after = Dump(book.Database);
        QVERIFY(book.Data.Journal().Undo());
        QCOMPARE(Dump(book.Database), before);
        QVERIFY(book.Data.Journal().Redo());
        QCOMPARE(Dump(book.Database), after);
    }

    void FailedStepLeavesNothing()
    {
        cTestBook book;
        const cEntryItem entry = book.Add([](cEntryItem&) {});
        const QStringList before = Dump(book.Database);
        {
            cUndoStep step(book.Data, u"halb"_s);
            cEntryItem copy = entry;
            QVERIFY(book.Data.AddNewEntry(copy));
            QVERIFY(book.Data.DeleteEntry(entry.ID));
            QVERIFY(!step.Revert());
        }
        QCOMPARE(Dump(book.Database), before);
        QCOMPARE(book.Data.Journal().UndoName(), QString());
    }

    void WriteOutsideForgets()
    {
        cTestBook book;
        const cEntryItem entry = book.Add([](cEntryItem&) {});
        {
            const cUndoStep step(book.Data, u"gelöscht"_s);
            QVERIFY(book.Data.DeleteEntry(entry.ID));
        }
        QVERIFY(book.Settings->Set(modSettingKey::MainFilter, u"x"_s)); // choices of the view change nothing
        QCOMPARE(book.Data.Journal().UndoName(), u"gelöscht"_s);
        (void)book.Add([](cEntryItem&) {}); // may have taken the ID of the deleted entry
        QCOMPARE(book.Data.Journal().UndoName(), QString());
    }

    // SQLite gives the place of a removed row to the next one.
    void SettingInThePlaceOfAnother()
    {
        cTestBook book;
        const cSettingKey number = modSettingKey::BankNumber.Of(u"1"_s);
        QVERIFY(book.Settings->Set(number, u"Girokonto"_s));
        {
            const cUndoStep step(book.Data, u"Nummer entfernt"_s);
            QVERIFY(book.Settings->Delete(number));
        }
        {
            const cUndoStep step(book.Data, u"danach"_s);
            (void)book.Add([](cEntryItem&) {});
        }
        QVERIFY(book.Settings->Set(modSettingKey::MainFilter, u"x"_s));
        QVERIFY(book.Data.Journal().Undo());
        QCOMPARE(book.Data.Journal().UndoName(), QString());
        QCOMPARE(cSettings(book.Data).Get(modSettingKey::MainFilter), u"x"_s);
    }

    // It came and went within the step, so the step has nothing to do with its place.
    void PassingSettingTakesNoStepAway()
    {
        cTestBook book;
        const cSettingKey number = modSettingKey::BankNumber.Of(u"1"_s);
        {
            const cUndoStep step(book.Data, u"Import"_s);
            (void)book.Add([](cEntryItem&) {});
            QVERIFY(book.Settings->Set(number, u"Girokonto"_s));
            QVERIFY(book.Settings->Delete(number));
        }
        QVERIFY(book.Settings->Set(modSettingKey::MainFilter, u"x"_s));
        QCOMPARE(book.Data.Journal().UndoName(), u"Import"_s);
    }

    void StepsFollowEachOther()
    {
        cTestBook book;
        const QStringList before = Dump(book.Database);
        for (int i = 1; i <= 3; ++i) {
            const cUndoStep step(book.Data, QString::number(i));
            const cUndoStep inner(book.Data, u"innen"_s);
            (void)book.Add([](cEntryItem&) {});
        }
        QVERIFY(book.Data.Journal().Undo() && book.Data.Journal().Undo());
        QCOMPARE(book.Data.Journal().UndoName(), u"1"_s);
        QCOMPARE(book.Data.Journal().RedoName(), u"2"_s);
        {
            const cUndoStep step(book.Data, u"anders"_s);
            (void)book.Add([](cEntryItem&) {});
        }
        QCOMPARE(book.Data.Journal().RedoName(), QString()); // the way forward has changed
        QVERIFY(book.Data.Journal().Undo() && book.Data.Journal().Undo());
        QCOMPARE(Dump(book.Database), before);
    }
};

TEST_CLASS(testUndo, QCoreApplication)
#include "testUndo.moc"
