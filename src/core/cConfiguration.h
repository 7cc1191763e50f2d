#pragma once

#include <QString>

class cRegistry;
class cSettingKey;
class cSettings;

enum class eSettingPlace { Database, Registry };

// Settings over both places: the open database first, then the registry of the user, then the keys of older versions.
class cConfiguration
{
public:
    static inline const QString RegistryKey = QStringLiteral("SOFTWARE\\Veltrino Kontorelle");
    static inline const QString FormerRegistryKey = QStringLiteral("SOFTWARE\\KontorelleFreeware"); // never written

    explicit cConfiguration(cRegistry& registry) : m_registry(registry) {}

    // Connects the settings of an opened database; null while none is open.
    void SetDatabase(cSettings* settings) { m_settings = settings; }

    // The value from the first place that has one; empty when none has.
    [[nodiscard]] QString GetSetting(const cSettingKey& key) const;

    // False when the open database has not told its own: a value of the registry may stand for one of them.
    [[nodiscard]] bool IsRead() const;

    // Writes to the one place named. Without an open database a value for it is not stored, and false is returned.
    bool SaveSetting(const cSettingKey& key, const QString& value, eSettingPlace place);

    // Removes a registry value under the current and the former key.
    void DeleteRegistrySetting(const cSettingKey& key);

private:
    cRegistry& m_registry;
    cSettings* m_settings = nullptr;
};
