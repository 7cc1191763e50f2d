#pragma once

#include "cli/call/cCliCall.h"

#include <QList>
#include <QString>

namespace modCliHelp {

// "--account NAME" and "report BERICHT".
[[nodiscard]] QString Option(const cCliOption& option);
[[nodiscard]] QString Call(const cCliCommand& command);

// The help of the whole program.
[[nodiscard]] QString All(const QList<cCliCommand>& commands);

// The help of one command.
[[nodiscard]] QString Of(const cCliCommand& command);

} // namespace modCliHelp
