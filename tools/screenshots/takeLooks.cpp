#include "tools/screenshots/takeLooks.h"

#include "core/cSettings.h"
#include "model/modWord.h"
#include "support/cFakeNavigator.h"
#include "tools/screenshots/cCamera.h"
#include "tools/screenshots/cDemoBook.h"
#include "views/budget/cBudgetModel.h"
#include "views/chart/cChartMaker.h"
#include "views/look/cCategoryLooks.h"
#include "views/look/modCategoryColor.h"
#include "views/look/modCategoryIcon.h"
#include "views/main/cMainModel.h"
#include "views/overview/cOverviewModel.h"
#include "views/statement/cImportReview.h"
#include "views/template/cTemplateManager.h"
#include "windows/budget/frmBudget.h"
#include "windows/chart/cChartBox.h"
#include "windows/look/modLook.h"
#include "windows/main/cEntryTree.h"
#include "windows/main/frmMain.h"
#include "windows/overview/frmUebersicht.h"
#include "windows/statement/frmImport.h"
#include "windows/template/cLookBox.h"
#include "windows/template/frmKategorie.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

using namespace Qt::Literals::StringLiterals;

namespace {

// Every colour and every picture that there are categories for; one category has a colour alone, one has neither.
bool Paint(const cBookTools& tools)
{
    const QStringList mains = cTemplateManager(tools).Mains();
    const QList<modCategoryColor::cOffer> colors = modCategoryColor::Offers();
    const QStringList icons{u"haus"_s,         u"einkauf"_s, u"gesundheit"_s, u"auto"_s,  u"sport"_s,
                            u"versicherung"_s, u"geld"_s,    u"sparen"_s,     u"reise"_s, u"kind"_s};
    bool isGood = cCategoryLooks::Store(tools.Settings, u"Wohnung"_s, {u"#7b2d8b"_s, u"haus"_s})
        && cCategoryLooks::Store(tools.Settings, u"Haushalt"_s, {colors.at(3).Stored, u"einkauf"_s});
    for (int i = 0; i < mains.size() && isGood; ++i) {
        if (mains.at(i) != u"Wohnung" && mains.at(i) != u"Haushalt" && i % 5 != 4) {
            isGood = cCategoryLooks::Store(
                tools.Settings, mains.at(i),
                {colors.at(i % colors.size()).Stored, i % 5 == 3 ? QString() : icons.at(i % icons.size())});
        }
    }
    return isGood;
}

void TakeLists(cCamera& camera, cDemoBook& scene)
{
    cFakeNavigator navigator;
    cMainModel model(scene.Tools(), {scene.Configuration, scene.Shell, navigator, scene.Book.Path()});
    frmMain window(model);
    model.RestoreView(false);
    model.ChoosePeriod(u"Aktueller Monat"_s);
    window.show();
    Settle();
    window.findChild<cEntryTree*>()->setCurrentIndex(model.Entries().index(2, cEntryListModel::Date));
    camera.Take(window, u"farben-liste"_s);
    model.ChooseGrouping(u"Nach Kategorie"_s);
    camera.Take(window, u"farben-gruppen"_s);
    cImportReview review(scene.Tools());
    frmImport page(review);
    page.resize(1280, 700);
    page.show();
    camera.Take(page, u"farben-umsaetze"_s);
    cOutlook outlook(scene.Tools());
    cOverviewModel overview(scene.Tools(), {navigator, model, outlook});
    frmUebersicht first(overview);
    first.resize(1280, 700);
    first.show();
    overview.Read();
    camera.Take(first, u"farben-uebersicht"_s);
}

void TakeCharts(cCamera& camera, const cDemoBook& scene)
{
    cChartMaker maker(scene.Tools().Data, scene.Format, sceneDay);
    for (const auto& [kind, name] :
         {std::pair{eChartKind::ExpensePie, u"kreis"_s}, std::pair{eChartKind::ExpenseMonths, u"monate"_s},
          std::pair{eChartKind::Flow, u"geldfluss"_s}, std::pair{eChartKind::Limits, u"limits"_s}}) {
        cChartBox box;
        box.SetData(maker.Make({.Kind = kind, .Range = modPeriod::Year(sceneDay, 0)}));
        box.resize(box.fontMetrics().averageCharWidth() * 120, box.fontMetrics().height() * 26);
        box.show();
        camera.Take(box, u"farben-"_s + name);
    }
}

// Every picture in every colour.
void TakeAll(cCamera& camera)
{
    QWidget sheet;
    auto* grid = new QGridLayout(&sheet);
    const QList<modCategoryIcon::cOffer> icons = modCategoryIcon::Offers();
    const QList<modCategoryColor::cOffer> colors = modCategoryColor::Offers();
    for (int row = 0; row <= colors.size(); ++row) {
        const QString color = row < colors.size() ? colors.at(row).Stored : QString();
        for (int column = 0; column <= icons.size(); ++column) {
            auto* label = new QLabel(&sheet);
            label->setPixmap(
                modLook::Icon({color, column > 0 ? icons.at(column - 1).Stored : QString()}).pixmap(QSize(20, 20)));
            grid->addWidget(label, row, column);
        }
    }
    sheet.setBackgroundRole(QPalette::Base);
    sheet.setAutoFillBackground(true);
    sheet.show();
    camera.Take(sheet, u"farben-alle"_s);
}

} // namespace

bool TakeLooks(cCamera& camera)
{
    cDemoBook scene;
    if (!scene.IsReady() || !Paint(scene.Tools())) {
        return false;
    }
    cTemplateManager manager(scene.Tools());
    frmKategorie categories(manager);
    categories.show();
    (void)categories.Select(u"Haushalt"_s);
    camera.Take(categories, u"farben-kategorien"_s);
    auto* icons = categories.findChild<cLookBox*>()->findChildren<QComboBox*>().last();
    icons->showPopup();
    camera.Take(*icons->view()->window(), u"farben-symbole"_s);
    icons->hidePopup();
    cBudgetModel model(scene.Tools());
    frmBudget budget(model);
    budget.show();
    camera.Take(budget, u"farben-budget"_s);
    TakeLists(camera, scene);
    TakeCharts(camera, scene);
    TakeAll(camera);
    return true;
}
