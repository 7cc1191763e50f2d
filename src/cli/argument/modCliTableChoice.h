#pragma once

#include "cli/call/cCliCall.h"
#include "views/statement/cFileWish.h"

#include <QList>

class cCliReader;

// What the command line says about the reading of statements.
namespace modCliTableChoice {

// The options that Read() understands.
[[nodiscard]] QList<cCliOption> Options();

// What they choose, with the option --account. What cannot be understood is told to the reader.
[[nodiscard]] cFileWish Read(const cCliCall& call, cCliReader& reader);

} // namespace modCliTableChoice
