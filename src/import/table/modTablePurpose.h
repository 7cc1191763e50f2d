#pragma once

#include <QList>

struct cColumnMap;

namespace modTablePurpose {

// The columns whose texts make the purpose, in their order. Columns such as "Vwz.0" to "Vwz.17" are one text, whichever
// of them are mapped.
[[nodiscard]] QList<int> Columns(const cColumnMap& map);

} // namespace modTablePurpose
