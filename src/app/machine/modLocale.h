#pragma once

#include <QString>

namespace modLocale {

// File names and arguments are UTF-8, also where no language is set, as in a bare container. To be called before the
// application object is made, which otherwise says so on the error output.
void UseUtf8();

// The language that the environment wants messages in, as the catalogues are named: "de" where it says German or
// nothing, else "en".
[[nodiscard]] QString Messages();

} // namespace modLocale
