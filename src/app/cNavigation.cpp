#include "app/cNavigation.h"

#include "app/cBankWindows.h"
#include "app/cBookWindows.h"
#include "app/cHouseholdWindows.h"
#include "app/cSheetWindows.h"
#include "app/cStatementWindows.h"
#include "app/cUpdateWindows.h"
#include "app/machine/modBuild.h"
#include "base/cClock.h"
#include "base/cText.h"
#include "core/cAmountFormat.h"
#include "core/cBook.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "core/cStartRequest.h"
#include "store/cDataAccess.h"
#include "views/book/cNationalSettings.h"
#include "views/entry/cSeriesChange.h"
#include "views/export/cEntryExport.h"
#include "views/export/cEntryExtract.h"
#include "views/help/cHighScores.h"
#include "views/help/modAbout.h"
#include "views/list/cSearchModel.h"
#include "views/main/cMainModel.h"
#include "views/main/modCommand.h"
#include "views/main/modViewText.h"
#include "views/overview/cOverviewModel.h"
#include "views/statement/cImportReview.h"
#include "views/statement/cStatementFiles.h"
#include "views/statistics/cStatisticsModel.h"
#include "views/template/cTemplateManager.h"
#include "windows/book/frmLaender.h"
#include "windows/chart/cChartPrinter.h"
#include "windows/entry/frmBuchung.h"
#include "windows/entry/frmKorrektur.h"
#include "windows/game/frmSpiel.h"
#include "windows/help/frmUeber.h"
#include "windows/main/cLanguageMenu.h"
#include "windows/main/frmMain.h"
#include "windows/main/frmSuche.h"
#include "windows/overview/frmUebersicht.h"
#include "windows/print/cListPrinter.h"
#include "windows/report/cReportPrinter.h"
#include "windows/statistics/frmStatistik.h"
#include "windows/template/frmKategorie.h"
#include "windows/widget/cProgressBox.h"

#include <QApplication>
#include <QBoxLayout>
#include <QRandomGenerator>

cNavigation::cNavigation(const cParts& parts)
    : m_parts(parts),
      m_forms(parts.Tools, parts.Book, parts.Shell),
      m_logs({parts.Log, parts.Tools, parts.Shell, parts.Configuration, parts.Book}),
      m_printer(parts.Tools.User, parts.Tools.Data),
      m_help(parts.Shell, parts.Tools.User),
      m_national(std::make_unique<cNationalSettings>(parts.Tools, parts.Configuration, parts.Format))
{
}

cNavigation::~cNavigation() = default;

void cNavigation::Connect(cMainModel& model, cImportReview& review, frmMain& window)
{
    m_model = &model;
    m_review = &review;
    m_window = &window;
    review.SetShown(false); // until its page is
    m_sheets = std::make_unique<cSheetWindows>(m_parts.Tools, model, review.View(), window);
    // Queued, because what can be taken back is known only when the review has finished its step.
    QObject::connect(&review, &cImportReview::EntriesChanged, &model, &cMainModel::BookChanged, Qt::QueuedConnection);
    QObject::connect(&review, &cImportReview::RowsChanged, &model, &cMainModel::StagedRowsChanged,
                     Qt::QueuedConnection);
    QObject::connect(&review, &cImportReview::EditorWanted, &model,
                     [this](cEntryEditor& editor, const cEntryFields& fields) { OpenEditorFor(editor, fields); });
    QObject::connect(&model, &cMainModel::StagedRowsReleased, &review, &cImportReview::StartAfresh);
    QObject::connect(&window, &frmMain::PageShown, &model, [this](frmMain::ePage page) { BuildPage(page); });
    QObject::connect(&window, &frmMain::FilesDropped, &review, [this](const QStringList& paths) { TakeFiles(paths); });
    QObject::connect(m_national.get(), &cNationalSettings::CultureChanged, &model, &cMainModel::BookChanged);
    QObject::connect(m_national.get(), &cNationalSettings::CultureChanged, &review, &cImportReview::Refresh);
    m_receipts = std::make_unique<cReceiptWindows>(m_parts.Tools, model);
    m_household = std::make_unique<cHouseholdWindows>(m_parts.Tools, model, m_printer);
    QObject::connect(&window, &frmMain::ReceiptsDropped, &model,
                     [this](int entryId, const QStringList& paths) { m_receipts->Add(entryId, paths); });
    m_books = std::make_unique<cBookWindows>(cBookWindows::cParts{m_parts.Tools, m_parts.Book, m_parts.Configuration,
                                                                  m_parts.Format, m_parts.Rescue, m_parts.Shell,
                                                                  m_parts.Host, model, *this});
    m_books->OnBackups([this] { BackupsChanged(); });
    m_statements = std::make_unique<cStatementWindows>(
        cStatementWindows::cParts{m_parts.Tools, model, review, window, *this, *m_receipts, m_printer});
    window.AddToView(new cLanguageMenu(*m_national, &window));
}

void cNavigation::TakeFiles(const QStringList& paths)
{
    cStartRequest request;
    if (const QString error = request.TakeFiles(paths); !error.isEmpty()) {
        m_parts.Tools.User.Show(eTone::Exclamation, error);
        return;
    }
    const bool isThere = request.Book.isEmpty() || m_books->Flow().OpenBook(request.Book);
    if (isThere && !request.Statements.isEmpty()) { // they were meant for that book
        m_statements->Read(request.Statements);
    }
}

void cNavigation::BuildPage(frmMain::ePage page)
{
    if (page == frmMain::ePage::Statements) {
        (void)m_statements->Page();
    } else if (page == frmMain::ePage::Statistics) {
        (void)Statistics();
    } else if (page == frmMain::ePage::Overview && m_overview == nullptr) {
        BuildOverview();
    }
}

void cNavigation::BuildOverview()
{
    m_overview =
        std::make_unique<cOverviewModel>(m_parts.Tools, cOverviewModel::cParts{*this, *m_model, m_parts.Outlook});
    QWidget& page = m_window->OverviewPage();
    page.layout()->addWidget(new frmUebersicht(*m_overview, &page));
    QObject::connect(m_model, &cMainModel::BookRefreshed, m_overview.get(), &cOverviewModel::BookChanged);
    QObject::connect(m_review, &cImportReview::RowsChanged, m_overview.get(), &cOverviewModel::BookChanged);
    QObject::connect(m_overview.get(), &cOverviewModel::EntriesShown, m_window,
                     [this] { m_window->ShowPage(frmMain::ePage::Entries); });
    QObject::connect(m_overview.get(), &cOverviewModel::StatementsWanted, m_window, [this] { m_statements->Show(); });
    QObject::connect(
        m_overview.get(), &cOverviewModel::DemoWanted, m_window,
        [this] { m_books->Flow().OpenDemo(QCoreApplication::applicationVersion()); }, Qt::QueuedConnection);
}

QWidget* cNavigation::Parent() const
{
    QWidget* front = QApplication::activeWindow();
    return front != nullptr ? front : m_window;
}

cStatisticsModel& cNavigation::Statistics()
{
    if (m_statistics == nullptr) {
        m_statistics =
            std::make_unique<cStatisticsModel>(m_parts.Tools, cStatisticsModel::cParts{m_parts.Shell, *this, *m_model});
        m_statistics->Restore();
        m_statisticsPage = new frmStatistik(*m_statistics, &m_window->StatisticsPage());
        m_window->StatisticsPage().layout()->addWidget(m_statisticsPage);
        QObject::connect(m_model, &cMainModel::BookRefreshed, m_statistics.get(), &cStatisticsModel::BookChanged);
        QObject::connect(m_model, &cMainModel::ViewChanged, m_statistics.get(), &cStatisticsModel::ViewChanged);
        QObject::connect(m_statistics.get(), &cStatisticsModel::EntriesShown, m_window,
                         [this] { m_window->ShowPage(frmMain::ePage::Entries); });
        QObject::connect(m_statisticsPage, &frmStatistik::PrintRequested, m_model,
                         [this] { Print(&cQtPrinter::Print); });
    }
    return *m_statistics;
}

void cNavigation::BookChanged()
{
    m_model->BookChanged();
}

void cNavigation::TellDamage()
{
    m_model->AccessChanged();
    m_books->Flow().TellDamage();
}

void cNavigation::TellBroken()
{
    m_logs.TellBroken(m_books->Flow(), m_window);
}

// Once it was looked at, the mark has done its work.
void cNavigation::OpenLog()
{
    m_window->ShowFailureMark(false);
    m_logs.OpenLog(Parent());
}

void cNavigation::LeaveBook()
{
    delete m_search;
    m_search = nullptr;
    m_searchModel.reset();
    m_books->LeaveBook();
    m_review->Files().ForgetFiles();
    if (m_window->Page() == frmMain::ePage::Statistics) {
        m_window->ShowPage(frmMain::ePage::Entries);
    }
    delete m_statisticsPage;
    m_statisticsPage = nullptr;
    m_statistics.reset(); // the other book has its own selectors
    if (m_overview != nullptr) {
        m_overview->BookSwitched();
    }
}

void cNavigation::OpenEditor(cEntryEditor& editor, const std::optional<cEntryFields>& fields)
{
    if (!fields) {
        BookChanged(); // the entry is gone, so the list is old
        return;
    }
    frmBuchung form(editor, *fields, Parent());
    ConnectEditor(form, editor);
    m_forms.Run(form, editor);
}

void cNavigation::ConnectEditor(const frmBuchung& form, const cEntryEditor& editor)
{
    QObject::connect(&form, &frmBuchung::EntrySaved, m_model, [this, &editor] { ShowSaved(editor.SavedId()); });
    QObject::connect(&form, &frmBuchung::CalculatorRequested, m_model, &cMainModel::StartCalculator);
}

void cNavigation::OfferDrafts()
{
    if (m_model->IsReadOnly()) {
        return;
    }
    const QList<cEntryDraft> drafts = m_forms.Drafts().All();
    for (const cEntryDraft& draft : drafts) {
        switch (cEntryDrafts::Ask(draft, m_parts.Tools.User)) {
        case cEntryDrafts::eWish::Restore: OpenDraft(draft); break;
        case cEntryDrafts::eWish::Discard: m_forms.Drafts().Remove(draft.Kept); break;
        case cEntryDrafts::eWish::Later: return;
        }
    }
}

void cNavigation::OpenDraft(cEntryDraft draft)
{
    cEntryEditor editor(m_parts.Tools);
    const cEntryFields stored = editor.Resume(draft);
    frmBuchung form(editor, stored, Parent());
    form.ShowTyped(draft.Fields);
    ConnectEditor(form, editor);
    m_forms.Run(form, editor, draft.Kept);
}

// Of a bank transaction: the list of these stays in front.
void cNavigation::OpenEditorFor(cEntryEditor& editor, const cEntryFields& fields)
{
    frmBuchung form(editor, fields, Parent());
    QObject::connect(&form, &frmBuchung::EntrySaved, m_model, [this] { BookChanged(); });
    QObject::connect(&form, &frmBuchung::CalculatorRequested, m_model, &cMainModel::StartCalculator);
    m_forms.Run(form, editor);
}

void cNavigation::ShowSaved(int entryId)
{
    BookChanged();
    if (const std::optional<cEntryItem> entry = m_parts.Tools.Data.LoadEntry(entryId)) {
        m_window->ShowEntry({entry->ID, entry->EntryDate});
        Q_EMIT m_model->Told(m_parts.Tools.Data.Journal().UndoName() + u'.');
    }
}

void cNavigation::OpenNewEntry()
{
    cEntryEditor editor(m_parts.Tools);
    OpenEditor(editor, editor.Start(m_model->View().FilterAccount()));
}

void cNavigation::OpenEntry(int entryId, QDate day)
{
    cSeriesChange series(m_parts.Tools);
    cEntryEditor editor(m_parts.Tools);
    switch (series.AskWhatToEdit(entryId, day)) {
    case cSeriesChange::eEdit::Nothing: break;
    case cSeriesChange::eEdit::Period: OpenCorrection(entryId, day, eCorrected::Amount); break;
    case cSeriesChange::eEdit::FromHere:
        OpenEditor(editor, editor.LoadFrom(entryId, day));
        m_review->Refresh(); // bank transactions went along with the later part of the series
        break;
    case cSeriesChange::eEdit::Entry: OpenEditor(editor, editor.Load(entryId)); break;
    }
}

void cNavigation::OpenCorrection(int entryId, QDate day, eCorrected first)
{
    cSeriesChange series(m_parts.Tools);
    std::optional<cSeriesChange::cPeriodFields> fields = series.StartPeriod(entryId, day, m_parts.Tools.Clock.Today());
    if (!fields) {
        BookChanged();
        return;
    }
    fields->IsDayFirst = first == eCorrected::Day;
    frmKorrektur form(series, *fields, Parent());
    QObject::connect(&form, &frmKorrektur::CorrectionSaved, m_model, &cMainModel::BookChanged);
    form.exec();
}

void cNavigation::OpenStartBalance()
{
    cEntryEditor editor(m_parts.Tools);
    OpenEditor(editor, editor.StartBalance(m_model->View().FilterAccount()));
}

void cNavigation::OpenTemplates(const QString& path)
{
    cTemplateManager manager(m_parts.Tools);
    QObject::connect(&manager, &cTemplateManager::BookChanged, m_model, &cMainModel::BookChanged);
    QObject::connect(&manager, &cTemplateManager::AccountRenamed, m_model, &cMainModel::AccountRenamed);
    frmKategorie form(manager, Parent());
    if (!path.isEmpty()) {
        (void)form.Select(path);
    }
    form.exec();
}

void cNavigation::OpenSearch()
{
    if (m_search == nullptr) {
        m_searchModel = std::make_unique<cSearchModel>(m_parts.Tools);
        m_search = new frmSuche(*m_searchModel, m_model->Cells(), m_window);
        QObject::connect(m_search, &frmSuche::EditRequested, m_model,
                         [this](const cEntryListModel::cKey& key) { OpenEntry(key.ID, key.Day); });
        QObject::connect(m_search, &frmSuche::DeleteRequested, m_model, &cMainModel::Delete);
        QObject::connect(m_search, &frmSuche::UndoRequested, m_model, [this] { m_model->Execute(modCommand::Undo); });
        QObject::connect(m_search, &frmSuche::RedoRequested, m_model, [this] { m_model->Execute(modCommand::Redo); });
        m_sheets->Connect(*m_search);
        QObject::connect(m_search, &frmSuche::ReceiptsDropped, m_model,
                         [this](int entryId, const QStringList& paths) { m_receipts->Add(entryId, paths); });
        QObject::connect(m_search, &frmSuche::ReceiptsRequested, m_model,
                         [this](int entryId) { m_receipts->Show(entryId, m_search); });
        QObject::connect(m_model, &cMainModel::BookRefreshed, m_search, &frmSuche::Refresh);
        QObject::connect(m_model, &cMainModel::LayoutReset, m_search, &frmSuche::ResetLayout);
    }
    m_search->Present();
}

void cNavigation::OpenAbout()
{
    frmUeber form(modAbout::Name(QCoreApplication::applicationVersion(), modBuild::Commit()), Parent());
    QObject::connect(&form, &frmUeber::GameRequested, &form, [this, &form] {
        cHighScores scores(m_parts.Tools.Settings);
        frmSpiel(
            scores, m_parts.Tools.Clock.Today(), [] { return QRandomGenerator::global()->generate(); }, &form)
            .exec();
    });
    form.exec();
}

void cNavigation::BackupsChanged()
{
    if (m_overview != nullptr) {
        m_overview->TasksChanged();
    }
}

void cNavigation::OpenNationalSettings()
{
    frmLaender form(*m_national, Parent());
    form.exec();
}

cBankWindows& cNavigation::Banks()
{
    if (!m_banks) {
        m_banks =
            std::make_unique<cBankWindows>(cBankWindows::cParts{m_parts.Tools, m_parts.Shell, *m_model, *m_review});
    }
    return *m_banks;
}

void cNavigation::OpenFetch()
{
    (void)m_statements->Page(); // takes what comes
    if (Banks().OpenFetch(Parent())) {
        m_statements->Show();
    }
}

void cNavigation::Export()
{
    cEntryExtract extract = cEntryExtract::From(m_model->Entries());
    extract.Title = modViewText::Title(m_model->View());
    extract.View = m_model->ViewLines();
    cProgressBox progress(Parent(), cText::Tr("Die Einträge werden geschrieben …"));
    cEntryExport(m_parts.Tools, progress).Run(extract, cText::Tr("Einträge"), m_parts.Tools.Clock.Today());
}

void cNavigation::Print(void (cQtPrinter::*way)(cPrintable&, QWidget*))
{
    if (m_window->Page() == frmMain::ePage::Statistics) {
        PrintStatistics(way);
        return;
    }
    cListPrinter pages(m_model->Entries(), m_window->EntryColumns(), cListPrinter::HeadOf(*m_model));
    (m_printer.*way)(pages, Parent());
}

void cNavigation::PrintStatistics(void (cQtPrinter::*way)(cPrintable&, QWidget*))
{
    cStatisticsModel& statistics = Statistics();
    const QDate today = m_parts.Tools.Clock.Today();
    if (statistics.Page() == cStatisticsModel::ePage::Charts) {
        cChartPrinter pages(m_statisticsPage->ShownCharts(), today);
        (m_printer.*way)(pages, Parent());
        return;
    }
    cReportPrinter pages(statistics.PrintHtml(), QApplication::font().family(), today);
    (m_printer.*way)(pages, Parent());
}

// A failure on the way is one of this command.
void cNavigation::Open(modCommand::eId command)
{
    m_parts.Log.Begin(modCommand::PlainText(*modCommand::Find(command)).remove(u'…'));
    Carry(command);
    m_parts.Log.End();
}

void cNavigation::Carry(modCommand::eId command)
{
    switch (command) {
    case modCommand::Export: Export(); break;
    case modCommand::Print: Print(&cQtPrinter::Print); break;
    case modCommand::PrintPreview: Print(&cQtPrinter::Preview); break;
    case modCommand::ChooseColumns: m_window->ShowColumnMenu(); break;
    case modCommand::AddReceipt:
    case modCommand::ShowReceipts: m_receipts->Open(command, Parent()); break;
    case modCommand::Password:
    case modCommand::MakeBackup:
    case modCommand::RestoreBackup:
    case modCommand::SwitchDatabase:
    case modCommand::NewDatabase:
    case modCommand::CheckBook:
    case modCommand::BackupSettings: m_books->Carry(command, Parent()); break;
    case modCommand::ImportStatement:
    case modCommand::AccountStatement:
    case modCommand::CheckSeries:
    case modCommand::Rules: m_statements->Carry(command, Parent()); break;
    case modCommand::Search: OpenSearch(); break;
    case modCommand::StartBalance: OpenStartBalance(); break;
    case modCommand::Homepage:
    case modCommand::Questions:
    case modCommand::Manual: m_help.Open(command); break;
    case modCommand::About: OpenAbout(); break;
    case modCommand::CheckUpdates: m_parts.Updates.Open(Parent()); break;
    case modCommand::ErrorLog: OpenLog(); break;
    case modCommand::Feedback: m_logs.SendFeedback(); break;
    case modCommand::National: OpenNationalSettings(); break;
    case modCommand::Budget:
    case modCommand::People:
    case modCommand::Settlement: m_household->Open(command, Parent()); break;
    case modCommand::FetchTransactions: OpenFetch(); break;
    case modCommand::BankLogins: Banks().OpenLogins(Parent()); break;
    case modCommand::CopyRows:
    case modCommand::GoToDay:
    case modCommand::ChangeMany:
    case modCommand::SaveView:
    case modCommand::SavedViews: m_sheets->Carry(command, Parent()); break;
    default: break; // done by the model itself
    }
}

void cNavigation::EndProgram()
{
    m_window->close();
}
