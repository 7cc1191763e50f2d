<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="de">
<context>
    <name>cText</name>
    <message>
        <source>Die Datenbank &apos;{0}&apos; wurde nicht gefunden. Prüfen Sie den Pfad, oder legen Sie sie an: &quot;kontorelle-cli demo DATEI&quot; schreibt einen Beispielhaushalt, das Fenster von Kontorelle oder ein Aufruf ohne --database beginnt ein neues Buch.</source>
        <translation>The database &apos;{0}&apos; was not found. Check the path, or create the file: &quot;kontorelle-cli demo FILE&quot; writes an example household, and the Kontorelle window or a call without --database starts a new book.</translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; wird gerade von einem anderen Programm benutzt. Beenden Sie es, und versuchen Sie es noch einmal.</source>
        <translation>The database &apos;{0}&apos; is being used by another program. Close that program and try again.</translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; kann nicht gelesen werden. Bitte prüfen Sie die Zugriffsrechte.</source>
        <translation>The database &apos;{0}&apos; cannot be read. Please check the access rights.</translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; ist in Benutzung: {1}. Beenden Sie dieses Programm, und versuchen Sie es noch einmal; lesende Befehle gehen auch so.</source>
        <translation>The database &apos;{0}&apos; is in use: {1}. Close that program and try again; commands that only read work all the same.</translation>
    </message>
    <message>
        <source>In den Ordner der Datenbank &apos;{0}&apos; kann nicht geschrieben werden. Bitte prüfen Sie die Zugriffsrechte.</source>
        <translation>The folder of the database &apos;{0}&apos; cannot be written to. Please check the access rights.</translation>
    </message>
    <message>
        <source>Unbekannte Option &apos;--{0}&apos; vor dem Befehl.</source>
        <translation>Unknown option &apos;--{0}&apos; before the command.</translation>
    </message>
    <message>
        <source>Der Befehl &apos;{0}&apos; kennt die Option &apos;--{1}&apos; nicht.</source>
        <translation>The command &apos;{0}&apos; has no option &apos;--{1}&apos;.</translation>
    </message>
    <message>
        <source>Die Option &apos;--{0}&apos; hat keinen Wert.</source>
        <translation>The option &apos;--{0}&apos; takes no value.</translation>
    </message>
    <message>
        <source>Nach &apos;--{0}&apos; fehlt {1}.</source>
        <translation>&apos;--{0}&apos; must be followed by {1}.</translation>
    </message>
    <message>
        <source>Den Befehl &apos;{0}&apos; gibt es nicht.</source>
        <translation>There is no command &apos;{0}&apos;.</translation>
    </message>
    <message>
        <source>Es fehlt der Befehl.</source>
        <translation>The command is missing.</translation>
    </message>
    <message>
        <source>Nach &apos;{0}&apos; fehlt {1}.</source>
        <translation>&apos;{0}&apos; must be followed by {1}.</translation>
    </message>
    <message>
        <source>Mit &apos;{0}&apos; kann der Befehl &apos;{1}&apos; nichts anfangen.</source>
        <translation>&apos;{0}&apos; means nothing to the command &apos;{1}&apos;.</translation>
    </message>
    <message>
        <source>Gruppe</source>
        <translation>Group</translation>
    </message>
    <message>
        <source>Konto</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>Kontostand</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>Offene Umsätze</source>
        <translation>Open transactions</translation>
    </message>
    <message>
        <source>Summe</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Bitte entweder --all oder --id mit Nummern angeben.</source>
        <translation>Please give either --all or --id with numbers.</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ist keine Nummer.</source>
        <translation>&apos;{0}&apos; is not a number.</translation>
    </message>
    <message>
        <source>Einen offenen Umsatz mit der Nummer {0} gibt es nicht.</source>
        <translation>There is no open transaction with the number {0}.</translation>
    </message>
    <message>
        <source>(unbekannt)</source>
        <translation>(unknown)</translation>
    </message>
    <message>
        <source>gehört zu Eintrag {0}</source>
        <translation>belongs to entry {0}</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Art</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Betrag</source>
        <translation>Amount</translation>
    </message>
    <message>
        <source>Kategorie</source>
        <translation>Category</translation>
    </message>
    <message>
        <source>Intervall</source>
        <translation>Interval</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Grund</source>
        <translation>Reason</translation>
    </message>
    <message>
        <source>Beim Öffnen ergänzt: {0}</source>
        <translation>Added on opening: {0}</translation>
    </message>
    <message>
        <source>Die Datei ist unbeschädigt.</source>
        <translation>The file is intact.</translation>
    </message>
    <message>
        <source>Die Datei ist beschädigt. Bitte spielen Sie eine Datensicherung zurück.</source>
        <translation>The file is damaged. Please restore a backup.</translation>
    </message>
    <message>
        <source>Ausgabe als JSON</source>
        <translation>output as JSON</translation>
    </message>
    <message>
        <source>liest Kontoauszüge ein; die Umsätze warten dann auf das Buchen</source>
        <translation>imports statements; the transactions then wait to be booked</translation>
    </message>
    <message>
        <source>eigene Kontonummer für Auszüge, die keine nennen</source>
        <translation>own account number for statements that give none</translation>
    </message>
    <message>
        <source>Konto im Haushaltsbuch für neue Kontonummern</source>
        <translation>account in the book for new account numbers</translation>
    </message>
    <message>
        <source>auch Umsätze übernehmen, die schon vorhanden sind</source>
        <translation>also accept transactions that are already there</translation>
    </message>
    <message>
        <source>zeigt die eingelesenen Umsätze</source>
        <translation>shows the imported transactions</translation>
    </message>
    <message>
        <source>nur die noch nicht gebuchten</source>
        <translation>only those not yet booked</translation>
    </message>
    <message>
        <source>zeigt zu jedem offenen Umsatz, wie er gebucht würde, und warum</source>
        <translation>shows for each open transaction how it would be booked, and why</translation>
    </message>
    <message>
        <source>bucht offene Umsätze so, wie &quot;propose&quot; es zeigt</source>
        <translation>books open transactions as shown by &quot;propose&quot;</translation>
    </message>
    <message>
        <source>alle offenen Umsätze</source>
        <translation>all open transactions</translation>
    </message>
    <message>
        <source>die Umsätze mit diesen Nummern (Spalte ID)</source>
        <translation>the transactions with these numbers (column ID)</translation>
    </message>
    <message>
        <source>nur zeigen, nichts ändern</source>
        <translation>only show, change nothing</translation>
    </message>
    <message>
        <source>zeigt die Einträge eines Zeitraums, wiederkehrende mit jedem Vorkommen; ohne Angabe das aktuelle Jahr</source>
        <translation>shows the entries of a period, recurring ones with every occurrence; the current year unless told otherwise</translation>
    </message>
    <message>
        <source>Zeitraum, zum Beispiel &quot;Letzter Monat&quot; oder &quot;Alle Buchungen&quot;</source>
        <translation>period, for example &quot;Letzter Monat&quot; (last month) or &quot;Alle Buchungen&quot; (all entries)</translation>
    </message>
    <message>
        <source>erster Tag, als 2026-01-31 oder 31.01.2026</source>
        <translation>first day, as 2026-01-31 or 31.01.2026</translation>
    </message>
    <message>
        <source>letzter Tag</source>
        <translation>last day</translation>
    </message>
    <message>
        <source>nur dieses Konto</source>
        <translation>only this account</translation>
    </message>
    <message>
        <source>Einnahme, Ausgabe oder Umbuchung</source>
        <translation>Einnahme (income), Ausgabe (expense) or Umbuchung (transfer)</translation>
    </message>
    <message>
        <source>diese Kategorie und ihre Unterkategorien: &quot;Wohnung&quot;, &quot;Wohnung; Miete&quot;</source>
        <translation>this category and its subcategories: &quot;Wohnung&quot;, &quot;Wohnung; Miete&quot;</translation>
    </message>
    <message>
        <source>nur Einträge, die alle diese Wörter enthalten</source>
        <translation>only entries that contain all these words</translation>
    </message>
    <message>
        <source>Ausgabe als CSV-Datei für Tabellenprogramme</source>
        <translation>output as a CSV file for spreadsheet programs</translation>
    </message>
    <message>
        <source>zeigt die Kontostände von heute</source>
        <translation>shows the account balances of today</translation>
    </message>
    <message>
        <source>schreibt den Beispielhaushalt in eine neue Datenbank</source>
        <translation>writes the example household to a new database</translation>
    </message>
    <message>
        <source>größeres Buch mit so vielen Einträgen</source>
        <translation>larger book with this many entries</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ist keine Anzahl.</source>
        <translation>&apos;{0}&apos; is not a count.</translation>
    </message>
    <message>
        <source>Die Datei &apos;{0}&apos; gibt es schon. Bitte nennen Sie eine neue.</source>
        <translation>The file &apos;{0}&apos; already exists. Please name a new one.</translation>
    </message>
    <message>
        <source>Die Installation ist beschädigt. Eine Neuinstallation könnte das Problem beheben.
Die Datei &apos;template.dat&apos; konnte nicht gefunden werden!</source>
        <translation>The installation is damaged. Reinstalling could solve the problem.
The file &apos;template.dat&apos; could not be found!</translation>
    </message>
    <message>
        <source>Die Datei &apos;{0}&apos; kann nicht geschrieben werden.</source>
        <translation>The file &apos;{0}&apos; cannot be written.</translation>
    </message>
    <message>
        <source>{0}: Beispielhaushalt mit {1} Einträgen</source>
        <translation>{0}: example household with {1} entries</translation>
    </message>
    <message>
        <source>Bitte entweder --period oder --from und --to angeben.</source>
        <translation>Please give either --period or --from and --to.</translation>
    </message>
    <message>
        <source>Das Konto &apos;{0}&apos; gibt es nicht. Möglich sind: {1}.</source>
        <translation>There is no account &apos;{0}&apos;. Possible values: {1}.</translation>
    </message>
    <message>
        <source>Kontorelle auf der Befehlszeile

Aufruf: kontorelle-cli [--database DATEI] [--profile ORDNER] BEFEHL ...

Befehle:
</source>
        <translation>Kontorelle on the command line

Usage: kontorelle-cli [--database FILE] [--profile FOLDER] COMMAND ...

Commands:
</translation>
    </message>
    <message>
        <source>zeigt diese Hilfe; &quot;hilfe BEFEHL&quot; zeigt die eines Befehls</source>
        <translation>shows this help; &quot;hilfe COMMAND&quot; shows that of a command</translation>
    </message>
    <message>
        <source>Aufruf: kontorelle-cli [--database DATEI] [--profile ORDNER] {0}</source>
        <translation>Usage: kontorelle-cli [--database FILE] [--profile FOLDER] {0}</translation>
    </message>
    <message>
        <source> [OPTIONEN]</source>
        <translation> [OPTIONS]</translation>
    </message>
    <message>
        <source>Optionen:</source>
        <translation>Options:</translation>
    </message>
    <message>
        <source>Der Kontonummer &apos;{0}&apos; konnte kein Konto zugeordnet werden.</source>
        <translation>No account could be assigned to the account number &apos;{0}&apos;.</translation>
    </message>
    <message>
        <source>Die Kontonummer &apos;{0}&apos; gehört nun zum Konto &apos;{1}&apos;.</source>
        <translation>The account number &apos;{0}&apos; now belongs to the account &apos;{1}&apos;.</translation>
    </message>
    <message>
        <source>&quot;kontorelle-cli hilfe&quot; zeigt alle Befehle.</source>
        <translation>&quot;kontorelle-cli hilfe&quot; shows all commands.</translation>
    </message>
    <message>
        <source>gebucht ({0})</source>
        <translation>booked ({0})</translation>
    </message>
    <message>
        <source>offen</source>
        <translation>open</translation>
    </message>
    <message>
        <source>Empfänger</source>
        <translation>Payee</translation>
    </message>
    <message>
        <source>Zweck</source>
        <translation>Purpose</translation>
    </message>
    <message>
        <source>Stand</source>
        <translation>State</translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; ist in Benutzung: {1}.
Möchten Sie sie nur zum Lesen öffnen?</source>
        <translation>The database &apos;{0}&apos; is in use: {1}.
Do you want to open it read-only?</translation>
    </message>
    <message>
        <source>Datenbank wählen</source>
        <translation>Choose database</translation>
    </message>
    <message>
        <source>Datenbanken|*.db|Alle Dateien|*.*</source>
        <translation>Databases|*.db|All files|*.*</translation>
    </message>
    <message>
        <source>Datensicherung laden</source>
        <translation>Restore backup</translation>
    </message>
    <message>
        <source>Backup-Datei|*.backup|Alle Dateien|*.*</source>
        <translation>Backup file|*.backup|All files|*.*</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Ja</source>
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <source>&amp;Nein</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Kontorelle, das Haushaltsbuch</source>
        <translation>Kontorelle, the household accounts book</translation>
    </message>
    <message>
        <source>Ordner für Daten und Einstellungen statt der üblichen.</source>
        <translation>Folder for data and settings instead of the usual ones.</translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; wird gerade von einem anderen Programm benutzt.</source>
        <translation>The database &apos;{0}&apos; is being used by another program.</translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; ist beschädigt oder keine gültige Datenbank.</source>
        <translation>The database &apos;{0}&apos; is damaged or not a valid database.</translation>
    </message>
    <message>
        <source>Die eingestellte Währung (Deutsche Mark) ist veraltet.
Möchten Sie Ihr System auf Euro umstellen?</source>
        <translation>The currency set on this system (Deutsche Mark) is out of date.
Do you want to change your system to euros?</translation>
    </message>
    <message>
        <source>Die Software muss neu gestartet werden, wenn die Währung umgestellt wurde.</source>
        <translation>The program must be restarted once the currency has been changed.</translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; wurde nicht gefunden. Der Standard-Datenbank-Pfad wird verwendet!</source>
        <translation>The database &apos;{0}&apos; was not found. The default database path will be used!</translation>
    </message>
    <message>
        <source>Die Standard-Datenbank konnte nicht gefunden werden!</source>
        <translation>The default database could not be found!</translation>
    </message>
    <message>
        <source>Der Kontoauszug nennt keine Kontonummer.
Zu welchem Konto gehören seine Umsätze?</source>
        <translation>The statement gives no account number.
Which account do its transactions belong to?</translation>
    </message>
    <message>
        <source>Konto zuordnen</source>
        <translation>Assign account</translation>
    </message>
    <message>
        <source>Laut Kontoauszug</source>
        <translation>According to statement</translation>
    </message>
    <message>
        <source>gelernt aus {0} Buchung von {1}</source>
        <translation>learned from {0} entry received from {1}</translation>
    </message>
    <message>
        <source>gelernt aus {0} Buchungen von {1}</source>
        <translation>learned from {0} entries received from {1}</translation>
    </message>
    <message>
        <source>gelernt aus {0} Buchung an {1}</source>
        <translation>learned from {0} entry paid to {1}</translation>
    </message>
    <message>
        <source>gelernt aus {0} Buchungen an {1}</source>
        <translation>learned from {0} entries paid to {1}</translation>
    </message>
    <message>
        <source>Regel: {0}</source>
        <translation>Rule: {0}</translation>
    </message>
    <message>
        <source>eigenes Konto: an {0}</source>
        <translation>own account: to {0}</translation>
    </message>
    <message>
        <source>eigenes Konto: von {0}</source>
        <translation>own account: from {0}</translation>
    </message>
    <message>
        <source>Die Datei ist zu groß für einen Kontoauszug: {0}</source>
        <translation>The file is too large for a statement: {0}</translation>
    </message>
    <message>
        <source>Die Datei kann nicht gelesen werden: {0}</source>
        <translation>The file cannot be read: {0}</translation>
    </message>
    <message>
        <source>Die Datei ist leer: {0}</source>
        <translation>The file is empty: {0}</translation>
    </message>
    <message>
        <source>Die Datenbank ist nur zum Lesen geöffnet. Kontoauszüge können nicht übernommen werden.</source>
        <translation>The database is open read-only. Statements cannot be imported.</translation>
    </message>
    <message>
        <source>Der Umsatz hat keinen Betrag: {0}</source>
        <translation>The transaction has no amount: {0}</translation>
    </message>
    <message>
        <source>Der Schlusssaldo ist nicht lesbar: {0}</source>
        <translation>The closing balance is not readable: {0}</translation>
    </message>
    <message>
        <source>Angaben zu einem Umsatz (:86:) stehen vor dem ersten Umsatz (:61:) des Auszugs. Die Datei wurde nicht übernommen.</source>
        <translation>Details of a transaction (:86:) come before the first transaction (:61:) of the statement. The file was not imported.</translation>
    </message>
    <message>
        <source>Das Buchungsdatum ist kein Datum: {0}</source>
        <translation>The booking date is not a date: {0}</translation>
    </message>
    <message>
        <source>Der Betrag ist keine Zahl: {0}</source>
        <translation>The amount is not a number: {0}</translation>
    </message>
    <message>
        <source>Tabellenkalkulation (XLS/XLSX-Datei)</source>
        <translation>Spreadsheet (XLS/XLSX file)</translation>
    </message>
    <message>
        <source>Portable Document Format (PDF-Datei)</source>
        <translation>Portable Document Format (PDF file)</translation>
    </message>
    <message>
        <source>Unbekanntes Dateiformat</source>
        <translation>Unknown file format</translation>
    </message>
    <message>
        <source>SWIFT-Kontoauszug (MT940/MT942-Datei)</source>
        <translation>SWIFT statement (MT940/MT942 file)</translation>
    </message>
    <message>
        <source>Open Financial Exchange (OFX-Datei)</source>
        <translation>Open Financial Exchange (OFX file)</translation>
    </message>
    <message>
        <source>Quicken Interchange Format (QIF-Datei)</source>
        <translation>Quicken Interchange Format (QIF file)</translation>
    </message>
    <message>
        <source>Character Separated Values (CSV-Datei)</source>
        <translation>Character Separated Values (CSV file)</translation>
    </message>
    <message>
        <source>Dieses Format kann nicht eingelesen werden: {0}</source>
        <translation>This format cannot be imported: {0}</translation>
    </message>
    <message>
        <source>Keine Angabe</source>
        <translation>Not specified</translation>
    </message>
    <message>
        <source>Manuelle Korrektur vom {0}</source>
        <translation>Manual correction dated {0}</translation>
    </message>
    <message>
        <source>Einnahme</source>
        <translation>Income</translation>
    </message>
    <message>
        <source>Ausgabe</source>
        <translation>Expense</translation>
    </message>
    <message>
        <source>Umbuchung</source>
        <translation>Transfer</translation>
    </message>
    <message>
        <source>Einmalig</source>
        <translation>One-off</translation>
    </message>
    <message>
        <source>Täglich</source>
        <translation>Daily</translation>
    </message>
    <message>
        <source>Wöchentlich</source>
        <translation>Weekly</translation>
    </message>
    <message>
        <source>Alle 2 Wochen</source>
        <translation>Every 2 weeks</translation>
    </message>
    <message>
        <source>Alle 4 Wochen</source>
        <translation>Every 4 weeks</translation>
    </message>
    <message>
        <source>Monatlich</source>
        <translation>Monthly</translation>
    </message>
    <message>
        <source>Alle 2 Monate</source>
        <translation>Every 2 months</translation>
    </message>
    <message>
        <source>Alle 3 Monate</source>
        <translation>Every 3 months</translation>
    </message>
    <message>
        <source>Alle 6 Monate</source>
        <translation>Every 6 months</translation>
    </message>
    <message>
        <source>Jährlich</source>
        <translation>Yearly</translation>
    </message>
    <message>
        <source>Alle Buchungen</source>
        <translation>All entries</translation>
    </message>
    <message>
        <source>Aktueller Tag</source>
        <translation>Today</translation>
    </message>
    <message>
        <source>Buchungen bis heute</source>
        <translation>Entries up to today</translation>
    </message>
    <message>
        <source>Aktueller Monat</source>
        <translation>This month</translation>
    </message>
    <message>
        <source>Aktuelles Quartal</source>
        <translation>This quarter</translation>
    </message>
    <message>
        <source>Aktuelles Jahr</source>
        <translation>This year</translation>
    </message>
    <message>
        <source>Letzter Monat</source>
        <translation>Last month</translation>
    </message>
    <message>
        <source>Letztes Quartal</source>
        <translation>Last quarter</translation>
    </message>
    <message>
        <source>Letztes Jahr</source>
        <translation>Last year</translation>
    </message>
    <message>
        <source>Nächster Monat</source>
        <translation>Next month</translation>
    </message>
    <message>
        <source>Nächstes Quartal</source>
        <translation>Next quarter</translation>
    </message>
    <message>
        <source>Nächstes Jahr</source>
        <translation>Next year</translation>
    </message>
    <message>
        <source>Freier Zeitraum</source>
        <translation>Custom period</translation>
    </message>
    <message>
        <source>Alle Buchungsarten</source>
        <translation>All entry types</translation>
    </message>
    <message>
        <source>Keine Gruppierung</source>
        <translation>No grouping</translation>
    </message>
    <message>
        <source>Nach Datum</source>
        <translation>By date</translation>
    </message>
    <message>
        <source>Nach Woche</source>
        <translation>By week</translation>
    </message>
    <message>
        <source>Nach Monat</source>
        <translation>By month</translation>
    </message>
    <message>
        <source>Nach Sparte</source>
        <translation>By main category</translation>
    </message>
    <message>
        <source>Nach Kategorie</source>
        <translation>By category</translation>
    </message>
    <message>
        <source>Nach Konto</source>
        <translation>By account</translation>
    </message>
    <message>
        <source>Nach Buchungsart</source>
        <translation>By entry type</translation>
    </message>
    <message>
        <source>Fehlerhafte Konfiguration!</source>
        <translation>Faulty configuration!</translation>
    </message>
    <message>
        <source>Die Software wird jetzt beendet. Bitte korrigieren Sie dieses Konfigurationsproblem.</source>
        <translation>The program will now close. Please correct this configuration problem.</translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; wurde nicht gefunden.
Möchten Sie jetzt einen neuen Datenbankpfad wählen?</source>
        <translation>The database &apos;{0}&apos; was not found.
Do you want to choose a new database path now?</translation>
    </message>
    <message>
        <source>Die Konfiguration ist fehlerhaft oder Ihre Datenbank wurde beschädigt. Die Software wird jetzt beendet.
Bitte korrigieren Sie dieses Konfigurationsproblem.</source>
        <translation>The configuration is faulty or your database has been damaged. The program will now close.
Please correct this configuration problem.</translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; wird gerade von einem anderen Programm benutzt.
Möchten Sie es noch einmal versuchen?</source>
        <translation>The database &apos;{0}&apos; is being used by another program.
Do you want to try again?</translation>
    </message>
    <message>
        <source>Möchten Sie jetzt den Datenbankpfad ändern?</source>
        <translation>Do you want to change the database path now?</translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; ist beschädigt oder keine gültige Datenbank. Bitte laden Sie eine Datenbanksicherung oder ändern Sie den Datenbankpfad. Möchten Sie jetzt eine Datensicherung zurück spielen?</source>
        <translation>The database &apos;{0}&apos; is damaged or not a valid database. Please restore a backup or change the database path. Do you want to restore a backup now?</translation>
    </message>
    <message>
        <source>Möchten Sie die beschädigte Datenbank löschen und neu initialisieren?</source>
        <translation>Do you want to delete the damaged database and set up a new one?</translation>
    </message>
    <message>
        <source>Die Datensicherung &apos;{0}&apos; ist beschädigt oder keine gültige Datenbank.</source>
        <translation>The backup &apos;{0}&apos; is damaged or not a valid database.</translation>
    </message>
    <message>
        <source>Die bisherige Datei wurde als &apos;{0}&apos; aufgehoben.</source>
        <translation>The previous file has been kept as &apos;{0}&apos;.</translation>
    </message>
    <message>
        <source>Die Datenbank konnte nicht erstellt werden. Bitte prüfen Sie die Zugriffsrechte und den Speicherplatz: 
{0}</source>
        <translation>The database could not be created. Please check the access rights and the disk space: 
{0}</translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; kann nur gelesen werden. Änderungen werden nicht gespeichert.</source>
        <translation>The database &apos;{0}&apos; can only be read. Changes will not be saved.</translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; kann nur gelesen werden, weil vor ihrer Umstellung keine Sicherungskopie angelegt werden konnte:
{1}</source>
        <translation>The database &apos;{0}&apos; can only be read because no backup copy could be made before its conversion:
{1}</translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; kann nur gelesen werden, weil sie nicht umgestellt werden konnte. Bitte prüfen Sie den Speicherplatz.
Es fehlt: {1}</source>
        <translation>The database &apos;{0}&apos; can only be read because it could not be converted. Please check the disk space.
Missing: {1}</translation>
    </message>
    <message>
        <source>Möchten Sie die Datenbank nur zum Lesen öffnen?</source>
        <translation>Do you want to open the database read-only?</translation>
    </message>
    <message>
        <source>Tabelle {0}</source>
        <translation>Table {0}</translation>
    </message>
    <message>
        <source>Spalte {0}.{1}</source>
        <translation>Column {0}.{1}</translation>
    </message>
    <message>
        <source>Index {0}</source>
        <translation>Index {0}</translation>
    </message>
    <message>
        <source>FEHLER: GetDefaultDatabase
 {0}</source>
        <translation>ERROR: GetDefaultDatabase
 {0}</translation>
    </message>
    <message>
        <source>Der Datenordner konnte nicht angelegt werden.</source>
        <translation>The data folder could not be created.</translation>
    </message>
    <message>
        <source>Konten</source>
        <translation>Accounts</translation>
    </message>
    <message>
        <source>Ohne Kontoeintrag</source>
        <translation>Not in the account list</translation>
    </message>
    <message>
        <source>Gesamt</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>{0} Umsätze warten auf die Buchung</source>
        <translation>{0} transactions waiting to be booked</translation>
    </message>
    <message>
        <source>Offen</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Der Zeitraum für diesen Eintrag wurde modifiziert.
Die manuellen Korrekturen gehen dadurch verloren.
Soll der Eintrag trotzdem gespeichert werden?</source>
        <translation>The period of this entry has been changed.
Its manual corrections will be lost.
Do you want to save the entry anyway?</translation>
    </message>
    <message>
        <source>Buchungsart</source>
        <translation>Entry type</translation>
    </message>
    <message>
        <source>Beschreibung</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Saldo</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>{0}, korrigiert</source>
        <translation>{0}, corrected</translation>
    </message>
    <message>
        <source>Kontoauszüge importieren</source>
        <translation>Import statements</translation>
    </message>
    <message>
        <source>{0} trotzdem übernommen.</source>
        <translation>{0} imported anyway.</translation>
    </message>
    <message>
        <source>Soll der markierte Umsatz gelöscht werden?
Ein daraus gebuchter Eintrag bleibt bestehen.</source>
        <translation>Do you want to delete the selected transaction?
An entry booked from it will remain.</translation>
    </message>
    <message>
        <source>Sollen die {0} markierten Umsätze gelöscht werden?
Daraus gebuchte Einträge bleiben bestehen.</source>
        <translation>Do you want to delete the {0} selected transactions?
Entries booked from them will remain.</translation>
    </message>
    <message>
        <source>Umsätze löschen</source>
        <translation>Delete transactions</translation>
    </message>
    <message>
        <source>{0} gelöscht.</source>
        <translation>{0} deleted.</translation>
    </message>
    <message>
        <source>Keine Daten</source>
        <translation>No data</translation>
    </message>
    <message>
        <source>Alle Umsätze sind gebucht. Ohne den Haken bei „Nur offene“ sehen Sie auch die gebuchten.</source>
        <translation>All transactions have been booked. Untick “Open only” to see the booked ones as well.</translation>
    </message>
    <message>
        <source>Kein Umsatz passt zum Filter.</source>
        <translation>No transaction matches the filter.</translation>
    </message>
    <message>
        <source>{0} offen, {1} insgesamt</source>
        <translation>{0} open, {1} in total</translation>
    </message>
    <message>
        <source>von Hand gewählt</source>
        <translation>chosen by hand</translation>
    </message>
    <message>
        <source>Zukünftige Buchungen werden momentan nicht angezeigt. Soll die Anzeige aktiviert werden?</source>
        <translation>Future entries are currently hidden. Do you want to show them?</translation>
    </message>
    <message>
        <source>Auf diesem System wurde kein Taschenrechner gefunden. Bitte installieren Sie einen, zum Beispiel &quot;gnome-calculator&quot; oder &quot;kcalc&quot;.</source>
        <translation>No calculator was found on this system. Please install one, for example &quot;gnome-calculator&quot; or &quot;kcalc&quot;.</translation>
    </message>
    <message>
        <source>Eintrag löschen</source>
        <translation>Delete entry</translation>
    </message>
    <message>
        <source>1 Eintrag</source>
        <translation>1 entry</translation>
    </message>
    <message numerus="yes">
        <source>{0} Einträge</source>
        <translation>
            <numerusform>{0} entry</numerusform>
            <numerusform>{0} entries</numerusform>
        </translation>
    </message>
    <message>
        <source>Einmalige und fixe Buchungen sind ausgeblendet. Das Menü Ansicht blendet sie wieder ein.</source>
        <translation>One-off and recurring entries are hidden. The View menu shows them again.</translation>
    </message>
    <message>
        <source>Kein Eintrag dieser Ansicht enthält &apos;{0}&apos;. Löschen Sie den Filter, um alles zu sehen.</source>
        <translation>No entry in this view contains &apos;{0}&apos;. Clear the filter to see everything.</translation>
    </message>
    <message>
        <source>Erfassen Sie mit Strg+N den ersten Eintrag, oder lesen Sie mit Strg+I einen Kontoauszug Ihrer Bank ein.</source>
        <translation>Press Ctrl+N to enter the first entry, or Ctrl+I to import a statement from your bank.</translation>
    </message>
    <message>
        <source>Für diese Auswahl gibt es keine Einträge. Wählen Sie einen anderen Zeitraum oder ein anderes Konto.</source>
        <translation>There are no entries for this selection. Choose another period or another account.</translation>
    </message>
    <message>
        <source>{0} (nur lesen)</source>
        <translation>{0} (read-only)</translation>
    </message>
    <message>
        <source>Kontostände heute</source>
        <translation>Balances today</translation>
    </message>
    <message>
        <source>kein Konto</source>
        <translation>no account</translation>
    </message>
    <message>
        <source>{0} (kein Konto)</source>
        <translation>{0} (no account)</translation>
    </message>
    <message>
        <source>gebucht</source>
        <translation>booked</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Empfänger / Auftraggeber</source>
        <translation>Payee / payer</translation>
    </message>
    <message>
        <source>Verwendungszweck</source>
        <translation>Purpose</translation>
    </message>
    <message>
        <source>Neuer Name für das Konto &apos;{0}&apos;:</source>
        <translation>New name for the account &apos;{0}&apos;:</translation>
    </message>
    <message>
        <source>Konto umbenennen</source>
        <translation>Rename account</translation>
    </message>
    <message>
        <source>Der Kontoname darf nicht leer sein!</source>
        <translation>The account name must not be empty!</translation>
    </message>
    <message>
        <source>Dieser Kontoname existiert bereits!</source>
        <translation>This account name already exists!</translation>
    </message>
    <message>
        <source>Es existieren bereits Buchungen zu diesem Konto.
Sollen die Quell/Zielkonten der Buchungen von &apos;{0}&apos; auf &apos;{1}&apos; geändert werden?</source>
        <translation>There are already entries for this account.
Do you want to change the source/target accounts of the entries from &apos;{0}&apos; to &apos;{1}&apos;?</translation>
    </message>
    <message>
        <source>Die Kategorie &apos;{0}&apos; existiert bereits!</source>
        <translation>The category &apos;{0}&apos; already exists!</translation>
    </message>
    <message>
        <source>Datei</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Liest Kontoauszüge aus Dateien Ihrer Bank ein.</source>
        <translation>Imports statements from files of your bank.</translation>
    </message>
    <message>
        <source>Beendet das Programm.</source>
        <translation>Quits the program.</translation>
    </message>
    <message>
        <source>Bearbeiten</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Neuer Eintrag</source>
        <translation>New entry</translation>
    </message>
    <message>
        <source>Erfasst eine Einnahme, Ausgabe oder Umbuchung.</source>
        <translation>Enters an income, an expense or a transfer.</translation>
    </message>
    <message>
        <source>Eintrag bearbeiten</source>
        <translation>Edit entry</translation>
    </message>
    <message>
        <source>Öffnet den ausgewählten Eintrag.</source>
        <translation>Opens the selected entry.</translation>
    </message>
    <message>
        <source>Löscht die ausgewählten Einträge nach einer Rückfrage.</source>
        <translation>Deletes the selected entries after asking.</translation>
    </message>
    <message>
        <source>Ansicht</source>
        <translation>View</translation>
    </message>
    <message>
        <source>Zeigt die Kontostände bis heute statt nur des gewählten Zeitraums.</source>
        <translation>Shows the balances up to today instead of only those of the chosen period.</translation>
    </message>
    <message>
        <source>Zeigt Einträge, die nur einmal vorkommen.</source>
        <translation>Shows entries that occur only once.</translation>
    </message>
    <message>
        <source>Zeigt Einträge, die sich wiederholen.</source>
        <translation>Shows entries that repeat.</translation>
    </message>
    <message>
        <source>Zeigt auch Einträge nach dem heutigen Tag.</source>
        <translation>Also shows entries after today.</translation>
    </message>
    <message>
        <source>Startguthaben</source>
        <translation>Opening balance</translation>
    </message>
    <message>
        <source>Zeigt auch die Startguthaben der Konten.</source>
        <translation>Also shows the opening balances of the accounts.</translation>
    </message>
    <message>
        <source>Wählt, welche Spalten die Liste zeigt.</source>
        <translation>Chooses which columns the list shows.</translation>
    </message>
    <message>
        <source>Stellt Ansicht, Spalten und Fenstergröße auf den Anfang zurück.</source>
        <translation>Resets view, columns and window size to their defaults.</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>Tools</translation>
    </message>
    <message>
        <source>Taschenrechner</source>
        <translation>Calculator</translation>
    </message>
    <message>
        <source>Startet den Taschenrechner des Systems.</source>
        <translation>Starts the system&apos;s calculator.</translation>
    </message>
    <message>
        <source>Woche {0}/{1} ab {2}</source>
        <translation>Week {0}/{1} from {2}</translation>
    </message>
    <message>
        <source>{0} gelesen</source>
        <translation>{0} read</translation>
    </message>
    <message>
        <source>{0} neu</source>
        <translation>{0} new</translation>
    </message>
    <message>
        <source>{0} schon vorhanden</source>
        <translation>{0} already there</translation>
    </message>
    <message>
        <source>{0} ohne Betrag</source>
        <translation>{0} without an amount</translation>
    </message>
    <message>
        <source>{0} nicht gespeichert</source>
        <translation>{0} not saved</translation>
    </message>
    <message>
        <source>Schlusssaldo {0}</source>
        <translation>closing balance {0}</translation>
    </message>
    <message>
        <source>Zeile {0}: {1}</source>
        <translation>Line {0}: {1}</translation>
    </message>
    <message>
        <source>Ein Umsatz</source>
        <translation>1 transaction</translation>
    </message>
    <message numerus="yes">
        <source>{0} Umsätze</source>
        <translation>
            <numerusform>{0} transaction</numerusform>
            <numerusform>{0} transactions</numerusform>
        </translation>
    </message>
    <message>
        <source>{0}: nicht eingelesen. {1}</source>
        <translation>{0}: not imported. {1}</translation>
    </message>
    <message>
        <source>{0}: {1}</source>
        <translation>{0}: {1}</translation>
    </message>
    <message numerus="yes">
        <source>… und {0} weitere Zeilen</source>
        <translation>
            <numerusform>… and {0} more line</numerusform>
            <numerusform>… and {0} more lines</numerusform>
        </translation>
    </message>
    <message>
        <source>{0} gebucht</source>
        <translation>{0} booked</translation>
    </message>
    <message>
        <source>ein neuer Eintrag</source>
        <translation>1 new entry</translation>
    </message>
    <message>
        <source>{0} neue Einträge</source>
        <translation>{0} new entries</translation>
    </message>
    <message>
        <source>{0} zu vorhandenen Einträgen</source>
        <translation>{0} assigned to existing entries</translation>
    </message>
    <message>
        <source>{0} nicht gebucht, weil die Datenbank nicht schreibt</source>
        <translation>{0} not booked because the database could not be written</translation>
    </message>
    <message>
        <source>Umsätze ohne Kontonummer haben noch kein Konto und werden nicht gebucht.</source>
        <translation>Transactions without an account number have no account yet and will not be booked.</translation>
    </message>
    <message>
        <source>Die Kontonummer {0} hat noch kein Konto; ihre Umsätze werden nicht gebucht.</source>
        <translation>The account number {0} has no account yet; its transactions will not be booked.</translation>
    </message>
    <message>
        <source>&amp;Nur dieses Konto zeigen</source>
        <translation>&amp;Show only this account</translation>
    </message>
    <message>
        <source>&amp;Alle Konten zeigen</source>
        <translation>Show &amp;all accounts</translation>
    </message>
    <message>
        <source>Konto &amp;umbenennen…</source>
        <translation>&amp;Rename account…</translation>
    </message>
    <message>
        <source>Liste der Einträge</source>
        <translation>List of entries</translation>
    </message>
    <message>
        <source>Spalten auf den Anfang zurückstellen</source>
        <translation>Reset columns</translation>
    </message>
    <message>
        <source>Einnahmen:</source>
        <translation>Income:</translation>
    </message>
    <message>
        <source>Ausgaben:</source>
        <translation>Expenses:</translation>
    </message>
    <message>
        <source>Summe:</source>
        <translation>Total:</translation>
    </message>
    <message>
        <source>Erster Tag des Zeitraums</source>
        <translation>First day of the period</translation>
    </message>
    <message>
        <source>Letzter Tag des Zeitraums</source>
        <translation>Last day of the period</translation>
    </message>
    <message>
        <source>&amp;Zeitraum:</source>
        <translation>&amp;Period:</translation>
    </message>
    <message>
        <source>&amp;von:</source>
        <translation>fr&amp;om:</translation>
    </message>
    <message>
        <source>&amp;Konto:</source>
        <translation>Acco&amp;unt:</translation>
    </message>
    <message>
        <source>B&amp;uchungsart:</source>
        <translation>Entr&amp;y type:</translation>
    </message>
    <message>
        <source>&amp;Gruppierung:</source>
        <translation>&amp;Grouping:</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>Filte&amp;r:</translation>
    </message>
    <message>
        <source>Text, Kategorie oder Betrag</source>
        <translation>Text, category or amount</translation>
    </message>
    <message>
        <source>Alle Konten</source>
        <translation>All accounts</translation>
    </message>
    <message>
        <source>&amp;Nach Konto:</source>
        <translation>To a&amp;ccount:</translation>
    </message>
    <message>
        <source>&amp;Kategorie:</source>
        <translation>Categ&amp;ory:</translation>
    </message>
    <message>
        <source>Buchungs&amp;art:</source>
        <translation>Entry &amp;type:</translation>
    </message>
    <message>
        <source>K&amp;onto:</source>
        <translation>Acco&amp;unt:</translation>
    </message>
    <message>
        <source>&amp;Datum:</source>
        <translation>&amp;Date:</translation>
    </message>
    <message>
        <source>&amp;Intervall:</source>
        <translation>&amp;Interval:</translation>
    </message>
    <message>
        <source>Letzter Tag der Serie</source>
        <translation>Last day of the series</translation>
    </message>
    <message>
        <source>Werkzeugleiste</source>
        <translation>Toolbar</translation>
    </message>
    <message>
        <source>Bu&amp;chungen</source>
        <translation>E&amp;ntries</translation>
    </message>
    <message>
        <source>Kont&amp;oauszüge</source>
        <translation>State&amp;ments</translation>
    </message>
    <message>
        <source>Zukünftige ausblenden</source>
        <translation>Hide future entries</translation>
    </message>
    <message>
        <source>Passwortschutz</source>
        <translation>Password protection</translation>
    </message>
    <message>
        <source>&amp;Bitte geben Sie das Passwort der Datenbank ein:</source>
        <translation>&amp;Please enter the password of the database:</translation>
    </message>
    <message>
        <source>Das Passwort ist nicht richtig. Bitte versuchen Sie es noch einmal.</source>
        <translation>The password is not correct. Please try again.</translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; kann nur gelesen werden. Bitte prüfen Sie die Zugriffsrechte.</source>
        <translation>The database &apos;{0}&apos; can only be read. Please check the access rights.</translation>
    </message>
    <message>
        <source>In die Datenbank &apos;{0}&apos; kann nicht geschrieben werden. Bitte prüfen Sie den Speicherplatz.</source>
        <translation>The database &apos;{0}&apos; cannot be written to. Please check the disk space.</translation>
    </message>
    <message>
        <source>Passwort:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>Die Datenbank ist mit einem Passwort geschützt. Bitte nennen Sie es in der Umgebungsvariable KONTORELLE_PASSWORT.</source>
        <translation>The database is protected by a password. Please give it in the environment variable KONTORELLE_PASSWORT.</translation>
    </message>
    <message>
        <source>Das Passwort ist nicht richtig.</source>
        <translation>The password is not correct.</translation>
    </message>
    <message>
        <source>keine Regel passt</source>
        <translation>no rule matches</translation>
    </message>
    <message>
        <source>{0}; gehört zu einem vorhandenen Eintrag</source>
        <translation>{0}; belongs to an existing entry</translation>
    </message>
    <message>
        <source>Liste der Bankumsätze</source>
        <translation>List of bank transactions</translation>
    </message>
    <message>
        <source>Datei i&amp;mportieren…</source>
        <translation>&amp;Import file…</translation>
    </message>
    <message>
        <source>B&amp;uchen</source>
        <translation>&amp;Book</translation>
    </message>
    <message>
        <source>&amp;Löschen</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>&amp;Nur offene</source>
        <translation>&amp;Open only</translation>
    </message>
    <message>
        <source>Trot&amp;zdem übernehmen</source>
        <translation>Ta&amp;ke anyway</translation>
    </message>
    <message>
        <source>&amp;Schließen</source>
        <translation>Close bo&amp;x</translation>
    </message>
    <message>
        <source>Ergebnis</source>
        <translation>Result</translation>
    </message>
    <message>
        <source>Bucht die markierten Umsätze (Eingabetaste)</source>
        <translation>Books the selected transactions (Enter)</translation>
    </message>
    <message>
        <source>Löscht die markierten Umsätze (Entf); gebuchte Einträge bleiben</source>
        <translation>Deletes the selected transactions (Del); booked entries remain</translation>
    </message>
    <message>
        <source>Name, Zweck, Betrag …</source>
        <translation>Name, purpose, amount…</translation>
    </message>
    <message>
        <source>Fil&amp;ter:</source>
        <translation>Fi&amp;lter:</translation>
    </message>
    <message>
        <source>Der Kontoauszug wird eingelesen …</source>
        <translation>Importing the statement…</translation>
    </message>
    <message>
        <source>Die Umsätze werden gebucht …</source>
        <translation>Booking the transactions…</translation>
    </message>
    <message>
        <source>heute</source>
        <translation>today</translation>
    </message>
    <message>
        <source>gestern</source>
        <translation>yesterday</translation>
    </message>
    <message>
        <source>vorgestern</source>
        <translation>day before yesterday</translation>
    </message>
    <message>
        <source>morgen</source>
        <translation>tomorrow</translation>
    </message>
    <message>
        <source>übermorgen</source>
        <translation>day after tomorrow</translation>
    </message>
    <message>
        <source>In den Ordner &apos;{0}&apos; kann nicht geschrieben werden. Bitte prüfen Sie die Zugriffsrechte und den Speicherplatz.</source>
        <translation>The folder &apos;{0}&apos; cannot be written to. Please check the access rights and the disk space.</translation>
    </message>
    <message>
        <source>Die Datensicherung braucht einen anderen Namen als die Datenbank.</source>
        <translation>The backup needs a different name from the database.</translation>
    </message>
    <message>
        <source>Die Kopie kann nicht gelesen werden.</source>
        <translation>The copy cannot be read.</translation>
    </message>
    <message>
        <source>Die Kopie ist beschädigt: {0}</source>
        <translation>The copy is damaged: {0}</translation>
    </message>
    <message>
        <source>Die automatische Datensicherung konnte nicht erstellt werden:
{0}</source>
        <translation>The automatic backup could not be made:
{0}</translation>
    </message>
    <message>
        <source>Die Datensicherung &apos;{0}&apos; enthält:
{1}.

Möchten Sie diese Datensicherung laden?</source>
        <translation>The backup &apos;{0}&apos; contains:
{1}.

Do you want to restore this backup?</translation>
    </message>
    <message>
        <source>Datei vom {0} {1}</source>
        <translation>file of {0} {1}</translation>
    </message>
    <message>
        <source>{0}, der letzte vom {1}, {2}</source>
        <translation>{0}, the last of {1}, {2}</translation>
    </message>
    <message>
        <source>{0}, {1}</source>
        <translation>{0}, {1}</translation>
    </message>
    <message>
        <source>Kontoauszug eingelesen</source>
        <translation>Statement imported</translation>
    </message>
    <message>
        <source>Umsätze trotzdem übernommen</source>
        <translation>Transactions imported anyway</translation>
    </message>
    <message>
        <source>{0} gelöscht</source>
        <translation>{0} deleted</translation>
    </message>
    <message>
        <source>Konto &apos;{0}&apos; umbenannt</source>
        <translation>Account &apos;{0}&apos; renamed</translation>
    </message>
    <message>
        <source>Der Name der Kategorie darf nicht leer sein!</source>
        <translation>The name of the category must not be empty!</translation>
    </message>
    <message>
        <source>Kategorie &apos;{0}&apos; umbenannt</source>
        <translation>Category &apos;{0}&apos; renamed</translation>
    </message>
    <message>
        <source>Die Hauptkategorie &apos;{0}&apos; existiert bereits!</source>
        <translation>The main category &apos;{0}&apos; already exists!</translation>
    </message>
    <message>
        <source>Hauptkategorie &apos;{0}&apos; umbenannt</source>
        <translation>Main category &apos;{0}&apos; renamed</translation>
    </message>
    <message>
        <source>Kontogruppe &apos;{0}&apos; umbenannt</source>
        <translation>Account group &apos;{0}&apos; renamed</translation>
    </message>
    <message>
        <source>Es gibt nichts, wohin die Buchungen gehen könnten.</source>
        <translation>There is nowhere the entries could be moved to.</translation>
    </message>
    <message>
        <source>Die Kategorie &apos;{0}&apos;</source>
        <translation>The category &apos;{0}&apos;</translation>
    </message>
    <message>
        <source>Nur die Kategorie löschen</source>
        <translation>Delete the category only</translation>
    </message>
    <message>
        <source>Die Hauptkategorie &apos;{0}&apos;</source>
        <translation>The main category &apos;{0}&apos;</translation>
    </message>
    <message>
        <source>Die Hauptkategorie &apos;{0}&apos; mit {1} Unterkategorien</source>
        <translation>The main category &apos;{0}&apos; with {1} subcategories</translation>
    </message>
    <message>
        <source>Nur die Kategorien löschen</source>
        <translation>Delete the categories only</translation>
    </message>
    <message>
        <source>Kategorie löschen</source>
        <translation>Delete category</translation>
    </message>
    <message>
        <source>{0} wird von keiner Buchung verwendet.
Möchten Sie sie löschen?</source>
        <translation>{0} is not used by any entry.
Do you want to delete it?</translation>
    </message>
    <message>
        <source>{0} wird von {1} verwendet.
Ohne Verschieben behalten die Buchungen ihre alte Kategorie und bleiben überall sichtbar.</source>
        <translation>{0} is used by {1}.
Unless they are moved, the entries keep their old category and stay visible everywhere.</translation>
    </message>
    <message>
        <source>Buchungen verschieben und löschen</source>
        <translation>Move the entries and delete</translation>
    </message>
    <message>
        <source>Neue Kategorie für {0}:</source>
        <translation>New category for {0}:</translation>
    </message>
    <message>
        <source>Kategorie &apos;{0}&apos; gelöscht</source>
        <translation>Category &apos;{0}&apos; deleted</translation>
    </message>
    <message>
        <source>{0} Kategorien gelöscht</source>
        <translation>{0} categories deleted</translation>
    </message>
    <message>
        <source>Kategorie, in der &apos;{0}&apos; aufgehen soll:</source>
        <translation>Category to merge &apos;{0}&apos; into:</translation>
    </message>
    <message>
        <source>Kategorien zusammenführen</source>
        <translation>Merge categories</translation>
    </message>
    <message>
        <source>Die Kategorie &apos;{0}&apos; gibt es nicht.</source>
        <translation>There is no category &apos;{0}&apos;.</translation>
    </message>
    <message>
        <source>{0} von &apos;{1}&apos; nach &apos;{2}&apos; verschieben?</source>
        <translation>Move {0} from &apos;{1}&apos; to &apos;{2}&apos;?</translation>
    </message>
    <message>
        <source>{0} von &apos;{1}&apos; nach &apos;{2}&apos; verschieben und die Kategorie &apos;{1}&apos; löschen?</source>
        <translation>Move {0} from &apos;{1}&apos; to &apos;{2}&apos; and delete the category &apos;{1}&apos;?</translation>
    </message>
    <message>
        <source>Kategorie &apos;{0}&apos; mit &apos;{1}&apos; zusammengeführt</source>
        <translation>Category &apos;{0}&apos; merged into &apos;{1}&apos;</translation>
    </message>
    <message>
        <source>Hauptkategorie, in der &apos;{0}&apos; aufgehen soll:</source>
        <translation>Main category to merge &apos;{0}&apos; into:</translation>
    </message>
    <message>
        <source>Die Hauptkategorie &apos;{0}&apos; gibt es nicht.</source>
        <translation>There is no main category &apos;{0}&apos;.</translation>
    </message>
    <message>
        <source>Hauptkategorie &apos;{0}&apos; mit &apos;{1}&apos; zusammengeführt</source>
        <translation>Main category &apos;{0}&apos; merged into &apos;{1}&apos;</translation>
    </message>
    <message>
        <source>Konto löschen</source>
        <translation>Delete account</translation>
    </message>
    <message>
        <source>Das letzte Konto kann nicht gelöscht werden: Jede Buchung braucht ein Konto.</source>
        <translation>The last account cannot be deleted: every entry needs an account.</translation>
    </message>
    <message>
        <source>Das Konto &apos;{0}&apos; wird von keiner Buchung verwendet.
Möchten Sie es löschen?</source>
        <translation>The account &apos;{0}&apos; is not used by any entry.
Do you want to delete it?</translation>
    </message>
    <message>
        <source>Das Konto &apos;{0}&apos; wird von {1} verwendet.
Ohne Verschieben behalten die Buchungen ihr altes Konto und bleiben überall sichtbar.</source>
        <translation>The account &apos;{0}&apos; is used by {1}.
Unless they are moved, the entries keep their old account and stay visible everywhere.</translation>
    </message>
    <message>
        <source>Nur das Konto löschen</source>
        <translation>Delete the account only</translation>
    </message>
    <message>
        <source>Neues Konto für {0}:</source>
        <translation>New account for {0}:</translation>
    </message>
    <message>
        <source>Konto &apos;{0}&apos; gelöscht</source>
        <translation>Account &apos;{0}&apos; deleted</translation>
    </message>
    <message>
        <source>Konto, in dem &apos;{0}&apos; aufgehen soll:</source>
        <translation>Account to merge &apos;{0}&apos; into:</translation>
    </message>
    <message>
        <source>Konten zusammenführen</source>
        <translation>Merge accounts</translation>
    </message>
    <message>
        <source>Das Konto &apos;{0}&apos; gibt es nicht.</source>
        <translation>There is no account &apos;{0}&apos;.</translation>
    </message>
    <message>
        <source>{0} von &apos;{1}&apos; nach &apos;{2}&apos; verschieben und das Konto &apos;{1}&apos; löschen?
Die Startguthaben werden addiert, die Bankkontonummern gehen mit.</source>
        <translation>Move {0} from &apos;{1}&apos; to &apos;{2}&apos; and delete the account &apos;{1}&apos;?
The opening balances are added up, and the bank account numbers move along.</translation>
    </message>
    <message>
        <source>Konto &apos;{0}&apos; mit &apos;{1}&apos; zusammengeführt</source>
        <translation>Account &apos;{0}&apos; merged into &apos;{1}&apos;</translation>
    </message>
    <message>
        <source>Neue Datenbank</source>
        <translation>New database</translation>
    </message>
    <message>
        <source>Legt eine neue, leere Datenbank an und wechselt zu ihr.</source>
        <translation>Creates a new, empty database and switches to it.</translation>
    </message>
    <message>
        <source>Datenbank wechseln</source>
        <translation>Switch database</translation>
    </message>
    <message>
        <source>Öffnet eine andere Datenbank.</source>
        <translation>Opens another database.</translation>
    </message>
    <message>
        <source>Datensicherung erstellen</source>
        <translation>Make backup</translation>
    </message>
    <message>
        <source>Kopiert die Datenbank in eine Sicherungsdatei.</source>
        <translation>Copies the database to a backup file.</translation>
    </message>
    <message>
        <source>Ersetzt die Datenbank durch den Stand einer Sicherungsdatei.</source>
        <translation>Replaces the database with the contents of a backup file.</translation>
    </message>
    <message>
        <source>Daten exportieren</source>
        <translation>Export data</translation>
    </message>
    <message>
        <source>Schreibt die gezeigten Einträge als CSV-, Excel-, HTML- oder QIF-Datei.</source>
        <translation>Writes the entries shown to a CSV, Excel, HTML or QIF file.</translation>
    </message>
    <message>
        <source>Drucken</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Seitenansicht</source>
        <translation>Print preview</translation>
    </message>
    <message>
        <source>Nimmt die letzte Änderung zurück.</source>
        <translation>Undoes the last change.</translation>
    </message>
    <message>
        <source>Führt die zurückgenommene Änderung wieder aus.</source>
        <translation>Makes the undone change again.</translation>
    </message>
    <message>
        <source>Gibt einem Vorkommen einer Serie einen anderen Betrag.</source>
        <translation>Gives one occurrence of a series a different amount.</translation>
    </message>
    <message>
        <source>Setzt den Betrag eines Vorkommens einer Serie auf null.</source>
        <translation>Sets the amount of one occurrence of a series to zero.</translation>
    </message>
    <message>
        <source>Legt fest, mit welchem Betrag ein Konto beginnt.</source>
        <translation>Sets the amount an account starts with.</translation>
    </message>
    <message>
        <source>Suchen</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Sucht Einträge nach Text, Betrag, Zeitraum und mehr.</source>
        <translation>Searches entries by text, amount, period and more.</translation>
    </message>
    <message>
        <source>Verwaltet Kategorien und Konten.</source>
        <translation>Manages categories and accounts.</translation>
    </message>
    <message>
        <source>Setzt, ändert oder entfernt das Passwort dieser Datenbank.</source>
        <translation>Sets, changes or removes the password of this database.</translation>
    </message>
    <message>
        <source>Ländereinstellungen</source>
        <translation>Regional settings</translation>
    </message>
    <message>
        <source>Wählt Sprache, Zahlenformat und Währung.</source>
        <translation>Chooses language, number format and currency.</translation>
    </message>
    <message>
        <source>Ein Betrag ist keine Zahl.</source>
        <translation>One amount is not a number.</translation>
    </message>
    <message>
        <source>Die Summe stimmt.</source>
        <translation>The amounts add up.</translation>
    </message>
    <message>
        <source>Rest: {0}</source>
        <translation>Remainder: {0}</translation>
    </message>
    <message>
        <source>1 Buchung</source>
        <translation>1 entry</translation>
    </message>
    <message numerus="yes">
        <source>{0} Buchungen</source>
        <translation>
            <numerusform>{0} entry</numerusform>
            <numerusform>{0} entries</numerusform>
        </translation>
    </message>
    <message>
        <source>(leere Kategorie)</source>
        <translation>(empty category)</translation>
    </message>
    <message>
        <source>An der Kategorie &apos;{0}&apos; erkennt das Programm die Startguthaben der Konten.
Sie kann deshalb weder umbenannt noch gelöscht werden.</source>
        <translation>The program recognises the opening balances of the accounts by the category &apos;{0}&apos;.
It can therefore be neither renamed nor deleted.</translation>
    </message>
    <message>
        <source>Nur diesen Zeitraum</source>
        <translation>This period only</translation>
    </message>
    <message>
        <source>Ab hier</source>
        <translation>From here on</translation>
    </message>
    <message>
        <source>Ganze Serie</source>
        <translation>Whole series</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; vom {1} gehört zu einer Serie ({2} seit {3}).
Was möchten Sie ändern?</source>
        <translation>&apos;{0}&apos; of {1} belongs to a series ({2} since {3}).
What do you want to change?</translation>
    </message>
    <message>
        <source>Serie bearbeiten</source>
        <translation>Edit series</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; vom {1} bis {2}</source>
        <translation>&apos;{0}&apos; from {1} to {2}</translation>
    </message>
    <message>
        <source>Betrag von &apos;{0}&apos; korrigiert</source>
        <translation>Amount of &apos;{0}&apos; corrected</translation>
    </message>
    <message>
        <source>Ausgelassen</source>
        <translation>Skipped</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; einmal ausgelassen</source>
        <translation>&apos;{0}&apos; skipped once</translation>
    </message>
    <message>
        <source>Korrektur von &apos;{0}&apos; entfernt</source>
        <translation>Correction of &apos;{0}&apos; removed</translation>
    </message>
    <message>
        <source>CSV-Datei</source>
        <translation>CSV file</translation>
    </message>
    <message>
        <source>Excel-Datei</source>
        <translation>Excel file</translation>
    </message>
    <message>
        <source>HTML-Datei</source>
        <translation>HTML file</translation>
    </message>
    <message>
        <source>QIF-Datei</source>
        <translation>QIF file</translation>
    </message>
    <message>
        <source>Alle Dateien</source>
        <translation>All files</translation>
    </message>
    <message>
        <source>Zielkonto</source>
        <translation>Target account</translation>
    </message>
    <message>
        <source>Einnahmen</source>
        <translation>Income</translation>
    </message>
    <message>
        <source>Ausgaben</source>
        <translation>Expenses</translation>
    </message>
    <message>
        <source>ausgeblendet</source>
        <translation>hidden</translation>
    </message>
    <message>
        <source>nicht angelegt</source>
        <translation>not set up</translation>
    </message>
    <message>
        <source>(ohne Unterkategorie)</source>
        <translation>(no subcategory)</translation>
    </message>
    <message>
        <source>geschlossen</source>
        <translation>closed</translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; ist gerade geöffnet. Bitte wählen Sie einen anderen Namen.</source>
        <translation>The database &apos;{0}&apos; is currently open. Please choose another name.</translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; ist bereits geöffnet.</source>
        <translation>The database &apos;{0}&apos; is already open.</translation>
    </message>
    <message>
        <source>Andere Datei wählen …</source>
        <translation>Choose another file…</translation>
    </message>
    <message>
        <source>&amp;Datenbank, die geöffnet wird:</source>
        <translation>&amp;Database to open:</translation>
    </message>
    <message>
        <source>Die Datensicherung konnte nicht erstellt werden:
{0}</source>
        <translation>The backup could not be made:
{0}</translation>
    </message>
    <message>
        <source>Die Datensicherung &apos;{0}&apos; wurde erstellt und geprüft. Sie enthält:
{1}.</source>
        <translation>The backup &apos;{0}&apos; has been made and checked. It contains:
{1}.</translation>
    </message>
    <message>
        <source>Die Datensicherung wurde geladen. Die bisherige Datenbank wurde als &apos;{0}&apos; aufgehoben.</source>
        <translation>The backup has been restored. The previous database has been kept as &apos;{0}&apos;.</translation>
    </message>
    <message>
        <source>Die Datensicherung &apos;{0}&apos; enthält:
{1}.

Die geöffnete Datenbank &apos;{2}&apos; enthält:
{3}.

Möchten Sie die geöffnete Datenbank durch die Datensicherung ersetzen? Die bisherige Datei bleibt unter anderem Namen erhalten.</source>
        <translation>The backup &apos;{0}&apos; contains:
{1}.

The open database &apos;{2}&apos; contains:
{3}.

Do you want to replace the open database with the backup? The previous file will be kept under another name.</translation>
    </message>
    <message>
        <source>Serie ab {0} bearbeiten</source>
        <translation>Edit series from {0}</translation>
    </message>
    <message>
        <source>Betrag ({0}):</source>
        <translation>Amount ({0}):</translation>
    </message>
    <message>
        <source>Bisher wurde noch kein Startguthaben festgelegt:</source>
        <translation>No opening balance has been set so far:</translation>
    </message>
    <message>
        <source>Bisheriges Startguthaben: {0} am {1}</source>
        <translation>Current opening balance: {0} on {1}</translation>
    </message>
    <message>
        <source>ohne Ende</source>
        <translation>no end</translation>
    </message>
    <message numerus="yes">
        <source>{0} Mal</source>
        <translation>
            <numerusform>{0} time</numerusform>
            <numerusform>{0} times</numerusform>
        </translation>
    </message>
    <message>
        <source>{0}, nächste Termine: {1}</source>
        <translation>{0}, next dates: {1}</translation>
    </message>
    <message>
        <source>Deutschland</source>
        <translation>Germany</translation>
    </message>
    <message>
        <source>Österreich</source>
        <translation>Austria</translation>
    </message>
    <message>
        <source>Schweiz</source>
        <translation>Switzerland</translation>
    </message>
    <message>
        <source>Luxemburg</source>
        <translation>Luxembourg</translation>
    </message>
    <message>
        <source>Großbritannien</source>
        <translation>United Kingdom</translation>
    </message>
    <message>
        <source>Irland</source>
        <translation>Ireland</translation>
    </message>
    <message>
        <source>Vereinigte Staaten</source>
        <translation>United States</translation>
    </message>
    <message>
        <source>wie im Zahlenformat</source>
        <translation>as in the number format</translation>
    </message>
    <message>
        <source>Euro</source>
        <translation>Euro</translation>
    </message>
    <message>
        <source>Schweizer Franken</source>
        <translation>Swiss franc</translation>
    </message>
    <message>
        <source>Britisches Pfund</source>
        <translation>Pound sterling</translation>
    </message>
    <message>
        <source>US-Dollar</source>
        <translation>US dollar</translation>
    </message>
    <message>
        <source>Dänische Krone</source>
        <translation>Danish krone</translation>
    </message>
    <message>
        <source>Polnischer Złoty</source>
        <translation>Polish złoty</translation>
    </message>
    <message>
        <source>Tschechische Krone</source>
        <translation>Czech koruna</translation>
    </message>
    <message>
        <source>Ungarischer Forint</source>
        <translation>Hungarian forint</translation>
    </message>
    <message>
        <source>Indonesische Rupiah</source>
        <translation>Indonesian rupiah</translation>
    </message>
    <message>
        <source>Die Einstellungen konnten nicht gespeichert werden.</source>
        <translation>The settings could not be saved.</translation>
    </message>
    <message>
        <source>Das Passwort wurde geändert.</source>
        <translation>The password has been changed.</translation>
    </message>
    <message>
        <source>Das Passwort wurde gesetzt. Es wird beim nächsten Öffnen der Datenbank abgefragt.</source>
        <translation>The password has been set. It will be asked for the next time the database is opened.</translation>
    </message>
    <message>
        <source>Das Passwort wurde entfernt. Frühere Datensicherungen behalten ihr Passwort.</source>
        <translation>The password has been removed. Earlier backups keep their password.</translation>
    </message>
    <message>
        <source>Bitte geben Sie ein neues Passwort ein.</source>
        <translation>Please enter a new password.</translation>
    </message>
    <message>
        <source>Die beiden neuen Passwörter stimmen nicht überein.</source>
        <translation>The two new passwords do not match.</translation>
    </message>
    <message>
        <source>Das Passwort konnte nicht gespeichert werden.</source>
        <translation>The password could not be saved.</translation>
    </message>
    <message>
        <source>Startguthaben von &apos;{0}&apos; festgelegt</source>
        <translation>Opening balance of &apos;{0}&apos; set</translation>
    </message>
    <message>
        <source>zuletzt</source>
        <translation>recent</translation>
    </message>
    <message>
        <source>Kalender (F4)</source>
        <translation>Calendar (F4)</translation>
    </message>
    <message>
        <source>Kalender</source>
        <translation>Calendar</translation>
    </message>
    <message>
        <source>Die Liste enthält keine Einträge, die exportiert werden könnten.</source>
        <translation>The list contains no entries to export.</translation>
    </message>
    <message>
        <source>Am Ende des Dateinamens &apos;{0}&apos; ist nicht zu erkennen, in welchem Format exportiert werden soll.
Möglich sind: {1}.</source>
        <translation>The end of the file name &apos;{0}&apos; does not tell which format to export to.
Possible endings: {1}.</translation>
    </message>
    <message>
        <source>1 Eintrag wurde nach &apos;{0}&apos; exportiert.</source>
        <translation>1 entry has been exported to &apos;{0}&apos;.</translation>
    </message>
    <message>
        <source>{0} Einträge wurden nach &apos;{1}&apos; exportiert.</source>
        <translation>{0} entries have been exported to &apos;{1}&apos;.</translation>
    </message>
    <message>
        <source>Die Datei &apos;{0}&apos; konnte nicht geschrieben werden: {1}
Was dort schon stand, ist unverändert.</source>
        <translation>The file &apos;{0}&apos; could not be written: {1}
What was already there is unchanged.</translation>
    </message>
    <message>
        <source>Einträge</source>
        <translation>Entries</translation>
    </message>
    <message>
        <source>Eine Excel-Datei fasst höchstens {0} Zeilen.</source>
        <translation>An Excel file holds at most {0} rows.</translation>
    </message>
    <message>
        <source>Seite {0} von {1}</source>
        <translation>Page {0} of {1}</translation>
    </message>
    <message>
        <source>{0} bis {1}</source>
        <translation>{0} to {1}</translation>
    </message>
    <message>
        <source>einmalige</source>
        <translation>one-off</translation>
    </message>
    <message>
        <source>zukünftige</source>
        <translation>future</translation>
    </message>
    <message>
        <source>Einträge: {0}</source>
        <translation>Entries: {0}</translation>
    </message>
    <message>
        <source>Zeitraum: {0}</source>
        <translation>Period: {0}</translation>
    </message>
    <message>
        <source>Konto: {0}</source>
        <translation>Account: {0}</translation>
    </message>
    <message>
        <source>Buchungsart: {0}</source>
        <translation>Entry type: {0}</translation>
    </message>
    <message>
        <source>Filter: {0}</source>
        <translation>Filter: {0}</translation>
    </message>
    <message>
        <source>Gruppierung: {0}</source>
        <translation>Grouping: {0}</translation>
    </message>
    <message>
        <source>Ausgeblendet: {0}</source>
        <translation>Hidden: {0}</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ({1} seit {2})</source>
        <translation>&apos;{0}&apos; ({1} since {2})</translation>
    </message>
    <message>
        <source>Möchten Sie den Eintrag {0} löschen?</source>
        <translation>Do you want to delete the entry {0}?</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; vom {1} über {2}</source>
        <translation>&apos;{0}&apos; of {1} for {2}</translation>
    </message>
    <message>
        <source>Möchten Sie die {0} ausgewählten Einträge löschen?</source>
        <translation>Do you want to delete the {0} selected entries?</translation>
    </message>
    <message>
        <source>Damit verschwinden alle Vorkommen dieser Serien, vergangene wie zukünftige, mit ihren Korrekturen:</source>
        <translation>This removes all occurrences of these series, past and future, together with their corrections:</translation>
    </message>
    <message>
        <source>Er gehört zu einem aufgeteilten Eintrag. Weitere Teile: {0}</source>
        <translation>It belongs to a split entry. Further parts: {0}</translation>
    </message>
    <message>
        <source>Darunter sind Teile aufgeteilter Einträge. Weitere Teile: {0}</source>
        <translation>Among them are parts of split entries. Further parts: {0}</translation>
    </message>
    <message>
        <source>Nur diesen Teil löschen</source>
        <translation>Delete this part only</translation>
    </message>
    <message>
        <source>Nur die ausgewählten löschen</source>
        <translation>Delete the selected ones only</translation>
    </message>
    <message>
        <source>Alle Teile löschen</source>
        <translation>Delete all parts</translation>
    </message>
    <message>
        <source>Eintrag gelöscht</source>
        <translation>Entry deleted</translation>
    </message>
    <message>
        <source>{0} Einträge gelöscht</source>
        <translation>{0} entries deleted</translation>
    </message>
    <message>
        <source>Eine Umbuchung kann nicht aufgeteilt werden.</source>
        <translation>A transfer cannot be split.</translation>
    </message>
    <message>
        <source>Ein Eintrag mit manuellen Korrekturen kann nicht aufgeteilt werden.</source>
        <translation>An entry with manual corrections cannot be split.</translation>
    </message>
    <message>
        <source>Teile mit manuellen Korrekturen können nicht zusammengefasst werden.</source>
        <translation>Parts with manual corrections cannot be combined.</translation>
    </message>
    <message>
        <source>Möchten Sie die Aufteilung aufheben?
Aus {0} Teilen wird ein Eintrag mit Kategorie und Beschreibung des ersten Teils.</source>
        <translation>Do you want to undo the split?
{0} parts become one entry with the category and description of the first part.</translation>
    </message>
    <message>
        <source>Bitte erst neue Kategorien anlegen und diese Buchung einordnen!</source>
        <translation>Please create new categories first and assign this entry to one!</translation>
    </message>
    <message>
        <source>Bitte erst eine Kategorie wählen!</source>
        <translation>Please choose a category first!</translation>
    </message>
    <message>
        <source>Bitte erst eine Buchungsart wählen!</source>
        <translation>Please choose an entry type first!</translation>
    </message>
    <message>
        <source>Bitte erst neue Konten anlegen und diese Buchung einordnen!</source>
        <translation>Please create new accounts first and assign this entry to one!</translation>
    </message>
    <message>
        <source>Bitte erst ein Konto wählen!</source>
        <translation>Please choose an account first!</translation>
    </message>
    <message>
        <source>Die Teile ergeben nicht den ganzen Betrag. Es bleibt ein Rest von {0}.</source>
        <translation>The parts do not add up to the whole amount. A remainder of {0} is left.</translation>
    </message>
    <message>
        <source>Eintrag konnte nicht erstellt werden!</source>
        <translation>The entry could not be created!</translation>
    </message>
    <message>
        <source>Eintrag &apos;{0}&apos; angelegt</source>
        <translation>Entry &apos;{0}&apos; created</translation>
    </message>
    <message>
        <source>Eintrag &apos;{0}&apos; geändert</source>
        <translation>Entry &apos;{0}&apos; changed</translation>
    </message>
    <message>
        <source>Teilbeträge</source>
        <translation>Part amounts</translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; ist in Benutzung: {1}.</source>
        <translation>The database &apos;{0}&apos; is in use: {1}.</translation>
    </message>
    <message>
        <source>Die Datensicherung konnte nicht geladen werden:
{0}</source>
        <translation>The backup could not be restored:
{0}</translation>
    </message>
    <message>
        <source>Auch die bisherige Datenbank &apos;{0}&apos; kann nicht mehr geöffnet werden. Die Software wird jetzt beendet.</source>
        <translation>The previous database &apos;{0}&apos; can no longer be opened either. The program will now close.</translation>
    </message>
    <message>
        <source>&amp;Sprache:</source>
        <translation>&amp;Language:</translation>
    </message>
    <message>
        <source>&amp;Währung:</source>
        <translation>&amp;Currency:</translation>
    </message>
    <message>
        <source>Betrag:</source>
        <translation>Amount:</translation>
    </message>
    <message>
        <source>Negativer Betrag:</source>
        <translation>Negative amount:</translation>
    </message>
    <message>
        <source>Datum:</source>
        <translation>Date:</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Passwort an&amp;zeigen</source>
        <translation>&amp;Show password</translation>
    </message>
    <message>
        <source>Passwörter an&amp;zeigen</source>
        <translation>&amp;Show passwords</translation>
    </message>
    <message>
        <source>Passwort vergessen? Eine Datensicherung ohne Passwort lässt sich mit &quot;kontorelle-cli restore&quot; laden; &quot;kontorelle-cli password --remove&quot; entfernt das Passwort dieser Datenbank. Die Datei selbst ist nicht verschlüsselt.</source>
        <translation>Forgotten the password? A backup without a password can be restored with &quot;kontorelle-cli restore&quot;; &quot;kontorelle-cli password --remove&quot; removes the password of this database. The file itself is not encrypted.</translation>
    </message>
    <message>
        <source>Kontorelle fragt nach dem Passwort, bevor es die Daten zeigt. Das hält neugierige Blicke fern, mehr nicht: Die Datei selbst ist nicht verschlüsselt. Wer sie kopieren kann, kann sie mit anderen Programmen lesen.</source>
        <translation>Kontorelle asks for the password before it shows the data. That keeps prying eyes away, but no more: the file itself is not encrypted. Anyone who can copy it can read it with other programs.</translation>
    </message>
    <message>
        <source>&amp;Bisheriges Passwort:</source>
        <translation>&amp;Current password:</translation>
    </message>
    <message>
        <source>&amp;Neues Passwort:</source>
        <translation>&amp;New password:</translation>
    </message>
    <message>
        <source>Neues Passwort &amp;wiederholen:</source>
        <translation>&amp;Repeat new password:</translation>
    </message>
    <message>
        <source>Passwort &amp;entfernen</source>
        <translation>Re&amp;move password</translation>
    </message>
    <message>
        <source>Passwort än&amp;dern</source>
        <translation>C&amp;hange password</translation>
    </message>
    <message>
        <source>Passwort &amp;setzen</source>
        <translation>Set &amp;password</translation>
    </message>
    <message>
        <source>Das Passwort ist nicht richtig. Der nächste Versuch ist in {0} s möglich.</source>
        <translation>The password is not correct. You can try again in {0} s.</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ist kein Betrag.</source>
        <translation>&apos;{0}&apos; is not an amount.</translation>
    </message>
    <message>
        <source>Kategorie &apos;{0}&apos; geändert</source>
        <translation>Category &apos;{0}&apos; changed</translation>
    </message>
    <message>
        <source>Eine Hauptkategorie ohne Unterkategorien muss direkt bebuchbar sein.</source>
        <translation>A main category without subcategories must accept entries itself.</translation>
    </message>
    <message>
        <source>Hauptkategorie &apos;{0}&apos; geändert</source>
        <translation>Main category &apos;{0}&apos; changed</translation>
    </message>
    <message>
        <source>Das letzte offene Konto kann nicht geschlossen werden: Jede Buchung braucht ein Konto.</source>
        <translation>The last open account cannot be closed: every entry needs an account.</translation>
    </message>
    <message>
        <source>Die Kontonummer {0} gehört bisher zum Konto &apos;{1}&apos;.
Soll sie künftig zu &apos;{2}&apos; gehören?</source>
        <translation>The account number {0} has belonged to the account &apos;{1}&apos; so far.
Should it belong to &apos;{2}&apos; from now on?</translation>
    </message>
    <message>
        <source>Konto &apos;{0}&apos; geändert</source>
        <translation>Account &apos;{0}&apos; changed</translation>
    </message>
    <message>
        <source>&amp;Rest einsetzen</source>
        <translation>&amp;Fill in remainder</translation>
    </message>
    <message>
        <source>&amp;Zeile entfernen</source>
        <translation>Re&amp;move row</translation>
    </message>
    <message>
        <source>Setzt den Rest in die gewählte Zeile ein</source>
        <translation>Adds the remainder to the selected row</translation>
    </message>
    <message>
        <source>Entfernt die gewählte Zeile (Entf)</source>
        <translation>Removes the selected row (Del)</translation>
    </message>
    <message>
        <source>&amp;Betrag:</source>
        <translation>A&amp;mount:</translation>
    </message>
    <message>
        <source>&amp;Kommentar:</source>
        <translation>&amp;Comment:</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>Korrektur &amp;entfernen</source>
        <translation>&amp;Remove correction</translation>
    </message>
    <message>
        <source>Im Zeitraum um diesen Tag gibt es keine Buchung der Serie.</source>
        <translation>The series has no entry in the period around this day.</translation>
    </message>
    <message>
        <source>Betrag, auch als Rechnung: &quot;12,50+3,99&quot;</source>
        <translation>amount, also as a calculation: &quot;12.50+3.99&quot;</translation>
    </message>
    <message>
        <source>Kategorie: &quot;Wohnung; Miete&quot;, oder &quot;Miete&quot;, wenn es nur eine gibt</source>
        <translation>category: &quot;Wohnung; Miete&quot;, or just &quot;Miete&quot; if there is only one</translation>
    </message>
    <message>
        <source>Zielkonto einer Umbuchung</source>
        <translation>target account of a transfer</translation>
    </message>
    <message>
        <source>Tag, bei Serien der erste: 2026-01-31, 31.1., gestern, +7</source>
        <translation>day, the first one of a series: 2026-01-31, 31.1., yesterday, +7</translation>
    </message>
    <message>
        <source>Einmalig, Monatlich, &quot;Alle 3 Monate&quot;, Jährlich ...</source>
        <translation>Einmalig (one-off), Monatlich (monthly), &quot;Alle 3 Monate&quot; (every 3 months), Jährlich (yearly) ...</translation>
    </message>
    <message>
        <source>letzter Tag einer Serie, oder &quot;ohne&quot;</source>
        <translation>last day of a series, or &quot;ohne&quot; (none)</translation>
    </message>
    <message>
        <source>Ein Zielkonto hat nur eine Umbuchung.</source>
        <translation>Only a transfer has a target account.</translation>
    </message>
    <message>
        <source>Ein Startguthaben legt der Befehl &quot;accounts start&quot; fest.</source>
        <translation>Use the command &quot;accounts start&quot; to set an opening balance.</translation>
    </message>
    <message>
        <source>Ein Teil einer aufgeteilten Buchung kann keine Umbuchung sein.</source>
        <translation>A part of a split entry cannot be a transfer.</translation>
    </message>
    <message>
        <source>Die Teile der aufgeteilten Buchung kämen zusammen unter null.</source>
        <translation>The parts of the split entry would add up to less than zero.</translation>
    </message>
    <message>
        <source>Ein Startguthaben hat nur einen Betrag und einen Tag.</source>
        <translation>An opening balance has only an amount and a day.</translation>
    </message>
    <message>
        <source>Bitte nennen Sie den Betrag mit --amount.</source>
        <translation>Please give the amount with --amount.</translation>
    </message>
    <message>
        <source>Einen letzten Tag hat nur eine Serie. Bitte nennen Sie auch --interval.</source>
        <translation>Only a series has a last day. Please give --interval as well.</translation>
    </message>
    <message>
        <source>Der letzte Tag liegt vor dem ersten ({0}).</source>
        <translation>The last day is before the first one ({0}).</translation>
    </message>
    <message>
        <source>Die geänderte Serie kann nicht vor dem {0} beginnen.</source>
        <translation>The changed series cannot begin before {0}.</translation>
    </message>
    <message>
        <source>Bitte nennen Sie das Zielkonto der Umbuchung mit --to-account.</source>
        <translation>Please give the target account of the transfer with --to-account.</translation>
    </message>
    <message>
        <source>Eine Umbuchung braucht zwei verschiedene Konten: --account und --to-account.</source>
        <translation>A transfer needs two different accounts: --account and --to-account.</translation>
    </message>
    <message>
        <source>Mit --yes wird trotzdem gespeichert.</source>
        <translation>Use --yes to save anyway.</translation>
    </message>
    <message>
        <source>Dazu dient die Option {0}.</source>
        <translation>Use the option {0} for this.</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ist keine Nummer. Die Nummern stehen in der Spalte ID.</source>
        <translation>&apos;{0}&apos; is not a number. The numbers are in the column ID.</translation>
    </message>
    <message>
        <source>Einen Eintrag mit der Nummer {0} gibt es nicht.</source>
        <translation>There is no entry with the number {0}.</translation>
    </message>
    <message>
        <source>Bitte nennen Sie den Tag des Vorkommens.</source>
        <translation>Please give the day of the occurrence.</translation>
    </message>
    <message>
        <source>Eintrag {0} ist keine Serie.</source>
        <translation>Entry {0} is not a series.</translation>
    </message>
    <message>
        <source>Die Serie {0} hat am {1} kein Vorkommen.</source>
        <translation>The series {0} has no occurrence on {1}.</translation>
    </message>
    <message>
        <source>Danach kommen: {0}.</source>
        <translation>The next ones are: {0}.</translation>
    </message>
    <message>
        <source>{0} Möglich sind: {1}.</source>
        <translation>{0} Possible values: {1}.</translation>
    </message>
    <message>
        <source>Die Buchungsart &apos;{0}&apos; gibt es nicht.</source>
        <translation>There is no entry type &apos;{0}&apos;.</translation>
    </message>
    <message>
        <source>Das Intervall &apos;{0}&apos; gibt es nicht.</source>
        <translation>There is no interval &apos;{0}&apos;.</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; kann mehrere Kategorien meinen: {1}.</source>
        <translation>&apos;{0}&apos; can mean several categories: {1}.</translation>
    </message>
    <message>
        <source>&quot;kontorelle-cli categories&quot; zeigt alle, &quot;categories add&quot; legt eine neue an.</source>
        <translation>&quot;kontorelle-cli categories&quot; shows all of them, &quot;categories add&quot; creates a new one.</translation>
    </message>
    <message>
        <source>Ähnlich sind: {0}.</source>
        <translation>Similar ones: {0}.</translation>
    </message>
    <message>
        <source>Den Zeitraum &apos;{0}&apos; gibt es nicht.</source>
        <translation>There is no period &apos;{0}&apos;.</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ist hier nicht möglich.</source>
        <translation>&apos;{0}&apos; is not possible here.</translation>
    </message>
    <message>
        <source>Am</source>
        <translation>As of</translation>
    </message>
    <message>
        <source>Bankkontonummern</source>
        <translation>Bank account numbers</translation>
    </message>
    <message>
        <source>Buchungen</source>
        <translation>Entries</translation>
    </message>
    <message>
        <source>Nach --entries steht yes oder no.</source>
        <translation>--entries must be followed by yes or no.</translation>
    </message>
    <message>
        <source>Mit --entries yes gehen die Buchungen mit, mit --entries no behalten sie den alten Kontonamen.</source>
        <translation>With --entries yes the entries move along, with --entries no they keep the old account name.</translation>
    </message>
    <message>
        <source>zeigt die Konten mit Kontostand, Startguthaben und Bankkontonummern</source>
        <translation>shows the accounts with balance, opening balance and bank account numbers</translation>
    </message>
    <message>
        <source>legt ein Konto an</source>
        <translation>creates an account</translation>
    </message>
    <message>
        <source>Kontogruppe; ohne Angabe die erste</source>
        <translation>account group; the first one unless told otherwise</translation>
    </message>
    <message>
        <source>benennt ein Konto um</source>
        <translation>renames an account</translation>
    </message>
    <message>
        <source>ob die Buchungen des Kontos mitgehen</source>
        <translation>whether the entries of the account move along</translation>
    </message>
    <message>
        <source>löscht ein Konto</source>
        <translation>deletes an account</translation>
    </message>
    <message>
        <source>Konto für die Einträge; ohne Angabe behalten sie das alte</source>
        <translation>account for the entries; if not given, they keep the old one</translation>
    </message>
    <message>
        <source>wirklich löschen</source>
        <translation>really delete</translation>
    </message>
    <message>
        <source>legt das Startguthaben eines Kontos fest</source>
        <translation>sets the opening balance of an account</translation>
    </message>
    <message>
        <source>Tag; ohne Angabe der bisherige, sonst heute</source>
        <translation>day; if not given, the current one, otherwise today</translation>
    </message>
    <message>
        <source>legt einen Eintrag an; was fehlt, kommt von der Kategorie und von früheren Einträgen, der Tag ist sonst heute</source>
        <translation>creates an entry; what is missing comes from the category and from earlier entries, and the day is today unless told otherwise</translation>
    </message>
    <message>
        <source>beschädigt oder keine gültige Datenbank</source>
        <translation>damaged or not a valid database</translation>
    </message>
    <message>
        <source>Die Datensicherung wurde geladen.</source>
        <translation>The backup has been restored.</translation>
    </message>
    <message>
        <source>Die Datei &apos;{0}&apos; gibt es schon. Mit --yes wird sie ersetzt.</source>
        <translation>The file &apos;{0}&apos; already exists. Use --yes to replace it.</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ist die Datenbank selbst.</source>
        <translation>&apos;{0}&apos; is the database itself.</translation>
    </message>
    <message>
        <source>Datensicherung  {0}</source>
        <translation>Backup    {0}</translation>
    </message>
    <message>
        <source>Datenbank       {0}</source>
        <translation>Database  {0}</translation>
    </message>
    <message>
        <source>Datenbank       {0}: gibt es noch nicht
</source>
        <translation>Database  {0}: does not exist yet
</translation>
    </message>
    <message>
        <source>Es wurde nichts geändert. Mit --yes tritt die Datensicherung an die Stelle der Datenbank, deren bisherige Datei unter anderem Namen erhalten bleibt.</source>
        <translation>Nothing has been changed. With --yes the backup takes the place of the database, whose previous file is kept under another name.</translation>
    </message>
    <message>
        <source>schreibt eine Datensicherung und prüft sie; ohne Angabe neben die Datenbank</source>
        <translation>writes a backup and checks it; next to the database unless told otherwise</translation>
    </message>
    <message>
        <source>eine vorhandene Datei ersetzen</source>
        <translation>replace an existing file</translation>
    </message>
    <message>
        <source>zeigt, was eine Datensicherung enthält, und lädt sie anstelle der Datenbank</source>
        <translation>shows what a backup contains, and restores it in place of the database</translation>
    </message>
    <message>
        <source>wirklich laden; die bisherige Datei bleibt unter anderem Namen</source>
        <translation>really restore; the previous file is kept under another name</translation>
    </message>
    <message>
        <source>Monatslimit</source>
        <translation>Monthly limit</translation>
    </message>
    <message>
        <source>Kategorie &apos;{0}&apos; angelegt</source>
        <translation>Category &apos;{0}&apos; created</translation>
    </message>
    <message>
        <source>Mit --yes wird zusammengeführt.</source>
        <translation>Use --yes to merge.</translation>
    </message>
    <message>
        <source>zeigt die Kategorien</source>
        <translation>shows the categories</translation>
    </message>
    <message>
        <source>legt eine Kategorie an: &quot;Wohnung&quot; oder &quot;Wohnung; Miete&quot;</source>
        <translation>creates a category: &quot;Wohnung&quot; or &quot;Wohnung; Miete&quot;</translation>
    </message>
    <message>
        <source>Buchungsart, die die Kategorie vorschlägt</source>
        <translation>entry type that the category suggests</translation>
    </message>
    <message>
        <source>Intervall, das sie vorschlägt</source>
        <translation>interval that it suggests</translation>
    </message>
    <message>
        <source>benennt eine Kategorie um, oder setzt sie unter eine andere Hauptkategorie; die Einträge gehen mit</source>
        <translation>renames a category, or moves it to another main category; the entries move along</translation>
    </message>
    <message>
        <source>lässt eine Kategorie mit ihren Einträgen in einer anderen aufgehen</source>
        <translation>merges a category and its entries into another one</translation>
    </message>
    <message>
        <source>löscht eine Kategorie, eine Hauptkategorie mit allen Unterkategorien</source>
        <translation>deletes a category, a main category with all its subcategories</translation>
    </message>
    <message>
        <source>Kategorie für die Einträge; ohne Angabe behalten sie die alte</source>
        <translation>category for the entries; if not given, they keep the old one</translation>
    </message>
    <message>
        <source>Bitte nennen Sie, was sich ändern soll, zum Beispiel --amount.</source>
        <translation>Please say what to change, for example --amount.</translation>
    </message>
    <message>
        <source>Bitte entweder --only oder --from angeben.</source>
        <translation>Please give either --only or --from.</translation>
    </message>
    <message>
        <source>Mit --only kann nur der Betrag geändert werden.</source>
        <translation>With --only you can change the amount only.</translation>
    </message>
    <message>
        <source>ändert an einem Eintrag, was die Optionen nennen; von einer Serie alles, ein Vorkommen oder alles ab einem Tag</source>
        <translation>changes what the options name in an entry; of a series everything, one occurrence, or everything from a day on</translation>
    </message>
    <message>
        <source>nur den Betrag des Vorkommens an diesem Tag</source>
        <translation>only the amount of the occurrence on this day</translation>
    </message>
    <message>
        <source>{0} statt {1}</source>
        <translation>{0} instead of {1}</translation>
    </message>
    <message>
        <source>Von</source>
        <translation>From</translation>
    </message>
    <message>
        <source>Bis</source>
        <translation>To</translation>
    </message>
    <message>
        <source>Kommentar</source>
        <translation>Comment</translation>
    </message>
    <message>
        <source>Das Vorkommen vom {0} ist nicht korrigiert.</source>
        <translation>The occurrence of {0} is not corrected.</translation>
    </message>
    <message>
        <source>das Vorkommen auslassen (Betrag 0)</source>
        <translation>skip the occurrence (amount 0)</translation>
    </message>
    <message>
        <source>die Korrektur entfernen</source>
        <translation>remove the correction</translation>
    </message>
    <message>
        <source>Kommentar zur Korrektur</source>
        <translation>comment on the correction</translation>
    </message>
    <message>
        <source>die Korrekturen zeigen</source>
        <translation>show the corrections</translation>
    </message>
    <message>
        <source>Mit --yes wird gelöscht, mit --yes --all-parts auch die anderen Teile.</source>
        <translation>Use --yes to delete, and --yes --all-parts to delete the other parts as well.</translation>
    </message>
    <message>
        <source>Mit --yes wird gelöscht.</source>
        <translation>Use --yes to delete.</translation>
    </message>
    <message>
        <source>alle Teile einer aufgeteilten Buchung, nicht nur diesen</source>
        <translation>all parts of a split entry, not just this one</translation>
    </message>
    <message>
        <source>Das Format &apos;{0}&apos; gibt es nicht. Möglich sind: {1}.</source>
        <translation>There is no format &apos;{0}&apos;. Possible values: {1}.</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ist die Datenbank selbst. Bitte einen anderen Namen angeben.</source>
        <translation>&apos;{0}&apos; is the database itself. Please give another name.</translation>
    </message>
    <message>
        <source>{0} nach &apos;{1}&apos; exportiert.</source>
        <translation>{0} exported to &apos;{1}&apos;.</translation>
    </message>
    <message>
        <source>schreibt die Einträge eines Zeitraums in eine Datei für andere Programme; ohne Angabe das aktuelle Jahr</source>
        <translation>writes the entries of a period to a file for other programs; the current year unless told otherwise</translation>
    </message>
    <message>
        <source>csv, xlsx, html oder qif; ohne Angabe entscheidet die Endung der Datei</source>
        <translation>csv, xlsx, html or qif; if not given, the extension of the file decides</translation>
    </message>
    <message>
        <source>Rückfragen mit Ja beantworten</source>
        <translation>answer questions with yes</translation>
    </message>
    <message>
        <source>Es wurde nichts geändert. {0}</source>
        <translation>Nothing has been changed. {0}</translation>
    </message>
    <message>
        <source>Mit --yes wird gelöscht; --move-to verschiebt vorher die Buchungen.</source>
        <translation>Use --yes to delete; --move-to moves the entries first.</translation>
    </message>
    <message>
        <source>Es wurde nichts geändert.</source>
        <translation>Nothing has been changed.</translation>
    </message>
    <message>
        <source>{0}: mit Passwort; &quot;password --remove&quot; entfernt es</source>
        <translation>{0}: with a password; &quot;password --remove&quot; removes it</translation>
    </message>
    <message>
        <source>{0}: ohne Passwort</source>
        <translation>{0}: without a password</translation>
    </message>
    <message>
        <source>Das Passwort konnte nicht entfernt werden.</source>
        <translation>The password could not be removed.</translation>
    </message>
    <message>
        <source>{0}: Das Passwort wurde entfernt.</source>
        <translation>{0}: The password has been removed.</translation>
    </message>
    <message>
        <source>sagt, ob die Datenbank ein Passwort hat, und entfernt ein vergessenes</source>
        <translation>tells whether the database has a password, and removes a forgotten one</translation>
    </message>
    <message>
        <source>das Passwort entfernen; die Datei ist nicht verschlüsselt</source>
        <translation>remove the password; the file is not encrypted</translation>
    </message>
    <message>
        <source>Bitte entweder --amount oder --min und --max angeben.</source>
        <translation>Please give either --amount or --min and --max.</translation>
    </message>
    <message>
        <source>Bitte nennen Sie ein Suchwort oder eine Option.</source>
        <translation>Please give a word to search for or an option.</translation>
    </message>
    <message>
        <source>sucht im ganzen Buch Einträge, die alle Wörter enthalten und zu allen Optionen passen</source>
        <translation>searches the whole book for entries that contain all words and match all options</translation>
    </message>
    <message>
        <source>genau dieser Betrag</source>
        <translation>exactly this amount</translation>
    </message>
    <message>
        <source>mindestens dieser Betrag</source>
        <translation>at least this amount</translation>
    </message>
    <message>
        <source>höchstens dieser Betrag</source>
        <translation>at most this amount</translation>
    </message>
    <message>
        <source>Zeitraum, zum Beispiel &quot;Letzter Monat&quot;</source>
        <translation>period, for example &quot;Letzter Monat&quot; (last month)</translation>
    </message>
    <message>
        <source>erster Tag</source>
        <translation>first day</translation>
    </message>
    <message>
        <source>diese Kategorie und ihre Unterkategorien</source>
        <translation>this category and its subcategories</translation>
    </message>
    <message>
        <source>nur Einträge, zu denen ein Umsatz der Bank gehört</source>
        <translation>only entries with a bank transaction</translation>
    </message>
    <message>
        <source>Die Einträge werden geschrieben …</source>
        <translation>Writing the entries…</translation>
    </message>
    <message>
        <source>Ordner für automatische Datensicherungen</source>
        <translation>Folder for automatic backups</translation>
    </message>
    <message>
        <source>In den Ordner &apos;{0}&apos; kann nicht geschrieben werden.</source>
        <translation>The folder &apos;{0}&apos; cannot be written to.</translation>
    </message>
    <message>
        <source>{0} Treffer</source>
        <translation>{0} found</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ist kein Betrag, die Suche lässt ihn außer Acht.</source>
        <translation>&apos;{0}&apos; is not an amount; the search ignores it.</translation>
    </message>
    <message>
        <source>Der Zeitraum endet, bevor er beginnt.</source>
        <translation>The period ends before it begins.</translation>
    </message>
    <message>
        <source>Von Serien erscheint jedes Vorkommen bis heute, spätere findet ein Zeitraum mit Ende.</source>
        <translation>Series are shown with every occurrence up to today; a period with an end finds later ones.</translation>
    </message>
    <message>
        <source>Geben Sie oben ein, wonach Sie suchen: ein Wort, einen Betrag, eine Kategorie …</source>
        <translation>Enter above what you are looking for: a word, an amount, a category…</translation>
    </message>
    <message>
        <source>Kein Eintrag passt zu allen Angaben. Weniger Wörter oder ein längerer Zeitraum finden mehr.</source>
        <translation>No entry matches everything you entered. Fewer words or a longer period will find more.</translation>
    </message>
    <message>
        <source>Konto &apos;{0}&apos; angelegt</source>
        <translation>Account &apos;{0}&apos; created</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; angelegt</source>
        <translation>&apos;{0}&apos; created</translation>
    </message>
    <message>
        <source>Name der neuen Unterkategorie von &apos;{0}&apos;:</source>
        <translation>Name of the new subcategory of &apos;{0}&apos;:</translation>
    </message>
    <message>
        <source>Neue Kategorie</source>
        <translation>New category</translation>
    </message>
    <message>
        <source>Name der neuen Hauptkategorie:</source>
        <translation>Name of the new main category:</translation>
    </message>
    <message>
        <source>Name des neuen Kontos:</source>
        <translation>Name of the new account:</translation>
    </message>
    <message>
        <source>Neues Konto</source>
        <translation>New account</translation>
    </message>
    <message>
        <source>Neuer Name für die Kontogruppe &apos;{0}&apos;:</source>
        <translation>New name for the account group &apos;{0}&apos;:</translation>
    </message>
    <message>
        <source>Kontogruppe umbenennen</source>
        <translation>Rename account group</translation>
    </message>
    <message>
        <source>Reihenfolge geändert</source>
        <translation>Order changed</translation>
    </message>
    <message>
        <source>{0}, davon {1} ohne Unterkategorie</source>
        <translation>{0}, {1} of them without a subcategory</translation>
    </message>
    <message>
        <source>Kontogruppe mit {0}.</source>
        <translation>Account group with {0}.</translation>
    </message>
    <message>
        <source>Diese Kategorie ist nicht angelegt, aber {0} stehen unter diesem Namen.
Sie können die Kategorie anlegen oder die Buchungen in eine andere verschieben.</source>
        <translation>This category is not set up, but the book has {0} under this name.
You can create the category or move the entries to another one.</translation>
    </message>
    <message>
        <source>Dieses Konto ist nicht angelegt, aber {0} stehen unter diesem Namen.
Sie können das Konto anlegen oder die Buchungen in ein anderes verschieben.</source>
        <translation>This account is not set up, but the book has {0} under this name.
You can create the account or move the entries to another one.</translation>
    </message>
    <message>
        <source>Noch ohne Konto: {0}</source>
        <translation>Not yet assigned to an account: {0}</translation>
    </message>
    <message>
        <source>&amp;Neue Datenbank</source>
        <translation>&amp;New database</translation>
    </message>
    <message>
        <source>Datenbank &amp;wechseln</source>
        <translation>&amp;Switch database</translation>
    </message>
    <message>
        <source>Dat&amp;ensicherung erstellen</source>
        <translation>&amp;Make backup</translation>
    </message>
    <message>
        <source>Datensicherung &amp;laden</source>
        <translation>&amp;Restore backup</translation>
    </message>
    <message>
        <source>&amp;Kontoauszug importieren</source>
        <translation>&amp;Import statement</translation>
    </message>
    <message>
        <source>Daten e&amp;xportieren</source>
        <translation>E&amp;xport data</translation>
    </message>
    <message>
        <source>&amp;Drucken</source>
        <translation>&amp;Print</translation>
    </message>
    <message>
        <source>&amp;Seitenansicht</source>
        <translation>Print pre&amp;view</translation>
    </message>
    <message>
        <source>&amp;Beenden</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>&amp;Rückgängig</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>&amp;Wiederholen</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>&amp;Neuer Eintrag</source>
        <translation>&amp;New entry</translation>
    </message>
    <message>
        <source>Eintrag &amp;bearbeiten</source>
        <translation>&amp;Edit entry</translation>
    </message>
    <message>
        <source>Eintrag &amp;löschen</source>
        <translation>&amp;Delete entry</translation>
    </message>
    <message>
        <source>Nur dieses M&amp;al auslassen</source>
        <translation>S&amp;kip this time only</translation>
    </message>
    <message>
        <source>&amp;Startguthaben festlegen</source>
        <translation>Set &amp;opening balance</translation>
    </message>
    <message>
        <source>S&amp;uchen</source>
        <translation>&amp;Search</translation>
    </message>
    <message>
        <source>&amp;Kontostand (aller Konten)</source>
        <translation>&amp;Balance (all accounts)</translation>
    </message>
    <message>
        <source>&amp;Einmalige-Buchungen</source>
        <translation>&amp;One-off entries</translation>
    </message>
    <message>
        <source>&amp;Fixe-Buchungen</source>
        <translation>&amp;Recurring entries</translation>
    </message>
    <message>
        <source>&amp;Zukünftige-Buchung</source>
        <translation>&amp;Future entries</translation>
    </message>
    <message>
        <source>&amp;Startguthaben</source>
        <translation>Opening bala&amp;nces</translation>
    </message>
    <message>
        <source>S&amp;palten modifizieren</source>
        <translation>&amp;Choose columns</translation>
    </message>
    <message>
        <source>Einstellungen zu&amp;rücksetzen</source>
        <translation>Reset &amp;settings</translation>
    </message>
    <message>
        <source>&amp;Kategorie/Konto bearbeiten</source>
        <translation>&amp;Edit categories/accounts</translation>
    </message>
    <message>
        <source>&amp;Taschenrechner</source>
        <translation>Calcula&amp;tor</translation>
    </message>
    <message>
        <source>&amp;Passwortschutz</source>
        <translation>&amp;Password protection</translation>
    </message>
    <message>
        <source>Wählt, wie viele Sicherungen das Programm selbst aufhebt und wo.</source>
        <translation>Chooses how many backups the program keeps by itself, and where.</translation>
    </message>
    <message>
        <source>&amp;Ländereinstellungen</source>
        <translation>Regi&amp;onal settings</translation>
    </message>
    <message>
        <source>Zeitraum: {0} ({1})</source>
        <translation>Period: {0} ({1})</translation>
    </message>
    <message>
        <source>wiederkehrende</source>
        <translation>recurring</translation>
    </message>
    <message>
        <source>In der Liste auch mit {0}</source>
        <translation>In the list also with {0}</translation>
    </message>
    <message>
        <source>&amp;Hinzufügen…</source>
        <translation>&amp;Add…</translation>
    </message>
    <message>
        <source>&amp;Ändern…</source>
        <translation>C&amp;hange…</translation>
    </message>
    <message>
        <source>Ent&amp;fernen</source>
        <translation>Re&amp;move</translation>
    </message>
    <message>
        <source>Korrekturen</source>
        <translation>Corrections</translation>
    </message>
    <message>
        <source>Korrektur</source>
        <translation>Correction</translation>
    </message>
    <message>
        <source>Zeitraum</source>
        <translation>Period</translation>
    </message>
    <message>
        <source>Die Korrektur gilt für den Zeitraum, in dem der Tag liegt.</source>
        <translation>The correction applies to the period that contains the day.</translation>
    </message>
    <message>
        <source>bitte wählen</source>
        <translation>please choose</translation>
    </message>
    <message>
        <source>endet a&amp;m</source>
        <translation>e&amp;nds on</translation>
    </message>
    <message>
        <source>B&amp;eschreibung:</source>
        <translation>D&amp;escription:</translation>
    </message>
    <message>
        <source>Taschenrechner starten (Strg+R)</source>
        <translation>Start calculator (Ctrl+R)</translation>
    </message>
    <message>
        <source>Auch eine Rechnung, etwa 12,50+3,99*2</source>
        <translation>Also a calculation, such as 12.50+3.99*2</translation>
    </message>
    <message>
        <source>Kontorelle, {0}</source>
        <translation>Kontorelle, {0}</translation>
    </message>
    <message>
        <source>{0} – Fortsetzung</source>
        <translation>{0} – continued</translation>
    </message>
    <message>
        <source>genau</source>
        <translation>exactly</translation>
    </message>
    <message>
        <source>mindestens</source>
        <translation>at least</translation>
    </message>
    <message>
        <source>höchstens</source>
        <translation>at most</translation>
    </message>
    <message>
        <source>zwischen</source>
        <translation>between</translation>
    </message>
    <message>
        <source>un&amp;d:</source>
        <translation>a&amp;nd:</translation>
    </message>
    <message>
        <source>Nur &amp;mit Bankumsatz</source>
        <translation>With ban&amp;k transaction only</translation>
    </message>
    <message>
        <source>Wörter, Teile von Wörtern, Betrag oder Datum</source>
        <translation>Words, parts of words, amount or date</translation>
    </message>
    <message>
        <source>&amp;Suchtext:</source>
        <translation>&amp;Search text:</translation>
    </message>
    <message>
        <source>Ka&amp;tegorie:</source>
        <translation>Catego&amp;ry:</translation>
    </message>
    <message>
        <source>Gesuchter Betrag</source>
        <translation>Amount to find</translation>
    </message>
    <message>
        <source>Größter gesuchter Betrag</source>
        <translation>Largest amount to find</translation>
    </message>
    <message>
        <source>Beliebig</source>
        <translation>Any</translation>
    </message>
    <message>
        <source>Alle Kategorien</source>
        <translation>All categories</translation>
    </message>
    <message>
        <source>(keine Vorgabe)</source>
        <translation>(no default)</translation>
    </message>
    <message>
        <source>&amp;Verwerfen</source>
        <translation>Disca&amp;rd</translation>
    </message>
    <message>
        <source>am</source>
        <translation>on</translation>
    </message>
    <message>
        <source>Tag des Startguthabens</source>
        <translation>Day of the opening balance</translation>
    </message>
    <message>
        <source>kein Limit</source>
        <translation>no limit</translation>
    </message>
    <message>
        <source>keines</source>
        <translation>none</translation>
    </message>
    <message>
        <source>IBAN oder Kontonummer, eine je Zeile</source>
        <translation>IBAN or account number, one per line</translation>
    </message>
    <message>
        <source>Nam&amp;e:</source>
        <translation>Nam&amp;e:</translation>
    </message>
    <message>
        <source>H&amp;auptkategorie:</source>
        <translation>Main categ&amp;ory:</translation>
    </message>
    <message>
        <source>&amp;Buchungsart:</source>
        <translation>Entr&amp;y type:</translation>
    </message>
    <message>
        <source>&amp;Monatslimit:</source>
        <translation>Mont&amp;hly limit:</translation>
    </message>
    <message>
        <source>Start&amp;guthaben:</source>
        <translation>&amp;Opening balance:</translation>
    </message>
    <message>
        <source>Kontonummern &amp;für Import:</source>
        <translation>Account numbers &amp;for import:</translation>
    </message>
    <message>
        <source>Beme&amp;rkung:</source>
        <translation>Remar&amp;k:</translation>
    </message>
    <message>
        <source>Änderungen werden auch beim Verlassen der Zeile gespeichert</source>
        <translation>Changes are also saved when you leave the row</translation>
    </message>
    <message>
        <source>Gru&amp;ppe:</source>
        <translation>Grou&amp;p:</translation>
    </message>
    <message>
        <source>&amp;Direkt bebuchbar, ohne Unterkategorie</source>
        <translation>Accepts entries itself, without a su&amp;bcategory</translation>
    </message>
    <message>
        <source>Offenes Konto, &amp;wird angeboten</source>
        <translation>Open account, a&amp;vailable for selection</translation>
    </message>
    <message>
        <source>In Aus&amp;wahllisten anbieten</source>
        <translation>A&amp;vailable in selection lists</translation>
    </message>
    <message>
        <source>Hier ist noch nichts angelegt.</source>
        <translation>Nothing has been set up here yet.</translation>
    </message>
    <message>
        <source>&amp;Anlegen</source>
        <translation>Cr&amp;eate</translation>
    </message>
    <message>
        <source>&amp;Buchungen verschieben…</source>
        <translation>Mo&amp;ve entries…</translation>
    </message>
    <message>
        <source>Gruppe umb&amp;enennen…</source>
        <translation>Rename gr&amp;oup…</translation>
    </message>
    <message>
        <source>Nach dem Speichern s&amp;chließen</source>
        <translation>Close after sa&amp;ving</translation>
    </message>
    <message>
        <source>Seiten</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Eintrag</source>
        <translation>Entry</translation>
    </message>
    <message>
        <source>Gerade gespeichert:</source>
        <translation>Just saved:</translation>
    </message>
    <message>
        <source>Nicht auf&amp;teilen</source>
        <translation>Do not s&amp;plit</translation>
    </message>
    <message>
        <source>Auf&amp;teilen</source>
        <translation>S&amp;plit</translation>
    </message>
    <message>
        <source>Korrekturen ({0})</source>
        <translation>Corrections ({0})</translation>
    </message>
    <message>
        <source>Kategorien und Konten</source>
        <translation>Categories and accounts</translation>
    </message>
    <message>
        <source>Kategorien</source>
        <translation>Categories</translation>
    </message>
    <message>
        <source>&amp;Neu…</source>
        <translation>&amp;New…</translation>
    </message>
    <message>
        <source>Neue &amp;Hauptkategorie…</source>
        <translation>New &amp;main category…</translation>
    </message>
    <message>
        <source>Umbenennen</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>&amp;Zusammenführen…</source>
        <translation>Mer&amp;ge…</translation>
    </message>
    <message>
        <source>&amp;Löschen…</source>
        <translation>&amp;Delete…</translation>
    </message>
    <message>
        <source>Nach &amp;oben</source>
        <translation>Move &amp;up</translation>
    </message>
    <message>
        <source>Nach &amp;unten</source>
        <translation>Move do&amp;wn</translation>
    </message>
    <message>
        <source>&amp;Kategorien</source>
        <translation>C&amp;ategories</translation>
    </message>
    <message>
        <source>Kon&amp;ten</source>
        <translation>Accoun&amp;ts</translation>
    </message>
    <message>
        <source>S&amp;chließen</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Automatische Datensicherung</source>
        <translation>Automatic backup</translation>
    </message>
    <message>
        <source>Vorhandene Sicherungen</source>
        <translation>Existing backups</translation>
    </message>
    <message>
        <source>&amp;Vorhanden:</source>
        <translation>&amp;Existing:</translation>
    </message>
    <message>
        <source>keine</source>
        <translation>none</translation>
    </message>
    <message>
        <source>&amp;Ordner:</source>
        <translation>&amp;Folder:</translation>
    </message>
    <message>
        <source>&amp;Eintrag bearbeiten</source>
        <translation>&amp;Edit entry</translation>
    </message>
    <message>
        <source>&amp;Neue Suche</source>
        <translation>Ne&amp;w search</translation>
    </message>
    <message>
        <source>Gefundene Einträge</source>
        <translation>Entries found</translation>
    </message>
    <message>
        <source>Öffnet den gewählten Eintrag (Eingabetaste)</source>
        <translation>Opens the selected entry (Enter)</translation>
    </message>
    <message>
        <source>Löscht die gewählten Einträge (Entf)</source>
        <translation>Deletes the selected entries (Del)</translation>
    </message>
    <message>
        <source>Es muss eine Kontonummer eingegeben werden, um die Daten einem Konto zuzuordnen.</source>
        <translation>An account number must be entered to assign the data to an account.</translation>
    </message>
    <message>
        <source>Einen Umsatz mit der Nummer {0} gibt es nicht.</source>
        <translation>There is no transaction with the number {0}.</translation>
    </message>
    <message>
        <source>Der Umsatz vom {0} liegt dem Vorkommen vom {1} am nächsten und zählt zu diesem.</source>
        <translation>The transaction of {0} is closest to the occurrence of {1} and counts towards that one.</translation>
    </message>
    <message>
        <source>Der Umsatz ist {0}, das Vorkommen {1}; --correct gleicht es an.</source>
        <translation>The transaction is {0}, the occurrence {1}; use --correct to adjust it.</translation>
    </message>
    <message>
        <source>Die Serie {0} hat in der Nähe des {1} kein Vorkommen.</source>
        <translation>The series {0} has no occurrence near {1}.</translation>
    </message>
    <message>
        <source>Umsatz zugeordnet</source>
        <translation>Transaction assigned</translation>
    </message>
    <message>
        <source>Der Umsatz {0} ist nicht zugeordnet.</source>
        <translation>The transaction {0} is not assigned.</translation>
    </message>
    <message>
        <source>ordnet einen Umsatz einem Eintrag zu; bei einer Serie dem Vorkommen, das am nächsten liegt</source>
        <translation>assigns a transaction to an entry; of a series, to the closest occurrence</translation>
    </message>
    <message>
        <source>das Vorkommen auf den Betrag des Umsatzes korrigieren</source>
        <translation>correct the occurrence to the amount of the transaction</translation>
    </message>
    <message>
        <source>löst Umsätze von ihren Einträgen; diese bleiben</source>
        <translation>detaches transactions from their entries; the entries remain</translation>
    </message>
    <message>
        <source>zeigt als JSON, woran eine Datei erkannt wird und wie &quot;import&quot; sie lesen würde</source>
        <translation>shows as JSON what a file is recognised by and how &quot;import&quot; would read it</translation>
    </message>
    <message>
        <source>  neu: {0}</source>
        <translation>  new: {0}</translation>
    </message>
    <message>
        <source>  schon vorhanden: {0}</source>
        <translation>  already there: {0}</translation>
    </message>
    <message>
        <source>nur lesen und zeigen, was neu wäre</source>
        <translation>only read and show what would be new</translation>
    </message>
    <message>
        <source>Umsatz</source>
        <translation>Transaction</translation>
    </message>
    <message>
        <source>Güte</source>
        <translation>Score</translation>
    </message>
    <message>
        <source>zugeordnet</source>
        <translation>assigned</translation>
    </message>
    <message>
        <source>vorgeschlagen</source>
        <translation>proposed</translation>
    </message>
    <message>
        <source>möglich</source>
        <translation>possible</translation>
    </message>
    <message>
        <source>vergeben</source>
        <translation>taken</translation>
    </message>
    <message>
        <source>ordnet offene Umsätze den Einträgen zu, die schon im Haushaltsbuch stehen</source>
        <translation>assigns open transactions to entries that are already in the book</translation>
    </message>
    <message>
        <source>nur zeigen, wozu dieser Umsatz gehören kann</source>
        <translation>only show what this transaction may belong to</translation>
    </message>
    <message>
        <source>Vorkommen von Serien auf den Betrag des Umsatzes korrigieren</source>
        <translation>correct occurrences of series to the amount of the transaction</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ist keine Spalte. Möglich sind: {1}, jeweils mit der Nummer der Spalte, ab 0 gezählt: &quot;datum=0,betrag=5,zweck=3&quot;.</source>
        <translation>&apos;{0}&apos; is not a column. Possible values: {1}, each with the number of the column, counted from 0: &quot;datum=0,betrag=5,zweck=3&quot;.</translation>
    </message>
    <message>
        <source>--map braucht wenigstens &quot;datum&quot; und &quot;betrag&quot; (oder &quot;soll&quot;, &quot;haben&quot;).</source>
        <translation>--map needs at least &quot;datum&quot; (date) and &quot;betrag&quot; (amount), or else &quot;soll&quot; (debit) or &quot;haben&quot; (credit).</translation>
    </message>
    <message>
        <source>Den Zeichensatz &apos;{0}&apos; gibt es nicht. Möglich sind: {1}.</source>
        <translation>There is no character set &apos;{0}&apos;. Possible values: {1}.</translation>
    </message>
    <message>
        <source>Das Profil &apos;{0}&apos; gibt es nicht. Möglich sind: {1}.</source>
        <translation>There is no profile &apos;{0}&apos;. Possible values: {1}.</translation>
    </message>
    <message>
        <source>Zeichensatz, wenn Umlaute falsch erscheinen: {0}</source>
        <translation>character set, if umlauts come out wrong: {0}</translation>
    </message>
    <message>
        <source>bekannter Aufbau einer CSV-Datei, zum Beispiel &quot;DKB&quot;; &quot;-&quot; für keinen</source>
        <translation>known layout of a CSV file, for example &quot;DKB&quot;; &quot;-&quot; for none</translation>
    </message>
    <message>
        <source>alle Spalten einer CSV-Datei mit ihrer Nummer, ab 0 gezählt: &quot;datum=0,betrag=5,zweck=3&quot;; möglich sind {0}</source>
        <translation>all columns of a CSV file with their numbers, counted from 0: &quot;datum=0,betrag=5,zweck=3&quot;; possible are {0}</translation>
    </message>
    <message>
        <source>Zugeordnet: {0}, vorgeschlagen: {1}, offen: {2}</source>
        <translation>Assigned: {0}, proposed: {1}, open: {2}</translation>
    </message>
    <message>
        <source>, davon mit möglichen Einträgen: {0}</source>
        <translation>, of these with possible entries: {0}</translation>
    </message>
    <message>
        <source>; Umbuchungen zwischen eigenen Konten: {0}</source>
        <translation>; transfers between own accounts: {0}</translation>
    </message>
    <message>
        <source>; nicht gespeichert: {0}</source>
        <translation>; not saved: {0}</translation>
    </message>
    <message>
        <source>Betrag {0} statt {1}</source>
        <translation>amount {0} instead of {1}</translation>
    </message>
    <message>
        <source>einziger Eintrag mit diesem Betrag</source>
        <translation>only entry with this amount</translation>
    </message>
    <message>
        <source>gleicher Betrag</source>
        <translation>same amount</translation>
    </message>
    <message>
        <source>gleicher Tag</source>
        <translation>same day</translation>
    </message>
    <message>
        <source>einen Tag später</source>
        <translation>one day later</translation>
    </message>
    <message>
        <source>einen Tag früher</source>
        <translation>one day earlier</translation>
    </message>
    <message>
        <source>{0} Tage später</source>
        <translation>{0} days later</translation>
    </message>
    <message>
        <source>{0} Tage früher</source>
        <translation>{0} days earlier</translation>
    </message>
    <message>
        <source>passende Kategorie</source>
        <translation>matching category</translation>
    </message>
    <message>
        <source>Text ähnlich</source>
        <translation>similar text</translation>
    </message>
    <message>
        <source>Empfänger ähnlich</source>
        <translation>similar payee</translation>
    </message>
    <message>
        <source>wie frühere Umsätze</source>
        <translation>like earlier transactions</translation>
    </message>
    <message>
        <source>eigenes Konto</source>
        <translation>own account</translation>
    </message>
    <message>
        <source>Die Datei lässt offen, ob der Tag oder der Monat vorn steht. Gelesen wurde der Monat zuerst.</source>
        <translation>The file leaves open whether the day or the month comes first. It was read with the month first.</translation>
    </message>
    <message>
        <source>SEPA-Kontoauszug (camt-Datei)</source>
        <translation>SEPA statement (camt file)</translation>
    </message>
    <message>
        <source>Die Tabelle ist zu groß für einen Kontoauszug.</source>
        <translation>The table is too large for a statement.</translation>
    </message>
    <message>
        <source>Die Tabelle ist beschädigt oder zu groß. Es wurde nichts übernommen.</source>
        <translation>The table is damaged or too large. Nothing was imported.</translation>
    </message>
    <message>
        <source>Die Datei ist beschädigt oder keine Arbeitsmappe. Es wurde nichts übernommen.</source>
        <translation>The file is damaged or not a workbook. Nothing was imported.</translation>
    </message>
    <message>
        <source>In der Datei sind keine Spalten mit Datum und Betrag zu erkennen.</source>
        <translation>No columns with date and amount can be recognised in the file.</translation>
    </message>
    <message>
        <source>Der Punkt in den Beträgen wurde als Tausenderpunkt gelesen.</source>
        <translation>The point in the amounts was read as a thousands separator.</translation>
    </message>
    <message>
        <source>Die Zeile hat keinen Betrag: {0}</source>
        <translation>The line has no amount: {0}</translation>
    </message>
    <message>
        <source>Der Umsatz ist noch vorgemerkt: {0}</source>
        <translation>The transaction is still pending: {0}</translation>
    </message>
    <message>
        <source>Die Zeile hat kein Datum: {0}</source>
        <translation>The line has no date: {0}</translation>
    </message>
    <message>
        <source>Der Umsatz in {0} verändert das Guthaben nicht: {1}</source>
        <translation>The transaction in {0} does not change the balance: {1}</translation>
    </message>
    <message>
        <source>Die Zeile ist ein Saldo und kein Umsatz: {0}</source>
        <translation>The line is a balance, not a transaction: {0}</translation>
    </message>
    <message>
        <source>Die Arbeitsmappe ist mit einem Kennwort geschützt. Bitte speichern Sie sie ohne Kennwort und lesen Sie sie noch einmal ein.</source>
        <translation>The workbook is protected by a password. Please save it without a password and import it again.</translation>
    </message>
    <message>
        <source>Die Arbeitsmappe ist zu groß für einen Kontoauszug.</source>
        <translation>The workbook is too large for a statement.</translation>
    </message>
    <message>
        <source>Die Arbeitsmappe ist beschädigt, verschlüsselt oder zu groß. Es wurde nichts übernommen.</source>
        <translation>The workbook is damaged, encrypted or too large. Nothing was imported.</translation>
    </message>
    <message>
        <source>Das Tabellenblatt &apos;{0}&apos; ist zu groß für einen Kontoauszug.</source>
        <translation>The sheet &apos;{0}&apos; is too large for a statement.</translation>
    </message>
    <message>
        <source>Die Datei &apos;{0}&apos; im ZIP-Archiv ist beschädigt, verschlüsselt oder zu groß. Es wurde nichts übernommen.</source>
        <translation>The file &apos;{0}&apos; in the ZIP archive is damaged, encrypted or too large. Nothing was imported.</translation>
    </message>
    <message>
        <source>Die Datei &apos;{0}&apos; im ZIP-Archiv: {1}</source>
        <translation>The file &apos;{0}&apos; in the ZIP archive: {1}</translation>
    </message>
    <message>
        <source>Die XML-Datei ist kein Kontoauszug (camt.052, camt.053, camt.054).</source>
        <translation>The XML file is not a statement (camt.052, camt.053, camt.054).</translation>
    </message>
    <message>
        <source>Die XML-Datei ist beschädigt oder unvollständig. Es wurde nichts übernommen.</source>
        <translation>The XML file is damaged or incomplete. Nothing was imported.</translation>
    </message>
    <message>
        <source>Der Umsatz ist nur vorgemerkt.</source>
        <translation>The transaction is only pending.</translation>
    </message>
    <message>
        <source>Der Umsatz hat kein lesbares Buchungsdatum.</source>
        <translation>The transaction has no readable booking date.</translation>
    </message>
    <message>
        <source>Der Umsatz hat keinen lesbaren Betrag.</source>
        <translation>The transaction has no readable amount.</translation>
    </message>
    <message>
        <source>Die Sammelbuchung wurde nicht aufgeteilt, weil die Einzelbeträge fehlen oder nicht ihre Summe ergeben.</source>
        <translation>The collective transaction was not split, because its single amounts are missing or do not add up to its total.</translation>
    </message>
    <message>
        <source>Die Datei enthält keinen Auszug eines Bankkontos oder einer Kreditkarte.</source>
        <translation>The file contains no statement of a bank account or credit card.</translation>
    </message>
    <message>
        <source>Die OFX-Datei ist beschädigt oder unvollständig. Es wurde nichts übernommen.</source>
        <translation>The OFX file is damaged or incomplete. Nothing was imported.</translation>
    </message>
    <message>
        <source>Kein passender Eintrag</source>
        <translation>No matching entry</translation>
    </message>
    <message>
        <source>Gesucht wurde im Konto {0} nach Einträgen mit ähnlichem Betrag, bis {1} Tage vor und nach dem {2}. „Buchen“ macht aus dem Umsatz einen neuen Eintrag.</source>
        <translation>The account {0} was searched for entries with a similar amount, up to {1} days before and after {2}. “Book” turns the transaction into a new entry.</translation>
    </message>
    <message>
        <source>hat schon einen Umsatz; {0}</source>
        <translation>already has a transaction; {0}</translation>
    </message>
    <message>
        <source>Passt zu</source>
        <translation>Match</translation>
    </message>
    <message>
        <source>Kontonummer</source>
        <translation>Account number</translation>
    </message>
    <message>
        <source>{0} abgeglichen</source>
        <translation>{0} matched</translation>
    </message>
    <message>
        <source>Konto einer Kontonummer gewählt</source>
        <translation>Account of an account number chosen</translation>
    </message>
    <message>
        <source>Ziehen Sie einen Kontoauszug Ihrer Bank hierher oder wählen Sie „Datei importieren…“. Gelesen werden Dateien im Format MT940, MT942, CSV, XLS, XLSX, OFX, QIF und camt.</source>
        <translation>Drag a statement from your bank here or choose “Import file…”. Files in the formats MT940, MT942, CSV, XLS, XLSX, OFX, QIF and camt can be read.</translation>
    </message>
    <message>
        <source>Es wurde nichts geändert, weil die Datenbank nicht schreibt.</source>
        <translation>Nothing has been changed because the database could not be written.</translation>
    </message>
    <message>
        <source>Eine Serie auf den Betrag des Kontoauszugs korrigiert.</source>
        <translation>One series corrected to the amount of the statement.</translation>
    </message>
    <message>
        <source>{0} Beträge von Serien korrigiert.</source>
        <translation>{0} amounts of series corrected.</translation>
    </message>
    <message>
        <source>Abgleichen abgebrochen, es wurde nichts zugeordnet.</source>
        <translation>Matching cancelled, nothing has been assigned.</translation>
    </message>
    <message>
        <source>Umsatz zuordnen</source>
        <translation>Assign transaction</translation>
    </message>
    <message>
        <source>Umsatz zugeordnet: {0}</source>
        <translation>Transaction assigned: {0}</translation>
    </message>
    <message>
        <source>{0} gelöst</source>
        <translation>{0} detached</translation>
    </message>
    <message>
        <source>{0} gelöst und wieder offen. Einträge bleiben im Haushaltsbuch.</source>
        <translation>{0} detached and open again. Entries remain in the book.</translation>
    </message>
    <message>
        <source>passt zu {0}</source>
        <translation>matches {0}</translation>
    </message>
    <message>
        <source>Umsätze ohne Kontonummer haben noch kein Konto und bleiben offen.</source>
        <translation>Transactions without an account number have no account yet and stay open.</translation>
    </message>
    <message>
        <source>Die Kontonummer {0} hat noch kein Konto; ihre Umsätze bleiben offen.</source>
        <translation>The account number {0} has no account yet; its transactions stay open.</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; vom {1}</source>
        <translation>&apos;{0}&apos; of {1}</translation>
    </message>
    <message>
        <source>{0} ({1})</source>
        <translation>{0} ({1})</translation>
    </message>
    <message>
        <source>{0} %</source>
        <translation>{0}%</translation>
    </message>
    <message>
        <source>Ab&amp;gleichen</source>
        <translation>Mat&amp;ch</translation>
    </message>
    <message>
        <source>Zuo&amp;rdnen…</source>
        <translation>&amp;Assign…</translation>
    </message>
    <message>
        <source>L&amp;ösen</source>
        <translation>De&amp;tach</translation>
    </message>
    <message>
        <source>Findet zu den markierten oder allen gezeigten offenen Umsätzen die Einträge, die schon im Haushaltsbuch stehen (Strg+G)</source>
        <translation>Finds the entries already in the book for the selected open transactions, or for all those shown (Ctrl+G)</translation>
    </message>
    <message>
        <source>Zeigt die Einträge, zu denen der markierte Umsatz gehören kann (Strg+R)</source>
        <translation>Shows the entries that the selected transaction may belong to (Ctrl+R)</translation>
    </message>
    <message>
        <source>Macht die markierten gebuchten Umsätze wieder offen; die Einträge bleiben</source>
        <translation>Makes the selected booked transactions open again; the entries remain</translation>
    </message>
    <message>
        <source>Me&amp;hr</source>
        <translation>Mo&amp;re</translation>
    </message>
    <message>
        <source>Die Umsätze werden abgeglichen …</source>
        <translation>Matching the transactions…</translation>
    </message>
    <message>
        <source>&amp;Einträge, zu denen der Umsatz gehören kann:</source>
        <translation>&amp;Entries the transaction may belong to:</translation>
    </message>
    <message>
        <source>Mögliche Einträge</source>
        <translation>Possible entries</translation>
    </message>
    <message>
        <source>&amp;Zuordnen</source>
        <translation>&amp;Assign</translation>
    </message>
    <message>
        <source>  … und {0} weitere</source>
        <translation>  … and {0} more</translation>
    </message>
    <message>
        <source>{0} → {1}</source>
        <translation>{0} → {1}</translation>
    </message>
    <message>
        <source>Umsätze buchen</source>
        <translation>Book transactions</translation>
    </message>
    <message>
        <source>Der Name &apos;{0}&apos; muss auf .{1} enden.</source>
        <translation>The name &apos;{0}&apos; must end in .{1}.</translation>
    </message>
    <message>
        <source>Bitte mit --png, --svg oder --csv angeben, wohin das Diagramm geschrieben werden soll.</source>
        <translation>Please say with --png, --svg or --csv where to write the chart.</translation>
    </message>
    <message>
        <source>Die Vorschau reicht von 0 bis {0} Monate.</source>
        <translation>The forecast covers from 0 to {0} months.</translation>
    </message>
    <message>
        <source>Das Diagramm &apos;{0}&apos; gibt es nicht. Möglich sind: {1}.</source>
        <translation>There is no chart &apos;{0}&apos;. Possible values: {1}.</translation>
    </message>
    <message>
        <source>Für dieses Diagramm gibt es keine Daten.</source>
        <translation>There is no data for this chart.</translation>
    </message>
    <message>
        <source>zeichnet ein Diagramm: {0}; ohne Angabe für das aktuelle Jahr</source>
        <translation>draws a chart: {0}; of the current year unless told otherwise</translation>
    </message>
    <message>
        <source>als Bild</source>
        <translation>as a picture</translation>
    </message>
    <message>
        <source>als Vektorgrafik</source>
        <translation>as a vector graphic</translation>
    </message>
    <message>
        <source>die Zahlen für eine Tabellenkalkulation</source>
        <translation>the figures for a spreadsheet</translation>
    </message>
    <message>
        <source>daneben das &quot;Vorjahr&quot; oder ein anderer Zeitraum</source>
        <translation>beside it, &quot;Vorjahr&quot; (year before) or another period</translation>
    </message>
    <message>
        <source>die Unterkategorien dieser Hauptkategorie</source>
        <translation>the subcategories of this main category</translation>
    </message>
    <message>
        <source>ohne Startguthaben</source>
        <translation>without opening balances</translation>
    </message>
    <message>
        <source>Heute</source>
        <translation>Today</translation>
    </message>
    <message>
        <source>Tiefster Stand</source>
        <translation>Lowest balance</translation>
    </message>
    <message>
        <source>Die Vorschau reicht von 1 bis {0} Monate.</source>
        <translation>The forecast covers from 1 to {0} months.</translation>
    </message>
    <message>
        <source>sagt die Kontostände voraus: aus wiederkehrenden und schon eingetragenen Buchungen</source>
        <translation>forecasts the account balances: from recurring entries and those already entered</translation>
    </message>
    <message>
        <source>so viele Monate weit, 1 bis 12; ohne Angabe 12</source>
        <translation>this many months ahead, 1 to 12; 12 unless told otherwise</translation>
    </message>
    <message>
        <source>auch mit dem Durchschnitt der Einzelausgaben des letzten Jahres</source>
        <translation>also with the average of last year&apos;s one-off expenses</translation>
    </message>
    <message>
        <source>{0}: Der Aufbau kann nicht gemerkt werden. Das geht nur bei Tabellen mit einer Zeile für die Spaltennamen.</source>
        <translation>{0}: The layout cannot be remembered. This only works for tables with a line of column names.</translation>
    </message>
    <message>
        <source>Spalten und Aufbau für die nächste Tabelle mit denselben Spaltennamen merken</source>
        <translation>remember columns and layout for the next table with the same column names</translation>
    </message>
    <message>
        <source>Den Bericht &apos;{0}&apos; gibt es nicht. Möglich sind: {1}.</source>
        <translation>There is no report &apos;{0}&apos;. Possible values: {1}.</translation>
    </message>
    <message>
        <source>Überschuss/Verlust</source>
        <translation>Surplus/deficit</translation>
    </message>
    <message>
        <source>Sparte</source>
        <translation>Main category</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Limit</translation>
    </message>
    <message>
        <source>Sonstiges</source>
        <translation>Miscellaneous</translation>
    </message>
    <message>
        <source>nach Betrag geordnet statt nach Namen</source>
        <translation>sorted by amount instead of by name</translation>
    </message>
    <message>
        <source>Limit: Ausgaben ohne Abzug von Erstattungen</source>
        <translation>limit: expenses without deducting refunds</translation>
    </message>
    <message>
        <source>ohne Einträge nach dem heutigen Tag</source>
        <translation>without entries after today</translation>
    </message>
    <message>
        <source>schreibt den Bericht als HTML-Seite</source>
        <translation>writes the report as an HTML page</translation>
    </message>
    <message>
        <source>schreibt den Bericht als PDF-Datei</source>
        <translation>writes the report as a PDF file</translation>
    </message>
    <message>
        <source>schreibt die Zahlen als CSV-Datei</source>
        <translation>writes the figures as a CSV file</translation>
    </message>
    <message>
        <source>schreibt die Zahlen als Excel-Datei</source>
        <translation>writes the figures as an Excel file</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ist keine Nummer. Die Nummern stehen in der Spalte Nr.</source>
        <translation>&apos;{0}&apos; is not a number. The numbers are in the column No.</translation>
    </message>
    <message>
        <source>Eine Regel mit der Nummer {0} gibt es nicht.</source>
        <translation>There is no rule with the number {0}.</translation>
    </message>
    <message>
        <source>Nr.</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>Wenn</source>
        <translation>If</translation>
    </message>
    <message>
        <source>Dann</source>
        <translation>Then</translation>
    </message>
    <message>
        <source>Umsätze</source>
        <translation>Transactions</translation>
    </message>
    <message>
        <source>aus</source>
        <translation>off</translation>
    </message>
    <message>
        <source>Ein Umsatz ist Einnahme oder Ausgabe.</source>
        <translation>A transaction is either income or an expense.</translation>
    </message>
    <message>
        <source>Möglich sind on und off.</source>
        <translation>Possible values: on and off.</translation>
    </message>
    <message>
        <source>Regel</source>
        <translation>Rule</translation>
    </message>
    <message>
        <source>zeigt die eigenen Regeln für Umsätze in ihrer Reihenfolge; die erste, die passt, gilt</source>
        <translation>shows your own rules for transactions in their order; the first one that matches applies</translation>
    </message>
    <message>
        <source>legt eine Regel an; mindestens eine Bedingung und eine Angabe, was sie vorschlägt</source>
        <translation>creates a rule; needs at least one condition and one thing to suggest</translation>
    </message>
    <message>
        <source>Bedingung: Empfänger, Zweck oder Buchungstext enthält das; | trennt mehrere, * steht für beliebige Zeichen</source>
        <translation>condition: payee, purpose or booking text contains this; | separates several, * stands for any characters</translation>
    </message>
    <message>
        <source>Bedingung: Name oder Kontonummer des Empfängers</source>
        <translation>condition: name or account number of the payee</translation>
    </message>
    <message>
        <source>Bedingung: Einnahme oder Ausgabe</source>
        <translation>condition: Einnahme (income) or Ausgabe (expense)</translation>
    </message>
    <message>
        <source>Bedingung: eigenes Konto</source>
        <translation>condition: own account</translation>
    </message>
    <message>
        <source>Kategorie, die sie vorschlägt</source>
        <translation>category that it suggests</translation>
    </message>
    <message>
        <source>Beschreibung, die sie vorschlägt</source>
        <translation>description that it suggests</translation>
    </message>
    <message>
        <source>Bedingungen aus diesem Umsatz; die anderen Optionen gehen vor</source>
        <translation>conditions from this transaction; the other options take precedence</translation>
    </message>
    <message>
        <source>löscht eine Regel</source>
        <translation>deletes a rule</translation>
    </message>
    <message>
        <source>setzt eine Regel an eine andere Stelle der Reihenfolge</source>
        <translation>moves a rule to another place in the order</translation>
    </message>
    <message>
        <source>schaltet eine Regel ein oder aus</source>
        <translation>switches a rule on or off</translation>
    </message>
    <message>
        <source>zeigt, welche Regel für einen Umsatz oder für die Umsätze einer Datei gilt</source>
        <translation>shows which rule applies to a transaction or to the transactions of a file</translation>
    </message>
    <message>
        <source>Mit --account muss die Kontonummer genannt werden. Es gibt: {0}</source>
        <translation>Please give the account number with --account. Possible values: {0}</translation>
    </message>
    <message>
        <source>Von diesem Konto ist kein Umsatz eingelesen: {0}</source>
        <translation>No transaction of this account has been imported: {0}</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; hat mehrere Kontonummern: {1}</source>
        <translation>&apos;{0}&apos; has several account numbers: {1}</translation>
    </message>
    <message>
        <source>zeigt den Auszug eines Bankkontos und vergleicht seinen Saldo mit der Bank</source>
        <translation>shows the statement of a bank account and compares its balance with the bank</translation>
    </message>
    <message>
        <source>Kontonummer, IBAN oder Konto des Buchs</source>
        <translation>account number, IBAN or account of the book</translation>
    </message>
    <message>
        <source>Der Kontoauszug wird geschrieben …</source>
        <translation>Writing the statement…</translation>
    </message>
    <message>
        <source>Eigene Regel: {0}</source>
        <translation>Own rule: {0}</translation>
    </message>
    <message>
        <source>Spalten und Aufbau lassen sich nur bei Tabellen angeben. Die Datei ist keine: {0}</source>
        <translation>Columns and layout can be given for tables only. The file is not one: {0}</translation>
    </message>
    <message>
        <source>Der Kontostand der Bank konnte nicht gespeichert werden.</source>
        <translation>The balance given by the bank could not be saved.</translation>
    </message>
    <message>
        <source>Die Datei hat zu viele Umsätze für einen Kontoauszug. Es wurde nichts übernommen.</source>
        <translation>The file has too many transactions for a statement. Nothing was imported.</translation>
    </message>
    <message>
        <source>Das ZIP-Archiv enthält zu viele Dateien.</source>
        <translation>The ZIP archive contains too many files.</translation>
    </message>
    <message>
        <source>Im ZIP-Archiv ist kein Kontoauszug, der gelesen werden kann.</source>
        <translation>The ZIP archive contains no statement that can be read.</translation>
    </message>
    <message>
        <source>Mehrere Dateien im ZIP-Archiv nennen ihr Konto nicht. Entpacken Sie das Archiv, und lesen Sie die Dateien einzeln ein.</source>
        <translation>Several files in the ZIP archive do not name their account. Unpack the archive and import the files one by one.</translation>
    </message>
    <message>
        <source>ZIP-Archiv mit Kontoauszügen</source>
        <translation>ZIP archive with statements</translation>
    </message>
    <message>
        <source>{0}. Warnung: {1}</source>
        <translation>{0}. Warning: {1}</translation>
    </message>
    <message>
        <source>ohne Kontonummer</source>
        <translation>no account number</translation>
    </message>
    <message>
        <source>1 Umsatz</source>
        <translation>1 transaction</translation>
    </message>
    <message>
        <source>Es ist noch kein Kontoauszug eingelesen.</source>
        <translation>No statement has been imported yet.</translation>
    </message>
    <message>
        <source>Kein Umsatz gefunden</source>
        <translation>No transactions found</translation>
    </message>
    <message>
        <source>Wählen Sie einen anderen Zeitraum, oder ändern Sie den Suchtext.</source>
        <translation>Choose another period, or change the search text.</translation>
    </message>
    <message>
        <source>Kontoauszug {0}</source>
        <translation>Statement {0}</translation>
    </message>
    <message>
        <source>Kontonummer: {0}</source>
        <translation>Account number: {0}</translation>
    </message>
    <message>
        <source>Suchtext: {0}</source>
        <translation>Search text: {0}</translation>
    </message>
    <message>
        <source>{0}: keine Angabe</source>
        <translation>{0}: not specified</translation>
    </message>
    <message>
        <source>{0}: {1} ({2})</source>
        <translation>{0}: {1} ({2})</translation>
    </message>
    <message>
        <source>PNG-Bild|*.png|SVG-Bild|*.svg|CSV-Datei (Zahlen)|*.csv</source>
        <translation>PNG picture|*.png|SVG picture|*.svg|CSV file (figures)|*.csv</translation>
    </message>
    <message>
        <source>Diagramm speichern</source>
        <translation>Save chart</translation>
    </message>
    <message>
        <source>Am Ende des Dateinamens &apos;{0}&apos; ist nicht zu erkennen, wie das Diagramm gespeichert werden soll.
Möglich sind: .png, .svg, .csv.</source>
        <translation>The end of the file name &apos;{0}&apos; does not tell how to save the chart.
Possible endings: .png, .svg, .csv.</translation>
    </message>
    <message>
        <source>Das Konto &apos;{0}&apos; liegt mit {1} unter seinem Limit von {2}.</source>
        <translation>The balance of the account &apos;{0}&apos; is {1}, below its limit of {2}.</translation>
    </message>
    <message>
        <source>Am {0} fällt das Konto &apos;{1}&apos; mit &apos;{2}&apos; ({3}) auf {4} und damit unter sein Limit von {5}.</source>
        <translation>On {0}, &apos;{2}&apos; ({3}) takes the account &apos;{1}&apos; to {4} and so below its limit of {5}.</translation>
    </message>
    <message>
        <source>{0} (Datei {1} von {2})</source>
        <translation>{0} (file {1} of {2})</translation>
    </message>
    <message>
        <source>{0} – {1}</source>
        <translation>{0} – {1}</translation>
    </message>
    <message>
        <source>Spalte {0}</source>
        <translation>Column {0}</translation>
    </message>
    <message>
        <source>Die Kontonummer wird automatisch ermittelt.</source>
        <translation>The account number is determined automatically.</translation>
    </message>
    <message>
        <source>Die Bankleitzahl wird automatisch ermittelt.</source>
        <translation>The bank code is determined automatically.</translation>
    </message>
    <message>
        <source>{0}; ersetzt, was davon noch offen ist</source>
        <translation>{0}; replaces what is still open of it</translation>
    </message>
    <message>
        <source>{0} (nur der Anfang der großen Datei)</source>
        <translation>{0} (only the beginning of the large file)</translation>
    </message>
    <message>
        <source>Markieren Sie Umsätze: die Eingabetaste bucht sie, Strg+R ordnet einen davon einem Eintrag zu, der schon im Haushaltsbuch steht.</source>
        <translation>Select transactions: Enter books them, Ctrl+R assigns one of them to an entry that is already in the book.</translation>
    </message>
    <message>
        <source>{0} markiert, davon {1} offen, Summe {2}</source>
        <translation>{0} selected, {1} of them open, total {2}</translation>
    </message>
    <message>
        <source>{0}  →  {1}, {2}: {4}</source>
        <translation>{0}  →  {1}, {2}: {4}</translation>
    </message>
    <message>
        <source>Kategorie für einen Umsatz</source>
        <translation>Category for 1 transaction</translation>
    </message>
    <message>
        <source>Kategorie für {0} Umsätze</source>
        <translation>Category for {0} transactions</translation>
    </message>
    <message>
        <source>Auswahl: {0}</source>
        <translation>Selection: {0}</translation>
    </message>
    <message>
        <source>HTML-Datei|*.html|CSV-Datei|*.csv|Excel-Datei|*.xlsx|Alle Dateien|*.*</source>
        <translation>HTML file|*.html|CSV file|*.csv|Excel file|*.xlsx|All files|*.*</translation>
    </message>
    <message>
        <source>Bericht speichern</source>
        <translation>Save report</translation>
    </message>
    <message>
        <source>Am Ende des Dateinamens &apos;{0}&apos; ist nicht zu erkennen, in welchem Format der Bericht gespeichert werden soll.
Möglich sind: {1}.</source>
        <translation>The end of the file name &apos;{0}&apos; does not tell which format to save the report in.
Possible endings: {1}.</translation>
    </message>
    <message>
        <source>Der Bericht wurde nach &apos;{0}&apos; gespeichert.</source>
        <translation>The report has been saved to &apos;{0}&apos;.</translation>
    </message>
    <message>
        <source>{0} wie: {1}
Vorschlag: {2}</source>
        <translation>{0} as: {1}
Suggestion: {2}</translation>
    </message>
    <message>
        <source>Regel angelegt</source>
        <translation>Rule created</translation>
    </message>
    <message>
        <source>Regel geändert</source>
        <translation>Rule changed</translation>
    </message>
    <message>
        <source>Regeln</source>
        <translation>Rules</translation>
    </message>
    <message>
        <source>Soll diese Regel gelöscht werden?
{0}</source>
        <translation>Do you want to delete this rule?
{0}</translation>
    </message>
    <message>
        <source>Regel löschen</source>
        <translation>Delete rule</translation>
    </message>
    <message>
        <source>Regel gelöscht</source>
        <translation>Rule deleted</translation>
    </message>
    <message>
        <source>Regel verschoben</source>
        <translation>Rule moved</translation>
    </message>
    <message>
        <source>Regel eingeschaltet</source>
        <translation>Rule switched on</translation>
    </message>
    <message>
        <source>Regel ausgeschaltet</source>
        <translation>Rule switched off</translation>
    </message>
    <message>
        <source>Es sind keine Umsätze eingelesen, an denen sich die Regel erproben ließe.</source>
        <translation>No transactions have been imported that the rule could be tried on.</translation>
    </message>
    <message>
        <source>passt auf {0} von {1} Umsätzen</source>
        <translation>matches {0} of {1} transactions</translation>
    </message>
    <message>
        <source>; bei {0} davon gilt schon eine Regel weiter oben</source>
        <translation>; for {0} of them, a rule further up already applies</translation>
    </message>
    <message>
        <source>Noch keine Regel</source>
        <translation>No rules yet</translation>
    </message>
    <message>
        <source>Eine Regel sagt, welche Kategorie Umsätze bekommen, die Sie an Text, Empfänger oder Betrag erkennen. Rechts legen Sie die erste an.</source>
        <translation>A rule tells which category to give to transactions that you recognise by text, payee or amount. Create the first one on the right.</translation>
    </message>
    <message>
        <source>doppelt?</source>
        <translation>duplicate?</translation>
    </message>
    <message>
        <source>{0}  ({1} offen)</source>
        <translation>{0}  ({1} open)</translation>
    </message>
    <message>
        <source>{0}  ({1} gebucht)</source>
        <translation>{0}  ({1} booked)</translation>
    </message>
    <message>
        <source>{0}  ({1}, davon {2} offen)</source>
        <translation>{0}  ({1}, {2} of them open)</translation>
    </message>
    <message>
        <source>Die Umsätze dieses Imports sind nicht mehr da.</source>
        <translation>The transactions of this import are no longer there.</translation>
    </message>
    <message>
        <source>{0} offen, {1} insgesamt, {2} ältere ausgeblendet</source>
        <translation>{0} open, {1} in total, {2} older hidden</translation>
    </message>
    <message>
        <source>Kontoauszug noch einmal eingelesen</source>
        <translation>Statement imported again</translation>
    </message>
    <message>
        <source>Der Importassistent wurde abgebrochen.</source>
        <translation>The import assistant was cancelled.</translation>
    </message>
    <message>
        <source>schon vorhanden</source>
        <translation>already there</translation>
    </message>
    <message>
        <source>Einnahmen und Ausgaben je Monat</source>
        <translation>Income and expenses per month</translation>
    </message>
    <message>
        <source>Verlauf der Kontostände</source>
        <translation>Balances over time</translation>
    </message>
    <message>
        <source>Alle Einträge</source>
        <translation>All entries</translation>
    </message>
    <message>
        <source>Als PDF speichern</source>
        <translation>Save as PDF</translation>
    </message>
    <message>
        <source>PDF-Datei|*.pdf|Alle Dateien|*.*</source>
        <translation>PDF file|*.pdf|All files|*.*</translation>
    </message>
    <message>
        <source>Für diese Tage ist kein Umsatz eingelesen; wahrscheinlich fehlt ein Kontoauszug.</source>
        <translation>No transactions have been imported for these days; a statement is probably missing.</translation>
    </message>
    <message>
        <source>Vergleichen Sie die Umsätze dieser Tage mit dem Auszug der Bank.</source>
        <translation>Compare the transactions of these days with the bank&apos;s statement.</translation>
    </message>
    <message>
        <source>Am {1} gibt es zwei Umsätze über diesen Betrag, &apos;{0}&apos; und &apos;{2}&apos;; wahrscheinlich ist einer doppelt eingelesen.</source>
        <translation>On {1} there are two transactions of this amount, &apos;{0}&apos; and &apos;{2}&apos;; one of them has probably been imported twice.</translation>
    </message>
    <message>
        <source>Über diesen Betrag gibt es den Umsatz &apos;{0}&apos; vom {1}. Hat die Bank ihn zweimal, wurde der zweite beim Einlesen für eine Wiederholung gehalten.</source>
        <translation>There is a transaction of this amount, &apos;{0}&apos; of {1}. If the bank has it twice, the second one was taken for a repetition when it was imported.</translation>
    </message>
    <message>
        <source>Aus diesen Tagen wurde vermutlich ein eingelesener Umsatz gelöscht.</source>
        <translation>One imported transaction of these days has probably been deleted.</translation>
    </message>
    <message>
        <source>Aus diesen Tagen wurden vermutlich {0} eingelesene Umsätze gelöscht.</source>
        <translation>{0} imported transactions of these days have probably been deleted.</translation>
    </message>
    <message>
        <source>Ab dem {0} fehlen {1} an Ausgaben (spätestens am {2}):</source>
        <translation>From {0}, expenses of {1} are missing (by {2} at the latest):</translation>
    </message>
    <message>
        <source>Ab dem {0} fehlen {1} an Einnahmen (spätestens am {2}):</source>
        <translation>From {0}, income of {1} is missing (by {2} at the latest):</translation>
    </message>
    <message>
        <source>Die Bank hat für dieses Konto noch keinen Kontostand genannt. Der Saldo beginnt deshalb bei null und lässt sich nicht prüfen.</source>
        <translation>The bank has not given a balance for this account yet. The balance therefore starts at zero and cannot be checked.</translation>
    </message>
    <message>
        <source>Kontostand der Bank: {0} am {1}. Ein weiterer, mit dem sich die Umsätze prüfen ließen, ist nicht bekannt.</source>
        <translation>Balance at the bank: {0} on {1}. No other one is known that the transactions could be checked against.</translation>
    </message>
    <message>
        <source>Die Umsätze stimmen mit allen {2} Kontoständen der Bank überein, zuletzt {0} am {1}.</source>
        <translation>The transactions agree with all {2} balances given by the bank, most recently {0} on {1}.</translation>
    </message>
    <message>
        <source>Davor gibt es {0} weitere Abweichungen.</source>
        <translation>Before that there are {0} further differences.</translation>
    </message>
    <message>
        <source>Diese Kontonummer ist noch keinem Konto Ihres Buchs zugeordnet.</source>
        <translation>This account number is not yet assigned to any account of your book.</translation>
    </message>
    <message>
        <source>Zum Konto &apos;{0}&apos; gehören mehrere Kontonummern; mit seinen Einträgen lässt sich der Auszug deshalb nicht vergleichen.</source>
        <translation>Several account numbers belong to the account &apos;{0}&apos;; the statement can therefore not be compared with its entries.</translation>
    </message>
    <message>
        <source>Das Konto &apos;{0}&apos; stimmt am {1} mit der Bank überein: {2}.</source>
        <translation>The account &apos;{0}&apos; agrees with the bank on {1}: {2}.</translation>
    </message>
    <message>
        <source>Das Konto &apos;{0}&apos; steht am {1} auf {2}, das sind {5} mehr als bei der Bank ({3}).</source>
        <translation>The account &apos;{0}&apos; stands at {2} on {1}, which is {5} more than at the bank ({3}).</translation>
    </message>
    <message>
        <source>Das Konto &apos;{0}&apos; steht am {1} auf {2}, das sind {5} weniger als bei der Bank ({3}).</source>
        <translation>The account &apos;{0}&apos; stands at {2} on {1}, which is {5} less than at the bank ({3}).</translation>
    </message>
    <message>
        <source>Seit dem {4} stimmen beide nicht mehr überein.</source>
        <translation>The two have not agreed since {4}.</translation>
    </message>
    <message>
        <source>Sie stimmten schon am {4} nicht überein; vielleicht fehlt das Startguthaben.</source>
        <translation>They already differed on {4}; perhaps the opening balance is missing.</translation>
    </message>
    <message>
        <source>ab {0}</source>
        <translation>from {0}</translation>
    </message>
    <message>
        <source>bis {0}</source>
        <translation>until {0}</translation>
    </message>
    <message>
        <source>alle Buchungen</source>
        <translation>all entries</translation>
    </message>
    <message>
        <source>{0}. Quartal {1}</source>
        <translation>Q{0} {1}</translation>
    </message>
    <message>
        <source>alle Konten</source>
        <translation>all accounts</translation>
    </message>
    <message>
        <source>Konto &apos;{0}&apos;</source>
        <translation>account &apos;{0}&apos;</translation>
    </message>
    <message>
        <source>Tiefster Stand: {0} am {1}</source>
        <translation>Lowest balance: {0} on {1}</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>Limit {0}</source>
        <translation>Limit {0}</translation>
    </message>
    <message>
        <source>Weitere</source>
        <translation>Others</translation>
    </message>
    <message>
        <source>{0}, blasser daneben: {1}</source>
        <translation>{0}, paler beside it: {1}</translation>
    </message>
    <message>
        <source>{0} je Jahr nach Kategorien</source>
        <translation>{0} per year by category</translation>
    </message>
    <message>
        <source>{0} je Monat nach Kategorien</source>
        <translation>{0} per month by category</translation>
    </message>
    <message>
        <source>Jahr</source>
        <translation>Year</translation>
    </message>
    <message>
        <source>Monat</source>
        <translation>Month</translation>
    </message>
    <message>
        <source>Überschuss</source>
        <translation>Surplus</translation>
    </message>
    <message>
        <source>Einnahmen und Ausgaben je Jahr</source>
        <translation>Income and expenses per year</translation>
    </message>
    <message>
        <source>Einnahmen: {0}</source>
        <translation>Income: {0}</translation>
    </message>
    <message>
        <source>Ausgaben: {0}</source>
        <translation>Expenses: {0}</translation>
    </message>
    <message>
        <source>Einnahmen nach Kategorien</source>
        <translation>Income by category</translation>
    </message>
    <message>
        <source>Ausgaben nach Kategorien</source>
        <translation>Expenses by category</translation>
    </message>
    <message>
        <source>Anteil</source>
        <translation>Share</translation>
    </message>
    <message>
        <source>nicht lesen</source>
        <translation>do not read</translation>
    </message>
    <message>
        <source>Buchungstag</source>
        <translation>Booking date</translation>
    </message>
    <message>
        <source>Soll (Ausgaben)</source>
        <translation>Debit (expenses)</translation>
    </message>
    <message>
        <source>Haben (Einnahmen)</source>
        <translation>Credit (income)</translation>
    </message>
    <message>
        <source>Soll/Haben-Kennzeichen</source>
        <translation>Debit/credit mark</translation>
    </message>
    <message>
        <source>Verwendungszweck 2</source>
        <translation>Purpose 2</translation>
    </message>
    <message>
        <source>Verwendungszweck 3</source>
        <translation>Purpose 3</translation>
    </message>
    <message>
        <source>Empfänger/Auftraggeber</source>
        <translation>Payee/payer</translation>
    </message>
    <message>
        <source>Auftraggeber bei Eingängen</source>
        <translation>Payer of incoming payments</translation>
    </message>
    <message>
        <source>Gegenkonto</source>
        <translation>Other party&apos;s account</translation>
    </message>
    <message>
        <source>Bankleitzahl/BIC des Gegenkontos</source>
        <translation>Bank code/BIC of other party</translation>
    </message>
    <message>
        <source>Art des Umsatzes</source>
        <translation>Type of transaction</translation>
    </message>
    <message>
        <source>Währung</source>
        <translation>Currency</translation>
    </message>
    <message>
        <source>eigene Bankleitzahl</source>
        <translation>own bank code</translation>
    </message>
    <message>
        <source>Stand (vorgemerkt, gebucht)</source>
        <translation>State (pending, booked)</translation>
    </message>
    <message>
        <source>Verwaltet Ihre eigenen Regeln für die Kategorien von Umsätzen.</source>
        <translation>Manages your own rules for the categories of transactions.</translation>
    </message>
    <message>
        <source>Zeigt die Umsätze eines Bankkontos mit ihrem Saldo.</source>
        <translation>Shows the transactions of a bank account with their balance.</translation>
    </message>
    <message>
        <source>vorgemerkt</source>
        <translation>pending</translation>
    </message>
    <message>
        <source>nicht lesbar</source>
        <translation>not readable</translation>
    </message>
    <message>
        <source>andere Währung</source>
        <translation>other currency</translation>
    </message>
    <message>
        <source>vom {0} bis {1}</source>
        <translation>from {0} to {1}</translation>
    </message>
    <message>
        <source>zusammen {0}</source>
        <translation>{0} in total</translation>
    </message>
    <message>
        <source>{0} ausgelassen</source>
        <translation>{0} skipped</translation>
    </message>
    <message>
        <source>schon vorhanden: {0}</source>
        <translation>already there: {0}</translation>
    </message>
    <message>
        <source>ohne Betrag: {0}</source>
        <translation>without an amount: {0}</translation>
    </message>
    <message>
        <source>… und {0} weitere</source>
        <translation>… and {0} more</translation>
    </message>
    <message>
        <source>{0}: abgebrochen, nichts davon übernommen.</source>
        <translation>{0}: cancelled, nothing of it imported.</translation>
    </message>
    <message>
        <source>gleicher Tag, Betrag und Gegenkonto</source>
        <translation>same day, amount and other party&apos;s account</translation>
    </message>
    <message>
        <source>gleicher Tag, Betrag und ähnlicher Name</source>
        <translation>same day, amount and similar name</translation>
    </message>
    <message>
        <source>Durchschnittswerte</source>
        <translation>Averages</translation>
    </message>
    <message>
        <source>Summe aller Werte</source>
        <translation>Total of all values</translation>
    </message>
    <message>
        <source>Sonstiges ({0})</source>
        <translation>Miscellaneous ({0})</translation>
    </message>
    <message>
        <source>Durchschnitt pro Monat</source>
        <translation>Average per month</translation>
    </message>
    <message>
        <source>Ausgegeben</source>
        <translation>Spent</translation>
    </message>
    <message>
        <source>Dieser Bericht wurde am {0} erstellt.</source>
        <translation>This report was made on {0}.</translation>
    </message>
    <message>
        <source>Summe der Einnahmen und Ausgaben für den gewählten Zeitraum.</source>
        <translation>Total income and expenses in the chosen period.</translation>
    </message>
    <message>
        <source>Durchschnittswerte pro Monat (Jahresmittelwert {0} bei {1} Tagen) der Einnahmen und Ausgaben.</source>
        <translation>Average income and expenses per month (mean of the year {0} with {1} days).</translation>
    </message>
    <message>
        <source>Verlust</source>
        <translation>Deficit</translation>
    </message>
    <message>
        <source>von</source>
        <translation>of</translation>
    </message>
    <message>
        <source>Limit-Bericht</source>
        <translation>Limit report</translation>
    </message>
    <message>
        <source>{0} für {1} vom {2} bis {3}</source>
        <translation>{0} for {1} from {2} to {3}</translation>
    </message>
    <message>
        <source>{0} ohne passenden Vorschlag</source>
        <translation>{0} without a matching suggestion</translation>
    </message>
    <message>
        <source>{0} wahrscheinlich schon im Haushaltsbuch</source>
        <translation>{0} probably already in the book</translation>
    </message>
    <message>
        <source>{0} vielleicht doppelt</source>
        <translation>{0} possibly duplicated</translation>
    </message>
    <message>
        <source>Offen bleiben: {0}.</source>
        <translation>Staying open: {0}.</translation>
    </message>
    <message>
        <source>Keiner der gezeigten Umsätze hat einen sicheren Vorschlag.</source>
        <translation>None of the transactions shown has a reliable suggestion.</translation>
    </message>
    <message>
        <source>Vorschläge annehmen</source>
        <translation>Accept suggestions</translation>
    </message>
    <message>
        <source>nicht lesbar: {0}</source>
        <translation>not readable: {0}</translation>
    </message>
    <message>
        <source>Text enthält {0}</source>
        <translation>Text contains {0}</translation>
    </message>
    <message>
        <source> oder </source>
        <translation> or </translation>
    </message>
    <message>
        <source>von {0}</source>
        <translation>from {0}</translation>
    </message>
    <message>
        <source>an {0}</source>
        <translation>to {0}</translation>
    </message>
    <message>
        <source>Konto {0}</source>
        <translation>account {0}</translation>
    </message>
    <message>
        <source>wird nicht angewandt</source>
        <translation>is not applied</translation>
    </message>
    <message>
        <source>Diese Regel ist beschädigt oder stammt von einer neueren Version. Sie bleibt, wie sie ist.</source>
        <translation>This rule is damaged or comes from a newer version. It stays as it is.</translation>
    </message>
    <message>
        <source>Bitte geben Sie an, woran die Regel einen Umsatz erkennt.</source>
        <translation>Please say what the rule recognises a transaction by.</translation>
    </message>
    <message>
        <source>Der Text &apos;{0}&apos; passt auf jeden Umsatz.</source>
        <translation>The text &apos;{0}&apos; matches every transaction.</translation>
    </message>
    <message>
        <source>Bitte geben Sie an, was die Regel vorschlagen soll.</source>
        <translation>Please say what the rule should suggest.</translation>
    </message>
    <message>
        <source>Ohne Namen</source>
        <translation>No name</translation>
    </message>
    <message>
        <source>Keine</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Nach Tag</source>
        <translation>By day</translation>
    </message>
    <message>
        <source>Semikolon</source>
        <translation>Semicolon</translation>
    </message>
    <message>
        <source>Komma</source>
        <translation>Comma</translation>
    </message>
    <message>
        <source>Tabulator</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>senkrechter Strich</source>
        <translation>vertical bar</translation>
    </message>
    <message>
        <source>Automatisch ({0})</source>
        <translation>Automatic ({0})</translation>
    </message>
    <message>
        <source>keiner</source>
        <translation>none</translation>
    </message>
    <message>
        <source>Automatisch</source>
        <translation>Automatic</translation>
    </message>
    <message>
        <source>1.234,50</source>
        <translation>1.234,50</translation>
    </message>
    <message>
        <source>1,234.50</source>
        <translation>1,234.50</translation>
    </message>
    <message>
        <source>Tag, Monat, Jahr</source>
        <translation>Day, month, year</translation>
    </message>
    <message>
        <source>Monat, Tag, Jahr</source>
        <translation>Month, day, year</translation>
    </message>
    <message>
        <source>Jahr, Monat, Tag</source>
        <translation>Year, month, day</translation>
    </message>
    <message>
        <source>wie in der Datei</source>
        <translation>as in the file</translation>
    </message>
    <message>
        <source>umgekehrt (Ausgaben ohne Minus)</source>
        <translation>reversed (expenses without minus)</translation>
    </message>
    <message>
        <source>Spalten an ihren Namen erkannt</source>
        <translation>columns recognised by their names</translation>
    </message>
    <message>
        <source>Spalten aus dem Inhalt geraten, bitte prüfen</source>
        <translation>columns guessed from the contents, please check</translation>
    </message>
    <message>
        <source>bekannter Aufbau: {0}</source>
        <translation>known layout: {0}</translation>
    </message>
    <message>
        <source>Spalten wie beim letzten Mal</source>
        <translation>columns as last time</translation>
    </message>
    <message>
        <source>Spalten von Hand gewählt</source>
        <translation>columns chosen by hand</translation>
    </message>
    <message>
        <source>Alt+Links</source>
        <translation>Alt+Left</translation>
    </message>
    <message>
        <source>Zeigt wieder die Einträge von vorher</source>
        <translation>Shows the previous entries again</translation>
    </message>
    <message>
        <source>Diagramm</source>
        <translation>Chart</translation>
    </message>
    <message>
        <source>kein Vergleich</source>
        <translation>no comparison</translation>
    </message>
    <message>
        <source>Jahr davor</source>
        <translation>Year before</translation>
    </message>
    <message>
        <source>Vergleich</source>
        <translation>Comparison</translation>
    </message>
    <message>
        <source>Legt einen zweiten Zeitraum daneben</source>
        <translation>Puts a second period beside it</translation>
    </message>
    <message>
        <source>keine Vorschau</source>
        <translation>no forecast</translation>
    </message>
    <message>
        <source>1 Monat voraus</source>
        <translation>1 month ahead</translation>
    </message>
    <message>
        <source>{0} Monate voraus</source>
        <translation>{0} months ahead</translation>
    </message>
    <message>
        <source>Vorschau</source>
        <translation>Forecast</translation>
    </message>
    <message>
        <source>Die Vorschau zieht auch ab, was im Schnitt einmalig ausgegeben wird</source>
        <translation>The forecast also deducts average one-off spending</translation>
    </message>
    <message>
        <source>Diagramme</source>
        <translation>Charts</translation>
    </message>
    <message>
        <source>Tabelle</source>
        <translation>Table</translation>
    </message>
    <message>
        <source>Zeigt dieselben Zahlen als Tabelle</source>
        <translation>Shows the same figures as a table</translation>
    </message>
    <message>
        <source>Kopieren</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Kopiert das Diagramm in die Zwischenablage</source>
        <translation>Copies the chart to the clipboard</translation>
    </message>
    <message>
        <source>&amp;Bild kopieren</source>
        <translation>Copy &amp;picture</translation>
    </message>
    <message>
        <source>&amp;Zahlen kopieren</source>
        <translation>Copy &amp;figures</translation>
    </message>
    <message>
        <source>Speichern…</source>
        <translation>Save…</translation>
    </message>
    <message>
        <source>Speichert das Diagramm als Bild oder als Zahlen</source>
        <translation>Saves the chart as a picture or as figures</translation>
    </message>
    <message>
        <source>Zahlen des Diagramms</source>
        <translation>Figures of the chart</translation>
    </message>
    <message>
        <source>Pfeiltasten wählen einen Teil, die Eingabetaste zeigt seine Buchungen, Tab führt zur Legende.</source>
        <translation>The arrow keys choose a part, Enter shows its entries, Tab leads to the legend.</translation>
    </message>
    <message>
        <source>{0}, ausgeblendet</source>
        <translation>{0}, hidden</translation>
    </message>
    <message>
        <source>{0}, eingeblendet</source>
        <translation>{0}, shown</translation>
    </message>
    <message>
        <source>Legende: {0}, ausgeblendet</source>
        <translation>Legend: {0}, hidden</translation>
    </message>
    <message>
        <source>Legende: {0}, eingeblendet</source>
        <translation>Legend: {0}, shown</translation>
    </message>
    <message>
        <source>Diagramm {0}</source>
        <translation>Chart {0}</translation>
    </message>
    <message>
        <source>&amp;Spalten der Datei, darüber ihre Bedeutung:</source>
        <translation>Columns of the &amp;file, with their meaning above:</translation>
    </message>
    <message>
        <source>Zeilen der Datei</source>
        <translation>Lines of the file</translation>
    </message>
    <message>
        <source>Gelesene Umsätze</source>
        <translation>Transactions read</translation>
    </message>
    <message>
        <source>So wird &amp;gelesen:</source>
        <translation>As it will be &amp;read:</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Bedeutung von {0}</source>
        <translation>Meaning of {0}</translation>
    </message>
    <message>
        <source>Nicht übernommene Umsätze</source>
        <translation>Transactions not imported</translation>
    </message>
    <message>
        <source>Nicht übernommen, mit dem Grund:</source>
        <translation>Not imported, with the reason:</translation>
    </message>
    <message>
        <source>Erster Monat</source>
        <translation>First month</translation>
    </message>
    <message>
        <source>bis</source>
        <translation>to</translation>
    </message>
    <message>
        <source>&amp;Kategorie…</source>
        <translation>Categor&amp;y…</translation>
    </message>
    <message>
        <source>R&amp;egel aus Umsatz…</source>
        <translation>R&amp;ule from transaction…</translation>
    </message>
    <message>
        <source>Legt eine eigene Regel an, die Umsätze wie diesen erkennt</source>
        <translation>Creates a rule of your own that recognises transactions like this one</translation>
    </message>
    <message>
        <source>Zeigt die Umsätze, die mit dem markierten eingelesen wurden, in einem Fenster</source>
        <translation>Shows the transactions that were imported together with the selected one in a window</translation>
    </message>
    <message>
        <source>Gruppen &amp;aufklappen</source>
        <translation>E&amp;xpand groups</translation>
    </message>
    <message>
        <source>Gruppen &amp;zuklappen</source>
        <translation>&amp;Collapse groups</translation>
    </message>
    <message>
        <source>&amp;Zeile über der Liste zeigen</source>
        <translation>Show &amp;line above the list</translation>
    </message>
    <message>
        <source>&amp;Ältere ausblenden</source>
        <translation>Hi&amp;de older</translation>
    </message>
    <message>
        <source>Die Zeile sagt, was aus den markierten Umsätzen wird</source>
        <translation>The line tells what will become of the selected transactions</translation>
    </message>
    <message>
        <source>Blendet Umsätze aus, die mehr als drei Monate älter sind als der neueste ihres Kontos</source>
        <translation>Hides transactions more than three months older than the latest one of their account</translation>
    </message>
    <message>
        <source>Gru&amp;ppieren:</source>
        <translation>&amp;Grouping:</translation>
    </message>
    <message>
        <source>Fällt der Kontostand in den nächsten 60 Tagen darunter, warnt die Kontenliste.</source>
        <translation>If the balance falls below this within the next 60 days, the account list gives a warning.</translation>
    </message>
    <message>
        <source>Import&amp;assistent…</source>
        <translation>Import &amp;assistant…</translation>
    </message>
    <message>
        <source>&amp;Noch einmal mit dem Assistenten…</source>
        <translation>A&amp;gain with the assistant…</translation>
    </message>
    <message>
        <source>Zeigt vor dem Einlesen, wie eine Datei gelesen wird; Spalten und Konto lassen sich dort ändern</source>
        <translation>Shows how a file will be read before it is imported; columns and account can be changed there</translation>
    </message>
    <message>
        <source>Liest die zuletzt eingelesenen Dateien anders ein; was von ihnen noch offen ist, wird dabei ersetzt</source>
        <translation>Imports the most recently imported files in a different way; what is still open of them is replaced</translation>
    </message>
    <message>
        <source>Zeigt die Umsätze eines Bankkontos mit dem Kontostand nach jedem und vergleicht ihn mit dem, den die Bank nennt</source>
        <translation>Shows the transactions of a bank account with the balance after each one and compares it with the one given by the bank</translation>
    </message>
    <message>
        <source>Zeigt nur die Umsätze der zuletzt eingelesenen Dateien in einem Fenster</source>
        <translation>Shows only the transactions of the most recently imported files in a window</translation>
    </message>
    <message>
        <source>&amp;Kontonummer:</source>
        <translation>Account &amp;number:</translation>
    </message>
    <message>
        <source>&amp;Bankleitzahl:</source>
        <translation>&amp;Bank code:</translation>
    </message>
    <message>
        <source>&amp;Zeile mit den Spaltennamen:</source>
        <translation>Line with the &amp;column names:</translation>
    </message>
    <message>
        <source>&amp;Identische Buchungen verhindern</source>
        <translation>Pre&amp;vent identical entries</translation>
    </message>
    <message>
        <source>&amp;Empfänger als Verwendungszweck, wenn keiner angegeben ist</source>
        <translation>&amp;Payee as purpose if none is given</translation>
    </message>
    <message>
        <source>Nicht &amp;oder nur mit Vorbehalt übernommen:</source>
        <translation>Not imported, or &amp;only with reservations:</translation>
    </message>
    <message>
        <source>Importassistent</source>
        <translation>Import assistant</translation>
    </message>
    <message>
        <source>Bekannter &amp;Aufbau:</source>
        <translation>&amp;Known layout:</translation>
    </message>
    <message>
        <source>Zei&amp;chensatz:</source>
        <translation>C&amp;haracter set:</translation>
    </message>
    <message>
        <source>&amp;Trennzeichen:</source>
        <translation>&amp;Separator:</translation>
    </message>
    <message>
        <source>Za&amp;hlen:</source>
        <translation>N&amp;umbers:</translation>
    </message>
    <message>
        <source>&amp;Vorzeichen:</source>
        <translation>Si&amp;gn:</translation>
    </message>
    <message>
        <source>Tabe&amp;llenblatt:</source>
        <translation>Shee&amp;t:</translation>
    </message>
    <message>
        <source>I&amp;mportieren</source>
        <translation>I&amp;mport</translation>
    </message>
    <message>
        <source>&amp;Neu erkennen</source>
        <translation>R&amp;ecognise again</translation>
    </message>
    <message>
        <source>Verwirft, was hier über die Tabelle gewählt wurde</source>
        <translation>Discards what was chosen here about the table</translation>
    </message>
    <message>
        <source>gehört zum Konto {0}</source>
        <translation>belongs to the account {0}</translation>
    </message>
    <message>
        <source>&amp;Alle gezeigten buchen</source>
        <translation>Book all &amp;shown</translation>
    </message>
    <message>
        <source>Umsätze eines Imports durchsehen</source>
        <translation>Review the transactions of an import</translation>
    </message>
    <message>
        <source>&amp;Fertig</source>
        <translation>&amp;Done</translation>
    </message>
    <message>
        <source>Schließt das Fenster; was offen ist, wartet auf der Seite „Kontoauszüge“</source>
        <translation>Closes the window; what is open waits on the page “Statements”</translation>
    </message>
    <message>
        <source>Umsätze des Kontoauszugs</source>
        <translation>Transactions of the statement</translation>
    </message>
    <message>
        <source>Ein&amp;trag öffnen</source>
        <translation>Open &amp;entry</translation>
    </message>
    <message>
        <source>Kopi&amp;eren</source>
        <translation>Cop&amp;y</translation>
    </message>
    <message>
        <source>&amp;Drucken…</source>
        <translation>P&amp;rint…</translation>
    </message>
    <message>
        <source>E&amp;xportieren…</source>
        <translation>E&amp;xport…</translation>
    </message>
    <message>
        <source>Kontoauszug</source>
        <translation>Statement</translation>
    </message>
    <message>
        <source>Vergleich der Salden</source>
        <translation>Comparison of the balances</translation>
    </message>
    <message>
        <source>Öffnet den Eintrag, als der dieser Umsatz gebucht ist (Eingabetaste)</source>
        <translation>Opens the entry that this transaction is booked as (Enter)</translation>
    </message>
    <message>
        <source>Kopiert die markierten Umsätze, sonst alle (Strg+C)</source>
        <translation>Copies the selected transactions, or else all (Ctrl+C)</translation>
    </message>
    <message>
        <source>Aus&amp;wertung</source>
        <translation>&amp;Statistics</translation>
    </message>
    <message>
        <source>Regeln für Umsätze</source>
        <translation>Rules for transactions</translation>
    </message>
    <message>
        <source>&amp;Regeln; es gilt die oberste, die passt:</source>
        <translation>&amp;Rules; the topmost one that matches applies:</translation>
    </message>
    <message>
        <source>&amp;Neu</source>
        <translation>&amp;New</translation>
    </message>
    <message>
        <source>Wenn alles zutrifft, was angegeben ist</source>
        <translation>If everything given here is true</translation>
    </message>
    <message>
        <source>rewe|edeka oder miete*garten</source>
        <translation>rewe|edeka or rent*garden</translation>
    </message>
    <message>
        <source>Gesucht wird in Empfänger, Verwendungszweck und Buchungstext, ohne auf Groß- und Kleinschreibung zu achten.
| trennt mehrere Möglichkeiten. * steht für beliebig viele Zeichen, ? für eines, # für eine Ziffer.</source>
        <translation>Searches payee, purpose and booking text, ignoring upper and lower case.
| separates alternatives. * stands for any number of characters, ? for one, # for a digit.</translation>
    </message>
    <message>
        <source>&amp;Text enthält:</source>
        <translation>&amp;Text contains:</translation>
    </message>
    <message>
        <source>Name oder Kontonummer</source>
        <translation>Name or account number</translation>
    </message>
    <message>
        <source>&amp;Empfänger ist:</source>
        <translation>&amp;Payee is:</translation>
    </message>
    <message>
        <source>Einnahme oder Ausgabe</source>
        <translation>Income or expense</translation>
    </message>
    <message>
        <source>nur Einnahmen</source>
        <translation>Income only</translation>
    </message>
    <message>
        <source>nur Ausgaben</source>
        <translation>Expenses only</translation>
    </message>
    <message>
        <source>&amp;Betrag ist:</source>
        <translation>A&amp;mount is:</translation>
    </message>
    <message>
        <source>jedes Konto</source>
        <translation>any account</translation>
    </message>
    <message>
        <source>Ei&amp;genes Konto:</source>
        <translation>Own &amp;account:</translation>
    </message>
    <message>
        <source>Dann schlage vor</source>
        <translation>Then suggest</translation>
    </message>
    <message>
        <source>wie ohne Regel</source>
        <translation>as without a rule</translation>
    </message>
    <message>
        <source>Empfänger und Verwendungszweck</source>
        <translation>Payee and purpose</translation>
    </message>
    <message>
        <source>Be&amp;schreibung:</source>
        <translation>D&amp;escription:</translation>
    </message>
    <message>
        <source>Beispiele</source>
        <translation>Examples</translation>
    </message>
    <message>
        <source>Regel s&amp;peichern</source>
        <translation>&amp;Save rule</translation>
    </message>
    <message>
        <source>&amp;Nach Betrag geordnet</source>
        <translation>Sorted &amp;by amount</translation>
    </message>
    <message>
        <source>Ohne Abzug &amp;von Erstattungen</source>
        <translation>Without &amp;deducting refunds</translation>
    </message>
    <message>
        <source>S&amp;peichern</source>
        <translation>S&amp;ave report</translation>
    </message>
    <message>
        <source>Be&amp;richt</source>
        <translation>Rep&amp;ort</translation>
    </message>
    <message>
        <source>Dia&amp;gramme</source>
        <translation>&amp;Charts</translation>
    </message>
    <message>
        <source>Berich&amp;t:</source>
        <translation>Report t&amp;ype:</translation>
    </message>
    <message>
        <source>Die größten Beträge zuerst statt der Reihe nach dem Namen</source>
        <translation>The largest amounts first instead of in the order of the names</translation>
    </message>
    <message>
        <source>Zählt alle Ausgaben, auch wenn ein Teil auf derselben Kategorie zurückkam</source>
        <translation>Counts all expenses, even if part of the money came back in the same category</translation>
    </message>
    <message>
        <source>Als &amp;PDF speichern…</source>
        <translation>Save as &amp;PDF…</translation>
    </message>
    <message>
        <source>Als &amp;HTML-Seite oder Tabelle speichern…</source>
        <translation>Save as &amp;HTML page or table…</translation>
    </message>
    <message>
        <source>Zahlen des Berichts</source>
        <translation>Figures of the report</translation>
    </message>
    <message>
        <source>&amp;Einträge zeigen</source>
        <translation>Show &amp;entries</translation>
    </message>
    <message>
        <source>&amp;Kategorie bearbeiten</source>
        <translation>Edit &amp;category</translation>
    </message>
    <message>
        <source>Erstes Diagramm</source>
        <translation>First chart</translation>
    </message>
    <message>
        <source>Zweites Diagramm</source>
        <translation>Second chart</translation>
    </message>
    <message>
        <source>wie vorgeschlagen</source>
        <translation>as suggested</translation>
    </message>
    <message>
        <source>Ü&amp;bernehmen</source>
        <translation>&amp;Apply</translation>
    </message>
    <message>
        <source>Gilt für die markierten Umsätze, sobald sie gebucht werden. Was leer bleibt, wird nicht geändert.</source>
        <translation>Applies to the selected transactions as soon as they are booked. What is left empty will not be changed.</translation>
    </message>
    <message>
        <source>Im Bericht suchen</source>
        <translation>Find in report</translation>
    </message>
    <message>
        <source>Voriger Fund</source>
        <translation>Previous match</translation>
    </message>
    <message>
        <source>Nächster Fund</source>
        <translation>Next match</translation>
    </message>
    <message>
        <source>{0} von {1}</source>
        <translation>{0} of {1}</translation>
    </message>
    <message>
        <source>Nicht gefunden</source>
        <translation>Not found</translation>
    </message>
    <message>
        <source>Bericht</source>
        <translation>Report</translation>
    </message>
    <message>
        <source>&amp;Kopieren</source>
        <translation>C&amp;opy</translation>
    </message>
    <message>
        <source>&amp;Alles markieren</source>
        <translation>Select &amp;all</translation>
    </message>
    <message>
        <source>&amp;Vergrößern</source>
        <translation>&amp;Zoom in</translation>
    </message>
    <message>
        <source>Verk&amp;leinern</source>
        <translation>Zoom o&amp;ut</translation>
    </message>
    <message>
        <source>&amp;Normale Größe</source>
        <translation>&amp;Normal size</translation>
    </message>
    <message>
        <source>Der letzte Tag liegt vor dem ersten.</source>
        <translation>The last day is before the first.</translation>
    </message>
    <message>
        <source>legt fest, vor welchem Kontostand gewarnt wird; &quot;ohne&quot; entfernt das Limit</source>
        <translation>sets the balance below which you are warned; &quot;ohne&quot; (none) removes the limit</translation>
    </message>
    <message>
        <source>Zu welchem Konto gehören die Umsätze der Kontonummer {0}?
Ein neuer Name legt ein Konto an.</source>
        <translation>To which account do the transactions of account number {0} belong?
A new name creates an account.</translation>
    </message>
    <message>
        <source>Die Spalten sind aus dem Inhalt geraten. Bitte prüfen Sie die Umsätze.</source>
        <translation>The columns were guessed from the contents. Please check the transactions.</translation>
    </message>
    <message>
        <source>1 Umsatz wartet auf die Buchung</source>
        <translation>1 transaction is waiting to be booked</translation>
    </message>
    <message>
        <source>Im Konto {0} gibt es bis {1} Tage vor und nach dem {2} keinen Eintrag in dieser Richtung. „Buchen“ macht aus dem Umsatz einen neuen.</source>
        <translation>Account {0} has no entry in this direction within {1} days before and after {2}. “Book” makes a new one of the transaction.</translation>
    </message>
    <message>
        <source>Das Diagramm wurde nach &apos;{0}&apos; gespeichert.</source>
        <translation>The chart was saved to &apos;{0}&apos;.</translation>
    </message>
    <message>
        <source>Ausgaben je Monat nach Kategorien</source>
        <translation>Expenses per month by category</translation>
    </message>
    <message>
        <source>Einnahmen je Monat nach Kategorien</source>
        <translation>Income per month by category</translation>
    </message>
    <message>
        <source>Noch hat keine Kategorie ein Monatslimit. Sie legen eines unter „Extras“, „Kategorie/Konto bearbeiten“ fest.</source>
        <translation>No category has a monthly limit yet. You set one under “Extras”, “Edit categories/accounts”.</translation>
    </message>
    <message>
        <source>Am {0} fehlen {1} an Ausgaben:</source>
        <translation>On {0}, {1} of expenses are missing:</translation>
    </message>
    <message>
        <source>Am {0} fehlen {1} an Einnahmen:</source>
        <translation>On {0}, {1} of income are missing:</translation>
    </message>
    <message>
        <source>Druckt die gezeigten Einträge oder die Auswertung.</source>
        <translation>Prints the entries shown or the statistics.</translation>
    </message>
    <message>
        <source>Zeigt, wie der Ausdruck aussieht.</source>
        <translation>Shows what the printout will look like.</translation>
    </message>
    <message>
        <source>Zu {0} der Umsätze gibt es noch einen, der derselbe sein kann, zum Beispiel aus einer Datei in einem anderen Format:
{1}
Sollen diese offen bleiben? Bei Nein werden auch sie gebucht.</source>
        <translation>For {0} of the transactions there is another one that may be the same, for example from a file in another format:
{1}
Shall these stay open? With No, they are booked too.</translation>
    </message>
    <message>
        <source>Tag und Betrag nicht erkannt, bitte wählen</source>
        <translation>Day and amount not recognised, please choose</translation>
    </message>
    <message>
        <source>mit Einzelausgaben</source>
        <translation>with one-off expenses</translation>
    </message>
    <message>
        <source>Dr&amp;ucken…</source>
        <translation>P&amp;rint…</translation>
    </message>
    <message>
        <source>&amp;Auch Einträge zeigen, die weniger passen</source>
        <translation>Show entries that fit less well &amp;too</translation>
    </message>
    <message>
        <source>Alle Einträge dieser Tage, zum Beispiel wenn mehrere Umsätze einen Eintrag bezahlen</source>
        <translation>All entries of these days, for example when several transactions pay for one entry</translation>
    </message>
    <message>
        <source>Im Bericht &amp;suchen…</source>
        <translation>&amp;Find in report…</translation>
    </message>
    <message>
        <source>1 Kategorie</source>
        <translation>1 category</translation>
    </message>
    <message numerus="yes">
        <source>{0} Kategorien</source>
        <translation>
            <numerusform>{0} category</numerusform>
            <numerusform>{0} categories</numerusform>
        </translation>
    </message>
    <message>
        <source>… und 1 weitere Zeile</source>
        <translation>… and 1 more line</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ist nicht eindeutig. Bitte schreiben Sie {1} oder {2}.</source>
        <translation>&apos;{0}&apos; is ambiguous. Please write {1} or {2}.</translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos;, mit der das Fenster von Kontorelle zuletzt gearbeitet hat, wurde nicht gefunden. Prüfen Sie den Pfad, oder nennen Sie mit --database eine andere Datei.</source>
        <translation>The database &apos;{0}&apos;, which Kontorelle&apos;s window worked with last, was not found. Please check the path, or name another file with --database.</translation>
    </message>
    <message>
        <source>Kontolimit von &apos;{0}&apos; entfernt</source>
        <translation>Limit of account &apos;{0}&apos; removed</translation>
    </message>
    <message>
        <source>Kontolimit von &apos;{0}&apos; ist nun {1}</source>
        <translation>Limit of account &apos;{0}&apos; is now {1}</translation>
    </message>
    <message>
        <source>MwSt.</source>
        <translation>VAT</translation>
    </message>
    <message>
        <source>--amount und --limit schließen einander aus.</source>
        <translation>--amount and --limit exclude each other.</translation>
    </message>
    <message>
        <source>Betrag und Monatslimit können nicht unter null liegen.</source>
        <translation>Amount and monthly limit cannot be below zero.</translation>
    </message>
    <message>
        <source>--amount ist der Betrag je Intervall und braucht ein wiederkehrendes --interval; ein Monatslimit setzt --limit.</source>
        <translation>--amount is the amount per interval and needs a recurring --interval; --limit sets a monthly limit.</translation>
    </message>
    <message>
        <source>Beim Intervall &apos;{0}&apos; bitte --amount angeben, den Betrag je Intervall: Das Monatslimit ergibt sich daraus.</source>
        <translation>With the interval &apos;{0}&apos; please give --amount, the amount per interval: the monthly limit follows from it.</translation>
    </message>
    <message>
        <source>Betrag, den sie je Intervall vorschlägt; auf den Monat umgerechnet ihr Limit</source>
        <translation>Amount that it proposes per interval; converted to a month, its limit</translation>
    </message>
    <message>
        <source>Monatslimit, wenn das Intervall nicht wiederkehrt</source>
        <translation>Monthly limit, where the interval does not recur</translation>
    </message>
    <message>
        <source>Mehrwertsteuer, die in den Beträgen steckt</source>
        <translation>VAT that the amounts include</translation>
    </message>
    <message>
        <source>Eintrag {0}, &apos;{1}&apos;: {2}</source>
        <translation>Entry {0}, &apos;{1}&apos;: {2}</translation>
    </message>
    <message>
        <source>&quot;change {0} {1}&quot; berichtigt ihn, &quot;delete {0} --yes&quot; löscht ihn.</source>
        <translation>&quot;change {0} {1}&quot; mends it, &quot;delete {0} --yes&quot; deletes it.</translation>
    </message>
    <message>
        <source>{0}: gültige Datenbank, {1}, {2}</source>
        <translation>{0}: valid database, {1}, {2}</translation>
    </message>
    <message>
        <source>Mit --only und --from nennen Sie bitte nur eine Serie.</source>
        <translation>With --only and --from please name one series only.</translation>
    </message>
    <message>
        <source>sagt, was gelöscht würde, und löscht es mit --yes; von einer Serie alles mit ihren Korrekturen, ein Vorkommen oder alles ab einem Tag</source>
        <translation>says what would be deleted, and deletes it with --yes; of a series everything with its corrections, one occurrence or everything from a day on</translation>
    </message>
    <message>
        <source>nur das Vorkommen an diesem Tag: sein Betrag wird null</source>
        <translation>only the occurrence on this day: its amount becomes zero</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; geschrieben.</source>
        <translation>&apos;{0}&apos; written.</translation>
    </message>
    <message>
        <source>Startguthaben {0}</source>
        <translation>Start balance {0}</translation>
    </message>
    <message>
        <source>Einnahmen {0}, Ausgaben {1}, Saldo {2}</source>
        <translation>Income {0}, expenses {1}, balance {2}</translation>
    </message>
    <message>
        <source>Die Datenbank hat {0} nicht angenommen. Sie können die Datei später noch einmal einlesen; was schon übernommen ist, wird dabei erkannt.</source>
        <translation>The database did not accept {0}. You can import the file again later; what is already there will be recognised.</translation>
    </message>
    <message>
        <source>1 Buchung ging mit.</source>
        <translation>1 entry went along.</translation>
    </message>
    <message>
        <source>{0} Buchungen gingen mit.</source>
        <translation>{0} entries went along.</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; geändert</source>
        <translation>&apos;{0}&apos; changed</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; heißt jetzt &apos;{1}&apos;</source>
        <translation>&apos;{0}&apos; is now called &apos;{1}&apos;</translation>
    </message>
    <message>
        <source>{0}, denn Namen dürfen die Zeichen &amp; &apos; &lt; &gt; &quot; ; nicht enthalten.{1}</source>
        <translation>{0}, because names cannot have the characters &amp; &apos; &lt; &gt; &quot; ;.{1}</translation>
    </message>
    <message>
        <source>Was nicht stimmt</source>
        <translation>What is wrong</translation>
    </message>
    <message>
        <source>kein Tag</source>
        <translation>no day</translation>
    </message>
    <message>
        <source>Tag &apos;{0}&apos; nicht lesbar</source>
        <translation>day &apos;{0}&apos; unreadable</translation>
    </message>
    <message>
        <source>kein Intervall</source>
        <translation>no interval</translation>
    </message>
    <message>
        <source>Intervall &apos;{0}&apos; unbekannt</source>
        <translation>interval &apos;{0}&apos; unknown</translation>
    </message>
    <message>
        <source>endet am {0}, vor dem ersten Tag</source>
        <translation>ends on {0}, before its first day</translation>
    </message>
    <message>
        <source>kein Betrag</source>
        <translation>no amount</translation>
    </message>
    <message>
        <source>Betrag &apos;{0}&apos; nicht lesbar</source>
        <translation>amount &apos;{0}&apos; unreadable</translation>
    </message>
    <message>
        <source>Die Datei ist unvollständig. Bitte spielen Sie eine Datensicherung zurück. Es fehlt: {0}</source>
        <translation>The file is incomplete. Please restore a backup. Missing: {0}</translation>
    </message>
    <message>
        <source>Alle Einträge sind zu sehen und zählen mit.</source>
        <translation>All entries can be seen and count.</translation>
    </message>
    <message>
        <source>1 Serie</source>
        <translation>1 series</translation>
    </message>
    <message numerus="yes">
        <source>{0} Serien</source>
        <translation>
            <numerusform>{0} series</numerusform>
            <numerusform>{0} series</numerusform>
        </translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ab {1} gelöscht</source>
        <translation>Deleted &apos;{0}&apos; from {1} on</translation>
    </message>
    <message>
        <source>Möchten Sie &apos;{0}&apos; vom {1} auslassen?
Der Betrag wird null, die Serie läuft weiter.</source>
        <translation>Do you want to skip &apos;{0}&apos; of {1}?
The amount becomes zero, the series goes on.</translation>
    </message>
    <message>
        <source>Möchten Sie die Serie &apos;{0}&apos; ab dem {1} löschen?
Die Vorkommen davor bleiben.</source>
        <translation>Do you want to delete the series &apos;{0}&apos; from {1} on?
The occurrences before that stay.</translation>
    </message>
    <message>
        <source>(kein Tag)</source>
        <translation>(no day)</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; vom {1} gehört zu einer Serie ({2} seit {3}).</source>
        <translation>&apos;{0}&apos; of {1} belongs to a series ({2} since {3}).</translation>
    </message>
    <message>
        <source>Ausgewählt sind {0} Vorkommen von {1}:</source>
        <translation>Selected: {0} occurrences of {1}:</translation>
    </message>
    <message>
        <source>Außerdem werden gelöscht: {0}</source>
        <translation>Deleted as well: {0}</translation>
    </message>
    <message>
        <source>Was möchten Sie löschen?</source>
        <translation>What do you want to delete?</translation>
    </message>
    <message>
        <source>{0}: Der Betrag wird null, alles andere bleibt.</source>
        <translation>{0}: The amount becomes zero, everything else stays.</translation>
    </message>
    <message>
        <source>{0}: Was davor liegt, bleibt.</source>
        <translation>{0}: What lies before it stays.</translation>
    </message>
    <message>
        <source>{0}: Auch alles Vergangene verschwindet, mit allen Korrekturen.</source>
        <translation>{0}: Everything past goes as well, with all corrections.</translation>
    </message>
    <message>
        <source>Nur dieses Mal</source>
        <translation>Only this time</translation>
    </message>
    <message>
        <source>Nur diese Male</source>
        <translation>Only these times</translation>
    </message>
    <message>
        <source>Ganze Serien</source>
        <translation>Whole series</translation>
    </message>
    <message>
        <source>darin {0} % MwSt.: {1}</source>
        <translation>includes {0} % VAT: {1}</translation>
    </message>
    <message>
        <source>{0}, beendet: zuletzt am {1}</source>
        <translation>{0}, ended: last on {1}</translation>
    </message>
    <message>
        <source>Die Serie endet vor ihrem ersten Tag: Sie hat keinen Termin.</source>
        <translation>The series ends before its first day: it has no dates.</translation>
    </message>
    <message>
        <source>Nach Konto: Bitte wählen Sie das Konto, auf dem das Geld ankommt.</source>
        <translation>To account: Please choose the account that receives the money.</translation>
    </message>
    <message>
        <source>Nach Konto: Von &apos;{0}&apos; kann das Geld nur auf ein anderes Konto gehen.</source>
        <translation>To account: Money from &apos;{0}&apos; can only go to another account.</translation>
    </message>
    <message>
        <source>Endet am: Der letzte Tag ({0}) liegt vor dem ersten ({1}).</source>
        <translation>Ends on: The last day ({0}) is before the first one ({1}).</translation>
    </message>
    <message>
        <source>Er wurde inzwischen gelöscht.</source>
        <translation>It has been deleted meanwhile.</translation>
    </message>
    <message>
        <source>Die Kategorie &apos;{0}&apos; gibt es noch nicht.
Soll sie angelegt werden?</source>
        <translation>There is no category &apos;{0}&apos; yet.
Shall it be created?</translation>
    </message>
    <message>
        <source>{0}, Teil</source>
        <translation>{0}, part</translation>
    </message>
    <message>
        <source>Teil eines aufgeteilten Eintrags; zum Bearbeiten öffnen sich alle Teile.</source>
        <translation>Part of a split entry; all parts open for editing.</translation>
    </message>
    <message>
        <source>Haushaltsbuch</source>
        <translation>Household book</translation>
    </message>
    <message>
        <source>Sollen Zeitraum, Konto, Filter, Gruppierung, Spalten und Fenstergröße auf den Anfang zurückgestellt werden?
Ihre Einträge bleiben, wie sie sind.</source>
        <translation>Shall period, account, filter, grouping, columns and window size be set back to the beginning?
Your entries stay as they are.</translation>
    </message>
    <message>
        <source>Einstellungen zurücksetzen</source>
        <translation>Reset settings</translation>
    </message>
    <message>
        <source>Prü&amp;fen…</source>
        <translation>&amp;Check…</translation>
    </message>
    <message>
        <source>passt auf {0} von {1} Umsatz</source>
        <translation>matches {0} of {1} transaction</translation>
    </message>
    <message>
        <source>Kein Umsatz passt zum Filter. Ältere sind ausgeblendet ({0}); ohne den Haken bei „Ältere ausblenden“ sehen Sie auch diese.</source>
        <translation>No transaction matches the filter. Older ones are hidden ({0}); without the tick at “Hide older ones” you see them as well.</translation>
    </message>
    <message>
        <source>Davor gibt es eine weitere Abweichung.</source>
        <translation>There is one more difference before that.</translation>
    </message>
    <message>
        <source>einer davon zu einem vorhandenen Eintrag</source>
        <translation>one of them to an existing entry</translation>
    </message>
    <message>
        <source>Zu einem der Umsätze gibt es noch einen, der derselbe sein kann, zum Beispiel aus einer Datei in einem anderen Format:
{1}
Soll er offen bleiben? Bei Nein wird auch er gebucht.</source>
        <translation>For one of the transactions there is another one that may be the same, for instance from a file in another format:
{1}
Shall it stay open? With No it is booked as well.</translation>
    </message>
    <message>
        <source>Betra&amp;g:</source>
        <translation>A&amp;mount:</translation>
    </message>
    <message>
        <source>Wird vorgeschlagen</source>
        <translation>Is proposed</translation>
    </message>
    <message>
        <source>Wird vorgeschlagen; Monatslimit {0}</source>
        <translation>Is proposed; monthly limit {0}</translation>
    </message>
    <message>
        <source>Die Hauptkategorie &apos;{0}&apos; mit einer Unterkategorie</source>
        <translation>The main category &apos;{0}&apos; with one sub-category</translation>
    </message>
    <message>
        <source>Alles aus &apos;{0}&apos; kommt nach &apos;{1}&apos;: {2} und {3}. Gleichnamige Unterkategorien werden zusammengeführt.
Möchten Sie fortfahren?</source>
        <translation>Everything in &apos;{0}&apos; goes to &apos;{1}&apos;: {2} and {3}. Sub-categories of the same name are merged.
Do you want to continue?</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ist kein Steuersatz. Bitte geben Sie Prozente ein, zum Beispiel 19 oder 7.</source>
        <translation>&apos;{0}&apos; is no tax rate. Please type a percentage, for example 19 or 7.</translation>
    </message>
    <message>
        <source>Bitte geben Sie den Tag des Startguthabens an, zum Beispiel 31.01.2026.</source>
        <translation>Please enter the day of the opening balance, for example 31.01.2026.</translation>
    </message>
    <message>
        <source>Eintrag &amp;bearbeiten…</source>
        <translation>&amp;Edit entry…</translation>
    </message>
    <message>
        <source>Eintrag &amp;löschen…</source>
        <translation>&amp;Delete entry…</translation>
    </message>
    <message>
        <source>Buch prüfen</source>
        <translation>Check book</translation>
    </message>
    <message>
        <source>Startguthaben:</source>
        <translation>Start balance:</translation>
    </message>
    <message>
        <source>Andere Tage wählen Sie mit dem Zeitraum &quot;Freier Zeitraum&quot;.</source>
        <translation>Other days are chosen with the period &quot;Custom period&quot;.</translation>
    </message>
    <message>
        <source>Übernimmt die markierten Umsätze (Eingabetaste)</source>
        <translation>Takes the selected transactions (Enter)</translation>
    </message>
    <message>
        <source>Der Eintrag zeigt damit, wie viel Mehrwertsteuer in seinem Betrag steckt.</source>
        <translation>The entry then shows how much VAT its amount includes.</translation>
    </message>
    <message>
        <source>MwSt. in &amp;Prozent:</source>
        <translation>VAT in &amp;percent:</translation>
    </message>
    <message>
        <source>Kontoli&amp;mit:</source>
        <translation>Account li&amp;mit:</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; neu anlegen…</source>
        <translation>Create &apos;{0}&apos;…</translation>
    </message>
    <message>
        <source>bis:</source>
        <translation>to:</translation>
    </message>
    <message>
        <source>Betrag für diesen Zeitraum &amp;korrigieren…</source>
        <translation>&amp;Correct amount for this period…</translation>
    </message>
    <message>
        <source>&amp;Regeln</source>
        <translation>&amp;Rules</translation>
    </message>
    <message>
        <source>Kontoaus&amp;zug anzeigen</source>
        <translation>Show &amp;statement</translation>
    </message>
    <message>
        <source>&amp;Automatische Datensicherung…</source>
        <translation>&amp;Automatic backup…</translation>
    </message>
    <message>
        <source>&amp;Wählen…</source>
        <translation>&amp;Choose…</translation>
    </message>
    <message>
        <source>Rücktaste</source>
        <translation>Backspace</translation>
    </message>
    <message>
        <source>Ändert die gewählte Korrektur (Eingabetaste)</source>
        <translation>Changes the selected correction (Enter)</translation>
    </message>
    <message>
        <source>Entfernt die gewählte Korrektur (Entf)</source>
        <translation>Removes the selected correction (Del)</translation>
    </message>
    <message>
        <source>Suche schließen (Esc)</source>
        <translation>Close search (Esc)</translation>
    </message>
    <message>
        <source>Nur Umsätze dieses &amp;Imports</source>
        <translation>This &amp;import only</translation>
    </message>
    <message>
        <source>&amp;Kontoauszug anzeigen</source>
        <translation>Sh&amp;ow statement</translation>
    </message>
    <message>
        <source>Diesen &amp;Import durchsehen</source>
        <translation>Review this &amp;import</translation>
    </message>
    <message>
        <source>Der Betrag {0} war für das Intervall &apos;{1}&apos; gemeint. Bitte geben Sie mit --interval auch --amount an, den Betrag je Intervall, oder --limit, das Monatslimit.</source>
        <translation>The amount {0} was meant for the interval &apos;{1}&apos;. With --interval please also give --amount, the amount per interval, or --limit, the monthly limit.</translation>
    </message>
    <message>
        <source>die Serie vom ersten Vorkommen an, das nicht davor liegt</source>
        <translation>the series from the first occurrence on that does not lie before it</translation>
    </message>
    <message>
        <source>kein Zielkonto</source>
        <translation>no target account</translation>
    </message>
    <message>
        <source>Die Einträge konnten nicht gelesen werden.</source>
        <translation>The entries could not be read.</translation>
    </message>
    <message>
        <source>Die Korrektur auf {0} geht dabei verloren.</source>
        <translation>The correction to {0} gets lost.</translation>
    </message>
    <message>
        <source>Lesen Sie den Auszug mit --book-account NAME noch einmal ein.</source>
        <translation>Import the statement again with --book-account NAME.</translation>
    </message>
    <message>
        <source>{0}: {1}, {2}</source>
        <translation>{0}: {1}, {2}</translation>
    </message>
    <message>
        <source>Umsätze gebucht</source>
        <translation>Transactions booked</translation>
    </message>
    <message>
        <source>Die Datenbank ist gesperrt: Ein anderes Programm schreibt gerade hinein. Bitte versuchen Sie es gleich noch einmal.</source>
        <translation>The database is locked: another program is writing to it. Please try again in a moment.</translation>
    </message>
    <message>
        <source>Die Datei der Datenbank ist beschädigt. Bitte spielen Sie eine Sicherung zurück.</source>
        <translation>The file of the database is damaged. Please restore a backup.</translation>
    </message>
    <message>
        <source>Der Datenträger ist voll. Bitte schaffen Sie Platz und versuchen Sie es noch einmal.</source>
        <translation>The disk is full. Please make room and try again.</translation>
    </message>
    <message>
        <source>Der Datenträger meldet einen Fehler beim Lesen oder Schreiben ({0}).</source>
        <translation>The disk reports an error while reading or writing ({0}).</translation>
    </message>
    <message>
        <source>Der Vorgang wurde abgebrochen und nichts davon gespeichert, weil vorher ein Fehler auftrat.</source>
        <translation>The operation was stopped and nothing of it was saved, because an error had occurred before.</translation>
    </message>
    <message>
        <source>Es wurde nichts gespeichert, weil vorher etwas nicht gelesen werden konnte und der Vorgang davon abhängen kann. Bitte versuchen Sie es noch einmal.</source>
        <translation>Nothing was saved, because something could not be read before and the operation may depend on it. Please try again.</translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; ist in Benutzung: {1}.
Auf diesem Rechner läuft dieses Programm nicht. Es kann abgestürzt sein, oder es läuft auf einem anderen. Schreiben zwei Programme zugleich, gehen Daten verloren.
Möchten Sie die Datenbank trotzdem öffnen?</source>
        <translation>The database &apos;{0}&apos; is in use: {1}.
This program does not run on this computer. It may have crashed, or it runs on another one. If two programs write at the same time, data is lost.
Do you want to open the database all the same?</translation>
    </message>
    <message>
        <source>ein Programm, das sie unter einem anderen Namen geöffnet hat</source>
        <translation>a program that has opened it under another name</translation>
    </message>
    <message>
        <source>ein unbekanntes Programm, seit {0}</source>
        <translation>an unknown program, since {0}</translation>
    </message>
    <message>
        <source>{0} (Prozess {1} auf {2}, seit {3})</source>
        <translation>{0} (process {1} on {2}, since {3})</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; verwenden</source>
        <translation>Use &apos;{0}&apos;</translation>
    </message>
    <message>
        <source>&amp;Ohne sie weiter</source>
        <translation>Go on with&amp;out them</translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; wurde nicht gefunden. Daneben liegt, was vom Ersetzen der Datei geblieben ist:
{1}

Möchten Sie eine dieser Dateien wieder als Ihr Buch verwenden?</source>
        <translation>The database &apos;{0}&apos; was not found. Beside it lies what is left of replacing the file:
{1}

Do you want to use one of these files as your book again?</translation>
    </message>
    <message>
        <source>Die Datenbank fehlt</source>
        <translation>The database is missing</translation>
    </message>
    <message>
        <source>Die Datei der Datenbank &apos;{0}&apos; ist beschädigt. Was hier steht, kann unvollständig sein, und es wird nichts mehr gespeichert. &quot;kontorelle-cli restore DATEI&quot; lädt eine Datensicherung; die selbst gemachten liegen im Ordner &apos;{1}&apos;.</source>
        <translation>The file of the database &apos;{0}&apos; is damaged. What is shown here may be incomplete, and nothing is saved any more. &quot;kontorelle-cli restore FILE&quot; loads a backup; those made automatically are in the folder &apos;{1}&apos;.</translation>
    </message>
    <message>
        <source>&amp;Andere Sicherung wählen …</source>
        <translation>Choose &amp;another backup …</translation>
    </message>
    <message>
        <source>&amp;Nur lesen</source>
        <translation>&amp;Read only</translation>
    </message>
    <message>
        <source>Sicherung vom {0} &amp;laden</source>
        <translation>&amp;Load the backup of {0}</translation>
    </message>
    <message>
        <source>Die Datei der Datenbank &apos;{0}&apos; ist beschädigt. Was Sie sehen, kann unvollständig sein, und es wird nichts mehr gespeichert.

{1}

Möchten Sie eine Datensicherung laden? Die beschädigte Datei bleibt unter anderem Namen erhalten.</source>
        <translation>The file of the database &apos;{0}&apos; is damaged. What you see may be incomplete, and nothing is saved any more.

{1}

Do you want to load a backup? The damaged file is kept under another name.</translation>
    </message>
    <message>
        <source>Die Datenbank ist beschädigt</source>
        <translation>The database is damaged</translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; ist in Benutzung: {1}. Auf diesem Rechner läuft dieses Programm nicht. Ist es abgestürzt, löschen Sie die Datei &apos;{2}&apos;, und versuchen Sie es noch einmal. Läuft es auf einem anderen Rechner, beenden Sie es dort; lesende Befehle gehen auch so.</source>
        <translation>The database &apos;{0}&apos; is in use: {1}. This program does not run on this computer. If it has crashed, delete the file &apos;{2}&apos; and try again. If it runs on another computer, close it there; commands that read work all the same.</translation>
    </message>
    <message>
        <source>Das Buch konnte nicht gelesen werden</source>
        <translation>The book could not be read</translation>
    </message>
    <message>
        <source>Was hier stehen müsste, ist nicht bekannt. Ist die Datei beschädigt, laden Sie mit „Datei“, „Datensicherung laden“ eine Sicherung.</source>
        <translation>What should be shown here is not known. If the file is damaged, load a backup with &quot;File&quot;, &quot;Load backup&quot;.</translation>
    </message>
    <message>
        <source>Der Datenträger ist voll.</source>
        <translation>The disk is full.</translation>
    </message>
    <message>
        <source>Die Ausgabe ist unvollständig: {0}</source>
        <translation>The output is incomplete: {0}</translation>
    </message>
    <message>
        <source>Das Buch enthält Trigger oder Sichten, die nicht von Kontorelle stammen: {0}.
Sie werden nicht ausgeführt. Wenn Sie sie nicht selbst angelegt haben, prüfen Sie bitte, woher die Datei kommt.</source>
        <translation>The book contains triggers or views that are not from Kontorelle: {0}.
They are not executed. If you have not made them yourself, please check where the file comes from.</translation>
    </message>
    <message>
        <source>In Zeile {0} beginnt ein Feld, das länger ist als jeder Verwendungszweck (mehr als 1 MB). Die Datei ist beschädigt oder kein Kontoauszug; es wurde nichts übernommen.</source>
        <translation>In line {0} begins a field that is longer than any purpose (more than 1 MB). The file is damaged or no statement; nothing was taken over.</translation>
    </message>
    <message>
        <source>Die Datei &apos;{0}&apos; gibt es schon.</source>
        <translation>The file &apos;{0}&apos; exists already.</translation>
    </message>
    <message>
        <source>Die Datei ist für diesen Datenträger zu groß.</source>
        <translation>The file is too large for this disk.</translation>
    </message>
    <message>
        <source>Dafür fehlen Ihnen in diesem Ordner die Rechte.</source>
        <translation>You do not have the rights for this in this folder.</translation>
    </message>
    <message>
        <source>Der Datenträger kann nur gelesen werden.</source>
        <translation>The disk is read-only.</translation>
    </message>
    <message>
        <source>Den Ordner &apos;{0}&apos; gibt es nicht.</source>
        <translation>The folder &apos;{0}&apos; does not exist.</translation>
    </message>
    <message>
        <source>Der Name ist zu lang.</source>
        <translation>The name is too long.</translation>
    </message>
    <message>
        <source>Der Datenträger meldet einen Fehler beim Schreiben.</source>
        <translation>The disk reports an error while writing.</translation>
    </message>
    <message>
        <source>Ein anderes Programm schreibt gerade dieselbe Datei.</source>
        <translation>Another program is writing the same file at the moment.</translation>
    </message>
    <message>
        <source>Sie ist eine Verknüpfung mit einer Datei, die es nicht gibt.</source>
        <translation>It is a link to a file that does not exist.</translation>
    </message>
    <message>
        <source>Unter diesem Namen gibt es einen Ordner.</source>
        <translation>There is a folder of this name.</translation>
    </message>
    <message>
        <source>Unter diesem Namen gibt es etwas anderes als eine Datei, zum Beispiel ein Gerät.</source>
        <translation>There is something other than a file of this name, a device for example.</translation>
    </message>
    <message>
        <source>Die Datei ist schreibgeschützt.</source>
        <translation>The file is write-protected.</translation>
    </message>
    <message>
        <source>Das Buch konnte nicht vollständig gelesen werden.</source>
        <translation>The book could not be read completely.</translation>
    </message>
    <message>
        <source>Ihr Inhalt konnte nicht zusammengestellt werden. Vielleicht ist der Datenträger voll, auf dem das System Zwischendateien ablegt.</source>
        <translation>Its content could not be put together. Maybe the disk is full on which the system keeps temporary files.</translation>
    </message>
    <message>
        <source>PIN (wird nicht angezeigt):</source>
        <translation>PIN (not shown):</translation>
    </message>
    <message>
        <source>Die PIN lässt sich nur an einem Terminal eingeben. Sonst nennen Sie mit --pin-fd die Nummer einer geöffneten Datei, in der sie als Zeile steht.</source>
        <translation>The PIN can be typed at a terminal only. Otherwise name the number of an open file that has it as a line with --pin-fd.</translation>
    </message>
    <message>
        <source>In der Datei von --pin-fd steht keine weitere PIN.</source>
        <translation>There is no further PIN in the file of --pin-fd.</translation>
    </message>
    <message>
        <source>Die Balken für den TAN-Generator lassen sich im Terminal nicht zeigen. Geben Sie an ihm von Hand ein, eins nach dem anderen:</source>
        <translation>The bars for the TAN generator cannot be shown in a terminal. Type into it by hand, one after the other:</translation>
    </message>
    <message>
        <source>Die TAN lässt sich nur an einem Terminal eingeben. Sonst nennen Sie mit --tan-fd die Nummer einer geöffneten Datei, in der sie als Zeile steht.</source>
        <translation>The TAN can be typed at a terminal only. Otherwise name the number of an open file that has it as a line with --tan-fd.</translation>
    </message>
    <message>
        <source>In der Datei von --tan-fd steht keine weitere TAN.</source>
        <translation>There is no further TAN in the file of --tan-fd.</translation>
    </message>
    <message>
        <source>Das kann keine TAN sein. {0}</source>
        <translation>That cannot be a TAN. {0}</translation>
    </message>
    <message>
        <source>Für diese TAN schickt die Bank ein Bild. Nennen Sie mit --tan-image die Datei, in die es geschrieben werden soll.</source>
        <translation>For this TAN the bank sends a picture. Name the file that it is to be written to with --tan-image.</translation>
    </message>
    <message>
        <source>Das Bild für die TAN steht in der Datei {0} ({1}).</source>
        <translation>The picture for the TAN is in the file {0} ({1}).</translation>
    </message>
    <message>
        <source>Warten auf die Freigabe…</source>
        <translation>Waiting for the approval…</translation>
    </message>
    <message>
        <source>Diese Bank erlaubt keine selbsttätige Abfrage der Freigabe. Starten Sie den Befehl bitte an einem Terminal.</source>
        <translation>This bank does not allow asking for the approval automatically. Please start the command at a terminal.</translation>
    </message>
    <message>
        <source>Drücken Sie die Eingabetaste, sobald Sie freigegeben haben.</source>
        <translation>Press Enter once you have approved.</translation>
    </message>
    <message>
        <source>BLZ</source>
        <translation>Bank code</translation>
    </message>
    <message>
        <source>Bank</source>
        <translation>Bank</translation>
    </message>
    <message>
        <source>Anmeldename</source>
        <translation>Login</translation>
    </message>
    <message>
        <source>Konto der Bank</source>
        <translation>Bank account</translation>
    </message>
    <message>
        <source>Konto im Buch</source>
        <translation>Account in the book</translation>
    </message>
    <message>
        <source>Zuletzt abgerufen</source>
        <translation>Last fetched</translation>
    </message>
    <message>
        <source>TAN-Verfahren</source>
        <translation>TAN procedure</translation>
    </message>
    <message>
        <source>Die Bank schreibt:
{0}</source>
        <translation>The bank says:
{0}</translation>
    </message>
    <message>
        <source>Nötig sind --blz mit einer Bankleitzahl und --login.</source>
        <translation>--blz with a bank code and --login are needed.</translation>
    </message>
    <message>
        <source>Mit --hbci sind 2.2 und 3.0 möglich.</source>
        <translation>--hbci can be 2.2 or 3.0.</translation>
    </message>
    <message>
        <source>Hier gibt --url sie an.</source>
        <translation>Here --url names it.</translation>
    </message>
    <message>
        <source>Dieses TAN-Verfahren bietet die Bank nicht an. Möglich sind:{0}</source>
        <translation>The bank does not offer this TAN procedure. It offers:{0}</translation>
    </message>
    <message>
        <source>Wählen Sie mit --method ein TAN-Verfahren:{0}</source>
        <translation>Choose a TAN procedure with --method:{0}</translation>
    </message>
    <message>
        <source>Wählen Sie mit --medium ein TAN-Medium:{0}</source>
        <translation>Choose a TAN medium with --medium:{0}</translation>
    </message>
    <message>
        <source>Das Konto {0} kann nicht abgerufen werden. Die Bank nennt:{1}</source>
        <translation>Account {0} cannot be fetched. The bank lists:{1}</translation>
    </message>
    <message>
        <source>Gewählt</source>
        <translation>Chosen</translation>
    </message>
    <message>
        <source>ja</source>
        <translation>yes</translation>
    </message>
    <message>
        <source>Diesen Bankzugang gibt es nicht. Die eingerichteten zeigt der Befehl banks.</source>
        <translation>There is no such bank login. The command banks shows those that are set up.</translation>
    </message>
    <message>
        <source>Mit --yes wird entfernt.</source>
        <translation>--yes removes it.</translation>
    </message>
    <message>
        <source>Bankleitzahl</source>
        <translation>Bank code</translation>
    </message>
    <message>
        <source>Anmeldename bei der Bank</source>
        <translation>Login name at the bank</translation>
    </message>
    <message>
        <source>Adresse der Bank; sonst die aus dem Verzeichnis</source>
        <translation>Address of the bank; otherwise the one of the directory</translation>
    </message>
    <message>
        <source>Produktregistrierung der Deutschen Kreditwirtschaft; das Buch merkt sie sich</source>
        <translation>Product registration with the German Banking Industry Committee; the book remembers it</translation>
    </message>
    <message>
        <source>hierhin kommt das Bild einer photoTAN</source>
        <translation>where the picture of a photoTAN is written</translation>
    </message>
    <message>
        <source>zeigt die Bankzugänge mit ihren Konten</source>
        <translation>shows the bank logins with their accounts</translation>
    </message>
    <message>
        <source>richtet einen Bankzugang ein oder ändert ihn</source>
        <translation>sets up a bank login or changes it</translation>
    </message>
    <message>
        <source>TAN-Verfahren: Nummer oder Name aus banks methods</source>
        <translation>TAN procedure: number or name from banks methods</translation>
    </message>
    <message>
        <source>TAN-Medium, wo die Bank eines verlangt</source>
        <translation>TAN medium, where the bank wants one</translation>
    </message>
    <message>
        <source>Konto der Bank und Konto im Buch, mehrfach möglich; ohne Angabe alle</source>
        <translation>account of the bank and account in the book, can be repeated; all when not given</translation>
    </message>
    <message>
        <source>fragt die Bank nach ihren TAN-Verfahren</source>
        <translation>asks the bank for its TAN procedures</translation>
    </message>
    <message>
        <source>entfernt einen Bankzugang; Konten und Umsätze bleiben</source>
        <translation>removes a bank login; accounts and transactions stay</translation>
    </message>
    <message>
        <source>BIC</source>
        <translation>BIC</translation>
    </message>
    <message>
        <source>Ort</source>
        <translation>City</translation>
    </message>
    <message>
        <source>Adresse</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>keine Adresse bekannt</source>
        <translation>no address known</translation>
    </message>
    <message>
        <source>Weitere {0} passen auch. Suchen Sie genauer, zum Beispiel mit der Bankleitzahl.</source>
        <translation>Another {0} fit as well. Search more precisely, for example by bank code.</translation>
    </message>
    <message>
        <source>sucht eine Bank nach Name, Ort, Bankleitzahl, BIC oder IBAN und zeigt die Adresse für das Online-Banking</source>
        <translation>finds a bank by name, city, bank code, BIC or IBAN and shows its address for online banking</translation>
    </message>
    <message>
        <source>liest die PIN als Zeile aus der offenen Datei mit dieser Nummer; sonst fragt das Terminal</source>
        <translation>reads the PIN as a line from the open file of this number; otherwise the terminal asks</translation>
    </message>
    <message>
        <source>ebenso TANs, eine je Zeile</source>
        <translation>likewise TANs, one a line</translation>
    </message>
    <message>
        <source>Kein eingerichtetes Bankkonto passt dazu.</source>
        <translation>No bank account that was set up fits.</translation>
    </message>
    <message>
        <source>ruft neue Umsätze von der Bank ab; sie warten dann auf das Buchen</source>
        <translation>fetches new transactions from the bank; they then wait to be booked</translation>
    </message>
    <message>
        <source>nur die Konten bei dieser Bankleitzahl</source>
        <translation>only the accounts with this bank code</translation>
    </message>
    <message>
        <source>nur die Konten dieses Bankzugangs</source>
        <translation>only the accounts of this login</translation>
    </message>
    <message>
        <source>nur dieses Konto: Kontonummer, IBAN oder Konto im Haushaltsbuch</source>
        <translation>only this account: number, IBAN or account of the book</translation>
    </message>
    <message>
        <source>erster Tag; sonst ab zehn Tagen vor dem letzten Abruf, beim ersten Mal 89 Tage. Für Älteres verlangt die Bank eine TAN</source>
        <translation>first day; else from ten days before the last fetch, the first time 89 days. For older ones the bank wants a TAN</translation>
    </message>
    <message>
        <source>letzter Tag; sonst heute</source>
        <translation>last day; else today</translation>
    </message>
    <message>
        <source>schreibt den Nachrichtenverkehr ohne persönliche Angaben auf</source>
        <translation>writes down the messages without anything personal</translation>
    </message>
    <message>
        <source>Anmeldung bei der Bank</source>
        <translation>Signing in to the bank</translation>
    </message>
    <message>
        <source>Fehler: Ungültige Antwort nach TAN-Eingabe!</source>
        <translation>Error: Invalid answer after the TAN was entered!</translation>
    </message>
    <message>
        <source>Umsätze werden abgerufen: {0}</source>
        <translation>Fetching transactions: {0}</translation>
    </message>
    <message>
        <source>Die Kontodaten konnten nicht abgerufen werden.</source>
        <translation>The account data could not be retrieved.</translation>
    </message>
    <message>
        <source>Kein unterstütztes TAN-Verfahren gefunden.</source>
        <translation>No supported TAN procedure found.</translation>
    </message>
    <message>
        <source>Es wurden keine unterstützen TAN-Verfahren gefunden.</source>
        <translation>No supported TAN procedures were found.</translation>
    </message>
    <message>
        <source>TAN-Medien werden abgefragt</source>
        <translation>Asking for TAN media</translation>
    </message>
    <message>
        <source>Die Kontodaten konnten nicht ermittelt werden.
{0}</source>
        <translation>The account data could not be determined.
{0}</translation>
    </message>
    <message>
        <source>Legen Sie dieses Bankkonto neu an, sollte der Fehler weiterhin bestehen.
{0}</source>
        <translation>Set up this bank account anew if the error persists.
{0}</translation>
    </message>
    <message>
        <source>Die Bank ist nicht erreichbar. Prüfen Sie die Verbindung zum Internet und die Adresse der Bank.</source>
        <translation>The bank cannot be reached. Check the connection to the internet and the address of the bank.</translation>
    </message>
    <message>
        <source>Die Gegenstelle konnte sich nicht als Ihre Bank ausweisen. Es wurde nichts gesendet. Prüfen Sie die Adresse der Bank und ob Sie in einem fremden Netz sind.</source>
        <translation>The other side could not prove to be your bank. Nothing was sent. Check the address of the bank and whether you are in a network of others.</translation>
    </message>
    <message>
        <source>Die Antwort der Bank ist unvollständig oder nicht lesbar. Versuchen Sie es später noch einmal; bleibt es dabei, prüfen Sie die Adresse der Bank.</source>
        <translation>The answer of the bank is incomplete or cannot be read. Try again later; if it stays like that, check the address of the bank.</translation>
    </message>
    <message>
        <source>Die Bank hat den Vorgang beendet. Versuchen Sie es später noch einmal.</source>
        <translation>The bank has ended the process. Try again later.</translation>
    </message>
    <message>
        <source>Es ist keine Produktregistrierung eingetragen, ohne die keine Bank antwortet. Tragen Sie diese unter „Bankzugänge…“ ein. Es wurde nichts gesendet.</source>
        <translation>No product registration is entered, without which no bank answers. Enter it under “Bank logins…”. Nothing was sent.</translation>
    </message>
    <message>
        <source>Die Bank nimmt die Produktregistrierung nicht an. Prüfen Sie, ob sie richtig eingetragen und noch gültig ist.</source>
        <translation>The bank does not accept the product registration. Check whether it is entered correctly and still valid.</translation>
    </message>
    <message>
        <source>Sie haben die falsche PIN eingegeben. Häufige Fehleingaben können zur Sperrung von Ihrem Account führen.</source>
        <translation>You have entered the wrong PIN. Repeated wrong entries can lead to your account being locked.</translation>
    </message>
    <message>
        <source>Ihr Zugang oder Ihre PIN ist gesperrt. Entsperren Sie ihn auf der Internetseite oder in der App Ihrer Bank oder fragen Sie dort nach. Die PIN wurde nicht noch einmal gesendet.</source>
        <translation>Your access or your PIN is locked. Unlock it on the website or in the app of your bank, or ask there. The PIN was not sent again.</translation>
    </message>
    <message>
        <source>Die Bank hat die Anmeldung abgelehnt. Prüfen Sie den Anmeldenamen, und ob der Zugang für Online-Banking mit Programmen (FinTS) freigeschaltet ist.</source>
        <translation>The bank has refused the login. Check the login name, and whether the access is enabled for online banking with programs (FinTS).</translation>
    </message>
    <message>
        <source>Die TAN war falsch oder nicht mehr gültig. Wiederholen Sie den Vorgang mit einer neuen TAN.</source>
        <translation>The TAN was wrong or no longer valid. Repeat the process with a new TAN.</translation>
    </message>
    <message>
        <source>Die Freigabe wurde abgelehnt. Waren Sie das nicht selbst, wenden Sie sich an Ihre Bank.</source>
        <translation>The approval was rejected. If that was not you, contact your bank.</translation>
    </message>
    <message>
        <source>Die Freigabe kam nicht rechtzeitig. Wiederholen Sie den Vorgang und bestätigen Sie ihn in der App Ihrer Bank.</source>
        <translation>The approval did not come in time. Repeat the process and confirm it in the app of your bank.</translation>
    </message>
    <message>
        <source>Die Bank bietet für Ihren Zugang kein TAN-Verfahren an, das dieses Programm kennt. Richten Sie bei der Bank ein anderes ein.</source>
        <translation>The bank offers no TAN procedure for your access that this program knows. Set up another one with the bank.</translation>
    </message>
    <message>
        <source>Die Bank will wissen, welches Gerät die TAN bekommt. Wählen Sie unter „Bankzugänge…“ eines aus.</source>
        <translation>The bank wants to know which device gets the TAN. Choose one under “Bank logins…”.</translation>
    </message>
    <message>
        <source>Die Bank hat keine Konten genannt. Prüfen Sie, ob Ihr Zugang für Online-Banking mit Programmen (FinTS) freigeschaltet ist.</source>
        <translation>The bank has named no accounts. Check whether your access is enabled for online banking with programs (FinTS).</translation>
    </message>
    <message>
        <source>Die Bank stellt für dieses Konto keine Umsätze zum Abruf bereit. Laden Sie dort eine Datei herunter und importieren Sie diese.</source>
        <translation>The bank offers no transactions of this account for fetching. Download a file there and import it.</translation>
    </message>
    <message>
        <source>Abgebrochen.</source>
        <translation>Cancelled.</translation>
    </message>
    <message>
        <source>Die Bank hat den Auftrag nicht ausgeführt. Was sie dazu sagt, steht darunter.</source>
        <translation>The bank has not carried out the order. What it says about that stands below.</translation>
    </message>
    <message>
        <source>Fehler: Der Server &apos;{0}&apos; antwortet nicht oder nicht schnell genug!</source>
        <translation>Error: The server &apos;{0}&apos; does not answer or not fast enough!</translation>
    </message>
    <message>
        <source>Nur PIN</source>
        <translation>PIN only</translation>
    </message>
    <message>
        <source>TAN-Eingabe:</source>
        <translation>TAN:</translation>
    </message>
    <message>
        <source>Die Antwort der Bank kann nicht gelesen werden: {0}</source>
        <translation>The bank&apos;s answer cannot be read: {0}</translation>
    </message>
    <message>
        <source>Was dieser Abruf brachte, konnte nicht vermerkt werden.</source>
        <translation>What this fetch brought could not be noted.</translation>
    </message>
    <message>
        <source>Noch {0} Minuten Zeit</source>
        <translation>{0} minutes left</translation>
    </message>
    <message>
        <source>Die Zeit für die Freigabe ist abgelaufen.</source>
        <translation>The time for the approval is over.</translation>
    </message>
    <message>
        <source>Die Bank wird gefragt…</source>
        <translation>Asking the bank…</translation>
    </message>
    <message>
        <source>Die Bank wird in {0} s gefragt, ob Ihre Freigabe da ist.</source>
        <translation>The bank will be asked for your approval in {0} s.</translation>
    </message>
    <message>
        <source>wird neu angelegt</source>
        <translation>will be added</translation>
    </message>
    <message>
        <source>Wählen Sie mindestens ein Konto aus, dessen Umsätze abgerufen werden sollen.</source>
        <translation>Choose at least one account whose transactions are to be fetched.</translation>
    </message>
    <message>
        <source>Wählen Sie für {0} ein Konto im Buch, oder geben Sie den Namen eines neuen ein.</source>
        <translation>Choose an account in the book for {0}, or type the name of a new one.</translation>
    </message>
    <message>
        <source>Das ist keine deutsche IBAN; das Verzeichnis enthält Banken in Deutschland.</source>
        <translation>This is not a German IBAN; the directory holds banks in Germany.</translation>
    </message>
    <message>
        <source>Eine deutsche IBAN besteht aus DE und 20 Ziffern. Bitte vergleichen Sie sie mit Ihrem Kontoauszug.</source>
        <translation>A German IBAN consists of DE and 20 digits. Please compare it with your bank statement.</translation>
    </message>
    <message>
        <source>In der IBAN steckt ein Tippfehler: Ihre Prüfziffern passen nicht. Bitte vergleichen Sie sie mit Ihrem Kontoauszug.</source>
        <translation>There is a typing error in the IBAN: its check digits do not fit. Please compare it with your bank statement.</translation>
    </message>
    <message>
        <source>Bitte geben Sie Name oder Ort der Bank, ihre Bankleitzahl, BIC oder IBAN ein.</source>
        <translation>Please enter the name or city of the bank, its bank code, BIC or IBAN.</translation>
    </message>
    <message>
        <source>Die Bankleitzahl {0} steht nicht im Verzeichnis. Bitte vergleichen Sie sie mit Ihrem Kontoauszug.</source>
        <translation>The bank code {0} is not in the directory. Please compare it with your bank statement.</translation>
    </message>
    <message>
        <source>Die Bank steht in der IBAN ab der fünften Stelle. Bitte tippen Sie weiter.</source>
        <translation>The bank is named from the fifth character of the IBAN on. Please go on typing.</translation>
    </message>
    <message>
        <source>Das Verzeichnis der Banken lässt sich nicht lesen: Die Datei &apos;banken.tsv&apos; fehlt oder ist leer. Bitte installieren Sie Kontorelle neu.</source>
        <translation>The directory of banks cannot be read: the file &apos;banken.tsv&apos; is missing or empty. Please install Kontorelle again.</translation>
    </message>
    <message>
        <source>Keine Bank gefunden. Versuchen Sie es mit weniger Wörtern, mit dem Ort, der Bankleitzahl oder der IBAN.</source>
        <translation>No bank found. Try fewer words, the city, the bank code or the IBAN.</translation>
    </message>
    <message>
        <source>zuletzt abgerufen am {0}</source>
        <translation>last fetched on {0}</translation>
    </message>
    <message>
        <source>noch nie abgerufen</source>
        <translation>never fetched</translation>
    </message>
    <message>
        <source>Umsätze vom {0} bis {1} wurden nicht abgerufen: {2}</source>
        <translation>Transactions from {0} to {1} were not fetched: {2}</translation>
    </message>
    <message>
        <source>Der Abruf wurde abgebrochen.</source>
        <translation>The fetch was cancelled.</translation>
    </message>
    <message>
        <source>die Bank hält nur die letzten {0} Tage bereit.</source>
        <translation>the bank only keeps the last {0} days.</translation>
    </message>
    <message>
        <source>Die Datenbank ist nur zum Lesen geöffnet. Umsätze können nicht übernommen werden.</source>
        <translation>The database is open for reading only. Transactions cannot be imported.</translation>
    </message>
    <message>
        <source>Der erste Tag, der abgerufen wird, liegt hinter dem letzten. Wählen Sie einen anderen Zeitraum, nicht in der Zukunft.</source>
        <translation>The first day to be fetched lies behind the last one. Choose another period, not in the future.</translation>
    </message>
    <message>
        <source>Umsätze abrufen</source>
        <translation>Fetch transactions</translation>
    </message>
    <message>
        <source>Sie rufen auch Umsätze ab, die vor dem {0} gebucht wurden; dafür verlangt die Bank eine TAN.
Sollen diese älteren Umsätze mit abgerufen werden?</source>
        <translation>You are also fetching transactions booked before {0}; the bank wants a TAN for that.
Shall these older transactions be fetched too?</translation>
    </message>
    <message>
        <source>Ältere Umsätze</source>
        <translation>Older transactions</translation>
    </message>
    <message>
        <source>Sie wollten sie ohne TAN nicht.</source>
        <translation>you did not want them without a TAN.</translation>
    </message>
    <message>
        <source>{0}: Umsätze werden abgerufen …</source>
        <translation>{0}: fetching transactions …</translation>
    </message>
    <message>
        <source>Ohne PIN wurde nichts abgerufen.</source>
        <translation>Without a PIN nothing was fetched.</translation>
    </message>
    <message>
        <source>Die Bank hat zu diesem Konto nichts geschickt.</source>
        <translation>The bank has sent nothing about this account.</translation>
    </message>
    <message>
        <source>Die Umsätze werden übernommen …</source>
        <translation>Importing the transactions …</translation>
    </message>
    <message>
        <source>Die Datenbank hat die Umsätze nicht angenommen.</source>
        <translation>The database has not taken the transactions.</translation>
    </message>
    <message>
        <source>{0} am {1}</source>
        <translation>{0} on {1}</translation>
    </message>
    <message>
        <source>Keine neuen Umsätze.</source>
        <translation>No new transactions.</translation>
    </message>
    <message>
        <source>Ein neuer Umsatz.</source>
        <translation>One new transaction.</translation>
    </message>
    <message>
        <source>{0} neue Umsätze.</source>
        <translation>{0} new transactions.</translation>
    </message>
    <message>
        <source>Es konnte nichts abgerufen werden.</source>
        <translation>Nothing could be fetched.</translation>
    </message>
    <message>
        <source>Ein Konto wurde nicht oder nicht ganz abgerufen.</source>
        <translation>One account was not fetched, or not completely.</translation>
    </message>
    <message>
        <source>{0} Konten wurden nicht oder nicht ganz abgerufen.</source>
        <translation>{0} accounts were not fetched, or not completely.</translation>
    </message>
    <message>
        <source>Soll der Zugang {0} bei {1} entfernt werden?
Konten und Umsätze bleiben im Buch, es wird nur nichts mehr abgerufen.</source>
        <translation>Remove the login {0} at {1}?
Accounts and transactions stay in the book, only nothing is fetched any more.</translation>
    </message>
    <message>
        <source>Bankzugang entfernen</source>
        <translation>Remove bank login</translation>
    </message>
    <message>
        <source>Noch kein Bankzugang</source>
        <translation>No bank login yet</translation>
    </message>
    <message>
        <source>noch nie</source>
        <translation>never</translation>
    </message>
    <message>
        <source>Es wurde noch keine Nachricht gesendet.</source>
        <translation>No message has been sent yet.</translation>
    </message>
    <message>
        <source>PIN und TAN stehen nirgends in diesem Protokoll. Gespeichert und gesendet wird eine Fassung, in der auch Anmeldename, Kontonummern, Namen und Verwendungszwecke unkenntlich sind.</source>
        <translation>PIN and TAN are nowhere in this log. What is saved and sent is a version in which login, account numbers, names and purposes are hidden as well.</translation>
    </message>
    <message>
        <source>Bankprotokoll {0}.txt</source>
        <translation>Bank log {0}.txt</translation>
    </message>
    <message>
        <source>Protokoll speichern</source>
        <translation>Save log</translation>
    </message>
    <message>
        <source>Text|*.txt|Alle Dateien|*.*</source>
        <translation>Text|*.txt|All files|*.*</translation>
    </message>
    <message>
        <source>Kontorelle: Protokoll einer Bankabfrage</source>
        <translation>Kontorelle: log of a bank query</translation>
    </message>
    <message>
        <source>Im Anhang ist das Protokoll. Was habe ich getan, und was ist geschehen?
</source>
        <translation>The log is attached. What did I do, and what happened?
</translation>
    </message>
    <message>
        <source>Ihr E-Mail-Programm öffnet einen Entwurf. Fehlt darin der Anhang, hängen Sie bitte diese Datei an: {0}</source>
        <translation>Your mail program opens a draft. If its attachment is missing, please attach this file: {0}</translation>
    </message>
    <message>
        <source>Es wurde kein E-Mail-Programm gefunden. Das Protokoll liegt in der Datei {0}</source>
        <translation>No mail program was found. The log is in the file {0}</translation>
    </message>
    <message>
        <source>Suchen Sie Ihre Bank und wählen Sie sie aus der Liste.</source>
        <translation>Search for your bank and choose it from the list.</translation>
    </message>
    <message>
        <source>Für diese Bank ist keine Adresse für das Online-Banking mit Programmen (FinTS) bekannt; manche Banken bieten es nicht an. Kennen Sie die Adresse von Ihrer Bank, tragen Sie sie unter „Erweitert“ ein. Sonst laden Sie Kontoauszüge bei Ihrer Bank herunter und lesen sie mit „Datei“, „Kontoauszug importieren“ ein.</source>
        <translation>No address for online banking with programs (FinTS) is known for this bank; some banks do not offer it. If your bank has told you the address, enter it under “Advanced”. Otherwise download statements from your bank and read them with “File”, “Import statement”.</translation>
    </message>
    <message>
        <source>Die Adresse der Bank muss mit https:// beginnen. Prüfen Sie sie unter „Erweitert“.</source>
        <translation>The address of the bank must begin with https://. Check it under “Advanced”.</translation>
    </message>
    <message>
        <source>Geben Sie den Anmeldenamen ein, mit dem Sie sich beim Online-Banking Ihrer Bank anmelden.</source>
        <translation>Enter the name with which you log in to your bank&apos;s online banking.</translation>
    </message>
    <message>
        <source>Dieser Zugang ist schon eingerichtet. Ändern Sie ihn unter „Bankzugänge…“.</source>
        <translation>This login is set up already. Change it under “Bank logins…”.</translation>
    </message>
    <message>
        <source>Tragen Sie die Produktregistrierung ein. Ohne sie antwortet keine Bank, und es wird nichts gesendet.</source>
        <translation>Enter the product registration. Without it no bank answers, and nothing is sent.</translation>
    </message>
    <message>
        <source>Abgebrochen. Es wurde nichts gesendet.</source>
        <translation>Cancelled. Nothing was sent.</translation>
    </message>
    <message>
        <source>Bankzugang eingerichtet: {0}</source>
        <translation>Bank login set up: {0}</translation>
    </message>
    <message>
        <source>Für ältere Umsätze verlangt die Bank meist eine TAN.</source>
        <translation>For older transactions most banks ask for a TAN.</translation>
    </message>
    <message>
        <source>&amp;Breite: {0} mm</source>
        <translation>&amp;Width: {0} mm</translation>
    </message>
    <message>
        <source>&amp;Tempo: {0} Bilder je Sekunde</source>
        <translation>&amp;Speed: {0} pictures per second</translation>
    </message>
    <message>
        <source>&amp;Größe: {0} mm</source>
        <translation>Si&amp;ze: {0} mm</translation>
    </message>
    <message>
        <source>Halten Sie den TAN-Generator mit eingesteckter Karte vor die Balken, seine Marken an den Dreiecken.</source>
        <translation>Hold the TAN generator with your card in it against the bars, its marks at the triangles.</translation>
    </message>
    <message>
        <source>Nehmen Sie das Bild mit der App oder dem Lesegerät Ihrer Bank auf.</source>
        <translation>Scan the picture with the app or the reader of your bank.</translation>
    </message>
    <message>
        <source>Ihre Bank verlangt eine TAN.</source>
        <translation>Your bank asks for a TAN.</translation>
    </message>
    <message>
        <source>Ihre Bank verlangt, dass Sie den Zugriff in ihrer App freigeben.</source>
        <translation>Your bank wants you to approve the access in its app.</translation>
    </message>
    <message>
        <source>Höchstens {0} Ziffern</source>
        <translation>{0} digits at most</translation>
    </message>
    <message>
        <source>Höchstens {0} Zeichen</source>
        <translation>{0} characters at most</translation>
    </message>
    <message>
        <source>Nur Ziffern</source>
        <translation>Digits only</translation>
    </message>
    <message>
        <source>{0} (Freigabe in der App)</source>
        <translation>{0} (approval in the app)</translation>
    </message>
    <message>
        <source>Diese Bank gibt auf diesem Weg keine Umsätze heraus.</source>
        <translation>This bank does not give out transactions this way.</translation>
    </message>
    <message>
        <source>Für dieses Konto gibt die Bank keine Umsätze heraus.</source>
        <translation>The bank does not give out transactions of this account.</translation>
    </message>
    <message>
        <source>Banken antworten nur Programmen, die bei der Deutschen Kreditwirtschaft registriert sind. Die Registrierungsnummer gibt es kostenlos unter www.fints.org im Bereich für Hersteller („Produktregistrierung“). Sie gilt für das ganze Buch. Ohne sie wird nichts gesendet.</source>
        <translation>Banks answer only programs that are registered with the German Banking Industry Committee. The registration number is free of charge at www.fints.org in the section for manufacturers (“Produktregistrierung”). It holds for the whole book. Without it nothing is sent.</translation>
    </message>
    <message>
        <source>wartet</source>
        <translation>waiting</translation>
    </message>
    <message>
        <source>wird abgerufen …</source>
        <translation>being fetched …</translation>
    </message>
    <message>
        <source>wird übernommen …</source>
        <translation>being taken over …</translation>
    </message>
    <message>
        <source>Die Bank schreibt: {0}</source>
        <translation>The bank writes: {0}</translation>
    </message>
    <message>
        <source>&amp;Umsätze abrufen</source>
        <translation>&amp;Fetch transactions</translation>
    </message>
    <message>
        <source>Holt die neuen Umsätze Ihrer Bankkonten ab.</source>
        <translation>Fetches the new transactions of your bank accounts.</translation>
    </message>
    <message>
        <source>&amp;Bankzugänge…</source>
        <translation>&amp;Bank logins…</translation>
    </message>
    <message>
        <source>Richtet ein, bei welchen Banken Umsätze abgerufen werden.</source>
        <translation>Sets up the banks from which transactions are fetched.</translation>
    </message>
    <message>
        <source>Umsätze abgerufen</source>
        <translation>Transactions fetched</translation>
    </message>
    <message>
        <source>früher abgerufen und von Ihnen gelöscht</source>
        <translation>fetched before and deleted by you</translation>
    </message>
    <message>
        <source>{0} früher gelöscht</source>
        <translation>{0} deleted before</translation>
    </message>
    <message>
        <source>Welche Konten sollen abgerufen werden, und zu welchen Konten im Buch gehören sie? Ein neuer Name legt ein Konto an.</source>
        <translation>Which accounts are to be fetched, and to which accounts in the book do they belong? A new name adds an account.</translation>
    </message>
    <message>
        <source>Erste Umsätze ab de&amp;m:</source>
        <translation>First transactions fro&amp;m:</translation>
    </message>
    <message>
        <source>Konto im Buch für {0}</source>
        <translation>Account in the book for {0}</translation>
    </message>
    <message>
        <source>Die PIN wird abgefragt, sobald die Bank angesprochen wird. Sie wird nicht gespeichert.</source>
        <translation>You are asked for the PIN as soon as the bank is contacted. It is not stored.</translation>
    </message>
    <message>
        <source>&amp;Produktregistrierung:</source>
        <translation>&amp;Product registration:</translation>
    </message>
    <message>
        <source>&amp;Anmeldename oder Legitimations-ID:</source>
        <translation>&amp;Login name:</translation>
    </message>
    <message>
        <source>TAN-&amp;Medium:</source>
        <translation>TAN &amp;medium:</translation>
    </message>
    <message>
        <source>Womit geben Sie Vorgänge bei dieser Bank frei? Die Bank verlangt beim ersten Mal und danach etwa alle 180 Tage eine Freigabe.</source>
        <translation>With what do you approve orders at this bank? The bank wants an approval the first time and then about every 180 days.</translation>
    </message>
    <message>
        <source>&amp;TAN-Verfahren:</source>
        <translation>&amp;TAN procedure:</translation>
    </message>
    <message>
        <source>&amp;Erweitert</source>
        <translation>&amp;Advanced</translation>
    </message>
    <message>
        <source>&amp;Bank suchen (Name, Ort, Bankleitzahl, BIC oder IBAN):</source>
        <translation>&amp;Search bank (name, city, bank code, BIC or IBAN):</translation>
    </message>
    <message>
        <source>Gefundene Banken</source>
        <translation>Banks found</translation>
    </message>
    <message>
        <source>FinTS 3.0</source>
        <translation>FinTS 3.0</translation>
    </message>
    <message>
        <source>HBCI 2.2</source>
        <translation>HBCI 2.2</translation>
    </message>
    <message>
        <source>&amp;Adresse der Bank:</source>
        <translation>A&amp;ddress of the bank:</translation>
    </message>
    <message>
        <source>&amp;Protokoll:</source>
        <translation>&amp;Protocol:</translation>
    </message>
    <message>
        <source>Saldo laut Bank</source>
        <translation>Balance at the bank</translation>
    </message>
    <message>
        <source>Konten, die abgerufen werden</source>
        <translation>Accounts to be fetched</translation>
    </message>
    <message>
        <source>wird gefragt</source>
        <translation>will be asked</translation>
    </message>
    <message>
        <source>Flickercode für den TAN-Generator</source>
        <translation>Flicker code for the TAN generator</translation>
    </message>
    <message>
        <source>Bild für die TAN</source>
        <translation>Picture for the TAN</translation>
    </message>
    <message>
        <source>&amp;Konten:</source>
        <translation>&amp;Accounts:</translation>
    </message>
    <message>
        <source>Der Abruf läuft</source>
        <translation>The transactions are being fetched</translation>
    </message>
    <message>
        <source>seit dem letzten Abruf</source>
        <translation>since the last fetch</translation>
    </message>
    <message>
        <source>von … bis …</source>
        <translation>from … to …</translation>
    </message>
    <message>
        <source>Erster Tag</source>
        <translation>First day</translation>
    </message>
    <message>
        <source>Letzter Tag</source>
        <translation>Last day</translation>
    </message>
    <message>
        <source>Zur &amp;Durchsicht</source>
        <translation>To the &amp;review</translation>
    </message>
    <message>
        <source>&amp;Abrufen</source>
        <translation>&amp;Fetch</translation>
    </message>
    <message>
        <source>&amp;Protokoll…</source>
        <translation>&amp;Log…</translation>
    </message>
    <message>
        <source>Wählen Sie mindestens ein Konto.</source>
        <translation>Choose at least one account.</translation>
    </message>
    <message>
        <source>Der Abruf wird beendet …</source>
        <translation>The fetch is being ended …</translation>
    </message>
    <message>
        <source>&amp;Bankzugang einrichten…</source>
        <translation>&amp;Set up a bank login…</translation>
    </message>
    <message>
        <source>&amp;Zurück</source>
        <translation>&amp;Back</translation>
    </message>
    <message>
        <source>Bankzugang einrichten</source>
        <translation>Set up bank login</translation>
    </message>
    <message>
        <source>Bankzugang ändern</source>
        <translation>Change bank login</translation>
    </message>
    <message>
        <source>Der Vorgang wird abgebrochen …</source>
        <translation>Cancelling …</translation>
    </message>
    <message>
        <source>&amp;Fertigstellen</source>
        <translation>&amp;Finish</translation>
    </message>
    <message>
        <source>&amp;Weiter</source>
        <translation>&amp;Next</translation>
    </message>
    <message>
        <source>&amp;Neuer Zugang…</source>
        <translation>&amp;New login…</translation>
    </message>
    <message>
        <source>&amp;Entfernen…</source>
        <translation>&amp;Remove…</translation>
    </message>
    <message>
        <source>Bankzugänge</source>
        <translation>Bank logins</translation>
    </message>
    <message>
        <source>Wählt ein anderes TAN-Verfahren, TAN-Medium oder andere Konten</source>
        <translation>Chooses another TAN procedure, TAN medium or other accounts</translation>
    </message>
    <message>
        <source>PIN eingeben</source>
        <translation>Enter PIN</translation>
    </message>
    <message>
        <source>&amp;PIN für das Online-Banking:</source>
        <translation>&amp;PIN for online banking:</translation>
    </message>
    <message>
        <source>Die PIN wird nicht gespeichert. Nach mehreren falschen Eingaben sperrt die Bank Ihren Zugang.</source>
        <translation>The PIN is not stored. After several wrong entries the bank locks your access.</translation>
    </message>
    <message>
        <source>Protokoll der Bankabfrage</source>
        <translation>Log of the bank query</translation>
    </message>
    <message>
        <source>Nachrichten</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>&amp;Speichern…</source>
        <translation>&amp;Save…</translation>
    </message>
    <message>
        <source>Per &amp;E-Mail senden…</source>
        <translation>Send by &amp;mail…</translation>
    </message>
    <message>
        <source>TAN eingeben</source>
        <translation>Enter TAN</translation>
    </message>
    <message>
        <source>TAN &amp;senden</source>
        <translation>Send &amp;TAN</translation>
    </message>
    <message>
        <source>Auf dem &amp;Kopf</source>
        <translation>&amp;Upside down</translation>
    </message>
    <message>
        <source>Freigabe</source>
        <translation>Approval</translation>
    </message>
    <message>
        <source>Jetzt &amp;prüfen</source>
        <translation>&amp;Check now</translation>
    </message>
    <message>
        <source>Die Bank will wissen, welches TAN-Medium Sie benutzen. Wählen Sie es aus.</source>
        <translation>The bank wants to know which TAN medium you use. Choose one.</translation>
    </message>
    <message>
        <source>Protoko&amp;ll…</source>
        <translation>&amp;Log…</translation>
    </message>
    <message>
        <source>Umsätze werden gebucht …</source>
        <translation>Booking transactions …</translation>
    </message>
    <message>
        <source>Die Shell &apos;{0}&apos; ist nicht bekannt: bash, zsh oder fish.</source>
        <translation>The shell &apos;{0}&apos; is not known: bash, zsh or fish.</translation>
    </message>
    <message>
        <source>schreibt die Vervollständigung der Befehle für eine Shell</source>
        <translation>writes the completion of the commands for a shell</translation>
    </message>
    <message>
        <source>ÜBERSICHT</source>
        <translation>SYNOPSIS</translation>
    </message>
    <message>
        <source>DATEIEN</source>
        <translation>FILES</translation>
    </message>
    <message>
        <source>das Haushaltsbuch, wenn kein anderes gewählt ist; daneben die Sicherungen</source>
        <translation>the accounts book, unless another one is chosen; its backups lie beside it</translation>
    </message>
    <message>
        <source>das Haushaltsbuch auf der Befehlszeile</source>
        <translation>household accounts on the command line</translation>
    </message>
    <message>
        <source>BESCHREIBUNG</source>
        <translation>DESCRIPTION</translation>
    </message>
    <message>
        <source>Liest und schreibt dieselbe Datenbank wie das Fenster: Kontoauszüge einlesen oder abrufen, Umsätze zuordnen und buchen, Einträge ausgeben, Berichte und Diagramme.</source>
        <translation>Reads and writes the same database as the window: reads or fetches bank statements, matches and books transactions, lists entries, makes reports and charts.</translation>
    </message>
    <message>
        <source>BEFEHLE</source>
        <translation>COMMANDS</translation>
    </message>
    <message>
        <source>ALLGEMEINE OPTIONEN</source>
        <translation>GENERAL OPTIONS</translation>
    </message>
    <message>
        <source>die Datenbank; ohne Angabe die, die auch das Fenster öffnet</source>
        <translation>the database; without it the one that the window opens too</translation>
    </message>
    <message>
        <source>Datenordner und Einstellungen liegen unter diesem Ordner</source>
        <translation>data folder and settings lie below this folder</translation>
    </message>
    <message>
        <source>ERGEBNIS</source>
        <translation>EXIT STATUS</translation>
    </message>
    <message>
        <source>0 erledigt, 1 fehlgeschlagen, 2 falscher Aufruf. Meldungen gehen auf die Fehlerausgabe.</source>
        <translation>0 done, 1 failed, 2 wrong call. Messages go to the error output.</translation>
    </message>
    <message>
        <source>SIEHE AUCH</source>
        <translation>SEE ALSO</translation>
    </message>
    <message>
        <source>das Haushaltsbuch</source>
        <translation>household accounts</translation>
    </message>
    <message>
        <source>Einnahmen und Ausgaben eines Haushalts, einmalig, wiederkehrend oder aufgeteilt, mit Kontoauszügen aus Dateien oder von der Bank, Berichten und Diagrammen.</source>
        <translation>Income and expenses of a household, once, recurring or split, with bank statements from files or from the bank, reports and charts.</translation>
    </message>
    <message>
        <source>OPTIONEN</source>
        <translation>OPTIONS</translation>
    </message>
    <message>
        <source>Handbuchseiten gibt es für {0} und {1}.</source>
        <translation>There are manual pages for {0} and {1}.</translation>
    </message>
    <message>
        <source>schreibt die Handbuchseite (man) eines der beiden Programme</source>
        <translation>writes the manual page (man) of one of the two programs</translation>
    </message>
    <message>
        <source>Eintrag {0}: {1}</source>
        <translation>Entry {0}: {1}</translation>
    </message>
    <message>
        <source>nur, was im Buch steht oder sicher ist</source>
        <translation>only what is in the book or certain</translation>
    </message>
    <message>
        <source>Umsätze, die einen Eintrag haben, diesem zuordnen</source>
        <translation>assign transactions that have an entry to it</translation>
    </message>
    <message>
        <source>{0}, am {1}</source>
        <translation>{0}, on {1}</translation>
    </message>
    <message>
        <source>Bitte nennen Sie nach der Nummer den Tag und dann den neuen Betrag oder --day, --skip oder --remove; oder nur --list.</source>
        <translation>After the number, please name the day and then the new amount or --day, --skip or --remove; or only --list.</translation>
    </message>
    <message>
        <source>gibt einem Vorkommen einer Serie einen anderen Betrag oder Tag, oder zeigt alle Korrekturen</source>
        <translation>gives an occurrence of a series another amount or day, or shows all corrections</translation>
    </message>
    <message>
        <source>das Vorkommen auf diesen Tag verschieben</source>
        <translation>move the occurrence to this day</translation>
    </message>
    <message>
        <source>Offen bleiben: {0}; &quot;propose&quot; zeigt, warum.</source>
        <translation>Left open: {0}; &quot;propose&quot; shows why.</translation>
    </message>
    <message>
        <source>  mehrfach gleich: {0}</source>
        <translation>  repeated: {0}</translation>
    </message>
    <message>
        <source>Mit --skip-stray-details wird die Datei ohne diese Zeilen gelesen.</source>
        <translation>With --skip-stray-details the file is read without these lines.</translation>
    </message>
    <message>
        <source>auch Umsätze übernehmen, die im Auszug mehrmals gleich stehen und die kein Kontostand der Bank belegt</source>
        <translation>also take transactions that stand more than once in the statement and that no balance of the bank confirms</translation>
    </message>
    <message>
        <source>Ein Umsatz steht im Auszug noch einmal gleich und wurde nicht übernommen, weil kein Kontostand der Bank ihn belegt. Mit --take-equal wird er übernommen.</source>
        <translation>One transaction stands in the statement once more and was not taken because no balance of the bank confirms it. With --take-equal it is taken.</translation>
    </message>
    <message>
        <source>{0} Umsätze stehen im Auszug noch einmal gleich und wurden nicht übernommen, weil kein Kontostand der Bank sie belegt. Mit --take-equal werden sie übernommen.</source>
        <translation>{0} transactions stand in the statement once more and were not taken because no balance of the bank confirms them. With --take-equal they are taken.</translation>
    </message>
    <message>
        <source>MT940: Angaben (:86:) vor dem ersten Umsatz eines Auszugs übergehen, statt die Datei abzulehnen</source>
        <translation>MT940: pass over details (:86:) before the first transaction of a statement instead of refusing the file</translation>
    </message>
    <message>
        <source>danach zuordnen und buchen, was im Buch steht oder sicher ist</source>
        <translation>then assign and book what is in the book or certain</translation>
    </message>
    <message>
        <source>beim ersten Auszug eines Kontos kein Startguthaben eintragen</source>
        <translation>enter no opening balance with the first statement of an account</translation>
    </message>
    <message>
        <source>Der Aufbau &quot;{0}&quot; gilt nun für alle Dateien mit denselben Spaltennamen.</source>
        <translation>The layout &quot;{0}&quot; now holds for all files with the same column names.</translation>
    </message>
    <message>
        <source>zeigt die Namen der bekannten Tabellen von Banken, für --profile-name</source>
        <translation>shows the names of the known tables of banks, for --profile-name</translation>
    </message>
    <message>
        <source>schreibt in eine kleine Textdatei, wie die Tabelle DATEI gelesen wird, zum Weitergeben</source>
        <translation>writes to a small text file how the table DATEI is read, to be shared</translation>
    </message>
    <message>
        <source>merkt sich den Aufbau aus einer solchen Textdatei für alle Dateien mit denselben Spaltennamen</source>
        <translation>remembers the layout of such a text file for all files with the same column names</translation>
    </message>
    <message>
        <source>Solange sich Bank und Buch unterscheiden, wird nichts vermerkt.</source>
        <translation>While bank and book differ, nothing is noted.</translation>
    </message>
    <message>
        <source>vergleicht ein Bankkonto Umsatz für Umsatz mit dem Buch</source>
        <translation>compares a bank account with the book transaction by transaction</translation>
    </message>
    <message>
        <source>letzter Tag; sonst der des neuesten Kontostands der Bank</source>
        <translation>last day; else that of the bank&apos;s newest balance</translation>
    </message>
    <message>
        <source>Einträgen mit anderem Tag oder Betrag beides von der Bank geben, und das Startguthaben anpassen</source>
        <translation>give entries with another day or amount both from the bank, and adjust the opening balance</translation>
    </message>
    <message>
        <source>vermerken, dass Bank und Buch bis dahin übereinstimmen</source>
        <translation>note that bank and book agree up to then</translation>
    </message>
    <message>
        <source>beendet Serien, die die Bank nicht mehr bucht, und verschiebt Buchungen, die ausstehen</source>
        <translation>ends series that the bank no longer books, and moves bookings that are outstanding</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ist ein Ordner. Geben Sie Dateien an.</source>
        <translation>&apos;{0}&apos; is a folder. Please name files.</translation>
    </message>
    <message>
        <source>Die Datei &apos;{0}&apos; gibt es nicht.</source>
        <translation>There is no file &apos;{0}&apos;.</translation>
    </message>
    <message>
        <source>Es kann nur ein Haushaltsbuch geöffnet werden, nicht &apos;{0}&apos; und &apos;{1}&apos; zugleich.</source>
        <translation>Only one accounts book can be opened, not &apos;{0}&apos; and &apos;{1}&apos; at once.</translation>
    </message>
    <message>
        <source>Angaben ohne Umsatz wurden übergangen: {0}</source>
        <translation>Details without a transaction were passed over: {0}</translation>
    </message>
    <message>
        <source>die Serie hat für diesen Zeitraum schon einen Umsatz</source>
        <translation>the series has a transaction for this period already</translation>
    </message>
    <message>
        <source>die Gegenbuchung steht nicht als Umbuchung im Buch</source>
        <translation>the other side is not a transfer in the book</translation>
    </message>
    <message>
        <source>Geldautomat</source>
        <translation>Cash machine</translation>
    </message>
    <message>
        <source>{0}; unsicher, andere sind anders gebucht</source>
        <translation>{0}; not sure, others are booked differently</translation>
    </message>
    <message>
        <source>Bargeld: an {0}</source>
        <translation>cash: to {0}</translation>
    </message>
    <message>
        <source>Bargeld: von {0}</source>
        <translation>cash: from {0}</translation>
    </message>
    <message>
        <source>Stichwort: {0}</source>
        <translation>keyword: {0}</translation>
    </message>
    <message>
        <source>bekannt: {0}</source>
        <translation>known: {0}</translation>
    </message>
    <message>
        <source>Die Datei lässt offen, ob der Tag oder der Monat vorn steht. Gelesen wurde der Tag zuerst.</source>
        <translation>The file leaves open whether day or month comes first. It was read with the day first.</translation>
    </message>
    <message>
        <source>Die Datei sagt nicht sicher, welche Beträge Ausgaben und welche Einnahmen sind.</source>
        <translation>The file does not say for certain which amounts are expenses and which are income.</translation>
    </message>
    <message>
        <source>Kreditkarte</source>
        <translation>Credit card</translation>
    </message>
    <message>
        <source>Bankkonto</source>
        <translation>Bank account</translation>
    </message>
    <message>
        <source>Die Bankleitzahl des Kontos konnte nicht gespeichert werden.</source>
        <translation>The bank code of the account could not be saved.</translation>
    </message>
    <message>
        <source>{0}: {1} Entpacken Sie das Archiv und lesen Sie diese Datei einzeln ein.</source>
        <translation>{0}: {1} Unpack the archive and read this file on its own.</translation>
    </message>
    <message>
        <source>Die Datei ist kein Aufbau: sie beginnt nicht mit &quot;{0}&quot;.</source>
        <translation>The file is no layout: it does not begin with &quot;{0}&quot;.</translation>
    </message>
    <message>
        <source>Zeile {0} ist nicht zu verstehen: {1}</source>
        <translation>Line {0} cannot be understood: {1}</translation>
    </message>
    <message>
        <source>Die Datei ist leer.</source>
        <translation>The file is empty.</translation>
    </message>
    <message>
        <source>Dem Aufbau fehlen die Spalten für Tag und Betrag.</source>
        <translation>The layout lacks the columns for day and amount.</translation>
    </message>
    <message>
        <source>Tag und Monat sind in der Datei nicht zu unterscheiden. Gelesen wurde zuerst der Tag, dann der Monat.</source>
        <translation>Day and month cannot be told apart in the file. The day was read first, then the month.</translation>
    </message>
    <message>
        <source>Hier beginnt ein weiterer Abschnitt der Datei; gelesen wurde er als Konto {0}.</source>
        <translation>Another part of the file begins here; it was read as account {0}.</translation>
    </message>
    <message>
        <source>Hier beginnt ein weiterer Abschnitt der Datei, &quot;{0}&quot;; gelesen wurde er als Konto {1}.</source>
        <translation>Another part of the file begins here, &quot;{0}&quot;; it was read as account {1}.</translation>
    </message>
    <message>
        <source>Von hier an wurde die Datei nicht gelesen: zu viele Abschnitte.</source>
        <translation>From here on the file was not read: too many parts.</translation>
    </message>
    <message>
        <source>Ob die Gebühren in der Spalte &quot;{0}&quot; schon im Betrag enthalten sind, sagt die Datei nicht. Sie wurden nicht abgezogen.</source>
        <translation>The file does not say whether the fees in the column &quot;{0}&quot; are part of the amount. They were not deducted.</translation>
    </message>
    <message>
        <source>Der Zeile fehlt ein Feld; Name und Zweck können vertauscht sein: {0}</source>
        <translation>The line lacks a field; name and purpose may be mixed up: {0}</translation>
    </message>
    <message>
        <source>Die Zeile hat ein Feld zu viel; Name und Zweck können vertauscht sein: {0}</source>
        <translation>The line has a field too many; name and purpose may be mixed up: {0}</translation>
    </message>
    <message>
        <source>Die Kontonummer weicht ab und wurde als {0} gelesen: {1}</source>
        <translation>The account number differs and was read as {0}: {1}</translation>
    </message>
    <message>
        <source>In den Beträgen steht ein Semikolon statt des Kommas, vermutlich nach dem Speichern mit einer Tabellenkalkulation. Es wurde als Komma gelesen.</source>
        <translation>The amounts have a semicolon in the place of the comma, probably after a spreadsheet saved them. It was read as a comma.</translation>
    </message>
    <message>
        <source>Zeilen, deren Kontonummer verloren ist, weil eine Tabellenkalkulation sie als Zahl gespeichert hat (1,23E+21): {0}</source>
        <translation>Lines whose account number is lost, because a spreadsheet saved it as a number (1.23E+21): {0}</translation>
    </message>
    <message>
        <source>Zeilen ohne Tag und Betrag, deren Text an die Zeile darüber gehängt wurde: {0}</source>
        <translation>Lines without day and amount whose text was added to the line above: {0}</translation>
    </message>
    <message>
        <source>Der Punkt in den Beträgen wurde als Dezimalpunkt gelesen.</source>
        <translation>The point in the amounts was read as a decimal point.</translation>
    </message>
    <message>
        <source>Die Zeile hat mehr Felder als die Tabelle Spalten: {0}</source>
        <translation>The row has more fields than the table has columns: {0}</translation>
    </message>
    <message>
        <source>Die Zeile ist eine Summe und kein Umsatz: {0}</source>
        <translation>The line is a total and no transaction: {0}</translation>
    </message>
    <message>
        <source>Der Umsatz wurde nicht ausgeführt oder rückgängig gemacht: {0}</source>
        <translation>The transaction was not executed or was reversed: {0}</translation>
    </message>
    <message>
        <source>Ob diese Umsätze schon gebucht sind, ist nicht sicher; sie wurden übernommen. In der Spalte &quot;{0}&quot; steht: {1}</source>
        <translation>It is not certain that these transactions are booked already; they were taken. The column &quot;{0}&quot; says: {1}</translation>
    </message>
    <message>
        <source>Zeilen mit einer Gebühr neben dem Betrag, die abgezogen wurde: {0}</source>
        <translation>Lines with a fee beside the amount, which was deducted: {0}</translation>
    </message>
    <message>
        <source>{0} Betroffen: {1}.</source>
        <translation>{0} Affected: {1}.</translation>
    </message>
    <message>
        <source>Der Umsatz steht außerhalb der Auszüge in der Datei.</source>
        <translation>The transaction stands outside the statements of the file.</translation>
    </message>
    <message>
        <source>Die Adresse der Bank muss mit https:// beginnen.</source>
        <translation>The address of the bank has to begin with https://.</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; verschoben</source>
        <translation>&apos;{0}&apos; moved</translation>
    </message>
    <message>
        <source>Fenster, Netz, Texte</source>
        <translation>windows, network, texts</translation>
    </message>
    <message>
        <source>die Datenbank</source>
        <translation>the database</translation>
    </message>
    <message>
        <source>gemeinfrei</source>
        <translation>public domain</translation>
    </message>
    <message>
        <source>Zugriff auf die Datenbank</source>
        <translation>access to the database</translation>
    </message>
    <message>
        <source>liest XML</source>
        <translation>reads XML</translation>
    </message>
    <message>
        <source>liest HTML</source>
        <translation>reads HTML</translation>
    </message>
    <message>
        <source>zeigt Berichte</source>
        <translation>shows reports</translation>
    </message>
    <message>
        <source>liest Zip-Archive</source>
        <translation>reads zip archives</translation>
    </message>
    <message>
        <source>schreibt Excel-Dateien</source>
        <translation>writes Excel files</translation>
    </message>
    <message>
        <source>Verzeichnis der Banken</source>
        <translation>directory of banks</translation>
    </message>
    <message>
        <source>Das Haushaltsbuch für zu Hause. Alle Daten liegen in einer Datei auf Ihrem Rechner.

Freie Software unter der GNU General Public License, Version 3 oder neuer. Sie dürfen sie benutzen, weitergeben und verändern; eine Gewähr gibt es nicht.</source>
        <translation>Accounts for a household. All data lies in one file on your computer.

Free software under the GNU General Public License, version 3 or later. You may use, share and change it; there is no warranty.</translation>
    </message>
    <message>
        <source>Das Konto &apos;{0}&apos; stimmt bis {1} mit der Bank überein. Mit dieser Änderung wäre es ab dem {2} nicht mehr so.

Trotzdem ändern?</source>
        <translation>The account &apos;{0}&apos; agrees with the bank up to {1}. With this change it would not do so any more from {2} on.

Change it all the same?</translation>
    </message>
    <message>
        <source>Mit der Bank abgeglichen</source>
        <translation>Reconciled with the bank</translation>
    </message>
    <message>
        <source>Unterschied</source>
        <translation>Difference</translation>
    </message>
    <message>
        <source>Bezeichnung</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Tag (Bank)</source>
        <translation>Day (bank)</translation>
    </message>
    <message>
        <source>Betrag (Bank)</source>
        <translation>Amount (bank)</translation>
    </message>
    <message>
        <source>Tag (Buch)</source>
        <translation>Day (book)</translation>
    </message>
    <message>
        <source>Betrag (Buch)</source>
        <translation>Amount (book)</translation>
    </message>
    <message>
        <source>Sti&amp;mmt bis {0}</source>
        <translation>&amp;Agrees up to {0}</translation>
    </message>
    <message>
        <source>Kontostand vor dem ersten Umsatz</source>
        <translation>Balance before the first transaction</translation>
    </message>
    <message>
        <source>Das Konto &apos;{0}&apos; stimmt bis {1} Umsatz für Umsatz mit der Bank überein: {2}.</source>
        <translation>The account &apos;{0}&apos; agrees with the bank transaction by transaction up to {1}: {2}.</translation>
    </message>
    <message>
        <source>Ein Unterschied bis {1}.</source>
        <translation>One difference up to {1}.</translation>
    </message>
    <message>
        <source>{4} Unterschiede bis {1}.</source>
        <translation>{4} differences up to {1}.</translation>
    </message>
    <message>
        <source>Die Bank hat keinen Kontostand genannt; im Buch sind es {2}.</source>
        <translation>The bank named no balance; in the book it is {2}.</translation>
    </message>
    <message>
        <source>Bank: {3}, Buch: {2}.</source>
        <translation>Bank: {3}, book: {2}.</translation>
    </message>
    <message>
        <source>nur bei der Bank</source>
        <translation>only at the bank</translation>
    </message>
    <message>
        <source>nur im Buch</source>
        <translation>only in the book</translation>
    </message>
    <message>
        <source>Tag anders</source>
        <translation>other day</translation>
    </message>
    <message>
        <source>Betrag anders</source>
        <translation>other amount</translation>
    </message>
    <message>
        <source>Betrag und Tag anders</source>
        <translation>other amount and day</translation>
    </message>
    <message>
        <source>&amp;Umsatz buchen</source>
        <translation>&amp;Book transaction</translation>
    </message>
    <message>
        <source>Startg&amp;uthaben anpassen</source>
        <translation>A&amp;djust opening balance</translation>
    </message>
    <message>
        <source>Wie bei der &amp;Bank</source>
        <translation>As at t&amp;he bank</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; wie bei der Bank</source>
        <translation>&apos;{0}&apos; as at the bank</translation>
    </message>
    <message>
        <source>Bitte öffnen Sie den Eintrag, und ändern Sie dort den Betrag: {0}.</source>
        <translation>Please open the entry and change the amount there: {0}.</translation>
    </message>
    <message>
        <source>Bitte öffnen Sie den Eintrag, und ändern Sie ihn dort.</source>
        <translation>Please open the entry and change it there.</translation>
    </message>
    <message>
        <source>Sie stimmten schon am {4} nicht überein: vom Auszug der Bank fehlen Umsätze.</source>
        <translation>They already differed on {4}: transactions of the bank&apos;s statement are missing.</translation>
    </message>
    <message>
        <source>Betrag für diesen Zeitraum korrigiert.</source>
        <translation>Amount corrected for this period.</translation>
    </message>
    <message>
        <source>Verschoben; geplant war der {0}.</source>
        <translation>Moved; planned for {0}.</translation>
    </message>
    <message>
        <source>Stimmt mit der Bank überein bis {0}.</source>
        <translation>Agrees with the bank up to {0}.</translation>
    </message>
    <message>
        <source>Ser&amp;ien prüfen…</source>
        <translation>Chec&amp;k series…</translation>
    </message>
    <message>
        <source>Sucht Serien, die die Bank nicht mehr bucht, und Buchungen, die ausstehen.</source>
        <translation>Looks for series that the bank no longer books, and for bookings that are outstanding.</translation>
    </message>
    <message>
        <source>&amp;Über Kontorelle</source>
        <translation>&amp;About Kontorelle</translation>
    </message>
    <message>
        <source>Zeigt Version, Lizenz und verwendete Bibliotheken.</source>
        <translation>Shows version, licence and the libraries in use.</translation>
    </message>
    <message>
        <source>lässt Kontoauszüge zum Einlesen auswählen, auch im laufenden Programm.</source>
        <translation>lets you choose bank statements to read, in the running program too.</translation>
    </message>
    <message>
        <source>öffnet einen neuen Eintrag, auch im laufenden Programm.</source>
        <translation>opens a new entry, in the running program too.</translation>
    </message>
    <message>
        <source>Haushaltsbuch, das geöffnet wird, oder Kontoauszüge, die eingelesen werden.</source>
        <translation>Accounts book to open, or bank statements to read.</translation>
    </message>
    <message>
        <source>Ein Vorkommen einer Serie liegt jetzt am Buchungstag der Bank.</source>
        <translation>One occurrence of a series now lies on the bank&apos;s booking day.</translation>
    </message>
    <message>
        <source>{0} Vorkommen von Serien liegen jetzt am Buchungstag der Bank.</source>
        <translation>{0} occurrences of series now lie on the bank&apos;s booking day.</translation>
    </message>
    <message>
        <source>Eine Serie hat ab hier den Betrag des Kontoauszugs.</source>
        <translation>One series has the amount of the bank statement from here on.</translation>
    </message>
    <message>
        <source>{0} Serien haben ab hier den Betrag des Kontoauszugs.</source>
        <translation>{0} series have the amount of the bank statement from here on.</translation>
    </message>
    <message>
        <source>Ein Eintrag hat Tag und Betrag der Bank übernommen.</source>
        <translation>One entry has taken over the bank&apos;s day and amount.</translation>
    </message>
    <message>
        <source>{0} Einträge haben Tag und Betrag der Bank übernommen.</source>
        <translation>{0} entries have taken over the bank&apos;s day and amount.</translation>
    </message>
    <message>
        <source>{0}: {1}; Bank: {2} am {3}</source>
        <translation>{0}: {1}; bank: {2} on {3}</translation>
    </message>
    <message>
        <source>Diese Einträge stehen mit anderem Tag oder Betrag im Haushaltsbuch als bei der Bank:</source>
        <translation>These entries have another day or amount in the book than at the bank:</translation>
    </message>
    <message>
        <source>Sollen sie Tag und Betrag der Bank übernehmen?</source>
        <translation>Shall they take over the bank&apos;s day and amount?</translation>
    </message>
    <message>
        <source>Umsätze zuordnen</source>
        <translation>Assign transactions</translation>
    </message>
    <message>
        <source>Diese Vorkommen haben Sie von Hand korrigiert, und die Bank hat anders gebucht:</source>
        <translation>You corrected these occurrences by hand, and the bank booked something else:</translation>
    </message>
    <message>
        <source>Sollen Tag und Betrag der Bank gelten?</source>
        <translation>Shall the bank&apos;s day and amount apply?</translation>
    </message>
    <message>
        <source>Korrektur von Hand</source>
        <translation>Correction by hand</translation>
    </message>
    <message>
        <source>{0}: {1} statt {2}, Vorschlag: {3}</source>
        <translation>{0}: {1} instead of {2}, proposed: {3}</translation>
    </message>
    <message>
        <source>ab hier</source>
        <translation>from here on</translation>
    </message>
    <message>
        <source>nur dieses Mal</source>
        <translation>only this time</translation>
    </message>
    <message>
        <source>Nicht ändern</source>
        <translation>Do not change</translation>
    </message>
    <message>
        <source>Wie vorgeschlagen</source>
        <translation>As proposed</translation>
    </message>
    <message>
        <source>Die Bank hat andere Beträge gebucht, als diese Serien vorsehen:</source>
        <translation>The bank booked other amounts than these series provide for:</translation>
    </message>
    <message>
        <source>Wie sollen sie geändert werden?</source>
        <translation>How shall they be changed?</translation>
    </message>
    <message>
        <source>Beträge von Serien</source>
        <translation>Amounts of series</translation>
    </message>
    <message>
        <source>{0} Was ist richtig?</source>
        <translation>{0} Which is right?</translation>
    </message>
    <message>
        <source>Aufbau speichern</source>
        <translation>Save layout</translation>
    </message>
    <message>
        <source>Aufbau einer Tabelle|*.txt|Alle Dateien|*.*</source>
        <translation>Layout of a table|*.txt|All files|*.*</translation>
    </message>
    <message>
        <source>Aufbau {0}.txt</source>
        <translation>Layout {0}.txt</translation>
    </message>
    <message>
        <source>Aufbau laden</source>
        <translation>Load layout</translation>
    </message>
    <message>
        <source>Ein Eintrag steht nun unter &apos;{0}&apos;.</source>
        <translation>One entry is now filed under &apos;{0}&apos;.</translation>
    </message>
    <message>
        <source>{0} Einträge stehen nun unter &apos;{1}&apos;.</source>
        <translation>{0} entries are now filed under &apos;{1}&apos;.</translation>
    </message>
    <message>
        <source>{0} gebucht.</source>
        <translation>{0} booked.</translation>
    </message>
    <message>
        <source>Der Aufbau konnte nicht gespeichert werden.</source>
        <translation>The layout could not be stored.</translation>
    </message>
    <message>
        <source>Startguthaben von &apos;{0}&apos;: {1} am {2}, laut Kontoauszug.</source>
        <translation>Opening balance of &apos;{0}&apos;: {1} on {2}, according to the statement.</translation>
    </message>
    <message>
        <source>Abgebrochen, es wurde nichts gebucht.</source>
        <translation>Cancelled, nothing was booked.</translation>
    </message>
    <message>
        <source>Es wurde nichts gebucht.</source>
        <translation>Nothing was booked.</translation>
    </message>
    <message>
        <source>Auf den Tagen, für die Kontoauszüge vorliegen, fehlt zu keiner Serie eine Buchung der Bank.</source>
        <translation>On the days that bank statements cover, no series lacks a booking of the bank.</translation>
    </message>
    <message>
        <source>Serien geprüft</source>
        <translation>Series checked</translation>
    </message>
    <message>
        <source>{0} noch nicht gebucht</source>
        <translation>{0} not booked yet</translation>
    </message>
    <message>
        <source>{0} nicht gebucht</source>
        <translation>{0} not booked</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ({1})</source>
        <translation>&apos;{0}&apos; ({1})</translation>
    </message>
    <message>
        <source>{0}, fällig am {1}: noch nicht gebucht; wird auf den {2} verschoben</source>
        <translation>{0}, due on {1}: not booked yet; moves to {2}</translation>
    </message>
    <message>
        <source>{0}, fällig am {1}: nicht gebucht; wird ausgelassen</source>
        <translation>{0}, due on {1}: not booked; is left out</translation>
    </message>
    <message>
        <source>{0}: von der Bank nie gebucht; endet am {1}</source>
        <translation>{0}: never booked by the bank; ends on {1}</translation>
    </message>
    <message>
        <source>{0}: zuletzt gebucht am {1}; endet am {2}</source>
        <translation>{0}: last booked on {1}; ends on {2}</translation>
    </message>
    <message>
        <source>Diese Serien sehen Buchungen vor, die auf den Kontoauszügen fehlen. Was angekreuzt ist, wird geändert, damit das Haushaltsbuch mit der Bank übereinstimmt.</source>
        <translation>These series provide for bookings that are missing from the bank statements. What is ticked will be changed, so that the book agrees with the bank.</translation>
    </message>
    <message>
        <source>Serien prüfen</source>
        <translation>Check series</translation>
    </message>
    <message>
        <source>Alle Umsätze haben eine Kategorie.</source>
        <translation>All transactions have a category.</translation>
    </message>
    <message>
        <source>{0}  ({1})</source>
        <translation>{0}  ({1})</translation>
    </message>
    <message>
        <source>{0} {1} Lesen Sie sie mit &quot;--sign {2}&quot; oder &quot;--sign {3}&quot; ein.</source>
        <translation>{0} {1} Read it with &quot;--sign {2}&quot; or &quot;--sign {3}&quot;.</translation>
    </message>
    <message>
        <source>Die Datei ist keine Tabelle mit Spaltennamen, Tag und Betrag: {0}</source>
        <translation>The file is no table with column names, day and amount: {0}</translation>
    </message>
    <message>
        <source>Alle Kontoauszüge|*.csv;*.txt;*.sta;*.mta;*.mt940;*.mt942;*.mt9;*.940;*.942;*.swi;*.xml;*.camt;*.zip;*.xls;*.xlsx;*.ofx;*.qfx;*.qif|CSV/XLS/MT940/MT942/OFX/QIF-Datei|*.csv;*.txt;*.mt940;*.mt942;*.xls;*.mt9;*.ofx;*.qif|Alle Dateien|*.*</source>
        <translation>All statements|*.csv;*.txt;*.sta;*.mta;*.mt940;*.mt942;*.mt9;*.940;*.942;*.swi;*.xml;*.camt;*.zip;*.xls;*.xlsx;*.ofx;*.qfx;*.qif|CSV/XLS/MT940/MT942/OFX/QIF file|*.csv;*.txt;*.mt940;*.mt942;*.xls;*.mt9;*.ofx;*.qif|All files|*.*</translation>
    </message>
    <message>
        <source>Kontoauszug einlesen</source>
        <translation>Read bank statement</translation>
    </message>
    <message>
        <source>&amp;Ohne diese Zeilen lesen</source>
        <translation>&amp;Read without these lines</translation>
    </message>
    <message>
        <source>&amp;Nicht einlesen</source>
        <translation>&amp;Do not read</translation>
    </message>
    <message>
        <source>Der Kontoauszug enthält Umsätze mehrmals, mit gleichem Tag, Empfänger, Zweck und Betrag:

{0}

Sollen auch diese übernommen werden? Das ist richtig, wenn Sie zum Beispiel zwei gleiche Fahrkarten gekauft haben.</source>
        <translation>The statement contains transactions more than once, with the same day, payee, purpose and amount:

{0}

Shall these be taken as well? That is right if, for example, you bought two identical tickets.</translation>
    </message>
    <message>
        <source>Gleiche Umsätze</source>
        <translation>Equal transactions</translation>
    </message>
    <message>
        <source>{0} übernommen, obwohl sie anderen gleichen.</source>
        <translation>{0} taken although they equal others.</translation>
    </message>
    <message>
        <source>steht mehrmals gleich im Kontoauszug</source>
        <translation>stands more than once in the statement</translation>
    </message>
    <message>
        <source>Gebühr (kommt zum Betrag hinzu)</source>
        <translation>Fee (on top of the amount)</translation>
    </message>
    <message>
        <source>Empfänger, wenn keiner genannt ist</source>
        <translation>Payee if none is named</translation>
    </message>
    <message>
        <source>nicht ausgeführt</source>
        <translation>not executed</translation>
    </message>
    <message>
        <source>{0} mehrfach gleich</source>
        <translation>{0} repeated</translation>
    </message>
    <message>
        <source>mehrfach gleich: {0}</source>
        <translation>repeated: {0}</translation>
    </message>
    <message>
        <source>{0} davon mehrfach gleich, durch den Kontostand belegt</source>
        <translation>{0} of them repeated, confirmed by the balance</translation>
    </message>
    <message>
        <source>{0} oder {1}?</source>
        <translation>{0} or {1}?</translation>
    </message>
    <message>
        <source>schon im Buch: {0} ({1})</source>
        <translation>already in the book: {0} ({1})</translation>
    </message>
    <message>
        <source>schon im Buch</source>
        <translation>already in the book</translation>
    </message>
    <message>
        <source>sicher</source>
        <translation>certain</translation>
    </message>
    <message>
        <source>bitte ansehen</source>
        <translation>please check</translation>
    </message>
    <message>
        <source>Einer der gezeigten Umsätze steht schon im Haushaltsbuch und wird zugeordnet.</source>
        <translation>One of the transactions shown is already in the book and will be assigned.</translation>
    </message>
    <message>
        <source>{0} der gezeigten Umsätze stehen schon im Haushaltsbuch und werden zugeordnet.</source>
        <translation>{0} of the transactions shown are already in the book and will be assigned.</translation>
    </message>
    <message>
        <source>Einer der gezeigten Umsätze hat einen sicheren Vorschlag und wird neu gebucht.</source>
        <translation>One of the transactions shown has a certain proposal and will be booked as a new entry.</translation>
    </message>
    <message>
        <source>{0} der gezeigten Umsätze haben einen sicheren Vorschlag und werden neu gebucht.</source>
        <translation>{0} of the transactions shown have certain proposals and will be booked as new entries.</translation>
    </message>
    <message>
        <source>Zu diesem Umsatz gibt es schon einen Eintrag:
{1}
Was soll geschehen?</source>
        <translation>There is an entry for this transaction already:
{1}
What is to be done?</translation>
    </message>
    <message>
        <source>Zu {0} der Umsätze gibt es schon Einträge:
{1}
Was soll geschehen?</source>
        <translation>There are entries for {0} of the transactions already:
{1}
What is to be done?</translation>
    </message>
    <message>
        <source>Den &amp;vorhandenen zuordnen</source>
        <translation>&amp;Assign to the existing one</translation>
    </message>
    <message>
        <source>&amp;Neu anlegen</source>
        <translation>&amp;New entry</translation>
    </message>
    <message>
        <source>&amp;Offen lassen</source>
        <translation>Leave &amp;open</translation>
    </message>
    <message>
        <source>&amp;Einzeln entscheiden</source>
        <translation>&amp;Decide one by one</translation>
    </message>
    <message>
        <source>Soll das so geschehen?</source>
        <translation>Is that right?</translation>
    </message>
    <message>
        <source>Noch ein offener Umsatz ist von demselben Empfänger.
Soll auch er &apos;{0}&apos; bekommen?</source>
        <translation>One more open transaction is of the same payee.
Shall it get &apos;{0}&apos; too?</translation>
    </message>
    <message>
        <source>Noch {1} offene Umsätze sind von demselben Empfänger.
Sollen auch sie &apos;{0}&apos; bekommen?</source>
        <translation>{1} more open transactions are of the same payee.
Shall they get &apos;{0}&apos; too?</translation>
    </message>
    <message>
        <source>Kategorie gewählt</source>
        <translation>Category chosen</translation>
    </message>
    <message>
        <source>&amp;Auch diese</source>
        <translation>&amp;These too</translation>
    </message>
    <message>
        <source>&amp;Immer so</source>
        <translation>Al&amp;ways</translation>
    </message>
    <message>
        <source>&amp;Nur dieser</source>
        <translation>&amp;Only this one</translation>
    </message>
    <message>
        <source>noch nicht verglichen</source>
        <translation>not compared yet</translation>
    </message>
    <message>
        <source>Nach Vorschlag</source>
        <translation>By proposal</translation>
    </message>
    <message>
        <source>Das Vorzeichen &apos;{0}&apos; gibt es nicht. Möglich sind: {1}.</source>
        <translation>There is no sign &apos;{0}&apos;. Possible are: {1}.</translation>
    </message>
    <message>
        <source>Ad&amp;resse der Bank:</source>
        <translation>Add&amp;ress of the bank:</translation>
    </message>
    <message>
        <source>Diesen Zeitraum korrigieren</source>
        <translation>Correct this period</translation>
    </message>
    <message>
        <source>Spielfeld</source>
        <translation>Playing field</translation>
    </message>
    <message>
        <source>Dauerauftrag: {0} €</source>
        <translation>Standing order: {0} €</translation>
    </message>
    <message>
        <source>Monatsende</source>
        <translation>Month&apos;s End</translation>
    </message>
    <message>
        <source>Fangen Sie Geld, weichen Sie Rechnungen aus.
Der Dauerauftrag kommt immer.</source>
        <translation>Catch money, dodge bills.
The standing order always comes.</translation>
    </message>
    <message>
        <source>&amp;Ton</source>
        <translation>S&amp;ound</translation>
    </message>
    <message>
        <source>Monat {0}   ·   {1} € für den Dauerauftrag von {2} €   ·   {3} Leben   ·   {4} Punkte</source>
        <translation>Month {0}   ·   {1} € for the standing order of {2} €   ·   {3} lives   ·   {4} points</translation>
    </message>
    <message>
        <source>{0} Punkte, {1} Monate, {2}</source>
        <translation>{0} points, {1} months, {2}</translation>
    </message>
    <message>
        <source>Eingabe beginnt, Pfeile oder Maus bewegen, P hält an.</source>
        <translation>Enter begins, arrows or mouse move, P pauses.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Eingabe geht weiter.</source>
        <translation>Enter goes on.</translation>
    </message>
    <message>
        <source>Bester Lauf!</source>
        <translation>Best run!</translation>
    </message>
    <message>
        <source>Konto leer</source>
        <translation>Account empty</translation>
    </message>
    <message>
        <source>{0} Punkte nach {1} Monaten</source>
        <translation>{0} points after {1} months</translation>
    </message>
    <message>
        <source>Über Kontorelle</source>
        <translation>About Kontorelle</translation>
    </message>
    <message>
        <source>Symbol des Programms: ein Heft mit drei Stapeln Münzen</source>
        <translation>Symbol of the program: a booklet with three stacks of coins</translation>
    </message>
    <message>
        <source>&amp;Verwendete Bibliotheken und Daten:</source>
        <translation>Libraries and &amp;data in use:</translation>
    </message>
    <message>
        <source>Kling.</source>
        <translation>Clink.</translation>
    </message>
    <message>
        <source>Kling, kling.</source>
        <translation>Clink, clink.</translation>
    </message>
    <message>
        <source>Eintra&amp;g öffnen</source>
        <translation>Open e&amp;ntry</translation>
    </message>
    <message>
        <source>Unterschiede zwischen Bank und Buch</source>
        <translation>Differences between bank and book</translation>
    </message>
    <message>
        <source>Behebt den markierten Unterschied (Eingabetaste)</source>
        <translation>Cures the selected difference (Enter)</translation>
    </message>
    <message>
        <source>Merkt sich, dass Bank und Buch bis zu diesem Tag übereinstimmen</source>
        <translation>Remembers that bank and book agree up to this day</translation>
    </message>
    <message>
        <source>Ordnet zu, was schon im Haushaltsbuch steht, und bucht, was einen sicheren Vorschlag hat</source>
        <translation>Assigns what is in the book already and books what has a certain proposal</translation>
    </message>
    <message>
        <source>Öffnet den markierten Umsatz als Eintrag, auch zum Aufteilen; gespeichert ist er gebucht (Strg+B)</source>
        <translation>Opens the selected transaction as an entry, also to split it; once saved it is booked (Ctrl+B)</translation>
    </message>
    <message>
        <source>Zeigt nur Umsätze ohne Kategorie oder unter „Allgemein“, auch die gebuchten</source>
        <translation>Shows only transactions without a category or under “Allgemein”, booked ones too</translation>
    </message>
    <message>
        <source>Schreibt die Bedeutung der Spalten in eine kleine Datei, zum Weitergeben</source>
        <translation>Writes the meaning of the columns to a small file, to be shared</translation>
    </message>
    <message>
        <source>A&amp;ufbau laden…</source>
        <translation>&amp;Load layout…</translation>
    </message>
    <message>
        <source>Liest eine solche Datei ein und merkt sie sich</source>
        <translation>Reads such a file and remembers it</translation>
    </message>
    <message>
        <source>H&amp;ilfe</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>Bearbeiten und buchen…</source>
        <translation>Edit and book…</translation>
    </message>
    <message>
        <source>Unkategori&amp;siert</source>
        <translation>&amp;Uncategorised</translation>
    </message>
    <message>
        <source>Aufbau s&amp;peichern…</source>
        <translation>S&amp;ave layout…</translation>
    </message>
    <message>
        <source>1 Mal</source>
        <translation>once</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ist kein Datum. Bitte schreiben Sie es wie {1}.</source>
        <translation>&apos;{0}&apos; is not a date. Please write it like {1}.</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ist kein Datum. Möglich sind {1}, {2}, {3}, heute, gestern oder +7.</source>
        <translation>&apos;{0}&apos; is not a date. Possible are {1}, {2}, {3}, today, yesterday or +7.</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ist kein Betrag. Möglich sind {1} oder eine Rechnung wie {1}+{2}.</source>
        <translation>&apos;{0}&apos; is not an amount. Possible are {1} or a calculation such as {1}+{2}.</translation>
    </message>
    <message>
        <source>
Allgemein:
  --database DATEI   die Datenbank; ohne Angabe die, die auch das Fenster öffnet
  --profile ORDNER   Datenordner und Einstellungen liegen unter diesem Ordner
  --version          zeigt die Version
  --debug-info       zeigt Versionen, Ordner und Dateigrößen, keine Daten

Ergebnis: 0 erledigt, 1 fehlgeschlagen, 2 falscher Aufruf. Meldungen gehen auf die Fehlerausgabe.
</source>
        <translation>
General:
  --database FILE    the database; if not given, the one that the window opens
  --profile FOLDER   data folder and settings are kept below this folder
  --version          shows the version
  --debug-info       shows versions, folders and file sizes, no data

Result: 0 done, 1 failed, 2 wrong usage. Messages go to standard error.
</translation>
    </message>
    <message>
        <source>zeigt die Version</source>
        <translation>shows the version</translation>
    </message>
    <message>
        <source>zeigt Versionen, Ordner und Dateigrößen, keine Daten</source>
        <translation>shows versions, folders and file sizes, no data</translation>
    </message>
    <message>
        <source>Eine weitere passt auch. Suchen Sie genauer, zum Beispiel mit der Bankleitzahl.</source>
        <translation>One more matches too. Please search more precisely, for example with the bank code.</translation>
    </message>
    <message>
        <source>Kontorelle ist abgestürzt.</source>
        <translation>Kontorelle crashed.</translation>
    </message>
    <message>
        <source>Kontorelle wurde nicht ordentlich beendet.</source>
        <translation>Kontorelle was not shut down properly.</translation>
    </message>
    <message>
        <source>Beispielhaushalt</source>
        <translation>Example household</translation>
    </message>
    <message>
        <source>Das ist der Beispielhaushalt. Alles darin dürfen Sie ändern.

Zu Ihrem eigenen Haushaltsbuch kommen Sie mit Datei &gt; Datenbank wechseln zurück: {0}</source>
        <translation>This is the example household. You may change anything in it.

File &gt; Switch database takes you back to your own book: {0}</translation>
    </message>
    <message>
        <source>wie das System</source>
        <translation>like the system</translation>
    </message>
    <message>
        <source>{0}, {1} Uhr</source>
        <translation>{0}, {1}</translation>
    </message>
    <message>
        <source>Ein nicht gespeicherter Eintrag vom {0} wurde aufgehoben:
{1}
Wiederherstellen? Mit Abbrechen bleibt er bis zum nächsten Start aufgehoben.</source>
        <translation>An entry that was not saved on {0} has been kept:
{1}
Restore it? Cancel keeps it until the next start.</translation>
    </message>
    <message>
        <source>Nicht gespeichert</source>
        <translation>Not saved</translation>
    </message>
    <message>
        <source>&amp;Wiederherstellen</source>
        <translation>&amp;Restore</translation>
    </message>
    <message>
        <source>Den Eintrag, der geändert werden sollte, gibt es nicht mehr. Was Sie eingegeben hatten, wird als neuer Eintrag angeboten.</source>
        <translation>The entry that was to be changed no longer exists. What you had typed is offered as a new entry.</translation>
    </message>
    <message>
        <source>Zeit</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Vorgang</source>
        <translation>Operation</translation>
    </message>
    <message>
        <source>Meldung</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>1 Meldung</source>
        <translation>1 message</translation>
    </message>
    <message>
        <source>{0} Meldungen</source>
        <translation>{0} messages</translation>
    </message>
    <message>
        <source>{0} von {1} Meldungen</source>
        <translation>{0} of {1} messages</translation>
    </message>
    <message>
        <source>Es ist nichts schiefgegangen</source>
        <translation>Nothing has gone wrong</translation>
    </message>
    <message>
        <source>Keine Meldung passt zum Filter</source>
        <translation>No message matches the filter</translation>
    </message>
    <message>
        <source>Hier stehen Fehlermeldungen der letzten fünf Male, die welche hatten.</source>
        <translation>Failures of the last five sessions that had any are listed here.</translation>
    </message>
    <message>
        <source>Leeren Sie das Feld über der Liste, um alle zu sehen.</source>
        <translation>Clear the field above the list to see all of them.</translation>
    </message>
    <message>
        <source>Fehlerprotokoll</source>
        <translation>Error log</translation>
    </message>
    <message>
        <source>Fehlerprotokoll {0}.txt</source>
        <translation>Error log {0}.txt</translation>
    </message>
    <message>
        <source>Fehlerprotokoll speichern</source>
        <translation>Save error log</translation>
    </message>
    <message>
        <source>Rückmeldung zu Kontorelle</source>
        <translation>Feedback on Kontorelle</translation>
    </message>
    <message>
        <source>Was gefällt Ihnen, was fehlt Ihnen, was ging schief? Was haben Sie vorher getan?


Im Anhang: Versionen, Ordner, Dateigrößen und das Fehlerprotokoll, nichts aus dem Buch.
</source>
        <translation>What do you like, what do you miss, what went wrong? What had you done before?


Attached: versions, folders, file sizes and the error log, nothing from the book.
</translation>
    </message>
    <message>
        <source>Es wurde kein E-Mail-Programm gefunden. Die Diagnose liegt in der Datei {0}</source>
        <translation>No mail program was found. The diagnosis is in the file {0}</translation>
    </message>
    <message>
        <source> An wen er geht, tragen Sie bitte selbst ein: an den, von dem Sie Kontorelle haben.</source>
        <translation> Please enter the recipient yourself: whoever you got Kontorelle from.</translation>
    </message>
    <message>
        <source>Ihr E-Mail-Programm öffnet einen Entwurf.{0} Fehlt darin der Anhang, hängen Sie bitte diese Datei an: {1}</source>
        <translation>Your mail program opens a draft.{0} If the attachment is missing, please attach this file: {1}</translation>
    </message>
    <message>
        <source>Es wurde kein Programm gefunden, das die Seite öffnet:
{0}</source>
        <translation>No program was found that opens the page:
{0}</translation>
    </message>
    <message>
        <source>Diese Seite des Handbuchs fehlt: {0}</source>
        <translation>This page of the manual is missing: {0}</translation>
    </message>
    <message>
        <source>Diese Ausgabe von Kontorelle wird von der Paketverwaltung Ihres Systems aktualisiert. Neue Versionen kommen mit den anderen Aktualisierungen des Systems.</source>
        <translation>This edition of Kontorelle is updated by the package manager of your system. New versions come with the system&apos;s other updates.</translation>
    </message>
    <message>
        <source>Für diese Ausgabe ist keine Adresse für Aktualisierungen eingerichtet. Kontorelle kann deshalb nicht nachsehen, ob es eine neue Version gibt; fragen Sie dort nach, woher Sie das Programm haben.</source>
        <translation>This edition has no address for updates. Kontorelle therefore cannot look whether there is a new version; please ask where you got the program from.</translation>
    </message>
    <message>
        <source>Die Antwort von {0} ist nicht zu verstehen. Versuchen Sie es später noch einmal.</source>
        <translation>The answer of {0} cannot be understood. Please try again later.</translation>
    </message>
    <message>
        <source>{0} ist nicht zu erreichen. Prüfen Sie Ihre Verbindung zum Internet und versuchen Sie es noch einmal.</source>
        <translation>{0} cannot be reached. Please check your connection to the internet and try again.</translation>
    </message>
    <message>
        <source>Das Zertifikat von {0} ist nicht in Ordnung. Es wurde nichts gesendet. Prüfen Sie Datum und Uhrzeit Ihres Rechners und versuchen Sie es in einem anderen Netz noch einmal.</source>
        <translation>The certificate of {0} is not valid. Nothing was sent. Please check date and time of your computer and try again in another network.</translation>
    </message>
    <message>
        <source>{0} antwortet nicht. Versuchen Sie es später noch einmal.</source>
        <translation>{0} does not answer. Please try again later.</translation>
    </message>
    <message>
        <source>{0} sendet mehr, als angekündigt war. Es wurde nichts davon behalten.</source>
        <translation>{0} sends more than was announced. Nothing of it was kept.</translation>
    </message>
    <message>
        <source>{0} gibt keine Auskunft ({1}). Versuchen Sie es später noch einmal.</source>
        <translation>{0} gives no answer ({1}). Please try again later.</translation>
    </message>
    <message>
        <source>Neue Version speichern</source>
        <translation>Save the new version</translation>
    </message>
    <message>
        <source>Alle Dateien|*.*</source>
        <translation>All files|*.*</translation>
    </message>
    <message>
        <source>Die heruntergeladene Datei ist nicht die angekündigte: {0}. Sie wurde nicht gespeichert.
Versuchen Sie es noch einmal. Bleibt es dabei, benutzen Sie die Datei auf keinen Fall.</source>
        <translation>The downloaded file is not the one that was announced: {0}. It was not saved.
Please try again. If it stays like this, do not use the file under any circumstances.</translation>
    </message>
    <message>
        <source>Bei {0} wird nachgefragt …</source>
        <translation>Asking {0} …</translation>
    </message>
    <message>
        <source>Sie benutzen Kontorelle {0}. Eine neuere Version gibt es nicht.</source>
        <translation>You are using Kontorelle {0}. There is no newer version.</translation>
    </message>
    <message>
        <source>Kontorelle {0} vom {1} ist da. Sie benutzen Version {2}.</source>
        <translation>Kontorelle {0} of {1} is here. You are using version {2}.</translation>
    </message>
    <message>
        <source>Kontorelle {0} wird heruntergeladen …</source>
        <translation>Downloading Kontorelle {0} …</translation>
    </message>
    <message>
        <source>Kontorelle {0} ist heruntergeladen und geprüft:
{1}
Beenden Sie das Programm und öffnen Sie diese Datei, um die neue Version zu installieren.</source>
        <translation>Kontorelle {0} has been downloaded and checked:
{1}
Quit the program and open this file to install the new version.</translation>
    </message>
    <message>
        <source>Gesendet wird nur die Nummer Ihrer Version.</source>
        <translation>Only the number of your version is sent.</translation>
    </message>
    <message>
        <source>Neue Versionen</source>
        <translation>New versions</translation>
    </message>
    <message>
        <source>Kontorelle ist beim letzten Mal abgestürzt ({0}).</source>
        <translation>Kontorelle crashed last time ({0}).</translation>
    </message>
    <message>
        <source>Kontorelle wurde beim letzten Mal nicht ordentlich beendet ({0}): Das Programm wurde abgebrochen, oder der Rechner ging aus.</source>
        <translation>Kontorelle was not shut down properly last time ({0}): the program was ended by force, or the computer went off.</translation>
    </message>
    <message>
        <source>&amp;Weiterarbeiten</source>
        <translation>&amp;Go on</translation>
    </message>
    <message>
        <source>&amp;Fehlerprotokoll ansehen</source>
        <translation>Show &amp;error log</translation>
    </message>
    <message>
        <source>Sicherung vom {0} &amp;laden…</source>
        <translation>&amp;Load backup of {0}…</translation>
    </message>
    <message>
        <source>Was gespeichert war, ist da. Eine Eingabe, die noch offen war, kann fehlen.</source>
        <translation>What was saved is there. What was being entered may be missing.</translation>
    </message>
    <message>
        <source>Nicht ordentlich beendet</source>
        <translation>Not shut down properly</translation>
    </message>
    <message>
        <source>{0} KB</source>
        <translation>{0} KB</translation>
    </message>
    <message>
        <source>{0} MB</source>
        <translation>{0} MB</translation>
    </message>
    <message>
        <source>gibt es nicht</source>
        <translation>does not exist</translation>
    </message>
    <message>
        <source>{0}: {1} ({2} Dateien, {3}; frei: {4})</source>
        <translation>{0}: {1} ({2} files, {3}; free: {4})</translation>
    </message>
    <message>
        <source>keine Angaben</source>
        <translation>not given</translation>
    </message>
    <message>
        <source>Qt {0} (gebaut mit {1}), SQLite {2}, {3}, libxlsxwriter {4}</source>
        <translation>Qt {0} (built with {1}), SQLite {2}, {3}, libxlsxwriter {4}</translation>
    </message>
    <message>
        <source>System: {0}, {1} {2}, {3}</source>
        <translation>System: {0}, {1} {2}, {3}</translation>
    </message>
    <message>
        <source>Umgebung: {0}</source>
        <translation>Environment: {0}</translation>
    </message>
    <message>
        <source>Programm: {0}</source>
        <translation>Program: {0}</translation>
    </message>
    <message>
        <source>Vorlage</source>
        <translation>Template</translation>
    </message>
    <message>
        <source>Buch</source>
        <translation>Book</translation>
    </message>
    <message>
        <source>Daneben</source>
        <translation>Beside it</translation>
    </message>
    <message>
        <source>Ordner des Buchs: {0} (frei: {1})</source>
        <translation>Folder of the book: {0} (free: {1})</translation>
    </message>
    <message>
        <source>Sicherungen</source>
        <translation>Backups</translation>
    </message>
    <message>
        <source>Datenordner</source>
        <translation>Data folder</translation>
    </message>
    <message>
        <source>Das Handbuch gibt es nur auf Deutsch.</source>
        <translation>The manual is in German only.</translation>
    </message>
    <message>
        <source>Version {0} vom {1}</source>
        <translation>Version {0} of {1}</translation>
    </message>
    <message>
        <source>Was sich geändert hat, ist nicht angegeben.</source>
        <translation>There are no notes on what has changed.</translation>
    </message>
    <message>
        <source>sie ist {0} Bytes groß statt {1}</source>
        <translation>it has {0} bytes instead of {1}</translation>
    </message>
    <message>
        <source>ihre Prüfsumme (SHA-256) ist eine andere</source>
        <translation>its checksum (SHA-256) is a different one</translation>
    </message>
    <message>
        <source>ihre Prüfsumme (MD5) ist eine andere</source>
        <translation>its checksum (MD5) is a different one</translation>
    </message>
    <message>
        <source>Kontostände bis heute</source>
        <translation>Balances up to today</translation>
    </message>
    <message>
        <source>Hell oder dunkel, wie der Desktop es vorgibt.</source>
        <translation>Light or dark, as the desktop has it.</translation>
    </message>
    <message>
        <source>Erscheinungs&amp;bild</source>
        <translation>&amp;Appearance</translation>
    </message>
    <message>
        <source>&amp;Hell</source>
        <translation>&amp;Light</translation>
    </message>
    <message>
        <source>Dunkle Schrift auf hellem Grund.</source>
        <translation>Dark text on a light background.</translation>
    </message>
    <message>
        <source>&amp;Dunkel</source>
        <translation>&amp;Dark</translation>
    </message>
    <message>
        <source>Helle Schrift auf dunklem Grund.</source>
        <translation>Light text on a dark background.</translation>
    </message>
    <message>
        <source>&amp;Handbuch</source>
        <translation>&amp;Manual</translation>
    </message>
    <message>
        <source>Öffnet das Handbuch bei dem, was gerade vorn ist.</source>
        <translation>Opens the manual at what is in front.</translation>
    </message>
    <message>
        <source>H&amp;omepage</source>
        <translation>H&amp;omepage</translation>
    </message>
    <message>
        <source>Öffnet die Seite des Herstellers; gibt es keine, das Handbuch.</source>
        <translation>Opens the maker&apos;s home page; the manual where there is none.</translation>
    </message>
    <message>
        <source>Häufige &amp;Fragen</source>
        <translation>&amp;Frequent Questions</translation>
    </message>
    <message>
        <source>Zeigt Antworten auf Fragen, die oft gestellt werden.</source>
        <translation>Shows answers to questions that are often asked.</translation>
    </message>
    <message>
        <source>Nach &amp;Updates suchen</source>
        <translation>Check for &amp;updates</translation>
    </message>
    <message>
        <source>Sieht nach, ob es eine neue Version von Kontorelle gibt.</source>
        <translation>Looks whether there is a new version of Kontorelle.</translation>
    </message>
    <message>
        <source>Fehler&amp;protokoll…</source>
        <translation>Error &amp;log…</translation>
    </message>
    <message>
        <source>Zeigt die Fehlermeldungen der letzten Zeit.</source>
        <translation>Shows the failures of recent times.</translation>
    </message>
    <message>
        <source>&amp;Rückmeldung…</source>
        <translation>Feed&amp;back…</translation>
    </message>
    <message>
        <source>Beginnt eine E-Mail mit einer Diagnose des Programms, ohne Ihre Daten.</source>
        <translation>Starts a mail with a diagnosis of the program, without your data.</translation>
    </message>
    <message>
        <source>zeigt Versionen, Ordner und Dateigrößen, keine Daten, und endet.</source>
        <translation>shows versions, folders and file sizes, no data, and ends.</translation>
    </message>
    <message>
        <source>Zu welchem Konto gehört der Betrag {0}? Bitte tragen Sie seinen Namen ein.</source>
        <translation>Which account does the amount {0} belong to? Please enter its name.</translation>
    </message>
    <message>
        <source>Konten und Kontostände eingetragen</source>
        <translation>Accounts and balances entered</translation>
    </message>
    <message>
        <source>Die Konten konnten nicht gespeichert werden.</source>
        <translation>The accounts could not be saved.</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; kann kein Konto heißen. Bitte wählen Sie einen anderen Namen.</source>
        <translation>No account can be called &apos;{0}&apos;. Please choose another name.</translation>
    </message>
    <message>
        <source>dddd, d. MMMM yyyy</source>
        <translation>dddd, d MMMM yyyy</translation>
    </message>
    <message>
        <source>In den nächsten 60 Tagen nicht unter dem Stand von heute</source>
        <translation>Not below today&apos;s balance in the next 60 days</translation>
    </message>
    <message>
        <source>Tiefster Stand der nächsten 60 Tage: {0} am {1}</source>
        <translation>Lowest balance of the next 60 days: {0} on {1}</translation>
    </message>
    <message>
        <source>Zeigt die Einträge aller Konten.</source>
        <translation>Shows the entries of all accounts.</translation>
    </message>
    <message>
        <source>Es gibt noch kein Konto.</source>
        <translation>There is no account yet.</translation>
    </message>
    <message>
        <source>Ohne Konto</source>
        <translation>Without account</translation>
    </message>
    <message>
        <source>Dieser Monat bis heute</source>
        <translation>This month up to today</translation>
    </message>
    <message>
        <source>Zeigt die Einträge dieses Monats bis heute.</source>
        <translation>Shows the entries of this month up to today.</translation>
    </message>
    <message>
        <source>Einnahmen dieses Monats bis heute</source>
        <translation>Income of this month up to today</translation>
    </message>
    <message>
        <source>Ausgaben dieses Monats bis heute</source>
        <translation>Expenses of this month up to today</translation>
    </message>
    <message>
        <source>Letzten Monat am gleichen Tag</source>
        <translation>Last month on the same day</translation>
    </message>
    <message>
        <source>Im Schnitt eines Monats</source>
        <translation>Average of one month</translation>
    </message>
    <message>
        <source>Im Schnitt von {0} Monaten</source>
        <translation>Average of {0} months</translation>
    </message>
    <message>
        <source>Heute &amp;gebucht</source>
        <translation>&amp;Booked today</translation>
    </message>
    <message>
        <source>&amp;Verschieben…</source>
        <translation>&amp;Move…</translation>
    </message>
    <message>
        <source>Dieses Mal &amp;auslassen</source>
        <translation>&amp;Leave out this time</translation>
    </message>
    <message>
        <source>In den nächsten 14 Tagen</source>
        <translation>In the next 14 days</translation>
    </message>
    <message>
        <source>Es ist nichts geplant.</source>
        <translation>Nothing is planned.</translation>
    </message>
    <message>
        <source>Zeigt alles, was in den nächsten 14 Tagen geplant ist.</source>
        <translation>Shows everything planned for the next 14 days.</translation>
    </message>
    <message>
        <source>und {0} weitere</source>
        <translation>and {0} more</translation>
    </message>
    <message>
        <source>Limits dieses Monats</source>
        <translation>Limits of this month</translation>
    </message>
    <message>
        <source>{0} zu viel</source>
        <translation>{0} too much</translation>
    </message>
    <message>
        <source>noch {0}, {1} je Tag</source>
        <translation>{0} left, {1} a day</translation>
    </message>
    <message>
        <source>Zu erledigen</source>
        <translation>To do</translation>
    </message>
    <message>
        <source>Alles erledigt.</source>
        <translation>Everything is done.</translation>
    </message>
    <message>
        <source>Anders als sonst</source>
        <translation>Different from usual</translation>
    </message>
    <message>
        <source>{0}: {1} mehr als sonst bis zu diesem Tag ({2} statt {3})</source>
        <translation>{0}: {1} more than usual up to this day ({2} instead of {3})</translation>
    </message>
    <message>
        <source>{0}: {1} weniger als sonst bis zu diesem Tag ({2} statt {3})</source>
        <translation>{0}: {1} less than usual up to this day ({2} instead of {3})</translation>
    </message>
    <message>
        <source>Ein Umsatz der Bank wartet auf seine Buchung.</source>
        <translation>One bank transaction is waiting to be booked.</translation>
    </message>
    <message>
        <source>{0} Umsätze der Bank warten auf ihre Buchung.</source>
        <translation>{0} bank transactions are waiting to be booked.</translation>
    </message>
    <message>
        <source>{0}: Die Bank nennt am {1} den Stand {2}, das Buch hat einen anderen.</source>
        <translation>{0}: The bank&apos;s balance on {1} is {2}, that of the book is another.</translation>
    </message>
    <message>
        <source>{0}: Der letzte Kontoauszug reicht bis {1}.</source>
        <translation>{0}: The last statement ends on {1}.</translation>
    </message>
    <message>
        <source>Die Umsätze wurden zuletzt am {0} abgerufen.</source>
        <translation>Transactions were last fetched on {0}.</translation>
    </message>
    <message>
        <source>Von diesem Buch werden keine Sicherungen angelegt.</source>
        <translation>No backups are made of this book.</translation>
    </message>
    <message>
        <source>Die letzte Datensicherung ist vom {0}.</source>
        <translation>The last backup is of {0}.</translation>
    </message>
    <message>
        <source>Eine fällige Zahlung fehlt auf dem Kontoauszug.</source>
        <translation>One payment that is due is missing from the statement.</translation>
    </message>
    <message>
        <source>{0} fällige Zahlungen fehlen auf den Kontoauszügen.</source>
        <translation>{0} payments that are due are missing from the statements.</translation>
    </message>
    <message>
        <source>Eine Serie wird von der Bank nicht mehr gebucht.</source>
        <translation>The bank no longer books one series.</translation>
    </message>
    <message>
        <source>{0} Serien werden von der Bank nicht mehr gebucht.</source>
        <translation>The bank no longer books {0} series.</translation>
    </message>
    <message>
        <source>Startguthaben von &apos;{0}&apos;: {1} am {2}, zurückgerechnet.</source>
        <translation>Start balance of &apos;{0}&apos;: {1} on {2}, counted back.</translation>
    </message>
    <message>
        <source>&amp;Zahlen und Datum:</source>
        <translation>&amp;Numbers and dates:</translation>
    </message>
    <message>
        <source>Eine Währung bringt ihre eigene Schreibweise der Beträge mit. Beträge werden nicht umgerechnet. Was Sie eintippen, wird so gelesen, wie es hier steht.</source>
        <translation>A currency brings its own way of writing amounts. Amounts are not converted. What you type is read as it is written here.</translation>
    </message>
    <message>
        <source>{0} Punkte im ersten Monat</source>
        <translation>{0} points in the first month</translation>
    </message>
    <message>
        <source>Meldungen</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>Beträge, Namen, Kontonummern und Ordner stehen nicht in diesem Protokoll: Was aus Ihrem Buch stammt, ist durch … ersetzt.</source>
        <translation>Amounts, names, account numbers and folders are not in this log: what comes from your book is replaced by ….</translation>
    </message>
    <message>
        <source>Ausgewählte Meldung</source>
        <translation>Selected message</translation>
    </message>
    <message>
        <source>Kopiert die ausgewählten Meldungen, sonst alle.</source>
        <translation>Copies the selected messages, or all of them.</translation>
    </message>
    <message>
        <source>&amp;Diagnose kopieren</source>
        <translation>Copy &amp;diagnosis</translation>
    </message>
    <message>
        <source>Kopiert Versionen, Ordner und Dateigrößen mit dem ganzen Protokoll.</source>
        <translation>Copies versions, folders and file sizes with the whole log.</translation>
    </message>
    <message>
        <source>Schreibt die Diagnose in eine Datei.</source>
        <translation>Writes the diagnosis to a file.</translation>
    </message>
    <message>
        <source>Beginnt eine E-Mail mit der Diagnose.</source>
        <translation>Starts a mail with the diagnosis.</translation>
    </message>
    <message>
        <source>&amp;Vor</source>
        <translation>&amp;Forward</translation>
    </message>
    <message>
        <source>Inhalt</source>
        <translation>Contents</translation>
    </message>
    <message>
        <source>Gefundene Stellen</source>
        <translation>Places found</translation>
    </message>
    <message>
        <source>Handbuch</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Zurück zur Stelle davor (Alt+Pfeil links)</source>
        <translation>Back to the place before (Alt+Left)</translation>
    </message>
    <message>
        <source>Wieder vor (Alt+Pfeil rechts)</source>
        <translation>Forward again (Alt+Right)</translation>
    </message>
    <message>
        <source>&amp;Suchen:</source>
        <translation>&amp;Search:</translation>
    </message>
    <message>
        <source>im ganzen Handbuch</source>
        <translation>in the whole manual</translation>
    </message>
    <message>
        <source>Seite des Handbuchs</source>
        <translation>Page of the manual</translation>
    </message>
    <message>
        <source>Gefundene Stellen: {0}</source>
        <translation>Places found: {0}</translation>
    </message>
    <message>
        <source>Was &amp;neu ist:</source>
        <translation>What is &amp;new:</translation>
    </message>
    <message>
        <source>&amp;Einmal in der Woche von selbst nachsehen</source>
        <translation>Look &amp;once a week by itself</translation>
    </message>
    <message>
        <source>Nach Updates suchen</source>
        <translation>Check for updates</translation>
    </message>
    <message>
        <source>Fortschritt</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>&amp;Herunterladen…</source>
        <translation>&amp;Download…</translation>
    </message>
    <message>
        <source>Noch ein&amp;mal versuchen</source>
        <translation>Try &amp;again</translation>
    </message>
    <message>
        <source>Diese Version über&amp;springen</source>
        <translation>&amp;Skip this version</translation>
    </message>
    <message>
        <source>S&amp;päter</source>
        <translation>&amp;Later</translation>
    </message>
    <message>
        <source>Sprache / &amp;Language</source>
        <translation>&amp;Language / Sprache</translation>
    </message>
    <message>
        <source>&amp;Übersicht</source>
        <translation>Overvie&amp;w</translation>
    </message>
    <message>
        <source>Etwas ist schiefgegangen. Ein Klick zeigt das Fehlerprotokoll.</source>
        <translation>Something went wrong. A click shows the error log.</translation>
    </message>
    <message>
        <source>1. Was haben Sie heute auf Ihren Konten?</source>
        <translation>1. What is in your accounts today?</translation>
    </message>
    <message>
        <source>Kontostand heute</source>
        <translation>Balance today</translation>
    </message>
    <message>
        <source>2. Was ist seither geschehen?</source>
        <translation>2. What has happened since?</translation>
    </message>
    <message>
        <source>Kontostand von Konto {0}</source>
        <translation>Balance of account {0}</translation>
    </message>
    <message>
        <source>Zeigen</source>
        <translation>Show</translation>
    </message>
    <message>
        <source>Was damit geschehen soll</source>
        <translation>What to do about it</translation>
    </message>
    <message>
        <source>Was mit &apos;{0}&apos; geschehen soll</source>
        <translation>What to do about &apos;{0}&apos;</translation>
    </message>
    <message>
        <source>Sonst beginnt das Programm mit der Seite, die zuletzt zu sehen war.</source>
        <translation>Else the program starts with the page that was in sight last.</translation>
    </message>
    <message>
        <source>Eine Datei Ihrer Bank. Sie können sie auch einfach in dieses Fenster ziehen.</source>
        <translation>A file from your bank. You can also just drop it on this window.</translation>
    </message>
    <message>
        <source>Umsätze direkt bei der Bank abrufen.</source>
        <translation>Fetch transactions from the bank.</translation>
    </message>
    <message>
        <source>Von Hand, zum Beispiel was Sie heute bar bezahlt haben.</source>
        <translation>By hand, for instance what you paid in cash today.</translation>
    </message>
    <message>
        <source>Lassen Sie es Ihre Buchungen als QIF- oder CSV-Datei speichern, und lesen Sie diese Datei ein.</source>
        <translation>Have it save your bookings as a QIF or CSV file, and read that file.</translation>
    </message>
    <message>
        <source>Ein erfundenes Haushaltsbuch zum Ausprobieren. Ihr eigenes bleibt, wie es ist.</source>
        <translation>An invented book to try things out. Your own stays as it is.</translation>
    </message>
    <message>
        <source>Auch 3, {0}, +7, heute oder gestern; Pfeiltasten blättern, F4 öffnet den Kalender</source>
        <translation>Also 3, {0}, +7, today or yesterday; arrow keys step, F4 opens the calendar</translation>
    </message>
    <message>
        <source>Letzter Monat</source>
        <comment>Zeitraum</comment>
        <translation>Final month</translation>
    </message>
    <message>
        <source>von</source>
        <comment>Zeitraum</comment>
        <translation>from</translation>
    </message>
    <message>
        <source>Serie: Tag, bis zu dem der Vertrag kündbar ist, oder &quot;ohne&quot;</source>
        <translation>series: day until which the contract can be cancelled, or &quot;ohne&quot;</translation>
    </message>
    <message>
        <source>Kündbar ist nur eine Serie. Bitte nennen Sie auch --interval.</source>
        <translation>Only a series can be cancelled. Please name --interval as well.</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ist kein Jahr und kein Monat. Bitte geben Sie 2026 oder 2026-03 an.</source>
        <translation>&apos;{0}&apos; is neither a year nor a month. Please give 2026 or 2026-03.</translation>
    </message>
    <message>
        <source>Budget</source>
        <translation>Budget</translation>
    </message>
    <message>
        <source>Übertrag</source>
        <translation>Carried over</translation>
    </message>
    <message>
        <source>Übrig</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ist keine Kategorie für Ausgaben und hat kein Budget.</source>
        <translation>&apos;{0}&apos; is no category for expenses and has no budget.</translation>
    </message>
    <message>
        <source>Ein Limit kann nicht unter null liegen. Bitte geben Sie den Betrag ohne Minus ein.</source>
        <translation>A limit cannot be below zero. Please enter the amount without a minus sign.</translation>
    </message>
    <message>
        <source>--only nennt den Monat, der den Betrag eines Jahres allein bekommt: &quot;budget set Versicherung 2026 600 --only 2026-01&quot;.</source>
        <translation>--only names the month that gets the amount of a year alone: &quot;budget set Versicherung 2026 600 --only 2026-01&quot;.</translation>
    </message>
    <message>
        <source>Übertragen wird von einem Januar an. Bitte geben Sie das Jahr an, oder &quot;aus&quot;.</source>
        <translation>Carrying over begins with a January. Please give the year, or &quot;aus&quot;.</translation>
    </message>
    <message>
        <source>Bitte geben Sie ein Jahr an, zum Beispiel 2026.</source>
        <translation>Please give a year, for example 2026.</translation>
    </message>
    <message>
        <source>Im Jahr {0} wurde in keiner dieser Kategorien etwas ausgegeben.</source>
        <translation>In {0} nothing was spent in any of these categories.</translation>
    </message>
    <message>
        <source>zeigt das Budget eines Monats (2026-03) mit dem, was ausgegeben und übrig ist, oder die Monate eines Jahres (2026); ohne Angabe den aktuellen Monat</source>
        <translation>shows the budget of a month (2026-03) with what is spent and left, or the months of a year (2026); the current month unless said otherwise</translation>
    </message>
    <message>
        <source>gibt einer Kategorie ein Limit für einen Monat, oder verteilt den Betrag eines Jahres auf zwölf Monate; &quot;ohne&quot; lässt wieder das Monatslimit gelten</source>
        <translation>gives a category a limit for one month, or spreads the amount of a year over twelve months; &quot;ohne&quot; makes the monthly limit hold again</translation>
    </message>
    <message>
        <source>der Betrag des Jahres gilt in diesem Monat allein</source>
        <translation>the amount of the year holds in this month alone</translation>
    </message>
    <message>
        <source>überträgt, was übrig bleibt, vom Januar dieses Jahres an in den nächsten Monat; &quot;aus&quot; statt des Jahres beendet das</source>
        <translation>carries over what is left to the next month from January of this year on; &quot;aus&quot; in place of the year ends that</translation>
    </message>
    <message>
        <source>macht aus den Ausgaben jedes Monats im Vorjahr das Budget eines Jahres, ohne Angabe des aktuellen</source>
        <translation>makes the expenses of each month of the year before the budget of a year, of the current one unless said otherwise</translation>
    </message>
    <message>
        <source>Verlauf, Vermögen: Monate der Vorschau, ohne Angabe 12</source>
        <translation>balances, net worth: months of the forecast, 12 if left out</translation>
    </message>
    <message>
        <source>Verlauf, Vermögen: Vorschau mit dem Durchschnitt der Einzelausgaben</source>
        <translation>balances, net worth: forecast with the average of single expenses</translation>
    </message>
    <message>
        <source>Summe: {0}</source>
        <translation>Sum: {0}</translation>
    </message>
    <message>
        <source>Möglich sind 1 bis {0} Tage.</source>
        <translation>Possible are 1 to {0} days.</translation>
    </message>
    <message>
        <source>so viele Tage weit, heute eingeschlossen; ohne Angabe 14</source>
        <translation>so many days ahead, today included; 14 if left out</translation>
    </message>
    <message>
        <source>nur die Serien, die in diesen Tagen zu kündigen sind</source>
        <translation>only the series that have to be cancelled within these days</translation>
    </message>
    <message>
        <source>Beleg</source>
        <translation>Receipt</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>bytes</translation>
    </message>
    <message>
        <source>fehlt</source>
        <translation>missing</translation>
    </message>
    <message>
        <source>Es fehlt kein Beleg.</source>
        <translation>No receipt is missing.</translation>
    </message>
    <message>
        <source>Der Eintrag {0} hat keinen Beleg &apos;{1}&apos;.</source>
        <translation>Entry {0} has no receipt &apos;{1}&apos;.</translation>
    </message>
    <message>
        <source>Mit --yes wird er entfernt.</source>
        <translation>With --yes it is removed.</translation>
    </message>
    <message>
        <source>listet die Belege der Einträge, alle oder die der genannten</source>
        <translation>lists the receipts of the entries, all of them or those named</translation>
    </message>
    <message>
        <source>kopiert Dateien in den Ordner &quot;Belege&quot; neben der Datenbank und hängt sie an den Eintrag</source>
        <translation>copies files to the folder &quot;Belege&quot; beside the database and attaches them to the entry</translation>
    </message>
    <message>
        <source>rechnet einen Bericht aus: durchschnitt (je Monat), summe, limit, budget oder schlagwort; ohne Angabe für das aktuelle Jahr</source>
        <translation>calculates a report: durchschnitt (average per month), summe (total), limit, budget or schlagwort (by tag); of the current year unless told otherwise</translation>
    </message>
    <message>
        <source>Schlagwort</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>zeigt die Schlagwörter (Wörter mit # in Beschreibungen) mit ihren Summen; ohne Angabe für das aktuelle Jahr</source>
        <translation>shows the tags (words with # in descriptions) with their sums; of the current year if nothing is given</translation>
    </message>
    <message>
        <source>Der Ordner &apos;{0}&apos; kann nicht angelegt werden.</source>
        <translation>The folder &apos;{0}&apos; cannot be created.</translation>
    </message>
    <message>
        <source>Der Beleg &apos;{0}&apos; konnte nicht nach &apos;{1}&apos; kopiert werden. Bitte prüfen Sie die Zugriffsrechte und den Speicherplatz.</source>
        <translation>The receipt &apos;{0}&apos; could not be copied to &apos;{1}&apos;. Please check the access rights and the free space.</translation>
    </message>
    <message>
        <source>Budget von &apos;{0}&apos; geändert</source>
        <translation>Budget of &apos;{0}&apos; changed</translation>
    </message>
    <message>
        <source>Budget von {0} Kategorien geändert</source>
        <translation>Budget of {0} categories changed</translation>
    </message>
    <message>
        <source>Das Buch hat noch keine Kategorien für Ausgaben. Sie legen sie unter „Extras“, „Kategorie/Konto bearbeiten“ an.</source>
        <translation>The book has no categories for expenses yet. You add them under &quot;Extras&quot;, &quot;Edit category/account&quot;.</translation>
    </message>
    <message>
        <source>kein Limit, ausgegeben {0}</source>
        <translation>no limit, spent {0}</translation>
    </message>
    <message>
        <source>Budget {0}, Übertrag {1}, ausgegeben {2}, übrig {3}</source>
        <translation>budget {0}, carried over {1}, spent {2}, left {3}</translation>
    </message>
    <message>
        <source>Budget {0}, ausgegeben {1}, übrig {2}</source>
        <translation>budget {0}, spent {1}, left {2}</translation>
    </message>
    <message>
        <source>Gilt in jedem Monat, der kein eigenes Limit hat.</source>
        <translation>Applies in every month that has no limit of its own.</translation>
    </message>
    <message>
        <source>Ergibt sich aus Betrag und Intervall der Kategorie.</source>
        <translation>Follows from amount and interval of the category.</translation>
    </message>
    <message>
        <source>Was übrig bleibt, geht seit {0} in den nächsten Monat.</source>
        <translation>Since {0}, what is left goes on to the next month.</translation>
    </message>
    <message>
        <source>Was übrig bleibt, verfällt am Monatsende.</source>
        <translation>What is left expires at the end of the month.</translation>
    </message>
    <message>
        <source>Ein Betrag hier wird auf zwölf Monate verteilt.</source>
        <translation>An amount here is spread over twelve months.</translation>
    </message>
    <message>
        <source>wird übertragen</source>
        <translation>is carried over</translation>
    </message>
    <message>
        <source>wird nicht übertragen</source>
        <translation>is not carried over</translation>
    </message>
    <message>
        <source>Im {0}, Geplantes zählt mit</source>
        <translation>In {0}, with what is planned</translation>
    </message>
    <message>
        <source>Übertragen</source>
        <translation>Carry over</translation>
    </message>
    <message>
        <source>Ist {0}</source>
        <translation>Actual {0}</translation>
    </message>
    <message>
        <source>Jahr {0}</source>
        <translation>Year {0}</translation>
    </message>
    <message>
        <source>Keine Kategorie hat ein Limit.</source>
        <translation>No category has a limit.</translation>
    </message>
    <message>
        <source>Budget und Ausgaben je Monat</source>
        <translation>Budget and expenses by month</translation>
    </message>
    <message>
        <source>Budget und Ausgaben je Jahr</source>
        <translation>Budget and expenses by year</translation>
    </message>
    <message>
        <source>Ausgaben je Tag {0}</source>
        <translation>Expenses by day {0}</translation>
    </message>
    <message>
        <source>Übriges</source>
        <translation>Others</translation>
    </message>
    <message>
        <source>Geldfluss</source>
        <translation>Money flow</translation>
    </message>
    <message>
        <source>Herein</source>
        <translation>In</translation>
    </message>
    <message>
        <source>Hinaus</source>
        <translation>Out</translation>
    </message>
    <message>
        <source>Insgesamt</source>
        <translation>Altogether</translation>
    </message>
    <message>
        <source>Aus Erspartem</source>
        <translation>From savings</translation>
    </message>
    <message>
        <source>Bleibt übrig</source>
        <translation>Left over</translation>
    </message>
    <message>
        <source>Limits je Monat</source>
        <translation>Limits by month</translation>
    </message>
    <message>
        <source>{0}; Säulen: ausgegeben, Linie: Limit</source>
        <translation>{0}; columns: spent, line: limit</translation>
    </message>
    <message>
        <source>Limits je Jahr</source>
        <translation>Limits by year</translation>
    </message>
    <message>
        <source>Übrige Konten</source>
        <translation>Other accounts</translation>
    </message>
    <message>
        <source>Vermögen nach Konten</source>
        <translation>Net worth by account</translation>
    </message>
    <message>
        <source>Ausgaben und Einnahmen nach Schlagwörtern</source>
        <translation>Expenses and income by tag</translation>
    </message>
    <message>
        <source>{0}; Ausgaben ohne Schlagwort: {1}</source>
        <translation>{0}; expenses without tag: {1}</translation>
    </message>
    <message>
        <source>1 Beleg</source>
        <translation>1 receipt</translation>
    </message>
    <message numerus="yes">
        <source>{0} Belege</source>
        <translation>
            <numerusform>{0} receipt</numerusform>
            <numerusform>{0} receipts</numerusform>
        </translation>
    </message>
    <message>
        <source>zeigt PDF-Belege</source>
        <translation>shows PDF receipts</translation>
    </message>
    <message>
        <source>Schlagwörter</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>Bezahlt von</source>
        <translation>Paid by</translation>
    </message>
    <message>
        <source>Die Auswahl über der Liste blendet das gerade aus.</source>
        <translation>The selection above the list hides this at present.</translation>
    </message>
    <message>
        <source>Wie soll die Ansicht heißen?</source>
        <translation>What shall the view be called?</translation>
    </message>
    <message>
        <source>Ansicht merken</source>
        <translation>Keep view</translation>
    </message>
    <message>
        <source>Die Ansicht &apos;{0}&apos; gibt es schon. Ersetzen?</source>
        <translation>There is a view &apos;{0}&apos; already. Replace it?</translation>
    </message>
    <message>
        <source>Meine Ansichten</source>
        <translation>My views</translation>
    </message>
    <message>
        <source>Welche Ansicht?</source>
        <translation>Which view?</translation>
    </message>
    <message>
        <source>Taste: Strg+{0}</source>
        <translation>Key: Ctrl+{0}</translation>
    </message>
    <message>
        <source>Ohne Taste; die ersten neun haben eine.</source>
        <translation>Without a key; the first nine have one.</translation>
    </message>
    <message>
        <source>Ansicht &apos;{0}&apos;</source>
        <translation>View &apos;{0}&apos;</translation>
    </message>
    <message>
        <source>An die erste Stelle</source>
        <translation>To the first place</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Die Ansicht &apos;{0}&apos; gibt es schon.</source>
        <translation>There is a view &apos;{0}&apos; already.</translation>
    </message>
    <message>
        <source>Zeilen k&amp;opieren</source>
        <translation>Copy ro&amp;ws</translation>
    </message>
    <message>
        <source>Kopiert die ausgewählten Zeilen als Tabelle in die Zwischenablage.</source>
        <translation>Copies the selected rows to the clipboard as a table.</translation>
    </message>
    <message>
        <source>Für &amp;heute</source>
        <translation>For &amp;today</translation>
    </message>
    <message>
        <source>Legt die ausgewählten Einträge noch einmal für heute an.</source>
        <translation>Adds the selected entries once more for today.</translation>
    </message>
    <message>
        <source>&amp;Duplizieren</source>
        <translation>Duplic&amp;ate</translation>
    </message>
    <message>
        <source>Für den nächsten &amp;Monat</source>
        <translation>For next &amp;month</translation>
    </message>
    <message>
        <source>Legt die ausgewählten Einträge einen Monat später noch einmal an.</source>
        <translation>Adds the selected entries once more a month later.</translation>
    </message>
    <message>
        <source>&amp;Mehrere ändern…</source>
        <translation>Change &amp;many…</translation>
    </message>
    <message>
        <source>Ändert Kategorie, Konto, Beschreibung oder Art aller ausgewählten Einträge auf einmal.</source>
        <translation>Changes category, account, description or kind of all selected entries at once.</translation>
    </message>
    <message>
        <source>Hängt eine Datei, etwa eine Rechnung, an den Eintrag.</source>
        <translation>Attaches a file, such as an invoice, to the entry.</translation>
    </message>
    <message>
        <source>Bele&amp;ge</source>
        <translation>Receip&amp;ts</translation>
    </message>
    <message>
        <source>&amp;Zeigen…</source>
        <translation>&amp;Show…</translation>
    </message>
    <message>
        <source>Zeigt die Belege des ausgewählten Eintrags.</source>
        <translation>Shows the receipts of the selected entry.</translation>
    </message>
    <message>
        <source>Ansicht &amp;merken…</source>
        <translation>&amp;Keep view…</translation>
    </message>
    <message>
        <source>&amp;Meine Ansichten</source>
        <translation>&amp;My views</translation>
    </message>
    <message>
        <source>&amp;Verwalten…</source>
        <translation>Ma&amp;nage…</translation>
    </message>
    <message>
        <source>Zeigt eine gemerkte Ansicht, benennt sie um oder löscht sie.</source>
        <translation>Shows a kept view, renames or deletes it.</translation>
    </message>
    <message>
        <source>&amp;Gehe zum Tag…</source>
        <translation>&amp;Go to day…</translation>
    </message>
    <message>
        <source>Springt in der Liste zu einem Tag, den Sie eintippen.</source>
        <translation>Jumps in the list to a day that you type.</translation>
    </message>
    <message>
        <source>B&amp;udget…</source>
        <translation>B&amp;udget…</translation>
    </message>
    <message>
        <source>Plant, was in jedem Monat ausgegeben werden darf.</source>
        <translation>Plans what may be spent in each month.</translation>
    </message>
    <message>
        <source>Am Desktop &amp;erinnern</source>
        <translation>Remind on the &amp;desktop</translation>
    </message>
    <message>
        <source>Meldet einmal am Tag am Desktop, was fällig oder zu kündigen ist.</source>
        <translation>Tells once a day on the desktop what is due or has to be cancelled.</translation>
    </message>
    <message>
        <source>&amp;Personen…</source>
        <translation>&amp;People…</translation>
    </message>
    <message>
        <source>Nennt, wer zum Haushalt gehört und wem welches Konto zu welchem Teil.</source>
        <translation>Says who belongs to the household and who has what share in which account.</translation>
    </message>
    <message>
        <source>&amp;Haushalt</source>
        <translation>&amp;Household</translation>
    </message>
    <message>
        <source>&amp;Ausgleich…</source>
        <translation>&amp;Settlement…</translation>
    </message>
    <message>
        <source>Rechnet aus, wer wem wie viel schuldet.</source>
        <translation>Works out who owes whom how much.</translation>
    </message>
    <message>
        <source>{0} {1} %</source>
        <translation>{0} {1}%</translation>
    </message>
    <message>
        <source>{0} zu gleichen Teilen</source>
        <translation>{0} in equal parts</translation>
    </message>
    <message>
        <source>Personen</source>
        <translation>People</translation>
    </message>
    <message>
        <source>Bitte geben Sie einen Namen ein.</source>
        <translation>Please enter a name.</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; gibt es schon. Bitte wählen Sie einen anderen Namen.</source>
        <translation>&apos;{0}&apos; exists already. Please choose another name.</translation>
    </message>
    <message>
        <source>Person &apos;{0}&apos; angelegt</source>
        <translation>Person &apos;{0}&apos; added</translation>
    </message>
    <message>
        <source>Person &apos;{0}&apos; umbenannt</source>
        <translation>Person &apos;{0}&apos; renamed</translation>
    </message>
    <message>
        <source>Soll &apos;{0}&apos; gelöscht werden?</source>
        <translation>Delete &apos;{0}&apos;?</translation>
    </message>
    <message>
        <source>Soll &apos;{0}&apos; gelöscht werden?
Bei {1} ist dann nicht mehr vermerkt, wer bezahlt hat.</source>
        <translation>Delete &apos;{0}&apos;?
Who paid is then no longer noted at {1}.</translation>
    </message>
    <message>
        <source>Person löschen</source>
        <translation>Delete person</translation>
    </message>
    <message>
        <source>Person &apos;{0}&apos; gelöscht</source>
        <translation>Person &apos;{0}&apos; deleted</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ist kein Anteil von 0 bis 100</source>
        <translation>&apos;{0}&apos; is no share from 0 to 100</translation>
    </message>
    <message>
        <source>es fehlen {0} %</source>
        <translation>{0}% missing</translation>
    </message>
    <message>
        <source>{0} % zu viel</source>
        <translation>{0}% too much</translation>
    </message>
    <message>
        <source>Anteile am Haushalt geändert</source>
        <translation>Shares of the household changed</translation>
    </message>
    <message>
        <source>Anteile am Konto &apos;{0}&apos; geändert</source>
        <translation>Shares in account &apos;{0}&apos; changed</translation>
    </message>
    <message>
        <source>nicht gespeichert</source>
        <translation>not saved</translation>
    </message>
    <message>
        <source>Noch gibt es keine Personen. Sie legen sie unter „Extras“, „Haushalt“, „Personen“ an.</source>
        <translation>There are no people yet. You add them under “Tools”, “Household”, “People”.</translation>
    </message>
    <message>
        <source>Ausgleich</source>
        <translation>Settlement</translation>
    </message>
    <message>
        <source>In diesem Zeitraum ist bei keinem Eintrag vermerkt, wer bezahlt hat.</source>
        <translation>No entry of this period says who paid.</translation>
    </message>
    <message>
        <source>Es ist alles ausgeglichen.</source>
        <translation>Everything is settled.</translation>
    </message>
    <message>
        <source>Wer</source>
        <translation>Who</translation>
    </message>
    <message>
        <source>An wen</source>
        <translation>To whom</translation>
    </message>
    <message>
        <source>Person</source>
        <translation>Person</translation>
    </message>
    <message>
        <source>Bezahlt</source>
        <translation>Paid</translation>
    </message>
    <message>
        <source>Zu tragen</source>
        <translation>To bear</translation>
    </message>
    <message>
        <source>Schon ausgeglichen</source>
        <translation>Settled already</translation>
    </message>
    <message>
        <source>Bleibt</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>Getragen von</source>
        <translation>Borne by</translation>
    </message>
    <message>
        <source>Ausgleich {0}</source>
        <translation>Settlement {0}</translation>
    </message>
    <message>
        <source>Wer zahlt wem</source>
        <translation>Who pays whom</translation>
    </message>
    <message>
        <source>Wer hat was bezahlt und zu tragen</source>
        <translation>Who paid what and has to bear what</translation>
    </message>
    <message>
        <source>Was gezählt wurde</source>
        <translation>What was counted</translation>
    </message>
    <message>
        <source>Bilder und PDF|*.pdf;*.png;*.jpg;*.jpeg;*.gif;*.bmp;*.tif;*.tiff;*.webp;*.heic|Alle Dateien|*.*</source>
        <translation>Pictures and PDF|*.pdf;*.png;*.jpg;*.jpeg;*.gif;*.bmp;*.tif;*.tiff;*.webp;*.heic|All files|*.*</translation>
    </message>
    <message>
        <source>Belege</source>
        <translation>Receipts</translation>
    </message>
    <message>
        <source>Belege: {0}, {1}, {2}</source>
        <translation>Receipts: {0}, {1}, {2}</translation>
    </message>
    <message>
        <source>Noch kein Beleg. Ziehen Sie Dateien hierher, fügen Sie ein Bild aus der Zwischenablage ein (Strg+V), oder wählen Sie eine Datei.</source>
        <translation>No receipt yet. Drag files here, paste a picture from the clipboard (Ctrl+V), or choose a file.</translation>
    </message>
    <message>
        <source>Dieser Eintrag hat keinen Beleg.</source>
        <translation>This entry has no receipt.</translation>
    </message>
    <message>
        <source>Die Datei &apos;{0}&apos; fehlt im Ordner &apos;{1}&apos;. Legen Sie sie dorthin zurück, zum Beispiel aus dem Papierkorb, oder wählen Sie sie neu.</source>
        <translation>The file &apos;{0}&apos; is missing in the folder &apos;{1}&apos;. Put it back there, from the trash for instance, or choose it again.</translation>
    </message>
    <message>
        <source>Beleg hinzufügen</source>
        <translation>Add receipt</translation>
    </message>
    <message>
        <source>In der Zwischenablage ist weder ein Bild noch eine Datei.</source>
        <translation>The clipboard holds neither a picture nor a file.</translation>
    </message>
    <message>
        <source>Beleg neu wählen</source>
        <translation>Choose receipt again</translation>
    </message>
    <message>
        <source>Die Datei fehlt schon.</source>
        <translation>The file is missing already.</translation>
    </message>
    <message>
        <source>Die Datei kommt in den Papierkorb.</source>
        <translation>The file goes to the trash.</translation>
    </message>
    <message>
        <source>Soll der Beleg &apos;{0}&apos; von diesem Eintrag entfernt werden?</source>
        <translation>Shall the receipt &apos;{0}&apos; be removed from this entry?</translation>
    </message>
    <message>
        <source>Beleg entfernen</source>
        <translation>Remove receipt</translation>
    </message>
    <message>
        <source>Für &apos;{0}&apos; wurde kein Programm gefunden, das die Datei öffnet.</source>
        <translation>No program was found that opens &apos;{0}&apos;.</translation>
    </message>
    <message>
        <source>Beleg speichern</source>
        <translation>Save receipt</translation>
    </message>
    <message>
        <source>Die Datei &apos;{0}&apos; kann nicht gelesen werden.</source>
        <translation>The file &apos;{0}&apos; cannot be read.</translation>
    </message>
    <message>
        <source>{0} und {1} weitere</source>
        <translation>{0} and {1} more</translation>
    </message>
    <message>
        <source>Im Ordner &apos;{0}&apos; fehlen Belege: {1}</source>
        <translation>Receipts are missing in the folder &apos;{0}&apos;: {1}</translation>
    </message>
    <message>
        <source>Diese Datenbank kann nur gelesen werden; Belege können nicht geändert werden.</source>
        <translation>This database can only be read; receipts cannot be changed.</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ist keine Datei.</source>
        <translation>&apos;{0}&apos; is no file.</translation>
    </message>
    <message>
        <source>Die Datei &apos;{0}&apos; ist größer als {1} MB. Bitte verkleinern Sie sie.</source>
        <translation>The file &apos;{0}&apos; is larger than {1} MB. Please make it smaller.</translation>
    </message>
    <message>
        <source>Die Datei &apos;{0}&apos; ist leer oder kann nicht gelesen werden.</source>
        <translation>The file &apos;{0}&apos; is empty or cannot be read.</translation>
    </message>
    <message>
        <source>Der Beleg konnte nicht kopiert werden:
{0}</source>
        <translation>The receipt could not be copied:
{0}</translation>
    </message>
    <message>
        <source>Der Eintrag wurde inzwischen gelöscht.</source>
        <translation>The entry has been deleted meanwhile.</translation>
    </message>
    <message>
        <source>Beleg zu &apos;{0}&apos; hinzugefügt</source>
        <translation>Receipt added to &apos;{0}&apos;</translation>
    </message>
    <message>
        <source>Beleg von &apos;{0}&apos; entfernt</source>
        <translation>Receipt removed from &apos;{0}&apos;</translation>
    </message>
    <message>
        <source>Beleg von &apos;{0}&apos; ersetzt</source>
        <translation>Receipt of &apos;{0}&apos; replaced</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ist noch bis zum {1} kündbar.</source>
        <translation>&apos;{0}&apos; can be cancelled until {1}.</translation>
    </message>
    <message>
        <source>Kontorelle: das steht an</source>
        <translation>Kontorelle: what is due</translation>
    </message>
    <message>
        <source>Heute fällig: {0}, {1}</source>
        <translation>Due today: {0}, {1}</translation>
    </message>
    <message>
        <source>Heute fällig: {0} Buchungen</source>
        <translation>Due today: {0} entries</translation>
    </message>
    <message>
        <source>{0} unter {1}</source>
        <translation>{0} below {1}</translation>
    </message>
    <message>
        <source>{0} ab {1} unter {2}</source>
        <translation>{0} below {2} from {1} on</translation>
    </message>
    <message>
        <source>{0} kündbar bis {1}</source>
        <translation>{0}: cancel by {1}</translation>
    </message>
    <message>
        <source>ohne Schlagwort</source>
        <translation>without tag</translation>
    </message>
    <message>
        <source>Ein Eintrag mit mehreren Schlagwörtern zählt bei jedem davon, in den Summen der Einnahmen und Ausgaben nur einmal.</source>
        <translation>An entry with several tags counts in each of them, but only once in the sums of income and expenses.</translation>
    </message>
    <message>
        <source>Einnahmen und Ausgaben nach den Wörtern mit # in den Beschreibungen.</source>
        <translation>Income and expenses by the words with # in the descriptions.</translation>
    </message>
    <message>
        <source>Von einem Startguthaben lässt sich in der Liste nur der Betrag ändern.</source>
        <translation>Of an opening balance, only the amount can be changed in the list.</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; vom {1} gehört zu einer Serie ({2} seit {3}).
Kategorie und Beschreibung sind bei allen Vorkommen gleich. Was möchten Sie ändern?</source>
        <translation>&apos;{0}&apos; of {1} belongs to a series ({2} since {3}).
Category and description are the same for all occurrences. What do you want to change?</translation>
    </message>
    <message>
        <source>Die Teile kämen zusammen unter null. Öffnen Sie den Eintrag, um alle Teile zu ändern.</source>
        <translation>The parts would come to less than zero. Open the entry to change all parts.</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; dupliziert</source>
        <translation>&apos;{0}&apos; duplicated</translation>
    </message>
    <message>
        <source>{0} Einträge dupliziert</source>
        <translation>{0} entries duplicated</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; zum {1} dupliziert.</source>
        <translation>&apos;{0}&apos; duplicated for {1}.</translation>
    </message>
    <message>
        <source>{0} Einträge dupliziert.</source>
        <translation>{0} entries duplicated.</translation>
    </message>
    <message>
        <source>Ein Startguthaben lässt sich nicht duplizieren: Jedes Konto hat nur eines.</source>
        <translation>An opening balance cannot be duplicated: each account has only one.</translation>
    </message>
    <message>
        <source>Geändert wird, was Sie hier wählen, bei: {0}.</source>
        <translation>What you choose here is changed in: {0}.</translation>
    </message>
    <message>
        <source>Darunter ist eine Serie. Bei ihr ändern sich alle Vorkommen, vergangene wie zukünftige.</source>
        <translation>One of them is a series. All its occurrences change, past and future ones.</translation>
    </message>
    <message>
        <source>Darunter sind {0} Serien. Bei ihnen ändern sich alle Vorkommen, vergangene wie zukünftige.</source>
        <translation>{0} of them are series. All their occurrences change, past and future ones.</translation>
    </message>
    <message>
        <source>Startguthaben bleiben, wie sie sind.</source>
        <translation>Opening balances stay as they are.</translation>
    </message>
    <message>
        <source>{0} Einträge geändert</source>
        <translation>{0} entries changed</translation>
    </message>
    <message>
        <source>So, wie Sie es gewählt haben, ändert sich nichts.</source>
        <translation>With what you have chosen, nothing changes.</translation>
    </message>
    <message>
        <source>Das betrifft &apos;{0}&apos;.</source>
        <translation>This is about &apos;{0}&apos;.</translation>
    </message>
    <message>
        <source>Kategorie &apos;{0}&apos;</source>
        <translation>category &apos;{0}&apos;</translation>
    </message>
    <message>
        <source>Ändern: {0}
Neu: {1}</source>
        <translation>Change: {0}
New: {1}</translation>
    </message>
    <message>
        <source>Bei Serien ändern sich alle Vorkommen, vergangene wie zukünftige.</source>
        <translation>Of series, all occurrences change, past and future ones.</translation>
    </message>
    <message>
        <source>Einträge ändern</source>
        <translation>Change entries</translation>
    </message>
    <message>
        <source>Die Liste zeigt keine Einträge.</source>
        <translation>The list shows no entries.</translation>
    </message>
    <message>
        <source>Der {0} liegt außerhalb des gezeigten Zeitraums. Am nächsten liegt der {1}.</source>
        <translation>{0} lies outside of the period shown. The nearest is {1}.</translation>
    </message>
    <message>
        <source>Am {0} gibt es hier keinen Eintrag. Am nächsten liegt der {1}.</source>
        <translation>There is no entry here on {0}. The nearest is {1}.</translation>
    </message>
    <message>
        <source>Jahreskalender der Ausgaben</source>
        <translation>Expenses as calendar of the year</translation>
    </message>
    <message>
        <source>Kein Eintrag dieses Zeitraums hat ein Schlagwort. Schreiben Sie eines mit # in die Beschreibung, etwa #urlaub.</source>
        <translation>No entry of this period has a tag. Write one with # into the description, for example #holiday.</translation>
    </message>
    <message>
        <source>Budget dieses Monats: {0}</source>
        <translation>Budget of this month: {0}</translation>
    </message>
    <message>
        <source>&amp;Belege mitsichern</source>
        <translation>&amp;Back up receipts too</translation>
    </message>
    <message>
        <source>Kopiert neue Dateien aus dem Ordner &quot;Belege&quot; neben die Sicherungen, jede nur einmal. Gilt auch für Sicherungen, die Sie selbst erstellen.</source>
        <translation>Copies new files from the folder &quot;Belege&quot; beside the backups, each only once. This also holds for backups that you make yourself.</translation>
    </message>
    <message>
        <source>&amp;Jahr:</source>
        <translation>&amp;Year:</translation>
    </message>
    <message>
        <source>Jahr gleichmäßig &amp;verteilen</source>
        <translation>Sp&amp;read year evenly</translation>
    </message>
    <message>
        <source>Verteilt, was die Zeile im Jahr erlaubt, auf zwölf gleiche Monate</source>
        <translation>Spreads what the line allows in the year over twelve equal months</translation>
    </message>
    <message>
        <source>Jahr in &amp;einem Monat</source>
        <translation>Year in &amp;one month</translation>
    </message>
    <message>
        <source>Erlaubt alles im Monat der gewählten Zelle und in den anderen nichts</source>
        <translation>Allows everything in the month of the chosen cell and nothing in the others</translation>
    </message>
    <message>
        <source>Ausgaben des V&amp;orjahrs übernehmen</source>
        <translation>&amp;Take over last year&apos;s expenses</translation>
    </message>
    <message>
        <source>Schlägt für jeden Monat vor, was ein Jahr davor ausgegeben wurde; gespeichert wird noch nichts</source>
        <translation>Proposes for every month what was spent a year before; nothing is saved yet</translation>
    </message>
    <message>
        <source>bis zu {0}</source>
        <translation>up to {0}</translation>
    </message>
    <message>
        <source>mehr</source>
        <translation>more</translation>
    </message>
    <message>
        <source>{0} × darüber</source>
        <translation>{0} × above</translation>
    </message>
    <message>
        <source>{0} ×</source>
        <translation>{0} ×</translation>
    </message>
    <message>
        <source>Bezah&amp;lt von:</source>
        <translation>Paid b&amp;y:</translation>
    </message>
    <message>
        <source>Kündba&amp;r bis:</source>
        <translation>Cancel &amp;by:</translation>
    </message>
    <message>
        <source>Belege:</source>
        <translation>Receipts:</translation>
    </message>
    <message>
        <source>kein Vertrag</source>
        <translation>no contract</translation>
    </message>
    <message>
        <source>Der letzte Tag, an dem Sie diesen Vertrag kündigen können; das Programm erinnert vorher daran</source>
        <translation>The last day on which you can cancel this contract; the program reminds you beforehand</translation>
    </message>
    <message>
        <source>niemand Bestimmtem</source>
        <translation>nobody in particular</translation>
    </message>
    <message>
        <source>Gehe zum Tag:</source>
        <translation>Go to day:</translation>
    </message>
    <message>
        <source>Gehe zum Tag</source>
        <translation>Go to day</translation>
    </message>
    <message>
        <source>Etwa 15.3., +7 oder heute; die Eingabetaste springt hin, Esc schließt das Feld</source>
        <translation>Such as 15.3., +7 or today; Enter jumps there, Esc closes the field</translation>
    </message>
    <message>
        <source>{0}
Ein Klick zeigt mehr.</source>
        <translation>{0}
A click shows more.</translation>
    </message>
    <message>
        <source>Auch ein Schlagwort, etwa #urlaub</source>
        <translation>A tag too, for example #holiday</translation>
    </message>
    <message>
        <source>Mehrere Einträge ändern</source>
        <translation>Change several entries</translation>
    </message>
    <message>
        <source>unverändert</source>
        <translation>unchanged</translation>
    </message>
    <message>
        <source>Än&amp;dern</source>
        <translation>C&amp;hange</translation>
    </message>
    <message>
        <source>Me&amp;hrere ändern…</source>
        <translation>C&amp;hange many…</translation>
    </message>
    <message>
        <source>Ändert Kategorie, Konto, Beschreibung oder Art aller ausgewählten Einträge (Strg+M)</source>
        <translation>Changes category, account, description or kind of all selected entries (Ctrl+M)</translation>
    </message>
    <message>
        <source>Anteile in Prozent</source>
        <translation>Shares in per cent</translation>
    </message>
    <message>
        <source>Gilt</source>
        <translation>Applies</translation>
    </message>
    <message>
        <source>Gemeinsames</source>
        <translation>Common</translation>
    </message>
    <message>
        <source>Ausgleich: wer schuldet wem</source>
        <translation>Settlement: who owes whom</translation>
    </message>
    <message>
        <source>P&amp;ersonen…</source>
        <translation>P&amp;eople…</translation>
    </message>
    <message>
        <source>An&amp;teile in Prozent:</source>
        <translation>S&amp;hares in per cent:</translation>
    </message>
    <message>
        <source>Eine leere Zeile gilt wie „Gemeinsames“, und ist auch das leer, haben alle gleiche Anteile. Was jemand von einem Konto bezahlt, das ihm allein gehört, tragen alle wie „Gemeinsames“.</source>
        <translation>An empty row counts as “Common”; when that is empty too, everybody has the same share. What somebody pays from an account that is theirs alone is borne by all like “Common”.</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Personen des Haushalts</source>
        <translation>People of the household</translation>
    </message>
    <message>
        <source>&amp;Hinzufügen</source>
        <translation>&amp;Add</translation>
    </message>
    <message>
        <source>&amp;Umbenennen</source>
        <translation>&amp;Rename</translation>
    </message>
    <message>
        <source>Die Datei ist beschädigt oder kein Bild und kein PDF.</source>
        <translation>The file is damaged, or neither a picture nor a PDF.</translation>
    </message>
    <message>
        <source>Die Vorschau wird gelesen …</source>
        <translation>The preview is being read …</translation>
    </message>
    <message>
        <source>Seite {0} von {1} von &apos;{2}&apos;</source>
        <translation>Page {0} of {1} of &apos;{2}&apos;</translation>
    </message>
    <message>
        <source>Bele&amp;g hinzufügen</source>
        <translation>Add &amp;receipt</translation>
    </message>
    <message>
        <source>&amp;Datei wählen…</source>
        <translation>Choose &amp;file…</translation>
    </message>
    <message>
        <source>Aus der &amp;Zwischenablage</source>
        <translation>From the &amp;clipboard</translation>
    </message>
    <message>
        <source>&amp;Neue doch nicht</source>
        <translation>&amp;Drop the new ones</translation>
    </message>
    <message>
        <source>Dateien können auch hierher gezogen werden.</source>
        <translation>Files can be dragged here as well.</translation>
    </message>
    <message>
        <source>Datei &amp;neu wählen…</source>
        <translation>Choose &amp;file again…</translation>
    </message>
    <message>
        <source>&amp;Einfügen</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>&amp;Öffnen</source>
        <translation>&amp;Open</translation>
    </message>
    <message>
        <source>&amp;Speichern unter…</source>
        <translation>&amp;Save as…</translation>
    </message>
    <message>
        <source>En&amp;tfernen…</source>
        <translation>&amp;Remove…</translation>
    </message>
    <message>
        <source>Kleiner</source>
        <translation>Smaller</translation>
    </message>
    <message>
        <source>Größer</source>
        <translation>Larger</translation>
    </message>
    <message>
        <source>Ganze Seite</source>
        <translation>Whole page</translation>
    </message>
    <message>
        <source>Vorige Seite</source>
        <translation>Previous page</translation>
    </message>
    <message>
        <source>Nächste Seite</source>
        <translation>Next page</translation>
    </message>
    <message>
        <source>Bild oder Datei aus der Zwischenablage (Strg+V)</source>
        <translation>Picture or file from the clipboard (Ctrl+V)</translation>
    </message>
    <message>
        <source>leer</source>
        <translation>empty</translation>
    </message>
    <message>
        <source>Person, die bezahlt hat, oder &quot;ohne&quot;</source>
        <translation>Person who paid, or &quot;ohne&quot; (none)</translation>
    </message>
    <message>
        <source>Farbe</source>
        <translation>Colour</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Icon</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; steht nicht zur Wahl. Möglich sind: {1}.</source>
        <translation>&apos;{0}&apos; is not among the choices. Possible are: {1}.</translation>
    </message>
    <message>
        <source>Farbe und Symbol hat die Hauptkategorie. Bitte geben Sie &apos;{0}&apos; an.</source>
        <translation>Colour and icon belong to the main category. Please give &apos;{0}&apos;.</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ist nicht direkt bebuchbar und schlägt deshalb nichts vor.</source>
        <translation>Nothing can be booked to &apos;{0}&apos; itself, so it proposes nothing.</translation>
    </message>
    <message>
        <source>Farbe einer Hauptkategorie: ein Name wie &quot;Blau&quot; oder #rrggbb</source>
        <translation>colour of a main category: a name such as &quot;Blue&quot;, or #rrggbb</translation>
    </message>
    <message>
        <source>Symbol einer Hauptkategorie, zum Beispiel &quot;Haus&quot;</source>
        <translation>icon of a main category, for example &quot;House&quot;</translation>
    </message>
    <message>
        <source>ändert, was eine Kategorie vorschlägt oder wie sie gezeigt wird; &quot;ohne&quot; entfernt Betrag, Limit, Steuer, Farbe oder Symbol</source>
        <translation>changes what a category proposes or how it is shown; &quot;ohne&quot; removes amount, limit, tax, colour or icon</translation>
    </message>
    <message>
        <source>Das Diagramm &apos;{0}&apos; zeigt immer nur einen Zeitraum.</source>
        <translation>The chart &apos;{0}&apos; always shows one period only.</translation>
    </message>
    <message>
        <source>zeigt, was in den nächsten Tagen fällig wird, und welche Verträge in 30 Tagen zu kündigen sind</source>
        <translation>shows what falls due in the next days, and which contracts have to be cancelled within 30 days</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ist kein Monat. Schreiben Sie ihn als 2026-03 oder 03.2026.</source>
        <translation>&apos;{0}&apos; is not a month. Write it as 2026-03 or 03.2026.</translation>
    </message>
    <message>
        <source>Mit --month 2026-03 sagen Sie den Monat.</source>
        <translation>Use --month 2026-03 to give the month.</translation>
    </message>
    <message>
        <source>Das Konto {0} hat keinen PDF-Auszug &apos;{1}&apos;.</source>
        <translation>The account {0} has no PDF statement &apos;{1}&apos;.</translation>
    </message>
    <message>
        <source>kopiert PDF-Auszüge der Bank in den Ordner &quot;Belege&quot; neben der Datenbank und hängt sie an das Bankkonto</source>
        <translation>copies the bank&apos;s PDF statements to the folder &quot;Belege&quot; beside the database and attaches them to the bank account</translation>
    </message>
    <message>
        <source>Monat des Auszugs, als 2026-03 oder 03.2026; sonst sagt ihn der Name der Datei</source>
        <translation>month of the statement, as 2026-03 or 03.2026; otherwise the name of the file tells it</translation>
    </message>
    <message>
        <source>nimmt einen PDF-Auszug vom Bankkonto; die Datei kommt in den Papierkorb, wenn sie sonst nirgends hängt</source>
        <translation>takes a PDF statement off the bank account; the file goes to the trash if it is attached nowhere else</translation>
    </message>
    <message>
        <source>Gehört</source>
        <translation>Belongs to</translation>
    </message>
    <message>
        <source>Festgelegt</source>
        <translation>Set</translation>
    </message>
    <message>
        <source>Noch gibt es keine Personen. &quot;people add NAME&quot; legt eine an.</source>
        <translation>There are no people yet. &quot;people add NAME&quot; creates one.</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ist kein Anteil. Bitte geben Sie Name und Prozent an: Anna=60.</source>
        <translation>&apos;{0}&apos; is no share. Please give a name and a percentage: Anna=60.</translation>
    </message>
    <message>
        <source>zeigt die Personen des Haushalts und wem welches Konto gehört</source>
        <translation>shows the people of the household and who owns which account</translation>
    </message>
    <message>
        <source>legt eine Person an</source>
        <translation>creates a person</translation>
    </message>
    <message>
        <source>benennt eine Person um, auch an ihren Einträgen</source>
        <translation>renames a person, at their entries too</translation>
    </message>
    <message>
        <source>löscht eine Person; ihr Anteil geht an die anderen</source>
        <translation>deletes a person; their share goes to the others</translation>
    </message>
    <message>
        <source>legt fest, wem ein Konto zu wie viel Prozent gehört: Girokonto Anna=60 Ben=40; &quot;Gemeinsames&quot; statt des Kontos gilt für alle, &quot;ohne&quot; statt der Anteile nimmt sie weg</source>
        <translation>sets to whom an account belongs, in per cent: Girokonto Anna=60 Ben=40; &quot;Gemeinsames&quot; in place of the account counts for all, &quot;ohne&quot; in place of the shares takes them away</translation>
    </message>
    <message>
        <source>Zu keinem Eintrag und keinem Konto gehört &apos;{0}&apos;.</source>
        <translation>&apos;{0}&apos; belongs to no entry and no account.</translation>
    </message>
    <message>
        <source>nimmt einen Beleg vom Eintrag; die Datei kommt in den Papierkorb, wenn sie sonst nirgends hängt</source>
        <translation>takes a receipt off the entry; the file goes to the trash if it is attached nowhere else</translation>
    </message>
    <message>
        <source>listet Belege, deren Datei fehlt, und Dateien, die nirgends hängen</source>
        <translation>lists receipts whose file is missing, and files that are attached nowhere</translation>
    </message>
    <message>
        <source>nur was diese Person bezahlt hat; &quot;ohne&quot;: wo niemand genannt ist</source>
        <translation>only what this person paid; &quot;ohne&quot;: where nobody is named</translation>
    </message>
    <message>
        <source>rechnet aus, wer im Haushalt wem wie viel schuldet; ohne Angabe für das aktuelle Jahr bis heute</source>
        <translation>works out who in the household owes whom how much; the current year until today if nothing is given</translation>
    </message>
    <message>
        <source>schreibt die gezählten Einträge als CSV-Datei</source>
        <translation>writes the entries that counted as a CSV file</translation>
    </message>
    <message>
        <source>schreibt alle drei Tabellen als Excel-Datei</source>
        <translation>writes all three tables as an Excel file</translation>
    </message>
    <message>
        <source>Die Person &apos;{0}&apos; gibt es nicht. Möglich sind: {1}.</source>
        <translation>There is no person &apos;{0}&apos;. Possible are: {1}.</translation>
    </message>
    <message>
        <source>Bitte wählen Sie die Zeile einer Kategorie, die im Jahr {0} ein Limit hat.</source>
        <translation>Please choose the line of a category that has a limit in {0}.</translation>
    </message>
    <message>
        <source>&amp;PDF-Auszüge…</source>
        <translation>PD&amp;F statements…</translation>
    </message>
    <message>
        <source>&amp;PDF-Auszüge ({0})…</source>
        <translation>PD&amp;F statements ({0})…</translation>
    </message>
    <message>
        <source>Blau</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>Hellblau</source>
        <translation>Light blue</translation>
    </message>
    <message>
        <source>Tiefblau</source>
        <translation>Deep blue</translation>
    </message>
    <message>
        <source>Grün</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>Hellgrün</source>
        <translation>Light green</translation>
    </message>
    <message>
        <source>Gelb</source>
        <translation>Yellow</translation>
    </message>
    <message>
        <source>Rost</source>
        <translation>Rust</translation>
    </message>
    <message>
        <source>Braun</source>
        <translation>Brown</translation>
    </message>
    <message>
        <source>Sand</source>
        <translation>Sand</translation>
    </message>
    <message>
        <source>Violett</source>
        <translation>Violet</translation>
    </message>
    <message>
        <source>Haus</source>
        <translation>House</translation>
    </message>
    <message>
        <source>Werkzeug</source>
        <translation>Tools</translation>
    </message>
    <message>
        <source>Strom</source>
        <translation>Bolt</translation>
    </message>
    <message>
        <source>Wasser</source>
        <translation>Drop</translation>
    </message>
    <message>
        <source>Einkaufswagen</source>
        <translation>Shopping cart</translation>
    </message>
    <message>
        <source>Teller</source>
        <translation>Plate</translation>
    </message>
    <message>
        <source>Hemd</source>
        <translation>Shirt</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Car</translation>
    </message>
    <message>
        <source>Bus</source>
        <translation>Bus</translation>
    </message>
    <message>
        <source>Flugzeug</source>
        <translation>Plane</translation>
    </message>
    <message>
        <source>Herz</source>
        <translation>Heart</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Child</translation>
    </message>
    <message>
        <source>Pfote</source>
        <translation>Paw</translation>
    </message>
    <message>
        <source>Baum</source>
        <translation>Tree</translation>
    </message>
    <message>
        <source>Ball</source>
        <translation>Ball</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Musik</source>
        <translation>Music</translation>
    </message>
    <message>
        <source>Geschenk</source>
        <translation>Gift</translation>
    </message>
    <message>
        <source>Telefon</source>
        <translation>Phone</translation>
    </message>
    <message>
        <source>Schild</source>
        <translation>Shield</translation>
    </message>
    <message>
        <source>Sparschwein</source>
        <translation>Piggy bank</translation>
    </message>
    <message>
        <source>Münzen</source>
        <translation>Coins</translation>
    </message>
    <message>
        <source>Punkte</source>
        <translation>Dots</translation>
    </message>
    <message>
        <source>Für diese Auswahl gibt es keine Einträge. „Beliebig“ bei „Bezahlt von“ zeigt alle.</source>
        <translation>There are no entries for this selection. “Any” at “Paid by” shows all of them.</translation>
    </message>
    <message>
        <source>Zurückgenommen: {0}.</source>
        <translation>Undone: {0}.</translation>
    </message>
    <message>
        <source>Wieder ausgeführt: {0}.</source>
        <translation>Redone: {0}.</translation>
    </message>
    <message>
        <source>Diese Auswahl lässt sich nicht merken, denn sie zeigt nur die Einträge hinter einer Zahl der Auswertung. Heben Sie die Auswahl erst auf.</source>
        <translation>This selection cannot be kept, because it shows only the entries behind a figure of the report. Clear the selection first.</translation>
    </message>
    <message>
        <source>Ansicht &apos;{0}&apos; gemerkt</source>
        <translation>View &apos;{0}&apos; kept</translation>
    </message>
    <message>
        <source>Ansicht &apos;{0}&apos; an die erste Stelle gesetzt</source>
        <translation>View &apos;{0}&apos; put in first place</translation>
    </message>
    <message>
        <source>Ansicht &apos;{0}&apos; gelöscht</source>
        <translation>View &apos;{0}&apos; deleted</translation>
    </message>
    <message>
        <source>Ansicht &apos;{0}&apos; umbenannt</source>
        <translation>View &apos;{0}&apos; renamed</translation>
    </message>
    <message>
        <source>Bezahlt von: {0}</source>
        <translation>Paid by: {0}</translation>
    </message>
    <message>
        <source>nichts mehr festgelegt</source>
        <translation>nothing set any more</translation>
    </message>
    <message>
        <source>Der Anteil geht an die anderen:
{0}</source>
        <translation>The share goes to the others:
{0}</translation>
    </message>
    <message>
        <source>Die Datei &apos;{0}&apos; gibt es schon mit anderem Inhalt.</source>
        <translation>The file &apos;{0}&apos; already exists with other content.</translation>
    </message>
    <message>
        <source>Diese Datei hängt hier schon.</source>
        <translation>This file is already attached here.</translation>
    </message>
    <message>
        <source>Die fehlende Datei ist wieder da.</source>
        <translation>The missing file is back.</translation>
    </message>
    <message>
        <source>Die Datei bleibt, weil sie noch an anderer Stelle hängt.</source>
        <translation>The file stays because it is still attached elsewhere.</translation>
    </message>
    <message>
        <source>Hier gibt es keinen Papierkorb. Die Datei &apos;{0}&apos; bleibt im Ordner &apos;{1}&apos;, hängt aber nirgends mehr.</source>
        <translation>There is no trash here. The file &apos;{0}&apos; stays in the folder &apos;{1}&apos; but is no longer attached anywhere.</translation>
    </message>
    <message>
        <source>Im Ordner &apos;{0}&apos; gehören Dateien zu keinem Eintrag und keinem Konto dieses Buchs: {1}</source>
        <translation>In the folder &apos;{0}&apos;, these files belong to no entry and no account of this book: {1}</translation>
    </message>
    <message>
        <source>{0}. {1}</source>
        <translation>{0} {1}</translation>
    </message>
    <message>
        <source>PDF-Auszüge: {0}</source>
        <translation>PDF statements: {0}</translation>
    </message>
    <message>
        <source>PDF-Auszüge</source>
        <translation>PDF statements</translation>
    </message>
    <message>
        <source>Noch kein PDF-Auszug. Ziehen Sie die Auszüge der Bank hierher, oder wählen Sie die Dateien.</source>
        <translation>No PDF statement yet. Drop the bank&apos;s statements here, or choose the files.</translation>
    </message>
    <message>
        <source>Dieses Konto hat keinen PDF-Auszug.</source>
        <translation>This account has no PDF statement.</translation>
    </message>
    <message>
        <source>PDF-Auszüge hinzufügen</source>
        <translation>Add PDF statements</translation>
    </message>
    <message>
        <source>PDF-Auszug neu wählen</source>
        <translation>Choose PDF statement again</translation>
    </message>
    <message>
        <source>PDF|*.pdf|Alle Dateien|*.*</source>
        <translation>PDF|*.pdf|All files|*.*</translation>
    </message>
    <message>
        <source>Soll der Auszug &apos;{0}&apos; von diesem Konto entfernt werden?</source>
        <translation>Do you want to remove the statement &apos;{0}&apos; from this account?</translation>
    </message>
    <message>
        <source>PDF-Auszug entfernen</source>
        <translation>Remove PDF statement</translation>
    </message>
    <message>
        <source>Von welchem Monat ist der Auszug &apos;{0}&apos;?</source>
        <translation>Which month is the statement &apos;{0}&apos; from?</translation>
    </message>
    <message>
        <source>In der Zwischenablage ist kein PDF.</source>
        <translation>There is no PDF in the clipboard.</translation>
    </message>
    <message>
        <source>PDF-Auszug zu &apos;{0}&apos; hinzugefügt</source>
        <translation>PDF statement added to &apos;{0}&apos;</translation>
    </message>
    <message>
        <source>PDF-Auszug von &apos;{0}&apos; entfernt</source>
        <translation>PDF statement removed from &apos;{0}&apos;</translation>
    </message>
    <message>
        <source>PDF-Auszug von &apos;{0}&apos; ersetzt</source>
        <translation>PDF statement of &apos;{0}&apos; replaced</translation>
    </message>
    <message>
        <source>Ein Startguthaben legen Sie für jedes Konto einzeln fest. Bitte wählen Sie eine andere Kategorie.</source>
        <translation>An opening balance is set for each account by itself. Please choose another category.</translation>
    </message>
    <message>
        <source>Umbuchungen nach &apos;{0}&apos; kommen dann auf &apos;{1}&apos; an.</source>
        <translation>Transfers to &apos;{0}&apos; will then arrive in &apos;{1}&apos;.</translation>
    </message>
    <message>
        <source>Umbuchungen gehen dann von &apos;{0}&apos; ab.</source>
        <translation>Transfers will then leave &apos;{0}&apos;.</translation>
    </message>
    <message>
        <source>Summe des Budgets</source>
        <translation>Budget total</translation>
    </message>
    <message>
        <source>Bezahlt v&amp;on:</source>
        <translation>Paid &amp;by:</translation>
    </message>
    <message>
        <source>Bezahl&amp;t von:</source>
        <translation>P&amp;aid by:</translation>
    </message>
    <message>
        <source>D&amp;uplizieren</source>
        <translation>Duplic&amp;ate</translation>
    </message>
    <message>
        <source>Wählt Kategorie, Intervall und Beschreibung für die markierten Umsätze; sind alle gebucht, ändert es deren Einträge (Strg+K)</source>
        <translation>Chooses category, interval and description for the selected transactions; when all of them are booked, it changes their entries (Ctrl+K)</translation>
    </message>
    <message>
        <source>Auszüge der Bank als PDF; Dateien können auch in dieses Fenster gezogen werden</source>
        <translation>The bank&apos;s statements as PDF; files can also be dropped on this window</translation>
    </message>
    <message>
        <source>Listen und Diagramme zeigen die Hauptkategorie und ihre Unterkategorien damit.</source>
        <translation>Lists and charts show the main category and its sub-categories with it.</translation>
    </message>
    <message>
        <source>keine Farbe</source>
        <translation>no colour</translation>
    </message>
    <message>
        <source>kein Symbol</source>
        <translation>no icon</translation>
    </message>
    <message>
        <source>Farbe der Hauptkategorie</source>
        <translation>Colour of the main category</translation>
    </message>
    <message>
        <source>&amp;Farbe und Symbol:</source>
        <translation>C&amp;olour and icon:</translation>
    </message>
    <message>
        <source>Bargeld, vor dem Startguthaben von {0}</source>
        <translation>Cash, before the start balance of {0}</translation>
    </message>
    <message>
        <source>Bitte nennen Sie ein Konto oder &quot;Gemeinsames&quot;.</source>
        <translation>Please name an account or &quot;Gemeinsames&quot;.</translation>
    </message>
    <message>
        <source>Diese Kontonummer kennt das Buch nicht: {0}</source>
        <translation>The book does not know this account number: {0}</translation>
    </message>
    <message>
        <source>Was übrig bleibt, geht in den nächsten Monat.</source>
        <translation>What is left goes on to the next month.</translation>
    </message>
    <message>
        <source>In den Summen zählen nur Kategorien mit einem Limit mit.</source>
        <translation>Only categories with a limit count in the sums.</translation>
    </message>
    <message>
        <source>Der Eintrag steht unter &apos;Allgemein&apos;, weil keine Kategorie bekannt ist.</source>
        <translation>The entry stands under &apos;Allgemein&apos;, because no category is known.</translation>
    </message>
    <message>
        <source>{0} davon unter &apos;Allgemein&apos;, weil keine Kategorie bekannt ist.</source>
        <translation>{0} of them under &apos;Allgemein&apos;, because no category is known.</translation>
    </message>
    <message>
        <source>Umsätze ohne Kategorie</source>
        <translation>Transactions without category</translation>
    </message>
    <message>
        <source>Alle Umsätze</source>
        <translation>All transactions</translation>
    </message>
    <message>
        <source>Merkt Zeitraum, Konto, Art, Filter, Gruppierung und Spalten unter einem Namen; auf der Seite „Kontoauszüge“, was dort gewählt ist.</source>
        <translation>Keeps period, account, kind, filter, grouping and columns under a name; on the page “Statements” what is chosen there.</translation>
    </message>
    <message>
        <source>Das Konto &apos;{0}&apos; braucht einen Namen. Löschen können Sie es unter „Kategorien und Konten“.</source>
        <translation>The account &apos;{0}&apos; needs a name. You can delete it under “Categories and accounts”.</translation>
    </message>
    <message>
        <source>Ein Konto &apos;{0}&apos; gibt es schon. Bitte wählen Sie einen anderen Namen.</source>
        <translation>There is an account &apos;{0}&apos; already. Please choose another name.</translation>
    </message>
    <message>
        <source>Die Person &apos;{0}&apos; gibt es nicht.</source>
        <translation>There is no person &apos;{0}&apos;.</translation>
    </message>
    <message>
        <source>Am {1} waren laut Kontoauszug {2} auf dem Konto &apos;{0}&apos;. Soll Ihr Buch dasselbe sagen, sobald die Umsätze gebucht sind?</source>
        <translation>According to the statement there was {2} in the account &apos;{0}&apos; on {1}. Shall your book say the same once the transactions are booked?</translation>
    </message>
    <message>
        <source>Alles gebucht</source>
        <translation>All booked</translation>
    </message>
    <message>
        <source>{0} markiert, davon {1} offen, Summe {2}. Die Eingabetaste bucht sie.</source>
        <translation>{0} selected, {1} of them open, sum {2}. Enter books them.</translation>
    </message>
    <message>
        <source>{0}  →  gebucht unter {1}, {3}</source>
        <translation>{0}  →  booked under {1}, {3}</translation>
    </message>
    <message>
        <source>Bitte ansehen: Kategorie tippen, die Eingabetaste bucht.  {0}  →  {1}, {2}: {4}</source>
        <translation>Please check: type a category, Enter books.  {0}  →  {1}, {2}: {4}</translation>
    </message>
    <message>
        <source>{0} ohne bekannte Kategorie, also unter &apos;Allgemein&apos;</source>
        <translation>{0} without a known category, so under &apos;Allgemein&apos;</translation>
    </message>
    <message>
        <source>{0} vielleicht unter &apos;{1}&apos;</source>
        <translation>{0} perhaps under &apos;{1}&apos;</translation>
    </message>
    <message>
        <source>&amp;Alle {0} buchen</source>
        <translation>Book &amp;all {0}</translation>
    </message>
    <message>
        <source>Keiner der {1} Umsätze hat einen sicheren Vorschlag:
{2}
Was soll geschehen?</source>
        <translation>None of the {1} transactions has a sure suggestion:
{2}
What shall be done?</translation>
    </message>
    <message>
        <source>&amp;Einzeln ansehen</source>
        <translation>Look at them &amp;one by one</translation>
    </message>
    <message>
        <source>Einer der Umsätze hat keinen sicheren Vorschlag:
{2}
Was soll geschehen?</source>
        <translation>One of the transactions has no sure suggestion:
{2}
What shall be done?</translation>
    </message>
    <message>
        <source>{1} der Umsätze haben keinen sicheren Vorschlag:
{2}
Was soll geschehen?</source>
        <translation>{1} of the transactions have no sure suggestion:
{2}
What shall be done?</translation>
    </message>
    <message>
        <source>Nur den &amp;sicheren buchen</source>
        <translation>Book only the &amp;sure one</translation>
    </message>
    <message>
        <source>Nur die {0} &amp;sicheren buchen</source>
        <translation>Book only the {0} &amp;sure ones</translation>
    </message>
    <message>
        <source>Ohne Kategorie</source>
        <translation>Without category</translation>
    </message>
    <message>
        <source>Alle &amp;gezeigten buchen…</source>
        <translation>Book all &amp;shown…</translation>
    </message>
    <message>
        <source>Bucht alles, was die Liste zeigt; vorher nennt eine Frage, was davon nicht sicher ist</source>
        <translation>Books all that the list shows; before that, a question names what is not sure</translation>
    </message>
    <message>
        <source>Eigene Farbe …</source>
        <translation>Another colour …</translation>
    </message>
    <message>
        <source>Das Konto &apos;{0}&apos; steht zweimal da. Bitte ändern Sie einen der beiden Namen.</source>
        <translation>The account &apos;{0}&apos; stands there twice. Please change one of the two names.</translation>
    </message>
    <message>
        <source>Als Stand vom {1} sind {2} für das Konto &apos;{0}&apos; eingetragen. Soll das so bleiben?</source>
        <translation>The balance entered for the account &apos;{0}&apos; as of {1} is {2}. Shall it stay like that?</translation>
    </message>
    <message>
        <source>Mit „Ja“ wird er auf den {4} zurückgerechnet ({3}), mit „Nein“ zählen die früheren Umsätze zusätzlich.</source>
        <translation>“Yes” counts it back to {4} ({3}); with “No” the earlier transactions count in addition.</translation>
    </message>
    <message>
        <source>Gebuchte Umsätze behalten ihre Kategorie, solange offene mit markiert sind.</source>
        <translation>Booked transactions keep their category as long as open ones are selected with them.</translation>
    </message>
    <message>
        <source>Bitte ansehen: {4}.  {0}  →  {1}, {3}</source>
        <translation>Please look at this: {4}.  {0}  →  {1}, {3}</translation>
    </message>
    <message>
        <source>{0} vielleicht als Umbuchung {1}</source>
        <translation>{0} perhaps as a transfer {1}</translation>
    </message>
    <message>
        <source>Die Datei &apos;{0}&apos; des Programms fehlt oder ist beschädigt. Eine Neuinstallation könnte das Problem beheben.</source>
        <translation>The file &apos;{0}&apos; of the program is missing or damaged. Reinstalling could solve the problem.</translation>
    </message>
    <message>
        <source>Mit „Ja“ wird das Startguthaben von {5} auf {3} geändert: so viel war vor dem ersten Umsatz da.</source>
        <translation>“Yes” changes the start balance from {5} to {3}: what was there before the first transaction.</translation>
    </message>
    <message>
        <source>Mit „Ja“ werden {3} als Startguthaben vom {4} eingetragen: so viel war vor dem ersten Umsatz da.</source>
        <translation>“Yes” enters {3} as the start balance of {4}: what was there before the first transaction.</translation>
    </message>
    <message>
        <source>Die Kategorie &apos;{0}&apos; ist ausgeblendet. Bitte wählen Sie eine andere, oder zeigen Sie sie unter „Kategorien und Konten“ wieder an.</source>
        <translation>The category &apos;{0}&apos; is hidden. Please choose another one, or show it again under “Categories and accounts”.</translation>
    </message>
    <message>
        <source>auch Auszüge in einer anderen Währung als der des Buchs übernehmen, ohne umzurechnen</source>
        <translation>take statements in another currency than the book&apos;s as well, without converting them</translation>
    </message>
    <message>
        <source>Mit --take-currency wird der Auszug trotzdem eingelesen, und dieses Konto künftig ohne Rückfrage.</source>
        <translation>With --take-currency the statement is read all the same, and this account without a question from then on.</translation>
    </message>
    <message>
        <source>Kein Konto hat einen PDF-Auszug &apos;{0}&apos;.</source>
        <translation>No account has a PDF statement &apos;{0}&apos;.</translation>
    </message>
    <message>
        <source>listet die PDF-Auszüge eines Bankkontos oder aller, die neuesten zuerst</source>
        <translation>lists the PDF statements of one bank account or of all, newest first</translation>
    </message>
    <message>
        <source>Die Datei ist abgeschnitten: Dem letzten Auszug fehlt das Ende. Es wurde nichts übernommen. Bitte laden Sie die Datei noch einmal herunter.</source>
        <translation>The file is cut off: the last statement has no end. Nothing was taken. Please download the file again.</translation>
    </message>
    <message>
        <source>Der Schlusssaldo ist abgeschnitten und wurde nicht übernommen.</source>
        <translation>The closing balance is cut off and was not taken.</translation>
    </message>
    <message>
        <source>die Gegenbuchung steht als Ausgabe im Buch, daraus wird die Umbuchung</source>
        <translation>the other side is in the book as an expense, which becomes the transfer</translation>
    </message>
    <message>
        <source>die Gegenbuchung steht als Einnahme im Buch, daraus wird die Umbuchung</source>
        <translation>the other side is in the book as income, which becomes the transfer</translation>
    </message>
    <message>
        <source>der Betrag wurde zurückgebucht, daher keine Serie</source>
        <translation>the amount was booked back, so this is no series</translation>
    </message>
    <message>
        <source>Der letzte Umsatz ist unvollständig und wurde nicht übernommen. Vielleicht wurde die Datei beim Herunterladen abgeschnitten; bitte laden Sie sie noch einmal herunter: {0}</source>
        <translation>The last transaction is incomplete and was not taken. Perhaps the file was cut off while it was downloaded; please download it again: {0}</translation>
    </message>
    <message>
        <source>Die Tabelle ist beschädigt oder unvollständig. Es wurde nichts übernommen.</source>
        <translation>The table is damaged or incomplete. Nothing was taken.</translation>
    </message>
    <message>
        <source>Der Auszug ist in {0}, das Buch in {1}. Beträge werden nicht umgerechnet.</source>
        <translation>The statement is in {0}, the book in {1}. Amounts are not converted.</translation>
    </message>
    <message>
        <source>Klicken Sie auf „Jetzt prüfen“, sobald Sie freigegeben haben.</source>
        <translation>Click “Check now” once you have approved.</translation>
    </message>
    <message>
        <source>Mit „Neuer Zugang…“ richten Sie den Abruf der Umsätze bei Ihrer Bank ein.</source>
        <translation>“New login…” sets up the fetching of transactions from your bank.</translation>
    </message>
    <message>
        <source>Die Bank nennt eine andere Adresse: {0}. Fragen Sie bei ihr nach, bevor Sie sie unter „Bankzugänge…“ eintragen; von selbst wird sie nicht benutzt.</source>
        <translation>The bank names another address: {0}. Ask the bank before you enter it under “Bank logins…”; it is not used by itself.</translation>
    </message>
    <message>
        <source>Soll Kontorelle einmal in der Woche nachsehen, ob es eine neue Version gibt?
Gesendet wird dabei nur die Nummer Ihrer Version, und geladen wird nichts ohne Sie. Ändern können Sie das jederzeit mit „Hilfe“, „Nach Updates suchen“.</source>
        <translation>Shall Kontorelle look once a week whether there is a new version?
Only the number of your version is sent, and nothing is downloaded without you. You can change this at any time with “Help”, “Check for updates”.</translation>
    </message>
    <message>
        <source>Jeder eingelesene Umsatz steht im Buch, doch seit dem {6} sind dort {5} weniger als bei der Bank.</source>
        <translation>Every transaction read is in the book, yet since {6} it holds {5} less than the bank.</translation>
    </message>
    <message>
        <source>Jeder eingelesene Umsatz steht im Buch, doch seit dem {6} sind dort {5} mehr als bei der Bank.</source>
        <translation>Every transaction read is in the book, yet since {6} it holds {5} more than the bank.</translation>
    </message>
    <message>
        <source>Lesen Sie die Kontoauszüge der Zeit um diesen Tag ein, auch schon gelesene noch einmal.</source>
        <translation>Import the statements around that day, and those already read once more.</translation>
    </message>
    <message>
        <source>Lesen Sie mit „Kontoauszug importieren“ (Strg+I) eine Datei Ihrer Bank ein.</source>
        <translation>Use “Import statement” (Ctrl+I) to import a file from your bank.</translation>
    </message>
    <message>
        <source>Auf dem Auszug stehen {0}: Einige seiner Umsätze haben ihre Wertstellung an einem anderen Tag.</source>
        <translation>The statement says {0}: some of its transactions have their value date on another day.</translation>
    </message>
    <message>
        <source>gleicher Betrag und Gegenkonto, {0}</source>
        <translation>same amount and counterparty account, {0}</translation>
    </message>
    <message>
        <source>gleicher Betrag und ähnlicher Name, {0}</source>
        <translation>same amount and similar name, {0}</translation>
    </message>
    <message>
        <source>Die Eingaben sind noch nicht gespeichert.
Möchten Sie sie speichern?</source>
        <translation>Your changes have not been saved yet.
Do you want to save them?</translation>
    </message>
    <message>
        <source>Noch ist keine Ansicht gemerkt. Wählen Sie Zeitraum, Konto, Filter und Spalten, und dann „Ansicht merken…“.</source>
        <translation>No view is kept yet. Choose period, account, filter and columns, and then “Keep view…”.</translation>
    </message>
    <message>
        <source>Wie das &amp;System</source>
        <translation>Like the &amp;system</translation>
    </message>
    <message>
        <source>Diese Anteile sind nicht vollständig und werden nicht gespeichert:
{0}</source>
        <translation>These shares are not complete and are not saved:
{0}</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ist kein Bild und kein Dokument und wird deshalb nicht geöffnet. Mit „Speichern unter…“ kommen Sie an die Datei.</source>
        <translation>&apos;{0}&apos; is neither a picture nor a document and is therefore not opened. With “Save as…” you get at the file.</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; ist kein PDF. Auszüge, die Kontorelle einlesen kann (CSV, MT940 und so weiter), gehören auf die Seite „Kontoauszüge“.</source>
        <translation>&apos;{0}&apos; is not a PDF. Statements that Kontorelle can read (CSV, MT940 and so on) belong on the “Statements” page.</translation>
    </message>
    <message>
        <source>Der Aufbau &apos;{0}&apos; gilt nun für diese Datei und alle mit denselben Spaltennamen.</source>
        <translation>The layout &apos;{0}&apos; now holds for this file and all with the same column names.</translation>
    </message>
    <message>
        <source>Der Aufbau &apos;{0}&apos; ist gemerkt. Diese Datei hat andere Spaltennamen.</source>
        <translation>The layout &apos;{0}&apos; is remembered. This file has other column names.</translation>
    </message>
    <message>
        <source>Die Kategorie &apos;{0}&apos; gibt es nicht. Bitte wählen Sie eine andere.</source>
        <translation>There is no category &apos;{0}&apos;. Please choose another one.</translation>
    </message>
    <message>
        <source>&amp;Vorschläge annehmen</source>
        <translation>Acce&amp;pt suggestions</translation>
    </message>
    <message>
        <source>&amp;Vorschläge annehmen ({0})</source>
        <translation>Acce&amp;pt suggestions ({0})</translation>
    </message>
    <message>
        <source>{0}

Soll er trotzdem eingelesen werden?</source>
        <translation>{0}

Is it to be read all the same?</translation>
    </message>
    <message>
        <source>Andere Währung</source>
        <translation>Other currency</translation>
    </message>
    <message>
        <source>vielleicht abgeschnitten</source>
        <translation>perhaps cut off</translation>
    </message>
    <message>
        <source>Nach Empfänger</source>
        <translation>By payee</translation>
    </message>
    <message>
        <source>Für diese Art von Datei gibt es keine Vorschau. „Öffnen“ zeigt sie in einem anderen Programm.</source>
        <translation>There is no preview for this kind of file. “Open” shows it in another program.</translation>
    </message>
    <message>
        <source>Die Datei ist für eine Vorschau zu groß. „Öffnen“ zeigt sie in einem anderen Programm.</source>
        <translation>The file is too large for a preview. “Open” shows it in another program.</translation>
    </message>
    <message>
        <source>Das PDF ist mit einem Passwort geschützt. „Öffnen“ zeigt es in einem anderen Programm.</source>
        <translation>The PDF is protected by a password. “Open” shows it in another program.</translation>
    </message>
    <message>
        <source>Stellt die Zeile wieder her, wie sie gespeichert ist</source>
        <translation>Restores the line as it is stored</translation>
    </message>
    <message>
        <source>auf dem Auszug von {0} fehlt die Gegenbuchung</source>
        <translation>the statement of {0} does not have the other side</translation>
    </message>
    <message>
        <source>Der letzte Umsatz ist vielleicht unvollständig und wurde nicht übernommen. Bitte laden Sie die Datei noch einmal herunter. Endet sie wieder so, ist er vollständig und lässt sich trotzdem übernehmen: {0}</source>
        <translation>The last transaction may be incomplete and was not taken. Please download the file again. If it ends the same way, the transaction is complete and can be taken all the same: {0}</translation>
    </message>
    <message>
        <source>Der Auszug ist bei {0} von {1} Umsätzen in {2}, das Buch in {3}. Beträge werden nicht umgerechnet.</source>
        <translation>The statement is in {2} for {0} of {1} transactions, the book in {3}. Amounts are not converted.</translation>
    </message>
    <message>
        <source>Ein Umsatz davon ist offen und steht wohl schon im Buch: &quot;{0}&quot; ordnet ihn zu.</source>
        <translation>One of these transactions is open and seems to be in the book already: &quot;{0}&quot; assigns it.</translation>
    </message>
    <message>
        <source>{1} Umsätze davon sind offen und stehen wohl schon im Buch: &quot;{0}&quot; ordnet sie zu.</source>
        <translation>{1} of these transactions are open and seem to be in the book already: &quot;{0}&quot; assigns them.</translation>
    </message>
    <message>
        <source>Am {0} nennt die Bank {1}, davor und danach stimmt der Saldo: wahrscheinlich hat sie Umsätze an anderen Tagen gebucht, als dort steht.</source>
        <translation>On {0} the bank gives {1}; before and after, the balance is right: the bank has probably booked transactions on other days than those shown there.</translation>
    </message>
    <message>
        <source>Abgleichen</source>
        <translation>Match</translation>
    </message>
    <message>
        <source>Sie stimmten schon am {4} nicht überein: das Startguthaben liegt hinter dem ersten Umsatz.</source>
        <translation>They did not agree even on {4}: the start balance lies after the first transaction.</translation>
    </message>
    <message>
        <source>&apos;{0}&apos; kann eine weitere Person sein oder der neue Name von &apos;{1}&apos;. Bitte wählen Sie „Hinzufügen“ oder „Umbenennen“.</source>
        <translation>&apos;{0}&apos; may be one more person or the new name of &apos;{1}&apos;. Please choose “Add” or “Rename”.</translation>
    </message>
    <message>
        <source>Protokoll aller Zugänge dieser Bank; ohne Angabe das bisherige, zuerst 3.0</source>
        <translation>Protocol of all logins at this bank; if not given the one used so far, at first 3.0</translation>
    </message>
    <message>
        <source>Es ist noch kein Bankkonto eingerichtet. Der Befehl banks add richtet eines ein.</source>
        <translation>No bank account has been set up yet. The command banks add sets one up.</translation>
    </message>
    <message>
        <source>Die Datensicherung &apos;{0}&apos; wurde nicht gefunden. Bitte prüfen Sie den Pfad.</source>
        <translation>The backup &apos;{0}&apos; was not found. Please check the path.</translation>
    </message>
    <message>
        <source>Versuchen Sie es später noch einmal.</source>
        <translation>Try again later.</translation>
    </message>
    <message>
        <source>Kategorie aus der Datei</source>
        <translation>Category from the file</translation>
    </message>
    <message>
        <source>das Konto hat schon ein Startguthaben</source>
        <translation>the account has an opening balance already</translation>
    </message>
    <message>
        <source>in der Datei eine Umbuchung mit {0}</source>
        <translation>a transfer with {0} in the file</translation>
    </message>
    <message>
        <source>in der Datei unter {0}</source>
        <translation>under {0} in the file</translation>
    </message>
    <message>
        <source>Die Teile der Buchung ergeben nicht ihren Betrag; sie bleibt ein Umsatz.</source>
        <translation>The parts of the transaction do not add up to its amount; it remains one transaction.</translation>
    </message>
    <message>
        <source>es gibt sie nicht</source>
        <translation>it does not exist</translation>
    </message>
    <message>
        <source>es ist ein Ordner, wählen Sie die Dateien darin</source>
        <translation>it is a folder, choose the files in it</translation>
    </message>
    <message>
        <source>Sie haben nicht das Recht, sie zu lesen</source>
        <translation>you have no permission to read it</translation>
    </message>
    <message>
        <source>Die Datei kann nicht geöffnet werden ({1}): {0}</source>
        <translation>The file cannot be opened ({1}): {0}</translation>
    </message>
    <message>
        <source>1 Konto</source>
        <translation>1 account</translation>
    </message>
    <message numerus="yes">
        <source>{0} Konten</source>
        <translation>
            <numerusform>{0} account</numerusform>
            <numerusform>{0} accounts</numerusform>
        </translation>
    </message>
    <message>
        <source>In der Zeile fehlen Tag, Buchungsart, Konto, Zielkonto oder Betrag.</source>
        <translation>The line lacks day, kind, account, target account or amount.</translation>
    </message>
    <message>
        <source>Keines der Konten kann abgerufen werden. Laden Sie bei Ihrer Bank Kontoauszüge herunter und importieren Sie diese.
{0}</source>
        <translation>None of the accounts can be fetched. Download statements from your bank and import them.
{0}</translation>
    </message>
    <message>
        <source>Es ist noch kein Bankkonto eingerichtet. Mit „Bankzugang einrichten…“ richten Sie eines ein.</source>
        <translation>No bank account has been set up yet. Use “Set up a bank login…” to set one up.</translation>
    </message>
    <message>
        <source>Der Bankzugang ist noch nicht gespeichert.
Möchten Sie Ihre Eingaben verwerfen?</source>
        <translation>The bank login has not been saved yet.
Do you want to discard what you entered?</translation>
    </message>
    <message>
        <source>zählt nur bis zum {0}, es sind zu viele Vorkommen; &quot;Ab hier&quot; an diesem Tag setzt sie fort</source>
        <translation>counts only up to {0}, there are too many occurrences; &quot;From here on&quot; on this day goes on with it</translation>
    </message>
    <message>
        <source>Die Belege sind nicht dabei (Zahl der Dateien: {0}). Unter &quot;Automatische Datensicherung…&quot; im Menü Extras lässt sich einschalten, dass sie mitgesichert werden.</source>
        <translation>The receipts are not included (number of files: {0}). Under &quot;Automatic backup…&quot; in the Tools menu you can have them included.</translation>
    </message>
    <message>
        <source>{0} (geplant am {1})</source>
        <translation>{0} (planned for {1})</translation>
    </message>
    <message>
        <source>Zum Konto &apos;{0}&apos; gehören mehrere Kontonummern, deren Stände die Bank einzeln nennt; im Buch sind es zusammen {2}.</source>
        <translation>Account &apos;{0}&apos; has several account numbers, and the bank names the balance of each by itself; in the book they come to {2} together.</translation>
    </message>
    <message>
        <source>{0}, verschoben</source>
        <translation>{0}, moved</translation>
    </message>
    <message>
        <source>Veränderung</source>
        <translation>Change</translation>
    </message>
    <message>
        <source>Veränderung im Zeitraum</source>
        <translation>Change in the period</translation>
    </message>
    <message>
        <source>Aus der Datei angelegt: {0}</source>
        <translation>Added from the file: {0}</translation>
    </message>
    <message>
        <source>Noch nicht im Buch sind aus der Datei: {0}

{1}

Sollen sie angelegt werden?</source>
        <translation>Named by the file and not yet in the book: {0}

{1}

Add them?</translation>
    </message>
    <message>
        <source>Kategorien und Konten der Datei</source>
        <translation>Categories and accounts of the file</translation>
    </message>
    <message>
        <source>Kontorelle sichert die Datenbank beim ersten Start an einem Tag, vor jedem Import, alle vier Stunden und beim Beenden, wenn sich etwas geändert hat. Neben den letzten Tagen bleibt die letzte Sicherung jedes Monats erhalten.</source>
        <translation>Kontorelle backs up the database at the first start of a day, before each import, every four hours and when it is closed, if something has changed. Besides the last days the last backup of each month is kept.</translation>
    </message>
    <message>
        <source>&amp;Letzte Tage:</source>
        <translation>&amp;Last days:</translation>
    </message>
    <message>
        <source>Kontostände bis {0}</source>
        <translation>Balances up to {0}</translation>
    </message>
    <message>
        <source>Aus der Datei nicht angelegt, weil im Buch nichts so heißen kann: {0}</source>
        <translation>Not created from the file, because nothing in the book can be called that: {0}</translation>
    </message>
    <message>
        <source>wie oft eine Serie stattfindet, statt --end, zum Beispiel 24 Raten</source>
        <translation>how often a series takes place, instead of --end, for example 24 instalments</translation>
    </message>
    <message>
        <source>--times ist eine Zahl ab 1.</source>
        <translation>--times is a number from 1 on.</translation>
    </message>
    <message>
        <source>Bitte entweder --end oder --times angeben.</source>
        <translation>Please give either --end or --times.</translation>
    </message>
    <message>
        <source>So oft kann die Serie nicht stattfinden.</source>
        <translation>The series cannot take place so often.</translation>
    </message>
    <message>
        <source>nur korrigierte und von Hand verschobene Vorkommen</source>
        <translation>only occurrences that were corrected or moved by hand</translation>
    </message>
    <message>
        <source>Das ist eine gespeicherte Internetseite und kein Kontoauszug. Melden Sie sich bei der Bank an, und laden Sie die Umsätze dort als Datei herunter (camt, MT940 oder CSV).</source>
        <translation>This is a saved web page and not a bank statement. Log in at the bank and download the transactions there as a file (camt, MT940 or CSV).</translation>
    </message>
    <message>
        <source>Die Datei nennt nur die Spalten und enthält keinen Umsatz. Wählen Sie bei der Bank einen längeren Zeitraum, und laden Sie sie noch einmal herunter.</source>
        <translation>The file only names the columns and has no transaction. Choose a longer period at the bank and download it again.</translation>
    </message>
    <message>
        <source>Im Ordner &apos;{0}&apos; lässt sich kein Haushaltsbuch anlegen: Sie dürfen dort nicht schreiben, oder es ist kein Platz mehr.

Legen Sie es in einem anderen Ordner an, oder öffnen Sie eines, das es schon gibt.</source>
        <translation>No household book can be created in the folder &apos;{0}&apos;: you may not write there, or there is no space left.

Create it in another folder, or open one that is there already.</translation>
    </message>
    <message>
        <source>&amp;Neu anlegen…</source>
        <translation>&amp;Create…</translation>
    </message>
    <message>
        <source>&amp;Vorhandenes öffnen…</source>
        <translation>&amp;Open existing…</translation>
    </message>
    <message>
        <source>nach </source>
        <translation>after </translation>
    </message>
    <message>
        <source> Mal</source>
        <translation> times</translation>
    </message>
    <message>
        <source>nach … Mal</source>
        <translation>after … times</translation>
    </message>
    <message>
        <source>Zahl der Termine</source>
        <translation>Number of dates</translation>
    </message>
    <message>
        <source>Wie oft die Serie stattfindet, zum Beispiel die Zahl der Raten</source>
        <translation>How often the series takes place, for example the number of instalments</translation>
    </message>
    <message>
        <source>Nur ko&amp;rrigierte, verschobene</source>
        <translation>Only corrected, mo&amp;ved</translation>
    </message>
    <message>
        <source>Der Druck ist fehlgeschlagen. Bitte prüfen Sie den Drucker.</source>
        <translation>Printing has failed. Please check the printer.</translation>
    </message>
    <message>
        <source>die Gegenbuchung ist vielleicht doppelt</source>
        <translation>the other side may be there twice</translation>
    </message>
    <message>
        <source>Dateien mit diesem Aufbau waren bisher von Konto {0}. In dieser fehlen dessen Umsätze von denselben Tagen: Geben Sie an, von welchem Konto sie ist.</source>
        <translation>Files of this layout were from account {0} so far. This one lacks its transactions of the same days: Please say which account it is from.</translation>
    </message>
    <message>
        <source>Laden Sie die Umsätze bei der Bank als CAMT-, MT940- oder CSV-Datei herunter. Den PDF-Auszug selbst können Sie aufheben: unter „Extras“, „Kontoauszug anzeigen“, „PDF-Auszüge…“. Eine Rechnung hängen Sie als Beleg an ihren Eintrag.</source>
        <translation>Download the transactions from the bank as a CAMT, MT940 or CSV file. The PDF statement itself can be kept: under “Tools”, “Show statement”, “PDF statements…”. Attach an invoice to its entry as a receipt.</translation>
    </message>
    <message>
        <source>Laden Sie die Umsätze bei der Bank als CAMT-, MT940- oder CSV-Datei herunter.</source>
        <translation>Download the transactions from the bank as a CAMT, MT940 or CSV file.</translation>
    </message>
    <message>
        <source>{0} Byte</source>
        <translation>{0} bytes</translation>
    </message>
    <message>
        <source>Sie gehört zu einer Datenbank, zum Beispiel zu Ihrem Haushaltsbuch oder zu einer Datensicherung. Bitte wählen Sie einen anderen Namen.</source>
        <translation>It belongs to a database, for example to your household book or to a backup. Please choose another name.</translation>
    </message>
    <message>
        <source>{0} davon mehrfach gleich, von der Bank einzeln gekennzeichnet</source>
        <translation>{0} of them equal to others, marked one by one by the bank</translation>
    </message>
    <message>
        <source>wie zuletzt von Konto {0}</source>
        <translation>as last time from account {0}</translation>
    </message>
    <message>
        <source>Für diese Art von Datei gibt es keine Vorschau. „Speichern unter…“ legt eine Kopie von ihr ab.</source>
        <translation>There is no preview for this kind of file. “Save as…” stores a copy of it.</translation>
    </message>
    <message>
        <source>Umsätze von {0}</source>
        <translation>Transactions of {0}</translation>
    </message>
    <message>
        <source>Die TAN für {1} war falsch. Diese ist für die Umsätze von {0}.</source>
        <translation>The TAN for {1} was wrong. This one is for the transactions of {0}.</translation>
    </message>
    <message>
        <source>Anmeldung</source>
        <translation>Login</translation>
    </message>
    <message>
        <source>Die Bank hat kein lesbares Bild geschickt. Geben Sie den Startcode aus dem Text von Hand ein, oder brechen Sie ab und wählen Sie unter „Bankzugänge…“ ein anderes Verfahren.</source>
        <translation>The bank has sent no readable picture. Enter the start code from the text by hand, or cancel and choose another procedure under “Bank logins…”.</translation>
    </message>
    <message>
        <source>schon vorhanden, nur anders geschrieben</source>
        <translation>already there, only written differently</translation>
    </message>
    <message>
        <source>prüft die Datenbank, sucht Einträge, die nicht zu sehen sind oder nicht richtig mitzählen, und sagt, was beim Öffnen ergänzt wurde</source>
        <translation>checks the database, looks for entries that cannot be seen or do not count as they should, and says what was added on opening</translation>
    </message>
    <message>
        <source>Die Serie {0} hat ab dem {1} kein Vorkommen.</source>
        <translation>The series {0} has no occurrence from {1} on.</translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; ist beschädigt oder keine gültige Datenbank. &quot;kontorelle-cli restore DATEI&quot; lädt eine Datensicherung, das Fenster von Kontorelle auch; mit --database nennen Sie eine andere Datei.</source>
        <translation>The database &apos;{0}&apos; is damaged or not a valid database. &quot;kontorelle-cli restore FILE&quot; loads a backup, and so does the Kontorelle window; use --database to name another file.</translation>
    </message>
    <message>
        <source>keine Buchungsart</source>
        <translation>no kind of entry</translation>
    </message>
    <message>
        <source>Buchungsart &apos;{0}&apos; unbekannt</source>
        <translation>Kind of entry &apos;{0}&apos; unknown</translation>
    </message>
    <message>
        <source>1 Eintrag ist nicht überall zu sehen oder zählt nicht richtig mit:</source>
        <translation>1 entry cannot be seen everywhere or does not count as it should:</translation>
    </message>
    <message>
        <source>{0} Einträge sind nicht überall zu sehen oder zählen nicht richtig mit:</source>
        <translation>{0} entries cannot be seen everywhere or do not count as they should:</translation>
    </message>
    <message>
        <source>Sucht Einträge, die nicht zu sehen sind oder nicht richtig mitzählen, und prüft die Datei.</source>
        <translation>Looks for entries that cannot be seen or do not count as they should, and checks the file.</translation>
    </message>
    <message>
        <source>Mit wiederkehrenden Einträgen bis 2050.</source>
        <translation>With recurring entries until 2050.</translation>
    </message>
    <message>
        <source>Zu&amp;rück zur Auswertung</source>
        <translation>&amp;Back to statistics</translation>
    </message>
    <message>
        <source>Auswah&amp;l aufheben</source>
        <translation>&amp;Clear selection</translation>
    </message>
    <message>
        <source>Konten über&amp;nehmen</source>
        <translation>Ta&amp;ke over accounts</translation>
    </message>
    <message>
        <source>Beim &amp;Start zeigen</source>
        <translation>Show at st&amp;art</translation>
    </message>
    <message>
        <source>&amp;Kontoauszug importieren…</source>
        <translation>&amp;Import statement…</translation>
    </message>
    <message>
        <source>On&amp;line-Banking einrichten…</source>
        <translation>Set up &amp;online banking…</translation>
    </message>
    <message>
        <source>Ersten Ein&amp;trag erfassen…</source>
        <translation>Enter the first ent&amp;ry…</translation>
    </message>
    <message>
        <source>Aus anderem &amp;Programm übernehmen…</source>
        <translation>Take over from another &amp;program…</translation>
    </message>
    <message>
        <source>Beispielha&amp;ushalt ansehen</source>
        <translation>See the example ho&amp;usehold</translation>
    </message>
    <message>
        <source>Seiten&amp;ansicht</source>
        <translation>Print pre&amp;view</translation>
    </message>
    <message>
        <source>Die Seiten werden vorbereitet …</source>
        <translation>The pages are being prepared …</translation>
    </message>
    <message>
        <source>kopiert die Belege der Einträge in den Ordner &quot;NAME-Belege&quot; neben der Datei</source>
        <translation>copies the receipts of the entries into the folder &quot;NAME-Belege&quot; beside the file</translation>
    </message>
    <message>
        <source>Sie wäre unvollständig. Es fehlt: {0}</source>
        <translation>It would be incomplete. Missing: {0}</translation>
    </message>
    <message>
        <source>Der Beleg &apos;{0}&apos; fehlt im Ordner &apos;{1}&apos;.</source>
        <translation>The receipt &apos;{0}&apos; is missing in the folder &apos;{1}&apos;.</translation>
    </message>
    <message>
        <source>zu dieser Umbuchung passt ein anderer Umsatz besser</source>
        <translation>another transaction fits this transfer better</translation>
    </message>
    <message>
        <source>{0}; die Kategorie steht nicht zur Auswahl</source>
        <translation>{0}; the category is not offered</translation>
    </message>
    <message>
        <source>Die Datensicherung &apos;{0}&apos; ist unvollständig. Es fehlt: {1}</source>
        <translation>The backup &apos;{0}&apos; is incomplete. Missing: {1}</translation>
    </message>
    <message>
        <source>Die Datenbank kann nur gelesen werden. Bitte prüfen Sie die Zugriffsrechte der Datei und ihres Ordners und versuchen Sie es noch einmal.</source>
        <translation>The database can only be read. Please check the access rights of the file and its folder and try again.</translation>
    </message>
    <message>
        <source>Auf die Datei der Datenbank kann nicht zugegriffen werden. Bitte prüfen Sie die Zugriffsrechte der Datei und ihres Ordners und versuchen Sie es noch einmal.</source>
        <translation>The file of the database cannot be accessed. Please check the access rights of the file and its folder and try again.</translation>
    </message>
    <message>
        <source>Die Datenbank &apos;{0}&apos; ist unvollständig. Es fehlt: {1}. &quot;kontorelle-cli restore DATEI&quot; lädt eine Datensicherung, das Fenster von Kontorelle auch; mit --database nennen Sie eine andere Datei.</source>
        <translation>The database &apos;{0}&apos; is incomplete. Missing: {1}. &quot;kontorelle-cli restore FILE&quot; loads a backup, the window of Kontorelle does as well; name another file with --database.</translation>
    </message>
    <message>
        <source>Die Datei der Datenbank &apos;{0}&apos; ist unvollständig. Es fehlt: {1}
Was Sie sehen, stimmt deshalb nur zum Teil, und es wird nichts gespeichert.

{2}

Möchten Sie eine Datensicherung laden? Die unvollständige Datei bleibt unter anderem Namen erhalten.</source>
        <translation>The file of the database &apos;{0}&apos; is incomplete. Missing: {1}
What you see is therefore only partly right, and nothing is saved.

{2}

Do you want to load a backup? The incomplete file is kept under another name.</translation>
    </message>
    <message>
        <source>Die Datenbank ist unvollständig</source>
        <translation>The database is incomplete</translation>
    </message>
    <message>
        <source>Eintrag &apos;{0}&apos; geändert; was die Bank schon gebucht hat, behält seinen Betrag ({1})</source>
        <translation>Entry &apos;{0}&apos; changed; what the bank has already booked keeps its amount ({1})</translation>
    </message>
    <message>
        <source>Zu &quot;Ab hier&quot; gehört auch, was auf einen Tag davor verschoben ist: {0}.</source>
        <translation>&quot;From here on&quot; also includes what has been moved to a day before: {0}.</translation>
    </message>
    <message>
        <source>An diesen Einträgen hängen Belege (Zahl der Dateien: {0}). Möchten Sie sie in den Ordner &apos;{1}&apos; kopieren?</source>
        <translation>These entries have receipts (number of files: {0}). Do you want to copy them into the folder &apos;{1}&apos;?</translation>
    </message>
    <message>
        <source>Laut Kontoauszug waren am {1} {2} auf dem Konto &apos;{0}&apos;. Ist seither etwas dazugekommen, lesen Sie bitte den nächsten Kontoauszug ein.</source>
        <translation>According to the statement, the account &apos;{0}&apos; held {2} on {1}. If anything has been added since, please import the next statement.</translation>
    </message>
    <message>
        <source>Zeigt das Budget.</source>
        <translation>Shows the budget.</translation>
    </message>
    <message>
        <source>Ein Startguthaben lässt sich nur einzeln ändern: Öffnen Sie seinen Eintrag mit der Eingabetaste.</source>
        <translation>A start balance can only be changed by itself: open its entry with the Enter key.</translation>
    </message>
    <message>
        <source>Bei wenigstens einer Serie sind Buch und Bank nicht einig; &quot;series --dry-run&quot; zeigt sie, &quot;series&quot; gleicht sie an.</source>
        <translation>At least one series does not agree with the bank; &quot;series --dry-run&quot; shows it, &quot;series&quot; adjusts it.</translation>
    </message>
    <message>
        <source>Eine vollständige, unbeschädigte Sicherung liegt nicht im Ordner &apos;{0}&apos;.</source>
        <translation>There is no complete, undamaged backup in the folder &apos;{0}&apos;.</translation>
    </message>
    <message>
        <source>Die neueste vollständige, unbeschädigte Sicherung ist vom {0}. Sie enthält:
{1}.</source>
        <translation>The newest complete, undamaged backup is of {0}. It holds:
{1}.</translation>
    </message>
    <message>
        <source>Als Personen angelegt: {0}</source>
        <translation>Added as persons: {0}</translation>
    </message>
    <message>
        <source>Legt neue Konten an und trägt die Kontostände als Startguthaben von heute ein. Stehen schon Umsätze der Bank da, wird auf den Tag davor zurückgerechnet.</source>
        <translation>Creates new accounts and stores the balances as today&apos;s start balances. Where bank transactions are there already, they are counted back to the day before.</translation>
    </message>
    <message>
        <source>--{0} braucht die Nummer einer geöffneten Datei, zum Beispiel: --{0} 3 3&lt; datei.txt</source>
        <translation>--{0} needs the number of an open file, for example: --{0} 3 3&lt; file.txt</translation>
    </message>
    <message>
        <source>wenn eine Tabelle nicht sagt, was Ausgaben sind: {0}; &quot;import&quot; merkt es sich für dieselben Spaltennamen und dasselbe Konto</source>
        <translation>if a table does not say what expenses are: {0}; &quot;import&quot; remembers it for the same column names and the same account</translation>
    </message>
    <message>
        <source>Dazu dient der Befehl {0}.</source>
        <translation>The command for that is {0}.</translation>
    </message>
    <message>
        <source>Mit --account sagen Sie, von welchem Konto die Datei ist, zum Beispiel mit --account &quot;{0}&quot;.</source>
        <translation>With --account you say which account the file is of, for example --account &quot;{0}&quot;.</translation>
    </message>
    <message>
        <source>eigene Kontonummer oder Name des Kontos für Auszüge, die keine nennen; für CSV-Dateien gleichen Aufbaus wird sie gemerkt</source>
        <translation>own account number or name of the account for statements that name none; remembered for CSV files of the same layout</translation>
    </message>
    <message>
        <source>Ohne Balken eintippen, eins nach dem anderen:</source>
        <translation>To type without the bars, one after the other:</translation>
    </message>
    <message>
        <source>Ein Teil dieser Serie fällt weg oder wechselt die Art. Damit ändert sich auch, was die Bank schon gebucht hat ({0}), und der Saldo stimmt nicht mehr mit ihr überein.
Soll der Eintrag trotzdem gespeichert werden?</source>
        <translation>A part of this series goes or changes its kind. That also changes what the bank has already booked ({0}), and the balance no longer agrees with it.
Save the entry all the same?</translation>
    </message>
    <message>
        <source>Schon am {4} waren laut Kontoauszug {3} auf dem Konto &apos;{0}&apos;. Soll das Startguthaben von diesem Tag an zählen?</source>
        <translation>According to the statement, account &apos;{0}&apos; held {3} on {4} already. Shall the start balance count from that day on?</translation>
    </message>
    <message>
        <source>Eine fällige Zahlung fehlt auf dem Kontoauszug</source>
        <translation>One payment that is due is missing from the statement</translation>
    </message>
    <message>
        <source>{0} fällige Zahlungen fehlen auf den Kontoauszügen</source>
        <translation>{0} payments that are due are missing from the statements</translation>
    </message>
    <message>
        <source>&amp;Ist und Übrig im Monat:</source>
        <translation>&amp;Actual and left in month:</translation>
    </message>
    <message>
        <source>Noch keine Personen</source>
        <translation>No people yet</translation>
    </message>
    <message>
        <source>Tragen Sie oben ein, wer zum Haushalt gehört.</source>
        <translation>Enter above who belongs to the household.</translation>
    </message>
    <message>
        <source>Hier kann nichts eingegeben werden.</source>
        <translation>Nothing can be typed here.</translation>
    </message>
    <message>
        <source>auch aus solchen neue Einträge machen; was von Hand korrigiert ist, bleibt</source>
        <translation>make new entries from these too; what was corrected by hand stays</translation>
    </message>
</context>
</TS>
