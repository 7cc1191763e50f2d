#pragma once

#include <QString>

struct cImportEntry;

// Keys under which transactions of the same counterparty are found again.
namespace modCounterparty {

// By IBAN or account number; empty when the row has none.
[[nodiscard]] QString AccountKey(const cImportEntry& row);

// By name, without regard to case, blanks and the pieces of MT940 (modCutText); empty when the row has none.
[[nodiscard]] QString NameKey(const cImportEntry& row);

// By account, else by name.
[[nodiscard]] QString Key(const cImportEntry& row);

// For a row that names nobody: by the words of its purpose that stay the same from one payment to the next. Never
// empty.
[[nodiscard]] QString PurposeKey(const cImportEntry& row);

} // namespace modCounterparty
