#pragma once

#include <QString>

class cSettingKey;
class cSettings;

// How the views write their settings.
namespace modSetting {

// Stores a value that does not stand there yet; one that does costs no write.
void Keep(cSettings& settings, const cSettingKey& key, const QString& value);

} // namespace modSetting
