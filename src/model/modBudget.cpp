#include "model/modBudget.h"

#include "base/modAmount.h"
#include "model/modFlags.h"
#include "model/modWord.h"

#include <QStringList>

#include <algorithm>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString carryKey = u"uebertrag"_s;
const QString monthForm = u"yyyy-MM"_s;

// The year that a part of the text is about; 0 for none.
int YearOf(const QString& key)
{
    constexpr int digits = 4;
    return key.size() == digits ? key.toInt() : 0;
}

QString YearText(const cBudget& budget, int year)
{
    QStringList texts;
    for (int month = 1; month <= modBudget::MonthsOfYear; ++month) {
        const auto own = budget.Months.constFind(modBudget::MonthOf(year, month));
        texts.append(own == budget.Months.constEnd() ? QString() : modAmount::CentsToText(*own));
    }
    while (!texts.isEmpty() && texts.constLast().isEmpty()) {
        texts.removeLast();
    }
    return texts.join(u',');
}

// The years of which a stored text or a budget knows something.
QList<int> Years(const cBudget& budget, const QString& stored)
{
    QList<int> years;
    for (auto month = budget.Months.begin(); month != budget.Months.end(); ++month) {
        years.append(month.key().year());
    }
    const QStringList parts = stored.split(u';', Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        years.append(YearOf(part.section(u'=', 0, 0)));
    }
    return years;
}

// What comes together from January of the first year up to, and without, the month of this number, counted from 0.
qint64 PlainUpTo(const cTemplateItem& item, qint64 months)
{
    return months / modBudget::MonthsOfYear * modTemplate::LimitCents(item, modBudget::MonthsOfYear)
        + modTemplate::LimitCents(item, months % modBudget::MonthsOfYear);
}

} // namespace

cBudget modBudget::Read(const QString& text)
{
    cBudget budget;
    budget.CarriesFrom = QDate::fromString(modFlags::Get(text, carryKey), monthForm);
    const QStringList parts = text.split(u';', Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        const int year = YearOf(part.section(u'=', 0, 0));
        const QStringList values = part.section(u'=', 1).split(u',');
        for (int month = 1; year > 0 && month <= std::min<qsizetype>(values.size(), MonthsOfYear); ++month) {
            const std::optional<qint64> cents = modAmount::CentsFromText(values.at(month - 1));
            if (cents && *cents >= 0) {
                budget.Months.insert(MonthOf(year, month), *cents);
            }
        }
    }
    return budget;
}

QString modBudget::ToText(const cBudget& budget, const QString& stored)
{
    QString text = modFlags::Set(stored, carryKey,
                                 budget.CarriesFrom.isValid() ? budget.CarriesFrom.toString(monthForm) : QString());
    const QList<int> years = Years(budget, stored);
    for (const int year : years) {
        if (year > 0) {
            text = modFlags::Set(text, QString::number(year), YearText(budget, year));
        }
    }
    return text;
}

bool modBudget::IsLimitable(const cTemplateItem& item)
{
    return !modTemplate::IsAccount(item) && item.EntryType != modWord::Einnahme
        && modTemplate::Path(item) != modWord::Startguthaben;
}

qint64 modBudget::PlainCents(const cTemplateItem& item, QDate first, int months)
{
    const qint64 before = first.month() - 1;
    return PlainUpTo(item, before + months) - PlainUpTo(item, before);
}

qint64 modBudget::OwnCents(const cTemplateItem& item, const cBudget& budget, QDate first, int months)
{
    const QDate end = first.addMonths(months);
    qint64 cents = PlainCents(item, first, months);
    for (auto own = budget.Months.lowerBound(first); own != budget.Months.end() && own.key() < end; ++own) {
        cents += *own - PlainCents(item, own.key(), 1);
    }
    return cents;
}

QList<qint64> modBudget::Spread(qint64 cents)
{
    QList<qint64> parts;
    for (int month = 0; month < MonthsOfYear; ++month) {
        parts.append(cents * (month + 1) / MonthsOfYear - cents * month / MonthsOfYear);
    }
    return parts;
}

bool modBudget::Counts(const QString& type, const QString& category)
{
    return type != modWord::Umbuchung && category != modWord::Startguthaben;
}

bool modBudget::Counts(const cEntryItem& entry)
{
    return Counts(entry.EntryType, entry.EntryCategory);
}

qint64 modBudget::SpentCents(const cEntryItem& entry)
{
    return entry.EntryType == modWord::Einnahme ? -entry.EntryValue : entry.EntryValue;
}

cSpent modBudget::Spent(const cEntryItemList& entries)
{
    cSpent spent;
    for (const cEntryItem& entry : entries) {
        if (Counts(entry)) {
            spent[KeyOf(entry.EntryCategory)][MonthOf(entry.EntryDate)] += SpentCents(entry);
        }
    }
    return spent;
}

QString modBudget::KeyOf(const QString& path)
{
    return path.isEmpty() ? modTemplate::NoPath
                          : modTemplate::Join(modTemplate::MainOf(path), modTemplate::SubOf(path));
}
