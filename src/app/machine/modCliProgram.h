#pragma once

class cCliPaint;
class cHttps;

// The command line program, wherever it runs.
namespace modCliProgram {

// What the window program is called by when it is to carry out a command.
inline constexpr const char* Name = "kontorelle-cli";

// Carries out the command of the running application and gives the exit code. Without the two ports a command that
// needs them goes on in the window program: the same process, arguments and streams.
[[nodiscard]] int Run(char** arguments, cCliPaint* paint, cHttps* https);

} // namespace modCliProgram
