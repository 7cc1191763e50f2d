#include "base/modAmount.h"
#include "import/read/cReadOptions.h"
#include "import/read/cStatementSource.h"
#include "import/table/cTable.h"
#include "import/table/modTable.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

// Own account, amount, counterparty with its account and bank, purpose: "1 -12.00 REWE (DE..) Einkauf".
QString Shown(const cImportEntry& entry)
{
    const QString number = QStringList{entry.ImportBeneficiaryAccount, entry.ImportBeneficiaryBLZ}.join(u' ').trimmed();
    const QString account = number.isEmpty() ? QString() : u'(' + number + u')';
    return QStringList{entry.ImportAccount, modAmount::CentsToText(entry.ImportValue), entry.ImportBeneficiary, account,
                       entry.ImportPurpose}
        .join(u' ')
        .simplified();
}

QStringList Shown(const QString& text)
{
    cReadOptions options;
    options.Account = u"1"_s; // where the file does not say
    const cStatementRead read = modTable::Read({u"a.csv"_s, {}, text}, options);
    QStringList lines;
    for (const cImportEntry& entry : read.Entries) {
        lines.append(Shown(entry));
    }
    for (const cSkippedRow& row : read.Skipped) {
        lines.append(u"left out: "_s + QString::number(row.Reason.Line));
    }
    if (read.Doubt) {
        lines.append(u"asks"_s);
    }
    return lines + (read.Refusal.isEmpty() ? QStringList() : QStringList(read.Refusal));
}

} // namespace

// Layouts of nobody's bank: each is read right, or asked about.
class testUnseenTables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Reads_data()
    {
        const cTestRows<QString, QStringList> row("text", "read");
        Sides(row);
        SidesWithoutNames(row);
        Cards(row);
        Accounts(row);
        OthersAndOwn(row);
        Texts(row);
        Amounts(row);
    }

    void Reads()
    {
        QFETCH(QString, text);
        QTEST(Shown(text), "read");
    }

private:
    static void Sides(auto row)
    {
        row("sides in the words of banks",
            u"Datum;Text;Belastung;Gutschrift\n01.02.2026;Strom;80,00;\n02.02.2026;Zahnarzt;;40,00"_s,
            {u"1 -80.00 Strom"_s, u"1 40.00 Zahnarzt"_s});
        row("the other way round, whole numbers",
            u"Buchungsdatum;Avisierungstext;Gutschrift in CHF;Lastschrift in CHF;Saldo\n"
            "01.02.2026;Kauf;;80;920\n31.01.2026;Transfer;500;;1000"_s,
            {u"1 -80.00 Kauf"_s, u"1 500.00 Transfer"_s});
        row("balances say that the sides are exchanged",
            u"Datum;Text;Soll;Haben;Saldo\n01.02.2026;a;100,00;;1100,00\n02.02.2026;b;;30,00;1070,00\n"
            "03.02.2026;c;;20,00;1050,00"_s,
            {u"1 100.00 a"_s, u"1 -30.00 b"_s, u"1 -20.00 c"_s});
        row("one column for both",
            u"IBAN;Booked At;Text;Credit/Debit Amount;Balance\nCH9300762011623852957;05.01.2026 00:00;a;-45.8;180.2\n"
            "CH9300762011623852957;07.01.2026 00:00;b;100;280.2"_s,
            {u"CH9300762011623852957 -45.80 a"_s, u"CH9300762011623852957 100.00 b"_s});
        row("English sides", u"Date,Details,Paid out,Paid in\n01/02/2026,Tea,3.50,\n15/02/2026,Pay,,900.00"_s,
            {u"1 -3.50 Tea"_s, u"1 900.00 Pay"_s});
        row("French sides", u"Date;Libellé;Débit;Crédit\n01/02/2026;Pain;3,50;\n15/02/2026;Virement;;900,00"_s,
            {u"1 -3.50 Pain"_s, u"1 900.00 Virement"_s});
        row("Dutch, a word for the direction",
            u"Datum,Naam,Bedrag,Af Bij,Omschrijving\n20260201,Bakker,\"3,50\",Af,brood\n20260203,Baas,\"900,00\",Bij,loon"_s,
            {u"1 -3.50 Bakker brood"_s, u"1 900.00 Baas loon"_s});
        row("a word in a column without telling name",
            u"Datum;Wer;Wert;Richtung\n01.02.2026;Bäcker;3,50;Ausgabe\n02.02.2026;Chef;900,00;Einnahme"_s,
            {u"1 -3.50 Bäcker"_s, u"1 900.00 Chef"_s});
        row("whole numbers, and balances before the booking",
            u"Datum;Wofür;Abgang;Zugang;Saldo vorher\n01.02.2026;a;10;;100\n02.02.2026;b;20;;90\n03.02.2026;c;;50;70"_s,
            {u"1 -10.00 a"_s, u"1 -20.00 b"_s, u"1 50.00 c"_s});
        row("balances before and after the booking",
            u"Rekeningnummer;Datum;Beginsaldo;Eindsaldo;Transactiebedrag;Omschrijving\n"
            "123456789;20260201;100,00;87,50;-12,50;a\n123456789;20260202;87,50;987,50;900,00;b\n"
            "123456789;20260203;987,50;980,00;-7,50;c"_s,
            {u"123456789 -12.50 a"_s, u"123456789 900.00 b"_s, u"123456789 -7.50 c"_s});
        row("balances before the booking that nothing names",
            u"Datum;Text;Betrag;Stand\n01.02.2026;a;-10,00;100,00\n02.02.2026;b;-20,00;90,00\n"
            "03.02.2026;c;50,00;70,00\n04.02.2026;d;-1,00;120,00"_s,
            {u"1 -10.00 a"_s, u"1 -20.00 b"_s, u"1 50.00 c"_s, u"1 -1.00 d"_s});
        row("the account's own currency",
            u"Valuta;Text;Betrag in EUR;Betrag in USD\n01.02.2026;a;-10,00;-11,00\n02.02.2026;b;-20,00;-22,00"_s,
            {u"1 -10.00 a"_s, u"1 -20.00 b"_s});
    }

    static void SidesWithoutNames(auto row)
    {
        row("a word in the column of kinds",
            u"Datum;Name;Betrag;Art\n01.02.2026;Bäcker;3,50;Ausgabe\n02.02.2026;Chef;900,00;Einnahme"_s,
            {u"1 -3.50 Bäcker"_s, u"1 900.00 Chef"_s});
        row("sides without names", u"01.02.2026;Kino;8,00;\n02.02.2026;Oma;;20,00"_s,
            {u"1 -8.00 Kino"_s, u"1 20.00 Oma"_s, u"asks"_s});
        row("sides without names, the balance tells",
            u"01.02.2026;Oma;20,00;;120,00\n02.02.2026;Kino;;8,00;112,00\n03.02.2026;Eis;;2,00;110,00"_s,
            {u"1 20.00 Oma"_s, u"1 -8.00 Kino"_s, u"1 -2.00 Eis"_s});
        row("nothing tells", u"Datum;Betrag;Text\n01.02.2026;500,00;Dauerauftrag\n02.02.2026;20,00;Kino"_s,
            {u"1 500.00 Dauerauftrag"_s, u"1 20.00 Kino"_s, u"asks"_s});
        row("rent without sign", u"Datum;Betrag;Text\n01.02.2026;500,00;Miete"_s, {u"1 500.00 Miete"_s, u"asks"_s});
        row("wages without sign", u"Datum;Betrag;Text\n01.02.2026;3.000,00;Gehalt Februar"_s,
            {u"1 3000.00 Gehalt Februar"_s});
        row("opening and closing balance",
            u"Anfangssaldo;1.000,00\nDatum;Betrag;Text\n01.02.2026;500,00;x\n02.02.2026;20,00;y\nEndsaldo;;480,00"_s,
            {u"1 -500.00 x"_s, u"1 -20.00 y"_s, u"left out: 5"_s});
        row("the balance names the amount",
            u"Datum;Text;Betrag;Netto;Saldo\n01.02.2026;a;-10,00;-9,00;91,00\n02.02.2026;b;-5,00;-4,00;87,00\n"
            "03.02.2026;c;20,00;19,00;106,00"_s,
            {u"1 -9.00 a"_s, u"1 -4.00 b"_s, u"1 19.00 c"_s});
    }

    static void Cards(auto row)
    {
        row("charges are positive, a payment tells",
            u"Transaktionsdatum,Beschreibung,Karteninhaber,Betrag\n01.02.2026,Konditorei Blum,Max Muster,\"94,23\"\n"
            "02.02.2026,IHRE ZAHLUNG - BESTEN DANK,Max Muster,\"-500,00\""_s,
            {u"1 -94.23 Konditorei Blum"_s, u"1 500.00 IHRE ZAHLUNG - BESTEN DANK"_s});
        row("a word for the direction beside the opposite signs",
            u"Datum,Beschreibung,Betrag,Debit/Kredit\n01.02.2026,Blumen,12.50,Debit\n02.02.2026,Bank,-30.00,Kredit"_s,
            {u"1 -12.50 Blumen"_s, u"1 30.00 Bank"_s});
        row("charges are positive, nothing tells",
            u"Kaufdatum;Händler;Betrag\n01.02.2026;Konditorei Blum;94,23\n02.02.2026;Blumen Kern;12,00"_s,
            {u"1 94.23 Konditorei Blum"_s, u"1 12.00 Blumen Kern"_s, u"asks"_s});
        row("charges are positive, a shop that gives back",
            u"Date,Merchant,Card,Amount\n2026-02-01,Blum,1234,94.23\n2026-02-02,Kern,1234,12.00\n"
            "2026-02-03,Blum,1234,-5.00"_s,
            {u"1 94.23 Blum"_s, u"1 12.00 Kern"_s, u"1 -5.00 Blum"_s, u"asks"_s});
        row("charges are positive in every shop",
            u"Date,Merchant,Card,Amount\n2026-02-01,LIDL 4711,1234,94.23\n2026-02-02,REWE City,1234,12.00\n"
            "2026-02-03,Netflix.com,1234,9.99"_s,
            {u"1 -94.23 LIDL 4711"_s, u"1 -12.00 REWE City"_s, u"1 -9.99 Netflix.com"_s});
        row("charges are negative",
            u"Date,Merchant,Card,Amount\n2026-02-01,Blum,1234,-94.23\n2026-02-02,Kern,1234,-12.00\n"
            "2026-02-03,Payment received,1234,106.23"_s,
            {u"1 -94.23 Blum"_s, u"1 -12.00 Kern"_s, u"1 106.23 Payment received"_s});
    }

    static void Accounts(auto row)
    {
        row("two accounts, the one that stays is the owner's",
            u"Datum,Bedrag,Rekening,Tegenrekening,Naam,Omschrijving\n"
            "2026-02-01,\"-2,56\",NL47BUNQ2025181418,NL89BUNQ2025105584,Bakker,brood\n"
            "2026-02-09,\"750,00\",NL47BUNQ2025181418,NL77RABO0311467415,Baas,loon\n"
            "2026-02-10,\"-8,00\",NL47BUNQ2025181418,,Winkel,kaas"_s,
            {u"NL47BUNQ2025181418 -2.56 Bakker (NL89BUNQ2025105584) brood"_s,
             u"NL47BUNQ2025181418 750.00 Baas (NL77RABO0311467415) loon"_s, u"NL47BUNQ2025181418 -8.00 Winkel kaas"_s});
        row("the owner's behind the other's",
            u"Partner IBAN;Datum;Partner;Zweck;Betrag;IBAN\n"
            "DE02120300000000202051;01.02.2026;Anna;x;-2,00;DE02500105170137075030\n"
            "DE02100500000054540402;02.02.2026;Otto;y;3,00;DE02500105170137075030"_s,
            {u"DE02500105170137075030 -2.00 Anna (DE02120300000000202051) x"_s,
             u"DE02500105170137075030 3.00 Otto (DE02100500000054540402) y"_s});
        row("always the same landlord",
            u"Datum;Betrag;Empfänger;IBAN;Zweck\n01.02.2026;-500,00;Haus GmbH;DE02120300000000202051;Miete 2\n"
            "01.03.2026;-500,00;Haus GmbH;DE02120300000000202051;Miete 3"_s,
            {u"1 -500.00 Haus GmbH (DE02120300000000202051) Miete 2"_s,
             u"1 -500.00 Haus GmbH (DE02120300000000202051) Miete 3"_s});
        row("the same landlord beside the own account",
            u"Konto-IBAN;Datum;Betrag;Empfänger;Empfänger-IBAN;Zweck\n"
            "DE02500105170137075030;01.02.2026;-500,00;Haus;DE02120300000000202051;Miete 2\n"
            "DE02500105170137075030;01.03.2026;-500,00;Haus;DE02120300000000202051;Miete 3"_s,
            {u"DE02500105170137075030 -500.00 Haus (DE02120300000000202051) Miete 2"_s,
             u"DE02500105170137075030 -500.00 Haus (DE02120300000000202051) Miete 3"_s});
        row("the same shop, and an account of which nobody knows whose",
            u"Nr,Datum,Tekst,Belastet konto,Beløp\n1,01.02.2026,Kiwi,12345678901,-50.00\n"
            "2,02.02.2026,Lønn,12345678901,900.00"_s,
            {u"1 -50.00 Kiwi"_s, u"1 900.00 Lønn"_s});
        row("a name of the counter account",
            u"Kontonummer;Buchungsdatum;Verwendungszweck;Betrag;Gegenkonto;Name Gegenkonto\n"
            "12345678;01.02.2026;Miete;-500,00;87654321;Haus\n12345678;02.02.2026;Lohn;900,00;11112222;Chef"_s,
            {u"12345678 -500.00 Haus (87654321) Miete"_s, u"12345678 900.00 Chef (11112222) Lohn"_s});
        row("sender and recipient",
            u"Date;Sender;Sender account;Recipient;Recipient account;Amount;Reference\n"
            "2026-02-01;Me;DE02500105170137075030;Haus;DE02120300000000202051;-500.00;Rent\n"
            "2026-02-02;Boss;DE02100500000054540402;Me;DE02500105170137075030;900.00;Pay\n"
            "2026-02-03;Me;DE02500105170137075030;Shop;DE02300209000106531065;-9.50;Bread"_s,
            {u"DE02500105170137075030 -500.00 Haus (DE02120300000000202051) Rent"_s,
             u"DE02500105170137075030 900.00 Boss (DE02100500000054540402) Pay"_s,
             u"DE02500105170137075030 -9.50 Shop (DE02300209000106531065) Bread"_s});
        row("two own accounts",
            u"Kontonummer;Buchungstag;Empfänger IBAN;Empfänger;Verwendungszweck;Betrag\n"
            "1234567890;01.02.2026;DE02120300000000202051;Haus;x;-1,00\n"
            "9876543210;02.02.2026;DE02100500000054540402;Otto;y;-2,00"_s,
            {u"1234567890 -1.00 Haus (DE02120300000000202051) x"_s,
             u"9876543210 -2.00 Otto (DE02100500000054540402) y"_s});
    }

    static void OthersAndOwn(auto row)
    {
        row("two own accounts behind those of the others",
            u"Datum;Name;IBAN;Zweck;Betrag;Konto\n01.02.2026;Haus;DE02120300000000202051;x;-1,00;12345\n"
            "02.02.2026;Otto;DE02100500000054540402;y;-2,00;67890\n"
            "03.02.2026;Anna;DE02300209000106531065;z;-3,00;12345\n04.02.2026;Kiosk;;Eis;-4,00;67890"_s,
            {u"12345 -1.00 Haus (DE02120300000000202051) x"_s, u"67890 -2.00 Otto (DE02100500000054540402) y"_s,
             u"12345 -3.00 Anna (DE02300209000106531065) z"_s, u"67890 -4.00 Kiosk Eis"_s});
        row("one own account behind, with its bank",
            u"Datum;Kontonummer Empfänger;BLZ;Name;Zweck;Betrag;Kontonummer;Bankleitzahl\n"
            "01.02.2026;123456;12030000;Haus;x;-1,00;1802057;37050198\n"
            "02.02.2026;998877;50010517;Otto;y;-2,00;1802057;37050198"_s,
            {u"1802057 -1.00 Haus (123456 12030000) x"_s, u"1802057 -2.00 Otto (998877 50010517) y"_s});
        row("what identifies a creditor is no account",
            u"Datum;Name;Gläubigernummer;IBAN;Creditor ID;Zweck;Betrag\n"
            "01.02.2026;Strom;DE98ZZZ09999999999;DE02120300000000202051;FR12123456789012;x;-1,00\n"
            "02.02.2026;Otto;;DE02100500000054540402;;y;-2,00"_s,
            {u"1 -1.00 Strom (DE02120300000000202051) x"_s, u"1 -2.00 Otto (DE02100500000054540402) y"_s});
        row("numbers of the others beside their accounts",
            u"Datum;Empfänger;Kontonummer;Empfänger BLZ;Partnernummer;Zweck;Betrag\n"
            "01.02.2026;Haus;123456;12030000;47110;x;-1,00\n02.02.2026;Otto;998877;50010517;47117;y;-2,00"_s,
            {u"1 -1.00 Haus (123456 12030000) x"_s, u"1 -2.00 Otto (998877 50010517) y"_s});
        row("a bank is no name",
            u"Datum;Name Zahlungsbeteiligter;BLZ/BIC;Verwendungszweck;Betrag\n01.02.2026;Haus;INGDDEFF;x;-1,00\n"
            "02.02.2026;Otto;BYLADEM1001;y;-2,00"_s,
            {u"1 -1.00 Haus (INGDDEFF) x"_s, u"1 -2.00 Otto (BYLADEM1001) y"_s});
        row("a number is no name",
            u"Datum;Empfänger-Nr.;Empfänger;Zweck;Betrag\n01.02.2026;47110;Haus;x;-1,00\n02.02.2026;47117;Otto;y;-2,00"_s,
            {u"1 -1.00 Haus x"_s, u"1 -2.00 Otto y"_s});
        row("the holder is not the counterparty",
            u"Buchungsdatum;Betrag;Beschreibung;Name des Karteninhabers\n01.02.2026;-3,00;Bäcker;Mein Name\n"
            "02.02.2026;-4,00;Metzger;Mein Name"_s,
            {u"1 -3.00 Bäcker"_s, u"1 -4.00 Metzger"_s});
        row("payer and payee",
            u"Buchungsdatum;Auftraggeber;Empfänger;Buchungsdetails;Betrag\n01.02.2026;Mein Name;Haus;Miete;-500,00\n"
            "02.02.2026;Chef;Mein Name;Lohn;900,00"_s,
            {u"1 -500.00 Haus Miete"_s, u"1 900.00 Chef Lohn"_s});
    }

    static void Texts(auto row)
    {
        row("a category is no purpose",
            u"booking_date,sender_or_recipient,booking_type,description,category,amount\n"
            "2026-02-01,Laden,Card Payment,Einkauf am Markt,shopping,\"-34,56\"\n"
            "2026-02-04,Kunde,Payment,Honorar 7,income,\"350,00\""_s,
            {u"1 -34.56 Laden Einkauf am Markt"_s, u"1 350.00 Kunde Honorar 7"_s});
        row("a purpose in many parts",
            u"Datum;Empfänger;Vwz.0;Vwz.1;Vwz.2;Vwz.3;Betrag\n01.02.2026;Laden;eins;zwei;;vier;-1,00"_s,
            {u"1 -1.00 Laden eins zwei vier"_s});
        row("a purpose in parts with other names", u"Datum;Zeile 1;Zeile 2;Betrag\n01.02.2026;eins;zwei;-1,00"_s,
            {u"1 -1.00 eins zwei"_s});
        row("numbers for all columns",
            u"Spalte1;Spalte2;Spalte3;Spalte4\n01.02.2026;Miete März;Haus;-1,00\n02.02.2026;Brot;Blum;-2,00"_s,
            {u"1 -1.00 Miete März"_s, u"1 -2.00 Brot"_s});
        row("a kind that comes again and again",
            u"Datum;Buchungstext;Mitteilung;Betrag\n01.02.2026;Kartenzahlung;Brot;-1,00\n"
            "02.02.2026;Kartenzahlung;Käse;-2,00\n03.02.2026;Kartenzahlung;Wein;-3,00\n"
            "04.02.2026;Kartenzahlung;Obst;-4,00"_s,
            {u"1 -1.00 Brot"_s, u"1 -2.00 Käse"_s, u"1 -3.00 Wein"_s, u"1 -4.00 Obst"_s});
        row("columns of the other side that are empty",
            u"Buchungsdatum;Partnername;Partner IBAN;BIC;Partner Kontonummer;Bankleitzahl;Betrag;Buchungs-Info\n"
            "01.02.2026;Haus;AT611904300234573201;;;;-5,00;Miete\n02.02.2026;Kiosk;;;;;-1,00;Eis"_s,
            {u"1 -5.00 Haus (AT611904300234573201) Miete"_s, u"1 -1.00 Kiosk Eis"_s});
        row("Austrian",
            u"Buchungsdatum;Partnername;Partner IBAN;Betrag;Währung;Buchungs-Details\n"
            "01.02.2026;Haus GmbH;AT611904300234573201;-500,00;EUR;Miete 2\n"
            "02.02.2026;Chef;AT483200000012345864;900,00;EUR;Lohn"_s,
            {u"1 -500.00 Haus GmbH (AT611904300234573201) Miete 2"_s, u"1 900.00 Chef (AT483200000012345864) Lohn"_s});
        row("the period of the report is no day",
            u"Valuation date,Date from,Date to,Booking date,Description,Amount\n"
            "30.08.2026,01.08.2026,30.08.2026,02.08.2026,a,-1.00\n30.08.2026,01.08.2026,30.08.2026,03.08.2026,b,-2.00"_s,
            {u"1 -1.00 a"_s, u"1 -2.00 b"_s});
    }

    static void Amounts(auto row)
    {
        row("what is no number",
            u"Datum;Text;Betrag\n01.02.2026;a;-1,00\n01.02.2026;b;-30;98\n01.02.2026;c;12/34\n01.02.2026;d;1:50\n"
            "01.02.2026;e;3x4\n01.02.2026;f;5 Stk\n01.02.2026;g;DE02120300000000202051\n01.02.2026;h;1234567890\n"
            "01.02.2026;i;12,-\n01.02.2026;j;-7"_s,
            {u"1 -1.00 a"_s, u"1 12.00 i"_s, u"1 -7.00 j"_s, u"left out: 3"_s, u"left out: 4"_s, u"left out: 5"_s,
             u"left out: 6"_s, u"left out: 7"_s, u"left out: 8"_s, u"left out: 9"_s});
        row("a separator inside of quotes", u"Datum;Text;Betrag\n01.02.2026;a;-1,00\n01.02.2026;b;\"-30;98\""_s,
            {u"1 -1.00 a"_s, u"left out: 3"_s});
        row("in one of the sides",
            u"Datum;Text;Soll;Haben\n01.02.2026;a;-;5,00\n01.02.2026;b;4,00;0,00\n01.02.2026;c;x1;\n"
            "01.02.2026;d;6,00;-"_s,
            {u"1 5.00 a"_s, u"1 -4.00 b"_s, u"1 -6.00 d"_s, u"left out: 4"_s});
        row("a decimal point in a column with commas",
            u"Datum;Text;Betrag\n01.02.2026;a;-1.234,00\n01.02.2026;b;-5.50\n01.02.2026;c;1'200,00 CHF"_s,
            {u"1 -1234.00 a"_s, u"1 -5.50 b"_s, u"1 1200.00 c"_s});
    }
};

TEST_CLASS(testUnseenTables, QCoreApplication)
#include "testUnseenTables.moc"
