#pragma once

#include <QString>

// The desktop's trash.
namespace modTrash {

// Moves the file there. False where there is none, and the file is where it was.
[[nodiscard]] bool Move(const QString& path);

} // namespace modTrash
