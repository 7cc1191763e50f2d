#pragma once

#include "model/cOwnRule.h"

#include <QString>

struct cImportEntry;

// Rules of the user's own as they are stored and named, and rules made from transactions.
namespace modOwnRule {

// One line of text. A rule that could not be read comes out as it went in.
[[nodiscard]] QString ToLine(const cOwnRule& rule);

// Reads what ToLine wrote. A line that is damaged, or comes from a later version, gives a rule with `Unreadable` set.
[[nodiscard]] cOwnRule FromLine(const QString& line);

// What a rule is called in a reason: its text, else its counterparty, else the kind of amount and the account.
[[nodiscard]] QString Label(const cOwnRule& rule);

// A rule for transactions like this one, which matches itself: by counterparty where that says enough, else by the most
// telling words of the purpose.
[[nodiscard]] cOwnRule FromRow(const cImportEntry& row);

} // namespace modOwnRule
