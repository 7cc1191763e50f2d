#pragma once

class QString;
class cSettings;

// How the views write their settings.
namespace modSetting {

// Stores a value that does not stand there yet; one that does costs no write.
void Keep(cSettings& settings, const QString& name, const QString& value);

} // namespace modSetting
