#include "app/cBookSwitch.h"
#include "app/machine/cFileLock.h"
#include "core/cBook.h"
#include "core/cConfiguration.h"
#include "core/modPassword.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"
#include "support/cFakeMachine.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const char* oneEntry = "INSERT INTO data (EntryDate, EntryAccount) VALUES ('2026-01-31', 'Giro');";

struct cMachine : cFakeMachine
{
    cMachine()
    {
        QVERIFY(StartUp.TryBook(Book, {File.Make(oneEntry), true}));
        QCOMPARE(Lock.Take(Book.Path()), eLockState::Held);
    }

    [[nodiscard]] bool IsAsBefore()
    {
        return Book.Path() == Path(u"data.db"_s) && Book.Data().CountEntries() == 1 && !Book.IsReadOnly()
            && Lock.IsHeld() && Configuration.GetSetting(modSettingKey::FirstInstall) == u"2026-03-15"
            && Registry.Values.isEmpty();
    }

    [[nodiscard]] QString MakeProtected(const QString& name) const
    {
        const QString stored = modPassword::ToStored(u"geheim"_s);
        return File.Make("CREATE TABLE setting (ID INTEGER PRIMARY KEY, SettingName TEXT UNIQUE, SettingValue TEXT,"
                         " SettingDefault TEXT);"
                         "INSERT INTO setting (SettingName, SettingValue) VALUES ('PasswortAktiv', 'Wahr');"
                         "INSERT INTO setting (SettingName, SettingValue) VALUES ('Passwort', '"
                             + stored.toStdString() + "');",
                         name);
    }

    cConfiguration Configuration{Registry};
    cBook Book{User};
    cFileLock Lock;
    cStartUp StartUp{{Shell, User, Rescue, Clock}, Configuration, u"0.1.0"_s};
    QStringList Steps;
    cBookSwitch Switch{{{Shell, User, Rescue, Clock}, Registry, Configuration, Book, Lock, u"0.1.0"_s},
                       {[this](cBookSwitch::eLeave leave) {
                            Steps.append(leave == cBookSwitch::eLeave::Keep ? u"leave"_s : u"leave, replaced"_s);
                        },
                        [this](bool isNew) { Steps.append(isNew ? u"arrive, new version"_s : u"arrive"_s); },
                        [this] { Steps.append(u"end"_s); }}};
};

} // namespace

class testBookSwitch final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AnotherBook() const
    {
        cMachine machine;
        const QString other = machine.MakeProtected(u"other.db"_s);
        machine.Rescue.Password = u"geheim"_s;
        QVERIFY(machine.Switch.Switch(other, eBookOrigin::Existing));
        QCOMPARE(machine.Rescue.PasswordsAsked, 1);
        QCOMPARE(machine.Steps, QStringList({u"leave"_s, u"arrive, new version"_s}));
        QCOMPARE(machine.Book.Path(), other);
        QVERIFY(modPassword::IsActive(machine.Configuration)); // the settings are those of the new book
        QCOMPARE(machine.Registry.Read(eRegistryScope::User, cConfiguration::RegistryKey, u"Database"_s), other);
        QVERIFY(QFile::exists(other + u".2026-03-15.backup"_s)); // from before the upgrade
        QVERIFY(!machine.Switch.IsInUse(machine.Path(u"data.db"_s)));
        QVERIFY(machine.Switch.IsInUse(other));
        QVERIFY(machine.Switch.Switch(machine.Path(u"data.db"_s), eBookOrigin::Existing));
        QCOMPARE(machine.Steps.constLast(), u"arrive"_s);
        QCOMPARE(machine.Book.Data().CountEntries(), 1);
    }

    void OldBookStays_data() const
    {
        const cTestRows<QString, QString> row("name", "message");
        row("damaged", u"bad.db"_s, u"ist beschädigt oder keine gültige Datenbank."_s);
        row("missing", u"missing.db"_s, u"kann nicht gelesen werden."_s);
        row("in use", u"used.db"_s, u"ist in Benutzung"_s);
        row("password not given", u"protected.db"_s, {});
    }

    void OldBookStays() const
    {
        QFETCH(const QString, name);
        QFETCH(const QString, message);
        cMachine machine;
        cTestFile::Write(machine.Path(u"bad.db"_s), QByteArray("text").repeated(300));
        cFileLock other;
        QCOMPARE(other.Take(machine.File.Make({}, u"used.db"_s)), eLockState::Held);
        (void)machine.MakeProtected(u"protected.db"_s);
        QVERIFY(!machine.Switch.Switch(machine.Path(name), eBookOrigin::Existing));
        QVERIFY(machine.IsAsBefore());
        QCOMPARE(machine.Steps, QStringList());
        QCOMPARE(machine.User.Asked, QStringList());
        QCOMPARE(machine.User.Shown.size(), message.isEmpty() ? 0 : 1);
        QVERIFY(machine.User.Shown.join(u' ').contains(message));
    }

    // The lock file of a program that was killed on another machine is nobody's any more, as only the user can know.
    void AbandonedLockIsAskedAbout() const
    {
        for (const bool isWanted : {false, true}) {
            cMachine machine;
            const QString path = machine.File.Make({}, u"used.db"_s);
            cTestFile::Write(path + u".lock"_s, "4711\nkontorelle\nanderer\n");
            machine.User.Answers = {isWanted ? eAnswer::Yes : eAnswer::No};
            QCOMPARE(machine.Switch.Switch(path, eBookOrigin::Existing), isWanted);
            QVERIFY(machine.User.Asked[0].contains("Prozess 4711 auf anderer"_L1));
            QCOMPARE(machine.Book.Path() == path, isWanted);
        }
    }

    void BackupTakesThePlace() const
    {
        cMachine machine;
        const QString backup = machine.File.Make(std::string(oneEntry) + oneEntry, u"two.backup"_s);
        const std::optional<QString> kept = machine.Switch.Restore(backup);
        QCOMPARE(kept.value_or(QString()), machine.Path(u"data.db.2026-03-15.ersetzt"_s));
        QCOMPARE(machine.Book.Data().CountEntries(), 2);
        QCOMPARE(machine.Steps, QStringList({u"leave, replaced"_s, u"arrive"_s}));
        QVERIFY(machine.Lock.IsHeld());
        QVERIFY(machine.Registry.Values.isEmpty());
    }

    void BackupIsRefused_data() const
    {
        const cTestRows<QString> row("name");
        row("damaged", u"bad.backup"_s);
        row("password not given", u"protected.backup"_s);
    }

    void BackupIsRefused() const
    {
        QFETCH(const QString, name);
        cMachine machine;
        cTestFile::Write(machine.Path(u"bad.backup"_s), QByteArray("text").repeated(300));
        (void)machine.MakeProtected(u"protected.backup"_s);
        QVERIFY(!machine.Switch.Restore(machine.Path(name)));
        QVERIFY(machine.IsAsBefore());
    }
};

TEST_CLASS(testBookSwitch, QCoreApplication)
#include "testBookSwitch.moc"
