#pragma once

#include "model/cEntryItem.h"
#include "views/entry/cEntryFields.h"

#include <QDate>

// What the fields of the editor mean, day by day.
namespace modEntryFields {

// The first day: as typed, else the chosen one, else today. Invalid when the typed text is no day, or when an
// unreadable stored day is to stay (KeepsDay).
[[nodiscard]] QDate FirstDay(const cEntryFields& fields, QDate today);

// True when the day that is stored cannot be read and nobody has named another one: it must not become today.
[[nodiscard]] bool KeepsDay(const cEntryFields& fields);

// The last day, the open end without the switch or without a day. Invalid when the typed text is no day.
[[nodiscard]] QDate LastDay(const cEntryFields& fields, QDate today);

// The last day on which a contract can be cancelled; invalid for none, as one-off entries are, and when the typed text
// is no day.
[[nodiscard]] QDate CancelBy(const cEntryFields& fields, QDate today);
[[nodiscard]] bool IsCancelByReadable(const cEntryFields& fields, QDate today);

// An entry with the days and the interval of the fields, and nothing else.
[[nodiscard]] cEntryItem Series(const cEntryFields& fields, QDate today);

} // namespace modEntryFields
