#include "store/cDataAccess.h"
#include "store/modSchema.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"
#include "support/fakes.h"

using namespace Qt::Literals::StringLiterals;

class testSchema final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FirstOpeningCompletesTheFile() const
    {
        const cTestFile file;
        cDatabase database;
        QCOMPARE(modSchema::OpenValid(database, file.Make(), eOpenMode::ReadWrite), eDatabaseFault::None);
        const QStringList added = modSchema::Upgrade(database);
        QVERIFY(added.contains(u"Tabelle datamod"_s));
        QVERIFY(added.contains(u"Spalte data.EntryFlags"_s));
        QVERIFY(added.contains(u"Index importAssignedID"_s));
        QCOMPARE(added.size(), 3 + 17 + 4);
        QVERIFY(modSchema::Missing(database).isEmpty());
        QCOMPARE(cTestFile::Value(database, "SELECT COUNT(*) FROM pragma_table_info('account')"), u"36"_s);

        database.Execute("VACUUM"); // from now on the file is one that is vacuumed in steps, as that of every new book
        const QByteArray before = cTestFile::Bytes(file.Path());
        QVERIFY(modSchema::Upgrade(database).isEmpty());
        database.Close();
        QVERIFY(cTestFile::Bytes(file.Path()) == before);
    }

    void OldCodes_data() const
    {
        const cTestRows<QString, QString, QString> row("type", "interval", "words");
        row("filter words", u"0"_s, u"0"_s, u"Alle Buchungsarten/Alle"_s);
        row("once", u"1"_s, u"1"_s, u"Einnahme/Einmalig"_s);
        row("all intervals", u"2"_s, u"2"_s, u"Ausgabe/Alle Intervalle"_s);
        row("two weeks", u"3"_s, u"5"_s, u"Umbuchung/Alle 2 Wochen"_s);
        row("month, without four weeks before it", u"4"_s, u"6"_s, u"4/Monatlich"_s);
        row("year", u"Ausgabe"_s, u"10"_s, u"Ausgabe/Jährlich"_s);
        row("beyond the list", u"Ausgabe"_s, u"11"_s, u"Ausgabe/11"_s);
    }

    void OldCodes() const
    {
        QFETCH(const QString, type);
        QFETCH(const QString, interval);
        const cTestFile file;
        cDatabase database;
        database.Open(file.Make(), eOpenMode::ReadWrite);
        const cBoundList codes{type, interval};
        database.Execute(
            "INSERT INTO template (ID, TemplateType, EntryType, EntryInterval) VALUES (9, 'Kategorie', ?, ?)", codes);
        database.Execute("INSERT INTO template (ID, TemplateType, EntryType, EntryInterval) VALUES (10, 'Konto', ?, ?)",
                         codes);
        modSchema::Upgrade(database);
        QTEST(cTestFile::Value(database, "SELECT EntryType || '/' || EntryInterval FROM template WHERE ID = 9"),
              "words");
        QCOMPARE(cTestFile::Value(database, "SELECT EntryInterval FROM template WHERE ID = 10"), interval);
    }

    void EntriesWithoutAccountGetTheFirst() const
    {
        const cTestFile file;
        cDatabase database;
        database.Open(file.Make("UPDATE template SET TemplateName = 'O''Hara';"
                                "INSERT INTO data (ID, EntryType, EntryAccount, EntryAccountMove) VALUES"
                                " (1, 'Ausgabe', '', ''), (2, 'Umbuchung', 'Bar', '');"),
                      eOpenMode::ReadWrite);
        modSchema::Upgrade(database);
        QCOMPARE(cTestFile::Value(database, "SELECT EntryAccount FROM data WHERE ID = 1"), u"O''Hara"_s);
        QCOMPARE(cTestFile::Value(database, "SELECT EntryAccountMove FROM data WHERE ID = 2"), QString());
    }

    void WhatIsNoDatabase_data() const
    {
        const cTestRows<QByteArray, QString, eDatabaseFault> row("bytes", "sql", "fault");
        row("text", QByteArray("Dies ist keine Datenbank, sondern ein längerer Text.\n").repeated(40), {},
            eDatabaseFault::Damaged);
        row("empty file", {}, {}, eDatabaseFault::Damaged);
        row("header and rubbish", QByteArray("SQLite format 3\0", 16) + QByteArray(2000, 'x'), {},
            eDatabaseFault::Damaged);
        row("without table data", {}, u"CREATE TABLE other (ID INTEGER)"_s, eDatabaseFault::Damaged);
        const QString endless = u" AS WITH RECURSIVE c(x) AS (SELECT 1 UNION ALL SELECT x FROM c) SELECT x FROM c"_s;
        row("endless view", {}, u"CREATE VIEW data"_s + endless, eDatabaseFault::Damaged);
        row("endless view for settings", {}, u"CREATE TABLE data (ID INTEGER); CREATE VIEW Setting"_s + endless,
            eDatabaseFault::Damaged);
        row("table of a module", {}, u"CREATE VIRTUAL TABLE data USING fts5(ID)"_s, eDatabaseFault::Damaged);
        row("just the table", {}, u"CREATE TABLE data (ID INTEGER)"_s, eDatabaseFault::None);
    }

    void WhatIsNoDatabase() const
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QString, sql);
        QFETCH(const eDatabaseFault, fault);
        const cTestFile file;
        cTestFile::Write(file.Path(), bytes);
        if (!sql.isEmpty()) {
            cTestFile::Run(file.Path(), sql.toStdString());
        }
        cDatabase database;
        QCOMPARE(modSchema::OpenValid(database, file.Path(), eOpenMode::ReadWrite), fault);
        QCOMPARE(database.IsOpen(), fault == eDatabaseFault::None);
    }

    void UnreachableIsNotDamaged() const
    {
        const cTestFile file;
        cDatabase database(0);
        QCOMPARE(modSchema::OpenValid(database, file.Path(), eOpenMode::ReadWrite), eDatabaseFault::NoAccess);
        QCOMPARE(modSchema::OpenValid(database, file.Folder(), eOpenMode::ReadWrite), eDatabaseFault::NoAccess);
        cDatabase other;
        other.Open(file.Make(), eOpenMode::ReadWrite);
        other.Execute("BEGIN EXCLUSIVE");
        QCOMPARE(modSchema::OpenValid(database, file.Path(), eOpenMode::ReadWrite), eDatabaseFault::Busy);
        other.Execute("ROLLBACK");
        QCOMPARE(modSchema::OpenValid(database, file.Path(), eOpenMode::ReadWrite), eDatabaseFault::None);
    }

    // An old file that must not be written can be read all the same.
    void ReadingWithoutUpgrade() const
    {
        const cTestFile file;
        file.Make("INSERT INTO data (ID, EntryDate, EntryDateEnd, EntryType, EntryInterval, EntryValue)"
                  " VALUES (1, '2024-01-01', '2050-01-01', 'Ausgabe', 'Monatlich', '5.00');"
                  "CREATE TABLE account (ID INTEGER PRIMARY KEY, AccountNumber TEXT);");
        const QByteArray before = cTestFile::Bytes(file.Path());
        cDatabase database;
        QCOMPARE(modSchema::OpenValid(database, file.Path(), eOpenMode::ReadOnly), eDatabaseFault::None);
        QCOMPARE(modSchema::StandIn(database), eDatabaseFault::None);
        cFakeUser user;
        cDataAccess data(database, user);
        QCOMPARE(data.GetEntries({{}, QDate(2024, 3, 31), {}, {}, {}}).size(), 3);
        QVERIFY(data.GetSettings().isEmpty());
        QVERIFY(data.IsReadOnly());
        QCOMPARE(user.Shown, QStringList());
        QVERIFY(!data.ChangeEntryCategory(u"a"_s, u"b"_s));
        QCOMPARE(user.Shown.size(), 1);
        database.Close();
        QVERIFY(cTestFile::Bytes(file.Path()) == before);
    }

    // Figures must not change because the window has opened the file in the meantime.
    void ReadingSeesWhatTheUpgradeWillMake() const
    {
        const cTestFile file;
        file.Make(
            "INSERT INTO data (EntryDate, EntryDateEnd, EntryType, EntryInterval, EntryAccount, EntryValue) VALUES"
            " ('2024-01-01', '2050-01-01', 'Ausgabe', 'Monatlich', '', '5.00'),"
            " ('2024-01-02', '2050-01-01', 'Ausgabe', 'Einmalig', 'Bar', '7.00');"
            "INSERT INTO template (EntryType, EntryInterval, TemplateType, TemplateCategory) VALUES"
            " ('2', '6', 'Kategorie', 'Wohnung');");
        cDatabase database;
        cFakeUser user;
        cDataAccess data(database, user);
        const auto entries = [&] { return data.GetEntries({{}, QDate(2024, 3, 31), {}, u"Girokonto"_s, {}}); };
        QCOMPARE(modSchema::OpenValid(database, file.Path(), eOpenMode::ReadOnly), eDatabaseFault::None);
        QCOMPARE(modSchema::StandIn(database), eDatabaseFault::None);
        const cEntryItemList before = entries();
        const cTemplateItemList templates = data.GetTemplates();
        QCOMPARE(before.size(), 3);
        QCOMPARE(data.LoadEntry(1).value_or(cEntryItem{}).EntryAccount, u"Girokonto"_s);

        QCOMPARE(modSchema::OpenValid(database, file.Path(), eOpenMode::ReadWrite), eDatabaseFault::None);
        modSchema::Upgrade(database);
        QVERIFY(entries() == before);
        QVERIFY(data.GetTemplates() == templates);
    }

    void DefaultDatabase_data() const
    {
        const cTestRows<bool, bool, QByteArray, QString> row("hasTemplate", "hasDatabase", "content", "message");
        row("made from the template", true, false, "template", {});
        row("left as it is", true, true, "mine", {});
        row("present, template lost", false, true, "mine", {});
        row("nothing there", false, false, {},
            u"Die Installation ist beschädigt. Eine Neuinstallation könnte das Problem "
            u"beheben.\nDie Datei 'template.dat' konnte nicht gefunden werden!"_s);
    }

    void DefaultDatabase() const
    {
        QFETCH(const bool, hasTemplate);
        QFETCH(const bool, hasDatabase);
        QFETCH(const QString, message);
        cFakeShell shell;
        cFakeUser user;
        const QString path = shell.DataFolder() + u"/data.db"_s;
        if (hasTemplate) {
            cTestFile::Write(shell.InstalledFile(u"template.dat"_s), "template");
        }
        if (hasDatabase) {
            cTestFile::Write(path, "mine");
        }
        QCOMPARE(modSchema::GetDefaultDatabase(shell, user), path);
        QTEST(cTestFile::Bytes(path), "content");
        QCOMPARE(user.Shown, message.isEmpty() ? QStringList() : QStringList(message));
    }

    void DefaultDatabaseWithoutRoom() const
    {
        cFakeShell shell;
        shell.IsFull = true;
        cFakeUser user;
        cTestFile::Write(shell.InstalledFile(u"template.dat"_s), "template");
        (void)modSchema::GetDefaultDatabase(shell, user);
        QCOMPARE(user.Shown,
                 QStringList(u"Die Datenbank konnte nicht erstellt werden. Bitte prüfen Sie die Zugriffsrechte und den "
                             u"Speicherplatz: \n"_s
                             + shell.DataFolder()));
    }

    void JoinedPaths() const
    {
        QCOMPARE(modSchema::JoinPath(u"/a"_s, u"b"_s), u"/a/b"_s);
        QCOMPARE(modSchema::JoinPath(u"/a/"_s, u"b"_s), u"/a/b"_s);
        QCOMPARE(modSchema::JoinPath(u"C:\\"_s, u"b"_s), u"C:\\b"_s);
    }
};

TEST_CLASS(testSchema, QCoreApplication)
#include "testSchema.moc"
