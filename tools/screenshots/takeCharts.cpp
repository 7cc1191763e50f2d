#include "tools/screenshots/takeCharts.h"

#include "store/cDataAccess.h"
#include "tools/screenshots/cCamera.h"
#include "tools/screenshots/cDemoBook.h"
#include "views/chart/cChartMaker.h"
#include "windows/chart/cChartBox.h"

using namespace Qt::Literals::StringLiterals;

namespace {

void TakeOne(cCamera& camera, const cDemoBook& scene, const cChartWish& wish, const QString& name)
{
    cChartBox box;
    box.SetData(cChartMaker(scene.Tools().Data, scene.Format, scene.Clock.Today()).Make(wish));
    for (const int width : {120, 60}) {
        box.resize(box.fontMetrics().averageCharWidth() * width, box.fontMetrics().height() * (width == 120 ? 26 : 22));
        box.show();
        camera.Take(box, u"diagramm-%1%2"_s.arg(name, width == 60 ? u"-schmal"_s : QString()));
    }
    if (wish.Kind == eChartKind::Flow) {
        box.ShowTable(true);
        camera.Take(box, u"diagramm-%1-tabelle"_s.arg(name));
    }
}

} // namespace

bool TakeMoreCharts(cCamera& camera)
{
    cDemoBook scene;
    if (!scene.IsReady()) {
        return false;
    }
    const modPeriod::cRange year = modPeriod::Year(scene.Clock.Today(), 0);
    TakeOne(camera, scene, {.Kind = eChartKind::Flow, .Range = year}, u"geldfluss"_s);
    TakeOne(camera, scene, {.Kind = eChartKind::Flow, .Range = modPeriod::Month(scene.Clock.Today(), 0)},
            u"geldfluss-monat"_s);
    TakeOne(camera, scene, {.Kind = eChartKind::Calendar, .Range = year}, u"kalender"_s);
    TakeOne(camera, scene, {.Kind = eChartKind::NetWorth, .Range = year, .ForecastMonths = 6}, u"vermoegen"_s);
    TakeOne(camera, scene, {.Kind = eChartKind::Limits, .Range = year}, u"limits"_s);
    TakeOne(camera, scene,
            {.Kind = eChartKind::Flow, .Range = {year.Start.addYears(30), year.End.addYears(30)}, .ShowsFuture = false},
            u"geldfluss-leer"_s);
    const cDemoBook nothing(cDemoBook::eContent::Nothing);
    if (!nothing.IsReady()) {
        return false;
    }
    TakeOne(camera, nothing, {.Kind = eChartKind::Limits, .Range = year}, u"limits-leer"_s);
    return true;
}
