#pragma once

#include <QString>

// Which build of the program this is.
namespace modBuild {

// The state of the source as git calls it; empty where the build did not know it.
[[nodiscard]] QString Commit();

// "0.1.0 (a1b2c3d)", the version with the commit.
[[nodiscard]] QString Version();

} // namespace modBuild
