#include "model/modSettingKey.h"
#include "support/cFakeNavigator.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "support/queued.h"
#include "support/testBook.h"
#include "views/main/cMainModel.h"
#include "views/main/modAccountLines.h"
#include "views/main/modCommand.h"
#include "views/sheet/cManyChange.h"

#include <QSignalSpy>

#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

// A book of January to March 2026 seen on 15 March: salary and shopping on the current account, one transfer to the
// savings account, a start balance of the year before, rent every month, one purchase in the future.
struct cScene
{
    cScene()
    {
        Book.Add({.Day = QDate(2025, 12, 31),
                  .Cents = 50000,
                  .Category = modWord::Startguthaben,
                  .Type = modWord::Einnahme});
        Book.Add({.Day = QDate(2026, 1, 30),
                  .Cents = 200000,
                  .Text = u"Gehalt Müller KG"_s,
                  .Category = u"Einkommen; Lohn / Gehalt"_s,
                  .Type = modWord::Einnahme});
        Book.Move(u"Girokonto"_s, u"Sparkonto"_s, 30000, QDate(2026, 2, 2));
        Rent = Book.Spend(QDate(2026, 1, 1), 70000, u"Miete"_s, u"Monatlich"_s);
        Future = Book.Spend(QDate(2026, 3, 20), 4000);
        Start();
    }

    void Start(bool isNewVersion = false)
    {
        Model = std::make_unique<cMainModel>(
            Book.Tools, cMainModel::cParts{Book.Configuration, Book.Shell, Navigator, Book.Path()});
        Model->RestoreView(isNewVersion);
        RunQueued();
    }

    QStringList Balances() const
    {
        QStringList texts;
        const cAccountListModel& accounts = Model->AccountList();
        for (int row = 0; row < accounts.rowCount(); ++row) {
            const QString balance = accounts.index(row, cAccountListModel::Balance).data().toString();
            if (!balance.isEmpty()) {
                texts.append(accounts.index(row, cAccountListModel::Name).data().toString() + u' ' + balance);
            }
        }
        return texts;
    }

    QList<cEntryListModel::cKey> Select(const QList<cEntryItem>& entries) const
    {
        QList<cEntryListModel::cKey> keys;
        for (const cEntryItem& entry : entries) {
            keys.append({entry.ID, entry.EntryDate});
        }
        Model->SetSelection(keys);
        return keys;
    }

    cTestBook Book;
    cFakeNavigator Navigator;
    std::unique_ptr<cMainModel> Model;
    cEntryItem Rent;
    cEntryItem Future;
};

QString Euro(const QString& amount)
{
    return amount + u"\u00a0€"_s;
}

} // namespace

class testMainModel final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_scene.emplace(); }

    void UnreadableBookIsNotEmpty()
    {
        m_scene->Book.Damage("data");
        m_scene->Model->BookChanged();
        RunQueued();
        QCOMPARE(m_scene->Model->EmptyTitle(), u"Das Buch konnte nicht gelesen werden"_s);
        QCOMPARE(m_scene->Model->SumTexts().Total, u"–"_s);
        const QStringList balances = m_scene->Balances();
        QVERIFY(!balances.isEmpty());
        for (const QString& balance : balances) {
            QVERIFY2(balance.endsWith(u" –"_s), qPrintable(balance));
        }
        QVERIFY(!m_scene->Model->IsEnabled(modCommand::NewEntry));
    }

    void SumsFollowTheView_data()
    {
        const cTestRows<QString, QString, QString, const cSettingKey*, qsizetype, qint64, qint64, qint64> row(
            "period", "account", "type", "switchedOff", "count", "income", "expense", "total");
        const cSettingKey* const none = nullptr;
        const QString year = u"Aktuelles Jahr"_s;
        const QString all = modWord::AlleKonten;
        const QString types = modWord::AlleBuchungsarten;
        row("whole year, transfers neutral", year, all, types, none, 15, 200000, 844000, -644000);
        row("without future", year, all, types, &modSettingKey::ViewFuture, 5, 200000, 210000, -10000);
        row("only recurring", year, all, types, &modSettingKey::ViewSingle, 12, 0, 840000, -840000);
        row("only one-off", year, all, types, &modSettingKey::ViewFix, 3, 200000, 4000, 196000);
        row("transfer out of the account", year, u"Girokonto"_s, u"Umbuchung"_s, none, 1, 0, 30000, -30000);
        row("transfer into the account is income", year, u"Sparkonto"_s, u"Einnahme"_s, none, 1, 30000, 0, 30000);
        row("start balance hidden", u"Letztes Jahr"_s, all, types, &modSettingKey::ViewStart, 0, 0, 0, 0);
        row("start balance is no income, but part of the sum", u"Letztes Jahr"_s, all, types, none, 1, 0, 0, 50000);
        row("until today", u"Buchungen bis heute"_s, all, types, none, 6, 200000, 210000, 40000);
    }

    void SumsFollowTheView()
    {
        QFETCH(QString, period);
        QFETCH(QString, account);
        QFETCH(QString, type);
        QFETCH(const cSettingKey*, switchedOff);

        if (switchedOff != nullptr) {
            m_scene->Model->ToggleView(*switchedOff);
        }
        m_scene->Model->ChoosePeriod(period);
        m_scene->Model->ChooseAccount(account);
        m_scene->Model->ChooseType(type);

        const cEntrySums sums = m_scene->Model->Entries().Sums();
        QTEST(sums.Count, "count");
        QTEST(sums.Income, "income");
        QTEST(sums.Expense, "expense");
        QTEST(sums.Total(), "total");
        QCOMPARE(m_scene->Model->SumTexts().Start.isEmpty(), sums.Total() == sums.Income - sums.Expense);
    }

    void NewBookStartsWithTheResetView()
    {
        cTestBook book;
        cFakeNavigator navigator;
        cMainModel model(book.Tools, {book.Configuration, book.Shell, navigator, book.Path()});
        model.RestoreView(true);

        QCOMPARE(model.View().Period, modWord::AlleBuchungen);
        QVERIFY(model.IsChecked(modSettingKey::ViewSingle) && model.IsChecked(modSettingKey::ViewFuture));
        QVERIFY(model.EmptyHint().contains(u"Strg+N"_s));
        QVERIFY(model.Hint().isEmpty()); // there is nothing that could reach to 2050
    }

    void ResetAsksFirst()
    {
        m_scene->Model->ChooseAccount(u"Sparkonto"_s);
        m_scene->Book.User.Answers = {eAnswer::No, eAnswer::Yes};
        m_scene->Model->Execute(modCommand::ResetView);
        QCOMPARE(m_scene->Model->View().Account, u"Sparkonto"_s);
        m_scene->Model->Execute(modCommand::ResetView);
        QCOMPARE(m_scene->Model->View().Account, modWord::AlleKonten);
    }

    void NewVersionResetsTheView()
    {
        m_scene->Model->ToggleView(modSettingKey::ViewFix);
        m_scene->Model->ToggleView(modSettingKey::ViewStart);
        m_scene->Model->Memory().SaveLayout(modSettingKey::MainList, u"x"_s);
        m_scene->Model->ChooseAccount(u"Sparkonto"_s);
        m_scene->Start(true);

        QCOMPARE(m_scene->Model->View().Period, modWord::AlleBuchungen);
        QCOMPARE(m_scene->Model->View().Account, modWord::AlleKonten);
        QVERIFY(m_scene->Model->IsChecked(modSettingKey::ViewFix));
        QVERIFY(!m_scene->Model->IsChecked(modSettingKey::ViewAllBalances));
        QVERIFY(!m_scene->Model->IsChecked(modSettingKey::ViewStart)); // a reset leaves it alone
        QVERIFY(m_scene->Model->Memory().Layout(modSettingKey::MainList).isEmpty());
        QVERIFY(!m_scene->Model->Hint().isEmpty()); // the list reaches to 2050 now, and says so
    }

    void RestoresTheView()
    {
        m_scene->Model->ChoosePeriod(u"Letzter Monat"_s);
        m_scene->Model->ChooseAccount(u"Sparkonto"_s);
        m_scene->Model->ChooseGrouping(u"Nach Monat"_s);
        m_scene->Model->TypeFilter(u"bäcker"_s);
        RunQueued();
        m_scene->Model->SaveView(); // on closing, also what was typed just before
        m_scene->Start();
        QCOMPARE(m_scene->Model->View().Period, u"Letzter Monat"_s);
        QCOMPARE(m_scene->Model->View().Account, u"Sparkonto"_s);
        QCOMPARE(m_scene->Model->View().Grouping, u"Nach Monat"_s);
        QCOMPARE(m_scene->Model->View().Filter, u"bäcker"_s);

        m_scene->Book.Settings->Set(modSettingKey::MainAccount, u"Aufgelöstes Konto"_s);
        m_scene->Book.Settings->Set(modSettingKey::MainPeriod, u"Irgendwann"_s);
        m_scene->Start();
        QCOMPARE(m_scene->Model->View().Account, modWord::AlleKonten);
        QCOMPARE(m_scene->Model->View().Period, u"Aktuelles Jahr"_s);
    }

    void FreePeriodStartsWithTheShownDays()
    {
        m_scene->Model->ChoosePeriod(u"Letzter Monat"_s);
        m_scene->Model->ChooseFreeRange(
            {QDate(2026, 1, 1), QDate(2026, 1, 31)}); // not the free period: nothing happens
        QCOMPARE(m_scene->Model->ShownRange().Start, QDate(2026, 2, 1));
        m_scene->Model->ChoosePeriod(modWord::FreierZeitraum);
        QCOMPARE(m_scene->Model->ShownRange().End, QDate(2026, 2, 28));
        m_scene->Model->ChooseFreeRange({QDate(2026, 1, 1), QDate(2026, 1, 31)});
        QCOMPARE(m_scene->Model->Entries().Sums().Count, 2);
        QCOMPARE(m_scene->Book.Settings->Get(modSettingKey::MainPeriodEnd), u"2026-01-31"_s);
        m_scene->Model->ChooseFreeRange({QDate(2026, 3, 1), QDate(2026, 1, 31)}); // the other day comes along
        QCOMPARE(m_scene->Model->ShownRange(), (modPeriod::cRange{QDate(2026, 3, 1), QDate(2026, 3, 1)}));
        m_scene->Model->ResetView();
        m_scene->Model->ChoosePeriod(u"Letzter Monat"_s);
        m_scene->Model->ChoosePeriod(modWord::FreierZeitraum);
        QCOMPARE(m_scene->Model->ShownRange().Start, QDate(2026, 2, 1)); // what was chosen before the reset is gone
    }

    void FreeDaysThatCanBeNoPeriodAreReplaced_data()
    {
        const cTestRows<QString, QString, QDate, QDate> row("start", "end", "first", "last");
        const QDate newYear(2026, 1, 1);
        const QDate newYearsEve(2026, 12, 31);
        row("a period", u"2025-02-01"_s, u"2025-02-28"_s, QDate(2025, 2, 1), QDate(2025, 2, 28));
        row("open at one side", {}, u"2025-02-28"_s, {}, QDate(2025, 2, 28));
        row("nothing stored", {}, {}, newYear, newYearsEve);
        row("end before start", u"2026-03-01"_s, u"2026-01-31"_s, newYear, newYearsEve);
        row("unreadable", u"2026-03-01"_s, u"31.12.2026"_s, newYear, newYearsEve);
        row("open sides of older versions", u"1000-01-01"_s, u"1000-01-01"_s, newYear, newYearsEve);
    }

    void FreeDaysThatCanBeNoPeriodAreReplaced()
    {
        QFETCH(QString, start);
        QFETCH(QString, end);
        m_scene->Book.Settings->Set(modSettingKey::MainPeriod, modWord::FreierZeitraum);
        m_scene->Book.Settings->Set(modSettingKey::MainPeriodStart, start);
        m_scene->Book.Settings->Set(modSettingKey::MainPeriodEnd, end);
        m_scene->Start();
        QTEST(m_scene->Model->ShownRange().Start, "first");
        QTEST(m_scene->Model->ShownRange().End, "last");
    }

    void NextPeriodAsksForHiddenEntries()
    {
        m_scene->Model->ToggleView(modSettingKey::ViewFuture);
        m_scene->Book.User.Answers = {eAnswer::No, eAnswer::Yes};
        m_scene->Model->ChoosePeriod(u"Nächstes Jahr"_s);
        QVERIFY(!m_scene->Model->IsChecked(modSettingKey::ViewFuture));
        QCOMPARE(m_scene->Model->Entries().rowCount(), 0);
        m_scene->Model->ChoosePeriod(u"Nächster Monat"_s);
        QVERIFY(m_scene->Model->IsChecked(modSettingKey::ViewFuture));
        QCOMPARE(m_scene->Model->Entries().rowCount(), 1);
        m_scene->Model->ChoosePeriod(u"Nächstes Quartal"_s);
        QCOMPARE(m_scene->Book.User.Asked.size(), 2);
        QCOMPARE(m_scene->Book.User.Asked.constFirst(),
                 u"Zukünftige Buchungen werden momentan nicht angezeigt. Soll die Anzeige aktiviert werden?"_s);
    }

    void BalancesToTodayOrOfThePeriod()
    {
        QCOMPARE(m_scene->Balances(),
                 QStringList({u"Girokonto "_s + Euro(u"100,00"_s), u"Sparkonto "_s + Euro(u"300,00"_s),
                              u"Bargeld "_s + Euro(u"0,00"_s), u"Gesamt "_s + Euro(u"400,00"_s)}));
        m_scene->Model->ToggleView(modSettingKey::ViewAllBalances);
        m_scene->Model->ChoosePeriod(u"Letzter Monat"_s);
        RunQueued();
        QCOMPARE(m_scene->Balances(),
                 QStringList({u"Girokonto "_s + Euro(u"-1.000,00"_s), u"Sparkonto "_s + Euro(u"300,00"_s),
                              u"Bargeld "_s + Euro(u"0,00"_s), u"Gesamt "_s + Euro(u"-700,00"_s)}));
        const auto title = [&]() -> QString {
            const cAccountListModel& list = m_scene->Model->AccountList();
            return list.headerData(cAccountListModel::Balance, Qt::Horizontal, Qt::DisplayRole).toString() + u", "_s
                + m_scene->Model->BalancesTitle();
        };
        QCOMPARE(title(), u"Veränderung, Veränderung im Zeitraum"_s);
        m_scene->Model->ShowToday(true); // the overview, which has no period
        RunQueued();
        QCOMPARE(title(), u"Kontostand, Kontostände heute"_s);
        QVERIFY(!m_scene->Balances().contains(u"Girokonto "_s + Euro(u"-1.000,00"_s)));
        m_scene->Model->ShowToday(false);
        m_scene->Model->ChoosePeriod(u"Buchungen bis heute"_s);
        RunQueued();
        QCOMPARE(title(), u"Kontostand, Kontostände bis heute"_s);

        m_scene->Book.Add([](cEntryItem& entry) { entry.EntryAccount.clear(); });
        m_scene->Model->BookChanged();
        RunQueued();
        QVERIFY(m_scene->Balances().at(3).startsWith(u"Ohne Konto "_s));
    }

    void RunningBalanceBeginsBeforeThePeriod()
    {
        m_scene->Model->ChoosePeriod(u"Letzter Monat"_s);
        m_scene->Model->ChooseAccount(u"Girokonto"_s);
        cEntryListModel& list = m_scene->Model->Entries();
        QCOMPARE(list.index(0, cEntryListModel::Balance).data().toString(),
                 Euro(u"1.100,00"_s)); // 500 + 2000 - 700 - 700
        QCOMPARE(list.index(1, cEntryListModel::Balance).data().toString(), Euro(u"800,00"_s)); // the transfer out
        list.sort(cEntryListModel::Amount, Qt::AscendingOrder);
        QVERIFY(list.index(0, cEntryListModel::Balance).data().toString().isEmpty());
    }

    void FilterKeepsWhatIsLoaded()
    {
        const QSignalSpy changed(m_scene->Model.get(), &cMainModel::EntriesChanged);
        m_scene->Model->TypeFilter(u"mueller gehalt"_s);
        QVERIFY(changed.isEmpty()); // the field is still being typed into
        RunQueued();
        QCOMPARE(m_scene->Model->Entries().rowCount(), 1);
        QCOMPARE(m_scene->Model->SumTexts().Income, Euro(u"2.000,00"_s));
        m_scene->Model->TypeFilter({});
        RunQueued();
        QCOMPARE(m_scene->Model->Entries().rowCount(), 15);
    }

    void UndoBringsTheBookBack()
    {
        const QSignalSpy released(m_scene->Model.get(), &cMainModel::StagedRowsReleased);
        QVERIFY(!m_scene->Model->IsEnabled(modCommand::Undo));
        m_scene->Select({m_scene->Rent});
        m_scene->Model->Execute(modCommand::SkipPeriod);
        m_scene->Book.User.Decisions = {-1, 1}; // given up first
        cEntryItem march = m_scene->Rent;
        march.EntryDate = QDate(2026, 3, 1);
        m_scene->Select({m_scene->Rent, march});
        m_scene->Model->Execute(modCommand::DeleteEntry);
        QCOMPARE(m_scene->Model->Entries().rowCount(), 15);
        m_scene->Model->Execute(modCommand::DeleteEntry);
        QCOMPARE(m_scene->Model->Entries().rowCount(), 3);
        QVERIFY(m_scene->Model->MenuText(modCommand::Undo).endsWith(m_scene->Book.Data.Journal().UndoName()));
        QVERIFY(!m_scene->Model->IsEnabled(modCommand::DeleteEntry)); // nothing is selected any more
        m_scene->Model->Execute(modCommand::Undo);
        QCOMPARE(m_scene->Model->Entries().rowCount(), 15);
        QCOMPARE(m_scene->Book.Data.GetEntryMods(m_scene->Rent.ID).size(), 1);
        QCOMPARE(released.size(), 2); // bank rows may have come back with it
        m_scene->Model->Execute(modCommand::Undo);
        QVERIFY(m_scene->Book.Data.GetEntryMods(m_scene->Rent.ID).isEmpty());
        QVERIFY(!m_scene->Model->IsEnabled(modCommand::Undo));
        m_scene->Model->Execute(modCommand::Redo);
        QCOMPARE(m_scene->Book.Data.GetEntryMods(m_scene->Rent.ID).size(), 1);
    }

    void CommandsDispatch()
    {
        m_scene->Select({m_scene->Future});
        for (const int id : {100, 101, 103, 108, 115, 120, 107}) {
            QVERIFY(m_scene->Model->Execute(id));
        }
        // 120 needs an occurrence of a series
        const QString future = u"Eintrag %1 2026-03-20"_s.arg(m_scene->Future.ID);
        QCOMPARE(m_scene->Navigator.Opened,
                 QStringList({u"neu"_s, future, u"103"_s, u"108"_s, u"Kategorien "_s, u"Ende"_s}));
        m_scene->Model->Execute(modCommand::ViewFix);
        QVERIFY(!cSettings::ToBool(m_scene->Book.Settings->Get(modSettingKey::ViewFix)));
        QVERIFY(!m_scene->Model->Execute(999));
    }

    void RenamesAnAccountWithItsEntries()
    {
        m_scene->Book.User.Choices = {u"  Haushalts;konto "_s};
        m_scene->Book.User.Answers = {eAnswer::Yes};
        m_scene->Model->ChooseAccount(u"Girokonto"_s);
        m_scene->Model->RenameAccount(u"Girokonto"_s);
        const QHash<QString, int> counts = m_scene->Book.Data.CountEntriesByAccount();
        QVERIFY(!counts.contains(u"Girokonto"_s) && counts.contains(u"Haushaltskonto"_s));
        QCOMPARE(m_scene->Model->View().Account, u"Haushaltskonto"_s);
        QCOMPARE(m_scene->Model->Entries().rowCount(), 15);
        m_scene->Model->Execute(modCommand::Undo);
        QCOMPARE(m_scene->Model->View().Account, u"Girokonto"_s);
        QCOMPARE(m_scene->Model->Entries().rowCount(), 15);
    }

    void ChangedRowsOutOfSightAreToldOf()
    {
        const QList<cEntryListModel::cKey> rows{{m_scene->Future.ID, m_scene->Future.EntryDate}};
        QSignalSpy told(m_scene->Model.get(), &cMainModel::Told);
        m_scene->Model->ChooseAccount(m_scene->Future.EntryAccount);
        for (const cManyFields& fields :
             {cManyFields{.Description = u"Neu"_s}, cManyFields{.Account = u"Sparkonto"_s}}) {
            QCOMPARE(cManyChange(m_scene->Book.Tools, rows).Save(fields), cManyChange::eSaved::Saved);
            m_scene->Model->ManyChanged(rows, rows);
        }
        QCOMPARE(told.at(0).first().toString(), u"Eintrag 'Neu' geändert."_s);
        QVERIFY2(told.at(1).first().toString().contains(u"blendet"_s), qPrintable(told.at(1).first().toString()));
    }

    void ReadOnlyBookOffersNoWriting()
    {
        const QString path = m_scene->Book.Path();
        m_scene->Model.reset();
        m_scene->Book.Database.Open(path, eOpenMode::ReadOnly);
        m_scene->Start();
        m_scene->Select({m_scene->Future});
        QVERIFY(!m_scene->Model->IsEnabled(modCommand::NewEntry));
        QVERIFY(!m_scene->Model->IsEnabled(modCommand::DeleteEntry));
        m_scene->Model->ChoosePeriod(u"Letzter Monat"_s);
        m_scene->Model->ToggleView(modSettingKey::ViewFix);
        QCOMPARE(m_scene->Model->Entries().rowCount(), 1);
        QCOMPARE(m_scene->Book.User.Shown, QStringList()); // looking around writes nothing and complains about nothing
    }

    void OpenRowsCountForTheirAccount()
    {
        m_scene->Book.Stage(u"4711"_s, QDate(2026, 3, 1), -500);
        m_scene->Book.Settings->Set(modSettingKey::BankNumber.Of(u"4711"_s), u"Sparkonto"_s);
        m_scene->Model->BookChanged();
        RunQueued();
        const cAccountListModel& accounts = m_scene->Model->AccountList();
        QCOMPARE(accounts.index(2, cAccountListModel::Name).data().toString(), u"Sparkonto"_s);
        QCOMPARE(accounts.index(2, cAccountListModel::Open).data().toString(), u"1"_s);

        // Numbers without account, or with one that is gone, count in the total.
        m_scene->Book.Stage(u"0815"_s, QDate(2026, 3, 1), -500);
        m_scene->Book.Stage(u"999"_s, QDate(2026, 3, 1), -500);
        m_scene->Book.Settings->Set(modSettingKey::BankNumber.Of(u"999"_s), u"Weg"_s);
        const modAccountLines::cLines lines =
            modAccountLines::Load(m_scene->Book.Data, *m_scene->Book.Settings, QDate(2026, 3, 1));
        QCOMPARE(lines.Open, 3);
        QCOMPARE(std::accumulate(lines.Accounts.begin(), lines.Accounts.end(), 0,
                                 [](int sum, const cAccountLine& line) { return sum + line.Open; }),
                 1);
    }

private:
    std::optional<cScene> m_scene;
};

TEST_CLASS(testMainModel, QCoreApplication)
#include "testMainModel.moc"
