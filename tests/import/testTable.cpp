#include "base/modAmount.h"
#include "base/modDate.h"
#include "cImportBook.h"
#include "import/stage/cStatementImport.h"
#include "import/stage/modStatementFormat.h"
#include "import/table/cTable.h"
#include "import/table/cTableMemory.h"
#include "import/table/modTable.h"
#include "import/table/modTableProfile.h"
#include "import/table/modTableText.h"
#include "model/modSettingKey.h"

#include <QDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString folder = QStringLiteral(TEST_DATA "/csv");

QByteArray ReadAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

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
    QStringList lines;
    for (const cImportEntry& entry : read.Entries) {
        lines.append(modDate::ToIso(entry.ImportDate) + u' ' + modAmount::CentsToText(entry.ImportValue) + u' '
                     + entry.ImportAccount);
    }
    return lines;
}

} // namespace

class testTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void KnownLayouts_data()
    {
        QTest::addColumn<QString>("file");
        const QStringList files = QDir(folder).entryList({u"*.csv"_s});
        QVERIFY(!files.isEmpty());
        for (const QString& file : files) {
            QTest::newRow(qPrintable(file)) << QDir(folder).filePath(file);
        }
    }

    // Every file has its twin that says what it means.
    void KnownLayouts()
    {
        QFETCH(QString, file);
        cReadOptions options;
        options.Account = u"4711"_s;
        const cStatementSource source = modStatementFormat::Source(file, ReadAll(file));
        QCOMPARE(modStatementFormat::Detect(source), eStatementFormat::Csv);
        const QString expected = QString::fromUtf8(ReadAll(file.chopped(3) + u"txt"_s));
        QCOMPARE(Shown(modTable::Read(source, options)), expected);
    }

    void EveryProfileHasItsFile()
    {
        QStringList missing = modTableProfile::Names();
        const QStringList files = QDir(folder).entryList({u"*.txt"_s});
        for (const QString& file : files) {
            missing.removeAll(QString::fromUtf8(ReadAll(QDir(folder).filePath(file))).section(u'\n', 0, 0));
        }
        QCOMPARE(missing, QStringList());
    }

    void Detects_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("read");
        const auto row = [](const char* name, const QString& text, const QStringList& read) {
            QTest::newRow(name) << text << read;
        };
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

    void LeavesOutWhatIsNoBooking()
    {
        const cStatementRead read = ReadText(u"Konto;98765;;\nBuchungstag;Wertstellung;Text;Betrag;Status\n"
                                             "01.02.2025;01.02.2025;a;-1,00;gebucht\n"
                                             "02.02.2025;02.02.2025;b;-2,00;Vorgemerkt\n"
                                             ";02.02.2025;c;-3,00;\n"
                                             "offen;;d;-4,00;\n"
                                             "Summe;;;\n"
                                             "03.02.2025;03.02.2025;Endsaldo;100,00;\n"
                                             "x;y\n"
                                             ";;;;\n"_s);
        QCOMPARE(Brief(read), QStringList(u"2025-02-01 -1.00 98765"_s));
        QList<eSkipped> kinds;
        QList<int> lines;
        for (const cSkippedRow& row : read.Skipped) {
            kinds.append(row.Kind);
            lines.append(row.Reason.Line);
        }
        QCOMPARE(kinds,
                 QList<eSkipped>({eSkipped::Pending, eSkipped::Pending, eSkipped::Pending, eSkipped::Unreadable,
                                  eSkipped::Balance, eSkipped::Unreadable}));
        QCOMPARE(lines, QList<int>({4, 5, 6, 7, 8, 9}));
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
        const cImportResult asked = import.ImportText(u"a.csv"_s, text, {}, progress);
        QVERIFY(asked.IsRefused && asked.NeedsAccount);
        QCOMPARE(asked.Message, u"Es muss eine Kontonummer eingegeben werden, um die Daten einem Konto zuzuordnen."_s);
        QVERIFY(book.Data.GetImportEntries().isEmpty());
        cImportOptions options;
        options.DefaultAccount = u"4711"_s;
        QCOMPARE(import.ImportText(u"a.csv"_s, text, options, progress).Accounts, QStringList(u"4711"_s));
        QVERIFY(memory.SaveAccount(asked.AccountKey, u"4711"_s));
        QCOMPARE(import.ImportText(u"a.csv"_s, text, {}, progress).Duplicates.size(), 1);
        // A second account with the same layout: which one it is can no longer be told.
        QVERIFY(memory.SaveAccount(asked.AccountKey, u"4712"_s));
        QVERIFY(import.ImportText(u"a.csv"_s, text, {}, progress).NeedsAccount);
        QCOMPARE(memory.Accounts(asked.AccountKey), QStringList({u"4711"_s, u"4712"_s}));
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
        const cStatementRead read = modTable::ReadTable(table, options);
        QCOMPARE(Brief(read), QStringList(u"2025-02-03 -1234.50 1"_s));
        QCOMPARE(read.Entries.first().ImportPurpose, u"a b"_s);
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
        QCOMPARE(table.Row(1), QStringList({u"1"_s, u"23"_s, u"4"_s}));
    }
};

QTEST_GUILESS_MAIN(testTable)
#include "testTable.moc"
