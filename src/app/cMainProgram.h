#pragma once

#include "app/cAppearance.h"
#include "app/cBookSwitch.h"
#include "app/cProgramEnd.h"
#include "app/cUpdateWindows.h"
#include "app/machine/cFileLock.h"
#include "app/machine/cLanguage.h"
#include "app/machine/cSingleInstance.h"
#include "core/cAmountFormat.h"
#include "core/cBackupPlan.h"
#include "core/cBook.h"
#include "core/cBookTools.h"
#include "core/cConfiguration.h"
#include "core/cErrorLog.h"
#include "core/cLoggedUser.h"
#include "core/cStartRequest.h"
#include "store/cTableWalk.h"
#include "views/overview/cOutlook.h"

#include <QString>
#include <QTimer>

#include <memory>
#include <optional>

class cClock;
class cImportReview;
class cMainModel;
class cNavigation;
class cNotifier;
class cRegistry;
class cReminderModel;
class cRescue;
class cShell;
class cStartUp;
class cUser;
class frmMain;

// Puts the window program together and brings it up: ports, book, models, main window.
class cMainProgram final
{
public:
    struct cPorts
    {
        cShell& Shell;
        cRegistry& Registry;
        cUser& User;
        cRescue& Rescue;
        const cClock& Clock;
        cNotifier* Notifier = nullptr; // of a desktop that shows notes
    };

    cMainProgram(const cPorts& ports, const QString& version);
    cMainProgram(const cMainProgram&) = delete;
    cMainProgram& operator=(const cMainProgram&) = delete;
    ~cMainProgram();

    // Runs the start-up with its questions, shows the window and does what the request wants. Without a book it is the
    // database of the configuration, or with something to do that of the window used last. False when the program has
    // to end: the user declined every remedy, or the book is already open in another window, which was brought to the
    // front and got the request.
    [[nodiscard]] bool Start(const cStartRequest& request);

    // For whoever ends the program from outside. Save keeps what would be lost, layout and typed contents, and leaves
    // all as it is; End does that and closes the window as the user does, but without questions. It returns at once.
    void Save();
    void End();

    // The window and its model; only after a successful start.
    [[nodiscard]] frmMain& Window() { return *m_window; }
    [[nodiscard]] cMainModel& Model() { return *m_model; }
    [[nodiscard]] cImportReview& Review() { return *m_review; }
    [[nodiscard]] cAppearance& Appearance() { return m_appearance; } // from the beginning on
    [[nodiscard]] cNavigation& Navigation() { return *m_navigation; }
    [[nodiscard]] const cBookTools& Tools() const { return *m_tools; }
    [[nodiscard]] cErrorLog& Log() { return m_log; }

private:
    [[nodiscard]] bool OpenBook(cStartUp& startUp);
    void Listen();
    void NoteUsed();
    void Serve();
    void Take(const cStartRequest& request);
    [[nodiscard]] bool OpenLocked(cStartUp& startUp, const QString& path, bool isFresh);
    [[nodiscard]] bool OpenForeign(const QString& path);
    void BuildWindow();
    void ConnectOutlook();
    void FollowLanguage();
    void LookForUpdates();
    [[nodiscard]] QString WantedLanguage() const;
    [[nodiscard]] cBookSwitch::cHooks Hooks();
    void ShowOtherBook(bool isNewVersion);
    void WatchBook();
    void BackUp();
    void ReadOn();
    [[nodiscard]] bool IsFileWhole(); // not damaged, and no table or column is lost
    void TellDamage();
    void GoToWork();
    void LeaveBook(cBookSwitch::eLeave leave);
    void OfferDrafts();
    void Finish();

    cErrorLog m_log;
    cLoggedUser m_user; // every failure that is told on the way
    cPorts m_ports;
    QString m_version;
    cConfiguration m_configuration;
    cBook m_book;
    cAppearance m_appearance;
    cLanguage m_language;
    cFileLock m_lock;
    cSingleInstance m_instance;
    cAmountFormat m_format{m_configuration};
    cBookSwitch m_bookSwitch;
    cBackupPlan m_backups;
    cProgramEnd m_end;
    QTimer tmrBackup;                 // until the next copy of a program that stays open
    std::optional<cTableWalk> m_walk; // until the open file has been read once
    QTimer tmrWalk;
    QTimer tmrLanguage;
    QTimer tmrUpdate;
    cStartRequest m_request;           // of this start, or of a later one that is still waiting
    std::optional<cBookTools> m_tools; // from the first opening of the book on
    std::optional<cUpdateWindows> m_updates;
    std::optional<cOutlook> m_outlook;
    std::unique_ptr<cNavigation> m_navigation;
    std::unique_ptr<cMainModel> m_model;
    std::unique_ptr<cImportReview> m_review;
    std::unique_ptr<cReminderModel> m_reminder;
    std::unique_ptr<frmMain> m_window;
    bool m_isOffering = false; // drafts
    bool m_isReady = false;    // the window shows the book
};
