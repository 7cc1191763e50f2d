#include "app/cMainProgram.h"

#include "app/cNavigation.h"
#include "app/cStatementWindows.h"
#include "app/machine/modBuild.h"
#include "app/machine/modLocale.h"
#include "base/cClock.h"
#include "base/cShell.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "core/cSettings.h"
#include "core/cStartUp.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"
#include "store/cDatabase.h"
#include "views/book/cNationalSettings.h"
#include "views/main/cMainModel.h"
#include "views/main/modCommand.h"
#include "views/overview/cOverviewBook.h"
#include "views/reminder/cReminderModel.h"
#include "views/statement/cImportReview.h"
#include "views/statement/cStatementFiles.h"
#include "views/template/cNameKeepers.h"
#include "windows/main/frmMain.h"

#include <QApplication>
#include <QDir>
#include <QScopedValueRollback>
#include <QThread>
#include <QTimer>

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr auto backupDelay = 2s;  // after the window stands, so that nobody waits for the copy
constexpr auto walkDelay = 500ms; // after the window stands
constexpr auto walkPause = 20ms;
constexpr int walkTime = 10; // milliseconds, too short to be felt
constexpr auto damageRetry = 300ms;
constexpr auto requestRetry = 300ms;
constexpr auto updateDelay = 5s; // when the user has looked around
constexpr auto updateRetry = 1min;
constexpr auto updatePause = 24h; // of a program that stays open

} // namespace

cMainProgram::cMainProgram(const cPorts& ports, const QString& version)
    : m_log({ports.Shell.StateFolder(), QStringLiteral("kontorelle"), modBuild::Version()}, ports.Clock),
      m_user(ports.User, m_log),
      m_ports({ports.Shell, ports.Registry, m_user, ports.Rescue, ports.Clock, ports.Notifier}),
      m_version(version),
      m_configuration(ports.Registry),
      m_book(m_user),
      m_appearance(ports.Registry),
      m_bookSwitch(
          {{ports.Shell, m_user, ports.Rescue, ports.Clock}, ports.Registry, m_configuration, m_book, m_lock, version},
          Hooks()),
      m_backups({ports.Shell, m_user, ports.Clock}, m_book, m_configuration),
      m_end({[this] { return m_tools && m_book.Data().Journal().IsOpen(); }, [this] { Finish(); }})
{
    tmrBackup.setSingleShot(true);
    tmrWalk.setSingleShot(true);
    tmrLanguage.setSingleShot(true);
    tmrUpdate.setSingleShot(true);
    m_language.Use(modLocale::Messages(), ports.Shell); // until the book says otherwise
    QObject::connect(&tmrLanguage, &QTimer::timeout, &tmrLanguage, [this] { FollowLanguage(); });
    QObject::connect(&tmrUpdate, &QTimer::timeout, &tmrUpdate, [this] { LookForUpdates(); });
    QObject::connect(&tmrWalk, &QTimer::timeout, &tmrWalk, [this] { ReadOn(); });
    QObject::connect(&tmrBackup, &QTimer::timeout, &tmrBackup, [this] { tmrBackup.start(m_backups.CopyInUse()); });
}

// What fails from here on has no window to mark.
cMainProgram::~cMainProgram()
{
    m_log.Watch({});
}

bool cMainProgram::Start(const cStartRequest& request)
{
    m_request = request;
    cStartUp startUp({m_ports.Shell, m_ports.User, m_ports.Rescue, m_ports.Clock}, m_configuration, m_version);
    startUp.CheckCurrency();
    if (!OpenBook(startUp)) {
        return false;
    }
    if (m_book.Settings().GetBool(modSettingKey::StartWithOverview)) {
        m_book.Data().ReadAhead(cOverviewBook::DaysOn(m_ports.Clock.Today())); // while the window is made
    }
    m_backups.BookOpened();
    m_language.Use(WantedLanguage(), m_ports.Shell);
    cNameKeepers::Watch(m_book.Data(), m_book.Settings());
    m_format.CultureChanged(); // the book has its own
    m_tools.emplace(cBookTools{m_book.Data(), m_book.Settings(), m_format, m_ports.User, m_ports.Clock});
    m_updates.emplace(*m_tools, m_configuration);
    m_outlook.emplace(*m_tools);
    BuildWindow();
    m_window->RestoreLayout();
    m_window->TakeStartPage();
    if (m_window->Page() != frmMain::ePage::Entries) {
        m_model->PutOffList();
    }
    m_window->show();
    // The window stands there without data until the password was right.
    if (!startUp.AskPassword()) {
        return false;
    }
    m_isReady = true;
    m_model->RestoreView(startUp.IsNewVersion());
    m_window->ShowToday();
    WatchBook();
    QTimer::singleShot(0, m_window.get(), [this] { GoToWork(); }); // once the window is painted
    tmrUpdate.start(updateDelay);
    return true;
}

void cMainProgram::GoToWork()
{
    m_navigation->TellBroken();
    OfferDrafts();
    Serve();
}

// What another start wants: the window comes to the front first.
void cMainProgram::Take(const cStartRequest& request)
{
    if (!request.Activation.isEmpty()) {
        qputenv("XDG_ACTIVATION_TOKEN", request.Activation); // where the toolkit looks for it
    }
    if (m_end.HasBegun()) {
        return;
    }
    m_window->Raise();
    m_request.Statements.append(request.Statements);
    m_request.IsImport = m_request.IsImport || request.IsImport;
    m_request.IsNewEntry = m_request.IsNewEntry || request.IsNewEntry;
    Serve();
}

// A form that is open is left to the user: what is wanted waits until it is closed.
void cMainProgram::Serve()
{
    if (!m_request.HasWork()) {
        return;
    }
    if (QApplication::activeModalWidget() != nullptr) {
        QTimer::singleShot(requestRetry, &tmrLanguage, [this] { Serve(); });
        return;
    }
    const cStartRequest request = std::exchange(m_request, {});
    if (!request.Statements.isEmpty()) {
        m_navigation->Statements().Read(request.Statements);
    } else if (request.IsImport) {
        m_navigation->Open(modCommand::ImportStatement);
    }
    if (request.IsNewEntry) {
        m_navigation->OpenNewEntry();
    }
}

void cMainProgram::OfferDrafts()
{
    if (m_end.HasBegun() || m_isOffering) {
        return;
    }
    if (QApplication::activeModalWidget() != nullptr) {
        QTimer::singleShot(requestRetry, &tmrWalk, [this] { OfferDrafts(); });
        return;
    }
    const QScopedValueRollback offering(m_isOffering, true);
    m_navigation->OfferDrafts();
}

void cMainProgram::Save()
{
    if (m_isReady) {
        m_navigation->Forms().Keep();
        m_window->SaveLayout();
    }
}

void cMainProgram::End()
{
    if (m_end.HasBegun()) {
        return;
    }
    m_end.Begin();
    m_request = {};
    if (m_updates) {
        m_updates->Cancel();
    }
    if (m_isReady) {
        m_navigation->Forms().Keep();
        m_navigation->Forms().Close();
    }
}

void cMainProgram::Finish()
{
    if (m_window != nullptr) {
        m_window->close();
    }
    QCoreApplication::exit(0); // also where another window would keep the program
}

bool cMainProgram::OpenBook(cStartUp& startUp)
{
    // What is opened without a book is meant for the one that the user sees.
    const bool isForUsed = m_request.Book.isEmpty() && m_request.HasWork();
    const QString used = isForUsed ? cSingleInstance::LastUsed(m_ports.Shell.StateFolder()) : QString();
    if (!used.isEmpty() && cSingleInstance::HandOver(used, m_request)) {
        return false;
    }
    const cStartUp::cFound found = m_request.Book.isEmpty()
        ? startUp.FindDatabase()
        : cStartUp::cFound{QDir::cleanPath(QDir().absoluteFilePath(m_request.Book))};
    if (!OpenLocked(startUp, found.Path, found.IsFresh)) {
        return false;
    }
    // The questions on the way may have led to another file, which has its own lock.
    if (m_book.Path() != found.Path && !m_book.IsReadOnly() && m_lock.Take(m_book.Path()) == eLockState::Foreign) {
        return OpenForeign(m_book.Path());
    }
    Listen();
    return true;
}

void cMainProgram::Listen()
{
    if (m_lock.IsHeld()) {
        m_instance.Listen(m_book.Path());
        NoteUsed();
    }
}

void cMainProgram::NoteUsed()
{
    if (m_lock.IsHeld() && QGuiApplication::applicationState() == Qt::ApplicationActive) {
        cSingleInstance::NoteUsed(m_ports.Shell.StateFolder(), m_book.Path());
    }
}

bool cMainProgram::OpenLocked(cStartUp& startUp, const QString& path, bool isFresh)
{
    constexpr int pause = 100; // milliseconds
    eLockState state = m_lock.Take(path);
    // A program that was started a moment ago holds the book and does not listen yet: it is asked for a second.
    for (int tries = 10; state == eLockState::Foreign && tries > 0; --tries) {
        if (cSingleInstance::HandOver(path, m_request)) {
            return false;
        }
        QThread::msleep(pause);
        state = m_lock.Take(path);
    }
    if (state == eLockState::Foreign && !cBookSwitch::TakeOver(m_lock, path, m_ports.User)) {
        return OpenForeign(path);
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
    m_navigation =
        std::make_unique<cNavigation>(cNavigation::cParts{*m_tools, m_book, m_configuration, m_format, m_ports.Rescue,
                                                          m_ports.Shell, m_bookSwitch, *m_updates, m_log, *m_outlook});
    m_model = std::make_unique<cMainModel>(
        *m_tools, cMainModel::cParts{m_configuration, m_ports.Shell, *m_navigation, m_book.Path()});
    m_review = std::make_unique<cImportReview>(*m_tools);
    m_window = std::make_unique<frmMain>(*m_model);
    m_navigation->Connect(*m_model, *m_review, *m_window);
    QObject::connect(m_model.get(), &cMainModel::AppearanceChanged, m_window.get(), [this] { m_appearance.Apply(); });
    ConnectOutlook();
    m_log.Watch([this] { m_window->ShowFailureMark(true); });
    m_window->ShowFailureMark(m_log.Count() > 0);
    QObject::connect(&m_review->Files(), &cStatementFiles::ImportStarts, m_window.get(),
                     [this] { m_backups.CopyIfChanged(); });
    QObject::connect(m_window.get(), &frmMain::Closing, m_window.get(), [this] { m_backups.CopyIfChanged(); });
    QObject::connect(&m_instance, &cSingleInstance::Requested, m_window.get(),
                     [this](const cStartRequest& request) { Take(request); });
    QObject::connect(qApp, &QGuiApplication::applicationStateChanged, m_window.get(), [this] { NoteUsed(); });
    QObject::connect(&m_navigation->National(), &cNationalSettings::LanguageChanged, &tmrLanguage,
                     [this] { tmrLanguage.start(0); }); // when the menu or form that said so is done
}

void cMainProgram::ConnectOutlook()
{
    QObject::connect(m_model.get(), &cMainModel::BookRefreshed, &*m_outlook, &cOutlook::BookChanged);
    QObject::connect(m_review.get(), &cImportReview::RowsChanged, &*m_outlook, &cOutlook::BookChanged);
    QObject::connect(m_review.get(), &cImportReview::RowsStaged, &*m_outlook, &cOutlook::StatementsChanged);
    QObject::connect(m_review.get(), &cImportReview::EntriesChanged, &*m_outlook, &cOutlook::StatementsChanged);
    QObject::connect(&*m_outlook, &cOutlook::Looked, m_model.get(),
                     [this] { m_model->AccountList().SetWarnings(m_outlook->Day().Warnings); });
    m_reminder =
        std::make_unique<cReminderModel>(*m_tools, cReminderModel::cParts{*m_outlook, *m_navigation, m_ports.Notifier});
    QObject::connect(m_reminder.get(), &cReminderModel::Changed, m_window.get(),
                     [this] { m_window->ShowReminder(m_reminder->Text()); });
    QObject::connect(m_reminder.get(), &cReminderModel::OverviewWanted, m_window.get(),
                     [this] { m_window->ShowPage(frmMain::ePage::Overview); });
    QObject::connect(m_window.get(), &frmMain::ReminderClicked, m_reminder.get(), &cReminderModel::Follow);
}

QString cMainProgram::WantedLanguage() const
{
    const QString chosen = m_configuration.GetSetting(modSettingKey::LanguageName);
    return chosen.isEmpty() ? modLocale::Messages() : chosen;
}

// Texts are put into windows when these are made, so another language needs a new window on the same book. What can be
// undone is kept by the book.
void cMainProgram::FollowLanguage()
{
    if (WantedLanguage() == m_language.Code()) {
        return;
    }
    if (QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr) {
        tmrLanguage.start(requestRetry);
        return;
    }
    m_window->SaveLayout();
    m_navigation->LeaveBook();
    m_language.Use(WantedLanguage(), m_ports.Shell);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    const frmMain::ePage page = m_window->Page();
    m_log.Watch({}); // until there is a window to tell
    m_reminder.reset();
    m_window.reset();
    m_review.reset();
    m_model.reset();
    m_navigation.reset();
    BuildWindow();
    m_window->RestoreLayout();
    m_window->show();
    QGuiApplication::setQuitOnLastWindowClosed(true);
    m_model->RestoreView(false);
    m_window->ShowToday();
    m_window->ShowPage(page);
    m_outlook->Start();
    Serve(); // what waited for the former window
}

// Never while something is typed into a form.
void cMainProgram::LookForUpdates()
{
    if (m_end.HasBegun()) {
        return;
    }
    if (QApplication::activeModalWidget() != nullptr) {
        tmrUpdate.start(updateRetry);
        return;
    }
    m_updates->AfterStart();
    tmrUpdate.start(updatePause);
}

cBookSwitch::cHooks cMainProgram::Hooks()
{
    return {[this](cBookSwitch::eLeave leave) { LeaveBook(leave); },
            [this](bool isNewVersion) { ShowOtherBook(isNewVersion); },
            // Without the questions and the storing that closing a window brings: there is nothing to store into.
            [] { QCoreApplication::exit(1); }};
}

void cMainProgram::LeaveBook(cBookSwitch::eLeave leave)
{
    m_outlook->Stop();
    m_navigation->LeaveBook();
    m_window->SaveLayout();
    m_walk.reset();
    if (leave == cBookSwitch::eLeave::Keep) {
        m_backups.CopyIfChanged();
    }
}

// What is done with an open book while nobody waits for it.
void cMainProgram::WatchBook()
{
    m_book.Database().WatchDamage([this] { QTimer::singleShot(0, &tmrWalk, [this] { TellDamage(); }); });
    if (!IsFileWhole()) {
        TellDamage();
        return;
    }
    m_outlook->Start();
    m_walk.emplace(m_book.Database());
    tmrWalk.start(walkDelay);
    QTimer::singleShot(backupDelay, &tmrBackup, [this] { BackUp(); });
    tmrBackup.start(cBackupPlan::UseUntilCopy);
}

// What the overview says about the last backup was read at the start.
void cMainProgram::BackUp()
{
    const QString before = m_configuration.GetSetting(modSettingKey::BackupLast);
    m_backups.RunIfDue();
    if (m_configuration.GetSetting(modSettingKey::BackupLast) != before) {
        m_navigation->BackupsChanged();
    }
}

void cMainProgram::ReadOn()
{
    if (m_walk && m_walk->Step(walkTime)) {
        tmrWalk.start(walkPause);
    } else {
        m_walk.reset();
    }
}

bool cMainProgram::IsFileWhole()
{
    return !m_book.Database().IsDamaged() && m_book.Data().GetMissingParts().isEmpty();
}

// The message of the operation that came upon it comes first, and a window with unsaved fields is left to the user.
void cMainProgram::TellDamage()
{
    if (QApplication::activeModalWidget() != nullptr) {
        QTimer::singleShot(damageRetry, &tmrWalk, [this] { TellDamage(); });
    } else if (!IsFileWhole() && !m_end.HasBegun()) {
        m_navigation->TellDamage();
    }
}

void cMainProgram::ShowOtherBook(bool isNewVersion)
{
    m_backups.BookOpened();
    Listen();
    m_format.CultureChanged();
    m_model->BookSwitched(m_book.Path(), isNewVersion);
    m_window->RestoreLayout();
    m_window->ShowToday();
    WatchBook();
    QTimer::singleShot(0, m_window.get(), [this] { OfferDrafts(); });
    tmrLanguage.start(0); // the other book may have another one
}
