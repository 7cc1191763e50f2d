#include "core/cBook.h"
#include "core/cConfiguration.h"
#include "core/cSettings.h"
#include "core/cStartUp.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"
#include "support/cFakeMachine.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// A machine with an installed program and nothing of the user's yet.
struct cMachine : cFakeMachine
{
    cMachine() { cTestFile::Run(Template(), cTestFile::Tables); }

    [[nodiscard]] QString Template() const { return Shell.InstalledFile(u"template.dat"_s); }
    [[nodiscard]] QString Default() { return Shell.DataFolder() + u"/data.db"_s; }

    // The database of the configuration.
    [[nodiscard]] bool Open() { return StartUp.OpenBook(Book, StartUp.FindDatabase()); }

    void Configure(const QString& path) { Registry.Write(cConfiguration::RegistryKey, u"Database"_s, path); }

    cConfiguration Configuration{Registry};
    cBook Book{User};
    cStartUp StartUp{{Shell, User, Rescue, Clock}, Configuration, u"0.1.0"_s};
};

} // namespace

class testStartUp final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void OldCurrency_data() const
    {
        const cTestRows<QString, eAnswer, int, int> row("symbol", "answer", "asked", "opened");
        row("euro", u"€"_s, eAnswer::Yes, 0, 0);
        row("mark, in any form", u" dm "_s, eAnswer::Yes, 1, 1);
        row("mark, and it stays", u"DM"_s, eAnswer::No, 1, 0);
        row("another with these letters", u"DMX"_s, eAnswer::Yes, 0, 0);
    }

    void OldCurrency() const
    {
        QFETCH(const QString, symbol);
        QFETCH(const eAnswer, answer);
        QFETCH(const int, asked);
        QFETCH(const int, opened);
        cMachine machine;
        machine.Shell.Currency = symbol;
        machine.User.Usual = answer;
        machine.StartUp.CheckCurrency();
        QCOMPARE(machine.User.Asked.size(), asked);
        QCOMPARE(machine.Shell.RegionalSettingsOpened, opened);
        QCOMPARE(machine.User.Shown,
                 opened == 0
                     ? QStringList()
                     : QStringList(u"Die Software muss neu gestartet werden, wenn die Währung umgestellt wurde."_s));
    }

    void FirstStartIsSilent() const
    {
        cMachine machine;
        QVERIFY(machine.Open());
        QCOMPARE(machine.User.Shown + machine.User.Asked, QStringList());
        QCOMPARE(machine.Book.Path(), machine.Default());
        QVERIFY(machine.StartUp.IsNewVersion());
        QCOMPARE(machine.Configuration.GetSetting(modSettingKey::FirstInstall), u"2026-03-15"_s);
        QCOMPARE(machine.Configuration.GetSetting(modSettingKey::LastVersion), u"0.1.0"_s);
        QCOMPARE(QDir(machine.Shell.DataFolder()).entryList(QDir::Files), QStringList(u"data.db"_s)); // no copy of it

        QVERIFY(machine.Open());
        QVERIFY(!machine.StartUp.IsNewVersion());
        QVERIFY(machine.Book.Added().isEmpty());
        QCOMPARE(machine.User.Shown, QStringList());
    }

    // The command line notes its version elsewhere: the window resets its view once for each version of its own.
    void CommandLineLeavesTheChangeOfVersionToTheWindow() const
    {
        cMachine machine;
        const QString path =
            machine.File.Make("INSERT INTO data (EntryDate) VALUES ('2026-01-01');"); // no mere template
        cStartUp commandLine({machine.Shell, machine.User, machine.Rescue, machine.Clock}, machine.Configuration,
                             u"0.1.0"_s, eFrontEnd::CommandLine);
        QVERIFY(commandLine.OpenBook(machine.Book, {path}));
        QVERIFY(machine.StartUp.OpenBook(machine.Book, {path}));
        QVERIFY(machine.StartUp.IsNewVersion());
        QVERIFY(commandLine.OpenBook(machine.Book, {path}));
        QVERIFY(machine.StartUp.OpenBook(machine.Book, {path}));
        QVERIFY(!machine.StartUp.IsNewVersion());
        QCOMPARE(QDir(machine.File.Folder()).entryList({u"*.backup"_s}).size(), 1);
    }

    void ConfiguredDatabase() const
    {
        cMachine machine;
        machine.Configure(machine.File.Make({}, u"mine.db"_s));
        QVERIFY(machine.Open());
        QCOMPARE(machine.Book.Path(), machine.File.Path(u"mine.db"_s));
        QCOMPARE(machine.User.Shown, QStringList());
    }

    void ConfiguredDatabaseIsGone() const
    {
        cMachine machine;
        machine.Configure(u"/gone/data.db"_s);
        QVERIFY(machine.Open());
        QCOMPARE(machine.Book.Path(), machine.Default());
        QCOMPARE(machine.User.Shown,
                 QStringList(u"Die Datenbank '/gone/data.db' wurde nicht gefunden. Der "
                             u"Standard-Datenbank-Pfad wird verwendet!"_s));
        QCOMPARE(machine.Configuration.GetSetting(modSettingKey::Database), u"/gone/data.db"_s); // a disk may come back
    }

    // A program killed at the wrong moment, or a file taken away: what lies beside the book may be all that is left.
    void MissingBookHasLeftovers_data() const
    {
        const cTestRows<int, bool, int> row("chosen", "opens", "entries");
        row("the replaced file", 0, true, 1);
        row("none of them", 1, true, 0);
        row("no answer", -1, false, 0);
    }

    void MissingBookHasLeftovers() const
    {
        QFETCH(const int, chosen);
        QFETCH(const bool, opens);
        cMachine machine;
        const QString folder = machine.Shell.DataFolder();
        const QString replaced = folder + u"/data.db.2026-03-14.ersetzt"_s;
        cTestFile::Run(replaced, std::string(cTestFile::Tables) + "INSERT INTO data (EntryDate) VALUES ('2026-01-01')");
        cTestFile::Write(folder + u"/data.db.neu"_s, "half a copy");
        cTestFile::Run(folder + u"/andere.db.2026-03-14.ersetzt"_s, cTestFile::Tables);
        machine.User.Decisions = {chosen};
        QCOMPARE(machine.Open(), opens);
        QCOMPARE(machine.User.LastDecision.Options,
                 QStringList({u"'data.db.2026-03-14.ersetzt' verwenden"_s, u"&Ohne sie weiter"_s}));
        QCOMPARE(QFile::exists(machine.Default()), opens);
        QCOMPARE(QFile::exists(replaced), chosen != 0);
        if (opens) {
            QTEST(machine.Book.Data().CountEntries(), "entries");
        }
    }

    void DamagedInstallation() const
    {
        cMachine machine;
        QVERIFY(QFile::remove(machine.Template()));
        machine.User.Answers = {eAnswer::No};
        QVERIFY(!machine.Open());
        QCOMPARE(machine.User.Shown.size(), 3);
        QVERIFY(machine.User.Shown[0].startsWith(u"Die Installation ist beschädigt."_s));
        QCOMPARE(machine.User.Shown[1], u"Die Standard-Datenbank konnte nicht gefunden werden!"_s);
        QVERIFY(machine.User.Shown[2].startsWith(u"Die Software wird jetzt beendet."_s));
        QVERIFY(!machine.Configuration.SaveSetting(modSettingKey::MainAccount, u"x"_s, eSettingPlace::Database));
    }

    void ChosenDatabaseIsRemembered() const
    {
        cMachine machine;
        cTestFile::Write(machine.Default(), QByteArray("damaged").repeated(300));
        machine.Rescue.Database = machine.File.Make({}, u"other.db"_s);
        machine.User.Answers = {eAnswer::No, eAnswer::Yes};
        QVERIFY(machine.Open());
        QCOMPARE(machine.Configuration.GetSetting(modSettingKey::Database), machine.File.Path(u"other.db"_s));
    }

    // Whoever holds the settings of a book keeps them when another file is opened.
    void AnotherFileInTheSameBook() const
    {
        cMachine machine;
        QVERIFY(machine.Open());
        cSettings& settings = machine.Book.Settings();
        QVERIFY(settings.Set(modSettingKey::MainAccount, u"first"_s));
        QVERIFY(machine.StartUp.OpenBook(machine.Book, {machine.File.Make()}));
        QCOMPARE(settings.Get(modSettingKey::MainAccount), QString());
        QVERIFY(settings.Set(modSettingKey::MainAccount, u"second"_s));
        QVERIFY(machine.StartUp.OpenBook(machine.Book, {machine.Default()}));
        QCOMPARE(settings.Get(modSettingKey::MainAccount), u"first"_s);
    }

    void OpenWithoutQuestions() const
    {
        cMachine machine;
        QVERIFY(machine.Book.Open(machine.File.Make()));
        QCOMPARE(machine.Book.Added().size(), 24);
        QCOMPARE(machine.Book.Data().GetAccounts().size(), 1);
        cTestFile::Write(machine.File.Path(u"text.db"_s), QByteArray("text").repeated(300));
        QVERIFY(!machine.Book.Open(machine.File.Path(u"text.db"_s)));
        QVERIFY(!machine.Book.Open(machine.File.Path(u"missing.db"_s)));
        QVERIFY(!machine.Book.IsOpen());
        QCOMPARE(machine.User.Shown.size(), 2);
        QVERIFY(machine.User.Shown[0].contains(u"keine gültige Datenbank"_s));
        QVERIFY(machine.User.Shown[1].contains(u"kann nicht gelesen werden"_s));
    }
};

TEST_CLASS(testStartUp, QCoreApplication)
#include "testStartUp.moc"
