#include "import/table/cKnownLayout.h"

#include <array>

namespace {

constexpr std::array layouts = {
    cKnownLayout{
        u"Sparkasse (CSV-CAMT)",
        u"Auftragskonto;Buchungstag;Valutadatum;Buchungstext;Verwendungszweck;Glaeubiger ID;Mandatsreferenz;"
        u"Kundenreferenz (End-to-End);Sammlerreferenz;Lastschrift Ursprungsbetrag;Auslagenersatz Ruecklastschrift;"
        u"Beguenstigter/Zahlungspflichtiger;Kontonummer/IBAN;BIC (SWIFT-Code);Betrag;Waehrung;Info;…",
        u"own=Auftragskonto;date=Buchungstag;type=Buchungstext;purpose=Verwendungszweck;"
        u"name=Beguenstigter/Zahlungspflichtiger;account=Kontonummer/IBAN;bank=BIC (SWIFT-Code);amount=Betrag;"
        u"currency=Waehrung;status=Info"},
    cKnownLayout{
        u"Sparkasse (CSV-MT940)",
        u"Auftragskonto;Buchungstag;Valutadatum;Buchungstext;Verwendungszweck;Beguenstigter/Zahlungspflichtiger;"
        u"Kontonummer;BLZ;Betrag;Waehrung;Info",
        u"own=Auftragskonto;date=Buchungstag;type=Buchungstext;purpose=Verwendungszweck;"
        u"name=Beguenstigter/Zahlungspflichtiger;account=Kontonummer;bank=BLZ;amount=Betrag;currency=Waehrung;"
        u"status=Info"},
    cKnownLayout{u"Sparkasse (Kreditkarte)",
                 u"Umsatz getätigt von;Belegdatum;Buchungsdatum;Originalbetrag;Originalwährung;Umrechnungskurs;"
                 u"Buchungsbetrag;Buchungswährung;Transaktionsbeschreibung;Transaktionsbeschreibung Zusatz;"
                 u"Buchungsreferenz;…",
                 u"date=Belegdatum;name=Transaktionsbeschreibung;purpose=Transaktionsbeschreibung;"
                 u"purpose2=Transaktionsbeschreibung Zusatz;amount=Buchungsbetrag;currency=Buchungswährung"},
    cKnownLayout{
        u"VR-Bank, GLS, Sparda",
        u"Bezeichnung Auftragskonto;IBAN Auftragskonto;BIC Auftragskonto;Bankname Auftragskonto;Buchungstag;"
        u"Valutadatum;Name Zahlungsbeteiligter;IBAN Zahlungsbeteiligter;BIC (SWIFT-Code) Zahlungsbeteiligter;"
        u"Buchungstext;Verwendungszweck;Betrag;Waehrung;Saldo nach Buchung;Bemerkung;…",
        u"own=IBAN Auftragskonto;ownbank=BIC Auftragskonto;date=Buchungstag;type=Buchungstext;"
        u"purpose=Verwendungszweck;name=Name Zahlungsbeteiligter;account=IBAN Zahlungsbeteiligter;"
        u"bank=BIC (SWIFT-Code) Zahlungsbeteiligter;amount=Betrag;currency=Waehrung;balance=Saldo nach Buchung"},
    cKnownLayout{
        u"VR-Bank (älter)",
        u"Buchungstag;Valuta;Auftraggeber/Zahlungsempfänger;Empfänger/Zahlungspflichtiger;Konto-Nr.;IBAN;BLZ;BIC;"
        u"Vorgang/Verwendungszweck;Kundenreferenz;Währung;Umsatz",
        u"date=Valuta;purpose=Vorgang/Verwendungszweck;name=Empfänger/Zahlungspflichtiger;account=IBAN;bank=BIC;"
        u"amount=Umsatz;currency=Währung;indicator=#12"},
    cKnownLayout{u"Sparda (älter)", u"Buchungstag;Wertstellungstag;Verwendungszweck;Umsatz;Währung",
                 u"date=Buchungstag;purpose=Verwendungszweck;amount=Umsatz;currency=Währung"},
    cKnownLayout{u"ING (mit Kategorie)",
                 u"Buchung;Valuta;Auftraggeber/Empfänger;Buchungstext;Kategorie;Verwendungszweck;Saldo;Währung;Betrag;"
                 u"Währung",
                 u"date=Valuta;name=Auftraggeber/Empfänger;type=Buchungstext;purpose=Verwendungszweck;balance=Saldo;"
                 u"amount=Betrag;currency=#9"},
    cKnownLayout{
        u"ING (mit Saldo)",
        u"Buchung;Wertstellungsdatum;Auftraggeber/Empfänger;Buchungstext;Verwendungszweck;Saldo;Währung;Betrag;"
        u"Währung",
        u"date=Buchung;name=Auftraggeber/Empfänger;type=Buchungstext;purpose=Verwendungszweck;balance=Saldo;"
        u"amount=Betrag;currency=#8"},
    cKnownLayout{u"ING (ohne Saldo)",
                 u"Buchung;Wertstellungsdatum;Auftraggeber/Empfänger;Buchungstext;Verwendungszweck;Betrag;Währung",
                 u"date=Buchung;name=Auftraggeber/Empfänger;type=Buchungstext;purpose=Verwendungszweck;amount=Betrag;"
                 u"currency=Währung"},
    cKnownLayout{u"ING Österreich", u"Kontonummer;Text;Datum;Währung;Soll;Haben",
                 u"own=Kontonummer;date=Datum;purpose=Text;currency=Währung;debit=Soll;credit=Haben"},
    cKnownLayout{u"DKB (bis 2023)",
                 u"Buchungstag;Wertstellung;Buchungstext;Auftraggeber / Begünstigter;Verwendungszweck;Kontonummer;BLZ;"
                 u"Betrag (EUR);Gläubiger-ID;Mandatsreferenz;Kundenreferenz",
                 u"date=Wertstellung;type=Buchungstext;name=Auftraggeber / Begünstigter;purpose=Verwendungszweck;"
                 u"account=Kontonummer;bank=BLZ;amount=Betrag (EUR)"},
    cKnownLayout{
        u"DKB",
        u"Buchungsdatum;Wertstellung;Status;Zahlungspflichtige*r;Zahlungsempfänger*in;Verwendungszweck;Umsatztyp;"
        u"IBAN;Betrag (€);Gläubiger-ID;Mandatsreferenz;Kundenreferenz",
        u"date=Wertstellung;status=Status;payer=Zahlungspflichtige*r;name=Zahlungsempfänger*in;"
        u"purpose=Verwendungszweck;type=Umsatztyp;account=IBAN;amount=Betrag (€)"},
    cKnownLayout{u"DKB Karte (bis 2023)",
                 u"Umsatz abgerechnet und nicht im Saldo enthalten;Wertstellung;Belegdatum;Beschreibung;Betrag (EUR);"
                 u"Ursprünglicher Betrag",
                 u"date=Wertstellung;name=Beschreibung;purpose=Beschreibung;amount=Betrag (EUR)"},
    cKnownLayout{u"DKB Karte", u"Belegdatum;Wertstellung;Status;Beschreibung;Umsatztyp;Betrag (€);Fremdwährungsbetrag",
                 u"date=Wertstellung;status=Status;name=Beschreibung;purpose=Beschreibung;type=Umsatztyp;"
                 u"amount=Betrag (€)"},
    cKnownLayout{u"DKB Karte", u"Belegdatum;Wertstellung;Status;Beschreibung;Umsatztyp;Betrag;Fremdwährungsbetrag",
                 u"date=Wertstellung;status=Status;name=Beschreibung;purpose=Beschreibung;type=Umsatztyp;amount=Betrag",
                 eNumberFormat::Detect, eSignRule::AsWritten, eDetails::None, u"EUR"},
    cKnownLayout{u"Commerzbank (bis 2024)",
                 u"Buchungstag;Wertstellung;Umsatzart;Buchungstext;Betrag;Währung;Auftraggeberkonto;"
                 u"Bankleitzahl Auftraggeberkonto;IBAN Auftraggeberkonto;Kategorie",
                 u"date=Wertstellung;type=Umsatzart;purpose=Buchungstext;amount=Betrag;currency=Währung;"
                 u"own=IBAN Auftraggeberkonto;ownbank=Bankleitzahl Auftraggeberkonto"},
    cKnownLayout{u"Commerzbank",
                 u"Buchungstag;Wertstellung;Umsatzart;Buchungstext;Betrag;Währung;IBAN Kontoinhaber;Kategorie",
                 u"date=Wertstellung;type=Umsatzart;purpose=Buchungstext;amount=Betrag;currency=Währung;"
                 u"own=IBAN Kontoinhaber"},
    cKnownLayout{u"comdirect", u"Buchungstag;Wertstellung (Valuta);Vorgang;Buchungstext;Umsatz in EUR",
                 u"date=Wertstellung (Valuta);type=Vorgang;purpose=Buchungstext;amount=Umsatz in EUR",
                 eNumberFormat::Detect, eSignRule::AsWritten, eDetails::Labelled},
    cKnownLayout{u"Deutsche Bank, Postbank",
                 u"Buchungstag;Wert;Umsatzart;Begünstigter / Auftraggeber;Verwendungszweck;IBAN / Kontonummer;BIC;"
                 u"Kundenreferenz;Mandatsreferenz;Gläubiger ID;Fremde Gebühren;Betrag;Abweichender Empfänger;"
                 u"Anzahl der Aufträge;Anzahl der Schecks;Soll;Haben;Währung",
                 u"date=Buchungstag;type=Umsatzart;name=Begünstigter / Auftraggeber;purpose=Verwendungszweck;"
                 u"account=IBAN / Kontonummer;bank=BIC;amount=Betrag;debit=Soll;credit=Haben;currency=Währung"},
    cKnownLayout{u"HypoVereinsbank",
                 u"Kontonummer;Buchungsdatum;Valuta;Empfaenger 1;Empfaenger 2;Verwendungszweck;Betrag;Waehrung",
                 u"own=Kontonummer;date=Valuta;name=Empfaenger 1;name2=Empfaenger 2;purpose=Verwendungszweck;"
                 u"amount=Betrag;currency=Waehrung"},
    cKnownLayout{u"Consorsbank",
                 u"Buchung;Valuta;Sender / Empfänger;IBAN / Konto-Nr.;BIC / BLZ;Buchungstext;Verwendungszweck;"
                 u"Betrag in EUR",
                 u"date=Valuta;name=Sender / Empfänger;account=IBAN / Konto-Nr.;bank=BIC / BLZ;type=Buchungstext;"
                 u"purpose=Verwendungszweck;amount=Betrag in EUR"},
    cKnownLayout{u"N26 (englisch, bis 2023)",
                 u"Date;Payee;Account number;Transaction type;Payment reference;Category;Amount (EUR);"
                 u"Amount (Foreign Currency);Type Foreign Currency;Exchange Rate",
                 u"date=Date;name=Payee;account=Account number;type=Transaction type;purpose=Payment reference;"
                 u"amount=Amount (EUR)",
                 eNumberFormat::English},
    cKnownLayout{u"N26",
                 u"Datum;Empfänger;Kontonummer;Transaktionstyp;Verwendungszweck;Kategorie;Betrag (EUR);"
                 u"Betrag (Fremdwährung);Fremdwährung;Wechselkurs",
                 u"date=Datum;name=Empfänger;account=Kontonummer;type=Transaktionstyp;purpose=Verwendungszweck;"
                 u"amount=Betrag (EUR)",
                 eNumberFormat::English},
    cKnownLayout{u"N26 (englisch)",
                 u"Booking Date;Value Date;Partner Name;Partner Iban;Type;Payment Reference;Account Name;Amount (EUR);"
                 u"Original Amount;Original Currency;Exchange Rate",
                 u"date=Booking Date;name=Partner Name;account=Partner Iban;type=Type;purpose=Payment Reference;"
                 u"amount=Amount (EUR)",
                 eNumberFormat::English},
    // Payments in other currencies come with a pair of conversions; what changes the balance is in euros. Holds, which
    // do not change it, have "Memo" in the last column.
    cKnownLayout{u"PayPal",
                 u"Datum;Uhrzeit;Zeitzone;Name;Typ;Status;Währung;Brutto;Gebühr;Netto;Absender E-Mail-Adresse;"
                 u"Empfänger E-Mail-Adresse;Transaktionscode;…;Guthaben;…;Betreff;Hinweis;…;Auswirkung auf Guthaben",
                 u"date=Datum;name=Name;type=Typ;status=Auswirkung auf Guthaben;currency=Währung;amount=Netto;"
                 u"purpose=Betreff;purpose2=Hinweis;balance=Guthaben",
                 eNumberFormat::Detect, eSignRule::AsWritten, eDetails::None, u"", u"EUR"},
    cKnownLayout{u"PayPal (kurz)",
                 u"Datum;Uhrzeit;Zeitzone;Name;Typ;Status;Währung;Brutto;Entgelt;Netto;Absender-E-Mail-Adresse;"
                 u"Empfänger-E-Mail-Adresse;Transaktionscode;Beschreibung;Betreff;Hinweis;Guthaben;Adressstatus",
                 u"date=Datum;name=Name;type=Typ;status=Status;currency=Währung;amount=Netto;purpose=Beschreibung;"
                 u"purpose2=Betreff;purpose3=Hinweis;balance=Guthaben",
                 eNumberFormat::Detect, eSignRule::AsWritten, eDetails::None, u"", u"EUR"},
    cKnownLayout{u"PostFinance", u"Booking date;Notification text;Credit in CHF;Debit in CHF;Value;Balance in CHF",
                 u"date=Booking date;purpose=Notification text;credit=Credit in CHF;debit=Debit in CHF;"
                 u"balance=Balance in CHF",
                 eNumberFormat::English, eSignRule::AsWritten, eDetails::None, u"CHF"},
    cKnownLayout{u"Viseca",
                 u"TransactionId;CardId;Date;ValutaDate;Amount;Currency;OriginalAmount;OriginalCurrency;MerchantName;"
                 u"MerchantPlace;MerchantCountry;StateType;Details;Type;Exchange Rate",
                 u"date=ValutaDate;amount=Amount;currency=Currency;name=MerchantName;status=StateType;purpose=Details;"
                 u"type=Type",
                 eNumberFormat::English, eSignRule::Negated},
    cKnownLayout{
        u"UBS", u"Abschlussdatum;…;Belastung;Gutschrift;…;Beschreibung1;Beschreibung2;Beschreibung3;…",
        u"date=Abschlussdatum;currency=Währung;debit=Belastung;credit=Gutschrift;purpose=Beschreibung1;purpose2="
        u"Beschreibung2;"
        u"purpose3=Beschreibung3"},
    cKnownLayout{u"comdirect (Kreditkarte)", u"Buchungstag;Umsatztag;Vorgang;Referenz;Buchungstext;Umsatz in EUR",
                 u"date=Buchungstag;type=Vorgang;name=Buchungstext;purpose=Buchungstext;amount=Umsatz in EUR"},
    cKnownLayout{u"Consorsbank",
                 u"Buchung;Valuta;Sender / Empfänger;IBAN / Konto-Nr.;BIC / BLZ;Buchungstext;Verwendungszweck;"
                 u"Kategorie;Stichwörter;Umsatz geteilt;Betrag in EUR",
                 u"date=Valuta;name=Sender / Empfänger;account=IBAN / Konto-Nr.;bank=BIC / BLZ;type=Buchungstext;"
                 u"purpose=Verwendungszweck;amount=Betrag in EUR"},
    cKnownLayout{u"Deutsche Bank, Postbank",
                 u"Buchungstag;Wert;Umsatzart;Begünstigter / Auftraggeber;Verwendungszweck;IBAN;BIC;Kundenreferenz;"
                 u"Mandatsreferenz;Gläubiger ID;Fremde Gebühren;Betrag;Abweichender Empfänger;"
                 u"Abweichender Auftraggeber;Anzahl der Aufträge;Anzahl der Schecks;Soll;Haben;Währung",
                 u"date=Buchungstag;type=Umsatzart;name=Begünstigter / Auftraggeber;purpose=Verwendungszweck;"
                 u"account=IBAN;bank=BIC;amount=Betrag;debit=Soll;credit=Haben;currency=Währung"},
    cKnownLayout{u"Deutsche Bank (kurz)", u"Buchungstag;Wert;Verwendungszweck;Soll;Haben;Währung",
                 u"date=Buchungstag;purpose=Verwendungszweck;debit=Soll;credit=Haben;currency=Währung"},
    // Who pays stands beside who is paid, and one of the two is the owner.
    cKnownLayout{u"Postbank (bis 2022)",
                 u"Buchungstag;Wertstellung;Umsatzart;Buchungsdetails;Auftraggeber;Empfänger;Betrag (€);Saldo (€)",
                 u"date=Buchungstag;type=Umsatzart;purpose=Buchungsdetails;payer=Auftraggeber;name=Empfänger;"
                 u"amount=Betrag (€);balance=Saldo (€)"},
    cKnownLayout{u"HypoVereinsbank", u"Kontonummer;Buchungsdatum;Valuta;Verwendungszweck;Betrag;Waehrung",
                 u"own=Kontonummer;date=Valuta;purpose=Verwendungszweck;amount=Betrag;currency=Waehrung"},
    cKnownLayout{u"1822direkt",
                 u"Kontonummer;Datum/Zeit;Buchungstag;Wertstellung;Soll/Haben;Buchungsschlüssel;Buchungsart;"
                 u"Empfänger/Auftraggeber Name;Empfänger/Auftraggeber IBAN;Empfänger/Auftraggeber BIC;Glaeubiger-ID;"
                 u"Mandatsreferenz;Mandatsdatum;Vwz.0;Vwz.1;Vwz.2;…",
                 u"own=Kontonummer;date=Buchungstag;amount=Soll/Haben;type=Buchungsart;"
                 u"name=Empfänger/Auftraggeber Name;account=Empfänger/Auftraggeber IBAN;"
                 u"bank=Empfänger/Auftraggeber BIC;purpose=Vwz.0;purpose2=Vwz.1;purpose3=Vwz.2"},
    // The first of the two days is that of the purchase; pending rows have no second one.
    cKnownLayout{u"Barclays",
                 u"Referenznummer;Buchungsdatum;Buchungsdatum;Betrag;Beschreibung;Typ;Status;Kartennummer;"
                 u"Originalbetrag;Mögliche Zahlpläne;Land;Name des Karteninhabers;Kartennetzwerk;"
                 u"Kontaktlose Bezahlung",
                 u"date=#1;amount=Betrag;name=Beschreibung;purpose=Beschreibung;type=Typ;status=Status",
                 eNumberFormat::Detect, eSignRule::AsWritten, eDetails::None, u"EUR"},
    cKnownLayout{u"American Express",
                 u"Datum;Beschreibung;Karteninhaber;Konto #;Betrag;Weitere Details;"
                 u"Erscheint auf Ihrer Abrechnung als;Adresse;Stadt;PLZ;Land;Betreff",
                 u"date=Datum;name=Beschreibung;purpose=Beschreibung;purpose2=Weitere Details;amount=Betrag",
                 eNumberFormat::Detect, eSignRule::Negated, eDetails::None, u"EUR"},
    cKnownLayout{u"Revolut",
                 u"Art;Produkt;Datum des Beginns;Datum des Abschlusses;Beschreibung;Betrag;Gebühr;Währung;Status;"
                 u"Kontostand",
                 u"date=Datum des Abschlusses;type=Art;name=Beschreibung;purpose=Beschreibung;amount=Betrag;"
                 u"fee=Gebühr;currency=Währung;status=Status;balance=Kontostand",
                 eNumberFormat::English},
    cKnownLayout{u"Revolut", u"Type;Product;Started Date;Completed Date;Description;Amount;Fee;Currency;State;Balance",
                 u"date=Completed Date;type=Type;name=Description;purpose=Description;amount=Amount;fee=Fee;"
                 u"currency=Currency;status=State;balance=Balance",
                 eNumberFormat::English},
    // What the service took is part of the amount.
    cKnownLayout{u"Wise",
                 u"TransferWise ID;Date;Amount;Currency;Description;Payment Reference;Running Balance;Exchange From;"
                 u"Exchange To;Exchange Rate;Payer Name;Payee Name;Payee Account Number;Merchant;"
                 u"Card Last Four Digits;Card Holder Full Name;Attachment;Note;Total fees",
                 u"date=Date;amount=Amount;currency=Currency;purpose=Description;purpose2=Payment Reference;"
                 u"payer=Payer Name;name=Payee Name;othername=Merchant;account=Payee Account Number;"
                 u"balance=Running Balance",
                 eNumberFormat::English},
    cKnownLayout{u"Tomorrow",
                 u"account_type;booking_date;valuta_date;sender_or_recipient;iban;booking_type;description;category;"
                 u"amount;currency",
                 u"date=booking_date;name=sender_or_recipient;account=iban;type=booking_type;purpose=description;"
                 u"amount=amount;currency=currency"},
    cKnownLayout{u"Finom",
                 u"Buchungsdatum;Time completed;Status;Transaktionsart;Auftraggeber/Empfänger;Counterparty BIC;"
                 u"Counterparty IBAN;Verwendungszweck;Tags;Zahlungsfreigeber;Kartennummer;Ursprungswährung;"
                 u"Ursprungsbetrag;Zahlungswährung;Zahlungsbetrag;Wallet-Saldo nach Transaktion;Wallet-Name;"
                 u"Wallet-IBAN;Begleitende Dokumente;Transaktions-ID",
                 u"own=Wallet-IBAN;date=Buchungsdatum;status=Status;type=Transaktionsart;"
                 u"name=Auftraggeber/Empfänger;account=Counterparty IBAN;bank=Counterparty BIC;"
                 u"purpose=Verwendungszweck;amount=Zahlungsbetrag;currency=Zahlungswährung;"
                 u"balance=Wallet-Saldo nach Transaktion",
                 eNumberFormat::English},
    cKnownLayout{u"bunq", u"Datum;Bedrag;Rekening;Tegenrekening;Naam;Omschrijving",
                 u"own=Rekening;date=Datum;amount=Bedrag;account=Tegenrekening;name=Naam;purpose=Omschrijving",
                 eNumberFormat::Detect, eSignRule::AsWritten, eDetails::None, u"EUR"},
    cKnownLayout{u"Targobank", u"=day;text;side;side;empty;empty;iban", u"date=#0;purpose=#1;debit=#2;credit=#3;own=#6",
                 eNumberFormat::Detect, eSignRule::AsWritten, eDetails::Spaced, u"EUR"},
    cKnownLayout{u"Raiffeisen Österreich", u"=day;text;day;amount;code;empty;empty",
                 u"date=#0;purpose=#1;amount=#3;currency=#4"},
    cKnownLayout{u"PostFinance", u"Buchungsdatum;Avisierungstext;Gutschrift*;Lastschrift*;Valuta;Saldo*",
                 u"date=Buchungsdatum;purpose=Avisierungstext;credit=Gutschrift*;debit=Lastschrift*;balance=Saldo*",
                 eNumberFormat::English},
    cKnownLayout{u"PostFinance", u"Datum;Bewegungstyp;Avisierungstext;Gutschrift in *;Lastschrift in *;…",
                 u"date=Datum;type=Bewegungstyp;purpose=Avisierungstext;credit=Gutschrift in *;debit=Lastschrift in *",
                 eNumberFormat::English},
    cKnownLayout{u"PostFinance", u"Data;Tipo di movimento;Testo di avviso;Accredito in *;Addebito in *;…",
                 u"date=Data;type=Tipo di movimento;purpose=Testo di avviso;credit=Accredito in *;debit=Addebito in *",
                 eNumberFormat::English},
    cKnownLayout{u"UBS",
                 u"Valuation date;Banking relationship;Portfolio;Product;IBAN;Ccy.;Date from;Date to;Description;"
                 u"Trade date;Booking date;Value date;Description 1;Description 2;Description 3;Transaction no.;…;"
                 u"Debit;Credit;Balance",
                 u"own=IBAN;date=Booking date;currency=Ccy.;debit=Debit;credit=Credit;purpose=Description 1;"
                 u"purpose2=Description 2;purpose3=Description 3;balance=Balance",
                 eNumberFormat::English},
    cKnownLayout{u"UBS (Kreditkarte)",
                 u"Numéro de compte;Numéro de carte;Titulaire de compte/carte;Date d'achat;Texte comptable;Secteur;"
                 u"Montant;Monnaie originale;Cours;Monnaie;Débit;Crédit;Ecriture",
                 u"date=Date d'achat;name=Texte comptable;purpose=Texte comptable;purpose2=Secteur;currency=Monnaie;"
                 u"debit=Débit;credit=Crédit",
                 eNumberFormat::English},
    cKnownLayout{u"ZKB",
                 u"Datum;Buchungstext;Whg;Betrag Detail;ZKB-Referenz;Referenznummer;Belastung *;Gutschrift *;Valuta;"
                 u"Saldo *;Zahlungszweck;Details",
                 u"date=Valuta;purpose=Buchungstext;purpose2=Zahlungszweck;purpose3=Details;debit=Belastung *;"
                 u"credit=Gutschrift *;balance=Saldo *",
                 eNumberFormat::English},
    cKnownLayout{u"Raiffeisen Schweiz", u"IBAN;Booked At;Text;Credit/Debit Amount;Balance;Valuta Date",
                 u"own=IBAN;date=Booked At;purpose=Text;amount=Credit/Debit Amount;balance=Balance",
                 eNumberFormat::English},
    cKnownLayout{u"Credit Suisse", u"Valutadatum;Text;Belastung;Gutschrift",
                 u"date=Valutadatum;purpose=Text;debit=Belastung;credit=Gutschrift", eNumberFormat::English},
    cKnownLayout{u"Migros Bank", u"Datum;Buchungstext;Mitteilung;Referenznummer;Betrag;Saldo;Valuta",
                 u"date=Datum;purpose=Buchungstext;purpose2=Mitteilung;amount=Betrag;balance=Saldo",
                 eNumberFormat::English},
    cKnownLayout{u"BEKB",
                 u"Gutschrift / Belastung;Datum;Valuta;Buchungstext;Zusatzinfos Buchung;"
                 u"Name Auftraggeber / Begünstigter;Adresse Auftraggeber / Begünstigter;Konto / Bank;"
                 u"Mitteilung / Referenz;Zusatzinfos Transaktion;Betrag;Saldo",
                 u"date=Datum;type=Buchungstext;name=Name Auftraggeber / Begünstigter;account=Konto / Bank;"
                 u"purpose=Mitteilung / Referenz;purpose2=Zusatzinfos Buchung;purpose3=Zusatzinfos Transaktion;"
                 u"amount=Betrag;balance=Saldo",
                 eNumberFormat::English},
    cKnownLayout{u"Swisscard",
                 u"Transaktionsdatum;Beschreibung;Händler;Kartennummer;Währung;Betrag;Fremdwährung;"
                 u"Betrag in Fremdwährung;Debit/Kredit;Status;Händlerkategorie;Registrierte Kategorie",
                 u"date=Transaktionsdatum;name=Händler;othername=Beschreibung;purpose=Beschreibung;currency=Währung;"
                 u"amount=Betrag;status=Status",
                 eNumberFormat::English, eSignRule::Negated},
    cKnownLayout{u"Neon",
                 u"Date;Amount;Original amount;Original currency;Exchange rate;Description;Subject;Category;Tags;"
                 u"Wise;Spaces",
                 u"date=Date;amount=Amount;name=Description;purpose=Subject", eNumberFormat::English,
                 eSignRule::AsWritten, eDetails::None, u"CHF"},
};

} // namespace

std::span<const cKnownLayout> cKnownLayout::All()
{
    return layouts;
}
