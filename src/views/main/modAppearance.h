#pragma once

#include <optional>

class cConfiguration;

// Light or dark: as the desktop has it, or as the user wants it.
enum class eAppearance { System, Light, Dark };

// What the user has chosen. It is a matter of the user and the screen, not of the book.
namespace modAppearance {

[[nodiscard]] eAppearance Chosen(const cConfiguration& configuration);

// False when it could not be stored.
[[nodiscard]] bool Choose(eAppearance appearance, cConfiguration& configuration);

// What a command stands for; empty for those that are about something else.
[[nodiscard]] std::optional<eAppearance> OfCommand(int command);

} // namespace modAppearance
