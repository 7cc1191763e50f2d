#pragma once

#include "cli/cCliCall.h"
#include "cli/cJsonObject.h"
#include "import/read/cTableChoice.h"

#include <QList>
#include <QString>

class cCliReader;

// What the command line says about statements in rows and columns.
namespace modCliTableChoice {

// The options that Read() understands.
[[nodiscard]] QList<cCliOption> Options();

// What they choose. What cannot be understood is told to the reader.
[[nodiscard]] cTableChoice Read(const cCliCall& call, cCliReader& reader);

// "windows-1252"
[[nodiscard]] QString Name(eCharset charset);

// The columns as the option --map takes them, "datum=0,betrag=5", and as an object.
[[nodiscard]] QString MapText(const cColumnMap& map);
[[nodiscard]] cJsonObject MapJson(const cColumnMap& map);

} // namespace modCliTableChoice
