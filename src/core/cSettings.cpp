#include "core/cSettings.h"

#include "base/modDate.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"

using namespace Qt::Literals::StringLiterals;

cSettings::cSettings(cDataAccess& data) : m_data(data)
{
    Reload();
}

void cSettings::Reload()
{
    m_values.clear(); // of another file perhaps
    m_timesPutBack.reset();
    Read();
}

void cSettings::CatchUp() const
{
    if (m_timesPutBack != m_data.Journal().TimesPutBack() && m_failedAt != m_data.TimesDone() && !m_data.IsReadOnly()) {
        Read();
    }
}

void cSettings::Read() const
{
    m_failedAt = m_data.TimesDone(); // already while the user is told, when timers may ask for a setting
    const auto rows = m_data.ReadSettings();
    if (!rows) {
        m_failedAt = m_data.TimesDone();
        return; // lists that are changed and stored again would begin anew
    }
    m_failedAt.reset();
    m_timesPutBack = m_data.Journal().TimesPutBack();
    m_values.clear();
    for (const auto& [name, value] : *rows) {
        m_values.insert(name.toLower(), {name, value});
    }
}

QString cSettings::Get(const cSettingKey& key) const
{
    CatchUp();
    return m_values.value(key.Name().toLower()).Value;
}

bool cSettings::IsRead() const
{
    CatchUp();
    return !m_failedAt;
}

bool cSettings::Set(const cSettingKey& key, const QString& value)
{
    CatchUp();
    const QString lower = key.Name().toLower();
    // The row is addressed in the letter case it was stored with, so that no second one appears beside it.
    const QString stored = m_values.contains(lower) ? m_values.value(lower).Name : key.Name();
    if (!m_data.IsReadOnly() && !m_data.ChangeSettingItem(stored, value)) {
        return false;
    }
    m_values.insert(lower, {stored, value});
    return true;
}

bool cSettings::Delete(const cSettingKey& key)
{
    return DeleteStored(key.Name());
}

bool cSettings::DeleteStored(const QString& name)
{
    CatchUp();
    const QString key = name.toLower();
    const QString stored = m_values.contains(key) ? m_values.value(key).Name : name;
    if (!m_data.IsReadOnly() && !m_data.DeleteSetting(stored)) {
        return false;
    }
    m_values.remove(key);
    return true;
}

bool cSettings::GetBool(const cSettingKey& key) const
{
    const QString value = Get(key);
    return ToBool(value.isEmpty() ? key.Default() : value);
}

bool cSettings::SetBool(const cSettingKey& key, bool value)
{
    return Set(key, FromBool(value));
}

void cSettings::ResetAll()
{
    CatchUp();
    bool hasDeleted = true;
    while (hasDeleted) {
        hasDeleted = false;
        const QStringList keys = m_values.keys();
        for (const QString& key : keys) {
            const bool isKept = modSettingKey::ResetOf(key) == eSettingReset::Kept;
            hasDeleted = (!isKept && DeleteStored(key)) || hasDeleted;
        }
    }
    ResetViewDefaults();
}

void cSettings::ResetViewDefaults()
{
    for (const cSettingKey* key : modSettingKey::All()) {
        if (key->Facts().Reset == eSettingReset::SwitchedOn) {
            SetBool(*key, true);
        }
    }
}

bool cSettings::CheckVersion(const QString& version)
{
    if (Get(modSettingKey::LastVersion) == version) {
        return false;
    }
    Set(modSettingKey::LastVersion, version);
    return true;
}

QDate cSettings::GetUpdateDate(QDate today)
{
    if (Get(modSettingKey::Update).isEmpty()) {
        Set(modSettingKey::Update, modDate::ToIso(today));
    }
    return modDate::FromIso(Get(modSettingKey::Update));
}

bool cSettings::ToBool(const QString& text)
{
    // The German words are compared in any letter case and the English ones exactly. What falls through, a "true" for
    // instance, is read by the general rule with the same result.
    const QString upper = text.toUpper();
    if (upper == u"WAHR" || text == u"TRUE") {
        return true;
    }
    if (upper == u"FALSCH" || text == u"FALSE") {
        return false;
    }
    const QString word = text.trimmed();
    if (word.compare(u"true"_s, Qt::CaseInsensitive) == 0) {
        return true;
    }
    bool isNumber = false;
    const double number = QString(word).replace(u',', u'.').toDouble(&isNumber);
    return isNumber && (number < 0.0 || number > 0.0);
}

QString cSettings::FromBool(bool value)
{
    return value ? modSettingKey::On : modSettingKey::Off;
}
