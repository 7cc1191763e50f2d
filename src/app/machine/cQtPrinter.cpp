#include "app/machine/cQtPrinter.h"

#include "base/cProgress.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "views/common/modFileWrite.h"
#include "windows/look/modIcon.h"
#include "windows/print/cPrintable.h"
#include "windows/print/modPages.h"
#include "windows/widget/cProgressBox.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrintPreviewDialog>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

// The pages that a printer is set to, as often and in the order in which they are wanted.
class cWantedPages final : public cPrintable
{
public:
    cWantedPages(cPrintable& content, const QPrinter& printer) : m_content(content), m_printer(printer) {}

    [[nodiscard]] QString Title() const override { return m_content.Title(); }

    int LayOut(QPaintDevice& device, const QRectF& area) override
    {
        const int count = m_content.LayOut(device, area);
        const int first = qBound(1, m_printer.fromPage(), count);
        const int last = m_printer.toPage() == 0 ? count : qBound(first, m_printer.toPage(), count);
        m_pages.clear();
        for (int page = first; page <= last; ++page) {
            m_pages.push_back(page - 1);
        }
        if (m_printer.pageOrder() == QPrinter::LastPageFirst) {
            std::reverse(m_pages.begin(), m_pages.end());
        }
        const int copies = m_printer.supportsMultipleCopies() ? 1 : m_printer.copyCount();
        return static_cast<int>(m_pages.size()) * copies;
    }

    void PaintPage(QPainter& painter, int page) const override
    {
        m_content.PaintPage(painter, m_pages[static_cast<std::size_t>(page) % m_pages.size()]);
    }

private:
    cPrintable& m_content;
    const QPrinter& m_printer;
    std::vector<int> m_pages; // of one copy, counted from 0
};

bool IsFile(const QPrinter& printer)
{
    return printer.outputFormat() == QPrinter::PdfFormat && !printer.outputFileName().isEmpty();
}

// The toolkit's window as the program's others are: its pictures, buttons that keys reach, and no point in a number.
// The last of the buttons, which prints.
QAction* Adapt(QPrintPreviewDialog& dialog)
{
    const QList<QToolButton*> buttons = dialog.findChildren<QToolButton*>();
    for (QToolButton* button : buttons) {
        button->setFocusPolicy(Qt::TabFocus);
    }
    auto* bar = dialog.findChild<QToolBar*>();
    bar->setMovable(false);
    QStringList names{u"seitenbreite"_s, u"seite-ganz"_s, u"kleiner"_s,     u"groesser"_s,         u"hochformat"_s,
                      u"querformat"_s,   u"anfang"_s,     u"vorige"_s,      u"naechste"_s,         u"ende"_s,
                      u"seite-eine"_s,   u"seite-zwei"_s, u"seite-viele"_s, u"seite-einrichten"_s, u"drucken"_s};
    for (QAction* action : bar->actions()) {
        if (!action->icon().isNull() && !names.isEmpty()) {
            action->setIcon(modIcon::Get(names.takeFirst()));
        }
    }
    auto* zoom = dialog.findChild<QComboBox*>()->lineEdit();
    QObject::connect(zoom, &QLineEdit::textChanged, zoom, [zoom](const QString& text) {
        // Without a blank before the sign, which the field would not take back.
        if (text.contains(u'.') && text.endsWith(u'%') && !zoom->isModified()) {
            zoom->setText(u"%1%"_s.arg(qRound(text.chopped(1).toDouble())));
        }
    });
    QAction* print = bar->actions().constLast();
    print->setShortcut(QKeySequence::Print);
    return print;
}

} // namespace

// Another one each time: a printer keeps the range and the copies of its last print, its file, and the failure of it.
std::unique_ptr<QPrinter> cQtPrinter::Printer(const cPrintable& content) const
{
    QApplication::setOverrideCursor(Qt::WaitCursor); // looking for printers takes a moment
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    if (!m_printer.isEmpty()) {
        printer->setPrinterName(m_printer);
    }
    QApplication::restoreOverrideCursor();
    if (m_layout) {
        printer->setPageLayout(*m_layout);
    } else {
        constexpr qreal margin = modPages::Margin;
        printer->setPageMargins({margin, margin, margin, margin}, QPageLayout::Millimeter);
    }
    printer->setCreator(QApplication::applicationName());
    printer->setDocName(modFileWrite::NameOf(content.Title()));
    if (!m_folder.isEmpty()) {
        printer->setOutputFileName(QDir(m_folder).filePath(modFileWrite::NameOf(content.Title()) + u".pdf"_s));
    }
    return printer;
}

void cQtPrinter::Remember(const QPrinter& printer)
{
    m_layout = printer.pageLayout();
    m_printer = printer.printerName();
    m_folder = IsFile(printer) ? QFileInfo(printer.outputFileName()).absolutePath() : QString();
}

QString cQtPrinter::Spool(QPrinter& printer, cPrintable& content) const
{
    cWantedPages pages(content, printer);
    if (IsFile(printer)) {
        return modFileWrite::Export(m_book, printer.outputFileName(), modPages::Pdf(pages, printer.pageLayout()));
    }
    cNoProgress progress;
    return modPages::Paint(printer, pages, progress) && printer.printerState() != QPrinter::Error
        ? QString()
        : cText::Tr("Der Druck ist fehlgeschlagen. Bitte prüfen Sie den Drucker.");
}

bool cQtPrinter::Ask(QPrinter& printer, cPrintable& content, QWidget* parent)
{
    QPrintDialog dialog(&printer, parent);
    dialog.setWindowTitle(cText::Tr("Drucken"));
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange
                      | QAbstractPrintDialog::PrintCollateCopies | QAbstractPrintDialog::PrintShowPageSize);
    if (dialog.exec() != QDialog::Accepted) {
        return false;
    }
    Remember(printer);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const QString problem = Spool(printer, content);
    QApplication::restoreOverrideCursor();
    if (!problem.isEmpty()) {
        m_user.Show(eTone::Critical, problem);
    }
    return true;
}

void cQtPrinter::Print(cPrintable& content, QWidget* parent)
{
    (void)Ask(*Printer(content), content, parent);
}

void cQtPrinter::Preview(cPrintable& content, QWidget* parent)
{
    const std::unique_ptr<QPrinter> printer = Printer(content);
    QPrintPreviewDialog dialog(printer.get(), parent);
    dialog.setWindowTitle(cText::Tr("Seitenansicht"));
    if (parent != nullptr) {
        dialog.resize(parent->size());
    }
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [&](QPrinter* target) {
        cProgressBox progress(dialog.isVisible() ? &dialog : parent, cText::Tr("Die Seiten werden vorbereitet …"));
        if (!modPages::Paint(*target, content, progress)) {
            QMetaObject::invokeMethod(&dialog, &QDialog::reject, Qt::QueuedConnection); // it may be about to open
        }
    });
    // The window's own way of printing tells nothing about a failure.
    QAction* print = Adapt(dialog);
    QObject::disconnect(print, nullptr, &dialog, nullptr);
    QObject::connect(print, &QAction::triggered, &dialog, [&] {
        if (Ask(*printer, content, &dialog)) {
            dialog.accept();
        }
    });
    dialog.exec();
    m_layout = printer->pageLayout();
}
