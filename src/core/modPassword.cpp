#include "core/modPassword.h"

#include "base/cRescue.h"
#include "base/modMD5.h"
#include "core/cConfiguration.h"
#include "core/cSettings.h"
#include "model/modSettingKey.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

bool IsDigest(const QString& text)
{
    constexpr qsizetype digestLength = 32;
    return text.size() == digestLength
        && std::all_of(text.begin(), text.end(), [](QChar c) { return u"0123456789abcdefABCDEF"_s.contains(c); });
}

// Looks at every character, so that the time says nothing about how much of it was right.
bool IsSameDigest(const QString& one, const QString& other)
{
    if (one.size() != other.size()) {
        return false;
    }
    int difference = 0;
    for (qsizetype i = 0; i < one.size(); ++i) {
        difference |= one[i].unicode() ^ other[i].unicode();
    }
    return difference == 0;
}

} // namespace

QString modPassword::ToStored(const QString& password)
{
    return modMD5::Hex(password);
}

bool modPassword::Matches(const QString& typed, const QString& stored)
{
    // A digest is never taken for the password itself: whoever reads it in the file could type it.
    return IsSameDigest(ToStored(typed), IsDigest(stored) ? stored.toLower() : ToStored(stored));
}

bool modPassword::IsActive(const cConfiguration& configuration)
{
    return cSettings::ToBool(configuration.GetSetting(modSettingKey::PasswordActive));
}

bool modPassword::Set(cConfiguration& configuration, const QString& password)
{
    return configuration.SaveSetting(modSettingKey::Password, ToStored(password), eSettingPlace::Database)
        && configuration.SaveSetting(modSettingKey::PasswordActive, cSettings::FromBool(true), eSettingPlace::Database);
}

bool modPassword::Remove(cConfiguration& configuration)
{
    // The switch is stored as off rather than deleted: an empty place would let a value of the registry through.
    return configuration.SaveSetting(modSettingKey::PasswordActive, cSettings::FromBool(false), eSettingPlace::Database)
        && configuration.SaveSetting(modSettingKey::Password, {}, eSettingPlace::Database);
}

bool modPassword::Admit(const cConfiguration& configuration, cRescue& rescue)
{
    if (!configuration.IsRead()) {
        return false;
    }
    if (!IsActive(configuration)) {
        return true;
    }
    const QString stored = configuration.GetSetting(modSettingKey::Password);
    return rescue.AskPassword([&](const QString& typed) { return Matches(typed, stored); });
}
