#include "views/report/modPeriodText.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "model/modWord.h"
#include "views/report/modReport.h"

namespace {

QString Days(const modPeriod::cRange& range)
{
    const QString end = modDate::ToText(range.End);
    if (!modReport::HasStart(range) || range.Start == range.End) {
        return end;
    }
    const QString start = modDate::ToText(range.Start);
    return end.isEmpty() ? start : cText::Tr("{0} bis {1}", {start, end});
}

} // namespace

QString modPeriodText::Named(const QString& name, const modPeriod::cRange& range)
{
    const QString shown = modWord::Periods().ToShown(name);
    const QString days = Days(range);
    return days.isEmpty() ? cText::Tr("Zeitraum: {0}", {shown}) : cText::Tr("Zeitraum: {0} ({1})", {shown, days});
}
