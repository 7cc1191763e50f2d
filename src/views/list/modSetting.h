#pragma once

#include <QString>

class cSettings;

// How the views write their settings.
namespace modSetting {

// The account of the statistics. It follows a renamed account even while nobody looks at them.
inline const QString StatisticsAccount = QStringLiteral("StatistikKonto");

// Stores a value that does not stand there yet; one that does costs no write.
void Keep(cSettings& settings, const QString& name, const QString& value);

} // namespace modSetting
