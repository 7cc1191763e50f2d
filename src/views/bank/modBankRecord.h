#pragma once

#include "model/bank/cBankState.h"

#include <QString>

#include <optional>

// What is kept of a bank login, as one text for table `setting`. Bytes of the bank come back as they were.
namespace modBankRecord {

[[nodiscard]] QString Write(const cBankState& state);
// Nothing when the text cannot be read. Parts that it lacks stay empty.
[[nodiscard]] std::optional<cBankState> Read(const QString& text);

} // namespace modBankRecord
