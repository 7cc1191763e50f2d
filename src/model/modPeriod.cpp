#include "model/modPeriod.h"

#include "model/modWord.h"

#include <array>

namespace {

struct cNamedPeriod
{
    const char16_t* Name;
    modPeriod::cRange (*Build)(QDate, int);
    int Offset;
};

constexpr std::array<cNamedPeriod, 9> shiftedPeriods{{
    {u"Aktueller Monat", modPeriod::Month, 0},
    {u"Aktuelles Quartal", modPeriod::Quarter, 0},
    {u"Aktuelles Jahr", modPeriod::Year, 0},
    {u"Letzter Monat", modPeriod::Month, -1},
    {u"Letztes Quartal", modPeriod::Quarter, -1},
    {u"Letztes Jahr", modPeriod::Year, -1},
    {u"Nächster Monat", modPeriod::Month, 1},
    {u"Nächstes Quartal", modPeriod::Quarter, 1},
    {u"Nächstes Jahr", modPeriod::Year, 1},
}};

} // namespace

modPeriod::cRange modPeriod::Month(QDate today, int offset)
{
    const QDate first = QDate(today.year(), today.month(), 1).addMonths(offset);
    return {first, first.addMonths(1).addDays(-1)};
}

modPeriod::cRange modPeriod::Quarter(QDate today, int offset)
{
    const QDate first = QDate(today.year(), (today.month() - 1) / 3 * 3 + 1, 1).addMonths(3 * offset);
    return {first, first.addMonths(3).addDays(-1)};
}

modPeriod::cRange modPeriod::Year(QDate today, int offset)
{
    return {QDate(today.year() + offset, 1, 1), QDate(today.year() + offset, 12, 31)};
}

modPeriod::cRange modPeriod::Range(const QString& name, QDate today, const cRange& free)
{
    for (const cNamedPeriod& period : shiftedPeriods) {
        if (name == period.Name) {
            return period.Build(today, period.Offset);
        }
    }
    if (name == u"Aktueller Tag") {
        return {today, today};
    }
    if (name == u"Buchungen bis heute") {
        return {QDate(1001, 1, 1), today}; // far in the past on purpose, not the day of the first entry
    }
    return name == modWord::FreierZeitraum ? free : cRange{};
}

modPeriod::cRange modPeriod::Typed(const cRange& typed, const cRange& before)
{
    const bool isTurned = typed.End.isValid() && typed.Start > typed.End;
    const QDate day = typed.Start != before.Start ? typed.Start : typed.End;
    return isTurned ? cRange{day, day} : typed;
}

bool modPeriod::IsNext(const QString& name)
{
    return name == u"Nächster Monat" || name == u"Nächstes Quartal" || name == u"Nächstes Jahr";
}
