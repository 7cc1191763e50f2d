#pragma once

#include "app/cli/cJsonObject.h"
#include "model/cEntryItem.h"
#include "model/cImportEntry.h"

// Records as JSON objects; the keys are the names of the columns.
namespace modCliRecord {

[[nodiscard]] cJsonObject Entry(const cEntryItem& entry);
[[nodiscard]] cJsonObject Row(const cImportEntry& row);

} // namespace modCliRecord
