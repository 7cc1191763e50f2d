#include "base/modAmount.h"
#include "cImportBook.h"
#include "import/mt940/modMT940.h"
#include "import/stage/cBankBalances.h"
#include "import/stage/cStatementImport.h"
#include "store/cUndoStep.h"
#include "support/cTestClass.h"

#include <QTest>

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
        text += u"<STMTTRN><DTPOSTED>2026010%1<TRNAMT>-5<NAME>%2<MEMO>Kartenzahlung</STMTTRN>"_s
                    .arg(shop.endsWith(u"+1"_s) ? 2 : 1)
                    .arg(shop.section(u'+', 0, 0));
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
        cImportBook book;
        cStatementImport import(book.Data, book.Hive);
        cNoProgress progress;
        const cImportResult first = import.ImportFile(fixture, {}, progress);
        QCOMPARE(first.Format, u"SWIFT-Kontoauszug (MT940/MT942-Datei)"_s);
        QCOMPARE(QList<int>({first.Read, first.Staged, first.Zero, first.Failed}), QList<int>({6, 5, 1, 0}));
        QCOMPARE(first.ClosingBalance, std::optional<qint64>(520000));
        QCOMPARE(first.Accounts, QStringList({u"1234567"_s, u"7654321"_s}));
        const cImportResult second = import.ImportFile(fixture, {}, progress);
        QCOMPARE(second.Staged, 0);
        QCOMPARE(second.Duplicates.size(), 5);
        QCOMPARE(import.ImportFile(fixture, {eDuplicateTest::Skip, {}}, progress).Staged, 5);
        QCOMPARE(book.Data.GetImportEntries(), book.Hive.GetImportHive().getImportEntryList());
    }

    void RefusesWhatIsNoStatement_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("message");
        QTest::newRow("empty") << u"a.sta"_s << QByteArray() << u"Die Datei ist leer"_s;
        QTest::newRow("binary") << u"a.sta"_s
                                << QByteArray("\x7F"
                                              "ELF\0\0:20::61::86:",
                                              18)
                                << u"Unbekanntes Dateiformat"_s;
        QTest::newRow("spreadsheet") << u"a.xls"_s << QByteArray("\xD0\xCF\0", 3)
                                     << u"ist beschädigt oder keine Arbeitsmappe"_s;
        QTest::newRow("text") << u"a.txt"_s << QByteArray("Hallo") << u"keine Spalten mit Datum und Betrag"_s;
        QTest::newRow("PDF") << u"a.pdf"_s << QByteArray("%PDF") << u"kann nicht eingelesen werden: Portable"_s;
    }

    void RefusesWhatIsNoStatement()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, message);
        cImportBook book;
        QTemporaryDir folder;
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        cNoProgress progress;
        const cImportResult result = cStatementImport(book.Data, book.Hive).ImportFile(file.fileName(), {}, progress);
        QVERIFY(result.IsRefused);
        QVERIFY2(result.Message.contains(message), qPrintable(result.Message));
        QVERIFY(book.User.Shown.isEmpty());
    }

    void MissingFileIsRefused()
    {
        cImportBook book;
        cNoProgress progress;
        const cImportResult result =
            cStatementImport(book.Data, book.Hive).ImportFile(u"/nirgends/x.sta"_s, {}, progress);
        QVERIFY(result.IsRefused && result.Message.startsWith(u"Die Datei kann nicht geöffnet werden"));
    }

    // A text or an amount that lacks its end would come again whole with the next file.
    void FilesAreCutOff_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("read"); // rows, and those left out because of it
        const QString end = u":62F:C260101EUR0,00\r\n-\r\n"_s;
        const QString open = Many(3).chopped(end.size());
        QTest::newRow("within a tag") << u"a.sta"_s << open.left(open.lastIndexOf(u":61:") + 2) << u"refused"_s;
        QTest::newRow("within details") << u"a.sta"_s << open.chopped(3) << u"refused"_s;
        QTest::newRow("behind whole statements") << u"a.sta"_s << Many(1) + open << u"refused"_s;
        QTest::newRow("in the head of a statement")
            << u"a.sta"_s << Many(3) + u":20:B\r\n:25:1\r\n:6"_s << u"refused"_s;
        QTest::newRow("perhaps, at the end of a line") << u"a.sta"_s << open << u"2 -1"_s;
        QTest::newRow("ended without a balance") << u"a.sta"_s << open + u"-\r\n"_s << u"3"_s;
        QTest::newRow("ended by an empty line") << u"a.sta"_s << open + u"\r\n"_s << u"3"_s;
        QTest::newRow("within the balance") << u"a.sta"_s << open + end.left(16) << u"3"_s;
        const QString head = u"Datum;Zweck;Betrag;Whg.\n02.10.2026;Brot;-2,50;EUR\n03.10.2026;Milch;-1,20;EUR\n"_s;
        QTest::newRow("no end of the line") << u"a.csv"_s << head + u"04.10.2026;Ei;-3,00;EUR"_s << u"3"_s;
        QTest::newRow("fewer cells") << u"a.csv"_s << head + u"04.10.2026;Ei;-3"_s << u"2 -1"_s;
        QTest::newRow("within a code") << u"a.csv"_s << head + u"04.10.2026;Ei;-3,00;EU"_s << u"2 -1"_s;
        QTest::newRow("within quotes") << u"a.csv"_s << head + u"04.10.2026;Ei;-3,00;\"EUR"_s << u"2 -1"_s;
        QTest::newRow("below its balance")
            << u"a.csv"_s << u"Kontostand vom 05.10.2026:;9,00 EUR\n\n"_s + head + u"04.10.2026;Ei;-3"_s << u"2 -1"_s;
        QTest::newRow("a balance at the end") << u"a.csv"_s << head + u"04.10.2026;Endsaldo"_s << u"2"_s;
        QTest::newRow("within an amount")
            << u"a.csv"_s << Purchases(u"1002 -200 1, 1003 -250 1, 1004 -120 1"_s, {}).chopped(3) << u"2 -1"_s;
        const QString qif = u"!Type:Bank\nD31.1.26\nT-1,00\nPAnna\n^\nD31.1.26\nT-2,00\nPBernd"_s;
        QTest::newRow("QIF within a payee") << u"a.qif"_s << qif << u"1 -1"_s;
        QTest::newRow("QIF before a payee") << u"a.qif"_s << qif.chopped(6) << u"1 -1"_s;
        QTest::newRow("QIF without its last mark") << u"a.qif"_s << qif + u'\n' << u"2"_s;
    }

    void FilesAreCutOff()
    {
        QFETCH(QString, name);
        QFETCH(QString, text);
        cImportBook book;
        cImportOptions options;
        options.DefaultAccount = u"7"_s;
        cNoProgress progress;
        const cImportResult result = cStatementImport(book.Data, book.Hive).ImportText(name, text, options, progress);
        const auto isCutOff = [](const cSkippedRow& row) { return row.Kind == eSkipped::CutOff; };
        const auto cutOff = std::count_if(result.Skipped.begin(), result.Skipped.end(), isCutOff);
        const QString rows = QString::number(book.Data.GetImportEntries().size());
        const QString read = result.IsRefused ? u"refused"_s : cutOff == 0 ? rows : u"%1 -%2"_s.arg(rows).arg(cutOff);
        QTEST(read, "read");
        QVERIFY(!result.ClosingBalance);
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
            return cStatementImport(book.Data, book.Hive).ImportText(u"a.sta"_s, text, options, progress);
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
    }

    // Of several files in one step, the one that was stopped goes and the others stay.
    void CancelTakesTheFileBack()
    {
        cImportBook book;
        cCancel progress(2);
        cStatementImport import(book.Data, book.Hive);
        {
            const cUndoStep step(book.Data, u"eingelesen"_s);
            QCOMPARE(import.ImportText(u"a"_s, Many(3), {}, progress).Staged, 3);
            const cImportResult result = import.ImportText(u"b"_s, Many(500), {}, progress);
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
        cImportBook book;
        cBankBalances balances(*book.Settings);
        cStatementImport import(book.Data, book.Hive, nullptr, &balances);
        cCancel cancelled(1);
        QVERIFY(import.ImportText(u"a"_s, Many(500), {}, cancelled).IsCancelled);
        cNoProgress progress;
        QCOMPARE(
            import.ImportText(u"a"_s, Many(5), {.DefaultAccount = {}, .Run = eStagingRun::Try}, progress).Rows.size(),
            5);
        QVERIFY(balances.Of(u"1"_s).isEmpty());
        QCOMPARE(import.ImportText(u"a"_s, Many(2), {}, progress).Staged, 2);
        QCOMPARE(balances.Of(u"1"_s), cBankBalanceList({{QDate(2025, 12, 31), 0}, {QDate(2026, 1, 1), 0}}));
        const QString table = u"Buchungstag;Verwendungszweck;Betrag;Saldo\n04.05.2026;C;-10,00;60,00\n"
                              "04.05.2026;B;-5,00;70,00\n02.05.2026;A;-25,00;75,00\n"_s;
        QCOMPARE(import.ImportText(u"a.csv"_s, table, {.DefaultAccount = u"2"_s}, progress).Staged, 3);
        QCOMPARE(balances.Of(u"2"_s),
                 cBankBalanceList({{QDate(2026, 5, 1), 10000}, {QDate(2026, 5, 2), 7500}, {QDate(2026, 5, 4), 6000}}));
    }

    void CountsEqualRows_data()
    {
        QTest::addColumn<QStringList>("files"); // newest transaction first; "@5000" behind: the balance after it
        QTest::addColumn<QList<int>>("staged"); // by each file
        QTest::addColumn<QList<int>>("repeats");
        QTest::newRow("nothing proves them") << QStringList{u"0503 -200 3"_s} << QList<int>{1} << QList<int>{2};
        QTest::newRow("balances do") << QStringList{u"0503 -200 3, 0502 -700 1@4000"_s,
                                                    u"0503 -200 3, 0502 -700 1@4000"_s}
                                     << QList<int>{4, 0} << QList<int>{0, 0};
        QTest::newRow("overlap, the second came later")
            << QStringList{u"0503 -200 1, 0502 -700 1@4000"_s, u"0503 -200 2, 0502 -700 1@3800"_s} << QList<int>{2, 1}
            << QList<int>{0, 0};
        QTest::newRow("known balances rule them out")
            << QStringList{u"0504 -100 1, 0503 -200 1, 0502 -700 1@4000"_s, u"0503 -200 2"_s} << QList<int>{3, 0}
            << QList<int>{0, 0};
        QTest::newRow("as many as before")
            << QStringList{u"0503 -200 1"_s, u"0503 -200 1"_s} << QList<int>{1, 0} << QList<int>{0, 0};
    }

    // What a file has more often than the book is real; the same file again brings nothing.
    void CountsEqualRows()
    {
        QFETCH(const QStringList, files);
        cImportBook book;
        cBankBalances balances(*book.Settings);
        cStatementImport import(book.Data, book.Hive, nullptr, &balances);
        cNoProgress progress;
        QList<int> staged;
        QList<int> repeats;
        for (const QString& file : files) {
            const QStringList parts = file.split(u'@');
            const std::optional<int> end = parts.size() > 1 ? std::optional(parts.at(1).toInt()) : std::nullopt;
            const cImportResult result =
                import.ImportText(u"a.csv"_s, Purchases(parts.at(0), end), {.DefaultAccount = u"1"_s}, progress);
            QVERIFY2(!result.IsRefused, qPrintable(result.Message));
            staged.append(result.Staged);
            repeats.append(static_cast<int>(result.Repeats.size()));
        }
        QTEST(staged, "staged");
        QTEST(repeats, "repeats");
    }

    void ReadOnlyDatabaseIsToldOnce()
    {
        cImportBook book;
        book.Database.Open(book.Path(), eOpenMode::ReadOnly);
        cNoProgress progress;
        const cImportResult result = cStatementImport(book.Data, book.Hive).ImportText(u"a"_s, Many(50), {}, progress);
        QVERIFY(result.IsRefused && result.Message.contains(u"nur zum Lesen"));
        QVERIFY(book.User.Shown.isEmpty());
    }

    // One refusal concerns one record, two in a row concern the database.
    void GivesUpOnARefusingDatabase()
    {
        cImportBook book;
        book.WriteBehind("CREATE TRIGGER full BEFORE INSERT ON import WHEN (SELECT COUNT(*) FROM import) >= 3 "
                         "OR NEW.ImportPurpose = 'Nummer 1' BEGIN SELECT RAISE(ABORT, 'voll'); END");
        cNoProgress progress;
        const cImportResult result = cStatementImport(book.Data, book.Hive).ImportText(u"a"_s, Many(50), {}, progress);
        QCOMPARE(QList<int>({result.Staged, result.Failed}), QList<int>({3, 47}));
        QCOMPARE(book.User.Shown.size(), 3);
        QVERIFY(result.Message.contains(u"47 Umsätze nicht angenommen"));
        QCOMPARE(result.Problems.last().Text, result.Message);
    }

    void OnlineTextReturnsClosingBalance()
    {
        cImportBook book;
        cNoProgress progress;
        cStatementImport import(book.Data, book.Hive);
        const QString text = u":20:A\r\n:61:260101D1,00NTRF\r\n:62F:D260101EUR12,34\r\n"_s;
        QCOMPARE(import.ImportMT940(progress, {}, text, u"4711"_s), -1234);
        QCOMPARE(book.Hive.GetImportHive().GetImportEntryCountByNumber(u"4711"_s), 1);
        QCOMPARE(import.ImportMT940(progress, {}, text + u":20:B\r\n:86:x\r\n", u"4711"_s), 0);
        QCOMPARE(import.ImportMT940(progress, {}, {}, {}), 0);
    }

    void KnowsAccountInItsOtherForm_data()
    {
        QTest::addColumn<QByteArray>("line"); // of the account in the file that is read first
        QTest::addColumn<QString>("account");
        QTest::addColumn<int>("duplicates");
        QTest::newRow("bank code and number") << QByteArray("10020030/0001234567") << u"1234567"_s << 3;
        QTest::newRow("number") << QByteArray("1234567") << u"1234567"_s << 3;
        QTest::newRow("IBAN") << QByteArray("DE02100200300001234567") << u"DE02100200300001234567"_s << 3;
        QTest::newRow("another account") << QByteArray("1234568") << u"1234568"_s << 0;
        QTest::newRow("the number at another bank") << QByteArray("50010517/0001234567") << u"1234567"_s << 0;
    }

    // The same month as MT940 and as camt, which names the account by its IBAN.
    void KnowsAccountInItsOtherForm()
    {
        QFETCH(const QByteArray, line);
        QFETCH(const QString, account);
        QFETCH(const int, duplicates);
        QFile file(QStringLiteral(TEST_DATA "/camt/giro.sta"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll().replace("DE02100200300001234567", line));
        cImportBook book;
        cNoProgress progress;
        cBankBalances balances(*book.Settings);
        cStatementImport import(book.Data, book.Hive, nullptr, &balances);
        QCOMPARE(import.ImportText(u"giro.sta"_s, text, {}, progress).Accounts, QStringList(account));
        const cImportResult second = import.ImportFile(QStringLiteral(TEST_DATA "/camt/giro.xml"), {}, progress);
        QCOMPARE(second.Duplicates.size() + second.Alike.size(), duplicates); // MT940 has the long texts in pieces
        QCOMPARE(second.Accounts, QStringList(duplicates > 0 ? account : u"DE02100200300001234567"_s));
        QCOMPARE(second.Skipped.first().Entry.ImportAccount, second.Accounts.first());
    }

    // The other way round; a household moves money between its two banks, and only one of the numbers is its own.
    void NumberOfAnotherBankIsAnotherAccount()
    {
        cImportBook book;
        cNoProgress progress;
        cBankBalances balances(*book.Settings);
        cStatementImport import(book.Data, book.Hive, nullptr, &balances);
        (void)import.ImportFile(QStringLiteral(TEST_DATA "/camt/giro.xml"), {}, progress);
        const QString text = u":20:A\r\n:25:50010517/1234567\r\n:61:260101D1,00NTRF\r\n:86:x\r\n"_s;
        QCOMPARE(import.ImportText(u"b.sta"_s, text, {}, progress).Accounts, QStringList(u"1234567"_s));
        QVERIFY(book.Accounts.Assign(u"DE02100200300001234567"_s, u"Girokonto"_s));
        QVERIFY(book.Accounts.Proposal(u"1234567"_s) != u"Girokonto"_s);
        QVERIFY(book.Accounts.Assign(u"1234567"_s, u"Sparkonto"_s));
        QCOMPARE(book.Accounts.OwnAccountOf(u"DE00500105170001234567"_s, {}), u"Sparkonto"_s);
        QCOMPARE(book.Accounts.OwnAccountOf(u"1234567"_s, u"20030040"_s), QString());
    }

    void TriesWithoutWriting()
    {
        cImportBook book;
        cNoProgress progress;
        cStatementImport import(book.Data, book.Hive);
        cImportOptions options;
        options.Run = eStagingRun::Try;
        const cImportResult tried = import.ImportFile(fixture, options, progress);
        QCOMPARE(QList<int>({tried.Read, tried.Staged, tried.Zero}), QList<int>({6, 5, 1}));
        QCOMPARE(import.ImportFile(fixture, options, progress).Duplicates.size(), 5); // as if the first had been staged
        QVERIFY(book.Data.GetImportEntries().isEmpty());
        QVERIFY(import.ImportFile(fixture, {}, progress).Rows.isEmpty());
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
        row("nothing to do with it", u"Kiosk+1"_s, u"Kiosk"_s, u"Kiosk"_s);
    }

    // Books that were filled before the names were read, with the next file, and that file once more.
    void KnowsRowsFromBeforeTheirNames()
    {
        QFETCH(const QStringList, before);
        QFETCH(const QStringList, now);
        QFETCH(const int, asked);
        cImportBook book;
        cNoProgress progress;
        cStatementImport import(book.Data, book.Hive);
        cImportOptions old;
        old.OfxPayee = eOfxPayee::Leave;
        QCOMPARE(import.ImportText(u"a.ofx"_s, CardPayments(before), old, progress).Staged, before.size());
        for (const bool isAgain : {false, true}) {
            const cImportResult result = import.ImportText(u"b.ofx"_s, CardPayments(now), {}, progress);
            QCOMPARE(result.Repeats.size(), asked);
            QVERIFY(!isAgain || result.Staged == 0);
        }
        QStringList names;
        const cImportEntryList rows = book.Data.GetImportEntries();
        for (const cImportEntry& staged : rows) {
            names.append(staged.ImportBeneficiary);
        }
        names.removeAll(QString());
        QTEST(names, "added");
        QCOMPARE(rows.size(), before.size() + names.size());
    }

    void StagesWholeCents_data()
    {
        QTest::addColumn<QString>("amount");
        QTest::addColumn<eStaged>("outcome");
        QTest::addColumn<qint64>("cents");
        QTest::newRow("rounded") << u"12,3449"_s << eStaged::Staged << qint64{1234};
        QTest::newRow("half to the even cent") << u"0,125"_s << eStaged::Staged << qint64{12};
        QTest::newRow("zero") << u"0,00"_s << eStaged::Zero << qint64{0};
        QTest::newRow("less than half a cent") << u"0,001"_s << eStaged::Zero << qint64{0};
    }

    void StagesWholeCents()
    {
        QFETCH(QString, amount);
        QFETCH(eStaged, outcome);
        QFETCH(qint64, cents);
        cImportBook book;
        cNoProgress progress;
        cImportOptions options;
        options.DefaultAccount = u"4711"_s;
        options.Table.Number = eNumberFormat::German;
        const QString text = u"!Type:Bank\nD31.1.26\nT%1\nPO'Brien\nMO'Brien\n^\n"_s.arg(amount);
        const cImportResult result =
            cStatementImport(book.Data, book.Hive).ImportText(u"a.qif"_s, text, options, progress);
        QCOMPARE(QList<int>({result.Staged, result.Zero}),
                 outcome == eStaged::Staged ? QList<int>({1, 0}) : QList<int>({0, 1}));
        const cImportEntry stored = book.Data.GetImportEntries().value(0);
        QCOMPARE(stored.ImportValue, cents);
        if (stored.ID != 0) {
            QCOMPARE(stored.ImportBeneficiary, u"OBrien"_s);
            QCOMPARE(stored.ImportPurpose, u"O'Brien"_s);
        }
    }

    void SeesWritesOfOthers()
    {
        cImportBook book;
        cNoProgress progress;
        cStatementImport import(book.Data, book.Hive);
        QCOMPARE(import.ImportText(u"a"_s, Many(4), {}, progress).Staged, 4);
        book.WriteBehind("DELETE FROM import WHERE ID = 2");
        QCOMPARE(book.Hive.GetImportHive(eKeepCache::Yes).Count(), 4);
        QCOMPARE(book.Hive.GetImportHive().Count(), 3);
        QCOMPARE(import.ImportText(u"a"_s, Many(4), {}, progress).Staged, 1); // the deleted row comes back
        QVERIFY(book.Hive.Remove(1));
        QCOMPARE(book.Hive.GetImportHive(eKeepCache::Yes).Count(), 3);
        QVERIFY(book.Data.DeleteAllImports());
        QCOMPARE(book.Hive.GetImportHive().Count(), 0);
    }
};

TEST_CLASS(testStatementImport, QCoreApplication)
#include "testStatementImport.moc"
