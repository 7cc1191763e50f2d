#include "tools/screenshots/takeHelp.h"

#include "tools/screenshots/cCamera.h"
#include "tools/screenshots/cDemoBook.h"
#include "views/entry/cEntryDrafts.h"
#include "views/help/cHighScores.h"
#include "views/help/cManualBrowser.h"
#include "views/help/modAbout.h"
#include "views/help/modBroken.h"
#include "windows/game/cGameView.h"
#include "windows/game/frmSpiel.h"
#include "windows/help/frmHandbuch.h"
#include "windows/help/frmUeber.h"

#include <QLineEdit>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace {

// The manual: a page with a picture, tables and code, and what a search found.
bool TakeManual(cCamera& camera)
{
    const QTemporaryDir profile;
    cQtShell shell(profile.path());
    cQtRegistry registry(profile.path());
    cQtUser user(registry);
    cManualBrowser browser(shell, user);
    if (browser.Manual().Sections().isEmpty()) {
        return false;
    }
    frmHandbuch window(browser);
    window.show();
    for (const auto& [page, name] : {std::pair{u"index.html"_s, u"inhalt"_s}, std::pair{u"01-start.html"_s, u"start"_s},
                                     std::pair{u"02-kontoauszug.html"_s, u"tabelle"_s},
                                     std::pair{u"12-befehlszeile.html#zeigen-suchen-exportieren"_s, u"befehle"_s},
                                     std::pair{u"faq.html"_s, u"fragen"_s}}) {
        browser.Open(page);
        camera.Take(window, u"handbuch-"_s + name);
    }
    window.findChild<QLineEdit*>()->setText(u"photoTAN"_s);
    camera.Take(window, u"handbuch-suchen"_s);
    return true;
}

// Before the first run, while it runs, and paused.
void TakeGame(cCamera& camera, cDemoBook& scene)
{
    cHighScores scores(scene.Book.Settings());
    frmSpiel window(scores, sceneDay, [] { return 7U; });
    window.show();
    camera.Take(window, u"spiel"_s);
    auto& view = *window.findChild<cGameView*>();
    Q_EMIT view.Wanted();
    Settle(2500);
    camera.Take(window, u"spiel-laeuft"_s);
    Q_EMIT view.Wanted();
    camera.Take(window, u"spiel-pause"_s);
}

} // namespace

bool TakeHelp(cCamera& camera)
{
    cDemoBook scene(cDemoBook::eContent::Nothing);
    if (!scene.IsReady() || !TakeManual(camera)) {
        return false;
    }
    frmUeber about(modAbout::Name(u"0.1.0"_s, u"a1b2c3d"_s));
    about.show();
    camera.Take(about, u"ueber"_s);
    TakeGame(camera, scene);
    const QDateTime moment(sceneDay.addDays(-1), QTime(21, 14));
    camera.TakeDialog(u"absturz"_s, [&] { (void)modBroken::Ask(scene.User, {moment, true, sceneDay.addDays(-1)}); });
    camera.TakeDialog(u"absturz-ohne-sicherung"_s, [&] { (void)modBroken::Ask(scene.User, {moment, false, {}}); });
    cEntryDraft draft;
    draft.Kept = moment;
    draft.Fields.Amount = u"12,50"_s;
    draft.Fields.Category = u"Haushalt; Lebensmittel"_s;
    draft.Fields.Description = u"Wochenmarkt"_s;
    camera.TakeDialog(u"entwurf"_s, [&] { (void)cEntryDrafts::Ask(draft, scene.User); });
    return true;
}
