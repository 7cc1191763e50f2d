#include "app/cStatementWindows.h"

#include "app/cReceiptWindows.h"
#include "app/machine/cQtPrinter.h"
#include "base/cClock.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "core/cBookTools.h"
#include "views/export/cEntryExport.h"
#include "views/export/cEntryExtract.h"
#include "views/ledger/cStatementListModel.h"
#include "views/main/cMainModel.h"
#include "views/main/cNavigator.h"
#include "views/rule/cRuleEditor.h"
#include "views/statement/cImportReview.h"
#include "views/statement/cSeriesCheck.h"
#include "views/statement/cStatementDesk.h"
#include "views/statement/cStatementFiles.h"
#include "windows/main/frmMain.h"
#include "windows/print/cListPrinter.h"
#include "windows/statement/frmImport.h"
#include "windows/statement/frmKontoauszug.h"
#include "windows/statement/frmRegeln.h"
#include "windows/widget/cProgressBox.h"

#include <QApplication>
#include <QBoxLayout>

frmImport& cStatementWindows::Page()
{
    if (m_page == nullptr) {
        QWidget& place = m_parts.Window.StatementsPage();
        m_page = new frmImport(m_parts.Review, &place);
        place.layout()->addWidget(m_page);
        QObject::connect(m_page, &frmImport::StatementRequested, &m_parts.Model,
                         [this] { OpenAccountStatement(m_page->window()); });
        QObject::connect(&m_parts.Model, &cMainModel::LayoutReset, m_page, &frmImport::ResetLayout);
    }
    return *m_page;
}

void cStatementWindows::Show()
{
    m_parts.Window.ShowPage(frmMain::ePage::Statements);
}

void cStatementWindows::Read(const QStringList& paths)
{
    Show();
    Page().ImportFiles(paths);
}

void cStatementWindows::Carry(modCommand::eId command, QWidget* parent)
{
    switch (command) {
    case modCommand::ImportStatement: ChooseFiles(); break;
    case modCommand::AccountStatement: OpenAccountStatement(parent); break;
    case modCommand::CheckSeries: CheckSeries(); break;
    case modCommand::Rules: OpenRules(parent); break;
    default: break;
    }
}

// Who chooses no file stays on the page.
void cStatementWindows::ChooseFiles()
{
    const QObject choice;
    QObject::connect(&m_parts.Review.Files(), &cStatementFiles::ImportStarts, &choice, [this] { Show(); });
    Page().ChooseFiles();
}

void cStatementWindows::OpenAccountStatement(QWidget* parent)
{
    cStatementListModel statement(m_parts.Tools);
    frmKontoauszug form(statement, parent);
    QObject::connect(&form, &frmKontoauszug::EntryRequested, &m_parts.Model, [&](int entryId, QDate day) {
        m_parts.Navigator.OpenEntry(entryId, day);
        statement.Reload();
    });
    QObject::connect(&form, &frmKontoauszug::BookRequested, &m_parts.Model, [&](int rowId) {
        cProgressBox progress(&form, cText::Tr("Umsätze werden gebucht …"));
        m_parts.Review.Book({rowId}, progress);
        statement.Reload();
    });
    QObject::connect(&form, &frmKontoauszug::DeleteRequested, &m_parts.Model, [&](int entryId, QDate day) {
        m_parts.Model.Delete({{entryId, day}});
        statement.Reload();
    });
    m_parts.Receipts.Connect(form, statement);
    QObject::connect(&form, &frmKontoauszug::ReconcileChanged, &m_parts.Model, &cMainModel::BookChanged);
    const auto print = [&](void (cQtPrinter::*way)(cPrintable&, QWidget*)) {
        cListPrinter pages(statement);
        (m_parts.Printer.*way)(pages, &form);
    };
    QObject::connect(&form, &frmKontoauszug::PrintRequested, &form, [print] { print(&cQtPrinter::Print); });
    QObject::connect(&form, &frmKontoauszug::PreviewRequested, &form, [print] { print(&cQtPrinter::Preview); });
    QObject::connect(&form, &frmKontoauszug::ExportRequested, &form, [&] { Export(statement, &form); });
    form.exec();
}

void cStatementWindows::CheckSeries()
{
    cStatementDesk desk(m_parts.Tools);
    cSeriesCheck check = desk.Series();
    if (check.IsClean()) {
        const QString contracts = check.Contracts();
        m_parts.Tools.User.Show(eTone::Information,
                                contracts.isEmpty()
                                    ? cSeriesCheck::NothingFound()
                                    : QString(cSeriesCheck::NothingFound() + QStringLiteral("\n\n") + contracts));
    } else if (!check.Ask({}).isEmpty()) {
        m_parts.Model.BookChanged();
        m_parts.Review.Refresh(); // rows of a series that ended earlier wait again
    }
}

void cStatementWindows::OpenRules(QWidget* parent)
{
    cRuleEditor rules(m_parts.Tools);
    QObject::connect(&rules.List(), &cRuleListModel::RulesChanged, &m_parts.Review, &cImportReview::Refresh);
    frmRegeln form(rules, parent);
    form.exec();
}

void cStatementWindows::Export(const cStatementListModel& statement, QWidget* parent)
{
    cProgressBox progress(parent, cText::Tr("Der Kontoauszug wird geschrieben …"));
    cEntryExport(m_parts.Tools, progress).Run(statement.Extract(), statement.Title(), m_parts.Tools.Clock.Today());
}
