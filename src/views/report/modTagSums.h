#pragma once

#include "views/report/cReportFigures.h"

#include <QList>
#include <QString>

// What a report by tag says of each tag, income and expense in one line.
struct cTagSum
{
    QString Name;  // the tag's key, or modReport::NoTag
    QString Label; // as it is written
    qint64 Income = 0;
    qint64 Expense = 0;
    int Entries = 0;
};

namespace modTagSums {

// The tags of a report, those that moved most first; what has no tag comes last.
[[nodiscard]] QList<cTagSum> Of(const cReportFigures& figures);

} // namespace modTagSums
