#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "support/testBook.h"
#include "views/entry/cEntryDrafts.h"
#include "views/entry/cEntryEditor.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace {

// Nothing as it is in an empty form.
cEntryFields EveryField()
{
    cEntryFields fields;
    fields.Face = eEntryFace::Split;
    fields.Amount = u"12,50+3"_s;
    fields.IsAmountTyped = fields.IsAccountChosen = fields.IsDayKept = fields.HasEnd = true;
    fields.Description = u"„Wochenmarkt“ \\ {0}"_s;
    fields.Category = u"Haushalt; Lebensmittel"_s;
    fields.CategoryText = u"Neues"_s;
    fields.Type = modWord::Ausgabe;
    fields.BroughtType = modWord::Einnahme;
    fields.OpenType = modWord::Umbuchung;
    fields.Account = u"Girokonto"_s;
    fields.Target = u"Sparkonto"_s;
    fields.Date = QDate(2026, 3, 1);
    fields.DateText = u"+7"_s;
    fields.End = QDate(2027, 3, 1);
    fields.EndText = u"1.3.27"_s;
    fields.Interval = u"Monatlich"_s;
    fields.BroughtInterval = u"Jährlich"_s;
    fields.Parts = {{7, u"Haushalt; Drogerie"_s, u"Seife"_s, u"2,50"_s, {}}, {0, {}, u"Rest"_s, u"-1"_s, u"Pfand"_s}};
    fields.Corrections = {
        {3, 9, u"Betrag"_s, QDate(2026, 4, 1), QDate(2026, 4, 30), -123456789012, u"teurer"_s, QDate(2026, 4, 2)}};
    fields.NewReceipts = {{u"/scan.pdf"_s}, {{}, QByteArray("\x89PNG\0\xff", 6)}};
    return fields;
}

cEntryDraft DraftAt(int minute)
{
    return {.Kept = QDateTime(QDate(2026, 3, 15), QTime(12, minute, 1, 5)),
            .EntryId = 0,
            .From = {},
            .Fields = EveryField()};
}

} // namespace

class testEntryDraft final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ComesBackWhole() const
    {
        const cFakeShell shell;
        cEntryDrafts drafts(shell.Folder(u"state"_s), u"/buch.db"_s);
        cEntryDraft changed = DraftAt(1);
        changed.EntryId = 9;
        changed.From = QDate(2026, 4, 1);
        QVERIFY(drafts.Keep(changed));
        QVERIFY(drafts.Keep(DraftAt(2)));
        const QList<cEntryDraft> kept = drafts.All();
        QCOMPARE(kept.size(), 2);
        QCOMPARE(kept[0].Kept, changed.Kept);
        QCOMPARE(kept[0].EntryId, 9);
        QCOMPARE(kept[0].From, QDate(2026, 4, 1));
        QVERIFY(kept[0].Fields == EveryField());

        QVERIFY(drafts.Remove(changed.Kept));
        QCOMPARE(drafts.All().size(), 1);
        QVERIFY(drafts.Remove(DraftAt(2).Kept));
        QCOMPARE(QDir(shell.Folder(u"state"_s)).entryList(QDir::Files), QStringList());
    }

    void IsForItsUserAndBookOnly() const
    {
        cTestBook book;
        cTestBook other;
        QVERIFY(cEntryDrafts(book.Shell.StateFolder(), book.Path()).Keep(DraftAt(1)));
        QCOMPARE(cEntryDrafts(book.Shell.StateFolder(), other.Path()).All().size(), 0);
        const QFileInfoList files = QDir(book.Shell.StateFolder()).entryInfoList(QDir::Files);
        QCOMPARE(files.size(), 1);
        const QFileDevice::Permissions others =
            QFileDevice::ReadGroup | QFileDevice::WriteGroup | QFileDevice::ReadOther | QFileDevice::WriteOther;
        QVERIFY(!(files[0].permissions() & others));
    }

    void UnreadableFileIsNone() const
    {
        cTestBook book;
        cEntryDrafts drafts(book.Shell.StateFolder(), book.Path());
        QVERIFY(drafts.Keep(DraftAt(1)));
        cTestFile::Write(QDir(book.Shell.StateFolder()).entryInfoList(QDir::Files)[0].filePath(),
                         "[{\"Kept\": 5, \"Fields\": []}, 1, {");
        QCOMPARE(drafts.All().size(), 0);
        QVERIFY(drafts.Keep(DraftAt(2)));
        QCOMPARE(drafts.All().size(), 1);
    }

    void GoneEntryBecomesANewOne() const
    {
        cTestBook book;
        cEntryDraft draft = DraftAt(1);
        draft.EntryId = 4711;
        cEntryEditor editor(book.Tools);
        QVERIFY(editor.Resume(draft) == editor.Start(u"Girokonto"_s));
        QVERIFY(editor.IsNew());
        QVERIFY(book.User.Shown.value(0).contains(u"gibt es nicht mehr"_s));
        // Of rows and periods that are gone nothing is left to be overwritten.
        QCOMPARE(draft.Fields.Parts[0].ID, 0);
        QVERIFY(draft.Fields.Corrections.isEmpty());
    }

    void AsksWhatToDo_data() const
    {
        const cTestRows<int, cEntryDrafts::eWish> row("option", "wish");
        row("restore", 0, cEntryDrafts::eWish::Restore);
        row("discard", 1, cEntryDrafts::eWish::Discard);
        row("giving up keeps it", -1, cEntryDrafts::eWish::Later);
    }

    void AsksWhatToDo() const
    {
        QFETCH(int, option);
        cFakeUser user;
        user.Decisions = {option};
        QTEST(cEntryDrafts::Ask(DraftAt(5), user), "wish");
        QVERIFY(
            user.Asked[0].startsWith(u"Ein nicht gespeicherter Eintrag vom 15.03.2026, 12:05 Uhr wurde aufgehoben:\n"
                                     "12,50+3 - Haushalt; Drogerie - Pfand\nWiederherstellen?"_s));
        QCOMPARE(user.LastDecision.Default, 0); // Enter loses nothing
    }
};

TEST_CLASS(testEntryDraft, QCoreApplication)
#include "testEntryDraft.moc"
