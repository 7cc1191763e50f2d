#include "tools/screenshots/takeBudget.h"

#include "tools/screenshots/cCamera.h"
#include "tools/screenshots/cDemoBook.h"
#include "views/budget/cBudgetEdit.h"
#include "views/budget/cBudgetModel.h"
#include "views/chart/cChartMaker.h"
#include "views/report/cReportSource.h"
#include "windows/budget/frmBudget.h"
#include "windows/chart/cChartBox.h"
#include "windows/report/cReportPane.h"
#include "windows/report/cReportView.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Limits of every kind: what last year told, the same in all months with what is left going on, once a year.
bool Plan(const cBookTools& tools)
{
    cBudgetEdit budget(tools, sceneDay.year());
    (void)budget.TakeLastYear();
    const auto plan = [&](const QString& path, qint64 cents) {
        const int row = budget.RowOf(path);
        budget.SpreadYear(row, std::nullopt);
        budget.SetPlain(row, cents);
        budget.SetCarriesOver(row, true);
        return row;
    };
    (void)plan(u"Staat; Gebühren und Ausweise"_s, 500);
    (void)plan(u"Wohnung; Reparaturen"_s, 5000);
    (void)plan(u"Wohnung; Garten"_s, 2500);
    budget.SetMonth(plan(u"Haushalt; Lebensmittel"_s, 65000), modBudget::MonthsOfYear, 75000);
    const int taxes = budget.RowOf(u"Staat; Steuernachzahlung"_s);
    budget.SpreadYear(taxes, 30000);
    budget.KeepYearIn(taxes, 6);
    return budget.Save();
}

void TakeReport(cCamera& camera, const cBookTools& tools)
{
    cReportSource source(tools);
    cReportWish wish;
    wish.Type = eReport::Budget;
    wish.Range = modPeriod::Year(sceneDay, 0);
    wish.Today = sceneDay;
    cReportPane pane;
    pane.View().SetReport(source.Html(wish));
    pane.resize(pane.fontMetrics().averageCharWidth() * 150, pane.fontMetrics().height() * 40);
    pane.show();
    camera.Take(pane, u"bericht-budget"_s);
}

void TakeChart(cCamera& camera, const cDemoBook& scene)
{
    cChartMaker maker(scene.Tools().Data, scene.Format, sceneDay);
    cChartBox box;
    box.SetData(maker.Make({.Kind = eChartKind::Budget, .Range = modPeriod::Year(sceneDay, 0)}));
    box.resize(box.fontMetrics().averageCharWidth() * 120, box.fontMetrics().height() * 26);
    box.show();
    camera.Take(box, u"diagramm-budget"_s);
}

} // namespace

bool TakeBudget(cCamera& camera)
{
    const cDemoBook scene;
    if (!scene.IsReady() || !Plan(scene.Tools())) {
        return false;
    }
    cBudgetModel model(scene.Tools());
    frmBudget window(model);
    window.show();
    camera.Take(window, u"budget"_s);
    TakeReport(camera, scene.Tools());
    TakeChart(camera, scene);
    return true;
}
