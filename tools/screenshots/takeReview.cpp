#include "tools/screenshots/takeReview.h"

#include "app/machine/cQtRegistry.h"
#include "app/machine/cQtShell.h"
#include "app/machine/cQtUser.h"
#include "core/cAmountFormat.h"
#include "core/cBook.h"
#include "core/cConfiguration.h"
#include "core/cSettings.h"
#include "core/modDemo.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"
#include "tools/screenshots/cCamera.h"
#include "tools/screenshots/cDemoBook.h"
#include "views/statement/cImportReview.h"
#include "windows/statement/cStagedTree.h"
#include "windows/statement/frmImport.h"
#include "windows/statement/frmImportReview.h"
#include "windows/statement/frmUmsatzKategorie.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

bool TakeReview(cCamera& camera)
{
    cDemoBook scene;
    if (!scene.IsReady()) {
        return false;
    }
    const cImportEntryList rows = scene.Book.Data().GetImportEntries();
    const auto open =
        std::find_if(rows.begin(), rows.end(), [](const cImportEntry& row) { return !row.ImportAssigned; });
    cImportEntry twin = open == rows.end() ? cImportEntry() : *open;
    twin.ImportPurpose = u"KARTENZAHLUNG OHNE BELEG"_s;
    if (!scene.Book.Data().AddNewImportEntry(twin)) {
        return false;
    }
    scene.Book.Settings().Set(modSettingKey::ImportRuns, u"%1-%2"_s.arg(twin.ID - 20).arg(twin.ID));
    cImportReview review(scene.Tools());
    frmImport page(review);
    page.resize(1280, 700);
    page.show();
    review.View().SetOpenOnly(false);
    review.View().SetGrouping(1);
    page.findChild<cStagedTree*>()->SelectIds(review.Rows().OpenIds().mid(0, 3));
    camera.Take(page, u"kontoauszuege-gruppen"_s);
    review.View().SetGrouping(2);
    review.View().SetOpenOnly(true);
    camera.Take(page, u"kontoauszuege-tage"_s);
    review.View().SetGrouping(static_cast<int>(modStagedGroup::eGrouping::Category));
    camera.Take(page, u"kontoauszuege-kategorien"_s);
    frmUmsatzKategorie category(review, review.Rows().OpenIds());
    category.show();
    camera.Take(category, u"umsatz-kategorie"_s);
    review.View().SetGrouping(0);
    const std::unique_ptr<cImportReview> one = review.StartImportReview();
    frmImportReview window(*one);
    window.show();
    camera.Take(window, u"umsaetze-import"_s);
    return true;
}
