#pragma once

#include "views/report/cReportFigures.h"

#include <QByteArray>

#include <optional>

class cAmountFormat;

// The figures of a report as tables for other programs: one line for each category, and none of sums that would be
// added up with the rest.
namespace modReportExport {

[[nodiscard]] QByteArray Csv(const cReportFigures& figures);

// Empty when the file could not be put together.
[[nodiscard]] std::optional<QByteArray> Xlsx(const cReportFigures& figures, const cAmountFormat& format);

} // namespace modReportExport
