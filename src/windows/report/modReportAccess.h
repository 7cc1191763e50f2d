#pragma once

// What screen readers get of a report: its whole text, and where in it the focus is.
namespace modReportAccess {

// Makes every report view speak; once is enough, more does no harm.
void Install();

} // namespace modReportAccess
