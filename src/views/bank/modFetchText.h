#pragma once

#include "views/bank/cBankFetch.h"

#include <QString>

// What the window of a fetch says of each account.
namespace modFetchText {

// One line: what is being done, what came of it, or when it was fetched last.
[[nodiscard]] QString State(const cBankFetch& fetch, qsizetype account);

// All there is to say, over several lines: the failure with the words of the bank, differences, what could not be read.
// Empty when the line says it all.
[[nodiscard]] QString Details(const cBankFetch& fetch, qsizetype account);

} // namespace modFetchText
