#pragma once

#include <QString>

namespace modQtFilter {

// A file filter of the form "Name|*.a;*.b|Name|*.*" as the file dialogs want it: "Name (*.a *.b);;Name (*)".
[[nodiscard]] QString FromPairs(const QString& filter);

} // namespace modQtFilter
