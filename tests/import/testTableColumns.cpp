#include "base/modAmount.h"
#include "import/cell/modCell.h"
#include "import/cell/modTableValue.h"
#include "import/table/modColumnWords.h"
#include "import/table/modTablePurpose.h"
#include "import/table/modTableText.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// "date=1 amount=6": what is set, in a fixed order.
QString Shown(const cColumnMap& map)
{
    const QList<std::pair<QString, int>> fields = {
        {u"date"_s, map.Date},         {u"text"_s, map.Text},       {u"purpose"_s, map.Purpose[0]},
        {u"p2"_s, map.Purpose[1]},     {u"p3"_s, map.Purpose[2]},   {u"name"_s, map.Name},
        {u"account"_s, map.Account},   {u"bank"_s, map.BankCode},   {u"name2"_s, map.Name2},
        {u"account2"_s, map.Account2}, {u"bank2"_s, map.BankCode2}, {u"amount"_s, map.Amount},
        {u"debit"_s, map.Debit},       {u"credit"_s, map.Credit},   {u"currency"_s, map.Currency}};
    QStringList shown;
    for (const auto& [name, column] : fields) {
        if (column >= 0) {
            shown.append(name + u'=' + QString::number(column));
        }
    }
    return shown.join(u' ');
}

} // namespace

class testTableColumns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void WordsOfTheHeader_data()
    {
        const cTestRows<QString, QString> row("header", "map");
        row("value day replaces booking day, Währung is not told",
            u"Buchungstag;Valuta;Auftraggeber/Empfänger;Kontonummer;BLZ;Verwendungszweck;Betrag;Währung"_s,
            u"date=1 purpose=5 name=2 account=3 bank=4 amount=6"_s);
        row("Konto alone is not told", u"Datum;Konto;Betrag"_s, u"date=0 amount=2"_s);
        row("first of the days by 'Datum'", u"Datum;Wertstellungsdatum;Betrag"_s, u"date=0 amount=2"_s);
        row("any letter case", u"bUCHUNGSTAG;BETRAG eur"_s, u"date=0 amount=1"_s);
        row("text without purpose becomes the purpose", u"Datum;Buchungstext;Betrag"_s, u"date=0 purpose=1 amount=2"_s);
        row("text beside a purpose", u"Datum;Buchungstext;Verwendungszweck;Betrag"_s,
            u"date=0 text=1 purpose=2 amount=3"_s);
        row("three lines of purpose", u"Datum;VWZ1;VWZ2;VWZ3;Betrag"_s, u"date=0 purpose=1 p2=2 p3=3 amount=4"_s);
        row("debit and credit", u"Datum;Soll;Haben"_s, u"date=0 debit=1 credit=2"_s);
        row("Gutschrift counts as debit, Belastung as credit", u"Datum;Gutschrift;Belastung"_s,
            u"date=0 debit=1 credit=2"_s);
        row("later amount replaces", u"Datum;Betrag;Umsatz"_s, u"date=0 amount=2"_s);
        row("Soll/Haben does not", u"Datum;Betrag;Soll/Haben"_s, u"date=0 amount=1"_s);
        row("nor a currency", u"Datum;Betrag;Umsatz Währung"_s, u"date=0 amount=1"_s);
        row("who made it is no amount", u"Umsatz getätigt von;Belegdatum;Betrag"_s, u"date=1 amount=2"_s);
        row("'buchung' counts in the first column only", u"Buchungszeit;Buchungszeit;Betrag"_s, u"date=0 amount=2"_s);
        row("one name: the first account is the owner's",
            u"Datum;Kontonummer;BLZ;Empfänger;Kontonummer 2;BLZ/BIC;Betrag"_s,
            u"date=0 name=3 account=4 bank=5 account2=1 bank2=2 amount=6"_s);
        row("two names: nothing is swapped", u"Datum;Empfänger 1;Kontonummer 1;Empfänger 2;Kontonummer 2;Betrag"_s,
            u"date=0 name=1 account=2 name2=3 account2=4 amount=5"_s);
        row("without a name all are names", u"Datum;Kontonummer;BLZ;Betrag"_s, u"date=0 name=1 amount=3"_s);
        row("counter account by its own columns",
            u"Datum;Kontonummer;Name;Gegenkonto;Gegenkonto BLZ;Gegenkonto Inhaber;Betrag"_s,
            u"date=0 name=5 account=3 bank=4 bank2=1 amount=6"_s);
        row("Dutch", u"Datum;Tegenrekening;Bedrag (EUR);MutatieSoort;Mededelingen"_s,
            u"date=0 text=3 purpose=4 name=1 amount=2"_s);
    }

    void WordsOfTheHeader()
    {
        QFETCH(QString, header);
        const cColumnMap map = modColumnWords::Detect(header.split(u';'));
        QCOMPARE(map.ColumnCount, header.count(u';') + 1);
        QTEST(Shown(map), "map");
    }

    void Wildcards_data()
    {
        const cTestRows<QString, QString, bool> row("name", "list", "isMatch");
        row("whole name", u"Umsatz"_s, u"Betrag|umsatz"_s, true);
        row("not a part", u"Umsatzart"_s, u"Umsatz"_s, false);
        row("star", u"Mein Umsatz heute"_s, u"*umsatz*"_s, true);
        row("class", u"Ab"_s, u"A[xb-c]"_s, true);
        row("empty alternative", {}, u"A|"_s, true);
    }

    void Wildcards()
    {
        QFETCH(QString, name);
        QFETCH(QString, list);
        QTEST(modCell::MatchesList(name, list), "isMatch");
    }

    void Separators()
    {
        QCOMPARE(modTableText::SeparatorOf(u"a,b;c\td"), QChar(u';'));
        QCOMPARE(modTableText::SeparatorOf(u"a,b\tc"), QChar(u','));
        QCOMPARE(modTableText::SeparatorOf(u"a\tb"), QChar(u'\t'));
        QCOMPARE(modTableText::SeparatorOf(u"a"), QChar(u'\t'));
    }

    void Splits_data()
    {
        // rows: cells joined by "|"
        const cTestRows<QString, QStringList> row("text", "rows");
        row("line ends", u"a;b\r\nc\nd;\re"_s, {u"a|b"_s, u"c"_s, u"d|"_s, u"e"_s});
        row("blanks and quotes go", u" a ; \"b\" ;\" c \""_s, {u"a|b|c"_s});
        row("separator, break and doubled quote inside", u"\"a;b\nc\"\"d\"\"e\";f\ng"_s, {u"a;b c\"d\"e|f"_s, u"g"_s});
        row("breaks and the blanks around them are one blank", u"\"Max \r\n\r\n Muster\n\";b"_s, {u"Max Muster|b"_s});
        row("protected from being a number", u"=\"0042\";\"=\"\"0043\"\"\";=b"_s, {u"0042|0043|=b"_s});
        row("quote in the middle is a letter", u"a\"b;c\"\nd"_s, {u"a\"b|c\""_s, u"d"_s});
        row("inner quotes that nobody doubled", u"\"Hotel \"Sonne\" Ulm\";b"_s, {u"Hotel \"Sonne\" Ulm|b"_s});
        row("quote without end", u"\"a;b\nc;d"_s, {u"\"a|b"_s, u"c|d"_s});
        row("empty fields", u"\"\";;\"\"\n;"_s, {u"||"_s, u"|"_s});
        row("tabs inside become blanks", u"\"a\tb\";c"_s, {u"a b|c"_s});
        row("empty lines stay rows", u"a\n\nb"_s, {u"a"_s, QString(), u"b"_s});
    }

    void Splits()
    {
        QFETCH(QString, text);
        const cTable table = modTableText::Split(text, u';', 0);
        QStringList rows;
        for (int row = 0; row < table.RowCount(); ++row) {
            rows.append(table.Row(row).join(u'|'));
        }
        QTEST(rows, "rows");
    }

    void LinesAboveTheHeaderStandForThemselves()
    {
        QCOMPARE(modTableText::Split(u"a;b\rc,d\r1,2"_s, u',', 2).Row(0), QStringList({u"a"_s, u"b"_s}));
        const cTable table = modTableText::Split(u"\"offen;x\nKonto;1\na,b\n\"1\n2\",3\n4"_s, u',', 2);
        QCOMPARE(table.RowCount(), 5);
        QCOMPARE(table.Row(1), QStringList({u"Konto"_s, u"1"_s}));
        QCOMPARE(table.Row(3), QStringList({u"1 2"_s, u"3"_s}));
        QCOMPARE(table.Line(4), 6);
    }

    // Beyond the three that a map has place for, parts of a text need not be mapped.
    void PartsOfAPurpose()
    {
        cColumnMap map;
        map.Names = {u"VWZ1"_s, u"VWZ2"_s, u"VWZ3"_s, u"VWZ4"_s};
        map.Purpose = {2, 0, -1};
        QCOMPARE(modTablePurpose::Columns(map), QList<int>({2, 0}));
        map.Purpose = {0, 1, 2};
        QCOMPARE(modTablePurpose::Columns(map), QList<int>({0, 1, 2, 3}));
        map.Name = 3;
        QCOMPARE(modTablePurpose::Columns(map), QList<int>({0, 1, 2}));
    }

    void Purposes_data()
    {
        const cTestRows<QString, QString> row("joined", "purpose");
        row("signs become blanks", u"a;b\"c\""_s, u"a b c"_s);
        row("doubled blanks", u"a    b"_s, u"a b"_s);
        row("line breaks", u"a<BR><BR>b"_s, u"a\nb"_s);
        row("SEPA", u"EREF+1SVWZ+MieteABWA+Otto"_s, u"Miete (Otto)"_s);
    }

    void Purposes()
    {
        QFETCH(QString, joined);
        QTEST(modTablePurpose::Clean(joined), "purpose");
    }

    void Dates_data()
    {
        const cTestRows<QString, QDate> row("cell", "date");
        row("German", u"03.02.2025"_s, QDate(2025, 2, 3));
        row("short", u"3.2.25"_s, QDate(2025, 2, 3));
        row("two-digit years are of this century", u"01.01.99"_s, QDate(2099, 1, 1));
        row("other signs", u"03-02/2025"_s, QDate(2025, 2, 3));
        row("year first", u"2025-02-03"_s, QDate(2025, 2, 3));
        row("digits alone", u"20250203"_s, QDate(2025, 2, 3));
        row("with time", u"03.02.2025 14:30:59"_s, QDate(2025, 2, 3));
        row("with time and zone", u"2025-02-03T14:30:00+01:00"_s, QDate(2025, 2, 3));
        row("with letters", u"Mo. 03.02.2025"_s, QDate(2025, 2, 3));
        row("month as a word", u"30 Jun 2023"_s, QDate(2023, 6, 30));
        row("German month", u"3. März 2024"_s, QDate(2024, 3, 3));
        row("shortened, with point and time", u"05. Okt. 24, 14:30"_s, QDate(2024, 10, 5));
        row("month before day", u"September 5, 2024"_s, QDate(2024, 9, 5));
        row("strokes and capitals", u"07-MAI-2024"_s, QDate(2024, 5, 7));
        row("weekday in front", u"Do., 1. Februar 2024"_s, QDate(2024, 2, 1));
        row("no month", u"3 Stk 2024"_s, {});
        row("month without such a day", u"31. April 2024"_s, {});
        row("no such day", u"30.02.2025"_s, {});
        row("a number", u"12"_s, {});
        row("many digits", u"999999999999999999999.1.1"_s, {});
        row("empty", {}, {});
    }

    void Dates()
    {
        QFETCH(QString, cell);
        QTEST(modTableValue::ReadDate(cell), "date");
    }

    void OtherOrders()
    {
        QCOMPARE(modTableValue::ReadDate(u"02/03/2025", eDateOrder::MonthDayYear), QDate(2025, 2, 3));
        QCOMPARE(modTableValue::ReadDate(u"25-02-03", eDateOrder::YearMonthDay), QDate(2025, 2, 3));
        QCOMPARE(modTableValue::ReadDate(u"2025-02-03", eDateOrder::MonthDayYear), QDate(2025, 2, 3));
    }

    void Amounts_data()
    {
        QTest::addColumn<QString>("cell");
        QTest::addColumn<QString>("number"); // empty: no number
        const auto row = [](const char* cell, const char* number) {
            QTest::newRow(cell) << QString::fromUtf8(cell) << QString::fromUtf8(number);
        };
        row("1.234,56-", "-1234.56");
        row("(12,00)", "12.00");
        row("-10,80 €", "-10.80");
        row("EUR 1.234,50", "1234.50");
        row("+$1,327.49", "1327.49");
        row("-$76.00", "-76.00");
        row("56.78", "56.78");
        row("1.450", "1450.00");
        row("1'095.00", "1095.00");
        row("\u22125,00", "-5.00");
        row("12,50 S", "-12.50");
        row("12,50 H", "12.50");
        row("siehe Anlage 3", "");
        row("", "");
        row("1,2,3 4-5", "");
    }

    void Amounts()
    {
        QFETCH(QString, cell);
        const std::optional<qint64> cents = modTableValue::ReadCents(cell, eNumberFormat::Detect);
        QTEST(cents ? modAmount::CentsToText(*cents) : QString(), "number");
    }

    void FormatOfAColumn_data()
    {
        const cTestRows<QStringList, eNumberFormat> row("cells", "format");
        row("a point with two digits and never a comma", {u"10.50"_s, u"-4.0"_s, u"1"_s}, eNumberFormat::English);
        row("one comma makes points group", {u"10.50"_s, u"1,00"_s}, eNumberFormat::German);
        row("thousands alone", {u"1.450"_s, u"29.000"_s}, eNumberFormat::German);
        row("thousands beside decimals", {u"29.000"_s, u"3.5"_s}, eNumberFormat::English);
        row("both signs", {u"1,234.50"_s, u"5.00"_s}, eNumberFormat::English);
        row("several groups", {u"1.234.567"_s}, eNumberFormat::German);
        row("nothing", {}, eNumberFormat::German);
    }

    void FormatOfAColumn()
    {
        QFETCH(QStringList, cells);
        modTableValue::cNumberVote vote;
        for (const QString& cell : cells) {
            vote.Add(cell);
        }
        QTEST(vote.Decide(), "format");
        QCOMPARE(vote.IsDoubtful(), cells.value(0) == u"1.450");
    }

    void LooksLike()
    {
        QVERIFY(modTableValue::IsDate(u"2025-03-01 15:12:22"));
        QVERIFY(!modTableValue::IsDate(u"Kontostand vom 31.01.2025"));
        QVERIFY(!modTableValue::IsDate(u"12345678"));
        QVERIFY(modTableValue::IsDate(u"3. Mrz 2024"));
        QVERIFY(!modTableValue::IsDate(u"Miete Mai 2024"));
        QVERIFY(modTableValue::IsAmount(u"-48,00"));
        QVERIFY(!modTableValue::IsAmount(u"31.01.2025"));
        QVERIFY(!modTableValue::IsAmount(u"00012345864"));
        QVERIFY(modTableValue::IsIban(u"DE02 1203 0000 0000 2020 51"));
        QVERIFY(!modTableValue::IsIban(u"Deutsche Bahn Fernverkehr"));
        QCOMPARE(modTableValue::IndicatorSign(u"Soll"), -1);
        QCOMPARE(modTableValue::IndicatorSign(u"h"), 1);
        QCOMPARE(modTableValue::IndicatorSign(u"x"), 0);
    }
};

TEST_CLASS(testTableColumns, QCoreApplication)
#include "testTableColumns.moc"
