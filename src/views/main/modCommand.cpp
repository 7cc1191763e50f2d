#include "views/main/modCommand.h"

#include "base/cText.h"
#include "model/modSettingKey.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

using namespace modCommand;

namespace {

constexpr auto commands = std::to_array<cCommand>({
    {NewDatabase, QT_TRANSLATE_NOOP("cText", "Datei"), QT_TRANSLATE_NOOP("cText", "&Neue Datenbank"), "", "", nullptr,
     Plain, QT_TRANSLATE_NOOP("cText", "Legt eine neue, leere Datenbank an und wechselt zu ihr.")},
    {SwitchDatabase, QT_TRANSLATE_NOOP("cText", "Datei"), QT_TRANSLATE_NOOP("cText", "Datenbank &wechseln"), "", "",
     nullptr, Plain, QT_TRANSLATE_NOOP("cText", "Öffnet eine andere Datenbank.")},
    {MakeBackup, QT_TRANSLATE_NOOP("cText", "Datei"), QT_TRANSLATE_NOOP("cText", "Dat&ensicherung erstellen"), "", "",
     nullptr, StartsGroup, QT_TRANSLATE_NOOP("cText", "Kopiert die Datenbank in eine Sicherungsdatei.")},
    {RestoreBackup, QT_TRANSLATE_NOOP("cText", "Datei"), QT_TRANSLATE_NOOP("cText", "Datensicherung &laden"), "", "",
     nullptr, Plain, QT_TRANSLATE_NOOP("cText", "Ersetzt die Datenbank durch den Stand einer Sicherungsdatei.")},
    {ImportStatement, QT_TRANSLATE_NOOP("cText", "Datei"), QT_TRANSLATE_NOOP("cText", "&Kontoauszug importieren"),
     "Ctrl+I", "import", nullptr, InToolBar | Writes | StartsGroup,
     QT_TRANSLATE_NOOP("cText", "Liest Kontoauszüge aus Dateien Ihrer Bank ein.")},
    {FetchTransactions, QT_TRANSLATE_NOOP("cText", "Datei"), QT_TRANSLATE_NOOP("cText", "&Umsätze abrufen"), "F9",
     "abruf", nullptr, InToolBar | Writes, QT_TRANSLATE_NOOP("cText", "Holt die neuen Umsätze Ihrer Bankkonten ab.")},
    {Export, QT_TRANSLATE_NOOP("cText", "Datei"), QT_TRANSLATE_NOOP("cText", "Daten e&xportieren"), "", "", nullptr,
     Plain, QT_TRANSLATE_NOOP("cText", "Schreibt die gezeigten Einträge als CSV-, Excel-, HTML- oder QIF-Datei.")},
    {Print, QT_TRANSLATE_NOOP("cText", "Datei"), QT_TRANSLATE_NOOP("cText", "&Drucken"), "Ctrl+P", "", nullptr,
     StartsGroup, QT_TRANSLATE_NOOP("cText", "Druckt die gezeigten Einträge oder die Auswertung.")},
    {PrintPreview, QT_TRANSLATE_NOOP("cText", "Datei"), QT_TRANSLATE_NOOP("cText", "&Seitenansicht"), "", "", nullptr,
     Plain, QT_TRANSLATE_NOOP("cText", "Zeigt, wie der Ausdruck aussieht.")},
    {Quit, QT_TRANSLATE_NOOP("cText", "Datei"), QT_TRANSLATE_NOOP("cText", "&Beenden"), "Alt+Q", "", nullptr,
     StartsGroup, QT_TRANSLATE_NOOP("cText", "Beendet das Programm.")},
    {Undo, QT_TRANSLATE_NOOP("cText", "Bearbeiten"), QT_TRANSLATE_NOOP("cText", "&Rückgängig"), "Ctrl+Z", "zurueck",
     nullptr, Writes, QT_TRANSLATE_NOOP("cText", "Nimmt die letzte Änderung zurück.")},
    {Redo, QT_TRANSLATE_NOOP("cText", "Bearbeiten"), QT_TRANSLATE_NOOP("cText", "&Wiederholen"), "Ctrl+Y|Ctrl+Shift+Z",
     "wieder", nullptr, Writes, QT_TRANSLATE_NOOP("cText", "Führt die zurückgenommene Änderung wieder aus.")},
    {NewEntry, QT_TRANSLATE_NOOP("cText", "Bearbeiten"), QT_TRANSLATE_NOOP("cText", "&Neuer Eintrag"), "Ctrl+N|F5",
     "neu", nullptr, InToolBar | Writes | StartsGroup,
     QT_TRANSLATE_NOOP("cText", "Erfasst eine Einnahme, Ausgabe oder Umbuchung.")},
    {EditEntry, QT_TRANSLATE_NOOP("cText", "Bearbeiten"), QT_TRANSLATE_NOOP("cText", "Eintrag &bearbeiten"), "Ctrl+E",
     "bearbeiten", nullptr, NeedsEntry | InToolBar, QT_TRANSLATE_NOOP("cText", "Öffnet den ausgewählten Eintrag.")},
    {DeleteEntry, QT_TRANSLATE_NOOP("cText", "Bearbeiten"), QT_TRANSLATE_NOOP("cText", "Eintrag &löschen"), "Del",
     "loeschen", nullptr, NeedsEntry | InToolBar | Writes,
     QT_TRANSLATE_NOOP("cText", "Löscht die ausgewählten Einträge nach einer Rückfrage.")},
    {CopyRows, QT_TRANSLATE_NOOP("cText", "Bearbeiten"), QT_TRANSLATE_NOOP("cText", "Zeilen k&opieren"), "Ctrl+C", "",
     nullptr, NeedsEntry | StartsGroup,
     QT_TRANSLATE_NOOP("cText", "Kopiert die ausgewählten Zeilen als Tabelle in die Zwischenablage.")},
    {DuplicateToday, QT_TRANSLATE_NOOP("cText", "Bearbeiten"), QT_TRANSLATE_NOOP("cText", "Für &heute"), "Ctrl+D", "",
     nullptr, NeedsEntry | Writes,
     QT_TRANSLATE_NOOP("cText", "Legt die ausgewählten Einträge noch einmal für heute an."),
     QT_TRANSLATE_NOOP("cText", "&Duplizieren")},
    {DuplicateNextMonth, QT_TRANSLATE_NOOP("cText", "Bearbeiten"),
     QT_TRANSLATE_NOOP("cText", "Für den nächsten &Monat"), "Ctrl+Shift+D", "", nullptr, NeedsEntry | Writes,
     QT_TRANSLATE_NOOP("cText", "Legt die ausgewählten Einträge einen Monat später noch einmal an."),
     QT_TRANSLATE_NOOP("cText", "&Duplizieren")},
    {ChangeMany, QT_TRANSLATE_NOOP("cText", "Bearbeiten"), QT_TRANSLATE_NOOP("cText", "&Mehrere ändern…"), "Ctrl+M", "",
     nullptr, NeedsEntry | Writes,
     QT_TRANSLATE_NOOP("cText",
                       "Ändert Kategorie, Konto, Beschreibung oder Art aller ausgewählten Einträge auf einmal.")},
    {CorrectPeriod, QT_TRANSLATE_NOOP("cText", "Bearbeiten"),
     QT_TRANSLATE_NOOP("cText", "Betrag für diesen Zeitraum &korrigieren…"), "", "", nullptr,
     NeedsOccurrence | Writes | StartsGroup,
     QT_TRANSLATE_NOOP("cText", "Gibt einem Vorkommen einer Serie einen anderen Betrag.")},
    {SkipPeriod, QT_TRANSLATE_NOOP("cText", "Bearbeiten"), QT_TRANSLATE_NOOP("cText", "Nur dieses M&al auslassen"), "",
     "", nullptr, NeedsOccurrence | Writes,
     QT_TRANSLATE_NOOP("cText", "Setzt den Betrag eines Vorkommens einer Serie auf null.")},
    {AddReceipt, QT_TRANSLATE_NOOP("cText", "Bearbeiten"), QT_TRANSLATE_NOOP("cText", "&Hinzufügen…"), "", "", nullptr,
     NeedsEntry | Writes, QT_TRANSLATE_NOOP("cText", "Hängt eine Datei, etwa eine Rechnung, an den Eintrag."),
     QT_TRANSLATE_NOOP("cText", "Bele&ge")},
    {ShowReceipts, QT_TRANSLATE_NOOP("cText", "Bearbeiten"), QT_TRANSLATE_NOOP("cText", "&Zeigen…"), "Ctrl+Shift+B",
     "beleg", nullptr, NeedsEntry, QT_TRANSLATE_NOOP("cText", "Zeigt die Belege des ausgewählten Eintrags."),
     QT_TRANSLATE_NOOP("cText", "Bele&ge")},
    {StartBalance, QT_TRANSLATE_NOOP("cText", "Bearbeiten"), QT_TRANSLATE_NOOP("cText", "&Startguthaben festlegen"), "",
     "", nullptr, Writes | StartsGroup, QT_TRANSLATE_NOOP("cText", "Legt fest, mit welchem Betrag ein Konto beginnt.")},
    {Search, QT_TRANSLATE_NOOP("cText", "Bearbeiten"), QT_TRANSLATE_NOOP("cText", "S&uchen"), "F3", "suchen", nullptr,
     InToolBar | StartsGroup, QT_TRANSLATE_NOOP("cText", "Sucht Einträge nach Text, Betrag, Zeitraum und mehr.")},
    {ViewAccountValues, QT_TRANSLATE_NOOP("cText", "Ansicht"), QT_TRANSLATE_NOOP("cText", "&Kontostand (aller Konten)"),
     "", "", &modSettingKey::ViewAllBalances, Plain,
     QT_TRANSLATE_NOOP("cText", "Zeigt die Kontostände bis heute statt nur des gewählten Zeitraums.")},
    {ViewSingle, QT_TRANSLATE_NOOP("cText", "Ansicht"), QT_TRANSLATE_NOOP("cText", "&Einmalige-Buchungen"), "", "",
     &modSettingKey::ViewSingle, Plain, QT_TRANSLATE_NOOP("cText", "Zeigt Einträge, die nur einmal vorkommen.")},
    {ViewFix, QT_TRANSLATE_NOOP("cText", "Ansicht"), QT_TRANSLATE_NOOP("cText", "&Fixe-Buchungen"), "", "",
     &modSettingKey::ViewFix, Plain, QT_TRANSLATE_NOOP("cText", "Zeigt Einträge, die sich wiederholen.")},
    {ViewFuture, QT_TRANSLATE_NOOP("cText", "Ansicht"), QT_TRANSLATE_NOOP("cText", "&Zukünftige-Buchung"), "",
     "zukunft", &modSettingKey::ViewFuture, InToolBar,
     QT_TRANSLATE_NOOP("cText", "Zeigt auch Einträge nach dem heutigen Tag.")},
    {ViewStart, QT_TRANSLATE_NOOP("cText", "Ansicht"), QT_TRANSLATE_NOOP("cText", "&Startguthaben"), "", "",
     &modSettingKey::ViewStart, Plain, QT_TRANSLATE_NOOP("cText", "Zeigt auch die Startguthaben der Konten.")},
    {SaveView, QT_TRANSLATE_NOOP("cText", "Ansicht"), QT_TRANSLATE_NOOP("cText", "Ansicht &merken…"), "", "", nullptr,
     StartsGroup | Writes,
     QT_TRANSLATE_NOOP("cText",
                       "Merkt Zeitraum, Konto, Art, Filter, Gruppierung und Spalten unter einem Namen; auf der Seite "
                       "„Kontoauszüge“, was dort gewählt ist."),
     QT_TRANSLATE_NOOP("cText", "&Meine Ansichten")},
    {SavedViews, QT_TRANSLATE_NOOP("cText", "Ansicht"), QT_TRANSLATE_NOOP("cText", "&Verwalten…"), "", "", nullptr,
     Writes, QT_TRANSLATE_NOOP("cText", "Zeigt eine gemerkte Ansicht, benennt sie um oder löscht sie."),
     QT_TRANSLATE_NOOP("cText", "&Meine Ansichten")},
    {GoToDay, QT_TRANSLATE_NOOP("cText", "Ansicht"), QT_TRANSLATE_NOOP("cText", "&Gehe zum Tag…"), "Ctrl+T", "",
     nullptr, Plain, QT_TRANSLATE_NOOP("cText", "Springt in der Liste zu einem Tag, den Sie eintippen.")},
    {ChooseColumns, QT_TRANSLATE_NOOP("cText", "Ansicht"), QT_TRANSLATE_NOOP("cText", "S&palten modifizieren"), "",
     "spalten", nullptr, StartsGroup, QT_TRANSLATE_NOOP("cText", "Wählt, welche Spalten die Liste zeigt.")},
    {ResetView, QT_TRANSLATE_NOOP("cText", "Ansicht"), QT_TRANSLATE_NOOP("cText", "Einstellungen zu&rücksetzen"), "",
     "", nullptr, Plain, QT_TRANSLATE_NOOP("cText", "Stellt Ansicht, Spalten und Fenstergröße auf den Anfang zurück.")},
    {AppearanceSystem, QT_TRANSLATE_NOOP("cText", "Ansicht"), QT_TRANSLATE_NOOP("cText", "Wie das &System"), "", "",
     nullptr, OneOf | StartsGroup, QT_TRANSLATE_NOOP("cText", "Hell oder dunkel, wie der Desktop es vorgibt."),
     QT_TRANSLATE_NOOP("cText", "Erscheinungs&bild")},
    {AppearanceLight, QT_TRANSLATE_NOOP("cText", "Ansicht"), QT_TRANSLATE_NOOP("cText", "&Hell"), "", "", nullptr,
     OneOf, QT_TRANSLATE_NOOP("cText", "Dunkle Schrift auf hellem Grund."),
     QT_TRANSLATE_NOOP("cText", "Erscheinungs&bild")},
    {AppearanceDark, QT_TRANSLATE_NOOP("cText", "Ansicht"), QT_TRANSLATE_NOOP("cText", "&Dunkel"), "", "", nullptr,
     OneOf, QT_TRANSLATE_NOOP("cText", "Helle Schrift auf dunklem Grund."),
     QT_TRANSLATE_NOOP("cText", "Erscheinungs&bild")},
    {EditTemplates, QT_TRANSLATE_NOOP("cText", "Extras"), QT_TRANSLATE_NOOP("cText", "&Kategorie/Konto bearbeiten"), "",
     "", nullptr, Plain, QT_TRANSLATE_NOOP("cText", "Verwaltet Kategorien und Konten.")},
    {Budget, QT_TRANSLATE_NOOP("cText", "Extras"), QT_TRANSLATE_NOOP("cText", "B&udget…"), "", "", nullptr, Plain,
     QT_TRANSLATE_NOOP("cText", "Plant, was in jedem Monat ausgegeben werden darf.")},
    {Rules, QT_TRANSLATE_NOOP("cText", "Extras"), QT_TRANSLATE_NOOP("cText", "&Regeln"), "", "", nullptr, Writes,
     QT_TRANSLATE_NOOP("cText", "Verwaltet Ihre eigenen Regeln für die Kategorien von Umsätzen.")},
    {AccountStatement, QT_TRANSLATE_NOOP("cText", "Extras"), QT_TRANSLATE_NOOP("cText", "Kontoaus&zug anzeigen"), "",
     "", nullptr, Plain, QT_TRANSLATE_NOOP("cText", "Zeigt die Umsätze eines Bankkontos mit ihrem Saldo.")},
    {CheckSeries, QT_TRANSLATE_NOOP("cText", "Extras"), QT_TRANSLATE_NOOP("cText", "Ser&ien prüfen…"), "", "", nullptr,
     Writes, QT_TRANSLATE_NOOP("cText", "Sucht Serien, die die Bank nicht mehr bucht, und Buchungen, die ausstehen.")},
    {BankLogins, QT_TRANSLATE_NOOP("cText", "Extras"), QT_TRANSLATE_NOOP("cText", "&Bankzugänge…"), "", "bank", nullptr,
     Writes, QT_TRANSLATE_NOOP("cText", "Richtet ein, bei welchen Banken Umsätze abgerufen werden.")},
    {CheckBook, QT_TRANSLATE_NOOP("cText", "Extras"), QT_TRANSLATE_NOOP("cText", "Prü&fen…"), "", "", nullptr, Plain,
     QT_TRANSLATE_NOOP("cText",
                       "Sucht Einträge, die nicht zu sehen sind oder nicht richtig mitzählen, und prüft die Datei.")},
    {Reminders, QT_TRANSLATE_NOOP("cText", "Extras"), QT_TRANSLATE_NOOP("cText", "Am Desktop &erinnern"), "", "",
     &modSettingKey::RemindByDesktop, Plain,
     QT_TRANSLATE_NOOP("cText", "Meldet einmal am Tag am Desktop, was fällig oder zu kündigen ist.")},
    {People, QT_TRANSLATE_NOOP("cText", "Extras"), QT_TRANSLATE_NOOP("cText", "&Personen…"), "", "", nullptr, Writes,
     QT_TRANSLATE_NOOP("cText", "Nennt, wer zum Haushalt gehört und wem welches Konto zu welchem Teil."),
     QT_TRANSLATE_NOOP("cText", "&Haushalt")},
    {Settlement, QT_TRANSLATE_NOOP("cText", "Extras"), QT_TRANSLATE_NOOP("cText", "&Ausgleich…"), "", "", nullptr,
     Plain, QT_TRANSLATE_NOOP("cText", "Rechnet aus, wer wem wie viel schuldet."),
     QT_TRANSLATE_NOOP("cText", "&Haushalt")},
    {Calculator, QT_TRANSLATE_NOOP("cText", "Extras"), QT_TRANSLATE_NOOP("cText", "&Taschenrechner"), "", "rechner",
     nullptr, Plain, QT_TRANSLATE_NOOP("cText", "Startet den Taschenrechner des Systems.")},
    {Password, QT_TRANSLATE_NOOP("cText", "Extras"), QT_TRANSLATE_NOOP("cText", "&Passwortschutz"), "", "", nullptr,
     Writes | StartsGroup, QT_TRANSLATE_NOOP("cText", "Setzt, ändert oder entfernt das Passwort dieser Datenbank.")},
    {BackupSettings, QT_TRANSLATE_NOOP("cText", "Extras"), QT_TRANSLATE_NOOP("cText", "&Automatische Datensicherung…"),
     "", "", nullptr, Writes,
     QT_TRANSLATE_NOOP("cText", "Wählt, wie viele Sicherungen das Programm selbst aufhebt und wo.")},
    {National, QT_TRANSLATE_NOOP("cText", "Extras"), QT_TRANSLATE_NOOP("cText", "&Ländereinstellungen"), "", "",
     nullptr, Writes, QT_TRANSLATE_NOOP("cText", "Wählt Sprache, Zahlenformat und Währung.")},
    {Manual, QT_TRANSLATE_NOOP("cText", "H&ilfe"), QT_TRANSLATE_NOOP("cText", "&Handbuch"), "", "", nullptr, Plain,
     QT_TRANSLATE_NOOP("cText", "Öffnet das Handbuch bei dem, was gerade vorn ist.")},
    {Homepage, QT_TRANSLATE_NOOP("cText", "H&ilfe"), QT_TRANSLATE_NOOP("cText", "H&omepage"), "F1", "", nullptr, Plain,
     QT_TRANSLATE_NOOP("cText", "Öffnet die Seite des Herstellers; gibt es keine, das Handbuch.")},
    {Questions, QT_TRANSLATE_NOOP("cText", "H&ilfe"), QT_TRANSLATE_NOOP("cText", "Häufige &Fragen"), "", "", nullptr,
     Plain, QT_TRANSLATE_NOOP("cText", "Zeigt Antworten auf Fragen, die oft gestellt werden.")},
    {CheckUpdates, QT_TRANSLATE_NOOP("cText", "H&ilfe"), QT_TRANSLATE_NOOP("cText", "Nach &Updates suchen"), "", "",
     nullptr, StartsGroup, QT_TRANSLATE_NOOP("cText", "Sieht nach, ob es eine neue Version von Kontorelle gibt.")},
    {ErrorLog, QT_TRANSLATE_NOOP("cText", "H&ilfe"), QT_TRANSLATE_NOOP("cText", "Fehler&protokoll…"), "", "", nullptr,
     StartsGroup, QT_TRANSLATE_NOOP("cText", "Zeigt die Fehlermeldungen der letzten Zeit.")},
    {Feedback, QT_TRANSLATE_NOOP("cText", "H&ilfe"), QT_TRANSLATE_NOOP("cText", "&Rückmeldung…"), "", "", nullptr,
     Plain, QT_TRANSLATE_NOOP("cText", "Beginnt eine E-Mail mit einer Diagnose des Programms, ohne Ihre Daten.")},
    {About, QT_TRANSLATE_NOOP("cText", "H&ilfe"), QT_TRANSLATE_NOOP("cText", "&Über Kontorelle"), "", "", nullptr,
     StartsGroup, QT_TRANSLATE_NOOP("cText", "Zeigt Version, Lizenz und verwendete Bibliotheken.")},
});

} // namespace

std::span<const cCommand> modCommand::All()
{
    return commands;
}

const cCommand* modCommand::Find(int id)
{
    const auto* const found =
        std::find_if(commands.begin(), commands.end(), [id](const cCommand& command) { return command.Id == id; });
    return found == commands.end() ? nullptr : found;
}

QString modCommand::MenuText(const cCommand& command)
{
    return cText::Tr(command.Caption);
}

QString modCommand::PlainText(const cCommand& command)
{
    return MenuText(command).remove(u'&');
}

QStringList modCommand::Keys(const cCommand& command)
{
    return QString::fromUtf8(command.Keys).split(u'|', Qt::SkipEmptyParts);
}
