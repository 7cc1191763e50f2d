#include "views/sheet/modDayJump.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "base/modDayText.h"
#include "views/list/cEntryListModel.h"

modDayJump::cFound modDayJump::Find(const cEntryListModel& list, const QString& typed, QDate today,
                                    const modPeriod::cRange& range)
{
    const QDate day = modDayText::Read(typed, today);
    if (!day.isValid()) {
        return {{}, modDayText::Fault(typed, today), false};
    }
    const QModelIndex row = list.IndexNearest(day);
    if (!row.isValid()) {
        return {{}, cText::Tr("Die Liste zeigt keine Einträge.")};
    }
    const QDate shown = list.EntryAt(row)->EntryDate;
    if (shown == day) {
        return {row, {}};
    }
    const bool isOutside = (range.Start.isValid() && day < range.Start) || (range.End.isValid() && day > range.End);
    return {row,
            isOutside ? cText::Tr("Der {0} liegt außerhalb des gezeigten Zeitraums. Am nächsten liegt der {1}.",
                                  {modDate::ToText(day), modDate::ToText(shown)})
                      : cText::Tr("Am {0} gibt es hier keinen Eintrag. Am nächsten liegt der {1}.",
                                  {modDate::ToText(day), modDate::ToText(shown)})};
}
