#pragma once

#include "import/read/cTableLayout.h"

#include <QStringView>

struct cImportEntry;

// Texts of some banks that hold counterparty and purpose in one.
namespace modTableDetails {

// Takes the purpose of the record apart; `text` is the cell in which it stood.
void Apply(eDetails details, QStringView text, cImportEntry& entry);

// True for "... BG/000002462 BIC IBAN name", the text of Austrian banks.
[[nodiscard]] bool IsAustrian(QStringView text);

} // namespace modTableDetails
