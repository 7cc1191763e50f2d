#pragma once

#include <QIcon>
#include <QString>

// The program's own pictures. They are drawn when somebody needs them, in the text colour of the application's palette,
// so that they read on light and dark windows and cost nothing at the start.
namespace modIcon {

// An empty icon for an empty or unknown name.
[[nodiscard]] QIcon Get(const QString& name);

// The program's symbol.
[[nodiscard]] QIcon Program();

} // namespace modIcon
