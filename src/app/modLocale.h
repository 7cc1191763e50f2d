#pragma once

namespace modLocale {

// File names and arguments are UTF-8, also where no language is set, as in a bare container. To be called before the
// application object is made, which otherwise says so on the error output.
void UseUtf8();

} // namespace modLocale
