#pragma once

enum class eNumberFormat;
struct cTableLayout;
class cTable;

// Tables that were cut off on their way here.
namespace modTableEnd {

struct cCut
{
    int Row = -1;           // the booking within which the text breaks off; -1 for none
    bool IsCertain = false; // otherwise it may be whole
};

// A last line that only lacks its line break is whole.
[[nodiscard]] cCut Find(const cTable& table, const cTableLayout& layout, eNumberFormat number);

} // namespace modTableEnd
