#include "core/cConfiguration.h"
#include "core/cSettings.h"
#include "core/modPassword.h"
#include "model/modSettingKey.h"
#include "store/cUndoStep.h"
#include "support/cOpenedFile.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

namespace {

struct cOpened : cOpenedFile
{
    [[nodiscard]] QString Stored(const std::string& name)
    {
        return Value("SELECT SettingValue || '|' || SettingDefault FROM setting WHERE SettingName = '" + name + "'");
    }
};

QString Current(const QString& name)
{
    return cFakeRegistry::Path(eRegistryScope::User, u"SOFTWARE\\Veltrino Kontorelle"_s, name);
}

QString Former(eRegistryScope scope, const QString& name)
{
    return cFakeRegistry::Path(scope, u"SOFTWARE\\KontorelleFreeware"_s, name);
}

// All keys of the table, those of families with this part.
QList<cSettingKey> AllKeys(const QString& part)
{
    QList<cSettingKey> keys = Each(modSettingKey::All(), [](const cSettingKey* key) { return *key; });
    for (const cSettingFamily* family : modSettingKey::Families()) {
        keys.append(family->Of(part));
    }
    return keys;
}

} // namespace

class testSettings final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TruthValues_data() const
    {
        const cTestRows<bool> row("isTrue");
        for (const char* text : {"wahr", "Wahr", "TRUE", "true", "True", "1", "-1", "0.5", " 2 "}) {
            row(text, true);
        }
        for (const char* text : {"falsch", "FALSE", "false", "0", "0,0", "", "ja", "nan"}) {
            row(text, false);
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
        QVERIFY(settings.Set(modSettingKey::MainPeriod, u"Aktuelles Jahr"_s));
        QVERIFY(settings.GetBool(modSettingKey::ViewStart));
        QVERIFY(settings.GetBool(modSettingKey::ViewAllBalances));
        QVERIFY(settings.SetBool(modSettingKey::ViewStart, false));
        QVERIFY(!settings.GetBool(modSettingKey::ViewStart));
        QVERIFY(!settings.GetBool(modSettingKey::HideTitle));
    }

    // The names stand in the files and registries of users: one that changes is a setting that is lost. So is one that
    // another takes over. What stands behind "=" counts while nothing is stored.
    void TableOfSettings() const
    {
        QStringList found;
        QSet<QString> names;
        const QList<cSettingKey> keys = AllKeys(u"*"_s);
        for (const cSettingKey& key : keys) {
            found.append(key.Default().isEmpty() ? key.Name() : key.Name() + u'=' + key.Default());
            names.insert(key.Name().toLower());
            bool isNumber = true;
            if (key.Facts().Type == eSettingType::Number && !key.Default().isEmpty()) {
                (void)key.Default().toInt(&isNumber);
            }
            QVERIFY2(isNumber, qPrintable(key.Name()));
        }
        const QByteArray expected = cTestFile::Bytes(QStringLiteral(TEST_DATA "/settings/table.txt"));
        QCOMPARE(found, QString::fromUtf8(expected).split(u'\n', Qt::SkipEmptyParts));
        QCOMPARE(names.size(), keys.size());
    }

    // Older programs on other systems may have stored a name in other letters.
    void NamesIgnoreCase() const
    {
        cOpened book;
        QVERIFY(book.Data.ChangeSettingItem(u"mainKONTO"_s, u"O'Hara"_s));
        cSettings settings(book.Data);
        QCOMPARE(settings.Get(modSettingKey::MainAccount), u"O'Hara"_s);
        QVERIFY(settings.Set(modSettingKey::MainAccount, u"Giro"_s));
        QCOMPARE(book.Stored("mainKONTO"), u"Giro|Giro"_s);
        QCOMPARE(book.Stored("MainKonto"), u"(no row)"_s);
        QCOMPARE(cSettings(book.Data).Get(modSettingKey::MainAccount), u"Giro"_s);
        QVERIFY(settings.Delete(modSettingKey::MainAccount));
        QCOMPARE(cSettings(book.Data).Get(modSettingKey::MainAccount), QString());
    }

    void RefusedWriteLeavesMemory() const
    {
        cOpened book;
        cSettings settings(book.Data);
        QVERIFY(settings.Set(modSettingKey::MainAccount, u"Giro"_s));
        book.Database.Execute("DROP TABLE setting");
        QVERIFY(!settings.Set(modSettingKey::MainAccount, u"Spar"_s));
        QVERIFY(!settings.Delete(modSettingKey::MainAccount));
        QCOMPARE(settings.Get(modSettingKey::MainAccount), u"Giro"_s);
        QCOMPARE(book.User.Shown.value(0), u"ERROR: ChangeSettingItem\nno such table: setting"_s);
    }

    // What a step stored goes with it.
    void MemoryFollowsAStepThatIsTakenBack() const
    {
        cOpened book;
        cSettings settings(book.Data);
        QVERIFY(settings.Set(modSettingKey::MainAccount, u"Giro"_s));
        {
            cUndoStep step(book.Data, u"Konto"_s);
            QVERIFY(settings.Set(modSettingKey::MainAccount, u"Spar"_s));
            QVERIFY(!step.DoneIf(false));
            QCOMPARE(settings.Get(modSettingKey::MainAccount), u"Giro"_s);
            QVERIFY(settings.Set(modSettingKey::MainAccount, u"Bar"_s));
        }
        QVERIFY(book.Data.Journal().Undo());
        QCOMPARE(settings.Get(modSettingKey::MainAccount), u"Giro"_s);
    }

    // Told once, and made up for.
    void MemoryOutlivesAFailedRead() const
    {
        cOpened book;
        cSettings settings(book.Data);
        cUndoStep step(book.Data, u"Konto"_s);
        QVERIFY(settings.Set(modSettingKey::MainAccount, u"Spar"_s) && step.Done() && book.Data.Journal().Undo());
        cDatabase other;
        other.Open(book.File.Path(), eOpenMode::ReadWrite);
        other.Execute("BEGIN EXCLUSIVE");
        QCOMPARE(settings.Get(modSettingKey::MainAccount), u"Spar"_s);
        QVERIFY(book.Data.GetSettings().isEmpty());
        QCOMPARE(settings.Get(modSettingKey::MainAccount), u"Spar"_s);
        other.Execute("ROLLBACK");
        QVERIFY(!book.Data.GetTemplates().isEmpty());
        QCOMPARE(settings.Get(modSettingKey::MainAccount), QString());
        QCOMPARE(book.User.Shown.size(), 1);
    }

    void ReadOnlyKeepsChangesInMemory() const
    {
        cOpened book;
        book.Database.Open(book.File.Path(), eOpenMode::ReadOnly);
        cSettings settings(book.Data);
        QVERIFY(settings.Set(modSettingKey::MainAccount, u"Giro"_s));
        QCOMPARE(settings.Get(modSettingKey::MainAccount), u"Giro"_s);
        QCOMPARE(cSettings(book.Data).Get(modSettingKey::MainAccount), QString());
        QCOMPARE(book.User.Shown, QStringList());
    }

    void ResetSparesWhatOutlivesIt() const
    {
        cOpened book;
        const QList<cSettingKey> keys = AllKeys(u"100"_s);
        for (const cSettingKey& key : keys) {
            QVERIFY(book.Data.ChangeSettingItem(key.Name(), u"0"_s));
        }
        QVERIFY(book.Data.ChangeSettingItem(u"of another version"_s, u"0"_s));
        cSettings(book.Data).ResetAll();
        QStringList left = Each(book.Data.GetSettings(),
                                [](const auto& setting) { return QString(setting.first + u'=' + setting.second); });
        left.sort();
        QCOMPARE(left.join(u' '),
                 u"Ansichten=0 Anteile:100=0 Auszüge:100=0 Budget:100=0 Farbe:100=0 FirstInstall=0 HBCIProdukt=0 "
                 "HBCIVBLZ100=0 LastVersion=0 Passwort=0 PasswortAktiv=0 Personen=0 SpielBestwerte=0 Symbol:100=0 "
                 "UmsatzWahl=0 Update=0 ViewAccountValueAll=Wahr ViewFixBooking=Wahr ViewFutureBooking=Wahr "
                 "ViewSingleBooking=Wahr "
                 "ViewStartBooking=Wahr"_s);
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
        QCOMPARE(configuration.GetSetting(modSettingKey::Database), u"machine"_s);
        registry.Values.insert(Former(eRegistryScope::User, u"Database"_s), u"former"_s);
        QCOMPARE(configuration.GetSetting(modSettingKey::Database), u"former"_s);
        registry.Values.insert(Current(u"Database"_s), u"\r\n"_s); // nothing is left of it
        QCOMPARE(configuration.GetSetting(modSettingKey::Database), u"former"_s);
        registry.Values.insert(Current(u"Database"_s), u"current"_s);
        QVERIFY(settings.Set(modSettingKey::Database, QString()));
        QCOMPARE(configuration.GetSetting(modSettingKey::Database), u"current"_s);
        QVERIFY(settings.Set(modSettingKey::Database, u"table"_s));
        QCOMPARE(configuration.GetSetting(modSettingKey::Database), u"table"_s);

        QVERIFY(settings.Set(modSettingKey::DatabaseList, u"table"_s)); // never from the table
        registry.Values.insert(Current(u"DatabaseList"_s), u"registry"_s);
        QCOMPARE(configuration.GetSetting(modSettingKey::DatabaseList), u"registry"_s);

        configuration.DeleteRegistrySetting(modSettingKey::Database);
        QVERIFY(settings.Delete(modSettingKey::Database));
        QCOMPARE(configuration.GetSetting(modSettingKey::Database), u"machine"_s);
    }

    void WithoutDatabaseNothingIsStoredInIt() const
    {
        cFakeRegistry registry;
        cConfiguration configuration(registry);
        QVERIFY(!configuration.SaveSetting(modSettingKey::MainAccount, u"Giro"_s, eSettingPlace::Database));
        QCOMPARE(configuration.GetSetting(modSettingKey::MainAccount), QString());
        QVERIFY(configuration.SaveSetting(modSettingKey::Database, u"path"_s, eSettingPlace::Registry));
        QCOMPARE(registry.Values.value(Current(u"Database"_s)), u"path"_s);
    }

    void Passwords_data() const
    {
        const cTestRows<QString, QString, bool> row("stored", "typed", "isRight");
        const QString digest = u"900150983cd24fb0d6963f7d28e17f72"_s;
        row("digest", digest, u"abc"_s, true);
        row("digest in capitals", digest.toUpper(), u"abc"_s, true);
        row("digest of UTF-8", u"8419b71c87a225a2c70b50486fbee545"_s, u"ä"_s, true);
        row("other letter case", digest, u"ABC"_s, false);
        row("the digest itself", digest, digest, false);
        row("older file: the password", u"abc"_s, u"abc"_s, true);
        row("older file: wrong", u"abc"_s, u"abd"_s, false);
        row("nothing typed", digest, {}, false);
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
        cOpened unreadable;
        unreadable.Database.Execute("DROP TABLE setting");
        cSettings settings(unreadable.Data);
        configuration.SetDatabase(&settings);
        QVERIFY(!modPassword::Admit(configuration, rescue)); // nobody knows
        configuration.SetDatabase(nullptr);
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
        QVERIFY(modPassword::Matches(u"Größe"_s, configuration.GetSetting(modSettingKey::Password)));
        QCOMPARE(registry.Values.value(Current(u"Passwort"_s)), u"old"_s);
        QVERIFY(modPassword::Remove(configuration));
        QVERIFY(!modPassword::IsActive(configuration));
    }
};

TEST_CLASS(testSettings, QCoreApplication)
#include "testSettings.moc"
