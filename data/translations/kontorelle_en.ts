<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="de">
<context>
    <name>cText</name>
    <message>
        <source>{0} (Prozess {1} auf {2})</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; wurde nicht gefunden. Prüfen Sie den Pfad, oder legen Sie sie an: &quot;kontorelle-cli demo DATEI&quot; schreibt einen Beispielhaushalt, das Fenster von Kontorelle oder ein Aufruf ohne --database beginnt ein neues Buch.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; wird gerade von einem anderen Programm benutzt. Beenden Sie es, und versuchen Sie es noch einmal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; kann nicht gelesen werden. Bitte prüfen Sie die Zugriffsrechte.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; ist beschädigt oder keine gültige Datenbank. Das Fenster von Kontorelle kann eine Datensicherung zurückspielen; mit --database nennen Sie eine andere Datei.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; ist in Benutzung: {1}. Beenden Sie dieses Programm, und versuchen Sie es noch einmal; lesende Befehle gehen auch so.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In den Ordner der Datenbank &apos;{0}&apos; kann nicht geschrieben werden. Bitte prüfen Sie die Zugriffsrechte.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unbekannte Option &apos;--{0}&apos; vor dem Befehl.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Der Befehl &apos;{0}&apos; kennt die Option &apos;--{1}&apos; nicht.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Option &apos;--{0}&apos; hat keinen Wert.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nach &apos;--{0}&apos; fehlt {1}.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Den Befehl &apos;{0}&apos; gibt es nicht.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Es fehlt der Befehl.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nach &apos;{0}&apos; fehlt {1}.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mit &apos;{0}&apos; kann der Befehl &apos;{1}&apos; nichts anfangen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ohne Konto im Buch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gruppe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Konto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kontostand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offene Umsätze</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Summe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bitte entweder --all oder --id mit Nummern angeben.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ist keine Nummer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Einen offenen Umsatz mit der Nummer {0} gibt es nicht.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(unbekannt)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gehört zu Eintrag {0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Datum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Art</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Betrag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kategorie</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Intervall</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grund</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0} Einträge neu, {1} Umsätze zugeordnet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, davon {0} zu vorhandenen Einträgen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0} Umsätze konnten nicht gebucht werden.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Kontonummer &apos;{0}&apos; gehört zu keinem Konto; ihre Umsätze bleiben offen. Lesen Sie den Auszug mit --book-account NAME noch einmal ein.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0}: gültige Datenbank, {1} Einträge, {2} Umsätze</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beim Öffnen ergänzt: {0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datei ist unbeschädigt.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datei ist beschädigt. Bitte spielen Sie eine Datensicherung zurück.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ausgabe als JSON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>liest Kontoauszüge ein; die Umsätze warten dann auf das Buchen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>eigene Kontonummer für Auszüge, die keine nennen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Konto im Haushaltsbuch für neue Kontonummern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>auch Umsätze übernehmen, die schon vorhanden sind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>zeigt die eingelesenen Umsätze</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nur die noch nicht gebuchten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>zeigt zu jedem offenen Umsatz, wie er gebucht würde, und warum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bucht offene Umsätze so, wie &quot;propose&quot; es zeigt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>alle offenen Umsätze</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>die Umsätze mit diesen Nummern (Spalte ID)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nur zeigen, nichts ändern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>zeigt die Einträge eines Zeitraums, wiederkehrende mit jedem Vorkommen; ohne Angabe das aktuelle Jahr</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zeitraum, zum Beispiel &quot;Letzter Monat&quot; oder &quot;Alle Buchungen&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>erster Tag, als 2026-01-31 oder 31.01.2026</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>letzter Tag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nur dieses Konto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Einnahme, Ausgabe oder Umbuchung</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>diese Kategorie und ihre Unterkategorien: &quot;Wohnung&quot;, &quot;Wohnung; Miete&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nur Einträge, die alle diese Wörter enthalten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ausgabe als CSV-Datei für Tabellenprogramme</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>zeigt die Kontostände von heute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>prüft die Datenbank und sagt, was beim Öffnen ergänzt wurde</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>schreibt den Beispielhaushalt in eine neue Datenbank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>größeres Buch mit so vielen Einträgen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ist keine Anzahl.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datei &apos;{0}&apos; gibt es schon. Bitte nennen Sie eine neue.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Installation ist beschädigt. Eine Neuinstallation könnte das Problem beheben.
Die Datei &apos;template.dat&apos; konnte nicht gefunden werden!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datei &apos;{0}&apos; kann nicht geschrieben werden.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0}: Beispielhaushalt mit {1} Einträgen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bitte entweder --period oder --from und --to angeben.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ein Datum wird als 2026-01-31 oder 31.01.2026 geschrieben.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Den Zeitraum &apos;{0}&apos; gibt es nicht. Möglich sind: {1}.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Buchungsart &apos;{0}&apos; gibt es nicht. Möglich sind: {1}.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Das Konto &apos;{0}&apos; gibt es nicht. Möglich sind: {1}.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kontorelle auf der Befehlszeile

Aufruf: kontorelle-cli [--database DATEI] [--profile ORDNER] BEFEHL ...

Befehle:
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>zeigt diese Hilfe; &quot;hilfe BEFEHL&quot; zeigt die eines Befehls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
Allgemein:
  --database DATEI   die Datenbank; ohne Angabe die, die auch das Fenster öffnet
  --profile ORDNER   Datenordner und Einstellungen liegen unter diesem Ordner

Ergebnis: 0 erledigt, 1 fehlgeschlagen, 2 falscher Aufruf. Meldungen gehen auf die Fehlerausgabe.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aufruf: kontorelle-cli [--database DATEI] [--profile ORDNER] {0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> [OPTIONEN]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Optionen:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0}: {1}, {2} Umsätze gelesen, {3} neu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, {0} schon vorhanden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, {0} ohne Betrag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, {0} nicht gespeichert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, Endsaldo {0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  schon vorhanden: {0}  {1}  {2}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Zeile {0}: {1}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Der Kontonummer &apos;{0}&apos; konnte kein Konto zugeordnet werden.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Kontonummer &apos;{0}&apos; gehört nun zum Konto &apos;{1}&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;kontorelle-cli hilfe&quot; zeigt alle Befehle.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gebucht ({0})</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>offen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empfänger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zweck</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; ist in Benutzung: {1}.
Möchten Sie sie nur zum Lesen öffnen?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Datenbank wählen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Datenbanken|*.db|Alle Dateien|*.*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Datensicherung laden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup-Datei|*.backup|Alle Dateien|*.*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ja</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Nein</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kontorelle, das Haushaltsbuch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ordner für Daten und Einstellungen statt der üblichen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Datenbank, die geöffnet wird.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; wird gerade von einem anderen Programm benutzt.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; ist beschädigt oder keine gültige Datenbank.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die eingestellte Währung (Deutsche Mark) ist veraltet.
Möchten Sie Ihr System auf Euro umstellen?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Software muss neu gestartet werden, wenn die Währung umgestellt wurde.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; wurde nicht gefunden. Der Standard-Datenbank-Pfad wird verwendet!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Standard-Datenbank konnte nicht gefunden werden!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Der Kontoauszug nennt keine Kontonummer.
Zu welchem Konto gehören seine Umsätze?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zu welchem Konto gehören die Umsätze der Kontonummer {0}?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Konto zuordnen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Laut Kontoauszug</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gelernt aus {0} Buchung von {1}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gelernt aus {0} Buchungen von {1}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gelernt aus {0} Buchung an {1}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gelernt aus {0} Buchungen an {1}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Regel: {0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>eigenes Konto: an {0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>eigenes Konto: von {0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datei kann nicht geöffnet werden: {0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datei ist zu groß für einen Kontoauszug: {0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datei kann nicht gelesen werden: {0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datei ist leer: {0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datenbank hat {0} Umsätze nicht angenommen. Sie können die Datei später noch einmal einlesen; was schon übernommen ist, wird dabei erkannt.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datenbank ist nur zum Lesen geöffnet. Kontoauszüge können nicht übernommen werden.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Der Umsatz hat keinen Betrag: {0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Der Schlusssaldo ist nicht lesbar: {0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angaben zu einem Umsatz (:86:) stehen vor dem ersten Umsatz (:61:) des Auszugs. Die Datei wurde nicht übernommen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Das Buchungsdatum ist kein Datum: {0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Der Betrag ist keine Zahl: {0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tabellenkalkulation (XLS/XLSX-Datei)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portable Document Format (PDF-Datei)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unbekanntes Dateiformat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SWIFT-Kontoauszug (MT940/MT942-Datei)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Financial Exchange (OFX-Datei)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quicken Interchange Format (QIF-Datei)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Character Separated Values (CSV-Datei)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dieses Format kann nicht eingelesen werden: {0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dieses Format wird noch nicht gelesen: {0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keine Angabe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sonstiges; {0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manuelle Korrektur vom {0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Einnahme</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ausgabe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Umbuchung</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Einmalig</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Täglich</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wöchentlich</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alle 2 Wochen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alle 4 Wochen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Monatlich</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alle 2 Monate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alle 3 Monate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alle 6 Monate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Jährlich</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alle Buchungen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aktueller Tag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buchungen bis heute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aktueller Monat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aktuelles Quartal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aktuelles Jahr</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letzter Monat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letztes Quartal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letztes Jahr</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nächster Monat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nächstes Quartal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nächstes Jahr</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Freier Zeitraum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alle Buchungsarten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keine Gruppierung</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nach Datum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nach Woche</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nach Monat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nach Sparte</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nach Kategorie</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nach Konto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nach Buchungsart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: GetSettings
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: ChangeSettingItem
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: DeleteSetting
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: AddNewEntry
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: ChangeEntry
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: DeleteEntry
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: ChangeEntryAccount
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: ChangeEntryCategory
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: LoadEntry
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: GetEntriesByTarget
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: GetEntriesOfAccount
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: CountEntries
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: CountEntriesOfAccount
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: CountEntriesOfCategory
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: GetEntryAccounts
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: GetStartGuthaben
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: SetStartGuthaben
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: GetEntryMods
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: AddNewEntryMod
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: ChangeEntryMod
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: DeleteEntryMod
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: DeleteEntryModByRelation
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FEHLER: GetImportEntries
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: AddNewImportEntry
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: ChangeImportEntry
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: DeleteImport
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: DeleteAllImports
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: ReleaseImports
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: GetImportAccounts
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: CountOpenImports
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: ImportVersion
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: GetOnlineAccounts
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: GetNewOnlineAccount
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: ChangeOnlineAccount
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: DeleteOnlineAccount
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: FindOnlineAccount
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: GetEntries
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: GetSums
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: AddNewTemplate
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: ChangeTemplate
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: DeleteTemplate
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: GetTemplates
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: GetAccounts
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: FindTemplate
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR: FindAccount
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fehlerhafte Konfiguration!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Software wird jetzt beendet. Bitte korrigieren Sie dieses Konfigurationsproblem.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; wurde nicht gefunden.
Möchten Sie jetzt einen neuen Datenbankpfad wählen?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Konfiguration ist fehlerhaft oder Ihre Datenbank wurde beschädigt. Die Software wird jetzt beendet.
Bitte korrigieren Sie dieses Konfigurationsproblem.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; wird gerade von einem anderen Programm benutzt.
Möchten Sie es noch einmal versuchen?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Möchten Sie jetzt den Datenbankpfad ändern?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; ist beschädigt oder keine gültige Datenbank. Bitte laden Sie eine Datenbanksicherung oder ändern Sie den Datenbankpfad. Möchten Sie jetzt eine Datensicherung zurück spielen?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Möchten Sie die beschädigte Datenbank löschen und neu initialisieren?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datensicherung &apos;{0}&apos; ist beschädigt oder keine gültige Datenbank.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die bisherige Datei wurde als &apos;{0}&apos; aufgehoben.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datenbank konnte nicht erstellt werden. Bitte prüfen Sie die Zugriffsrechte und den Speicherplatz: 
{0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; kann nur gelesen werden. Änderungen werden nicht gespeichert.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; kann nur gelesen werden, weil vor ihrer Umstellung keine Sicherungskopie angelegt werden konnte:
{1}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; kann nur gelesen werden, weil sie nicht umgestellt werden konnte. Bitte prüfen Sie den Speicherplatz.
Es fehlt: {1}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Möchten Sie die Datenbank nur zum Lesen öffnen?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tabelle {0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spalte {0}.{1}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Index {0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FEHLER: GetDefaultDatabase
 {0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Der Datenordner konnte nicht angelegt werden.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Konten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ohne Kontoeintrag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gesamt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0} Umsätze warten auf die Buchung</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bitte erst neue Kategorien anlegen und diese Buchung einordnen!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bitte erst eine Kategorie wählen!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bitte erst eine Buchungsart wählen!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bitte erst neue Konten anlegen und diese Buchung einordnen!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bitte erst ein Konto wählen!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Der Zeitraum für diesen Eintrag wurde modifiziert.
Die manuellen Korrekturen gehen dadurch verloren.
Soll der Eintrag trotzdem gespeichert werden?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eintrag konnte nicht erstellt werden!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buchungsart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saldo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0}, korrigiert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Betrag für diesen Zeitraum von Hand korrigiert.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kontoauszüge importieren</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CSV/XLS/MT940/MT942/OFX/QIF-Datei|*.csv;*.txt;*.mt940;*.mt942;*.xls;*.mt9;*.ofx;*.qif|Alle Dateien|*.*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0} trotzdem übernommen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soll der markierte Umsatz gelöscht werden?
Ein daraus gebuchter Eintrag bleibt bestehen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sollen die {0} markierten Umsätze gelöscht werden?
Daraus gebuchte Einträge bleiben bestehen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Umsätze löschen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0} gelöscht.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keine Daten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ziehen Sie einen Kontoauszug Ihrer Bank hierher oder wählen Sie „Datei importieren…“. Gelesen werden Dateien im Format MT940 und MT942.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alle Umsätze sind gebucht. Ohne den Haken bei „Nur offene“ sehen Sie auch die gebuchten.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kein Umsatz passt zum Filter.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0} offen, {1} insgesamt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>von Hand gewählt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zukünftige Buchungen werden momentan nicht angezeigt. Soll die Anzeige aktiviert werden?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auf diesem System wurde kein Taschenrechner gefunden. Bitte installieren Sie einen, zum Beispiel &quot;gnome-calculator&quot; oder &quot;kcalc&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eintrag löschen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;{0}&apos; vom {1} über {2}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ({1} seit {2})</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Möchten Sie den Eintrag {0} löschen?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Möchten Sie die {0} ausgewählten Einträge löschen?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Damit verschwinden alle Vorkommen dieser Serien, vergangene wie zukünftige, mit ihren Korrekturen:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 Eintrag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0} Einträge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alle Buchungen reichen mit den wiederkehrenden Einträgen bis ins Jahr 2050.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Einmalige und fixe Buchungen sind ausgeblendet. Das Menü Ansicht blendet sie wieder ein.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kein Eintrag dieser Ansicht enthält &apos;{0}&apos;. Löschen Sie den Filter, um alles zu sehen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erfassen Sie mit Strg+N den ersten Eintrag, oder lesen Sie mit Strg+I einen Kontoauszug Ihrer Bank ein.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Für diese Auswahl gibt es keine Einträge. Wählen Sie einen anderen Zeitraum oder ein anderes Konto.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0} (nur lesen)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kontostände heute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kontostände im Zeitraum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kein Konto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0} (kein Konto)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gebucht</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empfänger / Auftraggeber</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Verwendungszweck</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grund des Vorschlags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neuer Name für das Konto &apos;{0}&apos;:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Konto umbenennen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Der Kontoname darf nicht leer sein!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dieser Kontoname existiert bereits!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Es existieren bereits Buchungen zu diesem Konto.
Sollen die Quell/Zielkonten der Buchungen von &apos;{0}&apos; auf &apos;{1}&apos; geändert werden?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Kategorie &apos;{0}&apos; existiert bereits!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Datei</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kontoauszug importieren</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Liest Kontoauszüge aus Dateien Ihrer Bank ein.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beenden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beendet das Programm.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bearbeiten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neuer Eintrag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erfasst eine Einnahme, Ausgabe oder Umbuchung.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eintrag bearbeiten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Öffnet den ausgewählten Eintrag.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Löscht die ausgewählten Einträge nach einer Rückfrage.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ansicht</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kontostand (aller Konten)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zeigt die Kontostände bis heute statt nur des gewählten Zeitraums.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Einmalige-Buchungen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zeigt Einträge, die nur einmal vorkommen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fixe-Buchungen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zeigt Einträge, die sich wiederholen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zukünftige-Buchung</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zeigt auch Einträge nach dem heutigen Tag.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Startguthaben</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zeigt auch die Startguthaben der Konten.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spalten modifizieren</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wählt, welche Spalten die Liste zeigt.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Einstellungen zurücksetzen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stellt Ansicht, Spalten und Fenstergröße auf den Anfang zurück.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extras</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taschenrechner</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Startet den Taschenrechner des Systems.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Woche {0}/{1} ab {2}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0} gelesen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0} neu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0} schon vorhanden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0} ohne Betrag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0} nicht gespeichert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>abgebrochen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Schlusssaldo {0}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zeile {0}: {1}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ein Umsatz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0} Umsätze</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0}: nicht eingelesen. {1}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0}: {1}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>… und {0} weitere Zeilen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0} gebucht</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ein neuer Eintrag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0} neue Einträge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0} zu vorhandenen Einträgen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0} nicht gebucht, weil die Datenbank nicht schreibt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Umsätze ohne Kontonummer haben noch kein Konto und werden nicht gebucht.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die Kontonummer {0} hat noch kein Konto; ihre Umsätze werden nicht gebucht.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>gehört zu einem vorhandenen Eintrag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{0}; {1}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Nur dieses Konto zeigen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Alle Konten zeigen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Konto &amp;umbenennen…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Liste der Einträge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spalten auf den Anfang zurückstellen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Einnahmen:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ausgaben:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Summe:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erster Tag des Zeitraums</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letzter Tag des Zeitraums</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Zeitraum:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;von:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>b&amp;is:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Konto:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B&amp;uchungsart:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Gruppierung:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text, Kategorie oder Betrag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alle Konten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Nach Konto:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;endet am</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nach dem Speichern &amp;schließen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Betrag (€):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Kategorie:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buchungs&amp;art:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>K&amp;onto:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Datum:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Intervall:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Besch&amp;reibung:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letzter Tag der Serie</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Werkzeugleiste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bu&amp;chungen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kont&amp;oauszüge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zukünftige ausblenden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Passwortschutz</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Bitte geben Sie das Passwort der Datenbank ein:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Das Passwort ist nicht richtig. Bitte versuchen Sie es noch einmal.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
