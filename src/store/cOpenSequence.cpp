#include "store/cOpenSequence.h"

#include "base/cRescue.h"
#include "base/cShell.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDate.h"
#include "base/modLog.h"
#include "store/modBookFile.h"
#include "store/modFailure.h"
#include "store/modSchema.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

cOpenSequence::cOpenSequence(cDatabase& database, const cPorts& ports, QString version, QDate today, eRefusal refusal)
    : m_database(database),
      m_ports(ports),
      m_version(std::move(version)),
      m_today(today),
      m_refusal(refusal)
{
}

eOpenResult cOpenSequence::Run(const QString& path, eOrigin origin)
{
    m_path = path;
    m_origin = origin;
    m_added.clear();
    eOpenResult result = eOpenResult::Ended;
    if (FindFile() == eStep::End || MakeUsable() == eStep::End) {
        m_database.Close();
    } else {
        result = Prepare();
    }
    qCInfo(modLog::Open).noquote() << "version" << m_version << "result" << static_cast<int>(result);
    return result;
}

bool cOpenSequence::Ask(const QString& text) const
{
    return m_ports.User.Ask({.Text = text, .Title = {}}) == eAnswer::Yes;
}

bool cOpenSequence::AskAboutFault(const QString& text) const
{
    return m_ports.User.Ask({.Text = text, .Title = cText::Tr("Fehlerhafte Konfiguration!"), .Tone = eTone::Critical})
        == eAnswer::Yes;
}

cOpenSequence::eStep cOpenSequence::End(const QString& text) const
{
    if (m_refusal == eRefusal::EndsProgram) {
        m_ports.User.Show(eTone::Information, text);
    }
    return eStep::End;
}

cOpenSequence::eStep cOpenSequence::EndForNow() const
{
    return End(cText::Tr("Die Software wird jetzt beendet. Bitte korrigieren Sie dieses Konfigurationsproblem."));
}

// Asks for another path until there is a file at it.
cOpenSequence::eStep cOpenSequence::FindFile()
{
    while (!m_ports.Shell.FileExists(m_path)) {
        if (!AskAboutFault(
                cText::Tr("Die Datenbank '{0}' wurde nicht gefunden.\nMöchten Sie jetzt einen neuen Datenbankpfad "
                          "wählen?",
                          {m_path}))) {
            return EndForNow();
        }
        if (m_origin == eOrigin::Fresh) {
            return FindOtherPlace();
        }
        m_path = m_ports.Rescue.ChooseDatabase(m_path).value_or(m_path);
    }
    return eStep::Continue;
}

// A new book could not be made where books usually are. What is chosen is not there because of that.
cOpenSequence::eStep cOpenSequence::FindOtherPlace()
{
    const QString folder = QFileInfo(m_path).absolutePath();
    const int chosen = m_ports.User.Decide(
        {.Text = cText::Tr("Im Ordner '{0}' lässt sich kein Haushaltsbuch anlegen: Sie dürfen dort nicht schreiben, "
                           "oder es ist kein Platz mehr.\n\nLegen Sie es in einem anderen Ordner an, oder öffnen Sie "
                           "eines, das es schon gibt.",
                           {folder}),
         .Title = cText::Tr("Datenbank wählen"),
         .Options = {cText::Tr("&Neu anlegen…"), cText::Tr("&Vorhandenes öffnen…")}});
    const QString filter = cText::Tr("Datenbanken|*.db|Alle Dateien|*.*");
    const QString path = chosen == 0
        ? m_ports.User.ChooseSavePath(cText::Tr("Neue Datenbank"), filter, u"Kontorelle.db"_s)
        : chosen == 1 ? m_ports.Rescue.ChooseDatabase(m_path).value_or(QString())
                      : QString();
    if (path.isEmpty()) {
        return EndForNow();
    }
    if (chosen == 1 || m_ports.Shell.FileExists(path)) { // of a book that is there nothing is replaced
        m_origin = eOrigin::Existing;
    } else if (const QString problem = modSchema::FromTemplate(m_ports.Shell, path); !problem.isEmpty()) {
        m_ports.User.Show(eTone::Critical, problem);
    }
    m_path = path;
    return FindFile();
}

cOpenSequence::eStep cOpenSequence::MakeUsable()
{
    eDatabaseFault fault = OpenPatiently();
    while (fault == eDatabaseFault::NoAccess || fault == eDatabaseFault::ReadOnly) {
        if (OfferOtherPath() == eStep::End) {
            return eStep::End;
        }
        fault = OpenPatiently();
    }
    if (fault == eDatabaseFault::Damaged) {
        Repair();
        fault = OpenPatiently();
    }
    if (fault == eDatabaseFault::None) {
        return eStep::Continue;
    }
    if (fault == eDatabaseFault::Busy) {
        return EndForNow();
    }
    return End(
        cText::Tr("Die Konfiguration ist fehlerhaft oder Ihre Datenbank wurde beschädigt. Die Software wird jetzt "
                  "beendet.\nBitte korrigieren Sie dieses Konfigurationsproblem."));
}

// A file that somebody else holds is not damaged: it is opened as soon as it is free.
eDatabaseFault cOpenSequence::OpenPatiently()
{
    while (true) {
        const eDatabaseFault fault = modSchema::OpenValid(m_database, m_path, eOpenMode::ReadWrite);
        if (fault != eDatabaseFault::Busy
            || !Ask(
                cText::Tr("Die Datenbank '{0}' wird gerade von einem anderen Programm benutzt.\nMöchten Sie es noch "
                          "einmal versuchen?",
                          {m_path}))) {
            return fault;
        }
    }
}

cOpenSequence::eStep cOpenSequence::OfferOtherPath()
{
    m_ports.User.Show(
        eTone::Critical,
        cText::Tr("Die Datenbank '{0}' kann nicht gelesen werden. Bitte prüfen Sie die Zugriffsrechte.", {m_path}));
    if (!Ask(cText::Tr("Möchten Sie jetzt den Datenbankpfad ändern?"))) {
        return EndForNow();
    }
    const std::optional<QString> chosen = m_ports.Rescue.ChooseDatabase(m_path);
    if (!chosen) {
        return EndForNow();
    }
    m_path = *chosen;
    m_origin = eOrigin::Existing;
    return FindFile();
}

void cOpenSequence::Repair()
{
    m_origin = eOrigin::Existing; // whatever comes in its place may be somebody's data
    if (AskAboutFault(
            cText::Tr("Die Datenbank '{0}' ist beschädigt oder keine gültige Datenbank. Bitte laden Sie eine "
                      "Datenbanksicherung oder ändern Sie den Datenbankpfad. Möchten Sie jetzt eine Datensicherung "
                      "zurück spielen?",
                      {m_path}))) {
        RestoreBackup();
    } else if (Ask(cText::Tr("Möchten Sie jetzt den Datenbankpfad ändern?"))) {
        m_path = m_ports.Rescue.ChooseDatabase(m_path).value_or(m_path);
    } else if (Ask(cText::Tr("Möchten Sie die beschädigte Datenbank löschen und neu initialisieren?"))) {
        Initialise();
    }
}

// Lets the user choose until the backup is a usable database and the one wanted; nothing is replaced before.
void cOpenSequence::RestoreBackup()
{
    const QString folder = QFileInfo(m_path).absolutePath();
    while (const std::optional<QString> backup = m_ports.Rescue.ChooseBackup(folder)) {
        const eAnswer answer = AskAboutBackup(*backup);
        if (answer == eAnswer::Yes) {
            const QString working = modBookFile::WorkingName(m_path);
            const bool isCopied = m_ports.Shell.CopyFile(*backup, working);
            (void)ReplaceBy(working, isCopied ? QString() : modSchema::CannotCreate(m_path));
        }
        if (answer != eAnswer::No) {
            return;
        }
    }
}

// Says what a backup holds and asks whether it is the right one. No: another one is to be chosen.
eAnswer cOpenSequence::AskAboutBackup(const QString& backup) const
{
    const modBookFile::cContent content = modBookFile::Look(backup);
    if (const QString refusal = modBookFile::Refusal(backup, content); !refusal.isEmpty()) {
        m_ports.User.Show(eTone::Exclamation, refusal);
        return eAnswer::No;
    }
    return m_ports.User.Ask(
        {.Text = cText::Tr("Die Datensicherung '{0}' enthält:\n{1}.\n\nMöchten Sie diese Datensicherung laden?",
                           {backup, modBookFile::Describe(content)}),
         .Title = cText::Tr("Datensicherung laden"),
         .Buttons = eButtons::YesNoCancel});
}

void cOpenSequence::Initialise()
{
    const QString working = modBookFile::WorkingName(m_path);
    if (ReplaceBy(working, modSchema::FromTemplate(m_ports.Shell, working))) {
        m_origin = eOrigin::Fresh;
    }
}

// Puts the working file in the place of the damaged one, which stays beside it under another name; `problem` says why
// there is no working file.
bool cOpenSequence::ReplaceBy(const QString& working, QString problem)
{
    if (problem.isEmpty()) {
        if (const std::optional<QString> kept =
                modBookFile::PutInPlace(m_ports.Shell, working, m_path, m_today, u"beschaedigt"_s)) {
            m_ports.User.Show(eTone::Information,
                              cText::Tr("Die bisherige Datei wurde als '{0}' aufgehoben.", {*kept}));
            return true;
        }
        problem = modSchema::CannotCreate(m_path);
    }
    QFile::remove(working);
    m_ports.User.Show(eTone::Critical, problem);
    return false;
}

// The valid database is open: makes it current, or settles for reading. An incomplete one stays as it is, and what is
// done about it is up to the caller, who knows the backups.
eOpenResult cOpenSequence::Prepare()
{
    if (!modSchema::Lost(m_database).isEmpty()) {
        return OpenForReading({});
    }
    eDatabaseFault fault = m_database.ProbeWrite();
    while (fault == eDatabaseFault::Busy
           && Ask(cText::Tr(
               "Die Datenbank '{0}' wird gerade von einem anderen Programm benutzt.\nMöchten Sie es noch einmal "
               "versuchen?",
               {m_path}))) {
        fault = m_database.ProbeWrite();
    }
    if (fault == eDatabaseFault::Busy) {
        return AskForReading();
    }
    if (fault == eDatabaseFault::ReadOnly) {
        return OpenForReading(
            cText::Tr("Die Datenbank '{0}' kann nur gelesen werden. Änderungen werden nicht gespeichert.", {m_path}));
    }
    if (const QString problem = CopyBeforeUpgrade(); !problem.isEmpty()) {
        return OpenForReading(cText::Tr("Die Datenbank '{0}' kann nur gelesen werden, weil vor ihrer Umstellung keine "
                                        "Sicherungskopie angelegt werden konnte:\n{1}",
                                        {m_path, problem}));
    }
    m_added = modSchema::Upgrade(m_database);
    if (const QStringList missing = modSchema::Missing(m_database); !missing.isEmpty()) {
        return OpenForReading(cText::Tr("Die Datenbank '{0}' kann nur gelesen werden, weil sie nicht umgestellt werden "
                                        "konnte. Bitte prüfen Sie den Speicherplatz.\nEs fehlt: {1}",
                                        {m_path, missing.join(u", "_s)}));
    }
    return eOpenResult::Opened;
}

eOpenResult cOpenSequence::AskForReading()
{
    if (Ask(cText::Tr("Möchten Sie die Datenbank nur zum Lesen öffnen?"))) {
        return OpenForReading({});
    }
    m_database.Close();
    (void)EndForNow();
    return eOpenResult::Ended;
}

eOpenResult cOpenSequence::OpenForReading(const QString& message)
{
    if (!message.isEmpty()) {
        m_ports.User.Show(eTone::Exclamation, message);
    }
    const eDatabaseFault fault = modSchema::OpenValid(m_database, m_path, eOpenMode::ReadOnly);
    if (fault == eDatabaseFault::None && modSchema::StandIn(m_database) == eDatabaseFault::None) {
        return eOpenResult::OpenedReadOnly;
    }
    m_database.Close();
    m_ports.User.Show(
        eTone::Critical,
        cText::Tr("Die Datenbank '{0}' kann nicht gelesen werden. Bitte prüfen Sie die Zugriffsrechte.", {m_path}));
    (void)EndForNow();
    return eOpenResult::Ended;
}

// Keeps a copy of a database that this version of the program has not opened before. What went wrong, or empty. A file
// that is still the template has nothing to lose: reading commands make a new book and leave it like that.
QString cOpenSequence::CopyBeforeUpgrade()
{
    if (m_origin == eOrigin::Fresh || modSchema::WasOpenedBy(m_database, m_version)
        || modBookFile::IsCopy(m_path, m_ports.Shell.InstalledFile(u"template.dat"_s))) {
        return {};
    }
    try {
        m_database.BackupTo(modBookFile::FreeName(m_ports.Shell, m_path, m_today, u"backup"_s));
        qCInfo(modLog::Upgrade) << "copy made before it";
        return {};
    } catch (const cDatabaseError& error) {
        qCInfo(modLog::Upgrade) << "no copy before it, fault" << static_cast<int>(error.Fault());
        return modFailure::Reason(error);
    }
}
