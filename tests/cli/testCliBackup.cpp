#include "app/machine/cQtRegistry.h"
#include "cCliRun.h"
#include "core/cConfiguration.h"
#include "core/modPassword.h"
#include "support/cTestClass.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

// The commands around whole books, end to end.
class testCliBackup final : public QObject, cCliBooks
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Renew();
        Do(u"balances"_s); // makes the book
        AddEntry();
    }

    void ThereAndBack()
    {
        const QString backup = Path(u"one.backup"_s);
        Says(u"backup|"_s + backup, {u"one.backup: 1 Eintrag, der letzte vom 31.01.2026"_s});
        QVERIFY(!QFile::permissions(backup).testAnyFlags(QFile::ReadGroup | QFile::ReadOther));
        QVERIFY(!QFile::permissions(Book()).testAnyFlags(QFile::ReadGroup | QFile::ReadOther));
        AddEntry();
        const cCliRun asked = Run(u"restore|"_s + backup);
        QCOMPARE(asked.Code, 1);
        QVERIFY2(asked.Out.contains("1 Eintrag"_L1) && asked.Out.contains(u"2 Einträge"_s), qPrintable(asked.Out));
        QVERIFY(asked.Error.contains("--yes"_L1));
        QCOMPARE(Entries(), u"2"_s);
        Says(u"restore|%1|--yes"_s.arg(backup), {u".ersetzt"_s});
        QCOMPARE(Entries(), u"1"_s);
    }

    void CopiesByItself()
    {
        const QDir copies(Path(u"Veltrino Kontorelle/Sicherungen"_s));
        Do(u"entries"_s);
        QVERIFY(!copies.exists()); // who only reads leaves no traces
        for (int i = 0; i < 2; ++i) {
            Do(u"add|--amount|5|--category|Haushalt"_s);
            QCOMPARE(copies.entryList(QDir::Files).size(), 1);
        }
        Do(u"import|--account|4711|"_s
           + Write(u"a.csv"_s, "Buchungstag;Betrag;Verwendungszweck\n03.02.2026;-4,20;Brezeln\n"));
        QCOMPARE(copies.entryList(QDir::Files).size(), 2);
    }

    void NothingIsReplacedUnasked()
    {
        const QString backup = Path(u"old.backup"_s);
        cTestFile::Write(backup, "old");
        QCOMPARE(Run(u"backup|"_s + backup).Code, 1);
        QCOMPARE(cTestFile::Bytes(backup), QByteArray("old"));
        QVERIFY(Run(u"restore|%1|--yes"_s.arg(backup)).Error.contains(u"beschädigt"_s));
        QVERIFY(Run(u"restore|%1|--yes"_s.arg(Book())).Error.contains("die Datenbank selbst"_L1));
        Do(u"backup|%1|--yes"_s.arg(backup));
        QCOMPARE(Entries(), u"1"_s);
    }

    // A book that no command can open any more is what backups are for. Without its settings nobody knows whether it
    // has a password.
    void DamagedBook()
    {
        const QString backup = Path(u"one.backup"_s);
        Do(u"accounts|add|Tagesgeld"_s); // who writes first gives the book its settings
        Do(u"backup|"_s + backup);
        for (const bool isWhole : {true, false}) {
            if (isWhole) {
                cTestFile::Write(Book(), QByteArray("damaged").repeated(300));
            } else {
                cTestFile::Damage(Book(), "setting");
            }
            Refuses(u"balances"_s, {u"restore DATEI"_s});
            Says(u"restore|%1|--yes"_s.arg(backup), {u"beschädigt"_s});
            QCOMPARE(Entries(), u"1"_s);
        }
    }

    void DamageIsSaid()
    {
        cTestFile::Damage(Book(), "import");
        const cCliRun listed = Run(u"staged"_s);
        QCOMPARE(listed.Code, 1);
        QVERIFY2(listed.Error.contains(u"restore DATEI"_s), qPrintable(listed.Error));
        QVERIFY(!Run(u"check"_s).Out.contains(u"gültige"_s));
    }

    void ForgottenPassword()
    {
        cQtRegistry registry(Path({}));
        QVERIFY(registry.Write(cConfiguration::RegistryKey, u"PasswortAktiv"_s, u"True"_s));
        QVERIFY(registry.Write(cConfiguration::RegistryKey, u"Passwort"_s, modPassword::ToStored(u"geheim"_s)));
        QCOMPARE(Run(u"backup"_s).Code, 1);
        QVERIFY(Run(u"password"_s).Out.contains("mit Passwort"_L1));
        QCOMPARE(Run(u"balances"_s).Code, 1);
        Do(u"password|--remove"_s);
        Do(u"balances"_s);
        QVERIFY(Run(u"password"_s).Out.contains("ohne Passwort"_L1));
    }

private:
    [[nodiscard]] QString Entries() const { return Value("SELECT COUNT(*) FROM data"); }
    void AddEntry() const { cTestFile::Run(Book(), "INSERT INTO data (EntryDate) VALUES ('2026-01-31')"); }
};

TEST_CLASS(testCliBackup, QCoreApplication)
#include "testCliBackup.moc"
