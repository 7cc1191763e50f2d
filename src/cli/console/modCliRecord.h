#pragma once

#include "cli/console/cJsonObject.h"
#include "model/cEntryItem.h"
#include "model/cEntryItemFixMod.h"
#include "model/cImportEntry.h"
#include "model/cTemplateItem.h"
#include "model/modPeople.h"

// Records as JSON objects; the keys are the names of the columns.
namespace modCliRecord {

[[nodiscard]] cJsonObject Entry(const cEntryItem& entry);
[[nodiscard]] cJsonObject FixMod(const cEntryItemFixMod& fixMod);
[[nodiscard]] QString Shares(const modPeople::cShares& shares); // an array
// What categories and accounts have in common.
[[nodiscard]] cJsonObject Template(const cTemplateItem& item);
[[nodiscard]] cJsonObject Row(const cImportEntry& row);

} // namespace modCliRecord
