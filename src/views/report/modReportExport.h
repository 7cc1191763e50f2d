#pragma once

#include "views/common/modFileWrite.h"
#include "views/report/cReportFigures.h"

#include <QByteArray>

class cAmountFormat;

// The figures of a report as tables for other programs: one line for each category, and none of sums that would be
// added up with the rest.
namespace modReportExport {

[[nodiscard]] QByteArray Csv(const cReportFigures& figures);

[[nodiscard]] modFileWrite::cContent Xlsx(const cReportFigures& figures, const cAmountFormat& format);

} // namespace modReportExport
