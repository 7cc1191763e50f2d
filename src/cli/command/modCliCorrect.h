#pragma once

#include "cli/call/modCliCommands.h"
#include "views/list/cEntryListModel.h"

#include <QDate>
#include <QString>

#include <optional>

namespace modCliCorrect {

// Gives one occurrence of a series another amount, and another day with `moveTo`, and says so; without `comment` an
// earlier one stays. The exit code.
[[nodiscard]] int Correct(const cCliContext& context, const cEntryListModel::cKey& occurrence, qint64 cents,
                          const std::optional<QString>& comment, const std::optional<QDate>& moveTo = std::nullopt);

} // namespace modCliCorrect
