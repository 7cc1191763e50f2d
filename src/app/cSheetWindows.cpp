#include "app/cSheetWindows.h"

#include "core/cBookTools.h"
#include "views/main/cMainModel.h"
#include "views/sheet/cManyChange.h"
#include "views/sheet/cRowDrop.h"
#include "views/statement/cStagedChoice.h"
#include "windows/main/cSavedViewMenu.h"
#include "windows/main/frmMain.h"
#include "windows/main/frmMehrere.h"
#include "windows/main/frmSuche.h"

cSheetWindows::cSheetWindows(const cBookTools& tools, cMainModel& model, cStagedChoice& review, frmMain& window)
    : m_tools(tools),
      m_model(model),
      m_review(review),
      m_window(window),
      m_views(tools),
      m_menu(new cSavedViewMenu(window.MenuOf(modCommand::SavedViews)))
{
    QObject::connect(&m_model, &cMainModel::ViewChanged, m_menu, [this] { ShowNames(); }); // perhaps another book
    QObject::connect(&m_review, &cStagedChoice::ViewsChanged, &m_model, &cMainModel::ViewChanged);
    QObject::connect(m_menu, &cSavedViewMenu::Chosen, m_menu, [this](int number) {
        const QList<cSavedView> views = m_views.All();
        if (number < views.size()) {
            ShowView(views.at(number));
        }
    });
    QObject::connect(&m_window, &frmMain::RowsDropped, m_menu,
                     [this](const QList<cEntryListModel::cKey>& rows, const QString& account, const QString& shown) {
                         if (cRowDrop(m_tools).OnAccount(rows, account, shown)) {
                             m_model.ManyChanged(rows, rows);
                         }
                     });
    QObject::connect(&m_window, &frmMain::RowsRegrouped, m_menu,
                     [this](const QList<cEntryListModel::cKey>& rows, const QString& category) {
                         const QList<cEntryListModel::cKey> stored = cRowDrop(m_tools).OnCategory(rows, category);
                         if (!stored.isEmpty()) {
                             m_model.ManyChanged(rows, stored);
                         }
                     });
}

void cSheetWindows::Carry(modCommand::eId command, QWidget* parent)
{
    switch (command) {
    case modCommand::CopyRows: m_window.CopyRows(); break;
    case modCommand::GoToDay: m_window.AskDay(); break;
    case modCommand::ChangeMany: ChangeMany(m_model.Selection(), parent); break;
    case modCommand::SaveView: KeepView(); break;
    case modCommand::SavedViews:
        if (const std::optional<cSavedView> view = m_model.ManageViews()) {
            ShowView(*view);
        }
        break;
    default: break;
    }
}

void cSheetWindows::Connect(frmSuche& search)
{
    QObject::connect(&search, &frmSuche::CellWritten, &m_model, &cMainModel::CellWritten);
    QObject::connect(&search, &frmSuche::ChangeRequested, &m_model,
                     [this, &search](const QList<cEntryListModel::cKey>& rows) { ChangeMany(rows, &search); });
    QObject::connect(
        &search, &frmSuche::DuplicateRequested, &m_model,
        [this](const QList<cEntryListModel::cKey>& rows) { m_model.Duplicate(rows, cEntryDuplicate::eDay::Today); });
    QObject::connect(&search, &frmSuche::NextMonthRequested, &m_model,
                     [this](const QList<cEntryListModel::cKey>& rows) {
                         m_model.Duplicate(rows, cEntryDuplicate::eDay::NextMonth);
                     });
}

void cSheetWindows::ChangeMany(const QList<cEntryListModel::cKey>& rows, QWidget* parent)
{
    if (m_model.IsReadOnly()) {
        return;
    }
    cManyChange change(m_tools, rows);
    if (!change.HasAny()) {
        return;
    }
    frmMehrere form(change, parent);
    if (form.exec() == QDialog::Accepted) {
        m_model.ManyChanged(rows, rows);
    }
}

// Of the list in front; the other pages have none.
void cSheetWindows::KeepView()
{
    if (m_window.Page() == frmMain::ePage::Statements) {
        m_review.Keep();
    } else {
        m_model.KeepView(m_window.ColumnText());
    }
}

void cSheetWindows::ShowNames()
{
    m_menu->Show(m_views.Names());
}

void cSheetWindows::ShowView(const cSavedView& view)
{
    if (view.Review) {
        m_window.ShowPage(frmMain::ePage::Statements);
        m_review.ShowKept(*view.Review, view.Columns);
        return;
    }
    m_window.ShowPage(frmMain::ePage::Entries);
    m_window.SetColumnText(view.Columns);
    m_model.ShowView(view.View);
}
