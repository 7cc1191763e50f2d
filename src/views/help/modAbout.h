#pragma once

#include <QString>

// What the program says about itself.
namespace modAbout {

// "Kontorelle 0.1.0", with the state of the source where the build knew it: "Kontorelle 0.1.0 (a1b2c3d)".
[[nodiscard]] QString Name(const QString& version, const QString& commit);

// Purpose, licence, and that there is no warranty.
[[nodiscard]] QString Terms();

// A line for each library: what it is, what it does here, its licence.
[[nodiscard]] QString Libraries();

} // namespace modAbout
