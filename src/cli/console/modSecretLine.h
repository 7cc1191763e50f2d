#pragma once

#include "base/cSecret.h"

#include <QString>

#include <optional>

// A line with a PIN or a TAN.
namespace modSecretLine {

// Reads one line and no byte more. At a terminal `prompt` is shown and the line is not; the terminal is set back before
// anything else happens, also when a signal ends or stops the program. Empty when there is no line.
[[nodiscard]] std::optional<cSecret> Read(int file, const QString& prompt);

// Waits for the Enter key; false at the end of the input, and when a signal came that would have ended the program.
[[nodiscard]] bool Press(const QString& prompt);

// Says the text and lets so many seconds pass; false when such a signal came.
[[nodiscard]] bool Wait(const QString& text, int seconds);

// True when somebody can be asked at the standard input.
[[nodiscard]] bool HasTerminal();

} // namespace modSecretLine
