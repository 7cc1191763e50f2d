#include "cEditorBook.h"
#include "core/cBook.h"
#include "core/cConfiguration.h"
#include "model/modReceiptName.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"
#include "store/modBookFile.h"
#include "support/cFakeMachine.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"
#include "support/cTestRows.h"
#include "views/book/cBookCheck.h"
#include "views/book/cBookFlow.h"
#include "views/book/cBookHost.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const char* oneEntry = "INSERT INTO data (EntryDate, EntryAccount) VALUES ('2026-01-31', 'Giro');";

class cFakeHost final : public cBookHost
{
public:
    bool IsInUse(const QString& path) override { return path == Used; }
    bool Switch(const QString& path, eBookOrigin origin) override
    {
        Switched = path;
        Origin = origin;
        return Works;
    }
    std::optional<QString> Restore(const QString& backup) override
    {
        Restored = backup;
        return Works ? std::optional(u"/kept"_s) : std::nullopt;
    }

    QString Used;
    QString Switched;
    QString Restored;
    eBookOrigin Origin = eBookOrigin::Existing;
    bool Works = true;
};

struct cMachine : cFakeMachine
{
    cMachine()
    {
        QVERIFY(Book.Open(File.Make(oneEntry)));
        cTestFile::Run(Shell.InstalledFile(u"template.dat"_s), cTestFile::Tables);
    }

    [[nodiscard]] QString List() const { return Configuration.GetSetting(modSettingKey::DatabaseList); }
    void SetList(const QStringList& books)
    {
        Configuration.SaveSetting(modSettingKey::DatabaseList, books.join(u'|'), eSettingPlace::Registry);
    }

    cConfiguration Configuration{Registry};
    cBook Book{User};
    cFakeHost Host;
    cBookFlow Flow{{Book, Configuration, User, Rescue, Shell, Clock, Host}};
};

} // namespace

class testBookFlow final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_machine.emplace(); }

    void DamagedBook_data() const
    {
        const cTestRows<bool, int, QString, QString> row("hasCopy", "chosen", "restored", "sql");
        row("the newest sound copy", true, 0, u"Sicherungen/data-auto-2026-03-13.backup"_s, {});
        row("another one", true, 1, u"my.backup"_s, {});
        row("only reading", true, 2, {}, {});
        row("no copy, another one", false, 0, u"my.backup"_s, {});
        row("no copy, only reading", false, 1, {}, {});
        row("giving up", false, -1, {}, {});
        row("incomplete", true, 0, u"Sicherungen/data-auto-2026-03-13.backup"_s, u"DROP TABLE template"_s);
    }

    void DamagedBook()
    {
        QFETCH(const bool, hasCopy);
        QFETCH(const int, chosen);
        QFETCH(const QString, restored);
        QFETCH(const QString, sql);
        m_machine->Book.Database().ExecuteScript(sql.toStdString());
        QVERIFY(QDir(m_machine->File.Folder()).mkpath(u"Sicherungen"_s));
        cTestFile::Write(m_machine->Path(u"Sicherungen/data-auto-2026-03-15.backup"_s), "damaged too");
        (void)m_machine->File.Make("DROP TABLE import", u"Sicherungen/data-auto-2026-03-14.backup"_s);
        for (const QString& day : {u"12"_s, u"13"_s}) {
            if (hasCopy) {
                (void)m_machine->File.Make(oneEntry, u"Sicherungen/data-auto-2026-03-%1.backup"_s.arg(day));
            }
        }
        m_machine->Rescue.Backup = m_machine->File.Make(oneEntry, u"my.backup"_s);
        m_machine->User.Decisions = {chosen};
        m_machine->User.Usual = eAnswer::Yes;
        m_machine->Flow.TellDamage();
        QVERIFY(
            m_machine->User.Asked[0].contains(sql.isEmpty() ? u"ist beschädigt"_s : u"Es fehlt: Tabelle template\n"_s));
        QCOMPARE(m_machine->User.Asked[0].contains(u"ist vom 13.03.2026. Sie enthält:\n1 Eintrag"_s), hasCopy);
        QCOMPARE(m_machine->Host.Restored, restored.isEmpty() ? QString() : m_machine->Path(restored));
    }

    void NewBook()
    {
        m_machine->User.SavePath = m_machine->Path(u"neu.db"_s);
        m_machine->Flow.NewBook();
        QCOMPARE(m_machine->User.Asked, QStringList(u"Datenbanken|*.db|Alle Dateien|*.*"_s));
        QCOMPARE(m_machine->User.LastProposal, m_machine->Path(u"Kontorelle-Neu"_s));
        QCOMPARE(m_machine->Host.Switched, m_machine->Path(u"neu.db"_s));
        QCOMPARE(m_machine->Host.Origin, eBookOrigin::Fresh);
        QCOMPARE(modBookFile::Look(m_machine->Path(u"neu.db"_s)).Entries, 0);
        QCOMPARE(m_machine->List(), QString(m_machine->Path(u"neu.db"_s) + u'|' + m_machine->Path(u"data.db"_s)));
        QCOMPARE(m_machine->User.Shown, QStringList());
    }

    void NewBookInPlaceOfAFile_data() const
    {
        const cTestRows<bool> row("works");
        row("the former file is kept", true);
        row("what cannot be opened leaves all as it was", false);
    }

    void NewBookInPlaceOfAFile()
    {
        QFETCH(const bool, works);
        m_machine->Host.Works = works;
        const QString path = m_machine->File.Make(oneEntry, u"other.db"_s);
        m_machine->User.SavePath = path;
        m_machine->Flow.NewBook();
        const QString kept = path + u".2026-03-15.ersetzt"_s;
        QCOMPARE(QFileInfo::exists(kept), works);
        QCOMPARE(modBookFile::Look(works ? kept : path).Entries, 1);
        QCOMPARE(m_machine->User.Shown,
                 works ? QStringList(u"Die bisherige Datei wurde als '%1' aufgehoben."_s.arg(kept)) : QStringList());
        QCOMPARE(m_machine->List().isEmpty(), !works);
    }

    void NoNewBook_data() const
    {
        const cTestRows<QString, bool, QString> row("name", "isFull", "message");
        row("user gives up", {}, false, {});
        row("the open book", u"data.db"_s, false, u"ist gerade geöffnet"_s);
        row("somebody else's book", u"used.db"_s, false, {}); // the host says so
        row("disk full", u"neu.db"_s, true, u"Die Datenbank konnte nicht erstellt werden."_s);
    }

    void NoNewBook()
    {
        QFETCH(const QString, name);
        QFETCH(const bool, isFull);
        QFETCH(const QString, message);
        m_machine->Host.Used = m_machine->Path(u"used.db"_s);
        m_machine->Shell.IsFull = isFull;
        m_machine->User.SavePath = name.isEmpty() ? QString() : m_machine->Path(name);
        m_machine->Flow.NewBook();
        QCOMPARE(m_machine->Host.Switched, QString());
        QCOMPARE(m_machine->User.Shown.size(), message.isEmpty() ? 0 : 1);
        QVERIFY(m_machine->User.Shown.join(u'\n').contains(message));
        QCOMPARE(QDir(m_machine->File.Folder()).entryList(QDir::Files), QStringList(u"data.db"_s));
    }

    void SwitchFromTheList()
    {
        const QString first = m_machine->File.Make({}, u"first.db"_s);
        const QString second = m_machine->File.Make({}, u"second.db"_s);
        const QString missing = m_machine->Path(u"stick/missing.db"_s);
        m_machine->SetList({first, m_machine->Path(u"data.db"_s), missing, second});
        QCOMPARE(m_machine->Flow.Books(), QStringList({first, second})); // neither the open one nor the missing one
        m_machine->User.Choices = {second};
        m_machine->Flow.SwitchBook();
        QCOMPARE(m_machine->User.LastChoice.Items, QStringList({first, second, u"Andere Datei wählen …"_s}));
        QCOMPARE(m_machine->Host.Switched, second);
        QCOMPARE(m_machine->Host.Origin, eBookOrigin::Existing);
        QCOMPARE(m_machine->List(), QStringList({second, m_machine->Path(u"data.db"_s), first, missing}).join(u'|'));
    }

    void SwitchToAnotherFile_data() const
    {
        const cTestRows<bool, bool> row("hasList", "works");
        row("nothing in the list", false, true);
        row("not in the list", true, true);
        row("it does not open", true, false);
    }

    void SwitchToAnotherFile()
    {
        QFETCH(const bool, hasList);
        QFETCH(const bool, works);
        m_machine->Host.Works = works;
        m_machine->SetList(hasList ? QStringList(m_machine->File.Make({}, u"first.db"_s)) : QStringList());
        const QString before = m_machine->List();
        m_machine->Rescue.Database = m_machine->File.Make({}, u"other.db"_s);
        m_machine->User.Choices.assign(hasList ? 1 : 0, u"Andere Datei wählen …"_s);
        m_machine->Flow.SwitchBook();
        QCOMPARE(m_machine->Host.Switched, m_machine->Path(u"other.db"_s));
        QCOMPARE(m_machine->List().startsWith(m_machine->Path(u"other.db"_s)), works);
        QVERIFY(works || m_machine->List() == before);
    }

    void OpenBookIsNotOpenedAgain()
    {
        QVERIFY(QFile::link(m_machine->Path(u"data.db"_s), m_machine->Path(u"link.db"_s)));
        m_machine->Rescue.Database = m_machine->Path(u"link.db"_s);
        m_machine->Rescue.Backup = m_machine->Path(u"link.db"_s);
        m_machine->Flow.SwitchBook();
        m_machine->Flow.LoadBackup();
        QCOMPARE(m_machine->Host.Switched + m_machine->Host.Restored, QString());
        QCOMPARE(m_machine->User.Shown.size(), 2);
        QVERIFY(m_machine->User.Shown[0].endsWith(u"ist bereits geöffnet."_s));
    }

    void ListIsShortAndWithoutItsSeparator()
    {
        QStringList books;
        for (int i = 0; i < 20; ++i) {
            books.append(m_machine->Path(u"%1.db"_s.arg(i)));
        }
        m_machine->SetList(books);
        m_machine->Rescue.Database = m_machine->File.Make({}, u"a|b.db"_s);
        m_machine->Flow.SwitchBook();
        const QStringList list = m_machine->List().split(u'|');
        QCOMPARE(list.size(), cBookFlow::MostBooks);
        QCOMPARE(list[0], m_machine->Path(u"data.db"_s));
    }

    void MakeBackup()
    {
        m_machine->Configuration.SetDatabase(&m_machine->Book.Settings());
        const QString target = m_machine->Path(u"stick/Kontorelle-2026-03-15.backup"_s);
        m_machine->User.SavePath = target;
        m_machine->Flow.MakeBackup();
        QCOMPARE(m_machine->User.Asked, QStringList(u"Backup-Datei|*.backup|Alle Dateien|*.*"_s));
        QCOMPARE(m_machine->User.LastProposal, m_machine->Path(u"Kontorelle-2026-03-15.backup"_s));
        QCOMPARE(modBookFile::Look(target).Entries, 1);
        QCOMPARE(m_machine->User.Shown.size(), 1);
        QVERIFY(m_machine->User.Shown[0].contains(u"1 Eintrag, der letzte vom 31.01.2026"_s));
        QCOMPARE(m_machine->Configuration.GetSetting(modSettingKey::BackupLast), u"2026-03-15"_s);
        m_machine->User.SavePath = m_machine->Path(u"data.db"_s);
        m_machine->Flow.MakeBackup();
        QCOMPARE(m_machine->User.LastProposal, target); // the folder used last
        QVERIFY(m_machine->User.Shown.constLast().startsWith(u"Die Datensicherung konnte nicht erstellt werden:"_s));
        cEntryItem entry = m_machine->Book.Data().LoadEntry(1).value();
        modReceiptName::Set(entry, {u"rechnung.pdf"_s});
        QVERIFY(m_machine->Book.Data().ChangeEntry(entry));
        m_machine->User.SavePath = target;
        m_machine->Flow.MakeBackup();
        QVERIFY(m_machine->User.Shown.constLast().contains(u"Belege sind nicht dabei (Zahl der Dateien: 1)"_s));
    }

    // What was left of it would be opened as the whole household the next time.
    void HalfWrittenDemoIsRemoved()
    {
        cTestFile::Run(m_machine->Shell.InstalledFile(u"template.dat"_s),
                       "CREATE TRIGGER full BEFORE INSERT ON import BEGIN SELECT RAISE(ABORT, 'full'); END;");
        m_machine->Flow.OpenDemo(u"1.0"_s);
        QVERIFY(m_machine->Host.Switched.isEmpty());
        QCOMPARE(QDir(m_machine->Shell.DataFolder()).entryList({u"Beispiel*"_s}, QDir::Files | QDir::Hidden),
                 QStringList());
    }

    void LoadBackup_data() const
    {
        const cTestRows<eAnswer, bool> row("answer", "works");
        row("wanted", eAnswer::Yes, true);
        row("not the right one", eAnswer::No, true);
        row("wanted, and its password is not known", eAnswer::Yes, false);
    }

    void LoadBackup()
    {
        QFETCH(const eAnswer, answer);
        QFETCH(const bool, works);
        m_machine->Host.Works = works;
        const QString backup = m_machine->File.Make(std::string(oneEntry) + oneEntry, u"old.backup"_s);
        m_machine->Rescue.Backup = backup;
        m_machine->User.Answers = {answer};
        m_machine->Flow.LoadBackup();
        QCOMPARE(m_machine->User.Asked.size(), 1);
        QVERIFY(m_machine->User.Asked[0].contains(u"old.backup' enthält:\n2 Einträge, der letzte vom 31.01.2026"_s));
        QVERIFY(m_machine->User.Asked[0].contains(u"data.db' enthält:\n1 Eintrag, der letzte vom 31.01.2026"_s));
        QCOMPARE(m_machine->Host.Restored, answer == eAnswer::Yes ? backup : QString());
        QCOMPARE(m_machine->User.Shown.size(), answer == eAnswer::Yes && works ? 1 : 0);
    }

    void DamagedBackup()
    {
        m_machine->Rescue.Backup = m_machine->Path(u"bad.backup"_s);
        cTestFile::Write(*m_machine->Rescue.Backup, "no database");
        m_machine->Flow.LoadBackup();
        QCOMPARE(m_machine->User.Asked, QStringList());
        QCOMPARE(m_machine->User.Shown,
                 QStringList(u"Die Datensicherung '%1' ist beschädigt oder keine gültige Datenbank."_s.arg(
                     *m_machine->Rescue.Backup)));
        QCOMPARE(m_machine->Host.Restored, QString());
    }

    void FindsWhatIsNotSeen_data()
    {
        // change: of a monthly series from 2026-03-10 on; seen: lines of March 2026
        const cTestRows<QString, QString, int> row("change", "fault", "seen");
        row("as it should be", u"EntryDescription = ''"_s, {}, 1);
        row("no day", u"EntryDate = NULL"_s, u"kein Tag"_s, 0);
        row("no day of the calendar", u"EntryDate = '2026-02-31'"_s, u"Tag '2026-02-31' nicht lesbar"_s, 0);
        row("no day for SQLite", u"EntryDate = '2026-03-10 früh', EntryInterval = 'Einmalig'"_s,
            u"Tag '2026-03-10 früh' nicht lesbar"_s, 0);
        row("no interval", u"EntryInterval = NULL"_s, u"kein Intervall"_s, 0);
        row("no kind", u"EntryType = NULL"_s, u"keine Buchungsart"_s, 1);
        row("unknown kind", u"EntryType = '1'"_s, u"Buchungsart '1' unbekannt"_s, 1);
        row("unknown interval", u"EntryInterval = 'Oft'"_s, u"Intervall 'Oft' unbekannt"_s, 1);
        row("unknown interval and an early end", u"EntryInterval = 'Oft', EntryDateEnd = '2026-01-01'"_s,
            u"Intervall 'Oft' unbekannt"_s, 0);
        row("early end of a series", u"EntryDateEnd = '2026-03-09'"_s, u"endet am 09.03.2026, vor dem ersten Tag"_s, 0);
        const QString daily = u"EntryInterval = 'Täglich', EntryDate = '%1'"_s;
        row("more days than are made", daily.arg(u"1998-10-27"_s),
            u"zählt nur bis zum 14.03.2026, es sind zu viele Vorkommen; \"Ab hier\" an diesem Tag setzt sie fort"_s,
            14);
        row("as many as are made up to today", daily.arg(u"1998-10-28"_s), {}, 15);
        row("early end of an old series, which has none", u"EntryDateEnd = '1899-12-30'"_s, {}, 1);
        row("end of a one-off entry, which has none", u"EntryInterval = 'Einmalig', EntryDateEnd = '2026-03-09'"_s, {},
            1);
        row("unreadable amount", u"EntryValue = 'viel'"_s, u"Betrag 'viel' nicht lesbar"_s, 1);
        row("no account", u"EntryAccount = NULL"_s, u"kein Konto"_s, 1);
        row("transfer to nowhere", u"EntryType = 'Umbuchung'"_s, u"kein Zielkonto"_s, 1);
        row("two faults", u"EntryDate = '', EntryValue = ''"_s, u"kein Tag; kein Betrag"_s, 0);
    }

    void FindsWhatIsNotSeen()
    {
        QFETCH(QString, change);
        QFETCH(QString, fault);
        cTestBook book;
        const int id = book.Add([](cEntryItem& entry) { entry.EntryInterval = u"Monatlich"_s; }).ID;
        book.Database.Execute("UPDATE data SET " + change.toStdString());
        cEntryQuery march;
        march.Start = QDate(2026, 3, 1);
        march.End = QDate(2026, 3, 31);
        QTEST(static_cast<int>(book.Data.GetEntries(march).size()), "seen");
        const cBookCheck check(book.Data, book.Format, book.Clock.Today());
        QCOMPARE(check.IsSound(), fault.isEmpty());
        QCOMPARE(check.index(0, cBookCheck::Fault).data().toString(), fault);
        QCOMPARE(check.EntryAt(0), fault.isEmpty() ? 0 : id);
        QCOMPARE(check.FileText(), u"Die Datei ist unbeschädigt."_s);
    }

    void UnreadableDayStaysUntilItIsNamed()
    {
        cEditorBook book;
        const int id = book.Add([](cEntryItem&) {}).ID;
        book.Database.Execute("UPDATE data SET EntryDate = '31.02.2026'");
        cBookCheck check(book.Data, book.Format, book.Clock.Today());
        cEntryFields fields = *book.Editor.Load(id);
        fields.Description = u"Wochenmarkt"_s;
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Saved);
        check.Reload();
        QCOMPARE(check.index(0, cBookCheck::Fault).data().toString(), u"Tag '31.02.2026' nicht lesbar"_s);
        QCOMPARE(check.index(0, cBookCheck::Text).data().toString(), u"Wochenmarkt"_s);

        fields = *book.Editor.Load(id);
        fields.DateText = u"irgendwann"_s;
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::BadDate);
        fields.DateText = u"28.2."_s;
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Saved);
        check.Reload();
        QCOMPARE(check.EntriesText(), u"Alle Einträge sind zu sehen und zählen mit."_s);
        QCOMPARE(book.Data.LoadEntry(id)->EntryDate, QDate(2026, 2, 28));

        // A day that only SQLite cannot read is mended by any change.
        book.Database.Execute("UPDATE data SET EntryDate = '2026-02-28 abends'");
        QCOMPARE(book.Editor.Save(*book.Editor.Load(id)), cEntryEditor::eSaved::Saved);
        check.Reload();
        QVERIFY(check.IsSound());
    }

    void UnreadableDayOfAStartBalanceStays()
    {
        cEditorBook book;
        QVERIFY(book.Data.SetStartGuthaben(u"Girokonto"_s, 10000, QDate(2026, 1, 1)));
        book.Database.Execute("UPDATE data SET EntryDate = 'Neujahr'");
        cEntryFields fields = book.Editor.StartBalance(u"Girokonto"_s);
        fields.Amount = u"200"_s;
        QCOMPARE(book.Editor.Save(fields), cEntryEditor::eSaved::Saved);
        const QList<cFaultyEntry> faulty =
            book.Data.GetFaultyEntries(book.Clock.Today()).value_or(QList<cFaultyEntry>());
        QCOMPARE(faulty.size(), 1);
        QCOMPARE(faulty.first().DayText, u"Neujahr"_s);
        QCOMPARE(faulty.first().Entry.EntryValue, 20000);
    }

    void SaysWhatTheFileLacks()
    {
        cTestBook book;
        book.Database.Execute("DROP TABLE template");
        book.Database.Execute("ALTER TABLE import DROP COLUMN ImportCurrency");
        book.Database.Execute("ALTER TABLE data DROP COLUMN EntryDescription");
        const cBookCheck check(book.Data, book.Format, book.Clock.Today());
        QVERIFY(!check.IsSound());
        QCOMPARE(check.FileText(),
                 u"Die Datei ist unvollständig. Bitte spielen Sie eine Datensicherung zurück. Es fehlt: Spalte "
                 "data.EntryDescription, Tabelle template, Spalte import.ImportCurrency"_s);
        QCOMPARE(check.EntriesText(), u"Die Einträge konnten nicht gelesen werden."_s);
    }

private:
    std::optional<cMachine> m_machine;
};

TEST_CLASS(testBookFlow, QCoreApplication)
#include "testBookFlow.moc"
