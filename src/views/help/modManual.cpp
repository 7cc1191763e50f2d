#include "views/help/modManual.h"

#include "base/cText.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto topics = std::to_array<modManual::cTopic>({
    {"frmAbruf", "16-online-banking.html#umsätze-abrufen"},
    {"frmAusgleich", "21-haushalt.html#ausgleich"},
    {"frmBankAssistent", "16-online-banking.html#einen-bankzugang-einrichten"},
    {"frmBankzugaenge", "16-online-banking.html#ändern-und-entfernen"},
    {"frmBelege", "19-belege.html#belege-ansehen"},
    {"frmBudget", "18-budget.html"},
    {"frmBuchung", "03-eintraege.html#neuer-eintrag"},
    {"frmHandbuch", "14-hilfe.html#das-handbuch"},
    {"frmImport", "02-kontoauszug.html"},
    {"frmImportAssistent", "02-kontoauszug.html#importassistent"},
    {"frmImportReview", "02-kontoauszug.html#die-liste-durchsehen"},
    {"frmKategorie", "06-kategorien-konten.html"},
    {"frmKontoauszug", "02-kontoauszug.html#kontoauszug-ansehen-und-prüfen"},
    {"frmKorrektur", "05-serien.html#korrekturen"},
    {"frmLaender", "11-buch.html#sprache-zahlen-währung"},
    {"frmMain", "01-start.html#das-fenster"},
    {"frmMehrere", "03-eintraege.html#mehrere-auf-einmal-ändern"},
    {"frmPasswort", "11-buch.html#passwort"},
    {"frmPersonen", "21-haushalt.html#personen-und-anteile"},
    {"frmPin", "16-online-banking.html#pin"},
    {"frmProtokoll", "16-online-banking.html#protokoll"},
    {"frmPruefung", "14-hilfe.html#das-buch-prüfen"},
    {"frmRegeln", "02-kontoauszug.html#eigene-regeln"},
    {"frmSicherungen", "11-buch.html#sicherungen"},
    {"frmSpiel", "13-tasten.html#das-spiel"},
    {"frmStatistik", "15-auswertungen.html"},
    {"frmSuche", "08-suchen.html"},
    {"frmTan", "16-online-banking.html#tan-und-freigabe"},
    {"frmUebersicht", "17-uebersicht.html"},
    {"frmUeber", "14-hilfe.html#welche-version-ist-das"},
    {"frmUmsatzKategorie", "02-kontoauszug.html#eine-kategorie-für-mehrere-umsätze"},
    {"frmZuordnung", "02-kontoauszug.html#von-hand-zuordnen"},
    {"QPrintPreviewDialog", "09-ausgeben.html#drucken"},
    {"QPrintDialog", "09-ausgeben.html#drucken"},
    {"frmFehlerprotokoll", "14-hilfe.html#fehlerprotokoll"},
    {"frmUpdate", "14-hilfe.html#gibt-es-eine-neue-version"},
});

} // namespace

std::span<const modManual::cTopic> modManual::Topics()
{
    return topics;
}

QString modManual::PlaceOf(const QStringList& windows)
{
    for (const QString& window : windows) {
        const auto* const found = std::find_if(topics.begin(), topics.end(), [&](const cTopic& topic) {
            return window == QLatin1StringView(topic.Window);
        });
        if (found != topics.end()) {
            return QString::fromUtf8(found->Place);
        }
    }
    return First;
}

QString modManual::AddressOf(modCommand::eId command, const QString& homepage, const QStringList& windows)
{
    const bool isOnline = !homepage.isEmpty();
    if (command == modCommand::Questions) {
        return isOnline ? homepage + u'/' + Questions : Questions;
    }
    return command == modCommand::Homepage && isOnline ? homepage : PlaceOf(windows);
}

bool modManual::IsOutside(const QString& address)
{
    const auto begins = [&](const QString& scheme) { return address.startsWith(scheme, Qt::CaseInsensitive); };
    return begins(u"http:"_s) || begins(u"https:"_s) || begins(u"mailto:"_s);
}

// There is a translation of the sentence wherever another language than German is in use.
QString modManual::LanguageNote()
{
    static constexpr const char* note = QT_TRANSLATE_NOOP("cText", "Das Handbuch gibt es nur auf Deutsch.");
    const QString shown = cText::Tr(note);
    return shown == QString::fromUtf8(note) ? QString() : shown;
}
