#include "model/modPaperDay.h"
#include "model/modSettingKey.h"
#include "support/cFakeDesk.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "views/receipt/cReceiptListModel.h"
#include "views/receipt/cReceipts.h"
#include "views/receipt/cStatementPapers.h"
#include "views/template/cTemplateFlow.h"
#include "views/template/cTemplateRemoval.h"

#include <QDateTime>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString number = u"DE02120300000000202051"_s;

struct cScene
{
    cScene() { Book.Settings->Set(modSettingKey::BankNumber.Of(number), u"Girokonto"_s); }

    cTestBook Book;
    cFakeDesk Desk;
    QTemporaryDir Outside;
    cStatementPapers Papers{Book.Tools, number};

    cReceiptSource File(const QString& name, const QByteArray& content) const
    {
        cTestFile::Write(Outside.filePath(name), content);
        return {Outside.filePath(name)};
    }
    QStringList Texts() const { return Each(Papers.Items(), &cReceiptHolder::cItem::Text); }
    QStringList Folder() const
    {
        return QDir(cReceiptFolder(Book.Tools).Path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
};

} // namespace

class testStatementPapers final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void NamesTellTheMonth_data()
    {
        const cTestRows<QString, QString> row("name", "day");
        row("day", u"Kontoauszug_31.03.2026.pdf"_s, u"2026-03-31"_s);
        row("day backwards", u"2026-03-31 Auszug.pdf"_s, u"2026-03-31"_s);
        row("day without signs", u"DE12_20260331120000.pdf"_s, {}); // a time, and longer
        row("day as digits", u"Konto_4711-Auszug_20260331.pdf"_s, u"2026-03-31"_s);
        row("day as digits, German", u"Auszug 31032026.PDF"_s, u"2026-03-31"_s);
        row("month", u"Auszug_2026_03.pdf"_s, u"2026-03"_s);
        row("month first", u"Auszug 03-2026.pdf"_s, u"2026-03"_s);
        row("word", u"Kontoauszug Maerz 2026.pdf"_s, u"2026-03"_s);
        row("part of a word", u"E-Mail der Bank Mainz 2026.pdf"_s, {});
        row("number of a statement", u"Auszug_2026_003.pdf"_s, {});
        row("short number of a statement", u"Auszug_Nr. 11_2026.pdf"_s, {});
        row("number of an account", u"4720260331.pdf"_s, {});
        row("no such day", u"2026-02-31.pdf"_s, u"2026-02"_s);
    }

    void NamesTellTheMonth()
    {
        QFETCH(const QString, name);
        QTEST(modPaperDay::Find(name), "day");
    }

    void AreListedByMonth()
    {
        cScene scene;
        QVERIFY(scene.Papers.Add({scene.File(u"Auszug 02-2026.pdf"_s, "%PDF-1.4 Februar")}));
        QVERIFY(scene.Papers.Add({scene.File(u"Auszug 31.03.2026.pdf"_s, "%PDF-1.4 März"),
                                  scene.File(u"2025_12.pdf"_s, "%PDF-1.4 Dezember")}));
        QCOMPARE(scene.Texts(), (QStringList{u"31. März 2026"_s, u"Februar 2026"_s, u"Dezember 2025"_s}));
        QVERIFY(scene.Papers.Names().first().startsWith(u"2026-03-31 Kontoauszug Girokonto "_s));
        QCOMPARE(scene.Folder().size(), 3);
        QVERIFY(cReceipts(scene.Book.Tools).Unused().isEmpty()); // each hangs at its account
        QCOMPARE(scene.Book.Data.Journal().UndoName(), u"PDF-Auszug zu 'Girokonto' hinzugefügt"_s);
        QVERIFY(scene.Book.Data.Journal().Undo());
        QCOMPARE(scene.Texts(), QStringList{u"Februar 2026"_s});
        QVERIFY(scene.Book.Data.Journal().Redo());

        // One that was added is shown at once, wherever it stands; the one that is removed goes to the trash.
        cReceiptListModel list(scene.Book.Tools, scene.Desk,
                               std::make_unique<cStatementPapers>(scene.Book.Tools, number));
        QCOMPARE(list.Title(), u"PDF-Auszüge: Girokonto – "_s + number);
        list.Add({scene.File(u"Auszug 2026-01.pdf"_s, "%PDF-1.4 Januar")});
        QCOMPARE(list.AddedRow(), 2);
        scene.Book.User.Answers = {eAnswer::Yes};
        list.Remove(2);
        QCOMPARE(list.rowCount(), 3);
        QCOMPARE(scene.Folder().size(), 3);
    }

    // Banks send pages that say why there is no statement under the name of one.
    void OnlyPdfIsTaken()
    {
        cScene scene;
        QVERIFY(!scene.Papers.Add({scene.File(u"Auszug 02-2026.pdf"_s, "%PDF-1.4"),
                                   scene.File(u"Auszug 03-2026.pdf"_s, "<html>Ihre Sitzung ist abgelaufen</html>")}));
        QVERIFY(scene.Book.User.Shown.last().startsWith(u"'Auszug 03-2026.pdf' ist kein PDF."_s));
        QCOMPARE(scene.Folder(), QStringList());
        QCOMPARE(scene.Texts(), QStringList());
    }

    void TheMonthIsAsked()
    {
        cScene scene;
        const cReceiptSource source = scene.File(u"download.pdf"_s, "%PDF-1.4");
        QFile file(source.Path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime(QDate(2026, 3, 2), QTime(12, 0)), QFile::FileModificationTime));
        QVERIFY(!scene.Papers.Add({source})); // given up
        // It was saved when its month was over.
        QCOMPARE(scene.Book.User.LastChoice.Proposal, u"Februar 2026"_s);
        QCOMPARE(scene.Book.User.Asked.last(), u"Von welchem Monat ist der Auszug 'download.pdf'?"_s);
        QCOMPARE(scene.Folder(), QStringList());
        scene.Book.User.Choices = {u"Februar 2026"_s};
        QVERIFY(scene.Papers.Add({source}));
        QCOMPARE(scene.Texts(), QStringList{u"Februar 2026"_s});
    }

    void FollowTheirAccount()
    {
        cScene scene;
        QVERIFY(scene.Papers.Add({scene.File(u"Auszug 02-2026.pdf"_s, "%PDF-1.4")}));
        QVERIFY(cTemplateFlow(scene.Book.Tools).RenameAccount(u"Girokonto"_s, u"Haus"_s));
        QCOMPARE(scene.Papers.Title(), u"PDF-Auszüge: Haus – "_s + number);
        QCOMPARE(scene.Texts().size(), 1);
        scene.Book.User.Answers = {eAnswer::Yes, eAnswer::Yes};
        QVERIFY(cTemplateRemoval(scene.Book.Tools).MergeAccount(u"Haus"_s, u"Bargeld"_s));
        QCOMPARE(scene.Papers.Title(), u"PDF-Auszüge: Bargeld – "_s + number);
        QCOMPARE(scene.Texts().size(), 1);
        QVERIFY(cTemplateRemoval(scene.Book.Tools).DeleteAccount(u"Bargeld"_s));
        QCOMPARE(scene.Texts().size(), 1); // the rows of the number are still there too
        QVERIFY(cReceipts(scene.Book.Tools).Unused().isEmpty());
    }

    void MissingOneIsChosenAnew()
    {
        cScene scene;
        QVERIFY(scene.Papers.Add({scene.File(u"Auszug 02-2026.pdf"_s, "%PDF-1.4")}));
        QVERIFY(QFile::remove(scene.Papers.Items().first().File.Path));
        QVERIFY(cReceipts::CheckText(scene.Book.Data).contains(u"fehlen Belege: 2026-02 Kontoauszug Girokonto"_s));
        cReceiptListModel list(scene.Book.Tools, scene.Desk,
                               std::make_unique<cStatementPapers>(scene.Book.Tools, number));
        QCOMPARE(list.index(0).data().toString(), u"Februar 2026 (fehlt)"_s);
        scene.Book.User.Files = {scene.File(u"neu.pdf"_s, "%PDF-1.7 noch einmal geladen").Path};
        list.ChooseAgain(0);
        QCOMPARE(scene.Texts(), QStringList{u"Februar 2026"_s});
        QVERIFY(scene.Papers.Items().first().File.IsThere());
    }
};

TEST_CLASS(testStatementPapers, QCoreApplication)
#include "testStatementPapers.moc"
