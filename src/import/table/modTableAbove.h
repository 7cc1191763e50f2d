#pragma once

#include "import/read/cStatementRead.h"

class cTable;

// What the lines above a table's header say about the account.
namespace modTableAbove {

struct cAbove
{
    QString Account; // IBAN, account number or the masked number of a card; empty when there is none
    std::optional<cAccountBalance> Balance;
    QString Labels; // the labels of the lines without their digits, to tell accounts of one bank apart
};

// Looks at the first `rows` rows.
[[nodiscard]] cAbove Read(const cTable& table, int rows);

// An own account number in the form in which other statements have it: without blanks, and without the zeros in front
// of a number.
[[nodiscard]] QString OwnNumber(QStringView cell);

} // namespace modTableAbove
