#include "model/modSettingKey.h"
#include "support/cFakeDesk.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "support/testBook.h"
#include "support/windowFaults.h"
#include "support/windowHands.h"
#include "views/ledger/cStatementListModel.h"
#include "views/list/cEntryListModel.h"
#include "views/receipt/cReceiptListModel.h"
#include "views/receipt/cStatementPapers.h"
#include "windows/receipt/cPreviewReader.h"
#include "windows/receipt/cPreviewView.h"
#include "windows/receipt/cReceiptDrop.h"
#include "windows/receipt/frmBelege.h"
#include "windows/statement/frmKontoauszug.h"

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QSignalSpy>
#include <QTreeView>

using namespace Qt::Literals::StringLiterals;
using namespace modWindowHands;

namespace {

struct cScene
{
    cTestBook Book;
    cFakeDesk Desk;
    QTemporaryDir Outside;
    int Entry = Book.Add([](cEntryItem& entry) { entry.EntryDescription = u"Waschmaschine"_s; }).ID;
    cReceiptListModel Receipts{Book.Tools, Desk, Entry};

    QString Path(const QString& name) const { return Outside.filePath(name); }

    QString Pdf(int pages) const
    {
        QPdfWriter writer(Path(u"rechnung.pdf"_s));
        QPainter painter(&writer);
        for (int page = 1; page <= pages; ++page) {
            if (page > 1) {
                writer.newPage();
            }
            painter.drawText(1000, 1000, u"Rechnung, Seite %1"_s.arg(page));
        }
        return Path(u"rechnung.pdf"_s);
    }

    QString Picture(const QSize& size) const
    {
        QImage image(size, QImage::Format_Grayscale8);
        image.fill(Qt::lightGray);
        if (!image.save(Path(u"foto.png"_s))) {
            qFatal("no room for a picture");
        }
        return Path(u"foto.png"_s);
    }
};

} // namespace

class testFrmBelege final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_scene.emplace(); }

    void PagesAreTurnedAndEnlarged()
    {
        m_scene->Receipts.Add({{m_scene->Pdf(3)}});
        frmBelege window(m_scene->Receipts);
        window.show();
        auto* preview = window.findChild<cPreviewView*>();
        QTRY_VERIFY(preview->HasPicture());
        QCOMPARE(modWindowFaults::All(window), QStringList());
        QCOMPARE(preview->Pages(), 3);
        QVERIFY(!Button(window, u"Vorige Seite"_s).isEnabled());
        QTest::keyClick(&window, Qt::Key_PageDown, Qt::AltModifier);
        QTRY_COMPARE(preview->Page(), 1);
        const int whole = preview->widget()->minimumWidth();
        QTest::keyClick(&window, Qt::Key_Plus, Qt::ControlModifier);
        QTRY_VERIFY(preview->widget()->minimumWidth() > whole);
        QVERIFY(preview->accessibleDescription().startsWith(u"Seite 2 von 3 von "_s));
        Button(window, u"Ganze Seite"_s).click();
        QTRY_VERIFY(!Button(window, u"Kleiner"_s).isEnabled());
        Button(window, u"Öffnen"_s).click();
        QCOMPARE(m_scene->Desk.Opened, QStringList{m_scene->Receipts.NameAt(0)});
    }

    void FilesThatAreNoneAreSaid_data()
    {
        const cTestRows<QString, QByteArray, QString> row("name", "bytes", "text");
        row("no PDF", u"a.pdf"_s, "%PDF-1.7 kaputt", u"Die Datei ist beschädigt"_s);
        row("half a picture", u"a.png"_s, QByteArray::fromHex("89504e470d0a1a0a0000000d49484452"),
            u"Die Datei ist beschädigt"_s);
        row("no picture", u"a.odt"_s, "PK", u"Für diese Art von Datei gibt es keine Vorschau. „Öffnen“"_s);
        row("nothing to open", u"a.html"_s, "<p>", u"Für diese Art von Datei gibt es keine Vorschau. „Speichern"_s);
    }

    void FilesThatAreNoneAreSaid()
    {
        QFETCH(const QString, name);
        QFETCH(const QByteArray, bytes);
        QFETCH(const QString, text);
        m_scene->Receipts.Add({{m_scene->Book.WriteFile(name, bytes)}});
        frmBelege window(m_scene->Receipts);
        window.show();
        auto* preview = window.findChild<cPreviewView*>();
        QTRY_VERIFY(preview->accessibleDescription().startsWith(text));
        QVERIFY(!preview->HasPicture());
    }

    // However large the file or the wish: a preview stays small enough to be shown at once.
    void PreviewsAreBounded()
    {
        for (const QString& path : {m_scene->Picture({6000, 4000}), m_scene->Pdf(1)}) {
            cPreviewReader reader;
            QSignalSpy done(&reader, &cPreviewReader::Done);
            reader.Read({path, 0, QSize(20000, 20000)});
            QTRY_COMPARE_WITH_TIMEOUT(done.size(), 1, 30000);
            const QSize size = done.first().first().value<cPreview>().Image.size();
            QVERIFY(size.width() > 1000);
            QVERIFY(static_cast<qint64>(size.width()) * size.height() <= 16'100'000);
        }
    }

    void PastedPictureBecomesAReceipt()
    {
        frmBelege window(m_scene->Receipts);
        window.show();
        QApplication::clipboard()->clear();
        Button(window, u"Einfügen"_s).click();
        QCOMPARE(m_scene->Book.User.Shown, QStringList{u"In der Zwischenablage ist weder ein Bild noch eine Datei."_s});
        QImage image(40, 30, QImage::Format_RGB32);
        image.fill(Qt::red);
        QApplication::clipboard()->setImage(image);
        Button(window, u"Einfügen"_s).click();
        QVERIFY(m_scene->Receipts.NameAt(0).startsWith(u"2026-03-10 Waschmaschine "_s));
        QCOMPARE(QImage(m_scene->Receipts.PathAt(0)).size(), image.size());
        auto* preview = window.findChild<cPreviewView*>();
        QTRY_VERIFY(preview->HasPicture());
    }

    void MissingFileOffersAnother()
    {
        m_scene->Receipts.Add({{m_scene->Book.WriteFile(u"a.pdf"_s, "x")}});
        QVERIFY(QFile::remove(m_scene->Receipts.PathAt(0)));
        cReceiptListModel receipts(m_scene->Book.Tools, m_scene->Desk, m_scene->Entry);
        frmBelege window(receipts);
        window.show();
        QVERIFY(window.findChild<cPreviewView*>()->accessibleDescription().contains(u"fehlt im Ordner"_s));
        QVERIFY(!Button(window, u"Öffnen"_s).isEnabled());
        m_scene->Book.User.Files = {m_scene->Pdf(1)};
        Button(window, u"Datei neu wählen…"_s).click();
        QTRY_VERIFY(window.findChild<cPreviewView*>()->HasPicture());
        QVERIFY(!Button(window, u"Datei neu wählen…"_s).isVisible());
    }

    // Statements go on to who reads them, wherever they fall.
    void OnlyReceiptsHangAtTheLineTheyFallOn()
    {
        cEntryListModel list(m_scene->Book.Format);
        cEntryItem entry;
        entry.ID = 7;
        entry.EntryDate = QDate(2026, 3, 10);
        cEntryListModel::cContent content;
        content.Entries = {entry};
        list.SetContent(content, {}, {});
        QTreeView tree;
        tree.setModel(&list);
        cReceiptDrop drop(tree, list);
        QSignalSpy receipts(&drop, &cReceiptDrop::ReceiptsDropped);
        QSignalSpy others(&drop, &cReceiptDrop::OthersDropped);
        tree.show();
        const auto fall = [&](const QString& path, const QPoint& at) {
            DropFiles(*tree.viewport(), at, {QUrl::fromLocalFile(path)});
        };
        const QPoint line = tree.visualRect(list.index(0, 0)).center();
        fall(m_scene->Pdf(1), line);
        QCOMPARE(receipts.size(), 1);
        QCOMPARE(receipts.first().first().toInt(), 7);
        fall(m_scene->Book.WriteFile(u"auszug.csv"_s, "x"), line);
        fall(m_scene->Pdf(1), QPoint(5, tree.viewport()->height() - 5));
        QCOMPARE(receipts.size(), 1);
        QCOMPARE(others.size(), 2);
    }

    void OnlyPapersFallIntoTheStatement()
    {
        m_scene->Book.Settings->Set(modSettingKey::BankNumber.Of(u"4711"_s), u"Girokonto"_s);
        cStatementListModel statement(m_scene->Book.Tools); // of an account without rows
        frmKontoauszug window(statement);
        QSignalSpy papers(&window, &frmKontoauszug::PapersDropped);
        window.show();
        const auto accepts = [&](const QString& path) {
            return DropFiles(window, QPoint(5, 5), {QUrl::fromLocalFile(path)});
        };
        QVERIFY(!accepts(m_scene->Book.WriteFile(u"auszug.csv"_s, "x")));
        QVERIFY(accepts(m_scene->Pdf(1)));
        QCOMPARE(papers.size(), 1);
        cStatementPapers shown(m_scene->Book.Tools, statement.Number());
        shown.SetDay(u"2026-03"_s);
        QVERIFY(shown.Add({{papers.first().first().toStringList().value(0)}}));
        statement.Reload();
        QVERIFY(Button(window, u"PDF-Auszüge (1)…"_s).isEnabled());
    }

private:
    std::optional<cScene> m_scene;
};

TEST_CLASS(testFrmBelege, QApplication)
#include "testFrmBelege.moc"
