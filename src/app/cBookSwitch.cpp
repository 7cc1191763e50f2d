#include "app/cBookSwitch.h"

#include "app/machine/cFileLock.h"
#include "base/cClock.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "core/cBackup.h"
#include "core/cBook.h"
#include "core/cConfiguration.h"
#include "core/modPassword.h"
#include "model/modSettingKey.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

cBookSwitch::eMode cBookSwitch::ModeOf(const cBook& book)
{
    return book.IsReadOnly() ? eMode::Reading : eMode::Writing;
}

cBookSwitch::cBookSwitch(const cParts& parts, cHooks hooks) : m_parts(parts), m_hooks(std::move(hooks))
{
}

bool cBookSwitch::IsInUse(const QString& path)
{
    cFileLock lock;
    if (lock.Take(path) != eLockState::Foreign) {
        return false;
    }
    ShowHolder(path);
    return true;
}

void cBookSwitch::ShowHolder(const QString& path) const
{
    m_parts.Ports.User.Show(eTone::Exclamation,
                            cText::Tr("Die Datenbank '{0}' ist in Benutzung: {1}.",
                                      {QDir::toNativeSeparators(path), cFileLock::Holder(path)}));
}

bool cBookSwitch::TakeOver(cFileLock& lock, const QString& path, cUser& user)
{
    if (!lock.IsAbandoned(path)) {
        return false;
    }
    const eAnswer answer =
        user.Ask({.Text = cText::Tr(
                      "Die Datenbank '{0}' ist in Benutzung: {1}.\nAuf diesem Rechner läuft dieses Programm nicht. "
                      "Es kann abgestürzt sein, oder es läuft auf einem anderen. Schreiben zwei Programme zugleich, "
                      "gehen Daten verloren.\nMöchten Sie die Datenbank trotzdem öffnen?",
                      {QDir::toNativeSeparators(path), cFileLock::Holder(path)}),
                  .Title = {},
                  .Tone = eTone::Exclamation,
                  .Default = eAnswer::No});
    return answer == eAnswer::Yes && lock.TakeOver(path) == eLockState::Held;
}

bool cBookSwitch::Switch(const QString& path, eBookOrigin origin)
{
    cFileLock lock;
    if (lock.Take(path) == eLockState::Foreign && !TakeOver(lock, path, m_parts.Ports.User)) {
        ShowHolder(path);
        return false;
    }
    const std::optional<cProbe> probe = Probe(path, origin);
    if (!probe) {
        return false;
    }
    const QString former = m_parts.Book.Path();
    const eMode formerMode = ModeOf(m_parts.Book);
    m_hooks.Leave(eLeave::Keep);
    if (!Open(probe->Path, probe->Mode)) {
        Return(former, formerMode);
        return false;
    }
    m_parts.Lock = std::move(lock);
    m_parts.Configuration.SaveSetting(modSettingKey::Database, probe->Path, eSettingPlace::Registry);
    m_hooks.Arrive(probe->IsNewVersion);
    return true;
}

// Opens the file beside the present book, brings it up to date and asks for its password.
std::optional<cBookSwitch::cProbe> cBookSwitch::Probe(const QString& path, eBookOrigin origin) const
{
    cConfiguration configuration(m_parts.Registry);
    cStartUp startUp(m_parts.Ports, configuration, m_parts.Version);
    cBook book(m_parts.Ports.User);
    if (!startUp.TryBook(book, {path, origin == eBookOrigin::Fresh}) || !startUp.AskPassword()) {
        return std::nullopt;
    }
    return cProbe{path, ModeOf(book), startUp.IsNewVersion()};
}

std::optional<QString> cBookSwitch::Restore(const QString& backup)
{
    const QString path = m_parts.Book.Path();
    if (m_parts.Lock.Take(path) == eLockState::Foreign) {
        ShowHolder(path); // a book that was opened for reading only may be somebody else's at the moment
        return std::nullopt;
    }
    if (!AskPasswordOf(backup)) {
        return std::nullopt;
    }
    const eMode formerMode = ModeOf(m_parts.Book);
    m_hooks.Leave(eLeave::Replace);
    cBackup files(m_parts.Book.Database(), m_parts.Ports.Shell);
    const cBackup::cRestored restored = files.Restore(path, backup, m_parts.Ports.Clock.Today());
    if (!restored.Problem.isEmpty()) {
        m_parts.Ports.User.Show(eTone::Critical,
                                cText::Tr("Die Datensicherung konnte nicht geladen werden:\n{0}", {restored.Problem}));
        Return(path, formerMode);
        return std::nullopt;
    }
    if (!Open(path, eMode::Writing)) {
        m_parts.Book.Close();
        (void)files.PutBack(path, restored.Kept);
        Return(path, formerMode);
        return std::nullopt;
    }
    (void)m_parts.Lock.Take(path); // it is another file now
    m_hooks.Arrive(false);
    return restored.Kept;
}

bool cBookSwitch::AskPasswordOf(const QString& backup) const
{
    cConfiguration configuration(m_parts.Registry);
    cBook book(m_parts.Ports.User);
    if (!book.OpenForReading(backup)) {
        return false;
    }
    configuration.SetDatabase(&book.Settings());
    return modPassword::Admit(configuration, m_parts.Ports.Rescue);
}

bool cBookSwitch::Open(const QString& path, eMode mode)
{
    m_parts.Configuration.SetDatabase(nullptr);
    const bool isOpen = mode == eMode::Reading ? m_parts.Book.OpenForReading(path) : m_parts.Book.Open(path);
    m_parts.Configuration.SetDatabase(isOpen ? &m_parts.Book.Settings() : nullptr);
    return isOpen;
}

// Goes back to the book that was open before, unless it still is.
void cBookSwitch::Return(const QString& path, eMode mode)
{
    if (m_parts.Book.IsOpen()) {
        return;
    }
    if (Open(path, mode)) {
        m_hooks.Arrive(false);
        return;
    }
    m_parts.Ports.User.Show(
        eTone::Critical,
        cText::Tr(
            "Auch die bisherige Datenbank '{0}' kann nicht mehr geöffnet werden. Die Software wird jetzt beendet.",
            {QDir::toNativeSeparators(path)}));
    m_hooks.End();
}
