#pragma once

#include <QString>

namespace modQtFilter {

// A file filter of the form "Name|*.a;*.b|Name|*.*" as the file dialogs want it: "Name (*.a *.b);;Name (*)".
[[nodiscard]] QString FromPairs(const QString& filter);

// The ending of the filter's first pattern without the dot; empty for "*.*".
[[nodiscard]] QString FirstEnding(const QString& filter);

} // namespace modQtFilter
