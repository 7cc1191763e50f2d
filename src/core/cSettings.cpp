#include "core/cSettings.h"

#include "base/modDate.h"
#include "store/cDataAccess.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array keptOnReset{u"passwortaktiv", u"passwort", u"lastversion", u"firstinstall", u"update"};
constexpr std::array viewSwitches{u"ViewSingleBooking", u"ViewFixBooking", u"ViewFutureBooking", u"ViewStartBooking",
                                  u"ViewAccountValueAll"};

bool IsViewSwitch(const QString& name)
{
    return std::any_of(viewSwitches.begin(), viewSwitches.end(),
                       [&](const char16_t* each) { return name.compare(QStringView(each), Qt::CaseInsensitive) == 0; });
}

bool IsKeptOnReset(const QString& lowerName)
{
    const bool isListed =
        std::any_of(keptOnReset.begin(), keptOnReset.end(), [&](const char16_t* name) { return lowerName == name; });
    return isListed || lowerName.startsWith(u"hbcivblz"_s);
}

} // namespace

cSettings::cSettings(cDataAccess& data) : m_data(data)
{
    Reload();
}

void cSettings::Reload()
{
    m_values.clear();
    const QList<std::pair<QString, QString>> rows = m_data.GetSettings();
    for (const auto& [name, value] : rows) {
        m_values.insert(name.toLower(), {name, value});
    }
}

QString cSettings::Get(const QString& name) const
{
    return m_values.value(name.toLower()).Value;
}

bool cSettings::Set(const QString& name, const QString& value)
{
    const QString key = name.toLower();
    // The row is addressed in the letter case it was stored with, so that no second one appears beside it.
    const QString stored = m_values.contains(key) ? m_values.value(key).Name : name;
    if (!m_data.IsReadOnly() && !m_data.ChangeSettingItem(stored, value)) {
        return false;
    }
    m_values.insert(key, {stored, value});
    return true;
}

bool cSettings::Delete(const QString& name)
{
    const QString key = name.toLower();
    const QString stored = m_values.contains(key) ? m_values.value(key).Name : name;
    if (!m_data.IsReadOnly() && !m_data.DeleteSetting(stored)) {
        return false;
    }
    m_values.remove(key);
    return true;
}

bool cSettings::GetBool(const QString& name) const
{
    const QString value = Get(name);
    return ToBool(value) || (value.isEmpty() && IsViewSwitch(name));
}

bool cSettings::SetBool(const QString& name, bool value)
{
    return Set(name, FromBool(value));
}

void cSettings::ResetAll()
{
    bool hasDeleted = true;
    while (hasDeleted) {
        hasDeleted = false;
        const QStringList keys = m_values.keys();
        for (const QString& key : keys) {
            hasDeleted = (!IsKeptOnReset(key) && Delete(key)) || hasDeleted;
        }
    }
    ResetViewDefaults();
}

void cSettings::ResetViewDefaults()
{
    for (const char16_t* name : viewSwitches) {
        SetBool(QStringView(name).toString(), true);
    }
}

bool cSettings::CheckVersion(const QString& version)
{
    if (Get(u"LastVersion"_s) == version) {
        return false;
    }
    Set(u"LastVersion"_s, version);
    return true;
}

QDate cSettings::GetUpdateDate(QDate today)
{
    if (Get(u"Update"_s).isEmpty()) {
        Set(u"Update"_s, modDate::ToIso(today));
    }
    return modDate::FromIso(Get(u"Update"_s));
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
    return value ? u"Wahr"_s : u"Falsch"_s;
}
