#include "base/cProgress.h"
#include "core/modReceiptFolder.h"
#include "model/modFlags.h"
#include "model/modReceiptName.h"
#include "model/modSettingKey.h"
#include "support/cFakeDesk.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"
#include "support/cTestRows.h"
#include "support/testBook.h"
#include "views/entry/cEntryEditor.h"
#include "views/export/cEntryExport.h"
#include "views/list/cEntryListModel.h"
#include "views/receipt/cReceiptListModel.h"
#include "views/receipt/cReceipts.h"

#include <QDateTime>

using namespace Qt::Literals::StringLiterals;

namespace {

struct cScene
{
    cTestBook Book;
    cFakeDesk Desk;
    QTemporaryDir Outside;
    cReceipts Receipts{Book.Tools};
    int Entry = Book.Add([](cEntryItem& entry) { entry.EntryDescription = u"Rewe: 1/2 Kuchen?"_s; }).ID;

    QString File(const QString& name, const QByteArray& content) const
    {
        cTestFile::Write(Outside.filePath(name), content);
        return Outside.filePath(name);
    }
    QStringList Folder() const
    {
        return QDir(modReceiptFolder::Of(Book.Path())).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    QStringList Names(int entry) { return modReceiptName::Of(Book.Data.LoadEntry(entry).value_or(cEntryItem{})); }
    QByteArray Content(const QString& name) const { return cTestFile::Bytes(Receipts.File(name).Path); }
};

// By what is in them: "eins", "PNG".
const QString first = u"2026-03-10 Rewe 1 2 Kuchen 4c0d5d.pdf"_s;
const QString second = u"2026-03-10 Rewe 1 2 Kuchen 55505b.png"_s;

} // namespace

class testReceipts final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void NamesSurviveTheMark_data()
    {
        const cTestRows<QString, bool> row("name", "isKept");
        row("signs of the mark", u"a;b=c,d%e.pdf"_s, true);
        row("letters", u"Ärger, groß – 1.pdf"_s, true);
        row("out of the folder", u"../../etc/passwd"_s, false);
        row("a device path", u"C:\\Windows\\win.ini"_s, false);
        row("hidden", u".bashrc"_s, false);
        row("a line end", u"a\nb.pdf"_s, false);
    }

    // A book may come from anybody; its marks lead to files that the user deletes or opens.
    void NamesSurviveTheMark()
    {
        QFETCH(const QString, name);
        QFETCH(const bool, isKept);
        cEntryItem entry;
        entry.EntryFlags = u"split=7"_s;
        modReceiptName::Set(entry, {name, u"b.pdf"_s});
        const QStringList good{u"b.pdf"_s};
        QCOMPARE(modReceiptName::Of(entry), isKept ? QStringList{name} + good : good);
        QCOMPARE(modFlags::Get(entry.EntryFlags, u"split"_s), u"7"_s);
    }

    void CopiesAreNamedAndNeverOverwrite()
    {
        cScene scene;
        QVERIFY(scene.Receipts.Add(scene.Entry, {{scene.File(u"Scan.PDF"_s, "eins")}, {{}, "PNG"}}));
        QCOMPARE(scene.Names(scene.Entry), (QStringList{first, second}));
        QCOMPARE(scene.Folder(), (QStringList{first, second}));
        QCOMPARE(scene.Content(first), "eins");

        // Neither the file that is missing at the moment nor one of the same name that somebody changed is written
        // over.
        QVERIFY(QFile::remove(scene.Receipts.File(first).Path));
        QVERIFY(scene.Receipts.Add(scene.Entry, {{scene.File(u"b.pdf"_s, "zwei")}}));
        QCOMPARE(scene.Names(scene.Entry).last(), u"2026-03-10 Rewe 1 2 Kuchen 15d55d.pdf"_s);
        cTestFile::Write(scene.Receipts.File(first).Path, "anders");
        QVERIFY(scene.Receipts.Add(scene.Entry, {{scene.File(u"a.pdf"_s, "eins")}}));
        QCOMPARE(scene.Content(first), "anders");
        QCOMPARE(scene.Content(scene.Names(scene.Entry).last()), "eins");

        // What lies in the folder already is not copied again.
        const int other = scene.Book.Add([](cEntryItem&) {}).ID;
        QVERIFY(scene.Receipts.Add(other, {{scene.Receipts.File(second).Path}}));
        QCOMPARE(scene.Names(other), QStringList{second});
        QCOMPARE(scene.Folder().size(), 4);

        cEntryListModel list(scene.Book.Format);
        cEntryListModel::cContent content;
        content.Entries = {*scene.Book.Data.LoadEntry(scene.Entry)};
        list.SetContent(content, {}, {});
        QCOMPARE(list.index(0, cEntryListModel::Receipts).data().toString(), u"4"_s);
        QCOMPARE(list.index(0, cEntryListModel::Receipts).data(Qt::AccessibleTextRole).toString(), u"4 Belege"_s);
    }

    void NamesWithoutEndingAreApart()
    {
        cScene scene;
        const int entry = scene.Book.Add([](cEntryItem& each) { each.EntryDescription = u"Dr. Müller"_s; }).ID;
        QVERIFY(scene.Receipts.Add(entry, {{scene.File(u"Rechnung 1"_s, "eins")}}));
        QVERIFY(scene.Receipts.Add(entry, {{scene.File(u"Rechnung 2"_s, "zwei")}}));
        QCOMPARE(scene.Names(entry).size(), 2);
        QCOMPARE(scene.Content(scene.Names(entry).first()), "eins");
        QCOMPARE(scene.Content(scene.Names(entry).last()), "zwei");
    }

    // The right file in the place of a wrong one: going back never shows the right one under the name of the wrong one.
    void NamesTellTheContent()
    {
        cScene scene;
        QVERIFY(scene.Receipts.Add(scene.Entry, {{scene.File(u"a.pdf"_s, "eins")}}));
        cReceiptListModel list(scene.Book.Tools, scene.Desk, scene.Entry);
        scene.Book.User.Answers = {eAnswer::Yes};
        list.Remove(0);
        QCOMPARE(scene.Folder(), QStringList());
        QVERIFY(scene.Receipts.Add(scene.Entry, {{scene.File(u"a.pdf"_s, "zwei")}}));
        QVERIFY(scene.Book.Data.Journal().Undo());
        QVERIFY(scene.Book.Data.Journal().Undo());
        QCOMPARE(scene.Names(scene.Entry), QStringList{first});
        QVERIFY(!scene.Receipts.File(first).IsThere());
        QVERIFY(scene.Receipts.Add(scene.Entry, {{scene.File(u"a.pdf"_s, "eins")}})); // and the file is back
        QCOMPARE(scene.Content(first), "eins");
        QCOMPARE(scene.Names(scene.Entry), QStringList{first});
        QCOMPARE(scene.Book.User.Shown.last(), u"Die fehlende Datei ist wieder da."_s);
        QVERIFY(scene.Receipts.Add(scene.Entry, {{scene.File(u"a.pdf"_s, "eins")}}));
        QCOMPARE(scene.Book.User.Shown.last(), u"Diese Datei hängt hier schon."_s);
    }

    void UndoTakesTheMarkOffAndKeepsTheFile()
    {
        cScene scene;
        QVERIFY(scene.Receipts.Add(scene.Entry, {{scene.File(u"a.pdf"_s, "eins")}}));
        QVERIFY(scene.Receipts.CheckText(scene.Book.Data).isEmpty());
        QVERIFY(scene.Book.Data.Journal().Undo());
        QCOMPARE(scene.Names(scene.Entry), QStringList());
        QCOMPARE(scene.Receipts.Unused(), QStringList{first});
        QVERIFY(scene.Receipts.CheckText(scene.Book.Data)
                    .contains(u"gehören Dateien zu keinem Eintrag und keinem Konto dieses Buchs: "_s + first));
        QVERIFY(scene.Book.Data.Journal().Redo());
        QCOMPARE(scene.Content(scene.Names(scene.Entry).value(0)), "eins");
        QVERIFY(scene.Book.Data.DeleteEntry(scene.Entry));
        QCOMPARE(scene.Receipts.Unused(), QStringList{first});
    }

    void HalfAnAddingLeavesNothing()
    {
        cScene scene;
        QVERIFY(!scene.Receipts.Add(scene.Entry,
                                    {{scene.File(u"a.pdf"_s, "eins")}, {scene.Outside.filePath(u"weg.pdf"_s)}}));
        QCOMPARE(scene.Names(scene.Entry), QStringList());
        QCOMPARE(scene.Folder(), QStringList());
        QCOMPARE(scene.Book.User.Shown, QStringList{u"'weg.pdf' ist keine Datei."_s});
        QVERIFY(QFile::exists(scene.Outside.filePath(u"a.pdf"_s)));
    }

    void RemovedFilesGoToTheTrashUnlessShared()
    {
        cScene scene;
        const int other = scene.Book.Add([](cEntryItem&) {}).ID;
        QVERIFY(scene.Receipts.Add(scene.Entry, {{scene.File(u"a.pdf"_s, "eins")}}));
        QVERIFY(scene.Receipts.Add(other, {{scene.Receipts.File(first).Path}}));

        cReceiptListModel list(scene.Book.Tools, scene.Desk, scene.Entry);
        scene.Book.User.Answers = {eAnswer::No, eAnswer::Yes};
        list.Remove(0);
        QCOMPARE(list.rowCount(), 1);
        list.Remove(0);
        QCOMPARE(list.rowCount(), 0);
        QCOMPARE(scene.Folder(), QStringList{first});
        QVERIFY(scene.Book.User.Asked.last().endsWith(u"Die Datei bleibt, weil sie noch an anderer Stelle hängt."_s));

        cReceiptListModel last(scene.Book.Tools, scene.Desk, other);
        scene.Desk.HasTrash = false;
        scene.Book.User.Answers = {eAnswer::Yes};
        last.Remove(0);
        QVERIFY(scene.Book.User.Shown.last().startsWith(u"Hier gibt es keinen Papierkorb."_s));
        QCOMPARE(scene.Folder(), QStringList{first});
        QVERIFY(scene.Book.Data.Journal().Undo());

        scene.Desk.HasTrash = true;
        cReceiptListModel again(scene.Book.Tools, scene.Desk, other);
        scene.Book.User.Answers = {eAnswer::Yes};
        again.Remove(0);
        QCOMPARE(scene.Folder(), QStringList());
    }

    void MissingFileIsChosenAnew()
    {
        cScene scene;
        QVERIFY(scene.Receipts.Add(scene.Entry, {{scene.File(u"a.pdf"_s, "eins")}}));
        QVERIFY(QFile::remove(scene.Receipts.File(first).Path));
        cReceiptListModel list(scene.Book.Tools, scene.Desk, scene.Entry);
        QVERIFY(list.IsMissing(0));
        QCOMPARE(list.index(0).data().toString(), first + u" (fehlt)"_s);
        QVERIFY(scene.Receipts.CheckText(scene.Book.Data).contains(u"fehlen Belege: "_s + first));

        const int other = scene.Book.Add([](cEntryItem& entry) { modReceiptName::Set(entry, {first}); }).ID;
        scene.Book.User.Files = {scene.File(u"b.png"_s, "PNG")};
        list.ChooseAgain(0);
        QCOMPARE(scene.Names(scene.Entry), QStringList{second});
        QCOMPARE(scene.Names(other), QStringList{second}); // all that had the missing one
        QCOMPARE(scene.Content(second), "PNG");
        QVERIFY(scene.Book.Data.Journal().Undo());
        QCOMPARE(scene.Names(other), QStringList{first});
    }

    void ProgramsAreNotStarted()
    {
        cScene scene;
        QVERIFY(scene.Receipts.Add(scene.Entry, {{scene.File(u"a.desktop"_s, "x")}, {scene.File(u"a.pdf"_s, "x")}}));
        cReceiptListModel list(scene.Book.Tools, scene.Desk, scene.Entry);
        list.Open(0);
        list.Open(1);
        QCOMPARE(scene.Desk.Opened, QStringList{list.NameAt(1)});
        QVERIFY(scene.Book.User.Shown.last().contains(u"wird deshalb nicht geöffnet"_s));
    }

    void TheEditorHangsThemAtWhatItSaves()
    {
        cScene scene;
        cEntryEditor editor(scene.Book.Tools);
        cEntryFields fields = editor.Start(u"Girokonto"_s);
        fields.Amount = u"12,50"_s;
        fields.Category = u"Haushalt; Lebensmittel"_s;
        fields.Description = u"Markt"_s;
        fields.Type = modWord::Ausgabe;
        fields.NewReceipts = {{scene.File(u"a.jpg"_s, "Bild")}};
        QCOMPARE(editor.ReceiptText(fields), u"1 neu"_s);
        QCOMPARE(editor.Save(fields), cEntryEditor::eSaved::Saved);
        const int id = editor.SavedId();
        QCOMPARE(scene.Names(id), QStringList{u"2026-03-15 Markt 0da3b7.jpg"_s});
        QVERIFY(scene.Book.Data.Journal().Undo()); // the entry and its receipt came in one step
        QVERIFY(!scene.Book.Data.LoadEntry(id));

        fields.NewReceipts = {{scene.Outside.filePath(u"weg.jpg"_s)}};
        const int before = scene.Book.Data.CountEntries();
        QCOMPARE(editor.Save(fields), cEntryEditor::eSaved::Refused);
        QCOMPARE(scene.Book.Data.CountEntries(), before);

        // Declined at the last question: the file was not copied yet.
        QVERIFY(scene.Book.Settings->Set(modSettingKey::BankNumber.Of(u"4711"_s), u"Girokonto"_s));
        QVERIFY(scene.Book.Settings->Set(modSettingKey::Reconciled.Of(u"4711"_s), u"2026-03-31"_s));
        fields.NewReceipts = {{scene.File(u"b.jpg"_s, "anderes Bild")}};
        scene.Book.User.Answers = {eAnswer::No};
        QCOMPARE(editor.Save(fields), cEntryEditor::eSaved::Refused);
        QVERIFY(scene.Book.User.Asked.last().contains(u"mit der Bank"_s));
        QCOMPARE(scene.Folder(), QStringList{u"2026-03-15 Markt 0da3b7.jpg"_s});
    }

    void PartsThatGoLeaveTheirReceipts()
    {
        cScene scene;
        cEntryEditor editor(scene.Book.Tools);
        std::optional<cEntryFields> fields = editor.Load(scene.Entry);
        editor.UseSplit(*fields);
        fields->Parts[0].Amount = u"6"_s;
        fields->Parts.append({.Category = u"Haushalt; Lebensmittel"_s, .Amount = u"4"_s});
        QCOMPARE(editor.Save(*fields), cEntryEditor::eSaved::Saved);
        const cEntryItemList parts = scene.Book.Data.GetEntriesOfSplit(scene.Entry);
        QCOMPARE(parts.size(), 2);
        QVERIFY(scene.Receipts.Add(parts.last().ID, {{scene.File(u"a.pdf"_s, "eins")}}));

        fields = editor.Load(scene.Entry);
        QCOMPARE(editor.ReceiptText(*fields), u"1 Beleg"_s);
        scene.Book.User.Answers = {eAnswer::Yes};
        QVERIFY(editor.UseNormal(*fields));
        QCOMPARE(editor.Save(*fields), cEntryEditor::eSaved::Saved);
        QCOMPARE(scene.Names(scene.Entry).size(), 1);
        QVERIFY(scene.Receipts.Unused().isEmpty());
    }

    void BackupsShareOneFolder()
    {
        cScene scene;
        QVERIFY(scene.Receipts.Add(scene.Entry, {{scene.File(u"a.pdf"_s, "eins")}}));
        const QString folder = QFileInfo(scene.Book.Path()).absolutePath() + u"/Sicherungen"_s;
        QVERIFY(QDir().mkpath(folder));
        const QString one = folder + u"/buch-auto-2026-03-14.backup"_s;
        const QString two = folder + u"/buch-auto-2026-03-15-2.backup"_s;
        const auto saved = [&] {
            return QDir(folder + u"/buch-auto-Belege"_s).entryList(QDir::Files | QDir::Hidden, QDir::Name);
        };
        QCOMPARE(modReceiptFolder::Save(scene.Book.Path(), one), QString());
        QCOMPARE(modReceiptFolder::Save(scene.Book.Path(), two), QString());
        QCOMPARE(saved(), QStringList{first});

        // Other files of that name take nothing from the older backups, not even when a time comes again.
        QFile file(scene.Receipts.File(first).Path);
        for (const QByteArray& content :
             {QByteArray("anderes"), QByteArray("noch anderes"), QByteArray("anderes"), QByteArray("noch anderes")}) {
            QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(content) > 0);
            QVERIFY(file.flush() && file.setFileTime(QDateTime(QDate(2026, 3, 1), {}), QFile::FileModificationTime));
            file.close();
            QCOMPARE(modReceiptFolder::Save(scene.Book.Path(), two), QString());
        }
        QCOMPARE(saved().size(), 5);

        // What is there stays, what is missing comes back, also in another place.
        QVERIFY(file.remove());
        QCOMPARE(modReceiptFolder::BringBack(two, scene.Book.Path(), {first, first}), QString());
        QCOMPARE(scene.Content(first), "noch anderes");
        const QString elsewhere = scene.File(u"buch.db"_s, "x");
        QCOMPARE(modReceiptFolder::BringBack(two, elsewhere, {first}), QString());
        QVERIFY(QFile::exists(scene.Outside.filePath(u"Belege/"_s + first)));
    }

    // Both backups have the name that the program proposes.
    void BackupsOfTwoBooksStayApart()
    {
        cScene scene;
        cScene other;
        const QString backup = scene.Outside.filePath(u"Kontorelle-2026-03-15.backup"_s);
        for (int round = 0; round < 2; ++round) {
            for (cScene* each : {&scene, &other}) {
                const QString path = each->File(u"Rechnung.pdf"_s, each == &scene ? "eins" : "zwei");
                QVERIFY(QDir().mkpath(modReceiptFolder::Of(each->Book.Path())));
                (void)QFile::copy(path, each->Receipts.File(u"Rechnung.pdf"_s).Path);
                for (const QString& name : {u"Brief.pdf"_s, u"Foto.png"_s}) {
                    (void)QFile::copy(path, other.Receipts.File(name).Path);
                }
                QCOMPARE(modReceiptFolder::Save(each->Book.Path(), backup), QString());
            }
        }
        QVERIFY(QFile::remove(scene.Receipts.File(u"Rechnung.pdf"_s).Path));
        // The letter was saved while the book lay where the other one is.
        const QStringList names{u"Rechnung.pdf"_s, u"Brief.pdf"_s};
        QCOMPARE(modReceiptFolder::BringBack(backup, scene.Book.Path(), names), QString());
        QCOMPARE(scene.Content(u"Rechnung.pdf"_s), "eins");
        QCOMPARE(scene.Folder(), (QStringList{u"Brief.pdf"_s, u"Rechnung.pdf"_s}));
    }

    void OneBadReceiptKeepsNoneBack()
    {
        cScene scene;
        QVERIFY(scene.Receipts.Add(scene.Entry, {{scene.File(u"a.pdf"_s, "eins")}}));
        // A link is a receipt like any other; the second one has another size than it says, as if it was cut short.
        QVERIFY(QFile::link(scene.File(u"b.pdf"_s, "zwei"), scene.Receipts.File(u"z.pdf"_s).Path));
        QVERIFY(QFile::link(u"/sys/devices/system/cpu/online"_s, scene.Receipts.File(u"1.pdf"_s).Path));
        const QString backup = scene.Outside.filePath(u"Kontorelle-2026-03-15.backup"_s);
        QVERIFY(modReceiptFolder::Save(scene.Book.Path(), backup).startsWith(u"Der Beleg '1.pdf' konnte nicht"_s));
        const QDir copies(modReceiptFolder::CopyOf(scene.Book.Path(), backup));
        QCOMPARE(copies.entryList(QDir::Files | QDir::Hidden, QDir::Name), (QStringList{first, u"z.pdf"_s}));
    }

    void ExportOffersThem_data()
    {
        const cTestRows<eAnswer> row("answer");
        row("wanted", eAnswer::Yes);
        row("not wanted", eAnswer::No);
    }

    void ExportOffersThem()
    {
        QFETCH(const eAnswer, answer);
        cScene scene;
        QVERIFY(scene.Receipts.Add(scene.Entry, {{scene.File(u"a.pdf"_s, "eins")}}));
        cEntryItem entry = scene.Book.Data.LoadEntry(scene.Entry).value_or(cEntryItem{});
        cEntryExtract extract;
        extract.Rows = {{entry, 100, 100, {}}};
        modReceiptName::Set(entry, {first, u"gone.pdf"_s});
        extract.Rows.push_back({entry, 100, 100, {}});
        scene.Book.User.SavePath = scene.Outside.filePath(u"2026.csv"_s);
        scene.Book.User.Answers = {answer};
        cNoProgress progress;
        (void)cEntryExport(scene.Book.Tools, progress).Run(extract, u"Einträge"_s, QDate(2026, 3, 15));
        const bool isWanted = answer == eAnswer::Yes;
        QCOMPARE(cTestFile::Bytes(scene.Outside.filePath(u"2026-Belege/"_s + first)), isWanted ? "eins" : "");
        QCOMPARE(scene.Book.User.Shown.constLast().contains(u"'gone.pdf' fehlt"_s), isWanted);
    }

    void LinkToABookHasItsReceipts()
    {
        const cScene scene;
        const QString link = scene.Outside.filePath(u"haushalt.db"_s);
        QVERIFY(QFile::link(scene.Book.Path(), link));
        QCOMPARE(modReceiptFolder::Of(link), modReceiptFolder::Of(scene.Book.Path()));
    }
};

TEST_CLASS(testReceipts, QCoreApplication)
#include "testReceipts.moc"
