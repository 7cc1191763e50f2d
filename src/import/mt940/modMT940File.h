#pragma once

#include "import/read/cReadOptions.h"
#include "import/read/cStatementRead.h"

#include <QString>

// SWIFT statements in files, which may have been cut off on their way here.
namespace modMT940File {

// As modMT940::Read. A text without its end is refused; where it only seems so, its last transaction is left out.
[[nodiscard]] cStatementRead Read(const QString& text, const QString& account, eStrayDetails stray);

} // namespace modMT940File
