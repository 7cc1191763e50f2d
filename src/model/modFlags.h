#pragma once

#include <QString>

// The flag text of an entry: "key=value" pairs joined by ";".
namespace modFlags {

// The value of a key; empty when it is not there.
[[nodiscard]] QString Get(const QString& flags, const QString& key);

// The flag text with the key set, or without the key when the value is empty. All other parts stay as they are, also
// those that this program does not know.
[[nodiscard]] QString Set(const QString& flags, const QString& key, const QString& value);

} // namespace modFlags
