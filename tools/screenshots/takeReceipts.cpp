#include "tools/screenshots/takeReceipts.h"

#include "core/cBookTools.h"
#include "store/cDataAccess.h"
#include "support/cFakeDesk.h"
#include "tools/screenshots/cCamera.h"
#include "tools/screenshots/cDemoBook.h"
#include "views/receipt/cReceiptListModel.h"
#include "views/receipt/cReceipts.h"
#include "views/receipt/cStatementPapers.h"
#include "windows/receipt/cPreviewView.h"
#include "windows/receipt/frmBelege.h"

#include <QElapsedTimer>
#include <QFile>
#include <QPainter>
#include <QPdfWriter>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

void WriteLetter(const QString& path, const QString& sender, const QString& subject)
{
    QPdfWriter writer(path);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setResolution(100);
    QPainter painter(&writer);
    for (int page = 1; page <= 2; ++page) {
        if (page > 1) {
            writer.newPage();
        }
        painter.setFont(QFont(painter.font().family(), 18));
        painter.drawText(80, 120, sender);
        painter.setFont(QFont(painter.font().family(), 11));
        painter.drawText(80, 240, u"%1, Seite %2 von 2"_s.arg(subject).arg(page));
        for (int line = 0; line < 6; ++line) {
            painter.drawText(80, 320 + line * 40, u"Posten %1"_s.arg(line + 1));
            painter.drawText(560, 320 + line * 40, u"%1,90 €"_s.arg(19 + 7 * line));
        }
    }
}

// The preview comes from beside the window.
void WaitFor(const cPreviewView& preview)
{
    QElapsedTimer time;
    time.start();
    constexpr int enough = 5000;
    while (!preview.HasPicture() && time.elapsed() < enough) {
        Settle();
    }
}

void Take(cCamera& camera, cReceiptListModel& receipts, const QString& name)
{
    frmBelege window(receipts);
    window.show();
    if (!receipts.PathAt(0).isEmpty()) {
        WaitFor(*window.findChild<cPreviewView*>());
    }
    camera.Take(window, name);
}

void TakeEntry(cCamera& camera, const cDemoBook& scene, int entry, const QString& name)
{
    cFakeDesk desk;
    cReceiptListModel receipts(scene.Tools(), desk, entry);
    Take(camera, receipts, name);
}

// The statements of a bank account as PDF: none, and those of some months.
bool TakePapers(cCamera& camera, const cDemoBook& scene)
{
    const QString number = scene.Tools().Data.GetImportEntries().value(0).ImportAccount;
    cFakeDesk desk;
    cReceiptListModel none(scene.Tools(), desk, std::make_unique<cStatementPapers>(scene.Tools(), number));
    Take(camera, none, u"auszuege-keiner"_s);
    cStatementPapers papers(scene.Tools(), number);
    for (const QString& month : {u"2026-08"_s, u"2026-09-30"_s, u"2026-10"_s}) {
        const QString path = scene.Folder.filePath(u"Auszug "_s + month + u".pdf"_s);
        WriteLetter(path, u"Sparkasse Ahornstadt"_s, u"Kontoauszug "_s + month);
        if (!papers.Add({{path}})) {
            return false;
        }
    }
    cReceiptListModel some(scene.Tools(), desk, std::make_unique<cStatementPapers>(scene.Tools(), number));
    Take(camera, some, u"auszuege"_s);
    return true;
}

} // namespace

bool TakeReceipts(cCamera& camera)
{
    const cDemoBook scene;
    if (!scene.IsReady()) {
        return false;
    }
    const int entry = 1;
    TakeEntry(camera, scene, entry, u"belege-keiner"_s);
    const QString invoice = scene.Folder.filePath(u"rechnung.pdf"_s);
    const QString reminder = scene.Folder.filePath(u"mahnung.pdf"_s);
    WriteLetter(invoice, u"Elektro Ahorn"_s, u"Rechnung 2026-1174"_s);
    WriteLetter(reminder, u"Elektro Ahorn"_s, u"Erinnerung an Rechnung 2026-1174"_s);
    const cReceipts receipts(scene.Tools());
    if (!receipts.Add(entry, {{invoice}, {reminder}})) {
        return false;
    }
    TakeEntry(camera, scene, entry, u"belege"_s);
    QFile::remove(receipts.Of(entry).constFirst().Path);
    TakeEntry(camera, scene, entry, u"belege-fehlt"_s);
    return TakePapers(camera, scene);
}
