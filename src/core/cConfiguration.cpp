#include "core/cConfiguration.h"

#include "base/cRegistry.h"
#include "core/cSettings.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Values written by other programs may end in line breaks or zero characters.
QString Cleaned(QString text)
{
    return text.remove(u'\r').remove(u'\n').remove(u'\0').trimmed();
}

} // namespace

QString cConfiguration::GetSetting(const QString& name) const
{
    // The list of databases must not depend on which of them is open.
    const bool isFromTable = name.compare(u"DatabaseList"_s, Qt::CaseInsensitive) != 0 && m_settings != nullptr;
    QString value = isFromTable ? m_settings->Get(name) : QString{};
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

bool cConfiguration::SaveSetting(const QString& name, const QString& value, eSettingPlace place)
{
    if (place == eSettingPlace::Registry) {
        return m_registry.Write(RegistryKey, name, value);
    }
    return m_settings != nullptr && m_settings->Set(name, value);
}

void cConfiguration::DeleteRegistrySetting(const QString& name)
{
    m_registry.Delete(RegistryKey, name);
    m_registry.Delete(FormerRegistryKey, name);
}
