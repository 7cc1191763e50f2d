-- The template of a new book: what every user starts with. The build makes "template.dat" of it, and a new database is a
-- copy of that file. The program itself adds the tables setting, account and datamod and the indexes on first opening.
--
-- Names hold none of the characters & ' < > " ; because paths, reports and queries are built from them.

PRAGMA auto_vacuum=2;

-- Entries: dates "yyyy-mm-dd", amounts "12.50", kinds and intervals as their German words.
CREATE TABLE data (
  ID INTEGER PRIMARY KEY,
  EntryDate TEXT,
  EntryDateEnd TEXT,
  EntryType TEXT,
  EntryInterval TEXT,
  EntryAccount TEXT,
  EntryAccountMove TEXT,
  EntryCategory TEXT,
  EntryValue TEXT,
  EntryDescription TEXT
);

-- Categories and accounts.
CREATE TABLE template (
  ID INTEGER PRIMARY KEY,
  EntryType TEXT,
  EntryInterval TEXT,
  TemplateType TEXT,
  TemplateVisible TEXT,
  TemplateCategory TEXT,
  TemplateName TEXT,
  TemplateComment TEXT,
  TemplatePriority TEXT,
  TemplateVAT TEXT,
  TemplateDefaultValue TEXT
);

-- Bank transactions that wait for their place in the book. Amount, state and entry are numbers.
CREATE TABLE import (
  ID INTEGER PRIMARY KEY,
  ImportAccount TEXT,
  ImportDate TEXT,
  ImportType TEXT,
  ImportPurpose TEXT,
  ImportBeneficiary TEXT,
  ImportBeneficiaryAccount TEXT,
  ImportBeneficiaryBLZ TEXT,
  ImportValue REAL,
  ImportCurrency TEXT,
  ImportAssigned INTEGER,
  ImportAssignedEntry INTEGER
);

-- Accounts: group, name, comment, position
INSERT INTO template (EntryType, EntryInterval, TemplateType, TemplateVisible, TemplateCategory, TemplateName,
                      TemplateComment, TemplatePriority, TemplateVAT, TemplateDefaultValue)
SELECT '', '', 'Konto', '1', column1, column2, column3, column4, '', ''
FROM (VALUES
  ('Bankkonten', 'Girokonto', 'Laufendes Konto bei der Bank', '10'),
  ('Bankkonten', 'Sparkonto', 'Rücklagen', '20'),
  ('Bargeld', 'Bargeld', 'Geldbörse und Haushaltskasse', '30')
);

-- Categories: usual kind of entry, usual interval, main category, sub-category, comment, position. A row without
-- sub-category stands for the main category itself.
INSERT INTO template (EntryType, EntryInterval, TemplateType, TemplateVisible, TemplateCategory, TemplateName,
                      TemplateComment, TemplatePriority, TemplateVAT, TemplateDefaultValue)
SELECT column1, column2, 'Kategorie', '1', column3, column4, column5, column6, '', ''
FROM (VALUES
  ('Ausgabe',   'Einmalig',      'Allgemein', '', 'Was noch keinen besseren Platz hat', '100'),
  ('Einnahme',  'Einmalig',      'Allgemein', 'Startguthaben', 'Kontostand zu Beginn der Aufzeichnung', '101'),
  ('Ausgabe',   'Einmalig',      'Allgemein', 'Barauszahlung', 'Geldautomat', '102'),
  ('Einnahme',  'Einmalig',      'Allgemein', 'Bareinzahlung', '', '103'),
  ('Ausgabe',   'Alle 3 Monate', 'Allgemein', 'Kontoführung', 'Gebühren der Bank', '104'),

  ('Einnahme',  'Monatlich',     'Einkommen', 'Lohn / Gehalt', '', '200'),
  ('Einnahme',  'Jährlich',      'Einkommen', 'Weihnachts- und Urlaubsgeld', '', '201'),
  ('Einnahme',  'Monatlich',     'Einkommen', 'Rente', '', '202'),
  ('Einnahme',  'Einmalig',      'Einkommen', 'Freiberuflich', '', '203'),
  ('Einnahme',  'Monatlich',     'Einkommen', 'Kindergeld', '', '204'),
  ('Einnahme',  'Monatlich',     'Einkommen', 'Unterhalt', '', '205'),
  ('Einnahme',  'Monatlich',     'Einkommen', 'Mieteinnahmen', '', '206'),
  ('Einnahme',  'Monatlich',     'Einkommen', 'Taschengeld', '', '207'),
  ('Einnahme',  'Einmalig',      'Einkommen', 'Sonstiges', '', '208'),

  ('Einnahme',  'Monatlich',     'Staat', 'Elterngeld', '', '250'),
  ('Einnahme',  'Einmalig',      'Staat', 'Steuererstattung', '', '251'),
  ('Ausgabe',   'Einmalig',      'Staat', 'Steuernachzahlung', '', '252'),
  ('Einnahme',  'Monatlich',     'Staat', 'Wohngeld', '', '253'),
  ('Einnahme',  'Monatlich',     'Staat', 'BAföG', '', '254'),
  ('Ausgabe',   'Einmalig',      'Staat', 'Gebühren und Ausweise', '', '255'),

  ('Ausgabe',   'Monatlich',     'Wohnung', 'Miete', '', '300'),
  ('Ausgabe',   'Monatlich',     'Wohnung', 'Nebenkosten', '', '301'),
  ('Ausgabe',   'Monatlich',     'Wohnung', 'Strom', '', '302'),
  ('Ausgabe',   'Monatlich',     'Wohnung', 'Gas und Heizung', '', '303'),
  ('Ausgabe',   'Alle 3 Monate', 'Wohnung', 'Wasser und Abwasser', '', '304'),
  ('Ausgabe',   'Monatlich',     'Wohnung', 'Internet und Telefon', '', '305'),
  ('Ausgabe',   'Alle 3 Monate', 'Wohnung', 'GEZ-Gebühren', 'Rundfunkbeitrag', '306'),
  ('Ausgabe',   'Monatlich',     'Wohnung', 'Garage / Stellplatz', '', '307'),
  ('Ausgabe',   'Alle 3 Monate', 'Wohnung', 'Grundsteuer', '', '308'),
  ('Ausgabe',   'Monatlich',     'Wohnung', 'Darlehen', 'Zins und Tilgung für das Eigenheim', '309'),
  ('Ausgabe',   'Einmalig',      'Wohnung', 'Reparaturen', '', '310'),
  ('Ausgabe',   'Einmalig',      'Wohnung', 'Garten', '', '311'),

  ('Ausgabe',   'Einmalig',      'Haushalt', '', 'Drogerie, Baumarkt und was sonst im Haus gebraucht wird', '400'),
  ('Ausgabe',   'Einmalig',      'Haushalt', 'Lebensmittel', '', '401'),
  ('Ausgabe',   'Einmalig',      'Haushalt', 'Getränke', '', '402'),
  ('Ausgabe',   'Einmalig',      'Haushalt', 'Medikamente', '', '403'),
  ('Ausgabe',   'Einmalig',      'Haushalt', 'Anschaffungen', 'Möbel und Geräte', '404'),
  ('Ausgabe',   'Monatlich',     'Haushalt', 'Taschengeld', '', '405'),
  ('Ausgabe',   'Einmalig',      'Haushalt', 'Putz- und Waschmittel', '', '406'),

  ('Ausgabe',   'Einmalig',      'Alltag', 'Kleidung', '', '450'),
  ('Ausgabe',   'Einmalig',      'Alltag', 'Schuhe', '', '451'),
  ('Ausgabe',   'Einmalig',      'Alltag', 'Friseur und Körperpflege', '', '452'),
  ('Ausgabe',   'Monatlich',     'Alltag', 'Handy', '', '453'),
  ('Ausgabe',   'Monatlich',     'Alltag', 'Bus und Bahn', '', '454'),
  ('Ausgabe',   'Einmalig',      'Alltag', 'Bücher und Zeitschriften', '', '455'),

  ('Ausgabe',   'Einmalig',      'Auto', 'Benzin', 'Auch Diesel und Ladestrom', '500'),
  ('Ausgabe',   'Einmalig',      'Auto', 'Werkstatt', '', '501'),
  ('Ausgabe',   'Jährlich',      'Auto', 'Kfz-Steuer / Versicherung', '', '502'),
  ('Ausgabe',   'Einmalig',      'Auto', 'Bußgeld', '', '503'),
  ('Ausgabe',   'Einmalig',      'Auto', 'Parken', '', '504'),
  ('Ausgabe',   'Monatlich',     'Auto', 'Finanzierung', '', '505'),
  ('Ausgabe',   'Jährlich',      'Auto', 'Automobilclub', '', '506'),

  ('Ausgabe',   'Monatlich',     'Versicherung', '', 'Verträge ohne eigene Zeile', '550'),
  ('Ausgabe',   'Jährlich',      'Versicherung', 'Haftpflicht', '', '551'),
  ('Ausgabe',   'Jährlich',      'Versicherung', 'Hausrat', '', '552'),
  ('Ausgabe',   'Jährlich',      'Versicherung', 'Rechtsschutz', '', '553'),
  ('Ausgabe',   'Monatlich',     'Versicherung', 'Krankenversicherung', '', '554'),
  ('Ausgabe',   'Monatlich',     'Versicherung', 'Lebensversicherung', '', '555'),
  ('Ausgabe',   'Monatlich',     'Versicherung', 'Berufsunfähigkeit', '', '556'),
  ('Ausgabe',   'Jährlich',      'Versicherung', 'Unfall', '', '557'),

  ('Ausgabe',   'Monatlich',     'Kinder', 'Kita und Schule', '', '600'),
  ('Ausgabe',   'Einmalig',      'Kinder', 'Kleidung', '', '601'),
  ('Ausgabe',   'Einmalig',      'Kinder', 'Spielzeug', '', '602'),
  ('Ausgabe',   'Monatlich',     'Kinder', 'Vereine und Unterricht', '', '603'),
  ('Ausgabe',   'Monatlich',     'Kinder', 'Taschengeld', '', '604'),

  ('Ausgabe',   'Einmalig',      'Freizeit', 'Restaurant / Café', '', '650'),
  ('Ausgabe',   'Einmalig',      'Freizeit', 'Kino / Theater', '', '651'),
  ('Ausgabe',   'Monatlich',     'Freizeit', 'Fitnessstudio', '', '652'),
  ('Ausgabe',   'Einmalig',      'Freizeit', 'Sport', '', '653'),
  ('Ausgabe',   'Einmalig',      'Freizeit', 'Urlaub', '', '654'),
  ('Ausgabe',   'Einmalig',      'Freizeit', 'Geschenke', '', '655'),
  ('Ausgabe',   'Einmalig',      'Freizeit', 'Glücksspiel', '', '656'),
  ('Ausgabe',   'Monatlich',     'Freizeit', 'Musik und Filme', 'Abonnements', '657'),
  ('Ausgabe',   'Einmalig',      'Freizeit', 'Hobby', '', '658'),
  ('Ausgabe',   'Jährlich',      'Freizeit', 'Vereinsbeiträge', '', '659'),

  ('Ausgabe',   'Einmalig',      'Gesundheit', 'Arzt und Zahnarzt', '', '700'),
  ('Ausgabe',   'Einmalig',      'Gesundheit', 'Brille und Hilfsmittel', '', '701'),

  ('Ausgabe',   'Jährlich',      'Haustier', 'Hundesteuer', '', '720'),
  ('Ausgabe',   'Einmalig',      'Haustier', 'Futter', '', '721'),
  ('Ausgabe',   'Einmalig',      'Haustier', 'Tierarzt', '', '722'),

  ('Ausgabe',   'Einmalig',      'Beruf', 'Werbungskosten', '', '750'),
  ('Ausgabe',   'Monatlich',     'Beruf', 'Serverkosten', '', '751'),
  ('Ausgabe',   'Einmalig',      'Beruf', 'Arbeitsmittel', '', '752'),
  ('Ausgabe',   'Monatlich',     'Fortbildung', 'Studiengebühren', '', '760'),
  ('Ausgabe',   'Einmalig',      'Fortbildung', 'Kurse und Bücher', '', '761'),

  ('Umbuchung', 'Monatlich',     'Geldanlage', 'Sparen', 'Übertrag auf das Sparkonto', '800'),
  ('Ausgabe',   'Monatlich',     'Geldanlage', 'Bausparen', '', '801'),
  ('Einnahme',  'Alle 3 Monate', 'Geldanlage', 'Zinseinkünfte', '', '802'),
  ('Ausgabe',   'Monatlich',     'Geldanlage', 'Fonds und Aktien', '', '803'),
  ('Einnahme',  'Jährlich',      'Geldanlage', 'Dividenden', '', '804'),
  ('Ausgabe',   'Monatlich',     'Geldanlage', 'Altersvorsorge', '', '805'),
  ('Ausgabe',   'Monatlich',     'Geldanlage', 'Kreditrate', '', '806'),

  ('Einnahme',  'Einmalig',      'Rückerstattung', '', '', '850'),
  ('Einnahme',  'Einmalig',      'Rückerstattung', 'Retoure', 'Zurückgeschickte Ware', '851'),
  ('Einnahme',  'Einmalig',      'Auktionen', 'eBay', '', '860'),

  ('Einnahme',  'Einmalig',      'Sonstiges', 'Geldgeschenke', '', '900'),
  ('Ausgabe',   'Einmalig',      'Sonstiges', 'Spenden', '', '901'),
  ('Umbuchung', 'Einmalig',      'Sonstiges', 'Umbuchung', 'Übertrag zwischen eigenen Konten', '902')
);
