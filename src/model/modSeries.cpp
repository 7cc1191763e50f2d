#include "model/modSeries.h"

#include "base/cText.h"
#include "model/modPeriod.h"
#include "model/modRecurrence.h"
#include "model/modWord.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// A period never reaches further than a year from its occurrence.
modPeriod::cRange Around(QDate day)
{
    return {day.addDays(-366), day.addDays(366)};
}

cEntryItemList Occurrences(const cEntryItem& series, const modPeriod::cRange& range)
{
    cEntryItemList occurrences;
    if (modRecurrence::IsRecurring(series.EntryInterval)) {
        modRecurrence::Expand(series, range, {}, occurrences);
    }
    return occurrences;
}

} // namespace

bool modSeries::HasOtherPeriod(const cEntryItem& a, const cEntryItem& b)
{
    return a.EntryDate != b.EntryDate || a.EntryInterval != b.EntryInterval
        || modRecurrence::EffectiveEnd(a.EntryDateEnd) != modRecurrence::EffectiveEnd(b.EntryDateEnd);
}

std::optional<cEntryItem> modSeries::OccurrenceAt(const cEntryItem& series, QDate day)
{
    const cEntryItemList occurrences = Occurrences(series, Around(day));
    for (const cEntryItem& occurrence : occurrences) {
        const modPeriod::cRange period =
            modRecurrence::OccurrencePeriod(occurrence.EntryDate, occurrence.EntryInterval);
        if (period.Start <= day && day <= period.End) {
            return occurrence;
        }
    }
    return std::nullopt;
}

QList<QDate> modSeries::Next(const cEntryItem& series, QDate from, int count)
{
    QList<QDate> days;
    if (!modRecurrence::IsRecurring(series.EntryInterval)) {
        return days;
    }
    const QDate end = modRecurrence::EffectiveEnd(series.EntryDateEnd);
    QDate day = series.EntryDate;
    while (day.isValid() && day <= end && days.size() < count) {
        if (day >= from) {
            days.append(day);
        }
        day = modRecurrence::Next(day, series.EntryInterval);
    }
    return days;
}

QDate modSeries::Last(const cEntryItem& series)
{
    const cEntryItemList occurrences = Occurrences(series, {});
    return occurrences.isEmpty() ? QDate() : occurrences.last().EntryDate;
}

int modSeries::Count(const cEntryItem& series)
{
    if (modRecurrence::EffectiveEnd(series.EntryDateEnd) == modRecurrence::OpenEnd) {
        return 0;
    }
    return static_cast<int>(Occurrences(series, {}).size());
}

bool modSeries::HasPeriod(const cEntryItem& series, const cEntryItemFixMod& fixMod)
{
    const std::optional<cEntryItem> occurrence = OccurrenceAt(series, fixMod.EntryStartDate);
    if (!occurrence) {
        return false;
    }
    const cEntryItemFixMod own = CorrectionFor(*occurrence);
    return own.EntryStartDate == fixMod.EntryStartDate
        && (!fixMod.EntryEndDate.isValid() || own.EntryEndDate == fixMod.EntryEndDate);
}

cEntryItemFixMod modSeries::CorrectionFor(const cEntryItem& occurrence)
{
    const modPeriod::cRange period = modRecurrence::OccurrencePeriod(occurrence.Planned(), occurrence.EntryInterval);
    cEntryItemFixMod fixMod;
    fixMod.EntryRelation = occurrence.ID;
    fixMod.EntryModType = modWord::Betrag;
    fixMod.EntryStartDate = period.Start;
    fixMod.EntryEndDate = period.End;
    return fixMod;
}

QString modSeries::BankComment()
{
    return cText::Tr("Laut Kontoauszug");
}

bool modSeries::IsFromBank(const QString& comment)
{
    // The stored one is in the language in which the program ran then.
    return comment.startsWith(u"Laut Kontoauszug"_s) || comment.startsWith(BankComment());
}
