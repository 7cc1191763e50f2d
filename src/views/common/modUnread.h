#pragma once

#include <QString>

class cDataAccess;

// What stands where a list or a sum would stand that could not be read: "Keine Daten" and "0,00 €" would say that there
// is nothing.
namespace modUnread {

// Whether an empty list is empty because of that.
[[nodiscard]] bool IsMissing(const cDataAccess& data, qsizetype rows);

[[nodiscard]] QString Title();
[[nodiscard]] QString Hint();
[[nodiscard]] QString Sum();

} // namespace modUnread
