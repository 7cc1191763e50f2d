#include "tools/screenshots/takeReview.h"

#include "app/cQtRegistry.h"
#include "app/cQtShell.h"
#include "app/cQtUser.h"
#include "core/cAmountFormat.h"
#include "core/cBook.h"
#include "core/cConfiguration.h"
#include "core/cSettings.h"
#include "core/modDemo.h"
#include "store/cDataAccess.h"
#include "tools/screenshots/cCamera.h"
#include "views/cImportReview.h"
#include "windows/cStagedTree.h"
#include "windows/frmImport.h"
#include "windows/frmImportReview.h"
#include "windows/frmUmsatzKategorie.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

bool TakeReview(cCamera& camera)
{
    QTemporaryDir folder;
    cQtShell shell(folder.path());
    cQtRegistry registry(folder.path());
    cQtUser user;
    cBook book(user);
    const QString path = folder.filePath(u"Haushalt.db"_s);
    QFile::copy(shell.InstalledFile(u"template.dat"_s), path);
    if (!book.Open(path) || !modDemo::Write(book.Data(), {.Today = sceneDay})) {
        return false;
    }
    book.Settings().Reload(); // the household was written past them
    const cImportEntryList rows = book.Data().GetImportEntries();
    const auto open =
        std::find_if(rows.begin(), rows.end(), [](const cImportEntry& row) { return !row.ImportAssigned; });
    cImportEntry twin = open == rows.end() ? cImportEntry() : *open;
    twin.ImportPurpose = u"KARTENZAHLUNG OHNE BELEG"_s;
    if (!book.Data().AddNewImportEntry(twin)) {
        return false;
    }
    book.Settings().Set(u"ImportRuns"_s, u"%1-%2"_s.arg(twin.ID - 20).arg(twin.ID));
    cConfiguration configuration(registry);
    configuration.SetDatabase(&book.Settings());
    cAmountFormat format(configuration);
    cImportReview review({book.Data(), book.Settings(), format, user});
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
