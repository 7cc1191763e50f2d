#include "base/modAmount.h"
#include "cImportBook.h"
#include "store/cUndoStep.h"
#include "support/cTestClass.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString fixture = QStringLiteral(TEST_DATA "/mt940/giro.sta");

class cCancel final : public cProgress
{
public:
    explicit cCancel(int after) : m_left(after) {}
    void showProgressBar(int /*maximum*/) override {}
    void addProgressValue(int /*steps*/) override { --m_left; }
    void hideProgressBar() override {}
    [[nodiscard]] bool IsCancelled() const override { return m_left <= 0; }

private:
    int m_left;
};

QString Many(int count)
{
    QString text = u":20:A\r\n:25:1\r\n:60F:C260101EUR0,00\r\n"_s;
    for (int i = 0; i < count; ++i) {
        text += u":61:260101D1,00NTRF\r\n:86:105?20Nummer "_s + QString::number(i) + u"\r\n";
    }
    return text + u":62F:C260101EUR0,00\r\n-\r\n";
}

// OFX with a purchase by card for each shop, "Kiosk+1" being one on the day after; no shop, no name.
QString CardPayments(const QStringList& shops)
{
    QString text = u"OFXHEADER:100\n<OFX><BANKMSGSRSV1><STMTTRNRS><STMTRS><BANKACCTFROM><ACCTID>7</BANKACCTFROM>"
                   "<BANKTRANLIST>"_s;
    for (const QString& shop : shops) {
        text += u"<STMTTRN><DTPOSTED>2026010%1<TRNAMT>-5<FITID>%2<NAME>%3<MEMO>Kartenzahlung</STMTTRN>"_s
                    .arg(shop.endsWith(u"+1"_s) ? 2 : 1)
                    .arg(shop.section(u'#', 1), shop.section(u'+', 0, 0).section(u'#', 0, 0));
    }
    return text + u"</BANKTRANLIST></STMTRS></STMTTRNRS></BANKMSGSRSV1></OFX>\n"_s;
}

// A table of purchases, each in a line of its own: "0503 -200 2" twice on May 3rd. `end` is the balance behind the
// last.
QString Purchases(const QString& list, std::optional<int> end)
{
    QString text = end ? u"Buchungstag;Verwendungszweck;Betrag;Saldo\n"_s : u"Buchungstag;Verwendungszweck;Betrag\n"_s;
    QStringList lines;
    int balance = end.value_or(0);
    const QStringList items = list.split(u", "_s);
    for (const QString& item : items) {
        const QStringList parts = item.split(u' ');
        for (int i = 0; i < parts.at(2).toInt(); ++i) {
            const int cents = parts.at(1).toInt();
            QStringList cells{parts.at(0).mid(2) + u'.' + parts.at(0).left(2) + u".2026"_s, u"Fahrkarte"_s,
                              modAmount::CentsToText(cents).replace(u'.', u',')};
            if (end) {
                cells.append(modAmount::CentsToText(balance).replace(u'.', u','));
                balance -= cents;
            }
            lines.append(cells.join(u';'));
        }
    }
    return text + lines.join(u'\n') + u'\n';
}

} // namespace

class testStatementImport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void StagesOnce()
    {
        cReadingBook book;
        const cImportResult first = book.ReadFile(fixture);
        QCOMPARE(first.Format, u"SWIFT-Kontoauszug (MT940/MT942-Datei)"_s);
        QCOMPARE(QList<int>({first.Read, first.Staged, first.Zero, first.Failed}), QList<int>({6, 5, 1, 0}));
        QCOMPARE(first.ClosingBalance, std::optional<qint64>(520000));
        QCOMPARE(first.Accounts, QStringList({u"1234567"_s, u"7654321"_s}));
        const cImportResult second = book.ReadFile(fixture);
        QCOMPARE(second.Staged, 0);
        QCOMPARE(second.Duplicates.size(), 5);
        QCOMPARE(book.ReadFile(fixture, {eDuplicateTest::Skip, {}}).Staged, 5);
        QCOMPARE(book.Data.GetImportEntries(), book.Hive.GetImportHive().getImportEntryList());
    }

    // A split record that version 0.1.0 staged whole, and one that is new.
    void SplitRecordIsKnownWhole()
    {
        cReadingBook book;
        cImportEntry whole = BankRow(u"Giro"_s, QDate(2026, 1, 5), -6000, u"Markt"_s, u"Brot, Seife"_s);
        QVERIFY(book.Data.AddNewImportEntry(whole));
        const QString record = u"D05.01.2026\nT-60.00\nPMarkt\nSEssen\nEBrot\n$-40.00\nSHaus\nESeife\n$-20.00\n^\n"_s;
        const cImportResult result =
            book.Read(u"!Account\nNGiro\n^\n!Type:Bank\n"_s + record + QString(record).replace(u"D05"_s, u"D06"_s));
        QCOMPARE(result.Duplicates.size(), 1);
        QCOMPARE(result.Staged, 2);
    }

    void RefusesWhatIsNoStatement_data()
    {
        const cTestRows<QString, QByteArray, QString> row("name", "bytes", "message");
        row("missing", u"a.sta"_s, {}, u"Die Datei kann nicht geöffnet werden"_s);
        row("empty", u"a.sta"_s, "", u"Die Datei ist leer"_s);
        row("binary", u"a.sta"_s,
            QByteArray("\x7F"
                       "ELF\0\0:20::61::86:",
                       18),
            u"Unbekanntes Dateiformat"_s);
        row("spreadsheet", u"a.xls"_s, QByteArray("\xD0\xCF\0", 3), u"ist beschädigt oder keine Arbeitsmappe"_s);
        row("text", u"a.txt"_s, "Hallo", u"keine Spalten mit Datum und Betrag"_s);
        row("page to log in", u"umsaetze.csv"_s, "<!DOCTYPE html>\n<html><title>Anmelden, PIN</title></html>",
            u"Internetseite"_s);
        row("PDF", u"a.pdf"_s, "%PDF", u"Portable Document Format (PDF-Datei)\nLaden Sie die Umsätze bei der Bank"_s);
    }

    void RefusesWhatIsNoStatement()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, message);
        cReadingBook book;
        const QTemporaryDir folder;
        if (!bytes.isNull()) {
            cTestFile::Write(folder.filePath(name), bytes);
        }
        const cImportResult result = book.ReadFile(folder.filePath(name));
        QVERIFY(result.IsRefused);
        QVERIFY2(result.Message.contains(message), qPrintable(result.Message));
        QVERIFY(book.User.Shown.isEmpty());
    }

    // A text or an amount that lacks its end would come again whole with the next file.
    void FilesAreCutOff_data()
    {
        // read: rows, the cents of one that is left out, the balance
        const cTestRows<QString, QString, QString> row("name", "text", "read");
        const QString end = u":62F:C260101EUR0,00\r\n-\r\n"_s;
        const QString open = Many(3).chopped(end.size());
        row("within a tag", u"a.sta"_s, open.left(open.lastIndexOf(u":61:") + 2), u"refused"_s);
        row("within details", u"a.sta"_s, open.chopped(3), u"2 -100"_s);
        row("within a transaction", u"a.sta"_s, open.left(open.lastIndexOf(u",00NTRF")), u"refused"_s);
        row("in the head of the first statement", u"a.sta"_s, u":20:B\r\n:25:1\r\n:60F:C26"_s, u"refused"_s);
        row("behind whole statements", u"a.sta"_s, Many(1) + open, u"refused"_s);
        row("in the head of a statement", u"a.sta"_s, Many(3) + u":20:B\r\n:25:1\r\n:6"_s, u"refused"_s);
        row("perhaps, at the end of a line", u"a.sta"_s, open, u"2 -100"_s);
        row("ended without a balance", u"a.sta"_s, open + u"-\r\n"_s, u"3"_s);
        row("ended by an empty line", u"a.sta"_s, open + u"\r\n"_s, u"3"_s);
        row("within the balance", u"a.sta"_s, open + end.left(16), u"3"_s);
        const QString head = u"Datum;Zweck;Betrag;Whg.\n02.10.2026;Brot;-2,50;EUR\n03.10.2026;Milch;-1,20;EUR\n"_s;
        row("no end of the line", u"a.csv"_s, head + u"04.10.2026;Ei;-3,00;EUR"_s, u"3"_s);
        row("fewer cells", u"a.csv"_s, head + u"04.10.2026;Ei;-3"_s, u"2 -300"_s);
        row("within a code", u"a.csv"_s, head + u"04.10.2026;Ei;-3,00;EU"_s, u"2 -300"_s);
        row("within quotes", u"a.csv"_s, head + u"04.10.2026;Ei;-3,00;\"EUR"_s, u"2 -300"_s);
        const QString above = u"Kontostand vom 05.10.2026:;9,00 EUR\n\n"_s;
        row("below its balance", u"a.csv"_s, above + head + u"04.10.2026;Ei;-3"_s, u"2 -300"_s);
        row("a balance at the end", u"a.csv"_s, head + u"04.10.2026;Endsaldo"_s, u"2"_s);
        row("within an amount", u"a.csv"_s, Purchases(u"1002 -200 1, 1003 -250 1, 1004 -120 1"_s, {}).chopped(3),
            u"2 -100"_s);
        row("a note at the end", u"a.csv"_s, above + head + u"Erstellt am 05.10.2026"_s, u"2 =900"_s);
        const QString euros = u"Datum;Zweck;Betrag\n02.10.2026;Brot;-12,34\n03.10.2026;Miete;-850"_s;
        row("perhaps within an amount", u"a.csv"_s, above + euros, u"1 -85000 =900"_s);
        row("behind the sign of an amount", u"a.csv"_s, above + euros + u',', u"1 -85000"_s);
        row("zeros are left out", u"a.csv"_s, QString(euros).replace(u"\n03"_s, u"\n02.10.2026;Ei;-2,5\n03"_s), u"3"_s);
        const QString qif = u"!Type:Bank\nD31.1.26\nT-1,00\nPAnna\n^\nD31.1.26\nT-2,00\nPBernd"_s;
        row("QIF within a payee", u"a.qif"_s, qif, u"1 0"_s);
        row("QIF before a payee", u"a.qif"_s, qif.chopped(6), u"1 0"_s);
        row("QIF without its last mark", u"a.qif"_s, qif + u'\n', u"2"_s);
    }

    void FilesAreCutOff()
    {
        QFETCH(QString, name);
        QFETCH(QString, text);
        cImportBook book;
        cImportOptions options;
        options.DefaultAccount = u"7"_s;
        cNoProgress progress;
        const cImportResult result =
            cStatementImport(book.Data, book.Hive).ImportSource({name, {}, text}, options, progress);
        QString read = result.IsRefused ? u"refused"_s : QString::number(book.Data.GetImportEntries().size());
        for (const cSkippedRow& row : result.Skipped) {
            read += row.Kind == eSkipped::CutOff ? u" %1"_s.arg(row.Entry.ImportValue) : QString();
        }
        read += result.ClosingBalance ? u" =%1"_s.arg(*result.ClosingBalance) : QString();
        QTEST(read, "read");
    }

    // One that the account had before was agreed to, under whatever number it comes.
    void OtherCurrencyIsRefused()
    {
        cImportBook book;
        cNoProgress progress;
        cImportOptions euros;
        euros.BookCurrency = u"EUR"_s;
        const auto read = [&](const QString& account, const QString& currency, const cImportOptions& options) {
            QString text = Many(2).replace(u"EUR"_s, currency);
            text.replace(u":25:1"_s, u":25:"_s + account);
            return cStatementImport(book.Data, book.Hive).ImportSource({u"a.sta"_s, {}, text}, options, progress);
        };
        QCOMPARE(read(u"10020030/1234567"_s, u"EUR"_s, euros).Staged, 2);
        const cImportResult refused = read(u"777"_s, u"USD"_s, euros);
        QCOMPARE(refused.OtherCurrencies, QStringList(u"USD"_s));
        QVERIFY2(refused.IsRefused && refused.Message.contains(u"in USD, das Buch in EUR"),
                 qPrintable(refused.Message));
        QVERIFY(read(u"1234567"_s, u"USD"_s, euros).IsRefused); // though its rows are there already
        QCOMPARE(book.Data.GetImportEntries().size(), 2);
        QCOMPARE(read(u"10020030/7777777"_s, u"USD"_s, {}).Staged, 2);
        QVERIFY(!read(u"DE92100200300007777777"_s, u"USD"_s, euros).IsRefused);
        QVERIFY(read(u"DE92100200300007777777"_s, u"CHF"_s, euros).IsRefused);
        euros.DefaultAccount = u"5"_s;
        const auto readTable = [&](const QString& amount) {
            const QString text = u"Datum;Zweck;%1;Originalbetrag;Währung\n02.10.2026;Ei;-2,50;-2,50;EUR\n"
                                 "03.10.2026;Hotel;-9,00;-10,00;USD\n"_s.arg(amount);
            return cStatementImport(book.Data, book.Hive).ImportSource({u"a.csv"_s, {}, text}, euros, progress).Message;
        };
        const QString some = readTable(u"Betrag"_s);
        QVERIFY2(some.contains(u"bei 1 von 2 Umsätzen in USD, das Buch in EUR"), qPrintable(some));
        QCOMPARE(readTable(u"Betrag (EUR)"_s), QString());
    }

    // Of several files in one step, the one that was stopped goes and the others stay.
    void CancelTakesTheFileBack()
    {
        cReadingBook book;
        cCancel progress(2);
        {
            const cUndoStep step(book.Data, u"eingelesen"_s);
            QCOMPARE(book.Import.ImportSource({u"a"_s, {}, Many(3)}, {}, progress).Staged, 3);
            const cImportResult result = book.Import.ImportSource({u"b"_s, {}, Many(500)}, {}, progress);
            QVERIFY(result.IsCancelled);
            QCOMPARE(QList<int>({result.Read, result.Staged}), QList<int>({0, 0}));
            QCOMPARE(book.Data.GetImportEntries().size(), 3);
        }
        QVERIFY(book.Data.Journal().Undo());
        QCOMPARE(book.Data.GetImportEntries().size(), 0);
        QVERIFY(book.Data.Journal().Redo());
        QCOMPARE(book.Data.GetImportEntries().size(), 3);
    }

    // What the bank says is kept of files that were taken as a whole: both ends of a statement, each day of a table.
    void KeepsBalancesOfTheBank()
    {
        cReadingBook book;
        cCancel cancelled(1);
        QVERIFY(book.Import.ImportSource({u"a"_s, {}, Many(500)}, {}, cancelled).IsCancelled);
        QCOMPARE(book.Read(Many(5), {.DefaultAccount = {}, .Run = eStagingRun::Try}).Rows.size(), 5);
        QVERIFY(book.Balances.Of(u"1"_s).isEmpty());
        // one whose only row is left out tells nothing of its own day
        QCOMPARE(book.Read(Many(1).replace(u":25:1"_s, u":25:3"_s).section(u":62F"_s, 0, 0)).Staged, 0);
        QCOMPARE(book.Balances.Of(u"3"_s), cBankBalanceList({{QDate(2026, 1, 1), 0}}));
        QCOMPARE(book.Read(Many(2)).Staged, 2);
        QCOMPARE(book.Balances.Of(u"1"_s), cBankBalanceList({{QDate(2025, 12, 31), 0}, {QDate(2026, 1, 1), 0}}));
        const QString table = u"Buchungstag;Verwendungszweck;Betrag;Saldo\n04.05.2026;C;-10,00;60,00\n"
                              "04.05.2026;B;-5,00;70,00\n02.05.2026;A;-25,00;75,00\n"_s;
        QCOMPARE(book.Read(table, {.DefaultAccount = u"2"_s}, u"a.csv"_s).Staged, 3);
        QCOMPARE(book.Balances.Of(u"2"_s),
                 cBankBalanceList({{QDate(2026, 5, 1), 10000}, {QDate(2026, 5, 2), 7500}, {QDate(2026, 5, 4), 6000}}));
    }

    void CountsEqualRows_data()
    {
        // In a file the newest transaction is first; "@5000" behind it is the balance after it.
        // staged: by each file
        const cTestRows<QStringList, QList<int>, QList<int>> row("files", "staged", "repeats");
        row("nothing proves them", {u"0503 -200 3"_s}, {1}, {2});
        row("balances do", {u"0503 -200 3, 0502 -700 1@4000"_s, u"0503 -200 3, 0502 -700 1@4000"_s}, {4, 0}, {0, 0});
        row("overlap, the second came later", {u"0503 -200 1, 0502 -700 1@4000"_s, u"0503 -200 2, 0502 -700 1@3800"_s},
            {2, 1}, {0, 0});
        row("known balances rule them out", {u"0504 -100 1, 0503 -200 1, 0502 -700 1@4000"_s, u"0503 -200 2"_s}, {3, 0},
            {0, 0});
        row("as many as before", {u"0503 -200 1"_s, u"0503 -200 1"_s}, {1, 0}, {0, 0});
    }

    // What a file has more often than the book is real; the same file again brings nothing.
    void CountsEqualRows()
    {
        QFETCH(const QStringList, files);
        cReadingBook book;
        QList<int> staged;
        QList<int> repeats;
        for (const QString& file : files) {
            const QStringList parts = file.split(u'@');
            const std::optional<int> end = parts.size() > 1 ? std::optional(parts.at(1).toInt()) : std::nullopt;
            const cImportResult result = book.Read(Purchases(parts.at(0), end), {.DefaultAccount = u"1"_s}, u"a.csv"_s);
            QVERIFY2(!result.IsRefused, qPrintable(result.Message));
            staged.append(result.Staged);
            repeats.append(static_cast<int>(result.Repeats.size()));
        }
        QTEST(staged, "staged");
        QTEST(repeats, "repeats");
    }

    void ReadOnlyDatabaseIsToldOnce()
    {
        cReadingBook book;
        book.Database.Open(book.Path(), eOpenMode::ReadOnly);
        const cImportResult result = book.Read(Many(50));
        QVERIFY(result.IsRefused && result.Message.contains(u"nur zum Lesen"));
        QVERIFY(book.User.Shown.isEmpty());
    }

    // One refusal concerns one record, two in a row concern the database.
    void GivesUpOnARefusingDatabase()
    {
        cReadingBook book;
        book.WriteBehind("CREATE TRIGGER full BEFORE INSERT ON import WHEN (SELECT COUNT(*) FROM import) >= 3 "
                         "OR NEW.ImportPurpose = 'Nummer 1' BEGIN SELECT RAISE(ABORT, 'voll'); END");
        const cImportResult result = book.Read(Many(50));
        QCOMPARE(QList<int>({result.Staged, result.Failed}), QList<int>({3, 47}));
        QCOMPARE(book.User.Shown.size(), 3);
        QVERIFY(result.Message.contains(u"47 Umsätze nicht angenommen"));
        QCOMPARE(result.Problems.last().Text, result.Message);
    }

    void OnlineTextReturnsClosingBalance()
    {
        cReadingBook book;
        cNoProgress progress;
        const QString text = u":20:A\r\n:61:260101D1,00NTRF\r\n:62F:D260101EUR12,34\r\n"_s;
        QCOMPARE(book.Import.ImportMT940(progress, {}, text, u"4711"_s), -1234);
        QCOMPARE(book.Hive.GetImportHive().GetImportEntryCountByNumber(u"4711"_s), 1);
        QCOMPARE(book.Import.ImportMT940(progress, {}, text + u":20:B\r\n:86:x\r\n", u"4711"_s), 0);
        QCOMPARE(book.Import.ImportMT940(progress, {}, {}, {}), 0);
    }

    void KnowsAccountInItsOtherForm_data()
    {
        // line: of the account in the file that is read first
        const cTestRows<QByteArray, QString, int> row("line", "account", "duplicates");
        row("bank code and number", "10020030/0001234567", u"1234567"_s, 3);
        row("number", "1234567", u"1234567"_s, 3);
        row("IBAN", "DE02100200300001234567", u"DE02100200300001234567"_s, 3);
        row("another account", "1234568", u"1234568"_s, 0);
        row("the number at another bank", "50010517/0001234567", u"1234567"_s, 0);
    }

    // The same month as MT940 and as camt, which names the account by its IBAN.
    void KnowsAccountInItsOtherForm()
    {
        QFETCH(const QByteArray, line);
        QFETCH(const QString, account);
        QFETCH(const int, duplicates);
        QByteArray file = cTestFile::Bytes(QStringLiteral(TEST_DATA "/camt/giro.sta"));
        const QString text = QString::fromUtf8(file.replace("DE02100200300001234567", line));
        cReadingBook book;
        QCOMPARE(book.Read(text, {}, u"giro.sta"_s).Accounts, QStringList(account));
        const cImportResult second = book.ReadFile(QStringLiteral(TEST_DATA "/camt/giro.xml"));
        QCOMPARE(second.Duplicates.size() + second.Alike.size(), duplicates); // MT940 has the long texts in pieces
        QCOMPARE(second.Accounts, QStringList(duplicates > 0 ? account : u"DE02100200300001234567"_s));
        QCOMPARE(second.Skipped.first().Entry.ImportAccount, second.Accounts.first());
    }

    // The other way round; a household moves money between its two banks, and only one of the numbers is its own.
    void NumberOfAnotherBankIsAnotherAccount()
    {
        cReadingBook book;
        (void)book.ReadFile(QStringLiteral(TEST_DATA "/camt/giro.xml"));
        const QString text = u":20:A\r\n:25:50010517/1234567\r\n:61:260101D1,00NTRF\r\n:86:x\r\n"_s;
        QCOMPARE(book.Read(text, {}, u"b.sta"_s).Accounts, QStringList(u"1234567"_s));
        QVERIFY(book.Accounts.Assign(u"DE02100200300001234567"_s, u"Girokonto"_s));
        QVERIFY(book.Accounts.Proposal(u"1234567"_s) != u"Girokonto"_s);
        QVERIFY(book.Accounts.Assign(u"1234567"_s, u"Sparkonto"_s));
        QCOMPARE(book.Accounts.OwnAccountOf(u"DE00500105170001234567"_s, {}), u"Sparkonto"_s);
        QCOMPARE(book.Accounts.OwnAccountOf(u"1234567"_s, u"20030040"_s), QString());
    }

    void TriesWithoutWriting()
    {
        cReadingBook book;
        cImportOptions options;
        options.Run = eStagingRun::Try;
        const cImportResult tried = book.ReadFile(fixture, options);
        QCOMPARE(QList<int>({tried.Read, tried.Staged, tried.Zero}), QList<int>({6, 5, 1}));
        QCOMPARE(book.ReadFile(fixture, options).Duplicates.size(), 5); // as if the first had been staged
        QVERIFY(book.Data.GetImportEntries().isEmpty());
        QVERIFY(book.ReadFile(fixture).Rows.isEmpty());
        cImportEntryList staged = book.Data.GetImportEntries();
        for (cImportEntry& row : staged) {
            row.ID = 0;
        }
        QCOMPARE(tried.Rows, staged);
    }

    void KnowsRowsFromBeforeTheirNames_data()
    {
        QTest::addColumn<QStringList>("before"); // the shops of the file that was read without names
        QTest::addColumn<QStringList>("now");
        QTest::addColumn<QStringList>("added");
        QTest::addColumn<int>("asked");
        const auto row = [](const char* name, const QString& before, const QString& now, const QString& added,
                            int asked = 0) {
            const auto list = [](const QString& text) { return text.split(u", "_s, Qt::SkipEmptyParts); };
            QTest::newRow(name) << list(before) << list(now) << list(added) << asked;
        };
        row("the same", u"Kiosk"_s, u"Kiosk"_s, {});
        row("overlapping", u"Kiosk, Bad+1"_s, u"Bad+1, Kiosk+1"_s, u"Kiosk"_s);
        row("two shops", {}, u"Kiosk, Bad"_s, u"Kiosk, Bad"_s);
        row("two shops, one of them known", u"Kiosk"_s, u"Kiosk, Bad"_s, u"Bad"_s);
        row("beside one without name", u"-"_s, u"Kiosk, -"_s, u"Kiosk"_s);
        row("twice in one shop", u"Kiosk"_s, u"Kiosk, Kiosk"_s, {}, 1);
        row("twice, and the bank tells them apart", {}, u"Kiosk#1, Kiosk#2"_s, u"Kiosk, Kiosk"_s);
        row("twice, the bank does not tell them apart", {}, u"Kiosk#1, Kiosk#1"_s, u"Kiosk"_s, 1);
        row("nothing to do with it", u"Kiosk+1"_s, u"Kiosk"_s, u"Kiosk"_s);
    }

    // Books that were filled before the names were read, with the next file, and that file once more.
    void KnowsRowsFromBeforeTheirNames()
    {
        QFETCH(const QStringList, before);
        QFETCH(const QStringList, now);
        QFETCH(const int, asked);
        cReadingBook book;
        cImportOptions old;
        old.OfxPayee = eOfxPayee::Leave;
        QCOMPARE(book.Read(CardPayments(before), old, u"a.ofx"_s).Staged, before.size());
        for (const bool isAgain : {false, true}) {
            const cImportResult result = book.Read(CardPayments(now), {}, u"b.ofx"_s);
            QCOMPARE(result.Repeats.size(), asked);
            QVERIFY(!isAgain || result.Staged == 0);
        }
        QStringList names = Each(book.Data.GetImportEntries(), &cImportEntry::ImportBeneficiary);
        const qsizetype rows = names.size();
        names.removeAll(QString());
        QTEST(names, "added");
        QCOMPARE(rows, before.size() + names.size());
    }

    void StagesWholeCents_data()
    {
        const cTestRows<QString, eStaged, qint64> row("amount", "outcome", "cents");
        row("rounded", u"12,3449"_s, eStaged::Staged, 1234);
        row("half to the even cent", u"0,125"_s, eStaged::Staged, 12);
        row("zero", u"0,00"_s, eStaged::Zero, 0);
        row("less than half a cent", u"0,001"_s, eStaged::Zero, 0);
    }

    void StagesWholeCents()
    {
        QFETCH(QString, amount);
        QFETCH(eStaged, outcome);
        cReadingBook book;
        cImportOptions options;
        options.DefaultAccount = u"4711"_s;
        options.Table.Number = eNumberFormat::German;
        const QString text = u"!Type:Bank\nD31.1.26\nT%1\nPO'Brien\nMO'Brien\n^\n"_s.arg(amount);
        const cImportResult result = book.Read(text, options, u"a.qif"_s);
        QCOMPARE(QList<int>({result.Staged, result.Zero}),
                 outcome == eStaged::Staged ? QList<int>({1, 0}) : QList<int>({0, 1}));
        const cImportEntry stored = book.Data.GetImportEntries().value(0);
        QTEST(stored.ImportValue, "cents");
        if (stored.ID != 0) {
            QCOMPARE(stored.ImportBeneficiary, u"OBrien"_s);
            QCOMPARE(stored.ImportPurpose, u"O'Brien"_s);
        }
    }

    void ClassesAreNoCategories()
    {
        cReadingBook book;
        cTemplateItem power = modTemplate::NewCategory({}, u"Haus"_s, u"Strom/Gas"_s);
        QVERIFY(book.Data.AddNewTemplate(power));
        const QString text = u"!Type:Bank\nD1.1.26\nT-1\nL%1\n^\n"_s;
        cImportOptions options;
        options.DefaultAccount = u"4711"_s;
        QString file;
        for (const QString& category : {u"[Sparen]/Projekt 7"_s, u"[Sparen]/Neu"_s, u"[Sparen]/Weit:Weg"_s,
                                        u"Haus:Strom/Gas"_s, u"Neu:Reisen/Italien"_s}) {
            file += text.arg(category);
        }
        const cImportResult result = book.Read(file, options, u"a.qif"_s);
        QCOMPARE(result.Book.Categories.keys(),
                 QStringList({u"Haus; Strom/Gas"_s, u"Neu"_s, u"Neu; Reisen"_s, u"Weit; Weg"_s}));
        QCOMPARE(result.Book.Accounts, QStringList(u"Sparen"_s));
    }

    void SeesWritesOfOthers()
    {
        cReadingBook book;
        QCOMPARE(book.Read(Many(4)).Staged, 4);
        book.WriteBehind("DELETE FROM import WHERE ID = 2");
        QCOMPARE(book.Hive.GetImportHive(eKeepCache::Yes).Count(), 4);
        QCOMPARE(book.Hive.GetImportHive().Count(), 3);
        QCOMPARE(book.Read(Many(4)).Staged, 1); // the deleted row comes back
        QVERIFY(book.Hive.Remove(1));
        QCOMPARE(book.Hive.GetImportHive(eKeepCache::Yes).Count(), 3);
        QVERIFY(book.Data.DeleteAllImports());
        QCOMPARE(book.Hive.GetImportHive().Count(), 0);
    }
};

TEST_CLASS(testStatementImport, QCoreApplication)
#include "testStatementImport.moc"
