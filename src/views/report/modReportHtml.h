#pragma once

#include "views/report/cReportFigures.h"

#include <QString>

class cAmountFormat;

// Reports as HTML.
namespace modReportHtml {

// The report as the view shows it and as it is printed; the wish says whether lines carry link data. A fragment
// without html and body.
[[nodiscard]] QString Html(const cReportFigures& figures, const cReportWish& wish, const cAmountFormat& format);

// The report as a file of its own for a browser: the same lines in a whole page.
[[nodiscard]] QString Page(const cReportFigures& figures, const cReportWish& wish, const cAmountFormat& format);

// "Überschuss: 12,00 €": the difference without sign, named by what it is.
[[nodiscard]] QString Result(const cReportFigures& figures, const cAmountFormat& format);

// "Limit-Bericht für alle Konten vom 01.01.2026 bis 31.12.2026": the heading as plain text.
[[nodiscard]] QString Heading(const cReportFigures& figures);

} // namespace modReportHtml
