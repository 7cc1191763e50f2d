#include "reportAgreement.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;
using namespace modReportAgreement;

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

bool testReportAgreement::IsInside(const cPlainBooking& booking) const
{
    const QDate end = m_wish.ShowsFuture ? m_wish.Range.End : qMin(m_wish.Range.End, m_wish.Today);
    return booking.Day >= m_wish.Range.Start && booking.Day <= end;
}

cEntryQuery testReportAgreement::Query() const
{
    cEntryQuery query;
    query.Start = m_wish.Range.Start;
    query.End = m_wish.ShowsFuture ? m_wish.Range.End : qMin(m_wish.Range.End, m_wish.Today);
    query.Account = m_wish.Account;
    return query;
}

std::map<QString, cPlain> testReportAgreement::PlainSums(bool withStart) const
{
    std::map<QString, cPlain> sums;
    for (const cPlainBooking& booking : m_bookings) {
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
    for (const cPlainBooking& booking : m_bookings) {
        if (from.isValid() && booking.Day >= from && booking.Day < first && KeyOf(booking.Category) == path
            && booking.Type != modWord::Umbuchung) {
            left += booking.Effect();
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
    const cEntryItemList all = m_book.Data.GetEntries(Query());
    const auto compare = [&](const cReportNode& node, const cReportAmount& amount) {
        const QModelIndex line = tree.FindNode(node);
        QVERIFY(line.isValid());
        QCOMPARE(line.siblingAtColumn(cReportTreeModel::Amount).data().toString(), m_format.Format.Cents(amount.Cents));
        const cEntryItemList entries = modReport::EntriesOf(all, m_wish, node, m_source->Limits(m_wish));
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
    content.Entries = m_book.Data.GetEntries(Query());
    content.Account = m_wish.Account;
    content.Today = m_wish.Today;
    content.HiddenCategory = m_wish.ShowsStart ? QString() : modWord::Startguthaben;
    list.SetContent(std::move(content), {}, modWord::KeineGruppierung);
    qint64 in = 0;
    qint64 out = 0;
    qint64 start = 0; // what start balances that were entered as transfers change
    for (const cPlainBooking& booking : m_bookings) {
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

TEST_CLASS(testReportAgreement, QCoreApplication)
