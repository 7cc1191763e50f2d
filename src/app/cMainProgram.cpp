#include "app/cMainProgram.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "core/cSettings.h"
#include "core/cStartUp.h"
#include "store/cDataAccess.h"
#include "views/cEntryEditor.h"
#include "views/cImportReview.h"
#include "views/cMainModel.h"
#include "windows/frmBuchung.h"
#include "windows/frmImport.h"
#include "windows/frmMain.h"

#include <QApplication>
#include <QBoxLayout>
#include <QDir>

cMainProgram::cMainProgram(const cPorts& ports, const QString& version)
    : m_ports(ports),
      m_version(version),
      m_configuration(ports.Registry),
      m_book(ports.User)
{
}

cMainProgram::~cMainProgram() = default;

bool cMainProgram::Start(const QString& database)
{
    cStartUp startUp({m_ports.Shell, m_ports.User, m_ports.Rescue, m_ports.Clock}, m_configuration, m_version);
    m_language.Use({}, m_ports.Shell); // until the book says otherwise
    startUp.CheckCurrency();
    if (!OpenBook(startUp, database)) {
        return false;
    }
    m_language.Use(m_configuration.GetSetting(QStringLiteral("LanguageName")), m_ports.Shell);
    BuildWindow();
    m_window->RestoreLayout();
    m_window->show();
    // The window stands there without data until the password was right.
    if (!startUp.AskPassword()) {
        return false;
    }
    m_model->RestoreView(startUp.IsNewVersion());
    m_window->ShowToday();
    return true;
}

bool cMainProgram::OpenBook(cStartUp& startUp, const QString& database)
{
    const cStartUp::cFound found = database.isEmpty()
        ? startUp.FindDatabase()
        : cStartUp::cFound{QDir::cleanPath(QDir().absoluteFilePath(database))};
    if (!OpenLocked(startUp, found.Path, found.IsFresh)) {
        return false;
    }
    // The questions on the way may have led to another file, which has its own lock.
    if (m_book.Path() != found.Path && !m_book.IsReadOnly() && m_lock.Take(m_book.Path()) == eLockState::Foreign) {
        return OpenForeign(m_book.Path());
    }
    if (m_lock.IsHeld()) {
        m_instance.Listen(m_book.Path());
    }
    return true;
}

bool cMainProgram::OpenLocked(cStartUp& startUp, const QString& path, bool isFresh)
{
    if (m_lock.Take(path) == eLockState::Foreign) {
        return !cSingleInstance::RaiseOther(path) && OpenForeign(path);
    }
    return startUp.OpenBook(m_book, {path, isFresh});
}

bool cMainProgram::OpenForeign(const QString& path)
{
    const eAnswer answer =
        m_ports.User.Ask({.Text = cText::Tr("Die Datenbank '{0}' ist in Benutzung: {1}.\nMöchten Sie sie nur zum Lesen "
                                            "öffnen?",
                                            {QDir::toNativeSeparators(path), cFileLock::Holder(path)}),
                          .Title = {}});
    if (answer != eAnswer::Yes || !m_book.OpenForReading(path)) {
        return false;
    }
    m_configuration.SetDatabase(&m_book.Settings());
    return true;
}

void cMainProgram::BuildWindow()
{
    m_model = std::make_unique<cMainModel>(cMainModel::cParts{m_book.Data(), m_book.Settings(), m_configuration,
                                                              m_format, m_ports.User, m_ports.Clock, m_ports.Shell,
                                                              *this, m_book.Path()});
    m_review = std::make_unique<cImportReview>(
        cImportReview::cParts{m_book.Data(), m_book.Settings(), m_format, m_ports.User});
    m_statementsPage = new QWidget;
    m_window = std::make_unique<frmMain>(*m_model, m_statementsPage);
    ConnectPages();
    QObject::connect(&m_instance, &cSingleInstance::RaiseRequested, m_window.get(), &frmMain::Raise);
}

void cMainProgram::ConnectPages()
{
    QObject::connect(m_review.get(), &cImportReview::EntriesChanged, m_model.get(), &cMainModel::BookChanged);
    QObject::connect(m_review.get(), &cImportReview::RowsChanged, m_model.get(), &cMainModel::StagedRowsChanged);
    QObject::connect(m_model.get(), &cMainModel::StagedRowsReleased, m_review.get(), &cImportReview::Refresh);
    QObject::connect(m_window.get(), &frmMain::StatementsShown, m_review.get(), [this] { (void)Statements(); });
    QObject::connect(m_window.get(), &frmMain::FilesDropped, m_review.get(),
                     [this](const QStringList& paths) { Statements().ImportFiles(paths); });
}

frmImport& cMainProgram::Statements()
{
    if (m_statements == nullptr) {
        auto* layout = new QVBoxLayout(m_statementsPage);
        layout->setContentsMargins(0, 0, 0, 0);
        m_statements = new frmImport(*m_review, m_statementsPage);
        layout->addWidget(m_statements);
    }
    return *m_statements;
}

void cMainProgram::OpenEntryEditor(int entryId)
{
    cEntryEditor editor(m_book.Data(), m_ports.User, m_ports.Clock);
    const std::optional<cEntryEditor::cFields> fields =
        entryId == 0 ? editor.Start(m_model->View().FilterAccount()) : editor.Load(entryId);
    if (!fields) {
        m_model->BookChanged(); // the entry is gone, so the list is old
        return;
    }
    frmBuchung form(editor, *fields, m_window.get());
    QObject::connect(&form, &frmBuchung::EntrySaved, m_model.get(), &cMainModel::BookChanged);
    form.exec();
}

void cMainProgram::ShowStatements()
{
    m_window->ShowStatements();
}

void cMainProgram::OpenImport()
{
    ShowStatements();
    Statements().ChooseFiles();
}

void cMainProgram::OpenColumnChooser()
{
    m_window->ShowColumnMenu();
}

void cMainProgram::EndProgram()
{
    m_window->close();
}
