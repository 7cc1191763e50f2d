#include "base/modAmount.h"
#include "cImportBook.h"
#include "import/stage/modStatementFormat.h"
#include "import/table/cTable.h"
#include "import/table/cTableMemory.h"
#include "import/table/modTable.h"
#include "import/table/modTableProfile.h"
#include "import/table/modTableText.h"
#include "model/modSettingKey.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString folder = QStringLiteral(TEST_DATA "/csv");

cStatementRead ReadText(const QString& text, const cReadOptions& options = {})
{
    return modTable::Read({u"a.csv"_s, {}, text}, options);
}

QString Shown(const cImportEntry& entry)
{
    return QStringList{entry.ImportAccount,
                       modDate::ToIso(entry.ImportDate),
                       modAmount::CentsToText(entry.ImportValue),
                       entry.ImportCurrency,
                       entry.ImportType,
                       entry.ImportPurpose,
                       entry.ImportBeneficiary,
                       entry.ImportBeneficiaryAccount,
                       entry.ImportBeneficiaryBLZ}
        .join(u" | "_s);
}

QString Shown(const cStatementRead& read)
{
    QStringList lines{read.Layout.isEmpty() ? u"no known layout"_s : read.Layout};
    for (const cImportEntry& entry : read.Entries) {
        lines.append(Shown(entry));
    }
    for (const cSkippedRow& row : read.Skipped) {
        lines.append(u"left out, line "_s + QString::number(row.Reason.Line) + u": "_s + row.Reason.Text);
    }
    if (read.ClosingBalance) {
        lines.append(u"balance "_s + modAmount::CentsToText(*read.ClosingBalance));
    }
    return lines.join(u'\n') + u'\n';
}

// Days, amounts and accounts: "2025-02-03 -12.00 4711".
QStringList Brief(const cStatementRead& read)
{
    return Each(read.Entries, [](const cImportEntry& entry) {
        return u"%1 %2 %3"_s.arg(modDate::ToIso(entry.ImportDate), modAmount::CentsToText(entry.ImportValue),
                                 entry.ImportAccount);
    });
}

} // namespace

class testTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void KnownLayouts_data()
    {
        const cTestRows<QString> row("file");
        const QStringList files = QDir(folder).entryList({u"*.csv"_s});
        QVERIFY(!files.isEmpty());
        for (const QString& file : files) {
            row(qPrintable(file), QDir(folder).filePath(file));
        }
    }

    // Every file has its twin that says what it means.
    void KnownLayouts()
    {
        QFETCH(QString, file);
        cReadOptions options;
        options.Account = u"4711"_s;
        const cStatementSource source = modStatementFormat::Source(file, cTestFile::Bytes(file));
        QCOMPARE(modStatementFormat::Detect(source), eStatementFormat::Csv);
        const QString expected = QString::fromUtf8(cTestFile::Bytes(file.chopped(3) + u"txt"_s));
        QCOMPARE(Shown(modTable::Read(source, options)), expected);
    }

    void EveryProfileHasItsFile()
    {
        QStringList missing = modTableProfile::Names();
        const QStringList files = QDir(folder).entryList({u"*.txt"_s});
        for (const QString& file : files) {
            missing.removeAll(QString::fromUtf8(cTestFile::Bytes(QDir(folder).filePath(file))).section(u'\n', 0, 0));
        }
        QCOMPARE(missing, QStringList());
    }

    void Detects_data()
    {
        const cTestRows<QString, QStringList> row("text", "read");
        row("header on the first line", u"Datum;Betrag;Verwendungszweck\n03.02.2025;-12,00;a\n"_s,
            {u"2025-02-03 -12.00 1"_s});
        row("lines above the header",
            u"Umsätze;;\nDatum;Betrag;Saldo\n\nDatum;Verwendungszweck;Betrag\n03.02.2025;a;5,00"_s,
            {u"2025-02-03 5.00 1"_s});
        row("empty line below the header", u"Datum;Verwendungszweck;Betrag\n\n03.02.2025;a;5,00"_s,
            {u"2025-02-03 5.00 1"_s});
        row("header in other words", u"Tag;Was;Preis\n03.02.2025;a;5,00"_s, {u"2025-02-03 5.00 1"_s});
        row("month first", u"Tag|Betrag|Text\n01/13/2026|12.5|a\n02/01/2026|-1,200.00|b"_s,
            {u"2026-01-13 12.50 1"_s, u"2026-02-01 -1200.00 1"_s});
        row("days under the name of an amount", u"Umsatz vom;Was;Soviel\n03.02.2025;a;-5,00"_s,
            {u"2025-02-03 -5.00 1"_s});
        row("no header, tabs", u"03.02.2025\ta, b\t-5,00\t95,00\n04.02.2025\tc\t6,00\t101,00"_s,
            {u"2025-02-03 -5.00 1"_s, u"2025-02-04 6.00 1"_s});
        row("debit and credit", u"Datum;Text;Soll;Haben\n03.02.2025;a;12,50;\n04.02.2025;b;;40,00"_s,
            {u"2025-02-03 -12.50 1"_s, u"2025-02-04 40.00 1"_s});
        row("two columns for the two directions, no header",
            u"03.02.2025,a,-$76.00,,$1.00\n04.02.2025,b,,+$327.49,$2.00"_s,
            {u"2025-02-03 -76.00 1"_s, u"2025-02-04 327.49 1"_s});
        row("sign in a column of its own", u"Datum;Betrag;Soll/Haben;Text\n03.02.2025;12,00;S;a\n04.02.2025;3,00;H;b"_s,
            {u"2025-02-03 -12.00 1"_s, u"2025-02-04 3.00 1"_s});
        row("points are decimals", u"Datum,Betrag,Text\n2025-02-03,-42.0,a\n2025-02-04,1234.56,b"_s,
            {u"2025-02-03 -42.00 1"_s, u"2025-02-04 1234.56 1"_s});
        row("amount in another currency is not the amount",
            u"Datum;Text;Betrag;Betrag (Fremdwährung)\n03.02.2025;a;-9,00;-10,00"_s, {u"2025-02-03 -9.00 1"_s});
        row("own account in a column", u"Auftragskonto;Datum;Empfänger;Betrag\n000123456;03.02.2025;a;5,00"_s,
            {u"2025-02-03 5.00 123456"_s});
        row("own account above", u"Konto;DE02 1203 0000 0000 2020 51 / Giro\nDatum;Betrag;Text\n03.02.2025;5,00;a"_s,
            {u"2025-02-03 5.00 DE02120300000000202051"_s});
        row("a first row without a day", u"Umsatz;;\nDatum;Text;Betrag\noffen;a;1,00\n03.02.2025;b;5,00"_s,
            {u"2025-02-03 5.00 1"_s});
        row("months as words", u"Datum;Text;Betrag\n3. März 2025;a;5,00\n30 Jun 2025;b;6,00"_s,
            {u"2025-03-03 5.00 1"_s, u"2025-06-30 6.00 1"_s});
        row("own account protected and beside another number",
            u"Kontonummer / IBAN:;'47.11' / 'DE02 1203 0000 0000 2020 51'\nDatum;Betrag;Text\n03.02.2025;5,00;a"_s,
            {u"2025-02-03 5.00 DE02120300000000202051"_s});
        row("own account as a formula, in stars, masked",
            u"Kontonummer;Buchungsdatum;Valuta;Verwendungszweck;Betrag;Waehrung\n"
            "=\"0123456789\";1.2.25;03.02.2025;a;5,00;EUR\n*123456789*;1.2.25;03.02.2025;a;6,00;EUR\n"
            "4711 **** 1234;1.2.25;03.02.2025;a;7,00;EUR"_s,
            {u"2025-02-03 5.00 123456789"_s, u"2025-02-03 6.00 123456789"_s, u"2025-02-03 7.00 4711****1234"_s});
        row("whole lines in quotes",
            u"\"Datum;Text;Betrag\"\n\"03.02.2025;\"\"a;b\"\";5,00\";;\n\"04.02.2025;c;6,00\"\n"_s,
            {u"2025-02-03 5.00 1"_s, u"2025-02-04 6.00 1"_s});
        row("no such day", u"Datum;Betrag;Text\n28.02.2025;4,00;a\n30.02.2025;5,00;a"_s,
            {u"2025-02-28 4.00 1"_s, u"1001-01-01 5.00 1"_s});
    }

    void Detects()
    {
        QFETCH(QString, text);
        cReadOptions options;
        options.Account = u"1"_s;
        QTEST(Brief(ReadText(text, options)), "read");
    }

    void States_data()
    {
        QTest::addColumn<QString>("header");
        QTest::addColumn<QString>("cell"); // of the second row in the last column
        QTest::addColumn<int>("kind");     // -1: it is taken
        QTest::addColumn<int>("problems");
        constexpr int pending = static_cast<int>(eSkipped::Pending);
        constexpr int called = static_cast<int>(eSkipped::Void);
        const auto row = [](const char16_t* header, const char16_t* cell, int kind, int problems = 0) {
            QTest::newRow(qPrintable(QString::fromUtf16(cell) + u" as "_s + QString::fromUtf16(header)))
                << QString::fromUtf16(header) << QString::fromUtf16(cell) << kind << problems;
        };
        row(u"Status", u"Umsatz vorgemerkt", pending);
        row(u"Info", u"Umsatz vorgemerkt", pending);
        row(u"State", u"PENDING", pending);
        row(u"Status", u"noch nicht gebucht", pending);
        row(u"Status", u"REVERTED", called);
        row(u"Status", u"DECLINED", called);
        row(u"Status", u"FAILED", called);
        row(u"Status", u"RÜCKGÄNGIG GEMACHT", called);
        row(u"Status", u"Storniert", called);
        row(u"Zustand", u"Storniert", called); // no column for states, but the word means nothing else
        row(u"Stand", u"Umsatz vorgemerkt", pending);
        row(u"Kategorie", u"Offen", -1);
        row(u"Status", u"ABGESCHLOSSEN", -1);
        row(u"Status", u"Umsatz gebucht", -1);
        row(u"Status", u"", -1);
        row(u"Status", u"Sonderfall", -1, 1); // nobody knows: taken, and said
    }

    void States()
    {
        QFETCH(QString, header);
        QFETCH(QString, cell);
        QFETCH(int, kind);
        const cStatementRead read = ReadText(u"Datum;Verwendungszweck;Betrag;"_s + header
                                             + u"\n01.02.2025;a;-1,00;gebucht\n02.02.2025;b;-2,00;"_s + cell + u'\n');
        QCOMPARE(read.Entries.size(), kind < 0 ? 2 : 1);
        QCOMPARE(read.Skipped.isEmpty() ? -1 : static_cast<int>(read.Skipped.first().Kind), kind);
        QCOMPARE(read.Skipped.isEmpty() ? -200 : read.Skipped.first().Entry.ImportValue, -200);
        QTEST(static_cast<int>(read.Problems.size()), "problems");
    }

    void Fees_data()
    {
        // value: of the second row
        const cTestRows<QString, qint64, int> row("rows", "value", "problems");
        row("beside the amount", u"1;10,00;0;10,00|2;-2,00;0,50;7,50"_s, -250, 1);
        row("beside, with a sign, newest first", u"3;1,00;0;8,50|2;-2,00;-0,50;7,50|1;10,00;;10,00"_s, -250, 1);
        row("in the amount", u"1;10,00;0;10,00|2;-2,00;0,50;8,00"_s, -200, 0);
        row("nothing tells", u"1;10,00;0;|2;-2,00;0,50;"_s, -200, 1);
        row("never any", u"1;10,00;0;|2;-2,00;0,00;"_s, -200, 0);
    }

    void Fees()
    {
        QFETCH(QString, rows);
        QString text = u"Datum;Betrag;Gebühr;Saldo;Text\n"_s;
        for (const QString& row : rows.split(u'|')) {
            text += u'0' + row.section(u';', 0, 0) + u".02.2025;"_s + row.section(u';', 1) + u";a\n"_s;
        }
        const cStatementRead read = ReadText(text);
        QTEST(read.Entries.value(1).ImportValue, "value");
        QTEST(static_cast<int>(read.Problems.size()), "problems");
    }

    // What a spreadsheet or the bank broke is put right and said, or left out with the reason.
    void Mends_data()
    {
        const cTestRows<QString, QString, int> row("rows", "read", "told");
        row("semicolon for the comma", u"03.02.2025;A;x;\"-30;9\";EUR|04.02.2025;B;y;-15;EUR"_s,
            u"-30.90 A x, -15.00 B y"_s, 1);
        row("a field is missing", u"03.02.2025;A;x;-1,00;EUR|04.02.2025;Rente;2.647,74;EUR"_s,
            u"-1.00 A x, 2647.74  Rente"_s, 1);
        row("a field too many", u"03.02.2025;A;x;-1,00;EUR|04.02.2025;B;y; z;-2,00;EUR"_s, u"-1.00 A x, -2.00 B y z"_s,
            1);
        row("a text that goes on", u"03.02.2025;A;x;-1,00;EUR|;;more;;|04.02.2025;B;y;-2,00;EUR"_s,
            u"-1.00 A x more, -2.00 B y"_s, 1);
        row("a sum without a day", u"03.02.2025;A;x;-1,00;EUR|Summe;;;-1,00;EUR"_s, u"-1.00 A x"_s, 1);
        row("a sum with a day", u"03.02.2025;A;x;-1,00;EUR|04.02.2025;B;y;-2,00;EUR|05.02.2025;Summe;;-3,00;EUR"_s,
            u"-1.00 A x, -2.00 B y"_s, 1);
        row("no transaction at all", u""_s, u""_s, 1);
        row("a shop called like a sum",
            u"03.02.2025;A;x;-1,00;EUR|04.02.2025;B;y;-2,00;EUR|05.02.2025;Total;Diesel;-30,00;EUR"_s,
            u"-1.00 A x, -2.00 B y, -30.00 Total Diesel"_s, 0);
    }

    void Mends()
    {
        QFETCH(QString, rows);
        const cStatementRead read =
            ReadText(u"Datum;Empfänger;Verwendungszweck;Betrag;Währung\n"_s + rows.replace(u'|', u'\n'));
        const auto shown = [](const cImportEntry& entry) {
            return QStringList{modAmount::CentsToText(entry.ImportValue), entry.ImportBeneficiary, entry.ImportPurpose}
                .join(u' ');
        };
        QTEST(Each(read.Entries, shown).join(u", "_s), "read");
        QTEST(static_cast<int>(read.Problems.size() + read.Skipped.size()), "told");
    }

    void NumbersThatASpreadsheetLost()
    {
        const cStatementRead read = ReadText(
            u"Auftragskonto;Buchungstag;Valutadatum;Buchungstext;Verwendungszweck;Beguenstigter/Zahlungspflichtiger;"
            "Kontonummer;BLZ;Betrag;Waehrung;Info\n"
            "DE02120300000000202051;03.02.25;03.02.25;x;y;a;1,23457E+21;;-1,00;EUR;\n"
            "DE02120300000000202051;04.02.25;04.02.25;x;y;b;4711;;-2,00;EUR;\n"
            "'DE02120300000000202051';04.02.25;04.02.25;x;y;b;4711;;-2,50;EUR;\n"
            "DE021203000000002020510;05.02.25;05.02.25;x;y;c;4712;;-3,00;EUR;\n"_s);
        QCOMPARE(read.Entries.value(0).ImportBeneficiaryAccount, QString());
        QCOMPARE(read.Entries.value(2).ImportAccount, u"DE02120300000000202051"_s);
        QCOMPARE(read.Entries.value(3).ImportAccount, u"DE02120300000000202051"_s);
        QCOMPARE(read.Problems.size(), 2);
    }

    void Sections_data()
    {
        // middle: between the two parts
        const cTestRows<QString, QStringList, int> row("middle", "read", "told");
        const QString first = u"2025-02-03 -1.00 1"_s;
        row("another account by its title",
            u"Summe;;;-1,00\n\nUmsätze Visa-Karte\nNeuer Kontostand;5,00 EUR\n\nBuchungstag;Umsatztag;Text;Betrag\n"_s,
            {first, u"2025-02-05 -2.00 Visa-Karte"_s}, 2);
        row("another account by its number, the same columns",
            u"\nTagesgeldkonto;DE02120300000000202051\nBuchungstag;Wertstellung;Text;Betrag\n"_s,
            {first, u"2025-02-04 -2.00 DE02120300000000202051"_s}, 1);
        row("the next page", u"Buchungstag;Wertstellung;Text;Betrag\n"_s, {first, u"2025-02-04 -2.00 1"_s}, 0);
    }

    void Sections()
    {
        QFETCH(QString, middle);
        cReadOptions options;
        options.Account = u"1"_s;
        const cStatementRead read =
            ReadText(u"Umsätze Girokonto\nBuchungstag;Wertstellung;Text;Betrag\n03.02.2025;03.02.2025;a;-1,00\n"_s
                         + middle + u"05.02.2025;04.02.2025;b;-2,00\n"_s,
                     options);
        QTEST(Brief(read), "read");
        QTEST(static_cast<int>(read.Problems.size() + read.Skipped.size()), "told");
    }

    // Columns count by their names; what nearly is a known layout must not become another bank's.
    void NearlyKnown_data()
    {
        const cTestRows<QString, QString> row("header", "layout");
        row("other capitals",
            u"BUCHUNG;Valuta;Sender / empfänger;IBAN / Konto-Nr.;BIC / BLZ;Buchungstext;"
            "Verwendungszweck;Betrag in EUR"_s,
            u"Consorsbank"_s);
        row("another order",
            u"Betrag in EUR;Buchung;Valuta;Sender / Empfänger;IBAN / Konto-Nr.;BIC / BLZ;"
            "Verwendungszweck;Buchungstext"_s,
            u"Consorsbank"_s);
        row("one missing, one new",
            u"Buchung;Valuta;Sender / Empfänger;IBAN / Konto-Nr.;Buchungstext;"
            "Verwendungszweck;Notiz;Betrag in EUR"_s,
            u"Consorsbank"_s);
        row("the new one is to be read",
            u"Buchung;Valuta;Sender / Empfänger;IBAN / Konto-Nr.;BIC / BLZ;Buchungstext;"
            "Verwendungszweck;Kontonummer;Betrag in EUR"_s,
            QString());
        row("a needed one is missing",
            u"Buchung;Valuta;IBAN / Konto-Nr.;BIC / BLZ;Buchungstext;Verwendungszweck;Betrag in EUR"_s, QString());
        row("few in common", u"Buchung;Valuta;Verwendungszweck;Betrag in EUR"_s, QString());
    }

    void NearlyKnown()
    {
        QFETCH(QString, header);
        cTableLayout layout;
        (void)modTableProfile::Apply(header.split(u';'), layout);
        QTEST(layout.Profile, "layout");
        QCOMPARE(layout.Map.Amount < 0, layout.Profile.isEmpty());
    }

    // The names of a bank over the columns of another one.
    void KnownNamesOverOtherContents()
    {
        const cStatementRead read = ReadText(u"Datum;Bedrag;Rekening;Tegenrekening;Naam;Omschrijving\n"
                                             "Brot;03.02.2025;a;b;c;-5,00\nKuchen;04.02.2025;a;b;c;-6,00\n"_s);
        QCOMPARE(read.Layout, QString());
        QVERIFY(read.IsGuessed || !read.Refusal.isEmpty());
    }

    void LeavesOutWhatIsNoBooking()
    {
        const cStatementRead read = ReadText(u"Konto;98765;;\nBuchungstag;Wertstellung;Text;Betrag;Status\n"
                                             "01.02.2025;01.02.2025;a;-1,00;gebucht\n"
                                             "02.02.2025;02.02.2025;b;-2,00;Vorgemerkt\n"
                                             ";02.02.2025;c;-3,00;\n"
                                             "offen;;d;-4,00;\n"
                                             "Summe;;;\n"
                                             "03.02.2025;03.02.2025;Alter Saldo;101,00;\n"
                                             "03.02.2025;03.02.2025;Neuer Saldo:;100,00;\n"
                                             "x;y\n"
                                             ";;;;\n"_s);
        QCOMPARE(Brief(read), QStringList(u"2025-02-01 -1.00 98765"_s));
        QCOMPARE(Each(read.Skipped, &cSkippedRow::Kind),
                 QList<eSkipped>({eSkipped::Pending, eSkipped::Pending, eSkipped::Pending, eSkipped::Unreadable,
                                  eSkipped::Balance, eSkipped::Balance, eSkipped::Unreadable}));
        QCOMPARE(Each(read.Skipped, [](const cSkippedRow& row) { return row.Reason.Line; }),
                 QList<int>({4, 5, 6, 7, 8, 9, 10}));
        QCOMPARE(read.Skipped.first().Entry.ImportValue, -200);
        QCOMPARE(read.ClosingBalance, std::optional<qint64>(10000));
    }

    void ChoiceOfTheUserGoesFirst()
    {
        const QString text = u"Datum;Betrag;Preis;Text\n02/03/2025;1,00;2,500;a"_s;
        cReadOptions options;
        options.Table.Account = u"77"_s;
        options.Table.Date = eDateOrder::MonthDayYear;
        options.Table.Number = eNumberFormat::English;
        options.Table.Sign = eSignRule::Negated;
        options.Table.HeaderLine = 1;
        cColumnMap map;
        map.Date = 0;
        map.Amount = 2;
        options.Table.Map = map;
        QCOMPARE(Brief(ReadText(text, options)), QStringList(u"2025-02-03 -2500.00 77"_s));
        options.Table = {};
        options.Table.HeaderLine = 0;
        options.Table.Separator = u'|';
        QCOMPARE(Brief(ReadText(u"03.02.2025|1,00|x"_s, options)), QStringList(u"2025-02-03 1.00 "_s));
    }

    void AccountIsAskedFor()
    {
        const QString text = u"Datum;Betrag;Text\n03.02.2025;-5,00;a"_s;
        cImportBook book;
        cTableMemory memory(*book.Settings);
        cStatementImport import(book.Data, book.Hive, &memory);
        cNoProgress progress;
        const cImportResult asked = import.ImportSource({u"a.csv"_s, {}, text}, {}, progress);
        QVERIFY(asked.IsRefused && asked.NeedsAccount);
        QCOMPARE(asked.Message, u"Es muss eine Kontonummer eingegeben werden, um die Daten einem Konto zuzuordnen."_s);
        QVERIFY(book.Data.GetImportEntries().isEmpty());
        cImportOptions options;
        options.DefaultAccount = u"4711"_s;
        QCOMPARE(import.ImportSource({u"a.csv"_s, {}, text}, options, progress).Accounts, QStringList(u"4711"_s));
        QVERIFY(memory.SaveAccount(asked.AccountKey, u"4711"_s));
        QCOMPARE(import.ImportSource({u"a.csv"_s, {}, text}, {}, progress).Duplicates.size(), 1);
        // A second account with the same layout: which one it is can no longer be told.
        QVERIFY(memory.SaveAccount(asked.AccountKey, u"4712"_s));
        QVERIFY(import.ImportSource({u"a.csv"_s, {}, text}, {}, progress).NeedsAccount);
        QCOMPARE(memory.Accounts(asked.AccountKey), QStringList({u"4711"_s, u"4712"_s}));
    }

    void SignIsRememberedForTheAccount_data()
    {
        // Files in their order, as in the test: "O" is an open one with the answer that it is the other way round, "/"
        // goes to another account, "|" to other column names, "m" remembers the columns of the file before it. "?":
        // asked, "-": turned round.
        const cTestRows<QString, QString> row("files", "read");
        row("answered, usual, open", u"oOuo"_s, u"?---"_s);
        row("answered, open, usual", u"Oou"_s, u"---"_s);
        row("usual, answered, open", u"uoOo"_s, u"+?--"_s);
        row("answered for a usual one", u"Uo"_s, u"--"_s);
        row("balances, usual, open", u"puo"_s, u"---"_s);
        row("usual, balances, open", u"upo"_s, u"+--"_s);
        row("open, usual, balances", u"oupo"_s, u"?+--"_s);
        row("totals", u"toqo"_s, u"--++"_s);
        row("words", u"qoupo"_s, u"+++--"_s);
        row("proved, then answered", u"pAuo"_s, u"-+++"_s);
        row("answered, then proved", u"Oquo"_s, u"-+++"_s);
        row("a single word is no proof", u"woOwo"_s, u"+?---"_s);
        row("of another account", u"Ou/uo"_s, u"--+?"_s);
        row("of other columns", u"Ou|uo"_s, u"--+?"_s);
        row("columns of a usual one", u"OumuOo"_s, u"-----"_s);
        row("columns of an open one", u"OomuoA/uo"_s, u"----++?"_s);
        row("columns before any answer", u"umuoOo"_s, u"++?--"_s);
        row("columns of a proved one", u"pmu/o"_s, u"---"_s);
    }

    void SignIsRememberedForTheAccount()
    {
        const QHash<QChar, QStringList> contents = {
            {u'o', {u"{}Hof;24,93;"_s, u"{}Kunz;2,00;"_s}},
            {u'u', {u"{}Hof;24,93;"_s, u"{}Kunz;-8,00;"_s, u"{}Weber;12,99;"_s}},
            {u'w', {u"{}Gehalt;24,93;"_s, u"{}Kunz;-8,00;"_s}},
            {u'p', {u"{}Hof;5,00;995,00"_s, u"[]Hof;10,00;985,00"_s}},
            {u't',
             {u"{}Hof;5,00;"_s, u"{}Hof;-3,00;"_s, u"{}Kunz;9,00;"_s, u"Alter Kontostand;;100,00;"_s,
              u"Neuer Kontostand;;89,00;"_s}},
            {u'q', {u"{}Gutschrift;5,00;"_s, u"{}Lastschrift;-9,00;"_s}},
        };
        QFETCH(const QString, files);
        cImportBook book;
        cTableMemory memory(*book.Settings);
        cStatementImport import(book.Data, book.Hive, &memory);
        cNoProgress progress;
        cImportOptions options;
        options.DefaultAccount = u"4711"_s;
        QString head = u"Datum;Zweck;Betrag;Saldo\n"_s;
        QDate day(2025, 1, 1);
        QString read;
        QString text;
        for (const QChar file : files) {
            if (file == u'm') {
                cReadOptions plain;
                plain.Account = options.DefaultAccount;
                plain.Memory = &memory;
                const cStatementSource source{u"a.csv"_s, {}, text};
                QVERIFY(modTable::Remember(source, {}, modTable::Open(source, plain).Layout, memory));
            }
            options.DefaultAccount = file == u'/' ? u"4712"_s : options.DefaultAccount;
            head = file == u'|' ? u"Datum;Text;Betrag;Saldo\n"_s : head;
            const QStringList lines = contents.value(file == u'A' ? u'o' : file.toLower());
            if (lines.isEmpty()) {
                continue;
            }
            options.Table.Sign =
                file.isLower() ? std::nullopt : std::optional(file == u'A' ? eSignRule::AsWritten : eSignRule::Negated);
            day = day.addMonths(1);
            text = head
                + lines.join(u'\n')
                      .replace(u"{}"_s, day.toString(u"dd.MM.yyyy;"_s))
                      .replace(u"[]"_s, day.addDays(1).toString(u"dd.MM.yyyy;"_s));
            const cImportResult result = import.ImportSource({u"a.csv"_s, {}, text}, options, progress);
            const cImportEntryList staged = book.Data.GetImportEntries();
            const auto first = std::find_if(staged.begin(), staged.end(),
                                            [&](const cImportEntry& entry) { return entry.ImportDate == day; });
            QCOMPARE(result.Doubt.has_value(), first == staged.end());
            read += result.Doubt ? u'?' : first->ImportValue > 0 ? u'+' : u'-';
        }
        QTEST(read, "read");
    }

    void ConfirmedColumnsAreRemembered()
    {
        const QString text = u"Datum;Betrag;Preis;Text\n03.02.2025;1,00;2,00;a"_s;
        cImportBook book;
        cTableMemory memory(*book.Settings);
        cReadOptions options;
        options.Account = u"1"_s;
        options.Memory = &memory;
        cTableLayout layout = modTable::Open({u"a.csv"_s, {}, text}, options).Layout;
        QCOMPARE(Brief(ReadText(text, options)), QStringList(u"2025-02-03 1.00 1"_s));
        layout.Map.Amount = 2;
        layout.Sign = eSignRule::Negated;
        layout.Doubt.reset(); // as answered
        layout.IsSignUsual = false;
        QVERIFY(memory.SaveMap(layout.Key, layout));
        QCOMPARE(Brief(ReadText(text, options)), QStringList(u"2025-02-03 -2.00 1"_s));
        cTableLayout loaded = modTable::Open({u"a.csv"_s, {}, text}, options).Layout;
        QCOMPARE(loaded.Origin, eMapOrigin::Memory);
        QCOMPARE(loaded.Map, layout.Map);
        QVERIFY(book.Settings->Set(modSettingKey::TableMap.Of(layout.Key),
                                   u"4;9;9;9;9;x"_s)); // damaged: as if it were not there
        QCOMPARE(Brief(ReadText(text, options)), QStringList(u"2025-02-03 1.00 1"_s));
    }

    void TablesOfOtherReaders()
    {
        cTable table;
        table.AddRow(1);
        table.AddCell(u"Konto: 1");
        table.AddRow(2);
        for (const QStringView cell : {u"Datum", u"Verwendungszweck", u"Betrag"}) {
            table.AddCell(cell);
        }
        table.AddRow(3);
        for (const QStringView cell : {u"2025-02-03", u" a;\tb ", u"-1234,5"}) {
            table.AddCell(cell);
        }
        cReadOptions options;
        options.Account = u"1"_s;
        const cStatementRead read = modTable::ReadRows(table, modTable::Detect(table, options), options);
        QCOMPARE(Brief(read), QStringList(u"2025-02-03 -1234.50 1"_s));
        QCOMPARE(read.Entries.first().ImportPurpose, u"a b"_s);
    }

    // Also where something else was said about its columns.
    void ReadsTableOfThisProgram()
    {
        cReadOptions options;
        options.Table.Map.emplace();
        options.Table.Map->Date = 1;
        options.Table.Map->Amount = 8;
        const cStatementRead read =
            ReadText(u"Gruppe;Datum;Buchungsart;Kategorie;Konto;Zielkonto;Beschreibung;Bezahlt von;Betrag\n"
                     ";02.01.2026;Umbuchung;\"Geldanlage; Sparen\";Giro;Tagesgeld;'-5 %;Anna;850,00\n"
                     ";03.01.2026;Umbuchung;;Giro;;ohne Ziel;;850,00\n"
                     ";04.01.2026;Ausgabe;Auto;Giro;;O'Brien - Öl;;-5,00\n"
                     ";;;;;;;Summe;850,00\n"_s,
                     options);
        QCOMPARE(
            Brief(read),
            QStringList({u"2026-01-02 -850.00 Giro"_s, u"2026-01-02 850.00 Tagesgeld"_s, u"2026-01-04 -5.00 Giro"_s}));
        QCOMPARE(read.Entries.constLast().ImportPurpose, u"O'Brien - Öl"_s);
        QCOMPARE(read.Entries.constFirst().ImportType,
                 u"Umbuchung: Tagesgeld; Kategorie: Geldanlage; Sparen; Bezahlt von: Anna"_s);
        QCOMPARE(read.Entries.constFirst().ImportBeneficiary, u"-5 %"_s);
        QCOMPARE(read.Skipped.value(0).Reason.Line, 3);
    }

    void KindsOfABankAreNoBook()
    {
        const cStatementRead read = ReadText(u"Datum;Buchungsart;Kategorie;Konto;Beschreibung;Betrag\n"
                                             "02.01.2026;Lastschrift;;Giro;Strom;-8,00\n"_s);
        QVERIFY(!read.IsBook);
        QCOMPARE(Brief(read).size(), 1);
    }

    // It would go before what the user has taught.
    void GuessOfABankIsNoCategory()
    {
        const cStatementRead read =
            ReadText(u"Datum;Kategorie;Verwendungszweck;Betrag\n03.02.2026;Auto: Benzin;a;-5,00\n"_s);
        QCOMPARE(read.Entries.value(0).ImportType, QString());
    }

    void RefusesWhatIsNoTable()
    {
        for (const QString& text : {QString(), u"Hallo"_s, u"a;b;c\nd;e;f\n"_s, u"\n\n;;;\n"_s}) {
            const cStatementRead read = ReadText(text);
            QVERIFY(!read.Refusal.isEmpty() && read.Entries.isEmpty());
        }
    }

    void EndlessRowsAreCut()
    {
        const cTable table = modTableText::Split(u"a"_s + QString(1000, u';') + u"\n1;\"2\n3\";4\n"_s, u';', 0);
        QCOMPARE(table.CellCount(0), cTable::mostColumns);
        QCOMPARE(table.Row(1), QStringList({u"1"_s, u"2 3"_s, u"4"_s}));
    }
};

TEST_CLASS(testTable, QCoreApplication)
#include "testTable.moc"
