#include "bench/cBenchBook.h"
#include "model/modWord.h"
#include "support/cFakeNavigator.h"
#include "views/main/cMainModel.h"
#include "views/statistics/cStatisticsModel.h"
#include "windows/report/cReportView.h"
#include "windows/statistics/frmStatistik.h"

#include <QApplication>

#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

// The statistics page over 100,000 entries: what a report costs to show, to resize, and as a whole page.

namespace {

struct cScene
{
    explicit cScene(eReport type = eReport::Sum)
    {
        Main.RestoreView(false);
        Model.Restore();
        Model.ChoosePage(cStatisticsModel::ePage::Report);
        Model.ChooseReport(type);
        Model.ChoosePeriod(u"Buchungen bis heute"_s);
    }

    cFakeShell Shell;
    cFakeNavigator Navigator;
    cMainModel Main{cBenchBook::Large().Tools(),
                    {cBenchBook::Large().Configuration(), Shell, Navigator, cBenchBook::Large().Path()}};
    cStatisticsModel Model{cBenchBook::Large().Tools(), {Shell, Navigator, Main}};
};

void Paint(QWidget& widget)
{
    QApplication::processEvents();
    widget.grab();
}

void ShowReport(benchmark::State& state)
{
    cScene scene(static_cast<eReport>(state.range(0)));
    scene.Model.SetShown(true);
    cReportView view;
    view.resize(900, 700);
    view.show();
    for (auto _ : state) {
        view.SetReport(scene.Model.Html());
        Paint(view);
    }
    state.counters["html"] = static_cast<double>(scene.Model.Html().size());
}
BENCHMARK(ShowReport)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

void ResizeReport(benchmark::State& state)
{
    cScene scene(static_cast<eReport>(state.range(0)));
    scene.Model.SetShown(true);
    cReportView view;
    view.SetReport(scene.Model.Html());
    view.show();
    int width = 900;
    for (auto _ : state) {
        width = width == 900 ? 901 : 900;
        view.resize(width, 700);
        Paint(view);
    }
}
BENCHMARK(ResizeReport)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

// From the click on the tab to the painted page, with the query for the report.
void ShowStatistics(benchmark::State& state)
{
    cScene scene;
    for (auto _ : state) {
        scene.Model.BookChanged();
        frmStatistik page(scene.Model);
        page.resize(1000, 750);
        page.show();
        Paint(page);
        page.hide();
    }
}
BENCHMARK(ShowStatistics)->Unit(benchmark::kMillisecond);

} // namespace
