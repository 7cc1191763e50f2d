#pragma once

#include "import/read/cColumnMap.h"

#include <QStringList>

// Columns told by the words of the header alone.
namespace modColumnWords {

// What the vocabulary makes of the cleaned header fields.
[[nodiscard]] cColumnMap Detect(const QStringList& header);

} // namespace modColumnWords
