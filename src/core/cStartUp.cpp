#include "core/cStartUp.h"

#include "base/cClock.h"
#include "base/cShell.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDate.h"
#include "core/cBook.h"
#include "core/cConfiguration.h"
#include "core/cSettings.h"
#include "core/modPassword.h"
#include "model/modSettingKey.h"
#include "store/modBookFile.h"
#include "store/modSchema.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

cStartUp::cStartUp(const cPorts& ports, cConfiguration& configuration, QString version, eFrontEnd frontEnd)
    : m_ports(ports),
      m_configuration(configuration),
      m_version(std::move(version)),
      m_frontEnd(frontEnd)
{
}

void cStartUp::CheckCurrency()
{
    if (m_ports.Shell.CurrencySymbol().trimmed().toUpper() != u"DM") {
        return;
    }
    const eAnswer answer = m_ports.User.Ask(
        {.Text = cText::Tr("Die eingestellte Währung (Deutsche Mark) ist veraltet.\nMöchten Sie Ihr System "
                           "auf Euro umstellen?"),
         .Title = u"Kontorelle"_s});
    if (answer != eAnswer::Yes) {
        return;
    }
    m_ports.Shell.OpenRegionalSettings();
    m_ports.User.Show(eTone::Information,
                      cText::Tr("Die Software muss neu gestartet werden, wenn die Währung umgestellt wurde."));
}

bool cStartUp::OpenBook(cBook& book, const cFound& found)
{
    m_configuration.SetDatabase(nullptr);
    if (!book.OpenWithQuestions(found.Path, found.IsFresh,
                                {m_ports.Shell, m_ports.Rescue, m_version, m_ports.Clock.Today()})) {
        return false;
    }
    if (book.Path() != found.Path) {
        // The user chose another file on the way: the next start begins with it.
        m_configuration.SaveSetting(modSettingKey::Database, book.Path(), eSettingPlace::Registry);
    }
    Connect(book);
    return true;
}

bool cStartUp::TryBook(cBook& book, const cFound& found)
{
    m_configuration.SetDatabase(nullptr);
    if (!book.TryOpen(found.Path, found.IsFresh, {m_ports.Shell, m_ports.Rescue, m_version, m_ports.Clock.Today()})) {
        return false;
    }
    Connect(book);
    return true;
}

bool cStartUp::AskPassword() const
{
    return modPassword::Admit(m_configuration, m_ports.Rescue);
}

cStartUp::cFound cStartUp::FindDatabase() const
{
    const QString configured = m_configuration.GetSetting(modSettingKey::Database);
    const QString usual = modSchema::DefaultDatabasePath(m_ports.Shell);
    const bool isThere = m_ports.Shell.FileExists(usual);
    if (configured.isEmpty() || !m_ports.Shell.FileExists(configured)) {
        for (const QString& path : {configured, usual}) {
            if (const std::optional<cFound> leftover = FindLeftover(path)) {
                return *leftover;
            }
        }
    }
    const cFound standard{modSchema::GetDefaultDatabase(m_ports.Shell, m_ports.User), !isThere};
    if (!configured.isEmpty() && m_ports.Shell.FileExists(configured)) {
        return {configured};
    }
    if (!configured.isEmpty()) {
        m_ports.User.Show(
            eTone::Exclamation,
            cText::Tr("Die Datenbank '{0}' wurde nicht gefunden. Der Standard-Datenbank-Pfad wird verwendet!",
                      {configured}));
    } else if (!m_ports.Shell.FileExists(standard.Path)) {
        m_ports.User.Show(eTone::Exclamation, cText::Tr("Die Standard-Datenbank konnte nicht gefunden werden!"));
    }
    return standard;
}

// None when there is nothing of the kind, or the user wants to go on without it.
std::optional<cStartUp::cFound> cStartUp::FindLeftover(const QString& path) const
{
    if (path.isEmpty() || m_ports.Shell.FileExists(path)) {
        return std::nullopt;
    }
    constexpr qsizetype mostOffered = 3;
    const QStringList leftovers = modBookFile::Leftovers(path).mid(0, mostOffered);
    if (leftovers.isEmpty()) {
        return std::nullopt;
    }
    QStringList lines;
    QStringList options;
    for (const QString& file : leftovers) {
        const QString name = QFileInfo(file).fileName();
        lines.append(cText::Tr("{0}: {1}", {name, modBookFile::Describe(modBookFile::Look(file))}));
        options.append(cText::Tr("'{0}' verwenden", {name}));
    }
    options.append(cText::Tr("&Ohne sie weiter"));
    const int chosen = m_ports.User.Decide(
        {.Text = cText::Tr("Die Datenbank '{0}' wurde nicht gefunden. Daneben liegt, was vom Ersetzen der Datei "
                           "geblieben ist:\n{1}\n\nMöchten Sie eine dieser Dateien wieder als Ihr Buch verwenden?",
                           {path, lines.join(u'\n')}),
         .Title = cText::Tr("Die Datenbank fehlt"),
         .Options = options});
    if (chosen == leftovers.size()) {
        return std::nullopt;
    }
    // What does not work leaves the path without a file, about which the opening asks.
    if (chosen >= 0) {
        (void)modBookFile::PutBack(m_ports.Shell, leftovers[chosen], path);
    }
    return cFound{path};
}

void cStartUp::Connect(cBook& book)
{
    m_configuration.SetDatabase(&book.Settings());
    cSettings& settings = book.Settings();
    if (!settings.IsRead()) {
        return; // what is missing now may be there
    }
    if (settings.Get(modSettingKey::FirstInstall).isEmpty()) {
        settings.Set(modSettingKey::FirstInstall, modDate::ToIso(m_ports.Clock.Today()));
    }
    if (m_frontEnd == eFrontEnd::Window) {
        m_isNewVersion = settings.CheckVersion(m_version);
    } else if (settings.Get(modSettingKey::LastCommandLineVersion) != m_version) {
        settings.Set(modSettingKey::LastCommandLineVersion, m_version);
    }
}
