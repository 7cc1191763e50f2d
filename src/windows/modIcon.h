#pragma once

#include <QIcon>
#include <QPalette>
#include <QString>

// The program's own pictures, drawn in the text colour of the palette so that they read on light and dark windows.
namespace modIcon {

// An empty icon for an empty or unknown name.
[[nodiscard]] QIcon Get(const QString& name, const QPalette& palette);

// The program's symbol.
[[nodiscard]] QIcon Program();

} // namespace modIcon
