#pragma once

#include <QString>

// Addresses of the maker. They are set when the program is configured; the program works without any.
namespace modMaker {

// Of the home page, "https://…" without a slash at its end; empty for none.
[[nodiscard]] QString Homepage();

} // namespace modMaker
