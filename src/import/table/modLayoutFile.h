#pragma once

#include "import/read/cTableLayout.h"

#include <QString>

// A layout of tables as a small text, so that people can give it to each other: the names of the columns in their
// order, what each of them holds, and the rules.
namespace modLayoutFile {

// Empty for a table without names of columns. `name` is what the layout is called.
[[nodiscard]] QString ToText(const cTableLayout& layout, const QString& name);

struct cRead
{
    cTableLayout Layout; // with names, columns, rules and its name as that of the known layout
    QString Fault;       // German; why the text is no layout. Empty when it is one
};

// Reads what ToText gives, also when a person has edited it: lines in another order, blanks, remarks behind "#".
[[nodiscard]] cRead FromText(const QString& text);

} // namespace modLayoutFile
