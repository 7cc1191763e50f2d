#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "model/modBalance.h"
#include "model/modSettingKey.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "support/testFormat.h"
#include "views/budget/cBudgetEdit.h"
#include "views/chart/cChartMaker.h"
#include "views/list/cEntryListModel.h"
#include "views/report/cReportSource.h"
#include "views/report/cReportTreeModel.h"
#include "views/report/modReport.h"

#include <QTest>

#include <cmath>
#include <map>
#include <numeric>
#include <random>

using namespace Qt::Literals::StringLiterals;

namespace {

// One booking as plainly as it can be said: what the test knows of the book without asking the program.
struct cBooking
{
    QDate Day;
    QString Type;
    QString Account;
    QString Target;
    QString Category;
    qint64 Cents = 0;
};

// The sums of one category path.
struct cPlain
{
    qint64 Income = 0;
    qint64 Expense = 0;
    int IncomeEntries = 0;
    int ExpenseEntries = 0;
};

const QStringList accounts{u"Girokonto"_s, u"Sparkonto"_s, u"Bargeld"_s};
const QStringList paths{u"Wohnung; Miete"_s, u"Wohnung"_s,      u"Wohnung; Strom"_s,
                        u"Ärger; Bußgeld"_s, u"Lohn; Gehalt"_s, u"Auto; Steuer (Kfz)"_s,
                        QString(),           u"Keine Angabe"_s, modWord::Startguthaben};

// The category as the plain sums know it: entries without one stand together.
QString KeyOf(const QString& path)
{
    return path.isEmpty() ? u"Keine Angabe"_s : path;
}

QString PathOf(const cReportGroup& group, const cReportCategory& category)
{
    return category.Name.isEmpty() ? group.Name : QString(group.Name + u"; "_s + category.Name);
}

} // namespace

// Whatever shows the money of a period shows the same money: a hundred random books, compared to the cent with sums
// that the test adds up by itself from what it has put in.
class testReportAgreement final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Books_data();
    void Books();

private:
    void Fill();
    void AddOnce();
    void AddSeries();
    [[nodiscard]] int Random(int below) { return std::uniform_int_distribution<int>(0, below - 1)(m_random); }
    [[nodiscard]] QDate RandomDay() { return QDate(2025, 1, 1).addDays(Random(730)); }
    [[nodiscard]] cEntryItem RandomEntry();
    void ChooseWish();
    [[nodiscard]] bool IsInside(const cBooking& booking) const;
    [[nodiscard]] std::map<QString, cPlain> PlainSums(bool withStart) const;
    void AddBudget(const QString& path);
    [[nodiscard]] qint64 Own(const QString& path, QDate month) const;
    [[nodiscard]] qint64 Carried(const QString& path) const;
    [[nodiscard]] qint64 Limit(const QString& path) const;
    void CompareSums(eReport type);
    void CompareSection(const cReportSection& section, const std::map<QString, cPlain>& plain);
    void CompareLimits();
    void CompareNodes(const cReportFigures& figures);
    void CompareBudget();
    void CompareList();
    void CompareCharts();
    void CompareFlow(const cReportFigures& figures);
    void CompareCalendar();
    void CompareLimitMonths();
    void CompareCourse();
    void CompareBalances();

    std::mt19937 m_random;
    cTestBook m_book;
    cTestFormat m_format;
    std::vector<cBooking> m_bookings;
    std::map<QString, qint64> m_limits; // a month, by path
    std::map<QString, cBudget> m_budgets;
    cReportWish m_wish;
    std::unique_ptr<cReportSource> m_source;
};

void testReportAgreement::Books_data()
{
    QTest::addColumn<int>("seed");
    for (int seed = 1; seed <= 100; ++seed) {
        QTest::addRow("%d", seed) << seed;
    }
}

void testReportAgreement::Books()
{
    QFETCH(int, seed);
    m_random.seed(static_cast<unsigned>(seed));
    Fill();
    ChooseWish();
    m_source = std::make_unique<cReportSource>(m_book.Tools);
    CompareSums(eReport::Sum);
    CompareSums(eReport::Average);
    CompareLimits();
    CompareList();
    CompareCharts();
    CompareCalendar();
    CompareLimitMonths();
    CompareCourse();
    CompareBalances();
    CompareBudget();
}

void testReportAgreement::Fill()
{
    m_bookings.clear();
    m_limits.clear();
    m_budgets.clear();
    m_book.Database.ExecuteScript("DELETE FROM data; DELETE FROM datamod; DELETE FROM template; "
                                  "DELETE FROM setting WHERE SettingName LIKE 'Budget:%'; BEGIN");
    m_book.Settings->Reload();
    for (int i = Random(60); i > 0; --i) {
        AddOnce();
    }
    for (int i = Random(8); i > 0; --i) {
        AddSeries();
    }
    for (const QString& path : paths.mid(0, 6)) {
        if (Random(2) == 0) {
            continue;
        }
        cTemplateItem item;
        item.TemplateType = modWord::Kategorie;
        item.EntryType = modWord::Ausgabe;
        item.TemplateCategory = path.section(u"; "_s, 0, 0);
        item.TemplateName = path.section(u"; "_s, 1);
        m_limits[path] = 1 + Random(50000);
        item.TemplateDefaultValue = QString::number(static_cast<double>(m_limits[path]) / 100.0, 'f', 2);
        QVERIFY(m_book.Data.AddNewTemplate(item));
        if (Random(2) == 0) {
            AddBudget(path);
        }
    }
    m_book.Database.ExecuteScript("COMMIT");
}

// Months with limits of their own, and perhaps what is left goes on.
void testReportAgreement::AddBudget(const QString& path)
{
    cBudget& budget = m_budgets[path];
    for (int i = Random(8); i > 0; --i) {
        budget.Months[modBudget::MonthOf(RandomDay())] = Random(50000);
    }
    if (Random(2) == 0) {
        budget.CarriesFrom = modBudget::MonthOf(RandomDay());
    }
    m_book.Settings->Set(modSettingKey::Budget.Of(path), modBudget::ToText(budget, {}));
}

cEntryItem testReportAgreement::RandomEntry()
{
    const QStringList types{modWord::Ausgabe, modWord::Ausgabe, modWord::Einnahme, modWord::Umbuchung};
    cEntryItem entry;
    entry.EntryDate = RandomDay();
    entry.EntryDateEnd = modRecurrence::OpenEnd;
    entry.EntryType = types.at(Random(4));
    entry.EntryInterval = modWord::Einmalig;
    const int account = Random(3);
    entry.EntryAccount = accounts.at(account);
    if (entry.EntryType == modWord::Umbuchung) {
        entry.EntryAccountMove = accounts.at((account + 1 + Random(2)) % 3);
    }
    entry.EntryCategory = paths.at(Random(static_cast<int>(paths.size())));
    entry.EntryValue = Random(200000);
    return entry;
}

void testReportAgreement::AddOnce()
{
    cEntryItem entry = RandomEntry();
    QVERIFY(m_book.Data.AddNewEntry(entry));
    m_bookings.push_back({entry.EntryDate, entry.EntryType, entry.EntryAccount, entry.EntryAccountMove,
                          entry.EntryCategory, entry.EntryValue});
}

// Monthly or weekly, one occurrence corrected.
void testReportAgreement::AddSeries()
{
    cEntryItem entry = RandomEntry();
    const bool isMonthly = Random(2) == 0;
    entry.EntryInterval = isMonthly ? u"Monatlich"_s : u"Wöchentlich"_s;
    entry.EntryDate = QDate(2025, 1 + Random(12), 1 + Random(28)); // days that every month has
    entry.EntryDateEnd = entry.EntryDate.addDays(Random(500));
    QVERIFY(m_book.Data.AddNewEntry(entry));
    const int corrected = isMonthly ? Random(6) : -1;
    int number = 0;
    for (QDate day = entry.EntryDate; day <= entry.EntryDateEnd; ++number) {
        qint64 cents = entry.EntryValue;
        if (number == corrected) {
            const QDate first(day.year(), day.month(), 1);
            cents = Random(100000);
            QVERIFY(m_book.Data.AddNewEntryMod(
                {0, entry.ID, modWord::Betrag, first, first.addMonths(1).addDays(-1), cents, {}}));
        }
        m_bookings.push_back(
            {day, entry.EntryType, entry.EntryAccount, entry.EntryAccountMove, entry.EntryCategory, cents});
        day = isMonthly ? entry.EntryDate.addMonths(number + 1) : day.addDays(7);
    }
}

void testReportAgreement::ChooseWish()
{
    m_wish = {};
    m_wish.Today = QDate(2026, 3, 15);
    m_wish.ShowsFuture = Random(2) == 0;
    m_wish.ShowsStart = Random(2) == 0;
    m_wish.Account = Random(3) == 0 ? accounts.at(Random(3)) : QString();
    m_wish.Order = Random(2) == 0 ? eReportOrder::ByName : eReportOrder::ByAmount;
    m_wish.Spending = Random(2) == 0 ? eReportSpending::Net : eReportSpending::Gross;
    const QDate start = RandomDay();
    m_wish.Range = {start, start.addDays(Random(400))};
}

bool testReportAgreement::IsInside(const cBooking& booking) const
{
    const QDate end = m_wish.ShowsFuture ? m_wish.Range.End : qMin(m_wish.Range.End, m_wish.Today);
    return booking.Day >= m_wish.Range.Start && booking.Day <= end;
}

std::map<QString, cPlain> testReportAgreement::PlainSums(bool withStart) const
{
    std::map<QString, cPlain> sums;
    for (const cBooking& booking : m_bookings) {
        const bool isOther = !m_wish.Account.isEmpty() && booking.Account != m_wish.Account;
        const bool isHidden = !withStart && booking.Category == modWord::Startguthaben;
        if (!IsInside(booking) || isOther || isHidden || booking.Type == modWord::Umbuchung) {
            continue;
        }
        cPlain& sum = sums[KeyOf(booking.Category)];
        const bool isIncome = booking.Type == modWord::Einnahme;
        (isIncome ? sum.Income : sum.Expense) += booking.Cents;
        ++(isIncome ? sum.IncomeEntries : sum.ExpenseEntries);
    }
    return sums;
}

void testReportAgreement::CompareSums(eReport type)
{
    m_wish.Type = type;
    const cReportFigures figures = m_source->Figures(m_wish);
    const std::map<QString, cPlain> plain = PlainSums(type == eReport::Sum && m_wish.ShowsStart);
    CompareSection(figures.Income, plain);
    CompareSection(figures.Expense, plain);
    CompareNodes(figures);
}

void testReportAgreement::CompareSection(const cReportSection& section, const std::map<QString, cPlain>& plain)
{
    const bool isIncome = section.Kind == eReportKind::Income;
    const auto shown = [this](qint64 cents) {
        if (m_wish.Type == eReport::Sum) {
            return cents;
        }
        const auto days = std::max<qint64>(1, m_wish.Range.Start.daysTo(m_wish.Range.End));
        const QDate first(m_wish.Range.Start.year(), 1, 1);
        const int years = m_wish.Range.End.year() - m_wish.Range.Start.year() + 1;
        const auto month =
            static_cast<long double>(first.daysTo(QDate(m_wish.Range.End.year(), 12, 31))) / (12.0L * years);
        return qint64{std::llround(static_cast<long double>(cents) / static_cast<long double>(days) * month)};
    };
    std::map<QString, cReportAmount> lines;
    qint64 groupSums = 0;
    for (const cReportGroup& group : section.Groups) {
        qint64 sum = 0;
        for (const cReportCategory& category : group.Categories) {
            lines[PathOf(group, category)] = category.Amount;
            sum += category.Amount.Sum;
        }
        QCOMPARE(group.Amount.Cents, shown(sum));
        groupSums += sum;
    }
    QCOMPARE(section.Amount.Cents, shown(groupSums));
    for (const auto& [path, sum] : plain) {
        const int entries = isIncome ? sum.IncomeEntries : sum.ExpenseEntries;
        QCOMPARE(lines.contains(path), entries > 0);
        QCOMPARE(lines[path].Cents, shown(isIncome ? sum.Income : sum.Expense));
        QCOMPARE(lines[path].Entries, entries);
    }
    QVERIFY(lines.size() <= plain.size());
}

qint64 testReportAgreement::Own(const QString& path, QDate month) const
{
    const auto budget = m_budgets.find(path);
    return budget == m_budgets.end() ? m_limits.at(path) : budget->second.Months.value(month, m_limits.at(path));
}

// What the months before the period have left, of all accounts.
qint64 testReportAgreement::Carried(const QString& path) const
{
    const auto budget = m_budgets.find(path);
    const QDate from = budget == m_budgets.end() ? QDate() : budget->second.CarriesFrom;
    const QDate first(m_wish.Range.Start.year(), m_wish.Range.Start.month(), 1);
    qint64 left = 0;
    for (QDate month = from; from.isValid() && month < first; month = month.addMonths(1)) {
        left += Own(path, month);
    }
    for (const cBooking& booking : m_bookings) {
        if (from.isValid() && booking.Day >= from && booking.Day < first && KeyOf(booking.Category) == path
            && booking.Type != modWord::Umbuchung) {
            left += booking.Type == modWord::Einnahme ? booking.Cents : -booking.Cents;
        }
    }
    return left;
}

qint64 testReportAgreement::Limit(const QString& path) const
{
    const modPeriod::cRange& range = m_wish.Range;
    qint64 limit = Carried(path);
    for (QDate month(range.Start.year(), range.Start.month(), 1); month <= range.End; month = month.addMonths(1)) {
        limit += Own(path, month);
    }
    return limit;
}

void testReportAgreement::CompareLimits()
{
    m_wish.Type = eReport::Limit;
    const cReportFigures figures = m_source->Figures(m_wish);
    std::map<QString, cPlain> plain = PlainSums(false);
    std::size_t lines = 0;
    qint64 spentOfAll = 0;
    qint64 limitOfAll = 0;
    for (const cReportGroup& group : figures.Expense.Groups) {
        for (const cReportCategory& category : group.Categories) {
            const QString path = PathOf(group, category);
            QVERIFY(m_limits.contains(path));
            const qint64 refunds = m_wish.Spending == eReportSpending::Net ? plain[path].Income : 0;
            QCOMPARE(category.Amount.Cents, plain[path].Expense - refunds);
            QCOMPARE(category.Amount.Limit, Limit(path));
            spentOfAll += category.Amount.Cents;
            limitOfAll += category.Amount.Limit;
            ++lines;
        }
    }
    QCOMPARE(lines, m_limits.size());
    QCOMPARE(figures.Expense.Amount.Cents, spentOfAll);
    QCOMPARE(figures.Expense.Amount.Limit, limitOfAll);
    CompareNodes(figures);
}

// The grid of the budget, the report and the chart say the same of a month.
void testReportAgreement::CompareBudget()
{
    const int year = 2025 + Random(2);
    const int month = 1 + Random(12);
    const cBudgetEdit budget(m_book.Tools, year);
    m_wish = {};
    m_wish.Type = eReport::Budget;
    m_wish.Range = modPeriod::Month(QDate(year, month, 1), 0);
    m_wish.Today = QDate(2026, 3, 15);
    const cReportFigures figures = m_source->Figures(m_wish);
    const std::map<QString, cPlain> plain = PlainSums(false);
    for (const cReportGroup& group : figures.Expense.Groups) {
        for (const cReportCategory& category : group.Categories) {
            const QString path = PathOf(group, category);
            const int row = budget.RowOf(path);
            const auto found = plain.find(path);
            const cPlain sums = found == plain.end() ? cPlain() : found->second;
            QVERIFY(row >= 0);
            QCOMPARE(budget.Spent(row, month), sums.Expense - sums.Income);
            QCOMPARE(category.Amount.Cents, budget.Spent(row, month));
            QCOMPARE(budget.Available(row, month)->Carried, Carried(path));
            QCOMPARE(budget.Available(row, month)->Total(), Limit(path));
            QCOMPARE(category.Amount.Limit, Limit(path));
            QCOMPARE(category.Amount.Carried, Carried(path));
        }
    }
    const cChartData chart = cChartMaker(m_book.Data, m_format.Format, m_wish.Today)
                                 .Make({.Kind = eChartKind::Budget, .Range = modPeriod::Year(QDate(year, 1, 1), 0)});
    QCOMPARE(chart.Series.isEmpty(), m_limits.empty());
    if (!m_limits.empty()) {
        QCOMPARE(chart.Series.at(0).At(month - 1), figures.Expense.Amount.Cents);
        QCOMPARE(chart.Series.at(1).At(month - 1), figures.Expense.Amount.Limit - figures.Expense.Amount.Carried);
    }
    CompareNodes(figures);
}

// The tree has the figures of the report, and behind each of its lines lie the entries that make it.
void testReportAgreement::CompareNodes(const cReportFigures& figures)
{
    cReportTreeModel tree(m_format.Format);
    tree.SetFigures(figures);
    const auto compare = [&](const cReportNode& node, const cReportAmount& amount) {
        const QModelIndex line = tree.FindNode(node);
        QVERIFY(line.isValid());
        QCOMPARE(line.siblingAtColumn(cReportTreeModel::Amount).data().toString(), m_format.Format.Cents(amount.Cents));
        const cEntryItemList entries = m_source->EntriesOf(m_wish, node);
        qint64 sum = 0;
        for (const cEntryItem& entry : entries) {
            const bool isSameKind = (entry.EntryType == modWord::Einnahme) == (node.Kind == eReportKind::Income);
            sum += isSameKind ? entry.EntryValue : -entry.EntryValue;
        }
        QCOMPARE(sum, amount.Sum);
        QCOMPARE(entries.size(), amount.Entries);
    };
    for (const cReportSection* section : {&figures.Income, &figures.Expense}) {
        if (section->Kind == eReportKind::Expense || !modReport::HasLimits(m_wish.Type)) {
            compare({section->Kind}, section->Amount);
        }
        for (const cReportGroup& group : section->Groups) {
            compare({section->Kind, group.Name}, group.Amount);
            for (const cReportCategory& category : group.Categories) {
                compare({section->Kind, group.Name, category.Name}, category.Amount);
            }
        }
    }
}

// The sums below the list; with an account, the list counts transfers as well. Start balances are a sum of their own.
void testReportAgreement::CompareList()
{
    m_wish.Type = eReport::Sum;
    cEntryListModel list(m_format.Format);
    cEntryListModel::cContent content;
    content.Entries = m_source->Entries(m_wish);
    content.Account = m_wish.Account;
    content.Today = m_wish.Today;
    content.HiddenCategory = m_wish.ShowsStart ? QString() : modWord::Startguthaben;
    list.SetContent(std::move(content), {}, modWord::KeineGruppierung);
    qint64 in = 0;
    qint64 out = 0;
    qint64 start = 0; // what start balances that were entered as transfers change
    for (const cBooking& booking : m_bookings) {
        const bool isStart = booking.Category == modWord::Startguthaben;
        if (!IsInside(booking) || booking.Type != modWord::Umbuchung || m_wish.Account.isEmpty()
            || (isStart && !m_wish.ShowsStart)) {
            continue;
        }
        const qint64 comes = booking.Target == m_wish.Account ? booking.Cents : 0;
        const qint64 goes = booking.Account == m_wish.Account ? booking.Cents : 0;
        in += isStart ? 0 : comes;
        out += isStart ? 0 : goes;
        start += isStart ? comes - goes : 0;
    }
    const cReportFigures with = m_source->Figures(m_wish);
    cReportWish wish = m_wish;
    wish.ShowsStart = false;
    const cReportFigures without = m_source->Figures(wish);
    const auto net = [](const cReportFigures& figures) {
        return figures.Income.Amount.Cents - figures.Expense.Amount.Cents;
    };
    QCOMPARE(list.Sums().Total(), net(with) + in - out + start);
    QCOMPARE(list.Sums().Income, without.Income.Amount.Cents + in);
    QCOMPARE(list.Sums().Expense, without.Expense.Amount.Cents + out);
}

// However a chart divides the money of a period, it is the money of the report: in sum, and of each month that of a
// report on this month.
void testReportAgreement::CompareCharts()
{
    cChartMaker maker(m_book.Data, m_format.Format, m_wish.Today);
    const auto make = [&](eChartKind kind) {
        return maker.Make(
            {.Kind = kind, .Range = m_wish.Range, .Account = m_wish.Account, .ShowsFuture = m_wish.ShowsFuture});
    };
    const auto total = [](const cChartData& chart, int label) {
        return std::accumulate(
            chart.Series.begin(), chart.Series.end(), qint64(0),
            [label](qint64 sum, const cChartSeries& series) { return sum + series.At(label).value_or(0); });
    };
    cReportWish wish = m_wish;
    wish.ShowsStart = false; // a chart never counts them
    const cReportFigures figures = m_source->Figures(wish);
    QCOMPARE(total(make(eChartKind::ExpensePie), 0), figures.Expense.Amount.Cents);
    QCOMPARE(total(make(eChartKind::IncomePie), 0), figures.Income.Amount.Cents);
    CompareFlow(figures);
    const cChartData months = make(eChartKind::Months);
    const cChartData expense = make(eChartKind::ExpenseMonths);
    const cChartData income = make(eChartKind::IncomeMonths);
    for (int month = 0; month < months.Labels.size(); ++month) {
        const QDate first = QDate(m_wish.Range.Start.year(), m_wish.Range.Start.month(), 1).addMonths(month);
        wish.Range = {qMax(first, m_wish.Range.Start), qMin(first.addMonths(1).addDays(-1), m_wish.Range.End)};
        const cReportFigures& ofMonth = m_source->Figures(wish);
        QCOMPARE(months.Series.at(0).At(month), ofMonth.Income.Amount.Cents);
        QCOMPARE(months.Series.at(1).At(month), ofMonth.Expense.Amount.Cents);
        QCOMPARE(months.Series.at(2).At(month), ofMonth.Difference());
        QCOMPARE(total(income, month), ofMonth.Income.Amount.Cents);
        QCOMPARE(total(expense, month), ofMonth.Expense.Amount.Cents);
    }
}

// The parts that have entries behind them are the report, and both sides of the flow are equal.
void testReportAgreement::CompareFlow(const cReportFigures& figures)
{
    const cChartData flow = cChartMaker(m_book.Data, m_format.Format, m_wish.Today)
                                .Make({.Kind = eChartKind::Flow,
                                       .Range = m_wish.Range,
                                       .Account = m_wish.Account,
                                       .ShowsFuture = m_wish.ShowsFuture});
    qint64 difference = 0;
    for (const cChartSeries& series : flow.Series) {
        const bool isIncome = series.At(0).has_value();
        const cReportSection& section = isIncome ? figures.Income : figures.Expense;
        const cChartTarget target = series.TargetAt(isIncome ? 0 : 1);
        const auto group = std::find_if(section.Groups.begin(), section.Groups.end(), [&](const cReportGroup& each) {
            return target.Node && each.Name == target.Node->Group;
        });
        if (group != section.Groups.end()) {
            QCOMPARE(series.At(isIncome ? 0 : 1), group->Amount.Sum);
        } else if (series.Name != u"Übriges") {
            difference += series.At(1).value_or(0) - series.At(0).value_or(0);
        }
    }
    QCOMPARE(difference, figures.Income.Amount.Sum - figures.Expense.Amount.Sum);
    QCOMPARE(flow.Total(0), flow.Total(1));
}

// Each day of the calendar is what the bookings of that day come to, and so is the list behind it.
void testReportAgreement::CompareCalendar()
{
    cReportWish wish = m_wish;
    wish.Type = eReport::Sum;
    wish.ShowsStart = false;
    const cChartData chart = cChartMaker(m_book.Data, m_format.Format, m_wish.Today)
                                 .Make({.Kind = eChartKind::Calendar,
                                        .Range = m_wish.Range,
                                        .Account = m_wish.Account,
                                        .ShowsFuture = m_wish.ShowsFuture});
    for (int day = 0; day < chart.Days.size(); ++day) {
        qint64 plain = 0;
        for (const cBooking& booking : m_bookings) {
            const bool isMeant = m_wish.Account.isEmpty() || booking.Account == m_wish.Account;
            const bool counts = booking.Type == modWord::Ausgabe && booking.Category != modWord::Startguthaben;
            plain += counts && isMeant && booking.Day == chart.Days.at(day) && IsInside(booking) ? booking.Cents : 0;
        }
        QCOMPARE(chart.Series.first().At(day).value_or(0), plain);
        const cChartTarget target = chart.Series.first().TargetAt(day);
        if (target.Node) {
            wish.Range = target.Range;
            QCOMPARE(m_source->Figures(wish).Expense.Amount.Cents, plain);
        }
    }
}

// What is spent of a limit in the months of a period, and the limits of these months, are those of the report on the
// whole period.
void testReportAgreement::CompareLimitMonths()
{
    cReportWish wish = m_wish;
    wish.Type = eReport::Limit;
    wish.Spending = eReportSpending::Net;
    const cChartData chart = cChartMaker(m_book.Data, m_format.Format, m_wish.Today)
                                 .Make({.Kind = eChartKind::Limits,
                                        .Range = m_wish.Range,
                                        .Account = m_wish.Account,
                                        .ShowsFuture = m_wish.ShowsFuture});
    const auto whole = [](const cChartSeries& series) {
        return std::accumulate(series.Cents.begin(), series.Cents.end(), qint64(0),
                               [](qint64 sum, std::optional<qint64> cents) { return sum + cents.value_or(0); });
    };
    qint64 spent = 0;
    qint64 limit = 0;
    for (qsizetype i = 0; i + 1 < chart.Series.size(); i += 2) {
        spent += whole(chart.Series.at(i));
        limit += whole(chart.Series.at(i + 1));
    }
    const cReportFigures figures = m_source->Figures(wish);
    QCOMPARE(spent, figures.Expense.Amount.Cents);
    if (m_wish.ShowsFuture) { // the chart ends today, the report's limits with the period
        QCOMPARE(limit, figures.Expense.Amount.Limit);
    }
}

// Each day of the line of balances is where all bookings up to it lead, ahead as well as behind.
void testReportAgreement::CompareCourse()
{
    const cChartData chart = cChartMaker(m_book.Data, m_format.Format, m_wish.Today)
                                 .Make({.Kind = eChartKind::Balances,
                                        .Range = m_wish.Range,
                                        .Account = m_wish.Account,
                                        .ShowsFuture = m_wish.ShowsFuture,
                                        .ForecastMonths = 3 * Random(2)});
    for (int label = 0; label < chart.Labels.size(); ++label) {
        const QDate last = modDate::FromGerman(chart.Labels.at(label));
        qint64 plain = 0;
        for (const cBooking& booking : m_bookings) {
            const qint64 sign = booking.Type == modWord::Einnahme ? 1 : -1;
            const auto counts = [&](const QString& account) {
                const bool isMeant = m_wish.Account.isEmpty() || account == m_wish.Account;
                return booking.Day <= last && !account.isEmpty() && isMeant;
            };
            plain += counts(booking.Account) ? sign * booking.Cents : 0;
            plain += counts(booking.Target) ? booking.Cents : 0;
        }
        QCOMPARE(chart.Series.first().At(label), plain);
    }
    const cChartData shares = cChartMaker(m_book.Data, m_format.Format, m_wish.Today)
                                  .Make({.Kind = eChartKind::NetWorth,
                                         .Range = m_wish.Range,
                                         .Account = m_wish.Account,
                                         .ShowsFuture = m_wish.ShowsFuture});
    for (int label = 0; label < shares.Labels.size() && shares.Series.size() > 1; ++label) {
        qint64 sum = 0;
        for (const cChartSeries& share : shares.Series) {
            sum += share.Shape == cChartSeries::eShape::Natural ? share.At(label).value_or(0) : 0;
        }
        QCOMPARE(sum, shares.Series.last().At(label));
        QCOMPARE(sum, chart.Series.first().At(label));
    }
}

// What the period does to the balances of all accounts is what the report says that is left.
void testReportAgreement::CompareBalances()
{
    m_wish.Account.clear();
    m_wish.ShowsStart = true;
    cEntryQuery query;
    query.Start = m_wish.Range.Start;
    query.End = m_wish.ShowsFuture ? m_wish.Range.End : qMin(m_wish.Range.End, m_wish.Today);
    const QList<cAccountSum> sums = m_book.Data.GetSums(query, true);
    qint64 total = 0;
    for (const QString& account : accounts) {
        qint64 balance = 0;
        qint64 plain = 0;
        for (const cAccountSum& sum : sums) {
            balance += modBalance::Effect(sum.EntryType, sum.EntryAccount, sum.EntryAccountMove, sum.Cents, account);
        }
        for (const cBooking& booking : m_bookings) {
            if (!IsInside(booking)) {
                continue;
            }
            const qint64 sign = booking.Type == modWord::Einnahme ? 1 : -1;
            plain += booking.Account == account ? sign * booking.Cents : 0;
            plain += booking.Target == account ? booking.Cents : 0;
        }
        QCOMPARE(balance, plain);
        total += balance;
    }
    QCOMPARE(m_source->Figures(m_wish).Difference(), total);
}

TEST_CLASS(testReportAgreement, QCoreApplication)
#include "testReportAgreement.moc"
