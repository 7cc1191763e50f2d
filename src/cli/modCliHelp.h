#pragma once

#include "cli/cCliCall.h"

#include <QList>
#include <QString>

namespace modCliHelp {

// The help of the whole program.
[[nodiscard]] QString All(const QList<cCliCommand>& commands);

// The help of one command.
[[nodiscard]] QString Of(const cCliCommand& command);

} // namespace modCliHelp
