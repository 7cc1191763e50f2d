#include "import/propose/modCash.h"
#include "model/modBalance.h"
#include "model/modSettingKey.h"
#include "support/cFakeNavigator.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "views/main/cMainModel.h"
#include "views/overview/cOverviewModel.h"
#include "views/reminder/cReminderModel.h"

#include <QRandomGenerator>

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate today(2026, 3, 15);

// A book with its overview, seen on 15 March 2026.
struct cScene
{
    // Reads the page as it is shown.
    void Show()
    {
        Main.RestoreView(false);
        Model.Read();
    }

    [[nodiscard]] cOverviewCard Card(eOverviewCard kind) const
    {
        for (const cOverviewCard& card : Model.Cards()) {
            if (card.Card == kind) {
                return card;
            }
        }
        return {};
    }

    // With plain blanks.
    [[nodiscard]] static QString Plain(QString text) { return text.replace(QChar::Nbsp, u' '); }

    // "text | figure" of each line.
    [[nodiscard]] QStringList Lines(eOverviewCard kind) const
    {
        return Each(Card(kind).Lines, [](const cOverviewLine& line) {
            return Plain(line.Figure.isEmpty() ? line.Text : line.Text + u" | "_s + line.Figure);
        });
    }

    // What the list comes to that a line leads to.
    [[nodiscard]] QString Behind(const cOverviewLine& line)
    {
        line.Follow();
        return Plain(Book.Format.Cents(Main.Entries().Sums().Total()));
    }

    void AddRandom(QRandomGenerator& random);

    cTestBook Book;
    cFakeNavigator Navigator;
    cMainModel Main{Book.Tools, {Book.Configuration, Book.Shell, Navigator, Book.Path()}};
    cOutlook Outlook{Book.Tools};
    cOverviewModel Model{Book.Tools, {Navigator, Main, Outlook}};
};

void cScene::AddRandom(QRandomGenerator& random)
{
    const QStringList categories{u"Haushalt; Lebensmittel"_s, u"Auto; Benzin"_s, u"Freizeit; Urlaub"_s, u"Haushalt"_s};
    const QStringList types{modWord::Ausgabe, modWord::Ausgabe, modWord::Einnahme, modWord::Umbuchung};
    const QStringList intervals{modWord::Einmalig, modWord::Einmalig, modWord::Einmalig, u"Monatlich"_s};
    (void)Book.Add([&](cEntryItem& entry) {
        entry.EntryDate = today.addDays(random.bounded(-400, 30));
        entry.EntryType = types.at(random.bounded(4));
        entry.EntryInterval = intervals.at(random.bounded(4));
        entry.EntryCategory = categories.at(random.bounded(4));
        entry.EntryValue = random.bounded(1, 50000);
        entry.EntryAccountMove = entry.EntryType == modWord::Umbuchung ? u"Sparkonto"_s : QString();
    });
}

} // namespace

class testOverview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ShowsAMonth()
    {
        cScene scene;
        for (const QDate day : {QDate(2026, 1, 10), QDate(2026, 2, 10), QDate(2026, 3, 10), QDate(2026, 2, 20)}) {
            scene.Book.Spend(day, day.month() == 3 ? 20000 : 10000);
        }
        (void)scene.Book.Data.SetStartGuthaben(u"Girokonto"_s, 50000, QDate(2026, 1, 1));
        scene.Show();
        QCOMPARE(scene.Plain(scene.Card(eOverviewCard::Month).Figure), u"-200,00 €"_s);
        QCOMPARE(scene.Lines(eOverviewCard::Month),
                 QStringList({u"Einnahmen | 0,00 €"_s, u"Ausgaben | -200,00 €"_s,
                              u"Letzten Monat am gleichen Tag | 0,00 € / -100,00 €"_s,
                              u"Im Schnitt von 2 Monaten | 0,00 € / -100,00 €"_s}));
        QCOMPARE(scene.Lines(eOverviewCard::Changes),
                 QStringList(u"Haushalt: 100,00 € mehr als sonst bis zu diesem Tag (200,00 € statt 100,00 €)"_s));
        QCOMPARE(scene.Plain(scene.Card(eOverviewCard::Balances).Figure), u"0,00 €"_s);
    }

    // What a line says is what the list behind it comes to, in whatever book.
    void AgreesWithListAndBalances()
    {
        QRandomGenerator random(20260315);
        for (int book = 0; book < 100; ++book) {
            cScene scene;
            for (int i = 0; i < 40; ++i) {
                scene.AddRandom(random);
            }
            scene.Show();
            const cOverviewCard month = scene.Card(eOverviewCard::Month);
            QCOMPARE(scene.Behind(month.Lines.at(0)), scene.Plain(month.Lines.at(0).Figure));
            QCOMPARE(scene.Behind(month.Lines.at(1)), scene.Plain(month.Lines.at(1).Figure));
            month.Follow();
            QCOMPARE(scene.Book.Format.Cents(scene.Main.Entries().Sums().Total()), month.Figure);
            const cOverviewCard changes = scene.Card(eOverviewCard::Changes);
            for (const cOverviewLine& line : changes.Lines) {
                const QString spent = scene.Behind(line);
                const QString told = spent.startsWith(u'-') ? spent.mid(1) : u'-' + spent;
                QVERIFY2(scene.Plain(line.Text).contains(u'(' + told) || spent.startsWith(u"0,"_s),
                         qPrintable(line.Text + u" / "_s + spent));
            }
            cEntryQuery query;
            query.End = today;
            const QHash<QString, qint64> balances = modBalance::ByAccount(scene.Book.Data.GetSums(query, true));
            for (const cOverviewLine& line : scene.Card(eOverviewCard::Balances).Lines) {
                QCOMPARE(line.Figure, scene.Book.Format.Cents(balances.value(line.Text)));
            }
            const cOverviewCard due = scene.Card(eOverviewCard::Due);
            due.Follow();
            QCOMPARE(scene.Book.Format.Cents(scene.Main.Entries().Sums().Total()), due.Figure);
        }
    }

    void LimitsSayWhatIsLeft()
    {
        cScene scene;
        for (const auto& [path, limit, cents] : {std::tuple(u"Haushalt; Reinigung"_s, u"20.00"_s, 2500),
                                                 std::tuple(u"Haushalt; Seife"_s, u"50.00"_s, 1600)}) {
            scene.Book.AddCategory(path, [&limit = limit](cTemplateItem& item) {
                item.EntryType = modWord::Ausgabe;
                item.EntryInterval = modWord::Einmalig;
                item.TemplateDefaultValue = limit;
            });
            scene.Book.Add([&path = path, &cents = cents](cEntryItem& entry) {
                entry.EntryValue = cents;
                entry.EntryCategory = path;
            });
        }
        scene.Show();
        QCOMPARE(scene.Lines(eOverviewCard::Limits),
                 QStringList(
                     {u"Haushalt; Reinigung | 5,00 € zu viel"_s, u"Haushalt; Seife | noch 34,00 €, 2,00 € je Tag"_s}));
        QCOMPARE(scene.Behind(scene.Card(eOverviewCard::Limits).Lines.at(1)), u"-16,00 €"_s);
        scene.Card(eOverviewCard::Limits).Follow();
        QCOMPARE(scene.Navigator.Opened, QStringList(QString::number(modCommand::Budget)));
    }

    void ActsOnWhatIsDue()
    {
        cScene scene;
        const cEntryItem rent = scene.Book.Add([](cEntryItem& entry) {
            entry.EntryDate = QDate(2026, 1, 20);
            entry.EntryInterval = u"Monatlich"_s;
            entry.EntryDescription = u"Miete"_s;
            entry.EntryValue = 70000;
            entry.EntryCategory = u"Wohnung; Miete"_s;
        });
        const cEntryItem plan = scene.Book.Spend(QDate(2026, 3, 18), 1000, u"Fahrrad"_s);
        scene.Book.Spend(today, 1000); // bought today, so not due
        scene.Show();
        QCOMPARE(scene.Lines(eOverviewCard::Due),
                 QStringList({u"18.03.  Fahrrad | -10,00 €"_s, u"20.03.  Miete | -700,00 €"_s}));
        const QList<cOverviewLine> lines = scene.Card(eOverviewCard::Due).Lines;
        QCOMPARE(lines.at(0).Actions.size(), 2); // a one-off entry cannot be left out
        lines.at(0).Actions.at(0).Run();
        QCOMPARE(scene.Book.Data.LoadEntry(plan.ID)->EntryDate, today);
        lines.at(1).Actions.at(0).Run();
        cEntryQuery march{QDate(2026, 3, 1), QDate(2026, 3, 31), {}, {}, rent.EntryCategory};
        QCOMPARE(scene.Book.Data.GetEntries(march).at(0).EntryDate, today);
        QCOMPARE(scene.Book.Data.GetEntries(march).at(0).EntryValue, 70000);
        scene.Show();
        QVERIFY(scene.Lines(eOverviewCard::Due).isEmpty()); // both have happened now
        lines.at(1).Actions.at(1).Run();
        QCOMPARE(scene.Navigator.Opened, QStringList(u"anderer Tag %1 2026-03-20"_s.arg(rent.ID)));
        lines.at(1).Actions.at(2).Run();
        QCOMPARE(scene.Book.Data.GetEntries(march).at(0).EntryValue, 0);
        scene.Show();
        QCOMPARE(scene.Card(eOverviewCard::Due).Empty, u"Es ist nichts geplant."_s);
        QVERIFY(scene.Lines(eOverviewCard::Due).isEmpty());
    }

    void TellsWhatIsToBeDone()
    {
        cScene scene;
        scene.Show();
        QCOMPARE(scene.Card(eOverviewCard::Tasks).Empty, u"Alles erledigt."_s);
        QVERIFY(scene.Lines(eOverviewCard::Tasks).isEmpty());
        cSettings& settings = *scene.Book.Settings;
        settings.Set(modSettingKey::BankNumber.Of(u"4711"_s), u"Girokonto"_s);
        settings.Set(modSettingKey::BankBalances.Of(u"4711"_s), u"2026-01-31=10000"_s);
        settings.Set(modSettingKey::BackupLast, u"2026-02-01"_s);
        scene.Show();
        QCOMPARE(
            scene.Lines(eOverviewCard::Tasks),
            QStringList({u"Girokonto: Die Bank nennt am 31.01.2026 den Stand 100,00 €, das Buch hat einen anderen."_s,
                         u"Girokonto: Der letzte Kontoauszug reicht bis 31.01.2026."_s,
                         u"Die letzte Datensicherung ist vom 01.02.2026."_s}));
        scene.Card(eOverviewCard::Tasks).Lines.at(1).Follow();
        QCOMPARE(scene.Navigator.Opened, QStringList(QString::number(modCommand::ImportStatement)));
        scene.Book.Stage(u"4711"_s, QDate(2026, 1, 31), -500);
        scene.Show(); // what waits may be the difference
        QCOMPARE(scene.Lines(eOverviewCard::Tasks).first(), u"Ein Umsatz der Bank wartet auf seine Buchung."_s);
        QCOMPARE(scene.Lines(eOverviewCard::Tasks).size(), 3);
        settings.Set(modSettingKey::BackupLast, modDate::ToIso(scene.Book.Clock.Today()));
        scene.Model.TasksChanged(); // without reading the book again
        QCOMPARE(scene.Lines(eOverviewCard::Tasks).size(), 2);
    }

    // Neither the page nor the line below it looks by itself at what the other one has found.
    void SharesWhatItSeesWithTheReminder()
    {
        cScene scene;
        cReminderModel reminder(scene.Book.Tools, {scene.Outlook, scene.Navigator});
        scene.Book.Settings->Set(modSettingKey::BankNumber.Of(u"4711"_s), u"Girokonto"_s);
        (void)scene.Book.Add([](cEntryItem& entry) {
            entry.EntryDate = QDate(2026, 3, 1);
            entry.EntryInterval = u"Wöchentlich"_s;
            entry.EntryDescription = u"Markt"_s;
        });
        scene.Show();
        QCOMPARE(reminder.Text(), QString()); // the book may not be shown yet
        scene.Outlook.Start();
        QCOMPARE(scene.Plain(reminder.Text()), u"Heute fällig: Markt, 10,00 €"_s);
        scene.Book.Stage(u"4711"_s, QDate(2026, 3, 1), -1000);
        scene.Book.Stage(u"4711"_s, QDate(2026, 3, 12), -500);
        const QString late = u"Eine fällige Zahlung fehlt auf dem Kontoauszug."_s;
        scene.Show();
        QVERIFY(!scene.Lines(eOverviewCard::Tasks).contains(late));
        scene.Outlook.LookAtSeries();
        QVERIFY(scene.Lines(eOverviewCard::Tasks).contains(late));
        scene.Outlook.Stop(); // another book comes, in which nothing is late
        scene.Show();
        QVERIFY(!scene.Lines(eOverviewCard::Tasks).contains(late));
    }

    void AnEmptyBookHasNoFiguresToCompare()
    {
        cScene scene;
        (void)scene.Book.Data.SetStartGuthaben(u"Girokonto"_s, 50000, QDate(2026, 1, 1));
        scene.Show();
        QVERIFY(scene.Model.IsBookEmpty());
        QCOMPARE(scene.Model.Cards().size(), 2); // balances and what is to be done
        scene.Book.Add([](cEntryItem& entry) { entry.EntryDate = QDate(2026, 2, 20); });
        scene.Show();
        QVERIFY(!scene.Model.IsBookEmpty());
        QCOMPARE(scene.Lines(eOverviewCard::Month).size(), 2); // on this day of February there was nothing yet
    }

    void FirstStepsStoreAllOrNothing()
    {
        cScene scene;
        const cFirstSteps steps = scene.Model.FirstSteps();
        QList<cFirstSteps::cRow> rows = steps.Start();
        QCOMPARE(rows.size(), cFirstSteps::Rows);
        QCOMPARE(rows.at(0).Name, u"Girokonto"_s);
        rows[0].Amount = u"1.234,50"_s;
        rows[3] = {u"Depot"_s, u"zwölf"_s};
        QVERIFY(!steps.Save(rows).isEmpty());
        QVERIFY(!scene.Book.Data.GetStartGuthaben(u"Girokonto"_s));
        rows[3].Amount = u"-20"_s;
        rows[4].Amount = u"5"_s;
        QCOMPARE(steps.Save(rows), u"Zu welchem Konto gehört der Betrag 5? Bitte tragen Sie seinen Namen ein."_s);
        QVERIFY(!scene.Book.Data.FindAccount(u"Depot"_s));
        rows[4].Amount.clear();
        QCOMPARE(steps.Save(rows), QString());
        scene.Show();
        QCOMPARE(scene.Lines(eOverviewCard::Balances),
                 QStringList({u"Girokonto | 1.234,50 €"_s, u"Sparkonto | 0,00 €"_s, u"Depot | -20,00 €"_s,
                              u"Bargeld | 0,00 €"_s}));
        QVERIFY(scene.Book.Data.Journal().Undo());
        QVERIFY(!scene.Book.Data.FindAccount(u"Depot"_s));
    }

    // Today's balance beside bank rows that are still open: they lead to it and must not count on top of it.
    void FirstStepsBesideRows_data()
    {
        QTest::addColumn<bool>("isNamed"); // the bank names what it was at the end
        QTest::addColumn<QString>("leftOut");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("isTaken");
        QTest::addColumn<qint64>("start");
        QTest::addRow("without a balance of the bank") << false << QString() << u"700,00"_s << true << qint64(65000);
        QTest::addRow("a row left out") << false << u"2026-01-10=100"_s << u"700,00"_s << true << qint64(65000);
        QTest::addRow("the bank's beside a row left out")
            << true << u"2026-01-10=100"_s << u"1.050,00"_s << true << qint64(100000);
        QTest::addRow("what the bank says") << true << QString() << u"1.050,00"_s << true << qint64(100000);
        QTest::addRow("not what the bank says") << true << QString() << u"700"_s << false << qint64(100000);
    }

    void FirstStepsBesideRows()
    {
        QFETCH(const bool, isNamed);
        QFETCH(const QString, leftOut);
        QFETCH(const QString, typed);
        QFETCH(const bool, isTaken);
        QFETCH(const qint64, start);
        cScene scene;
        for (const auto& [day, cents] : {std::pair(10, 20000), {20, -15000}}) {
            cImportEntry row;
            row.ImportAccount = u"4711"_s;
            row.ImportDate = QDate(2026, 1, day);
            row.ImportValue = cents;
            QVERIFY(scene.Book.Data.AddNewImportEntry(row));
        }
        scene.Book.Settings->Set(modSettingKey::BankNumber.Of(u"4711"_s), u"Girokonto"_s);
        scene.Book.Settings->Set(modSettingKey::BankBalances.Of(u"4711"_s),
                                 isNamed ? u"2026-01-20=105000"_s : QString());
        scene.Book.Settings->Set(modSettingKey::EqualLeftOut.Of(u"4711"_s), leftOut);
        if (!isNamed || leftOut.isEmpty()) { // else the bank's is all there is
            (void)scene.Book.Data.SetStartGuthaben(u"Girokonto"_s, 100000, QDate(2026, 1, 9));
        }
        const cFirstSteps steps = scene.Model.FirstSteps();
        QList<cFirstSteps::cRow> rows = steps.Start();
        QCOMPARE(rows.at(0).Amount, u"1050,00"_s);
        rows[0].Amount = typed;
        QCOMPARE(steps.Save(rows).isEmpty(), isTaken);
        const auto stored = scene.Book.Data.GetStartGuthaben(u"Girokonto"_s).value_or(cEntryItem());
        QCOMPARE(modBalance::Effect(stored, u"Girokonto"_s), start);
        QCOMPARE(stored.EntryDate, QDate(2026, 1, 9));
    }

    // Typing over a name means the account that stands there, with all that it has.
    void FirstStepsRename()
    {
        cScene scene;
        (void)scene.Book.Data.SetStartGuthaben(u"Girokonto"_s, 50000, QDate(2026, 1, 1));
        const cFirstSteps steps = scene.Model.FirstSteps();
        const qsizetype count = scene.Book.Data.GetAccounts().size();
        QList<cFirstSteps::cRow> rows = steps.Start();
        rows[0].Name = u"Sparkonto"_s;
        rows[1].Name = u"Girokonto"_s;
        rows[2].Name = u"Depot"_s;
        QCOMPARE(steps.Save(rows), QString()); // a circle
        QVERIFY(scene.Book.Data.GetStartGuthaben(u"Sparkonto"_s) && !scene.Book.Data.GetStartGuthaben(u"Girokonto"_s));
        QCOMPARE(modCash::Accounts(scene.Book.Data.GetAccounts(), {}), QStringList()); // "Bargeld" was
        QVERIFY(scene.Book.Data.Journal().Undo());
        rows[1].Name = u"Rücklage"_s;
        rows[2].Name = u"Geldbörse"_s; // another name of the same
        QCOMPARE(steps.Save(rows), QString());
        QCOMPARE(scene.Book.Data.FindAccount(u"Geldbörse"_s).value_or(cTemplateItem()).TemplateCategory, u"Bargeld"_s);
        QVERIFY(scene.Book.Data.Journal().Undo());
        rows[2].Name = u"Bargeld"_s;
        rows[0].Name.clear();
        QVERIFY(steps.Save(rows).startsWith(u"Das Konto 'Girokonto' braucht einen Namen."));
        rows[0].Name = u"Volksbank"_s;
        QCOMPARE(steps.Save(rows), QString());
        QCOMPARE(scene.Book.Data.GetAccounts().size(), count);
        QVERIFY(!scene.Book.Data.FindAccount(u"Girokonto"_s) && scene.Book.Data.FindAccount(u"Rücklage"_s));
        QCOMPARE(scene.Book.Data.GetStartGuthaben(u"Volksbank"_s).value_or(cEntryItem()).EntryDate, QDate(2026, 1, 1));
        QVERIFY(scene.Book.Data.Journal().Undo()); // all of it is one step
        QVERIFY(scene.Book.Data.FindAccount(u"Girokonto"_s) && scene.Book.Data.FindAccount(u"Sparkonto"_s));
    }
};

TEST_CLASS(testOverview, QCoreApplication)
#include "testOverview.moc"
