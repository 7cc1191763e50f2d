#pragma once

#include <QStringList>

namespace modCliMain {

// Carries out a command line (without the program's name) and gives the exit code.
[[nodiscard]] int Run(const QStringList& arguments);

} // namespace modCliMain
