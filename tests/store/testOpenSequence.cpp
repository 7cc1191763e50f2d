#include "store/cDataAccess.h"
#include "store/cOpenSequence.h"
#include "store/modSchema.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"
#include "support/fakes.h"

#include <QScopeGuard>

#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const char* oneEntry = "INSERT INTO data (ID, EntryAccount) VALUES (1, 'Giro');";
constexpr const char* lastOpenedByUs =
    "CREATE TABLE setting (ID INTEGER PRIMARY KEY, SettingName TEXT UNIQUE, SettingValue TEXT, SettingDefault TEXT);"
    "INSERT INTO setting (SettingName, SettingValue) VALUES ('LastVersion', '0.1.0');";

const QString damaged = u"Dies ist keine Datenbank. "_s.repeated(50);

// A machine with a template and one database file.
struct cMachine
{
    cMachine() { cTestFile::Run(Template(), std::string(cTestFile::Tables)); }

    [[nodiscard]] QString Template() const { return Shell.InstalledFile(u"template.dat"_s); }
    [[nodiscard]] QString Path() const { return file.Path(); }

    eOpenResult Run(eOrigin origin = eOrigin::Existing) { return Sequence.Run(Path(), origin); }

    // The files beside the database, without the database itself.
    [[nodiscard]] QStringList Others() const
    {
        QStringList names = QDir(file.Folder()).entryList(QDir::Files, QDir::Name);
        names.removeAll(u"data.db"_s);
        return names;
    }

    [[nodiscard]] int Entries()
    {
        cDataAccess data(Database, User);
        return data.CountEntries();
    }

    cTestFile file;
    cFakeShell Shell;
    cFakeUser User;
    cFakeRescue Rescue;
    cDatabase Database{0};
    cOpenSequence Sequence{Database, {Shell, User, Rescue}, u"0.1.0"_s, QDate(2026, 3, 15)};
};

// Nobody refuses the administrator anything, so permissions are tested as somebody else.
auto AsOrdinaryUser()
{
    constexpr uid_t nobody = 65534;
    const bool isRoot = geteuid() == 0;
    if (isRoot && setresuid(nobody, nobody, 0) != 0) {
        qFatal("cannot become an ordinary user");
    }
    return qScopeGuard([isRoot] {
        if (isRoot && setresuid(0, 0, 0) != 0) {
            qFatal("cannot become the administrator again");
        }
    });
}

constexpr QFile::Permissions readable = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
constexpr QFile::Permissions enterable = readable | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
constexpr QFile::Permissions writable = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;

const QString ended = u"Die Software wird jetzt beendet. Bitte korrigieren Sie dieses Konfigurationsproblem."_s;
const QString faulty =
    u"Die Konfiguration ist fehlerhaft oder Ihre Datenbank wurde beschädigt. Die Software wird jetzt "
    u"beendet.\nBitte korrigieren Sie dieses Konfigurationsproblem."_s;

} // namespace

class testOpenSequence final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void GoodFileOpensSilently() const
    {
        cMachine machine;
        machine.file.Make(std::string(oneEntry) + lastOpenedByUs);
        QCOMPARE(machine.Run(), eOpenResult::Opened);
        QCOMPARE(machine.Entries(), 1);
        QCOMPARE(machine.User.Asked + machine.User.Shown, QStringList());
        QCOMPARE(machine.Others(), QStringList());
        QVERIFY(machine.Sequence.Added().contains(u"Tabelle account"_s));
    }

    void MissingFile() const
    {
        cMachine machine;
        machine.User.Answers = {eAnswer::No};
        QCOMPARE(machine.Run(), eOpenResult::Ended);
        QCOMPARE(
            machine.User.Asked,
            QStringList(
                u"Die Datenbank '%1' wurde nicht gefunden.\nMöchten Sie jetzt einen neuen Datenbankpfad wählen?"_s.arg(
                    machine.Path())));
        QCOMPARE(machine.User.Shown, QStringList(ended));

        machine.Rescue.Database = machine.file.Make(oneEntry, u"other.db"_s);
        machine.User.Answers = {eAnswer::Yes};
        QCOMPARE(machine.Run(), eOpenResult::Opened);
        QCOMPARE(machine.Sequence.Path(), machine.file.Path(u"other.db"_s));
        QCOMPARE(machine.Entries(), 1);
    }

    void NewBookInAnotherPlace() const
    {
        cMachine machine;
        machine.User.Answers = {eAnswer::Yes};
        machine.User.Decisions = {0};
        machine.User.SavePath = machine.file.Path(u"neu.db"_s);
        QCOMPARE(machine.Run(eOrigin::Fresh), eOpenResult::Opened);
        QCOMPARE(machine.Sequence.Path(), machine.User.SavePath);
        QCOMPARE(machine.User.Shown, QStringList());

        QFile::remove(machine.Template());
        machine.User.Answers = {eAnswer::Yes, eAnswer::No};
        machine.User.Decisions = {0};
        machine.User.SavePath = machine.file.Path(u"noch eins.db"_s);
        QCOMPARE(machine.Run(eOrigin::Fresh), eOpenResult::Ended);
        QVERIFY(machine.User.Shown.value(0).startsWith(u"Die Installation ist beschädigt."_s));
    }

    void UserDeclinesEveryRemedy() const
    {
        cMachine machine;
        cTestFile::Write(machine.Path(), damaged.toUtf8());
        machine.User.Answers = {eAnswer::No, eAnswer::No, eAnswer::No};
        QCOMPARE(machine.Run(), eOpenResult::Ended);
        QCOMPARE(
            machine.User.Asked,
            QStringList({u"Die Datenbank '%1' ist beschädigt oder keine gültige Datenbank. Bitte laden Sie eine "
                         u"Datenbanksicherung oder ändern Sie den Datenbankpfad. Möchten Sie jetzt eine Datensicherung "
                         u"zurück spielen?"_s.arg(machine.Path()),
                         u"Möchten Sie jetzt den Datenbankpfad ändern?"_s,
                         u"Möchten Sie die beschädigte Datenbank löschen und neu initialisieren?"_s}));
        QCOMPARE(machine.User.Shown, QStringList(faulty));
        QCOMPARE(cTestFile::Bytes(machine.Path()), damaged.toUtf8());
        QVERIFY(!machine.Database.IsOpen());
    }

    void NewStartKeepsTheDamagedFile() const
    {
        cMachine machine;
        for (const int round : {1, 2}) {
            machine.Database.Close();
            cTestFile::Write(machine.Path(), damaged.toUtf8() + QByteArray::number(round));
            machine.User.Answers = {eAnswer::No, eAnswer::No, eAnswer::Yes};
            QCOMPARE(machine.Run(), eOpenResult::Opened);
        }
        QCOMPARE(machine.Entries(), 0);
        // No copy of the fresh file, but every damaged one
        QCOMPARE(machine.Others(),
                 QStringList({u"data.db.2026-03-15-2.beschaedigt"_s, u"data.db.2026-03-15.beschaedigt"_s}));
        QCOMPARE(cTestFile::Bytes(machine.file.Path(u"data.db.2026-03-15.beschaedigt"_s)), damaged.toUtf8() + "1");
    }

    void NewStartWithoutTemplateTouchesNothing() const
    {
        cMachine machine;
        cTestFile::Write(machine.Path(), damaged.toUtf8());
        QVERIFY(QFile::remove(machine.Template()));
        machine.User.Answers = {eAnswer::No, eAnswer::No, eAnswer::Yes};
        QCOMPARE(machine.Run(), eOpenResult::Ended);
        QVERIFY(machine.User.Shown.value(0).startsWith(u"Die Installation ist beschädigt."_s));
        QCOMPARE(cTestFile::Bytes(machine.Path()), damaged.toUtf8());
    }

    void NewStartWithoutRoomPutsTheFileBack() const
    {
        cMachine machine;
        cTestFile::Write(machine.Path(), damaged.toUtf8());
        machine.Shell.IsFull = true;
        machine.User.Answers = {eAnswer::No, eAnswer::No, eAnswer::Yes};
        QCOMPARE(machine.Run(), eOpenResult::Ended);
        QCOMPARE(cTestFile::Bytes(machine.Path()), damaged.toUtf8());
        QCOMPARE(machine.Others(), QStringList());
    }

    // What SQLite keeps beside a file belongs to its content: it goes aside with the damaged one.
    void RestoredBackupStartsClean() const
    {
        cMachine machine;
        cTestFile::Write(machine.Path(), damaged.toUtf8());
        cTestFile::Write(machine.Path() + u"-shm"_s, "rest");
        machine.Rescue.Backup = machine.file.Make(std::string(oneEntry) + lastOpenedByUs, u"good.backup"_s);
        machine.User.Answers = {eAnswer::Yes, eAnswer::No, eAnswer::Yes}; // no: another one, which is the same here
        QCOMPARE(machine.Run(), eOpenResult::Opened);
        QVERIFY(machine.User.Asked.constLast().contains(u"good.backup' enthält:\n1 Eintrag, Datei vom "_s));
        QCOMPARE(machine.Entries(), 1);
        QCOMPARE(machine.Others(),
                 QStringList(
                     {u"data.db.2026-03-15.beschaedigt"_s, u"data.db.2026-03-15.beschaedigt-shm"_s, u"good.backup"_s}));
    }

    // The user who has seen what the backup holds may leave everything as it is.
    void UnwantedBackupIsNotRestored() const
    {
        cMachine machine;
        cTestFile::Write(machine.Path(), damaged.toUtf8());
        machine.Rescue.Backup = machine.file.Make(oneEntry, u"good.backup"_s);
        machine.User.Answers = {eAnswer::Yes, eAnswer::Cancel};
        QCOMPARE(machine.Run(), eOpenResult::Ended);
        QCOMPARE(machine.User.Shown, QStringList(faulty));
        QCOMPARE(cTestFile::Bytes(machine.Path()), damaged.toUtf8());
    }

    void DamagedBackupIsNotRestored() const
    {
        struct cOnceRescue final : cFakeRescue
        {
            std::optional<QString> ChooseBackup(const QString& /*folder*/) override
            {
                return std::exchange(Backup, {});
            }
        };
        cMachine machine;
        cOnceRescue rescue;
        rescue.Backup = machine.file.Path(u"bad.backup"_s);
        cTestFile::Write(*rescue.Backup, damaged.toUtf8());
        cTestFile::Write(machine.Path(), damaged.toUtf8() + "mine");
        machine.User.Answers = {eAnswer::Yes};
        cOpenSequence sequence(machine.Database, {machine.Shell, machine.User, rescue}, u"0.1.0"_s, QDate(2026, 3, 15));
        QCOMPARE(sequence.Run(machine.Path()), eOpenResult::Ended);
        QCOMPARE(machine.User.Shown.size(), 2);
        QVERIFY(machine.User.Shown[0].contains(u"bad.backup"_s));
        QCOMPARE(cTestFile::Bytes(machine.Path()), damaged.toUtf8() + "mine");
    }

    void HeldFileIsNotDamaged() const
    {
        cMachine machine;
        machine.file.Make(oneEntry);
        cDatabase other;
        other.Open(machine.Path(), eOpenMode::ReadWrite);
        other.Execute("BEGIN EXCLUSIVE");
        machine.User.Answers = {eAnswer::Yes, eAnswer::No};
        QCOMPARE(machine.Run(), eOpenResult::Ended);
        QCOMPARE(machine.User.Asked.size(), 2);
        QVERIFY(machine.User.Asked[1].contains(u"von einem anderen Programm benutzt"_s));
        QCOMPARE(machine.User.Shown, QStringList(ended));
        QCOMPARE(machine.Others(), QStringList());
    }

    void FileBeingWrittenOpensForReading() const
    {
        cMachine machine;
        machine.file.Make(oneEntry);
        cDatabase other;
        other.Open(machine.Path(), eOpenMode::ReadWrite);
        other.Execute("BEGIN IMMEDIATE");
        machine.User.Answers = {eAnswer::No, eAnswer::Yes};
        QCOMPARE(machine.Run(), eOpenResult::OpenedReadOnly);
        QCOMPARE(machine.User.Asked.value(1), u"Möchten Sie die Datenbank nur zum Lesen öffnen?"_s);
        QCOMPARE(machine.Entries(), 1);
        QVERIFY(machine.Database.IsReadOnly());
    }

    void WithoutPermission_data() const
    {
        const cTestRows<QFile::Permissions, QFile::Permissions, eOpenResult, QString> row("folder", "file", "result",
                                                                                          "message");
        const QString reading = u"Die Datenbank '%1' kann nur gelesen werden. Änderungen werden nicht gespeichert."_s;
        row("read-only file", enterable | writable, readable, eOpenResult::OpenedReadOnly, reading);
        row("read-only folder", enterable, readable | writable, eOpenResult::OpenedReadOnly, reading);
        row("unreadable file", enterable | writable, QFile::Permissions(), eOpenResult::Ended,
            u"Die Datenbank '%1' kann nicht gelesen werden. Bitte prüfen Sie die Zugriffsrechte."_s);
    }

    void WithoutPermission() const
    {
        QFETCH(const QFile::Permissions, folder);
        QFETCH(const QFile::Permissions, file);
        QFETCH(const eOpenResult, result);
        QFETCH(const QString, message);
        cMachine machine;
        machine.file.Make(oneEntry);
        const QByteArray before = cTestFile::Bytes(machine.Path());
        QVERIFY(QFile::setPermissions(machine.Path(), file) && QFile::setPermissions(machine.file.Folder(), folder));
        {
            const auto restore = AsOrdinaryUser();
            QCOMPARE(machine.Run(), result);
            QCOMPARE(machine.User.Shown.value(0), message.arg(machine.Path()));
            QCOMPARE(machine.Database.IsOpen(), result == eOpenResult::OpenedReadOnly);
            if (machine.Database.IsOpen()) {
                QCOMPARE(machine.Entries(), 1);
            }
            machine.Database.Close();
        }
        QVERIFY(QFile::setPermissions(machine.file.Folder(), enterable | writable));
        QVERIFY(QFile::setPermissions(machine.Path(), readable | writable));
        QVERIFY(cTestFile::Bytes(machine.Path()) == before);
        QCOMPARE(machine.Others(), QStringList());
    }

    void IncompleteFile_data() const
    {
        const cTestRows<QString, QString> row("sql", "lost");
        row("a table", u"DROP TABLE import"_s, u"Tabelle import"_s);
        row("columns", u"ALTER TABLE data DROP COLUMN EntryCategory; ALTER TABLE template DROP COLUMN TemplateName"_s,
            u"Spalte data.EntryCategory, Spalte template.TemplateName"_s);
        row("a column of a table that comes with the upgrade", u"CREATE TABLE datamod (ID INTEGER PRIMARY KEY)"_s,
            u"Spalte datamod.EntryRelation, Spalte datamod.EntryModType, Spalte datamod.EntryStartDate, Spalte "
            u"datamod.EntryEndDate, Spalte datamod.EntryValue, Spalte datamod.EntryComment"_s);
    }

    void IncompleteFile() const
    {
        QFETCH(const QString, sql);
        QFETCH(const QString, lost);
        cMachine machine;
        machine.file.Make(oneEntry + sql.toStdString());
        const QByteArray before = cTestFile::Bytes(machine.Path());
        QCOMPARE(machine.Run(), eOpenResult::OpenedReadOnly);
        cDataAccess data(machine.Database, machine.User);
        QCOMPARE(data.GetMissingParts().join(u", "_s), lost);
        QCOMPARE(data.GetFaultyEntries(QDate(2026, 3, 15)).value_or(QList<cFaultyEntry>()).size(), 1);
        QVERIFY(data.GetCategorySums({}).isEmpty() && data.GetImportEntries().isEmpty());
        QCOMPARE(machine.User.Asked + machine.User.Shown, QStringList());
        machine.Database.Close();
        QVERIFY(cTestFile::Bytes(machine.Path()) == before);
        QCOMPARE(machine.Others(), QStringList());
    }

    void CopyBeforeUpgrade_data() const
    {
        const cTestRows<QString, eOrigin, bool> row("sql", "origin", "isCopied");
        const QString ours = QString::fromUtf8(lastOpenedByUs);
        row("never opened", {}, eOrigin::Existing, true);
        row("opened by another version", QString(ours + u"UPDATE setting SET SettingValue = '0.0.9'"_s),
            eOrigin::Existing, true);
        row("opened by this version", ours, eOrigin::Existing, false);
        row("opened by the command line of this version",
            QString(ours
                    + u"UPDATE setting SET SettingValue = '0.0.9'; INSERT INTO setting (SettingName, "
                      u"SettingValue) VALUES ('LastCommandLineVersion', '0.1.0')"_s),
            eOrigin::Existing, false);
        row("just made from the template", {}, eOrigin::Fresh, false);
    }

    void CopyBeforeUpgrade() const
    {
        QFETCH(const QString, sql);
        QFETCH(const eOrigin, origin);
        QFETCH(const bool, isCopied);
        cMachine machine;
        machine.file.Make(oneEntry + sql.toStdString());
        const QString taken = machine.file.Path(u"data.db.2026-03-15.backup"_s);
        cTestFile::Write(taken, "earlier");
        QCOMPARE(machine.Run(origin), eOpenResult::Opened);
        const QString copy = machine.file.Path(u"data.db.2026-03-15-2.backup"_s);
        QCOMPARE(QFile::exists(copy), isCopied);
        QCOMPARE(cTestFile::Bytes(taken), QByteArray("earlier"));
        if (isCopied) {
            cDatabase kept;
            kept.Open(copy, eOpenMode::ReadOnly);
            QCOMPARE(cTestFile::Value(kept, "SELECT EntryAccount FROM data"), u"Giro"_s);
            QVERIFY(!QFile::permissions(copy).testAnyFlags(QFile::ReadGroup | QFile::ReadOther));
            QVERIFY(modSchema::Missing(kept).contains(u"Spalte data.EntryFlags"_s)); // from before the upgrade
        }
    }
};

TEST_CLASS(testOpenSequence, QCoreApplication)
#include "testOpenSequence.moc"
