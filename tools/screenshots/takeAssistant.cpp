#include "tools/screenshots/takeAssistant.h"

#include "app/machine/cQtRegistry.h"
#include "app/machine/cQtShell.h"
#include "app/machine/cQtUser.h"
#include "core/cAmountFormat.h"
#include "core/cBook.h"
#include "core/cConfiguration.h"
#include "core/cSettings.h"
#include "tools/screenshots/cCamera.h"
#include "tools/screenshots/cDemoBook.h"
#include "views/statement/cImportAssistant.h"
#include "views/statement/cImportReview.h"
#include "views/statement/cStatementFiles.h"
#include "windows/statement/frmImportAssistent.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

bool TakeAssistant(cCamera& camera)
{
    cDemoBook scene(cDemoBook::eContent::Nothing);
    QFile file(scene.Folder.filePath(u"umsaetze.csv"_s));
    const QByteArray table = "Umsätze;Konto Familie Sandmeier\n"
                             "Tag;Partner;Was;Preis;Wert;Zustand\n"
                             "02.11.2026;Bäckerei Krume;Brot und Brezeln;1;-7,80;gebucht\n"
                             "03.11.2026;Stadtwerke Hohenfels;Abschlag Strom November Kunde 4711;1;-84,00;gebucht\n"
                             "05.11.2026;Werkzeugbau Ammersbek GmbH;Lohn;1;2.410,55;gebucht\n"
                             "06.11.2026;Kino am Ring;;2;-19,00;gebucht\n"
                             "19.11.2026;Tankstelle;Kartenzahlung;1;-61,37;vorgemerkt\n";
    if (!scene.IsReady() || !file.open(QIODevice::WriteOnly) || file.write(table) != table.size()) {
        return false;
    }
    file.close();
    cImportReview review(scene.Tools());
    const auto assistant = review.Files().StartAssistant(file.fileName());
    if (!assistant) {
        return false;
    }
    const auto mean = [&](int column, const QString& meaning) {
        assistant->SetMeaning(column, static_cast<int>(cImportAssistant::Meanings().indexOf(meaning)));
    };
    frmImportAssistent window(*assistant);
    window.show();
    camera.Take(window, u"importassistent"_s);
    mean(1, u"Empfänger/Auftraggeber"_s);
    mean(2, u"Verwendungszweck"_s);
    mean(5, u"Stand (vorgemerkt, gebucht)"_s);
    assistant->SetAccount(u"DE89370400440532013000"_s);
    camera.Take(window, u"importassistent-fertig"_s);
    return true;
}
