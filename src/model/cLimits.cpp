#include "model/cLimits.h"

#include <algorithm>

void cLimits::Add(const cTemplateItem& item, const cBudget& budget)
{
    if (!modBudget::IsLimitable(item)) {
        return;
    }
    const QString path = modBudget::KeyOf(modTemplate::Path(item));
    const auto known = m_lines.constFind(path);
    if (known == m_lines.constEnd() || modTemplate::LimitCents(known->Item, 1) == 0) {
        m_lines.insert(path, {item, budget});
    }
}

QDate cLimits::CarriesFrom() const
{
    QDate earliest;
    for (const cLine& line : m_lines) {
        const QDate from = line.Budget.CarriesFrom;
        earliest = from.isValid() && (!earliest.isValid() || from < earliest) ? from : earliest;
    }
    return earliest;
}

bool cLimits::HasLimit(const cLine& line, QDate first, QDate end)
{
    const QDate from = line.Budget.CarriesFrom;
    const QDate since = from.isValid() ? std::min(from, first) : first;
    const auto own = line.Budget.Months.lowerBound(since);
    return modTemplate::LimitCents(line.Item, modBudget::MonthsOfYear) > 0
        || (own != line.Budget.Months.end() && own.key() < end);
}

QDate cLimits::CarriesFrom(const QString& path) const
{
    const auto line = m_lines.constFind(path);
    const QDate from = line == m_lines.constEnd() ? QDate() : line->Budget.CarriesFrom;
    if (!from.isValid() || modTemplate::LimitCents(line->Item, modBudget::MonthsOfYear) > 0) {
        return from;
    }
    const auto own = line->Budget.Months.lowerBound(from);
    return own == line->Budget.Months.end() ? QDate() : own.key();
}

qint64 cLimits::Carried(const QString& path, const cLine& line, QDate month) const
{
    const QDate from = CarriesFrom(path);
    if (!from.isValid() || from >= month) {
        return 0;
    }
    const int months = (month.year() - from.year()) * modBudget::MonthsOfYear + month.month() - from.month();
    qint64 left = modBudget::OwnCents(line.Item, line.Budget, from, months);
    const QMap<QDate, qint64> spent = m_spent.value(path);
    for (auto one = spent.lowerBound(from); one != spent.end() && one.key() < month; ++one) {
        left -= *one;
    }
    return left;
}

std::optional<cLimit> cLimits::Of(const QString& path, QDate first, int months) const
{
    const QDate month = modBudget::MonthOf(first);
    const auto line = m_lines.constFind(path);
    if (line == m_lines.constEnd() || !HasLimit(*line, month, month.addMonths(months))) {
        return std::nullopt;
    }
    return cLimit{modBudget::OwnCents(line->Item, line->Budget, month, months), Carried(path, *line, month)};
}
