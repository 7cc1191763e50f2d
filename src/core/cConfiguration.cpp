#include "core/cConfiguration.h"

#include "base/cRegistry.h"
#include "core/cSettings.h"
#include "model/modSettingKey.h"

namespace {

// Values written by other programs may end in line breaks or zero characters.
QString Cleaned(QString text)
{
    return text.remove(u'\r').remove(u'\n').remove(u'\0').trimmed();
}

} // namespace

QString cConfiguration::GetSetting(const cSettingKey& key) const
{
    const QString& name = key.Name();
    // The list of databases must not depend on which of them is open.
    const bool isFromTable = key != modSettingKey::DatabaseList && m_settings != nullptr;
    QString value = isFromTable ? m_settings->Get(key) : QString{};
    if (value.isEmpty()) {
        value = Cleaned(m_registry.Read(eRegistryScope::User, RegistryKey, name));
    }
    if (value.isEmpty()) {
        value = Cleaned(m_registry.Read(eRegistryScope::User, FormerRegistryKey, name));
    }
    if (value.isEmpty()) {
        value = Cleaned(m_registry.Read(eRegistryScope::Machine, FormerRegistryKey, name));
    }
    return value;
}

bool cConfiguration::IsRead() const
{
    return m_settings == nullptr || m_settings->IsRead();
}

bool cConfiguration::SaveSetting(const cSettingKey& key, const QString& value, eSettingPlace place)
{
    if (place == eSettingPlace::Registry) {
        return m_registry.Write(RegistryKey, key.Name(), value);
    }
    return m_settings != nullptr && m_settings->Set(key, value);
}

void cConfiguration::DeleteRegistrySetting(const cSettingKey& key)
{
    m_registry.Delete(RegistryKey, key.Name());
    m_registry.Delete(FormerRegistryKey, key.Name());
}
