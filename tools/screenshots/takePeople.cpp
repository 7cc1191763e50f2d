#include "tools/screenshots/takePeople.h"

#include "model/modPeople.h"
#include "store/cDataAccess.h"
#include "support/cFakeNavigator.h"
#include "tools/screenshots/cCamera.h"
#include "tools/screenshots/cDemoBook.h"
#include "views/list/cSearchModel.h"
#include "views/main/cMainModel.h"
#include "views/people/cPeople.h"
#include "views/people/cSettlementModel.h"
#include "views/sheet/cCellEdit.h"
#include "views/statistics/cStatisticsModel.h"
#include "windows/main/cEntryTree.h"
#include "windows/main/cSearchFields.h"
#include "windows/main/frmMain.h"
#include "windows/main/frmSuche.h"
#include "windows/people/frmAusgleich.h"
#include "windows/people/frmPersonen.h"
#include "windows/statistics/frmStatistik.h"

#include <QTabWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

// A week away of two, who have an account each.
void Fill(const cBookTools& tools)
{
    struct cLine
    {
        const char* Text;
        qint64 Cents;
        const char* Payer;
        const char* Category;
    };
    for (const cLine& line : {cLine{"Hotel am Meer #urlaub #ostsee", 64200, "Anna", "Freizeit; Urlaub"},
                              cLine{"Fähre hin und zurück #urlaub", 8900, "Ben", "Freizeit; Urlaub"},
                              cLine{"Strandkorb, Eis #urlaub #kinder", 4350, "Ben", "Freizeit; Urlaub"},
                              cLine{"Schuhe #kinder", 5990, "Anna", "Haushalt; Kleidung"},
                              cLine{"Wocheneinkauf", 11280, "Anna", "Haushalt; Lebensmittel"},
                              cLine{"Reifenwechsel #auto", 7900, "Ben", "Auto; Werkstatt"}}) {
        cEntryItem entry;
        entry.EntryDate = sceneDay.addDays(-6);
        entry.EntryType = u"Ausgabe"_s;
        entry.EntryInterval = u"Einmalig"_s;
        entry.EntryAccount = u"Girokonto"_s;
        entry.EntryCategory = QString::fromUtf8(line.Category);
        entry.EntryValue = line.Cents;
        entry.EntryDescription = QString::fromUtf8(line.Text);
        modPeople::SetPayer(entry, QString::fromUtf8(line.Payer));
        (void)tools.Data.AddNewEntry(entry);
    }
    cPeople people(tools);
    people.Add(u"Anna"_s);
    people.Add(u"Ben"_s);
    (void)people.TakeShares(u"Girokonto"_s, {u"60"_s, u"40"_s});
    (void)people.TakeShares(u"Sparkonto"_s, {u"100"_s, u""_s});
}

void TakeStatistics(cCamera& camera, cDemoBook& scene, cMainModel& main, cFakeNavigator& navigator)
{
    cStatisticsModel model(scene.Tools(), {scene.Shell, navigator, main});
    model.Restore();
    model.ChooseReport(eReport::Tag);
    model.FirstChart().ChooseKind(eChartKind::Tags);
    frmStatistik page(model);
    page.resize(1100, 700);
    page.show();
    camera.Take(page, u"schlagwort-bericht"_s);
    page.findChild<QTabWidget*>()->setCurrentIndex(1);
    camera.Take(page, u"schlagwort-diagramm"_s);
}

} // namespace

bool TakePeople(cCamera& camera)
{
    cDemoBook scene;
    if (!scene.IsReady()) {
        return false;
    }
    const cBookTools& tools = scene.Tools();
    Fill(tools);
    cFakeNavigator navigator;
    cMainModel main(tools, {scene.Configuration, scene.Shell, navigator, QString()});
    frmMain window(main);
    window.RestoreLayout();
    window.ShowPage(frmMain::ePage::Entries);
    window.resize(1100, 700);
    window.show();
    main.RestoreView(false);
    main.FilterByTag(u"#urlaub"_s);
    Settle();
    window.findChild<cEntryTree*>()->setCurrentIndex(main.Entries().index(1, 0));
    camera.Take(window, u"schlagwort-liste"_s);
    main.FilterByTag(u"#urlaub"_s); // takes it away again
    main.ChoosePayer(u"Anna"_s);
    Settle();
    camera.Take(window, u"bezahlt-von"_s);
    cSearchModel found(tools);
    cCellEdit cells(tools);
    frmSuche search(found, cells);
    search.Present();
    search.findChild<cSearchFields*>()->ShowText(u"urlaub"_s);
    camera.Take(search, u"suche-bezahlt-von"_s);
    TakeStatistics(camera, scene, main, navigator);
    cPeople people(tools);
    frmPersonen persons(people);
    persons.show();
    camera.Take(persons, u"personen"_s);
    cSettlementModel settlement(tools);
    frmAusgleich balance(settlement);
    balance.show();
    camera.Take(balance, u"ausgleich"_s);
    return true;
}
