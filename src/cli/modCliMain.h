#pragma once

#include <QString>
#include <QStringList>

struct cCliPorts;

namespace modCliMain {

// What needs painting or the network is carried out by the window program, which has both. Most commands need neither,
// and the toolkit would be most of what they take.
inline constexpr QLatin1StringView WindowProgram("kontorelle");

// Carries out a command line (without the program's name) and gives the exit code.
[[nodiscard]] int Run(const QStringList& arguments, const cCliPorts& ports);

// The folder of the private profile that the arguments name; empty for none.
[[nodiscard]] QString Profile(const QStringList& arguments);

// True when the arguments ask for a file that has to be painted (--pdf, --png, --svg), so that the program has to start
// with the toolkit.
[[nodiscard]] bool NeedsPaint(const QStringList& arguments);

// True when the arguments need the ports for painting or for the network.
[[nodiscard]] bool NeedsMore(const QStringList& arguments);

} // namespace modCliMain
