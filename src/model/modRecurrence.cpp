#include "model/modRecurrence.h"

#include "base/cText.h"
#include "base/modDate.h"

#include <QHash>

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

// The corrections of one series by the start of their period. A book that the bank fills has one for nearly every
// occurrence, so they are looked up.
class cCorrections
{
public:
    cCorrections(const cEntryItemFixModList& fixMods, const cInterval& interval) : m_interval(interval)
    {
        m_byStart.reserve(fixMods.size());
        for (const cEntryItemFixMod& fixMod : fixMods) {
            m_byStart.insert(fixMod.EntryStartDate, &fixMod);
            if (fixMod.EntryDay.isValid() && fixMod.EntryStartDate.isValid()) {
                const QDate end = PeriodOf(fixMod.EntryStartDate, interval).End;
                m_lastMoved = m_lastMoved.isValid() ? std::max(m_lastMoved, end) : end;
            }
        }
    }

    // The last day on which the series may have an occurrence that moves; invalid when none does.
    [[nodiscard]] QDate LastMoved() const { return m_lastMoved; }

    // The correction of the occurrence planned for that day; none is nullptr.
    [[nodiscard]] const cEntryItemFixMod* Find(QDate planned) const
    {
        return m_byStart.value(PeriodOf(planned, m_interval).Start);
    }

private:
    const cInterval& m_interval;
    QHash<QDate, const cEntryItemFixMod*> m_byStart;
    QDate m_lastMoved;
};

void Correct(cEntryItem& occurrence, const cEntryItemFixMod& fixMod)
{
    const bool isMoved = fixMod.EntryDay.isValid() && fixMod.EntryDay != occurrence.EntryDate;
    occurrence.IsCorrected = !fixMod.EntryDay.isValid() || fixMod.EntryValue != occurrence.EntryValue;
    occurrence.EntryValue = fixMod.EntryValue;
    occurrence.CorrectionComment = fixMod.EntryComment;
    if (isMoved) {
        occurrence.PlannedDate = occurrence.EntryDate;
        occurrence.EntryDate = fixMod.EntryDay;
    }
}

// Of the occurrences that the series plans up to `end` those that lie within the period once they are corrected.
void ExpandCorrected(const cEntryItem& entry, const modPeriod::cRange& period, QDate end, const cInterval& interval,
                     const cCorrections& corrections, cEntryItemList& occurrences)
{
    const qsizetype first = occurrences.size();
    QDate planned = entry.EntryDate;
    for (int index = 0; planned.isValid() && planned <= end && index <= occurrenceLimit; ++index) {
        const cEntryItemFixMod* fixMod = corrections.Find(planned);
        const QDate day = fixMod != nullptr && fixMod->EntryDay.isValid() ? fixMod->EntryDay : planned;
        const bool isBefore = period.Start.isValid() && day < period.Start;
        if (!isBefore && (!period.End.isValid() || day <= period.End)) {
            cEntryItem& occurrence = occurrences.emplace_back(entry);
            occurrence.EntryDate = planned;
            if (fixMod != nullptr) {
                Correct(occurrence, *fixMod);
            }
        }
        planned = AddStep(planned, interval);
    }
    std::stable_sort(occurrences.begin() + first, occurrences.end(),
                     [](const cEntryItem& a, const cEntryItem& b) { return a.EntryDate < b.EntryDate; });
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

QDate modRecurrence::CutOffAt(const cEntryItem& entry)
{
    const cInterval& interval = FindInterval(entry.EntryInterval);
    const QDate end = EffectiveEnd(entry.EntryDateEnd);
    QDate day = entry.EntryDate;
    for (int index = 0; day.isValid() && day <= end && index < occurrenceLimit; ++index) {
        day = AddStep(day, interval);
    }
    return interval.Unit != eUnit::None && day.isValid() && AddStep(day, interval) <= end ? day : QDate();
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
    const QDate lastPlanned = end;
    if (period.End.isValid()) {
        end = std::min(end, period.End);
    }
    if (!fixMods.isEmpty()) {
        const cCorrections corrections(fixMods, interval);
        // What lies behind the period may have moved into it.
        const QDate moved = corrections.LastMoved();
        const QDate last = moved.isValid() ? std::max(end, std::min(moved, lastPlanned)) : end;
        ExpandCorrected(entry, period, last, interval, corrections, occurrences);
        return;
    }
    QDate day = entry.EntryDate;
    for (int index = 0; day.isValid() && day <= end && index <= occurrenceLimit; ++index) {
        if (!period.Start.isValid() || day >= period.Start) {
            occurrences.emplace_back(entry).EntryDate = day;
        }
        day = AddStep(day, interval);
    }
}

QString modRecurrence::CorrectionLabel(const cEntryItemFixMod& fixMod)
{
    return cText::Tr("Manuelle Korrektur vom {0}", {modDate::ToText(fixMod.EntryStartDate)});
}
