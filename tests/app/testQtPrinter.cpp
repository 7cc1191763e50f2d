#include "app/machine/cQtPrinter.h"
#include "app/machine/modQtFilter.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"
#include "support/cTestRows.h"
#include "windows/print/cPrintable.h"

#include <QApplication>
#include <QPainter>
#include <QPrinter>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace {

// Five pages that note when they are painted.
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

class testQtPrinter final : public QObject
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
        QVERIFY(cQtPrinter::Spool(printer, content));
        QCOMPARE(content.Painted, pages);
        QVERIFY(content.Area.height() > content.Area.width() && content.Area.width() > 0);
        QCOMPARE(cTestFile::Bytes(printer.outputFileName()).count("/Type /Page\n"), pages.size());
    }

    void FileThatCannotBeWritten()
    {
        QTemporaryDir folder;
        QPrinter printer;
        PrintTo(printer, folder.filePath(u"missing/a.pdf"_s));
        cFivePages content;
        QTest::ignoreMessage(QtWarningMsg, "QPainter::begin(): Returned false");
        QVERIFY(!cQtPrinter::Spool(printer, content));
    }

    void EndingFollowsTheChosenFilter_data()
    {
        const cTestRows<QString, QString> row("chosen", "ending");
        row("first", u"CSV-Datei (*.csv)"_s, u"csv"_s);
        row("second", u"Excel-Datei (*.xlsx)"_s, u"xlsx"_s);
        row("all files", u"Alle Dateien (*)"_s, u"csv"_s);
    }

    void EndingFollowsTheChosenFilter()
    {
        QFETCH(const QString, chosen);
        QTEST(modQtFilter::ChosenEnding(u"CSV-Datei|*.csv|Excel-Datei|*.xlsx|Alle Dateien|*.*"_s, chosen), "ending");
    }
};

TEST_CLASS(testQtPrinter, QApplication)
#include "testQtPrinter.moc"
