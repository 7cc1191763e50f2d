#pragma once

#include "cli/call/modCliCommands.h"
#include "model/cEntryItem.h"

// Lists of entries as the commands write them.
namespace modCliEntryList {

// Prints them as the options --json and --csv say, else as a table.
void Print(const cCliContext& context, const cEntryItemList& entries);

} // namespace modCliEntryList
