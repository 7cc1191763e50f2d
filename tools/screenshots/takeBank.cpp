#include "tools/screenshots/takeBank.h"

#include "app/machine/cQtRegistry.h"
#include "app/machine/cQtShell.h"
#include "app/machine/cQtUser.h"
#include "core/cAmountFormat.h"
#include "core/cBook.h"
#include "core/cConfiguration.h"
#include "core/cSettings.h"
#include "tools/screenshots/cCamera.h"
#include "tools/screenshots/cDemoBook.h"
#include "views/bank/cApprovalWait.h"
#include "views/bank/cBankLogView.h"
#include "views/bank/cTanEntry.h"
#include "windows/bank/frmPin.h"
#include "windows/bank/frmProtokoll.h"
#include "windows/bank/frmTan.h"

#include <QBuffer>
#include <QImage>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace {

cTanQuestion Question(eTanDisplay display)
{
    cTanQuestion question;
    question.Bank = u"Sparkasse Ahornstadt"_s;
    question.Medium = u"Karte Girokonto"_s;
    question.Label = u"TAN-Eingabe:"_s;
    question.Display = display;
    question.MostCharacters = 6;
    question.IsNumber = true;
    return question;
}

// A mosaic like those that banks send.
QByteArray Mosaic()
{
    constexpr int fields = 29;
    constexpr int dots = 8;
    QImage image(fields * dots, fields * dots, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int field = (x / dots * 7 + y / dots * 13 + x / dots * (y / dots)) % 5;
            image.setPixelColor(x, y, QList<QColor>{Qt::white, Qt::red, Qt::blue, Qt::green, Qt::white}.at(field));
        }
    }
    QByteArray file;
    QBuffer buffer(&file);
    image.save(&buffer, "PNG");
    return file;
}

void TakeTan(cCamera& camera, cSettings& settings, const cTanQuestion& question, const QString& name)
{
    cTanEntry entry(question, settings);
    frmTan window(entry);
    window.show();
    camera.Take(window, name);
}

void TakeTans(cCamera& camera, cSettings& settings)
{
    cTanQuestion bars = Question(eTanDisplay::Flicker);
    bars.Procedure = u"chipTAN optisch"_s;
    bars.Challenge = u"Sie möchten Ihre Umsätze abfragen.\r\nBitte bestätigen Sie mit \"OK\" auf Ihrem Generator: "
                     "Startcode 2045201998"_s;
    bars.Flicker = QByteArray("\x17", 1);
    TakeTan(camera, settings, bars, u"tan-flicker"_s);
    cTanQuestion picture = Question(eTanDisplay::Picture);
    picture.Procedure = u"photoTAN"_s;
    picture.Medium.clear();
    picture.Challenge = u"Bitte bestätigen Sie die Umsatzabfrage mit einer photoTAN."_s;
    picture.Picture = Mosaic();
    TakeTan(camera, settings, picture, u"tan-bild"_s);
    cTanQuestion words = Question(eTanDisplay::Text);
    words.Procedure = u"smsTAN"_s;
    words.Medium = u"Mobiltelefon …4711"_s;
    words.Challenge = u"Die TAN wurde an die Rufnummer …4711 gesendet."_s;
    TakeTan(camera, settings, words, u"tan-text"_s);
}

} // namespace

bool TakeBank(cCamera& camera)
{
    cDemoBook scene(cDemoBook::eContent::Nothing);
    if (!scene.IsReady()) {
        return false;
    }
    TakeTans(camera, scene.Book.Settings());
    frmPin pin({u"Volksbank Hohenfels"_s, u"12345678"_s, u"sandmeier"_s, u"VR-NetKey"_s});
    pin.show();
    camera.Take(pin, u"pin"_s);

    const cFixedClock clock;
    cApprovalWait wait(clock);
    cApproval approval;
    approval.Bank = u"Volksbank Hohenfels"_s;
    approval.Procedure = u"SecureGo plus (Direktfreigabe)"_s;
    approval.Challenge = u"Freigabe in der App: Zugriff auf die Umsätze der letzten 90 Tage durch Kontorelle"_s;
    approval.WaitSeconds = 5;
    approval.ValidUntil = clock.Now().addSecs(285);
    wait.Start(approval);
    frmTan window(wait);
    window.show();
    camera.Take(window, u"freigabe"_s);

    const QString text = u"Nachricht an Bank\nHNHBK:1:3+000000000370+300+0+1'\nHNVSK:998:3+PIN:1+998+1+1::0'\n\n"
                         "Antwort von Bank\nHNHBK:1:3+000000000213+300+DIALOG1+1'\nHIRMG:2:2+0010::Nachricht "
                         "entgegengenommen.'\n"_s;
    const cBankLogView log(text, text, {scene.User, scene.Shell, clock});
    frmProtokoll protocol(log);
    protocol.show();
    camera.Take(protocol, u"bankprotokoll"_s);
    return true;
}
