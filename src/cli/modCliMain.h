#pragma once

#include <QString>
#include <QStringList>

struct cCliPorts;

namespace modCliMain {

// Carries out a command line (without the program's name) and gives the exit code.
[[nodiscard]] int Run(const QStringList& arguments, const cCliPorts& ports);

// The folder of the private profile that the arguments name; empty for none.
[[nodiscard]] QString Profile(const QStringList& arguments);

// True when the arguments ask for a file that has to be painted (--pdf, --png, --svg), so that the program has to start
// with the toolkit.
[[nodiscard]] bool NeedsPaint(const QStringList& arguments);

} // namespace modCliMain
