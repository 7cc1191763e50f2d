#pragma once

#include "import/read/cTableLayout.h"

#include <QStringList>

// Known layouts of banks, by their exact headers.
namespace modTableProfile {

// Puts the columns and rules of the known layout with this header into `layout`. False, and nothing changed, when there
// is none.
bool Apply(const QStringList& header, cTableLayout& layout);

// The same for a layout that the user names.
bool ApplyNamed(const QString& name, const QStringList& header, cTableLayout& layout);

[[nodiscard]] QStringList Names();

} // namespace modTableProfile
