#include "views/chart/modChart.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "base/modDayNames.h"

#include <QLocale>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

struct cKindName
{
    eChartKind Kind = eChartKind{};
    const char16_t* Name = nullptr;
    std::optional<eReportKind> Section;
};

constexpr std::array<cKindName, 12> kinds{{
    {eChartKind::ExpensePie, u"ausgaben", eReportKind::Expense},
    {eChartKind::IncomePie, u"einnahmen", eReportKind::Income},
    {eChartKind::Months, u"monate", std::nullopt},
    {eChartKind::ExpenseMonths, u"ausgaben-monate", eReportKind::Expense},
    {eChartKind::IncomeMonths, u"einnahmen-monate", eReportKind::Income},
    {eChartKind::Balances, u"verlauf", std::nullopt},
    {eChartKind::Budget, u"budget", std::nullopt},
    {eChartKind::Flow, u"geldfluss", std::nullopt},
    {eChartKind::Calendar, u"kalender", eReportKind::Expense},
    {eChartKind::NetWorth, u"vermoegen", std::nullopt},
    {eChartKind::Limits, u"limits", eReportKind::Expense},
    {eChartKind::Tags, u"schlagwort", std::nullopt},
}};

bool IsFirstOf(QDate day, int monthsOfUnit)
{
    return day.day() == 1 && (day.month() - 1) % monthsOfUnit == 0;
}

// True when the range is exactly one unit of so many months.
bool IsWhole(const modPeriod::cRange& range, int months)
{
    return IsFirstOf(range.Start, months) && range.End == range.Start.addMonths(months).addDays(-1);
}

bool IsWholeYears(const modPeriod::cRange& range)
{
    return IsFirstOf(range.Start, 12) && range.End == QDate(range.End.year(), 12, 31);
}

QDate YearEarlier(QDate day)
{
    const bool isLast = day.isValid() && day.day() == day.daysInMonth();
    const QDate earlier = day.addYears(-1);
    return isLast ? QDate(earlier.year(), earlier.month(), earlier.daysInMonth()) : earlier;
}

} // namespace

modPeriod::cRange cChartWish::YearBefore(const modPeriod::cRange& range)
{
    return {YearEarlier(range.Start), YearEarlier(range.End)};
}

cReportWish modChart::ReportWish(const cChartWish& wish, const modPeriod::cRange& range, QDate today)
{
    cReportWish report;
    report.Type = wish.Kind == eChartKind::Limits ? eReport::Limit
        : wish.Kind == eChartKind::Tags           ? eReport::Tag
                                                  : eReport::Sum;
    report.Account = wish.Account;
    report.Range = range;
    report.ShowsFuture = wish.ShowsFuture;
    report.ShowsStart = false; // they are no income of the period; balances hold them
    report.Order = eReportOrder::ByAmount;
    report.Today = today;
    return report;
}

std::optional<eReportKind> modChart::KindOf(eChartKind kind)
{
    const auto found =
        std::find_if(kinds.begin(), kinds.end(), [kind](const cKindName& each) { return each.Kind == kind; });
    return found->Section;
}

QString modChart::RangeText(const modPeriod::cRange& range)
{
    if (!range.Start.isValid() || !range.End.isValid()) {
        return range.Start.isValid() ? cText::Tr("ab {0}", {modDate::ToText(range.Start)})
            : range.End.isValid()    ? cText::Tr("bis {0}", {modDate::ToText(range.End)})
                                     : cText::Tr("alle Buchungen");
    }
    const QString year = QString::number(range.Start.year());
    if (IsWhole(range, 1)) {
        return modDayNames::MonthText(range.Start);
    }
    if (IsWhole(range, 3)) {
        return cText::Tr("{0}. Quartal {1}", {QString::number((range.Start.month() + 2) / 3), year});
    }
    if (IsWholeYears(range)) {
        return IsWhole(range, 12) ? year : u"%1–%2"_s.arg(year, QString::number(range.End.year()));
    }
    return range.Start == range.End ? modDate::ToText(range.Start)
                                    : u"%1–%2"_s.arg(modDate::ToText(range.Start), modDate::ToText(range.End));
}

QString modChart::ShortMonthText(QDate month)
{
    return modDayNames::Language().standaloneMonthName(month.month(), QLocale::ShortFormat).remove(u'.')
        + month.toString(u" yy"_s);
}

QString modChart::MonthName(int month)
{
    return modDayNames::Language().standaloneMonthName(month);
}

QString modChart::AccountText(const QString& account)
{
    return account.isEmpty() ? cText::Tr("alle Konten") : cText::Tr("Konto '{0}'", {account});
}

std::optional<eChartKind> modChart::KindByName(const QString& name)
{
    const auto found = std::find_if(kinds.begin(), kinds.end(), [&](const cKindName& each) {
        return name.compare(QStringView(each.Name), Qt::CaseInsensitive) == 0;
    });
    return found == kinds.end() ? std::nullopt : std::optional(found->Kind);
}

QStringList modChart::KindNames()
{
    QStringList names;
    for (const cKindName& kind : kinds) {
        names.append(QString::fromUtf16(kind.Name));
    }
    return names;
}
