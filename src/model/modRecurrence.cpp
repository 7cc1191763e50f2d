#include "model/modRecurrence.h"

#include "base/cText.h"
#include "base/modDate.h"

#include <algorithm>
#include <array>

namespace {

enum class eUnit { None, Day, Month, Year };

struct cInterval
{
    const char16_t* Word;
    eUnit Unit;
    int Step; // in units; weeks are seven days
};

constexpr std::array<cInterval, 10> intervals{{
    {u"Einmalig", eUnit::None, 0},
    {u"Täglich", eUnit::Day, 1},
    {u"Wöchentlich", eUnit::Day, 7},
    {u"Alle 2 Wochen", eUnit::Day, 14},
    {u"Alle 4 Wochen", eUnit::Day, 28},
    {u"Monatlich", eUnit::Month, 1},
    {u"Alle 2 Monate", eUnit::Month, 2},
    {u"Alle 3 Monate", eUnit::Month, 3},
    {u"Alle 6 Monate", eUnit::Month, 6},
    {u"Jährlich", eUnit::Year, 1},
}};

constexpr int occurrenceLimit = 10'000;

const cInterval& FindInterval(const QString& word)
{
    const auto found = std::find_if(intervals.begin(), intervals.end(),
                                    [&](const cInterval& interval) { return word == interval.Word; });
    return found == intervals.end() ? intervals.front() : *found;
}

QDate AddStep(QDate date, const cInterval& interval)
{
    switch (interval.Unit) {
    case eUnit::Day: return date.addDays(interval.Step);
    case eUnit::Month: return date.addMonths(interval.Step);
    case eUnit::Year: return date.addYears(interval.Step);
    case eUnit::None: break;
    }
    return date;
}

modPeriod::cRange PeriodOf(QDate occurrence, const cInterval& interval)
{
    if (interval.Unit == eUnit::Month && interval.Step == 1) {
        return modPeriod::Month(occurrence, 0);
    }
    if (interval.Unit == eUnit::Year) {
        return modPeriod::Year(occurrence, 0);
    }
    if (interval.Unit == eUnit::None) {
        return {occurrence, occurrence};
    }
    return {occurrence, AddStep(occurrence, interval).addDays(-1)};
}

void Correct(cEntryItem& occurrence, QDate periodStart, const cEntryItemFixModList& fixMods)
{
    for (const cEntryItemFixMod& fixMod : fixMods) {
        if (fixMod.EntryStartDate == periodStart) {
            occurrence.EntryValue = fixMod.EntryValue;
            occurrence.IsCorrected = true;
            occurrence.CorrectionComment = fixMod.EntryComment;
        }
    }
}

} // namespace

bool modRecurrence::IsRecurring(const QString& interval)
{
    return FindInterval(interval).Unit != eUnit::None;
}

int modRecurrence::TimesAYear(const QString& interval)
{
    const cInterval& found = FindInterval(interval);
    switch (found.Unit) {
    case eUnit::Day: return 365 / found.Step;
    case eUnit::Month: return 12 / found.Step;
    case eUnit::Year: return 1;
    case eUnit::None: break;
    }
    return 0;
}

QDate modRecurrence::Next(QDate date, const QString& interval)
{
    return AddStep(date, FindInterval(interval));
}

QDate modRecurrence::EffectiveEnd(QDate end)
{
    return !end.isValid() || end.year() < 1940 ? OpenEnd : end;
}

modPeriod::cRange modRecurrence::OccurrencePeriod(QDate occurrence, const QString& interval)
{
    return PeriodOf(occurrence, FindInterval(interval));
}

void modRecurrence::Expand(const cEntryItem& entry, const modPeriod::cRange& period,
                           const cEntryItemFixModList& fixMods, cEntryItemList& occurrences)
{
    const cInterval& interval = FindInterval(entry.EntryInterval);
    if (interval.Unit == eUnit::None) {
        occurrences.append(entry);
        return;
    }
    QDate end = EffectiveEnd(entry.EntryDateEnd);
    if (period.End.isValid()) {
        end = std::min(end, period.End);
    }
    QDate day = entry.EntryDate;
    for (int index = 0; day.isValid() && day <= end && index <= occurrenceLimit; ++index) {
        if (!period.Start.isValid() || day >= period.Start) {
            cEntryItem& occurrence = occurrences.emplace_back(entry);
            occurrence.EntryDate = day;
            if (!fixMods.isEmpty()) {
                Correct(occurrence, PeriodOf(day, interval).Start, fixMods);
            }
        }
        day = AddStep(day, interval);
    }
}

QString modRecurrence::CorrectionLabel(const cEntryItemFixMod& fixMod)
{
    return cText::Tr("Manuelle Korrektur vom {0}", {modDate::ToGerman(fixMod.EntryStartDate)});
}
