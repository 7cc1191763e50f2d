#include "cli/cCliBook.h"

#include "base/cShell.h"
#include "base/cText.h"
#include "cli/cConsoleRescue.h"
#include "cli/cConsoleUser.h"
#include "core/cBackup.h"
#include "core/cSettings.h"
#include "core/cStartUp.h"
#include "model/modSettingKey.h"
#include "store/cDatabase.h"
#include "store/modSchema.h"
#include "views/template/cNameKeepers.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace {

// A program that was killed in the middle of a write leaves a journal behind, which only a connection that may write
// can roll back; so a file that cannot be read as it is gets a second try.
eDatabaseFault Fault(const QString& path, eCliAccess access)
{
    cDatabase probe;
    eDatabaseFault fault = eDatabaseFault::None;
    if (access == eCliAccess::Read) {
        fault = modSchema::OpenValid(probe, path, eOpenMode::ReadOnly);
        return fault == eDatabaseFault::None ? fault : modSchema::OpenValid(probe, path, eOpenMode::ReadWrite);
    }
    fault = modSchema::OpenValid(probe, path, eOpenMode::ReadWrite);
    return fault == eDatabaseFault::None ? probe.ProbeWrite() : fault;
}

// What keeps the file from being opened, with what to do about it; empty when nothing does.
QString Hindrance(const QString& path, eCliAccess access, const cShell& shell)
{
    if (!shell.FileExists(path)) {
        return cText::Tr(
            "Die Datenbank '{0}' wurde nicht gefunden. Prüfen Sie den Pfad, oder legen Sie sie an: "
            "\"kontorelle-cli demo DATEI\" schreibt einen Beispielhaushalt, das Fenster von Kontorelle oder ein "
            "Aufruf ohne --database beginnt ein neues Buch.",
            {path});
    }
    switch (Fault(path, access)) {
    case eDatabaseFault::None: return {};
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
            "Die Datenbank '{0}' ist beschädigt oder keine gültige Datenbank. Das Fenster von Kontorelle kann "
            "eine Datensicherung zurückspielen; mit --database nennen Sie eine andere Datei.",
            {path});
    }
}

// The window asks its user what to do about a book that is gone. A script has nobody to ask, and must not go on with
// another book.
bool IsConfiguredBookThere(const cConfiguration& configuration, const cShell& shell)
{
    const QString path = configuration.GetSetting(modSettingKey::Database);
    if (path.isEmpty() || shell.FileExists(path)) {
        return true;
    }
    modConsole::Error(
        cText::Tr("Die Datenbank '{0}', mit der das Fenster von Kontorelle zuletzt gearbeitet hat, wurde nicht "
                  "gefunden. Prüfen Sie den Pfad, oder nennen Sie mit --database eine andere Datei.",
                  {path}));
    return false;
}

bool TakeLock(cFileLock& lock, const QString& path)
{
    const eLockState state = lock.Take(path);
    if (state == eLockState::Foreign) {
        modConsole::Error(
            cText::Tr("Die Datenbank '{0}' ist in Benutzung: {1}. Beenden Sie dieses Programm, und versuchen Sie "
                      "es noch einmal; lesende Befehle gehen auch so.",
                      {path, cFileLock::Holder(path)}));
    } else if (state == eLockState::Impossible) {
        modConsole::Error(
            cText::Tr("In den Ordner der Datenbank '{0}' kann nicht geschrieben werden. Bitte prüfen Sie die "
                      "Zugriffsrechte.",
                      {path}));
    }
    return state == eLockState::Held;
}

} // namespace

cCliBook::cCliBook(std::unique_ptr<cBook> book, std::unique_ptr<cConfiguration> configuration, cFileLock lock,
                   const cCliPorts& ports)
    : m_lock(std::move(lock)),
      m_configuration(std::move(configuration)),
      m_book(std::move(book)),
      m_format(*m_configuration),
      Data(m_book->Data()),
      Tools{Data, m_book->Settings(), m_format, ports.User, ports.Clock},
      Accounts(Data, m_book->Settings()),
      Hive(Data),
      Booking(Data, Hive, Accounts)
{
    cNameKeepers::Watch(Data, m_book->Settings());
}

std::unique_ptr<cCliBook> cCliBook::Open(const QString& database, eCliAccess access, const cCliPorts& ports)
{
    cConsoleRescue rescue;
    auto configuration = std::make_unique<cConfiguration>(ports.Registry);
    if (database.isEmpty() && !IsConfiguredBookThere(*configuration, ports.Shell)) {
        return nullptr;
    }
    cStartUp startUp({ports.Shell, ports.User, rescue, ports.Clock}, *configuration, QStringLiteral(APP_VERSION),
                     eFrontEnd::CommandLine);
    const cStartUp::cFound found = database.isEmpty()
        ? startUp.FindDatabase()
        : cStartUp::cFound{QDir::cleanPath(QDir().absoluteFilePath(database))};
    if (ports.User.HasFailed()) {
        return nullptr;
    }
    if (const QString hindrance = Hindrance(found.Path, access, ports.Shell); !hindrance.isEmpty()) {
        modConsole::Error(hindrance);
        return nullptr;
    }
    auto book = std::make_unique<cBook>(ports.User);
    cFileLock lock;
    if (access == eCliAccess::Read) {
        if (!book->OpenForReading(found.Path)) {
            return nullptr;
        }
        configuration->SetDatabase(&book->Settings());
    } else if (!TakeLock(lock, found.Path) || !startUp.OpenBook(*book, found) || book->IsReadOnly()) {
        return nullptr; // why it can be read only has been shown while it was opened
    }
    if (access != eCliAccess::Unlock && !startUp.AskPassword()) {
        return nullptr;
    }
    return std::unique_ptr<cCliBook>(new cCliBook(std::move(book), std::move(configuration), std::move(lock), ports));
}

QString cCliBook::MakeBackup(const QString& target, cShell& shell)
{
    return cBackup(m_book->Database(), shell).Make(target);
}
