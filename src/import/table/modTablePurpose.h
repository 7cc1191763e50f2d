#pragma once

#include <QList>
#include <QString>

struct cColumnMap;

namespace modTablePurpose {

// The columns whose texts make the purpose, in their order. Columns such as "Vwz.0" to "Vwz.17" are one text, whichever
// of them are mapped.
[[nodiscard]] QList<int> Columns(const cColumnMap& map);

// Purpose columns joined by a blank, without ";" and quotes, "<BR>" as a line break, doubled blanks and line breaks
// once, and SEPA keywords resolved.
[[nodiscard]] QString Clean(QString joined);

} // namespace modTablePurpose
