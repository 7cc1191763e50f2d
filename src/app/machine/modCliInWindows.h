#pragma once

// The window program in the place of the command line program, for commands that paint or talk to a bank.
namespace modCliInWindows {

[[nodiscard]] bool IsWanted(char** arguments);
[[nodiscard]] int Run(int argc, char** argv);

} // namespace modCliInWindows
