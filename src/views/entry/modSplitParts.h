#pragma once

#include "views/entry/cEntryFields.h"

#include <QList>
#include <QString>

#include <optional>

// The rows of the split table.
namespace modSplitParts {

// True for a row that nobody has filled in; such rows are not stored.
[[nodiscard]] bool IsBlank(const cSplitPart& part, eDecimal decimal = eDecimal::Comma);

[[nodiscard]] qsizetype CountFilled(const cEntryFields& fields);

// Cents of the whole that the rows do not cover yet; empty while one of the amounts is no number. A row without amount
// counts as zero.
[[nodiscard]] std::optional<qint64> Rest(const cEntryFields& fields);

// The rest for the user: "Rest: 3,50", "Die Summe stimmt." or that an amount cannot be read. Empty for an entry that is
// not split, and as long as there is no amount.
[[nodiscard]] QString RestText(const cEntryFields& fields);

// Adds the rest to the amount of a row. False when the rest is not known or the row does not exist.
[[nodiscard]] bool FillRest(qsizetype row, cEntryFields& fields);

// Gives a row that exists another amount in signed cents, and the whole what all rows then come to. The cents of the
// whole, which have to be above zero to be stored.
qint64 SetAmount(qsizetype row, qint64 cents, cEntryFields& fields);

// The form of amounts in the table: "#############0.00", so without grouping, with the decimal sign of the fields.
[[nodiscard]] QString AmountText(qint64 cents, eDecimal decimal = eDecimal::Comma);

} // namespace modSplitParts
