#pragma once

#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "model/modBalance.h"
#include "model/modSettingKey.h"
#include "support/testBook.h"
#include "support/testFormat.h"
#include "views/budget/cBudgetEdit.h"
#include "views/chart/cChartMaker.h"
#include "views/list/cEntryListModel.h"
#include "views/report/cReportSource.h"
#include "views/report/cReportTreeModel.h"
#include "views/report/modReport.h"

#include <QDate>
#include <QObject>
#include <QStringList>
#include <QTest>

#include <cmath>
#include <map>
#include <numeric>
#include <random>

namespace modReportAgreement {

using namespace Qt::Literals::StringLiterals;

// One booking as plainly as it can be said: what the test knows of the book without asking the program.
struct cPlainBooking
{
    QDate Day;
    QString Type;
    QString Account;
    QString Target;
    QString Category;
    qint64 Cents = 0;

    // What it does to its account.
    [[nodiscard]] qint64 Effect() const { return Type == modWord::Einnahme ? Cents : -Cents; }
};

// The sums of one category path.
struct cPlain
{
    qint64 Income = 0;
    qint64 Expense = 0;
    int IncomeEntries = 0;
    int ExpenseEntries = 0;
};

inline const QStringList accounts{u"Girokonto"_s, u"Sparkonto"_s, u"Bargeld"_s};
inline const QStringList paths{u"Wohnung; Miete"_s, u"Wohnung"_s,      u"Wohnung; Strom"_s,
                               u"Ärger; Bußgeld"_s, u"Lohn; Gehalt"_s, u"Auto; Steuer (Kfz)"_s,
                               QString(),           u"Keine Angabe"_s, modWord::Startguthaben};

// The category as the plain sums know it: entries without one stand together.
inline QString KeyOf(const QString& path)
{
    return path.isEmpty() ? u"Keine Angabe"_s : path;
}

inline QString PathOf(const cReportGroup& group, const cReportCategory& category)
{
    return category.Name.isEmpty() ? group.Name : QString(group.Name + u"; "_s + category.Name);
}

} // namespace modReportAgreement

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
    [[nodiscard]] bool IsInside(const modReportAgreement::cPlainBooking& booking) const;
    [[nodiscard]] cEntryQuery Query() const;
    [[nodiscard]] std::map<QString, modReportAgreement::cPlain> PlainSums(bool withStart) const;
    void AddBudget(const QString& path);
    [[nodiscard]] qint64 Own(const QString& path, QDate month) const;
    [[nodiscard]] qint64 Carried(const QString& path) const;
    [[nodiscard]] qint64 Limit(const QString& path) const;
    void CompareSums(eReport type);
    void CompareSection(const cReportSection& section, const std::map<QString, modReportAgreement::cPlain>& plain);
    void CompareLimits();
    void CompareNodes(const cReportFigures& figures);
    void CompareBudget();
    void CompareList();
    [[nodiscard]] cChartData Chart(eChartKind kind, int forecastMonths = 0);
    void CompareCharts();
    void CompareFlow(const cReportFigures& figures);
    void CompareCalendar();
    void CompareLimitMonths();
    void CompareCourse();
    void CompareBalances();

    std::mt19937 m_random;
    cTestBook m_book;
    cTestFormat m_format;
    std::vector<modReportAgreement::cPlainBooking> m_bookings;
    std::map<QString, qint64> m_limits; // a month, by path
    std::map<QString, cBudget> m_budgets;
    cReportWish m_wish;
    std::unique_ptr<cReportSource> m_source;
};
