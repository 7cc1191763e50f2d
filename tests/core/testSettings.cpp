#include "core/cConfiguration.h"
#include "core/cSettings.h"
#include "core/modPassword.h"
#include "store/cDataAccess.h"
#include "store/modSchema.h"
#include "support/cTestFile.h"
#include "support/fakes.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

struct cOpened
{
    cOpened()
    {
        Database.Open(File.Make(), eOpenMode::ReadWrite);
        modSchema::Upgrade(Database);
    }

    [[nodiscard]] QString Stored(const std::string& name)
    {
        return cTestFile::Value(
            Database, "SELECT SettingValue || '|' || SettingDefault FROM setting WHERE SettingName = '" + name + "'");
    }

    cTestFile File;
    cFakeUser User;
    cDatabase Database;
    cDataAccess Data{Database, User};
};

QString Current(const QString& name)
{
    return cFakeRegistry::Path(eRegistryScope::User, u"SOFTWARE\\Veltrino Kontorelle"_s, name);
}

QString Former(eRegistryScope scope, const QString& name)
{
    return cFakeRegistry::Path(scope, u"SOFTWARE\\KontorelleFreeware"_s, name);
}

} // namespace

class testSettings final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TruthValues_data() const
    {
        QTest::addColumn<bool>("isTrue");
        for (const char* text : {"wahr", "Wahr", "TRUE", "true", "True", "1", "-1", "0.5", " 2 "}) {
            QTest::newRow(text) << true;
        }
        for (const char* text : {"falsch", "FALSE", "false", "0", "0,0", "", "ja", "nan"}) {
            QTest::newRow(text) << false;
        }
    }

    void TruthValues() const
    {
        QFETCH(const bool, isTrue);
        QCOMPARE(cSettings::ToBool(QString::fromUtf8(QTest::currentDataTag())), isTrue);
        QCOMPARE(cSettings::ToBool(cSettings::FromBool(isTrue)), isTrue);
    }

    // A book of an older version knows only some of them.
    void ViewSwitchesAreOnUntilSwitchedOff() const
    {
        cOpened book;
        cSettings settings(book.Data);
        QVERIFY(settings.Set(u"MainZeitraum"_s, u"Aktuelles Jahr"_s));
        QVERIFY(settings.GetBool(u"ViewStartBooking"_s));
        QVERIFY(settings.GetBool(u"viewAccountValueAll"_s));
        QVERIFY(settings.SetBool(u"ViewStartBooking"_s, false));
        QVERIFY(!settings.GetBool(u"ViewStartBooking"_s));
        QVERIFY(!settings.GetBool(u"HideBookedEntries"_s));
    }

    void NamesIgnoreCase() const
    {
        cOpened book;
        cSettings settings(book.Data);
        QVERIFY(settings.Set(u"MainKonto"_s, u"O'Hara"_s));
        QVERIFY(settings.Set(u"mainkonto"_s, u"Giro"_s));
        QCOMPARE(settings.Get(u"MAINKONTO"_s), u"Giro"_s);
        QCOMPARE(book.Stored("MainKonto"), u"Giro|Giro"_s);
        QCOMPARE(book.Stored("mainkonto"), u"(no row)"_s);
        QCOMPARE(cSettings(book.Data).Get(u"mainKonto"_s), u"Giro"_s);
        QVERIFY(settings.Delete(u"mAINkONTO"_s));
        QCOMPARE(cSettings(book.Data).Get(u"MainKonto"_s), QString());
    }

    void RefusedWriteLeavesMemory() const
    {
        cOpened book;
        cSettings settings(book.Data);
        QVERIFY(settings.Set(u"MainKonto"_s, u"Giro"_s));
        book.Database.Execute("DROP TABLE setting");
        QVERIFY(!settings.Set(u"MainKonto"_s, u"Spar"_s));
        QVERIFY(!settings.Delete(u"MainKonto"_s));
        QCOMPARE(settings.Get(u"MainKonto"_s), u"Giro"_s);
        QCOMPARE(book.User.Shown.value(0), u"ERROR: ChangeSettingItem\nno such table: setting"_s);
    }

    void ReadOnlyKeepsChangesInMemory() const
    {
        cOpened book;
        book.Database.Open(book.File.Path(), eOpenMode::ReadOnly);
        cSettings settings(book.Data);
        QVERIFY(settings.Set(u"MainKonto"_s, u"Giro"_s));
        QCOMPARE(settings.Get(u"MainKonto"_s), u"Giro"_s);
        QCOMPARE(cSettings(book.Data).Get(u"MainKonto"_s), QString());
        QCOMPARE(book.User.Shown, QStringList());
    }

    void ResetSparesWhatOutlivesIt() const
    {
        cOpened book;
        cSettings settings(book.Data);
        const QStringList kept{u"Passwort"_s,     u"PasswortAktiv"_s, u"LastVersion"_s,
                               u"FirstInstall"_s, u"Update"_s,        u"HBCIVBLZ100"_s};
        for (const QString& name : kept + QStringList{u"MainKonto"_s, u"KTO:1"_s, u"ViewFixBooking"_s}) {
            QVERIFY(settings.Set(name, u"0"_s));
        }
        settings.ResetAll();
        for (const QString& name : kept) {
            QCOMPARE(settings.Get(name), u"0"_s);
        }
        QCOMPARE(settings.Get(u"KTO:1"_s), QString());
        QCOMPARE(settings.Get(u"MainKonto"_s), QString());
        for (const QString& name : {u"ViewSingleBooking"_s, u"ViewFixBooking"_s, u"ViewFutureBooking"_s,
                                    u"ViewStartBooking"_s, u"ViewAccountValueAll"_s}) {
            QVERIFY(settings.GetBool(name));
        }
        QCOMPARE(cTestFile::Value(book.Database, "SELECT COUNT(*) FROM setting"), u"11"_s);
    }

    void VersionAndUpdateDate() const
    {
        cOpened book;
        cSettings settings(book.Data);
        QVERIFY(settings.CheckVersion(u"1.2.3"_s));
        QVERIFY(!settings.CheckVersion(u"1.2.3"_s));
        QVERIFY(settings.CheckVersion(u"1.2.4"_s));
        QCOMPARE(book.Stored("LastVersion"), u"1.2.4|1.2.4"_s);
        QCOMPARE(settings.GetUpdateDate(QDate(2026, 3, 15)), QDate(2026, 3, 15));
        QCOMPARE(settings.GetUpdateDate(QDate(2026, 4, 1)), QDate(2026, 3, 15));
    }

    void PlacesAreAskedInOrder() const
    {
        cOpened book;
        cSettings settings(book.Data);
        cFakeRegistry registry;
        cConfiguration configuration(registry);
        configuration.SetDatabase(&settings);
        registry.Values.insert(Former(eRegistryScope::Machine, u"Database"_s), u" machine\r\n"_s + QChar(u'\0'));
        QCOMPARE(configuration.GetSetting(u"Database"_s), u"machine"_s);
        registry.Values.insert(Former(eRegistryScope::User, u"Database"_s), u"former"_s);
        QCOMPARE(configuration.GetSetting(u"Database"_s), u"former"_s);
        registry.Values.insert(Current(u"Database"_s), u"\r\n"_s); // nothing is left of it
        QCOMPARE(configuration.GetSetting(u"Database"_s), u"former"_s);
        registry.Values.insert(Current(u"Database"_s), u"current"_s);
        QVERIFY(settings.Set(u"Database"_s, QString()));
        QCOMPARE(configuration.GetSetting(u"Database"_s), u"current"_s);
        QVERIFY(settings.Set(u"Database"_s, u"table"_s));
        QCOMPARE(configuration.GetSetting(u"Database"_s), u"table"_s);

        QVERIFY(settings.Set(u"DatabaseList"_s, u"table"_s)); // never from the table
        registry.Values.insert(Current(u"DatabaseList"_s), u"registry"_s);
        QCOMPARE(configuration.GetSetting(u"DatabaseList"_s), u"registry"_s);

        configuration.DeleteRegistrySetting(u"Database"_s);
        QVERIFY(settings.Delete(u"Database"_s));
        QCOMPARE(configuration.GetSetting(u"Database"_s), u"machine"_s);
    }

    void WithoutDatabaseNothingIsStoredInIt() const
    {
        cFakeRegistry registry;
        cConfiguration configuration(registry);
        QVERIFY(!configuration.SaveSetting(u"MainKonto"_s, u"Giro"_s, eSettingPlace::Database));
        QCOMPARE(configuration.GetSetting(u"MainKonto"_s), QString());
        QVERIFY(configuration.SaveSetting(u"Database"_s, u"path"_s, eSettingPlace::Registry));
        QCOMPARE(registry.Values.value(Current(u"Database"_s)), u"path"_s);
    }

    void Passwords_data() const
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("isRight");
        const QString digest = u"900150983cd24fb0d6963f7d28e17f72"_s;
        QTest::newRow("digest") << digest << u"abc"_s << true;
        QTest::newRow("digest in capitals") << digest.toUpper() << u"abc"_s << true;
        QTest::newRow("other letter case") << digest << u"ABC"_s << false;
        QTest::newRow("the digest itself") << digest << digest << false;
        QTest::newRow("older file: the password") << u"abc"_s << u"abc"_s << true;
        QTest::newRow("older file: wrong") << u"abc"_s << u"abd"_s << false;
        QTest::newRow("nothing typed") << digest << QString() << false;
    }

    void Passwords() const
    {
        QFETCH(const QString, stored);
        QFETCH(const QString, typed);
        QFETCH(const bool, isRight);
        QCOMPARE(modPassword::Matches(typed, stored), isRight);
        cFakeRegistry registry;
        registry.Values.insert(Current(u"Passwort"_s), stored);
        cConfiguration configuration(registry);
        cFakeRescue rescue;
        rescue.Password = typed;
        QVERIFY(modPassword::Admit(configuration, rescue)); // the switch is off
        QCOMPARE(rescue.PasswordsAsked, 0);
        registry.Values.insert(Current(u"PasswortAktiv"_s), u"wahr"_s);
        QCOMPARE(modPassword::Admit(configuration, rescue), isRight);
        QCOMPARE(rescue.PasswordsAsked, 1);
    }

    // A password belongs to its book; what older versions left in the registry counts only where the book says nothing.
    void PasswordTravelsWithTheBook() const
    {
        cOpened opened;
        cSettings settings(opened.Data);
        cFakeRegistry registry;
        registry.Values.insert(Current(u"PasswortAktiv"_s), u"True"_s);
        registry.Values.insert(Current(u"Passwort"_s), u"old"_s);
        cConfiguration configuration(registry);
        configuration.SetDatabase(&settings);
        QVERIFY(modPassword::Set(configuration, u"Größe"_s));
        QVERIFY(modPassword::IsActive(configuration));
        QVERIFY(modPassword::Matches(u"Größe"_s, configuration.GetSetting(u"Passwort"_s)));
        QCOMPARE(registry.Values.value(Current(u"Passwort"_s)), u"old"_s);
        QVERIFY(modPassword::Remove(configuration));
        QVERIFY(!modPassword::IsActive(configuration));
    }
};

QTEST_GUILESS_MAIN(testSettings)
#include "testSettings.moc"
