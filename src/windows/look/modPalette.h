#pragma once

#include <QPalette>

// The program's own colours for whoever wants it lighter or darker than the desktop is.
namespace modPalette {

[[nodiscard]] QPalette Light();
[[nodiscard]] QPalette Dark();

} // namespace modPalette
