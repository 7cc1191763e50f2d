#include "tools/screenshots/takeSheet.h"

#include "app/machine/cQtRegistry.h"
#include "app/machine/cQtShell.h"
#include "app/machine/cQtUser.h"
#include "core/cAmountFormat.h"
#include "core/cBook.h"
#include "core/cConfiguration.h"
#include "support/cFakeNavigator.h"
#include "tools/screenshots/cCamera.h"
#include "tools/screenshots/cDemoBook.h"
#include "views/main/cMainModel.h"
#include "views/sheet/cManyChange.h"
#include "windows/main/cCellEditing.h"
#include "windows/main/cEntryTree.h"
#include "windows/main/cSavedViewMenu.h"
#include "windows/main/frmMain.h"
#include "windows/main/frmMehrere.h"

#include <QMenu>

using namespace Qt::Literals::StringLiterals;

bool TakeSheet(cCamera& camera)
{
    cDemoBook scene;
    if (!scene.IsReady()) {
        return false;
    }
    cFakeNavigator navigator;
    cMainModel model(scene.Tools(), {scene.Configuration, scene.Shell, navigator, scene.Book.Path()});
    frmMain window(model);
    model.RestoreView(false);
    model.ChoosePeriod(u"Aktueller Monat"_s);
    window.show();
    window.activateWindow();
    Settle();
    auto& tree = *window.findChild<cEntryTree*>();
    tree.setFocus();
    tree.setCurrentIndex(model.Entries().index(2, cEntryListModel::Description));
    Settle();
    window.findChild<cCellEditing*>()->Edit(tree.currentIndex());
    camera.Take(window, u"liste-zelle"_s);
    tree.setCurrentIndex(model.Entries().index(3, cEntryListModel::Date));
    window.AskDay();
    camera.Take(window, u"liste-tag"_s);
    tree.selectAll();
    cManyChange change(scene.Tools(), tree.SelectedKeys());
    frmMehrere form(change);
    form.show();
    camera.Take(form, u"mehrere"_s);
    cSavedViewMenu views(window.MenuOf(modCommand::SavedViews));
    views.Show({u"Haushalt diesen Monat"_s, u"Girokonto, Aktuelles Jahr"_s});
    QMenu& menu = window.MenuOf(modCommand::SavedViews);
    menu.popup({});
    camera.Take(menu, u"ansichten"_s);
    menu.close();
    return true;
}
