#pragma once

#include <QStringList>

class cCliPaint;

namespace modCliMain {

// Carries out a command line (without the program's name) and gives the exit code.
[[nodiscard]] int Run(const QStringList& arguments, cCliPaint& paint);

// True when the arguments ask for a file that has to be painted (--pdf, --png, --svg), so that the program has to start
// with the toolkit.
[[nodiscard]] bool NeedsPaint(const QStringList& arguments);

} // namespace modCliMain
