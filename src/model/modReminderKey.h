#pragma once

#include "model/cSettingKey.h"

// Beside the other keys, of which few files know this one.
namespace modSettingKey {

// The day on which the desktop was told last what is due.
inline const cSettingKey RemindedOn{QStringLiteral("ErinnerungGemeldet"), {eSettingType::Day, eSettingOwner::Book}};

} // namespace modSettingKey
