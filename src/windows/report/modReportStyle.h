#pragma once

// The style sheet below every report. The rendering library brings none of its own.
namespace modReportStyle {

// CSS, UTF-8. How elements look that say nothing about it, and what the report's own styles leave to luck.
[[nodiscard]] const char* MasterSheet();

inline constexpr int FontSize = 13; // pixels of the page for plain text
inline constexpr int Margin = 20;   // pixels beside the report

} // namespace modReportStyle
