#pragma once

#include "views/list/cEntryListModel.h"
#include "views/main/cSavedViews.h"
#include "views/main/modCommand.h"

#include <QList>

class cMainModel;
class cSavedViewMenu;
class cStagedChoice;
class frmMain;
class frmSuche;
class QWidget;
struct cBookTools;

// What works on many lines of a list at once, and the views that are kept under a name.
class cSheetWindows final
{
public:
    // All outlive it; `review` is what the page of bank statements shows.
    cSheetWindows(const cBookTools& tools, cMainModel& model, cStagedChoice& review, frmMain& window);

    // Carries out one of the commands for lists; others are passed over.
    void Carry(modCommand::eId command, QWidget* parent);
    // The same in the search.
    void Connect(frmSuche& search);

private:
    void ChangeMany(const QList<cEntryListModel::cKey>& rows, QWidget* parent);
    void KeepView();
    void ShowNames();
    void ShowView(const cSavedView& view);

    const cBookTools& m_tools;
    cMainModel& m_model;
    cStagedChoice& m_review;
    frmMain& m_window;
    cSavedViews m_views;
    cSavedViewMenu* m_menu;
};
