#include "model/modSettingKey.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "support/testBook.h"
#include "support/testFormat.h"
#include "views/chart/cChartMaker.h"
#include "views/chart/cChartSave.h"
#include "views/chart/cForecast.h"
#include "views/chart/modChart.h"
#include "views/chart/modChartTable.h"
#include "views/look/cCategoryLooks.h"
#include "views/main/cAccountListModel.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate today(2026, 3, 15);
const modPeriod::cRange year{QDate(2026, 1, 1), QDate(2026, 12, 31)};

struct cChartBook
{
    cChartBook()
    {
        Add(modWord::Ausgabe, QDate(2026, 1, 10), u"Wohnen; Miete"_s, 60000);
        Add(modWord::Ausgabe, QDate(2026, 2, 10), u"Wohnen; Strom"_s, 10000);
        Add(modWord::Ausgabe, QDate(2026, 2, 11), u"Wohnen"_s, 5000);
        Add(modWord::Ausgabe, QDate(2026, 2, 12), u"Haushalt; Lebensmittel"_s, 25000);
        Add(modWord::Ausgabe, QDate(2025, 2, 12), u"Haushalt; Lebensmittel"_s, 15000);
        Add(modWord::Einnahme, QDate(2026, 1, 31), u"Arbeit; Gehalt"_s, 200000);
        Add(modWord::Umbuchung, QDate(2026, 1, 31), u"Sparen"_s, 50000);
        QVERIFY(Book.Data.SetStartGuthaben(u"Girokonto"_s, 12345, QDate(2026, 1, 1)));
    }

    void Add(const QString& type, QDate day, const QString& category, qint64 cents)
    {
        const QString target = type == modWord::Umbuchung ? u"Sparkonto"_s : QString();
        Book.Add({.Day = day, .Cents = cents, .Category = category, .Type = type, .Target = target});
    }

    cChartData Make(const cChartWish& wish) { return cChartMaker(Book.Data, Format.Format, today).Make(wish); }

    cTestBook Book;
    cTestFormat Format;
};

// "name=cents" of every series at one label.
QStringList Values(const cChartData& chart, int label)
{
    QStringList values;
    for (const cChartSeries& series : chart.Series) {
        const std::optional<qint64> cents = series.At(label);
        values.append(series.Name + u'=' + (cents ? QString::number(*cents) : u"-"_s));
    }
    return values;
}

// A book with 1,000 euros on the current account and a monthly rent of 300 on the 20th.
struct cRentBook
{
    cRentBook()
    {
        QVERIFY(Book.Data.SetStartGuthaben(u"Girokonto"_s, 100000, QDate(2026, 1, 1)));
        Rent = Book.Spend(QDate(2026, 3, 20), 30000, u"Miete"_s, u"Monatlich"_s);
    }

    void SetLimit(const QString& account, const QString& amount)
    {
        cTemplateItem item = *Book.Data.FindAccount(account);
        item.TemplateDefaultValue = amount;
        QVERIFY(Book.Data.ChangeTemplate(item));
    }

    QList<cLimitWarning> Warnings() { return cForecast(Book.Data, today).Warnings(); }

    cTestBook Book;
    cEntryItem Rent;
};

qint64 At(const cBalanceDays& days, const QString& account, QDate day)
{
    for (const cBalanceLine& line : days.Accounts) {
        if (line.Account == account) {
            return line.Cents.value(days.IndexOf(day), -1);
        }
    }
    return -1;
}

} // namespace

// What charts show, and the balances to come.
class testChartData final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_book.emplace(); }

    void MainCategoriesHaveTheirColours()
    {
        const QString blue = u"#0087e8"_s; // that of the first slice, without a choice
        QVERIFY(cCategoryLooks::Store(*m_book->Book.Settings, u"Haushalt"_s, {blue, u"einkauf"_s}));
        cChartWish wish{.Kind = eChartKind::ExpensePie, .Range = year};
        const cChartData pie = m_book->Make(wish);
        QCOMPARE(pie.Series[1].OwnColour, blue);
        QVERIFY(pie.Series[0].OwnColour.isEmpty());
        QVERIFY(pie.Series[0].Colour != 0); // else it would look like the other one
        wish.Group = u"Haushalt"_s;
        QVERIFY(m_book->Make(wish).Series[0].OwnColour.isEmpty()); // its parts are told apart
        const cChartData flow = m_book->Make({.Kind = eChartKind::Flow, .Range = year});
        QCOMPARE(flow.Series[0].Colour, static_cast<int>(modChart::Income));
        QCOMPARE(flow.Series[2].OwnColour, blue);
        const cChartData months =
            m_book->Make({.Kind = eChartKind::ExpenseMonths, .Range = year, .Second = cChartWish::YearBefore(year)});
        QCOMPARE(
            Values(months, 1),
            (QStringList{u"Wohnen=15000"_s, u"Haushalt=25000"_s, u"Wohnen (2025)=0"_s, u"Haushalt (2025)=15000"_s}));
        QCOMPARE(months.Series[3].OwnColour, blue);
        QCOMPARE(months.Series[2].Colour, months.Series[0].Colour);
    }

    void SlicesByCategory()
    {
        cChartWish wish{.Kind = eChartKind::ExpensePie, .Range = year};
        const cChartData main = m_book->Make(wish);
        QCOMPARE(Values(main, 0), (QStringList{u"Wohnen=75000"_s, u"Haushalt=25000"_s}));
        QCOMPARE(main.Labels, QStringList{u"2026"_s});
        QCOMPARE(main.PartText(0, 0).replace(QChar(QChar::Nbsp), u' '), u"Wohnen: 750,00 € (75 %)"_s);
        const cChartFigures::cColumn share{{}, true};
        QCOMPARE(modChartTable::Text(main, share, 5400), u"54 %"_s);
        QCOMPARE(modChartTable::Text(main, share, 996), u"10 %"_s);
        QCOMPARE(modChartTable::Text(main, share, 540), u"5,4 %"_s);
        QCOMPARE(modChartTable::Text(main, share, 502), u"5 %"_s);
        cChartData british = main;
        british.Decimal = eDecimal::Point;
        QCOMPARE(modChartTable::Text(british, share, 540), u"5.4 %"_s);
        const QString told = modChartTable::ToldText(main).replace(QChar(QChar::Nbsp), u' ');
        QVERIFY2(told.contains(u"\nWohnen: 2026 750,00 €, Anteil 75 %\n"_s), qPrintable(told));
        const cChartTarget target = main.Series[0].TargetAt(0);
        QCOMPARE(target.Kind, cChartTarget::eKind::Deeper);
        wish.Group = target.Node->Group;
        const cChartData below = m_book->Make(wish);
        QCOMPARE(Values(below, 0), (QStringList{u"Miete=60000"_s, u"Strom=10000"_s, u"Sonstiges (Wohnen)=5000"_s}));
        QVERIFY(!below.BackText.isEmpty());
        QCOMPARE(
            below.Series[1].TargetAt(0),
            (cChartTarget{
                cChartTarget::eKind::Entries, cReportNode{eReportKind::Expense, u"Wohnen"_s, u"Strom"_s}, {}, year}));
    }

    void LaysTheYearBeforeBeside()
    {
        const cChartWish wish{.Kind = eChartKind::ExpensePie, .Range = year, .Second = cChartWish::YearBefore(year)};
        const cChartData chart = m_book->Make(wish);
        QCOMPARE(chart.Labels, (QStringList{u"2026"_s, u"2025"_s}));
        QCOMPARE(Values(chart, 1), (QStringList{u"Wohnen=0"_s, u"Haushalt=15000"_s}));
        const modPeriod::cRange leap{QDate(2027, 2, 1), QDate(2027, 2, 28)};
        QCOMPARE(cChartWish::YearBefore({leap.Start.addYears(1), QDate(2028, 2, 29)}), leap);
        QCOMPARE(cChartWish::YearBefore({QDate(2025, 2, 1), QDate(2025, 2, 28)}).End, QDate(2024, 2, 29));
    }

    void GathersSmallSlices()
    {
        for (int i = 0; i < 15; ++i) {
            m_book->Add(modWord::Ausgabe, QDate(2026, 3, 1), u"Gruppe %1"_s.arg(i), i < 9 ? 20000 : 100);
        }
        m_book->Add(modWord::Ausgabe, QDate(2026, 3, 1), u"Sonstiges"_s, 30000);
        const cChartData chart = m_book->Make({.Kind = eChartKind::ExpensePie, .Range = year});
        QCOMPARE(chart.Series.size(), 11);
        QCOMPARE(chart.Series[1].Name, u"Sonstiges"_s);   // the user's own
        QCOMPARE(chart.Series.last().Name, u"Weitere"_s); // so the rest must not be called the same
        QCOMPARE(chart.Series.last().At(0), 2 * 20000 + 6 * 100);
        QCOMPARE(chart.Series.last().TargetAt(0).Kind, cChartTarget::eKind::None);
        QCOMPARE(chart.Total(0), 100000 + 30000 + 9 * 20000 + 6 * 100);
    }

    void AddsUpMonths()
    {
        cChartWish wish{.Kind = eChartKind::Months, .Range = year};
        const cChartData chart = m_book->Make(wish);
        QCOMPARE(chart.Labels.size(), 12);
        QCOMPARE(chart.Labels[1], u"Februar 2026"_s);
        QCOMPARE(chart.ShortLabels[1], u"Feb 26"_s);
        QCOMPARE(Values(chart, 0), (QStringList{u"Einnahmen=200000"_s, u"Ausgaben=60000"_s, u"Überschuss=140000"_s}));
        QCOMPARE(Values(chart, 1), (QStringList{u"Einnahmen=0"_s, u"Ausgaben=40000"_s, u"Überschuss=-40000"_s}));
        QCOMPARE(chart.Today, 2);
        QCOMPARE(chart.Series[1].TargetAt(1).Range, (modPeriod::cRange{QDate(2026, 2, 1), QDate(2026, 2, 28)}));
        wish.Range = cChartWish::YearBefore(cChartWish::YearBefore(year));
        QVERIFY(m_book->Make(wish).IsEmpty());
        wish.Range = year;
        wish.ShowsFuture = false;
        wish.Second = cChartWish::YearBefore(year);
        const cChartData past = m_book->Make(wish);
        QCOMPARE(past.Labels.size(), 3);
        QCOMPARE(past.Series[4].Name, u"Ausgaben (2025)"_s);
        QCOMPARE(past.Series[4].At(1), 15000);
        QVERIFY(past.PartText(4, 1).startsWith(u"Ausgaben (2025), Februar 2025: "));
    }

    void TakesYearsForManyMonths()
    {
        m_book->Add(modWord::Ausgabe, QDate(1990, 5, 1), u"Alt"_s, 700);
        const cChartData chart = m_book->Make({.Kind = eChartKind::Months});
        QCOMPARE(chart.Labels.first(), u"1990"_s);
        QCOMPARE(chart.Labels.last(), u"2026"_s);
        QCOMPARE(chart.Series[1].At(0), 700);
        QCOMPARE(chart.Series[1].At(36), 100000);
        const modPeriod::cRange upToNow{QDate(1001, 1, 1), today}; // "Buchungen bis heute"
        QCOMPARE(m_book->Make({.Kind = eChartKind::Months, .Range = upToNow}).Labels.first(), u"1990"_s);
        QCOMPARE(m_book->Make({.Kind = eChartKind::Balances, .Range = upToNow}).Labels.first(), u"01.05.1990"_s);
    }

    void StacksCategories()
    {
        const cChartData chart = m_book->Make({.Kind = eChartKind::ExpenseMonths, .Range = year});
        QCOMPARE(Values(chart, 1), (QStringList{u"Wohnen=15000"_s, u"Haushalt=25000"_s}));
        const cChartData below = m_book->Make({.Kind = eChartKind::ExpenseMonths, .Range = year, .Group = u"Wohnen"_s});

        QCOMPARE(Values(below, 1), (QStringList{u"Miete=0"_s, u"Strom=10000"_s, u"Sonstiges (Wohnen)=5000"_s}));
    }

    void FollowsBalances()
    {
        m_book->Book.Add(
            {.Day = QDate(2026, 3, 20), .Cents = 70000, .Interval = u"Monatlich"_s, .End = QDate(2026, 5, 1)});
        m_book->Add(modWord::Einnahme, QDate(2026, 4, 30), u"Arbeit; Gehalt"_s, 200000);
        const modPeriod::cRange month{QDate(2026, 2, 1), QDate(2026, 2, 28)};
        const cChartData chart = m_book->Make({.Kind = eChartKind::Balances, .Range = month, .ForecastMonths = 2});
        QCOMPARE(chart.Labels.first(), u"01.02.2026"_s);
        QCOMPARE(chart.Labels.last(), u"15.05.2026"_s);
        QCOMPARE(chart.Labels[chart.Today], u"15.03.2026"_s);
        const qint64 february = 12345 - 15000 - 60000 + 200000; // of both accounts before the month
        QCOMPARE(Values(chart, 0),
                 (QStringList{u"Alle Konten=%1"_s.arg(february), u"Girokonto=%1"_s.arg(february - 50000),
                              u"Sparkonto=50000"_s}));
        QCOMPARE(chart.Marks.size(), 1);
        QCOMPARE(chart.Labels[chart.Marks.first().Index], u"20.04.2026"_s);
        QVERIFY(chart.Marks.first().Text.contains(u"20.04.2026"));
        const cChartData savings =
            m_book->Make({.Kind = eChartKind::Balances, .Range = month, .Account = u"Sparkonto"_s});
        QCOMPARE(savings.Series.size(), 1);
        QCOMPARE(savings.Labels.last(), u"28.02.2026"_s);
        QVERIFY(
            m_book->Make({.Kind = eChartKind::Balances, .Range = {QDate(1990, 1, 1), QDate(1990, 1, 31)}}).IsEmpty());
    }

    void FlowsIntoBothSides()
    {
        const cChartWish wish{.Kind = eChartKind::Flow, .Range = year};
        const cChartData chart = m_book->Make(wish);
        QCOMPARE(Values(chart, 0),
                 (QStringList{u"Arbeit=200000"_s, u"Wohnen=-"_s, u"Haushalt=-"_s, u"Bleibt übrig=-"_s}));
        QCOMPARE(Values(chart, 1),
                 (QStringList{u"Arbeit=-"_s, u"Wohnen=75000"_s, u"Haushalt=25000"_s, u"Bleibt übrig=100000"_s}));
        QCOMPARE(chart.PartText(1, 1).replace(QChar(QChar::Nbsp), u' '), u"Wohnen, Hinaus: 750,00 € (38 %)"_s);
        for (int i = 0; i < 4; ++i) { // too thin to be seen
            m_book->Add(modWord::Ausgabe, QDate(2026, 3, 1), u"Gruppe %1"_s.arg(i), 100 + i);
        }
        m_book->Add(modWord::Ausgabe, QDate(2026, 3, 2), u"Wohnen; Dach"_s, 500000);
        const cChartData deficit = m_book->Make(wish);
        QCOMPARE(deficit.Series.last().Name, u"Übriges"_s);
        QCOMPARE(deficit.Series.last().At(1), 406);
        QCOMPARE(deficit.Series.at(1).Name, u"Aus Erspartem"_s);
        QCOMPARE(deficit.Total(0), deficit.Total(1));
    }

    void ShadesTheDays()
    {
        const cChartData chart = m_book->Make({.Kind = eChartKind::Calendar, .Range = year, .ShowsFuture = false});
        QCOMPARE(chart.Days.size(), 365);
        QCOMPARE(chart.Series.size(), 1);
        QCOMPARE(chart.Series[0].At(9), 60000);
        QCOMPARE(chart.Series[0].At(0), 0);
        QVERIFY(!chart.Series[0].At(200)); // nobody knows what will be spent then
        QCOMPARE(chart.Labels[chart.Today], u"15.03.2026"_s);
        QVERIFY(chart.LevelOf(60000) > chart.LevelOf(5000));
        QCOMPARE(chart.LevelOf(0), 0);
        QCOMPARE(chart.Series[0].TargetAt(9).Range, (modPeriod::cRange{QDate(2026, 1, 10), QDate(2026, 1, 10)}));
        const modPeriod::cRange leap{QDate(2023, 11, 1), QDate(2024, 12, 31)};
        QCOMPARE(m_book->Make({.Kind = eChartKind::Calendar, .Range = leap}).Days.size(), 366);
    }

    void LaysLimitsBesideSpending()
    {
        QCOMPARE(m_book->Make({.Kind = eChartKind::Limits, .Range = year}).EmptyText(),
                 u"Keine Kategorie hat ein Limit."_s);
        for (const auto& [name, limit] : {std::pair(u"Waschen"_s, u"200.00"_s), std::pair(u"Putzen"_s, QString())}) {
            m_book->Book.AddCategory(u"Haushalt; "_s + name, [&limit = limit](cTemplateItem& item) {
                item.EntryType = modWord::Ausgabe;
                item.TemplateDefaultValue = limit;
            });
        }
        m_book->Book.Settings->Set(modSettingKey::Budget.Of(u"Haushalt; Putzen"_s), u"2026=,,27.50"_s); // March alone
        m_book->Add(modWord::Ausgabe, QDate(2026, 2, 3), u"Haushalt; Waschen"_s, 30000);
        m_book->Add(modWord::Einnahme, QDate(2026, 2, 4), u"Haushalt; Waschen"_s, 2500);
        const cChartData chart = m_book->Make({.Kind = eChartKind::Limits, .Range = year});
        QCOMPARE(Values(chart, 1),
                 (QStringList{u"Waschen=27500"_s, u"Limit Waschen=20000"_s, u"Putzen=0"_s, u"Limit Putzen=-"_s}));
        QCOMPARE(Values(chart, 2),
                 (QStringList{u"Waschen=0"_s, u"Limit Waschen=20000"_s, u"Putzen=0"_s, u"Limit Putzen=2750"_s}));
    }

    void LaysTagsBeside()
    {
        m_book->Book.Spend(QDate(2026, 1, 10), 700, u"Hotel #urlaub"_s);
        m_book->Book.Spend(QDate(2025, 1, 10), 300, u"Zelt #Urlaub #wald"_s);
        const cChartData chart =
            m_book->Make({.Kind = eChartKind::Tags, .Range = year, .Second = cChartWish::YearBefore(year)});
        QCOMPARE(chart.Labels, QStringList{u"#urlaub"_s});
        QCOMPARE(Values(chart, 0), QStringList({u"Ausgaben=700"_s, u"Ausgaben (2025)=300"_s}));
    }

    void SharesTheNetWorth()
    {
        m_book->Add(modWord::Ausgabe, QDate(2026, 3, 1), u"Auto"_s, 500000);
        const modPeriod::cRange march{QDate(2026, 3, 1), QDate(2026, 3, 31)};
        const cChartData chart = m_book->Make({.Kind = eChartKind::NetWorth, .Range = march, .ShowsFuture = false});
        const qint64 current = 12345 - 115000 + 200000 - 50000 - 500000; // below zero
        QCOMPARE(
            Values(chart, 0),
            (QStringList{u"Girokonto=%1"_s.arg(current), u"Sparkonto=50000"_s, u"Summe=%1"_s.arg(current + 50000)}));
        QVERIFY(!modChartTable::Figures(chart).Rows.last().IsSum); // balances of several days make none
    }

    void WritesTheSameFigures()
    {
        cChartData pie = m_book->Make({.Kind = eChartKind::ExpensePie, .Range = year});
        QCOMPARE(modChartTable::Csv(pie),
                 QByteArray("\xEF\xBB\xBF"
                            "Kategorie;2026;Anteil %\r\nWohnen;750,00;75,00\r\nHaushalt;250,00;25,00\r\n"));
        pie.Series[0].IsHidden = true;
        const cChartFigures figures = modChartTable::Figures(pie.Shown());
        QCOMPARE(figures.Rows.size(), 2); // the other category and the sum
        QCOMPARE(figures.Rows.last().Values, (QList<std::optional<qint64>>{25000, 10000}));
        cChartData odd = pie.Shown();
        odd.Series[0].Name = u"=1+1;\"x\""_s;
        QVERIFY(modChartTable::Csv(odd).contains("\"'=1+1;\"\"x\"\"\";250,00"));
    }

    void Saves()
    {
        cTestBook book;
        cChartSave save(book.Tools, {[](const cChartData&) { return QByteArray("png"); }, {}});
        QTemporaryDir folder;
        const QString path = folder.filePath(u"bild.png"_s);
        cChartData chart;
        chart.Title = u"Ausgaben: Auto & Bahn"_s;
        QVERIFY(!save.Run(chart, today)); // given up
        QCOMPARE(book.User.LastProposal, u"Kontorelle-Ausgaben-Auto-Bahn-2026-03-15"_s);
        QVERIFY(save.Write({}, path));
        QCOMPARE(cTestFile::Bytes(path), QByteArray("png"));
        QVERIFY(!save.Write({}, folder.filePath(u"bild.bmp"_s)));
        QVERIFY(!save.Write({}, folder.filePath(u"fehlt/bild.png"_s)));
        QCOMPARE(book.User.Shown.size(), 3); // also that it is done
    }

    void Foresees()
    {
        cRentBook household;
        household.Book.Correct(household.Rent.ID, QDate(2026, 4, 1), QDate(2026, 4, 30), 45000); // the rent of April
        household.Book.Add({.Day = QDate(2026, 2, 1), .Interval = u"Monatlich"_s, .End = QDate(2026, 4, 10)});
        household.Book.Move(u"Girokonto"_s, u"Sparkonto"_s, 5000, QDate(2026, 5, 5));
        const cBalanceDays days = cForecast(household.Book.Data, today).Ahead(12, cForecast::eAverage::Without);
        const QString giro = u"Girokonto"_s;
        QCOMPARE(days.First, today);
        QCOMPARE(days.Day(days.Count() - 1), QDate(2027, 3, 15));
        QCOMPARE(At(days, giro, today), 98000); // two payments of the short series are past
        QCOMPARE(At(days, giro, QDate(2026, 3, 19)), 98000);
        QCOMPARE(At(days, giro, QDate(2026, 3, 20)), 68000);
        QCOMPARE(At(days, giro, QDate(2026, 4, 20)), 22000); // its last payment and the corrected rent
        QCOMPARE(At(days, giro, QDate(2026, 5, 20)), 22000 - 5000 - 30000);
        QCOMPARE(At(days, u"Sparkonto"_s, QDate(2026, 5, 20)), 5000);
        QCOMPARE(days.Sum.Cents[days.IndexOf(QDate(2026, 5, 20))], 22000 - 30000); // the transfer stays in the family
        QCOMPARE(cBalanceDays::Lowest(days.Sum, 0), days.IndexOf(QDate(2027, 2, 20)));
    }

    void TakesOffTheAverage()
    {
        cRentBook household;
        for (const int day : {1, 8}) {
            household.Book.Spend(QDate(2026, 2, day), 21500); // 430 euros in the 43 days from 1 February on
        }
        cForecast forecast(household.Book.Data, today);
        const cBalanceDays without = forecast.Ahead(1, cForecast::eAverage::Without);
        const cBalanceDays with = forecast.Ahead(1, cForecast::eAverage::With);
        QCOMPARE(with.Sum.Cents.first(), without.Sum.Cents.first()); // today has happened
        QCOMPARE(with.Sum.Cents[4], without.Sum.Cents[4] - 4000);
        QCOMPARE(At(with, u"Girokonto"_s, today.addDays(4)), At(without, u"Girokonto"_s, today.addDays(4)) - 4000);
    }

    void Warns_data()
    {
        const cTestRows<QString, QDate, qint64, QString> row("limit", "day", "balance", "entry");
        row("none", {}, {}, 0, {});
        row("holds for 60 days", u"100.00"_s, {}, 0, {});
        row("second rent", u"400.01"_s, QDate(2026, 4, 20), 40000, u"Miete"_s);
        row("exactly at the limit", u"400.00"_s, {}, 0, {});
        row("first rent", u"900.00"_s, QDate(2026, 3, 20), 70000, u"Miete"_s);
        row("already below", u"1000.01"_s, today, 100000, {});
        row("zero is a limit, and holds", u"0.00"_s, {}, 0, {});
    }

    void Warns()
    {
        QFETCH(QString, limit);
        QFETCH(QDate, day);
        cRentBook household;
        household.SetLimit(u"Girokonto"_s, limit);
        const QList<cLimitWarning> warnings = household.Warnings();
        QCOMPARE(warnings.size(), day.isValid() ? 1 : 0);
        if (day.isValid()) {
            QCOMPARE(warnings.first().Day, day);
            QTEST(warnings.first().Cents, "balance");
            QTEST(warnings.first().Entry.EntryDescription, "entry");
        }
    }

    // What comes in on a day counts first, so the blame is on the entry without which the limit would have held.
    void NamesTheEntryOfTheDay()
    {
        cRentBook household;
        household.SetLimit(u"Girokonto"_s, u"500.00"_s);
        household.Book.Spend(QDate(2026, 3, 20), 10000, u"Strom"_s);
        household.Book.Spend(QDate(2026, 3, 20), 20000, u"Werkstatt"_s);
        household.Book.Add({.Day = QDate(2026, 3, 20), .Cents = 9000, .Type = modWord::Einnahme});
        const QList<cLimitWarning> warnings = household.Warnings();
        QCOMPARE(warnings.size(), 1);
        QCOMPARE(warnings.first().Cents, 49000);
        QCOMPARE(warnings.first().Entry.EntryDescription, u"Miete"_s); // listed last, after the one-off entries
    }

    void ShowsTheWarningInThePanel()
    {
        cRentBook household;
        household.SetLimit(u"Girokonto"_s, u"900.00"_s);
        cAccountListModel accounts(household.Book.Format);
        accounts.SetAccounts(household.Book.Data.GetAccounts(), QHash<QString, qint64>{{u"Girokonto"_s, 100000}}, {});
        const auto hint = [&](const QString& account) {
            for (int row = 0; row < accounts.rowCount(); ++row) {
                const QModelIndex index = accounts.index(row, cAccountListModel::Balance);
                if (accounts.AccountAt(index) == account) {
                    return accounts.data(index, Qt::ToolTipRole).toString().replace(QChar(QChar::Nbsp), u' ');
                }
            }
            return QString();
        };
        accounts.SetWarnings(household.Warnings());
        QCOMPARE(hint(u"Girokonto"_s),
                 u"Am 20.03.2026 fällt das Konto 'Girokonto' mit 'Miete' (-300,00 €) auf 700,00 € und damit unter "
                 "sein Limit von 900,00 €."_s);
        QCOMPARE(hint(u"Sparkonto"_s), u"Sparkonto"_s);
    }

private:
    std::optional<cChartBook> m_book;
};

TEST_CLASS(testChartData, QCoreApplication)
#include "testChartData.moc"
