#include "cCliRun.h"
#include "support/cTestClass.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

// Files that hang at entries and accounts, from the command line, end to end.
class testCliReceipts final : public QObject, cCliBooks
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        static const QTemporaryDir home; // with a trash of its own
        qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
    }

    void init() { Renew(); }
    void ReceiptsThereAndBack() const
    {
        const QString file = Write(u"Rechnung.pdf"_s, "eins");
        Do(u"add|--amount|5|--category|Haushalt|--text|Markt|--date|2026-03-10"_s);
        Do(u"receipts|add|1|"_s + file);
        const QString name = u"2026-03-10 Markt 4c0d5d.pdf"_s;
        QCOMPARE(Run(u"receipts|1|--json"_s).Column(u"Receipt"_s), QStringList(name));
        Do(u"receipts|missing"_s);
        QCOMPARE(Run(u"receipts|add|1|"_s + Path(u"keine.pdf"_s)).Code, 1);

        // A backup elsewhere brings the receipts back; what cannot be copied is told beside the backup that is good.
        const QString book = Path(u"Veltrino Kontorelle"_s);
        const QString backup = Path(u"weg/Kontorelle-2026-03-15.backup"_s);
        cTestFile::Run(book + u"/data.db"_s,
                       "INSERT OR REPLACE INTO setting (SettingName, SettingValue) VALUES ('BelegeSichern', 'Wahr')");
        Do(u"backup|"_s + backup);
        QVERIFY(QDir(book + u"/Belege"_s).removeRecursively());
        const cCliRun missing = Run(u"receipts|missing|--json"_s);
        QCOMPARE(missing.Code, 1);
        QCOMPARE(missing.Column(u"Receipt"_s), QStringList(name));
        Do(u"restore|%1|--yes"_s.arg(backup));
        Do(u"receipts|missing"_s);
        QVERIFY(QDir(Path(u"voll"_s)).mkpath(u"."_s));
        const QStringList copies = QDir(Path(u"weg"_s)).entryList({u"*-Belege"_s}, QDir::Dirs);
        QCOMPARE(copies.size(), 1);
        cTestFile::Write(Path(u"voll/"_s + copies.first()), "a file where the folder should be");
        const cCliRun told = Run(u"backup|"_s + Path(u"voll/Kontorelle-2026-03-15.backup"_s));
        QCOMPARE(told.Code, 1);
        QVERIFY2(told.Out.contains("1 Eintrag"_L1) && told.Error.startsWith("Der Ordner '"_L1),
                 qPrintable(told.Text()));

        QCOMPARE(Run(u"receipts|remove|1|"_s + name).Code, 1); // nobody said yes
        Do(u"receipts|remove|1|%1|--yes"_s.arg(name));
        QVERIFY(Run(u"receipts|--json"_s).Json().isEmpty());
        QVERIFY(QDir(book + u"/Belege"_s).isEmpty());
    }

    void PapersThereAndBack() const
    {
        const QString statement = Write(u"a.csv"_s, "Buchungstag;Betrag;Verwendungszweck\n03.02.2026;-4,20;Brezeln\n");
        Do(u"import|--account|4711|--book-account|Girokonto|"_s + statement);
        const QString file = Write(u"download.pdf"_s, "%PDF-1.4");
        Refuses(u"statement|add-paper|"_s + file, {u"--month"_s});
        QCOMPARE(Run(u"statement|add-paper|--month|Ostern|"_s + file).Code, 2);
        Do(u"statement|add-paper|--month|03.2026|"_s + file);
        Do(u"import|--account|4712|--book-account|Girokonto|"_s + statement);
        QCOMPARE(Run(u"statement|add-paper|--month|04.2026|--account|girokonto|"_s + file).Code,
                 1); // which of the two?
        Do(u"statement|add-paper|--month|04.2026|--account|4712|"_s + file);
        const cCliRun listed = Run(u"statement|papers|--account|girokonto|--json"_s);
        QCOMPARE(listed.Column(u"Month"_s), QStringList({u"2026-03"_s, u"2026-04"_s}));
        const QString name = listed.Column(u"Paper"_s).value(0);
        Do(u"statement|remove-paper|%1|--yes"_s.arg(name));
        const QString other = Run(u"statement|papers|--json"_s).Column(u"Paper"_s).value(0);
        Do(u"statement|remove-paper|%1|--account|girokonto|--yes"_s.arg(other));
        QVERIFY(Run(u"statement|papers|--json"_s).Json().isEmpty());
        QVERIFY(QDir(Path(u"Veltrino Kontorelle/Belege"_s)).isEmpty());
    }
};

TEST_CLASS(testCliReceipts, QCoreApplication)
#include "testCliReceipts.moc"
