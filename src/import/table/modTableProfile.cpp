#include "import/table/modTableProfile.h"

#include <QStringView>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

// A new bank is one entry here and one pair of test files. Header fields are separated by ";", "…" stands for any run
// of columns, and empty fields at the end do not count. Columns are "field=header name", a place counted from 0 is
// "#9".
struct cProfile
{
    const char16_t* Name = nullptr;
    const char16_t* Header = nullptr;
    const char16_t* Columns = nullptr;
    eNumberFormat Number = eNumberFormat::Detect;
    eSignRule Sign = eSignRule::AsWritten;
    eDetails Details = eDetails::None;
    const char16_t* Currency = u"";
    const char16_t* OnlyCurrency = u"";
};

constexpr std::array profiles = {
    cProfile{u"Sparkasse (CSV-CAMT)",
             u"Auftragskonto;Buchungstag;Valutadatum;Buchungstext;Verwendungszweck;Glaeubiger ID;Mandatsreferenz;"
             u"Kundenreferenz (End-to-End);Sammlerreferenz;Lastschrift Ursprungsbetrag;Auslagenersatz Ruecklastschrift;"
             u"Beguenstigter/Zahlungspflichtiger;Kontonummer/IBAN;BIC (SWIFT-Code);Betrag;Waehrung;Info;…",
             u"own=Auftragskonto;date=Buchungstag;type=Buchungstext;purpose=Verwendungszweck;"
             u"name=Beguenstigter/Zahlungspflichtiger;account=Kontonummer/IBAN;bank=BIC (SWIFT-Code);amount=Betrag;"
             u"currency=Waehrung;status=Info"},
    cProfile{u"Sparkasse (CSV-MT940)",
             u"Auftragskonto;Buchungstag;Valutadatum;Buchungstext;Verwendungszweck;Beguenstigter/Zahlungspflichtiger;"
             u"Kontonummer;BLZ;Betrag;Waehrung;Info",
             u"own=Auftragskonto;date=Buchungstag;type=Buchungstext;purpose=Verwendungszweck;"
             u"name=Beguenstigter/Zahlungspflichtiger;account=Kontonummer;bank=BLZ;amount=Betrag;currency=Waehrung;"
             u"status=Info"},
    cProfile{u"Sparkasse (Kreditkarte)",
             u"Umsatz getätigt von;Belegdatum;Buchungsdatum;Originalbetrag;Originalwährung;Umrechnungskurs;"
             u"Buchungsbetrag;Buchungswährung;Transaktionsbeschreibung;Transaktionsbeschreibung Zusatz;"
             u"Buchungsreferenz;…",
             u"date=Belegdatum;name=Transaktionsbeschreibung;purpose=Transaktionsbeschreibung;"
             u"purpose2=Transaktionsbeschreibung Zusatz;amount=Buchungsbetrag;currency=Buchungswährung"},
    cProfile{u"VR-Bank, GLS, Sparda",
             u"Bezeichnung Auftragskonto;IBAN Auftragskonto;BIC Auftragskonto;Bankname Auftragskonto;Buchungstag;"
             u"Valutadatum;Name Zahlungsbeteiligter;IBAN Zahlungsbeteiligter;BIC (SWIFT-Code) Zahlungsbeteiligter;"
             u"Buchungstext;Verwendungszweck;Betrag;Waehrung;Saldo nach Buchung;Bemerkung;…",
             u"own=IBAN Auftragskonto;ownbank=BIC Auftragskonto;date=Buchungstag;type=Buchungstext;"
             u"purpose=Verwendungszweck;name=Name Zahlungsbeteiligter;account=IBAN Zahlungsbeteiligter;"
             u"bank=BIC (SWIFT-Code) Zahlungsbeteiligter;amount=Betrag;currency=Waehrung;balance=Saldo nach Buchung"},
    cProfile{u"VR-Bank (älter)",
             u"Buchungstag;Valuta;Auftraggeber/Zahlungsempfänger;Empfänger/Zahlungspflichtiger;Konto-Nr.;IBAN;BLZ;BIC;"
             u"Vorgang/Verwendungszweck;Kundenreferenz;Währung;Umsatz",
             u"date=Valuta;purpose=Vorgang/Verwendungszweck;name=Empfänger/Zahlungspflichtiger;account=IBAN;bank=BIC;"
             u"amount=Umsatz;currency=Währung;indicator=#12"},
    cProfile{u"Sparda (älter)", u"Buchungstag;Wertstellungstag;Verwendungszweck;Umsatz;Währung",
             u"date=Buchungstag;purpose=Verwendungszweck;amount=Umsatz;currency=Währung"},
    cProfile{u"ING (mit Kategorie)",
             u"Buchung;Valuta;Auftraggeber/Empfänger;Buchungstext;Kategorie;Verwendungszweck;Saldo;Währung;Betrag;"
             u"Währung",
             u"date=Valuta;name=Auftraggeber/Empfänger;type=Buchungstext;purpose=Verwendungszweck;balance=Saldo;"
             u"amount=Betrag;currency=#9"},
    cProfile{u"ING (mit Saldo)",
             u"Buchung;Wertstellungsdatum;Auftraggeber/Empfänger;Buchungstext;Verwendungszweck;Saldo;Währung;Betrag;"
             u"Währung",
             u"date=Buchung;name=Auftraggeber/Empfänger;type=Buchungstext;purpose=Verwendungszweck;balance=Saldo;"
             u"amount=Betrag;currency=#8"},
    cProfile{u"ING (ohne Saldo)",
             u"Buchung;Wertstellungsdatum;Auftraggeber/Empfänger;Buchungstext;Verwendungszweck;Betrag;Währung",
             u"date=Buchung;name=Auftraggeber/Empfänger;type=Buchungstext;purpose=Verwendungszweck;amount=Betrag;"
             u"currency=Währung"},
    cProfile{u"ING Österreich", u"Kontonummer;Text;Datum;Währung;Soll;Haben",
             u"own=Kontonummer;date=Datum;purpose=Text;currency=Währung;debit=Soll;credit=Haben"},
    cProfile{u"DKB (bis 2023)",
             u"Buchungstag;Wertstellung;Buchungstext;Auftraggeber / Begünstigter;Verwendungszweck;Kontonummer;BLZ;"
             u"Betrag (EUR);Gläubiger-ID;Mandatsreferenz;Kundenreferenz",
             u"date=Wertstellung;type=Buchungstext;name=Auftraggeber / Begünstigter;purpose=Verwendungszweck;"
             u"account=Kontonummer;bank=BLZ;amount=Betrag (EUR)"},
    cProfile{u"DKB",
             u"Buchungsdatum;Wertstellung;Status;Zahlungspflichtige*r;Zahlungsempfänger*in;Verwendungszweck;Umsatztyp;"
             u"IBAN;Betrag (€);Gläubiger-ID;Mandatsreferenz;Kundenreferenz",
             u"date=Wertstellung;status=Status;payer=Zahlungspflichtige*r;name=Zahlungsempfänger*in;"
             u"purpose=Verwendungszweck;type=Umsatztyp;account=IBAN;amount=Betrag (€)"},
    cProfile{u"DKB Karte (bis 2023)",
             u"Umsatz abgerechnet und nicht im Saldo enthalten;Wertstellung;Belegdatum;Beschreibung;Betrag (EUR);"
             u"Ursprünglicher Betrag",
             u"date=Wertstellung;name=Beschreibung;purpose=Beschreibung;amount=Betrag (EUR)"},
    cProfile{u"DKB Karte", u"Belegdatum;Wertstellung;Status;Beschreibung;Umsatztyp;Betrag (€);Fremdwährungsbetrag",
             u"date=Wertstellung;status=Status;name=Beschreibung;purpose=Beschreibung;type=Umsatztyp;"
             u"amount=Betrag (€)"},
    cProfile{u"DKB Karte", u"Belegdatum;Wertstellung;Status;Beschreibung;Umsatztyp;Betrag;Fremdwährungsbetrag",
             u"date=Wertstellung;status=Status;name=Beschreibung;purpose=Beschreibung;type=Umsatztyp;amount=Betrag",
             eNumberFormat::Detect, eSignRule::AsWritten, eDetails::None, u"EUR"},
    cProfile{u"Commerzbank (bis 2024)",
             u"Buchungstag;Wertstellung;Umsatzart;Buchungstext;Betrag;Währung;Auftraggeberkonto;"
             u"Bankleitzahl Auftraggeberkonto;IBAN Auftraggeberkonto;Kategorie",
             u"date=Wertstellung;type=Umsatzart;purpose=Buchungstext;amount=Betrag;currency=Währung;"
             u"own=IBAN Auftraggeberkonto;ownbank=Bankleitzahl Auftraggeberkonto"},
    cProfile{u"Commerzbank",
             u"Buchungstag;Wertstellung;Umsatzart;Buchungstext;Betrag;Währung;IBAN Kontoinhaber;Kategorie",
             u"date=Wertstellung;type=Umsatzart;purpose=Buchungstext;amount=Betrag;currency=Währung;"
             u"own=IBAN Kontoinhaber"},
    cProfile{u"comdirect", u"Buchungstag;Wertstellung (Valuta);Vorgang;Buchungstext;Umsatz in EUR",
             u"date=Wertstellung (Valuta);type=Vorgang;purpose=Buchungstext;amount=Umsatz in EUR",
             eNumberFormat::Detect, eSignRule::AsWritten, eDetails::Labelled},
    cProfile{u"Deutsche Bank, Postbank",
             u"Buchungstag;Wert;Umsatzart;Begünstigter / Auftraggeber;Verwendungszweck;IBAN / Kontonummer;BIC;"
             u"Kundenreferenz;Mandatsreferenz;Gläubiger ID;Fremde Gebühren;Betrag;Abweichender Empfänger;"
             u"Anzahl der Aufträge;Anzahl der Schecks;Soll;Haben;Währung",
             u"date=Buchungstag;type=Umsatzart;name=Begünstigter / Auftraggeber;purpose=Verwendungszweck;"
             u"account=IBAN / Kontonummer;bank=BIC;amount=Betrag;debit=Soll;credit=Haben;currency=Währung"},
    cProfile{u"HypoVereinsbank",
             u"Kontonummer;Buchungsdatum;Valuta;Empfaenger 1;Empfaenger 2;Verwendungszweck;Betrag;Waehrung",
             u"own=Kontonummer;date=Valuta;name=Empfaenger 1;name2=Empfaenger 2;purpose=Verwendungszweck;"
             u"amount=Betrag;currency=Waehrung"},
    cProfile{u"Consorsbank",
             u"Buchung;Valuta;Sender / Empfänger;IBAN / Konto-Nr.;BIC / BLZ;Buchungstext;Verwendungszweck;"
             u"Betrag in EUR",
             u"date=Valuta;name=Sender / Empfänger;account=IBAN / Konto-Nr.;bank=BIC / BLZ;type=Buchungstext;"
             u"purpose=Verwendungszweck;amount=Betrag in EUR"},
    cProfile{u"N26 (englisch, bis 2023)",
             u"Date;Payee;Account number;Transaction type;Payment reference;Category;Amount (EUR);"
             u"Amount (Foreign Currency);Type Foreign Currency;Exchange Rate",
             u"date=Date;name=Payee;account=Account number;type=Transaction type;purpose=Payment reference;"
             u"amount=Amount (EUR)",
             eNumberFormat::English},
    cProfile{u"N26",
             u"Datum;Empfänger;Kontonummer;Transaktionstyp;Verwendungszweck;Kategorie;Betrag (EUR);"
             u"Betrag (Fremdwährung);Fremdwährung;Wechselkurs",
             u"date=Datum;name=Empfänger;account=Kontonummer;type=Transaktionstyp;purpose=Verwendungszweck;"
             u"amount=Betrag (EUR)",
             eNumberFormat::English},
    cProfile{u"N26 (englisch)",
             u"Booking Date;Value Date;Partner Name;Partner Iban;Type;Payment Reference;Account Name;Amount (EUR);"
             u"Original Amount;Original Currency;Exchange Rate",
             u"date=Booking Date;name=Partner Name;account=Partner Iban;type=Type;purpose=Payment Reference;"
             u"amount=Amount (EUR)",
             eNumberFormat::English},
    // Payments in other currencies come with a pair of conversions; what changes the balance is in euros. Holds, which
    // do not change it, have "Memo" in the last column.
    cProfile{u"PayPal",
             u"Datum;Uhrzeit;Zeitzone;Name;Typ;Status;Währung;Brutto;Gebühr;Netto;Absender E-Mail-Adresse;"
             u"Empfänger E-Mail-Adresse;Transaktionscode;…;Guthaben;…;Betreff;Hinweis;…;Auswirkung auf Guthaben",
             u"date=Datum;name=Name;type=Typ;status=Auswirkung auf Guthaben;currency=Währung;amount=Netto;"
             u"purpose=Betreff;purpose2=Hinweis;balance=Guthaben",
             eNumberFormat::Detect, eSignRule::AsWritten, eDetails::None, u"", u"EUR"},
    cProfile{u"PayPal (kurz)",
             u"Datum;Uhrzeit;Zeitzone;Name;Typ;Status;Währung;Brutto;Entgelt;Netto;Absender-E-Mail-Adresse;"
             u"Empfänger-E-Mail-Adresse;Transaktionscode;Beschreibung;Betreff;Hinweis;Guthaben;Adressstatus",
             u"date=Datum;name=Name;type=Typ;status=Status;currency=Währung;amount=Netto;purpose=Beschreibung;"
             u"purpose2=Betreff;purpose3=Hinweis;balance=Guthaben",
             eNumberFormat::Detect, eSignRule::AsWritten, eDetails::None, u"", u"EUR"},
    cProfile{u"PostFinance", u"Booking date;Notification text;Credit in CHF;Debit in CHF;Value;Balance in CHF",
             u"date=Booking date;purpose=Notification text;credit=Credit in CHF;debit=Debit in CHF;"
             u"balance=Balance in CHF",
             eNumberFormat::English, eSignRule::AsWritten, eDetails::None, u"CHF"},
    cProfile{u"Viseca",
             u"TransactionId;CardId;Date;ValutaDate;Amount;Currency;OriginalAmount;OriginalCurrency;MerchantName;"
             u"MerchantPlace;MerchantCountry;StateType;Details;Type;Exchange Rate",
             u"date=ValutaDate;amount=Amount;currency=Currency;name=MerchantName;status=StateType;purpose=Details;"
             u"type=Type",
             eNumberFormat::English, eSignRule::Negated},
    cProfile{u"UBS", u"Abschlussdatum;…;Belastung;Gutschrift;…;Beschreibung1;Beschreibung2;Beschreibung3;…",
             u"date=Abschlussdatum;currency=Währung;debit=Belastung;credit=Gutschrift;purpose=Beschreibung1;purpose2="
             u"Beschreibung2;"
             u"purpose3=Beschreibung3"},
};

struct cField
{
    const char16_t* Name = nullptr;
    int& (*Place)(cColumnMap&) = nullptr;
};

constexpr std::array fields = {
    cField{u"date", [](cColumnMap& map) -> int& { return map.Date; }},
    cField{u"type", [](cColumnMap& map) -> int& { return map.Text; }},
    cField{u"purpose", [](cColumnMap& map) -> int& { return map.Purpose[0]; }},
    cField{u"purpose2", [](cColumnMap& map) -> int& { return map.Purpose[1]; }},
    cField{u"purpose3", [](cColumnMap& map) -> int& { return map.Purpose[2]; }},
    cField{u"name", [](cColumnMap& map) -> int& { return map.Name; }},
    cField{u"name2", [](cColumnMap& map) -> int& { return map.Name2; }},
    cField{u"account", [](cColumnMap& map) -> int& { return map.Account; }},
    cField{u"bank", [](cColumnMap& map) -> int& { return map.BankCode; }},
    cField{u"amount", [](cColumnMap& map) -> int& { return map.Amount; }},
    cField{u"credit", [](cColumnMap& map) -> int& { return map.Credit; }},
    cField{u"debit", [](cColumnMap& map) -> int& { return map.Debit; }},
    cField{u"currency", [](cColumnMap& map) -> int& { return map.Currency; }},
    cField{u"indicator", [](cColumnMap& map) -> int& { return map.Indicator; }},
    cField{u"payer", [](cColumnMap& map) -> int& { return map.Payer; }},
    cField{u"own", [](cColumnMap& map) -> int& { return map.OwnAccount; }},
    cField{u"ownbank", [](cColumnMap& map) -> int& { return map.OwnBankCode; }},
    cField{u"status", [](cColumnMap& map) -> int& { return map.Status; }},
    cField{u"balance", [](cColumnMap& map) -> int& { return map.Balance; }},
};

// True when the header has the fields in their order, "…" standing for any run of them.
bool IsHeader(QList<QStringView> pattern, QList<QStringView> header)
{
    while (!header.isEmpty() && header.last().isEmpty()) {
        header.removeLast();
    }
    qsizetype at = 0;
    bool isOpen = false;
    for (const QStringView field : std::as_const(pattern)) {
        if (field == u"…") {
            isOpen = true;
            continue;
        }
        const qsizetype found = isOpen ? header.indexOf(field, at) : at;
        if (found < 0 || found >= header.size() || header.at(found) != field) {
            return false;
        }
        at = found + 1;
        isOpen = false;
    }
    return isOpen || at == header.size();
}

int ColumnOf(QStringView name, const QStringList& header)
{
    if (name.startsWith(u'#')) {
        const int place = name.mid(1).toInt();
        return place < header.size() ? place : -1;
    }
    return static_cast<int>(header.indexOf(name.toString()));
}

void Take(const cProfile& profile, const QStringList& header, cTableLayout& layout)
{
    cColumnMap map;
    map.Names = header;
    map.ColumnCount = static_cast<int>(header.size());
    for (const QStringView column : QStringView(profile.Columns).split(u';')) {
        const qsizetype sign = column.indexOf(u'=');
        const auto* const field = std::find_if(fields.begin(), fields.end(), [&](const cField& known) {
            return column.left(sign) == QStringView(known.Name);
        });
        if (field != fields.end()) {
            field->Place(map) = ColumnOf(column.mid(sign + 1), header);
        }
    }
    layout.Map = map;
    layout.Origin = eMapOrigin::Profile;
    layout.Profile = QString::fromUtf16(profile.Name);
    layout.Number = profile.Number;
    layout.Sign = profile.Sign;
    layout.Details = profile.Details;
    layout.Currency = QString::fromUtf16(profile.Currency);
    layout.OnlyCurrency = QString::fromUtf16(profile.OnlyCurrency);
}

} // namespace

bool modTableProfile::Apply(const QStringList& header, cTableLayout& layout)
{
    const QList<QStringView> names(header.begin(), header.end());
    const auto* const found = std::find_if(profiles.begin(), profiles.end(), [&](const cProfile& profile) {
        return IsHeader(QStringView(profile.Header).split(u';'), names);
    });
    if (found == profiles.end()) {
        return false;
    }
    Take(*found, header, layout);
    return true;
}

bool modTableProfile::ApplyNamed(const QString& name, const QStringList& header, cTableLayout& layout)
{
    const auto* const found = std::find_if(profiles.begin(), profiles.end(), [&](const cProfile& profile) {
        return name.compare(QStringView(profile.Name), Qt::CaseInsensitive) == 0;
    });
    if (found == profiles.end()) {
        return false;
    }
    Take(*found, header, layout);
    return true;
}

QStringList modTableProfile::Names()
{
    QStringList names;
    for (const cProfile& profile : profiles) {
        names.append(QString::fromUtf16(profile.Name));
    }
    names.removeDuplicates();
    return names;
}
