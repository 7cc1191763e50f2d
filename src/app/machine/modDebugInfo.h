#pragma once

// The option --debug-info of the window program.
namespace modDebugInfo {

// Whether it stands among the arguments of the program.
[[nodiscard]] bool IsWanted(int argc, char** argv);

// Writes the diagnosis of this installation to the standard output, without a screen, because it may be the screen that
// fails. Gives the exit code.
[[nodiscard]] int Run(int argc, char** argv);

} // namespace modDebugInfo
