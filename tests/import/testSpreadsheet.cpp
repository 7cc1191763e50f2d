#include "base/modAmount.h"
#include "cXlsFile.h"
#include "import/sheet/modSheetValue.h"
#include "import/sheet/modSpreadsheet.h"
#include "import/stage/modStatementFormat.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"

#include <xlsxwriter.h>

using namespace Qt::Literals::StringLiterals;

namespace {

// One sheet of a workbook that is written for a test.
struct cWrittenSheet
{
    const char* Name;
    int Transactions;
};

enum class eTexts { Shared, Inline };

void WriteSheet(lxw_workbook* book, const cWrittenSheet& written)
{
    lxw_worksheet* const sheet = workbook_add_worksheet(book, written.Name);
    lxw_format* const day = workbook_add_format(book);
    format_set_num_format(day, "dd/mm/yyyy;@");
    lxw_format* const money = workbook_add_format(book);
    format_set_num_format(money, "#,##0.00 [$€-407];[Red]-#,##0.00 [$€-407]");
    worksheet_write_string(sheet, 0, 0, "Umsätze Girokonto", nullptr);
    const std::array heads = {"Buchungstag", "Auftraggeber/Empfänger", "Verwendungszweck", "BLZ", "Betrag", "geprüft"};
    for (std::size_t i = 0; i < heads.size(); ++i) {
        worksheet_write_string(sheet, 3, static_cast<lxw_col_t>(i), heads.at(i), nullptr);
    }
    for (int i = 0; i < written.Transactions; ++i) {
        const auto row = static_cast<lxw_row_t>(4 + i);
        lxw_datetime date{2026, 1, 31 - i, 13, 45, 0};
        worksheet_write_datetime(sheet, row, 0, &date, day);
        worksheet_write_string(sheet, row, 1, "Café \"Köln\" & Söhne", nullptr);
        worksheet_write_string(sheet, row, 2, "Rechnung\n4711", nullptr);
        worksheet_write_number(sheet, row, 3, 12030000, nullptr);
        worksheet_write_number(sheet, row, 4, i == 0 ? -1234.567 * 100 / 100 : 100.0 * i, money);
        worksheet_write_boolean(sheet, row, 5, i, nullptr);
    }
}

QByteArray Xlsx(const QList<cWrittenSheet>& sheets, eTexts texts = eTexts::Shared)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.xlsx"_s);
    QByteArray folderName = QFile::encodeName(folder.path());
    lxw_workbook_options options{};
    options.tmpdir = folderName.data();
    options.constant_memory = texts == eTexts::Inline ? 1 : 0;
    lxw_workbook* const book = workbook_new_opt(QFile::encodeName(path).constData(), &options);
    for (const cWrittenSheet& sheet : sheets) {
        WriteSheet(book, sheet);
    }
    workbook_close(book);
    return cTestFile::Bytes(path);
}

cXlsFile Xls()
{
    cXlsFile file;
    file.Text(0, 2, "Betrag"); // cells need not stand in their order
    file.Text(0, 0, "Buchungstag");
    file.Text(0, 1, "Verwendungszweck");
    file.Number(1, 0, 46053, cXlsFile::Day);
    file.Text(1, 1,
              "B\xFC"
              "cher");
    file.Cents(1, 2, {-1250, 100});
    file.Number(3, 0, 46054, cXlsFile::Day); // the row above is empty
    file.Text(3, 1, "Gehalt");
    file.Formula(3, 2, 2345.67);
    file.Cents(3, 3, {1});
    return file;
}

QByteArray BareXls()
{
    cXlsFile file;
    file.Text(0, 0, "Buchungstag");
    file.Text(0, 1, "Verwendungszweck");
    file.Text(0, 2, "Betrag");
    file.Text(1, 0, "31.01.2026");
    file.Text(1, 1,
              "B\xFC"
              "cher");
    file.Number(1, 2, -12.5);
    file.Text(2, 0, "01.02.2026");
    file.Text(2, 1, "Gehalt");
    file.Cents(2, 2, {234567});
    return file.BareBytes();
}

QByteArray ProtectedXls()
{
    cXlsFile file = Xls();
    file.Protect();
    return file.Bytes();
}

const QByteArray html = R"(<!-- export --><HTML><head><style>td { a: b > c }</style></head><body>
<table><tr><td>Kontoauszug<table id="t"><tr><th>Buchungstag<th>Verwendungszweck</th><th colspan='2'>Betrag</th><th>W&auml;hrung
<tr><td>31.01.2026</td><td>B&uuml;cher &amp;<br>mehr &#8364; 5 < 6 Espa&ntilde;a &euro; &nosuch; &</td><td>&minus;1.012,50</td><td></td><td>EUR</td></tr>
<tr><td>01.02.2026</td><td>Gehalt</td><td>2.345,67</td></tr></table></table>)";

const QByteArray sheetXml = R"(<?xml version="1.0"?><?mso-application progid="Excel.Sheet"?>
<Workbook xmlns="urn:schemas-microsoft-com:office:spreadsheet" xmlns:ss="urn:schemas-microsoft-com:office:spreadsheet">
<Worksheet ss:Name="Leer"><Table/></Worksheet>
<Worksheet ss:Name="Daten"><Table>
<Row><Cell><Data ss:Type="String">Buchungstag</Data></Cell><Cell ss:Index="3"><Data ss:Type="String">Verwendungszweck</Data></Cell>
<Cell><Data ss:Type="String">Betrag</Data></Cell></Row>
<Row ss:Index="5"><Cell><Data ss:Type="DateTime">2026-01-31T00:00:00.000</Data></Cell>
<Cell ss:Index="3"><ss:Data ss:Type="String"><B>Büch</B>er</ss:Data></Cell><Cell><Data ss:Type="Number">-12.5</Data></Cell></Row>
<Row><Cell><Data ss:Type="DateTime">2026-02-01T00:00:00.000</Data></Cell>
<Cell ss:Index="3"><Data ss:Type="String">Gehalt</Data></Cell><Cell><Data ss:Type="Number">2345.67</Data></Cell></Row>
</Table></Worksheet></Workbook>)";

cStatementRead Read(const QString& name, const QByteArray& bytes, const cReadOptions& options = {})
{
    const cStatementSource source = modStatementFormat::Source(name, bytes);
    return modStatementFormat::Reader(modStatementFormat::Detect(source))(source, options);
}

// "2026-01-31|-12.50|purpose" for each transaction.
QStringList Facts(const cStatementRead& read)
{
    return Each(read.Entries, [](const cImportEntry& entry) {
        return u"%1|%2|%3"_s.arg(entry.ImportDate.toString(Qt::ISODate), modAmount::CentsToText(entry.ImportValue),
                                 entry.ImportPurpose);
    });
}

} // namespace

class testSpreadsheet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ReadsByContent_data()
    {
        const QStringList two = {u"2026-01-31|-12.50|Bücher"_s, u"2026-02-01|2345.67|Gehalt"_s};
        const QStringList big = {u"2026-01-31|-1234.57|Rechnung 4711"_s, u"2026-01-30|100.00|Rechnung 4711"_s};
        const cTestRows<QString, QByteArray, QStringList> row("name", "bytes", "facts");
        row("XLSX", u"a.xlsx"_s, Xlsx({{"Daten", 2}}), big);
        row("XLSX named otherwise", u"a.csv"_s, Xlsx({{"Daten", 2}}), big);
        row("XLSX with the texts in the cells", u"a.xls"_s, Xlsx({{"Daten", 2}}, eTexts::Inline), big);
        row("most transactions", u"a.xlsx"_s, Xlsx({{"Info", 0}, {"Alt", 1}, {"Neu", 2}}), big);
        row("XLS", u"a.xls"_s, Xls().Bytes(), two);
        row("XLS named otherwise", u"a.dat"_s, Xls().Bytes(), two);
        row("XLS without container", u"a.xls"_s, BareXls(), two);
        row("XML of 2003", u"a.xls"_s, sheetXml, two);
        row("XML of 2003 under its own name", u"a.xml"_s, sheetXml, two);
        row("HTML", u"a.xls"_s, html, {u"2026-01-31|-1012.50|Bücher & mehr € 5 < 6 España € &nosuch &"_s, two.last()});
        row("text", u"a.xls"_s,
            "Buchungstag\tVerwendungszweck\tBetrag\r\n31.01.2026\tBücher\t-12,50\r\n"_ba
            "01.02.2026\tGehalt\t2.345,67",
            two);
    }

    void ReadsByContent()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        const cStatementRead read = Read(name, bytes);
        QCOMPARE(read.Refusal, QString());
        QTEST(Facts(read), "facts");
    }

    void KeepsAllKindsOfCells()
    {
        const cStatementSource source = modStatementFormat::Source(u"a.xlsx"_s, Xlsx({{"Daten", 2}}));
        const modTable::cOpened opened = modSpreadsheet::Open(source, {});
        QCOMPARE(opened.Layout.HeaderRow, 1); // rows without content are none
        QCOMPARE(opened.Table->Line(1), 4);
        QCOMPARE(opened.Table->Row(2),
                 (QStringList{u"31.01.2026"_s, u"Café \"Köln\" & Söhne"_s, u"Rechnung 4711"_s, u"12030000"_s,
                              u"-1234,567"_s, u"FALSCH"_s}));
        QCOMPARE(opened.Table->Cell(3, 4), u"100,00");
    }

    void TakesChosenSheet()
    {
        const QByteArray bytes = Xlsx({{"Neu", 2}, {"Alt", 1}});
        cReadOptions options;
        options.Table.Sheet = u"Alt"_s;
        QCOMPARE(Read(u"a.xlsx"_s, bytes, options).Entries.size(), 1);
    }

    // A rule made for the texts of the same columns must not turn 2345,67 into 234567 or days into months.
    void NumbersAndDaysGoBeforeRulesForTexts()
    {
        cReadOptions options;
        options.Table.Number = eNumberFormat::English;
        options.Table.Date = eDateOrder::MonthDayYear;
        QCOMPARE(Facts(Read(u"a.xls"_s, Xls().Bytes(), options)).last(), u"2026-02-01|2345.67|Gehalt"_s);
    }

    void RefusesBadFiles_data()
    {
        QByteArray encrypted = Xls().Bytes();
        encrypted.replace(QByteArray("W\0o\0r\0k\0b\0o\0o\0k\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0", 32),
                          QByteArray("E\0n\0c\0r\0y\0p\0t\0e\0d\0P\0a\0c\0k\0a\0g\0e\0", 32));
        const QByteArray xlsx = Xlsx({{"Daten", 2}});
        QByteArray broken = xlsx;
        broken[broken.indexOf("xl/worksheets/sheet1.xml") + 60] ^= '\x55';
        const cTestRows<QByteArray, QString> row("bytes", "message");
        row("protected XLS", ProtectedXls(), u"mit einem Kennwort geschützt"_s);
        row("protected XLSX", encrypted, u"mit einem Kennwort geschützt"_s);
        row("half an XLSX", xlsx.left(xlsx.size() / 2), u"beschädigt oder keine Arbeitsmappe"_s);
        row("changed XLSX", broken, u"beschädigt, verschlüsselt oder zu groß"_s);
        row("half an XLS", Xls().Bytes().left(2000), u"beschädigt oder keine Arbeitsmappe"_s);
        row("half an XML", sheetXml.left(800), u"beschädigt oder zu groß"_s);
        row("half an HTML table", "<table><tr><td>Datum<td>Betrag<tr><td>01.02.2026<td>-1"_ba,
            u"beschädigt oder unvollständig"_s);
        row("endless rows", "<table>" + QByteArray("<tr><td colspan=255><td>x").repeated(16000), u"zu groß"_s);
        row("HTML without rows", "<html><table></table></html>"_ba, u"Internetseite"_s);
    }

    void RefusesBadFiles()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, message);
        const cStatementRead read = Read(u"a.xls"_s, bytes);
        QVERIFY2(read.Refusal.contains(message), qPrintable(read.Refusal));
        QVERIFY(read.Entries.isEmpty());
    }

    void TellsDaysByFormat_data()
    {
        // text: of 46053.5
        const cTestRows<QString, QString> row("code", "text");
        row("plain", u"General"_s, u"46053,50"_s);
        row("plain in German", u"Standard"_s, u"46053,50"_s);
        row("day", u"[$-407]d. mmmm yyyy;@"_s, u"31.01.2026"_s);
        row("day in German", u"TT.MM.JJJJ"_s, u"31.01.2026"_s);
        row("day and time", u"yyyy\\-mm\\-dd hh:mm:ss.000"_s, u"31.01.2026"_s);
        row("letters in quotes", u"\"Tag\" 0.00"_s, u"46053,50"_s);
        row("letters of a currency", u"#,##0.00 USD"_s, u"46053,50"_s);
        row("colour", u"[Red]0"_s, u"46053,50"_s);
    }

    void TellsDaysByFormat()
    {
        QFETCH(QString, code);
        QTEST(modSheetValue::Value(46053.5, modSheetValue::FormatOf(code), eSheetEpoch::Year1900).Text, "text");
    }

    void WritesNumbersInFull_data()
    {
        const cTestRows<double, QString> row("value", "text");
        row("noise of binary fractions", 0.1 + 0.2, u"0,30"_s);
        row("account number", 532013000.0, u"532013000"_s);
        row("large", -9876543210.12, u"-9876543210,12"_s);
        row("small", 0.0625, u"0,0625"_s);
        row("nothing", 0.0, u"0"_s);
        row("longer than exact", 1e20, u"100000000000000000000"_s);
    }

    void WritesNumbersInFull()
    {
        QFETCH(double, value);
        QTEST(modSheetValue::Number(value, eSheetFormat::Number).Text, "text");
    }
};

TEST_CLASS(testSpreadsheet, QCoreApplication)
#include "testSpreadsheet.moc"
