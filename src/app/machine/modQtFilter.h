#pragma once

#include <QString>

namespace modQtFilter {

// A file filter of the form "Name|*.a;*.b|Name|*.*" as the file dialogs want it: "Name (*.a *.b);;Name (*)".
[[nodiscard]] QString FromPairs(const QString& filter);

// The ending of the filter's first pattern without the dot; empty for "*.*".
[[nodiscard]] QString FirstEnding(const QString& filter);

// The ending of the pattern that was chosen in the dialog, which names it in its own form; the filter's first one when
// the chosen pattern has none.
[[nodiscard]] QString ChosenEnding(const QString& filter, const QString& chosen);

} // namespace modQtFilter
