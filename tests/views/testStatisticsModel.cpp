#include "model/modSettingKey.h"
#include "support/cFakeNavigator.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "views/main/cMainModel.h"
#include "views/statistics/cStatisticsModel.h"

#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;

namespace {

// A year of a household seen on 15 March 2026: rent every month, two purchases, one of which came back in part, salary,
// a transfer.
struct cScene
{
    cScene()
    {
        Book.Add([](cEntryItem& e) {
            e.EntryDate = QDate(2026, 1, 1);
            e.EntryInterval = u"Monatlich"_s;
            e.EntryValue = 70000;
            e.EntryCategory = u"Wohnung; Miete"_s;
        });
        Book.Spend(QDate(2026, 3, 10), 5000);
        Book.Add([](cEntryItem& e) {
            e.EntryValue = 2500;
            e.EntryAccount = u"Bargeld"_s;
            e.EntryCategory = u"Haushalt; Putz- und Waschmittel (auch Tücher)"_s;
        });
        Book.Add([](cEntryItem& e) {
            e.EntryType = modWord::Einnahme;
            e.EntryValue = 1000;
        });
        Book.Add([](cEntryItem& e) {
            e.EntryType = modWord::Umbuchung;
            e.EntryAccountMove = u"Sparkonto"_s;
            e.EntryCategory = u"Wohnung; Miete"_s;
        });
        Main.RestoreView(false);
        Main.ToggleView(modSettingKey::ViewFix); // the user looks at one-off entries only
        Main.ChooseAccount(u"Girokonto"_s);
        Model.Restore();
        Model.SetShown(true);
    }

    [[nodiscard]] QStringList Shown()
    {
        QStringList lines;
        const cEntryListModel& list = Main.Entries();
        for (int group = 0; group < list.rowCount(); ++group) {
            lines.append(list.index(group, 0).data(cEntryListModel::NameRole).toString() + u' '
                         + list.index(group, cEntryListModel::Amount).data(Qt::DisplayRole).toString());
        }
        return lines;
    }

    cTestBook Book;
    cFakeNavigator Navigator;
    cMainModel Main{Book.Tools, {Book.Configuration, Book.Shell, Navigator, Book.Path()}};
    cStatisticsModel Model{Book.Tools, {Book.Shell, Navigator, Main}};
};

QString Days(const cViewState& view)
{
    return view.Free.Start.toString(u"dd.MM.yyyy"_s) + u'-' + view.Free.End.toString(u"dd.MM.yyyy"_s);
}

} // namespace

class testStatisticsModel final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void UnreadableBookIsSaid_data()
    {
        const cTestRows<QString, bool> row("table", "isChartKnown");
        row("entries", u"data"_s, false);
        row("categories, without which no limit is known", u"template"_s, true);
    }

    void UnreadableBookIsSaid()
    {
        QFETCH(const QString, table);
        QFETCH(const bool, isChartKnown);
        cScene scene;
        scene.Book.Damage(table.toStdString());
        scene.Model.ChooseReport(eReport::Limit);
        scene.Model.BookChanged();
        const QString unread = u"Das Buch konnte nicht gelesen werden"_s;
        QVERIFY(scene.Model.Html().contains(unread));
        QCOMPARE(scene.Model.Hint(), QString()); // nothing of limits that are missing
        scene.Model.ChoosePage(cStatisticsModel::ePage::Charts);
        QCOMPARE(scene.Model.FirstChart().Data().IsEmpty(), !isChartKnown);
        QCOMPARE(scene.Model.FirstChart().Data().EmptyText() == unread, !isChartKnown);
        scene.Model.SecondChart().ChooseKind(eChartKind::Balances);
        QCOMPARE(scene.Model.SecondChart().Data().EmptyText(), unread);
    }

    void LinksLead_data()
    {
        const cTestRows<QString, QStringList, QStringList> row("Link", "Opened", "Pages");
        const QStringList none;
        row("category", u"editcategory://Haushalt; Lebensmittel/"_s, {u"Kategorien Haushalt; Lebensmittel"_s}, none);
        row("page", u"HTTP://www.example.org/a"_s, none, {u"HTTP://www.example.org/a"_s});
        row("something else", u"file:///etc/passwd"_s, none, none);
    }

    void LinksLead()
    {
        QFETCH(QString, Link);
        cScene scene;
        scene.Model.FollowLink(Link);
        QTEST(scene.Navigator.Opened, "Opened");
        QTEST(scene.Book.Shell.Pages, "Pages");
        QVERIFY(!scene.Main.IsSelection());
    }

    void LinkShowsItsEntriesAndTheWayBack()
    {
        cScene scene;
        QSignalSpy shown(&scene.Model, &cStatisticsModel::EntriesShown);
        QSignalSpy chosen(&scene.Model, &cStatisticsModel::NodeChosen);
        scene.Model.ChooseReport(eReport::Sum);
        scene.Model.FollowLink(u"SHOWENTRIES://Ausgaben|01.01.2026|31.03.2026|Alle Konten|Wohnung; Miete"_s);
        QCOMPARE(shown.size(), 1);
        const auto node = scene.Model.Tree().NodeAt(chosen.constFirst().constFirst().toModelIndex());
        QCOMPARE(node.Category.value_or(QString()), u"Miete"_s);
        // The rent comes every month, although the user has hidden such entries, and the transfer does not count.
        QCOMPARE(scene.Shown(), QStringList{u"Wohnung -2.100,00\u00a0€"_s});
        const cViewState& view = scene.Main.View();
        QCOMPARE(view.Period, modWord::FreierZeitraum);
        QCOMPARE(Days(view), u"01.01.2026-31.03.2026"_s);
        QCOMPARE(view.Account, modWord::AlleKonten);
        QCOMPARE(view.Type, modWord::Ausgabe);
        QCOMPARE(scene.Main.ViewLines().constLast(), u"Auswahl: Ausgaben › Wohnung › Miete"_s);

        // A second one from there: the way back leads to where the user was before the first.
        scene.Model.FollowLink(
            u"SHOWENTRIES://Ausgaben|01.01.2026|31.03.2026|Alle Konten|Haushalt; Putz- und Waschmittel (auch Tücher)"_s);
        QCOMPARE(scene.Shown(), QStringList{u"Haushalt -25,00\u00a0€"_s});
        scene.Main.GoBack();
        QVERIFY(!scene.Main.IsSelection());
        QCOMPARE(scene.Main.View().Account, u"Girokonto"_s);
        QCOMPARE(scene.Main.View().Period, modWord::AktuellesJahr);
        QVERIFY(!scene.Main.View().ShowsFix);
    }

    void SelectionsAreNotStored()
    {
        cScene scene;
        scene.Model.FollowLink(u"SHOWENTRIES://Einnahmen|01.01.2026|31.03.2026|Bargeld|Haushalt; "_s);
        QVERIFY(scene.Main.IsChecked(modSettingKey::ViewFix));
        scene.Main.ChoosePeriod(u"Letzter Monat"_s); // the user looks around from there
        scene.Main.SaveView();
        scene.Main.KeepView({}); // nor kept under a name, which would show other entries
        QCOMPARE(scene.Book.User.Shown.size(), 1);
        QCOMPARE(scene.Book.Settings->Get(modSettingKey::SavedViews), QString());
        QCOMPARE(scene.Book.Settings->Get(modSettingKey::MainAccount), u"Girokonto"_s);
        QCOMPARE(scene.Book.Settings->Get(modSettingKey::MainPeriod), modWord::AktuellesJahr);
        QCOMPARE(scene.Book.Settings->Get(modSettingKey::MainGrouping), modWord::KeineGruppierung);
        QVERIFY(!scene.Book.Settings->GetBool(modSettingKey::ViewFix));
        scene.Main.ToggleView(modSettingKey::ViewFuture); // a switch is meant to last
        scene.Main.GoBack();
        QVERIFY(!scene.Main.View().ShowsFuture);
        scene.Model.FollowLink(u"SHOWENTRIES://Einnahmen|01.01.2026|31.03.2026|Bargeld|Haushalt; "_s);
        scene.Main.ResetView();
        QVERIFY(!scene.Main.View().Free.Start.isValid()); // nobody has chosen free days
    }

    // What the list adds up to is what the report says.
    void RefundsAreAmongTheEntriesOfALimit()
    {
        cScene scene;
        std::optional<cTemplateItem> category = scene.Book.Data.FindTemplate(u"Haushalt"_s, u"Lebensmittel"_s);
        QVERIFY(category);
        category->TemplateDefaultValue = u"100"_s;
        QVERIFY(scene.Book.Data.ChangeTemplate(*category));
        scene.Model.ChooseReport(eReport::Limit);
        QVERIFY(!scene.Model.Hint().isEmpty()); // there is no limit yet
        scene.Model.BookChanged();
        QVERIFY(scene.Model.Hint().isEmpty());
        const cReportNode node{eReportKind::Expense, u"Haushalt"_s, u"Lebensmittel"_s};
        const QModelIndex line = scene.Model.Tree().FindNode(node);
        QVERIFY(line.isValid());
        QCOMPARE(line.siblingAtColumn(cReportTreeModel::Amount).data().toString(), u"40,00\u00a0€"_s);
        scene.Model.ShowNode(node);
        QCOMPARE(scene.Shown(), QStringList{u"Haushalt -40,00\u00a0€"_s});
        scene.Model.SetSpending(eReportSpending::Gross);
        scene.Model.ShowNode(node);
        QCOMPARE(scene.Shown(), QStringList{u"Haushalt -50,00\u00a0€"_s});
    }

    void FreePeriodEndsWithItsLastMonth()
    {
        cScene scene;
        scene.Model.ChoosePeriod(modWord::FreierZeitraum);
        QCOMPARE(scene.Model.Range(), (modPeriod::cRange{QDate(2026, 1, 1), QDate(2026, 12, 31)})); // as shown before
        scene.Model.ChooseYear(2024);
        scene.Model.ChooseLastMonth(2);
        QCOMPARE(scene.Model.Range(), (modPeriod::cRange{QDate(2024, 1, 1), QDate(2024, 2, 29)}));
        QVERIFY(scene.Model.Html().contains(u" vom 01.01.2024 bis 29.02.2024"_s));
    }

    void MonthsPushEachOther()
    {
        cStatisticsPeriod period{modWord::FreierZeitraum, 3, 5, 2026};
        period.ChooseFirst(9);
        QCOMPARE(period.LastMonth, 9);
        period.ChooseLast(2);
        QCOMPARE(period.FirstMonth, 2);
    }

    void SelectorsAreKept()
    {
        cScene scene;
        scene.Model.ChooseReport(eReport::Limit);
        scene.Model.ChooseAccount(u"Bargeld"_s);
        scene.Model.ChoosePeriod(modWord::FreierZeitraum);
        scene.Model.ChooseFirstMonth(4);
        scene.Model.SetOrder(eReportOrder::ByAmount);
        scene.Model.SetZoom(150);
        scene.Model.SecondChart().ChooseKind(eChartKind::Balances);
        scene.Model.SecondChart().ChooseCompare(cStatisticsChart::eCompare::YearBefore);
        scene.Model.SecondChart().ChoosePeriod(u"Letztes Quartal"_s);

        cStatisticsModel again(scene.Book.Tools, {scene.Book.Shell, scene.Navigator, scene.Main});
        again.Restore();
        QCOMPARE(again.Wish().Type, eReport::Limit);
        QCOMPARE(again.Wish().Account, u"Bargeld"_s);
        QCOMPARE(again.Range(), (modPeriod::cRange{QDate(2026, 4, 1), QDate(2026, 12, 31)}));
        QCOMPARE(again.Wish().Order, eReportOrder::ByAmount);
        QCOMPARE(again.Zoom(), 150);
        QCOMPARE(again.SecondChart().Kind(), eChartKind::Balances);
        QCOMPARE(again.SecondChart().Wish().Second->Start, QDate(2024, 10, 1));
        QCOMPARE(again.SecondChart().Wish().Account, u"Bargeld"_s);
        QCOMPARE(again.FirstChart().Kind(), eChartKind::ExpensePie);
    }

    void WorksOnlyWhileSomebodyLooks()
    {
        cScene scene;
        scene.Model.SetShown(false);
        QSignalSpy report(&scene.Model, &cStatisticsModel::ReportChanged);
        QSignalSpy chart(&scene.Model.FirstChart(), &cStatisticsChart::Changed);
        scene.Book.Add([](cEntryItem& e) { e.EntryValue = 9900; });
        scene.Model.BookChanged();
        QCOMPARE(report.size() + chart.size(), 0);
        scene.Model.SetShown(true);
        QCOMPARE(report.size(), 1);
        QCOMPARE(chart.size(), 0);
        scene.Model.ChoosePage(cStatisticsModel::ePage::Charts);
        QCOMPARE(chart.size(), 1);
        scene.Model.ChoosePage(cStatisticsModel::ePage::Report);
        QCOMPARE(report.size(), 1); // nothing has changed meanwhile
    }

    void AccountIsFollowedAsLongAsItIsThere()
    {
        cScene scene;
        scene.Model.ChooseAccount(u"Bargeld"_s);
        QVERIFY(scene.Model.Html().contains(u"für Konto 'Bargeld' vom"_s));
        const std::optional<cTemplateItem> account = scene.Book.Data.FindAccount(u"Bargeld"_s);
        connect(&scene.Main, &cMainModel::BookRefreshed, &scene.Model, &cStatisticsModel::BookChanged);
        scene.Book.User.Choices = {u"Börse"_s};
        scene.Book.User.Answers = {eAnswer::Yes}; // its entries go along
        scene.Main.RenameAccount(u"Bargeld"_s);
        QVERIFY(scene.Model.Html().contains(u"für Konto 'Börse' vom"_s));
        QVERIFY(account && scene.Book.Data.DeleteTemplate(account->ID));
        scene.Main.BookChanged();
        QVERIFY(scene.Model.Html().contains(u"für alle Konten vom"_s));
        QCOMPARE(scene.Model.FirstChart().Wish().Account, QString());
    }

    void SwitchesOfTheViewCount()
    {
        cScene scene;
        QVERIFY(scene.Book.Data.SetStartGuthaben(u"Girokonto"_s, 77700, QDate(2026, 1, 1)));
        scene.Book.Settings->SetBool(modSettingKey::ViewFuture, false);
        scene.Book.Settings->SetBool(modSettingKey::ViewStart, false);
        scene.Model.Restore();
        scene.Model.ChooseReport(eReport::Sum);
        QVERIFY(scene.Model.Html().contains(u"2.100,00"_s)); // three rents up to today
        QVERIFY(!scene.Model.Html().contains(u"777,00"_s));
        scene.Book.Settings->SetBool(modSettingKey::ViewFuture, true);
        scene.Book.Settings->SetBool(modSettingKey::ViewStart, true);
        scene.Model.ViewChanged();
        QVERIFY(scene.Model.Html().contains(u"8.400,00"_s));
        QVERIFY(scene.Model.Html().contains(u"777,00"_s));
    }

    void PrintedReportHasNoLinkData()
    {
        cScene scene;
        QVERIFY(scene.Model.Html().contains(u"SHOWENTRIES://Ausgaben|"_s));
        const QString printed = scene.Model.PrintHtml();
        QVERIFY(printed.contains(u"href=\"SHOWENTRIES://||||\""_s));
        QVERIFY(!printed.contains(u"SHOWENTRIES://Ausgaben"_s));
    }

    void ClickOnAPartOfAChartShowsItsEntries()
    {
        cScene scene;
        scene.Model.ChoosePage(cStatisticsModel::ePage::Charts);
        cStatisticsChart& chart = scene.Model.FirstChart();
        const auto seriesOf = [&](const QString& name) {
            const QList<cChartSeries>& all = chart.Data().Series;
            const auto found =
                std::find_if(all.begin(), all.end(), [&](const cChartSeries& series) { return series.Name == name; });
            return static_cast<int>(found - all.begin());
        };
        QVERIFY(!chart.Click(seriesOf(u"Wohnung"_s), 0)); // goes down first
        const std::optional<cChartTarget> target = chart.Click(seriesOf(u"Miete"_s), 0);
        QVERIFY(target);
        scene.Model.ShowTarget(chart, *target);
        QCOMPARE(scene.Shown(), QStringList{u"Wohnung -8.400,00\u00a0€"_s}); // twelve rents
        QVERIFY(!chart.Data().BackText.isEmpty());
        chart.GoUp();
        QVERIFY(chart.Data().BackText.isEmpty());
    }

    void BalancesShowTransfersToo()
    {
        cScene scene;
        scene.Model.FirstChart().ChooseKind(eChartKind::Balances);
        cChartTarget target{cChartTarget::eKind::Entries};
        target.Account = u"Sparkonto"_s;
        target.Range = {QDate(2026, 3, 10), QDate(2026, 3, 10)};
        scene.Model.ShowTarget(scene.Model.FirstChart(), target);
        QCOMPARE(scene.Shown(), QStringList{u"Wohnung 10,00\u00a0€"_s});
    }

    // Where the view hides what is still to come, a report or chart of next month would be empty.
    void NextPeriodAsksForTheFuture()
    {
        cScene scene;
        scene.Model.ChooseReport(eReport::Sum);
        scene.Main.ToggleView(modSettingKey::ViewFuture);
        scene.Model.FirstChart().ChoosePeriod(u"Nächster Monat"_s); // no answer: no
        QCOMPARE(scene.Book.User.Asked.size(), 1);
        QVERIFY(!scene.Main.View().ShowsFuture);
        scene.Model.SecondChart().ChooseKind(eChartKind::Balances);
        scene.Model.SecondChart().ChoosePeriod(u"Nächster Monat"_s); // the forecast is shown anyway
        QCOMPARE(scene.Book.User.Asked.size(), 1);
        scene.Book.User.Answers = {eAnswer::Yes};
        scene.Model.ChoosePeriod(u"Nächster Monat"_s);
        QVERIFY(scene.Main.IsChecked(modSettingKey::ViewFuture));
        QVERIFY(scene.Model.Html().contains(u"700,00"_s));
        scene.Model.ChoosePeriod(u"Nächstes Jahr"_s);
        QCOMPARE(scene.Book.User.Asked.size(), 2);
    }

    void ForecastLeadsToWhatComes()
    {
        cScene scene;
        scene.Main.ToggleView(modSettingKey::ViewFuture);
        scene.Model.FirstChart().ChooseKind(eChartKind::Balances);
        cChartTarget target{cChartTarget::eKind::Entries};
        target.Range = {QDate(2026, 4, 1), QDate(2026, 4, 1)};
        scene.Model.ShowTarget(scene.Model.FirstChart(), target);
        QCOMPARE(scene.Shown(), QStringList{u"Wohnung -700,00\u00a0€"_s});
        // A report, where it does not count, follows at once.
        scene.Model.FollowLink(u"SHOWENTRIES://Ausgaben|01.01.2026|31.12.2026|Alle Konten|Wohnung; Miete"_s);
        QCOMPARE(scene.Shown(), QStringList{u"Wohnung -2.100,00\u00a0€"_s});
    }

    // Their lines have the same link and differ by name only.
    void MainCategoryAndWhatIsBookedOnItDiffer()
    {
        cScene scene;
        scene.Book.Add([](cEntryItem& e) {
            e.EntryValue = 300;
            e.EntryCategory = u"Haushalt"_s;
        });
        scene.Model.BookChanged();
        const QString link = u"SHOWENTRIES://Ausgaben|01.01.2026|31.12.2026|Alle Konten|Haushalt; "_s;
        scene.Model.FollowLink(link, u"Haushalt"_s);
        QCOMPARE(scene.Shown(), QStringList{u"Haushalt -78,00\u00a0€"_s});
        scene.Model.FollowLink(link, u"Sonstiges (Haushalt)"_s);
        QCOMPARE(scene.Shown(), QStringList{u"Haushalt -3,00\u00a0€"_s});
    }
};

TEST_CLASS(testStatisticsModel, QCoreApplication)
#include "testStatisticsModel.moc"
