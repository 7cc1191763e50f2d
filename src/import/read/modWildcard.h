#pragma once

#include <QStringView>

// Wildcard patterns: "*" stands for any run of characters, "?" for one, "#" for one digit, "[0-9a]" for one of a class,
// "[!0-9]" for one that is not in it. Case counts.
namespace modWildcard {

// True when the whole text fits the pattern.
[[nodiscard]] bool Matches(QStringView text, QStringView pattern);

// True when the text holds any wildcard.
[[nodiscard]] bool IsPattern(QStringView text);

} // namespace modWildcard
