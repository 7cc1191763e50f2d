#include "app/machine/cQtPrinter.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "windows/print/cPrintable.h"

#include <QApplication>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrintPreviewDialog>

#include <algorithm>
#include <vector>

namespace {

// A file is named after the document, without what comes after the last dot: that would be the year of a date.
QString DocumentName(const cPrintable& content)
{
    return content.Title().replace(u'.', u'-');
}

// The pages of one copy in the order in which they are wanted, counted from 0.
std::vector<int> Wanted(const QPrinter& printer, int count)
{
    const int first = qBound(1, printer.fromPage(), count);
    const int last = printer.toPage() == 0 ? count : qBound(first, printer.toPage(), count);
    std::vector<int> pages;
    for (int page = first; page <= last; ++page) {
        pages.push_back(page - 1);
    }
    if (printer.pageOrder() == QPrinter::LastPageFirst) {
        std::reverse(pages.begin(), pages.end());
    }
    return pages;
}

} // namespace

cQtPrinter::cQtPrinter(cUser& user) : m_user(user)
{
}

cQtPrinter::~cQtPrinter() = default;

QPrinter& cQtPrinter::Printer()
{
    if (!m_printer) {
        constexpr qreal margin = 15; // millimetres, room for holes
        QApplication::setOverrideCursor(Qt::WaitCursor);
        m_printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        QApplication::restoreOverrideCursor();
        m_printer->setPageMargins({margin, margin, margin, margin}, QPageLayout::Millimeter);
        m_printer->setCreator(QApplication::applicationName());
    }
    return *m_printer;
}

bool cQtPrinter::Spool(QPrinter& printer, cPrintable& content)
{
    QPainter painter;
    if (!painter.begin(&printer)) {
        return false;
    }
    const QRectF area(QPointF(), printer.pageRect(QPrinter::DevicePixel).size());
    const std::vector<int> pages = Wanted(printer, content.LayOut(printer, area));
    const int copies = printer.supportsMultipleCopies() ? 1 : printer.copyCount();
    bool isFirst = true;
    for (int copy = 0; copy < copies; ++copy) {
        for (const int page : pages) {
            if (!isFirst && !printer.newPage()) {
                return false;
            }
            isFirst = false;
            content.PaintPage(painter, page);
        }
    }
    return painter.end() && printer.printerState() != QPrinter::Error;
}

void cQtPrinter::Print(cPrintable& content, QWidget* parent)
{
    QPrinter& printer = Printer();
    printer.setDocName(DocumentName(content));
    QPrintDialog dialog(&printer, parent);
    dialog.setWindowTitle(cText::Tr("Drucken"));
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange
                      | QAbstractPrintDialog::PrintCollateCopies | QAbstractPrintDialog::PrintShowPageSize);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const bool isPrinted = Spool(printer, content);
    QApplication::restoreOverrideCursor();
    if (!isPrinted) {
        m_user.Show(eTone::Critical,
                    cText::Tr("Der Druck ist fehlgeschlagen. Bitte prüfen Sie den Drucker oder den Namen der Datei."));
    }
}

void cQtPrinter::Preview(cPrintable& content, QWidget* parent)
{
    QPrinter& printer = Printer();
    printer.setDocName(DocumentName(content));
    // Range, order and copies were only meant for the last print.
    printer.setFromTo(0, 0);
    printer.setPageOrder(QPrinter::FirstPageFirst);
    printer.setCopyCount(1);
    QPrintPreviewDialog dialog(&printer, parent);
    dialog.setWindowTitle(cText::Tr("Seitenansicht"));
    if (parent != nullptr) {
        dialog.resize(parent->size());
    }
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [&content](QPrinter* target) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        (void)Spool(*target, content);
        QApplication::restoreOverrideCursor();
    });
    dialog.exec();
}
