#pragma once

#include "model/cImportEntry.h"

// Files that name no account go to the one that such files were given before.
namespace modRememberedAccount {

// Whether the rows of a file say that it is another one's: most of what is staged of that account on its days is not
// among them, and they bring something new on days from which rows of it are there already. The amounts are compared,
// because another format may tell other days and texts.
[[nodiscard]] bool IsContradicted(const cImportEntryList& rows, const cImportEntryList& staged);

} // namespace modRememberedAccount
