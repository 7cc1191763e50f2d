#include "tools/screenshots/takeUpdate.h"

#include "support/cFakeHttps.h"
#include "support/modUpdateAnswer.h"
#include "tools/screenshots/cCamera.h"
#include "tools/screenshots/cDemoBook.h"
#include "views/help/cUpdateCheck.h"
#include "windows/help/frmUpdate.h"

using namespace Qt::Literals::StringLiterals;

namespace {

void Take(cCamera& camera, const cDemoBook& scene, cConfiguration& configuration, const cHttpsAnswer& answer,
          const QString& name)
{
    cFakeHttps maker;
    maker.Answers.push_back(answer);
    cUpdateCheck check(scene.Tools(), configuration, maker,
                       {u"https://updates.kontorelle.example/versionen.xml"_s, u"0.1.0"_s});
    frmUpdate window(check);
    window.show();
    camera.Take(window, name);
}

} // namespace

bool TakeUpdate(cCamera& camera)
{
    cDemoBook scene(cDemoBook::eContent::Nothing);
    if (!scene.IsReady()) {
        return false;
    }
    const QByteArray releases = modUpdateAnswer::Release("0.3.0",
                                                         "<notes>- Der Haushaltsplan zeigt auch das Vorjahr.\n- Kurse "
                                                         "von Wertpapieren</notes>"
                                                             + modUpdateAnswer::File(),
                                                         "2027-03-01")
        + modUpdateAnswer::Release("0.2.0", "<notes>- Auswertungen als Tabelle\n- Schneller bei großen Büchern</notes>",
                                   "2027-01-15");
    Take(camera, scene, scene.Configuration, {eHttpsFault::None, modUpdateAnswer::All(releases), {}}, u"update"_s);
    Take(camera, scene, scene.Configuration, {eHttpsFault::None, modUpdateAnswer::All({}), {}}, u"update-keines"_s);
    Take(camera, scene, scene.Configuration, {eHttpsFault::NotReachable, {}, {}}, u"update-ohne-netz"_s);
    return true;
}
