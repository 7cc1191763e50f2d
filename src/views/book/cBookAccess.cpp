#include "views/book/cBookAccess.h"

#include "base/cBookLock.h"
#include "base/cShell.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "core/cBackup.h"
#include "core/cBackupPlan.h"
#include "core/cBook.h"
#include "core/cConfiguration.h"
#include "core/cSettings.h"
#include "core/cStartUp.h"
#include "core/modReceiptFolder.h"
#include "model/modSettingKey.h"
#include "model/modSplit.h"
#include "store/cDataAccess.h"
#include "store/cDatabase.h"
#include "store/modSchema.h"
#include "views/book/modBookCopy.h"
#include "views/template/cNameKeepers.h"

#include <QDir>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

using eMode = cBookAccess::eMode;

// A program that was killed in the middle of a write leaves a journal behind, which only a connection that may write
// can roll back; so a file that cannot be read as it is gets a second try.
eDatabaseFault Fault(cDatabase& probe, const QString& path, eMode mode)
{
    eDatabaseFault fault = eDatabaseFault::None;
    if (mode == eMode::Read) {
        fault = modSchema::OpenValid(probe, path, eOpenMode::ReadOnly);
        if (fault != eDatabaseFault::None
            && modSchema::OpenValid(probe, path, eOpenMode::ReadWrite) == eDatabaseFault::None) {
            fault = modSchema::OpenValid(probe, path, eOpenMode::ReadOnly); // what follows must not write
        }
        return fault == eDatabaseFault::None ? modSchema::StandIn(probe) : fault;
    }
    fault = modSchema::OpenValid(probe, path, eOpenMode::ReadWrite);
    return fault == eDatabaseFault::None ? probe.ProbeWrite() : fault;
}

QString Incompleteness(cDatabase& database)
{
    const QStringList lost = modSchema::Lost(database);
    return lost.isEmpty()
        ? QString()
        : cText::Tr("Die Datenbank '{0}' ist unvollständig. Es fehlt: {1}. \"kontorelle-cli restore DATEI\" lädt eine "
                    "Datensicherung, das Fenster von Kontorelle auch; mit --database nennen Sie eine andere Datei.",
                    {database.Path(), lost.join(u", "_s)});
}

// What keeps the file from being opened, with what to do about it; empty when nothing does.
QString Hindrance(const QString& path, eMode mode, const cShell& shell)
{
    if (!shell.FileExists(path)) {
        return cText::Tr(
            "Die Datenbank '{0}' wurde nicht gefunden. Prüfen Sie den Pfad, oder legen Sie sie an: "
            "\"kontorelle-cli demo DATEI\" schreibt einen Beispielhaushalt, das Fenster von Kontorelle oder ein "
            "Aufruf ohne --database beginnt ein neues Buch.",
            {path});
    }
    cDatabase probe;
    switch (Fault(probe, path, mode)) {
    case eDatabaseFault::None: return Incompleteness(probe);
    case eDatabaseFault::Busy:
        return cText::Tr(
            "Die Datenbank '{0}' wird gerade von einem anderen Programm benutzt. Beenden Sie es, und versuchen "
            "Sie es noch einmal.",
            {path});
    case eDatabaseFault::NoAccess:
        return cText::Tr("Die Datenbank '{0}' kann nicht gelesen werden. Bitte prüfen Sie die Zugriffsrechte.", {path});
    case eDatabaseFault::ReadOnly:
        return cText::Tr("Die Datenbank '{0}' kann nur gelesen werden. Bitte prüfen Sie die Zugriffsrechte.", {path});
    case eDatabaseFault::Full:
        return cText::Tr("In die Datenbank '{0}' kann nicht geschrieben werden. Bitte prüfen Sie den Speicherplatz.",
                         {path});
    default:
        return cText::Tr(
            "Die Datenbank '{0}' ist beschädigt oder keine gültige Datenbank. \"kontorelle-cli restore DATEI\" lädt "
            "eine Datensicherung, das Fenster von Kontorelle auch; mit --database nennen Sie eine andere Datei.",
            {path});
    }
}

// The window asks its user what to do about a book that is gone. A script has nobody to ask, and must not go on with
// another book. Empty when all is well.
QString MissingBook(const cConfiguration& configuration, const cShell& shell)
{
    const QString path = configuration.GetSetting(modSettingKey::Database);
    return path.isEmpty() || shell.FileExists(path)
        ? QString()
        : cText::Tr("Die Datenbank '{0}', mit der das Fenster von Kontorelle zuletzt gearbeitet hat, wurde nicht "
                    "gefunden. Prüfen Sie den Pfad, oder nennen Sie mit --database eine andere Datei.",
                    {path});
}

// Takes the lock; what keeps it from that.
QString LockProblem(cBookLock& lock, const QString& path)
{
    switch (lock.Take(path)) {
    case eLockState::Held: return {};
    case eLockState::Foreign: return modBookCopy::InUse(lock, path);
    case eLockState::Impossible:
        return cText::Tr("In den Ordner der Datenbank '{0}' kann nicht geschrieben werden. Bitte prüfen Sie die "
                         "Zugriffsrechte.",
                         {path});
    }
    return {};
}

std::unique_ptr<cBookAccess> Refuse(cUser& user, const QString& text)
{
    user.Show(eTone::Critical, text);
    return nullptr;
}

} // namespace

cBookAccess::cBookAccess(std::unique_ptr<cBook> book, std::unique_ptr<cConfiguration> configuration,
                         const cPorts& ports)
    : m_configuration(std::move(configuration)),
      m_book(std::move(book)),
      m_backups(std::make_unique<cBackupPlan>(cBackupPlan::cPorts{ports.Shell, ports.User, ports.Clock}, *m_book,
                                              *m_configuration))
{
    m_backups->BookOpened();
    m_backups->RunIfDue(); // a file opened for reading is left as it is
    cNameKeepers::Watch(Data(), Settings());
}

cBookAccess::~cBookAccess() = default;

std::unique_ptr<cBookAccess> cBookAccess::Open(const QString& database, eMode mode, const cPorts& ports)
{
    auto configuration = std::make_unique<cConfiguration>(ports.Registry);
    if (const QString missing = MissingBook(*configuration, ports.Shell); database.isEmpty() && !missing.isEmpty()) {
        return Refuse(ports.User, missing);
    }
    cStartUp startUp({ports.Shell, ports.User, ports.Rescue, ports.Clock}, *configuration, ports.Version,
                     eFrontEnd::CommandLine);
    const cStartUp::cFound found = database.isEmpty() ? startUp.FindDatabase() : cStartUp::cFound{FullPath(database)};
    if (ports.HasFailed()) {
        return nullptr;
    }
    if (const QString hindrance = Hindrance(found.Path, mode, ports.Shell); !hindrance.isEmpty()) {
        return Refuse(ports.User, hindrance);
    }
    auto book = std::make_unique<cBook>(ports.User);
    if (mode == eMode::Read) {
        if (!book->OpenForReading(found.Path)) {
            return nullptr;
        }
        configuration->SetDatabase(&book->Settings());
    } else {
        if (const QString problem = LockProblem(ports.Lock, found.Path); !problem.isEmpty()) {
            return Refuse(ports.User, problem);
        }
        if (!startUp.OpenBook(*book, found) || book->IsReadOnly()) {
            return nullptr; // why it can be read only has been shown while it was opened
        }
    }
    if (mode != eMode::Unlock && !startUp.AskPassword()) {
        return nullptr;
    }
    return std::unique_ptr<cBookAccess>(new cBookAccess(std::move(book), std::move(configuration), ports));
}

QString cBookAccess::FullPath(const QString& path)
{
    return QDir::cleanPath(QDir().absoluteFilePath(path));
}

QString cBookAccess::PathFor(const QString& database, cRegistry& registry, cShell& shell)
{
    if (!database.isEmpty()) {
        return FullPath(database);
    }
    const QString configured = cConfiguration(registry).GetSetting(modSettingKey::Database);
    return configured.isEmpty() ? modSchema::DefaultDatabasePath(shell) : configured;
}

QString cBookAccess::Path() const
{
    return m_book->Path();
}

QStringList cBookAccess::Added() const
{
    return m_book->Added();
}

cDataAccess& cBookAccess::Data()
{
    return m_book->Data();
}

cSettings& cBookAccess::Settings()
{
    return m_book->Settings();
}

std::optional<cEntryItem> cBookAccess::Entry(int id)
{
    return Data().LoadEntry(id);
}

cEntryItemList cBookAccess::Parts(const cEntryItem& entry)
{
    const int group = modSplit::Group(entry);
    return group == 0 ? cEntryItemList() : Data().GetEntriesOfSplit(group);
}

cEntryItemList cBookAccess::Entries(const cEntryQuery& query)
{
    cEntryItemList entries = Data().GetEntries(query);
    std::stable_sort(entries.begin(), entries.end(),
                     [](const cEntryItem& a, const cEntryItem& b) { return a.EntryDate < b.EntryDate; });
    return entries;
}

cEntryItemFixModList cBookAccess::Corrections(int id)
{
    cEntryItemFixModList fixMods = Data().GetEntryMods(id);
    std::sort(fixMods.begin(), fixMods.end(),
              [](const cEntryItemFixMod& a, const cEntryItemFixMod& b) { return a.EntryStartDate < b.EntryStartDate; });
    return fixMods;
}

int cBookAccess::CountEntries()
{
    return Data().CountEntries();
}

QString cBookAccess::LastStep()
{
    return Data().Journal().UndoName();
}

QString cBookAccess::MakeBackup(const QString& target, cShell& shell)
{
    return cBackup(m_book->Database(), shell).Make(target);
}

QString cBookAccess::SaveReceipts(const QString& backup) const
{
    return modReceiptFolder::SaveIfWished(*m_configuration, m_book->Path(), backup);
}

void cBookAccess::CopyIfChanged()
{
    m_backups->CopyIfChanged();
}

QString cBookAccess::DamageText() const
{
    return m_book->Database().IsDamaged() ? cText::Tr(
               "Die Datei der Datenbank '{0}' ist beschädigt. Was hier steht, kann unvollständig sein, und es wird "
               "nichts mehr gespeichert. \"kontorelle-cli restore DATEI\" lädt eine Datensicherung; die selbst "
               "gemachten liegen im Ordner '{1}'.",
               {Path(), m_backups->Folder()})
                                          : QString();
}
