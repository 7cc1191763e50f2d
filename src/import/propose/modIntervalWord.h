#pragma once

#include <QString>

// What the purpose itself says of how often something is paid: "Beitrag Q4/2026", "vierteljährlich".
namespace modIntervalWord {

// The stored word; empty when the text names none.
[[nodiscard]] QString In(const QString& purpose);

} // namespace modIntervalWord
