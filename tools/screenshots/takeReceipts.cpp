#include "tools/screenshots/takeReceipts.h"

#include "core/cBookTools.h"
#include "store/cDataAccess.h"
#include "support/cFakeDesk.h"
#include "tools/screenshots/cCamera.h"
#include "tools/screenshots/cDemoBook.h"
#include "views/receipt/cReceiptListModel.h"
#include "windows/receipt/cPreviewView.h"
#include "windows/receipt/frmBelege.h"

#include <QElapsedTimer>
#include <QFile>
#include <QPainter>
#include <QPdfWriter>

using namespace Qt::Literals::StringLiterals;

namespace {

void WriteInvoice(const QString& path)
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
        painter.drawText(80, 120, u"Elektro Ahorn"_s);
        painter.setFont(QFont(painter.font().family(), 11));
        painter.drawText(80, 240, u"Rechnung 2026-1174, Seite %1 von 2"_s.arg(page));
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

void Take(cCamera& camera, const cDemoBook& scene, int entry, const QString& name)
{
    cFakeDesk desk;
    cReceiptListModel receipts(scene.Tools(), desk, entry);
    frmBelege window(receipts);
    window.show();
    if (!receipts.PathAt(0).isEmpty()) {
        WaitFor(*window.findChild<cPreviewView*>());
    }
    camera.Take(window, name);
}

} // namespace

bool TakeReceipts(cCamera& camera)
{
    const cDemoBook scene;
    if (!scene.IsReady()) {
        return false;
    }
    const int entry = 1;
    Take(camera, scene, entry, u"belege-keiner"_s);
    WriteInvoice(scene.Folder.filePath(u"rechnung.pdf"_s));
    const cReceipts receipts(scene.Tools());
    const QString invoice = scene.Folder.filePath(u"rechnung.pdf"_s);
    if (!receipts.Add(entry, {{invoice}, {invoice}})) {
        return false;
    }
    Take(camera, scene, entry, u"belege"_s);
    QFile::remove(receipts.Of(entry).constFirst().Path);
    Take(camera, scene, entry, u"belege-fehlt"_s);
    return true;
}
