#pragma once

// What screen readers get of a chart beside the part that is chosen: all that it shows, as a text.
namespace modChartAccess {

// Makes every chart speak; once is enough, more does no harm.
void Install();

} // namespace modChartAccess
