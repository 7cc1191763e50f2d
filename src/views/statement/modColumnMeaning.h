#pragma once

#include <QStringList>

struct cColumnMap;

// What the columns of a table can mean, as the user chooses it from a list.
namespace modColumnMeaning {

// All meanings; the first one is a column that is not read.
[[nodiscard]] QStringList Names();

// The place of a column's meaning in Names; 0 when it has none.
[[nodiscard]] int Of(const cColumnMap& map, int column);

// Gives the column this meaning and takes it from the column that had it before.
void Set(cColumnMap& map, int column, int meaning);

} // namespace modColumnMeaning
