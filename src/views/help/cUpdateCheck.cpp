#include "views/help/cUpdateCheck.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDate.h"
#include "core/cBookTools.h"
#include "core/cConfiguration.h"
#include "model/modSettingKey.h"
#include "views/common/modFileWrite.h"

#include <QDir>
#include <QLocale>
#include <QUrlQuery>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto mostForAnswer = 60s;
constexpr auto mostForPackage = 3600s;

QString Code()
{
    return QLocale().name().section(u'_', 0, 0);
}

} // namespace

cUpdateCheck::cUpdateCheck(const cBookTools& tools, cConfiguration& configuration, cHttps& https,
                           const cEdition& edition)
    : m_tools(tools),
      m_configuration(configuration),
      m_https(https),
      m_address(edition.Address),
      m_version(edition.Version),
      m_schedule(tools, configuration)
{
}

QString cUpdateCheck::Obstacle(bool hasCheck, const QString& address)
{
    if (!hasCheck) {
        return cText::Tr("Diese Ausgabe von Kontorelle wird von der Paketverwaltung Ihres Systems aktualisiert. "
                         "Neue Versionen kommen mit den anderen Aktualisierungen des Systems.");
    }
    const QUrl url(address);
    return url.scheme() == "https"_L1 && !url.host().isEmpty()
        ? QString()
        : cText::Tr(
            "Für diese Ausgabe ist keine Adresse für Aktualisierungen eingerichtet. Kontorelle kann deshalb "
            "nicht nachsehen, ob es eine neue Version gibt; fragen Sie dort nach, woher Sie das Programm haben.");
}

void cUpdateCheck::Look()
{
    if (IsBusy()) {
        return;
    }
    m_found.clear();
    Enter(eState::Looking);
    QUrl url = m_address;
    QUrlQuery query(url);
    query.addQueryItem(u"version"_s, m_version);
    url.setQuery(query);
    Enter(Take(m_https.Get(
        {.Url = url.toString(QUrl::FullyEncoded), .MostBytes = modUpdate::MostAnswerBytes, .Whole = mostForAnswer})));
}

cUpdateCheck::eState cUpdateCheck::Take(const cHttpsAnswer& answer)
{
    m_failure = Reason(answer);
    if (!m_failure.isEmpty()) {
        return eState::Failed;
    }
    const std::optional<QList<cUpdateRelease>> releases = modUpdate::Read(answer.Bytes, Code(), m_address);
    if (!releases) {
        m_failure = cText::Tr("Die Antwort von {0} ist nicht zu verstehen. Versuchen Sie es später noch einmal.",
                              {m_address.host()});
        return eState::Failed;
    }
    m_schedule.Looked();
    m_found = modUpdate::Newer(*releases, m_version);
    return m_found.isEmpty() ? eState::Current : eState::Found;
}

QString cUpdateCheck::Reason(const cHttpsAnswer& answer) const
{
    const QString host = m_address.host();
    switch (answer.Fault) {
    case eHttpsFault::None: return {};
    case eHttpsFault::NotReachable:
        return cText::Tr("{0} ist nicht zu erreichen. Prüfen Sie Ihre Verbindung zum Internet und versuchen Sie es "
                         "noch einmal.",
                         {host});
    case eHttpsFault::Certificate:
        return cText::Tr("Das Zertifikat von {0} ist nicht in Ordnung. Es wurde nichts gesendet. Prüfen Sie Datum und "
                         "Uhrzeit Ihres Rechners und versuchen Sie es in einem anderen Netz noch einmal.",
                         {host});
    case eHttpsFault::Silent: return cText::Tr("{0} antwortet nicht. Versuchen Sie es später noch einmal.", {host});
    case eHttpsFault::TooLarge:
        return cText::Tr("{0} sendet mehr, als angekündigt war. Es wurde nichts davon behalten.", {host});
    case eHttpsFault::Refused:
        return cText::Tr("{0} gibt keine Auskunft ({1}). Versuchen Sie es später noch einmal.", {host, answer.Reason});
    case eHttpsFault::Cancelled: return cText::Tr("Abgebrochen.");
    }
    return {};
}

void cUpdateCheck::Download()
{
    if (m_state != eState::Found || !CanDownload()) {
        return;
    }
    const QString path = m_tools.User.ChooseSavePath(cText::Tr("Neue Version speichern"), cText::Tr("Alle Dateien|*.*"),
                                                     modUpdate::FileName(Newest()));
    if (path.isEmpty()) {
        return;
    }
    Enter(eState::Loading);
    const cUpdatePackage& package = *Newest().Package;
    const cHttpsAnswer answer =
        m_https.Get({.Url = package.Address.toString(QUrl::FullyEncoded),
                     .MostBytes = package.Size,
                     .Whole = mostForPackage,
                     .Came = [&](qint64 bytes) { Q_EMIT Arrived(static_cast<int>(bytes * 100 / package.Size)); }});
    if (answer.Fault == eHttpsFault::Cancelled) {
        Enter(eState::Found);
    } else if (const QString reason = Reason(answer); !reason.isEmpty()) {
        TellFailed(reason);
    } else {
        Store(path, answer.Bytes);
    }
}

// Checked before it is written: a file that is not the announced one never exists on the disk.
void cUpdateCheck::Store(const QString& path, const QByteArray& bytes)
{
    if (const QString fault = modUpdate::Fault(*Newest().Package, bytes); !fault.isEmpty()) {
        TellFailed(
            cText::Tr("Die heruntergeladene Datei ist nicht die angekündigte: {0}. Sie wurde nicht gespeichert.\n"
                      "Versuchen Sie es noch einmal. Bleibt es dabei, benutzen Sie die Datei auf keinen Fall.",
                      {fault}));
        return;
    }
    if (const QString reason = modFileWrite::Replace(path, bytes); !reason.isEmpty()) {
        TellFailed(modFileWrite::Failed(path, reason));
        return;
    }
    m_path = path;
    Enter(eState::Loaded);
}

void cUpdateCheck::TellFailed(const QString& text)
{
    Enter(eState::Found);
    m_tools.User.Show(eTone::Critical, text);
}

void cUpdateCheck::Skip()
{
    if (!m_found.isEmpty()) {
        m_configuration.SaveSetting(modSettingKey::LastUpdateInfo, Newest().Version.toString(),
                                    eSettingPlace::Registry);
    }
}

void cUpdateCheck::Cancel()
{
    m_https.Cancel();
}

bool cUpdateCheck::HasNews() const
{
    const QString skipped = m_configuration.GetSetting(modSettingKey::LastUpdateInfo);
    return m_state == eState::Found && !modUpdate::Newer({Newest()}, skipped).isEmpty();
}

bool cUpdateCheck::CanDownload() const
{
    return !m_found.isEmpty() && Newest().Package.has_value();
}

void cUpdateCheck::Enter(eState state)
{
    m_state = state;
    Q_EMIT StateChanged();
}

QString cUpdateCheck::Headline() const
{
    switch (m_state) {
    case eState::Fresh:
    case eState::Looking: return cText::Tr("Bei {0} wird nachgefragt …", {m_address.host()});
    case eState::Failed: return m_failure;
    case eState::Current:
        return cText::Tr("Sie benutzen Kontorelle {0}. Eine neuere Version gibt es nicht.", {m_version});
    case eState::Found:
        return cText::Tr("Kontorelle {0} vom {1} ist da. Sie benutzen Version {2}.",
                         {Newest().Version.toString(), modDate::ToText(Newest().Day), m_version});
    case eState::Loading: return cText::Tr("Kontorelle {0} wird heruntergeladen …", {Newest().Version.toString()});
    case eState::Loaded:
        return cText::Tr(
            "Kontorelle {0} ist heruntergeladen und geprüft:\n{1}\nBeenden Sie das Programm und öffnen Sie "
            "diese Datei, um die neue Version zu installieren.",
            {Newest().Version.toString(), QDir::toNativeSeparators(m_path)});
    }
    return {};
}

QString cUpdateCheck::Notes() const
{
    return modUpdate::Notes(m_found);
}

QString cUpdateCheck::Privacy() const
{
    return cText::Tr("Gesendet wird nur die Nummer Ihrer Version.");
}
