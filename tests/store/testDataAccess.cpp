#include "model/modRecurrence.h"
#include "model/modWord.h"
#include "support/cOpenedFile.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

namespace {

cEntryItem Entry()
{
    cEntryItem entry;
    entry.EntryDate = QDate(2024, 2, 29);
    entry.EntryType = modWord::Ausgabe;
    entry.EntryInterval = modWord::Einmalig;
    entry.EntryAccount = u"O'Hara"_s;
    entry.EntryAccountMove = u"'"_s;
    entry.EntryCategory = u"Haushalt; Kid's"_s;
    entry.EntryValue = 1250;
    entry.EntryDescription = u"Rock 'n' Roll für 5 €"_s;
    entry.EntryFlags = u"split='1'"_s;
    return entry;
}

cEntryItemFixMod FixMod(int entryId)
{
    return {0, entryId, modWord::Betrag, {}, {}, 0, {}};
}

} // namespace

class testDataAccess final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EntryReadsBack() const
    {
        cOpenedFile book;
        cEntryItem entry = Entry();
        QVERIFY(book.Data.AddNewEntry(entry));
        QCOMPARE(entry.ID, 1);
        QCOMPARE(book.Value("SELECT EntryDate || '|' || EntryDateEnd || '|' || EntryValue FROM data"),
                 u"2024-02-29|2050-01-01|12.50"_s);
        QCOMPARE(book.Value(
                     "SELECT EntryAccount || '|' || EntryAccountMove || '|' || EntryCategory || '|' || EntryDescription"
                     " || '|' || EntryFlags FROM data"),
                 u"O''Hara|''|Haushalt; Kid''s|Rock ''n'' Roll für 5 €|split='1'"_s);
        cEntryItem expected = Entry();
        expected.ID = 1;
        expected.EntryDateEnd = modRecurrence::OpenEnd;
        QVERIFY(book.Data.LoadEntry(1) == expected);
        QVERIFY(entry == expected);
        QVERIFY(!book.Data.LoadEntry(2));
        QCOMPARE(book.Data.CountEntriesByAccount().value(u"O'Hara"_s), 1);
        QCOMPARE(book.Data.CountEntriesOfAccount(u"O'Hara"_s), 1);
        QCOMPARE(book.Data.CountEntriesOfCategory(u"Haushalt; Kid's"_s), 1);
        QCOMPARE(book.Data.GetEntryAccounts(), QStringList(u"O'Hara"_s));
        QCOMPARE(book.User.Shown, QStringList());
    }

    void TextsThatSayTheSameStay_data() const
    {
        const cTestRows<QString, qint64, QString> row("stored", "cents", "written");
        row("comma", u"12,5"_s, 1250, u"12,5"_s);
        row("sign", u"-3"_s, 300, u"-3"_s);
        row("fraction of a cent", u"0.333"_s, 33, u"0.333"_s);
        row("unreadable", u"viel"_s, 0, u"viel"_s);
        row("unreadable, edited", u"viel"_s, 100, u"1.00"_s);
        row("edited", u"12,5"_s, 1251, u"12.51"_s);
    }

    void TextsThatSayTheSameStay() const
    {
        QFETCH(const QString, stored);
        QFETCH(const qint64, cents);
        cOpenedFile book("INSERT INTO data (ID, EntryDate, EntryDateEnd) VALUES (1, '2024-01-05 00:00:00', 'nie')");
        book.Database.Execute("UPDATE data SET EntryValue = ?", {stored});
        std::optional<cEntryItem> entry = book.Data.LoadEntry(1);
        entry->EntryDescription = u"neu"_s;
        entry->EntryValue = cents;
        QVERIFY(book.Data.ChangeEntry(*entry));
        QTEST(book.Value("SELECT EntryValue FROM data"), "written");
        QCOMPARE(book.Value("SELECT EntryDate FROM data"), u"2024-01-05 00:00:00"_s);
        QCOMPARE(book.Value("SELECT EntryDateEnd FROM data"), u"2050-01-01"_s);
        QCOMPARE(book.Value("SELECT EntryDescription FROM data"), u"neu"_s);
    }

    // Only one side of the comparison is lower-cased, so names with capitals are never matched.
    void RenamingMatchesLowerCaseOnly() const
    {
        cOpenedFile book("INSERT INTO data (ID, EntryAccount, EntryAccountMove) VALUES"
                         " (1, 'Bank', 'bank'), (2, 'bank', 'Bank'), (3, 'tom''''s', '')");
        QVERIFY(book.Data.ChangeEntryAccount(u"Neu"_s, u"BANK"_s));
        QVERIFY(book.Data.ChangeEntryAccount(u"Tim's"_s, u"Tom's"_s));
        QCOMPARE(book.Value("SELECT group_concat(EntryAccount || '/' || EntryAccountMove, ' ') FROM data"),
                 u"Bank/Neu Neu/Bank Tim''s/"_s);
    }

    void DeletedEntryLetsGo() const
    {
        cOpenedFile book("INSERT INTO data (ID) VALUES (1), (2);"
                         "INSERT INTO import (ID, ImportAssigned, ImportAssignedEntry) VALUES"
                         " (1, -1, 1), (2, -1, 2), (3, -1, 1);");
        QVERIFY(book.Data.AddNewEntryMod(FixMod(1)));
        QVERIFY(book.Data.AddNewEntryMod(FixMod(2)));
        QVERIFY(book.Data.DeleteEntry(1));
        QCOMPARE(book.Data.CountEntries(), 1);
        QVERIFY(book.Data.GetEntryMods(1).isEmpty());
        QCOMPARE(book.Data.GetEntryMods(2).size(), 1);
        QCOMPARE(book.Value("SELECT group_concat(ImportAssigned || '/' || ImportAssignedEntry, ' ') FROM import"),
                 u"0/-1 -1/2 0/-1"_s);
    }

    void CorrectionReplacesTheFormer() const
    {
        cOpenedFile book;
        cEntryItemFixMod fixMod = FixMod(4);
        fixMod.EntryStartDate = QDate(2024, 1, 1);
        fixMod.EntryValue = 500;
        QVERIFY(book.Data.AddNewEntryMod(fixMod));
        fixMod.EntryComment = u"Oma's"_s;
        QVERIFY(book.Data.AddNewEntryMod(fixMod));
        fixMod.EntryStartDate = QDate(2024, 2, 1);
        QVERIFY(book.Data.AddNewEntryMod(fixMod));
        cEntryItemFixModList found = book.Data.GetEntryMods(4);
        QCOMPARE(found.size(), 2);
        QCOMPARE(found[0].EntryComment, u"Oma's"_s);
        found[0].EntryValue = 700;
        QVERIFY(book.Data.ChangeEntryMod(found[0]));
        QVERIFY(book.Data.GetEntryMods(4)[0] == found[0]);
        QVERIFY(book.Data.DeleteEntryMod(found[0].ID));
        QCOMPARE(book.Data.GetEntryMods(4).size(), 1);
    }

    void TemplatesKeepTheirTexts() const
    {
        cOpenedFile book;
        cTemplateItem item;
        item.TemplateType = modWord::Kategorie;
        item.TemplateCategory = u"Haus & Garten"_s;
        item.TemplateName = u"Kid's; \"Stuff\""_s;
        item.TemplateComment = u"Mom's"_s;
        item.TemplateVAT = u"neunzehn"_s;
        item.TemplatePriority = u"hoch"_s;
        QVERIFY(book.Data.AddNewTemplate(item));
        QCOMPARE(item.TemplateName, u"Kids Stuff"_s);
        QCOMPARE(item.TemplateCategory, u"Haus  Garten"_s);
        item.TemplateVisible = u"0"_s;
        QVERIFY(book.Data.ChangeTemplate(item));
        QVERIFY(book.Data.FindTemplate(item.ID) == item);
        QVERIFY(book.Data.FindTemplate(u"Haus  Garten"_s, u"Kids Stuff"_s) == item);
        QVERIFY(!book.Data.FindAccount(u"Kids Stuff"_s));
        QVERIFY(book.Data.FindAccount(u"Girokonto"_s));
        QCOMPARE(book.Data.GetAccounts().size(), 1);
        QVERIFY(book.Data.DeleteTemplate(item.ID));
        QCOMPARE(book.Data.GetTemplates().size(), 1);
    }

    void StagedRowReadsBack() const
    {
        cOpenedFile book;
        cImportEntry entry;
        entry.ImportAccount = u"DE01"_s;
        entry.ImportDate = QDate(2024, 5, 6);
        entry.ImportPurpose = u"it's 'Miete'"_s;
        entry.ImportBeneficiary = u"Müller"_s;
        entry.ImportValue = -1234;
        entry.ImportCurrency = u"EUR"_s;
        QVERIFY(book.Data.AddNewImportEntry(entry));
        QCOMPARE(entry.ID, 1);
        QCOMPARE(book.Value(
                     "SELECT ImportPurpose || '|' || ImportDate || '|' || ImportAssigned || '|' || ImportAssignedEntry"
                     " FROM import"),
                 u"it''s ''Miete''|2024-05-06|0|-1"_s);
        QCOMPARE(book.Value("SELECT ImportValue FROM import"), u"-12.34"_s);
        QVERIFY(book.Data.GetImportEntries() == cImportEntryList{entry});
        QCOMPARE(book.Data.CountOpenImports().value(u"DE01"_s), 1);
        entry.ImportAssigned = true;
        entry.ImportAssignedEntry = 7;
        QVERIFY(book.Data.ChangeImportEntry(entry));
        QCOMPARE(book.Value("SELECT ImportAssigned || '|' || ImportAssignedEntry FROM import"), u"-1|7"_s);
        QVERIFY(book.Data.GetImportEntries() == cImportEntryList{entry});
        QVERIFY(book.Data.CountOpenImports().isEmpty());
        QCOMPARE(book.Data.GetImportAccounts(), QStringList(u"DE01"_s));
    }

    void StagedAmountsBecomeCents() const
    {
        cOpenedFile book;
        cTestFile::Run(book.File.Path(),
                       "INSERT INTO import (ImportValue) VALUES (-12.340000000000002), (1.005), ('7.5'), (NULL)");
        QCOMPARE(Each(book.Data.GetImportEntries(), &cImportEntry::ImportValue), QList<qint64>({-1234, 101, 750, 0}));
    }

    void CacheLearnsOfEveryWrite() const
    {
        cOpenedFile book;
        const quint64 first = book.Data.ImportVersion();
        QCOMPARE(book.Data.ImportVersion(), first);
        cImportEntry entry;
        QVERIFY(book.Data.AddNewImportEntry(entry));
        const quint64 second = book.Data.ImportVersion();
        QVERIFY(second != first);
        cEntryItem other = Entry();
        QVERIFY(book.Data.AddNewEntry(other)); // another table
        QCOMPARE(book.Data.ImportVersion(), second);
        cTestFile::Run(book.File.Path(), "DELETE FROM import");
        const quint64 third = book.Data.ImportVersion();
        QVERIFY(third != second);
        QVERIFY(book.Data.DeleteAllImports());
        QVERIFY(book.Data.ImportVersion() != third);
    }

    void StartBalance() const
    {
        cOpenedFile book;
        QVERIFY(!book.Data.GetStartGuthaben(u"O'Hara"_s));
        QVERIFY(book.Data.SetStartGuthaben(u"O'Hara"_s, 10000, QDate(2024, 1, 1)));
        QVERIFY(book.Data.SetStartGuthaben(u"O'Hara"_s, -2550, QDate(2023, 12, 31)));
        QVERIFY(book.Data.SetStartGuthaben(u"Bargeld"_s, 0, QDate(2024, 1, 1)));
        QCOMPARE(book.Data.CountEntries(), 2);
        const std::optional<cEntryItem> entry = book.Data.GetStartGuthaben(u"O'Hara"_s);
        QCOMPARE(entry->EntryType, u"Ausgabe"_s);
        QCOMPARE(entry->EntryValue, 2550);
        QCOMPARE(entry->EntryDate, QDate(2023, 12, 31));
        QCOMPARE(entry->EntryCategory, u"Allgemein; Startguthaben"_s);
    }

    void OnlineAccountsKeepTheirColumns() const
    {
        cOpenedFile book;
        cOnlineAccount account;
        for (size_t i = 0; i < account.Values.size(); ++i) {
            account.Values[i] = u"Wert %1"_s.arg(i);
        }
        const cOnlineAccount first = account;
        QVERIFY(book.Data.GetNewOnlineAccount(account));
        QVERIFY(account.Values == first.Values);
        QCOMPARE(book.Value("SELECT AccountTANMediaSecurityFunction FROM account"), u"Wert 34"_s);
        QVERIFY(book.Data.FindOnlineAccount(u"Wert 10"_s, u"Wert 9"_s) == account); // number, bank code
        account.Values[34] = u"neu"_s;
        QVERIFY(book.Data.ChangeOnlineAccount(account));
        QVERIFY(book.Data.FindOnlineAccount(account.ID) == account);
        cOnlineAccount second;
        QVERIFY(book.Data.GetNewOnlineAccount(second));
        QCOMPARE(book.Data.GetOnlineAccounts().first().ID, second.ID);
        QVERIFY(book.Data.DeleteOnlineAccount(second.ID));
        QCOMPARE(book.Data.GetOnlineAccounts().size(), 1);
    }

    void Failures_data() const
    {
        using fnCall = bool (*)(cDataAccess&);
        const cTestRows<fnCall> row("call");
        row("ERROR: AddNewEntry|no such table: data", [](cDataAccess& data) {
            cEntryItem entry = Entry();
            return data.AddNewEntry(entry);
        });
        row("ERROR: ChangeEntryAccount|no such table: data",
            [](cDataAccess& data) { return data.ChangeEntryAccount({}, {}); });
        row("ERROR: GetEntries|no such table: data", [](cDataAccess& data) { return !data.GetEntries({}).isEmpty(); });
        row("ERROR: ChangeEntryMod|no such table: datamod", [](cDataAccess& data) { return data.ChangeEntryMod({}); });
        row("ERROR: DeleteEntryMod|", [](cDataAccess& data) { return data.DeleteEntryMod(1); });
        row("ERROR: DeleteTemplate|no such table: template", [](cDataAccess& data) { return data.DeleteTemplate(1); });
        row("FEHLER: GetImportEntries|no such table: import",
            [](cDataAccess& data) { return !data.GetImportEntries().isEmpty(); });
        row("ERROR: DeleteAllImports|no such table: import", [](cDataAccess& data) { return data.DeleteAllImports(); });
        row("ERROR: SetStartGuthaben|no such table: data",
            [](cDataAccess& data) { return data.SetStartGuthaben({}, 1, QDate(2024, 1, 1)); });
        row("ERROR: ChangeSettingItem|no such table: setting",
            [](cDataAccess& data) { return data.ChangeSettingItem({}, {}); });
    }

    void Failures() const
    {
        using fnCall = bool (*)(cDataAccess&);
        QFETCH(const fnCall, call);
        cOpenedFile book;
        for (const char* table : {"data", "datamod", "template", "import", "setting"}) {
            book.Database.Execute(std::string("DROP TABLE ") + table);
        }
        QVERIFY(!call(book.Data));
        QCOMPARE(book.User.Shown, QStringList(QString::fromUtf8(QTest::currentDataTag()).replace(u'|', u'\n')));
    }

    void FullDiskLosesNothing() const
    {
        cOpenedFile book;
        cEntryItem entry = Entry();
        QVERIFY(book.Data.AddNewEntry(entry));
        (void)book.Value("PRAGMA max_page_count=1"); // cut to the pages there are
        entry.EntryDescription = QString(100'000, u'x');
        QVERIFY(!book.Data.AddNewEntry(entry));
        QVERIFY(!book.Data.ChangeEntry(entry));
        QCOMPARE(
            book.User.Shown.value(0),
            u"ERROR: AddNewEntry\nDer Datenträger ist voll. Bitte schaffen Sie Platz und versuchen Sie es noch einmal."_s);
        QCOMPARE(book.Data.CountEntries(), 1);
        QCOMPARE(book.Data.LoadEntry(1)->EntryDescription, Entry().EntryDescription);
        QVERIFY(book.Database.IntegrityCheck().isEmpty());
    }

    void LockedFileRefusesOnce() const
    {
        cOpenedFile book;
        cDatabase other;
        other.Open(book.File.Path(), eOpenMode::ReadWrite);
        other.Execute("BEGIN IMMEDIATE");
        cEntryItem entry = Entry();
        QVERIFY(!book.Data.AddNewEntry(entry));
        QCOMPARE(
            book.User.Shown,
            QStringList(
                u"ERROR: AddNewEntry\nDie Datenbank ist gesperrt: Ein anderes Programm schreibt gerade hinein. Bitte versuchen Sie es gleich noch einmal."_s));
        other.Execute("ROLLBACK");
        QVERIFY(book.Data.AddNewEntry(entry));
    }

    void BackupIsWholeOrAbsent() const
    {
        cOpenedFile book;
        cEntryItem entry = Entry();
        QVERIFY(book.Data.AddNewEntry(entry));
        const QString copy = book.File.Path(u"copy.backup"_s);
        book.Database.BackupTo(copy);
        cDatabase opened;
        QCOMPARE(modSchema::OpenValid(opened, copy, eOpenMode::ReadOnly), eDatabaseFault::None);
        QCOMPARE(cTestFile::Value(opened, "SELECT COUNT(*) FROM data"), u"1"_s);
        QVERIFY_THROWS_EXCEPTION(cDatabaseError, book.Database.BackupTo(book.File.Path(u"missing/copy.backup"_s)));
        const QString link = book.File.Path(u"link.backup"_s);
        QVERIFY(QFile::link(u"elsewhere"_s, link));
        QVERIFY_THROWS_EXCEPTION(cDatabaseError, book.Database.BackupTo(link));
        QVERIFY(!QFile::exists(book.File.Path(u"elsewhere"_s)));
        QVERIFY_THROWS_EXCEPTION(cDatabaseError, book.Database.BackupTo(copy));
        QVERIFY(QFile::exists(copy));
        cDatabase other;
        other.Open(book.File.Path(), eOpenMode::ReadWrite);
        other.Execute("BEGIN EXCLUSIVE");
        QVERIFY_THROWS_EXCEPTION(cDatabaseError, book.Database.BackupTo(book.File.Path(u"locked.backup"_s)));
        QVERIFY(!QFile::exists(book.File.Path(u"locked.backup"_s)));
    }
};

TEST_CLASS(testDataAccess, QCoreApplication)
#include "testDataAccess.moc"
