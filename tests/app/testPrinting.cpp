#include "app/machine/cQtPrinter.h"
#include "store/cDataAccess.h"
#include "store/cDatabase.h"
#include "support/cNoRoom.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"
#include "support/cTestRows.h"
#include "support/fakes.h"
#include "windows/print/cPrintable.h"
#include "windows/print/modPages.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrintPreviewWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolBar>

using namespace Qt::Literals::StringLiterals;

namespace {

class cFivePages final : public cPrintable
{
public:
    [[nodiscard]] QString Title() const override { return u"Fünf"_s; }
    int LayOut(QPaintDevice& /*device*/, const QRectF& area) override
    {
        Area = area;
        return 5;
    }
    void PaintPage(QPainter& painter, int page) const override
    {
        painter.drawRect(Area);
        Painted.append(page + 1);
    }

    QRectF Area;
    mutable QList<int> Painted;
};

void PrintTo(QPrinter& printer, const QString& path)
{
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path);
}

} // namespace

class testPrinting final : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void PrintsWhatTheDialogAskedFor_data()
    {
        const cTestRows<int, int, int, int, QList<int>> row("from", "to", "order", "copies", "pages");
        const int forwards = QPrinter::FirstPageFirst;
        row("all", 0, 0, forwards, 1, {1, 2, 3, 4, 5});
        row("range", 2, 3, forwards, 1, {2, 3});
        row("range beyond the end", 4, 99, forwards, 1, {4, 5});
        row("last page first", 1, 3, int(QPrinter::LastPageFirst), 1, {3, 2, 1});
        row("copies of a printer that makes none itself", 1, 2, forwards, 2, {1, 2, 1, 2});
    }

    void PrintsWhatTheDialogAskedFor()
    {
        QFETCH(const int, from);
        QFETCH(const int, to);
        QFETCH(const int, order);
        QFETCH(const int, copies);
        QFETCH(const QList<int>, pages);
        QTemporaryDir folder;
        QPrinter printer;
        PrintTo(printer, folder.filePath(u"a.pdf"_s));
        printer.setFromTo(from, to);
        printer.setPageOrder(static_cast<QPrinter::PageOrder>(order));
        printer.setCopyCount(copies);
        cFivePages content;
        QCOMPARE(m_way.Spool(printer, content), QString());
        QCOMPARE(content.Painted, pages);
        QVERIFY(content.Area.height() > content.Area.width() && content.Area.width() > 0);
        QCOMPARE(cTestFile::Bytes(printer.outputFileName()).count("/Type /Page\n"), pages.size());
    }

    void FullDiskKeepsTheOldFile()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(u"a.pdf"_s);
        cTestFile::Write(path, "old");
        QPrinter printer;
        PrintTo(printer, path);
        cFivePages content;
        {
            const cNoRoom room(100);
            QVERIFY(m_way.Spool(printer, content).contains(u"zu groß"_s));
        }
        QCOMPARE(cTestFile::Bytes(path), QByteArray("old"));
        QCOMPARE(m_way.Spool(printer, content), QString());
        QVERIFY(cTestFile::Bytes(path).startsWith("%PDF"));
    }

    // The file of the second print is proposed beside that of the first, and it is all pages again, once.
    void NothingOfTheLastPrintIsLeft()
    {
        QTemporaryDir folder;
        cFivePages content;
        QTimer::singleShot(0, this, [&] {
            auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
            PrintTo(*dialog->printer(), folder.filePath(u"a.pdf"_s));
            dialog->printer()->setFromTo(2, 2);
            dialog->printer()->setCopyCount(2);
            dialog->done(QDialog::Accepted);
        });
        m_way.Print(content, nullptr);
        QString path;
        QTimer::singleShot(0, this, [&] {
            auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
            path = dialog->printer()->outputFileName();
            dialog->done(QDialog::Accepted);
        });
        m_way.Print(content, nullptr);
        QCOMPARE(path, folder.filePath(u"Fünf.pdf"_s));
        QCOMPARE(content.Painted, (QList<int>{2, 2, 1, 2, 3, 4, 5}));
    }

    void PagesStopWhereTheUserDoes()
    {
        QTemporaryDir folder;
        QPrinter printer;
        PrintTo(printer, folder.filePath(u"a.pdf"_s));
        cFivePages content;
        cFakeStop stop(2);
        QVERIFY(!modPages::Paint(printer, content, stop));
        QCOMPARE(content.Painted, (QList<int>{1, 2}));
    }

    void PreviewPrintsByKey()
    {
        cFivePages content;
        QString asked;
        QTimer::singleShot(0, this, [&] {
            QWidget* preview = QApplication::activeModalWidget();
            QVERIFY(QTest::qWaitForWindowActive(preview));
            auto* zoom = preview->findChild<QComboBox*>()->lineEdit();
            QVERIFY(!zoom->text().contains(u'.') && zoom->text().endsWith(u'%'));
            zoom->selectAll();
            QTest::keyClicks(zoom, u"75"_s);
            QTest::keyClick(zoom, Qt::Key_Return);
            QCOMPARE(preview->findChild<QPrintPreviewWidget*>()->zoomFactor(), 0.75);
            int pictures = 0; // as many as the program has in their order
            for (const QAction* action : preview->findChild<QToolBar*>()->actions()) {
                pictures += action->icon().isNull() ? 0 : 1;
            }
            QCOMPARE(pictures, 15);
            QTimer::singleShot(0, this, [&, preview] {
                QDialog* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
                asked = dialog == nullptr ? QString() : dialog->windowTitle();
                (dialog == nullptr ? preview : dialog)->close();
                preview->close();
            });
            QTest::keyClick(preview, Qt::Key_P, Qt::ControlModifier);
        });
        m_way.Preview(content, nullptr);
        QCOMPARE(asked, u"Drucken"_s);
    }

private:
    cFakeUser m_user;
    cDatabase m_database;
    cDataAccess m_book{m_database, m_user};
    cQtPrinter m_way{m_user, m_book};
};

TEST_CLASS(testPrinting, QApplication)
#include "testPrinting.moc"
