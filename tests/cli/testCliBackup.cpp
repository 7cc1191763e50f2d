#include "app/machine/cQtRegistry.h"
#include "cCliRun.h"
#include "core/cConfiguration.h"
#include "core/modPassword.h"
#include "store/cDatabase.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

// The commands around whole books, end to end.
class testCliBackup final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void ThereAndBack();
    void CopiesByItself();
    void NothingIsReplacedUnasked();
    void DamagedBook();
    void DamageIsSaid();
    void ForgottenPassword();

private:
    // Runs with a profile of its own in the temporary folder.
    [[nodiscard]] cCliRun Run(const QStringList& arguments) const;
    [[nodiscard]] QString Path(const QString& name) const { return m_folder->filePath(name); }
    [[nodiscard]] QString Book() const { return Path(u"Veltrino Kontorelle/data.db"_s); }
    [[nodiscard]] QString Entries() const;
    void AddEntry() const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void testCliBackup::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QCOMPARE(Run({u"balances"_s}).Code, 0); // makes the book
    AddEntry();
}

cCliRun testCliBackup::Run(const QStringList& arguments) const
{
    return cCliRun::Start(QStringLiteral(CLI_PROGRAM), QStringList{u"--profile"_s, m_folder->path()} + arguments);
}

QString testCliBackup::Entries() const
{
    cDatabase database;
    database.Open(Book(), eOpenMode::ReadOnly);
    return cTestFile::Value(database, "SELECT COUNT(*) FROM data");
}

void testCliBackup::AddEntry() const
{
    cTestFile::Run(Book(), "INSERT INTO data (EntryDate) VALUES ('2026-01-31')");
}

void testCliBackup::ThereAndBack()
{
    const QString backup = Path(u"one.backup"_s);
    const cCliRun made = Run({u"backup"_s, backup});
    QVERIFY2(made.Code == 0, qPrintable(made.Error));
    QVERIFY2(made.Out.contains("one.backup: 1 Eintrag, der letzte vom 31.01.2026"_L1), qPrintable(made.Out));
    QVERIFY(!QFile::permissions(backup).testAnyFlags(QFile::ReadGroup | QFile::ReadOther));
    QVERIFY(!QFile::permissions(Book()).testAnyFlags(QFile::ReadGroup | QFile::ReadOther));
    AddEntry();
    const cCliRun asked = Run({u"restore"_s, backup});
    QCOMPARE(asked.Code, 1);
    QVERIFY2(asked.Out.contains("1 Eintrag"_L1) && asked.Out.contains(u"2 Einträge"_s), qPrintable(asked.Out));
    QVERIFY(asked.Error.contains("--yes"_L1));
    QCOMPARE(Entries(), u"2"_s);
    const cCliRun restored = Run({u"restore"_s, backup, u"--yes"_s});
    QVERIFY2(restored.Code == 0, qPrintable(restored.Error));
    QVERIFY(restored.Out.contains(".ersetzt"_L1));
    QCOMPARE(Entries(), u"1"_s);
}

void testCliBackup::CopiesByItself()
{
    const QDir copies(Path(u"Veltrino Kontorelle/Sicherungen"_s));
    QCOMPARE(Run({u"entries"_s}).Code, 0);
    QVERIFY(!copies.exists()); // who only reads leaves no traces
    const QStringList add{u"add"_s, u"--amount"_s, u"5"_s, u"--category"_s, u"Haushalt"_s};
    for (int i = 0; i < 2; ++i) {
        const cCliRun added = Run(add);
        QVERIFY2(added.Code == 0, qPrintable(added.Error));
        QCOMPARE(copies.entryList(QDir::Files).size(), 1);
    }
    const QString statement = Path(u"a.csv"_s);
    cTestFile::Write(statement, "Buchungstag;Betrag;Verwendungszweck\n03.02.2026;-4,20;Brezeln\n");
    const cCliRun imported = Run({u"import"_s, statement, u"--account"_s, u"4711"_s});
    QVERIFY2(imported.Code == 0, qPrintable(imported.Error));
    QCOMPARE(copies.entryList(QDir::Files).size(), 2);
}

void testCliBackup::NothingIsReplacedUnasked()
{
    const QString backup = Path(u"old.backup"_s);
    cTestFile::Write(backup, "old");
    QCOMPARE(Run({u"backup"_s, backup}).Code, 1);
    QCOMPARE(cTestFile::Bytes(backup), QByteArray("old"));
    QVERIFY(Run({u"restore"_s, backup, u"--yes"_s}).Error.contains(u"beschädigt"_s));
    QVERIFY(Run({u"restore"_s, Book(), u"--yes"_s}).Error.contains("die Datenbank selbst"_L1));
    QCOMPARE(Run({u"backup"_s, backup, u"--yes"_s}).Code, 0);
    QCOMPARE(Entries(), u"1"_s);
}

// A book that no command can open any more is what backups are for.
void testCliBackup::DamagedBook()
{
    const QString backup = Path(u"one.backup"_s);
    QCOMPARE(Run({u"backup"_s, backup}).Code, 0);
    cTestFile::Write(Book(), QByteArray("damaged").repeated(300));
    const cCliRun restored = Run({u"restore"_s, backup, u"--yes"_s});
    QVERIFY2(restored.Code == 0 && restored.Out.contains(u"beschädigt"_s), qPrintable(restored.Error));
    QCOMPARE(Entries(), u"1"_s);
}

void testCliBackup::DamageIsSaid()
{
    cTestFile::Damage(Book(), "import");
    const cCliRun listed = Run({u"staged"_s});
    QCOMPARE(listed.Code, 1);
    QVERIFY2(listed.Error.contains(u"restore DATEI"_s), qPrintable(listed.Error));
}

void testCliBackup::ForgottenPassword()
{
    cQtRegistry registry(m_folder->path());
    QVERIFY(registry.Write(cConfiguration::RegistryKey, u"PasswortAktiv"_s, u"True"_s));
    QVERIFY(registry.Write(cConfiguration::RegistryKey, u"Passwort"_s, modPassword::ToStored(u"geheim"_s)));
    QCOMPARE(Run({u"backup"_s}).Code, 1);
    QVERIFY(Run({u"password"_s}).Out.contains("mit Passwort"_L1));
    QCOMPARE(Run({u"balances"_s}).Code, 1);
    QCOMPARE(Run({u"password"_s, u"--remove"_s}).Code, 0);
    QCOMPARE(Run({u"balances"_s}).Code, 0);
    QVERIFY(Run({u"password"_s}).Out.contains("ohne Passwort"_L1));
}

TEST_CLASS(testCliBackup, QCoreApplication)
#include "testCliBackup.moc"
