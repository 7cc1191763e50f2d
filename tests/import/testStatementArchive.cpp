#include "cImportBook.h"
#include "import/stage/modStatementArchive.h"
#include "import/stage/modStatementFormat.h"
#include "support/cTestClass.h"

#include <minizip/zip.h>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

using cFiles = QList<std::pair<QString, QByteArray>>;

QByteArray Zip(const cFiles& files)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.zip"_s);
    zipFile zip = zipOpen64(QFile::encodeName(path).constData(), APPEND_STATUS_CREATE);
    for (const auto& [name, content] : files) {
        zipOpenNewFileInZip(zip, name.toLatin1().constData(), nullptr, nullptr, 0, nullptr, 0, nullptr, Z_DEFLATED, 6);
        zipWriteInFileInZip(zip, content.constData(), static_cast<unsigned int>(content.size()));
        zipCloseFileInZip(zip);
    }
    zipClose(zip, nullptr);
    return cTestFile::Bytes(path);
}

QByteArray Fixture(const QString& name)
{
    return cTestFile::Bytes(QStringLiteral(TEST_DATA "/") + name);
}

constexpr const char* table = "Datum;Verwendungszweck;Betrag\n03.02.2026;Kiosk;-4,20\n04.02.2026;vorgemerkt;x\n";

} // namespace

class testStatementArchive : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Reads_data()
    {
        // text: of the refusal, else of the first problem or row left out
        const cTestRows<cFiles, int, QString> row("files", "rows", "text");
        const std::pair<QString, QByteArray> swift{u"b/giro.sta"_s, Fixture(u"mt940/giro.sta"_s)};
        const std::pair<QString, QByteArray> csv{u"a.csv"_s, table};
        row("two formats", cFiles{swift, csv}, 7, u"a.csv: Der Betrag ist keine Zahl"_s);
        row("columns without names", cFiles{swift, {u"a.csv"_s, "03.02.2026;Kiosk;-4,20\n04.02.2026;Kino;-9,00\n"}}, 8,
            u"a.csv: Die Spalten sind aus dem Inhalt geraten"_s);
        row("a letter beside it", cFiles{swift, {u"Hinweis.pdf"_s, "%PDF"}}, 6, u"Hinweis.pdf: Dieses"_s);
        row("a text beside it", cFiles{swift, {u"a.txt"_s, "Guten Tag"}}, 6, u"a.txt: In der Datei"_s);
        row("what a system puts beside it", cFiles{swift, {u"__MACOSX/b/._giro.sta"_s, "x"}, {u".DS_Store"_s, "x"}}, 6,
            {});
        row("an archive within", cFiles{swift, {u"c.zip"_s, Zip({csv})}}, 6, u"c.zip: Dieses Format"_s);
        row("nothing to read", cFiles{{u"a.pdf"_s, "%PDF"}}, 0, u"Im ZIP-Archiv ist kein"_s);
        row("a message of another kind", cFiles{swift, {u"a.xml"_s, "<Document><CstmrCdtTrfInitn/></Document>"}}, 0,
            u"Die Datei 'a.xml'"_s);
        row("damaged statement", cFiles{swift, {u"a.ofx"_s, "<OFX><BANKTRANLIST><STMTTRN></OFX>"}}, 0,
            u"Die Datei 'a.ofx'"_s);
    }

    void Reads()
    {
        QFETCH(cFiles, files);
        QFETCH(int, rows);
        QFETCH(QString, text);
        const cStatementSource source = modStatementFormat::Source(u"a.zip"_s, Zip(files));
        QCOMPARE(modStatementFormat::Detect(source), eStatementFormat::Archive);
        cReadOptions options;
        options.Account = u"1"_s;
        const cStatementRead read = modStatementArchive::Read(source, options);
        QCOMPARE(read.Entries.size(), rows);
        const cReadProblem first = read.Problems.value(0, read.Skipped.value(0).Reason);
        const QString said = read.Refusal.isEmpty() ? first.Text : read.Refusal;
        QVERIFY2(text.isEmpty() ? said.isEmpty() : said.startsWith(text), qPrintable(said));
    }

    // The same month as MT940, which names the account by its number, and as camt.
    void FormatsOfOneAccountAreOneAccount()
    {
        QByteArray swift = Fixture(u"camt/giro.sta"_s);
        swift.replace("DE02100200300001234567", "10020030/0001234567");
        const cTestFile folder;
        const QString path = folder.Path(u"a.zip"_s);
        cTestFile::Write(path, Zip({{u"a.sta"_s, swift}, {u"b.xml"_s, Fixture(u"camt/giro.xml"_s)}}));
        cImportBook book;
        cNoProgress progress;
        const cImportResult result = cStatementImport(book.Data, book.Hive).ImportFile(path, {}, progress);
        QCOMPARE(result.Accounts, QStringList(u"DE02100200300001234567"_s));
        QCOMPARE(result.ByFormat.size(), 2);
        QCOMPARE(result.ByFormat.constLast().Format, eStatementFormat::Camt);
    }

    // Beside them, those of a statement are asked about all the same.
    void EqualRowsOfABookAreReal()
    {
        const cTestFile folder;
        const QString path = folder.Path(u"a.zip"_s);
        const QByteArray twice = "D5.1.26\nT-3\nPParkhaus\nLAuto\n^\n";
        cTestFile::Write(path,
                         Zip({{u"a.qif"_s, "!Account\nNAlpha\n^\n!Type:Bank\n" + twice + twice},
                              {u"b.csv"_s,
                               "IBAN;Buchungstag;Verwendungszweck;Betrag\nDE02100200300001234567;05.01.2026;Bus;-2,00\n"
                               "DE02100200300001234567;05.01.2026;Bus;-2,00\n"}}));
        cImportBook book;
        cNoProgress progress;
        const cImportResult result = cStatementImport(book.Data, book.Hive).ImportFile(path, {}, progress);
        QVERIFY2(result.Message.isEmpty(), qPrintable(result.Message));
        QCOMPARE(result.Staged, 3);
        QCOMPARE(result.Repeats.size(), 1);
        QCOMPARE(result.Book.Accounts, QStringList(u"Alpha"_s));
    }

    // An account given once must not take in the statements of several.
    void AccountsAreNotMixed()
    {
        const QByteArray one = Zip({{u"a.csv"_s, table}});
        QVERIFY(modStatementArchive::Read({u"a.zip"_s, one, {}}, {}).NeedsAccount);
        const QByteArray two = Zip({{u"a.csv"_s, table}, {u"b.csv"_s, table}});
        QVERIFY(modStatementArchive::Read({u"a.zip"_s, two, {}}, {}).Refusal.startsWith(u"Mehrere Dateien"));
    }
};

TEST_CLASS(testStatementArchive, QCoreApplication)
#include "testStatementArchive.moc"
