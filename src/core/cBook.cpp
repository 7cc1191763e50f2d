#include "core/cBook.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "core/cSettings.h"
#include "store/cDataAccess.h"
#include "store/cDatabase.h"
#include "store/cOpenSequence.h"
#include "store/modSchema.h"

namespace {

QString Refusal(eDatabaseFault fault, const QString& path)
{
    switch (fault) {
    case eDatabaseFault::Busy:
        return cText::Tr("Die Datenbank '{0}' wird gerade von einem anderen Programm benutzt.", {path});
    case eDatabaseFault::NoAccess:
    case eDatabaseFault::ReadOnly:
        return cText::Tr("Die Datenbank '{0}' kann nicht gelesen werden. Bitte prüfen Sie die Zugriffsrechte.", {path});
    default: return cText::Tr("Die Datenbank '{0}' ist beschädigt oder keine gültige Datenbank.", {path});
    }
}

} // namespace

cBook::cBook(cUser& user)
    : m_user(user),
      m_database(std::make_unique<cDatabase>()),
      m_data(std::make_unique<cDataAccess>(*m_database, user))
{
}

cBook::~cBook() = default;

bool cBook::Open(const QString& path)
{
    eDatabaseFault fault = modSchema::OpenValid(*m_database, path, eOpenMode::ReadWrite);
    m_added.clear();
    if (fault == eDatabaseFault::None && !m_database->IsReadOnly()) {
        m_added = modSchema::Upgrade(*m_database);
    } else if (fault == eDatabaseFault::None) {
        fault = modSchema::StandIn(*m_database);
    }
    if (fault != eDatabaseFault::None) {
        return Refuse(fault, path);
    }
    LoadSettings();
    return true;
}

bool cBook::OpenForReading(const QString& path)
{
    eDatabaseFault fault = modSchema::OpenValid(*m_database, path, eOpenMode::ReadOnly);
    m_added.clear();
    if (fault == eDatabaseFault::None) {
        fault = modSchema::StandIn(*m_database);
    }
    if (fault != eDatabaseFault::None) {
        return Refuse(fault, path);
    }
    NameShutOut();
    LoadSettings();
    return true;
}

bool cBook::OpenWithQuestions(const QString& path, bool isFresh, const cPorts& ports)
{
    cOpenSequence sequence(*m_database, {ports.Shell, m_user, ports.Rescue}, ports.Version, ports.Today);
    if (sequence.Run(path, isFresh ? eOrigin::Fresh : eOrigin::Existing) == eOpenResult::Ended) {
        return false;
    }
    m_added = sequence.Added();
    NameShutOut();
    LoadSettings();
    return true;
}

bool cBook::TryOpen(const QString& path, bool isFresh, const cPorts& ports)
{
    const eDatabaseFault fault = modSchema::OpenValid(*m_database, path, eOpenMode::ReadWrite);
    if (fault != eDatabaseFault::None) {
        return Refuse(fault, path);
    }
    cOpenSequence sequence(*m_database, {ports.Shell, m_user, ports.Rescue}, ports.Version, ports.Today,
                           eRefusal::KeepsOldBook);
    if (sequence.Run(path, isFresh ? eOrigin::Fresh : eOrigin::Existing) == eOpenResult::Ended) {
        return false;
    }
    m_added = sequence.Added();
    NameShutOut();
    LoadSettings();
    return true;
}

// Whoever has put them there may count on them, so their owner is told that they do nothing here.
void cBook::NameShutOut()
{
    constexpr qsizetype longestName = 40;
    constexpr qsizetype most = 5;
    const QStringList& all = m_database->ShutOutNames();
    if (all.isEmpty()) {
        return;
    }
    QStringList names;
    for (const QString& name : all.mid(0, most)) {
        names.append(name.size() > longestName ? name.left(longestName) + QChar(u'…') : name);
    }
    if (all.size() > most) {
        names.append(QStringLiteral("…"));
    }
    m_user.Show(eTone::Exclamation,
                cText::Tr("Das Buch enthält Trigger oder Sichten, die nicht von Kontorelle stammen: {0}.\nSie werden "
                          "nicht ausgeführt. Wenn Sie sie nicht selbst angelegt haben, prüfen Sie bitte, woher die "
                          "Datei kommt.",
                          {names.join(QStringLiteral(", "))}));
}

bool cBook::Refuse(eDatabaseFault fault, const QString& path)
{
    m_user.Show(eTone::Critical, Refusal(fault, path));
    return false;
}

void cBook::Close()
{
    m_database->Close();
}

bool cBook::IsOpen() const
{
    return m_database->IsOpen();
}

bool cBook::IsReadOnly() const
{
    return m_database->IsReadOnly();
}

QString cBook::Path() const
{
    return m_database->Path();
}

void cBook::LoadSettings()
{
    m_data->ForgetFile();
    if (m_settings) {
        m_settings->Reload();
    } else {
        m_settings = std::make_unique<cSettings>(*m_data);
    }
}
