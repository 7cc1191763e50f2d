#pragma once

#include <QString>

// What whoever builds an edition says about it; the program works without any of it.
namespace modMaker {

// Of the home page, "https://…" without a slash at its end; empty for none.
[[nodiscard]] QString Homepage();

// Where new versions are announced, an https address; empty where the edition has none.
[[nodiscard]] QString UpdateAddress();

// False for editions that somebody else keeps up to date, as the packages of a distribution.
[[nodiscard]] bool HasUpdateCheck();

// The mail address that feedback goes to.
[[nodiscard]] QString FeedbackAddress();

} // namespace modMaker
