#include "import/propose/modOccurrence.h"

#include "model/modRecurrence.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int farthestDays = 15; // banks book a standing order some days early or late, but never half a month

} // namespace

int modOccurrence::Reach(const QString& interval)
{
    const QDate start(2001, 1, 1);
    const auto step = static_cast<int>(start.daysTo(modRecurrence::Next(start, interval)));
    return std::min(farthestDays, step / 2);
}

std::optional<cEntryItem> modOccurrence::Nearest(const cEntryItem& series, QDate day,
                                                 const cEntryItemFixModList& fixMods)
{
    const int reach = Reach(series.EntryInterval);
    cEntryItemList occurrences;
    modRecurrence::Expand(series, {day.addDays(-reach), day.addDays(reach)}, fixMods, occurrences);
    const auto nearest =
        std::min_element(occurrences.begin(), occurrences.end(), [&](const auto& left, const auto& right) {
            return std::abs(left.EntryDate.daysTo(day)) < std::abs(right.EntryDate.daysTo(day));
        });
    return nearest == occurrences.end() ? std::nullopt : std::optional(*nearest);
}
