#include "base/cNotifier.h"
#include "model/modContract.h"
#include "model/modSettingKey.h"
#include "support/cFakeNavigator.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "views/entry/cContracts.h"
#include "views/entry/cEntryEditor.h"
#include "views/overview/cDueItems.h"
#include "views/overview/cOverviewBook.h"
#include "views/reminder/cReminderModel.h"

#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;

namespace {

class cFakeNotifier final : public cNotifier
{
public:
    bool Notify(const QString& /*title*/, const QString& text) override
    {
        Texts.append(text);
        return HasService;
    }

    QStringList Texts;
    bool HasService = true;
};

// A book on 15 March 2026 with its reminders.
struct cScene
{
    cEntryItem AddSeries(QDate first, const QString& name, QDate cancelBy = {})
    {
        return Book.Add([&](cEntryItem& entry) {
            entry.EntryDate = first;
            entry.EntryInterval = u"Monatlich"_s;
            entry.EntryDescription = name;
            modContract::SetCancelBy(entry, cancelBy);
        });
    }

    [[nodiscard]] QString Text()
    {
        Outlook.Start();
        Outlook.Look();
        return Model.Text().replace(QChar::Nbsp, u' ');
    }

    cTestBook Book;
    cFakeNavigator Navigator;
    cFakeNotifier Notifier;
    cOutlook Outlook{Book.Tools};
    cReminderModel Model{Book.Tools, {Outlook, Navigator, &Notifier}};
};

} // namespace

// What is brought to mind, where a click leads, and when the desktop is told.
class testReminder final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void SaysWhatIsDue()
    {
        cScene scene;
        QCOMPARE(scene.Text(), QString());
        const cEntryItem rent = scene.AddSeries(QDate(2026, 1, 15), u"Miete"_s);
        QCOMPARE(scene.Text(), u"Heute fällig: Miete, 10,00 €"_s);
        scene.Model.Follow();
        QCOMPARE(scene.Navigator.Opened, QStringList{u"Eintrag %1 2026-03-15"_s.arg(rent.ID)});
        QSignalSpy overview(&scene.Model, &cReminderModel::OverviewWanted);
        (void)scene.AddSeries(QDate(2026, 2, 15), u"Strom"_s);
        QCOMPARE(scene.Text(), u"Heute fällig: 2 Buchungen"_s);
        scene.Model.Follow();
        QCOMPARE(overview.size(), 1);
    }

    void SaysWhichAccountFallsBelowItsLimit()
    {
        cScene scene;
        scene.Book.Database.ExecuteScript("UPDATE template SET TemplateDefaultValue='0.00' WHERE "
                                          "TemplateName='Girokonto'");
        (void)scene.AddSeries(QDate(2026, 3, 20), u"Miete"_s);
        QCOMPARE(scene.Text(), u"Girokonto ab 20.03.2026 unter 0,00 €"_s);
        scene.Book.Database.ExecuteScript("UPDATE template SET TemplateDefaultValue='5.00' WHERE "
                                          "TemplateName='Girokonto'");
        QCOMPARE(scene.Text(), u"Girokonto unter 5,00 €"_s);
        scene.Book.Damage("data");
        QCOMPARE(scene.Text(), QString()); // not that there is nothing in the account
    }

    void RemindsOfContracts_data()
    {
        const cTestRows<QDate, QDate, bool> row("cancelBy", "end", "isReminded");
        const QDate never = modRecurrence::OpenEnd;
        row("today is the last day", QDate(2026, 3, 15), never, true);
        row("yesterday was", QDate(2026, 3, 14), never, false);
        row("in a month", QDate(2026, 4, 13), never, true);
        row("later", QDate(2026, 4, 14), never, false);
        row("ends by itself before", QDate(2026, 4, 13), QDate(2026, 4, 1), false);
    }

    void RemindsOfContracts()
    {
        QFETCH(QDate, cancelBy);
        QFETCH(QDate, end);
        QFETCH(bool, isReminded);
        cScene scene;
        (void)scene.Book.Add([&](cEntryItem& entry) {
            entry.EntryDate = QDate(2025, 12, 20);
            entry.EntryDateEnd = end;
            entry.EntryInterval = u"Alle 3 Monate"_s;
            entry.EntryDescription = u"Handy"_s;
            entry.EntryFlags = u"eigenes=1"_s;
            modContract::SetCancelBy(entry, cancelBy);
        });
        QCOMPARE(scene.Text().contains(u"Handy kündbar bis"_s), isReminded);
        QCOMPARE(!scene.Outlook.Day().Contracts.isEmpty(), isReminded);
    }

    void TellsTheDesktopOnceADay()
    {
        cScene scene;
        (void)scene.AddSeries(QDate(2026, 1, 15), u"Miete"_s);
        (void)scene.AddSeries(QDate(2026, 1, 16), u"Strom"_s);
        const auto look = [&] {
            scene.Outlook.Start();
            scene.Outlook.Look();
            scene.Outlook.LookAtSeries();
        };
        look();
        QCOMPARE(scene.Notifier.Texts.size(), 0); // nobody wished it
        scene.Book.Settings->SetBool(modSettingKey::RemindByDesktop, true);
        scene.Notifier.HasService = false;
        look();
        scene.Notifier.HasService = true; // nobody has seen the first one
        look();
        look();
        QCOMPARE(scene.Notifier.Texts.size(), 2);
        scene.Outlook.Tick();
        scene.Book.Clock.Day = QDate(2026, 3, 16); // midnight
        scene.Outlook.Tick();
        scene.Outlook.Tick();
        QCOMPARE(scene.Notifier.Texts.size(), 3);
        QVERIFY(scene.Notifier.Texts.last().contains(u"Strom"_s));
        QCOMPARE(scene.Model.Text().replace(QChar::Nbsp, u' '), u"Heute fällig: Strom, 10,00 €"_s);
        scene.Book.Clock.Day = QDate(2026, 3, 17); // nothing is due
        scene.Outlook.Tick();
        QCOMPARE(scene.Notifier.Texts.size(), 3);
        scene.Outlook.Stop(); // there is no book
        QCOMPARE(scene.Model.Text(), QString());
    }

    // A statement on which a payment is missing is noticed while the program runs, and so is the one that has it.
    void HearsOfStatements()
    {
        cScene scene;
        scene.Book.Settings->Set(modSettingKey::BankNumber.Of(u"111"_s), u"Girokonto"_s);
        (void)scene.AddSeries(QDate(2026, 3, 1), u"Miete"_s);
        const auto import = [&](QDate day, qint64 cents) {
            scene.Book.Stage(u"111"_s, day, cents);
            scene.Outlook.StatementsChanged();
        };
        scene.Outlook.Start();
        scene.Outlook.LookAtSeries();
        QVERIFY(scene.Model.Text().isEmpty());
        import(QDate(2026, 2, 20), -500);
        import(QDate(2026, 3, 12), -500);
        QTRY_COMPARE(scene.Model.Text(), u"Eine fällige Zahlung fehlt auf dem Kontoauszug"_s);
        import(QDate(2026, 3, 1), -1000);
        QTRY_COMPARE(scene.Model.Text(), QString());
    }

    void DueIsWhatTheOverviewShows()
    {
        cScene scene;
        (void)scene.AddSeries(QDate(2026, 1, 15), u"Miete"_s);
        (void)scene.AddSeries(QDate(2026, 1, 28), u"Strom"_s);
        (void)scene.AddSeries(QDate(2026, 3, 29), u"zu spät"_s);
        (void)scene.Book.Add([](cEntryItem& entry) { entry.EntryDate = QDate(2026, 3, 20); });
        const cEntryItemList due = cDueItems(scene.Book.Tools).Within(modOverview::DueDays);
        QCOMPARE(due.size(), 3);
        QCOMPARE(due, cOverviewBook::Read(scene.Book.Tools, scene.Outlook).Ahead.Due);
    }

    void RemindsOnceOfWhatWasChangedFromADayOn_data()
    {
        const cTestRows<bool> row("isSplit");
        row("one entry", false);
        row("a split one, the marked part of which goes", true);
    }

    void RemindsOnceOfWhatWasChangedFromADayOn()
    {
        QFETCH(bool, isSplit);
        cScene scene;
        int id = scene.AddSeries(QDate(2026, 1, 15), u"Handy"_s, QDate(2026, 4, 10)).ID;
        cEntryEditor editor(scene.Book.Tools);
        cEntryFields fields = editor.Load(id).value();
        if (isSplit) {
            editor.UseSplit(fields);
            fields.Parts.append({.Category = u"Haushalt"_s, .Amount = u"4"_s});
            fields.Parts.first().Amount = u"6"_s;
            QCOMPARE(editor.Save(fields), eEntrySaved::Saved);
        }
        fields = editor.LoadFrom(id, QDate(2026, 6, 15)).value();
        if (isSplit) {
            fields.Parts.removeFirst();
        }
        fields.Amount = u"4"_s;
        QCOMPARE(editor.Save(fields), eEntrySaved::Saved);
        const cEntryItemList contracts = cContracts(scene.Book.Tools).Ahead(30);
        QCOMPARE(contracts.size(), 1);
        QCOMPARE(contracts.first().EntryDate, QDate(2026, 6, 15)); // what goes on is what can be cancelled
    }

    void TheEditorKeepsTheDay()
    {
        cScene scene;
        cEntryItem entry = scene.AddSeries(QDate(2026, 1, 15), u"Handy"_s);
        cEntryEditor editor(scene.Book.Tools);
        cEntryFields fields = editor.Load(entry.ID).value();
        fields.CancelByText = u"31.13."_s;
        QCOMPARE(editor.Save(fields), eEntrySaved::BadCancelBy);
        fields.CancelByText = u"30.11.2026"_s;
        QCOMPARE(editor.Save(fields), eEntrySaved::Saved);
        entry = scene.Book.Data.LoadEntry(entry.ID).value();
        QCOMPARE(entry.EntryFlags, u"kuendbar=2026-11-30"_s);
        QCOMPARE(editor.Load(entry.ID)->CancelBy, QDate(2026, 11, 30));
        fields = editor.Load(entry.ID).value();
        editor.UseSplit(fields);
        fields.Parts.append({.Category = u"Haushalt"_s, .Amount = u"4"_s});
        fields.Parts.first().Amount = u"6"_s;
        QCOMPARE(editor.Save(fields), eEntrySaved::Saved);
        QCOMPARE(editor.Load(entry.ID)->CancelBy, QDate(2026, 11, 30));
        scene.Book.Clock.Day = QDate(2026, 11, 15);
        QCOMPARE(cContracts(scene.Book.Tools).Ahead(30).size(), 1); // a split one is one contract
        fields = editor.Load(entry.ID).value();
        fields.Interval = modWord::Einmalig;
        QCOMPARE(editor.Save(fields), eEntrySaved::Saved);
        QVERIFY(!scene.Book.Data.LoadEntry(entry.ID)->EntryFlags.contains(u"kuendbar"));
    }
};

TEST_CLASS(testReminder, QCoreApplication)
#include "testReminder.moc"
