#include "import/propose/modOccurrence.h"

#include "model/modPeriod.h"
#include "model/modRecurrence.h"
#include "model/modSeries.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace {

constexpr int farthestDays = 15; // banks book a standing order some days early or late, but never half a month

// The days in which the occurrences lie that may be near: one that is planned near may have moved away.
modPeriod::cRange Around(const cEntryItem& series, QDate day, int reach, const cEntryItemFixModList& fixMods)
{
    modPeriod::cRange range{day.addDays(-reach), day.addDays(reach)};
    for (const cEntryItemFixMod& fixMod : fixMods) {
        const QDate end = modRecurrence::OccurrencePeriod(fixMod.EntryStartDate, series.EntryInterval).End;
        if (fixMod.EntryDay.isValid() && end >= day.addDays(-reach) && fixMod.EntryStartDate <= day.addDays(reach)) {
            range = {std::min(range.Start, fixMod.EntryDay), std::max(range.End, fixMod.EntryDay)};
        }
    }
    return range;
}

} // namespace

int modOccurrence::Reach(const QString& interval)
{
    const QDate start(2001, 1, 1);
    const auto step = static_cast<int>(start.daysTo(modRecurrence::Next(start, interval)));
    return std::min(farthestDays, step / 2);
}

int modOccurrence::Days(const cEntryItem& occurrence, QDate day)
{
    const auto own = static_cast<int>(occurrence.EntryDate.daysTo(day));
    const auto planned = static_cast<int>(occurrence.Planned().daysTo(day));
    return std::abs(planned) < std::abs(own) ? planned : own;
}

std::optional<cEntryItem> modOccurrence::Nearest(const cEntryItem& series, QDate day,
                                                 const cEntryItemFixModList& fixMods)
{
    const int reach = Reach(series.EntryInterval);
    cEntryItemList occurrences;
    modRecurrence::Expand(series, Around(series, day, reach, fixMods), fixMods, occurrences);
    const auto nearest =
        std::min_element(occurrences.begin(), occurrences.end(), [&](const auto& left, const auto& right) {
            // Of two on one day the one that is planned for it, not the one that was put off.
            return std::pair(std::abs(Days(left, day)), left.PlannedDate.isValid())
                < std::pair(std::abs(Days(right, day)), right.PlannedDate.isValid());
        });
    const bool isNear = nearest != occurrences.end() && std::abs(Days(*nearest, day)) <= reach;
    return isNear ? std::optional(*nearest) : std::nullopt;
}

QDate modOccurrence::DayBy(const cEntryItem& entry, const cImportEntry& row)
{
    const bool isCredit = entry.IsTransfer() && row.ImportValue > 0;
    return isCredit || !row.ImportDate.isValid() ? entry.EntryDate : row.ImportDate;
}

std::optional<cEntryItemFixMod> modOccurrence::CorrectionTo(const cEntryItem& occurrence, const cImportEntry& row,
                                                            eCorrect what)
{
    const QDate day = DayBy(occurrence, row);
    const qint64 cents = what == eCorrect::Day ? occurrence.EntryValue : std::abs(row.ImportValue);
    if (day == occurrence.EntryDate && cents == occurrence.EntryValue) {
        return std::nullopt;
    }
    cEntryItemFixMod fixMod = modSeries::CorrectionFor(occurrence);
    fixMod.EntryValue = cents;
    fixMod.EntryDay = day;
    const bool isOwn = occurrence.HasCorrection() && !modSeries::IsFromBank(occurrence.CorrectionComment);
    const bool isAdding = isOwn && !ReplacesOwn(occurrence, fixMod);
    fixMod.EntryComment = isAdding ? occurrence.CorrectionComment : modSeries::BankComment();
    return fixMod;
}

bool modOccurrence::ReplacesOwn(const cEntryItem& occurrence, const cEntryItemFixMod& fixMod)
{
    if (modSeries::IsFromBank(occurrence.CorrectionComment)) {
        return false;
    }
    return (occurrence.IsCorrected && fixMod.EntryValue != occurrence.EntryValue)
        || (occurrence.PlannedDate.isValid() && fixMod.EntryDay != occurrence.EntryDate);
}

qint64 modOccurrence::Usual(const cEntryItem& series, const cEntryItem& occurrence)
{
    const QString& comment = occurrence.CorrectionComment;
    const bool isLeftOut =
        occurrence.EntryValue == 0 && modSeries::IsFromBank(comment) && !modSeries::IsBooked(comment);
    return isLeftOut ? series.EntryValue : occurrence.EntryValue;
}
