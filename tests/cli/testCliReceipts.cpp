#include "cCliRun.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

// Files that hang at entries and accounts, from the command line, end to end.
class testCliReceipts final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void ReceiptsThereAndBack() const;
    void PapersThereAndBack() const;
};

void testCliReceipts::initTestCase()
{
    static const QTemporaryDir home; // with a trash of its own
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
}

void testCliReceipts::ReceiptsThereAndBack() const
{
    const QTemporaryDir folder;
    const auto run = [&](const QString& line) { return cCliRun::Line(folder.path(), line); };
    const QString file = folder.filePath(u"Rechnung.pdf"_s);
    cTestFile::Write(file, "eins");
    (void)cCliRun::GoodLine(folder.path(), u"add|--amount|5|--category|Haushalt|--text|Markt|--date|2026-03-10"_s);
    (void)cCliRun::GoodLine(folder.path(), u"receipts|add|1|"_s + file);
    const QString name = u"2026-03-10 Markt 4c0d5d.pdf"_s;
    QCOMPARE(run(u"receipts|1|--json"_s).Column(u"Receipt"_s), QStringList(name));
    QCOMPARE(run(u"receipts|missing"_s).Code, 0);
    QCOMPARE(run(u"receipts|add|1|"_s + folder.filePath(u"keine.pdf"_s)).Code, 1);

    // A backup elsewhere brings the receipts back; what cannot be copied is told beside the backup that is good.
    const QString book = folder.filePath(u"Veltrino Kontorelle"_s);
    const QString backup = folder.filePath(u"weg/Kontorelle-2026-03-15.backup"_s);
    cTestFile::Run(book + u"/data.db"_s,
                   "INSERT OR REPLACE INTO setting (SettingName, SettingValue) VALUES ('BelegeSichern', 'Wahr')");
    QCOMPARE(run(u"backup|"_s + backup).Code, 0);
    QVERIFY(QDir(book + u"/Belege"_s).removeRecursively());
    const cCliRun missing = run(u"receipts|missing|--json"_s);
    QCOMPARE(missing.Code, 1);
    QCOMPARE(missing.Column(u"Receipt"_s), QStringList(name));
    QCOMPARE(run(u"restore|%1|--yes"_s.arg(backup)).Code, 0);
    QCOMPARE(run(u"receipts|missing"_s).Code, 0);
    QVERIFY(QDir(folder.filePath(u"voll"_s)).mkpath(u"."_s));
    const QStringList copies = QDir(folder.filePath(u"weg"_s)).entryList({u"*-Belege"_s}, QDir::Dirs);
    QCOMPARE(copies.size(), 1);
    cTestFile::Write(folder.filePath(u"voll/"_s + copies.first()), "a file where the folder should be");
    const cCliRun told = run(u"backup|"_s + folder.filePath(u"voll/Kontorelle-2026-03-15.backup"_s));
    QCOMPARE(told.Code, 1);
    QVERIFY2(told.Out.contains("1 Eintrag"_L1) && told.Error.startsWith("Der Ordner '"_L1), qPrintable(told.Text()));

    QCOMPARE(run(u"receipts|remove|1|"_s + name).Code, 1); // nobody said yes
    QCOMPARE(run(u"receipts|remove|1|%1|--yes"_s.arg(name)).Code, 0);
    QVERIFY(run(u"receipts|--json"_s).Json().isEmpty());
    QVERIFY(QDir(book + u"/Belege"_s).isEmpty());
}

void testCliReceipts::PapersThereAndBack() const
{
    const QTemporaryDir folder;
    const auto run = [&](const QString& line) { return cCliRun::Line(folder.path(), line); };
    const QString statement = folder.filePath(u"a.csv"_s);
    cTestFile::Write(statement, "Buchungstag;Betrag;Verwendungszweck\n03.02.2026;-4,20;Brezeln\n");
    (void)cCliRun::GoodLine(folder.path(), u"import|--account|4711|--book-account|Girokonto|"_s + statement);
    const QString file = folder.filePath(u"download.pdf"_s);
    cTestFile::Write(file, "%PDF-1.4");
    const cCliRun asked = run(u"statement|add-paper|"_s + file);
    QVERIFY2(asked.Code == 1 && asked.Error.contains("--month"_L1), qPrintable(asked.Text()));
    QCOMPARE(run(u"statement|add-paper|--month|Ostern|"_s + file).Code, 2);
    (void)cCliRun::GoodLine(folder.path(), u"statement|add-paper|--month|03.2026|"_s + file);
    (void)cCliRun::GoodLine(folder.path(), u"import|--account|4712|--book-account|Girokonto|"_s + statement);
    QCOMPARE(run(u"statement|add-paper|--month|04.2026|--account|girokonto|"_s + file).Code, 1); // which of the two?
    (void)cCliRun::GoodLine(folder.path(), u"statement|add-paper|--month|04.2026|--account|4712|"_s + file);
    const cCliRun listed = run(u"statement|papers|--account|girokonto|--json"_s);
    QCOMPARE(listed.Column(u"Month"_s), QStringList({u"2026-03"_s, u"2026-04"_s}));
    const QString name = listed.Column(u"Paper"_s).value(0);
    QCOMPARE(run(u"statement|remove-paper|%1|--yes"_s.arg(name)).Code, 0);
    const QString other = run(u"statement|papers|--json"_s).Column(u"Paper"_s).value(0);
    QCOMPARE(run(u"statement|remove-paper|%1|--account|girokonto|--yes"_s.arg(other)).Code, 0);
    QVERIFY(run(u"statement|papers|--json"_s).Json().isEmpty());
    QVERIFY(QDir(folder.filePath(u"Veltrino Kontorelle/Belege"_s)).isEmpty());
}

TEST_CLASS(testCliReceipts, QCoreApplication)
#include "testCliReceipts.moc"
