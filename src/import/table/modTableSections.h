#pragma once

#include <QString>

class cTable;
struct cReadOptions;
struct cTableLayout;

// Files that list several accounts one below the other, each with columns of its own.
namespace modTableSections {

// The part of a table behind the first one.
struct cNext
{
    int Start = -1;  // its first row, which tells about it; -1: there is none
    int Header = -1; // the row with the names of its columns
    QString Title;   // what stands above it; empty when nothing does
};

// The part that follows the rows of this layout. A header that comes again on every page begins none, unless another
// account is named above it.
[[nodiscard]] cNext Find(const cTable& table, const cTableLayout& layout, const cReadOptions& options);

} // namespace modTableSections
