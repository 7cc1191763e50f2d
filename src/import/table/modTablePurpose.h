#pragma once

#include <QList>
#include <QString>

struct cColumnMap;

namespace modTablePurpose {

// The columns such as "Vwz.0" to "Vwz.17" that are one text with the first purpose; none when one of them is something
// else.
[[nodiscard]] QList<int> Parts(const cColumnMap& map);

// The columns whose texts make the purpose, in their order. A map has place for three parts of a text; where all three
// are mapped, the others belong to it.
[[nodiscard]] QList<int> Columns(const cColumnMap& map);

// Purpose columns joined by a blank, without ";" and quotes, "<BR>" as a line break, doubled blanks and line breaks
// once, and SEPA keywords resolved.
[[nodiscard]] QString Clean(QString joined);

} // namespace modTablePurpose
