#pragma once

#include <QString>

// How the maker of the program is reached. Each of it is set when the program is built and may be empty.
namespace modMaker {

// The mail address that feedback goes to.
[[nodiscard]] QString FeedbackAddress();

} // namespace modMaker
