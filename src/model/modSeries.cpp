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
    const cEntryItemList occurrences = Occurrences(series, {from, {}});
    for (const cEntryItem& occurrence : occurrences.first(qMin<qsizetype>(count, occurrences.size()))) {
        days.append(occurrence.EntryDate);
    }
    return days;
}

QDate modSeries::Last(const cEntryItem& series)
{
    const cEntryItemList occurrences = Occurrences(series, {});
    return occurrences.isEmpty() ? QDate() : occurrences.last().EntryDate;
}

bool modSeries::IsEndless(const cEntryItem& series)
{
    const QDate last = Last(series);
    return modRecurrence::EffectiveEnd(series.EntryDateEnd) == modRecurrence::OpenEnd
        && (!last.isValid() || modRecurrence::Next(last, series.EntryInterval) > modRecurrence::OpenEnd);
}

int modSeries::Count(const cEntryItem& series)
{
    return IsEndless(series) ? 0 : static_cast<int>(Occurrences(series, {}).size());
}

QDate modSeries::EndAfter(cEntryItem series, int count)
{
    series.EntryDateEnd = modRecurrence::OpenEnd;
    const QList<QDate> days = Next(series, series.EntryDate, count);
    return days.isEmpty() || days.size() < count ? QDate() : days.constLast();
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

QString modSeries::LateComment()
{
    return cText::Tr("{0} noch nicht gebucht", {BankComment()});
}

QString modSeries::MissedComment()
{
    return cText::Tr("{0} nicht gebucht", {BankComment()});
}

// The stored ones are in the language in which the program ran then.
bool modSeries::IsBooked(const QString& comment)
{
    return comment == BankComment() || comment == u"Laut Kontoauszug";
}

bool modSeries::IsLate(const QString& comment)
{
    return comment == LateComment() || comment == u"Laut Kontoauszug noch nicht gebucht";
}

bool modSeries::IsFromBank(const QString& comment)
{
    return IsBooked(comment) || IsLate(comment) || comment == MissedComment()
        || comment == u"Laut Kontoauszug nicht gebucht";
}

bool modSeries::IsMoved(const cEntryItem& occurrence)
{
    return occurrence.PlannedDate.isValid() && !IsFromBank(occurrence.CorrectionComment);
}
