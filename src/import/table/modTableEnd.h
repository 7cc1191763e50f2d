#pragma once

enum class eNumberFormat;
struct cTableLayout;
class cTable;

// Tables that were cut off on their way here.
namespace modTableEnd {

// The booking within which the text breaks off; -1 for none. A last line that only lacks its line break is whole.
[[nodiscard]] int CutOffRow(const cTable& table, const cTableLayout& layout, eNumberFormat number);

} // namespace modTableEnd
